// The average test against its command-line peers, on the same files in the same run:
// a 10-minute 44.1 kHz 16-bit stereo work file against FFmpeg's replaygain filter, and an
// MP3 of the same length against mp3gain (FFmpeg's filter when mp3gain is missing).
// Everything runs on one core: the engine is single-threaded, the peers are told so.
#include <benchmark/benchmark.h>

#include <QString>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <map>
#include <string>

#include "app/Pump.h"
#include "app/Session.h"
#include "level/GainEngine.h"

namespace {

const std::string kDir = "/tmp/tonvane-bench-gain";
const std::string kWav = kDir + "/ten_minutes.wav";
const std::string kMp3 = kDir + "/ten_minutes.mp3";
const std::string kMp3Copy = kDir + "/ten_minutes_copy.mp3";

std::map<std::string, double> g_seconds;  // mean wall time per benchmark

bool Run(const std::string& command) { return std::system(command.c_str()) == 0; }

bool HaveProgram(const char* name) { return Run(std::string("command -v ") + name + " >/dev/null 2>&1"); }

bool MakeFiles() {
  std::filesystem::create_directories(kDir);
  if (!std::filesystem::exists(kWav) &&
      !Run("sox -R -n -t wavpcm -b 16 -r 44100 -c 2 '" + kWav +
           "' synth 600 pinknoise brownnoise remix 1v0.3 2v0.2 2>/dev/null"))
    return false;
  if (!std::filesystem::exists(kMp3) && !Run("lame --quiet -b 192 '" + kWav + "' '" + kMp3 + "'")) return false;
  return true;
}

template <class F>
void Timed(benchmark::State& state, const std::string& name, F body) {
  double total = 0;
  int n = 0;
  for (auto _ : state) {
    const auto t0 = std::chrono::steady_clock::now();
    if (!body()) {
      state.SkipWithError("failed");
      return;
    }
    const std::chrono::duration<double> dt = std::chrono::steady_clock::now() - t0;
    state.SetIterationTime(dt.count());
    total += dt.count();
    ++n;
  }
  if (n) g_seconds[name] = total / n;
}

void BM_TonvaneRms(benchmark::State& state) {
  Session s;
  NullPump pump;
  s.m_pump = &pump;
  Timed(state, "rms", [&] {
    float gl = 0, gr = 0, nl = 0, nr = 0;
    int count = 0;
    return RMS(QString::fromStdString(kWav), 1, s, nullptr, 2, 16, gl, gr, nl, nr, count, 1, 0) == kGainOk;
  });
}

void BM_FfmpegReplaygainWav(benchmark::State& state) {
  Timed(state, "ffmpeg_wav", [] {
    return Run("ffmpeg -nostdin -hide_banner -loglevel error -threads 1 -filter_threads 1 -i '" + kWav +
               "' -af replaygain -f null - 2>/dev/null");
  });
}

void BM_TonvaneMp3(benchmark::State& state) {
  Session s;
  NullPump pump;
  s.m_pump = &pump;
  Timed(state, "mp3", [&] {
    float gl = 0, gr = 0, nl = 0, nr = 0;
    int count = 0;
    return beGetRadioGain(QString::fromStdString(kMp3), s, nullptr, gl, gr, nl, nr, count, 0, 3) == kGainOk;
  });
}

void BM_Mp3gain(benchmark::State& state) {
  std::filesystem::copy_file(kMp3, kMp3Copy, std::filesystem::copy_options::overwrite_existing);
  Timed(state, "mp3gain", [] { return Run("mp3gain -q -s s '" + kMp3Copy + "' >/dev/null 2>&1"); });
}

void BM_FfmpegReplaygainMp3(benchmark::State& state) {
  Timed(state, "ffmpeg_mp3", [] {
    return Run("ffmpeg -nostdin -hide_banner -loglevel error -threads 1 -filter_threads 1 -i '" + kMp3 +
               "' -af replaygain -f null - 2>/dev/null");
  });
}

void Ratio(const char* what, const std::string& peer, const std::string& ours, double target) {
  if (!g_seconds.count(peer) || !g_seconds.count(ours)) return;
  const double r = g_seconds[peer] / g_seconds[ours];
  std::printf("%-44s %7.3f s vs %7.3f s  ratio %.2fx (target %.1fx)\n", what, g_seconds[ours], g_seconds[peer], r,
              target);
}

}  // namespace

int main(int argc, char** argv) {
  if (!MakeFiles()) {
    std::fprintf(stderr, "cannot make the benchmark files in %s (sox, lame)\n", kDir.c_str());
    return 1;
  }
  const bool mp3gain = HaveProgram("mp3gain");
  benchmark::RegisterBenchmark("Average/Tonvane_RMS_wav", BM_TonvaneRms)->UseManualTime()->Iterations(5)
      ->Unit(benchmark::kMillisecond);
  benchmark::RegisterBenchmark("Average/ffmpeg_replaygain_wav", BM_FfmpegReplaygainWav)->UseManualTime()
      ->Iterations(3)->Unit(benchmark::kMillisecond);
  benchmark::RegisterBenchmark("Average/Tonvane_beGetRadioGain_mp3", BM_TonvaneMp3)->UseManualTime()
      ->Iterations(3)->Unit(benchmark::kMillisecond);
  if (mp3gain)
    benchmark::RegisterBenchmark("Average/mp3gain_mp3", BM_Mp3gain)->UseManualTime()->Iterations(3)
        ->Unit(benchmark::kMillisecond);
  else
    benchmark::RegisterBenchmark("Average/ffmpeg_replaygain_mp3", BM_FfmpegReplaygainMp3)->UseManualTime()
        ->Iterations(3)->Unit(benchmark::kMillisecond);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();

  std::printf("\n10-minute 44.1 kHz 16-bit stereo, one core (Tonvane vs peer):\n");
  Ratio("RMS on the work file vs ffmpeg replaygain", "ffmpeg_wav", "rms", 2.0);
  if (mp3gain)
    Ratio("beGetRadioGain on the MP3 vs mp3gain -s s", "mp3gain", "mp3", 1.5);
  else
    Ratio("beGetRadioGain on the MP3 vs ffmpeg (no mp3gain)", "ffmpeg_mp3", "mp3", 1.5);
  return 0;
}
