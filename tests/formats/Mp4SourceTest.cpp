// Opening AAC and ALAC files: properties, refusals, and the work files of the three
// decoder threads checked against the command-line decoders.
#include <gtest/gtest.h>

#include <QFile>
#include <cmath>
#include <cstring>

#include "app/Globals.h"
#include "formats/OpenPipeline.h"
#include "formats/WorkFile.h"
#include "support/TestSupport.h"

using namespace testing_support;

namespace {

uint32_t Le32(const QByteArray& b, int at) {
  return uint32_t(uint8_t(b[at])) | uint32_t(uint8_t(b[at + 1])) << 8 | uint32_t(uint8_t(b[at + 2])) << 16 |
         uint32_t(uint8_t(b[at + 3])) << 24;
}
uint16_t Le16(const QByteArray& b, int at) { return uint16_t(uint8_t(b[at]) | uint8_t(b[at + 1]) << 8); }

QString Quote(const QString& path) { return "'" + QString(path).replace("'", "'\\''") + "'"; }

// Copies a fixture into the session's folder, so the work file lands there.
QString Stage(TestSession& t, const QString& fixture, const QString& name) {
  const QString to = t.Path(name);
  QFile::remove(to);
  EXPECT_TRUE(QFile::copy(Fixture(fixture), to)) << fixture.toStdString();
  return to;
}

struct Opened {
  int ok = 0;
  QByteArray work;  // the whole work file once the worker ended
};

Opened OpenAndWait(TestSession& t, const QString& path) {
  Opened r;
  r.ok = OpenFileHeadless(*t.s, path);
  if (r.ok) {
    WaitForWorker(*t.s);
    r.work = ReadFile(WorkPathFor(path, kDriveFixed));
  }
  return r;
}

QByteArray Decoded(const QString& command) {
  QByteArray out;
  EXPECT_EQ(RunShell(command, &out), 0) << command.toStdString();
  return out;
}

// The header of a work file whose sizes were patched from the data written.
void ExpectWorkHeader(const QByteArray& work, int channels, int rate, int bits) {
  ASSERT_GE(work.size(), 44);
  EXPECT_EQ(work.left(4), "RIFF");
  EXPECT_EQ(work.mid(8, 8), "WAVEfmt ");
  EXPECT_EQ(Le16(work, 20), 1);
  EXPECT_EQ(Le16(work, 22), channels);
  EXPECT_EQ(Le32(work, 24), uint32_t(rate));
  EXPECT_EQ(Le16(work, 34), bits);
  EXPECT_EQ(Le16(work, 32), channels * bits / 8);
  EXPECT_EQ(Le32(work, 40), uint32_t(work.size() - 44));
  EXPECT_EQ(Le32(work, 4), uint32_t(work.size() - 8));
}

}  // namespace

TEST(Mp4Source, AlacWorkFilesEqualFfmpegDecodeBitForBit) {
  struct Case {
    const char* fixture;
    int channels, bits;
    const char* format;
  } cases[] = {{"alac_16_mono.m4a", 1, 16, "s16le"},
               {"alac_16_stereo.m4a", 2, 16, "s16le"},
               {"alac_24_mono.m4a", 1, 24, "s24le"},
               {"alac_24_stereo.m4a", 2, 24, "s24le"}};
  for (const Case& c : cases) {
    SCOPED_TRACE(c.fixture);
    TestSession t;
    const QString path = Stage(t, c.fixture, QStringLiteral("Prøve 🤔 %1").arg(c.fixture));
    Opened o = OpenAndWait(t, path);
    ASSERT_EQ(o.ok, 1) << t.prompt.texts().join('\n').toStdString();
    EXPECT_EQ(t.s->m_sourceKind, kKindAlac);
    EXPECT_EQ(t.s->m_bits, c.bits);
    EXPECT_EQ(t.s->m_propertyLines[3], "  Audio Format      MPEG-4 ALAC");
    EXPECT_EQ(t.s->m_propertyLines[1], QStringLiteral("  Channels            %1").arg(c.channels));
    EXPECT_EQ(t.s->m_propertyLines[2], "  Sample Rate       44100 Hz");
    EXPECT_EQ(t.s->m_durationMs, 2300u);
    ExpectWorkHeader(o.work, c.channels, 44100, c.bits);
    const QByteArray ref =
        Decoded(QStringLiteral("ffmpeg -nostdin -loglevel error -i %1 -f %2 -").arg(Quote(path), c.format));
    ASSERT_EQ(o.work.size() - 44, ref.size());
    EXPECT_TRUE(o.work.mid(44) == ref) << "decoded samples differ";
    EXPECT_TRUE(t.prompt.requests.empty());
  }
}
