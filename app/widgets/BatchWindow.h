#pragma once
// The batch window: a list of files of one kind, gathered from files, folders, playlists and
// drops, tested in one run under a progress dialog, with a preview player for the focused
// row. It renders the core's list and forwards every command to the core.
#include <QDialog>
#include <QElapsedTimer>
#include <QStringList>
#include <functional>
#include <map>

#include "batch/BatchControl.h"
#include "batch/BatchWindowRules.h"

class BatchAdder;
class BatchList;
class CAddFoldersDlg;
class CBatchListView;
class CBatchPlayerPage;
class CBatchProgress;
class CWaitDlg;
class QAction;
class QLabel;
class QLineEdit;
class QMenu;
class QPushButton;
class QRadioButton;
class QTabWidget;
class QToolBar;
struct Session;

class CBatch : public QDialog {
  Q_OBJECT
 public:
  CBatch(Session& s, int batchKind, QWidget* parent = nullptr);
  ~CBatch() override;

  int BatchKind() const { return m_batchKind; }
  BatchList* list() const { return m_list; }
  CBatchListView* view() const { return m_view; }
  QAction* action(int id) const;
  const QString& Folder() const { return m_folder; }
  int BatchTestMode() const { return m_batchTestMode; }
  bool HintShown() const;
  QString LeftStatus() const;
  QString RightStatus() const;
  QTabWidget* tabs() const { return m_tabs; }
  CBatchPlayerPage* playerPage() const { return m_player; }
  bool AddBusy() const { return m_addBusy; }

  // The choosers of the add commands; a test gives its own (empty: Cancel).
  std::function<QStringList()> chooseFiles;
  std::function<QString(const QString& title)> chooseFolder;
  std::function<QStringList()> choosePlaylists;
  // Called with each run's progress dialog before it shows (tests drive it from here).
  std::function<void(CBatchProgress&)> progressCreated;
  // Called with each folder search's dialog (tests pause and cancel from here).
  std::function<void(CAddFoldersDlg&)> searchCreated;

  // The commands.
  void OnAddFiles();
  void OnAddFolder();
  void OnAddFolders();
  void OnAddPlaylists();
  void OnDropPaths(const QStringList& paths);
  void OnTest();
  void OnRemove();
  void OnRemoveAll();
  void OnMove(bool down);
  void SetTestMode(int mode);
  void OnDatabase();
  // Close, Esc and the close box.
  void OnBatchClose();

 protected:
  void showEvent(QShowEvent* e) override;
  void closeEvent(QCloseEvent* e) override;
  void reject() override;
  void resizeEvent(QResizeEvent* e) override;
  bool eventFilter(QObject* watched, QEvent* e) override;

 private:
  QAction* AddCommand(QMenu* menu, int id, const QString& text, const QKeySequence& key = {});
  void BuildMenus(class QVBoxLayout* layout);
  void BuildToolBar(class QVBoxLayout* layout);
  void BuildPages();
  void FillAtOpening();
  // The frame around every add: the hint goes, the first row is selected, the status lines
  // and the enabling follow. `work` does the adding.
  void AddFrame(bool takePreview, const std::function<void(BatchAdder&)>& work);
  // A folder search under its dialog; returns the rows added.
  int SearchFolder(const QString& title, const QString& folder, bool recursive, BatchAdder& adder);
  void SetFolder(const QString& folder, bool remember);
  void TakeFolderOfFirstFile(int firstNewRow);
  void HideHint();
  void PlaceHint();
  void UpdateStatus();
  void ApplyEnabling();
  void PumpThrottled();
  void FinishPendingClose();

  Session& m_s;
  int m_batchKind;
  int m_savedTestMode = 0;
  int m_batchTestMode = 0;
  int m_showDb = 0;
  QString m_folder;
  QString m_folderBackup;
  bool m_hintHidden = false;
  bool m_addBusy = false;
  bool m_previewEnabled = true;
  bool m_closePending = false;
  bool m_closed = false;
  bool m_opened = false;
  BatchControl m_addControl;
  QElapsedTimer m_sincePump;
  CBatchProgress* m_progress = nullptr;
  CAddFoldersDlg* m_search = nullptr;

  BatchList* m_list = nullptr;
  CBatchListView* m_view = nullptr;
  QLabel* m_hint = nullptr;
  QLineEdit* m_folderLine = nullptr;
  QPushButton* m_browse = nullptr;
  QLineEdit* m_leftStatus = nullptr;
  QLineEdit* m_rightStatus = nullptr;
  QTabWidget* m_tabs = nullptr;
  QRadioButton* m_peakRadio = nullptr;
  QRadioButton* m_averageRadio = nullptr;
  QPushButton* m_testButton = nullptr;
  CBatchPlayerPage* m_player = nullptr;
  QToolBar* m_toolBar = nullptr;
  QMenu* m_rowMenu = nullptr;
  std::map<int, QAction*> m_actions;
};
