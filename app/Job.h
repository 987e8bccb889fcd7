#pragma once
// One owner of cancel, pause and progress for long work: the peak scanner, the gain
// engine, the decoders and the batch. The work calls Checkpoint from its loops, by chunk
// (every few milliseconds of work), never per sample; whoever steers it (the window, the
// batch coordinator, a test) calls Abort or SetPaused, from any thread.
#include <atomic>
#include <functional>

class IAbortable {
 public:
  virtual ~IAbortable() = default;
  // Asks the work to stop at its next checkpoint.
  virtual void Abort() = 0;
  virtual bool IsAborted() const = 0;
  // The work's side: `fraction` is the share done (0..1). Holds while the work is paused;
  // false once the work is to stop (it then ends soon, with its own "stopped" status).
  virtual bool Checkpoint(double fraction) = 0;
};

// The plain control: atomics, usable from any thread. Checkpoint runs on the working thread.
class JobControl : public IAbortable {
 public:
  void Abort() override { m_aborted.store(true); }
  bool IsAborted() const override { return m_aborted.load(); }
  void ClearAborted() { m_aborted.store(false); }
  // A paused job waits in its next checkpoint until resumed or aborted.
  void SetPaused(bool paused) { m_paused.store(paused); }
  bool IsPaused() const { return m_paused.load(); }
  bool Checkpoint(double fraction) override;
  // The last fraction reported (0..1).
  double Progress() const { return m_progress.load(); }

  // Runs on the working thread at every checkpoint, before the pause; may be empty. Set it
  // before the work starts.
  std::function<void(double)> onCheckpoint;

 private:
  std::atomic<bool> m_aborted{false};
  std::atomic<bool> m_paused{false};
  std::atomic<double> m_progress{0};
};
