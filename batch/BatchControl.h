#pragma once
// The one owner of pause and cancel for a batch: the folder walks, the property scan and
// the run all poll it. The front end's buttons call Pause/Resume/Cancel from its own
// thread; the coordinator polls with Poll (which also lets the front end run), workers
// with WorkerPoll (which holds them while paused).
#include <atomic>
#include <condition_variable>
#include <functional>
#include <mutex>

class BatchControl {
 public:
  void Pause();
  void Resume();
  void TogglePause();
  // Ends the work at the next poll; a paused run comes out of its pause to see it.
  void Cancel();
  // Ready for the next walk or run.
  void Reset();
  bool IsPaused() const { return m_paused.load(); }
  bool IsCancelled() const { return m_cancelled.load(); }

  // The front end's event hook (the window: process its events; the CLI: nothing).
  std::function<void()> processEvents;
  // Called once when a pause takes hold at a poll point and once when it ends.
  std::function<void(bool paused)> pauseChanged;

  // Coordinator's poll point: runs the hook; while paused keeps running it until resumed
  // or cancelled. False once cancelled.
  bool Poll();
  // Worker's poll point: waits while paused. False once cancelled.
  bool WorkerPoll();

 private:
  std::atomic<bool> m_paused{false};
  std::atomic<bool> m_cancelled{false};
  std::mutex m_mutex;
  std::condition_variable m_wake;
};
