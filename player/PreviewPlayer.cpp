#include "player/PreviewPlayer.h"

#include <QFileInfo>
#include <atomic>
#include <chrono>
#include <thread>

#include "app/Job.h"
#include "app/Text.h"
#include "batch/BatchFileInfo.h"
#include "formats/Decode.h"
#include "formats/WorkFile.h"

namespace {

constexpr int kPositionPeriodMs = 100;
constexpr int kFadePeriodMs = 30;
constexpr int kFadeTicks = 10;
constexpr int kFirstVolumePos = 10;
// The main window's family for the "no sound device" message: one answer for both players.
const QString kDeviceFamily = QStringLiteral("SoundDevice");

QString TwoDigits(unsigned v) { return QString::asprintf("%02u", v % 100); }

// The sound system reads these sources as they stand; every other row needs a work file.
bool PlaysSource(const BatchFileInfo& info) {
  switch (int(info.kind)) {
    case kKindWav: return info.wavFormatTag == 1 || info.wavFormatTag == 3;
    case kKindMp3:
    case kKindFlac:
    case kKindOgg: return true;
    default: return false;
  }
}

}  // namespace

// A read-only or optical mount fails the write check too, so such a preview goes to the cache.
QString PreviewWorkPathFor(const QString& source) { return WritableWorkPath(WorkPathFor(source, 3)); }

PreviewPlayer::PreviewPlayer(Session& s, IPlayerTimers& timers, IPreviewList& list)
    : m_s(s), m_timers(timers), m_list(list) {
  m_view.volumePos = kFirstVolumePos;
}

PreviewPlayer::~PreviewPlayer() { Shutdown(); }

void PreviewPlayer::Changed() {
  if (onViewChanged) onViewChanged();
}

QString PreviewPlayer::Name() const { return QFileInfo(m_previewPath).fileName(); }

bool PreviewPlayer::ErrorCheck(int result) {
  if (result == snd::OK) return false;
  if (result == snd::ERR_OUTPUT_INIT) {
    if (m_deviceErrorShown) return true;
    m_deviceErrorShown = true;
    m_s.m_prompt.Message(Tonvane::tr("Sorry, but ") + snd::ErrorString(result), PromptIcon::Warning, kDeviceFamily);
    return true;
  }
  m_s.m_prompt.Message(Tonvane::tr("Sorry, but ") + snd::ErrorString(result), PromptIcon::Warning);
  return true;
}

void PreviewPlayer::Renew() {
  bool playing = false, paused = false;
  if (m_previewChannel != nullptr) {
    m_previewChannel->isPlaying(&playing);
    m_previewChannel->getPaused(&paused);
  }
  m_previewPlaying = playing ? 1 : 0;
  m_previewPaused = paused ? 1 : 0;
}

bool PreviewPlayer::Active() {
  Renew();
  return m_previewPlaying || m_previewPaused;
}

void PreviewPlayer::PlayPause() {
  if (m_previewSystem == nullptr) {
    // One system for the process: this takes a hold on the main window's, or makes it.
    m_previewResult = snd::System_Create(&m_previewSystem);
    if (m_previewSystem != nullptr) m_previewResult = m_previewSystem->init(2, 0, nullptr);
  }
  if (!m_previewGate) return;
  m_previewGate = 0;
  struct Gate {
    int& gate;
    ~Gate() { gate = 1; }
  } gate{m_previewGate};
  const int row = m_list.FocusedRow();
  if (row >= 0 && m_list.Record(row) != nullptr) m_previewPath = m_list.Record(row)->path;
  if (m_previewPath.isEmpty()) return;
  Renew();
  const bool same = m_previewPlayingPath == m_previewPath;
  if (m_previewPlaying && !m_previewPaused && same) {
    // Pause: fade out, then the channel pauses.
    m_previewFadeStep = m_previewVolume / kFadeTicks;
    m_previewFadeVolume = m_previewVolume;
    m_previewFadeCount = 0;
    m_timers.KillTimer(kTimerFadeIn);
    m_timers.StartTimer(kTimerFadeOut, kFadePeriodMs);
    m_timers.KillTimer(kTimerPosition);
    m_positionTimer = false;
    m_view.pauseFace = false;
  } else if (m_previewPlaying && m_previewPaused && same) {
    m_timers.KillTimer(kTimerFadeOut);
    m_previewResult = m_previewChannel->setPaused(false);
    FadeIn();
    m_timers.StartTimer(kTimerPosition, kPositionPeriodMs);
    m_positionTimer = true;
    m_view.pauseFace = true;
  } else if (m_previewLoaded && same) {
    Restart();
  } else {
    if (m_previewPlaying || m_previewPaused) Stop();
    FreshStart();
  }
  Changed();
}

QString PreviewPlayer::MakeWorkFile(const BatchFileInfo& info) {
  DeleteTemp();
  m_previewTempPath = PreviewWorkPathFor(info.path);
  JobControl control;
  DecodeJob job;
  job.kind = int(info.kind);
  job.source = info.path;
  job.control = &control;
  WorkFileWriter writer(m_previewTempPath, info.path);
  std::atomic<bool> done{false};
  // The decode runs beside the window; the window's events go on meanwhile, and a stop, the
  // next row or the window's end aborts it.
  m_decoding = &control;
  std::thread worker([&] {
    DecodeToSink(job, writer);
    done.store(true);
  });
  while (!done.load()) {
    if (m_s.m_pump) m_s.m_pump->ProcessEvents();
    std::this_thread::sleep_for(std::chrono::milliseconds(4));
  }
  worker.join();
  m_decoding = nullptr;
  const bool stopped = control.IsAborted();
  // A damaged stream plays what came before the damage, as the main window's work file does.
  const bool playable = !stopped && job.bytes > 0 &&
                        (job.status == DecodeStatus::Ok || (job.status == DecodeStatus::Damaged && !job.stopsTest));
  if (!stopped)
    for (const QString& m : job.messages) m_s.m_prompt.Message(m, PromptIcon::Error);
  if (!playable) {
    DeleteTemp();
    return {};
  }
  return m_previewTempPath;
}

QString PreviewPlayer::PlayableFile(const BatchFileInfo& info) {
  if (PlaysSource(info)) {
    DeleteTemp();
    return info.path;
  }
  return MakeWorkFile(info);
}

void PreviewPlayer::FreshStart() {
  const int row = m_list.FocusedRow();
  const BatchFileInfo* info = row >= 0 ? m_list.Record(row) : nullptr;
  if (info == nullptr) return;
  const BatchFileInfo record = *info;  // the list may change while a work file is made
  m_previewPlayingPath = m_previewPath = record.path;
  m_previewKind = int(record.kind);
  m_previewDurationMs = record.durationMs;
  ReleaseSound();
  Changed();
  if (m_previewSystem == nullptr) return;
  const QString file = PlayableFile(record);
  if (file.isEmpty()) {
    StopPreview();
    return;
  }
  m_previewResult =
      m_previewSystem->createStream(file, snd::MODE_UNICODE | snd::MODE_LOWMEM | snd::MODE_CREATESAMPLE, nullptr, &m_previewSound);
  if (ErrorCheck(m_previewResult)) {
    StopPreview();
    return;
  }
  m_previewResult = m_previewSystem->playSound(snd::CHANNEL_FREE, m_previewSound, false, &m_previewChannel);
  if (ErrorCheck(m_previewResult)) {
    StopPreview();
    return;
  }
  m_previewLoaded = 1;
  if (m_previewVolume == -1.0f) {
    if (m_previewVolumePos == -1) m_previewVolumePos = kFirstVolumePos;
    m_previewVolume = float(m_previewVolumePos) / 100.0f;
  }
  m_view.volumePos = m_previewVolumePos;
  Restart();
}

// Plays the loaded sound from its start (after a fresh start, the channel is already there).
void PreviewPlayer::Restart() {
  if (m_previewChannel == nullptr) {
    m_previewResult = m_previewSystem->playSound(snd::CHANNEL_FREE, m_previewSound, false, &m_previewChannel);
    if (ErrorCheck(m_previewResult)) {
      StopPreview();
      return;
    }
  }
  FadeIn();
  m_timers.StartTimer(kTimerPosition, kPositionPeriodMs);
  m_positionTimer = true;
  unsigned durationMs = m_previewDurationMs;
  if (durationMs == 0 && m_previewSound != nullptr) m_previewSound->getLength(&durationMs, snd::TIMEUNIT_MS);
  m_view.seekMax = int(std::max(durationMs, 100u) / 100);
  m_previewSeekPos = m_view.seekPos = 0;
  m_view.pauseFace = true;
  m_view.stopEnabled = true;
}

void PreviewPlayer::FadeIn() {
  m_previewFadeStep = m_previewVolume / kFadeTicks;
  m_previewFadeVolume = 0;
  m_previewFadeCount = 0;
  if (m_previewChannel != nullptr) m_previewChannel->setVolume(0.01f);
  m_timers.StartTimer(kTimerFadeIn, kFadePeriodMs);
}

void PreviewPlayer::ResetTransport() {
  m_timers.KillTimer(kTimerPosition);
  m_timers.KillTimer(kTimerFadeIn);
  m_timers.KillTimer(kTimerFadeOut);
  m_positionTimer = false;
  m_previewChannel = nullptr;
  m_previewSeekPos = m_view.seekPos = 0;
  m_view.pauseFace = false;
  m_view.stopEnabled = false;
  for (QString& f : m_view.position) f.clear();
}

void PreviewPlayer::Stop() {
  if (m_previewChannel != nullptr) m_previewChannel->stop();
  ResetTransport();
  Changed();
}

void PreviewPlayer::ReleaseSound() {
  if (m_previewChannel != nullptr) m_previewChannel->stop();
  ResetTransport();
  if (m_previewSound != nullptr) m_previewSound->release();
  m_previewSound = nullptr;
  m_previewLoaded = 0;
}

void PreviewPlayer::DeleteTemp() {
  if (m_previewTempPath.isEmpty()) return;
  DeleteWorkFile(m_previewTempPath);
  m_previewTempPath.clear();
}

void PreviewPlayer::StopPreview() {
  if (m_decoding != nullptr) m_decoding->Abort();
  ReleaseSound();
  // Nothing plays it any more: the work file goes now rather than at the next start.
  if (m_decoding == nullptr) DeleteTemp();
  m_previewPlayingPath.clear();
  Changed();
}

void PreviewPlayer::Step(int direction) {
  const int count = m_list.FileCount();
  if (count == 0) return;
  const int row = m_list.FocusedRow();
  const int to = row < 0 ? 0 : std::clamp(row + direction, 0, count - 1);
  m_list.FocusRow(to);
  StopPreview();
  PlayPause();
}

void PreviewPlayer::Next() { Step(1); }
void PreviewPlayer::Previous() { Step(-1); }

void PreviewPlayer::SetPreviewFile(const QString& path) {
  if (Active()) return;  // a playing preview keeps its file
  if (path != m_previewPlayingPath && m_previewLoaded) StopPreview();
  m_previewPath = path;
  Changed();
}

void PreviewPlayer::ClearPreview() {
  StopPreview();
  m_previewPath.clear();
  Changed();
}

void PreviewPlayer::VolumeUp() { OnVolumeSlider(SteppedVolume(m_view.volumePos, true)); }
void PreviewPlayer::VolumeDown() { OnVolumeSlider(SteppedVolume(m_view.volumePos, false)); }

void PreviewPlayer::OnVolumeSlider(int pos) {
  pos = std::clamp(pos, 0, 100);
  m_view.volumePos = m_previewVolumePos = pos;
  // Also without a channel: the next start plays at what the slider shows.
  m_previewVolume = float(pos) / 100.0f;
  if (m_previewChannel != nullptr) m_previewResult = m_previewChannel->setVolume(m_previewVolume);
  Changed();
}

void PreviewPlayer::SetSeekPosition(int pos) { m_previewSeekPos = m_view.seekPos = pos; }

void PreviewPlayer::OnTick(int timerId) {
  Renew();
  bool changed = false;
  if (timerId == kTimerPosition && m_previewPlaying && m_previewSeekEnabled) {
    if (m_previewSeekTicking) m_view.seekPos = std::min(++m_previewSeekPos, m_view.seekMax);
    unsigned ms = 0;
    if (m_previewChannel != nullptr) m_previewChannel->getPosition(&ms, snd::TIMEUNIT_MS);
    m_view.position[0] = TwoDigits(ms / 60000);
    m_view.position[1] = TwoDigits(ms / 1000 % 60);
    changed = true;
  }
  if (timerId == kTimerFadeIn) {
    m_previewFadeVolume += m_previewFadeStep;
    if (m_previewChannel != nullptr) m_previewChannel->setVolume(m_previewFadeVolume);
    if (++m_previewFadeCount >= kFadeTicks) m_timers.KillTimer(kTimerFadeIn);
  }
  if (timerId == kTimerFadeOut) {
    m_previewFadeVolume = std::max(0.0f, m_previewFadeVolume - m_previewFadeStep);
    if (m_previewChannel != nullptr) m_previewChannel->setVolume(m_previewFadeVolume);
    if (++m_previewFadeCount >= kFadeTicks) {
      if (m_previewChannel != nullptr) m_previewChannel->setPaused(true);
      m_timers.KillTimer(kTimerFadeOut);
    }
  }
  // The end of the file: the transport goes back to rest; no step, no repeat.
  if (m_previewChannel != nullptr && m_positionTimer && !m_previewPlaying && !m_previewPaused) {
    ResetTransport();
    changed = true;
  }
  if (changed) Changed();
}

void PreviewPlayer::Shutdown() {
  StopPreview();
  if (m_previewSystem != nullptr) {
    m_previewSystem->release();
    m_previewSystem = nullptr;
  }
}
