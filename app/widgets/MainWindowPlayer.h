#pragma once
// The main window's player wiring: the engine and the play order behind the window's
// transport commands, their timers as QTimers, the window's file list as the play order's
// list, the seek bar and the volume slider, and the faces, tool-tips and accessible names
// of the transport rendered from the engine's view after each change.
#include <QObject>
#include <map>

#include "player/PlayOrder.h"
#include "player/PlayerEngine.h"

class CBrenlowv10Dlg;
class QComboBox;
class QLabel;
class QTimer;
class QToolButton;
class SeekBar;
class VolumeSlider;

class MainWindowPlayer : public QObject, private IPlayerTimers, private IFileList {
  Q_OBJECT
 public:
  // Takes the window's transport over: fills its player commands and puts the seek bar and
  // the volume slider in place of its plain ones.
  explicit MainWindowPlayer(CBrenlowv10Dlg* dialog);
  ~MainWindowPlayer() override;

  PlayerEngine& engine() { return m_engine; }
  PlayOrder& order() { return m_order; }
  SeekBar* seekBar() const { return m_seekBar; }
  VolumeSlider* volumeSlider() const { return m_volume; }

 private:
  // IPlayerTimers: the window's player timers.
  void StartTimer(int id, int periodMs, bool singleShot) override;
  void KillTimer(int id) override;
  // IFileList over the window's file list.
  int Count() const override;
  int Selected() const override;
  QString Text(int index) const override;
  void Remove(int index) override;
  void Select(int index) override;
  int FindExact(const QString& text) const override;
  void Focus() override;

  void Render();
  void Watch();
  QToolButton* Button(int id) const;

  CBrenlowv10Dlg* m_dialog;
  Session& m_s;
  PlayerEngine m_engine;
  PlayOrder m_order;
  std::map<int, QTimer*> m_timers;
  QTimer* m_tick = nullptr;  // the window's 100 ms tick, on which the end of a track is seen
  QComboBox* m_combo = nullptr;
  SeekBar* m_seekBar = nullptr;
  VolumeSlider* m_volume = nullptr;
  QLabel* m_position[3] = {};
  bool m_seamed = false;
  bool m_commandLinePlayed = false;
};
