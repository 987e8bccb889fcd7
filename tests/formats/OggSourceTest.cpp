#include <QFile>
#include <gtest/gtest.h>

#include "app/Session.h"
#include "app/HeadlessTest.h"
#include "formats/OggSource.h"
#include "tests/formats/DecoderTestSupport.h"

using namespace decoder_test;

TEST(OggSource, DecodesEachChannelCountToTheReference) {
  struct Case {
    const char* name;
    int channels, rate;
  };
  for (const Case c : {Case{"ogg_2", 2, 44100}, Case{"ogg_1", 1, 22050}, Case{"ogg_3", 3, 44100}}) {
    SCOPED_TRACE(c.name);
    TestSession t;
    Session& s = *t.s;
    const QString src = Stage(t, QString(c.name) + ".ogg", "Prøve, \"x\".ogg");
    const QByteArray before = ReadFile(src);
    ASSERT_EQ(OpenAndWait(t, src), 1) << t.prompt.texts().join('|').toStdString();
    EXPECT_TRUE(t.prompt.requests.empty());
    EXPECT_EQ(s.m_bits, 16);
    EXPECT_EQ(s.m_formatTag, 1);
    EXPECT_EQ(s.m_channels, c.channels);
    EXPECT_EQ(s.m_sampleRate, c.rate);
    EXPECT_EQ(s.m_propertyLines[1], QString("  Channels            %1").arg(c.channels));
    EXPECT_EQ(s.m_propertyLines[2], QString("  Sample Rate       %1 Hz").arg(c.rate));
    EXPECT_EQ(s.m_propertyLines[3], "  Audio Format      Ogg Vorbis");
    EXPECT_EQ(s.m_propertyLines[0], QString("  Bit Rate               %1 kbps").arg(s.m_bitRate));
    EXPECT_NEAR(double(s.m_durationMs), c.channels == 3 ? 500.0 : 1500.0, 1.0);
    ExpectWorkFile(g_workPath, QString(c.name) + ".ref.raw", c.channels, c.rate, 16);
    EXPECT_EQ(ReadFile(src), before);
  }
}

TEST(OggSource, HeaderOnlyOpenTakesTheWholeChainsLength) {
  TestSession t;
  Session& s = *t.s;
  const QString src = Stage(t, "ogg_chained.ogg", "c.ogg");
  s.m_noWorker = 1;
  ASSERT_EQ(OpenFileHeadless(s, src), 1);
  EXPECT_FALSE(QFile::exists(t.Path("c.tmp")));
  EXPECT_EQ(s.m_channels, 2);
  EXPECT_EQ(s.m_sampleRate, 44100);
  EXPECT_GT(s.m_bitRate, 0);
  EXPECT_EQ(s.m_propertyLines[0], QString("  Bit Rate               %1 kbps").arg(s.m_bitRate));
  // 1.5 s of the first link and 1.5 s of the second.
  EXPECT_NEAR(double(s.m_durationMs), 3000.0, 1.0);
}

// Two links of different layouts are decoded on as one stream; the header announced the
// first link's layout for the whole length and is corrected to what was written.
TEST(OggSource, ChainedStreamIsDecodedAsOneAndItsSizesCorrected) {
  TestSession t;
  const QString src = Stage(t, "ogg_chained.ogg", "c.ogg");
  ASSERT_EQ(OpenAndWait(t, src), 1);
  EXPECT_TRUE(t.prompt.requests.empty());
  const QByteArray ref = ReadFile(Fixture("ogg_2.ref.raw")) + ReadFile(Fixture("ogg_1.ref.raw"));
  const QByteArray work = ReadFile(g_workPath);
  EXPECT_EQ(work.left(kWorkHeaderSize), MakeWorkHeader(2, 44100, 16, 1, uint32_t(ref.size())));
  EXPECT_TRUE(work.mid(kWorkHeaderSize) == ref);
}

TEST(OggSource, HoleEndsTheDecodingAndKeepsWhatWasWritten) {
  TestSession t;
  const QString src = Stage(t, "ogg_hole.ogg", "h.ogg");
  ASSERT_EQ(OpenAndWait(t, src), 1);
  EXPECT_EQ(t.prompt.texts(), QStringList{"Sorry, but an error of opening has occurred decoding stream."});
  EXPECT_EQ(WorkerExitCode(), 1);
  const QByteArray work = ReadFile(g_workPath);
  const QByteArray ref = ReadFile(Fixture("ogg_long.ref.raw"));
  ASSERT_GT(work.size(), kWorkHeaderSize);
  // The header still promises the length the stream announced; the samples before the
  // hole are those of the intact file.
  EXPECT_EQ(Le32(work, 40) % 4, 0u);
  EXPECT_GT(Le32(work, 40), uint32_t(work.size() - kWorkHeaderSize));
  EXPECT_TRUE(ref.startsWith(work.mid(kWorkHeaderSize)));
}

TEST(OggSource, NotAnOggFileAndMissingFile) {
  TestSession t;
  Session& s = *t.s;
  const QString src = Stage(t, "flac_16_1.flac", "f.ogg");
  EXPECT_EQ(OpenAndWait(t, src), 0);
  EXPECT_EQ(t.prompt.texts(), QStringList{"Sorry, but the file " + src + " cannot be opened"});
  EXPECT_FALSE(QFile::exists(t.Path("f.tmp")));
  t.prompt.clear();
  s.m_fileName = t.Path("gone.ogg");
  EXPECT_EQ(OpenOgg(s), 0);
  EXPECT_EQ(t.prompt.texts(),
            QStringList{"Sorry, but the file " + t.Path("gone.ogg") + " cannot be opened impossible. Because the file does not exist."});
}

TEST(OggSource, NeverWritesTheSourceAndReportsAFullDisk) {
  TestSession t;
  Session& s = *t.s;
  const QString src = Stage(t, "ogg_1.ogg", "cd.ogg");
  const QByteArray before = ReadFile(src);
  s.m_fileName = g_sourcePath = g_workPath = src;
  ASSERT_EQ(OpenOgg(s), 1);
  WaitForWorker(s);
  EXPECT_EQ(t.prompt.texts(), QStringList{"Sorry, but the file " + src + " cannot be created."});
  EXPECT_EQ(ReadFile(src), before);
  if (!QFileInfo("/dev/full").isWritable()) return;
  t.prompt.clear();
  g_workPath = "/dev/full";
  ASSERT_EQ(OpenOgg(s), 1);
  WaitForWorker(s);
  EXPECT_EQ(t.prompt.texts(),
            QStringList{"Sorry, but an error of write has occurred to the output file: /dev/full."});
}

// A test after the hole reads what the work file holds, though its header promises more.
TEST(OggSource, PeakTestAfterAHoleMeasuresWhatWasWritten) {
  TestSession t;
  const QString src = Stage(t, "ogg_hole.ogg", "h2.ogg");
  HeadlessOptions options;
  options.testMode = 0;
  options.useLog = false;
  const HeadlessReport r = TestFileHeadless(*t.s, t.prompt, src, options);
  EXPECT_TRUE(r.ok) << r.error.toStdString();
  EXPECT_TRUE(t.prompt.texts().contains("Sorry, but an error of opening has occurred decoding stream."));
  EXPECT_GT(r.result.WavLeft, 0.0f);
  EXPECT_LT(r.result.WavLeft, 100.0f);
  EXPECT_FALSE(QFile::exists(t.Path("h2.tmp")));
}
