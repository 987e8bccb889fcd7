// Decoding a long Monkey's Audio file into a work file, as the open's worker does, against
// FFmpeg decoding the same file to raw PCM, in the same run. Prints the ratio of the wall
// times (ours / FFmpeg's). The work file goes to the temporary folder and is removed.
#include <benchmark/benchmark.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <string>

#include "app/Globals.h"
#include "app/Prompt.h"
#include "app/Session.h"
#include "formats/ApeSource.h"
#include "formats/Decode.h"
#include "formats/WorkFile.h"

namespace {

// The shared test data stands beside the source tree; TONVANE_APE_DATA may name the folder.
QString SourcePath() {
  QString folder = qEnvironmentVariable("TONVANE_APE_DATA");
  if (folder.isEmpty()) folder = QStringLiteral(TONVANE_APE_DATA);
  return QFileInfo(folder + "/long_s16_stereo.ape").absoluteFilePath();
}

QString WorkPath() { return QDir::tempPath() + "/tonvane_bench_ape.tmp"; }

void BM_TonvaneApeToWorkFile(benchmark::State& state) {
  for (auto _ : state) {
    DecodeJob job;
    job.kind = kKindApe;
    job.source = SourcePath();
    WorkFileWriter sink(WorkPath(), job.source);
    if (DecodeApe(job, sink) != DecodeStatus::Ok) {
      state.SkipWithError("the decoder failed");
      break;
    }
  }
  QFile::remove(WorkPath());
}

void BM_FfmpegApeToNull(benchmark::State& state) {
  const std::string cmd = "ffmpeg -nostdin -v error -i '" + SourcePath().toStdString() + "' -f s16le -y /dev/null";
  for (auto _ : state) {
    if (std::system(cmd.c_str()) != 0) {
      state.SkipWithError("ffmpeg failed");
      break;
    }
  }
}

BENCHMARK(BM_TonvaneApeToWorkFile)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(3);
BENCHMARK(BM_FfmpegApeToNull)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(3);

// Keeps the mean wall time of each benchmark for the ratio.
class RatioReporter : public benchmark::ConsoleReporter {
 public:
  void ReportRuns(const std::vector<Run>& runs) override {
    for (const Run& r : runs)
      if (r.iterations > 0 && !r.error_occurred)
        times[r.benchmark_name()] = r.real_accumulated_time / double(r.iterations);
    ConsoleReporter::ReportRuns(runs);
  }
  std::map<std::string, double> times;
};

}  // namespace

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  RatioReporter reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);
  const auto ours = reporter.times.find("BM_TonvaneApeToWorkFile/iterations:3/real_time");
  const auto peer = reporter.times.find("BM_FfmpegApeToNull/iterations:3/real_time");
  if (ours != reporter.times.end() && peer != reporter.times.end() && peer->second > 0) {
    std::printf("long_s16_stereo.ape: Tonvane %.1f ms, ffmpeg %.1f ms, ratio %.2f (target at most 1.30)\n",
                ours->second * 1000.0, peer->second * 1000.0, ours->second / peer->second);
  }
  benchmark::Shutdown();
  return 0;
}
