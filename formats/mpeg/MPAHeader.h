#pragma once
// One MPEG audio frame header (MPEG 1, 2 and 2.5; Layers I, II and III), found by a search
// for the sync pattern and parsed from its four bytes.
#include <cstdint>

class CMPAStream;

class CMPAHeader {
 public:
  enum MPAVersion : uint32_t { MPEG25 = 0, MPEGReserved = 1, MPEG2 = 2, MPEG1 = 3 };
  enum MPALayer : uint32_t { Layer1 = 0, Layer2 = 1, Layer3 = 2, LayerReserved = 3 };
  enum ChannelMode : uint32_t { Stereo = 0, JointStereo = 1, DualChannel = 2, SingleChannel = 3 };

  // Searches from `offset` and parses the first header found; `offset` is left on it.
  // Without `exact` the search goes byte by byte to the end of the stream, passing over
  // headers that don't parse or don't agree with `compareTo`. With `exact` only the
  // positions 0, +1, -1, +2, -2, +3, -3 around `offset` are tried and a bad header at one
  // of them is an error. Throws CMPAException (CMPAEndOfFileException at the end).
  CMPAHeader(CMPAStream* stream, uint32_t& offset, bool exact, const CMPAHeader* compareTo = nullptr);
  // Parses four bytes at `offset` (no search). Throws CMPAException on a bad header.
  CMPAHeader(const uint8_t* bytes, uint32_t offset);

  // Same version, layer, sample rate, mono-or-not and emphasis.
  bool operator==(const CMPAHeader& other) const;
  bool operator!=(const CMPAHeader& other) const { return !(*this == other); }

  bool IsMono() const { return channelMode == SingleChannel; }
  // Bytes of side information between the header and the main data (Layer III).
  uint32_t GetSideInfoSize() const;
  // Frame length in bytes: (factor * bitRate / sampleRate + padding) * slot size.
  uint32_t CalcFrameSize() const;

  // The sync pattern: 11 set bits, and a bit-rate index other than 15.
  static bool IsSync(const uint8_t* b) { return b[0] == 0xFF && (b[1] & 0xE0) == 0xE0 && (b[2] & 0xF0) != 0xF0; }

  uint8_t lsf = 0;              // 0 MPEG 1, 1 MPEG 2 and 2.5
  uint32_t version = MPEG1;
  uint32_t layer = Layer3;
  uint32_t emphasis = 0;
  uint32_t channelMode = Stereo;
  uint32_t sampleRate = 0;      // Hz
  uint32_t samplesPerFrame = 0;
  uint32_t bitRate = 0;         // bit/s
  uint32_t padding = 0;

 private:
  void Parse(const uint8_t* b, uint32_t offset);
};
