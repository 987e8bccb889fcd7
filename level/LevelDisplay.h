#pragma once
#include <vector>

struct Session;

// What a person reads for one channel after a test.
struct ChannelLevelView {
  double level = -1.0;     // in the current scale
  double maxLevel = 0.0;   // maximum level without clipping, current scale
  bool hasMax = false;     // the peak test in percent has none
  bool hasVerdict = false; // the peak test in percent has none
  bool clipping = false;
  double gain = 400.0;     // the engine's gain (average test)
};

// From the result fields of the session (m_result, m_testMode, m_showDb, m_bits,
// m_sourceKind, m_channels): one entry per shown channel.
std::vector<ChannelLevelView> ChannelLevels(Session& s);
