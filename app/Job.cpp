#include "app/Job.h"

#include <chrono>
#include <thread>

bool JobControl::Checkpoint(double fraction) {
  if (fraction >= 0) m_progress.store(fraction > 1 ? 1.0 : fraction);
  if (onCheckpoint) onCheckpoint(m_progress.load());
  while (m_paused.load() && !m_aborted.load()) std::this_thread::sleep_for(std::chrono::milliseconds(5));
  return !m_aborted.load();
}
