#include "app/Session.h"

#include "app/Settings.h"

Session::Session() = default;

void Session::LoadSettings() {
  m_language = Settings::Language();
  m_logPath = Settings::PatchLog();
  m_dataBaseSizeMb = Settings::DataBaseSize();
  m_showDb = Settings::ShowDb();
  m_looping = Settings::Looping();
  m_beep = Settings::Beep();
  m_patchFolder = Settings::PatchFolder();
}

int Session::PumpMessages() {
  if (m_pump) m_pump->ProcessEvents();
  if (m_cancelRequested && !m_testPaused) {
    m_cancelRequested = 0;
    return 0;
  }
  return 1;
}

void Session::SetProgress(int percent) {
  m_progressPercent = percent;
  if (m_pump) m_pump->ProgressChanged(percent);
}
