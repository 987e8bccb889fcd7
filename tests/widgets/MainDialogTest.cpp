#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QFile>
#include <QProcess>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QTest>
#include <QToolBar>
#include <gtest/gtest.h>

#include "app/Globals.h"
#include "app/Settings.h"
#include "app/SingleInstance.h"
#include "app/widgets/MainDialog.h"
#include "support/TestSupport.h"
#include "widgets/WidgetTestSupport.h"

namespace {

class MainDialogTest : public ::testing::Test {
 protected:
  void SetUp() override { widget_support::App(); }
  testing_support::TestSession t;  // settings in a private folder
};

}  // namespace

TEST_F(MainDialogTest, TitleMenusAndToolBar) {
  CBrenlowv10Dlg dlg;
  EXPECT_EQ(dlg.windowTitle(), "Tonvane 1.0");
  struct Cmd {
    int id;
    const char* text;
    const char* key;
  };
  const Cmd cmds[] = {{kCmdOpen, "&Open...", "Ctrl+O"},
                      {kCmdClose, "&Close", "Ctrl+W"},
                      {kCmdExit, "&Exit", "Ctrl+X"},
                      {kCmdTest, "&Test", "Ctrl+L"},
                      {kCmdBatch, "&Batch Processor...", "Ctrl+P"},
                      {kCmdMute, "Mute", "F8"},
                      {kCmdRepeatAll, "R&epeat All", "L"},
                      {kCmdBeep, "&Beep when finished", "Alt+P"},
                      {kCmdHelp, "Help &Tonvane", "F1"},
                      {kCmdDatabase, "&Database...", "Alt+D"}};
  for (const Cmd& c : cmds) {
    QAction* a = dlg.action(c.id);
    ASSERT_NE(a, nullptr) << c.id;
    EXPECT_EQ(a->text(), c.text);
    EXPECT_EQ(a->shortcut(), QKeySequence(c.key)) << c.text;
  }
  EXPECT_EQ(dlg.action(757)->toolTip(), "Open (Ctrl+O)");
  EXPECT_EQ(dlg.action(309)->toolTip(), "Batch Processor (Ctrl+P)");
  EXPECT_EQ(dlg.action(756)->toolTip(), "Help (F1)");
  EXPECT_EQ(dlg.action(304)->toolTip(), "Exit (Ctrl+X)");
}

TEST_F(MainDialogTest, AreasFromTopToBottom) {
  CBrenlowv10Dlg dlg;
  dlg.resize(760, 600);
  dlg.show();
  QApplication::processEvents();
  auto* test = dlg.findChild<QGroupBox*>("testGroup");
  auto* player = dlg.findChild<QGroupBox*>("playerGroup");
  auto* combo = dlg.findChild<QComboBox*>("fileCombo");
  ASSERT_TRUE(test && player && combo);
  EXPECT_EQ(test->title(), "Test");
  EXPECT_EQ(player->title(), "Player");
  auto y = [&](QWidget* w) { return w->mapTo(&dlg, QPoint(0, 0)).y(); };
  EXPECT_LT(y(combo), y(test));
  EXPECT_LT(y(test), y(player));
  EXPECT_EQ(dlg.findChild<QLabel*>("propertyHeader")->text(), " Property");
  EXPECT_EQ(dlg.findChild<QLabel*>("property1")->text(), " Bits on Readout");
  EXPECT_EQ(dlg.findChild<QLabel*>("property5")->text(), " Size");
  EXPECT_EQ(dlg.findChild<QRadioButton*>("peakRadio")->text(), "Test Peak Level");
  EXPECT_EQ(dlg.findChild<QRadioButton*>("averageRadio")->text(), "Test Average Level");
  // Seven transport buttons, disabled until a file plays; the volume slider spans 0 to 100.
  for (int id : {kIdPlay, kIdStop, kIdShuffle, kIdRepeat, kIdMute, kIdPrevious, kIdNext}) {
    ASSERT_NE(dlg.control(id), nullptr);
    EXPECT_FALSE(dlg.control(id)->isEnabled());
  }
  auto* volume = qobject_cast<QSlider*>(dlg.control(kIdVolume));
  ASSERT_NE(volume, nullptr);
  EXPECT_EQ(volume->minimum(), 0);
  EXPECT_EQ(volume->maximum(), 100);
  EXPECT_EQ(dlg.findChild<QLabel*>("mark50")->text(), "50");
}

TEST_F(MainDialogTest, TimerOneAppliesTheEnablingRules) {
  CBrenlowv10Dlg dlg;
  dlg.show();
  g_workerBusy = 1;
  // The rules run on the next tick of timer 1 (100 ms); a loaded machine may be slower.
  const int ticks = dlg.timerTicks();
  for (int i = 0; i < 100 && dlg.timerTicks() < ticks + 2; ++i) QTest::qWait(50);
  EXPECT_GE(dlg.timerTicks(), ticks + 2);
  EXPECT_FALSE(dlg.control(kIdFileCombo)->isEnabled());
  EXPECT_FALSE(dlg.action(757)->isEnabled());
  EXPECT_FALSE(dlg.action(309)->isEnabled());
  EXPECT_EQ(dlg.session().m_statusText, "  Copying of the file is fulfilling");
  g_workerBusy = 0;
  const int ticks2 = dlg.timerTicks();
  for (int i = 0; i < 100 && dlg.timerTicks() < ticks2 + 2; ++i) QTest::qWait(50);
  EXPECT_TRUE(dlg.control(kIdFileCombo)->isEnabled());
  EXPECT_TRUE(dlg.action(757)->isEnabled());
  EXPECT_TRUE(dlg.action(309)->isEnabled());
  EXPECT_EQ(dlg.session().m_statusText, "");
}

TEST_F(MainDialogTest, EscapeKeepsTheWindowOpen) {
  CBrenlowv10Dlg dlg;
  dlg.show();
  QTest::keyClick(&dlg, Qt::Key_Escape);
  QApplication::processEvents();
  EXPECT_TRUE(dlg.isVisible());
}

TEST_F(MainDialogTest, MenuChecksFollowTheSettings) {
  Settings::SetInt("Looping", 0);
  Settings::SetInt("ShowDb", 7);
  CBrenlowv10Dlg dlg;
  EXPECT_FALSE(dlg.action(kCmdRepeatAll)->isChecked());
  EXPECT_TRUE(dlg.action(kCmdShowDb)->isChecked());
  EXPECT_FALSE(dlg.action(kCmdShowPercent)->isChecked());
  EXPECT_FALSE(dlg.action(kCmdBeep)->isChecked());
}

TEST_F(MainDialogTest, SecondInstanceIsRefused) {
  qputenv("XDG_RUNTIME_DIR", t.dir.path().toUtf8());
  SingleInstance first;
  ASSERT_TRUE(first.Acquire());
  SingleInstance second;
  EXPECT_FALSE(second.Acquire());
}

TEST_F(MainDialogTest, SecondProcessPrintsTheMessageAndEnds) {
  QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
  env.insert("XDG_RUNTIME_DIR", t.dir.path());
  env.insert("XDG_CONFIG_HOME", t.dir.path() + "/config");
  env.insert("QT_QPA_PLATFORM", "offscreen");
  QProcess first;
  first.setProcessEnvironment(env);
  first.start(TONVANE_GUI_BIN, {});
  ASSERT_TRUE(first.waitForStarted());
  // Wait until the first copy holds the lock.
  for (int i = 0; i < 100 && !QFile::exists(t.dir.path() + "/FA539CC7-0467-11d3-A180-07803A37623E.lock"); ++i)
    QTest::qWait(50);
  QProcess second;
  second.setProcessEnvironment(env);
  second.start(TONVANE_GUI_BIN, {});
  // The second copy says why on stderr and in a message box that a person closes; it
  // never builds the main window.
  const QString text =
      "Sorry, but the copy of this program is already launched and it is fulfilling. "
      "Therefore the launch of this copy program will be stopped.";
  QString err;
  for (int i = 0; i < 200 && !err.contains(text); ++i) {
    second.waitForReadyRead(100);
    err += QString::fromUtf8(second.readAllStandardError());
  }
  EXPECT_TRUE(err.contains(text)) << err.toStdString();
  second.kill();
  second.waitForFinished();
  EXPECT_EQ(first.state(), QProcess::Running);
  first.kill();
  first.waitForFinished();
}
