#pragma once
// Loudness of one or two channels as the ReplayGain 1.0 track analysis defines it: the
// equal-loudness filter (10th-order Yule-Walker, then a 2nd-order Butterworth high-pass at
// 150 Hz), the mean square over 50 ms blocks, a histogram of block levels in 0.01 dB steps
// and the level at the 95th percentile. Each channel is analysed on its own, so a mono
// channel reads as the same signal in both channels of a stereo file would.
//
// Samples come in on the 16-bit scale (full scale +-32768), interleaved.
#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

#include "level/SampleScale.h"

// Calibration: a pink noise reference at the 89 dB reference level reads this value.
constexpr double kPinkReference = 64.82;

// Filter coefficients for one sample rate: the Yule-Walker part (b, a) and the
// Butterworth part (bb, ab); a[0] and ab[0] are 1.
struct LoudnessFilter {
  int rate;
  double b[11];
  double a[11];
  double bb[3];
  double ab[3];
};

// The filter of a rate, or null when no table exists for it.
const LoudnessFilter* FindLoudnessFilter(int sampleRate);

// Samples per block at a rate: ceil(rate x 0.05), as the reference counts it.
uint32_t LoudnessBlockLength(int sampleRate);

class ReplayGainAnalyser {
 public:
  ReplayGainAnalyser();
  ~ReplayGainAnalyser();
  ReplayGainAnalyser(const ReplayGainAnalyser&) = delete;
  ReplayGainAnalyser& operator=(const ReplayGainAnalyser&) = delete;

  // channels 1 or 2. False for a rate below 1 kHz or above 1.536 MHz, or when the
  // resampler cannot start. `ownThread`: the filters may run on a second thread, one
  // batch behind the caller (a caller that is itself a thread beside a decoder says no).
  bool Init(int sampleRate, int channels, bool ownThread = true);
  // `frames` frames of interleaved samples on the 16-bit scale.
  void Process(const double* samples, size_t frames);
  // `frames` frames of `channels` interleaved samples of `kind` at `p`, of which the first
  // Channels() are analysed: ToSixteenBitScale and Process in one step.
  void ProcessPcm(const uint8_t* p, size_t frames, int channels, SampleKind kind);
  // Ends the analysis (drains the resampler, takes a lone partial block). Idempotent.
  void Finish();

  int Channels() const { return m_channels; }
  // Frames given to Process.
  uint64_t Frames() const { return m_framesIn; }
  // True when the rate has no filter table and the channels go through 48 kHz.
  bool Resampling() const;
  // After Finish: the gain g (64.82 minus the 95th-percentile block level) of a channel,
  // on the 16-bit scale.
  double Gain(int channel) const;
  // Largest absolute sample of a channel as given to Process.
  double Peak(int channel) const { return m_peak[channel]; }

  // Block levels kept, for tests: the number of blocks of a channel in the histogram.
  uint64_t Blocks(int channel) const;

 private:
  struct Memory;
  struct Resampler;
  // Frames on their way to the filters: gathered into batches, so that the filter thread
  // gets work enough to be worth the hand-over.
  void Gather(const double* samples, size_t frames);

  int m_channels = 0;
  uint64_t m_framesIn = 0;
  bool m_finished = false;
  double m_peak[2] = {0, 0};
  std::vector<double> m_scratch;  // converted samples on their way to the resampler
  std::unique_ptr<Memory> m_state;
  std::unique_ptr<Resampler> m_resampler;
};
