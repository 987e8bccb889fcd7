#include "level/LevelDisplay.h"

#include "app/Session.h"
#include "app/Text.h"
#include "level/LevelScales.h"

bool ShowsStereo(const Session& s) {
  if (s.m_sourceKind == kKindMp3) return s.m_mpegMode != 3;
  if (s.m_channels != 2) return false;
  if (s.m_testMode == 0) return s.m_bits == 8 || s.m_bits == 16 || s.m_bits == 24 || s.m_bits == 32;
  return true;
}

DisplayRules RulesFor(int testMode, bool showDb, bool stereo, int bits, bool isMp3) {
  DisplayRules r;
  const bool peakPercent = testMode == 0 && !showDb;
  r.maxLabelShown[0] = !peakPercent;
  r.maxLabelShown[1] = !peakPercent && stereo;
  r.maxLabelText = Tonvane::tr("Maximum Level");
  r.scaleLabelShown = testMode == 1 && !showDb;
  if (r.scaleLabelShown) r.scaleLabel = ScaleLabelText(bits, isMp3);
  r.rightBarShown = stereo;
  r.title = Tonvane::tr("Volume Level");
  r.subtitle = testMode == 0 ? Tonvane::tr("(Peak Level)") : Tonvane::tr("(Average Level)");
  r.titleBetweenBars = stereo;
  if (stereo) {
    r.caption[0] = Tonvane::tr("Left Channel");
    r.caption[1] = Tonvane::tr("Right Channel");
  } else {
    r.caption[0] = Tonvane::tr("Mono Channel");
  }
  r.resetRangeTo100 = peakPercent;
  r.barSuffix = showDb ? Tonvane::tr(" dB") : QString();
  return r;
}

QString LevelBarText(double value, bool showDb, const QString& suffix, bool floatText) {
  if (!floatText) return QString::asprintf("%d%%", int(value)) + suffix;
  return (showDb ? QString::asprintf("%1.1f", value) : QString::asprintf("%1.1f%%", value)) + suffix;
}

LevelShowing ShowResult(Session& s, int currentTop) {
  LevelShowing out;
  const bool stereo = ShowsStereo(s);
  const bool isMp3 = s.m_sourceKind == kKindMp3;
  const bool db = s.m_showDb != 0;
  const int refS = ReferenceS(s.m_bits, isMp3);
  const int n = stereo ? 2 : 1;
  const QString suffix = db ? Tonvane::tr(" dB") : QString();
  out.rangeTop = currentTop;

  float* level[2] = {&s.m_levelLeft, &s.m_levelRight};
  float* maxLevel[2] = {&s.m_maxLevelLeft, &s.m_maxLevelRight};
  const float* noClip[2] = {nullptr, nullptr};
  float maxDb[2] = {0, 0};

  if (s.m_testMode == 0 && !db) {
    // The peak test in percent: normal colours, positions and the tie, nothing more.
    for (int i = 0; i < n; ++i) {
      BarShowing& b = out.bars[i];
      b.shown = true;
      b.position = *level[i];
      b.tiedText = TiedText(*level[i]);
      b.suffix = suffix;
    }
    return out;
  }

  if (s.m_testMode == 1) {
    const float gain[2] = {s.m_result.GainLeft, s.m_result.GainRight};
    const float nc[2] = {s.m_result.NoClippingLeft, s.m_result.NoClippingRight};
    float* noClipping[2] = {&s.m_noClippingLeft, &s.m_noClippingRight};
    for (int i = 0; i < n; ++i) {
      const GainLevel g = LevelFromGain(gain[i], nc[i], db, refS);
      *level[i] = g.level;
      *maxLevel[i] = g.maxLevel;
      *noClipping[i] = nc[i];
      maxDb[i] = g.maxLevelDb;
    }
    if (!stereo) s.m_levelRight = 0;
    noClip[0] = &s.m_noClippingLeft;
    noClip[1] = &s.m_noClippingRight;
  } else {
    // The peak test in dB: the maximum is the level less the peak below full scale.
    const float* below[2] = {&s.m_noClipDbLeft, &s.m_noClipDbRight};
    for (int i = 0; i < n; ++i) {
      *maxLevel[i] = float(double(*level[i]) - double(*below[i]));
      maxDb[i] = *maxLevel[i];
    }
    noClip[0] = below[0];
    noClip[1] = below[1];
  }

  const MaxLevelPick pick = PickMaxLevel(maxDb[0], maxDb[1], stereo, db, refS);
  s.m_maxLevelDb = pick.maxLevelDb;
  s.m_maxLevelShown = pick.maxLevelShown;

  const int lower = LowerMaxChannel(*maxLevel[0], *maxLevel[1], stereo);
  if (MaxLevelCollides(*level[lower], *maxLevel[lower]))
    *maxLevel[lower] = float(double(*maxLevel[lower]) - 0.1);

  for (int i = 0; i < n; ++i) {
    out.maxLabelShown[i] = true;
    out.maxLabel[i] = MaxLevelLabelText(*maxLevel[i], db);
    const bool clips = ChannelClips(*noClip[i], *maxLevel[i], *level[i]);
    out.clippingShown[i] = clips;
    BarShowing& b = out.bars[i];
    b.shown = true;
    b.color1 = clips ? kBarClipColor1 : kBarColor1;
    b.color2 = clips ? kBarClipColor2 : kBarColor2;
    b.position = *level[i];
    b.tiedText = TiedText(*level[i]);
    b.suffix = suffix;
  }
  out.rangeTop = BarRangeTop(*level[0], *level[1], stereo, isMp3, currentTop);
  out.scaleLabelShown = s.m_testMode == 1 && !db;
  if (out.scaleLabelShown) out.scaleLabel = ScaleLabelText(s.m_bits, isMp3);
  return out;
}

std::vector<ChannelLevelView> ChannelLevels(Session& s) {
  const bool stereo = ShowsStereo(s);
  const bool db = s.m_showDb != 0;
  if (s.m_testMode == 0) {
    // The levels as the test left them in the result (a scan or a log row).
    if (db) {
      s.m_levelLeft = s.m_result.WavPikLeft;
      s.m_levelRight = s.m_result.WavPikRight;
      s.m_noClipDbLeft = s.m_result.WavPikNoClippingLeft;
      s.m_noClipDbRight = s.m_result.WavPikNoClippingRight;
    } else {
      s.m_levelLeft = s.m_result.WavLeft;
      s.m_levelRight = s.m_result.WavRight;
    }
  }
  const LevelShowing shown = ShowResult(s, 100);
  const float levels[2] = {s.m_levelLeft, s.m_levelRight};
  const float maxima[2] = {s.m_maxLevelLeft, s.m_maxLevelRight};
  const float gains[2] = {s.m_result.GainLeft, s.m_result.GainRight};
  std::vector<ChannelLevelView> out(stereo ? 2 : 1);
  for (size_t i = 0; i < out.size(); ++i) {
    ChannelLevelView& c = out[i];
    c.level = levels[i];
    c.hasMax = shown.maxLabelShown[i];
    c.hasVerdict = c.hasMax;
    if (c.hasMax) {
      c.maxLevel = maxima[i];
      c.maxLabel = shown.maxLabel[i];
      c.clipping = shown.clippingShown[i];
    }
    if (s.m_testMode == 1) c.gain = gains[i];
  }
  return out;
}
