#pragma once
// The main window: it owns the session record and renders from it. Every command that
// measures, decodes or decides calls into the core; the window only shows state.
#include <QMainWindow>
#include <QString>
#include <array>
#include <functional>
#include <map>

#include "app/Session.h"
#include "app/widgets/QtSeams.h"

class LevelBar;
class QAction;
class QComboBox;
class QLabel;
class QProgressBar;
class QPushButton;
class QRadioButton;
class QShortcut;
class QSlider;
class QToolBar;
struct LevelShowing;

// Command ids of the menus, tool bar and accelerators.
enum CommandId : int {
  kCmdOpen = 57601,
  kCmdClose = 57602,
  kCmdExit = 32802,
  kCmdTest = 32784,
  kCmdBatch = 32858,
  kCmdPlayPause = 32831,
  kCmdStop = 32830,
  kCmdVolumeUp = 32827,
  kCmdVolumeDown = 32828,
  kCmdMute = 32829,
  kCmdPrevious = 32951,
  kCmdNext = 32952,
  kCmdShuffle = 32783,
  kCmdRepeat = 32947,
  kCmdRepeatAll = 32955,
  kCmdAlwaysOnTop = 32965,
  kCmdBeep = 32916,
  kCmdShowPercent = 33031,
  kCmdShowDb = 33030,
  kCmdUseDatabase = 734,
  kCmdClearDatabase = 733,
  kCmdDatabase = 732,
  kCmdHelp = 57670,
  kCmdHomepage = 32815,
  kCmdAbout = 32786,
  // Tool-bar items.
  kToolOpen = 757,
  kToolBatch = 309,
  kToolHelp = 756,
  kToolExit = 304,
};

// Control ids of the window, kept so a reader of the code can look each one up.
enum ControlId : int {
  kIdFileLabel = 1021,
  kIdFileCombo = 1100,
  kIdTestButton = 1055,
  kIdPropertyHeader = 1257,
  kIdPeakRadio = 805,
  kIdAverageRadio = 285,
  kIdLeftBar = 1004,
  kIdRightBar = 1005,
  kIdLeftCaption = 1023,
  kIdRightCaption = 1048,
  kIdScaleLabel = 812,
  kIdLeftMax = 804,
  kIdRightMax = 803,
  kIdLeftClip = 263,
  kIdRightClip = 264,
  kIdSeekBar = 1153,
  kIdVolume = 1156,
  kIdPlay = 1152,
  kIdStop = 1154,
  kIdShuffle = 561,
  kIdRepeat = 271,
  kIdMute = 1155,
  kIdPrevious = 1157,
  kIdNext = 235,
};

// What the player puts behind the window's transport commands and the end-of-test sound.
// Until it is filled the commands exist, follow the enabling rules and do nothing.
struct PlayerCommands {
  std::function<void()> playPause, stop, volumeUp, volumeDown, mute, previous, next, toggleShuffle,
      toggleRepeat, toggleRepeatAll;
  std::function<void(int)> setVolume;
  std::function<void()> stopAndRestore;  // lets go of the work file before a test or a close
  std::function<void()> notify;          // the sound at the end of a test
};

class CBrenlowv10Dlg : public QMainWindow {
  Q_OBJECT
 public:
  explicit CBrenlowv10Dlg(const QString& commandLineFile = {}, QWidget* parent = nullptr);
  ~CBrenlowv10Dlg() override;

  Session& session() { return m_s; }
  QAction* action(int id) const;
  QWidget* control(int id) const;
  LevelBar* bar(int channel) const { return m_bars[size_t(channel)]; }
  QLabel* label(int id) const;
  QProgressBar* statusProgress() const { return m_statusProgress; }
  QString statusText() const;
  const QString& commandLineFile() const { return m_commandLineFile; }
  int timerTicks() const { return m_enableTicks; }
  int nextIndex() const { return m_nextIndex; }
  int previousIndex() const { return m_previousIndex; }

  void SetPlayerCommands(const PlayerCommands& commands) { m_player = commands; }

  // The ways in for a file: the Open command, and a name from the list (empty path: the
  // list's selection), the command line, a drop or the player's steps. 1 when a file is open.
  void OnFileOpen();
  int OpenByName(const QString& path);
  void OnTest();
  void OnFileClose();
  void SetTestMode(int mode);
  void SetShowDb(int db);
  // Leaves the program: deletes the work file and ends the window.
  void Shutdown();
  // The batch processor: the kind of the open file, or the one chosen; the window is modal.
  void OnBatchProcessor();

 protected:
  void timerEvent(class QTimerEvent* e) override;
  void keyPressEvent(class QKeyEvent* e) override;
  void closeEvent(class QCloseEvent* e) override;
  void dragEnterEvent(class QDragEnterEvent* e) override;
  void dropEvent(class QDropEvent* e) override;

 private:
  void BuildMenus();
  void BuildToolBar();
  void BuildCentral();
  void BuildStatusBar();
  QAction* AddCommand(class QMenu* menu, int id, const QString& text, const QKeySequence& key = {});
  void ConnectCommands();
  void ApplyEnablingRules();
  void RenderSession();
  void RenderTitle();
  void ApplyDisplayRules();
  void RenderResult(const LevelShowing& shown);
  void ClearBars();
  void AfterOpen();
  bool OpenedBy(const std::function<bool()>& call);
  void FillList();
  void ClearListSelection();
  void ShowDuration();
  void ClearTimeLabels();
  void HideFinishedProgress();
  void StartTestUi();
  void FinishTestUi();
  void StopTestUi();
  void OnExit();
  void OnDatabase();
  QString ChooseFile();
  void Call(const std::function<void()>& f) const {
    if (f) f();
  }

  Session m_s;
  QtPrompt m_promptUi;
  QtPump m_pumpUi;
  QString m_commandLineFile;
  PlayerCommands m_player;
  int m_timer1 = 0;
  int m_timer2 = 0;
  int m_enableTicks = 0;
  int m_nextIndex = -1;
  int m_previousIndex = -1;

  std::map<int, QAction*> m_actions;
  std::map<int, QWidget*> m_controls;
  QToolBar* m_toolBar = nullptr;
  QComboBox* m_fileCombo = nullptr;
  QPushButton* m_testButton = nullptr;
  std::array<QLabel*, 5> m_propertyLabels{};
  QRadioButton* m_peakRadio = nullptr;
  QRadioButton* m_averageRadio = nullptr;
  std::array<LevelBar*, 2> m_bars{};
  QWidget* m_titleBetween = nullptr;  // stereo: the bars' title between them
  QWidget* m_titleAbove = nullptr;    // mono: the same above the bar
  std::array<QLabel*, 2> m_titles{};  // "Volume Level" in both places
  std::array<QLabel*, 2> m_subtitles{};
  std::array<QLabel*, 2> m_captions{};
  QLabel* m_scaleLabel = nullptr;
  std::array<QLabel*, 2> m_maxLabels{};
  std::array<QLabel*, 2> m_clipLabels{};
  std::array<QLabel*, 6> m_timeLabels{};
  QSlider* m_seekBar = nullptr;
  QSlider* m_volumeSlider = nullptr;
  QLabel* m_statusText = nullptr;
  QProgressBar* m_statusProgress = nullptr;
  QShortcut* m_exitDuringTest = nullptr;
};
