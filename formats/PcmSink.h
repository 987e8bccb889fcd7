#pragma once
// Where decoders put their samples. A decoder is one loop per format that writes
// interleaved little-endian PCM to a sink and does not know where the samples go: the PCM
// work file is one sink, the streaming analyser (level/LevelAnalyser.h) another.
#include <QString>
#include <cstddef>
#include <cstdint>

struct PcmFormat {
  int channels = 0;
  int sampleRate = 0;
  int bits = 0;              // 8 (unsigned, 128 is silence), 16, 24 or 32 (signed or float)
  uint16_t formatTag = 1;    // 1 integer PCM, 3 IEEE float
  uint32_t dataBytes = 0;    // the data size a work file's header announces first; 0 unknown
  int gainScaleBits = 0;     // the word size the average level is reckoned in; 0: `bits`
                             // (MPEG audio always reads on the 16-bit scale)
  bool mpeg = false;         // MPEG audio: the average test only, no peak test
};

// How a work file's two size fields are settled at the end of a decoding.
enum class SizeRule {
  AsAnnounced,      // the header's sizes stand (a decoder that knew them, or one that failed)
  IfDifferent,      // each field is rewritten only where the bytes written differ from it
  FromRunningTotal, // both from the single-precision running total of the bytes written
  FromExactTotal,   // both from the exact count, brought to single precision at the end
};

class PcmSink {
 public:
  virtual ~PcmSink() = default;
  // The stream's format, before any sample. False when the sink cannot take it; the
  // decoder then stops.
  virtual bool Begin(const PcmFormat& format) = 0;
  // Interleaved samples, any number of bytes (frames may be cut between two calls). False
  // on a failed write; the decoder then stops.
  virtual bool Write(const void* data, size_t bytes) = 0;
  // The same for bytes that stay readable where they are until End has returned (a mapped
  // source): a sink may read them there later instead of copying them now.
  virtual bool WriteLent(const void* data, size_t bytes) { return Write(data, bytes); }
  // The end of the stream, also after a decoding error (what was written stands). False
  // when the sink could not settle (a work file whose sizes could not be patched).
  virtual bool End(SizeRule rule) = 0;
  // What went wrong in the last refused call, as the program says it to a person; empty
  // when the sink has nothing to say.
  virtual QString FailureText() const { return {}; }
};
