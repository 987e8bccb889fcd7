#include "batch/BatchControl.h"

#include <chrono>
#include <thread>

void BatchControl::Pause() {
  std::lock_guard<std::mutex> lock(m_mutex);
  m_paused = true;
}

void BatchControl::Resume() {
  {
    std::lock_guard<std::mutex> lock(m_mutex);
    m_paused = false;
  }
  m_wake.notify_all();
}

void BatchControl::TogglePause() {
  if (m_paused.load())
    Resume();
  else
    Pause();
}

void BatchControl::Cancel() {
  {
    std::lock_guard<std::mutex> lock(m_mutex);
    m_cancelled = true;
  }
  m_wake.notify_all();
}

void BatchControl::Reset() {
  std::lock_guard<std::mutex> lock(m_mutex);
  m_cancelled = false;
  m_paused = false;
}

bool BatchControl::Poll() {
  if (processEvents) processEvents();
  if (m_paused.load() && !m_cancelled.load()) {
    if (pauseChanged) pauseChanged(true);
    while (m_paused.load() && !m_cancelled.load()) {
      if (processEvents) processEvents();
      std::unique_lock<std::mutex> lock(m_mutex);
      m_wake.wait_for(lock, std::chrono::milliseconds(15), [this] { return !m_paused.load() || m_cancelled.load(); });
    }
    if (pauseChanged) pauseChanged(false);
  }
  return !m_cancelled.load();
}

bool BatchControl::WorkerPoll() {
  if (m_paused.load()) {
    std::unique_lock<std::mutex> lock(m_mutex);
    m_wake.wait(lock, [this] { return !m_paused.load() || m_cancelled.load(); });
  }
  return !m_cancelled.load();
}
