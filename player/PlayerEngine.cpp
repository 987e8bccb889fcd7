#include "player/PlayerEngine.h"

#include <QRegularExpression>

#include "app/Globals.h"
#include "app/Text.h"
#include "formats/OpenPipeline.h"

int g_fmodReady = 0;

namespace {

constexpr int kPositionPeriodMs = 100;
constexpr int kFadePeriodMs = 30;
constexpr int kFadeTicks = 10;
// The family of the "no sound device" message: shown once a run.
const QString kDeviceFamily = QStringLiteral("SoundDevice");

struct TipText {
  int id;
  const char* text;
};
const TipText kTips[] = {
    {kTipVolume, QT_TRANSLATE_NOOP("Tonvane", "<h3><font color=greenvolume>Volume</font></h3>")},
    {kTipPrevious, QT_TRANSLATE_NOOP("Tonvane", "<h3><font color=blue>Previous</font></h3>")},
    {kTipNext, QT_TRANSLATE_NOOP("Tonvane", "<h3><font color=blue>Next</font></h3>")},
    {kTipRepeat, QT_TRANSLATE_NOOP("Tonvane", "<h3><font color=orangebutton>Repeat</font></h3>")},
    {kTipSeek, QT_TRANSLATE_NOOP("Tonvane", "<h3><font color=greenvolume>Seek</font></h3>")},
    {kTipPlay, QT_TRANSLATE_NOOP("Tonvane", "<h3><font color=blue>Play</font></h3>")},
    {kTipStop, QT_TRANSLATE_NOOP("Tonvane", "<h3><font color=blue>Stop</font></h3>")},
    {kTipMute, QT_TRANSLATE_NOOP("Tonvane", "<h3><font color=orangebutton>Mute</font></h3>")},
    {kTipPause, QT_TRANSLATE_NOOP("Tonvane", "<h3><font color=blue>Pause</font></h3>")},
    {kTipShuffle, QT_TRANSLATE_NOOP("Tonvane", "<h3><font color=orangebutton>Shuffle</font></h3>")},
};

QString TipSource(int tip) {
  for (const TipText& t : kTips)
    if (t.id == tip) return Tonvane::tr(t.text);
  return {};
}

QString TwoDigits(unsigned v) { return QString::asprintf("%02u", v % 100); }

}  // namespace

QString PlayerTipHtml(int tip) {
  QString html = TipSource(tip);
  // The two colour names of the program's own, as COLORREF 0x006400 and 0x0050c8.
  html.replace(QStringLiteral("greenvolume"), QStringLiteral("#006400"));
  html.replace(QStringLiteral("orangebutton"), QStringLiteral("#c85000"));
  return QStringLiteral("<html><head><style>h3 {font-size: 12pt; color:#ff9900; font-family:Arial; "
                        "font-weight:bold}</style></head><body>") +
         html + QStringLiteral("</body></html>");
}

QString PlayerTipName(int tip) {
  static const QRegularExpression tags(QStringLiteral("<[^>]*>"));
  return TipSource(tip).remove(tags).trimmed();
}

PlayerEngine::PlayerEngine(Session& s, IPlayerTimers& timers) : m_s(s), m_timers(timers) {}

PlayerEngine::~PlayerEngine() { Shutdown(); }

void PlayerEngine::Changed() {
  if (onViewChanged) onViewChanged();
}

void PlayerEngine::ShowError(const QString& text, const QString& family) {
  m_s.m_prompt.Message(text, PromptIcon::Warning, family);
}

bool PlayerEngine::ErrorCheck(int result) {
  if (result == snd::OK) return false;
  if (result == snd::ERR_OUTPUT_INIT) {
    // Without a sound device every Play would say the same: once a run is enough.
    if (m_deviceErrorShown) return true;
    m_deviceErrorShown = true;
    ShowError(Tonvane::tr("Sorry, but ") + snd::ErrorString(result), kDeviceFamily);
    return true;
  }
  ShowError(Tonvane::tr("Sorry, but ") + snd::ErrorString(result));
  return true;
}

void PlayerEngine::Renew() {
  bool playing = false, paused = false;
  if (m_fmodChannel != nullptr) {
    m_fmodChannel->isPlaying(&playing);
    m_fmodChannel->getPaused(&paused);
  }
  m_isPlaying = playing ? 1 : 0;
  m_isPaused = paused ? 1 : 0;
}

void PlayerEngine::PlayPause() {
  if (!g_fmodReady || m_fmodSystem == nullptr) {
    m_fmodResult = snd::System_Create(&m_fmodSystem);
    if (m_fmodSystem != nullptr) m_fmodResult = m_fmodSystem->init(2, 0, nullptr);
    g_fmodReady = 1;
  }
  if (!m_playGate) return;
  m_playGate = 0;
  m_s.m_canPlay = 0;
  struct Gate {
    int& gate;
    ~Gate() { gate = 1; }
  } gate{m_playGate};
  if (g_workPath.isEmpty()) return;
  Renew();
  if (m_isPlaying && !m_isPaused) {
    // Pause: fade out, then the channel pauses.
    m_fadeStep = m_s.m_savedVolume / kFadeTicks;
    m_fadeVolume = m_s.m_savedVolume;
    m_fadeCount = 0;
    m_timers.KillTimer(kTimerFadeIn);
    m_timers.StartTimer(kTimerFadeOut, kFadePeriodMs);
    m_timers.KillTimer(kTimerPosition);
    m_positionTimer = false;
    m_view.pauseFace = false;
    m_s.m_canPlay = 1;
  } else if (m_isPlaying && m_isPaused) {
    m_timers.KillTimer(kTimerFadeOut);
    m_fmodResult = m_fmodChannel->setPaused(false);
    FadeIn();
    StartPositionTimer();
    m_view.pauseFace = true;
    m_s.m_canPlay = 1;
  } else if (m_soundLoaded) {
    Restart();
  } else {
    FreshStart();
  }
  Changed();
}

void PlayerEngine::StartPositionTimer() {
  m_timers.StartTimer(kTimerPosition, kPositionPeriodMs);
  m_positionTimer = true;
}

void PlayerEngine::Restart() {
  if (m_isPaused) Stop();
  m_seekPos = 0;
  m_view.seekPos = 0;
  unsigned durationMs = 0;
  if (m_s.m_sourceKind == kKindMp3 && m_s.m_durationMs != 0)
    durationMs = m_s.m_durationMs;
  else if (m_fmodSound != nullptr)
    m_fmodSound->getLength(&durationMs, snd::TIMEUNIT_MS);
  m_view.seekMax = int(std::max(durationMs, 100u) / 100);
  StartPositionTimer();
  m_fmodResult = m_fmodSystem->playSound(snd::CHANNEL_FREE, m_fmodSound, false, &m_fmodChannel);
  if (ErrorCheck(m_fmodResult)) {
    StopAndRestore();
    m_s.m_canPlay = 1;
    return;
  }
  FadeIn();
  m_view.pauseFace = true;
  m_view.stopEnabled = m_view.muteEnabled = true;
  m_s.m_canPlay = 1;
}

void PlayerEngine::FreshStart() {
  if (m_fmodSound != nullptr) {
    m_fmodSound->release();
    m_fmodSound = nullptr;
  }
  CloseWorkFile(m_s);
  const int bits = m_s.m_bits;
  if (bits != 8 && bits != 16 && bits != 24 && bits != 32) {
    StopAndRestore();
    m_s.m_canPlay = 1;
    return;
  }
  // The work file plays where it stands; on a read-only medium the source is the work file.
  const QString playPath = m_s.m_driveType == kDriveCdRom && !g_sourcePath.isEmpty() ? g_sourcePath : g_workPath;
  m_s.m_restoreTempName = playPath;
  if (m_fmodSystem == nullptr) {
    m_s.m_restoreTempName.clear();
    return;
  }
  m_fmodResult = m_fmodSystem->createStream(playPath, snd::MODE_UNICODE | snd::MODE_LOWMEM | snd::MODE_CREATESAMPLE,
                                            nullptr, &m_fmodSound);
  if (ErrorCheck(m_fmodResult)) {
    StopAndRestore();
    return;
  }
  m_fmodResult = m_fmodSystem->playSound(snd::CHANNEL_FREE, m_fmodSound, false, &m_fmodChannel);
  if (ErrorCheck(m_fmodResult)) {
    StopAndRestore();
    m_s.m_canPlay = 1;
    return;
  }
  if (m_s.m_savedVolume == -1.0f) {
    if (m_s.m_savedVolumePos == -1) {
      m_s.m_savedVolumePos = 10;
      m_s.m_savedVolume = 0.1f;
    } else {
      m_s.m_savedVolume = float(m_s.m_savedVolumePos) / 100.0f;
    }
  }
  m_view.volumePos = m_s.m_savedVolumePos;
  FadeIn();
  if (m_fmodResult != snd::OK && m_fmodResult != snd::ERR_INVALID_HANDLE && m_fmodResult != snd::ERR_CHANNEL_STOLEN) {
    ErrorCheck(m_fmodResult);
    StopAndRestore();
    m_s.m_canPlay = 1;
    return;
  }
  StartPositionTimer();
  m_seekPos = 0;
  m_view.seekPos = 0;
  unsigned durationMs = 0;
  if (m_s.m_sourceKind == kKindMp3 && m_s.m_durationMs != 0)
    durationMs = m_s.m_durationMs;
  else
    m_fmodSound->getLength(&durationMs, snd::TIMEUNIT_MS);
  m_view.seekMax = int(std::max(durationMs, 100u) / 100);
  m_s.m_canPlay = 1;
  m_soundLoaded = 1;
  m_view.pauseFace = true;
  m_view.stopEnabled = m_view.muteEnabled = true;
}

void PlayerEngine::FadeIn() {
  m_fadeStep = m_s.m_savedVolume / kFadeTicks;
  m_fadeVolume = 0;
  m_fadeCount = 0;
  if (m_fmodChannel != nullptr) m_fmodResult = m_fmodChannel->setVolume(0.01f);
  m_timers.StartTimer(kTimerFadeIn, kFadePeriodMs);
}

void PlayerEngine::Stop() {
  if (m_muted) {
    if (m_fmodChannel != nullptr) {
      m_fmodResult = m_fmodChannel->setMute(false);
      ErrorCheck(m_fmodResult);
    }
    m_view.mutedFace = false;
    m_muted = 0;
  }
  if (m_fmodChannel != nullptr) m_fmodChannel->stop();
  m_fmodChannel = nullptr;
  m_timers.KillTimer(kTimerPosition);
  m_timers.KillTimer(kTimerFadeIn);
  m_timers.KillTimer(kTimerFadeOut);
  m_positionTimer = false;
  m_seekPos = 0;
  m_view.seekPos = 0;
  m_view.pauseFace = false;
  m_view.stopEnabled = m_view.muteEnabled = false;
  ClearPositionFields();
  Changed();
}

void PlayerEngine::StopAndRestore() {
  Renew();
  if (m_fmodChannel != nullptr && m_s.m_savedVolume != -1.0f) m_s.m_savedVolumePos = m_view.volumePos;
  m_view.stopEnabled = m_view.muteEnabled = false;
  m_view.mutedFace = false;
  m_muted = 0;
  if (m_isPlaying || m_isPaused || !m_s.m_restoreTempName.isEmpty()) {
    m_timers.KillTimer(kTimerPosition);
    m_positionTimer = false;
    m_seekPos = 0;
    m_view.seekPos = 0;
    if ((m_isPlaying || m_isPaused) && m_fmodChannel != nullptr) m_fmodChannel->stop();
    m_view.pauseFace = false;
    m_timers.KillTimer(kTimerFadeIn);
    m_timers.KillTimer(kTimerFadeOut);
    if (m_fmodSound != nullptr) m_fmodSound->release();
    m_fmodSound = nullptr;
    m_fmodChannel = nullptr;
    m_soundLoaded = 0;
    // The play file is the work file under its own name: nothing to move back.
    m_s.m_restoreTempName.clear();
    ClearPositionFields();
  }
  Changed();
}

void PlayerEngine::ToggleMute() {
  Renew();
  if (m_fmodChannel == nullptr || !(m_isPlaying || m_isPaused)) return;
  m_fmodResult = m_fmodChannel->setMute(!m_muted);
  m_muted = m_muted ? 0 : 1;
  m_view.mutedFace = m_muted != 0;
  Changed();
}

void PlayerEngine::VolumeUp() { OnVolumeSlider(SteppedVolume(m_view.volumePos, true)); }
void PlayerEngine::VolumeDown() { OnVolumeSlider(SteppedVolume(m_view.volumePos, false)); }

void PlayerEngine::OnVolumeSlider(int pos) {
  pos = std::clamp(pos, 0, 100);
  m_view.volumePos = pos;
  m_s.m_savedVolumePos = pos;
  if (m_fmodChannel != nullptr) {
    m_fmodResult = m_fmodChannel->setVolume(float(pos) / 100.0f);
    // A channel that ended under the slider is no failure of the user's.
    if (m_fmodResult != snd::ERR_INVALID_HANDLE && m_fmodResult != snd::ERR_CHANNEL_STOLEN) ErrorCheck(m_fmodResult);
    m_s.m_savedVolume = float(pos) / 100.0f;
  }
  Changed();
}

void PlayerEngine::SetSeekPosition(int pos) {
  m_seekPos = pos;
  m_view.seekPos = pos;
}

void PlayerEngine::ClearPositionFields() {
  for (QString& f : m_view.position) f.clear();
}

void PlayerEngine::OnPlayerTick(int timerId) {
  Renew();
  bool changed = false;
  if (timerId == kTimerPosition && m_isPlaying && m_seekEnabled) {
    if (m_seekTicking) {
      ++m_seekPos;
      m_view.seekPos = std::min(m_seekPos, m_view.seekMax);
    }
    unsigned ms = 0;
    if (m_fmodChannel != nullptr) m_fmodChannel->getPosition(&ms, snd::TIMEUNIT_MS);
    const QString fields[3] = {TwoDigits(ms / 60000), TwoDigits(ms / 1000 % 60), TwoDigits(ms / 10 % 100)};
    for (int i = 0; i < 3; ++i)
      if (m_view.position[i] != fields[i]) m_view.position[i] = fields[i];
    changed = true;
  }
  if (timerId == kTimerFadeIn) {
    m_fadeVolume += m_fadeStep;
    if (m_fmodChannel != nullptr) m_fmodChannel->setVolume(m_fadeVolume);
    if (++m_fadeCount >= kFadeTicks) m_timers.KillTimer(kTimerFadeIn);
  }
  if (timerId == kTimerFadeOut) {
    m_fadeVolume = std::max(0.0f, m_fadeVolume - m_fadeStep);
    if (m_fmodChannel != nullptr) m_fmodChannel->setVolume(m_fadeVolume);
    if (++m_fadeCount >= kFadeTicks) {
      if (m_fmodChannel != nullptr) m_fmodChannel->setPaused(true);
      m_timers.KillTimer(kTimerFadeOut);
    }
  }
  // The end of a track. A track shorter than one tick never moves the seek bar, so the
  // running position timer counts as a start too.
  if (m_fmodChannel != nullptr && (m_view.seekPos != 0 || m_positionTimer) && !m_isPlaying &&
      (!m_isPaused || m_soundLoaded)) {
    ResetTransportAtEnd();
    Changed();
    if (onTrackEnd) onTrackEnd();
    return;
  }
  if (changed) Changed();
}

void PlayerEngine::ResetTransportAtEnd() {
  m_view.pauseFace = false;
  m_view.stopEnabled = m_view.muteEnabled = false;
  m_view.mutedFace = false;
  m_muted = 0;
  m_seekPos = 0;
  m_view.seekPos = 0;
  m_fmodChannel = nullptr;
  m_timers.KillTimer(kTimerPosition);
  m_timers.KillTimer(kTimerFadeIn);
  m_positionTimer = false;
  ClearPositionFields();
}

void PlayerEngine::Shutdown() {
  StopAndRestore();
  if (m_fmodSound != nullptr) m_fmodSound->release();
  m_fmodSound = nullptr;
  if (m_fmodSystem != nullptr) {
    m_fmodSystem->release();
    m_fmodSystem = nullptr;
    g_fmodReady = 0;
  }
}
