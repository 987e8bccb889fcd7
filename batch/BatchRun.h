#pragma once
// A batch run: tests every checked row of the list, on as many threads as asked.
//
// One coordinator (the thread that calls Run: the window's, or the CLI's main thread)
// owns the list, the test log, the prompts and the progress. It answers the rows the log
// knows before any work is handed out; workers measure the rest through MeasureForBatch,
// taking rows in list order; the coordinator commits every result in list order (row
// texts, log record, the view's RowDone). So the rows, the log's bytes and what a front
// end prints are the same for any number of workers.
//
// Pause stops handing out work and holds the workers at their poll points; cancel ends
// the run with whole rows only: a row is either committed or left as it was, and no work
// file stays behind.
#include <QString>
#include <cstdint>
#include <memory>

#include "batch/BatchMeasure.h"
#include "level/LevelResult.h"

class BatchControl;
class BatchList;
struct Session;

// The progress dialog's side of a run, as calls (the window's messages by number).
constexpr unsigned kMsgBatchCount = 0x8023;
constexpr unsigned kMsgBatchFileName = 0x8013;
constexpr unsigned kMsgBatchRowResult = 0x8012;
constexpr unsigned kMsgBatchRowTested = 0x8010;
constexpr unsigned kMsgBatchEnd = 0x800f;
constexpr unsigned kMsgBatchNoneChecked = 0x800e;
constexpr unsigned kMsgBatchEstimate = 0x8031;
constexpr unsigned kMsgBatchCancelled = 0x804b;
constexpr unsigned kMsgBatchDuration = 0x8036;

struct BatchRowOutcome {
  enum State { Tested, FromLog, Failed } state = Failed;
  int row = -1;
  QString path;
  int kind = 0;
  int testMode = 0;  // the test the row took (an MP3 row always the average)
  QString error;     // why a failed row failed
  LevelResult result;
  int channels = 0;
  int bits = 0;
  uint64_t sampleBytes = 0;
};

struct BatchRunSummary {
  int count = 0;        // checked rows
  int tested = 0;       // measured now
  int fromLog = 0;      // answered by the log
  int failed = 0;
  bool cancelled = false;
  double audioSeconds = 0;     // of the rows tested or answered
  double measuredSeconds = 0;  // of the rows measured now
  double wallSeconds = 0;
  double Realtime() const { return wallSeconds > 0 ? measuredSeconds / wallSeconds : 0; }
};

class IBatchRunView {
 public:
  virtual ~IBatchRunView() = default;
  virtual void Count(int /*files*/) {}                       // 0x8023
  virtual void FileStarted(int /*row*/, const QString&) {}    // 0x8013: the row now awaited
  virtual void Progress(int /*percent*/) {}                   // 0x800d: 0..100
  virtual void Estimate(double /*seconds*/) {}                // 0x8031: time left
  virtual void Paused(bool /*paused*/) {}                     // 0x8049, 0x804a
  virtual void RowDone(const BatchRowOutcome&) {}             // 0x8012 and 0x8010, in list order
  virtual void Cancelled() {}                                 // 0x804b, 0x8017
  virtual void NothingChecked() {}                            // 0x800e
  virtual void Finished(const BatchRunSummary&) {}            // 0x800f
};

// Seconds on a clock that only goes forward; a test gives its own.
class IBatchClock {
 public:
  virtual ~IBatchClock() = default;
  virtual double Now() = 0;
};

// Time left from the work measured so far and the time it took, pauses left out. The
// work of a file is its length in milliseconds when every file's length is known (the
// decoders' cost follows the audio, not the bytes, when kinds are mixed), else its size.
class BatchEstimate {
 public:
  void Start(double now, uint64_t workToMeasure);
  void PauseBegan(double now);
  void PauseEnded(double now);
  // A file of `work` was measured; returns the seconds left (negative before any data).
  double FileMeasured(double now, uint64_t work);

 private:
  double m_start = 0;
  double m_pausedAt = -1;
  double m_pausedTotal = 0;
  uint64_t m_total = 0;
  uint64_t m_done = 0;
};

struct BatchRunOptions {
  int testMode = 0;     // 0 peak, 1 average
  bool useLog = true;   // with the session's m_useDatabase and an open log
  int jobs = 1;         // threads the run may keep busy: workers, and a file's helpers
};

class BatchRunner {
 public:
  BatchRunner(BatchList& list, Session& s, BatchControl& control, const BatchRunOptions& options);
  ~BatchRunner();
  void SetView(IBatchRunView* view) { m_view = view; }
  void SetClock(IBatchClock* clock) { m_clock = clock; }
  // Another measurement (tests); the default is MeasureForBatch.
  void SetMeasure(BatchMeasureFn measure, bool parallel);

  BatchRunSummary Run();

 private:
  struct Impl;
  BatchList& m_list;
  Session& m_s;
  BatchControl& m_control;
  BatchRunOptions m_options;
  IBatchRunView* m_view = nullptr;
  IBatchClock* m_clock = nullptr;
  BatchMeasureFn m_measure;
  bool m_parallel = false;
};

// Texts of the progress dialog, as it shows them.
QString BatchEstimateText(double secondsLeft);  // "1 hr 2 min 3 sec", "45 sec"
QString BatchCountText(int files);              // "12 files", "1 file"
QString BatchTestedText(int tested, int total); // "3 from 5 files"
// The colour of that text: 0xcb1e1e when every file was tested, else 0x180acd (it blinks).
uint32_t BatchTestedColor(int tested, int total);
bool BatchTestedBlinks(int tested, int total);
QString BatchBarText(int percent);              // "42% Completed"
QString BatchTitleText(int percent);            // "42% Batch Test..."
QString BatchRunningText();                     // "Please, wait the batch test is fulfilling"
QString BatchPausedText();                      // "Test is suspended"
QString BatchCancelledText();                   // "Test is cancelled"
// "Sorry, but the open folder <folder> does not contain any Mp3 files." and its siblings.
QString BatchNoFilesText(int batchKind, const QString& folder);
