#include <gtest/gtest.h>

#include <QFile>
#include <QMap>
#include <QTextStream>
#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

#include "app/Globals.h"
#include "app/HeadlessTest.h"
#include "level/GainEngine.h"
#include "level/ReplayGain.h"
#include "log/TestLog.h"
#include "support/TestSupport.h"

using testing_support::Fixture;
using testing_support::TestSession;
using testing_support::WriteFile;

namespace {

// The reference analysis prints gains rounded to 0.01 dB.
constexpr double kReferenceTolerance = 0.01 + 0.005;
const double kDbPerBit = 20.0 * std::log10(2.0);

struct Figures {
  int rc = -1;
  float gainLeft = 0, gainRight = 0, noClipLeft = 0, noClipRight = 0;
};

// The figures of the reference analysis written beside the fixtures.
QMap<QString, std::pair<double, double>> References() {
  QMap<QString, std::pair<double, double>> refs;
  QFile f(Fixture("gain_ref.txt"));
  if (!f.open(QIODevice::ReadOnly)) return refs;
  QTextStream in(&f);
  while (!in.atEnd()) {
    const QStringList parts = in.readLine().split(' ', Qt::SkipEmptyParts);
    if (parts.size() == 3) refs[parts[0]] = {parts[1].toDouble(), parts[2].toDouble()};
  }
  return refs;
}

Figures Rms(Session& s, const QString& path, int channels, int bits, int formatTag = 1, int count = 0,
            IBatchProgressTarget* batch = nullptr, int batchFlag = 0) {
  Figures f;
  f.rc = RMS(path, 0, s, batch, channels, bits, f.gainLeft, f.gainRight, f.noClipLeft, f.noClipRight, count,
             formatTag, batchFlag);
  return f;
}

Figures RadioGain(Session& s, const QString& path, int count = 0) {
  Figures f;
  f.rc = beGetRadioGain(path, s, nullptr, f.gainLeft, f.gainRight, f.noClipLeft, f.noClipRight, count, 0, 3);
  return f;
}

struct CountingBatch : IBatchProgressTarget {
  void Send(unsigned message, int wParam) override { sent.push_back({message, wParam}); }
  std::vector<std::pair<unsigned, int>> sent;
};

}  // namespace

TEST(ReplayGainAnalysis, MatchesReferenceAtEveryTabledRateChannelByChannel) {
  TestSession t;
  const auto refs = References();
  ASSERT_GE(refs.size(), 16);
  int checked = 0;
  for (auto it = refs.begin(); it != refs.end(); ++it) {
    if (!it.key().endsWith(".wav") || it.key() == "gain_mono.wav") continue;
    SCOPED_TRACE(it.key().toStdString());
    const Figures f = Rms(*t.s, Fixture(it.key()), 2, 16);
    ASSERT_EQ(f.rc, kGainOk);
    EXPECT_NEAR(f.gainLeft, it.value().first, kReferenceTolerance);
    EXPECT_NEAR(f.gainRight, it.value().second, kReferenceTolerance);
    ++checked;
  }
  EXPECT_EQ(checked, 17);  // 13 tabled rates, two resampled ones, pink noise, full-scale sine
}

// The gains match the reference above; here the margins below full scale.
TEST(ReplayGainAnalysis, Margins) {
  TestSession t;
  const Figures sine = Rms(*t.s, Fixture("gain_sine_full.wav"), 2, 16);
  ASSERT_EQ(sine.rc, kGainOk);
  EXPECT_NEAR(sine.noClipLeft, 0.0, 0.01);
  const Figures pink = Rms(*t.s, Fixture("gain_pink.wav"), 2, 16);
  EXPECT_LT(pink.noClipLeft, -1.0);
  // A clipped MP3 decodes past full scale.
  const Figures clipped = RadioGain(*t.s, Fixture("gain_clipped.mp3"));
  ASSERT_EQ(clipped.rc, kGainOk);
  EXPECT_GT(clipped.noClipLeft, 0.0f);
  EXPECT_GT(clipped.noClipRight, 0.0f);
  // Two channels that differ give different figures.
  const Figures two = Rms(*t.s, Fixture("gain_44100.wav"), 2, 16);
  EXPECT_GT(std::fabs(two.gainLeft - two.gainRight), 5.0);
  EXPECT_NE(two.noClipLeft, two.noClipRight);
}

TEST(ReplayGainAnalysis, WordSizeShiftsTheGainByTheScale) {
  TestSession t;
  const Figures base = Rms(*t.s, Fixture("gain_44100.wav"), 2, 16);
  ASSERT_EQ(base.rc, kGainOk);
  struct Case {
    const char* file;
    int bits, tag;
  } cases[] = {{"gain_44100_24.wav", 24, 1}, {"gain_44100_32.wav", 32, 1}, {"gain_44100_f32.wav", 32, 3}};
  for (const Case& c : cases) {
    SCOPED_TRACE(c.file);
    const Figures f = Rms(*t.s, Fixture(c.file), 2, c.bits, c.tag);
    ASSERT_EQ(f.rc, kGainOk);
    EXPECT_NEAR(f.gainLeft, base.gainLeft - kDbPerBit * (c.bits - 16), 0.01);
    EXPECT_NEAR(f.gainRight, base.gainRight - kDbPerBit * (c.bits - 16), 0.01);
    // The margin is against the word's own full scale: the same at every width.
    EXPECT_NEAR(f.noClipLeft, base.noClipLeft, 0.001);
  }
  const Figures wide = Rms(*t.s, Fixture("gain_8bit_16.wav"), 2, 16);
  const Figures narrow = Rms(*t.s, Fixture("gain_8bit.wav"), 2, 8);
  ASSERT_EQ(narrow.rc, kGainOk);
  EXPECT_NEAR(narrow.gainLeft, wide.gainLeft + kDbPerBit * 8, 0.01);
  EXPECT_NEAR(narrow.gainRight, wide.gainRight + kDbPerBit * 8, 0.01);
  EXPECT_NEAR(narrow.noClipRight, wide.noClipRight, 0.001);
  // So a level of 89 - g reads 48 dB lower per 8 bits fewer.
  EXPECT_NEAR((89 - narrow.gainLeft) - (89 - wide.gainLeft), -48.16, 0.01);
}

TEST(ReplayGainAnalysis, MonoIsTheChannelItselfNotHalved) {
  TestSession t;
  const auto refs = References();
  const Figures mono = Rms(*t.s, Fixture("gain_mono.wav"), 1, 16);
  const Figures dup = Rms(*t.s, Fixture("gain_mono_dup.wav"), 2, 16);
  ASSERT_EQ(mono.rc, kGainOk);
  EXPECT_NEAR(mono.gainLeft, refs["gain_mono.wav"].first, kReferenceTolerance);
  EXPECT_FLOAT_EQ(mono.gainLeft, dup.gainLeft);
  EXPECT_FLOAT_EQ(mono.noClipLeft, dup.noClipLeft);

  // The average test of a mono work file fills the left figures only.
  g_workPath = Fixture("gain_mono.wav");
  Session& s = *t.s;
  s.m_sourceKind = kKindWav;
  s.m_channels = 1;
  s.m_bits = 16;
  s.m_formatTag = 1;
  s.m_dataSize = 0;
  ASSERT_EQ(MeasureAverage(s), kGainOk);
  EXPECT_FLOAT_EQ(s.m_result.GainLeft, mono.gainLeft);
  EXPECT_EQ(s.m_result.GainRight, kNotMeasured);
  EXPECT_EQ(s.m_result.NoClippingRight, kNotMeasured);
  EXPECT_EQ(s.m_dataOffset, 44u);  // found by the search, as the test does
}

TEST(ReplayGainAnalysis, ShortSoundSilenceAndUntabledRate) {
  TestSession t;
  // 20 ms: less than one block, measured over what it has.
  const Figures shortSound = Rms(*t.s, Fixture("gain_short.wav"), 2, 16);
  ASSERT_EQ(shortSound.rc, kGainOk);
  EXPECT_LT(shortSound.gainLeft, 0.0);
  const Figures silence = Rms(*t.s, Fixture("gain_silence.wav"), 2, 16);
  ASSERT_EQ(silence.rc, kGainOk);
  EXPECT_FLOAT_EQ(silence.gainLeft, 64.82f);
  EXPECT_EQ(silence.noClipLeft, 0.0f);
  // 50 kHz has no table: measured at 48 kHz, it reads as the same tones at 48 kHz.
  const Figures at48 = Rms(*t.s, Fixture("gain_tone_48000.wav"), 2, 16);
  const Figures at50 = Rms(*t.s, Fixture("gain_tone_50000.wav"), 2, 16);
  ASSERT_EQ(at50.rc, kGainOk);
  EXPECT_NEAR(at50.gainLeft, at48.gainLeft, 0.05);
  EXPECT_NEAR(at50.gainRight, at48.gainRight, 0.05);
  EXPECT_GT(std::fabs(at48.gainLeft - at48.gainRight), 1.0);  // 1 kHz and 3 kHz weigh differently
}

// Both channels filtered side by side give each channel's own figures to the last bit,
// however the samples arrive and on whichever thread the filters run.
TEST(ReplayGainAnalysis, StereoLanesMatchEachChannelAlone) {
  const size_t frames = 3 * 65536 + 777;
  std::vector<double> stereo(2 * frames), left(frames), right(frames);
  uint32_t r = 7;
  for (size_t i = 0; i < frames; ++i) {
    r = r * 1664525u + 1013904223u;
    left[i] = 12000 * std::sin(i * 0.03) + double(int(r >> 20) - 2048);
    right[i] = 3000 * std::sin(i * 0.4) * std::sin(i * 0.0007);
    stereo[2 * i] = left[i], stereo[2 * i + 1] = right[i];
  }
  auto alone = [&](const std::vector<double>& x) {
    ReplayGainAnalyser an;
    EXPECT_TRUE(an.Init(44100, 1, false));
    an.Process(x.data(), x.size());
    an.Finish();
    return an.Gain(0);
  };
  const double gl = alone(left), gr = alone(right);
  EXPECT_GT(std::fabs(gl - gr), 1.0);
  for (const bool thread : {false, true})
    for (const size_t piece : {size_t(1) << 20, size_t(4093), size_t(1)}) {
      SCOPED_TRACE(::testing::Message() << "thread " << thread << ", piece " << piece);
      ReplayGainAnalyser an;
      ASSERT_TRUE(an.Init(44100, 2, thread));
      for (size_t at = 0; at < frames; at += piece) an.Process(stereo.data() + 2 * at, std::min(piece, frames - at));
      an.Finish();
      EXPECT_EQ(an.Gain(0), gl);
      EXPECT_EQ(an.Gain(1), gr);
      EXPECT_EQ(an.Blocks(1), frames / 2205);
    }
}

TEST(GainEngineMp3, MatchesReferenceOfTheDecodedAudio) {
  TestSession t;
  const auto refs = References();
  const unsigned long long before = g_sampleBytesRead;
  const Figures f = RadioGain(*t.s, Fixture("gain_stereo.mp3"));
  ASSERT_EQ(f.rc, kGainOk);
  EXPECT_NEAR(f.gainLeft, refs["gain_stereo.mp3"].first, 0.05);
  EXPECT_NEAR(f.gainRight, refs["gain_stereo.mp3"].second, 0.05);
  // Every decoded sample is counted: 3 s of stereo floats, trimmed to the source's length.
  EXPECT_EQ(g_sampleBytesRead - before, 3ull * 44100 * 2 * 4);

  const Figures mono = RadioGain(*t.s, Fixture("gain_mono.mp3"));
  ASSERT_EQ(mono.rc, kGainOk);
  EXPECT_EQ(mono.gainRight, mono.gainLeft);
  EXPECT_NEAR(mono.gainLeft, refs["gain_mono.mp3"].first, 0.05);
}

TEST(GainEngineFailures, UnreadableOrUndecodableGivesTwoAndShowsNothing) {
  TestSession t;
  Session& s = *t.s;
  const QString garbage = t.Path("noise ✓.mp3");
  ASSERT_TRUE(WriteFile(garbage, QByteArray(20000, 'x')));
  EXPECT_EQ(RadioGain(s, garbage).rc, kGainCannotAnalyse);
  EXPECT_EQ(RadioGain(s, t.Path("missing.mp3")).rc, kGainCannotAnalyse);
  EXPECT_EQ(RadioGain(s, Fixture("gain_44100.wav")).rc, kGainCannotAnalyse);  // not MPEG audio

  EXPECT_EQ(Rms(s, t.Path("missing.wav"), 2, 16).rc, kGainCannotAnalyse);
  const QString header = t.Path("header only.wav");
  QByteArray bytes = testing_support::ReadFile(Fixture("gain_44100.wav")).left(44);
  ASSERT_TRUE(WriteFile(header, bytes));
  EXPECT_EQ(Rms(s, header, 2, 16).rc, kGainCannotAnalyse);  // a data chunk with no frames
  ASSERT_TRUE(WriteFile(header, bytes.left(30)));
  EXPECT_EQ(Rms(s, header, 2, 16).rc, kGainCannotAnalyse);
  EXPECT_EQ(Rms(s, Fixture("gain_44100.wav"), 2, 12).rc, kGainCannotAnalyse);

  // Through the average test: nothing is filled, nothing is shown.
  g_workPath = garbage;
  s.m_sourceKind = kKindMp3;
  EXPECT_EQ(MeasureAverage(s), kGainCannotAnalyse);
  EXPECT_EQ(s.m_result.GainLeft, kNotMeasured);
  EXPECT_TRUE(t.prompt.requests.empty());
  EXPECT_EQ(t.pump.progressCalls, 0);
}

TEST(GainEngineSteering, CancelStopsWithSixAndASecondStopTestDoesNoHarm) {
  TestSession t;
  Session& s = *t.s;
  s.m_testRunning = 1;
  s.m_savedTitle = "Song.wav - Tonvane";
  s.m_uiEnabledA = s.m_uiEnabledB = s.m_canPlay = 0;
  t.pump.onPump = [&](int call) {
    if (call == 2) s.m_cancelRequested = 1;
  };
  const Figures f = Rms(s, Fixture("gain_pink.wav"), 2, 16);
  EXPECT_EQ(f.rc, kGainStopped);
  EXPECT_EQ(t.pump.calls, 2);  // the analysis ended at the poll that saw the cancel
  EXPECT_EQ(s.m_testRunning, 0);
  EXPECT_EQ(s.m_uiEnabledA, 1);
  EXPECT_EQ(s.m_title, "Song.wav - Tonvane");
  EXPECT_EQ(s.m_progressPercent, 0);
  const int progressCalls = t.pump.progressCalls;
  s.StopTest();  // the caller's own StopTest after 6
  EXPECT_EQ(s.m_testRunning, 0);
  EXPECT_EQ(s.m_title, "Song.wav - Tonvane");
  EXPECT_EQ(s.m_progressPercent, 0);
  EXPECT_EQ(t.pump.progressCalls, progressCalls + 1);

  // A request to leave the program stops an MP3 analysis the same way.
  t.pump.onPump = [&](int call) {
    if (call == 3) s.m_exitRequested = 1;
  };
  t.pump.calls = 0;
  EXPECT_EQ(RadioGain(s, Fixture("gain_stereo.mp3")).rc, kGainStopped);
  EXPECT_EQ(t.pump.calls, 3);
  // Steering outside an analysis changes nothing for the next one.
  s.m_exitRequested = 0;
  beChangexitAnaliz();
  beChangePause();
  t.pump.onPump = nullptr;
  EXPECT_EQ(Rms(s, Fixture("gain_short.wav"), 2, 16).rc, kGainOk);
}

TEST(GainEngineSteering, PauseHoldsProgressWhileThePollGoesOn) {
  TestSession t;
  Session& s = *t.s;
  std::vector<int> progressAtPoll;
  t.pump.onPump = [&](int call) {
    progressAtPoll.push_back(s.m_progressPercent);
    if (call == 2 || call == 12) s.m_pauseToggle = 1;  // pause, then resume
  };
  const Figures f = Rms(s, Fixture("gain_pink.wav"), 2, 16);
  ASSERT_EQ(f.rc, kGainOk);
  ASSERT_GE(progressAtPoll.size(), 13u);
  EXPECT_GT(progressAtPoll[1], 0);
  for (int call = 3; call <= 12; ++call) EXPECT_EQ(progressAtPoll[call - 1], progressAtPoll[1]) << call;
  EXPECT_EQ(s.m_progressPercent, 100);
  EXPECT_EQ(s.m_pauseToggle, 0);
  EXPECT_EQ(s.m_testPaused, 0);
  // A cancel while paused reaches the engine through the same poll.
  t.pump.calls = 0;
  t.pump.onPump = [&](int call) {
    if (call == 2) s.m_pauseToggle = 1;
    if (call == 5) s.m_cancelRequested = 1;
  };
  EXPECT_EQ(Rms(s, Fixture("gain_pink.wav"), 2, 16).rc, kGainStopped);
  EXPECT_EQ(t.pump.calls, 5);
}

TEST(GainEngineProgress, CountOnEntryIsHonouredAndTheBarEndsAtHundred) {
  TestSession t;
  Session& s = *t.s;
  s.m_savedTitle = "Song";
  int highest = 0;
  t.pump.onProgress = [&](int p) { highest = std::max(highest, p); };
  s.m_progressPercent = 30;
  ASSERT_EQ(Rms(s, Fixture("gain_pink.wav"), 2, 16, 1, s.m_progressPercent).rc, kGainOk);
  EXPECT_EQ(t.pump.progressCalls, 70);
  EXPECT_EQ(s.m_progressPercent, 100);
  EXPECT_EQ(highest, 100);
  EXPECT_EQ(s.m_title, "100% - Song");

  // A count already at 100 makes no step; a step never carries the bar past 100.
  t.pump.progressCalls = 0;
  ASSERT_EQ(Rms(s, Fixture("gain_short.wav"), 2, 16, 1, 100).rc, kGainOk);
  EXPECT_EQ(t.pump.progressCalls, 0);
  OnGainStep(s);
  EXPECT_EQ(s.m_progressPercent, 100);

  // In a batch the file's share goes to the batch bar, one message per step.
  CountingBatch batch;
  s.m_progressPercent = 0;
  t.pump.progressCalls = 0;
  ASSERT_EQ(Rms(s, Fixture("gain_pink.wav"), 2, 16, 1, 7, &batch, 1).rc, kGainOk);
  ASSERT_EQ(batch.sent.size(), 7u);
  for (const auto& m : batch.sent) EXPECT_EQ(m, std::make_pair(kMsgBatchProgress, 1));
  EXPECT_EQ(t.pump.progressCalls, 0);
  batch.sent.clear();
  ASSERT_EQ(RadioGain(s, Fixture("gain_stereo.mp3"), 0).rc, kGainOk);
  EXPECT_EQ(s.m_progressPercent, 100);
}

TEST(GainEngineProgress, CountsTheSampleBytesItReads) {
  TestSession t;
  const unsigned long long before = g_sampleBytesRead;
  ASSERT_EQ(Rms(*t.s, Fixture("gain_44100.wav"), 2, 16).rc, kGainOk);
  EXPECT_EQ(g_sampleBytesRead - before, 2ull * 44100 * 4);
}

TEST(GainEngineHeadless, AverageOfAnMp3ThenFromTheLogWithoutReading) {
  TestSession t;
  CheckLogAt(*t.s, t.Path("TestLog.csv"));
  HeadlessOptions options;
  options.testMode = 1;
  options.showDb = 1;
  const HeadlessReport first = TestFileHeadless(*t.s, t.prompt, Fixture("gain_clipped.mp3"), options);
  ASSERT_TRUE(first.ok) << first.error.toStdString();
  ASSERT_EQ(first.levels.size(), 2u);
  EXPECT_GT(first.sampleBytesRead, 0u);
  EXPECT_NEAR(first.levels[0].level, 89.0 - first.result.GainLeft, 1e-4);
  EXPECT_NEAR(first.levels[0].maxLevel, first.levels[0].level - first.result.NoClippingLeft, 1e-3);
  EXPECT_TRUE(first.levels[0].clipping);
  const HeadlessReport again = TestFileHeadless(*t.s, t.prompt, Fixture("gain_clipped.mp3"), options);
  ASSERT_TRUE(again.ok);
  EXPECT_TRUE(again.fromLog);
  EXPECT_EQ(again.sampleBytesRead, 0u);
  EXPECT_EQ(again.result.GainLeft, first.result.GainLeft);
}
