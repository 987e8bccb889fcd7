// Decoding a source into its work file against the command-line decoders of each format,
// on the same files in the same run: FLAC against `flac -d`, Ogg Vorbis against `oggdec`,
// the WAV conversion road (IMA ADPCM) against `ffmpeg`. Prints the ratio of wall times.
#include <benchmark/benchmark.h>

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QString>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <map>
#include <string>
#include <unistd.h>

#include "app/Globals.h"
#include "app/Prompt.h"
#include "app/Session.h"
#include "formats/FlacSource.h"
#include "formats/OggSource.h"
#include "formats/WavConvert.h"
#include "formats/WorkFile.h"

namespace {

QString g_dir;

int Run(const QString& command) { return std::system(command.toLocal8Bit().constData()); }

QString In(const char* name) { return g_dir + "/" + name; }

// One minute of stereo pink noise in each format, made once per run.
bool MakeFiles() {
  g_dir = QDir::tempPath() + QString("/bench_decode.%1").arg(::getpid());
  QDir().mkpath(g_dir);
  const QString d = "'" + g_dir + "'";
  return Run("sox -R -n -b 16 -c 2 -r 44100 " + d + "/src.wav synth 60 pinknoise vol 0.5") == 0 &&
         Run("flac -s -f -o " + d + "/in.flac " + d + "/src.wav") == 0 &&
         Run("oggenc -Q -s 7 -q 5 -o " + d + "/in.ogg " + d + "/src.wav") == 0 &&
         Run("ffmpeg -nostdin -loglevel error -y -i " + d + "/src.wav -fflags +bitexact -c:a adpcm_ima_wav " + d +
             "/ima.wav") == 0;
}

class QuietPrompt : public IPrompt {
 public:
  PromptAnswer Show(const PromptRequest& r) override {
    std::fprintf(stderr, "%s\n", r.text.toUtf8().constData());
    return {};
  }
};

uint32_t Le32(const QByteArray& b, int at) {
  return uint32_t(uint8_t(b[at])) | uint32_t(uint8_t(b[at + 1])) << 8 | uint32_t(uint8_t(b[at + 2])) << 16 |
         uint32_t(uint8_t(b[at + 3])) << 24;
}

// Opens `source` with its reader and waits for the work file.
template <typename Open>
void DecodeOurs(benchmark::State& state, const QString& source, Open open) {
  QuietPrompt prompt;
  for (auto _ : state) {
    Session s;
    s.m_prompt.SetUi(&prompt);
    s.m_fileName = source;
    g_sourcePath = source;
    g_workPath = In("work.tmp");
    if (open(s) != 1) {
      state.SkipWithError("the open failed");
      break;
    }
    WaitForWorker(s);
  }
  ClearSessionPaths();
}

void BM_Flac_Ours(benchmark::State& state) { DecodeOurs(state, In("in.flac"), [](Session& s) { return OpenFlac(s); }); }
void BM_Flac_FlacD(benchmark::State& state) {
  for (auto _ : state) Run("flac -s -f -d -o '" + In("peer.wav") + "' '" + In("in.flac") + "'");
}
void BM_Ogg_Ours(benchmark::State& state) { DecodeOurs(state, In("in.ogg"), [](Session& s) { return OpenOgg(s); }); }
void BM_Ogg_Oggdec(benchmark::State& state) {
  for (auto _ : state) Run("oggdec -Q -o '" + In("peer.wav") + "' '" + In("in.ogg") + "'");
}
void BM_Convert_Ours(benchmark::State& state) {
  // The session as the WAV reader leaves it before the conversion road.
  const QByteArray head = [] {
    QFile f(In("ima.wav"));
    return f.open(QIODevice::ReadOnly) ? f.read(4096) : QByteArray();
  }();
  const int fmt = head.indexOf("fmt ", 12);
  const int data = head.indexOf("data", 16);
  if (fmt < 0 || data < 0) {
    state.SkipWithError("no chunks");
    return;
  }
  DecodeOurs(state, In("ima.wav"), [&](Session& s) {
    s.m_fmtBlock = head.mid(fmt + 8, int(Le32(head, fmt + 4)));
    s.m_dataOffset = uint32_t(data + 8);
    s.m_dataSize = Le32(head, data + 4);
    return OpenWavConversion(s);
  });
}
void BM_Convert_Ffmpeg(benchmark::State& state) {
  for (auto _ : state)
    Run("ffmpeg -nostdin -loglevel error -y -i '" + In("ima.wav") + "' -c:a pcm_s16le '" + In("peer.wav") + "'");
}

#define DECODE_BENCH(fn) BENCHMARK(fn)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(8)
DECODE_BENCH(BM_Flac_Ours);
DECODE_BENCH(BM_Flac_FlacD);
DECODE_BENCH(BM_Ogg_Ours);
DECODE_BENCH(BM_Ogg_Oggdec);
DECODE_BENCH(BM_Convert_Ours);
DECODE_BENCH(BM_Convert_Ffmpeg);

// Keeps each benchmark's wall time per iteration for the ratios.
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
    std::fprintf(stderr, "could not make the test files (sox, flac, oggenc, ffmpeg)\n");
    return 1;
  }
  RatioReporter reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);
  std::printf("\nWall time of our decoding to the work file / the peer's, same files, same run:\n");
  const struct {
    const char* label;
    const char* ours;
    const char* peer;
  } pairs[] = {{"FLAC vs flac -d", "BM_Flac_Ours/iterations:8/real_time", "BM_Flac_FlacD/iterations:8/real_time"},
               {"Ogg Vorbis vs oggdec", "BM_Ogg_Ours/iterations:8/real_time", "BM_Ogg_Oggdec/iterations:8/real_time"},
               {"IMA ADPCM WAV vs ffmpeg", "BM_Convert_Ours/iterations:8/real_time",
                "BM_Convert_Ffmpeg/iterations:8/real_time"}};
  for (const auto& p : pairs) {
    auto a = reporter.times.find(p.ours), b = reporter.times.find(p.peer);
    if (a == reporter.times.end() || b == reporter.times.end() || b->second <= 0) continue;
    std::printf("  %-26s %.2fx  (%.1f ms vs %.1f ms; target at most 1.20x)\n", p.label, a->second / b->second,
                a->second, b->second);
  }
  QDir(g_dir).removeRecursively();
  return 0;
}
