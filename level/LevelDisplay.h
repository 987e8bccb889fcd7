#pragma once
// How a result becomes bars and labels. Everything here is decided in the core; a widget
// takes the values below and paints them without further logic.
#include <QString>
#include <cstdint>
#include <vector>

struct Session;

// Colours are 0x00BBGGRR values.
constexpr uint32_t kLabelColor = 0xcb1e1e;
constexpr uint32_t kClippingColor = 0x0300ff;
constexpr uint32_t kBarClipColor1 = 0x0300ff, kBarClipColor2 = 0x030082;
constexpr uint32_t kBarColor1 = 0xff0000, kBarColor2 = 0x990000;

// What a person reads for one channel after a test.
struct ChannelLevelView {
  double level = -1.0;     // in the current scale
  double maxLevel = 0.0;   // maximum level without clipping, current scale (as shown)
  bool hasMax = false;     // the peak test in percent has none
  bool hasVerdict = false; // the peak test in percent has none
  bool clipping = false;
  double gain = 400.0;     // the engine's gain (average test)
  QString maxLabel;        // "Max Level ..." when hasMax
};

// From the result fields of the session (m_result, m_testMode, m_showDb, m_bits,
// m_sourceKind, m_channels): one entry per shown channel.
std::vector<ChannelLevelView> ChannelLevels(Session& s);

// True when the session's file shows two channels: on MP3 a mode other than mono, else two
// channels (and, for the peak test, a word size the scanner reads).
bool ShowsStereo(const Session& s);

// The fixed texts and visibilities around the bars for a test, a scale and a channel
// count: what holds right after a switch of test or scale, a new file or a closed one.
struct DisplayRules {
  bool maxLabelShown[2] = {false, false};
  QString maxLabelText;              // "Maximum Level" until a test sets them
  uint32_t maxLabelColor = kLabelColor;
  bool scaleLabelShown = false;
  QString scaleLabel;                // "100% = 89 dB" when shown
  bool clippingShown[2] = {false, false};
  bool rightBarShown = true;
  QString title;                     // "Volume Level"
  QString subtitle;                  // "(Peak Level)" or "(Average Level)"
  bool titleBetweenBars = true;      // stereo: between the bars; mono: above the bar
  QString caption[2];                // "Left Channel"/"Right Channel" or "Mono Channel"/""
  // Both bars go to 0 with the text tied, and both levels to -1.
  bool resetRangeTo100 = false;      // the peak test in percent
  QString barSuffix;                 // " dB" in dB mode
};
DisplayRules RulesFor(int testMode, bool showDb, bool stereo, int bits, bool isMp3);

// The text a level bar carries for a value (its position above the lower end): one
// decimal, "%" in percent and the suffix (" dB") in dB; a whole number and "%" on a bar
// without decimals.
QString LevelBarText(double value, bool showDb, const QString& suffix, bool floatText = true);

// One bar as the end of a test leaves it.
struct BarShowing {
  bool shown = false;
  float position = 0;
  bool tiedText = true;
  uint32_t color1 = kBarColor1, color2 = kBarColor2;
  QString suffix;
};

// The end of a test: everything the window shows of the result.
struct LevelShowing {
  BarShowing bars[2];
  bool maxLabelShown[2] = {false, false};
  QString maxLabel[2];
  bool clippingShown[2] = {false, false};  // "Clipping" in kClippingColor
  int rangeTop = 100;   // common top of both bars, from 0
  bool scaleLabelShown = false;
  QString scaleLabel;
};

// Works out the levels and maximum levels of the shown result and the display, in the
// order the window applies them, and leaves the session's m_levelLeft/Right (average
// test), m_noClippingLeft/Right, m_maxLevelLeft/Right, m_maxLevelDb and m_maxLevelShown
// set. Takes the peak test's levels from m_levelLeft/Right and m_noClipDbLeft/Right and the
// average test's from m_result's Gain and NoClipping fields. `currentTop` is the range
// the bars have now.
LevelShowing ShowResult(Session& s, int currentTop);
