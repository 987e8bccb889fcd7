#include <gtest/gtest.h>

#include <QFile>
#include <cstring>

#include "app/Globals.h"
#include "formats/OpenPipeline.h"
#include "formats/WavReader.h"
#include "formats/WorkFile.h"
#include "support/TestSupport.h"

using testing_support::Fixture;
using testing_support::ReadFile;
using testing_support::TestSession;
using testing_support::WriteFile;

namespace {

QByteArray Le16(uint16_t v) { return QByteArray(1, char(v & 0xff)) + char(v >> 8); }
QByteArray Le32(uint32_t v) { return Le16(uint16_t(v)) + Le16(uint16_t(v >> 16)); }

QByteArray FmtBody(uint16_t tag, uint16_t channels, uint32_t rate, uint16_t bits) {
  const uint16_t align = uint16_t(channels * ((bits + 7) / 8));
  return Le16(tag) + Le16(channels) + Le32(rate) + Le32(rate * align) + Le16(align) + Le16(bits);
}

QByteArray Chunk(const char* id, const QByteArray& body) { return QByteArray(id, 4) + Le32(uint32_t(body.size())) + body; }

// A RIFF WAVE file of the given chunks; the RIFF size is the true one unless given.
QByteArray Riff(const QByteArray& chunks, int64_t riffSize = -1) {
  return "RIFF" + Le32(uint32_t(riffSize >= 0 ? riffSize : chunks.size() + 4)) + "WAVE" + chunks;
}

QByteArray Pcm(uint16_t tag, uint16_t channels, uint32_t rate, uint16_t bits, int dataBytes) {
  return Riff(Chunk("fmt ", FmtBody(tag, channels, rate, bits)) + Chunk("data", QByteArray(dataBytes, '\x11')));
}

const QString kTail = QStringLiteral(
    " Therefore the test is impossible. Please, select other file.\nDo You want to open a dialog of selection a file?");

// Calls the reader the way the open pipeline does, with no worker.
int Open(TestSession& t, const QString& path) {
  Session& s = *t.s;
  CloseWorkFile(s);  // as the pipeline does after a reader's failure
  s.m_fileName = path;
  s.m_noWorker = 1;
  g_sourcePath = path;
  g_workPath = WorkPathFor(path, kDriveFixed);
  return OpenWav(s);
}

int OpenBytes(TestSession& t, const QByteArray& bytes, const QString& name = "x.wav") {
  const QString path = t.Path(name);
  EXPECT_TRUE(WriteFile(path, bytes));
  return Open(t, path);
}

}  // namespace

TEST(WavReader, AcceptedWidthsFillPropertiesAndCaptions) {
  struct Case {
    const char* file;
    const char* bitsLine;
    const char* channelsLine;
    const char* rateLine;
    const char* formatLine;
    const char* scale;
    int channels, bits;
    unsigned durationMs = 500;
  } cases[] = {
      {"wav_pcm8_mono.wav", "  Bits on Readout   8", "  Channels             1", "  Frequency          8000 Hz",
       "  Audio Format      PCM", "100% = 41 dB", 1, 8},
      {"sine_16_stereo.wav", "  Bits on Readout  16", "  Channels             2", "  Frequency          44100 Hz",
       "  Audio Format      PCM", "100% = 89 dB", 2, 16, 1000},
      {"wav_pcm24_stereo.wav", "  Bits on Readout  24", "  Channels             2", "  Frequency          48000 Hz",
       "  Audio Format      PCM", "100% = 137 dB", 2, 24},
      {"wav_pcm32_stereo.wav", "  Bits on Readout  32", "  Channels             2", "  Frequency          44100 Hz",
       "  Audio Format      PCM", "100% = 185 dB", 2, 32},
      {"wav_float32_stereo.wav", "  Bits on Readout  32", "  Channels             2", "  Frequency          44100 Hz",
       "  Audio Format      PCM IEEE Float", "100% = 185 dB", 2, 32},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.file);
    TestSession t;
    Session& s = *t.s;
    const QString path = Fixture(c.file);
    const QByteArray bytes = ReadFile(path);
    ASSERT_FALSE(bytes.isEmpty());
    ASSERT_EQ(Open(t, path), 1);
    EXPECT_TRUE(t.prompt.requests.empty());
    EXPECT_EQ(s.m_propertyLines[0], c.bitsLine);
    EXPECT_EQ(s.m_propertyLines[1], c.channelsLine);
    EXPECT_EQ(s.m_propertyLines[2], c.rateLine);
    EXPECT_EQ(s.m_propertyLines[3], c.formatLine);
    EXPECT_EQ(s.m_scaleLabel, c.scale);
    EXPECT_EQ(s.m_channels, c.channels);
    EXPECT_EQ(s.m_bits, c.bits);
    EXPECT_EQ(s.m_durationMs, c.durationMs);
    EXPECT_EQ(s.m_fmtBlock, bytes.mid(20, int(s.m_fmtBlock.size())));
    EXPECT_GE(s.m_fmtBlock.size(), 16);
    // The data chunk: its identifier sits 8 bytes before the first sample.
    ASSERT_GT(s.m_dataOffset, 16u);
    EXPECT_EQ(bytes.mid(s.m_dataOffset - 8, 4), "data");
    EXPECT_EQ(s.m_dataOffset + s.m_dataSize, uint32_t(bytes.size()));
    EXPECT_EQ(g_workFile, -1);
  }
  EXPECT_EQ(LevelCaptions(1), QStringList({"Mono Channel", ""}));
  EXPECT_EQ(LevelCaptions(2), QStringList({"Left Channel", "Right Channel"}));
}

TEST(WavReader, UnsupportedCombinationsAreRefusedWithTheQuestion) {
  struct Case {
    QString name;
    QByteArray bytes;
  } cases[] = {
      {"float64.wav", ReadFile(Fixture("wav_float64_mono.wav"))},
      {"quad.wav", ReadFile(Fixture("wav_pcm16_quad.wav"))},
      {"zero_channels.wav", Pcm(1, 0, 44100, 16, 64)},
      {"twelve_bits.wav", Pcm(1, 2, 44100, 12, 64)},
      {"float16.wav", Pcm(3, 1, 44100, 20, 64)},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.name.toStdString());
    ASSERT_FALSE(c.bytes.isEmpty());
    TestSession t;
    Session& s = *t.s;
    ASSERT_EQ(OpenBytes(t, c.bytes, c.name), 0);
    ASSERT_EQ(t.prompt.requests.size(), 1u);
    EXPECT_TRUE(t.prompt.requests[0].yesNo);
    EXPECT_EQ(t.prompt.requests[0].text,
              "Sorry, but the file " + t.Path(c.name) + " has unsupported by the program a format of sound data." + kTail);
    EXPECT_EQ(s.m_statusText, "  Test is stopped");
    EXPECT_EQ(s.m_fileNotOpened, 1);
    EXPECT_EQ(s.m_opening, 0);
    EXPECT_EQ(g_workFile, -1);
    EXPECT_TRUE(s.m_propertyLines[0].isEmpty());
  }
}

TEST(WavReader, BadHeadersGetTheirTexts) {
  TestSession t;
  Session& s = *t.s;
  const QByteArray good = Pcm(1, 2, 44100, 16, 400);

  // A first byte of 0 is "empty", even if the rest is a valid file.
  QByteArray zeroFirst = good;
  zeroFirst[0] = 0;
  EXPECT_EQ(OpenBytes(t, zeroFirst, "zero first.wav"), 0);
  EXPECT_EQ(t.prompt.texts(), QStringList("Sorry, but the file " + t.Path("zero first.wav") +
                                          ", is empty and does not contain any sound data." + kTail));
  EXPECT_EQ(s.m_statusText, "  Test is stopped");
  EXPECT_EQ(s.m_fileNotOpened, 0);

  // Nothing at all: a message, not a question.
  t.prompt.clear();
  EXPECT_EQ(OpenBytes(t, QByteArray(), "empty.wav"), 0);
  ASSERT_EQ(t.prompt.requests.size(), 1u);
  EXPECT_FALSE(t.prompt.requests[0].yesNo);
  EXPECT_EQ(t.prompt.requests[0].text,
            "Sorry, but the file " + t.Path("empty.wav") + " is empty and does not contain any sound data.");

  // No "WAVE" at offset 8: nonsense, truncated headers, a lower-case "wave".
  const QByteArray notWave[] = {QByteArray("RIFF\x10\0\0\0WAVX", 12) + good.mid(12), QByteArray("R"),
                                good.left(11), QByteArray("RIFF\x10\0\0\0wave", 12) + good.mid(12),
                                QByteArray(3000, '\x7f')};
  for (const QByteArray& bytes : notWave) {
    t.prompt.clear();
    s.m_fileNotOpened = 0;
    EXPECT_EQ(OpenBytes(t, bytes, "not, \"wave\".wav"), 0);
    EXPECT_EQ(t.prompt.texts(), QStringList("Sorry, but the file " + t.Path("not, \"wave\".wav") +
                                            " does not contain a sound data characteristic for the Wav files." +
                                            kTail));
    EXPECT_EQ(s.m_fileNotOpened, 1);
    EXPECT_EQ(g_workFile, -1);
  }

  // Format tag 0.
  t.prompt.clear();
  EXPECT_EQ(OpenBytes(t, Pcm(0, 2, 44100, 16, 64), "tag0.wav"), 0);
  EXPECT_EQ(t.prompt.texts(), QStringList("Sorry, but the file " + t.Path("tag0.wav") +
                                          " has unsupported by the program a format of sound data." + kTail));
  EXPECT_EQ(s.m_opening, 0);

  // No "fmt " at all, or one of size 0: refused without a word.
  t.prompt.clear();
  EXPECT_EQ(OpenBytes(t, Riff(Chunk("data", QByteArray(100, 1)))), 0);
  EXPECT_EQ(OpenBytes(t, Riff(Chunk("fmt ", QByteArray()) + Chunk("data", QByteArray(100, 1)))), 0);
  EXPECT_TRUE(t.prompt.requests.empty());
  EXPECT_EQ(g_workFile, -1);
}

TEST(WavReader, ScanKnowsNoChunkBoundaries) {
  TestSession t;
  Session& s = *t.s;
  // "fmt " inside a LIST chunk that comes first is taken as the format.
  const QByteArray list = Chunk("LIST", "INFOISFT" + Le32(24) + "fmt " + Le32(16) + FmtBody(1, 1, 22050, 8));
  const QByteArray file = Riff(list + Chunk("fmt ", FmtBody(1, 2, 44100, 16)) + Chunk("data", QByteArray(441, 0)));
  ASSERT_EQ(OpenBytes(t, file), 1);
  EXPECT_EQ(s.m_channels, 1);
  EXPECT_EQ(s.m_sampleRate, 22050);
  EXPECT_EQ(s.m_bits, 8);
  EXPECT_EQ(s.m_durationMs, 20u);  // 441 bytes at 22050 one-byte frames

  // Bytes 0 to 3 are not examined, and neither they nor the RIFF size can hold "fmt ":
  // the format scan starts at 12, the data scan matches from 16 on.
  QByteArray odd = "fmt " + Le32(200) + "WAVE" + "data" + Le32(0x1234) + Chunk("fmt ", FmtBody(1, 2, 8000, 16)) +
                   Chunk("data", QByteArray(64, 2));
  ASSERT_EQ(OpenBytes(t, odd), 1);
  EXPECT_EQ(s.m_sampleRate, 8000);
  EXPECT_EQ(s.m_dataSize, 64u);
  EXPECT_EQ(s.m_dataOffset, uint32_t(odd.size() - 64));

  // "fmt " without "data": opens, with no data and no duration.
  ASSERT_EQ(OpenBytes(t, Riff(Chunk("fmt ", FmtBody(1, 2, 44100, 16)) + QByteArray(40, 'x'))), 1);
  EXPECT_EQ(s.m_dataSize, 0u);
  EXPECT_EQ(s.m_dataOffset, 0u);
  EXPECT_EQ(s.m_durationMs, 0u);
}

TEST(WavReader, ScanStopsAtTheRiffSizeOrTheScanSpan) {
  TestSession t;
  Session& s = *t.s;
  const QByteArray chunks = Chunk("fmt ", FmtBody(1, 2, 44100, 16)) + Chunk("data", QByteArray(1000, 3));
  // A RIFF size that ends before "data": the format is found, the data is not.
  ASSERT_EQ(OpenBytes(t, Riff(chunks, 4 + 24 + 8)), 1);
  EXPECT_EQ(s.m_dataSize, 0u);
  // One that ends inside the format chunk's identifier: nothing found, nothing said.
  EXPECT_EQ(OpenBytes(t, Riff(chunks, 8)), 0);
  EXPECT_TRUE(t.prompt.requests.empty());

  // With a small allocation unit the span is ten units; a format chunk behind a large
  // LIST chunk lies beyond it and counts as missing.
  s.m_allocGranularity = 64;
  const QByteArray pad = Chunk("LIST", QByteArray(700, 'p'));
  EXPECT_EQ(OpenBytes(t, Riff(pad + chunks)), 0);
  EXPECT_TRUE(t.prompt.requests.empty());
  // Within the span, the data chunk just behind it is not found either.
  const QByteArray near = Riff(Chunk("fmt ", FmtBody(1, 2, 44100, 16)) + Chunk("LIST", QByteArray(600, 'p')) +
                               Chunk("data", QByteArray(1000, 3)));
  ASSERT_EQ(OpenBytes(t, near), 1);
  EXPECT_EQ(s.m_dataSize, 0u);
  s.m_allocGranularity = 65536;
  ASSERT_EQ(OpenBytes(t, near), 1);
  EXPECT_EQ(s.m_dataSize, 1000u);
}

TEST(WavReader, SizesThatLieAreBelievedButNeverReadPast) {
  TestSession t;
  Session& s = *t.s;
  // A header promising more data than the file holds: believed as it stands.
  QByteArray promise = Riff(Chunk("fmt ", FmtBody(1, 2, 44100, 16)) + "data" + Le32(176400 * 10) + QByteArray(100, 5));
  ASSERT_EQ(OpenBytes(t, promise), 1);
  EXPECT_EQ(s.m_dataSize, 1764000u);
  EXPECT_EQ(s.m_durationMs, 10000u);

  // "data" as the last bytes of the file: its size field lies beyond the end and reads 0.
  QByteArray tailData = Riff(Chunk("fmt ", FmtBody(1, 1, 8000, 8)) + "xdata", 1000);
  ASSERT_EQ(OpenBytes(t, tailData, "tail.wav"), 1);
  EXPECT_EQ(s.m_dataSize, 0u);
  EXPECT_EQ(s.m_dataOffset, uint32_t(tailData.size() + 4));

  // A format chunk whose size runs past the end: the block is what the file holds.
  QByteArray longFmt = Riff("fmt " + Le32(0xFFFFFFF0u) + FmtBody(1, 2, 44100, 16));
  ASSERT_EQ(OpenBytes(t, longFmt, "long.wav"), 1);
  EXPECT_EQ(s.m_fmtBlock.size(), 16);
  // One shorter than a format: the missing fields read as 0, so the channels are refused.
  EXPECT_EQ(OpenBytes(t, Riff(Chunk("fmt ", Le16(1) + Le16(2)) + Chunk("data", QByteArray(8, 0))), "short.wav"), 0);
  EXPECT_EQ(t.prompt.requests.size(), 1u);
}

TEST(WavReader, OtherTagsLeaveForTheirRoads) {
  TestSession t;
  Session& s = *t.s;
  // Extensible 24-bit: the format block, the data offset and size are known when the
  // conversion road takes over.
  const QString ext = Fixture("wav_ext24_stereo.wav");
  const QByteArray bytes = ReadFile(ext);
  Open(t, ext);
  EXPECT_EQ(s.m_formatTag, 0xFFFE);
  EXPECT_EQ(s.m_fmtBlock, bytes.mid(20, 40));
  EXPECT_EQ(s.m_channels, 2);
  EXPECT_EQ(s.m_sampleRate, 48000);
  ASSERT_GT(s.m_dataOffset, 0u);
  EXPECT_EQ(bytes.mid(s.m_dataOffset - 8, 4), "data");

  // MPEG Layer III in RIFF becomes an MP3 source.
  s.m_sourceKind = kKindWav;
  s.m_formatTag = 0;
  Open(t, Fixture("wav_mp3_in_riff.wav"));
  EXPECT_EQ(s.m_sourceKind, kKindMp3);
  EXPECT_EQ(s.m_fmtBlock.left(2), QByteArray("\x55\x00", 2));
}

TEST(WavReader, CopyWorkerMakesTheWorkFile) {
  TestSession t;
  Session& s = *t.s;
  const QByteArray bytes = ReadFile(Fixture("sine_16_stereo.wav"));
  const QString src = t.Path("Prøve שלום 🤔.wav");
  ASSERT_TRUE(WriteFile(src, bytes));
  CloseWorkFile(s);
  s.m_fileName = src;
  g_sourcePath = src;
  g_workPath = WorkPathFor(src, kDriveFixed);
  ASSERT_EQ(OpenWav(s), 1);
  WaitForWorker(s);
  EXPECT_EQ(WorkerExitCode(), 0);
  EXPECT_EQ(ReadFile(t.Path("Prøve שלום 🤔.tmp")), bytes);
  EXPECT_EQ(ReadFile(src), bytes);
  EXPECT_TRUE(t.prompt.requests.empty());

  // Read in place on an optical drive: no worker, no copy.
  g_workPath = src;
  s.m_driveType = kDriveCdRom;
  ASSERT_EQ(OpenWav(s), 1);
  EXPECT_EQ(g_workerBusy.load(), 0);
  EXPECT_EQ(ReadFile(src), bytes);
}
