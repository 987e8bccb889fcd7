// The player engine and the play order over a manual output, with the window's timers
// advanced by the test in step with the sound it pulls.
#include <QFile>
#include <map>

#include "app/Globals.h"
#include "player/PlayOrder.h"
#include "player/PlayerEngine.h"
#include "player/SoundTestSupport.h"
#include "support/TestSupport.h"

using namespace player_test;
using testing_support::Fixture;

namespace {

// Timers on a clock the test moves; timer 1 (the window's 100 ms tick) always runs.
class FakeTimers : public IPlayerTimers {
 public:
  void StartTimer(int id, int periodMs, bool singleShot) override { m_timers[id] = {periodMs, singleShot, m_now + periodMs}; }
  void KillTimer(int id) override { m_timers.erase(id); }
  bool Running(int id) const { return m_timers.count(id) != 0; }
  // Fires every timer that falls due within `ms`, in time order.
  void Advance(int ms) {
    const long end = m_now + ms;
    for (;;) {
      int id = -1;
      long due = end + 1;
      for (const auto& [i, t] : m_timers)
        if (t.due < due) id = i, due = t.due;
      if (id < 0 || due > end) break;
      m_now = due;
      Timer& t = m_timers[id];
      if (t.single) m_timers.erase(id);
      else t.due += t.period;
      if (fire) fire(id);
    }
    m_now = end;
  }
  std::function<void(int)> fire;

 private:
  struct Timer {
    int period;
    bool single;
    long due;
  };
  std::map<int, Timer> m_timers;
  long m_now = 0;
};

// The window's file list as plain strings.
class VectorList : public IFileList {
 public:
  int Count() const override { return int(items.size()); }
  int Selected() const override { return sel; }
  QString Text(int i) const override { return items.at(size_t(i)); }
  void Remove(int i) override {
    items.erase(items.begin() + i);
    if (sel >= Count()) sel = Count() - 1;
  }
  void Select(int i) override { sel = i; }
  int FindExact(const QString& t) const override {
    for (int i = 0; i < Count(); ++i)
      if (items[size_t(i)] == t) return i;
    return -1;
  }
  std::vector<QString> items;
  int sel = -1;
};

class PlayerTest : public ::testing::Test {
 protected:
  void SetUp() override {
    ASSERT_EQ(sys.initResult, snd::OK);
    s.m_bits = 16;
    s.m_sourceKind = kKindWav;
    UseFile("player/tone_1k.wav");
    timers.StartTimer(kTimerEnable, 100, false);
    timers.fire = [this](int id) { order.OnTimer(id); };
    engine.onTrackEnd = [this] { order.OnTrackEnd(); };
    order.openSelected = [this] {
      const QString name = list.Text(list.Selected());
      opened.push_back(name);
      if (name.startsWith("bad")) {
        engine.StopAndRestore();
        list.Remove(list.Selected());
        return false;
      }
      engine.StopAndRestore();
      return true;
    };
  }
  void TearDown() override {
    engine.Shutdown();
    g_workPath.clear();
  }
  void UseFile(const char* fixture) { g_workPath = Fixture(fixture); }
  // Plays on for `ms`: the output and the window's timers move together, 10 ms at a time.
  std::vector<float> Run(int ms) {
    std::vector<float> all;
    for (int t = 0; t < ms; t += 10) {
      const std::vector<float> part = sys.Pull(10);
      all.insert(all.end(), part.begin(), part.end());
      timers.Advance(10);
    }
    return all;
  }
  float Volume() {
    float v = -1;
    if (engine.m_fmodChannel) engine.m_fmodChannel->getVolume(&v);
    return v;
  }
  unsigned Position() {
    unsigned ms = 0;
    if (engine.m_fmodChannel) engine.m_fmodChannel->getPosition(&ms, snd::TIMEUNIT_MS);
    return ms;
  }

  ManualSystem sys;
  testing_support::TestSession ts;
  Session& s = *ts.s;
  FakeTimers timers;
  PlayerEngine engine{s, timers};
  VectorList list;
  PlayOrder order{s, engine, list, timers};
  std::vector<QString> opened;
};

// The first Play with the slider untouched plays at 0.1 and sets the slider to 10; one set
// to 50 beforehand plays at 0.5. Either way the volume fades in over ten 30 ms steps.
TEST_F(PlayerTest, FirstPlayFadesInToTheSliderVolume) {
  for (int slider : {-1, 50}) {
    SCOPED_TRACE(slider);
    s.m_savedVolume = -1.0f;
    s.m_savedVolumePos = -1;
    if (slider >= 0) engine.OnVolumeSlider(slider);
    engine.PlayPause();
    const float target = slider < 0 ? 0.1f : 0.5f;
    EXPECT_EQ(engine.View().volumePos, slider < 0 ? 10 : 50);
    EXPECT_FLOAT_EQ(Volume(), 0.01f);
    for (int step = 1; step <= 10; ++step) {
      timers.Advance(30);
      EXPECT_NEAR(Volume(), target * step / 10, 1e-5);
    }
    EXPECT_FALSE(timers.Running(kTimerFadeIn));
    EXPECT_NEAR(Peak(Run(200), 0, 4800), 0.5f * target, 0.005f);
    EXPECT_TRUE(engine.View().pauseFace && engine.View().stopEnabled && engine.View().muteEnabled);
    engine.StopAndRestore();
  }
}

// Pause fades out in ten steps and then holds the sound, the position and the seek bar;
// Resume fades in again from the saved volume.
TEST_F(PlayerTest, PauseFadesOutAndHolds) {
  engine.OnVolumeSlider(80);
  engine.PlayPause();
  Run(500);
  engine.PlayPause();
  EXPECT_FALSE(timers.Running(kTimerPosition));
  EXPECT_FALSE(engine.View().pauseFace);
  for (int step = 1; step <= 10; ++step) {
    timers.Advance(30);
    EXPECT_NEAR(Volume(), 0.8f - 0.08f * step, 1e-5);
  }
  const int seekPos = engine.View().seekPos;
  const unsigned at = Position();
  EXPECT_TRUE(Silent(Run(500)));
  EXPECT_EQ(Position(), at);
  EXPECT_EQ(engine.View().seekPos, seekPos);
  EXPECT_TRUE(engine.View().stopEnabled);
  engine.PlayPause();
  EXPECT_TRUE(engine.View().pauseFace);
  EXPECT_NEAR(Peak(Run(500), 0, 14400), 0.4f, 0.005f);
}

// Mute gives zeros while the position and the seek bar run on; Stop ends the mute, clears
// the position, and the next Play restarts the same sound from 0.
TEST_F(PlayerTest, MuteStopAndRestart) {
  engine.OnVolumeSlider(100);
  engine.PlayPause();
  Run(400);
  engine.ToggleMute();
  EXPECT_TRUE(engine.View().mutedFace);
  const unsigned before = Position();
  EXPECT_TRUE(Silent(Run(500)));
  EXPECT_NEAR(Position(), before + 500, 15);
  EXPECT_EQ(engine.View().position[1], "00");
  EXPECT_EQ(engine.View().position[2].size(), 2);
  EXPECT_EQ(engine.View().seekPos, 9);

  snd::Sound* sound = engine.m_fmodSound;
  engine.Stop();
  EXPECT_FALSE(engine.View().mutedFace || engine.View().stopEnabled || engine.View().pauseFace);
  EXPECT_EQ(engine.View().position[0], QString());
  engine.PlayPause();
  EXPECT_EQ(engine.m_fmodSound, sound);
  EXPECT_EQ(Position(), 0u);
  EXPECT_NEAR(Peak(Run(400), 0, 16000), 0.5f, 0.005f);
}

// The volume keys step the slider by ten within 0..100 and set the channel at once.
TEST_F(PlayerTest, VolumeKeysStepTheSlider) {
  engine.PlayPause();
  Run(400);
  for (int i = 0; i < 12; ++i) engine.VolumeUp();
  EXPECT_EQ(engine.View().volumePos, 100);
  EXPECT_FLOAT_EQ(Volume(), 1.0f);
  engine.VolumeDown();
  engine.VolumeDown();
  EXPECT_EQ(engine.View().volumePos, 80);
  EXPECT_FLOAT_EQ(s.m_savedVolume, 0.8f);
  EXPECT_NEAR(Peak(Run(100), 0), 0.4f, 0.005f);
}

// A track that ends resets the transport: Play face, Stop and Mute off, seek bar at 0,
// position fields empty; without Repeat or Repeat All the player rests.
TEST_F(PlayerTest, EndOfTrackResetsTheTransport) {
  s.m_looping = 0;
  engine.PlayPause();
  Run(300);
  engine.m_fmodChannel->setPosition(1900, snd::TIMEUNIT_MS);
  Run(400);
  const PlayerView& v = engine.View();
  EXPECT_FALSE(v.pauseFace || v.stopEnabled || v.muteEnabled);
  EXPECT_EQ(v.seekPos, 0);
  EXPECT_EQ(v.position[0] + v.position[1] + v.position[2], QString());
  EXPECT_FALSE(timers.Running(kTimerPosition));
  EXPECT_TRUE(Silent(Run(300)));
  EXPECT_TRUE(opened.empty());
}

// Repeat plays the same sound again; Repeat All opens the next entry and plays it, even
// though the channel had ended; Repeat wins over Repeat All.
TEST_F(PlayerTest, RepeatAndRepeatAllAtTheEnd) {
  list.items = {"a.wav", "b.wav", "/music/a.wav"};
  list.sel = 0;
  s.m_repeat = 1;
  s.m_looping = 1;
  engine.PlayPause();
  engine.m_fmodChannel->setPosition(1950, snd::TIMEUNIT_MS);
  Run(400);
  EXPECT_TRUE(engine.View().pauseFace);
  EXPECT_TRUE(opened.empty());
  EXPECT_GT(Peak(Run(100), 0), 0.01f);

  s.m_repeat = 0;
  engine.m_fmodChannel->setPosition(1950, snd::TIMEUNIT_MS);
  Run(400);
  EXPECT_EQ(opened, std::vector<QString>{"b.wav"});
  EXPECT_TRUE(engine.View().pauseFace);
  EXPECT_GT(Peak(Run(100), 0), 0.01f);
}

// Bad files: a file that decodes to nothing shows the sound system's message and leaves the
// transport at rest; with no sound device the message comes once a run.
TEST_F(PlayerTest, UnplayableFilesAreReported) {
  UseFile("player/empty.wav");
  engine.PlayPause();
  ASSERT_EQ(ts.prompt.requests.size(), 1u);
  EXPECT_EQ(ts.prompt.requests[0].text, "Sorry, but The file ends before any sound could be read from it. ");
  EXPECT_FALSE(engine.View().pauseFace || engine.View().stopEnabled);
  EXPECT_TRUE(s.m_restoreTempName.isEmpty());
  EXPECT_EQ(engine.m_playGate, 1);

  UseFile("player/tone_1k.wav");
  s.m_bits = 0;  // no format known: nothing is played, nothing said
  engine.PlayPause();
  EXPECT_EQ(engine.m_fmodChannel, nullptr);
  EXPECT_EQ(ts.prompt.requests.size(), 1u);
  EXPECT_EQ(s.m_canPlay, 1);
}

TEST(PlayerNoDevice, TheDeviceErrorIsShownOncePerRun) {
  testing_support::TestSession ts;
  snd::System* system = nullptr;
  snd::System_Create(&system);
  system->setOutputDevice(std::make_unique<snd::ManualOutput>(snd::AudioFormat{}, true));
  FakeTimers timers;
  PlayerEngine engine(*ts.s, timers);
  g_workPath = Fixture("player/tone_1k.wav");
  engine.PlayPause();
  engine.PlayPause();
  ASSERT_EQ(ts.prompt.requests.size(), 1u);
  EXPECT_EQ(ts.prompt.requests[0].text, "Sorry, but Error initializing the sound output device. ");
  EXPECT_TRUE(ts.prompt.requests[0].dontShowBox);
  EXPECT_EQ(engine.View().pauseFace, false);
  engine.Shutdown();
  system->release();
  g_workPath.clear();
}

// Next and Previous walk the list: the opened file's full-path entry is dropped and the walk
// goes on from its bare name, wrapping at both ends; work-file names are dropped as met.
TEST_F(PlayerTest, NextAndPreviousWalkTheList) {
  struct Case {
    std::vector<QString> items;
    int sel;
    std::vector<bool> steps;  // true Next, false Previous
    std::vector<QString> expected;
  };
  const Case cases[] = {
      {{"a.wav", "b.wav", "c.wav", "/m/b.wav"}, 3, {true, true, true, false, false}, {"c.wav", "a.wav", "b.wav", "a.wav", "c.wav"}},
      {{"a.wav", "b.wav", "c.wav", "/m/a.wav"}, 3, {false}, {"c.wav"}},
      {{"only.wav", "/m/only.wav"}, 1, {true, true}, {"only.wav", "only.wav"}},
      {{"a.wav", "temp.wav", "b.wav", "/m/a.wav"}, 3, {true, false}, {"b.wav", "a.wav"}},
  };
  for (const Case& c : cases) {
    list.items = c.items;
    list.sel = c.sel;
    opened.clear();
    for (bool next : c.steps) EXPECT_TRUE(next ? order.NextTrack() : order.PreviousTrack());
    EXPECT_EQ(opened, c.expected);
    EXPECT_EQ(s.m_navigating, 0);
    EXPECT_EQ(list.FindExact("temp.wav"), -1);
  }
}

// Files that fail to open are dropped and the step goes on to the following one; when none
// is left the step ends. A step while nothing plays does not start playing (unless Repeat
// All carries it over a failed file); one while a file plays does, 100 ms later.
TEST_F(PlayerTest, FailedFilesAreSkipped) {
  s.m_looping = 0;
  list.items = {"a.wav", "bad1.wav", "bad2.wav", "c.wav", "/m/a.wav"};
  list.sel = 0;
  EXPECT_TRUE(order.NextTrack());
  EXPECT_EQ(opened, (std::vector<QString>{"bad1.wav", "bad2.wav", "c.wav"}));
  EXPECT_EQ(list.items, (std::vector<QString>{"a.wav", "c.wav", "/m/a.wav"}));
  EXPECT_FALSE(timers.Running(kTimerPlayNew));

  engine.PlayPause();
  Run(200);
  EXPECT_TRUE(order.NextTrack());
  EXPECT_TRUE(timers.Running(kTimerPlayNew));
  Run(200);
  EXPECT_TRUE(engine.View().pauseFace);

  std::vector<QString> bad;
  for (int i = 0; i < 2000; ++i) bad.push_back(QStringLiteral("bad%1.wav").arg(i));
  list.items = bad;
  list.sel = 0;
  opened.clear();
  EXPECT_FALSE(order.NextTrack());
  EXPECT_TRUE(list.items.empty());
  EXPECT_EQ(opened.size(), 2000u) << opened.back().toStdString();
}

// Shuffle draws every entry once per pass of its bag, then refills it; two draws in the same
// second from bags of the same size take the same place.
TEST_F(PlayerTest, ShuffleBagDrawsEachEntryOncePerPass) {
  g_shuffleBag.clear();
  s.m_shuffle = 1;
  std::time_t now = 1000;
  order.clock = [&now] { return now++; };
  list.items = {"a.wav", "b.wav", "c.wav", "d.wav", "e.wav", "/m/a.wav"};
  list.sel = 5;
  for (int i = 0; i < 5; ++i) ASSERT_TRUE(order.NextTrack());
  std::set<QString> distinct(opened.begin(), opened.end());
  EXPECT_EQ(distinct.size(), 5u);  // the full path went when the bag was filled
  EXPECT_EQ(list.Count(), 5);
  EXPECT_TRUE(g_shuffleBag.empty());
  ASSERT_TRUE(order.PreviousTrack());
  EXPECT_EQ(g_shuffleBag.size(), 4u);

  std::set<int> a = {0, 1, 2, 3}, b = a;
  now = 5000;
  g_shuffleBag = a;
  list.sel = 0;
  order.clock = [] { return std::time_t(5000); };
  order.NextTrack();
  const QString first = opened.back();
  g_shuffleBag = b;
  order.NextTrack();
  EXPECT_EQ(opened.back(), first);
  g_shuffleBag.clear();
}

}  // namespace
