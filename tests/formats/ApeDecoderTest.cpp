#include <gtest/gtest.h>

#include <QCryptographicHash>
#include <QFile>
#include <cmath>
#include <vector>

#include "formats/ApeDecoder.h"
#include "support/TestSupport.h"

using testing_support::ApeData;

namespace {

struct Decoded {
  int rc = -1;            // the first error of GetData, 0 if none
  QByteArray pcm;         // what was handed out
  int64_t calls = 0;
};

// Decodes a whole file through the flat interface, 1024 blocks at a time, as the worker does.
Decoded DecodeAll(const QString& path, int64_t chunk = 1024) {
  Decoded r;
  int error = 0;
  std::wstring w = path.toStdWString();
  APE_DECOMPRESS_HANDLE h = c_APEDecompress_CreateW(w.c_str(), &error);
  if (!h) {
    r.rc = error;
    return r;
  }
  const int64_t align = c_APEDecompress_GetInfo(h, ape::kInfoBlockAlign);
  std::vector<char> buf(size_t(align * chunk));
  r.rc = 0;
  for (;;) {
    int64_t got = 0;
    int rc = c_APEDecompress_GetData(h, buf.data(), chunk, &got);
    ++r.calls;
    r.pcm.append(buf.data(), qsizetype(got * align));
    if (rc != 0) {
      r.rc = rc;
      break;
    }
    if (got == 0) break;
  }
  c_APEDecompress_Destroy(h);
  return r;
}

QString Md5(const QByteArray& b) {
  return QString::fromLatin1(QCryptographicHash::hash(b, QCryptographicHash::Md5).toHex());
}

struct Expect {
  const char* file;
  int channels, rate, bits;
  int64_t frames;
  const char* md5;
};

const Expect kValid[] = {
    {"s16_stereo_44k.ape", 2, 44100, 16, 132300, "8f05979c5f684e2a855dc6ee88d4f4ce"},
    {"s16_stereo_44k_c1000.ape", 2, 44100, 16, 132300, "8f05979c5f684e2a855dc6ee88d4f4ce"},
    {"s16_stereo_44k_c2000.ape", 2, 44100, 16, 132300, "8f05979c5f684e2a855dc6ee88d4f4ce"},
    {"s16_stereo_44k_c3000.ape", 2, 44100, 16, 132300, "8f05979c5f684e2a855dc6ee88d4f4ce"},
    {"s16_stereo_44k_c4000.ape", 2, 44100, 16, 132300, "8f05979c5f684e2a855dc6ee88d4f4ce"},
    {"s16_stereo_44k_c5000.ape", 2, 44100, 16, 132300, "8f05979c5f684e2a855dc6ee88d4f4ce"},
    {"s16_mono_48k.ape", 1, 48000, 16, 96000, "711a6b8a7f36e437ced81a1a1624a408"},
    {"u8_stereo_22k.ape", 2, 22050, 8, 44100, "37ca1926100323c2564e2f761cd35e2b"},
    {"s24_stereo_96k.ape", 2, 96000, 24, 192000, "883899940377325a88f5e8df8548475f"},
    {"s24_stereo_96k_moderate.ape", 2, 96000, 24, 96000, "5dd39c149ed4e524c9f8176f161e3322"},
    {"s32_stereo_44k.ape", 2, 44100, 32, 44100, "ffaff57393105a6f629dcbf6a4062290"},
    {"s16_3ch_44k.ape", 3, 44100, 16, 44100, "4fe886ec79258b951c2511029b523328"},
    {"short_s16_stereo.ape", 2, 44100, 16, 2205, "0e8e25eca97a3cf5294fc549e0b85cf2"},
    {"long_s16_stereo.ape", 2, 44100, 16, 2646000, "d2937d75e85450dd613537e586fae0da"},
};

}  // namespace

TEST(ApeDecoderTest, EveryValidFileDecodesToTheSourcePcm) {
  for (const Expect& e : kValid) {
    SCOPED_TRACE(e.file);
    Decoded d = DecodeAll(ApeData(e.file));
    EXPECT_EQ(d.rc, 0);
    EXPECT_EQ(d.pcm.size(), e.frames * e.channels * (e.bits / 8));
    EXPECT_EQ(Md5(d.pcm), QString::fromLatin1(e.md5));
  }
}

// A damaged frame is an error, and none of its samples is handed out: the truncated file
// ends inside frame 0, the corrupt one has garbage in the middle of frame 0.
TEST(ApeDecoderTest, DamagedFramesEndWithAnErrorAndGiveNoSample) {
  Decoded cut = DecodeAll(ApeData("s16_stereo_44k_truncated.ape"));
  EXPECT_EQ(cut.rc, ape::kErrRead);
  EXPECT_EQ(cut.pcm.size(), 0);

  Decoded bad = DecodeAll(ApeData("s16_stereo_44k_corrupt.ape"));
  EXPECT_TRUE(bad.rc == ape::kErrChecksum || bad.rc == ape::kErrDecodingFrame) << bad.rc;
  EXPECT_EQ(bad.pcm.size(), 0);
}

// Reads of any size give the same samples, across frame boundaries (two frames here).
TEST(ApeDecoderTest, ReadSizeDoesNotChangeTheSamples) {
  const QString file = ApeData("s16_stereo_44k_c1000.ape");
  for (int64_t chunk : {int64_t(1), int64_t(777), int64_t(73728), int64_t(200000)}) {
    SCOPED_TRACE(chunk);
    Decoded d = DecodeAll(file, chunk);
    EXPECT_EQ(d.rc, 0);
    EXPECT_EQ(Md5(d.pcm), "8f05979c5f684e2a855dc6ee88d4f4ce");
  }
}

// Damage in the second frame: the first frame comes out whole and exact, then the error.
TEST(ApeDecoderTest, DamageInALaterFrameKeepsTheFramesBeforeIt) {
  testing_support::TestSession t;
  QByteArray bytes = testing_support::ReadFile(ApeData("s16_stereo_44k_c1000.ape"));
  ape::StreamInfo info;
  ASSERT_EQ(ape::ParseHeader(reinterpret_cast<const uint8_t*>(bytes.constData()), uint64_t(bytes.size()), info), 0);
  ASSERT_EQ(info.totalFrames, 2u);
  const qsizetype mid = qsizetype((info.seekTable[1] + info.frameDataEnd) / 2);
  for (qsizetype i = mid; i < mid + 64; ++i) bytes[i] = char(bytes[i] ^ 0x5A);
  const QString path = t.Path("damaged.ape");
  ASSERT_TRUE(testing_support::WriteFile(path, bytes));

  const Decoded good = DecodeAll(ApeData("s16_stereo_44k_c1000.ape"));
  const Decoded bad = DecodeAll(path);
  EXPECT_TRUE(bad.rc == ape::kErrChecksum || bad.rc == ape::kErrDecodingFrame) << bad.rc;
  EXPECT_EQ(bad.pcm.size(), 73728 * 4);
  EXPECT_TRUE(bad.pcm == good.pcm.left(73728 * 4));
}

// A file cut anywhere before the end of its audio is an error, never a short success.
TEST(ApeDecoderTest, EveryCutOfTheAudioIsAnError) {
  const QByteArray whole = testing_support::ReadFile(ApeData("short_s16_stereo.ape"));
  ape::StreamInfo info;
  ASSERT_EQ(ape::ParseHeader(reinterpret_cast<const uint8_t*>(whole.constData()), uint64_t(whole.size()), info), 0);
  for (qsizetype cut = 0; cut < qsizetype(info.frameDataEnd); cut += 5) {
    ape::Decoder d;
    const QByteArray part = whole.left(cut);
    if (d.Open(reinterpret_cast<const uint8_t*>(part.constData()), uint64_t(part.size())) != 0) continue;
    std::vector<uint8_t> buf(4 * 4096);
    int64_t got = 0, total = 0;
    int rc = 0;
    while ((rc = d.GetData(buf.data(), 4096, &got)) == 0 && got > 0) total += got;
    total += got;
    EXPECT_NE(rc, 0) << "cut at " << cut;
    EXPECT_EQ(total, 0) << "cut at " << cut;
  }
}

// The two files the program refuses still decode: their extremes are those of the source.
TEST(ApeDecoderTest, ExtremesOfThirtyTwoBitAndThreeChannelFiles) {
  auto extremes = [](const QByteArray& pcm, int channels, int bytes) {
    std::vector<std::pair<int64_t, int64_t>> mm(size_t(channels), {INT64_MAX, INT64_MIN});
    const auto* p = reinterpret_cast<const uint8_t*>(pcm.constData());
    const qsizetype n = pcm.size() / bytes;
    for (qsizetype i = 0; i < n; ++i) {
      uint32_t u = 0;
      for (int b = 0; b < bytes; ++b) u |= uint32_t(p[i * bytes + b]) << (8 * b);
      const int64_t v = bytes == 4 ? int64_t(int32_t(u)) : int64_t(int16_t(uint16_t(u)));
      auto& e = mm[size_t(i % channels)];
      e.first = std::min(e.first, v);
      e.second = std::max(e.second, v);
    }
    return mm;
  };
  const auto s32 = extremes(DecodeAll(ApeData("s32_stereo_44k.ape")).pcm, 2, 4);
  EXPECT_EQ(s32[0], std::make_pair(int64_t(-2147483648LL), int64_t(1076284561)));
  EXPECT_EQ(s32[1], std::make_pair(int64_t(-539423367), int64_t(539423367)));
  const auto c3 = extremes(DecodeAll(ApeData("s16_3ch_44k.ape")).pcm, 3, 2);
  EXPECT_EQ(c3[0], std::make_pair(int64_t(-16422), int64_t(16422)));
  EXPECT_EQ(c3[1], std::make_pair(int64_t(-8231), int64_t(8231)));
  EXPECT_EQ(c3[2], std::make_pair(int64_t(-3277), int64_t(3277)));
}
