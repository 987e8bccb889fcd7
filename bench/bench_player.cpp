// The player's speed and cost, with SDL's dummy driver (a real-time clock and no device):
//   - start: from Play (createStream + playSound) on a cached file to the first frames the
//     output's thread takes, as a median over runs;
//   - seek: from setPosition to the first frames at the new place taken by the output;
//   - cost: `bench_player --play FILE SECONDS` plays a file and exits; run it under
//     /usr/bin/time beside `ffmpeg -re` (the same decode, paced to real time, nothing mixed)
//     to compare the CPU share of one core. bench/tools/player-cost does both and prints
//     the ratio.
#include <benchmark/benchmark.h>

#include <QDir>
#include <QString>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <thread>
#include <unistd.h>

#include "player/SoundSystem.h"

namespace {

using Clock = std::chrono::steady_clock;
QString g_file;

bool MakeFile() {
  const QString dir = QDir::tempPath() + QString("/bench_player.%1").arg(::getpid());
  QDir().mkpath(dir);
  g_file = dir + "/long.flac";
  const QString cmd = "sox -R -n -b 16 -c 2 -r 44100 '" + g_file + "' synth 120 pinknoise vol 0.3";
  return std::system(cmd.toLocal8Bit().constData()) == 0;
}

snd::System* OpenSystem() {
  snd::System* system = nullptr;
  snd::System_Create(&system);
  system->init(2);
  return system;
}

// Waits until the channel's position passes `after` ms; returns the seconds it took.
double WaitHeard(snd::Channel* ch, unsigned after, Clock::time_point start) {
  for (;;) {
    unsigned ms = 0;
    ch->getPosition(&ms, snd::TIMEUNIT_MS);
    if (ms > after) return std::chrono::duration<double>(Clock::now() - start).count();
    std::this_thread::sleep_for(std::chrono::microseconds(200));
  }
}

void BM_StartLatency(benchmark::State& state) {
  snd::System* system = OpenSystem();
  for (auto _ : state) {
    const auto start = Clock::now();
    snd::Sound* sound = nullptr;
    system->createStream(g_file, snd::MODE_DEFAULT, nullptr, &sound);
    snd::Channel* ch = nullptr;
    system->playSound(snd::CHANNEL_FREE, sound, false, &ch);
    state.SetIterationTime(WaitHeard(ch, 0, start));
    sound->release();
  }
  system->release();
}
BENCHMARK(BM_StartLatency)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(20)->ComputeStatistics(
    "max", [](const std::vector<double>& v) { return *std::max_element(v.begin(), v.end()); });

void BM_SeekLatency(benchmark::State& state) {
  snd::System* system = OpenSystem();
  snd::Sound* sound = nullptr;
  system->createStream(g_file, snd::MODE_DEFAULT, nullptr, &sound);
  snd::Channel* ch = nullptr;
  system->playSound(snd::CHANNEL_FREE, sound, false, &ch);
  unsigned target = 5000;
  for (auto _ : state) {
    target = (target + 37000) % 110000;
    const auto start = Clock::now();
    ch->setPosition(target, snd::TIMEUNIT_MS);
    state.SetIterationTime(WaitHeard(ch, target, start));
  }
  sound->release();
  system->release();
}
BENCHMARK(BM_SeekLatency)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(20);

int PlayFor(const char* file, int seconds) {
  snd::System* system = OpenSystem();
  snd::Sound* sound = nullptr;
  if (system->createStream(QString::fromLocal8Bit(file), snd::MODE_DEFAULT, nullptr, &sound) != snd::OK) return 1;
  snd::Channel* ch = nullptr;
  system->playSound(snd::CHANNEL_FREE, sound, false, &ch);
  ch->setVolume(0.5f);
  std::this_thread::sleep_for(std::chrono::seconds(seconds));
  bool playing = false;
  ch->isPlaying(&playing);
  unsigned ms = 0;
  ch->getPosition(&ms, snd::TIMEUNIT_MS);
  std::printf("played %u ms, %s\n", ms, playing ? "still playing" : "ended");
  sound->release();
  system->release();
  return 0;
}

}  // namespace

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("SDL_AUDIODRIVER")) qputenv("SDL_AUDIODRIVER", "dummy");
  if (argc == 4 && std::string(argv[1]) == "--play") return PlayFor(argv[2], std::atoi(argv[3]));
  if (!MakeFile()) {
    std::fprintf(stderr, "sox failed\n");
    return 1;
  }
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  QDir(QDir::tempPath() + QString("/bench_player.%1").arg(::getpid())).removeRecursively();
  return 0;
}
