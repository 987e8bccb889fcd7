#pragma once
#include <QString>

#include "level/LevelResult.h"

struct Session;

enum class RowState { Miss, Stale, Fresh };
enum class ReadOutcome { Hit, Partial };
// The three column groups of a row.
enum class LogTest { Gain, Wav, WavPik };

// The test log: one CSV row per file, keyed by its full path and modification time.
class TestLog {
 public:
  explicit TestLog(Session& s) : m_s(s) {}
  ~TestLog();
  // Opens the log of the session (PatchLog); false when it cannot be used.
  bool OpenLog();
  RowState FindRow(const QString& path);
  ReadOutcome ReadResult(LogTest test, LevelResult& values);
  bool WriteRow(const QString& path, LogTest test, RowState outcome, const LevelResult& values);
  void CloseLog();
  bool IsOpen() const { return m_open; }

 private:
  Session& m_s;
  bool m_open = false;
};
