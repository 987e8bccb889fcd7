#pragma once
// The main window's player: Play/Pause, Stop, Mute, the volume with its fades, the
// position timer and the end of a track. It plays the session's work file where it stands
// (or the source itself on a read-only medium) through the process's sound system.
//
// Everything runs on the user-interface thread. The window's timers reach the engine
// through IPlayerTimers; what the transport shows is a PlayerView that the window renders
// after each change.
#include <QString>
#include <functional>

#include "app/Session.h"
#include "player/SeekHost.h"
#include "player/SoundSystem.h"

// 1 once the process's sound system has been created and initialised (whatever init said).
extern int g_fmodReady;

// The window's timers, by their ids (kTimerPosition, kTimerFadeIn, kTimerFadeOut,
// kTimerPlayNew). A timer that is started again restarts.
class IPlayerTimers {
 public:
  virtual ~IPlayerTimers() = default;
  virtual void StartTimer(int id, int periodMs, bool singleShot = false) = 0;
  virtual void KillTimer(int id) = 0;
};

// Tool-tip texts of the transport, by their numbers.
enum PlayerTip : int {
  kTipVolume = 19,
  kTipPrevious = 224,
  kTipNext = 225,
  kTipRepeat = 270,
  kTipSeek = 325,
  kTipPlay = 326,
  kTipStop = 327,
  kTipMute = 328,
  kTipPause = 384,
  kTipShuffle = 562,
};
// The tool-tip's mark-up, with the program's own colour names turned into colours.
QString PlayerTipHtml(int tip);
// The plain name of a tool-tip (its heading), for accessible names.
QString PlayerTipName(int tip);

// The volume commands' step: ten up or down, within 0 to 100.
inline int SteppedVolume(int pos, bool up) { return up ? (pos < 90 ? pos + 10 : 100) : (pos > 10 ? pos - 10 : 0); }

// What the transport shows.
struct PlayerView {
  bool pauseFace = false;  // the Play button shows Pause (tool-tip 384), else Play (326)
  bool stopEnabled = false;
  bool muteEnabled = false;
  bool mutedFace = false;
  int seekMax = 0;  // seek range 0 .. seekMax, units of 100 ms
  int seekPos = 0;
  int volumePos = 10;         // volume slider, 0 .. 100
  QString position[3];        // minutes, seconds, hundredths; empty when cleared
};

class PlayerEngine : public ISeekHost {
 public:
  PlayerEngine(Session& s, IPlayerTimers& timers);
  ~PlayerEngine() override;

  void PlayPause();
  // Stops the channel but keeps the sound for a quick restart.
  void Stop();
  // Stops, releases the sound and lets go of the play file: before an open, a test, a
  // failure of Play/Pause and the end of the program.
  void StopAndRestore();
  void ToggleMute();
  void VolumeUp();
  void VolumeDown();
  void OnVolumeSlider(int pos);
  // Shows a failed sound system call; true when `result` is a failure.
  bool ErrorCheck(int result);
  // The window's timers, all of them (the end of a track is looked for on every tick).
  void OnPlayerTick(int timerId);
  // Releases the sound and the system (program end).
  void Shutdown();

  const PlayerView& View() const { return m_view; }
  // Called after every change of the view.
  std::function<void()> onViewChanged;
  // Called when a track has ended and the transport is reset (the play order decides).
  std::function<void()> onTrackEnd;

  // The seek bar's side: it moves the channel itself and tells the engine.
  snd::Channel* SeekChannel() override { return m_fmodChannel; }
  void SetSeekTicking(int ticking) override { m_seekTicking = ticking; }
  void SetSeekEnabled(int enabled) override { m_seekEnabled = enabled; }
  void SetSeekPosition(int pos) override;
  bool StopEnabled() override { return m_view.stopEnabled; }
  void StopFromSeekBar() override { Stop(); }

  // State, by the names of the main window's members.
  snd::System* m_fmodSystem = nullptr;
  snd::Sound* m_fmodSound = nullptr;
  snd::Channel* m_fmodChannel = nullptr;
  int m_fmodResult = 0;
  int m_isPlaying = 0;
  int m_isPaused = 0;
  int m_soundLoaded = 0;
  int m_muted = 0;
  int m_playGate = 1;
  float m_fadeVolume = 0;
  float m_fadeStep = 0;
  int m_fadeCount = 0;
  int m_seekPos = 0;
  int m_seekTicking = 1;  // the position timer moves the seek bar; 0 while the user holds it
  int m_seekEnabled = 1;  // the position timer runs at all; 0 while the bar steps by its arrows

 private:
  void Renew();
  void FadeIn();
  void FreshStart();
  void Restart();
  void StartPositionTimer();
  void ResetTransportAtEnd();
  void ClearPositionFields();
  void Changed();
  void ShowError(const QString& text, const QString& family = {});

  Session& m_s;
  IPlayerTimers& m_timers;
  PlayerView m_view;
  bool m_positionTimer = false;
  bool m_deviceErrorShown = false;
};
