#pragma once
// The session record: the state of the running program that the main window holds. The
// readers, the test flow, the player logic and the batch steps take it by reference; the
// window renders from it. Names follow the members of the main dialog.
#include <QByteArray>
#include <QString>
#include <cstdint>
#include <functional>

#include "app/Job.h"
#include "app/Prompt.h"
#include "app/Pump.h"
#include "level/LevelResult.h"

// Kinds of source, also the batch kind.
enum SourceKind : int {
  kKindWav = 0,
  kKindMp3 = 1,
  kKindFlac = 2,
  kKindOgg = 3,
  kKindApe = 4,
  kKindAac = 5,
  kKindAlac = 6,
};

// Drive types as the window layer reports them: 3 fixed, 5 optical or read-only.
constexpr int kDriveFixed = 3;
constexpr int kDriveCdRom = 5;

// Message numbers kept from the window protocol; here they are direct calls.
constexpr unsigned kMsgGainStep = 0x8007;
constexpr unsigned kMsgBatchProgress = 0x800d;
constexpr unsigned kMsgBatchTakePosition = 0x801d;
constexpr unsigned kMsgBatchStart = 0x8026;

// Timer ids of the main window.
constexpr int kTimerEnable = 1;
constexpr int kTimerProgressDown = 2;
constexpr int kTimerPosition = 3;
constexpr int kTimerFadeIn = 4;
constexpr int kTimerFadeOut = 5;
constexpr int kTimerBatchMp3 = 33;
constexpr int kTimerBatchWav = 34;
constexpr int kTimerBatchFlac = 37;
constexpr int kTimerBatchOgg = 42;
constexpr int kTimerBatchApe = 49;
constexpr int kTimerBatchMp4 = 56;
constexpr int kTimerPlayNew = 46;
constexpr int kTimerCommandLine = 0x78;

// Allocation granularity: window and view sizes of the scanner are multiples of it.
constexpr uint32_t kAllocGranularity = 65536;

struct Session {
  Session();
  Session(const Session&) = delete;
  Session& operator=(const Session&) = delete;

  // Reads the settings of the table (the constructor of the main dialog, step 7).
  void LoadSettings();

  // Lets the front end run (holding there while the test is paused): 0 once the running
  // test has been cancelled, 1 otherwise.
  int PumpMessages();
  // Sets m_progressPercent and tells the front end.
  void SetProgress(int percent);
  // Ends a running test and puts the window's state back (enabled commands, title,
  // progress, status text); also serves the batch. A second call in a row does no harm.
  void StopTest();

  // Seams.
  Prompter m_prompt;
  IPump* m_pump = nullptr;
  // The steering of the running test (scanner, gain engine, the wait for the worker): the
  // front end cancels with Abort and pauses with SetPaused; a test resets it on entry and
  // on every way out. Its front end is the pump, on the thread that made the session.
  JobControl m_job;

  // --- Source and work file (SourceFormat) ---
  int m_sourceKind = kKindWav;
  int m_isMpeg = 0;
  int m_isMp4Container = 0;
  uint16_t m_formatTag = 0;
  int m_channels = 2;
  int m_bits = 16;
  int m_sampleRate = 0;
  uint32_t m_durationMs = 0;
  int m_bitRate = 0;
  int m_mpegMode = -1;
  uint32_t m_fileSize = 0;
  uint32_t m_fileSizeHigh = 0;
  uint32_t m_dataSize = 0;
  uint32_t m_dataOffset = 0;
  QByteArray m_fmtBlock;  // the "fmt " chunk of a WAV source, as read
  int m_driveType = kDriveFixed;
  QString m_fileName;
  QString m_fileNameShown;
  QString m_fileNameCopy;
  QString m_previousFileName;
  int m_fileNotOpened = 0;
  int m_navigating = 0;  // the player's next or previous step opens the file
  int m_opening = 0;
  const uint8_t* m_mappedView = nullptr;
  int m_windowedMapping = 0;
  // Headless use: a reader fills SourceFormat and the lines and returns 1 without
  // starting its worker (the caller may answer from the log, or read the source in place).
  int m_noWorker = 0;
  // The open dialog of the front end: the chosen path, empty on Cancel. Unset in headless
  // use, where it behaves as Cancel.
  std::function<QString()> m_fileDialog;
  // A question answered Yes during an open asks for the dialog; it is shown once that open
  // has unwound (the open that asked would otherwise tear down the file chosen in it).
  int m_openDialogPending = 0;
  int m_openDepth = 0;
  // Who runs a decoder: -1 the main window's open, 1 the batch run (its own output file).
  int m_decodeContext = -1;
  uint32_t m_allocGranularity = kAllocGranularity;

  // --- What the window shows of the file ---
  QString m_propertyLines[5];  // the five property lines
  QString m_title;             // window title
  QString m_statusText;
  QString m_scaleLabel;        // "100% = 89 dB" and its siblings
  int m_scaleLabelVisible = 0;

  // --- Test ---
  int m_testMode = 0;  // 0 peak, 1 average
  int m_showDb = 0;
  int m_testRunning = 0;
  int m_exitRequested = 0;  // set with m_job.Abort(): the program ends once the test has stopped
  float m_levelLeft = -1.0f;
  float m_levelRight = -1.0f;
  float m_noClippingLeft = 0, m_noClippingRight = 0;
  float m_noClipDbLeft = 0, m_noClipDbRight = 0;
  float m_maxLevelLeft = 0, m_maxLevelRight = 0;
  float m_maxLevelDb = 0, m_maxLevelShown = 0;
  int m_progressPercent = 0;
  int m_progressShown = 0;
  QString m_savedTitle;
  int m_uiEnabledA = 1;
  int m_uiEnabledB = 1;
  int m_canPlay = 1;
  int m_idleStatusShown = 1;
  LevelResult m_result;

  // --- Batch ---
  int m_batchActive = 0;
  int m_batchProgressSteps = 0;
  IBatchProgress* m_hBatchProgress = nullptr;  // the batch progress dialog while a run lasts
  double m_fileProgressShare = 0;
  double m_progressRemainder = 0;

  // --- Test log ---
  int m_useDatabase = 1;
  int m_logAvailable = 0;
  int m_dataBaseSizeMb = 1;
  QString m_logPath;
  int m_logRowState = 0;  // what FindRow said of the open file's row (a RowState)

  // --- Player and options ---
  float m_savedVolume = -1.0f;
  int m_savedVolumePos = -1;
  int m_repeat = 0;
  int m_shuffle = 0;
  int m_alwaysOnTop = 0;
  int m_looping = 1;
  int m_beep = 0;
  QString m_restoreTempName;
  QString m_language;
  QString m_patchFolder;
};

// The span of a test: m_testRunning is set and the job control is fresh; on every way out
// the flag falls and the control is reset, so a late cancel cannot reach the next test.
class TestScope {
 public:
  explicit TestScope(Session& s) : m_s(s), m_running(s.m_testRunning) { m_s.m_job.Reset(); }
  ~TestScope() { m_s.m_job.Reset(); }
  TestScope(const TestScope&) = delete;
  TestScope& operator=(const TestScope&) = delete;

 private:
  Session& m_s;
  ScopedFlag m_running;
};
