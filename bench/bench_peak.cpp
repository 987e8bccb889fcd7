// Peak scan of a 1 GiB 16-bit stereo work file that sits in the page cache, against
// `sox FILE -n stat` and `ffmpeg -i FILE -af astats -f null -` on the same file.
// The file is made in the build tree at start and deleted at the end.
#include <benchmark/benchmark.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QByteArray>
#include <QCoreApplication>
#include <QFile>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "app/Globals.h"
#include "app/Session.h"
#include "formats/WorkFile.h"
#include "level/PeakScanner.h"

namespace {

constexpr uint32_t kDataBytes = 1u << 30;
std::string g_file;

bool MakeWorkFile(const std::string& path) {
  QFile f(QString::fromStdString(path));
  if (!f.open(QIODevice::WriteOnly | QIODevice::Truncate)) return false;
  if (f.write(MakeWorkHeader(2, 44100, 16, 1, kDataBytes)) != kWorkHeaderSize) return false;
  // Noise at about -12 dBFS with one full-scale sample near the end.
  std::vector<int16_t> chunk(1 << 20);
  uint32_t r = 1;
  for (auto& x : chunk) {
    r = r * 1664525u + 1013904223u;
    x = int16_t(int(r >> 16) / 4 - 8192);
  }
  const size_t chunkBytes = chunk.size() * 2;
  for (uint64_t done = 0; done < kDataBytes; done += chunkBytes) {
    if (done + chunkBytes >= kDataBytes) chunk[chunk.size() - 8] = -32768;  // left
    if (f.write(reinterpret_cast<const char*>(chunk.data()), qint64(chunkBytes)) != qint64(chunkBytes)) return false;
  }
  return true;
}

// Wall time of a shell command, in seconds; negative when it failed.
double WallTime(const std::string& command) {
  const auto t0 = std::chrono::steady_clock::now();
  const int rc = std::system((command + " >/dev/null 2>&1").c_str());
  const auto t1 = std::chrono::steady_clock::now();
  if (rc == -1 || !WIFEXITED(rc) || WEXITSTATUS(rc) != 0) return -1;
  return std::chrono::duration<double>(t1 - t0).count();
}

double g_bestScanSeconds = 0;

void BM_PeakScan(benchmark::State& state) {
  Session s;
  NullPump pump;
  s.m_pump = &pump;
  g_workPath = QString::fromStdString(g_file);
  for (auto _ : state) {
    s.m_dataOffset = kWorkHeaderSize;
    s.m_dataSize = kDataBytes;
    s.m_channels = 2;
    s.m_bits = 16;
    s.m_formatTag = 1;
    s.m_showDb = 1;
    s.m_progressPercent = 0;
    const auto t0 = std::chrono::steady_clock::now();
    if (ScanPeakLevels(s) != 0 || s.m_noClipDbLeft != 0.0f || s.m_noClipDbRight > -12.0f) {
      std::fprintf(stderr, "left %g right %g\n", double(s.m_noClipDbLeft), double(s.m_noClipDbRight));
      state.SkipWithError("scan failed or found the wrong peak");
      break;
    }
    const double secs = std::chrono::duration<double>(std::chrono::steady_clock::now() - t0).count();
    if (g_bestScanSeconds == 0 || secs < g_bestScanSeconds) g_bestScanSeconds = secs;
  }
  state.SetBytesProcessed(int64_t(state.iterations()) * kDataBytes);
  state.counters["GB/s"] = benchmark::Counter(double(kDataBytes) * double(state.iterations()) / 1e9,
                                              benchmark::Counter::kIsRate);
}
BENCHMARK(BM_PeakScan)->Unit(benchmark::kMillisecond)->Iterations(5)->UseRealTime();

}  // namespace

int main(int argc, char** argv) {
  QCoreApplication app(argc, argv);
  g_file = QCoreApplication::applicationDirPath().toStdString() + "/bench_peak_1GiB.tmp";
  std::fprintf(stderr, "making %s ...\n", g_file.c_str());
  if (!MakeWorkFile(g_file)) {
    std::fprintf(stderr, "cannot write %s\n", g_file.c_str());
    std::remove(g_file.c_str());
    return 1;
  }
  // Into the page cache before anything is timed.
  WallTime("cat '" + g_file + "'");

  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();

  const double sox = WallTime("sox '" + g_file + "' -n stat");
  const double ffmpeg = WallTime("ffmpeg -nostdin -i '" + g_file + "' -af astats -f null -");
  std::remove(g_file.c_str());

  struct rusage ru {};
  getrusage(RUSAGE_SELF, &ru);
  const double scan = g_bestScanSeconds;
  std::printf("\npeak scan of 1 GiB 16-bit stereo (page cache), best of 5: %.3f s, %.2f GB/s (target >= 3)\n",
              scan, scan > 0 ? double(kDataBytes) / scan / 1e9 : 0.0);
  if (sox > 0)
    std::printf("sox FILE -n stat:                       %.3f s, tonvane is %.1fx faster (target >= 8)\n", sox,
                sox / scan);
  else
    std::printf("sox FILE -n stat: failed\n");
  if (ffmpeg > 0)
    std::printf("ffmpeg -i FILE -af astats -f null -:   %.3f s, tonvane is %.1fx faster\n", ffmpeg, ffmpeg / scan);
  else
    std::printf("ffmpeg astats: failed\n");
  std::printf("max resident set of the benchmark: %ld MiB (the mapped views count while mapped)\n",
              ru.ru_maxrss / 1024);
  return 0;
}
