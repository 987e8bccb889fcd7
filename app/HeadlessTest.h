#pragma once
// One file through open, log and test without a window: what the CLI runs, in the way a
// batch step tests a file. The key in the log is the source's full path and its time stamp.
#include <QString>
#include <QStringList>
#include <vector>

#include "app/Prompt.h"
#include "level/LevelDisplay.h"
#include "level/LevelResult.h"

struct Session;

struct HeadlessOptions {
  int testMode = -1;    // -1 properties only, 0 peak, 1 average
  int showDb = 0;
  bool useLog = true;
};

struct HeadlessReport {
  QString file;
  bool ok = false;
  QString error;             // the messages the program showed, one per line
  int kind = -1;
  int channels = 0;
  int sampleRate = 0;
  int bits = 0;
  unsigned durationMs = 0;
  QStringList properties;    // the five property lines as shown
  int testMode = -1;
  int showDb = 0;
  bool fromLog = false;
  unsigned long long sampleBytesRead = 0;  // sample bytes read or decoded for this file
  std::vector<ChannelLevelView> levels;
  LevelResult result;
};

// The three steps of a test that every flow shares. The key in the log is the source's
// full path. LookUpLog: true on a hit, with the result in the session (m_result, and for
// the peak test m_levelLeft/Right and m_noClipDbLeft/Right); it remembers the row's state
// for StoreInLog. MeasureWorkFile: the scanner or the gain engine on the work file
// g_workPath; false when it stopped or failed. StoreInLog: writes the session's result.
bool LookUpLog(Session& s, const QString& key, int mode, bool& hit);
bool MeasureWorkFile(Session& s, int mode);
void StoreInLog(Session& s, const QString& key, int mode);

// The session must have a prompt that records (RecordingPrompt) or prints; the messages it
// records for this file become `error` when the file fails.
HeadlessReport TestFileHeadless(Session& s, RecordingPrompt& prompt, const QString& path,
                                const HeadlessOptions& options);

// The Test command on the file that is open in the window: waits for its worker (pumping,
// so a cancel or exit is seen), looks in the log, measures, writes the row. Sets and
// clears m_testRunning. 1 when the result stands in the session, 0 when the test stopped
// (cancel, exit, a failed worker or measurement: the message has been shown).
int RunTestOnOpenFile(Session& s, bool& fromLog);
// How long Test waits for the worker before it gives the file up.
constexpr int kWorkerTimeoutMs = 800000;
