#pragma once
// What a seek bar needs of the player that owns it: the channel to move, the two flags it
// shares with the position timer, and Stop. The main window's player and the batch
// preview each give their bar one.
#include "player/SoundSystem.h"

class ISeekHost {
 public:
  virtual ~ISeekHost() = default;
  virtual snd::Channel* SeekChannel() = 0;
  // The position timer moves the bar (1) or leaves it to the user's hand (0).
  virtual void SetSeekTicking(int ticking) = 0;
  // The position timer runs at all (1), or not while the bar steps by its arrows (0).
  virtual void SetSeekEnabled(int enabled) = 0;
  // The bar's position, in units of 100 ms, as the player counts it on.
  virtual void SetSeekPosition(int pos) = 0;
  virtual bool StopEnabled() = 0;
  virtual void StopFromSeekBar() = 0;
};
