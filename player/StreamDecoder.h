#pragma once
// One open audio file, decoded by libavformat/libavcodec and resampled by libswresample to
// the output's rate and channel count as interleaved floats. Not thread-safe: the sound
// system hands it to one decode thread at a time.
#include <QString>
#include <cstdint>
#include <memory>
#include <vector>

#include "player/SoundResult.h"

namespace snd {

class StreamDecoder {
 public:
  StreamDecoder();
  ~StreamDecoder();
  StreamDecoder(const StreamDecoder&) = delete;
  StreamDecoder& operator=(const StreamDecoder&) = delete;

  // Opens `path` (the content is probed; the suffix does not matter) for output at
  // `outRate` Hz with `outChannels` channels. Decodes up to the first samples, so a file
  // that holds none is refused here.
  Result Open(const QString& path, int outRate, int outChannels);

  // Appends the next decoded frames to `out`. False at the end of the stream (a read error
  // or a run of damaged packets ends it too).
  bool Decode(std::vector<float>& out);

  // Positions the stream so that the next frames begin at `ms` exactly: seeks back to a
  // point before it, then decodes and drops up to it.
  Result SeekMs(uint32_t ms);

  uint32_t LengthMs() const { return m_lengthMs; }
  int SourceRate() const { return m_sourceRate; }
  int SourceChannels() const { return m_sourceChannels; }
  int OutRate() const { return m_outRate; }
  int OutChannels() const { return m_outChannels; }
  // True until the first frame has been handed out since the open or the last seek to 0.
  bool AtStart() const { return m_atStart; }

 private:
  struct Av;
  bool ResetResampler();
  // Decodes one frame into the source-domain drop and the resampler; false at the end.
  bool DecodeFrame(std::vector<float>& out);

  std::unique_ptr<Av> m_av;
  uint32_t m_lengthMs = 0;
  int m_sourceRate = 0;
  int m_sourceChannels = 0;
  int m_outRate = 0;
  int m_outChannels = 0;
  int64_t m_dropUntil = -1;  // source samples before this one are dropped after a seek
  int64_t m_nextSample = 0;  // source sample index of the next decoded frame
  bool m_atStart = true;
  bool m_eof = false;
  std::vector<float> m_primed;  // frames decoded by Open, handed out first
};

}  // namespace snd
