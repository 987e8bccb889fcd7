#include "player/PlayOrder.h"

#include <QFileInfo>
#include <cstdlib>

#include "app/Settings.h"

std::set<int> g_shuffleBag;

namespace {
constexpr int kPlayNewDelayMs = 100;

bool IsWorkName(const QString& entry) { return entry.startsWith(QStringLiteral("temp.")); }
}  // namespace

PlayOrder::PlayOrder(Session& s, PlayerEngine& player, IFileList& list, IPlayerTimers& timers)
    : m_s(s), m_player(player), m_list(list), m_timers(timers) {}

int PlayOrder::Draw(int sel) {
  const QString text = sel >= 0 && sel < m_list.Count() ? m_list.Text(sel) : QString();
  const bool special = IsFullPath(text) || IsWorkName(text);
  if (!g_shuffleBag.empty() && special) {
    // One stale index (the list may have changed since the bag was filled) goes.
    for (auto it = g_shuffleBag.begin(); it != g_shuffleBag.end(); ++it) {
      const int i = *it;
      if (i >= m_list.Count() || m_list.Text(i).endsWith(QStringLiteral(".tmp")) || IsWorkName(m_list.Text(i))) {
        g_shuffleBag.erase(it);
        break;
      }
    }
  }
  if (g_shuffleBag.empty()) {
    if (special && sel >= 0) m_list.Remove(sel);
    for (int i = m_list.Count() - 1; i >= 0; --i) g_shuffleBag.insert(i);
  }
  if (g_shuffleBag.empty()) return -1;
  std::srand(unsigned(clock()));
  const int r = std::rand() % int(g_shuffleBag.size());
  auto it = g_shuffleBag.begin();
  std::advance(it, r);
  const int drawn = *it;
  g_shuffleBag.erase(it);
  return drawn;
}

bool PlayOrder::NextTrack() { return Step(true); }
bool PlayOrder::PreviousTrack() { return Step(false); }

// One step; a file that fails to open is dropped and the step goes on to the following one
// (a loop rather than the step calling itself, so a folder of bad files cannot run the
// stack out).
bool PlayOrder::Step(bool forward) {
  bool failed = false;
  auto done = [&](bool result) {
    if (failed) m_forcePlay = 0;
    m_s.m_navigating = 0;
    return result;
  };
  for (;;) {
    bool wasPlaying = false;
    if (m_player.m_fmodChannel != nullptr) m_player.m_fmodChannel->isPlaying(&wasPlaying);
    int sel = m_list.Selected();
    const int countBefore = m_list.Count();
    if (sel < 0 || sel >= countBefore) return done(false);
    const QString text = m_list.Text(sel);
    if (m_s.m_shuffle) {
      sel = Draw(sel);
    } else if (IsFullPath(text)) {
      m_list.Remove(sel);
      const int found = m_list.FindExact(QFileInfo(text).fileName());
      const int last = m_list.Count() - 1;
      if (forward)
        sel = found < 0 ? m_nextIndexHint : found == last ? 0 : found + 1;
      else
        sel = found < 0 ? m_prevIndexHint : found == 0 ? (countBefore > 2 ? last : 0) : found - 1;
    } else if (forward) {
      sel = sel + 1 < m_list.Count() ? sel + 1 : 0;
    } else {
      sel = sel > 0 ? sel - 1 : (m_list.Count() > 1 ? m_list.Count() - 1 : 0);
    }
    if (!m_s.m_shuffle) {
      // Entries named like the player's work files of old are dropped as they are met.
      for (int guard = m_list.Count(); guard > 0 && sel >= 0 && sel < m_list.Count() && IsWorkName(m_list.Text(sel));
           --guard) {
        m_list.Remove(sel);
        if (forward) {
          if (sel == m_list.Count()) sel = 0;
          break;
        }
        sel = sel > 0 ? sel - 1 : m_list.Count() - 1;
      }
    }
    if (sel < 0 || sel >= m_list.Count()) return done(false);
    m_list.Select(sel);
    m_list.Focus();
    m_nextIndexHint = sel + 1;
    m_prevIndexHint = sel - 1;
    m_s.m_navigating = 1;
    const bool opened = openSelected && openSelected();
    if (opened) {
      if (wasPlaying || m_forcePlay) {
        if (waitForWorker) waitForWorker();
        m_timers.StartTimer(kTimerPlayNew, kPlayNewDelayMs, true);
      }
      return done(true);
    }
    // The failed entry is gone; place the selection so that the next round finds the entry
    // that followed it (preceded it, going back).
    const int n = m_list.Count();
    failed = true;
    if (n == 0) return done(false);
    if (forward)
      m_list.Select(std::min(sel > 0 ? sel - 1 : n - 1, n - 1));
    else
      m_list.Select(sel < n ? sel : 0);
    if (m_s.m_looping) m_forcePlay = 1;
  }
}

void PlayOrder::OnTrackEnd() {
  if (m_s.m_repeat) {
    m_player.PlayPause();
  } else if (m_s.m_looping) {
    m_forcePlay = 1;
    NextTrack();
    m_forcePlay = 0;
  }
}

void PlayOrder::OnTimer(int timerId) {
  if (timerId == kTimerPlayNew) {
    m_timers.KillTimer(kTimerPlayNew);
    m_player.PlayPause();
  }
  m_player.OnPlayerTick(timerId);
}

void PlayOrder::ToggleRepeat() { m_s.m_repeat = m_s.m_repeat ? 0 : 1; }

void PlayOrder::ToggleShuffle() { m_s.m_shuffle = m_s.m_shuffle ? 0 : 1; }

void PlayOrder::ToggleRepeatAll() {
  m_s.m_looping = m_s.m_looping ? 0 : 1;
  Settings::SetInt(QStringLiteral("Looping"), m_s.m_looping);
}
