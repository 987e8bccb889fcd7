#include "app/widgets/MainDialog.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QComboBox>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QFrame>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QMimeData>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QShortcut>
#include <QSignalBlocker>
#include <QSlider>
#include <QStatusBar>
#include <QStyle>
#include <QThread>
#include <QTimer>
#include <QTimerEvent>
#include <QToolBar>
#include <QToolButton>
#include <QUrl>
#include <QVBoxLayout>

#include "app/EnablingRules.h"
#include "app/Globals.h"
#include "app/HeadlessTest.h"
#include "app/Settings.h"
#include "app/Text.h"
#include "app/widgets/DataBaseDialog.h"
#include "controls/ColorRef.h"
#include "controls/LevelBar.h"
#include "app/widgets/Icons.h"
#include "app/widgets/ShellMenus.h"
#include "formats/OpenPipeline.h"
#include "formats/WorkFile.h"
#include "level/LevelDisplay.h"
#include "log/TestLog.h"

namespace {

// The fixed captions of the property panel, which each reader overwrites with its own lines.
const char* const kPropertyCaptions[5] = {
    QT_TRANSLATE_NOOP("Tonvane", " Bits on Readout"), QT_TRANSLATE_NOOP("Tonvane", " Channels"),
    QT_TRANSLATE_NOOP("Tonvane", " Frequency"), QT_TRANSLATE_NOOP("Tonvane", " Audio Format"),
    QT_TRANSLATE_NOOP("Tonvane", " Size")};

constexpr int kProgressDownMs = 3000;  // timer 2
constexpr int kCommandLineDelayMs = 500;
constexpr uint32_t kLevelBarBackground = 0xe0d1d1;

QLabel* MakeLabel(const QString& text, QWidget* parent, const QString& name = {}) {
  auto* l = new QLabel(text, parent);
  if (!name.isEmpty()) l->setObjectName(name);
  return l;
}

QString ColorSheet(uint32_t colorRef, bool bold = false) {
  return QStringLiteral("color: %1;%2").arg(FromColorRef(colorRef).name(), bold ? " font-weight: bold;" : "");
}

}  // namespace

CBrenlowv10Dlg::CBrenlowv10Dlg(const QString& commandLineFile, QWidget* parent)
    : QMainWindow(parent), m_promptUi(this), m_commandLineFile(commandLineFile) {
  m_s.m_prompt.SetUi(&m_promptUi);
  m_s.m_pump = &m_pumpUi;
  m_s.m_fileDialog = [this] { return ChooseFile(); };
  m_s.LoadSettings();
  CheckLogAtStart(m_s);  // creates the log when missing and applies the size cap

  setObjectName("CBrenlowv10Dlg");
  setAcceptDrops(true);
  BuildMenus();
  BuildToolBar();
  BuildCentral();
  BuildStatusBar();
  ConnectCommands();
  // Qt's overflow buttons of the menu and tool bar show only an arrow.
  for (QToolButton* b : findChildren<QToolButton*>())
    if (b->objectName() == QLatin1String("qt_menubar_ext_button") || b->objectName() == QLatin1String("qt_toolbar_ext_button"))
      b->setAccessibleName(Tonvane::tr("More"));
  m_pumpUi.onProgress = [this](int percent) {
    m_statusProgress->setValue(percent);
    // The percent form of the title while a test runs.
    if (m_s.m_testRunning) setWindowTitle(QString::number(percent) + "% - " + m_s.m_savedTitle);
  };
  RenderSession();
  ApplyDisplayRules();
  m_timer1 = startTimer(100);  // timer 1: the enabling rules, for the whole life of the window
  ApplyEnablingRules();
  // A file named on the command line is opened half a second after the window shows, and
  // played once its work file is ready.
  if (!m_commandLineFile.isEmpty())
    QTimer::singleShot(kCommandLineDelayMs, this, [this] {
      if (OpenByName(QFileInfo(m_commandLineFile).absoluteFilePath()) != 1) return;
      while (g_workerBusy.load()) m_s.PumpMessages();
      Call(m_player.playPause);
    });
}

CBrenlowv10Dlg::~CBrenlowv10Dlg() = default;

// --- Building -------------------------------------------------------------------------

QAction* CBrenlowv10Dlg::AddCommand(QMenu* menu, int id, const QString& text, const QKeySequence& key) {
  QAction* a = menu->addAction(text);
  a->setData(id);
  a->setObjectName(QStringLiteral("cmd%1").arg(id));
  if (!key.isEmpty()) {
    a->setShortcut(key);
    a->setShortcutContext(Qt::WindowShortcut);
  }
  m_actions[id] = a;
  return a;
}

QAction* CBrenlowv10Dlg::action(int id) const {
  auto it = m_actions.find(id);
  return it == m_actions.end() ? nullptr : it->second;
}

QWidget* CBrenlowv10Dlg::control(int id) const {
  auto it = m_controls.find(id);
  return it == m_controls.end() ? nullptr : it->second;
}

QLabel* CBrenlowv10Dlg::label(int id) const { return qobject_cast<QLabel*>(control(id)); }

QString CBrenlowv10Dlg::statusText() const { return m_statusText->text(); }

void CBrenlowv10Dlg::BuildMenus() {
  QMenuBar* mb = menuBar();
  QMenu* file = mb->addMenu(Tonvane::tr("&File"));
  AddCommand(file, kCmdOpen, Tonvane::tr("&Open..."), QKeySequence("Ctrl+O"));
  AddCommand(file, kCmdClose, Tonvane::tr("&Close"), QKeySequence("Ctrl+W"));
  file->addSeparator();
  AddCommand(file, kCmdExit, Tonvane::tr("&Exit"), QKeySequence("Ctrl+X"));

  QMenu* test = mb->addMenu(Tonvane::tr("&Test"));
  AddCommand(test, kCmdTest, Tonvane::tr("&Test"), QKeySequence("Ctrl+L"));
  AddCommand(test, kCmdBatch, Tonvane::tr("&Batch Processor..."), QKeySequence("Ctrl+P"));
  test->addSeparator();
  QMenu* show = test->addMenu(Tonvane::tr("&Show"));
  AddCommand(show, kCmdShowPercent, Tonvane::tr("%"))->setCheckable(true);
  AddCommand(show, kCmdShowDb, Tonvane::tr("dB"))->setCheckable(true);
  test->addSeparator();
  AddCommand(test, kCmdUseDatabase, Tonvane::tr("&Use Database"), QKeySequence("Alt+U"))->setCheckable(true);
  AddCommand(test, kCmdClearDatabase, Tonvane::tr("&Clear Database"), QKeySequence("Alt+C"));
  AddCommand(test, kCmdDatabase, Tonvane::tr("&Database..."), QKeySequence("Alt+D"));

  // Alt+P belongs to Beep when finished, so the player's menu goes without a mnemonic.
  QMenu* player = mb->addMenu(Tonvane::tr("&Player").remove(QLatin1Char('&')));
  AddCommand(player, kCmdPlayPause, Tonvane::tr("Play / Pa&use"), QKeySequence("Ctrl+U"));
  AddCommand(player, kCmdStop, Tonvane::tr("&Stop"), QKeySequence("Ctrl+T"));
  QMenu* volume = player->addMenu(Tonvane::tr("&Volume"));
  AddCommand(volume, kCmdVolumeUp, Tonvane::tr("Up"), QKeySequence("F10"));
  AddCommand(volume, kCmdVolumeDown, Tonvane::tr("Down"), QKeySequence("F9"));
  AddCommand(volume, kCmdMute, Tonvane::tr("Mute"), QKeySequence("F8"));
  player->addSeparator();
  AddCommand(player, kCmdPrevious, Tonvane::tr("P&revious"), QKeySequence("P"));
  AddCommand(player, kCmdNext, Tonvane::tr("&Next"), QKeySequence("N"));
  AddCommand(player, kCmdShuffle, Tonvane::tr("&Shuffle"), QKeySequence("S"))->setCheckable(true);
  AddCommand(player, kCmdRepeat, Tonvane::tr("&Repeat"), QKeySequence("R"))->setCheckable(true);
  AddCommand(player, kCmdRepeatAll, Tonvane::tr("R&epeat All"), QKeySequence("L"))->setCheckable(true);

  QMenu* options = mb->addMenu(Tonvane::tr("&Options"));
  AddCommand(options, kCmdAlwaysOnTop, Tonvane::tr("&Always on Top"), QKeySequence("Alt+A"))->setCheckable(true);
  AddCommand(options, kCmdBeep, Tonvane::tr("&Beep when finished"), QKeySequence("Alt+P"))->setCheckable(true);
  auto* shell = new ShellMenus(this);
  shell->AddOptionMenus(options, m_actions);

  QMenu* help = mb->addMenu(Tonvane::tr("&Help"));
  AddCommand(help, kCmdHelp, Tonvane::tr("Help &Tonvane"), QKeySequence("F1"));
  AddCommand(help, kCmdHomepage, Tonvane::tr("&Open Homepage Tonvane"));
  help->addSeparator();
  AddCommand(help, kCmdAbout, Tonvane::tr("&About Tonvane..."));
  connect(action(kCmdHelp), &QAction::triggered, shell, &ShellMenus::OnHelp);
  connect(action(kCmdAbout), &QAction::triggered, shell, &ShellMenus::OnAbout);
  connect(action(kCmdHomepage), &QAction::triggered, shell, &ShellMenus::OnHomepage);

  // Ctrl+X still asks to leave while a test runs, when the Exit item is grey.
  m_exitDuringTest = new QShortcut(QKeySequence("Ctrl+X"), this);
  m_exitDuringTest->setEnabled(false);
  connect(m_exitDuringTest, &QShortcut::activated, this, &CBrenlowv10Dlg::OnExit);
}

void CBrenlowv10Dlg::BuildToolBar() {
  m_toolBar = addToolBar(Tonvane::tr("Tool Bar"));
  m_toolBar->setObjectName("toolBar");
  m_toolBar->setMovable(false);
  m_toolBar->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
  struct Item {
    int id;
    const char* icon;  // freedesktop icon name
    const char* caption;
    const char* tip;
  };
  const Item items[] = {
      {kToolOpen, "document-open", QT_TRANSLATE_NOOP("Tonvane", "Open"),
       QT_TRANSLATE_NOOP("Tonvane", "Open (Ctrl+O)")},
      {kToolBatch, "tonvane-batch", QT_TRANSLATE_NOOP("Tonvane", "Batch"),
       QT_TRANSLATE_NOOP("Tonvane", "Batch Processor (Ctrl+P)")},
      {kToolHelp, "help-contents", QT_TRANSLATE_NOOP("Tonvane", "Help"),
       QT_TRANSLATE_NOOP("Tonvane", "Help (F1)")},
      {kToolExit, "application-exit", QT_TRANSLATE_NOOP("Tonvane", "Exit"),
       QT_TRANSLATE_NOOP("Tonvane", "Exit (Ctrl+X)")},
  };
  for (const Item& it : items) {
    if (it.id == kToolBatch || it.id == kToolHelp) m_toolBar->addSeparator();
    QAction* a = m_toolBar->addAction(tonvane::ThemedIcon(it.icon), Tonvane::tr(it.caption));
    a->setToolTip(Tonvane::tr(it.tip));
    a->setData(it.id);
    a->setObjectName(QStringLiteral("tool%1").arg(it.id));
    m_actions[it.id] = a;
  }
}

void CBrenlowv10Dlg::BuildCentral() {
  auto* central = new QWidget(this);
  auto* outer = new QVBoxLayout(central);

  // File line.
  auto* fileLine = new QHBoxLayout;
  auto* fileLabel = MakeLabel(Tonvane::tr("File Name:"), central, "fileLabel");
  m_fileCombo = new QComboBox(central);
  m_fileCombo->setObjectName("fileCombo");
  m_fileCombo->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  m_fileCombo->setAccessibleName(fileLabel->text());
  fileLabel->setBuddy(m_fileCombo);
  fileLine->addWidget(fileLabel);
  fileLine->addWidget(m_fileCombo, 1);
  outer->addLayout(fileLine);
  m_controls[kIdFileLabel] = fileLabel;
  m_controls[kIdFileCombo] = m_fileCombo;

  // Group "Test".
  auto* testGroup = new QGroupBox(Tonvane::tr("Test"), central);
  testGroup->setObjectName("testGroup");
  auto* testLayout = new QHBoxLayout(testGroup);

  auto* left = new QVBoxLayout;
  m_testButton = new QPushButton(Tonvane::tr("Test"), testGroup);
  m_testButton->setObjectName("testButton");
  m_testButton->setMinimumHeight(30);
  left->addWidget(m_testButton);
  auto* panel = new QFrame(testGroup);
  panel->setObjectName("propertyPanel");
  panel->setFrameShape(QFrame::StyledPanel);
  auto* panelLayout = new QVBoxLayout(panel);
  panelLayout->setSpacing(2);
  auto* header = MakeLabel(Tonvane::tr(" Property"), panel, "propertyHeader");
  QFont bold = header->font();
  bold.setBold(true);
  header->setFont(bold);
  panelLayout->addWidget(header);
  m_controls[kIdPropertyHeader] = header;
  QFont mono("Monospace");
  mono.setStyleHint(QFont::TypeWriter);
  for (int i = 0; i < 5; ++i) {
    auto* l = MakeLabel(Tonvane::tr(kPropertyCaptions[i]), panel, QStringLiteral("property%1").arg(i + 1));
    l->setFont(mono);
    panelLayout->addWidget(l);
    m_propertyLabels[size_t(i)] = l;
  }
  left->addWidget(panel);
  auto* radios = new QFrame(testGroup);
  radios->setFrameShape(QFrame::StyledPanel);
  auto* radiosLayout = new QVBoxLayout(radios);
  m_peakRadio = new QRadioButton(Tonvane::tr("Test Peak Level"), radios);
  m_peakRadio->setObjectName("peakRadio");
  m_averageRadio = new QRadioButton(Tonvane::tr("Test Average Level"), radios);
  m_averageRadio->setObjectName("averageRadio");
  radiosLayout->addWidget(m_peakRadio);
  radiosLayout->addWidget(m_averageRadio);
  left->addWidget(radios);
  left->addStretch(1);
  testLayout->addLayout(left, 3);
  m_controls[kIdTestButton] = m_testButton;
  m_controls[kIdPeakRadio] = m_peakRadio;
  m_controls[kIdAverageRadio] = m_averageRadio;

  // The level bars: the title between them in stereo, above the single bar in mono;
  // captions, scale label, maximum levels and "Clipping" under them.
  auto* bars = new QGridLayout;
  auto makeTitle = [&](int i, const QString& name) {
    auto* box = new QWidget(testGroup);
    box->setObjectName(name);
    auto* v = new QVBoxLayout(box);
    v->setContentsMargins(0, 0, 0, 0);
    m_titles[size_t(i)] = MakeLabel(QString(), box);
    m_subtitles[size_t(i)] = MakeLabel(QString(), box);
    for (QLabel* l : {m_titles[size_t(i)], m_subtitles[size_t(i)]}) {
      l->setAlignment(Qt::AlignCenter);
      l->setStyleSheet(ColorSheet(kLabelColor, true));
      v->addWidget(l);
    }
    return box;
  };
  m_titleAbove = makeTitle(0, "titleAbove");
  m_titleBetween = makeTitle(1, "titleBetween");
  const int barIds[2] = {kIdLeftBar, kIdRightBar};
  const int captionIds[2] = {kIdLeftCaption, kIdRightCaption};
  const int maxIds[2] = {kIdLeftMax, kIdRightMax};
  const int clipIds[2] = {kIdLeftClip, kIdRightClip};
  for (int i = 0; i < 2; ++i) {
    auto* bar = new LevelBar(testGroup);
    bar->setObjectName(i ? "rightBar" : "leftBar");
    bar->SetBkColor(kLevelBarBackground);
    bar->setMinimumSize(48, 150);
    m_bars[size_t(i)] = bar;
    m_captions[size_t(i)] = MakeLabel(QString(), testGroup, i ? "rightCaption" : "leftCaption");
    m_maxLabels[size_t(i)] = MakeLabel(QString(), testGroup, i ? "rightMax" : "leftMax");
    m_clipLabels[size_t(i)] = MakeLabel(Tonvane::tr("Clipping"), testGroup, i ? "rightClip" : "leftClip");
    m_clipLabels[size_t(i)]->setStyleSheet(ColorSheet(kClippingColor, true));
    m_maxLabels[size_t(i)]->setStyleSheet(ColorSheet(kLabelColor));
    for (QLabel* l : {m_captions[size_t(i)], m_maxLabels[size_t(i)], m_clipLabels[size_t(i)]})
      l->setAlignment(Qt::AlignCenter);
    const int col = i ? 2 : 0;
    bars->addWidget(bar, 1, col, Qt::AlignHCenter);
    bars->addWidget(m_captions[size_t(i)], 2, col);
    bars->addWidget(m_maxLabels[size_t(i)], 4, col);
    bars->addWidget(m_clipLabels[size_t(i)], 5, col);
    m_controls[barIds[i]] = bar;
    m_controls[captionIds[i]] = m_captions[size_t(i)];
    m_controls[maxIds[i]] = m_maxLabels[size_t(i)];
    m_controls[clipIds[i]] = m_clipLabels[size_t(i)];
  }
  bars->addWidget(m_titleAbove, 0, 0, Qt::AlignCenter);
  bars->addWidget(m_titleBetween, 1, 1, Qt::AlignCenter);
  m_scaleLabel = MakeLabel(QString(), testGroup, "scaleLabel");
  m_scaleLabel->setAlignment(Qt::AlignCenter);
  bars->addWidget(m_scaleLabel, 3, 0, 1, 3);
  m_controls[kIdScaleLabel] = m_scaleLabel;
  bars->setColumnMinimumWidth(0, 110);
  bars->setColumnMinimumWidth(1, 100);
  bars->setColumnMinimumWidth(2, 110);
  bars->setRowStretch(1, 1);
  testLayout->addLayout(bars, 2);
  outer->addWidget(testGroup, 1);

  // Group "Player".
  auto* playerGroup = new QGroupBox(Tonvane::tr("Player"), central);
  playerGroup->setObjectName("playerGroup");
  auto* playerLayout = new QVBoxLayout(playerGroup);
  m_seekBar = new QSlider(Qt::Horizontal, playerGroup);
  m_seekBar->setObjectName("seekBar");
  m_seekBar->setEnabled(false);
  m_seekBar->setAccessibleName(Tonvane::tr("Position"));
  playerLayout->addWidget(m_seekBar);
  m_controls[kIdSeekBar] = m_seekBar;
  auto* transport = new QHBoxLayout;
  struct Button {
    int id;
    const char* icon;  // freedesktop icon name
    const char* tip;
  };
  // From the left: Play, Stop, Shuffle, Repeat, Mute, Previous, Next.
  const Button buttons[] = {
      {kIdPlay, "media-playback-start", QT_TRANSLATE_NOOP("Tonvane", "Play / Pause (Ctrl+U)")},
      {kIdStop, "media-playback-stop", QT_TRANSLATE_NOOP("Tonvane", "Stop (Ctrl+T)")},
      {kIdShuffle, "media-playlist-shuffle", QT_TRANSLATE_NOOP("Tonvane", "Shuffle (S)")},
      {kIdRepeat, "media-playlist-repeat", QT_TRANSLATE_NOOP("Tonvane", "Repeat (R)")},
      {kIdMute, "audio-volume-muted", QT_TRANSLATE_NOOP("Tonvane", "Mute (F8)")},
      {kIdPrevious, "media-skip-backward", QT_TRANSLATE_NOOP("Tonvane", "Previous (P)")},
      {kIdNext, "media-skip-forward", QT_TRANSLATE_NOOP("Tonvane", "Next (N)")},
  };
  for (const Button& b : buttons) {
    auto* tb = new QToolButton(playerGroup);
    tb->setIcon(tonvane::ThemedIcon(b.icon));
    tb->setToolTip(Tonvane::tr(b.tip));
    // The buttons show only an icon; a screen reader says the tip's words.
    tb->setAccessibleName(Tonvane::tr(b.tip));
    tb->setObjectName(QStringLiteral("transport%1").arg(b.id));
    tb->setIconSize(QSize(22, 22));
    tb->setEnabled(false);  // the transport starts disabled
    transport->addWidget(tb);
    m_controls[b.id] = tb;
  }
  transport->addSpacing(16);
  auto* volumeBox = new QVBoxLayout;
  m_volumeSlider = new QSlider(Qt::Horizontal, playerGroup);
  m_volumeSlider->setObjectName("volumeSlider");
  m_volumeSlider->setRange(0, 100);
  m_volumeSlider->setValue(100);
  m_volumeSlider->setTickPosition(QSlider::TicksBelow);
  m_volumeSlider->setTickInterval(10);
  m_volumeSlider->setMinimumWidth(160);
  m_volumeSlider->setToolTip(Tonvane::tr("Volume"));
  m_volumeSlider->setAccessibleName(Tonvane::tr("Volume"));
  volumeBox->addWidget(m_volumeSlider);
  auto* marks = new QHBoxLayout;
  marks->addWidget(MakeLabel(Tonvane::tr("0"), playerGroup, "mark0"));
  marks->addStretch(1);
  marks->addWidget(MakeLabel(Tonvane::tr("50"), playerGroup, "mark50"));
  marks->addStretch(1);
  marks->addWidget(MakeLabel(Tonvane::tr("100"), playerGroup, "mark100"));
  volumeBox->addLayout(marks);
  transport->addLayout(volumeBox);
  m_controls[kIdVolume] = m_volumeSlider;
  transport->addStretch(1);

  // Time fields: position, and under "Total Time:" the length, in minutes, seconds and
  // hundredths, with the unit label.
  auto* times = new QGridLayout;
  const char* const names[6] = {"posMinutes", "posSeconds", "posHundredths",
                                "totalMinutes", "totalSeconds", "totalHundredths"};
  for (int i = 0; i < 6; ++i) {
    auto* l = MakeLabel(QStringLiteral("00"), playerGroup, names[i]);
    l->setFrameShape(QFrame::Panel);
    l->setFrameShadow(QFrame::Sunken);
    l->setAlignment(Qt::AlignCenter);
    l->setMinimumWidth(28);
    times->addWidget(l, i / 3, 1 + i % 3);
    m_timeLabels[size_t(i)] = l;
  }
  times->addWidget(MakeLabel(Tonvane::tr("Time:"), playerGroup, "timeCaption"), 0, 0);
  times->addWidget(MakeLabel(Tonvane::tr("Total Time:"), playerGroup, "totalCaption"), 1, 0);
  times->addWidget(MakeLabel(Tonvane::tr("(ms)"), playerGroup, "timeUnit"), 1, 4);
  transport->addLayout(times);
  playerLayout->addLayout(transport);
  outer->addWidget(playerGroup);

  setCentralWidget(central);
}

void CBrenlowv10Dlg::BuildStatusBar() {
  QStatusBar* sb = statusBar();
  m_statusProgress = new QProgressBar(sb);
  m_statusProgress->setObjectName("statusProgress");
  m_statusProgress->setRange(0, 100);
  m_statusProgress->setFormat("%p%");
  m_statusProgress->setAccessibleName(Tonvane::tr("Test of the volume level"));
  m_statusProgress->setVisible(false);
  m_statusText = new QLabel(sb);
  m_statusText->setObjectName("statusText");
  m_statusText->setMinimumWidth(265);
  sb->addWidget(m_statusProgress, 1);
  sb->addPermanentWidget(m_statusText);
}

void CBrenlowv10Dlg::ConnectCommands() {
  auto on = [this](int id, auto&& f) { connect(action(id), &QAction::triggered, this, f); };
  on(kCmdOpen, [this] { OnFileOpen(); });
  on(kToolOpen, [this] { OnFileOpen(); });
  on(kCmdClose, [this] { OnFileClose(); });
  on(kCmdExit, [this] { OnExit(); });
  on(kToolExit, [this] { OnExit(); });
  on(kCmdTest, [this] { OnTest(); });
  on(kCmdBatch, [this] { OnBatchProcessor(); });
  on(kToolBatch, [this] { OnBatchProcessor(); });
  connect(action(kToolHelp), &QAction::triggered, action(kCmdHelp), &QAction::trigger);
  on(kCmdShowPercent, [this] { SetShowDb(0); });
  on(kCmdShowDb, [this] { SetShowDb(1); });
  on(kCmdUseDatabase, [this](bool checked) { m_s.m_useDatabase = checked ? 1 : 0; });
  on(kCmdClearDatabase, [this] { ClearLog(m_s); });
  on(kCmdDatabase, [this] { OnDatabase(); });
  on(kCmdBeep, [this](bool checked) {
    m_s.m_beep = checked ? 1 : 0;
    Settings::SetInt("Beep", m_s.m_beep);
  });
  on(kCmdAlwaysOnTop, [this](bool checked) {
    m_s.m_alwaysOnTop = checked ? 1 : 0;
    setWindowFlag(Qt::WindowStaysOnTopHint, checked);
    show();
  });
  // The player's commands; the player fills them in.
  on(kCmdPlayPause, [this] { Call(m_player.playPause); });
  on(kCmdStop, [this] { Call(m_player.stop); });
  on(kCmdVolumeUp, [this] { Call(m_player.volumeUp); });
  on(kCmdVolumeDown, [this] { Call(m_player.volumeDown); });
  on(kCmdMute, [this] { Call(m_player.mute); });
  on(kCmdPrevious, [this] { Call(m_player.previous); });
  on(kCmdNext, [this] { Call(m_player.next); });
  on(kCmdShuffle, [this] { Call(m_player.toggleShuffle); });
  on(kCmdRepeat, [this] { Call(m_player.toggleRepeat); });
  on(kCmdRepeatAll, [this](bool checked) {
    if (m_player.toggleRepeatAll) {
      m_player.toggleRepeatAll();
    } else {
      m_s.m_looping = checked ? 1 : 0;
      Settings::SetInt("Looping", m_s.m_looping);
    }
  });
  const std::pair<int, int> buttons[] = {{kIdPlay, kCmdPlayPause}, {kIdStop, kCmdStop},       {kIdShuffle, kCmdShuffle},
                                         {kIdRepeat, kCmdRepeat},  {kIdMute, kCmdMute},       {kIdPrevious, kCmdPrevious},
                                         {kIdNext, kCmdNext}};
  for (auto [button, cmd] : buttons)
    connect(qobject_cast<QToolButton*>(control(button)), &QToolButton::clicked, action(cmd), &QAction::trigger);
  connect(m_volumeSlider, &QSlider::valueChanged, this, [this](int v) {
    if (m_player.setVolume) m_player.setVolume(v);
  });

  connect(m_testButton, &QPushButton::clicked, this, &CBrenlowv10Dlg::OnTest);
  // Toggled rather than clicked: a screen reader toggles a radio without clicking it. The
  // window's own setChecked from the session finds the mode already set and does nothing.
  connect(m_peakRadio, &QRadioButton::toggled, this, [this](bool on) {
    if (on) SetTestMode(0);
  });
  connect(m_averageRadio, &QRadioButton::toggled, this, [this](bool on) {
    if (on) SetTestMode(1);
  });
  // A choice in the list opens that entry, then the focus goes back to the window.
  connect(m_fileCombo, &QComboBox::activated, this, [this](int) {
    OpenByName(QString());
    setFocus();
  });
}

// --- Rendering --------------------------------------------------------------------------

void CBrenlowv10Dlg::RenderTitle() {
  setWindowTitle(m_s.m_title.isEmpty() ? tonvane::kAppTitle : m_s.m_title);
}

void CBrenlowv10Dlg::RenderSession() {
  for (int i = 0; i < 5; ++i) {
    const QString& line = m_s.m_propertyLines[i];
    m_propertyLabels[size_t(i)]->setText(line.isEmpty() ? Tonvane::tr(kPropertyCaptions[i]) : line);
  }
  m_statusText->setText(m_s.m_statusText);
  if (!m_s.m_testRunning) RenderTitle();
  action(kCmdShowPercent)->setChecked(m_s.m_showDb == 0);
  action(kCmdShowDb)->setChecked(m_s.m_showDb == 1);
  action(kCmdUseDatabase)->setChecked(m_s.m_useDatabase != 0);
  action(kCmdRepeatAll)->setChecked(m_s.m_looping != 0);
  action(kCmdBeep)->setChecked(m_s.m_beep != 0);
  action(kCmdShuffle)->setChecked(m_s.m_shuffle != 0);
  action(kCmdRepeat)->setChecked(m_s.m_repeat != 0);
  action(kCmdAlwaysOnTop)->setChecked(m_s.m_alwaysOnTop != 0);
  m_peakRadio->setChecked(m_s.m_testMode == 0);
  m_averageRadio->setChecked(m_s.m_testMode == 1);
}

void CBrenlowv10Dlg::ClearBars() {
  for (LevelBar* b : m_bars) {
    b->SetPos(0);
    b->SetTiedText(true);
  }
}

void CBrenlowv10Dlg::ApplyDisplayRules() {
  // With no file open the window keeps the layout it starts with, whatever a refused
  // file's header said.
  const bool stereo = g_workPath.isEmpty() || ShowsStereo(m_s);
  const DisplayRules r = RulesFor(m_s.m_testMode, m_s.m_showDb != 0, stereo, m_s.m_bits, m_s.m_sourceKind == kKindMp3);
  for (int i = 0; i < 2; ++i) {
    m_maxLabels[size_t(i)]->setText(r.maxLabelText);
    m_maxLabels[size_t(i)]->setStyleSheet(ColorSheet(r.maxLabelColor));
    m_maxLabels[size_t(i)]->setVisible(r.maxLabelShown[i]);
    m_clipLabels[size_t(i)]->setVisible(r.clippingShown[i]);
    m_captions[size_t(i)]->setText(r.caption[i]);
    m_titles[size_t(i)]->setText(r.title);
    m_subtitles[size_t(i)]->setText(r.subtitle);
    m_bars[size_t(i)]->SetSuffix(r.barSuffix);
    m_bars[size_t(i)]->SetShowDb(m_s.m_showDb != 0);
    m_bars[size_t(i)]->setAccessibleName(r.caption[i]);
    if (r.resetRangeTo100) m_bars[size_t(i)]->SetRange(0, 100);
  }
  m_bars[1]->setVisible(r.rightBarShown);
  m_captions[1]->setVisible(r.rightBarShown);
  m_titleBetween->setVisible(r.titleBetweenBars);
  m_titleAbove->setVisible(!r.titleBetweenBars);
  m_scaleLabel->setText(r.scaleLabel);
  m_scaleLabel->setVisible(r.scaleLabelShown);
  ClearBars();
  m_s.m_levelLeft = m_s.m_levelRight = -1.0f;
}

void CBrenlowv10Dlg::RenderResult(const LevelShowing& shown) {
  for (int i = 0; i < 2; ++i) {
    const BarShowing& b = shown.bars[i];
    LevelBar* bar = m_bars[size_t(i)];
    if (b.shown) {
      bar->SetBarColors(b.color1, b.color2);
      bar->SetRange(0, shown.rangeTop);
      bar->SetSuffix(b.suffix);
      bar->SetPos(b.position);
      bar->SetTiedText(b.tiedText);
    }
    if (shown.maxLabelShown[i]) {
      m_maxLabels[size_t(i)]->setText(shown.maxLabel[i]);
      m_maxLabels[size_t(i)]->setVisible(true);
    }
    m_clipLabels[size_t(i)]->setVisible(shown.clippingShown[i]);
  }
  m_scaleLabel->setText(shown.scaleLabel);
  m_scaleLabel->setVisible(shown.scaleLabelShown);
}

void CBrenlowv10Dlg::ApplyEnablingRules() {
  const EnablingState e =
      EnablingRules(m_s, {g_workerBusy.load() != 0, !g_workPath.isEmpty(), m_fileCombo->count()});
  m_fileCombo->setEnabled(e.fileList);
  control(kIdPlay)->setEnabled(e.play);
  m_peakRadio->setEnabled(e.peakRadio);
  m_averageRadio->setEnabled(e.averageRadio);
  if (e.checkedMode) {
    m_peakRadio->setChecked(*e.checkedMode == 0);
    m_averageRadio->setChecked(*e.checkedMode == 1);
  }
  for (int id : {kIdPrevious, kIdNext, kIdRepeat, kIdShuffle}) control(id)->setEnabled(e.transport);
  if (!e.keepToolOpen) action(kToolOpen)->setEnabled(e.toolOpen);
  if (!e.keepToolExit) action(kToolExit)->setEnabled(e.toolExit);
  action(kToolBatch)->setEnabled(e.toolBatch);
  if (e.statusText) {
    m_s.m_statusText = *e.statusText;
    m_statusText->setText(m_s.m_statusText);
  }
  m_s.m_idleStatusShown = e.idleStatusShown;
  // The update handlers of the menu.
  action(kCmdOpen)->setEnabled(e.open);
  action(kCmdClose)->setEnabled(e.close);
  action(kCmdExit)->setEnabled(e.exit);
  action(kCmdTest)->setEnabled(e.test);
  action(kCmdBatch)->setEnabled(e.batch);
  action(kCmdUseDatabase)->setEnabled(e.useDatabase);
  action(kCmdClearDatabase)->setEnabled(e.clearDatabase);
  action(kCmdDatabase)->setEnabled(e.database);
  action(kCmdVolumeUp)->setEnabled(e.volumeUpDown);
  action(kCmdVolumeDown)->setEnabled(e.volumeUpDown);
  for (auto [cmd, button] : {std::pair{kCmdPlayPause, kIdPlay}, std::pair{kCmdStop, kIdStop}, std::pair{kCmdMute, kIdMute},
                             std::pair{kCmdPrevious, kIdPrevious}, std::pair{kCmdNext, kIdNext}})
    action(cmd)->setEnabled(control(button)->isEnabled());
  m_exitDuringTest->setEnabled(m_s.m_testRunning != 0);
}

// --- Timers and keys ----------------------------------------------------------------------

void CBrenlowv10Dlg::timerEvent(QTimerEvent* e) {
  const int id = e->timerId();
  if (id == m_timer1) {
    ++m_enableTicks;
    ApplyEnablingRules();
  } else if (id == m_timer2) {
    // The finished test's progress goes down three seconds after its end.
    if (m_s.m_progressShown) {
      m_statusProgress->setVisible(false);
      m_statusProgress->setValue(0);
      m_s.m_statusText.clear();
      m_statusText->clear();
      m_s.m_progressShown = 0;
    }
    killTimer(m_timer2);
    m_timer2 = 0;
  } else {
    QMainWindow::timerEvent(e);
    return;
  }
  // A failed worker's display is reset here, on the window's thread.
  if (g_copyFinished.exchange(0)) {
    ClearFileDisplay(m_s);
    RenderSession();
    ClearListSelection();
  }
}

void CBrenlowv10Dlg::keyPressEvent(QKeyEvent* e) {
  // Esc does nothing: the window is left only through Exit and the close box.
  if (e->key() == Qt::Key_Escape) return;
  if (e->key() == Qt::Key_Return || e->key() == Qt::Key_Enter) {
    OpenByName(QString());
    return;
  }
  QMainWindow::keyPressEvent(e);
}

void CBrenlowv10Dlg::dragEnterEvent(QDragEnterEvent* e) {
  if (e->mimeData()->hasUrls() && !e->mimeData()->urls().first().toLocalFile().isEmpty()) e->acceptProposedAction();
}

void CBrenlowv10Dlg::dropEvent(QDropEvent* e) {
  if (!e->mimeData()->hasUrls()) return;
  const QString path = e->mimeData()->urls().first().toLocalFile();
  if (path.isEmpty()) return;
  e->acceptProposedAction();
  // Leave the drop before the open asks anything.
  QTimer::singleShot(0, this, [this, path] { OpenByName(path); });
}

// --- Opening ----------------------------------------------------------------------------

QString CBrenlowv10Dlg::ChooseFile() {
  const auto filters = OpenDialogFilters();
  QStringList names;
  for (const auto& [caption, pattern] : filters)
    names << caption + " (" + QString(pattern).replace(';', ' ').replace(QLatin1String("*.*"), QLatin1String("*")) + ")";
  QFileDialog dialog(this, OpenDialogTitle(),
                     m_s.m_fileName.isEmpty() ? QString() : QFileInfo(m_s.m_fileName).absolutePath());
  dialog.setFileMode(QFileDialog::ExistingFile);
  dialog.setNameFilters(names);
  // The captions name their patterns already; Qt would add them a second time.
  dialog.setOption(QFileDialog::HideNameFilterDetails);
  dialog.selectNameFilter(names.value(qBound(1, Settings::NumberFilter(), int(names.size())) - 1));
  // The chosen type is remembered at once.
  connect(&dialog, &QFileDialog::filterSelected, this, [names](const QString& f) {
    const int index = int(names.indexOf(f));
    if (index >= 0) Settings::SetInt("NumberFilter", index + 1);
  });
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return {};
  return dialog.selectedFiles().first();
}

bool CBrenlowv10Dlg::OpenedBy(const std::function<bool()>& call) {
  JoinWorker();  // a finished worker's thread is joined before a new one can start
  const QString before = g_workPath;
  const QString name = m_s.m_fileName;
  // An open of the file that is open already leaves the same paths behind, so the call's
  // own word counts too; a question answered Yes may have opened another file instead.
  const bool said = call();
  const bool opened = !g_workPath.isEmpty() && (said || g_workPath != before || m_s.m_fileName != name);
  if (opened) {
    AfterOpen();
  } else {
    RenderSession();
    if (g_workPath.isEmpty()) ClearListSelection();
  }
  return opened;
}

void CBrenlowv10Dlg::OnFileOpen() {
  if (m_s.m_testRunning || g_workerBusy.load()) return;
  for (QLabel* l : m_clipLabels) l->setVisible(false);
  Call(m_player.stopAndRestore);
  if (!OpenedBy([this] {
        ::OnFileOpen(m_s);
        return false;
      }) && !g_workPath.isEmpty()) m_fileCombo->setFocus();
}

void CBrenlowv10Dlg::AfterOpen() {
  if (!m_s.m_navigating) FillList();
  ShowDuration();
  RenderSession();
  ApplyDisplayRules();
}

void CBrenlowv10Dlg::FillList() {
  QSignalBlocker block(m_fileCombo);
  m_fileCombo->clear();
  const QString folder = QFileInfo(m_s.m_fileName).absolutePath();
  for (const QString& name : ::FillFileList(folder)) m_fileCombo->addItem(name);
  // The open file stands once more at the end, by its full path, and is selected.
  m_fileCombo->addItem(m_s.m_fileName);
  m_fileCombo->setCurrentIndex(m_fileCombo->count() - 1);
}

int CBrenlowv10Dlg::OpenByName(const QString& path) {
  if (m_s.m_testRunning || g_workerBusy.load() || m_s.m_opening) return 0;
  const int sel = m_fileCombo->currentIndex();
  m_nextIndex = sel + 1;
  m_previousIndex = sel - 1;
  const QString folder = m_s.m_fileName.isEmpty() ? QString() : QFileInfo(m_s.m_fileName).absolutePath();
  QString name = path;
  if (name.isEmpty()) {
    if (sel < 0 || sel >= m_fileCombo->count()) return 0;
    name = m_fileCombo->itemText(sel);
    if (!name.startsWith('/')) name = folder + '/' + name;
    if (name == m_s.m_fileName && m_fileCombo->count() > 1 && !m_s.m_shuffle) {
      m_fileCombo->setFocus();
      return 0;
    }
  }

  // A file that has gone: the list is read again from its folder, without a word.
  if (!QFileInfo(name).isFile()) {
    const QString listFolder = QFileInfo(name).absolutePath();
    QSignalBlocker block(m_fileCombo);
    m_fileCombo->clear();
    for (const QString& n : ::FillFileList(listFolder)) m_fileCombo->addItem(n);
    if (sel >= 0 && sel < m_fileCombo->count()) {
      m_fileCombo->setCurrentIndex(sel);
    } else if (m_fileCombo->count() > 0) {
      m_fileCombo->setCurrentIndex(0);
      m_nextIndex = 1;
    }
    return 0;
  }

  // A name without a supported suffix leaves the list.
  if (KindOfName(name) < 0) {
    const int at = m_fileCombo->findText(name) >= 0 ? m_fileCombo->findText(name)
                                                     : m_fileCombo->findText(QFileInfo(name).fileName());
    if (at >= 0) {
      QSignalBlocker block(m_fileCombo);
      m_fileCombo->removeItem(at);
      if (at < m_fileCombo->count()) {
        m_fileCombo->setCurrentIndex(at);
      } else if (m_fileCombo->count() > 0) {
        m_fileCombo->setCurrentIndex(0);
        m_nextIndex = 0;
      }
    }
    return 0;
  }

  for (QLabel* l : m_clipLabels) l->setVisible(false);
  Call(m_player.stopAndRestore);
  const bool opened = OpenedBy([this, &name] { return OpenFileHeadless(m_s, QFileInfo(name).absoluteFilePath()) == 1; });
  if (!opened && sel >= 0 && sel < m_fileCombo->count() && m_s.m_sourceKind != kKindAac && g_workPath.isEmpty()) {
    // A file its reader refused leaves the list.
    QSignalBlocker block(m_fileCombo);
    m_fileCombo->removeItem(sel);
  }
  return opened ? 1 : 0;
}

// With no file open the list keeps its entries and selects none.
void CBrenlowv10Dlg::ClearListSelection() {
  ApplyDisplayRules();
  QSignalBlocker block(m_fileCombo);
  m_fileCombo->setCurrentIndex(-1);
}

void CBrenlowv10Dlg::ShowDuration() {
  const unsigned ms = m_s.m_durationMs;
  const unsigned parts[3] = {ms / 60000, ms / 1000 % 60, ms / 10 % 100};
  for (int i = 0; i < 3; ++i) m_timeLabels[size_t(3 + i)]->setText(QString::asprintf("%02u", parts[i]));
}

void CBrenlowv10Dlg::ClearTimeLabels() {
  for (int i = 0; i < 3; ++i) m_timeLabels[size_t(i)]->setText(QStringLiteral("00"));
}

void CBrenlowv10Dlg::OnFileClose() {
  if (g_workPath.isEmpty() || g_workerBusy.load() || m_s.m_testRunning) return;
  ClearTimeLabels();
  for (int i = 3; i < 6; ++i) m_timeLabels[size_t(i)]->setText(QStringLiteral("00"));
  Call(m_player.stopAndRestore);
  JoinWorker();
  CloseWorkFile(m_s);
  {
    QSignalBlocker block(m_fileCombo);
    m_fileCombo->clear();
  }
  ClearFileDisplay(m_s);
  // The work file goes; the source stays as it is.
  if (g_workPath != g_sourcePath) DeleteWorkFile(g_workPath);
  g_workPath.clear();
  m_s.m_previousFileName = m_s.m_fileName;
  m_s.m_fileName.clear();
  m_s.m_fileSize = m_s.m_dataSize = m_s.m_dataOffset = 0;
  m_s.m_mpegMode = -1;
  RenderSession();
  ApplyDisplayRules();
  m_scaleLabel->setVisible(false);
}

// --- The test ------------------------------------------------------------------------------

void CBrenlowv10Dlg::SetTestMode(int mode) {
  if (m_s.m_testMode == mode) return;
  m_s.m_testMode = mode;
  ApplyDisplayRules();
  RenderSession();
}

void CBrenlowv10Dlg::SetShowDb(int db) {
  if (m_s.m_showDb != db) {
    m_s.m_showDb = db;
    Settings::SetInt("ShowDb", db);
    ApplyDisplayRules();  // a change of scale discards the shown result
  }
  RenderSession();
}

void CBrenlowv10Dlg::HideFinishedProgress() {
  if (!m_s.m_progressShown || g_workPath.isEmpty() || m_s.m_fileNotOpened) return;
  m_statusProgress->setVisible(false);
  m_statusProgress->setValue(0);
  m_s.m_statusText.clear();
  m_statusText->clear();
  m_s.m_progressShown = 0;
  if (m_timer2) killTimer(m_timer2);
  m_timer2 = 0;
}

void CBrenlowv10Dlg::StartTestUi() {
  for (int id : {kToolOpen, kToolBatch, kToolExit}) action(id)->setEnabled(false);
  if (m_s.m_sourceKind != kKindMp3)
    for (QLabel* l : m_clipLabels) l->setVisible(false);
  m_s.m_savedTitle = m_s.m_title.isEmpty() ? tonvane::kAppTitle : m_s.m_title;
  m_s.m_statusText = Tonvane::tr("  Test of the volume level is fulfilling");
  m_statusText->setText(m_s.m_statusText);
  m_statusProgress->setValue(0);
  m_statusProgress->setVisible(true);
  setWindowTitle(QStringLiteral("0% - ") + m_s.m_savedTitle);
  m_testButton->setText(Tonvane::tr("Cancel"));
  m_exitDuringTest->setEnabled(true);
  Call(m_player.stopAndRestore);
}

void CBrenlowv10Dlg::FinishTestUi() {
  m_statusProgress->setValue(100);
  setWindowTitle(m_s.m_savedTitle);
  m_timer2 = startTimer(kProgressDownMs);
  m_s.m_progressShown = 1;
  for (int id : {kToolBatch, kToolExit}) action(id)->setEnabled(true);
  if (m_s.m_sourceKind == kKindMp3) action(kToolOpen)->setEnabled(true);
  m_testButton->setText(Tonvane::tr("Test"));
  if (m_s.m_beep) Call(m_player.notify);
}

void CBrenlowv10Dlg::StopTestUi() {
  for (int id : {kToolOpen, kToolBatch, kToolExit}) action(id)->setEnabled(true);
  m_statusProgress->setVisible(false);
  m_statusProgress->setValue(0);
  if (!m_s.m_savedTitle.isEmpty()) setWindowTitle(m_s.m_savedTitle);
  ClearBars();
  for (QLabel* l : m_clipLabels) l->setVisible(false);
  m_testButton->setText(Tonvane::tr("Test"));
  m_s.m_progressShown = 0;
  m_s.m_statusText.clear();
  m_statusText->clear();
}

void CBrenlowv10Dlg::OnTest() {
  if (m_s.m_testRunning) {
    m_s.m_cancelRequested = 1;  // the running test ends from inside its own loop
    return;
  }
  ClearTimeLabels();
  HideFinishedProgress();
  bool fromLog = false;
  if (g_workPath.isEmpty() || m_s.m_fileNotOpened) {
    // The core asks whether to choose a file; Yes opens the dialog.
    ClearBars();
    OpenedBy([this, &fromLog] {
      RunTestOnOpenFile(m_s, fromLog);
      return false;
    });
    return;
  }
  StartTestUi();
  int ok = 0;
  const bool opened = OpenedBy([this, &ok, &fromLog] {
    ok = RunTestOnOpenFile(m_s, fromLog);
    return false;
  });
  m_exitDuringTest->setEnabled(false);
  if (ok) {
    RenderResult(ShowResult(m_s, m_bars[0]->Upper()));
    FinishTestUi();
  } else if (!opened) {
    StopTestUi();
  } else {
    m_testButton->setText(Tonvane::tr("Test"));
    m_statusProgress->setVisible(false);
  }
  RenderSession();
  if (!ok) RenderTitle();
  if (m_s.m_exitRequested) Shutdown();
}

// --- Database, leaving ------------------------------------------------------------------------

void CBrenlowv10Dlg::OnDatabase() {
  CDataBase dialog(m_s, this);
  dialog.exec();
}

void CBrenlowv10Dlg::OnExit() {
  if (m_s.m_testRunning) {
    m_s.m_exitRequested = 1;
    return;
  }
  if (g_workerBusy.load()) return;
  close();
}

void CBrenlowv10Dlg::closeEvent(QCloseEvent* e) {
  // The close box does nothing while a worker fills the work file.
  if (g_workerBusy.load() || m_s.m_opening) {
    e->ignore();
    return;
  }
  if (m_s.m_testRunning) {
    m_s.m_exitRequested = 1;
    e->ignore();
    return;
  }
  Shutdown();
  e->accept();
}

void CBrenlowv10Dlg::Shutdown() {
  if (m_timer1) killTimer(m_timer1);
  m_timer1 = 0;
  Call(m_player.stopAndRestore);
  JoinWorker();
  CloseWorkFile(m_s);
  if (!g_workPath.isEmpty() && g_workPath != g_sourcePath) DeleteWorkFile(g_workPath);
  if (!m_s.m_restoreTempName.isEmpty() && m_s.m_restoreTempName != g_sourcePath) DeleteWorkFile(m_s.m_restoreTempName);
  m_s.m_restoreTempName.clear();
  ClearSessionPaths();
  QApplication::quit();
}
