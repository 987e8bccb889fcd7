#include "batch/BatchRun.h"

#include <chrono>
#include <cmath>
#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <thread>
#include <vector>

#include "app/Session.h"
#include "app/Text.h"
#include "batch/BatchControl.h"
#include "batch/BatchList.h"
#include "batch/RowTexts.h"
#include "formats/Kinds.h"
#include "log/TestLog.h"

namespace {

class SteadyClock : public IBatchClock {
 public:
  double Now() override {
    using namespace std::chrono;
    return duration<double>(steady_clock::now().time_since_epoch()).count();
  }
};

LogTest GroupOf(int kind, int testMode, bool showDb) {
  if (kind == kKindMp3 || testMode == 1) return LogTest::Gain;
  return showDb ? LogTest::WavPik : LogTest::Wav;
}

struct Job {
  int row = -1;
  QString path;
  int kind = 0;
  int testMode = 0;
  uint64_t size = 0;
  uint32_t durationMs = 0;
  uint64_t work = 0;  // its share of the estimate
  int channels = 0;
  int bits = 0;
  bool bad = false;
  QString badWhy;
  bool hit = false;
  LevelResult hitResult;
};

struct Slot {
  bool done = false;
  BatchMeasureResult result;
};

// The log's records of a run, written on a thread of their own in list order: each record
// is synced to the disk twice, which would otherwise hold the window's thread for tens of
// milliseconds a file. The log is this thread's alone from the first record to Finish.
class LogCommits {
 public:
  LogCommits(TestLog& log, Session& s) : m_log(log), m_s(s), m_thread([this] { Work(); }) {}
  ~LogCommits() { Finish({}); }
  void Push(const QString& path, int kind, LogTest group, const LevelResult& result) {
    {
      std::lock_guard<std::mutex> lock(m_mutex);
      m_queue.push_back({path, kind, group, result});
    }
    m_wake.notify_one();
  }
  // Writes what is queued and ends the thread; `pump` keeps the front end alive meanwhile
  // (a failed write asks the window to show its message).
  void Finish(const std::function<void()>& pump) {
    if (!m_thread.joinable()) return;
    {
      std::lock_guard<std::mutex> lock(m_mutex);
      m_finishing = true;
    }
    m_wake.notify_one();
    for (;;) {
      std::unique_lock<std::mutex> lock(m_mutex);
      if (m_wake.wait_for(lock, std::chrono::milliseconds(16), [this] { return m_idle; })) break;
      lock.unlock();
      if (pump) pump();
    }
    m_thread.join();
  }

 private:
  struct Entry {
    QString path;
    int kind;
    LogTest group;
    LevelResult result;
  };
  void Work() {
    for (;;) {
      Entry e;
      {
        std::unique_lock<std::mutex> lock(m_mutex);
        m_wake.wait(lock, [this] { return !m_queue.empty() || m_finishing; });
        if (m_queue.empty()) {
          m_idle = true;
          m_wake.notify_all();
          return;
        }
        e = std::move(m_queue.front());
        m_queue.pop_front();
      }
      // The log tells MP3 rows by the session's kind, which the run set for its first row;
      // it changes here only in a list that mixes MP3 rows with others.
      if ((m_s.m_sourceKind == kKindMp3) != (e.kind == kKindMp3)) m_s.m_sourceKind = e.kind;
      const RowState state = m_log.FindRow(e.path);
      if (state == RowState::Fresh) {
        LevelResult carried;
        m_log.ReadResult(e.group, carried);  // the other groups stay in the record
      }
      m_log.WriteRow(e.path, e.group, state, e.result);
    }
  }

  TestLog& m_log;
  Session& m_s;
  std::mutex m_mutex;
  std::condition_variable m_wake;
  std::deque<Entry> m_queue;
  bool m_finishing = false;
  bool m_idle = false;
  std::thread m_thread;
};

// Sets a session flag for the life of the run.
class ScopedFlag {
 public:
  explicit ScopedFlag(int& flag) : m_flag(flag) { m_flag = 1; }
  ~ScopedFlag() { m_flag = 0; }

 private:
  int& m_flag;
};

}  // namespace

void BatchEstimate::Start(double now, uint64_t workToMeasure) {
  m_start = now;
  m_pausedAt = -1;
  m_pausedTotal = 0;
  m_total = workToMeasure;
  m_done = 0;
}

void BatchEstimate::PauseBegan(double now) {
  if (m_pausedAt < 0) m_pausedAt = now;
}

void BatchEstimate::PauseEnded(double now) {
  if (m_pausedAt >= 0) m_pausedTotal += now - m_pausedAt;
  m_pausedAt = -1;
}

double BatchEstimate::FileMeasured(double now, uint64_t work) {
  m_done += work;
  const double active = now - m_start - m_pausedTotal - (m_pausedAt >= 0 ? now - m_pausedAt : 0);
  if (m_done == 0 || active <= 0) return -1;
  const double speed = double(m_done) / active;
  return m_total > m_done ? double(m_total - m_done) / speed : 0.0;
}

BatchRunner::BatchRunner(BatchList& list, Session& s, BatchControl& control, const BatchRunOptions& options)
    : m_list(list), m_s(s), m_control(control), m_options(options), m_measure(MeasureForBatch),
      m_parallel(MeasureForBatchIsParallel()) {}

BatchRunner::~BatchRunner() = default;

void BatchRunner::SetMeasure(BatchMeasureFn measure, bool parallel) {
  m_measure = std::move(measure);
  m_parallel = parallel;
}

BatchRunSummary BatchRunner::Run() {
  BatchRunSummary summary;
  SteadyClock steady;
  IBatchClock& clock = m_clock ? *m_clock : steady;
  IBatchRunView nullView;
  IBatchRunView& view = m_view ? *m_view : nullView;
  const bool showDb = m_list.ShowDb();

  // The work order: every checked row, in list order.
  std::vector<Job> jobs;
  for (int row = 0; row < m_list.FileCount(); ++row) {
    if (!m_list.IsChecked(row)) continue;
    const BatchFileInfo& f = *m_list.Info(row);
    Job j;
    j.row = row;
    j.path = f.path;
    j.kind = int(f.kind);
    j.testMode = j.kind == kKindMp3 ? 1 : m_options.testMode;
    j.size = f.fullSize;
    j.durationMs = f.durationMs;
    j.channels = int(f.channels);
    j.bits = int(f.bits);
    j.bad = f.bad != 0;
    j.badWhy = f.error;
    jobs.push_back(j);
  }
  summary.count = int(jobs.size());
  if (jobs.empty()) {
    m_s.m_prompt.Message(Tonvane::tr("Sorry, but You have not selected any files. Therefore the batch test is stopped."),
                         PromptIcon::Warning);
    view.NothingChecked();
    return summary;
  }
  ScopedFlag running(m_s.m_testRunning);
  const double start = clock.Now();
  view.Count(summary.count);

  // The log first: the rows it knows are answered before any work is handed out.
  std::unique_ptr<TestLog> log;
  if (m_options.useLog && m_s.m_useDatabase) {
    log = std::make_unique<TestLog>(m_s);
    if (!log->OpenLog()) log.reset();
  }
  std::vector<size_t> misses;
  uint64_t missBytes = 0, missMs = 0;
  bool lengthsKnown = true;
  for (size_t i = 0; i < jobs.size(); ++i) {
    Job& j = jobs[i];
    if (j.bad) continue;
    if (log) {
      m_s.m_sourceKind = j.kind;
      if (log->FindRow(j.path) == RowState::Fresh) {
        LevelResult v;
        if (log->ReadResult(GroupOf(j.kind, j.testMode, showDb), v) == ReadOutcome::Hit) {
          j.hit = true;
          j.hitResult = v;
          continue;
        }
      }
    }
    misses.push_back(i);
    missBytes += j.size;
    missMs += j.durationMs;
    lengthsKnown = lengthsKnown && j.durationMs > 0;
  }

  std::unique_ptr<LogCommits> commits;
  if (log) {
    if (!jobs.empty()) m_s.m_sourceKind = jobs.front().kind;
    commits = std::make_unique<LogCommits>(*log, m_s);
  }

  BatchEstimate estimate;
  estimate.Start(start, lengthsKnown ? missMs : missBytes);
  for (size_t i : misses) jobs[i].work = lengthsKnown ? jobs[i].durationMs : jobs[i].size;
  m_control.pauseChanged = [&](bool paused) {
    if (paused)
      estimate.PauseBegan(clock.Now());
    else
      estimate.PauseEnded(clock.Now());
    view.Paused(paused);
  };

  // Workers take the misses in list order.
  std::vector<Slot> pending(misses.size());
  std::vector<int> slotOf(jobs.size(), -1);
  for (size_t k = 0; k < misses.size(); ++k) slotOf[misses[k]] = int(k);
  std::mutex mutex;
  std::condition_variable filled;
  std::atomic<size_t> next{0};
  const int workerCount =
      misses.empty() ? 0 : m_parallel ? std::max(1, std::min<int>(m_options.jobs, int(misses.size()))) : 1;
  std::vector<std::thread> workers;
  for (int w = 0; w < workerCount; ++w) {
    workers.emplace_back([&] {
      while (m_control.WorkerPoll()) {
        const size_t k = next++;
        if (k >= misses.size()) break;
        const Job& j = jobs[misses[k]];
        // The last files of the run leave cores free: they may take helper threads.
        const bool helpers = m_options.jobs > 1 && misses.size() - k < size_t(m_options.jobs);
        BatchMeasureRequest request{j.path, j.kind, j.testMode, showDb, helpers};
        BatchMeasureResult r = m_measure(request, m_control);
        {
          std::lock_guard<std::mutex> lock(mutex);
          pending[k].result = std::move(r);
          pending[k].done = true;
        }
        filled.notify_all();
      }
    });
  }

  // Commit in list order.
  int committed = 0;
  for (size_t i = 0; i < jobs.size() && !summary.cancelled; ++i) {
    Job& j = jobs[i];
    view.FileStarted(j.row, j.path);
    BatchRowOutcome out;
    out.row = j.row;
    out.path = j.path;
    out.kind = j.kind;
    out.testMode = j.testMode;
    out.channels = j.channels;
    out.bits = j.bits;
    if (j.bad) {
      out.state = BatchRowOutcome::Failed;
      out.error = j.badWhy;
    } else if (j.hit) {
      out.state = BatchRowOutcome::FromLog;
      out.result = j.hitResult;
    } else {
      Slot& slot = pending[size_t(slotOf[i])];
      for (;;) {
        {
          std::unique_lock<std::mutex> lock(mutex);
          if (filled.wait_for(lock, std::chrono::milliseconds(16), [&] { return slot.done; })) break;
        }
        if (!m_control.Poll()) break;
      }
      bool done;
      {
        std::lock_guard<std::mutex> lock(mutex);
        done = slot.done;
      }
      if (!done || slot.result.status == BatchMeasureResult::Cancelled || m_control.IsCancelled()) {
        summary.cancelled = true;
        break;
      }
      const BatchMeasureResult& r = slot.result;
      out.sampleBytes = r.sampleBytes;
      if (r.status == BatchMeasureResult::Ok) {
        out.state = BatchRowOutcome::Tested;
        out.result = r.result;
        if (!out.channels) out.channels = r.channels;
        if (!out.bits) out.bits = r.bits;
        if (j.durationMs == 0 && r.durationMs) {
          m_list.SetDuration(j.row, r.durationMs);
          j.durationMs = r.durationMs;
        }
        if (commits) commits->Push(j.path, j.kind, GroupOf(j.kind, j.testMode, showDb), r.result);
      } else {
        out.state = BatchRowOutcome::Failed;
        out.error = r.error;
      }
      const double left = estimate.FileMeasured(clock.Now(), j.work);
      if (left >= 0) view.Estimate(left);
    }
    switch (out.state) {
      case BatchRowOutcome::Tested:
      case BatchRowOutcome::FromLog:
        m_list.SetRowResult(j.row, LevelsOfResult(out.result, j.kind, j.testMode, showDb, out.channels, out.bits));
        m_list.SetTested(j.row);
        (out.state == BatchRowOutcome::Tested ? summary.tested : summary.fromLog)++;
        summary.audioSeconds += j.durationMs / 1000.0;
        if (out.state == BatchRowOutcome::Tested) summary.measuredSeconds += j.durationMs / 1000.0;
        break;
      case BatchRowOutcome::Failed:
        if (!j.bad) m_list.MarkBad(j.row, out.error);
        ++summary.failed;
        break;
    }
    view.RowDone(out);
    ++committed;
    view.Progress(int(99.0 * committed / summary.count));
    if (!m_control.Poll()) summary.cancelled = true;
  }

  if (summary.cancelled) m_control.Cancel();  // workers stop at their next poll
  for (std::thread& t : workers) t.join();
  m_control.pauseChanged = nullptr;
  if (commits) commits->Finish(m_control.processEvents);
  commits.reset();
  if (log) log->CloseLog();
  summary.wallSeconds = clock.Now() - start;
  if (summary.cancelled)
    view.Cancelled();
  else
    view.Progress(100);
  view.Finished(summary);
  return summary;
}

QString BatchEstimateText(double secondsLeft) {
  // Whole seconds, half a second up; then hours and minutes of that.
  const double rem = std::max(0.0, secondsLeft);
  const long total = long(rem - std::floor(rem) >= 0.5 ? std::ceil(rem) : std::floor(rem));
  const long hours = total / 3600, minutes = total / 60 % 60, seconds = total % 60;
  QString t;
  if (hours > 0) t += QString::number(hours) + Tonvane::tr(" hr ");
  if (minutes > 0) t += QString::number(minutes) + Tonvane::tr(" min ");
  return t + QString::number(seconds) + Tonvane::tr(" sec");
}

QString BatchCountText(int files) {
  return QString::number(files) + (files == 1 ? Tonvane::tr(" file") : Tonvane::tr(" files"));
}

QString BatchTestedText(int tested, int total) {
  return QString::number(tested) + Tonvane::tr(" from ") + BatchCountText(total);
}

uint32_t BatchTestedColor(int tested, int total) { return tested >= total ? 0xcb1e1e : 0x180acd; }
bool BatchTestedBlinks(int tested, int total) { return tested < total; }
QString BatchBarText(int percent) { return QString::number(percent) + "%" + Tonvane::tr(" Completed"); }
QString BatchTitleText(int percent) { return QString::number(percent) + "% " + Tonvane::tr("Batch Test..."); }
QString BatchRunningText() { return Tonvane::tr("Please, wait the batch test is fulfilling"); }
QString BatchPausedText() { return Tonvane::tr("Test is suspended"); }
QString BatchCancelledText() { return Tonvane::tr("Test is cancelled"); }

QString BatchNoFilesText(int batchKind, const QString& folder) {
  const KindInfo* k = KindInfoOf(batchKind);
  return Tonvane::tr("Sorry, but the open folder ") + folder + (k ? Tonvane::tr(k->noFilesText) : QString());
}
