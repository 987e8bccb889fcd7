#pragma once
// Helpers for the player's tests: a sound system over a manual output, and measures of the
// frames pulled from it.
#include <QString>
#include <cmath>
#include <memory>
#include <vector>

#include <gtest/gtest.h>

#include "player/SoundSystem.h"

namespace player_test {

constexpr int kRate = 48000;
constexpr int kBuffer = 1024;

// The process's sound system, opened on a manual output of 48 kHz stereo.
class ManualSystem {
 public:
  ManualSystem() {
    qputenv("SDL_AUDIODRIVER", "dummy");
    snd::System_Create(&system);
    auto out = std::make_unique<snd::ManualOutput>(snd::AudioFormat{kRate, 2, kBuffer});
    manual = out.get();
    system->setOutputDevice(std::move(out));
    initResult = system->init(2);
  }
  ~ManualSystem() { system->release(); }
  // The next `ms` milliseconds of output, interleaved stereo.
  std::vector<float> Pull(int ms) { return manual->Pull(kRate * ms / 1000); }

  snd::System* system = nullptr;
  snd::ManualOutput* manual = nullptr;
  snd::Result initResult = snd::OK;
};

// Largest magnitude of one channel (0 left, 1 right) from frame `from` on.
inline float Peak(const std::vector<float>& f, int channel, size_t from = 0) {
  float peak = 0;
  for (size_t i = from * 2 + size_t(channel); i < f.size(); i += 2) peak = std::max(peak, std::fabs(f[i]));
  return peak;
}

// Frequency of one channel by rising zero crossings.
inline double Frequency(const std::vector<float>& f, int channel, int rate = kRate) {
  int first = -1, last = -1, count = 0;
  for (size_t i = 2 + size_t(channel); i < f.size(); i += 2) {
    if (f[i - 2] < 0 && f[i] >= 0) {
      const int frame = int(i / 2);
      if (first < 0) first = frame;
      else ++count;
      last = frame;
    }
  }
  return count > 0 ? double(count) * rate / double(last - first) : 0.0;
}

// True when every sample is zero.
inline bool Silent(const std::vector<float>& f) {
  for (float v : f)
    if (v != 0.0f) return false;
  return true;
}

}  // namespace player_test
