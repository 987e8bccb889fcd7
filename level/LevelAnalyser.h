#pragma once
// The streaming analyser: a sink that takes a decoder's samples and computes, in the same
// pass, the extremes of the peak test and the loudness of the average test, with no work
// file. Its figures are bit for bit those of the peak scanner and RMS over a work file of
// the same samples: both roads call the same kernels (PeakExtremes, ToSixteenBitScale,
// ReplayGainAnalyser) on the same frames in the same order.
#include <cstdint>
#include <memory>

#include "formats/PcmSink.h"
#include "level/LevelResult.h"

class LevelAnalyser : public PcmSink {
 public:
  // `threaded`: the analysis runs on a thread of its own beside the decoder, which hands it
  // blocks of whole frames; otherwise it runs inside Write. `peak`, `gain`: the peak test's
  // groups (MPEG audio has none) and the average test's group are wanted.
  explicit LevelAnalyser(bool threaded = true, bool peak = true, bool gain = true);
  ~LevelAnalyser() override;
  // No thread beside the caller's at all: the analysis runs inside Write and the loudness
  // filters take none of their own (a caller that already keeps every core busy). Before
  // Begin; the figures are the same.
  void StayOnCallerThread();
  LevelAnalyser(const LevelAnalyser&) = delete;
  LevelAnalyser& operator=(const LevelAnalyser&) = delete;

  bool Begin(const PcmFormat& format) override;
  bool Write(const void* data, size_t bytes) override;
  bool WriteLent(const void* data, size_t bytes) override;
  bool End(SizeRule rule) override;

  // After End. Whole frames analysed (a cut last frame is left out, as the readers of a
  // work file leave it).
  uint64_t Frames() const;
  // The peak groups (Wav, WavPik) stand in Result(): the format is one the peak test reads
  // as a result, which is every format but more than two channels.
  bool PeakMeasured() const;
  // The Gain group stands in Result(): the average test could analyse the samples (a
  // width of 8, 16, 24 or 32 bits, a rate the analysis takes, at least one frame).
  bool GainMeasured() const;
  // Every group measured; the others keep their not-measured marks. A mono stream fills
  // the left fields only.
  LevelResult Result() const;

 private:
  struct State;
  std::unique_ptr<State> m;
};
