#include "app/Session.h"

#include "app/Globals.h"
#include "app/Settings.h"

Session::Session() {
  m_job.SetFrontEnd([this] {
    if (m_pump) m_pump->ProcessEvents();
  });
}

void Session::LoadSettings() {
  m_language = Settings::Language();
  m_logPath = Settings::PatchLog();
  m_dataBaseSizeMb = Settings::DataBaseSize();
  m_showDb = Settings::ShowDb();
  m_looping = Settings::Looping();
  m_beep = Settings::Beep();
  m_patchFolder = Settings::PatchFolder();
}

int Session::PumpMessages() { return m_job.Checkpoint(-1) ? 1 : 0; }

void Session::SetProgress(int percent) {
  m_progressPercent = percent;
  if (m_pump) m_pump->ProgressChanged(percent);
}

void Session::StopTest() {
  if (!m_batchActive) {
    m_uiEnabledA = 1;
    m_uiEnabledB = 1;
    m_canPlay = 1;
    if (!m_savedTitle.isEmpty()) m_title = m_savedTitle;
    SetProgress(0);
    g_copyFailed = 0;
    m_statusText.clear();
  }
  m_testRunning = 0;
  // The batch ends its run from its own loop once it sees the flag fall.
  m_batchActive = 0;
}
