#include <gtest/gtest.h>

#include <QCryptographicHash>
#include <QFile>

#include "app/Globals.h"
#include "app/HeadlessTest.h"
#include "app/Session.h"
#include "formats/ApeDecoder.h"
#include "formats/ApeSource.h"
#include "formats/OpenPipeline.h"
#include "formats/WorkFile.h"
#include "support/TestSupport.h"

using testing_support::ApeData;
using testing_support::ReadFile;
using testing_support::TestSession;
using testing_support::WriteFile;

namespace {

// The shared test data is read-only: each test works on its own copy, under a name that
// exercises Unicode paths.
QString StageApe(TestSession& t, const QString& fixture, const QString& name = "Prøve, \"שלום\" 🤔.ape") {
  const QString to = t.Path(name);
  QFile::remove(to);
  EXPECT_TRUE(WriteFile(to, ReadFile(ApeData(fixture)))) << fixture.toStdString();
  return to;
}

QString Md5(const QByteArray& b) {
  return QString::fromLatin1(QCryptographicHash::hash(b, QCryptographicHash::Md5).toHex());
}

int OpenAndWait(TestSession& t, const QString& path) {
  int ok = OpenFileHeadless(*t.s, path);
  WaitForWorker(*t.s);
  return ok;
}

}  // namespace

TEST(ApeSource, OpensAndDecodesEachAcceptedFormatIntoTheWorkFile) {
  struct Case {
    const char* file;
    int channels, rate, bits;
    uint32_t ms;
    const char* bitsLine;
    const char* md5;
  };
  const Case cases[] = {
      {"s16_stereo_44k_c4000.ape", 2, 44100, 16, 3000, "  Bits on Readout  16", "8f05979c5f684e2a855dc6ee88d4f4ce"},
      {"s16_mono_48k.ape", 1, 48000, 16, 2000, "  Bits on Readout  16", "711a6b8a7f36e437ced81a1a1624a408"},
      {"u8_stereo_22k.ape", 2, 22050, 8, 2000, "  Bits on Readout   8", "37ca1926100323c2564e2f761cd35e2b"},
      {"s24_stereo_96k.ape", 2, 96000, 24, 2000, "  Bits on Readout  24", "883899940377325a88f5e8df8548475f"},
      {"short_s16_stereo.ape", 2, 44100, 16, 50, "  Bits on Readout  16", "0e8e25eca97a3cf5294fc549e0b85cf2"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.file);
    TestSession t;
    Session& s = *t.s;
    const QString src = StageApe(t, c.file);
    const QByteArray before = ReadFile(src);
    ASSERT_EQ(OpenAndWait(t, src), 1) << t.prompt.texts().join('|').toStdString();
    EXPECT_TRUE(t.prompt.requests.empty()) << t.prompt.texts().join('|').toStdString();
    EXPECT_EQ(WorkerExitCode(), 0);
    EXPECT_EQ(s.m_sourceKind, kKindApe);
    EXPECT_EQ(s.m_formatTag, 1);
    EXPECT_EQ(s.m_channels, c.channels);
    EXPECT_EQ(s.m_sampleRate, c.rate);
    EXPECT_EQ(s.m_bits, c.bits);
    EXPECT_EQ(s.m_durationMs, c.ms);
    EXPECT_EQ(s.m_propertyLines[0], c.bitsLine);
    EXPECT_EQ(s.m_propertyLines[1], QString("  Channels             %1").arg(c.channels));
    EXPECT_EQ(s.m_propertyLines[2], QString("  Frequency          %1 Hz").arg(c.rate));
    EXPECT_EQ(s.m_propertyLines[3], "  Audio Format       APE");

    EXPECT_EQ(g_workPath, t.Path("Prøve, \"שלום\" 🤔.tmp"));
    const QByteArray work = ReadFile(g_workPath);
    ASSERT_GT(work.size(), kWorkHeaderSize);
    const QByteArray pcm = work.mid(kWorkHeaderSize);
    EXPECT_EQ(work.left(kWorkHeaderSize), MakeWorkHeader(c.channels, c.rate, c.bits, 1, uint32_t(pcm.size())));
    EXPECT_EQ(Md5(pcm), QString::fromLatin1(c.md5));
    EXPECT_EQ(ReadFile(src), before);
  }
}

TEST(ApeSource, HeaderOnlyOpenStartsNoWorker) {
  TestSession t;
  Session& s = *t.s;
  const QString src = StageApe(t, "s16_stereo_44k.ape", "a.ape");
  s.m_noWorker = 1;
  ASSERT_EQ(OpenFileHeadless(s, src), 1);
  EXPECT_EQ(g_workerBusy.load(), 0);
  EXPECT_FALSE(QFile::exists(t.Path("a.tmp")));
  EXPECT_EQ(s.m_channels, 2);
  EXPECT_EQ(s.m_durationMs, 3000u);
  EXPECT_EQ(s.m_propertyLines[3], "  Audio Format       APE");
}

// 32-bit audio and more than two channels decode, but the program does not test them.
TEST(ApeSource, RefusesThirtyTwoBitsAndMoreThanTwoChannelsWithTheQuestion) {
  for (const char* file : {"s32_stereo_44k.ape", "s16_3ch_44k.ape"}) {
    SCOPED_TRACE(file);
    TestSession t;
    Session& s = *t.s;
    const QString src = StageApe(t, file, "r.ape");
    EXPECT_EQ(OpenAndWait(t, src), 0);
    ASSERT_EQ(t.prompt.requests.size(), 1u);
    EXPECT_TRUE(t.prompt.requests[0].yesNo);
    EXPECT_EQ(t.prompt.requests[0].text,
              "Sorry, but the file " + src +
                  " has unsupported by the program a format of sound data. Therefore the test is impossible. "
                  "Please, select other file.\nDo You want to open a dialog of selection a file?");
    EXPECT_EQ(s.m_statusText, "  Test is stopped");
    EXPECT_EQ(s.m_fileNotOpened, 1);
    EXPECT_EQ(s.m_opening, 0);
    EXPECT_FALSE(QFile::exists(t.Path("r.tmp")));
  }
}

TEST(ApeSource, FilesItCannotReadAreRefusedAtOpen) {
  TestSession t;
  Session& s = *t.s;
  s.m_noWorker = 1;

  const QString missing = t.Path("none.ape");
  EXPECT_EQ(OpenFileHeadless(s, missing), 0);
  EXPECT_EQ(t.prompt.texts(),
            QStringList{"Sorry, but the file " + missing + " cannot be opened impossible. Because the file does not exist."});

  t.prompt.clear();
  const QString junk = t.Path("junk.ape");
  WriteFile(junk, QByteArray(4096, 'x'));
  EXPECT_EQ(OpenFileHeadless(s, junk), 0);
  EXPECT_EQ(t.prompt.texts(),
            QStringList{"Sorry, but the file " + junk +
                        " cannot be opened. It is not a Monkey's Audio file, or its header is damaged."});

  // The same file claiming an older format version.
  t.prompt.clear();
  QByteArray old = ReadFile(ApeData("short_s16_stereo.ape"));
  old[4] = char(3970 & 0xFF);
  old[5] = char(3970 >> 8);
  const QString oldPath = t.Path("old.ape");
  WriteFile(oldPath, old);
  EXPECT_EQ(OpenFileHeadless(s, oldPath), 0);
  EXPECT_EQ(t.prompt.texts(),
            QStringList{"Sorry, but the file " + oldPath +
                        " cannot be opened. It was made by a version of Monkey's Audio older than 3.99, which "
                        "the program does not decode."});
}

// A damaged stream stops the worker with a message; nothing of the damaged frame reaches the
// work file, and the test will not measure it.
TEST(ApeSource, DamagedStreamStopsTheWorkerWithoutWritingItsSamples) {
  struct Case {
    const char* file;
    const char* tail;
  };
  for (const Case c : {Case{"s16_stereo_44k_truncated.ape", " ends inside its sound data."},
                       Case{"s16_stereo_44k_corrupt.ape", " is damaged: its sound data does not pass its check."}}) {
    SCOPED_TRACE(c.file);
    TestSession t;
    const QString src = StageApe(t, c.file, "d.ape");
    ASSERT_EQ(OpenAndWait(t, src), 1);
    EXPECT_EQ(WorkerExitCode(), 1);
    EXPECT_EQ(g_copyFailed.exchange(0), 1);
    EXPECT_EQ(t.prompt.texts(),
              QStringList{"Sorry, but an error of opening has occurred decoding stream. The file " + src + c.tail});
    // Frame 0 is the damaged one: the work file holds its header and no sample.
    EXPECT_EQ(ReadFile(t.Path("d.tmp")).size(), kWorkHeaderSize);
  }
}

// Tags after the audio (APEv2 with its header, ID3v1) and an ID3v2 tag before it are passed
// over.
TEST(ApeSource, TagsAroundTheAudioArePassedOver) {
  auto le32 = [](uint32_t v) {
    QByteArray b(4, '\0');
    for (int i = 0; i < 4; ++i) b[i] = char(v >> (8 * i));
    return b;
  };
  const QByteArray item = le32(5) + le32(0) + QByteArray("Title", 6) + "Hello";
  QByteArray header = "APETAGEX" + le32(2000) + le32(uint32_t(item.size() + 32)) + le32(1) + le32(0xA0000000u) +
                      QByteArray(8, '\0');
  QByteArray footer = "APETAGEX" + le32(2000) + le32(uint32_t(item.size() + 32)) + le32(1) + le32(0x80000000u) +
                      QByteArray(8, '\0');
  QByteArray id3v1 = "TAG" + QByteArray(125, 'a');
  QByteArray id3v2 = QByteArray("ID3\x03\x00\x00\x00\x00\x00\x10", 10) + QByteArray(16, '\0');

  TestSession t;
  const QByteArray ape = ReadFile(ApeData("short_s16_stereo.ape"));
  const QString tagged = t.Path("t.ape");
  WriteFile(tagged, id3v2 + ape + header + item + footer + id3v1);
  ASSERT_EQ(OpenAndWait(t, tagged), 1) << t.prompt.texts().join('|').toStdString();
  EXPECT_TRUE(t.prompt.requests.empty());
  EXPECT_EQ(Md5(ReadFile(g_workPath).mid(kWorkHeaderSize)), "0e8e25eca97a3cf5294fc549e0b85cf2");
}

// The whole road of the CLI: open, worker, peak scan of the work file. The peaks are those
// of the source signals (dB below full scale).
TEST(ApeSource, PeakTestGivesTheSourcesPeaks) {
  struct Case {
    const char* file;
    double left, right;  // dBFS; right unused for mono
  };
  const Case cases[] = {
      {"s16_stereo_44k.ape", 0.00, -12.00}, {"s16_mono_48k.ape", -6.53, 0},
      {"u8_stereo_22k.ape", 0.00, -0.07},   {"s24_stereo_96k.ape", 0.00, -10.00},
      {"s24_stereo_96k_moderate.ape", -3.00, -10.00}, {"short_s16_stereo.ape", -6.00, -9.00},
      {"long_s16_stereo.ape", -2.00, -0.94},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.file);
    TestSession t;
    const QString src = StageApe(t, c.file, "p.ape");
    HeadlessOptions options;
    options.testMode = 0;
    options.showDb = 1;
    options.useLog = false;
    const HeadlessReport r = TestFileHeadless(*t.s, t.prompt, src, options);
    ASSERT_TRUE(r.ok) << r.error.toStdString();
    EXPECT_NEAR(r.result.WavPikNoClippingLeft, c.left, 0.006);
    if (r.channels == 2) {
      EXPECT_NEAR(r.result.WavPikNoClippingRight, c.right, 0.006);
    }
    EXPECT_FALSE(QFile::exists(t.Path("p.tmp")));
  }
}

TEST(ApeSource, DamagedFileIsNotMeasured) {
  TestSession t;
  const QString src = StageApe(t, "s16_stereo_44k_corrupt.ape", "c.ape");
  HeadlessOptions options;
  options.testMode = 0;
  options.useLog = false;
  const HeadlessReport r = TestFileHeadless(*t.s, t.prompt, src, options);
  EXPECT_FALSE(r.ok);
  EXPECT_TRUE(r.error.startsWith("Sorry, but an error of opening has occurred decoding stream.")) << r.error.toStdString();
}
