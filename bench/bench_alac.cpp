// ALAC decoding against `ffmpeg -i x.m4a -f null -` on the same files in the same run:
// our decoder over every packet (no output, as FFmpeg's null muxer), and the whole decoder
// thread that writes the work file. Prints the ratios of wall times.
#include <benchmark/benchmark.h>

#include <QDir>
#include <QString>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <string>
#include <unistd.h>
#include <vector>

#include "app/Globals.h"
#include "app/Prompt.h"
#include "app/Session.h"
#include "formats/AacDecode.h"
#include "formats/AacFile.h"
#include "formats/AlacDecoder.h"
#include "formats/Decode.h"
#include "formats/WorkFile.h"

namespace {

QString g_dir;

int Run(const QString& command) { return std::system(command.toLocal8Bit().constData()); }
QString In(const char* name) { return g_dir + "/" + name; }

// One minute of stereo music-like sound (tones over pink noise) at 16 and 24 bits.
bool MakeFiles() {
  g_dir = QDir::tempPath() + QString("/bench_alac.%1").arg(::getpid());
  QDir().mkpath(g_dir);
  const QString d = "'" + g_dir + "'";
  for (const char* bits : {"16", "24"}) {
    const QString src = d + "/src" + bits + ".wav";
    if (Run(QString("sox -R -n -b %1 -c 2 -r 44100 %2 synth 60 pinknoise vol 0.4 synth 60 sine mix 330 vol 0.9")
                .arg(bits, src)) != 0 ||
        Run("ffmpeg -nostdin -loglevel error -y -i " + src + " -fflags +bitexact -c:a alac " + d + "/in" + bits +
            ".m4a") != 0)
      return false;
  }
  return true;
}

// Every packet of the file through the decoder, as the decoder thread takes them.
void BM_Decode_Ours(benchmark::State& state, const char* file) {
  MappedFile f;
  if (!f.Open(In(file)) || !f.Map(0, f.Size())) {
    state.SkipWithError("cannot map");
    return;
  }
  const uint8_t* data = f.View();
  const uint64_t size = f.ViewSize();
  for (auto _ : state) {
    Mp4AtomWalk walk;
    WalkMp4Atoms(data, size, 0, walk);
    ALACDecoder d;
    if (d.Init(data + walk.alacPos + 8, walk.alacSize - 12) != kAlacNoErr) {
      state.SkipWithError("no cookie");
      break;
    }
    const uint32_t channels = d.config().numChannels;
    std::vector<uint8_t> out(size_t(d.config().frameLength) * channels * 4 + 16);
    std::vector<uint8_t> packet;
    uint64_t pos = walk.mdatPayload, frames = 0;
    const uint64_t end = walk.stszPos - 4 + walk.stszSize;
    for (uint64_t e = walk.stszPos + 16; e + 4 <= end; e += 4) {
      const uint32_t n = uint32_t(data[e]) << 24 | uint32_t(data[e + 1]) << 16 | uint32_t(data[e + 2]) << 8 | data[e + 3];
      if (pos + n > size) break;
      packet.assign(data + pos, data + pos + n);
      packet.resize(n + kAlacPacketPadding, 0);
      BitBuffer bits(packet.data(), n);
      uint32_t got = 0;
      d.Decode(&bits, out.data(), d.config().frameLength, channels, &got);
      frames += got;
      pos += n;
    }
    benchmark::DoNotOptimize(frames);
  }
}

// The decoder thread's whole work: map, walk, decode, write the work file, patch it.
void BM_WorkFile_Ours(benchmark::State& state, const char* file) {
  for (auto _ : state) {
    DecodeJob job;
    job.kind = kKindAlac;
    job.source = In(file);
    WorkFileWriter sink(In("work.tmp"), job.source);
    if (DecodeMp4OrAac(job, sink) != DecodeStatus::Ok) {
      state.SkipWithError("decoding failed");
      break;
    }
  }
}

void BM_Ffmpeg_Null(benchmark::State& state, const char* file) {
  for (auto _ : state) Run("ffmpeg -nostdin -loglevel error -i '" + In(file) + "' -f null -");
}

#define ALAC_BENCH(fn, name, file) \
  BENCHMARK_CAPTURE(fn, name, file)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(10)
ALAC_BENCH(BM_Decode_Ours, 16bit, "in16.m4a");
ALAC_BENCH(BM_WorkFile_Ours, 16bit, "in16.m4a");
ALAC_BENCH(BM_Ffmpeg_Null, 16bit, "in16.m4a");
ALAC_BENCH(BM_Decode_Ours, 24bit, "in24.m4a");
ALAC_BENCH(BM_WorkFile_Ours, 24bit, "in24.m4a");
ALAC_BENCH(BM_Ffmpeg_Null, 24bit, "in24.m4a");

class RatioReporter : public benchmark::ConsoleReporter {
 public:
  void ReportRuns(const std::vector<Run>& runs) override {
    for (const Run& r : runs)
      if (r.iterations > 0 && !r.error_occurred) times[r.benchmark_name()] = r.GetAdjustedRealTime();
    ConsoleReporter::ReportRuns(runs);
  }
  std::map<std::string, double> times;
};

}  // namespace

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  if (!MakeFiles()) {
    std::fprintf(stderr, "could not make the test files (sox, ffmpeg)\n");
    return 1;
  }
  RatioReporter reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);
  std::printf("\nWall time of ours / ffmpeg -f null, same files, same run (target at most 1.00x):\n");
  for (const char* depth : {"16bit", "24bit"}) {
    const std::string suffix = std::string("/") + depth + "/iterations:10/real_time";
    auto peer = reporter.times.find("BM_Ffmpeg_Null" + suffix);
    if (peer == reporter.times.end() || peer->second <= 0) continue;
    for (const char* ours : {"BM_Decode_Ours", "BM_WorkFile_Ours"}) {
      auto a = reporter.times.find(ours + suffix);
      if (a == reporter.times.end()) continue;
      std::printf("  %-18s %s  %.2fx  (%.1f ms vs %.1f ms)\n", ours + 3, depth, a->second / peer->second, a->second,
                  peer->second);
    }
  }
  Run("rm -rf '" + g_dir + "'");
  return 0;
}
