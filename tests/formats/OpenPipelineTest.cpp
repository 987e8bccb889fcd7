#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <sys/stat.h>

#include "app/Globals.h"
#include "formats/OpenPipeline.h"
#include "formats/WorkFile.h"
#include "support/TestSupport.h"

using testing_support::Fixture;
using testing_support::ReadFile;
using testing_support::TestSession;
using testing_support::WriteFile;

namespace {

const QString kAskAgain = QStringLiteral("\nDo You want to open a dialog of selection a file?");

mode_t ModeOf(const QString& path) {
  struct stat st;
  return ::stat(QFile::encodeName(path).constData(), &st) == 0 ? st.st_mode : 0;
}

}  // namespace

TEST(OpenPipeline, SizeTextSteps) {
  EXPECT_EQ(SizeText(0), "0 bytes");
  EXPECT_EQ(SizeText(1), "1 bytes");
  EXPECT_EQ(SizeText(1024), "1024 bytes");
  EXPECT_EQ(SizeText(1025), "1.00 kB");
  EXPECT_EQ(SizeText(1536), "1.50 kB");
  EXPECT_EQ(SizeText(2048), "2 kB");
  EXPECT_EQ(SizeText(1024 * 1024), "1024 kB");
  EXPECT_EQ(SizeText(1024 * 1024 + 1), "1.00 MB");
  EXPECT_EQ(SizeText(3ull * 1024 * 1024 * 1024), "3 GB");
  EXPECT_EQ(SizeText(1024ull * 1024 * 1024 * 1024), "1024 GB");
  EXPECT_EQ(SizeText(2048ull * 1024 * 1024 * 1024), "");
}

TEST(OpenPipeline, KindsBySuffixInAnyCase) {
  struct Case {
    const char* name;
    int kind;
  } cases[] = {
      {"a.mp3", kKindMp3},      {"/m/B.Mp3", kKindMp3},    {"x.MPGA", kKindMp3},   {"a.wav", kKindWav},
      {"a.WaVe", kKindWav},     {"a.aac", kKindAac},       {"a.M4A", kKindAac},    {"a.m4b", kKindAac},
      {"a.m4p", kKindAac},      {"a.m4r", kKindAac},       {"a.mp4", kKindAac},    {"a.Ogg", kKindOgg},
      {"a.APE", kKindApe},      {"a.flac", kKindFlac},     {"a.FLA", kKindFlac},   {"a.mp2", -1},
      {"a.tmp", -1},            {"a.wv", -1},              {"mp3", -1},            {"a.mp3.txt", -1},
  };
  for (const Case& c : cases) EXPECT_EQ(KindOfName(c.name), c.kind) << c.name;
  EXPECT_TRUE(IsFlacName("x.FlAc"));
  EXPECT_FALSE(IsFlacName("x.flacc"));
  EXPECT_TRUE(IsMp4Name("/p/q.M4r"));
}

// Extensions of 2 or 5 letters, or none, are "incorrect", even when a kind would fit; a
// 3-letter one no kind has is named. Without `ask` nothing is said.
TEST(OpenPipeline, CheckFileNameQuestions) {
  const QString incorrect = "Sorry, but the file name is incorrect. Please, select another file." + kAskAgain;
  auto unsupported = [](const char* ext) {
    return QString("Sorry, but file name with extension \"%1\",  is not supported by the program. Please, "
                   "select another file.").arg(ext) + kAskAgain;
  };
  struct Case {
    const char* name;
    int ask, refused;
    QString text;
  } cases[] = {{"/d/a.wv", 1, 1, incorrect},   {"/d/a.mpeg4", 1, 1, incorrect}, {"/d/noext", 1, 1, incorrect},
               {"/d/a.FLACC", 1, 1, incorrect}, {"/d/a.mp2", 1, 1, unsupported("mp2")},
               {"/d/x.tmp", 1, 1, unsupported("tmp")}, {"/d/a.mp2", 0, 1, ""}, {"/d/a.FLA", 1, 0, ""},
               {"/d/a.Mp3", 1, 0, ""},     {"/d/a.wave", 1, 0, ""}};
  for (const Case& c : cases) {
    SCOPED_TRACE(c.name);
    TestSession t;
    t.s->m_canPlay = 1;
    t.s->m_fileName = c.name;
    EXPECT_EQ(CheckFileName(*t.s, c.ask), c.refused);
    EXPECT_EQ(t.prompt.texts(), c.text.isEmpty() ? QStringList() : QStringList(c.text));
    if (!c.text.isEmpty()) EXPECT_TRUE(t.prompt.requests[0].yesNo);
    if (c.text != incorrect) EXPECT_EQ(t.s->m_canPlay, c.text.isEmpty() ? 1 : 0);  // an unknown kind can't play
  }
}

TEST(OpenPipeline, YesReopensTheDialogAfterTheRefusedOpen) {
  TestSession t;
  Session& s = *t.s;
  const QString good = t.Path("good.wav");
  ASSERT_TRUE(WriteFile(good, ReadFile(Fixture("sine_16_mono.wav"))));
  ASSERT_TRUE(WriteFile(t.Path("bad.mp2"), "x"));
  QStringList offered = {t.Path("bad.mp2"), good};
  int dialogs = 0;
  s.m_fileDialog = [&]() {
    ++dialogs;
    return offered.isEmpty() ? QString() : offered.takeFirst();
  };
  s.m_noWorker = 1;
  // The first pick is refused; Yes brings the dialog back, and the second pick opens.
  t.prompt.answers = {PromptAnswer{true, false}};
  OnFileOpen(s);
  EXPECT_EQ(dialogs, 2);
  EXPECT_EQ(t.prompt.requests.size(), 1u);
  EXPECT_EQ(s.m_fileName, good);
  EXPECT_EQ(s.m_propertyLines[1], "  Channels             1");
  EXPECT_EQ(s.m_title, "good.wav - Tonvane 1.0");
  EXPECT_EQ(g_sourcePath, good);
  EXPECT_EQ(g_workPath, t.Path("good.tmp"));
  EXPECT_EQ(s.m_opening, 0);
  EXPECT_EQ(s.m_openDepth, 0);

  // Choosing the open file again changes nothing; Cancel neither.
  offered = {good};
  s.m_bits = 16;
  OnFileOpen(s);
  EXPECT_EQ(s.m_bits, 16);
  EXPECT_EQ(s.m_opening, 0);
  OnFileOpen(s);
  EXPECT_EQ(dialogs, 4);
  EXPECT_EQ(s.m_fileName, good);

  // A refused WAV whose question is answered Yes: the dialog comes after the failed open
  // has cleaned up, so the file chosen there stays open.
  QByteArray broken = ReadFile(good);
  broken[0] = 0;
  ASSERT_TRUE(WriteFile(t.Path("broken.wav"), broken));
  offered = {t.Path("broken.wav"), good};
  t.prompt.clear();
  t.prompt.answers = {PromptAnswer{true, false}};
  s.m_fileName.clear();
  OnFileOpen(s);
  EXPECT_EQ(t.prompt.requests.size(), 1u);
  EXPECT_EQ(s.m_fileName, good);
  EXPECT_EQ(g_workPath, t.Path("good.tmp"));
  EXPECT_EQ(s.m_propertyLines[0], "  Bits on Readout  16");
}

TEST(OpenPipeline, HeadlessOpenOfOddNames) {
  TestSession t;
  Session& s = *t.s;
  const QByteArray bytes = ReadFile(Fixture("sine_16_stereo.wav"));
  const QDir dir(t.dir.path());
  ASSERT_TRUE(dir.mkpath("Prøve, \"שלום\" 🤔"));
  for (const QString& name : {QString("Prøve, \"שלום\" 🤔/a b,c \"q\".WAV"), QString("Prøve, \"שלום\" 🤔/🤔.Wave")}) {
    SCOPED_TRACE(name.toStdString());
    const QString src = t.Path(name);
    ASSERT_TRUE(WriteFile(src, bytes));
    ASSERT_EQ(OpenFileHeadless(s, src), 1);
    WaitForWorker(s);
    const QString work = src.left(src.lastIndexOf('.')) + ".tmp";
    EXPECT_EQ(g_workPath, work);
    EXPECT_EQ(g_sourcePath, src);
    EXPECT_EQ(ReadFile(work), bytes);
    EXPECT_EQ(s.m_propertyLines[4], "  Size                    " + SizeText(uint64_t(bytes.size())));
    EXPECT_EQ(s.m_fileSize, uint32_t(bytes.size()));
    EXPECT_EQ(s.m_sourceKind, kKindWav);
    EXPECT_EQ(s.m_isMpeg, 0);
    EXPECT_TRUE(t.prompt.requests.empty());
  }
  // The second open removed the first one's work file.
  EXPECT_FALSE(QFile::exists(t.Path("Prøve, \"שלום\" 🤔/a b,c \"q\".tmp")));
}

TEST(OpenPipeline, ReadOnlySourceLosesTheBitAndStaysUnchanged) {
  TestSession t;
  Session& s = *t.s;
  const QByteArray bytes = ReadFile(Fixture("sine_16_mono.wav"));
  const QString src = t.Path("ro.wav");
  ASSERT_TRUE(WriteFile(src, bytes));
  ASSERT_EQ(::chmod(QFile::encodeName(src).constData(), 0444), 0);
  s.m_noWorker = 1;
  ASSERT_EQ(OpenFileHeadless(s, src), 1);
  EXPECT_TRUE(ModeOf(src) & S_IWUSR);
  EXPECT_EQ(ReadFile(src), bytes);
}

TEST(OpenPipeline, FilesThatCannotBeOpened) {
  TestSession t;
  Session& s = *t.s;
  s.m_noWorker = 1;
  // Empty files: every kind but MP3 says so; WAV through its reader.
  for (const char* name : {"e.flac", "e.ogg", "e.ape", "e.m4a", "e.wav"}) {
    t.prompt.clear();
    const QString path = t.Path(name);
    ASSERT_TRUE(WriteFile(path, QByteArray()));
    EXPECT_EQ(OpenFileHeadless(s, path), 0) << name;
    EXPECT_EQ(t.prompt.texts(),
              QStringList("Sorry, but the file " + path + " is empty and does not contain any sound data."))
        << name;
    EXPECT_TRUE(g_workPath.isEmpty());
    EXPECT_TRUE(g_sourcePath.isEmpty());
    EXPECT_EQ(g_workFile, -1);
    EXPECT_EQ(s.m_title, "Tonvane 1.0");
  }
  // A missing file.
  t.prompt.clear();
  const QString missing = t.Path("gone.wav");
  EXPECT_EQ(OpenFileHeadless(s, missing), 0);
  EXPECT_EQ(t.prompt.texts(),
            QStringList("Sorry, but the file " + missing + " cannot be opened impossible. Because the file does not exist."));
  // A folder that looks like a WAV file cannot be mapped.
  t.prompt.clear();
  ASSERT_TRUE(QDir(t.dir.path()).mkdir("folder.wav"));
  EXPECT_EQ(OpenFileHeadless(s, t.Path("folder.wav")), 0);
  ASSERT_EQ(t.prompt.requests.size(), 1u);
  EXPECT_TRUE(t.prompt.texts()[0].startsWith("Sorry, but create object \"file-mapping object\" is impossible impossible. "));
  // An unsupported name asks nothing here.
  t.prompt.clear();
  EXPECT_EQ(OpenFileHeadless(s, t.Path("a.mp2")), 0);
  EXPECT_TRUE(t.prompt.requests.empty());
}

TEST(OpenPipeline, FileListAndDialogFilters) {
  TestSession t;
  for (const char* name : {"a.wav", "b.MP3", "c.flac", "d.txt", "e.tmp", "f.m4a", "g.ogg", "h.ape"})
    ASSERT_TRUE(WriteFile(t.Path(name), "x"));
  ASSERT_TRUE(QDir(t.dir.path()).mkdir("sub.wav"));
  QStringList list = FillFileList(t.dir.path());
  list.sort();
  EXPECT_EQ(list, QStringList({"a.wav", "b.MP3", "c.flac", "f.m4a", "g.ogg", "h.ape"}));
  const auto filters = OpenDialogFilters();
  ASSERT_EQ(filters.size(), 7);
  EXPECT_EQ(filters[0].first, "All Files (*.*)");
  EXPECT_EQ(filters[6].second, "*.m4a;*.m4b;*.mp4;*.m4p;*.m4r;*.aac");
}

TEST(OpenPipeline, ScaleLabelAfterAnOpen) {
  TestSession t;
  Session& s = *t.s;
  s.m_noWorker = 1;
  const QString wav24 = t.Path("w24.wav");
  ASSERT_TRUE(WriteFile(wav24, ReadFile(Fixture("wav_pcm24_stereo.wav"))));
  // Shown by width in the average test on the percent scale only.
  s.m_testMode = 1;
  s.m_showDb = 0;
  ASSERT_EQ(OpenFileHeadless(s, wav24), 1);
  EXPECT_EQ(s.m_scaleLabel, "100% = 137 dB");
  EXPECT_EQ(s.m_scaleLabelVisible, 1);
  s.m_showDb = 1;
  ASSERT_EQ(OpenFileHeadless(s, wav24), 1);
  EXPECT_EQ(s.m_scaleLabelVisible, 0);
  s.m_showDb = 0;
  s.m_testMode = 0;
  s.m_scaleLabelVisible = 1;
  ASSERT_EQ(OpenFileHeadless(s, wav24), 1);
  EXPECT_EQ(s.m_scaleLabelVisible, 0);
}
