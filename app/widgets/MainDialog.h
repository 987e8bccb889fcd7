#pragma once
// The main window: it owns the session record and renders from it. Every command that
// measures, decodes or decides calls into the core; the window only shows state.
#include <QMainWindow>
#include <QString>
#include <array>
#include <map>

#include "app/Session.h"
#include "app/widgets/QtSeams.h"

class QAction;
class QButtonGroup;
class QComboBox;
class QGroupBox;
class QLabel;
class QLCDNumber;
class QProgressBar;
class QPushButton;
class QRadioButton;
class QSlider;
class QToolBar;
class QToolButton;

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
  kIdVolume = 1156,
  kIdPlay = 1152,
  kIdStop = 1154,
  kIdShuffle = 561,
  kIdRepeat = 271,
  kIdMute = 1155,
  kIdPrevious = 1157,
  kIdNext = 235,
};

class CBrenlowv10Dlg : public QMainWindow {
  Q_OBJECT
 public:
  explicit CBrenlowv10Dlg(const QString& commandLineFile = {}, QWidget* parent = nullptr);
  ~CBrenlowv10Dlg() override;

  Session& session() { return m_s; }
  QAction* action(int id) const;
  QWidget* control(int id) const;
  const QString& commandLineFile() const { return m_commandLineFile; }
  int timerTicks() const { return m_enableTicks; }

  // Enter: reopens the current selection of the file list.
  void OpenByName(const QString& path);
  // Leaves the program: deletes the work file and ends the window.
  void Shutdown();
  // The batch processor: the kind of the open file, or the one chosen; the window is modal.
  void OnBatchProcessor();

 protected:
  void timerEvent(class QTimerEvent* e) override;
  void keyPressEvent(class QKeyEvent* e) override;
  void closeEvent(class QCloseEvent* e) override;

 private:
  void BuildMenus();
  void BuildToolBar();
  void BuildCentral();
  void BuildStatusBar();
  QAction* AddCommand(class QMenu* menu, int id, const QString& text, const QKeySequence& key = {});
  void ApplyEnablingRules();
  void RenderFromSession();
  void OnExit();
  void OnFileOpen();
  void OpenPath(const QString& path);
  void FillFileList(const QString& folder);
  void OnTest();
  void ShowLevels();
  void SetTestMode(int mode);
  void SetShowDb(int db);

  Session m_s;
  QtPrompt m_promptUi;
  QtPump m_pumpUi;
  QString m_commandLineFile;
  int m_timer1 = 0;
  int m_enableTicks = 0;

  std::map<int, QAction*> m_actions;
  std::map<int, QWidget*> m_controls;
  QToolBar* m_toolBar = nullptr;
  QComboBox* m_fileCombo = nullptr;
  QPushButton* m_testButton = nullptr;
  std::array<QLabel*, 5> m_propertyLabels{};
  QRadioButton* m_peakRadio = nullptr;
  QRadioButton* m_averageRadio = nullptr;
  QProgressBar* m_leftBar = nullptr;
  QProgressBar* m_rightBar = nullptr;
  QLabel* m_scaleLabel = nullptr;
  std::array<QLabel*, 2> m_maxLabels{};
  std::array<QLabel*, 2> m_clipLabels{};
  std::array<QLabel*, 2> m_levelTexts{};
  QSlider* m_seekBar = nullptr;
  QSlider* m_volumeSlider = nullptr;
  QLabel* m_statusText = nullptr;
  QProgressBar* m_statusProgress = nullptr;
};
