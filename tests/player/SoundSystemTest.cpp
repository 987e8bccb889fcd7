// The sound system over a manual output: levels, pause, mute, seeks, ends, bad files.
#include <QDataStream>
#include <QFile>
#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>
#include <chrono>
#include <thread>

#include "player/Beep.h"
#include "support/TestSupport.h"
#include "player/SoundTestSupport.h"

using namespace player_test;
using testing_support::Fixture;

namespace {

// A 16-bit stereo 44.1 kHz file whose left channel rises evenly from -1 to +1 over its
// length, so each sample's value says where in the file it stands.
QString WriteRamp(const QString& path, int seconds, quint32 rate = 44100) {
  const int frames = 44100 * seconds;
  QByteArray data;
  data.reserve(frames * 4);
  for (int i = 0; i < frames; ++i) {
    const qint16 v = qint16(std::lround(-32767.0 + 65534.0 * i / (frames - 1)));
    for (int c = 0; c < 2; ++c) {
      data.append(char(v & 0xff));
      data.append(char((v >> 8) & 0xff));
    }
  }
  QByteArray file;
  QDataStream s(&file, QIODevice::WriteOnly);
  s.setByteOrder(QDataStream::LittleEndian);
  s.writeRawData("RIFF", 4);
  s << quint32(36 + data.size());
  s.writeRawData("WAVEfmt ", 8);
  s << quint32(16) << quint16(1) << quint16(2) << quint32(rate) << quint32(rate * 4) << quint16(4) << quint16(16);
  s.writeRawData("data", 4);
  s << quint32(data.size());
  file.append(data);
  testing_support::WriteFile(path, file);
  return path;
}

// Where in a ramp of `seconds` the left sample `v` stands, in milliseconds.
double RampMs(float v, int seconds) { return (double(v) + 1.0) / 2.0 * seconds * 1000.0; }

class SoundSystemTest : public ::testing::Test {
 protected:
  void SetUp() override { ASSERT_EQ(sys.initResult, snd::OK); }

  snd::Sound* Open(const QString& path) {
    snd::Sound* sound = nullptr;
    EXPECT_EQ(sys.system->createStream(path, snd::MODE_DEFAULT, nullptr, &sound), snd::OK) << path.toStdString();
    return sound;
  }
  snd::Channel* Play(snd::Sound* sound) {
    snd::Channel* ch = nullptr;
    EXPECT_EQ(sys.system->playSound(snd::CHANNEL_FREE, sound, false, &ch), snd::OK);
    return ch;
  }
  unsigned Position(snd::Channel* ch) {
    unsigned ms = 0;
    ch->getPosition(&ms, snd::TIMEUNIT_MS);
    return ms;
  }

  ManualSystem sys;
  QTemporaryDir dir;
};

// A half-scale 1 kHz tone of every kind comes out at the set volume and pitch, whatever its
// rate or channel count (mono sounds on both sides at its own level).
TEST_F(SoundSystemTest, TonesOfEveryKindPlayAtTheSetVolume) {
  struct Case {
    const char* name;
    float tolerance;  // of the peak, 1 %; Vorbis itself puts a pure tone's peak 1.4 % high
  };
  for (const auto& [name, tolerance] : {Case{"tone_1k.wav", 0.01f}, Case{"tone_1k_mono.wav", 0.01f},
                                        Case{"tone_1k_24.wav", 0.01f}, Case{"tone_1k.flac", 0.01f},
                                        Case{"tone_1k.ogg", 0.02f}, Case{"tone_1k.mp3", 0.01f},
                                        Case{"tone_1k.m4a", 0.01f}}) {
    SCOPED_TRACE(name);
    snd::Sound* sound = Open(Fixture(QStringLiteral("player/") + name));
    ASSERT_NE(sound, nullptr);
    unsigned length = 0;
    sound->getLength(&length, snd::TIMEUNIT_MS);
    EXPECT_NEAR(length, 2000, 60);
    snd::Channel* ch = Play(sound);
    ASSERT_EQ(ch->setVolume(0.6f), snd::OK);
    const std::vector<float> out = sys.Pull(1000);
    for (int c = 0; c < 2; ++c) {
      EXPECT_NEAR(Peak(out, c, kRate / 10), 0.30f, 0.30f * tolerance);
      EXPECT_NEAR(Frequency(out, c), 1000.0, 10.0);
    }
    sound->release();
  }
}

// Pause holds the sound and the position; mute gives zeros while the position runs on.
TEST_F(SoundSystemTest, PauseHoldsAndMuteRunsOn) {
  snd::Channel* ch = Play(Open(Fixture("player/tone_1k.wav")));
  sys.Pull(200);
  EXPECT_NEAR(Position(ch), 200, 1);
  ASSERT_EQ(ch->setPaused(true), snd::OK);
  EXPECT_TRUE(Silent(sys.Pull(300)));
  EXPECT_NEAR(Position(ch), 200, 1);
  bool playing = false, paused = false;
  ch->isPlaying(&playing);
  ch->getPaused(&paused);
  EXPECT_TRUE(playing && paused);  // a paused channel still plays

  ch->setPaused(false);
  ch->setMute(true);
  EXPECT_TRUE(Silent(sys.Pull(300)));
  EXPECT_NEAR(Position(ch), 500, 1);
  ch->setMute(false);
  EXPECT_NEAR(Peak(sys.Pull(100), 0), 0.5f, 0.005f);
}

// A seek lands within one output buffer of its target, forwards and back, and the position
// reads the target at once.
TEST_F(SoundSystemTest, SeekLandsWithinOneBuffer) {
  const int seconds = 10;
  snd::Channel* ch = Play(Open(WriteRamp(dir.filePath("ramp Prøve.wav"), seconds)));
  sys.Pull(100);
  for (unsigned target : {7000u, 2500u, 9000u, 0u, 4321u}) {
    SCOPED_TRACE(target);
    ASSERT_EQ(ch->setPosition(target, snd::TIMEUNIT_MS), snd::OK);
    EXPECT_EQ(Position(ch), target);
    const std::vector<float> out = sys.manual->Pull(kBuffer);
    EXPECT_NEAR(RampMs(out[0], seconds), target, 1000.0 * kBuffer / kRate);
    EXPECT_NEAR(Position(ch), target + 1000.0 * kBuffer / kRate, 1);
  }
  EXPECT_EQ(ch->setPosition(seconds * 1000 + 500, snd::TIMEUNIT_MS), snd::ERR_INVALID_POSITION);
}

// An MP3 seek lands at a fixed offset from the sound heard at that time in straight play:
// the noise after the seek is matched against the noise played from the start.
TEST_F(SoundSystemTest, Mp3SeekHasAFixedOffset) {
  snd::Sound* sound = Open(Fixture("player/noise.mp3"));
  snd::Channel* ch = Play(sound);
  const std::vector<float> straight = sys.Pull(9800);
  const int window = kRate / 10, reach = kRate * 150 / 1000;
  std::vector<int> lags;
  for (unsigned target : {6900u, 2900u, 8100u, 450u}) {
    ch->setPosition(target, snd::TIMEUNIT_MS);
    const std::vector<float> out = sys.Pull(100);
    const int at = int(target) * kRate / 1000;
    int best = 0;
    double bestScore = -1e30;
    for (int lag = -reach; lag <= reach; ++lag) {
      if (at + lag < 0) continue;
      double score = 0;
      for (int i = 0; i < window; ++i) score += double(out[size_t(i) * 2]) * straight[size_t(at + lag + i) * 2];
      if (score > bestScore) bestScore = score, best = lag;
    }
    const double offsetMs = best * 1000.0 / kRate;
    std::printf("MP3 seek to %u ms lands %.2f ms from the straight play\n", target, offsetMs);
    EXPECT_LE(std::fabs(offsetMs), 2.0);
    lags.push_back(best);
  }
  EXPECT_EQ(*std::min_element(lags.begin(), lags.end()), *std::max_element(lags.begin(), lags.end()));
}

// The end of a track is seen: the channel stops playing and its handle goes stale; a new
// play of the same sound starts from the beginning.
TEST_F(SoundSystemTest, EndOfTrackIsSeenAndTheSoundPlaysAgain) {
  snd::Sound* sound = Open(Fixture("player/tone_1k.wav"));
  snd::Channel* ch = Play(sound);
  ch->setPosition(1950, snd::TIMEUNIT_MS);
  sys.Pull(100);
  bool playing = true;
  EXPECT_EQ(ch->isPlaying(&playing), snd::ERR_INVALID_HANDLE);
  EXPECT_FALSE(playing);
  EXPECT_EQ(ch->setVolume(0.5f), snd::ERR_INVALID_HANDLE);

  snd::Channel* again = Play(sound);
  EXPECT_EQ(Position(again), 0u);
  EXPECT_NEAR(Peak(sys.Pull(50), 0, 480), 0.5f, 0.005f);
  // Playing it a third time takes this channel over.
  Play(sound);
  EXPECT_EQ(again->isPlaying(&playing), snd::ERR_CHANNEL_STOLEN);
}

// Two sounds on the one system mix; a work file deleted while it plays goes on playing,
// stopping and playing again included.
TEST_F(SoundSystemTest, TwoChannelsMixAndAVanishedFilePlaysOn) {
  const QString copy = dir.filePath("שלום 🤔.tmp");
  ASSERT_TRUE(QFile::copy(Fixture("player/tone_1k.wav"), copy));
  snd::Sound* a = Open(copy);
  snd::Channel* ca = Play(a);
  snd::System* second = nullptr;
  snd::System_Create(&second);
  EXPECT_EQ(second, sys.system);
  EXPECT_EQ(second->init(2), snd::OK);
  snd::Channel* cb = Play(Open(Fixture("player/tone_1k_mono.wav")));
  ca->setVolume(0.5f);
  cb->setVolume(0.5f);
  EXPECT_NEAR(Peak(sys.Pull(200), 0, 4800), 0.5f, 0.01f);  // in phase: 0.25 + 0.25
  second->release();

  cb->stop();
  ASSERT_TRUE(QFile::remove(copy));
  EXPECT_GT(Peak(sys.Pull(100), 0), 0.2f);
  ca->stop();
  EXPECT_TRUE(Silent(sys.Pull(50)));
  Play(a);
  EXPECT_GT(Peak(sys.Pull(100), 0), 0.4f);
}

// Files that cannot be played are refused with the code the player shows.
TEST_F(SoundSystemTest, BadFilesAreRefused) {
  struct Case {
    const char* name;
    snd::Result expected;
  };
  for (const Case& c : {Case{"player/missing.wav", snd::ERR_FILE_NOTFOUND}, Case{"player/garbage.wav", snd::ERR_FORMAT},
                        Case{"player/cut_header.wav", snd::ERR_FORMAT}, Case{"player/empty.wav", snd::ERR_FILE_EOF}}) {
    SCOPED_TRACE(c.name);
    snd::Sound* sound = reinterpret_cast<snd::Sound*>(1);
    EXPECT_EQ(sys.system->createStream(Fixture(c.name), 0, nullptr, &sound), c.expected);
    EXPECT_EQ(sound, nullptr);
  }
  // A rate no device plays.
  snd::Sound* sound = nullptr;
  EXPECT_EQ(sys.system->createStream(WriteRamp(dir.filePath("fast.wav"), 1, 2000000), 0, nullptr, &sound), snd::ERR_FORMAT);
  // Damaged frames in the middle are skipped; the sound plays to its end.
  snd::Channel* ch = Play(Open(Fixture("player/damaged.flac")));
  sys.Pull(2500);
  bool playing = true;
  ch->isPlaying(&playing);
  EXPECT_FALSE(playing);
  EXPECT_EQ(snd::ErrorString(snd::ERR_FORMAT), "Unsupported file or audio format. ");
  EXPECT_EQ(snd::ErrorString(96), "Unknown error.");
}

// Without a sound device the system says so, and every later call refuses cleanly.
TEST(SoundSystemNoDevice, InitFailsAndStreamsAreRefused) {
  snd::System* system = nullptr;
  snd::System_Create(&system);
  system->setOutputDevice(std::make_unique<snd::ManualOutput>(snd::AudioFormat{}, true));
  EXPECT_EQ(system->init(2), snd::ERR_OUTPUT_INIT);
  snd::Sound* sound = nullptr;
  EXPECT_EQ(system->createStream(Fixture("player/tone_1k.wav"), 0, nullptr, &sound), snd::ERR_OUTPUT_INIT);
  EXPECT_EQ(system->playSound(snd::CHANNEL_FREE, sound, false, nullptr), snd::ERR_INVALID_PARAM);
  system->release();
}

}  // namespace

namespace {

// The SDL output (dummy driver) runs the same mixer on its own clock: the position moves,
// and the end of the sound is seen.
TEST(SoundSystemSdl, DummyDriverPlaysToTheEnd) {
  qputenv("SDL_AUDIODRIVER", "dummy");
  snd::System* system = nullptr;
  snd::System_Create(&system);
  ASSERT_EQ(system->init(2), snd::OK);
  snd::Sound* sound = nullptr;
  ASSERT_EQ(system->createStream(Fixture("player/tone_1k.flac"), 0, nullptr, &sound), snd::OK);
  snd::Channel* ch = nullptr;
  ASSERT_EQ(system->playSound(snd::CHANNEL_FREE, sound, false, &ch), snd::OK);
  ch->setPosition(1800, snd::TIMEUNIT_MS);
  bool playing = true;
  unsigned ms = 0;
  for (int i = 0; i < 300 && playing; ++i) {
    std::this_thread::sleep_for(std::chrono::milliseconds(10));
    ch->getPosition(&ms, snd::TIMEUNIT_MS);
    ch->isPlaying(&playing);
  }
  EXPECT_FALSE(playing);
  EXPECT_EQ(ms, 0u);  // an ended channel reads no position
  system->release();
}

}  // namespace

namespace {

// The end-of-test sound comes from the working folder first, else the one the build made,
// and plays through the shared system.
TEST(Beep, NotifyFromTheWorkingFolderFirst) {
  ManualSystem sys;
  QTemporaryDir dir;
  const QString before = QDir::currentPath();
  ASSERT_TRUE(QDir::setCurrent(dir.path()));
  EXPECT_TRUE(FindNotifySound().endsWith("/notify.wav"));
  EXPECT_NE(FindNotifySound(), dir.filePath("notify.wav"));
  ASSERT_TRUE(QFile::copy(Fixture("player/tone_1k.wav"), dir.filePath("notify.wav")));
  EXPECT_EQ(FindNotifySound(), QFileInfo(dir.filePath("notify.wav")).absoluteFilePath());
  PlayNotify();
  EXPECT_NEAR(Peak(sys.Pull(200), 0), 0.5f, 0.005f);
  ReleaseNotify();
  QDir::setCurrent(before);
}

}  // namespace
