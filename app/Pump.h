#pragma once
// The pump seam: the front end's events. Long work on the main thread (scanner, gain
// engine) reaches it through the session's job control (Session::m_job) by time or by
// chunk, never per sample; the GUI processes its events there. Cancel and pause are the
// job control's, not the pump's.
#include <functional>

class IPump {
 public:
  virtual ~IPump() = default;
  // Let the front end run its pending events (timers, clicks, repaints).
  virtual void ProcessEvents() = 0;
  // Progress of the running single test, 0..100.
  virtual void ProgressChanged(int /*percent*/) {}
};

// The batch progress dialog as the measurements reach it: the messages of a batch run by
// their numbers (0x800d, 0x801d, 0x8049, ...), w the first parameter. The dialog answers
// 0x801d by copying its bar position into the session's m_batchProgressSteps.
class IBatchProgress {
 public:
  virtual ~IBatchProgress() = default;
  virtual void Send(unsigned message, int w = 0) = 0;
};

// Does nothing; for the CLI.
class NullPump : public IPump {
 public:
  void ProcessEvents() override {}
};

// Test double: runs a hook on every call with its running count (1, 2, ...), so a test
// can abort or pause the session's job at a chosen moment.
class SchedulePump : public IPump {
 public:
  void ProcessEvents() override {
    ++calls;
    if (onPump) onPump(calls);
  }
  void ProgressChanged(int percent) override {
    lastProgress = percent;
    ++progressCalls;
    if (onProgress) onProgress(percent);
  }
  int calls = 0;
  int progressCalls = 0;
  int lastProgress = -1;
  std::function<void(int)> onPump;
  std::function<void(int)> onProgress;
};
