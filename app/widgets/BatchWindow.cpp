#include "app/widgets/BatchWindow.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QRadioButton>
#include <QStyle>
#include <QTabWidget>
#include <QThread>
#include <QTimer>
#include <QToolBar>
#include <QVBoxLayout>

#include "app/ColorRef.h"
#include "app/FolderHistory.h"
#include "app/Session.h"
#include "app/Settings.h"
#include "app/Text.h"
#include "app/widgets/AddFoldersDlg.h"
#include "app/widgets/BatchListView.h"
#include "app/widgets/BatchPlayerPage.h"
#include "app/widgets/BatchProgressDlg.h"
#include "app/widgets/DataBaseDialog.h"
#include "app/widgets/ShellMenus.h"
#include "batch/BatchAdd.h"
#include "batch/BatchList.h"
#include "batch/BatchRun.h"
#include "controls/WaitDlg.h"
#include "formats/Kinds.h"
#include "log/TestLog.h"

namespace {

QString KindTitle(int kind) {
  const KindInfo* k = KindInfoOf(kind);
  return k ? Tonvane::tr(k->batchTitle) : Tonvane::tr("Batch Processor - Tonvane 1.0");
}

QString Css(uint32_t colorRef) { return QStringLiteral("#%1").arg(RgbOfColorRef(colorRef), 6, 16, QChar('0')); }

// Remembers the folders chosen in the dialogs and offers them as the dialog's history.
QString ChooseFolderWithHistory(QWidget* parent, const QString& title, const QString& start) {
  FolderHistory history;
  history.Load();
  QFileDialog dlg(parent, title, start.isEmpty() ? history.Current() : start);
  dlg.setFileMode(QFileDialog::Directory);
  dlg.setOption(QFileDialog::ShowDirsOnly, true);
  dlg.setHistory(history.Items());
  if (dlg.exec() != QDialog::Accepted || dlg.selectedFiles().isEmpty()) return {};
  const QString folder = dlg.selectedFiles().first();
  history.AddString(folder);
  history.Save();
  return folder;
}

QStringList ChooseFilesWithHistory(QWidget* parent, const QString& title, const QString& start,
                                   const QList<QPair<QString, QString>>& filters, int firstFilter) {
  FolderHistory history;
  history.Load();
  QStringList nameFilters;
  for (const auto& f : filters) nameFilters << f.first + " (" + QString(f.second).replace(';', ' ') + ")";
  QFileDialog dlg(parent, title, start.isEmpty() ? history.Current() : start);
  dlg.setFileMode(QFileDialog::ExistingFiles);
  dlg.setNameFilters(nameFilters);
  if (firstFilter >= 0 && firstFilter < nameFilters.size()) dlg.selectNameFilter(nameFilters[firstFilter]);
  dlg.setHistory(history.Items());
  QObject::connect(&dlg, &QFileDialog::filterSelected, &dlg, [nameFilters](const QString& f) {
    const int i = int(nameFilters.indexOf(f));
    if (i >= 0) Settings::SetInt("NumberFilter", i + 1);
  });
  if (dlg.exec() != QDialog::Accepted) return {};
  const QStringList files = dlg.selectedFiles();
  if (!files.isEmpty()) {
    history.AddString(QFileInfo(files.first()).absolutePath());
    history.Save();
  }
  return files;
}

// The keys of the pages at the window's foot: Up and Down walk through the page's controls
// that take the focus (a radio is not checked by it), and Escape stays on the page rather
// than closing the window.
class PageKeys : public QObject {
 public:
  explicit PageKeys(QWidget* page) : QObject(page), m_page(page) {
    for (QWidget* w : page->findChildren<QWidget*>())
      if (w->focusPolicy() & Qt::TabFocus) w->installEventFilter(this);
  }

 protected:
  bool eventFilter(QObject* watched, QEvent* e) override {
    if (e->type() != QEvent::KeyPress) return false;
    const int key = static_cast<QKeyEvent*>(e)->key();
    if (key == Qt::Key_Escape) return true;
    if (key != Qt::Key_Up && key != Qt::Key_Down) return false;
    QList<QWidget*> walk;
    for (QWidget* w : m_page->findChildren<QWidget*>())
      if ((w->focusPolicy() & Qt::TabFocus) && w->isVisible() && w->isEnabled()) walk << w;
    const int at = int(walk.indexOf(static_cast<QWidget*>(watched)));
    if (at < 0) return false;
    const int n = int(walk.size());
    walk[(at + (key == Qt::Key_Down ? 1 : n - 1)) % n]->setFocus(Qt::TabFocusReason);
    return true;
  }

 private:
  QWidget* m_page;
};

}  // namespace

CBatch::CBatch(Session& s, int batchKind, QWidget* parent)
    : QDialog(parent), m_s(s), m_batchKind(batchKind) {
  setObjectName("CBatch");
  setWindowTitle(KindTitle(batchKind));
  setWindowFlags(windowFlags() | Qt::WindowMinMaxButtonsHint);
  setSizeGripEnabled(true);
  m_savedTestMode = m_s.m_testMode;
  m_s.m_testMode = 0;
  m_showDb = m_s.m_showDb;
  // An MP3 batch takes only the average test; Ogg and MP4 start with it.
  m_batchTestMode = (batchKind == kKindMp3 || batchKind == kKindOgg || batchKind == kKindAac || batchKind == kKindAlac) ? 1 : 0;

  m_list = new BatchList(batchKind, g_batchFiles, this);
  m_list->SetShowDb(m_showDb != 0);

  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(6, 0, 6, 6);
  BuildMenus(layout);
  BuildToolBar(layout);

  // Folder line.
  auto* folderLine = new QHBoxLayout;
  auto* folderLabel = new QLabel(Tonvane::tr("Folder:"), this);
  m_folderLine = new QLineEdit(this);
  m_folderLine->setObjectName("folderLine");
  m_folderLine->setReadOnly(true);
  m_folderLine->setAccessibleName(Tonvane::tr("Folder:"));
  folderLabel->setBuddy(m_folderLine);
  m_browse = new QPushButton(Tonvane::tr("Browse..."), this);
  m_browse->setObjectName("browseButton");
  folderLine->addWidget(folderLabel);
  folderLine->addWidget(m_folderLine, 1);
  folderLine->addWidget(m_browse);
  layout->addLayout(folderLine);
  connect(m_browse, &QPushButton::clicked, this, &CBatch::OnAddFolder);

  // The list.
  m_view = new CBatchListView(this);
  m_view->SetBatchList(m_list);
  m_view->ApplyColumnLayout(LoadColumnLayout(batchKind));
  m_view->SetRowMenu(m_rowMenu);
  m_view->installEventFilter(this);
  layout->addWidget(m_view, 1);
  connect(m_view, &CBatchListView::pathsDropped, this, &CBatch::OnDropPaths);

  m_hint = new QLabel(Tonvane::tr("Please, drag Files, Folder or Folders (or press Add Files, Add Folder or Add Folders). "
                                  "Program will automatically choose only supported files."),
                      m_view->viewport());
  m_hint->setObjectName("hint");
  m_hint->setWordWrap(true);
  m_hint->setAlignment(Qt::AlignCenter);
  m_hint->setStyleSheet(QStringLiteral("background: %1; color: %2; padding: 8px;").arg(Css(0xffffff), Css(0xe81e06)));
  m_hint->setAttribute(Qt::WA_TransparentForMouseEvents);
  m_hint->hide();

  BuildPages();
  layout->addWidget(m_tabs);

  // Status lines.
  auto* status = new QHBoxLayout;
  m_leftStatus = new QLineEdit(this);
  m_leftStatus->setObjectName("leftStatus");
  m_rightStatus = new QLineEdit(this);
  m_rightStatus->setObjectName("rightStatus");
  for (QLineEdit* e : {m_leftStatus, m_rightStatus}) {
    e->setReadOnly(true);
    e->setFocusPolicy(Qt::ClickFocus);
    status->addWidget(e, 1);
  }
  m_leftStatus->setAccessibleName(Tonvane::tr(" The list contains: ").trimmed());
  m_rightStatus->setAccessibleName(Tonvane::tr(" Total Checked: ").trimmed());
  layout->addLayout(status);

  // The status lines follow the totals at most every 50 ms: a fill of thousands of rows
  // would otherwise spend its time writing them.
  auto* statusTimer = new QTimer(this);
  statusTimer->setSingleShot(true);
  statusTimer->setInterval(50);
  connect(statusTimer, &QTimer::timeout, this, &CBatch::UpdateStatus);
  connect(m_list, &BatchList::totalsChanged, statusTimer, [statusTimer] {
    if (!statusTimer->isActive()) statusTimer->start();
  });
  connect(m_view->selectionModel(), &QItemSelectionModel::currentRowChanged, this, [this] { ApplyEnabling(); });
  auto* enabling = new QTimer(this);
  connect(enabling, &QTimer::timeout, this, &CBatch::ApplyEnabling);
  enabling->start(250);

  m_addControl.processEvents = [this] { PumpThrottled(); };
  m_folder = m_s.m_patchFolder;
  resize(1000, 640);
  UpdateStatus();
  ApplyEnabling();
}

CBatch::~CBatch() {
  m_addControl.processEvents = nullptr;
  if (!m_closed) m_s.m_testMode = m_savedTestMode;
}

QAction* CBatch::action(int id) const {
  auto it = m_actions.find(id);
  return it == m_actions.end() ? nullptr : it->second;
}

QAction* CBatch::AddCommand(QMenu* menu, int id, const QString& text, const QKeySequence& key) {
  QAction* a = menu->addAction(text);
  a->setObjectName(QStringLiteral("batchCmd%1").arg(id));
  a->setData(id);
  if (!key.isEmpty()) {
    a->setShortcut(key);
    a->setShortcutContext(Qt::WindowShortcut);
  }
  addAction(a);
  m_actions[id] = a;
  return a;
}

void CBatch::BuildMenus(QVBoxLayout* layout) {
  auto* bar = new QMenuBar(this);
  bar->setObjectName("batchMenuBar");
  layout->setMenuBar(bar);
  QMenu* file = bar->addMenu(Tonvane::tr("&File"));
  AddCommand(file, kBatchAddFiles, Tonvane::tr("&Add Files..."), QKeySequence("Ctrl+F"));
  AddCommand(file, kBatchAddFolder, Tonvane::tr("A&dd Folder..."), QKeySequence("Ctrl+D"));
  AddCommand(file, kBatchAddFolders, Tonvane::tr("Add &Folders..."), QKeySequence("Ctrl+Q"));
  AddCommand(file, kBatchAddPlaylists, Tonvane::tr("Add &Playlists..."), QKeySequence("Ctrl+M"));
  file->addSeparator();
  AddCommand(file, kBatchClose, Tonvane::tr("&Close"));

  QMenu* edit = bar->addMenu(Tonvane::tr("&Edit"));
  AddCommand(edit, kBatchMoveDown, Tonvane::tr("&Move Down"), QKeySequence("Alt+Down"));
  AddCommand(edit, kBatchMoveUp, Tonvane::tr("M&ove Up"), QKeySequence("Alt+Up"));
  edit->addSeparator();
  AddCommand(edit, kBatchCheckAll, Tonvane::tr("&Check All"), QKeySequence("Ctrl+A"));
  AddCommand(edit, kBatchUncheckAll, Tonvane::tr("&Uncheck All"), QKeySequence("Ctrl+B"));
  edit->addSeparator();
  AddCommand(edit, kBatchRemove, Tonvane::tr("&Remove"), QKeySequence(Qt::Key_Delete));
  AddCommand(edit, kBatchRemoveAll, Tonvane::tr("R&emove All"), QKeySequence("Ctrl+Del"));

  QMenu* actions = bar->addMenu(Tonvane::tr("Ac&tions"));
  AddCommand(actions, kBatchTest, Tonvane::tr("&Test"), QKeySequence("Ctrl+H"));

  QMenu* playback = bar->addMenu(Tonvane::tr("&Playback"));
  AddCommand(playback, kBatchPlayPause, Tonvane::tr("Play / Pa&use"), QKeySequence("Ctrl+U"));
  AddCommand(playback, kBatchStop, Tonvane::tr("&Stop"), QKeySequence("Ctrl+T"));
  QMenu* volume = playback->addMenu(Tonvane::tr("&Volume"));
  AddCommand(volume, kBatchVolumeUp, Tonvane::tr("Up"), QKeySequence("F10"));
  AddCommand(volume, kBatchVolumeDown, Tonvane::tr("Down"), QKeySequence("F9"));
  playback->addSeparator();
  AddCommand(playback, kBatchPrevious, Tonvane::tr("P&revious"), QKeySequence("P"));
  AddCommand(playback, kBatchNext, Tonvane::tr("&Next"), QKeySequence("N"));

  QMenu* window = bar->addMenu(Tonvane::tr("&Window"));
  AddCommand(window, kBatchAlwaysOnTop, Tonvane::tr("&Always on Top"), QKeySequence("Alt+B"))->setCheckable(true);

  QMenu* options = bar->addMenu(Tonvane::tr("&Options"));
  AddCommand(options, kBatchUseDatabase, Tonvane::tr("&Use Database"), QKeySequence("Alt+U"))->setCheckable(true);
  AddCommand(options, kBatchClearDatabase, Tonvane::tr("&Clear Database"), QKeySequence("Alt+C"));
  AddCommand(options, kBatchDatabase, Tonvane::tr("&Database..."), QKeySequence("Alt+D"));
  options->addSeparator();
  AddCommand(options, kBatchAllCores, Tonvane::tr("Use &All Processor Cores"))->setCheckable(true);

  QMenu* help = bar->addMenu(Tonvane::tr("&Help"));
  AddCommand(help, kBatchHelp, Tonvane::tr("Help Tonvane"), QKeySequence("F1"));

  action(kBatchUseDatabase)->setChecked(m_s.m_useDatabase != 0);
  action(kBatchAllCores)->setChecked(Settings::GetInt("BatchAllCores", 1) != 0);

  connect(action(kBatchAddFiles), &QAction::triggered, this, &CBatch::OnAddFiles);
  connect(action(kBatchAddFolder), &QAction::triggered, this, &CBatch::OnAddFolder);
  connect(action(kBatchAddFolders), &QAction::triggered, this, &CBatch::OnAddFolders);
  connect(action(kBatchAddPlaylists), &QAction::triggered, this, &CBatch::OnAddPlaylists);
  connect(action(kBatchClose), &QAction::triggered, this, &CBatch::reject);
  connect(action(kBatchMoveDown), &QAction::triggered, this, [this] { OnMove(true); });
  connect(action(kBatchMoveUp), &QAction::triggered, this, [this] { OnMove(false); });
  connect(action(kBatchCheckAll), &QAction::triggered, this, [this] { m_list->CheckAll(); });
  connect(action(kBatchUncheckAll), &QAction::triggered, this, [this] { m_list->UncheckAll(); });
  connect(action(kBatchRemove), &QAction::triggered, this, &CBatch::OnRemove);
  connect(action(kBatchRemoveAll), &QAction::triggered, this, &CBatch::OnRemoveAll);
  connect(action(kBatchTest), &QAction::triggered, this, &CBatch::OnTest);
  connect(action(kBatchAlwaysOnTop), &QAction::toggled, this, [this](bool on) {
    setWindowFlag(Qt::WindowStaysOnTopHint, on);
    show();
  });
  connect(action(kBatchUseDatabase), &QAction::toggled, this, [this](bool on) { m_s.m_useDatabase = on ? 1 : 0; });
  connect(action(kBatchClearDatabase), &QAction::triggered, this, [this] { ClearLog(m_s); });
  connect(action(kBatchDatabase), &QAction::triggered, this, &CBatch::OnDatabase);
  connect(action(kBatchAllCores), &QAction::toggled, this, [](bool on) { Settings::SetInt("BatchAllCores", on ? 1 : 0); });
  auto* shell = new ShellMenus(this);
  connect(action(kBatchHelp), &QAction::triggered, shell, &ShellMenus::OnHelp);

  m_rowMenu = new QMenu(this);
  m_rowMenu->setObjectName("rowMenu");
  for (int id : std::initializer_list<int>{kBatchPlayPause, kBatchStop, 0, kBatchAddFiles, kBatchAddFolder, kBatchAddFolders, kBatchAddPlaylists, 0,
                 kBatchCheckAll, kBatchUncheckAll, 0, kBatchRemove, kBatchRemoveAll}) {
    if (id == 0) m_rowMenu->addSeparator();
    else m_rowMenu->addAction(action(id));
  }
}

void CBatch::BuildToolBar(QVBoxLayout* layout) {
  m_toolBar = new QToolBar(Tonvane::tr("Tool Bar"), this);
  m_toolBar->setObjectName("batchToolBar");
  m_toolBar->setToolButtonStyle(Qt::ToolButtonIconOnly);
  m_toolBar->setIconSize(QSize(22, 22));
  QStyle* st = style();
  struct Item {
    int id;
    QStyle::StandardPixmap icon;
    const char* tip;
  };
  const Item items[] = {
      {kBatchAddFiles, QStyle::SP_FileIcon, QT_TRANSLATE_NOOP("Tonvane", "Add Files (Ctrl+F)")},
      {kBatchAddFolder, QStyle::SP_DirIcon, QT_TRANSLATE_NOOP("Tonvane", "Add Folder (Ctrl+D)")},
      {kBatchAddFolders, QStyle::SP_DirOpenIcon, QT_TRANSLATE_NOOP("Tonvane", "Add Folders (Ctrl+Q)")},
      {kBatchAddPlaylists, QStyle::SP_FileDialogDetailedView, QT_TRANSLATE_NOOP("Tonvane", "Add Playlists (Ctrl+M)")},
      {0, {}, nullptr},
      {kBatchMoveDown, QStyle::SP_ArrowDown, QT_TRANSLATE_NOOP("Tonvane", "Move Down (Alt+Down)")},
      {kBatchMoveUp, QStyle::SP_ArrowUp, QT_TRANSLATE_NOOP("Tonvane", "Move Up (Alt+Up)")},
      {kBatchCheckAll, QStyle::SP_DialogApplyButton, QT_TRANSLATE_NOOP("Tonvane", "Check All (Ctrl+A)")},
      {kBatchUncheckAll, QStyle::SP_DialogCancelButton, QT_TRANSLATE_NOOP("Tonvane", "Uncheck All (Ctrl+B)")},
      {kBatchRemove, QStyle::SP_TrashIcon, QT_TRANSLATE_NOOP("Tonvane", "Remove (Del)")},
      {kBatchRemoveAll, QStyle::SP_DialogDiscardButton, QT_TRANSLATE_NOOP("Tonvane", "Remove All (Ctrl+Del)")},
      {0, {}, nullptr},
      {kBatchHelp, QStyle::SP_DialogHelpButton, QT_TRANSLATE_NOOP("Tonvane", "Help (F1)")},
      {kBatchCloseTool, QStyle::SP_DialogCloseButton, QT_TRANSLATE_NOOP("Tonvane", "Close (Alt+F4)")},
  };
  for (const Item& it : items) {
    if (!it.tip) {
      m_toolBar->addSeparator();
      continue;
    }
    QAction* a;
    if (it.id == kBatchCloseTool) {
      a = m_toolBar->addAction(st->standardIcon(it.icon), Tonvane::tr("&Close").remove('&'));
      connect(a, &QAction::triggered, this, &CBatch::reject);
      m_actions[it.id] = a;
    } else {
      a = action(it.id);
      a->setIcon(st->standardIcon(it.icon));
      m_toolBar->addAction(a);
    }
    a->setToolTip(Tonvane::tr(it.tip));
  }
  layout->addWidget(m_toolBar);
}

void CBatch::BuildPages() {
  m_tabs = new QTabWidget(this);
  m_tabs->setObjectName("batchTabs");
  m_tabs->setMaximumHeight(150);
  auto* testPage = new QWidget(m_tabs);
  testPage->setObjectName("batchTestPage");
  auto* testLayout = new QHBoxLayout(testPage);
  auto* group = new QGroupBox(testPage);
  auto* groupLayout = new QVBoxLayout(group);
  m_peakRadio = new QRadioButton(Tonvane::tr("Test Peak Level"), group);
  m_peakRadio->setObjectName("batchPeakRadio");
  m_averageRadio = new QRadioButton(Tonvane::tr("Test Average Level"), group);
  m_averageRadio->setObjectName("batchAverageRadio");
  groupLayout->addWidget(m_peakRadio);
  groupLayout->addWidget(m_averageRadio);
  testLayout->addWidget(group);
  m_testButton = new QPushButton(Tonvane::tr("Test"), testPage);
  m_testButton->setObjectName("batchTestButton");
  m_testButton->setMinimumSize(120, 36);
  testLayout->addWidget(m_testButton);
  testLayout->addStretch(1);
  m_tabs->addTab(testPage, Tonvane::tr("Batch Test"));
  m_peakRadio->setEnabled(m_batchKind != kKindMp3);
  m_peakRadio->setChecked(m_batchTestMode == 0);
  m_averageRadio->setChecked(m_batchTestMode == 1);
  connect(m_peakRadio, &QRadioButton::clicked, this, [this] { SetTestMode(0); });
  connect(m_averageRadio, &QRadioButton::clicked, this, [this] { SetTestMode(1); });
  connect(m_testButton, &QPushButton::clicked, this, &CBatch::OnTest);

  m_player = new CBatchPlayerPage(m_s, *m_list, *m_view, m_tabs);
  m_tabs->addTab(m_player, Tonvane::tr("Player"));
  new PageKeys(testPage);
  new PageKeys(m_player);
  PreviewPlayer& preview = m_player->preview();
  connect(action(kBatchPlayPause), &QAction::triggered, this, [&preview] { preview.PlayPause(); });
  connect(action(kBatchStop), &QAction::triggered, this, [&preview] { preview.Stop(); });
  connect(action(kBatchVolumeUp), &QAction::triggered, this, [&preview] { preview.VolumeUp(); });
  connect(action(kBatchVolumeDown), &QAction::triggered, this, [&preview] { preview.VolumeDown(); });
  connect(action(kBatchNext), &QAction::triggered, this, [&preview] { preview.Next(); });
  connect(action(kBatchPrevious), &QAction::triggered, this, [&preview] { preview.Previous(); });
  connect(m_view, &CBatchListView::rowActivated, this, [&preview] { preview.PlayPause(); });
}

void CBatch::SetTestMode(int mode) {
  if (m_batchKind == kKindMp3) mode = 1;
  m_batchTestMode = mode;
  m_peakRadio->setChecked(mode == 0);
  m_averageRadio->setChecked(mode == 1);
}

bool CBatch::HintShown() const { return m_hint && !m_hint->isHidden(); }
QString CBatch::LeftStatus() const { return m_leftStatus->text(); }
QString CBatch::RightStatus() const { return m_rightStatus->text(); }

void CBatch::showEvent(QShowEvent* e) {
  QDialog::showEvent(e);
  if (m_opened) return;
  m_opened = true;
  if (Settings::GetInt("Maximize", 0)) setWindowState(windowState() | Qt::WindowMaximized);
  QTimer::singleShot(0, this, &CBatch::FillAtOpening);
}

void CBatch::FillAtOpening() {
  if (m_folder.isEmpty()) {
    // Nothing remembered: the hint shows over the empty list.
    m_hint->show();
    PlaceHint();
    return;
  }
  m_hintHidden = true;
  SetFolder(m_folder, false);
  if (!QFileInfo(m_folder).isDir()) return;
  auto* wait = new CWaitDlg(this);
  wait->setWindowTitle(KindTitle(m_batchKind));
  wait->SetMessage(Tonvane::tr("Please, wait the preparation of the list files is fulfilling"));
  connect(wait, &CWaitDlg::cancelled, this, [this] { m_addControl.Cancel(); });
  wait->show();
  m_addBusy = true;
  m_addControl.Reset();
  {
    BatchAdder adder(*m_list, m_s, &m_addControl);
    adder.SetReportScanErrors(true);
    adder.processing = [wait](const QString& path) { wait->ShowProcessing(path); };
    adder.AddFolder(m_folder, false);
  }
  m_addBusy = false;
  wait->hide();
  wait->deleteLater();
  if (m_list->FileCount() > 0) m_view->selectRow(0);
  UpdateStatus();
  ApplyEnabling();
  FinishPendingClose();
}

void CBatch::PumpThrottled() {
  // Each pump repaints the growing list; every 25 ms keeps the window lively and leaves
  // the fill most of its time.
  if (!m_sincePump.isValid() || m_sincePump.elapsed() >= 25) {
    QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
    m_sincePump.restart();
  }
}

void CBatch::HideHint() {
  if (m_hintHidden) return;
  m_hint->hide();
  m_hint->clear();
  m_hintHidden = true;
}

void CBatch::PlaceHint() {
  if (!m_hint || m_hint->isHidden()) return;
  const QSize area = m_view->viewport()->size();
  const int w = std::min(area.width() - 20, 520);
  m_hint->setFixedWidth(std::max(100, w));
  m_hint->adjustSize();
  m_hint->move((area.width() - m_hint->width()) / 2, (area.height() - m_hint->height()) / 2);
}

void CBatch::resizeEvent(QResizeEvent* e) {
  QDialog::resizeEvent(e);
  PlaceHint();
}

bool CBatch::eventFilter(QObject* watched, QEvent* e) {
  if (watched == m_view && e->type() == QEvent::Resize) PlaceHint();
  if (watched == m_view && e->type() == QEvent::KeyPress) {
    auto* k = static_cast<QKeyEvent*>(e);
    // Space checks or unchecks the selected rows, wherever the focus stands in the row.
    if (k->key() == Qt::Key_Space && k->modifiers() == Qt::NoModifier) {
      const QModelIndexList rows = m_view->selectionModel()->selectedRows();
      if (!rows.isEmpty()) {
        const bool on = !m_list->IsChecked(rows.first().row());
        for (const QModelIndex& i : rows) m_list->SetChecked(i.row(), on);
        return true;
      }
    }
  }
  return QDialog::eventFilter(watched, e);
}

void CBatch::SetFolder(const QString& folder, bool remember) {
  m_folder = folder;
  m_list->SetFolder(folder);
  m_folderLine->setText(folder);
  m_folderLine->setCursorPosition(0);
  if (remember) {
    Settings::SetString("PatchFolder", folder);
    m_s.m_patchFolder = folder;
  }
}

void CBatch::TakeFolderOfFirstFile(int firstNewRow) {
  if (!m_folder.isEmpty() || firstNewRow >= m_list->FileCount()) return;
  SetFolder(QFileInfo(m_list->PathOf(firstNewRow)).absolutePath(), true);
}

void CBatch::UpdateStatus() {
  m_leftStatus->setText(m_list->LeftStatusText());
  m_rightStatus->setText(m_list->RightStatusText());
  m_leftStatus->setCursorPosition(0);
  m_rightStatus->setCursorPosition(0);
}

void CBatch::ApplyEnabling() {
  BatchEnablingInput in;
  in.fileCount = m_list->FileCount();
  in.logAvailable = m_s.m_logAvailable != 0;
  in.addBusy = m_addBusy;
  in.previewEnabled = m_previewEnabled;
  in.previewActive = m_player->preview().Active();
  const BatchEnablingState st = BatchEnabling(in);
  for (int id : std::initializer_list<int>{kBatchMoveDown, kBatchMoveUp, kBatchCheckAll, kBatchUncheckAll, kBatchTest})
    action(id)->setEnabled(st.listCommands);
  for (int id : std::initializer_list<int>{kBatchRemove, kBatchRemoveAll}) action(id)->setEnabled(st.removes);
  m_testButton->setEnabled(st.listCommands && !m_addBusy);
  action(kBatchPlayPause)->setEnabled(st.playPause);
  action(kBatchStop)->setEnabled(st.stop);
  m_player->SetTransportEnabled(st.playPause, st.stepping);
  action(kBatchPrevious)->setEnabled(st.stepping);
  action(kBatchNext)->setEnabled(st.stepping);
  action(kBatchUseDatabase)->setEnabled(st.useDatabase);
  action(kBatchUseDatabase)->setChecked(m_s.m_useDatabase != 0);
  action(kBatchDatabase)->setEnabled(st.database);
}

void CBatch::AddFrame(bool takePreview, const std::function<void(BatchAdder&)>& work) {
  if (m_addBusy || m_progress) return;
  if (takePreview) m_previewEnabled = false;
  HideHint();
  const bool hadCurrent = m_view->currentIndex().isValid() && m_list->FileCount() > 0;
  m_addBusy = true;
  m_addControl.Reset();
  ApplyEnabling();
  {
    BatchAdder adder(*m_list, m_s, &m_addControl);
    adder.SetReportScanErrors(true);
    work(adder);
  }
  m_addBusy = false;
  if (m_list->FileCount() > 0 && !hadCurrent) m_view->selectRow(0);
  UpdateStatus();
  if (takePreview) m_previewEnabled = true;
  ApplyEnabling();
  FinishPendingClose();
}

int CBatch::SearchFolder(const QString& title, const QString& folder, bool recursive, BatchAdder& adder) {
  auto* dlg = new CAddFoldersDlg(title, this);
  m_search = dlg;
  connect(dlg, &CAddFoldersDlg::pauseToggled, this, [this] { m_addControl.TogglePause(); });
  connect(dlg, &CAddFoldersDlg::cancelled, this, [this] { m_addControl.Cancel(); });
  dlg->show();
  if (searchCreated) searchCreated(*dlg);
  adder.processing = [dlg](const QString& path) { dlg->ShowProcessing(path); };
  const int added = adder.AddFolder(folder, recursive);
  adder.processing = nullptr;
  m_search = nullptr;
  dlg->hide();
  dlg->deleteLater();
  return added;
}

void CBatch::OnAddFiles() {
  if (m_addBusy || m_progress) return;
  m_previewEnabled = false;
  const QStringList files = chooseFiles ? chooseFiles()
                                        : ChooseFilesWithHistory(this, Tonvane::tr("Add Files "), m_folder,
                                                                 BatchFileFilters(), BatchFirstFilter(m_batchKind));
  m_previewEnabled = true;
  if (files.isEmpty()) return;
  AddFrame(true, [&](BatchAdder& adder) {
    const int first = m_list->FileCount();
    for (const QString& f : files) {
      adder.AddFile(f, false);
      if (adder.Cancelled()) break;
    }
    TakeFolderOfFirstFile(first);
  });
}

void CBatch::OnAddPlaylists() {
  if (m_addBusy || m_progress) return;
  m_previewEnabled = false;
  const QPair<QString, QString> filter = PlaylistFilter();
  const QStringList lists = choosePlaylists ? choosePlaylists()
                                            : ChooseFilesWithHistory(this, Tonvane::tr("Add Playlists"), m_folder,
                                                                     {filter}, 0);
  m_previewEnabled = true;
  if (lists.isEmpty()) return;
  AddFrame(true, [&](BatchAdder& adder) {
    const int first = m_list->FileCount();
    for (const QString& p : lists) {
      if (!IsPlaylistName(p)) continue;
      adder.AddPlaylist(p);
      if (adder.Cancelled()) break;
    }
    TakeFolderOfFirstFile(first);
  });
}

void CBatch::OnAddFolder() {
  if (m_addBusy || m_progress) return;
  m_previewEnabled = false;
  const QString chosen = chooseFolder ? chooseFolder(Tonvane::tr("Select Your Folder"))
                                      : ChooseFolderWithHistory(this, Tonvane::tr("Select Your Folder"), m_folder);
  m_previewEnabled = true;
  if (chosen.isEmpty()) return;
  const QString folder = QFileInfo(chosen).absoluteFilePath();
  if (CountSupportedFiles(m_batchKind, folder) == 0) {
    HideHint();
    m_s.m_prompt.Message(BatchNoFilesText(m_batchKind, folder), PromptIcon::Warning);
    return;  // the folder line and the rows stay as they were
  }
  AddFrame(true, [&](BatchAdder& adder) {
    SetFolder(folder, true);
    SearchFolder(Tonvane::tr("Add Folder - Tonvane 1.0"), folder, false, adder);
  });
}

void CBatch::OnAddFolders() {
  if (m_addBusy || m_progress) return;
  m_previewEnabled = false;
  const QString chosen = chooseFolder ? chooseFolder(Tonvane::tr("Select Your Folders"))
                                      : ChooseFolderWithHistory(this, Tonvane::tr("Select Your Folders"), m_folder);
  m_previewEnabled = true;
  if (chosen.isEmpty()) return;
  const QString folder = QFileInfo(chosen).absoluteFilePath();
  AddFrame(true, [&](BatchAdder& adder) {
    SetFolder(folder, true);
    SearchFolder(Tonvane::tr("Add Folders - Tonvane 1.0"), folder, true, adder);
  });
}

void CBatch::OnDropPaths(const QStringList& paths) {
  if (m_addBusy || m_progress) return;
  AddFrame(false, [&](BatchAdder& adder) {
    const int first = m_list->FileCount();
    for (const QString& p : paths) {
      if (adder.Cancelled()) break;
      const QFileInfo fi(p);
      if (fi.isDir()) {
        const QString backup = m_folder;
        const int before = m_list->FileCount();
        SetFolder(fi.absoluteFilePath(), false);
        SearchFolder(Tonvane::tr("Add Folders - Tonvane 1.0"), fi.absoluteFilePath(), true, adder);
        if (m_list->FileCount() == before) SetFolder(backup, false);
        else SetFolder(m_folder, true);
      } else if (IsPlaylistName(p)) {
        adder.AddPlaylist(p);
      } else {
        adder.AddFile(p, false);
      }
    }
    TakeFolderOfFirstFile(first);
  });
}

void CBatch::OnRemove() {
  if (m_addBusy || m_progress) return;
  QList<int> rows;
  for (const QModelIndex& i : m_view->selectionModel()->selectedRows())
    if (i.row() < m_list->FileCount()) rows << i.row();
  if (rows.isEmpty()) {
    m_s.m_prompt.Message(Tonvane::tr("Sorry, but You do not select any file. Select any file."), PromptIcon::Information);
    return;
  }
  std::sort(rows.begin(), rows.end());
  const int keep = rows.first();
  PreviewPlayer& preview = m_player->preview();
  preview.StopPreview();
  // From the bottom up, one run of neighbours at a time.
  for (int i = int(rows.size()) - 1; i >= 0;) {
    int j = i;
    while (j > 0 && rows[j - 1] == rows[j] - 1) --j;
    m_list->removeRows(rows[j], rows[i] - rows[j] + 1);
    i = j - 1;
  }
  if (!m_list->Contains(preview.m_previewPath) || m_list->FileCount() == 0) preview.ClearPreview();
  if (m_list->FileCount() > 0) m_view->selectRow(std::min(keep, m_list->FileCount() - 1));
  UpdateStatus();
  ApplyEnabling();
}

void CBatch::OnRemoveAll() {
  if (m_addBusy || m_progress) return;
  m_player->preview().ClearPreview();
  m_list->RemoveAll();
  UpdateStatus();
  ApplyEnabling();
}

void CBatch::OnMove(bool down) {
  const QModelIndex cur = m_view->currentIndex();
  if (!cur.isValid() || cur.row() >= m_list->FileCount()) return;
  const int row = cur.row();
  if (down ? m_list->MoveDown(row) : m_list->MoveUp(row)) m_view->selectRow(down ? row + 1 : row - 1);
}

void CBatch::OnTest() {
  if (m_addBusy || m_progress || m_list->FileCount() == 0) return;
  m_player->preview().StopPreview();
  m_previewEnabled = false;
  ApplyEnabling();
  BatchRunOptions options;
  options.testMode = m_batchKind == kKindMp3 ? 1 : m_batchTestMode;
  options.useLog = true;
  options.jobs = Settings::GetInt("BatchAllCores", 1) ? std::max(1, QThread::idealThreadCount()) : 1;
  m_list->SetShowDb(m_showDb != 0);
  CBatchProgress dlg(*m_list, m_s, options, this);
  m_progress = &dlg;
  if (progressCreated) progressCreated(dlg);
  dlg.exec();
  m_progress = nullptr;
  m_previewEnabled = true;
  UpdateStatus();
  ApplyEnabling();
  FinishPendingClose();
}

void CBatch::OnDatabase() {
  if (m_addBusy || m_progress) return;
  // The preview's transport rests while the dialog is open, as for the add commands.
  m_previewEnabled = false;
  ApplyEnabling();
  CDataBase dialog(m_s, this);
  dialog.exec();
  m_previewEnabled = true;
  ApplyEnabling();
}

void CBatch::FinishPendingClose() {
  if (m_closePending && !m_addBusy && !m_progress) {
    m_closePending = false;
    QTimer::singleShot(0, this, &CBatch::OnBatchClose);
  }
}

void CBatch::OnBatchClose() {
  if (m_closed) return;
  // A search or a run ends first, with whole rows; the window goes once it has.
  if (m_addBusy || m_progress) {
    m_closePending = true;
    m_addControl.Cancel();
    if (m_progress) m_progress->CancelAndClose();
    return;
  }
  m_closed = true;
  m_player->preview().StopPreview();
  SaveColumnLayout(m_batchKind, m_view->ColumnLayout());
  m_s.m_testMode = m_savedTestMode;
  m_list->RemoveAll();
  done(QDialog::Rejected);
}

void CBatch::reject() { OnBatchClose(); }

void CBatch::closeEvent(QCloseEvent* e) {
  if (!m_closed) {
    e->ignore();
    OnBatchClose();
    return;
  }
  QDialog::closeEvent(e);
}
