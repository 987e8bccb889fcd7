#pragma once
// The rules of timer 1: what the main window lets a person touch, as a value. The window
// applies the state in one loop every 100 ms; the update handlers of the menu read the
// same value.
#include <QString>
#include <optional>

struct Session;

// Everything outside the session that the rules look at.
struct EnablingInputs {
  bool workerBusy = false;   // g_workerBusy
  bool haveWorkPath = false; // g_workPath is set
  int listCount = 0;         // entries of the file list
};

struct EnablingState {
  // Controls of the window.
  bool fileList = true;
  bool play = false;
  bool peakRadio = true;
  bool averageRadio = true;
  std::optional<int> checkedMode;  // the radios' check marks follow m_testMode when idle
  bool transport = false;          // Previous, Next, Repeat, Shuffle
  bool systemClose = true;
  // Tool bar.
  bool toolOpen = true;
  bool toolBatch = true;
  bool toolExit = true;
  // Menu commands (the update handlers).
  bool open = true;
  bool close = false;
  bool exit = true;
  bool test = true;
  bool batch = true;
  bool useDatabase = false;
  bool clearDatabase = false;
  bool database = false;
  bool volumeUpDown = false;
  // Status text: set when the rules change it; and the new m_idleStatusShown.
  std::optional<QString> statusText;
  int idleStatusShown = 1;
  // Tool-bar items the rules leave as they are (a running test holds them).
  bool keepToolOpen = false;
  bool keepToolExit = false;
};

EnablingState EnablingRules(const Session& s, const EnablingInputs& in);
