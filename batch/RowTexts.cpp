#include "batch/RowTexts.h"

#include "app/Session.h"
#include "app/Text.h"

namespace {

double PercentDivisor(int rowKind, int bits) {
  if (rowKind != kKindWav && rowKind != kKindFlac) return 89.0;
  switch (bits) {
    case 8: return 41.0;
    case 24: return 137.0;
    case 32: return 185.0;
    default: return 89.0;
  }
}

// Average test: level and shown gain from the engine's gain and clipping reduction.
void FromGain(double gain, double noClip, bool showDb, double d, float& level, float& shown) {
  if (showDb) {
    level = float(89.0 - gain);
    shown = float(noClip);
  } else {
    level = float((89.0 - gain) / d * 100.0);
    shown = noClip != 0 ? float(noClip / d * 100.0) : 0.0f;
  }
}

QString Signed(double v) { return (v > 0 ? QStringLiteral("+") : QString()) + QString::asprintf("%1.4f", v); }

}  // namespace

RowLevels LevelsOfResult(const LevelResult& r, int rowKind, int testMode, bool showDb, int channels,
                         int bits) {
  RowLevels out;
  const bool mono = channels == 1;
  if (rowKind == kKindMp3 || testMode == 1) {
    const double d = rowKind == kKindMp3 ? 89.0 : PercentDivisor(rowKind, bits);
    FromGain(r.GainLeft, r.NoClippingLeft, showDb, d, out.levelLeft, out.gainShownLeft);
    out.clipLeft = rowKind == kKindMp3 && r.NoClippingLeft > 0;
    if (!mono) {
      FromGain(r.GainRight, r.NoClippingRight, showDb, d, out.levelRight, out.gainShownRight);
      out.clipRight = rowKind == kKindMp3 && r.NoClippingRight > 0;
    }
    return out;
  }
  if (showDb) {
    out.levelLeft = r.WavPikLeft;
    out.gainShownLeft = r.WavPikNoClippingLeft;
    if (!mono) {
      out.levelRight = r.WavPikRight;
      out.gainShownRight = r.WavPikNoClippingRight;
    }
  } else {
    out.levelLeft = r.WavLeft;
    out.gainShownLeft = r.WavLeft - 100.0f;
    if (!mono) {
      out.levelRight = r.WavRight;
      out.gainShownRight = r.WavRight - 100.0f;
    }
  }
  return out;
}

bool LevelsOfLogRow(const LevelResult& r, int rowKind, bool showDb, int channels, RowLevels& out) {
  out = RowLevels{};
  if (rowKind == kKindMp3) {
    out = LevelsOfResult(r, kKindMp3, 1, showDb, channels, 16);
    return true;
  }
  if (channels != 1 && channels != 2) return false;
  const bool found = showDb ? (r.WavPikLeft != kNotMeasured || r.WavPikRight != kNotMeasured)
                            : (r.WavLeft != kNotMeasuredPercent || r.WavRight != kNotMeasuredPercent);
  if (!found) return false;
  out = LevelsOfResult(r, rowKind, 0, showDb, channels, 16);
  return true;
}

RowResultTexts TextsOfLevels(const RowLevels& v, bool showDb, bool withClipping) {
  RowResultTexts t;
  // The log's mark for no result, 400.0, shows as 0.
  const float L = v.levelLeft > 300.0f ? 0.0f : v.levelLeft;
  const float R = v.levelRight > 300.0f ? 0.0f : v.levelRight;
  const bool hasL = L != -1.0f, hasR = R != -1.0f;
  if (!hasL && !hasR) return t;
  t.shown = true;
  const QString unit = showDb ? QStringLiteral(" dB") : QStringLiteral("%");
  const QString yes = Tonvane::tr("Yes"), no = Tonvane::tr("No");
  const float gL = L == 0.0f ? 0.0f : v.gainShownLeft;
  const float gR = R == 0.0f ? 0.0f : v.gainShownRight;
  if (hasL && hasR) {
    t.volume = Tonvane::tr("Left: ") + QString::asprintf("%1.1f", L) + unit + Tonvane::tr("; Right: ") +
               QString::asprintf("%1.1f", R) + unit;
    t.gain = Tonvane::tr("Left: ") + Signed(gL) + unit + Tonvane::tr("; Right: ") + Signed(gR) + unit;
    if (withClipping)
      t.clipping = Tonvane::tr("Left: ") + (v.clipLeft ? yes : no) + Tonvane::tr("; Right: ") +
                   (v.clipRight ? yes : no);
    if (withClipping && (v.clipLeft || v.clipRight)) t.color = kRowClipping;
    return t;
  }
  // One side: a mono file (a right-only result takes the same form).
  const float level = hasL ? L : R;
  const float gain = hasL ? gL : gR;
  const bool clip = hasL ? v.clipLeft : v.clipRight;
  t.volume = Tonvane::tr("Mono Channel: ") + QString::asprintf("%1.1f", level) + unit;
  t.gain = Tonvane::tr("Mono Channel: ") + Signed(gain) + unit;
  if (withClipping) t.clipping = Tonvane::tr("Mono Channel: ") + (clip ? yes : no);
  if (withClipping && clip) t.color = kRowClipping;
  return t;
}
