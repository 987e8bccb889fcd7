#include <QAbstractSpinBox>
#include <QAccessible>
#include <QAccessibleValueInterface>
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
#include "app/widgets/DataBaseDialog.h"
#include "app/widgets/MainDialog.h"
#include "app/widgets/ShellMenus.h"
#include "controls/LevelBar.h"
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

// Every command of the menus and the tool bar reaches a handler: an item left unwired
// would show, enable and do nothing.
TEST_F(MainDialogTest, EveryCommandIsWired) {
  CBrenlowv10Dlg dlg;
  // The menus' own connections do not count: only the window's, its shell menus' and the
  // Help item's (which the tool bar's Help triggers).
  QObject* const handlers[] = {&dlg, dlg.findChild<ShellMenus*>(), dlg.action(kCmdHelp)};
  auto wired = [&](QAction* a) {
    bool any = false;
    for (QObject* h : handlers) any = QObject::disconnect(a, &QAction::triggered, h, nullptr) || any;
    return any;
  };
  for (int id : {kCmdOpen, kCmdClose, kCmdExit, kCmdTest, kCmdBatch, kCmdPlayPause, kCmdStop, kCmdVolumeUp,
                 kCmdVolumeDown, kCmdMute, kCmdPrevious, kCmdNext, kCmdShuffle, kCmdRepeat, kCmdRepeatAll,
                 kCmdAlwaysOnTop, kCmdBeep, kCmdShowPercent, kCmdShowDb, kCmdUseDatabase, kCmdClearDatabase,
                 kCmdDatabase, kCmdHelp, kCmdHomepage, kCmdAbout, kToolOpen, kToolBatch, kToolHelp, kToolExit})
    EXPECT_TRUE(wired(dlg.action(id))) << id;
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

// A screen reader toggles a radio instead of clicking it; the test mode follows either way.
TEST_F(MainDialogTest, RadiosFollowAssistiveTechnology) {
  CBrenlowv10Dlg dlg;
  dlg.show();
  for (int mode : {1, 0}) {
    QAccessibleInterface* radio = QAccessible::queryAccessibleInterface(dlg.control(mode ? kIdAverageRadio : kIdPeakRadio));
    radio->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
    EXPECT_EQ(dlg.session().m_testMode, mode);
    EXPECT_EQ(dlg.label(kIdLeftMax)->isVisibleTo(&dlg), mode == 1);
  }
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

// Screen readers find a name on every control a person can reach, and the level bars tell
// their value and the text drawn on them.
TEST_F(MainDialogTest, EveryControlHasAnAccessibleName) {
  CBrenlowv10Dlg dlg;
  dlg.show();
  CDataBase db(dlg.session(), &dlg);
  int checked = 0;
  for (QWidget* top : {static_cast<QWidget*>(&dlg), static_cast<QWidget*>(&db)}) {
    for (QWidget* w : top->findChildren<QWidget*>()) {
      const bool interactive = qobject_cast<QAbstractButton*>(w) || qobject_cast<QComboBox*>(w) ||
                               qobject_cast<QAbstractSlider*>(w) || qobject_cast<QAbstractSpinBox*>(w) ||
                               qobject_cast<LevelBar*>(w);
      if (!interactive || w->inherits("QMenu")) continue;
      QAccessibleInterface* a = QAccessible::queryAccessibleInterface(w);
      ASSERT_NE(a, nullptr);
      EXPECT_FALSE(a->text(QAccessible::Name).trimmed().isEmpty())
          << w->metaObject()->className() << " " << w->objectName().toStdString();
      ++checked;
    }
  }
  EXPECT_GT(checked, 20);

  dlg.SetShowDb(1);
  dlg.bar(0)->SetRange(0, 120);
  dlg.bar(0)->SetPos(81.24f);
  QAccessibleInterface* bar = QAccessible::queryAccessibleInterface(dlg.bar(0));
  EXPECT_EQ(bar->text(QAccessible::Name), "Left Channel");
  EXPECT_EQ(bar->text(QAccessible::Value), "81.2 dB");
  ASSERT_NE(bar->valueInterface(), nullptr);
  EXPECT_NEAR(bar->valueInterface()->currentValue().toDouble(), 81.24, 1e-4);
  EXPECT_EQ(bar->valueInterface()->maximumValue().toInt(), 120);
}

// The bar clamps its position to the range, and its tied text is drawn only where the fill
// holds it.
TEST_F(MainDialogTest, LevelBarClampsAndTiesItsText) {
  LevelBar bar;
  bar.resize(48, 200);
  bar.SetRange(100, 0);  // a reversed pair is swapped
  EXPECT_EQ(bar.Upper(), 100);
  bar.SetPos(130);
  EXPECT_EQ(bar.Text(), "100.0%");
  bar.SetPos(-5);
  EXPECT_EQ(bar.Text(), "0.0%");
  bar.SetPos(2);
  bar.SetTiedText(true);
  EXPECT_FALSE(bar.TextDrawn());
  bar.SetTiedText(false);
  EXPECT_TRUE(bar.TextDrawn());
  bar.SetPos(60);
  bar.SetTiedText(true);
  EXPECT_TRUE(bar.TextDrawn());
}

// Alt+P reaches Beep when finished, which stores the setting; no menu takes the key.
TEST_F(MainDialogTest, AltPTogglesBeep) {
  CBrenlowv10Dlg dlg;
  dlg.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&dlg));
  dlg.activateWindow();
  QTest::keyClick(&dlg, Qt::Key_P, Qt::AltModifier);
  EXPECT_TRUE(dlg.action(kCmdBeep)->isChecked());
  EXPECT_EQ(Settings::Beep(), 1);
}
