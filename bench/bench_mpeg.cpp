// The frame walk of a one-hour variable-rate MP3 without a VBR header (the only step of
// the MPEG reader that touches the whole file), against `ffprobe -count_frames` on the same
// file in the same run. The file is made at start: a minute encoded by lame -V2 -t (no
// Xing frame), repeated sixty times.
#include <benchmark/benchmark.h>

#include <QString>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>

#include "formats/mpeg/Mp3Open.h"

namespace {

std::string g_dir;
std::string g_file;
uint32_t g_frames = 0;
double g_bestWalk = 1e30;
double g_bestProbe = 1e30;
long g_probeFrames = -1;

bool Run(const std::string& command) { return std::system(command.c_str()) == 0; }

bool MakeFile() {
  char tmpl[] = "/tmp/tonvane-bench-mpeg-XXXXXX";
  if (!mkdtemp(tmpl)) return false;
  g_dir = tmpl;
  const std::string minute = g_dir + "/minute.mp3";
  g_file = g_dir + "/hour.mp3";
  // Tone and noise in turns, so the encoder's rate moves.
  if (!Run("sox -R -n -b 16 -c 2 -r 44100 " + g_dir + "/a.wav synth 10 sine 440 vol 0.1 && "
           "sox -R -n -b 16 -c 2 -r 44100 " + g_dir + "/b.wav synth 20 pinknoise vol 0.4 && "
           "sox -R " + g_dir + "/a.wav " + g_dir + "/b.wav " + g_dir + "/a.wav " + g_dir + "/b.wav " + g_dir +
           "/m.wav trim 0 60"))
    return false;
  if (!Run("lame --quiet -V 2 -t " + g_dir + "/m.wav " + minute)) return false;
  std::string cat = "cat";
  for (int i = 0; i < 60; ++i) cat += " " + minute;
  return Run(cat + " > " + g_file);
}

void BM_FrameWalk(benchmark::State& state) {
  Mp3Properties p;
  for (auto _ : state) {
    const auto t0 = std::chrono::steady_clock::now();
    const Mp3ReadResult r = ReadMp3Properties(QString::fromStdString(g_file), p);
    const double secs = std::chrono::duration<double>(std::chrono::steady_clock::now() - t0).count();
    if (r != Mp3ReadResult::Ok || !p.vbr || p.hasVbrHeader) {
      state.SkipWithError("the file did not read as a variable rate without header");
      return;
    }
    g_bestWalk = std::min(g_bestWalk, secs);
    g_frames = p.frames;
  }
  state.counters["frames"] = double(g_frames);
  state.counters["frames/s"] = benchmark::Counter(double(g_frames) * double(state.iterations()),
                                                  benchmark::Counter::kIsRate);
}
BENCHMARK(BM_FrameWalk)->Unit(benchmark::kMillisecond)->Iterations(10)->UseRealTime();

void BM_FfprobeCountFrames(benchmark::State& state) {
  const std::string cmd = "ffprobe -v error -count_frames -select_streams a:0 -show_entries stream=nb_read_frames "
                          "-of csv=p=0 '" + g_file + "'";
  for (auto _ : state) {
    const auto t0 = std::chrono::steady_clock::now();
    FILE* f = popen(cmd.c_str(), "r");
    if (!f) {
      state.SkipWithError("ffprobe did not start");
      return;
    }
    long frames = -1;
    if (std::fscanf(f, "%ld", &frames) != 1) frames = -1;
    const int rc = pclose(f);
    const double secs = std::chrono::duration<double>(std::chrono::steady_clock::now() - t0).count();
    if (rc != 0 || frames <= 0) {
      state.SkipWithError("ffprobe failed");
      return;
    }
    g_bestProbe = std::min(g_bestProbe, secs);
    g_probeFrames = frames;
  }
  state.counters["frames"] = double(g_probeFrames);
  state.counters["frames/s"] = benchmark::Counter(double(g_probeFrames) * double(state.iterations()),
                                                  benchmark::Counter::kIsRate);
}
BENCHMARK(BM_FfprobeCountFrames)->Unit(benchmark::kMillisecond)->Iterations(3)->UseRealTime();

}  // namespace

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  if (!MakeFile()) {
    std::fprintf(stderr, "bench_mpeg: could not make the test file (sox, lame)\n");
    return 1;
  }
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  if (g_bestWalk < 1e30 && g_bestProbe < 1e30) {
    std::printf("\nframes: walk %u, ffprobe %ld\n", g_frames, g_probeFrames);
    std::printf("frame walk     %10.0f frames/s (best %.1f ms)\n", g_frames / g_bestWalk, g_bestWalk * 1000.0);
    std::printf("ffprobe        %10.0f frames/s (best %.1f ms)\n", g_probeFrames / g_bestProbe, g_bestProbe * 1000.0);
    std::printf("ratio (walk / ffprobe, frames per second): %.1fx (target >= 5x)\n",
                (g_frames / g_bestWalk) / (g_probeFrames / g_bestProbe));
  }
  std::error_code ec;
  std::filesystem::remove_all(g_dir, ec);
  return 0;
}
