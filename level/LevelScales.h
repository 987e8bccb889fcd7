#pragma once
// What the numbers mean: levels in percent and dB from a raw peak or from the gain
// engine's output, the maximum level without clipping, and the small rules that decide
// what a channel shows (rounding collision, clipping verdict, range of the bars).
// Values are kept as 32-bit floats; the arithmetic is done in doubles.
#include <QString>

// The gain engine's reference: a gain of 0 means 89 dB.
constexpr double kGainReferenceDb = 89.0;

// Reference S of the percent scale of the average test: 48 dB per 8 bits, 89 for 16 bits.
// MP3 always uses 89; a word size outside 8/16/24/32 does too.
int ReferenceS(int bits, bool isMp3 = false);
// "100% = 89 dB" and its siblings, by the same rule.
QString ScaleLabelText(int bits, bool isMp3 = false);

// --- From the peak scanner's raw peak ---

// Rounds half up to a whole number: a fraction of .5 or more goes up.
double RoundHalfUp(double x);
// Percent of full scale, a whole number: v / P * 100 with P by word size (8 bits: 127,
// or 128 when v is exactly 128; 16: 32767; 24: 8388607; 32: 2147483647).
float PeakPercent(double v, int bits);
// dB divisor Q by word size (8: 128, 16: 32768, 24: 8388607, 32: 2147483647).
double PeakDbDivisor(int bits);
struct PeakDb {
  float level = 0;    // 20 log10 v
  float noClipDb = 0; // 20 log10 (v / Q): 0 or below for anything up to full scale
};
// Silence (v == 0) gives 0 and 0.
PeakDb PeakDecibels(double v, int bits);

// --- From the gain engine's output (average test) ---

struct GainLevel {
  float level = 0;     // current scale
  float maxLevel = 0;  // highest level without clipping, current scale
  float maxLevelDb = 0;
};
// Level 89 - g (dB) or (89 - g) / S * 100 (percent); maximum (89 - g) - n likewise.
GainLevel LevelFromGain(float gain, float noClipping, bool showDb, int referenceS);

// --- Choosing what a channel shows ---

struct MaxLevelPick {
  float maxLevelDb = 0;     // the smaller of the two, the left one on a tie
  float maxLevelShown = 0;  // the same in the current scale
};
MaxLevelPick PickMaxLevel(float leftDb, float rightDb, bool stereo, bool showDb, int referenceS);

// A maximum and its level can round up to the same tenth although the maximum is lower;
// then the maximum is shown 0.1 lower, so a clipping channel visibly stays below its level.
bool MaxLevelCollides(float level, float maxLevel);
// The channel to look at: the right one when the left maximum is higher, else the left.
int LowerMaxChannel(float maxLeft, float maxRight, bool stereo);

// A channel clips when its no-clipping value, cut to a whole number, is above 0, or when
// its maximum level is below its level.
bool ChannelClips(float noClipping, float maxLevel, float level);

// Top of the common range of the two bars, or `currentTop` when no row of the table
// matches (a level of exactly 110, 120, 130, 140 or 150 alone). MP3 never gets 250.
int BarRangeTop(float left, float right, bool stereo, bool isMp3, int currentTop);

// The bar's text is tied to the end of the fill above this level.
constexpr float kTiedTextAbove = 37.0f;
inline bool TiedText(float level) { return level > kTiedTextAbove; }

// "Max Level 78.1%" or "Max Level 78.1 dB".
QString MaxLevelLabelText(float value, bool showDb);
