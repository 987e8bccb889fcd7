#include <QFile>
#include <gtest/gtest.h>

#include "app/Globals.h"
#include "app/HeadlessTest.h"
#include "app/Session.h"
#include "formats/FlacSource.h"
#include "formats/OpenPipeline.h"
#include "formats/WorkFile.h"
#include "tests/formats/DecoderTestSupport.h"

using namespace decoder_test;

namespace {

// A session whose open dialog hands out one good file and counts how often it was shown.
struct DialogSession {
  TestSession t;
  int dialogs = 0;
  QString good;
  DialogSession() {
    good = Stage(t, "sine_16_stereo.wav", "Prøve שלום 🤔, \"good\".wav");
    t.s->m_fileDialog = [this] {
      ++dialogs;
      return good;
    };
  }
};

}  // namespace

// Yes on every refusal of a file's content runs the open dialog, and the file chosen there
// ends up open.
TEST(OpenQuestions, YesOnARefusalOpensTheChosenFile) {
  struct Case {
    const char* fixture;  // empty: the shared Monkey's Audio data
    const char* ape;
    const char* name;
  };
  const Case cases[] = {{"wav_pcm16_quad.wav", "", "quad.wav"},
                        {"flac_16_3.flac", "", "three.flac"},
                        {"", "s16_3ch_44k.ape", "three.ape"}};
  for (const Case& c : cases) {
    DialogSession d;
    QString src = d.t.Path(c.name);
    if (*c.fixture) {
      src = Stage(d.t, c.fixture, c.name);
    } else {
      if (!QFile::copy(testing_support::ApeData(c.ape), src)) continue;  // shared data not beside this tree
    }
    d.t.prompt.answers.push_back({true, false});
    OpenAndWait(d.t, src);
    EXPECT_EQ(d.dialogs, 1) << c.name << d.t.prompt.texts().join('|').toStdString();
    EXPECT_EQ(d.t.s->m_fileName.toStdString(), d.good.toStdString()) << c.name;
    EXPECT_FALSE(g_workPath.isEmpty()) << c.name;
    EXPECT_EQ(d.t.s->m_openDialogPending, 0);
    JoinWorker();
    if (!g_workPath.isEmpty()) DeleteWorkFile(g_workPath);
  }
}

// Test with no file asks for one; Yes shows the dialog, No leaves everything as it was.
TEST(OpenQuestions, TestWithoutAFileOffersTheDialog) {
  DialogSession d;
  bool fromLog = false;
  d.t.prompt.answers.push_back({false, false});
  EXPECT_EQ(RunTestOnOpenFile(*d.t.s, fromLog), 0);
  EXPECT_EQ(d.dialogs, 0);
  EXPECT_EQ(d.t.s->m_statusText, "");
  d.t.prompt.answers.push_back({true, false});
  EXPECT_EQ(RunTestOnOpenFile(*d.t.s, fromLog), 0);
  EXPECT_EQ(d.dialogs, 1);
  EXPECT_EQ(d.t.s->m_fileName.toStdString(), d.good.toStdString());
  ASSERT_EQ(d.t.prompt.requests.size(), 2u);
  EXPECT_EQ(d.t.prompt.requests[1].text,
            "Sorry, the test is stopped because the file was not opened for it.\n"
            "Do You want to open a dialog of selection a file?");
  WaitForWorker(*d.t.s);
  JoinWorker();
  DeleteWorkFile(g_workPath);
}

// A FLAC file whose decoder reported errors is refused by the window's Test as well,
// before anything is measured.
TEST(OpenQuestions, FlacWithErrorsIsNotTested) {
  TestSession t;
  const QString src = Stage(t, "flac_flipped.flac", "d.flac");
  ASSERT_EQ(OpenAndWait(t, src), 1);
  t.prompt.clear();
  const auto before = g_sampleBytesRead.load();
  bool fromLog = false;
  t.s->m_testMode = 0;
  EXPECT_EQ(RunTestOnOpenFile(*t.s, fromLog), 0);
  EXPECT_EQ(g_sampleBytesRead.load(), before);
  ASSERT_EQ(t.prompt.requests.size(), 1u);
  EXPECT_TRUE(t.prompt.requests[0].text.startsWith("Sorry but the file " + src + " has errors. "));
  EXPECT_EQ(t.s->m_testRunning, 0);
  DeleteWorkFile(g_workPath);
}

// A file whose work file holds no sound data gets one question from either test, and No
// lets it go untouched; a file the gain engine cannot analyse, or whose work file went
// after the open, is said so and let go too.
TEST(OpenQuestions, TestOfAFileWithoutSoundLetsItGo) {
  struct Case {
    const char* fixture;
    const char* name;
    int cut;  // bytes kept of the fixture; 0: the work file is removed after the open
    int mode;
    const char* said;
  };
  const Case cases[] = {{"ogg_2.ogg", "Prøve, \"cut\".ogg", 5000, 0, "Sorry, but the test is stopped as the file "},
                        {"ogg_2.ogg", "Prøve, \"cut\".ogg", 5000, 1, "Sorry, but the test is stopped as the file "},
                        {"sine_16_stereo.wav", "🤔 no data.mp3", 1 << 30, 1, "Sorry, but the test of the file "},
                        {"flac_16_2.flac", "שלום.flac", 0, 1, "Sorry, but the file "}};
  for (const Case& c : cases) {
    TestSession t;
    const QString src = t.Path(c.name);
    const QByteArray whole = testing_support::ReadFile(Fixture(c.fixture));
    ASSERT_TRUE(testing_support::WriteFile(src, c.cut ? whole.left(c.cut) : whole));
    const QByteArray source = testing_support::ReadFile(src);
    if (OpenAndWait(t, src) != 1) ADD_FAILURE() << c.name << ": " << t.prompt.texts().join('|').toStdString();
    if (!c.cut) QFile::remove(g_workPath);
    t.prompt.clear();
    t.prompt.answers.push_back({false, false});
    t.s->m_testMode = c.mode;
    bool fromLog = false;
    const QString work = g_workPath;
    EXPECT_EQ(RunTestOnOpenFile(*t.s, fromLog), 0);
    EXPECT_FALSE(QFile::exists(work)) << c.name << c.mode;
    ASSERT_EQ(t.prompt.requests.size(), 1u) << c.name << c.mode << t.prompt.texts().join('|').toStdString();
    EXPECT_TRUE(t.prompt.requests[0].text.startsWith(c.said)) << t.prompt.requests[0].text.toStdString();
    EXPECT_TRUE(g_workPath.isEmpty()) << c.name << c.mode;
    EXPECT_TRUE(t.s->m_title.isEmpty());
    EXPECT_EQ(t.s->m_testRunning, 0);
    EXPECT_EQ(testing_support::ReadFile(src), source);
  }
}
