// The ALAC decoder on packets written bit by bit: the element loop, uncompressed frames
// at every depth, partial frames, and what it refuses. Compressed frames are checked
// against FFmpeg in Mp4SourceTest.
#include <gtest/gtest.h>

#include <cstring>
#include <vector>

#include "formats/AacFile.h"
#include "formats/AlacDecoder.h"
#include "support/TestSupport.h"

namespace {

struct BitWriter {
  std::vector<uint8_t> bytes;
  int used = 0;  // bits in the last byte
  void Put(uint32_t v, int n) {
    for (int i = n - 1; i >= 0; --i) {
      if (used == 0) bytes.push_back(0);
      if ((v >> i) & 1) bytes.back() |= uint8_t(0x80 >> used);
      used = (used + 1) & 7;
    }
  }
  std::vector<uint8_t> Padded() const {
    std::vector<uint8_t> b = bytes;
    b.resize(b.size() + kAlacPacketPadding, 0);
    return b;
  }
};

std::vector<uint8_t> Cookie(uint32_t frameLength, int depth, int channels, int version = 0) {
  const uint8_t bytes[24] = {uint8_t(frameLength >> 24), uint8_t(frameLength >> 16), uint8_t(frameLength >> 8),
                             uint8_t(frameLength), uint8_t(version), uint8_t(depth), 40, 10, 14, uint8_t(channels), 0,
                             255, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0xAC, 0x44};
  return std::vector<uint8_t>(bytes, bytes + 24);
}

// An uncompressed element: tag, instance, unused bits, header, optional count, samples.
void PutVerbatim(BitWriter& w, uint32_t tag, int depth, const std::vector<std::vector<int32_t>>& channels,
                 int partialCount = -1) {
  w.Put(tag, 3);
  w.Put(0, 4);
  w.Put(0, 12);
  w.Put(partialCount >= 0 ? 1 : 0, 1);
  w.Put(0, 2);
  w.Put(1, 1);  // escape
  if (partialCount >= 0) w.Put(uint32_t(partialCount), 32);
  const size_t n = channels[0].size();
  for (size_t j = 0; j < n; ++j)
    for (const auto& ch : channels) {
      const uint32_t v = uint32_t(ch[j]);
      if (depth <= 16) {
        w.Put(v & ((1u << depth) - 1), depth);
      } else {
        w.Put((v >> (depth - 16)) & 0xFFFF, 16);
        w.Put(v & ((1u << (depth - 16)) - 1), depth - 16);
      }
    }
}

int DecodePacket(ALACDecoder& d, const BitWriter& w, std::vector<uint8_t>& out, uint32_t frameLength,
                 uint32_t channels, uint32_t* frames) {
  std::vector<uint8_t> p = w.Padded();
  BitBuffer bits(p.data(), uint32_t(w.bytes.size()));
  return d.Decode(&bits, out.data(), frameLength, channels, frames);
}

int32_t Le(const std::vector<uint8_t>& b, size_t at, int bytes) {
  uint32_t v = 0;
  for (int i = bytes - 1; i >= 0; --i) v = v << 8 | b[at + size_t(i)];
  const int shift = 32 - 8 * bytes;
  return int32_t(v << shift) >> shift;
}

}  // namespace

TEST(AlacDecoder, CookieChecks) {
  ALACDecoder d;
  std::vector<uint8_t> c = Cookie(4096, 16, 2);
  EXPECT_EQ(d.Init(c.data(), 23), kAlacParamError);
  EXPECT_EQ(d.Init(Cookie(4096, 16, 2, 1).data(), 24), kAlacParamError);
  ASSERT_EQ(d.Init(c.data(), 24), kAlacNoErr);
  EXPECT_EQ(d.config().frameLength, 4096u);
  EXPECT_EQ(d.config().bitDepth, 16);
  EXPECT_EQ(d.config().numChannels, 2);
  EXPECT_EQ(d.config().maxRun, 255);
  EXPECT_EQ(d.config().sampleRate, 44100u);
}

TEST(AlacDecoder, UncompressedFramesAtEveryDepth) {
  const std::vector<int32_t> left = {0, 1, -1, 12345, -23456};
  for (int depth : {16, 20, 24, 32}) {
    SCOPED_TRACE(depth);
    const int32_t big = depth == 32 ? int32_t(0x80000001u) : -(1 << (depth - 1));
    const std::vector<int32_t> right = {big, (1 << std::min(depth - 1, 30)) - 1, 7, -8, 0};
    ALACDecoder d;
    ASSERT_EQ(d.Init(Cookie(8, depth, 2).data(), 24), kAlacNoErr);
    BitWriter w;
    PutVerbatim(w, 1, depth, {left, right}, 5);  // a partial pair of 5 frames
    w.Put(7, 3);
    const int bytes = depth == 16 ? 2 : depth == 32 ? 4 : 3;
    std::vector<uint8_t> out(8 * 2 * size_t(bytes), 0xEE);
    uint32_t frames = 0;
    ASSERT_EQ(DecodePacket(d, w, out, 8, 2, &frames), kAlacNoErr);
    EXPECT_EQ(frames, 5u);
    for (size_t j = 0; j < 5; ++j) {
      // 20-bit samples stand left-justified in their three bytes.
      const int scale = depth == 20 ? 16 : 1;
      EXPECT_EQ(Le(out, (2 * j) * size_t(bytes), bytes), left[j] * scale) << j;
      EXPECT_EQ(Le(out, (2 * j + 1) * size_t(bytes), bytes), right[j] * scale) << j;
    }
    EXPECT_EQ(out[5 * 2 * size_t(bytes)], 0xEE);  // nothing beyond the partial frame
  }
}

TEST(AlacDecoder, ElementLoopEndsFillsAndRefuses) {
  ALACDecoder d;
  ASSERT_EQ(d.Init(Cookie(4, 16, 2).data(), 24), kAlacNoErr);
  std::vector<uint8_t> out(4 * 2 * 2, 0xEE);
  uint32_t frames = 0;

  // A lone END: silence.
  BitWriter end;
  end.Put(7, 3);
  ASSERT_EQ(DecodePacket(d, end, out, 4, 2, &frames), kAlacNoErr);
  EXPECT_EQ(out, std::vector<uint8_t>(16, 0));

  // Fill and data stream elements are skipped; one channel of two: the other is silent.
  BitWriter w;
  w.Put(6, 3);  // fill, 2 bytes
  w.Put(2, 4);
  w.Put(0xABCD, 16);
  w.Put(4, 3);  // data stream, byte-aligned, 1 byte
  w.Put(0, 4);
  w.Put(1, 1);
  w.Put(1, 8);
  while (w.used) w.Put(0, 1);
  w.Put(0x5A, 8);
  PutVerbatim(w, 0, 16, {{100, -100, 200, -200}});
  w.Put(7, 3);
  std::fill(out.begin(), out.end(), 0xEE);
  ASSERT_EQ(DecodePacket(d, w, out, 4, 2, &frames), kAlacNoErr);
  EXPECT_EQ(frames, 4u);
  EXPECT_EQ(Le(out, 0, 2), 100);
  EXPECT_EQ(Le(out, 2, 2), 0);
  EXPECT_EQ(Le(out, 12, 2), -200);
  EXPECT_EQ(Le(out, 14, 2), 0);
  EXPECT_EQ(d.activeElements(), 1);

  for (uint32_t refused : {2u, 5u}) {  // coupling channels, program configuration
    BitWriter r;
    r.Put(refused, 3);
    r.Put(0, 29);
    EXPECT_EQ(DecodePacket(d, r, out, 4, 2, &frames), kAlacParamError);
    EXPECT_EQ(frames, 0u);
  }

  // A partial frame longer than the frame: nothing from this packet, no error.
  BitWriter longer;
  PutVerbatim(longer, 1, 16, {{1, 2, 3, 4, 5}, {1, 2, 3, 4, 5}}, 5);
  EXPECT_EQ(DecodePacket(d, longer, out, 4, 2, &frames), kAlacNoErr);
  EXPECT_EQ(frames, 0u);

  // Nonzero unused header bits, a shift of 3 bytes, an empty packet: bad data.
  BitWriter unused;
  unused.Put(0, 7);
  unused.Put(1, 12);
  unused.Put(0, 13);
  EXPECT_EQ(DecodePacket(d, unused, out, 4, 2, &frames), kAlacParamError);
  BitWriter shift3;
  shift3.Put(0, 19);
  shift3.Put(0b0110, 4);
  shift3.Put(0, 9);
  EXPECT_EQ(DecodePacket(d, shift3, out, 4, 2, &frames), kAlacParamError);
  BitWriter empty;
  EXPECT_EQ(DecodePacket(d, empty, out, 4, 2, &frames), kAlacParamError);
}

TEST(AlacDecoder, DamagedPacketsOfARealStreamStayInBounds) {
  const QByteArray file = testing_support::ReadFile(testing_support::Fixture("alac_16_stereo.m4a"));
  const uint8_t* data = reinterpret_cast<const uint8_t*>(file.constData());
  Mp4AtomWalk walk;
  WalkMp4Atoms(data, uint64_t(file.size()), 0, walk);
  ASSERT_NE(walk.alacPos, 0u);
  ALACDecoder d;
  ASSERT_EQ(d.Init(data + walk.alacPos + 8, walk.alacSize - 12), kAlacNoErr);
  const uint64_t firstSize = uint32_t(uint8_t(file[int(walk.stszPos + 16)])) << 24 |
                             uint32_t(uint8_t(file[int(walk.stszPos + 17)])) << 16 |
                             uint32_t(uint8_t(file[int(walk.stszPos + 18)])) << 8 | uint8_t(file[int(walk.stszPos + 19)]);
  std::vector<uint8_t> out(4096 * 2 * 2);
  uint32_t frames = 0;
  int decodedWhole = 0;
  for (uint64_t cut : {firstSize, firstSize / 2, uint64_t(40), uint64_t(3)}) {
    for (int flip = -1; flip < 64; flip += 7) {
      std::vector<uint8_t> p(data + walk.mdatPayload, data + walk.mdatPayload + cut);
      if (flip >= 0 && uint64_t(flip / 8) < cut) p[size_t(flip / 8)] ^= uint8_t(1 << (flip % 8));
      p.resize(cut + kAlacPacketPadding, 0);
      BitBuffer bits(p.data(), uint32_t(cut));
      const int rc = d.Decode(&bits, out.data(), 4096, 2, &frames);
      if (rc != kAlacNoErr) {
        EXPECT_EQ(frames, 0u);
      }
      if (cut == firstSize && flip < 0) decodedWhole = rc == kAlacNoErr && frames == 4096;
    }
  }
  EXPECT_TRUE(decodedWhole);
}
