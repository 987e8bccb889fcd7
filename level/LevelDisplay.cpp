#include "level/LevelDisplay.h"

#include "app/Session.h"

std::vector<ChannelLevelView> ChannelLevels(Session& s) {
  std::vector<ChannelLevelView> out(s.m_channels == 1 ? 1 : 2);
  return out;
}
