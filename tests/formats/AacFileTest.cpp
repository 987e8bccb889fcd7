// The prober on streams built in memory: ADTS and ADIF headers, the atom walk, the
// descriptor forms and the results it gives.
#include <gtest/gtest.h>

#include "formats/AacFile.h"
#include "tests/formats/Mp4TestAtoms.h"

using namespace mp4test;

namespace {

AACFile Probe(const QByteArray& b) { return AACFile(reinterpret_cast<const uint8_t*>(b.constData()), uint64_t(b.size())); }

// `count` ADTS frames of `length` bytes: MPEG-2 or MPEG-4, LC, 44.1 kHz, stereo.
QByteArray AdtsFrames(int count, int length, int mpeg2) {
  QByteArray all;
  for (int i = 0; i < count; ++i) {
    QByteArray f(length, '\x11');
    f[0] = char(0xFF);
    f[1] = char(0xF1 | (mpeg2 << 3));
    f[2] = char(1 << 6 | 4 << 2 | 0);  // LC, index 4, channel bit 2 clear
    f[3] = char(2 << 6 | ((length >> 11) & 3));
    f[4] = char((length >> 3) & 0xFF);
    f[5] = char((length & 7) << 5 | 0x1F);
    f[6] = char(0xFC);
    all += f;
  }
  return all;
}

// An audio MP4 with one track: mp4a entry with `esds`, tables and media data.
QByteArray AudioMp4(const QByteArray& esds, bool withStsz = true, uint32_t duration = 441000) {
  QByteArray tables = Table32("stts", {}) + Table32("stsc", {}) + (withStsz ? Stsz({4, 4}) : QByteArray()) +
                      Table32("stco", {0});
  QByteArray moov = Atom("moov", Mvhd(1000, 10000) + Trak(Mdhd(0, 44100, duration), Mp4aEntry(2, 16, 44100, esds), tables));
  return Ftyp() + Atom("mdat", QByteArray(20000, '\x5A')) + moov;
}

}  // namespace

TEST(AacFile, AdtsHeaderGivesPropertiesAndWholeSecondDuration) {
  // 100 frames of 372 bytes behind some junk: found by the scan.
  AACFile a = Probe(QByteArray(37, '\x01') + AdtsFrames(100, 372, 1));
  EXPECT_EQ(a.type(), AACFile::kTypeAac);
  EXPECT_EQ(a.mpegVersion(), 1);
  EXPECT_EQ(a.channels(), 2);
  EXPECT_EQ(a.sampleRate(), 44100);
  EXPECT_EQ(a.bitRate(), 8 * int(372 * (44100 / 1024.0) + 0.5));
  EXPECT_EQ(a.durationMs(), 2000u);  // 2.32 s, in whole seconds
  EXPECT_EQ(a.isMp4(), 0);

  AACFile m4 = Probe(AdtsFrames(100, 372, 0));
  EXPECT_EQ(m4.mpegVersion(), 0);
}

TEST(AacFile, Id3TagIsSkippedBeforeTheStream) {
  // Tag size 0x0101 in seven-bit bytes: 129 bytes of body.
  QByteArray tag = QByteArray("ID3\x03\x00\x00\x00\x00\x01\x01", 10) + QByteArray(129, '\0');
  AACFile a = Probe(tag + AdtsFrames(50, 300, 0));
  EXPECT_EQ(a.id3Size(), 139u);
  EXPECT_EQ(a.type(), AACFile::kTypeAac);
  EXPECT_EQ(a.channels(), 2);
}

TEST(AacFile, NothingRecognisableIsUnknownWithoutDuration) {
  AACFile a = Probe(QByteArray(5000, '\x42'));
  EXPECT_EQ(a.type(), AACFile::kTypeUnknown);
  EXPECT_EQ(a.durationMs(), 0u);
  EXPECT_EQ(a.channels(), 0);
}

TEST(AacFile, AdifConstantAndVariableBitRate) {
  // Constant: copyright absent, bitstream type 0, bit rate 128000, one program element.
  auto adif = [](bool variable) {
    QByteArray h("ADIF");
    const uint32_t rate = 128000;
    uint8_t b[8] = {};
    b[0] = uint8_t((variable ? 0x10 : 0) | ((rate >> 19) & 15));
    b[1] = uint8_t(rate >> 11);
    b[2] = uint8_t(rate >> 3);
    b[3] = uint8_t((rate & 7) << 5);
    if (variable) {
      b[4] = uint8_t(1 << 3 | (4 >> 1));  // LC, index 4 split over two bytes
      b[5] = uint8_t((4 & 1) << 7);
    } else {
      b[6] = 0;               // object type top bit 0
      b[7] = uint8_t(0x80 | 4 << 3);  // object type low bit 1 (LC), index 4
    }
    return h + QByteArray(reinterpret_cast<const char*>(b), 8) + QByteArray(16000 - 12, '\x33');
  };
  AACFile c = Probe(adif(false));
  EXPECT_EQ(c.type(), AACFile::kTypeAac);
  EXPECT_EQ(c.mpegVersion(), 1);
  EXPECT_EQ(c.sampleRate(), 44100);
  EXPECT_EQ(c.channels(), 0);
  EXPECT_EQ(c.bitRate(), 128000);
  EXPECT_EQ(c.durationMs(), uint32_t(16000.0 / (128000 / 8.0) * 1000.0));

  AACFile v = Probe(adif(true));
  EXPECT_EQ(v.type(), AACFile::kTypeAac);
  EXPECT_EQ(v.sampleRate(), 44100);
  EXPECT_EQ(v.durationMs(), 0u);  // a variable stream has no length at open
}

TEST(AacFile, EsdsLongAndShortFormsAndTheObjectTypes) {
  const QByteArray lc("\x12\x10", 2);
  for (bool longForm : {true, false}) {
    SCOPED_TRACE(longForm ? "long" : "short");
    AACFile a = Probe(AudioMp4(longForm ? EsdsLong(0x40, 200000, 128000, lc) : EsdsShort(0x40, 200000, 128000, lc)));
    EXPECT_EQ(a.isMp4(), 1);
    EXPECT_EQ(a.type(), AACFile::kTypeAac);
    EXPECT_EQ(a.mpegVersion(), 0);
    EXPECT_EQ(a.bitRate(), 128000);
    EXPECT_EQ(a.audioObjectType(), 2);
    EXPECT_EQ(a.channels(), 2);
    EXPECT_EQ(a.bits(), 16);
    EXPECT_EQ(a.sampleRate(), 44100);
    EXPECT_EQ(a.mdhdDuration(), 441000u);
    EXPECT_EQ(a.durationMs(), 10000u);
  }
  EXPECT_EQ(Probe(AudioMp4(EsdsLong(103, 0, 0, lc))).mpegVersion(), 1);
  EXPECT_EQ(Probe(AudioMp4(EsdsLong(103, 0, 0, lc))).type(), AACFile::kTypeAac);
  EXPECT_EQ(Probe(AudioMp4(EsdsLong(102, 0, 0, lc))).type(), AACFile::kTypeUnknown);
  // No bit rate in the descriptor: from the media data and the length.
  AACFile z = Probe(AudioMp4(EsdsShort(0x40, 0, 0, lc)));
  EXPECT_EQ(z.bitRate(), int(20008 * 8 / 10.0 + 0.5));  // the atom with its header
  // Six channels in the decoder-specific info beat the template value in the entry.
  EXPECT_EQ(Probe(AudioMp4(EsdsShort(0x40, 0, 0, QByteArray("\x11\xB0", 2)))).channels(), 6);
}

TEST(AacFile, MissingTableIsDamagedAndOddBrandsAreNotMp4Audio) {
  const QByteArray lc("\x12\x10", 2);
  EXPECT_EQ(Probe(AudioMp4(EsdsLong(0x40, 0, 0, lc), false)).type(), AACFile::kTypeDamaged);
  QByteArray qt = AudioMp4(EsdsLong(0x40, 0, 0, lc));
  qt.replace(8, 4, "qt  ");
  EXPECT_EQ(Probe(qt).type(), AACFile::kTypeDamaged);  // the walk never starts: no sizes
  // A size that runs past the end is not applied: the scan goes on and still finds the table.
  QByteArray bad = AudioMp4(EsdsLong(0x40, 0, 0, lc));
  const int stts = bad.indexOf("stts");
  bad.replace(stts - 4, 4, U32(0x7FFFFFF0));
  EXPECT_EQ(Probe(bad).type(), AACFile::kTypeDamaged);  // stts's own size is now beyond the file
  QByteArray skipBad = AudioMp4(EsdsLong(0x40, 0, 0, lc));
  const int smhd = skipBad.indexOf("smhd");
  skipBad.replace(smhd - 4, 4, U32(0x7FFFFFF0));
  EXPECT_EQ(Probe(skipBad).type(), AACFile::kTypeAac);
}
