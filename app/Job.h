#pragma once
// One owner of cancel, pause and progress for long work: the peak scanner, the gain
// engine, the decoders and the batch. The work calls Checkpoint from its loops, by chunk
// (every few milliseconds of work), never per sample; whoever steers it (the window, the
// batch coordinator, the CLI, a test) calls Abort or SetPaused, from any thread.
#include <atomic>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <thread>

class IAbortable {
 public:
  virtual ~IAbortable() = default;
  // Asks the work to stop at its next checkpoint.
  virtual void Abort() = 0;
  virtual bool IsAborted() const = 0;
  // The work's side: `fraction` is the share done (0..1; negative: no news). Holds while
  // the work is paused; false once the work is to stop (it then ends soon, with its own
  // "stopped" status).
  virtual bool Checkpoint(double fraction) = 0;
};

// The plain control: usable from any thread. Work on the front end's own thread (the
// window's scanner and gain engine) lets the front end run at every checkpoint and keeps
// it running while paused; any other thread sleeps in a paused checkpoint until it is
// resumed or aborted.
class JobControl : public IAbortable {
 public:
  void Abort() override;
  bool IsAborted() const override { return m_aborted.load(); }
  // A paused job waits in its next checkpoint until resumed or aborted.
  void SetPaused(bool paused);
  void TogglePause() { SetPaused(!IsPaused()); }
  bool IsPaused() const { return m_paused.load(); }
  // Ready for the next job: not aborted, not paused, no progress.
  void Reset();
  bool Checkpoint(double fraction) override;
  // The last fraction reported (0..1).
  double Progress() const { return m_progress.load(); }

  // The front end's event hook (the window: process its events; the CLI and tests: their
  // own). The calling thread becomes the front end's thread; set it before work starts.
  void SetFrontEnd(std::function<void()> processEvents);
  // Runs the hook when called on the front end's thread.
  void ProcessEvents();
  // On the front end's thread, once when a pause takes hold at a checkpoint and once when
  // it ends. Set it before the work starts.
  std::function<void(bool paused)> pauseChanged;

 private:
  bool OnFrontEnd() const { return m_frontEnd && std::this_thread::get_id() == m_frontThread; }
  std::atomic<bool> m_aborted{false};
  std::atomic<bool> m_paused{false};
  std::atomic<double> m_progress{0};
  std::function<void()> m_frontEnd;
  std::thread::id m_frontThread;
  std::mutex m_mutex;
  std::condition_variable m_wake;
};

// Sets a session flag (m_testRunning, m_opening, ...) for the life of a scope and clears it
// on every way out, so an early return cannot leave it set.
class ScopedFlag {
 public:
  explicit ScopedFlag(int& flag) : m_flag(flag) { m_flag = 1; }
  ~ScopedFlag() { m_flag = 0; }
  ScopedFlag(const ScopedFlag&) = delete;
  ScopedFlag& operator=(const ScopedFlag&) = delete;

 private:
  int& m_flag;
};
