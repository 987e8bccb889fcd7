#include "level/LevelScales.h"

#include <cmath>

#include "app/Text.h"

int ReferenceS(int bits, bool isMp3) {
  if (isMp3) return 89;
  switch (bits) {
    case 8: return 41;
    case 24: return 137;
    case 32: return 185;
    default: return 89;
  }
}

QString ScaleLabelText(int bits, bool isMp3) {
  return Tonvane::tr("100% = ") + QString::number(ReferenceS(bits, isMp3)) + Tonvane::tr(" dB");
}

double RoundHalfUp(double x) {
  const double down = std::floor(x);
  return (x - down) * 10.0 >= 5.0 ? std::ceil(x) : down;
}

namespace {

double PercentDivisor(double v, int bits) {
  switch (bits) {
    case 8: return v == 128.0 ? 128.0 : 127.0;
    case 16: return 32767.0;
    case 24: return 8388607.0;
    default: return 2147483647.0;
  }
}

}  // namespace

float PeakPercent(double v, int bits) { return float(RoundHalfUp(v / PercentDivisor(v, bits) * 100.0)); }

double PeakDbDivisor(int bits) {
  switch (bits) {
    case 8: return 128.0;
    case 16: return 32768.0;
    case 24: return 8388607.0;
    default: return 2147483647.0;
  }
}

PeakDb PeakDecibels(double v, int bits) {
  PeakDb r;
  if (v == 0) return r;  // silence: 0 and 0, not minus infinity
  r.noClipDb = float(20.0 * std::log10(v / PeakDbDivisor(bits)));
  r.level = float(20.0 * std::log10(v));
  return r;
}

GainLevel LevelFromGain(float gain, float noClipping, bool showDb, int referenceS) {
  // The first operand is 89 at every word size; only the percent divisor follows it.
  const double levelDb = kGainReferenceDb - double(gain);
  const double maxDb = levelDb - double(noClipping);
  GainLevel r;
  r.maxLevelDb = float(maxDb);
  if (showDb) {
    r.level = float(levelDb);
    r.maxLevel = float(maxDb);
  } else {
    r.level = float(levelDb / referenceS * 100.0);
    r.maxLevel = float(maxDb / referenceS * 100.0);
  }
  return r;
}

MaxLevelPick PickMaxLevel(float leftDb, float rightDb, bool stereo, bool showDb, int referenceS) {
  MaxLevelPick r;
  r.maxLevelDb = (stereo && rightDb < leftDb) ? rightDb : leftDb;
  r.maxLevelShown = showDb ? r.maxLevelDb : float(double(r.maxLevelDb) / referenceS * 100.0);
  return r;
}

bool MaxLevelCollides(float level, float maxLevel) {
  const double a = std::ceil(double(level) * 10.0) / 10.0;
  const double b = std::ceil(double(maxLevel) * 10.0) / 10.0;
  return a == b && maxLevel < level;
}

int LowerMaxChannel(float maxLeft, float maxRight, bool stereo) {
  return (stereo && maxLeft > maxRight) ? 1 : 0;
}

bool ChannelClips(float noClipping, float maxLevel, float level) {
  return std::trunc(double(noClipping)) > 0 || maxLevel < level;
}

int BarRangeTop(float left, float right, bool stereo, bool isMp3, int currentTop) {
  const double levels[2] = {left, right};
  const int n = stereo ? 2 : 1;
  auto any = [&](auto pred) {
    for (int i = 0; i < n; ++i)
      if (pred(levels[i])) return true;
    return false;
  };
  if (!isMp3 && any([](double v) { return v > 200; })) return 250;
  if (any([](double v) { return v > 150; })) return 200;
  if (any([](double v) { return v > 140 && v < 150; })) return 150;
  if (any([](double v) { return v > 130 && v < 140; })) return 140;
  if (any([](double v) { return v > 120 && v < 130; })) return 130;
  if (any([](double v) { return v > 110 && v < 120; })) return 120;
  if (any([](double v) { return v > 100 && v < 110; })) return 110;
  if (any([](double v) { return v > 60 && v <= 100; })) return 100;
  if (!any([](double v) { return v > 60; })) return 60;
  return currentTop;
}

QString MaxLevelLabelText(float value, bool showDb) {
  if (showDb) return Tonvane::tr("Max Level ") + QString::asprintf("%1.1f", double(value)) + Tonvane::tr(" dB");
  return Tonvane::tr("Max Level ") + QString::asprintf("%1.1f%%", double(value));
}
