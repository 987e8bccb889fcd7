#pragma once
// The batch window's preview: a second player, for the focused row of the batch list, with
// its own sound, channel, volume and timers on the process's one sound system. It plays
// WAV (PCM and float), MP3, FLAC and Ogg Vorbis sources where they stand; any other row is
// first decoded to a PCM work file of the preview's own, which is deleted as soon as the
// preview lets go of it (another row, a stop that releases, the window's end).
//
// User-interface thread only; a decode runs on a thread of its own while the window's
// events go on through the session's pump.
#include <QString>
#include <functional>

#include "app/Session.h"
#include "player/PlayerEngine.h"
#include "player/SeekHost.h"
#include "player/SoundSystem.h"

struct BatchFileInfo;
class JobControl;

// What the preview needs of the batch list: its file rows, the focused one, and a way to
// move the focus.
class IPreviewList {
 public:
  virtual ~IPreviewList() = default;
  virtual int FileCount() const = 0;
  // The focused file row, -1 when the focus is on no file row.
  virtual int FocusedRow() const = 0;
  virtual void FocusRow(int row) = 0;
  virtual const BatchFileInfo* Record(int row) const = 0;
};

// Where the preview's work file for `source` goes: beside it as ".tmp", or, when that
// folder can't be written, under the user's cache folder with the same name.
QString PreviewWorkPathFor(const QString& source);

class PreviewPlayer : public ISeekHost {
 public:
  PreviewPlayer(Session& s, IPlayerTimers& timers, IPreviewList& list);
  ~PreviewPlayer() override;

  // Play, Pause or Resume the focused row; a row other than the one playing starts afresh.
  void PlayPause();
  // Stops the channel and keeps the sound for a quick restart of the same row.
  void Stop();
  // Stops and releases the sound, and deletes the work file: before a run, before rows go,
  // at the window's end.
  void StopPreview();
  // Moves the list's focus one file row on or back and plays it.
  void Next();
  void Previous();
  // The list's focus moved: an idle preview takes the row; a playing one keeps its file.
  void SetPreviewFile(const QString& path);
  // The name goes, the sound is released.
  void ClearPreview();
  void VolumeUp();
  void VolumeDown();
  void OnVolumeSlider(int pos);
  // The preview's timers (kTimerPosition, kTimerFadeIn, kTimerFadeOut).
  void OnTick(int timerId);
  // Releases everything and the preview's hold on the sound system.
  void Shutdown();

  // The channel plays or is paused.
  bool Active();
  const PlayerView& View() const { return m_view; }
  // Bare name of the previewed file, for the page's name field.
  QString Name() const;
  // Called after every change of the view or the name.
  std::function<void()> onViewChanged;

  // ISeekHost: the page's seek bar.
  snd::Channel* SeekChannel() override { return m_previewChannel; }
  void SetSeekTicking(int ticking) override { m_previewSeekTicking = ticking; }
  void SetSeekEnabled(int enabled) override { m_previewSeekEnabled = enabled; }
  void SetSeekPosition(int pos) override;
  bool StopEnabled() override { return m_view.stopEnabled; }
  void StopFromSeekBar() override { Stop(); }

  snd::System* m_previewSystem = nullptr;
  snd::Channel* m_previewChannel = nullptr;
  snd::Sound* m_previewSound = nullptr;
  int m_previewResult = 0;
  int m_previewPlaying = 0;
  int m_previewPaused = 0;
  float m_previewVolume = -1.0f;
  int m_previewVolumePos = -1;
  float m_previewFadeVolume = 0;
  float m_previewFadeStep = 0;
  int m_previewFadeCount = 0;
  int m_previewSeekPos = 0;
  int m_previewSeekTicking = 1;
  int m_previewSeekEnabled = 1;
  uint32_t m_previewDurationMs = 0;
  int m_previewKind = 0;
  QString m_previewPath;
  QString m_previewPlayingPath;
  QString m_previewTempPath;  // the preview's work file; empty when there is none
  int m_previewGate = 1;
  int m_previewLoaded = 0;

 private:
  void Renew();
  void FreshStart();
  void Restart();
  void Step(int direction);
  // The file the sound system is given for the focused row: the source, or a work file made
  // now. Empty when the work file could not be made (the reason has been shown).
  QString PlayableFile(const BatchFileInfo& info);
  QString MakeWorkFile(const BatchFileInfo& info);
  void DeleteTemp();
  void ReleaseSound();
  bool ErrorCheck(int result);
  void FadeIn();
  void ResetTransport();
  void Changed();

  Session& m_s;
  IPlayerTimers& m_timers;
  IPreviewList& m_list;
  PlayerView m_view;
  bool m_positionTimer = false;
  bool m_deviceErrorShown = false;
  JobControl* m_decoding = nullptr;  // the running decode, so a stop can end it
};
