// The MPEG reader's bottom layers: the mapped stream and its windows, header search and
// parse, frames, the frame walk, and the VBR headers, on bytes built here.
#include <gtest/gtest.h>

#include <QFile>
#include <QList>
#include <functional>
#include <memory>

#include "formats/mpeg/MPAException.h"
#include "formats/mpeg/MPAFile.h"
#include "formats/mpeg/MPAHeader.h"
#include "formats/mpeg/MPAStream.h"
#include "formats/mpeg/VBRHeader.h"
#include "MpegTestFrames.h"
#include "support/TestSupport.h"

using namespace mpeg_test;

namespace {

const uint8_t* U8(const QByteArray& b) { return reinterpret_cast<const uint8_t*>(b.constData()); }

// Keeps the bytes alive for as long as the stream that views them.
struct MemoryStream {
  explicit MemoryStream(QByteArray b) : bytes(std::move(b)), stream("mem", U8(bytes), uint32_t(bytes.size())) {}
  QByteArray bytes;
  CMPAFileStream stream;
};

std::unique_ptr<CMPAFile> FileOf(const QByteArray& bytes, QByteArray& keep) {
  keep = bytes;
  return std::make_unique<CMPAFile>(std::make_unique<CMPAFileStream>("mem", U8(keep), uint32_t(keep.size())));
}

int ErrorOf(const std::function<void()>& f) {
  try {
    f();
  } catch (const CMPAException& e) {
    return e.GetError();
  }
  return -1;
}

}  // namespace

// Reads forward and backward hand out the file's bytes and never a byte past its end.
TEST(MpegStream, ReadsStayInsideTheFile) {
  QByteArray bytes(5000, '\0');
  for (int i = 0; i < bytes.size(); ++i) bytes[i] = char(i * 7);
  MemoryStream m(bytes);
  CMPAFileStream& s = m.stream;
  EXPECT_EQ(s.GetSize(), 5000u);
  struct Case {
    uint32_t offset, size;
    bool backward, ok;
  } cases[] = {{10, 4, false, true},     {3000, 8, false, true},   {2000, 9, true, true},
               {100, 9, true, true},     {4990, 10, false, true},  {0, 3000, false, true},
               {4991, 10, false, false}, {4996, 9, true, false},   {5000, 1, false, false},
               {0xFFFFFFF0u, 32, false, false}};
  for (const Case& c : cases) {
    uint32_t off = c.offset;
    const uint8_t* p = s.ReadBytes(c.size, off, false, c.backward);
    EXPECT_EQ(p != nullptr, c.ok) << c.offset;
    if (p) EXPECT_EQ(p[0], uint8_t(c.offset * 7)) << c.offset;
  }
  uint32_t off = 10;
  ASSERT_NE(s.ReadBytes(4, off, true), nullptr);
  EXPECT_EQ(off, 14u);  // moved on
}

TEST(MpegStream, NumbersAndUnreadableBytes) {
  MemoryStream m(QByteArray::fromHex("0102030405"));
  CMPAFileStream& s = m.stream;
  uint32_t off = 0;
  EXPECT_EQ(s.ReadBEValue(4, off), 0x01020304u);
  EXPECT_EQ(off, 4u);
  off = 0;
  EXPECT_EQ(s.ReadLEValue(3, off, false), 0x030201u);
  EXPECT_EQ(off, 0u);
  off = 3;
  EXPECT_EQ(s.ReadBEValue(4, off), 0u);  // only two bytes left
  EXPECT_EQ(off, 3u);
  EXPECT_EQ(s.ReadBEValue(5, off), 0u);

  CMPAFileStream missing("/nonexistent/Prøve 🤔.mp3");
  off = 0;
  EXPECT_EQ(missing.GetSize(), 0u);
  EXPECT_EQ(missing.ReadBytes(1, off, false), nullptr);
}

TEST(MpegHeader, ParseValuesAndFrameLengths) {
  struct Case {
    FrameBits bits;
    uint32_t bitRate, sampleRate, samples, frameSize, sideInfo;
  };
  FrameBits l3;  // MPEG 1 Layer III 128 kbit/s 44100 Hz
  FrameBits l3pad = l3;
  l3pad.padding = 1;
  FrameBits l3mono = l3;
  l3mono.mode = 3;
  FrameBits l1{3, 0, 1, 1, 0, 0, 0};       // MPEG 1 Layer I 32 kbit/s 48000 Hz
  FrameBits l2{3, 1, 10, 2, 1, 0, 0};      // MPEG 1 Layer II 192 kbit/s 32000 Hz, padded
  FrameBits m2{2, 2, 8, 0, 0, 1, 0};       // MPEG 2 Layer III 64 kbit/s 22050 Hz
  FrameBits m2mono{2, 2, 8, 0, 0, 3, 0};
  FrameBits m25{0, 2, 2, 2, 0, 1, 0};      // MPEG 2.5 Layer III 16 kbit/s 8000 Hz
  FrameBits m2l1{2, 0, 9, 1, 0, 0, 0};     // MPEG 2 Layer I 144 kbit/s 24000 Hz
  const Case cases[] = {
      {l3, 128000, 44100, 1152, 417, 32},  {l3pad, 128000, 44100, 1152, 418, 32},
      {l3mono, 128000, 44100, 1152, 417, 17}, {l1, 32000, 48000, 384, 32, 32},
      {l2, 192000, 32000, 1152, 865, 32},  {m2, 64000, 22050, 576, 208, 17},
      {m2mono, 64000, 22050, 576, 208, 9}, {m25, 16000, 8000, 576, 144, 17},
      {m2l1, 144000, 24000, 384, 288, 17},
  };
  for (const Case& c : cases) {
    QByteArray b = HeaderBytes(c.bits);
    CMPAHeader h(U8(b), 0);
    EXPECT_EQ(h.bitRate, c.bitRate);
    EXPECT_EQ(h.sampleRate, c.sampleRate);
    EXPECT_EQ(h.samplesPerFrame, c.samples);
    EXPECT_EQ(h.CalcFrameSize(), c.frameSize) << c.bitRate << " " << c.sampleRate;
    EXPECT_EQ(h.GetSideInfoSize(), c.sideInfo);
    EXPECT_EQ(h.lsf, c.bits.versionBits == 3 ? 0 : 1);
  }
}

TEST(MpegHeader, CorruptHeadersAndLayerTwoModes) {
  auto parseError = [](FrameBits f) {
    QByteArray b = HeaderBytes(f);
    return ErrorOf([&] { CMPAHeader h(U8(b), 0); });
  };
  const int corrupt = CMPAException::HeaderCorrupt, ok = -1;
  struct Case {
    FrameBits bits;
    int error;
  } cases[] = {
      {{1, 2, 9, 0, 0, 1, 0}, corrupt},  // reserved version
      {{3, 3, 9, 0, 0, 1, 0}, corrupt},  // layer bits 00
      {{3, 2, 15, 0, 0, 1, 0}, corrupt}, {{3, 2, 0, 0, 0, 1, 0}, CMPAException::FreeBitrate},
      {{3, 2, 9, 3, 0, 1, 0}, corrupt},  {{3, 2, 9, 0, 0, 1, 2}, corrupt}, {{3, 2, 9, 0, 0, 1, 1}, ok},
      // MPEG 1 Layer II: 32 to 56 kbit/s only in mono, 224 kbit/s and more only in stereo.
      {{3, 1, 1, 0, 0, 0, 0}, corrupt},  {{3, 1, 3, 0, 0, 2, 0}, corrupt}, {{3, 1, 14, 0, 0, 1, 0}, ok},
      {{3, 1, 4, 0, 0, 1, 0}, ok},       {{3, 1, 1, 0, 0, 3, 0}, ok},       {{3, 1, 10, 0, 0, 3, 0}, ok},     {{3, 1, 11, 0, 0, 3, 0}, corrupt},
      {{3, 1, 14, 0, 0, 3, 0}, corrupt},
      {{2, 1, 1, 0, 0, 0, 0}, ok},  // MPEG 2 Layer II knows no such rule
  };
  for (const Case& c : cases)
    EXPECT_EQ(parseError(c.bits), c.error) << c.bits.versionBits << c.bits.layer << " " << c.bits.bitRateIndex << " "
                                           << c.bits.rateIndex << c.bits.mode << c.bits.emphasis;
}

TEST(MpegHeader, HeadersAgreeOnVersionLayerRateMonoAndEmphasis) {
  auto agree = [](const std::function<void(FrameBits&)>& change) {
    FrameBits a, b;
    change(b);
    const QByteArray ha = HeaderBytes(a), hb = HeaderBytes(b);
    return CMPAHeader(U8(ha), 0) == CMPAHeader(U8(hb), 0);
  };
  // Rate, padding and the kind of stereo may differ.
  EXPECT_TRUE(agree([](FrameBits& b) { b.bitRateIndex = 14, b.padding = 1, b.mode = 0; }));
  EXPECT_FALSE(agree([](FrameBits& b) { b.mode = 3; }));
  EXPECT_FALSE(agree([](FrameBits& b) { b.emphasis = 1; }));
  EXPECT_FALSE(agree([](FrameBits& b) { b.rateIndex = 1; }));
  EXPECT_FALSE(agree([](FrameBits& b) { b.layer = 1; }));
  EXPECT_FALSE(agree([](FrameBits& b) { b.versionBits = 2; }));
}

TEST(MpegHeader, ExactSearchTriesThreeBytesEitherSide) {
  const QByteArray h = HeaderBytes(FrameBits());
  // A header at `shift` from the expected place 100, in zeros.
  auto found = [&](int shift, uint32_t& where) {
    QByteArray bytes(400, '\0');
    bytes.replace(100 + shift, 4, h);
    MemoryStream m(bytes);
    where = 100;
    return ErrorOf([&] { CMPAHeader header(&m.stream, where, true); });
  };
  uint32_t where = 0;
  for (int shift : {0, 1, -1, 2, -2, 3, -3}) {
    EXPECT_EQ(found(shift, where), -1) << shift;
    EXPECT_EQ(where, uint32_t(100 + shift));
  }
  for (int shift : {4, -4, 20}) {
    EXPECT_EQ(found(shift, where), CMPAException::NoFrameInTolerance) << shift;
    EXPECT_EQ(where, 97u);  // the walk ends 3 bytes before the expected place
  }

  // Headers at both +1 and -1: +1 is tried first.
  QByteArray both(400, '\0');
  both.replace(99, 4, h);
  both.replace(101, 4, h);
  MemoryStream m(both);
  where = 100;
  CMPAHeader first(&m.stream, where, true);
  EXPECT_EQ(where, 101u);

  // A bad header right at the place is an error at once, not a reason to walk on.
  QByteArray bad(400, '\0');
  FrameBits corrupt;
  corrupt.emphasis = 2;
  bad.replace(100, 4, HeaderBytes(corrupt));
  bad.replace(200, 4, h);
  MemoryStream mb(bad);
  where = 100;
  EXPECT_EQ(ErrorOf([&] { CMPAHeader x(&mb.stream, where, true); }), CMPAException::HeaderCorrupt);
  EXPECT_EQ(where, 100u);
  // Without `exact` the same bytes are passed over.
  CMPAHeader y(&mb.stream, where, false);
  EXPECT_EQ(where, 200u);
}

TEST(MpegHeader, LooseSearchPassesBadAndIncompatibleHeadersAndEndsAtTheEnd) {
  FrameBits mono;
  mono.mode = 3;
  FrameBits freeFormat;
  freeFormat.bitRateIndex = 0;
  QByteArray bytes(300, '\0');
  bytes.replace(10, 4, HeaderBytes(freeFormat));
  bytes.replace(50, 4, HeaderBytes(mono));
  bytes.replace(200, 4, HeaderBytes(FrameBits()));
  MemoryStream m(bytes);

  uint32_t where = 0;
  CMPAHeader any(&m.stream, where, false);
  EXPECT_EQ(where, 50u);  // free format is no acceptable header

  QByteArray refBytes = HeaderBytes(FrameBits());
  CMPAHeader stereo(U8(refBytes), 0);
  where = 0;
  CMPAHeader matching(&m.stream, where, false, &stereo);
  EXPECT_EQ(where, 200u);

  where = 201;
  EXPECT_EQ(ErrorOf([&] { CMPAHeader none(&m.stream, where, false); }), CMPAException::EndOfFile);
  EXPECT_EQ(where, 297u);  // the last offset at which four bytes could be read, plus one
}

TEST(MpegFile, WalkResynchronisesAfterALostFrame) {
  QByteArray bytes;
  QList<int> offsets;
  for (int i = 0; i < 20; ++i) {
    offsets << bytes.size();
    bytes.append(Mpeg1L3Frame(i % 2 ? 160 : 128));
  }
  // Frame 10 loses its header, frame 15 loses two bytes of its end.
  bytes[offsets[10]] = 0;
  bytes.remove(offsets[16] - 2, 2);
  QByteArray keep;
  auto file = FileOf(bytes, keep);

  QList<uint32_t> seen;
  CMPAFrame* f = file->GetFrame(CMPAFile::First);
  while (f) {
    seen << f->m_offset;
    f = file->GetFrame(CMPAFile::Next, f, true);
  }
  QList<uint32_t> expected;
  for (int i = 0; i < 20; ++i)
    if (i != 10) expected << uint32_t(offsets[i] - (i >= 16 ? 2 : 0));
  EXPECT_EQ(seen, expected);
}

TEST(MpegFile, NoFrameAtAllThrowsEndOfFile) {
  QByteArray keep;
  FrameBits freeFormat;
  freeFormat.bitRateIndex = 0;
  const QByteArray freeFrames = HeaderBytes(freeFormat) + QByteArray(400, '\0') + HeaderBytes(freeFormat);
  EXPECT_EQ(ErrorOf([&] { FileOf(freeFrames, keep); }), CMPAException::EndOfFile);
  EXPECT_EQ(ErrorOf([&] { FileOf(QByteArray(), keep); }), CMPAException::EndOfFile);
}

namespace {

// A first frame carrying a Xing header with `flags` at the place for its mode.
QByteArray XingFrame(FrameBits bits, int kbps, int rate, const char* id, uint32_t flags, uint32_t frames,
                     uint32_t bytes, bool lame) {
  QByteArray f = Frame(bits, kbps, rate);
  CMPAHeader h(reinterpret_cast<const uint8_t*>(HeaderBytes(bits).constData()), 0);
  int at = 4 + int(h.GetSideInfoSize());
  f.replace(at, 4, id);
  PutBe32(f, at + 4, flags);
  int p = at + 8;
  if (flags & 1) PutBe32(f, p, frames), p += 4;
  if (flags & 2) PutBe32(f, p, bytes), p += 4;
  if (flags & 4) {
    for (int i = 0; i < 100; ++i) f[p + i] = char(i * 2);
    p += 100;
  }
  if (flags & 8) PutBe32(f, p, 57), p += 4;
  if (lame) {
    f.replace(at + 120, 9, "LAME3.99r");
    f[at + 120 + 9] = char(0x14);  // revision 1, method 4
    f[at + 120 + 10] = char(195);  // 19500 Hz
    f[at + 120 + 20] = char(128);
  }
  return f;
}

}  // namespace

TEST(MpegVbrHeader, XingAndInfoStandBehindTheSideInformation) {
  struct Case {
    FrameBits bits;
    int kbps, rate;
    uint32_t place;
  };
  FrameBits stereo1;
  FrameBits mono1;
  mono1.mode = 3;
  FrameBits stereo2{2, 2, 8, 0, 0, 1, 0};
  FrameBits mono2{2, 2, 8, 0, 0, 3, 0};
  const Case cases[] = {{stereo1, 128, 44100, 36}, {mono1, 128, 44100, 21}, {stereo2, 64, 22050, 21},
                        {mono2, 64, 22050, 13}};
  for (const Case& c : cases) {
    for (const char* id : {"Xing", "Info"}) {
      QByteArray bytes = QByteArray(100, '\0') + XingFrame(c.bits, c.kbps, c.rate, id, 0xF, 1234, 99999, true);
      bytes.append(Frame(c.bits, c.kbps, c.rate));
      QByteArray keep;
      auto file = FileOf(bytes, keep);
      const CVBRHeader* vbr = file->GetVBRHeader();
      ASSERT_NE(vbr, nullptr) << id << " " << c.place;
      EXPECT_EQ(vbr->offset, 100 + c.place);
      EXPECT_EQ(vbr->frames, 1234u);
      EXPECT_EQ(vbr->bytes, 99999u);
      ASSERT_EQ(vbr->toc.size(), 100u);
      EXPECT_EQ(vbr->toc[99], 198u);
      auto* xing = dynamic_cast<const CXINGHeader*>(vbr);
      ASSERT_NE(xing, nullptr);
      ASSERT_TRUE(xing->lameTag);
      EXPECT_EQ(xing->lameTag->encoder, "LAME3.99r");
      EXPECT_FALSE(xing->lameTag->simpleTag);
    }
  }
}

TEST(MpegVbrHeader, XingFieldsFollowTheirFlagsAndOldLameTagsAreSimple) {
  QByteArray f = XingFrame(FrameBits(), 128, 44100, "Xing", 2 | 8, 0, 5000, false);
  f.replace(36 + 120, 20, "LAME3.88 (beta)     ");
  QByteArray keep;
  auto file = FileOf(f + Mpeg1L3Frame(128), keep);
  const CVBRHeader* vbr = file->GetVBRHeader();
  ASSERT_NE(vbr, nullptr);
  EXPECT_EQ(vbr->frames, 0u);
  EXPECT_EQ(vbr->bytes, 5000u);
  EXPECT_EQ(vbr->quality, 57u);  // read right behind the bytes
  EXPECT_TRUE(vbr->toc.empty());
  auto* xing = dynamic_cast<const CXINGHeader*>(vbr);
  ASSERT_TRUE(xing->lameTag);
  EXPECT_TRUE(xing->lameTag->simpleTag);
  EXPECT_EQ(xing->lameTag->encoder, "LAME3.88 (beta)     ");

  // The identifier in the wrong place for the mode is no header.
  QByteArray wrong = Mpeg1L3Frame(128);
  wrong.replace(21, 4, "Xing");
  auto none = FileOf(wrong + Mpeg1L3Frame(128), keep);
  EXPECT_EQ(none->GetVBRHeader(), nullptr);
}

TEST(MpegVbrHeader, VbriStandsAt36WhateverTheMode) {
  FrameBits mono;
  mono.mode = 3;
  QByteArray f = Frame(mono, 128, 44100);
  f.replace(36, 4, "VBRI");
  PutBe16(f, 40, 1);       // version
  PutBe16(f, 42, 1105);    // delay
  PutBe16(f, 44, 75);      // quality
  PutBe32(f, 46, 800000);  // bytes
  PutBe32(f, 50, 3000);    // frames
  PutBe16(f, 54, 9);       // ten entries
  PutBe16(f, 56, 1);       // scale
  PutBe16(f, 58, 3);       // bytes per entry
  PutBe16(f, 60, 300);     // frames per entry
  for (int i = 0; i < 10; ++i) {
    f[62 + 3 * i] = 0;
    f[63 + 3 * i] = char(i + 1);
    f[64 + 3 * i] = char(0x10);
  }
  QByteArray keep;
  auto file = FileOf(f + Frame(mono, 128, 44100), keep);
  auto* vbri = dynamic_cast<const CVBRIHeader*>(file->GetVBRHeader());
  ASSERT_NE(vbri, nullptr);
  EXPECT_EQ(vbri->offset, 36u);
  EXPECT_EQ(vbri->bytes, 800000u);
  EXPECT_EQ(vbri->frames, 3000u);
  ASSERT_EQ(vbri->toc.size(), 10u);
  EXPECT_EQ(vbri->toc[0], 0x0110u);
  EXPECT_EQ(vbri->toc[9], 0x0A10u);
  EXPECT_EQ(vbri->lengthSec, 3000u * 1152u / 44100u);
}

TEST(MpegVbrHeader, LameFilesCarryTheirFrameCount) {
  // lame writes the count of the audio frames, its own header frame left out; the version
  // text "3.100" reads as 3.10, which has no info block.
  CMPAFile file(testing_support::Fixture("mpeg/vbr_xing.mp3"));
  auto* xing = dynamic_cast<const CXINGHeader*>(file.GetVBRHeader());
  ASSERT_NE(xing, nullptr);
  uint32_t walked = 0;
  CMPAFrame* f = file.GetFrame(CMPAFile::Next, file.GetFrame(CMPAFile::First), true);
  for (; f; f = file.GetFrame(CMPAFile::Next, f, true)) ++walked;
  EXPECT_EQ(xing->frames, walked);
  EXPECT_EQ(xing->bytes, uint32_t(QFile(testing_support::Fixture("mpeg/vbr_xing.mp3")).size()));
  ASSERT_TRUE(xing->lameTag);
  EXPECT_TRUE(xing->lameTag->encoder.startsWith("LAME3.100"));
  EXPECT_TRUE(xing->lameTag->simpleTag);
}
