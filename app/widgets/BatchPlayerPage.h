#pragma once
// The "Player" page of the batch window: the transport of the preview for the focused row
// (seek bar, name, Play/Pause, Stop, Previous, Next, volume, position). It renders the
// preview's view and forwards each control to it; the list's focus reaches it here.
#include <QWidget>
#include <map>

#include "player/PreviewPlayer.h"

class BatchList;
class CBatchListView;
class QLabel;
class QLineEdit;
class QTimer;
class QToolButton;
class SeekBar;
class VolumeSlider;

class CBatchPlayerPage : public QWidget, private IPlayerTimers, private IPreviewList {
  Q_OBJECT
 public:
  CBatchPlayerPage(Session& s, BatchList& list, CBatchListView& view, QWidget* parent = nullptr);
  ~CBatchPlayerPage() override;

  PreviewPlayer& preview() { return m_preview; }
  // The commands that may be used now: Play, Previous and Next (Stop follows the preview).
  void SetTransportEnabled(bool play, bool stepping);
  SeekBar* seekBar() const { return m_seek; }
  VolumeSlider* volumeSlider() const { return m_volume; }
  QLineEdit* nameField() const { return m_name; }
  QToolButton* playButton() const { return m_play; }

 private:
  void StartTimer(int id, int periodMs, bool singleShot) override;
  void KillTimer(int id) override;
  int FileCount() const override;
  int FocusedRow() const override;
  void FocusRow(int row) override;
  const BatchFileInfo* Record(int row) const override;
  void Render();

  BatchList& m_list;
  CBatchListView& m_view;
  PreviewPlayer m_preview;
  std::map<int, QTimer*> m_timers;
  SeekBar* m_seek = nullptr;
  QLineEdit* m_name = nullptr;
  QToolButton* m_play = nullptr;
  QToolButton* m_stop = nullptr;
  QToolButton* m_next = nullptr;
  QToolButton* m_previous = nullptr;
  VolumeSlider* m_volume = nullptr;
  QLabel* m_position[2] = {};
  QLabel* m_colon = nullptr;
};
