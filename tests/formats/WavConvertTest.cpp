#include <QFile>
#include <gtest/gtest.h>

#include "app/Session.h"
#include "formats/WavConvert.h"
#include "tests/formats/DecoderTestSupport.h"

using namespace decoder_test;

namespace {

// Leaves the session as the WAV reader does before it takes the conversion road: the
// "fmt " body, where the samples start and how many bytes they take, and the two paths.
void PrepareWav(TestSession& t, const QString& path) {
  Session& s = *t.s;
  const QByteArray b = ReadFile(path);
  const int f = b.indexOf("fmt ", 12);
  const int d = b.indexOf("data", 16);
  ASSERT_GT(f, 0);
  ASSERT_GT(d, 0);
  s.m_fileName = path;
  s.m_sourceKind = kKindWav;
  s.m_fmtBlock = b.mid(f + 8, int(Le32(b, f + 4)));
  s.m_formatTag = uint16_t(uint8_t(s.m_fmtBlock[0]) | uint8_t(s.m_fmtBlock[1]) << 8);
  s.m_dataOffset = uint32_t(d + 8);
  s.m_dataSize = Le32(b, d + 4);
  g_sourcePath = path;
  g_workPath = WorkPathFor(path, kDriveFixed);
}

struct ConvCase {
  const char* name;
  int channels, rate, bits;
  uint16_t workTag;
  const char* codec;
  const char* bitRateLine;
};

class Conversions : public ::testing::TestWithParam<ConvCase> {};

}  // namespace

TEST_P(Conversions, ConvertToTheReferenceDecode) {
  const ConvCase c = GetParam();
  TestSession t;
  Session& s = *t.s;
  const QString src = Stage(t, QString("conv_%1.wav").arg(c.name), "Prøve \"ä\", 1.wav");
  const QByteArray before = ReadFile(src);
  PrepareWav(t, src);
  ASSERT_EQ(OpenWavConversion(s), 1) << t.prompt.texts().join('|').toStdString();
  WaitForWorker(s);
  EXPECT_TRUE(t.prompt.requests.empty()) << t.prompt.texts().join('|').toStdString();
  EXPECT_EQ(WorkerExitCode(), 0);
  EXPECT_EQ(s.m_bits, c.bits);
  EXPECT_EQ(s.m_channels, c.channels);
  EXPECT_EQ(s.m_sampleRate, c.rate);
  EXPECT_EQ(s.m_propertyLines[0], c.bitRateLine);
  EXPECT_EQ(s.m_propertyLines[1], QString("  Channels             %1").arg(c.channels));
  EXPECT_EQ(s.m_propertyLines[2], QString("  Frequency          %1 Hz").arg(c.rate));
  EXPECT_EQ(s.m_propertyLines[3], QString("  Audio Format      ") + c.codec);
  const QString ref = QString("conv_%1.ref.raw").arg(c.name);
  ExpectWorkFile(g_workPath, ref, c.channels, c.rate, c.bits, c.workTag);
  // The duration comes from what was converted, set when the worker ends.
  const double frames = double(ReadFile(Fixture(ref)).size()) / (c.channels * ((c.bits + 7) / 8));
  EXPECT_EQ(s.m_durationMs, uint32_t(std::llround(frames / c.rate * 1000.0)));
  EXPECT_EQ(ReadFile(src), before);
  // The header-only open tells the same length from the codec's block size.
  const uint32_t converted = s.m_durationMs;
  PrepareWav(t, src);
  s.m_durationMs = 0;
  s.m_noWorker = 1;
  ASSERT_EQ(OpenWavConversion(s), 1);
  EXPECT_EQ(s.m_durationMs, converted);
}

INSTANTIATE_TEST_SUITE_P(
    Wav, Conversions,
    ::testing::Values(
        ConvCase{"ima_2", 2, 44100, 16, 1, "ADPCM IMA WAV", "  Bit Rate               128 kbps"},
        ConvCase{"ima_1", 1, 22050, 16, 1, "ADPCM IMA WAV", "  Bit Rate               128 kbps"},
        ConvCase{"msadpcm_2", 2, 44100, 16, 1, "ADPCM Microsoft", "  Bit Rate               128 kbps"},
        ConvCase{"alaw_2", 2, 44100, 16, 1, "PCM A-law / G.711 A-law", "  Bit Rate               706 kbps"},
        ConvCase{"mulaw_1", 1, 22050, 16, 1, "PCM mu-law / G.711 mu-law", "  Bit Rate               176 kbps"},
        ConvCase{"gsm_1", 1, 8000, 16, 1, "GSM Microsoft variant", "  Bit Rate               13 kbps"},
        ConvCase{"ext24_2", 2, 48000, 24, 1, "PCM signed 24-bit little-endian", "  Bit Rate               2304 kbps"},
        ConvCase{"extf32_2", 2, 44100, 32, 3, "PCM 32-bit floating point little-endian",
                 "  Bit Rate               2822 kbps"}),
    [](const auto& info) { return std::string(info.param.name); });

TEST(WavConvert, PlansByTagAndExtensibleSubformat) {
  TestSession t;
  const ConversionPlan ext = PlanConversion(
      ReadFile(Fixture("conv_ext24_2.wav")).mid(20, 40));
  EXPECT_TRUE(ext.known);
  EXPECT_EQ(ext.sourceTag, 1);
  EXPECT_EQ(ext.bits, 24);
  EXPECT_EQ(ext.workTag, 1);
  // An extensible block whose subformat GUID is not of the standard family is unknown.
  QByteArray odd = ReadFile(Fixture("conv_ext24_2.wav")).mid(20, 40);
  odd[39] = char(0x72);
  EXPECT_FALSE(PlanConversion(odd).known);
  // Too short to be a format at all.
  EXPECT_FALSE(PlanConversion(QByteArray(10, '\0')).known);
}

TEST(WavConvert, UnknownTagCannotBeOpened) {
  TestSession t;
  Session& s = *t.s;
  const QString src = Stage(t, "conv_unknown.wav", "u.wav");
  PrepareWav(t, src);
  EXPECT_EQ(OpenWavConversion(s), 0);
  ASSERT_EQ(t.prompt.requests.size(), 1u);
  EXPECT_EQ(t.prompt.requests[0].text, "Sorry, but the file " + src + " cannot be opened");
  EXPECT_EQ(t.prompt.requests[0].icon, PromptIcon::Information);
  EXPECT_EQ(g_workerBusy.load(), 0);
  EXPECT_FALSE(QFile::exists(t.Path("u.tmp")));
}

// Without a worker the fields and lines are filled and nothing is written.
TEST(WavConvert, HeaderOnlyOpen) {
  TestSession t;
  Session& s = *t.s;
  const QString src = Stage(t, "conv_gsm_1.wav", "g.wav");
  PrepareWav(t, src);
  s.m_noWorker = 1;
  ASSERT_EQ(OpenWavConversion(s), 1);
  EXPECT_EQ(g_workerBusy.load(), 0);
  EXPECT_EQ(s.m_propertyLines[3], "  Audio Format      GSM Microsoft variant");
  EXPECT_EQ(s.m_bits, 16);
  EXPECT_FALSE(QFile::exists(t.Path("g.tmp")));
}

// A data size beyond the end of the file converts what is there; a format the decoder
// refuses gets the warning; the source is never the work file.
TEST(WavConvert, BadSizesBadFormatsAndTheSourceItself) {
  TestSession t;
  Session& s = *t.s;
  const QString src = Stage(t, "conv_alaw_2.wav", "a.wav");
  const QByteArray before = ReadFile(src);
  PrepareWav(t, src);
  s.m_dataSize = 0xFFFFFFF0u;
  ASSERT_EQ(OpenWavConversion(s), 1);
  WaitForWorker(s);
  ExpectWorkFile(g_workPath, "conv_alaw_2.ref.raw", 2, 44100, 16);

  t.prompt.clear();
  PrepareWav(t, src);
  g_workPath = src;
  EXPECT_EQ(OpenWavConversion(s), 0);
  EXPECT_EQ(t.prompt.texts(), QStringList{"Sorry, but the file " + src + " cannot be created."});
  EXPECT_EQ(ReadFile(src), before);

  t.prompt.clear();
  const QString ima = Stage(t, "conv_ima_2.wav", "i.wav");
  PrepareWav(t, ima);
  s.m_fmtBlock[14] = 9;  // IMA ADPCM with 9 bits per sample
  EXPECT_EQ(OpenWavConversion(s), 0);
  ASSERT_EQ(t.prompt.requests.size(), 1u);
  EXPECT_EQ(t.prompt.requests[0].text, "A stream of data conversion did not succeed to open");
  EXPECT_EQ(t.prompt.requests[0].icon, PromptIcon::Warning);
  EXPECT_FALSE(QFile::exists(t.Path("i.tmp")));
}

TEST(WavConvert, FullDiskEndsTheWorkerWithTheWriteMessage) {
  if (!QFileInfo("/dev/full").isWritable()) GTEST_SKIP() << "no /dev/full";
  TestSession t;
  Session& s = *t.s;
  PrepareWav(t, Stage(t, "conv_mulaw_1.wav", "m.wav"));
  g_workPath = "/dev/full";
  EXPECT_EQ(OpenWavConversion(s), 0);
  EXPECT_EQ(t.prompt.texts(),
            QStringList{"Sorry, but an error of write has occurred to the output file: /dev/full."});
}

// Through the open pipeline and the WAV reader: a compressed WAV takes the conversion road.
TEST(WavConvert, OpenPipelineTakesTheConversionRoad) {
  for (const char* name : {"ima_2", "ext24_2"}) {
    SCOPED_TRACE(name);
    TestSession t;
    const QString src = Stage(t, QString("conv_%1.wav").arg(name), "שלום 🤔.wav");
    ASSERT_EQ(OpenAndWait(t, src), 1) << t.prompt.texts().join('|').toStdString();
    const bool ext = QString(name).startsWith("ext");
    EXPECT_EQ(t.s->m_propertyLines[3],
              ext ? "  Audio Format      PCM signed 24-bit little-endian" : "  Audio Format      ADPCM IMA WAV");
    ExpectWorkFile(g_workPath, QString("conv_%1.ref.raw").arg(name), 2, ext ? 48000 : 44100, ext ? 24 : 16);
  }
}
