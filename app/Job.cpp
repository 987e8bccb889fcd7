#include "app/Job.h"

#include <chrono>

namespace {
// How often a paused front end gets to run its events.
constexpr auto kFrontEndPausedPace = std::chrono::milliseconds(15);
}  // namespace

void JobControl::Abort() {
  {
    std::lock_guard<std::mutex> lock(m_mutex);
    m_aborted = true;
  }
  m_wake.notify_all();
}

void JobControl::SetPaused(bool paused) {
  {
    std::lock_guard<std::mutex> lock(m_mutex);
    m_paused = paused;
  }
  if (!paused) m_wake.notify_all();
}

void JobControl::Reset() {
  {
    std::lock_guard<std::mutex> lock(m_mutex);
    m_aborted = false;
    m_paused = false;
    m_progress = 0;
  }
  m_wake.notify_all();
}

void JobControl::SetFrontEnd(std::function<void()> processEvents) {
  m_frontEnd = std::move(processEvents);
  m_frontThread = std::this_thread::get_id();
}

void JobControl::ProcessEvents() {
  if (OnFrontEnd()) m_frontEnd();
}

bool JobControl::Checkpoint(double fraction) {
  if (fraction >= 0) m_progress.store(fraction > 1 ? 1.0 : fraction);
  const bool front = OnFrontEnd();
  if (front) m_frontEnd();
  if (!m_paused.load() || m_aborted.load()) return !m_aborted.load();
  if (front) {
    // The front end keeps running while paused: that is where the resume comes from.
    if (pauseChanged) pauseChanged(true);
    while (m_paused.load() && !m_aborted.load()) {
      m_frontEnd();
      std::unique_lock<std::mutex> lock(m_mutex);
      m_wake.wait_for(lock, kFrontEndPausedPace, [this] { return !m_paused.load() || m_aborted.load(); });
    }
    if (pauseChanged) pauseChanged(false);
  } else {
    std::unique_lock<std::mutex> lock(m_mutex);
    m_wake.wait(lock, [this] { return !m_paused.load() || m_aborted.load(); });
  }
  return !m_aborted.load();
}
