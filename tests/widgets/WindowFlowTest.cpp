#include <QAction>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QFontMetrics>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QProcess>
#include <QProgressBar>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

#include "app/Globals.h"
#include "app/widgets/MainDialog.h"
#include "controls/LevelBar.h"
#include "formats/WorkFile.h"
#include "support/TestSupport.h"
#include "widgets/WidgetTestSupport.h"

using testing_support::Fixture;

namespace {

QJsonObject RunCli(const QString& file, int mode, bool db) {
  QProcess cli;
  QStringList args{"--no-log", "--json", mode == 0 ? "--peak" : "--average"};
  if (db) args << "--db";
  cli.start(testing_support::CliPath(), args << file);
  cli.waitForFinished(120000);
  return QJsonDocument::fromJson(cli.readAllStandardOutput().trimmed()).object();
}

// A 16-bit stereo WAV of `seconds` of a ramp, long enough for the scanner to pump often.
QByteArray LongWav(int seconds) {
  const uint32_t frames = 44100u * uint32_t(seconds);
  QByteArray pcm(int(frames * 4), Qt::Uninitialized);
  auto* p = reinterpret_cast<int16_t*>(pcm.data());
  for (uint32_t i = 0; i < frames * 2; ++i) p[i] = int16_t((i * 37) % 20000 - 10000);
  return MakeWorkHeader(2, 44100, 16, 1, uint32_t(pcm.size())) + pcm;
}

class WindowFlowTest : public ::testing::Test {
 protected:
  void SetUp() override { widget_support::App(); }
  void TearDown() override {
    JoinWorker();
    g_workerBusy = 0;
  }

  // Messages are recorded instead of shown.
  void Wire(CBrenlowv10Dlg& dlg) {
    dlg.session().m_prompt.SetUi(&t.prompt);
    dlg.show();
  }
  // Opens `path` through the list's way in and waits for the work file.
  void Open(CBrenlowv10Dlg& dlg, const QString& path) {
    ASSERT_EQ(dlg.OpenByName(path), 1) << path.toStdString();
    for (int i = 0; i < 6000 && g_workerBusy.load(); ++i) QTest::qWait(10);
  }
  void Test(CBrenlowv10Dlg& dlg, int mode, int db) {
    dlg.SetTestMode(mode);
    dlg.SetShowDb(db);
    qobject_cast<QPushButton*>(dlg.control(kIdTestButton))->click();
  }
  // What the window shows for each channel, in the words a person reads.
  QStringList Shown(CBrenlowv10Dlg& dlg, int channels) {
    QStringList out;
    for (int i = 0; i < channels; ++i) {
      out << dlg.bar(i)->Text();
      QLabel* max = dlg.label(i ? kIdRightMax : kIdLeftMax);
      out << (max->isVisibleTo(&dlg) ? max->text() : QString());
      out << (dlg.label(i ? kIdRightClip : kIdLeftClip)->isVisibleTo(&dlg) ? "Clipping" : "");
    }
    return out;
  }
  // The same from the CLI's figures.
  QStringList Expected(const QJsonObject& cli, int mode, bool db) {
    QStringList out;
    for (const QJsonValue& v : cli["levels"].toArray()) {
      const QJsonObject c = v.toObject();
      auto text = [db](double v) { return db ? QString::asprintf("%1.1f dB", v) : QString::asprintf("%1.1f%%", v); };
      out << text(float(c["level"].toDouble()));
      const bool hasMax = !(mode == 0 && !db);
      out << (hasMax ? "Max Level " + text(float(c["maxLevel"].toDouble())) : QString());
      out << (c["clipping"].toBool() ? "Clipping" : "");
    }
    return out;
  }

  testing_support::TestSession t;
};

}  // namespace

// Every kind, both tests, both scales: the bars and labels read what the CLI says.
TEST_F(WindowFlowTest, EveryKindShowsTheCliFigures) {
  struct Case {
    const char* file;
    bool ape;
  };
  const Case cases[] = {{"sine_16_stereo.wav", false}, {"peak_24_stereo.wav", false}, {"sine_16_mono.wav", false},
                        {"flac_16_2.flac", false},     {"gain_stereo.mp3", false},     {"ogg_2.ogg", false},
                        {"aac_stereo.m4a", false},     {"alac_24_stereo.m4a", false},  {"short_s16_stereo.ape", true}};
  CBrenlowv10Dlg dlg;
  Wire(dlg);
  dlg.session().m_useDatabase = 0;
  for (const Case& c : cases) {
    const QString src = t.Path(QStringLiteral("Prøve שלום 🤔, \"x\" %1").arg(c.file));
    const QString from = c.ape ? testing_support::ApeData(c.file) : Fixture(c.file);
    if (!QFile::copy(from, src)) continue;  // shared data not beside this tree
    // The CLI gets its own copy: its work file beside the source must not be the window's.
    QDir(t.dir.path()).mkpath("cli");
    const QString forCli = t.Path(QStringLiteral("cli/%1").arg(c.file));
    ASSERT_TRUE(QFile::copy(from, forCli));
    Open(dlg, src);
    const bool mp3 = dlg.session().m_sourceKind == kKindMp3;
    for (int mode : {0, 1}) {
      if (mode == 0 && mp3) continue;
      for (int db : {0, 1}) {
        SCOPED_TRACE(std::string(c.file) + (mode ? " average" : " peak") + (db ? " dB" : " %"));
        const QJsonObject cli = RunCli(forCli, mode, db);
        ASSERT_TRUE(cli["ok"].toBool()) << cli["error"].toString().toStdString();
        Test(dlg, mode, db);
        const int channels = int(cli["levels"].toArray().size());
        EXPECT_EQ(Shown(dlg, channels).join(" | ").toStdString(), Expected(cli, mode, db).join(" | ").toStdString())
            << t.prompt.texts().join('\n').toStdString();
        EXPECT_EQ(dlg.bar(1)->isVisibleTo(&dlg), channels == 2);
        // The bar is wide enough for its text ("145.9 dB" on a loud 24-bit file).
        QCoreApplication::processEvents();
        EXPECT_GE(dlg.bar(0)->width(), QFontMetrics(dlg.bar(0)->font()).horizontalAdvance(dlg.bar(0)->Text()) + 5);
        EXPECT_EQ(dlg.label(kIdLeftCaption)->text(), channels == 2 ? "Left Channel" : "Mono Channel");
        // The scale label stands only in the average test on the percent scale.
        EXPECT_EQ(dlg.label(kIdScaleLabel)->isVisibleTo(&dlg), mode == 1 && !db);
        EXPECT_TRUE(dlg.statusProgress()->isVisibleTo(&dlg));
        EXPECT_EQ(dlg.statusProgress()->value(), 100);
      }
    }
  }
  EXPECT_EQ(dlg.windowTitle(), QFileInfo(dlg.session().m_fileName).fileName() + " - Tonvane 1.0");
}

// The finished progress stands with the title back to normal, and goes three seconds later;
// a second test of the same file is answered from the log without reading a sample.
TEST_F(WindowFlowTest, ProgressGoesDownAndTheLogAnswersTheSecondTest) {
  CBrenlowv10Dlg dlg;
  Wire(dlg);
  const QString src = t.Path("Prøve.wav");
  ASSERT_TRUE(QFile::copy(Fixture("sine_16_stereo.wav"), src));
  Open(dlg, src);
  Test(dlg, 1, 0);
  const QStringList first = Shown(dlg, 2);
  EXPECT_EQ(dlg.windowTitle().toStdString(), "Prøve.wav - Tonvane 1.0");
  EXPECT_EQ(dlg.statusText(), "  Test of the volume level is fulfilling");
  QTRY_VERIFY_WITH_TIMEOUT(!dlg.statusProgress()->isVisibleTo(&dlg), 6000);
  EXPECT_EQ(dlg.statusText(), "");

  const auto before = g_sampleBytesRead.load();
  Test(dlg, 1, 0);
  EXPECT_EQ(g_sampleBytesRead.load(), before);
  EXPECT_EQ(Shown(dlg, 2), first);
}

// Test pressed again while waiting for the work file, and while measuring: the test stops,
// nothing is shown or logged, the file stays open and a later test works.
TEST_F(WindowFlowTest, CancelDuringTheWaitAndTheMeasurement) {
  CBrenlowv10Dlg dlg;
  Wire(dlg);
  const QString src = t.Path("long, \"ramp\".wav");
  ASSERT_TRUE(testing_support::WriteFile(src, LongWav(40)));
  Open(dlg, src);
  auto* button = qobject_cast<QPushButton*>(dlg.control(kIdTestButton));
  const auto cancelSoon = [&] { QTimer::singleShot(0, button, [button] { button->click(); }); };

  // The wait: the worker is held busy until the cancel has been seen.
  g_workerBusy = 1;
  cancelSoon();
  Test(dlg, 0, 0);
  g_workerBusy = 0;
  EXPECT_EQ(button->text(), "Test");
  EXPECT_EQ(dlg.bar(0)->Pos(), 0.0f);
  EXPECT_FALSE(g_workPath.isEmpty());

  // The measurement.
  const auto before = g_sampleBytesRead.load();
  cancelSoon();
  Test(dlg, 0, 0);
  EXPECT_LT(g_sampleBytesRead.load() - before, 40ull * 44100 * 4);
  EXPECT_EQ(button->text(), "Test");
  EXPECT_EQ(dlg.bar(0)->Pos(), 0.0f);
  EXPECT_FALSE(dlg.statusProgress()->isVisibleTo(&dlg));
  EXPECT_EQ(dlg.windowTitle(), "long, \"ramp\".wav - Tonvane 1.0");

  // Nothing was logged: the next test reads the samples, and shows them.
  Test(dlg, 0, 0);
  EXPECT_GT(g_sampleBytesRead.load() - before, 40ull * 44100 * 4 - 1);
  EXPECT_GT(dlg.bar(0)->Pos(), 0.0f);
}

// Close lets the file go: the work file is deleted, the display and the list are empty.
TEST_F(WindowFlowTest, CloseDeletesTheWorkFileAndClearsTheWindow) {
  CBrenlowv10Dlg dlg;
  Wire(dlg);
  const QString src = t.Path("Prøve 🤔.flac");
  ASSERT_TRUE(QFile::copy(Fixture("flac_16_2.flac"), src));
  const QByteArray source = testing_support::ReadFile(src);
  Open(dlg, src);
  Test(dlg, 0, 1);
  const QString work = g_workPath;
  ASSERT_TRUE(QFile::exists(work));
  dlg.action(kCmdClose)->setEnabled(true);
  dlg.action(kCmdClose)->trigger();
  EXPECT_FALSE(QFile::exists(work));
  EXPECT_TRUE(g_workPath.isEmpty());
  EXPECT_EQ(dlg.windowTitle(), "Tonvane 1.0");
  EXPECT_EQ(qobject_cast<QComboBox*>(dlg.control(kIdFileCombo))->count(), 0);
  EXPECT_EQ(dlg.label(kIdLeftMax)->text(), "Maximum Level");
  EXPECT_EQ(dlg.bar(0)->Pos(), 0.0f);
  EXPECT_EQ(testing_support::ReadFile(src), source);
}

// The file list: the folder's supported files and the open file by its full path; a choice
// records its neighbours; a vanished file and a refused one leave the list quietly.
TEST_F(WindowFlowTest, FileListOpensItsEntries) {
  CBrenlowv10Dlg dlg;
  Wire(dlg);
  for (const char* name : {"a.wav", "b.wav"}) ASSERT_TRUE(QFile::copy(Fixture("sine_16_mono.wav"), t.Path(name)));
  ASSERT_TRUE(testing_support::WriteFile(t.Path("notes.txt"), "x"));
  Open(dlg, t.Path("a.wav"));
  auto* list = qobject_cast<QComboBox*>(dlg.control(kIdFileCombo));
  QStringList entries;
  for (int i = 0; i < list->count(); ++i) entries << list->itemText(i);
  entries.sort();
  EXPECT_EQ(entries, QStringList({t.Path("a.wav"), "a.wav", "b.wav"}));

  const int b = list->findText("b.wav");
  list->setCurrentIndex(b);
  EXPECT_EQ(dlg.OpenByName(QString()), 1);
  EXPECT_EQ(dlg.session().m_fileName, t.Path("b.wav"));
  EXPECT_EQ(dlg.nextIndex(), b + 1);
  EXPECT_EQ(dlg.previousIndex(), b - 1);
  for (int i = 0; i < 600 && g_workerBusy.load(); ++i) QTest::qWait(10);
  // The open file opened again, as the player's next step does in a folder of one, is open.
  EXPECT_EQ(dlg.OpenByName(t.Path("b.wav")), 1);
  EXPECT_EQ(list->count(), 3);
  for (int i = 0; i < 600 && g_workerBusy.load(); ++i) QTest::qWait(10);

  ASSERT_TRUE(QFile::remove(t.Path("a.wav")));
  list->setCurrentIndex(list->findText("a.wav"));
  EXPECT_EQ(dlg.OpenByName(QString()), 0);
  EXPECT_EQ(list->findText("a.wav"), -1);
  EXPECT_TRUE(t.prompt.requests.empty());
}
