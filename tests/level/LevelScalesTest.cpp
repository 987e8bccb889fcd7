#include <gtest/gtest.h>

#include <memory>

#include "app/Session.h"
#include "level/LevelDisplay.h"
#include "level/LevelScales.h"

namespace {

std::unique_ptr<Session> AverageSession(int bits, int channels, bool db, float gl, float nl, float gr = 400,
                                        float nr = 400) {
  auto owned = std::make_unique<Session>();
  Session& s = *owned;
  s.m_testMode = 1;
  s.m_bits = bits;
  s.m_channels = channels;
  s.m_showDb = db;
  s.m_result.GainLeft = gl;
  s.m_result.NoClippingLeft = nl;
  s.m_result.GainRight = gr;
  s.m_result.NoClippingRight = nr;
  return owned;
}

}  // namespace

TEST(LevelScales, ReferenceByWordSizeAndMp3) {
  EXPECT_EQ(ScaleLabelText(8), "100% = 41 dB");
  EXPECT_EQ(ScaleLabelText(16), "100% = 89 dB");
  EXPECT_EQ(ScaleLabelText(24), "100% = 137 dB");
  EXPECT_EQ(ScaleLabelText(32), "100% = 185 dB");
  EXPECT_EQ(ReferenceS(24, true), 89);
}

TEST(LevelScales, GainToLevelKeeps89AsFirstOperand) {
  GainLevel g16 = LevelFromGain(0, 0, false, ReferenceS(16));
  EXPECT_FLOAT_EQ(g16.level, 100.0f);
  GainLevel g24 = LevelFromGain(0, 0, false, ReferenceS(24));
  EXPECT_NEAR(g24.level, 64.96, 0.005);
  GainLevel db24 = LevelFromGain(0, 0, true, ReferenceS(24));
  EXPECT_FLOAT_EQ(db24.level, 89.0f);
  // A margin of -3 leaves room: the maximum stands 3 dB above the level.
  GainLevel room = LevelFromGain(10, -3, true, 89);
  EXPECT_FLOAT_EQ(room.level, 79.0f);
  EXPECT_FLOAT_EQ(room.maxLevel, 82.0f);
  EXPECT_FALSE(ChannelClips(-3, room.maxLevel, room.level));
  GainLevel pct = LevelFromGain(10, 2, false, 89);
  EXPECT_NEAR(pct.maxLevel, 77.0 / 89 * 100, 1e-4);
  EXPECT_FLOAT_EQ(pct.maxLevelDb, 77.0f);
}

TEST(LevelScales, PeakPercentRoundsHalfUpWithItsDivisors) {
  // The full-scale ends are in the scanner's layout table.
  // 16383.5 / 32767 is exactly 50 percent; just above and below .5 of a percent.
  EXPECT_EQ(PeakPercent(32767 * 0.505, 16), 51.0f);
  EXPECT_EQ(PeakPercent(32767 * 0.5049, 16), 50.0f);
  EXPECT_EQ(RoundHalfUp(2.5), 3.0);
  EXPECT_EQ(RoundHalfUp(2.49), 2.0);
}

TEST(LevelScales, ClippingVerdict) {
  // 0.4 is cut to 0, but the maximum is below the level: it clips.
  GainLevel g = LevelFromGain(10, 0.4f, true, 89);
  EXPECT_TRUE(ChannelClips(0.4f, g.maxLevel, g.level));
  EXPECT_TRUE(ChannelClips(1.0f, 80, 80));
  EXPECT_FALSE(ChannelClips(0.0f, 80, 80));
  EXPECT_FALSE(ChannelClips(-0.9f, 80.9f, 80));
}

TEST(LevelScales, RoundingCollision) {
  EXPECT_TRUE(MaxLevelCollides(78.2f, 78.17f));
  EXPECT_FALSE(MaxLevelCollides(78.2f, 78.2f));   // not below
  EXPECT_FALSE(MaxLevelCollides(78.2f, 78.1f));   // different tenths
  EXPECT_TRUE(MaxLevelCollides(78.11f, 78.101f)); // both go up to 78.2
  EXPECT_EQ(LowerMaxChannel(80, 79, true), 1);
  EXPECT_EQ(LowerMaxChannel(79, 79, true), 0);
  EXPECT_EQ(LowerMaxChannel(80, 10, false), 0);
}

TEST(LevelScales, BarRangeTableWithGapsAndMp3) {
  EXPECT_EQ(BarRangeTop(201, 0, true, false, 100), 250);
  EXPECT_EQ(BarRangeTop(201, 0, true, true, 100), 200);  // MP3 never gets 250
  EXPECT_EQ(BarRangeTop(150.5f, 0, true, false, 100), 200);
  EXPECT_EQ(BarRangeTop(145, 0, true, false, 100), 150);
  EXPECT_EQ(BarRangeTop(10, 135, true, false, 100), 140);
  EXPECT_EQ(BarRangeTop(125, 0, true, false, 100), 130);
  EXPECT_EQ(BarRangeTop(115, 0, true, false, 100), 120);
  EXPECT_EQ(BarRangeTop(105, 0, true, false, 100), 110);
  EXPECT_EQ(BarRangeTop(100, 0, true, false, 250), 100);
  EXPECT_EQ(BarRangeTop(60, 59, true, false, 250), 60);
  for (float gap : {110.0f, 120.0f, 130.0f, 140.0f}) {
    EXPECT_EQ(BarRangeTop(gap, 0, true, false, 250), 250) << gap;  // leaves the range as it stands
    EXPECT_EQ(BarRangeTop(gap, 50, false, false, 130), 130) << gap;
  }
  // The first matching row wins, whichever channel matches it.
  EXPECT_EQ(BarRangeTop(130, 80, true, false, 250), 100);
  // Mono looks at the left level alone.
  EXPECT_EQ(BarRangeTop(50, 300, false, false, 100), 60);
  EXPECT_FALSE(TiedText(37.0f));
  EXPECT_TRUE(TiedText(37.01f));
}

TEST(LevelDisplay, RulesByTestScaleAndChannels) {
  DisplayRules peakPct = RulesFor(0, false, true, 16, false);
  EXPECT_FALSE(peakPct.maxLabelShown[0]);
  EXPECT_FALSE(peakPct.maxLabelShown[1]);
  EXPECT_FALSE(peakPct.scaleLabelShown);
  EXPECT_TRUE(peakPct.resetRangeTo100);
  EXPECT_EQ(peakPct.subtitle, "(Peak Level)");
  EXPECT_EQ(peakPct.caption[0], "Left Channel");
  EXPECT_EQ(peakPct.caption[1], "Right Channel");

  DisplayRules avgPctMono = RulesFor(1, false, false, 24, false);
  EXPECT_TRUE(avgPctMono.maxLabelShown[0]);
  EXPECT_FALSE(avgPctMono.maxLabelShown[1]);
  EXPECT_TRUE(avgPctMono.scaleLabelShown);
  EXPECT_EQ(avgPctMono.scaleLabel, "100% = 137 dB");
  EXPECT_FALSE(avgPctMono.titleBetweenBars);
  EXPECT_FALSE(avgPctMono.rightBarShown);
  EXPECT_EQ(avgPctMono.caption[0], "Mono Channel");
  EXPECT_EQ(avgPctMono.caption[1], "");
  EXPECT_EQ(avgPctMono.subtitle, "(Average Level)");

  DisplayRules avgDb = RulesFor(1, true, true, 16, true);
  EXPECT_FALSE(avgDb.scaleLabelShown);
  EXPECT_TRUE(avgDb.maxLabelShown[1]);
  EXPECT_EQ(avgDb.maxLabelText, "Maximum Level");
  EXPECT_EQ(avgDb.barSuffix, " dB");
  for (const DisplayRules& r : {peakPct, avgPctMono, avgDb}) EXPECT_FALSE(r.clippingShown[0] || r.clippingShown[1]);
}

TEST(LevelDisplay, CollisionTouchesOnlyTheLowerMaximum) {
  // Both channels: level 78.2 dB; the right maximum 78.17 would also read 78.2.
  const auto owned = AverageSession(16, 2, true, 10.8f, 0.02f, 10.8f, 0.03f);
  Session& s = *owned;
  LevelShowing v = ShowResult(s, 100);
  EXPECT_NEAR(s.m_maxLevelRight, 78.07, 1e-4);
  EXPECT_EQ(v.maxLabel[1], "Max Level 78.1 dB");
  EXPECT_NEAR(s.m_maxLevelLeft, 78.18, 1e-4);  // collides too, but is the higher one
  EXPECT_EQ(v.maxLabel[0], "Max Level 78.2 dB");
  EXPECT_TRUE(v.clippingShown[0]);
  EXPECT_TRUE(v.clippingShown[1]);
  EXPECT_EQ(v.bars[1].color1, kBarClipColor1);
  EXPECT_EQ(v.bars[1].color2, kBarClipColor2);
  EXPECT_NEAR(s.m_maxLevelDb, 78.17, 1e-4);  // from before the label fix
  EXPECT_FLOAT_EQ(s.m_result.NoClippingRight, 0.03f);  // the result itself is untouched
}

TEST(LevelDisplay, AverageMonoPercent) {
  const auto owned = AverageSession(16, 1, false, 0, -3);
  Session& s = *owned;
  LevelShowing v = ShowResult(s, 60);
  EXPECT_FLOAT_EQ(s.m_levelLeft, 100.0f);
  EXPECT_EQ(s.m_levelRight, 0.0f);
  EXPECT_FALSE(v.bars[1].shown);
  EXPECT_FALSE(v.maxLabelShown[1]);
  EXPECT_FALSE(v.clippingShown[0]);
  EXPECT_EQ(v.bars[0].color1, kBarColor1);
  EXPECT_EQ(v.rangeTop, 100);  // by the levels, not the maxima
  EXPECT_EQ(v.maxLabel[0], "Max Level 103.4%");
  EXPECT_TRUE(v.scaleLabelShown);
  EXPECT_EQ(v.scaleLabel, "100% = 89 dB");
  EXPECT_NEAR(s.m_maxLevelShown, 92.0 / 89 * 100, 1e-4);
  std::vector<ChannelLevelView> c = ChannelLevels(s);
  ASSERT_EQ(c.size(), 1u);
  EXPECT_FLOAT_EQ(c[0].gain, 0.0f);
  EXPECT_TRUE(c[0].hasVerdict);
  EXPECT_FALSE(c[0].clipping);
}

TEST(LevelDisplay, PeakChannelsFromTheResult) {
  Session s;
  s.m_testMode = 0;
  s.m_bits = 16;
  s.m_channels = 2;
  s.m_result.WavLeft = 100;
  s.m_result.WavRight = 37;
  std::vector<ChannelLevelView> pct = ChannelLevels(s);
  ASSERT_EQ(pct.size(), 2u);
  EXPECT_EQ(pct[0].level, 100.0);
  EXPECT_FALSE(pct[0].hasMax);
  EXPECT_FALSE(pct[0].hasVerdict);
  LevelShowing v = ShowResult(s, 100);
  EXPECT_EQ(v.bars[0].color1, kBarColor1);
  EXPECT_TRUE(v.bars[0].tiedText);
  EXPECT_FALSE(v.bars[1].tiedText);
  EXPECT_FALSE(v.maxLabelShown[0]);

  s.m_showDb = 1;
  PeakDb full = PeakDecibels(32768, 16);
  PeakDb half = PeakDecibels(16384, 16);
  s.m_result.WavPikLeft = full.level;
  s.m_result.WavPikNoClippingLeft = full.noClipDb;
  s.m_result.WavPikRight = half.level;
  s.m_result.WavPikNoClippingRight = half.noClipDb;
  std::vector<ChannelLevelView> db = ChannelLevels(s);
  ASSERT_EQ(db.size(), 2u);
  EXPECT_NEAR(db[0].level, 90.309, 0.0005);
  EXPECT_NEAR(db[0].maxLevel, 90.309, 0.0005);
  EXPECT_NEAR(db[1].maxLevel, 90.309, 0.0005);
  EXPECT_FALSE(db[0].clipping);
  EXPECT_FALSE(db[1].clipping);
  EXPECT_EQ(db[1].maxLabel, "Max Level 90.3 dB");

  // Silence in dB: level 0, maximum 0, no verdict of clipping.
  s.m_channels = 1;
  s.m_result.WavPikLeft = 0;
  s.m_result.WavPikNoClippingLeft = 0;
  std::vector<ChannelLevelView> quiet = ChannelLevels(s);
  ASSERT_EQ(quiet.size(), 1u);
  EXPECT_EQ(quiet[0].level, 0.0);
  EXPECT_EQ(quiet[0].maxLevel, 0.0);
  EXPECT_FALSE(quiet[0].clipping);
}

TEST(LevelDisplay, Mp3StereoByModeAndNo250) {
  const auto owned = AverageSession(16, 2, false, -120, 5, -120, 5);
  Session& s = *owned;
  s.m_sourceKind = kKindMp3;
  s.m_mpegMode = 3;  // mono
  LevelShowing v = ShowResult(s, 100);
  EXPECT_FALSE(v.bars[1].shown);
  EXPECT_NEAR(s.m_levelLeft, 209.0 / 89 * 100, 1e-3);
  EXPECT_EQ(v.rangeTop, 250 - 50);
  EXPECT_TRUE(v.clippingShown[0]);
  s.m_mpegMode = 0;
  EXPECT_EQ(ChannelLevels(s).size(), 2u);
}
