#include <QFile>
#include <gtest/gtest.h>

#include "app/Session.h"
#include "formats/FlacSource.h"
#include "tests/formats/DecoderTestSupport.h"

using namespace decoder_test;

namespace {

struct FlacCase {
  const char* name;
  int channels, rate, bits;
  uint32_t durationMs;
  const char* bitsLine;
};

class FlacWidths : public ::testing::TestWithParam<FlacCase> {};

const QString kUnsupported =
    "Sorry, but the file %1 has unsupported by the program a format of sound data. Therefore the test is "
    "impossible. Please, select other file.\nDo You want to open a dialog of selection a file?";

}  // namespace

TEST_P(FlacWidths, DecodesToTheReferenceWithExactPropertyLines) {
  const FlacCase c = GetParam();
  TestSession t;
  Session& s = *t.s;
  const QString src = Stage(t, QString("flac_%1.flac").arg(c.name), "Prøve song, \"1\".flac");
  const QByteArray before = ReadFile(src);
  ASSERT_EQ(OpenAndWait(t, src), 1) << t.prompt.texts().join('|').toStdString();
  EXPECT_TRUE(t.prompt.requests.empty());
  EXPECT_EQ(s.m_formatTag, 1);
  EXPECT_EQ(s.m_channels, c.channels);
  EXPECT_EQ(s.m_sampleRate, c.rate);
  EXPECT_EQ(s.m_bits, c.bits);
  EXPECT_EQ(s.m_durationMs, c.durationMs);
  EXPECT_EQ(s.m_propertyLines[0], c.bitsLine);
  EXPECT_EQ(s.m_propertyLines[1], c.channels == 2 ? "  Channels             2" : "  Channels             1");
  EXPECT_EQ(s.m_propertyLines[2], QString("  Frequency          %1 Hz").arg(c.rate));
  EXPECT_EQ(s.m_propertyLines[3], "  Audio Format      FLAC");
  EXPECT_EQ(g_flacStatus.load(), kFlacNoError);
  EXPECT_EQ(g_workPath, t.Path("Prøve song, \"1\".tmp"));
  ExpectWorkFile(g_workPath, QString("flac_%1.ref.raw").arg(c.name), c.channels, c.rate, c.bits);
  EXPECT_EQ(ReadFile(src), before);
}

INSTANTIATE_TEST_SUITE_P(
    Flac, FlacWidths,
    ::testing::Values(FlacCase{"16_2", 2, 44100, 16, 1500, "  Bits on Readout  16"},
                      FlacCase{"16_1", 1, 22050, 16, 1500, "  Bits on Readout  16"},
                      FlacCase{"24_2", 2, 48000, 24, 1500, "  Bits on Readout  24"},
                      FlacCase{"8_1", 1, 11025, 8, 1500, "  Bits on Readout   8"},
                      FlacCase{"8_2", 2, 8000, 8, 1000, "  Bits on Readout   8"}),
    [](const auto& info) { return std::string("w") + info.param.name; });

TEST(FlacSource, HeaderOnlyOpenFillsTheFieldsAndMakesNoWorkFile) {
  TestSession t;
  Session& s = *t.s;
  const QString src = Stage(t, "flac_24_2.flac", "שלום.flac");
  s.m_noWorker = 1;
  ASSERT_EQ(OpenFileHeadless(s, src), 1);
  EXPECT_EQ(g_workerBusy.load(), 0);
  EXPECT_EQ(s.m_bits, 24);
  EXPECT_EQ(s.m_channels, 2);
  EXPECT_EQ(s.m_sampleRate, 48000);
  EXPECT_EQ(s.m_durationMs, 1500u);
  EXPECT_EQ(s.m_propertyLines[3], "  Audio Format      FLAC");
  EXPECT_FALSE(QFile::exists(t.Path("שלום.tmp")));
}

// 32-bit samples and more than two channels are refused with the question, and nothing is
// left beside the source.
TEST(FlacSource, RefusesThirtyTwoBitsAndThreeChannels) {
  for (const char* name : {"flac_32_2.flac", "flac_16_3.flac"}) {
    for (int noWorker : {0, 1}) {
      TestSession t;
      Session& s = *t.s;
      const QString src = Stage(t, name, "🤔 x.flac");
      s.m_noWorker = noWorker;
      EXPECT_EQ(OpenAndWait(t, src), 0) << name;
      ASSERT_EQ(t.prompt.requests.size(), 1u) << name;
      EXPECT_TRUE(t.prompt.requests[0].yesNo);
      EXPECT_EQ(t.prompt.requests[0].text, kUnsupported.arg(src));
      EXPECT_EQ(s.m_fileNotOpened, 1);
      EXPECT_EQ(s.m_statusText, "  Test is stopped");
      EXPECT_FALSE(QFile::exists(t.Path("🤔 x.tmp"))) << name;
    }
  }
}

TEST(FlacSource, NotAFlacStreamGetsTheQuestion) {
  TestSession t;
  const QString src = Stage(t, "flac_notflac.flac", "a.fla");
  EXPECT_EQ(OpenAndWait(t, src), 0);
  ASSERT_EQ(t.prompt.requests.size(), 1u);
  EXPECT_EQ(t.prompt.requests[0].text, kUnsupported.arg(src));
  EXPECT_EQ(t.s->m_channels, 0);
}

// A stream-info block with total samples 0 opens, but its work file stays empty.
TEST(FlacSource, UnknownLengthGivesAnEmptyWorkFile) {
  TestSession t;
  const QString src = Stage(t, "flac_total0.flac", "z.flac");
  ASSERT_EQ(OpenAndWait(t, src), 1);
  EXPECT_EQ(t.s->m_durationMs, 0u);
  EXPECT_TRUE(QFile::exists(g_workPath));
  EXPECT_EQ(QFileInfo(g_workPath).size(), 0);
}

// A flipped byte in the frames: the file opens, the decoder's error stays for the test,
// which shows the box; "Don't show again" silences it for the run.
TEST(FlacSource, DamagedFrameIsReportedAndSilencedByDontShowAgain) {
  TestSession t;
  Session& s = *t.s;
  const QString src = Stage(t, "flac_flipped.flac", "d.flac");
  ASSERT_EQ(OpenAndWait(t, src), 1);
  const int status = g_flacStatus.load();
  ASSERT_GE(status, 0);
  ASSERT_LE(status, 3);
  t.prompt.clear();
  t.prompt.answers.push_back({false, true});
  EXPECT_EQ(ShowFlacError(s, src), 1);
  ASSERT_EQ(t.prompt.requests.size(), 1u);
  const PromptRequest& r = t.prompt.requests[0];
  EXPECT_EQ(r.text, "Sorry but the file " + src + " has errors. " + FlacStatusText(status));
  EXPECT_EQ(r.caption, "Tonvane 1.0");
  EXPECT_EQ(r.icon, PromptIcon::Information);
  EXPECT_TRUE(r.dontShowBox);
  EXPECT_EQ(ShowFlacError(s, src), 1);
  EXPECT_EQ(t.prompt.requests.size(), 1u);
  // The work file still holds a full header and the frames that decoded.
  const QByteArray work = ReadFile(g_workPath);
  ASSERT_GE(work.size(), kWorkHeaderSize);
  EXPECT_EQ(work.left(kWorkHeaderSize), MakeWorkHeader(2, 44100, 16, 1, uint32_t(ReadFile(Fixture("flac_16_2.ref.raw")).size())));
}

TEST(FlacSource, TruncatedFileKeepsTheTrueSizesAndWhatDecoded) {
  TestSession t;
  const QString src = Stage(t, "flac_truncated.flac", "t.flac");
  ASSERT_EQ(OpenAndWait(t, src), 1);
  const QByteArray work = ReadFile(g_workPath);
  const QByteArray ref = ReadFile(Fixture("flac_16_2.ref.raw"));
  ASSERT_GT(work.size(), kWorkHeaderSize);
  EXPECT_EQ(Le32(work, 40), uint32_t(ref.size()));
  EXPECT_LT(work.size() - kWorkHeaderSize, ref.size());
  // What decoded before the cut is sample for sample the reference.
  EXPECT_TRUE(ref.startsWith(work.mid(kWorkHeaderSize)));
}

// The work file cannot be the source (a read-only medium): " cannot be created.", and the
// source is not touched.
TEST(FlacSource, NeverWritesTheSource) {
  TestSession t;
  Session& s = *t.s;
  const QString src = Stage(t, "flac_16_1.flac", "cd.flac");
  const QByteArray before = ReadFile(src);
  s.m_fileName = src;
  g_sourcePath = src;
  g_workPath = src;
  EXPECT_EQ(OpenFlac(s), 0);
  EXPECT_EQ(t.prompt.texts(), QStringList{"Sorry, but the file " + src + " cannot be created."});
  EXPECT_EQ(g_workerBusy.load(), 0);
  EXPECT_EQ(ReadFile(src), before);
}

// A full disk shows as a short write: the write message, and the worker ends.
TEST(FlacSource, FullDiskEndsTheWorkerWithTheWriteMessage) {
  if (!QFileInfo("/dev/full").isWritable()) GTEST_SKIP() << "no /dev/full";
  TestSession t;
  Session& s = *t.s;
  const QString src = Stage(t, "flac_16_2.flac", "full.flac");
  s.m_fileName = src;
  g_sourcePath = src;
  g_workPath = "/dev/full";
  ASSERT_EQ(OpenFlac(s), 1);
  WaitForWorker(s);
  EXPECT_EQ(t.prompt.texts(),
            QStringList{"Sorry, but an error of write has occurred to the output file: /dev/full."});
  EXPECT_EQ(WorkerExitCode(), 1);
}
