#pragma once
// Builds MPEG frames byte by byte for the reader's tests.
#include <QByteArray>
#include <cstdint>

namespace mpeg_test {

struct FrameBits {
  int versionBits = 3;  // 3 MPEG 1, 2 MPEG 2, 0 MPEG 2.5
  int layer = 2;        // 0 Layer I, 1 Layer II, 2 Layer III
  int bitRateIndex = 9; // 128 kbit/s for MPEG 1 Layer III
  int rateIndex = 0;    // 44100 Hz for MPEG 1
  int padding = 0;
  int mode = 1;         // joint stereo
  int emphasis = 0;
};

inline QByteArray HeaderBytes(const FrameBits& f) {
  QByteArray h(4, '\0');
  h[0] = char(0xFF);
  h[1] = char(0xE0 | (f.versionBits << 3) | ((3 - f.layer) << 1) | 1);  // no CRC
  h[2] = char((f.bitRateIndex << 4) | (f.rateIndex << 2) | (f.padding << 1));
  h[3] = char((f.mode << 6) | f.emphasis);
  return h;
}

// The frame's length by the table values of the three layers.
inline int FrameLength(const FrameBits& f, int bitRateKbps, int sampleRate) {
  const bool lsf = f.versionBits != 3;
  const int factor = f.layer == 0 ? 12 : (f.layer == 2 && lsf ? 72 : 144);
  const int slot = f.layer == 0 ? 4 : 1;
  return (factor * bitRateKbps * 1000 / sampleRate + f.padding) * slot;
}

// A whole frame: header, then zero bytes (zeros never look like a sync).
inline QByteArray Frame(const FrameBits& f, int bitRateKbps, int sampleRate) {
  QByteArray b = HeaderBytes(f);
  b.append(QByteArray(FrameLength(f, bitRateKbps, sampleRate) - 4, '\0'));
  return b;
}

// MPEG 1 Layer III, 44100 Hz, joint stereo, at one of its bit rates.
inline QByteArray Mpeg1L3Frame(int kbps) {
  static const int kIndex[] = {0, 32, 40, 48, 56, 64, 80, 96, 112, 128, 160, 192, 224, 256, 320};
  FrameBits f;
  for (int i = 1; i < 15; ++i)
    if (kIndex[i] == kbps) f.bitRateIndex = i;
  return Frame(f, kbps, 44100);
}

inline void PutBe32(QByteArray& b, int at, uint32_t v) {
  b[at] = char(v >> 24);
  b[at + 1] = char(v >> 16);
  b[at + 2] = char(v >> 8);
  b[at + 3] = char(v);
}
inline void PutBe16(QByteArray& b, int at, uint32_t v) {
  b[at] = char(v >> 8);
  b[at + 1] = char(v);
}

}  // namespace mpeg_test
