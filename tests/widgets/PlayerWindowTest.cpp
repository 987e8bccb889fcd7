// The player in the window: the seek bar under the mouse, the transport under the keys, what
// assistive technology reads, and the real program's sound through SDL's disk driver.
#include <QAccessible>
#include <QAccessibleValueInterface>
#include <QAction>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QProcess>
#include <QTest>
#include <QToolButton>
#include <gtest/gtest.h>
#include <csignal>

#include "app/Globals.h"
#include "app/widgets/MainDialog.h"
#include "app/widgets/MainWindowPlayer.h"
#include "controls/SeekBar.h"
#include "controls/VolumeSlider.h"
#include "formats/WorkFile.h"
#include "player/SoundTestSupport.h"
#include "support/TestSupport.h"
#include "widgets/WidgetTestSupport.h"

using namespace player_test;
using testing_support::Fixture;

namespace {

// A host for a lone seek bar: the engine's side of it, over a manual output.
struct BarHost : ISeekHost {
  snd::Channel* channel = nullptr;
  int ticking = 1, enabled = 1, pos = 0, stops = 0;
  snd::Channel* SeekChannel() override { return channel; }
  void SetSeekTicking(int t) override { ticking = t; }
  void SetSeekEnabled(int e) override { enabled = e; }
  void SetSeekPosition(int p) override { pos = p; }
  bool StopEnabled() override { return true; }
  void StopFromSeekBar() override { ++stops; }
};

class SeekBarTest : public ::testing::Test {
 protected:
  void SetUp() override {
    widget_support::App();
    bar.SetHost(&host);
    bar.resize(26 * 3 + 200, 18);  // 200 pixels of channel for 20 s: one pixel a unit
    bar.setRange(0, 200);
    bar.show();
  }
  void Play() {
    snd::Sound* sound = nullptr;
    ASSERT_EQ(sys.system->createStream(Fixture("player/noise.mp3"), 0, nullptr, &sound), snd::OK);
    sys.system->playSound(snd::CHANNEL_FREE, sound, false, &host.channel);
  }
  unsigned Position() {
    unsigned ms = 0;
    host.channel->getPosition(&ms, snd::TIMEUNIT_MS);
    return ms;
  }
  QApplication& app = widget_support::App();
  ManualSystem sys;
  BarHost host;
  SeekBar bar;
};

// A click on the channel while playing pauses at the press, moves the sound at the release
// and plays on; the thumb snaps to the position.
TEST_F(SeekBarTest, ClickWhilePlayingMovesTheSound) {
  Play();
  const QPoint at(26 + 60 + 13, 9);  // the thumb's middle at unit 60
  QTest::mousePress(&bar, Qt::LeftButton, {}, at);
  bool paused = false;
  host.channel->getPaused(&paused);
  EXPECT_TRUE(paused);
  EXPECT_EQ(host.ticking, 0);
  QTest::mouseRelease(&bar, Qt::LeftButton, {}, at);
  EXPECT_EQ(bar.value(), 60);
  EXPECT_EQ(host.pos, 60);
  EXPECT_EQ(Position(), 6000u);
  host.channel->getPaused(&paused);
  EXPECT_FALSE(paused);
  EXPECT_EQ(host.ticking, 1);
  EXPECT_EQ(bar.ThumbX(), 26 + 60);
}

// A click while paused moves the position and leaves the player paused; without a channel
// the click moves the thumb only.
TEST_F(SeekBarTest, ClickWhilePausedOrWithoutAChannel) {
  QTest::mouseClick(&bar, Qt::LeftButton, {}, QPoint(26 + 40 + 13, 9));
  EXPECT_EQ(bar.value(), 40);
  EXPECT_EQ(host.pos, 0);
  Play();
  host.channel->setPaused(true);
  QTest::mouseClick(&bar, Qt::LeftButton, {}, QPoint(26 + 100 + 13, 9));
  bool paused = false;
  host.channel->getPaused(&paused);
  EXPECT_TRUE(paused);
  EXPECT_EQ(Position(), 10000u);
}

// The right arrow steps 500 ms every 100 ms after its release, until the pointer moves over
// the bar; the left arrow below five units stops the player.
TEST_F(SeekBarTest, ArrowsStepUntilThePointerMoves) {
  Play();
  bar.setValue(50);
  const QPoint right(bar.width() - 13, 9);
  QTest::mouseClick(&bar, Qt::LeftButton, {}, right);
  EXPECT_EQ(host.enabled, 0);
  QTest::qWait(350);
  EXPECT_GE(bar.value(), 60);
  QTest::mouseMove(&bar, QPoint(100, 9));
  QMouseEvent move(QEvent::MouseMove, QPointF(101, 9), bar.mapToGlobal(QPointF(101, 9)), Qt::NoButton, Qt::NoButton, {});
  QApplication::sendEvent(&bar, &move);
  EXPECT_EQ(host.enabled, 1);
  const int stopped = bar.value();
  QTest::qWait(250);
  EXPECT_EQ(bar.value(), stopped);
  EXPECT_EQ(Position(), unsigned(stopped) * 100);

  bar.setValue(3);
  QTest::mouseClick(&bar, Qt::LeftButton, {}, QPoint(13, 9));
  QTest::qWait(150);
  EXPECT_EQ(bar.value(), 0);
  EXPECT_GE(host.stops, 1);
}

// With range 0 nothing is loaded: a click moves nothing.
TEST_F(SeekBarTest, EmptyRangeHasNoThumb) {
  bar.setRange(0, 0);
  QTest::mouseClick(&bar, Qt::LeftButton, {}, QPoint(120, 9));
  EXPECT_EQ(bar.value(), 0);
}

// The volume slider's colours follow the design's shading rule.
TEST(VolumeSliderColours, LightenWrapsAboveAndClampsBelow) {
  EXPECT_EQ(Lighten(0x61b314, 300), 0xacfe5fu);
  EXPECT_EQ(Lighten(0x61b314, -900), 0u);
  EXPECT_EQ(Lighten(0x61b314, 450), 0xd12384u);
  EXPECT_EQ(Lighten(0x1ab1ff, 1000), 0x14abf9u);
}

class PlayerWindowTest : public ::testing::Test {
 protected:
  void SetUp() override {
    widget_support::App();
    qputenv("SDL_AUDIODRIVER", "dummy");
    for (const char* name : {"a one.wav", "b, \"two\".flac", "c שלום.wav"})
      QFile::copy(Fixture(QString("player/") + (QString(name).endsWith(".flac") ? "tone_1k.flac" : "tone_1k.wav")),
                  folder() + "/" + name);
  }
  QString folder() {
    QDir().mkpath(t.dir.filePath("Prøve 🤔"));
    return t.dir.filePath("Prøve 🤔");
  }
  void Open(CBrenlowv10Dlg& dlg, const QString& name) {
    dlg.OpenByName(folder() + "/" + name);
    ASSERT_FALSE(g_workPath.isEmpty());
    while (g_workerBusy.load()) QTest::qWait(10);
    QTest::qWait(150);  // a tick of the enabling rules
  }
  void Key(CBrenlowv10Dlg& dlg, const QKeySequence& key) {
    QTest::keySequence(&dlg, key);
    QTest::qWait(50);
  }
  static double Value(QWidget* w) {
    QAccessibleInterface* a = QAccessible::queryAccessibleInterface(w);
    return a && a->valueInterface() ? a->valueInterface()->currentValue().toDouble() : -1;
  }
  testing_support::TestSession t;
};

// The keys of the command table drive the player; position and volume are readable as
// values of sliders, the transport buttons by their names.
TEST_F(PlayerWindowTest, KeysDriveThePlayerAndValuesAreReadable) {
  CBrenlowv10Dlg dlg;
  MainWindowPlayer player(&dlg);
  dlg.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&dlg));
  Open(dlg, "a one.wav");
  Key(dlg, QKeySequence("Ctrl+U"));
  PlayerEngine& e = player.engine();
  ASSERT_NE(e.m_fmodChannel, nullptr);
  EXPECT_TRUE(e.View().pauseFace);
  QAccessibleInterface* play = QAccessible::queryAccessibleInterface(dlg.control(kIdPlay));
  EXPECT_EQ(play->text(QAccessible::Name), "Pause");
  EXPECT_EQ(Value(player.volumeSlider()), 10);
  EXPECT_EQ(QAccessible::queryAccessibleInterface(player.seekBar())->text(QAccessible::Name), "Seek");
  QTest::qWait(450);
  EXPECT_GE(Value(player.seekBar()), 2);

  Key(dlg, QKeySequence("F10"));
  EXPECT_EQ(Value(player.volumeSlider()), 20);
  Key(dlg, QKeySequence("F8"));
  EXPECT_EQ(e.m_muted, 1);
  EXPECT_TRUE(qobject_cast<QToolButton*>(dlg.control(kIdMute))->isChecked());
  Key(dlg, QKeySequence("Ctrl+T"));
  EXPECT_EQ(e.m_fmodChannel, nullptr);
  EXPECT_EQ(e.m_muted, 0);
  EXPECT_EQ(play->text(QAccessible::Name), "Play");
  EXPECT_EQ(dlg.findChild<QLabel*>("posSeconds")->text(), QString());

  // Next while playing opens the next file and plays it; the work file plays where it is.
  Key(dlg, QKeySequence("Ctrl+U"));
  dlg.action(kCmdNext)->trigger();
  QTest::qWait(300);
  EXPECT_FALSE(dlg.session().m_fileName.endsWith("a one.wav"));
  EXPECT_NE(e.m_fmodChannel, nullptr);
  EXPECT_EQ(dlg.session().m_restoreTempName, g_workPath);
  EXPECT_FALSE(QFile::exists(folder() + "/temp.wav"));
  dlg.action(kCmdPrevious)->trigger();
  QTest::qWait(50);
  EXPECT_TRUE(dlg.session().m_fileName.endsWith("a one.wav") || dlg.session().m_fileName.endsWith("c שלום.wav"));
  player.engine().StopAndRestore();
}

// The real program plays a file named on its command line through SDL's disk driver: the
// captured sound is the file's 1 kHz at the first play's volume, and SIGTERM ends it as Exit
// does, taking the work file with it.
TEST_F(PlayerWindowTest, TheProgramPlaysToTheDiskDriver) {
  const QString raw = t.dir.filePath("out.raw");
  QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
  env.insert("XDG_RUNTIME_DIR", t.dir.path());
  env.insert("XDG_CONFIG_HOME", t.dir.path() + "/config");
  env.insert("QT_QPA_PLATFORM", "offscreen");
  env.insert("SDL_AUDIODRIVER", "disk");
  env.insert("SDL_DISKAUDIOFILE", raw);
  QProcess program;
  program.setProcessEnvironment(env);
  program.start(TONVANE_GUI_BIN, {folder() + "/c שלום.wav"});
  ASSERT_TRUE(program.waitForStarted());
  // Half a second to open, then the fade-in; two seconds of sound are plenty.
  for (int i = 0; i < 100 && QFileInfo(raw).size() < 48000 * 8 * 2; ++i) QTest::qWait(50);
  program.terminate();
  EXPECT_TRUE(program.waitForFinished(5000));
  EXPECT_EQ(program.exitStatus(), QProcess::NormalExit);
  EXPECT_FALSE(QFile::exists(folder() + "/c שלום.tmp"));
  QFile f(raw);
  ASSERT_TRUE(f.open(QIODevice::ReadOnly));
  const QByteArray bytes = f.readAll();
  std::vector<float> frames(size_t(bytes.size()) / sizeof(float));
  std::memcpy(frames.data(), bytes.constData(), frames.size() * sizeof(float));
  // Past the fade-in (300 ms after the first sound).
  size_t first = 0;
  while (first < frames.size() && frames[first] == 0.0f) ++first;
  const size_t from = first / 2 + kRate * 4 / 10;
  ASSERT_GT(frames.size() / 2, from + kRate / 2);
  std::vector<float> tail(frames.begin() + long(from * 2), frames.begin() + long((from + kRate / 2) * 2));
  for (int c = 0; c < 2; ++c) {
    EXPECT_NEAR(Peak(tail, c), 0.05f, 0.0005f);  // 0.5 at the first play's volume of 0.1
    EXPECT_NEAR(Frequency(tail, c), 1000.0, 5.0);
  }
}

}  // namespace
