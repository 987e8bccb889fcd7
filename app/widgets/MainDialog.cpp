#include "app/widgets/MainDialog.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QComboBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QSignalBlocker>
#include <cmath>
#include <QFrame>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QStatusBar>
#include <QStyle>
#include <QTimer>
#include <QTimerEvent>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>

#include "app/Globals.h"
#include "app/Settings.h"
#include "app/Text.h"
#include "app/widgets/Icons.h"
#include "app/widgets/ShellMenus.h"
#include "app/HeadlessTest.h"
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

QLabel* MakeLabel(const QString& text, QWidget* parent, const QString& name = {}) {
  auto* l = new QLabel(text, parent);
  if (!name.isEmpty()) l->setObjectName(name);
  return l;
}

QProgressBar* MakeLevelBar(QWidget* parent, const QString& name) {
  auto* bar = new QProgressBar(parent);
  bar->setObjectName(name);
  bar->setOrientation(Qt::Vertical);
  bar->setRange(0, 100);
  bar->setValue(0);
  bar->setTextVisible(false);
  bar->setMinimumSize(34, 150);
  return bar;
}

}  // namespace

CBrenlowv10Dlg::CBrenlowv10Dlg(const QString& commandLineFile, QWidget* parent)
    : QMainWindow(parent), m_promptUi(this), m_commandLineFile(commandLineFile) {
  m_s.m_prompt.SetUi(&m_promptUi);
  m_s.m_pump = &m_pumpUi;
  m_s.LoadSettings();
  CheckLogAtStart(m_s);  // creates the log when missing and applies the size cap

  setWindowTitle(tonvane::kAppTitle);
  setObjectName("CBrenlowv10Dlg");
  BuildMenus();
  BuildToolBar();
  BuildCentral();
  BuildStatusBar();
  m_pumpUi.onProgress = [this](int percent) {
    if (m_statusProgress) m_statusProgress->setValue(percent);
  };
  RenderFromSession();
  m_timer1 = startTimer(100);  // timer 1: the enabling rules, for the whole life of the window
  // A file named on the command line is opened half a second after the window shows.
  if (!m_commandLineFile.isEmpty())
    QTimer::singleShot(500, this, [this] { OpenByName(m_commandLineFile); });
}

CBrenlowv10Dlg::~CBrenlowv10Dlg() = default;

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

  QMenu* player = mb->addMenu(Tonvane::tr("&Player"));
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
  connect(action(kCmdExit), &QAction::triggered, this, &CBrenlowv10Dlg::OnExit);
  connect(action(kCmdOpen), &QAction::triggered, this, &CBrenlowv10Dlg::OnFileOpen);
  connect(action(kCmdTest), &QAction::triggered, this, &CBrenlowv10Dlg::OnTest);
  connect(action(kCmdBatch), &QAction::triggered, this, &CBrenlowv10Dlg::OnBatchProcessor);
  connect(action(kCmdShowPercent), &QAction::triggered, this, [this] { SetShowDb(0); });
  connect(action(kCmdShowDb), &QAction::triggered, this, [this] { SetShowDb(1); });
  connect(action(kCmdUseDatabase), &QAction::triggered, this, [this](bool on) { m_s.m_useDatabase = on ? 1 : 0; });
  connect(action(kCmdRepeatAll), &QAction::triggered, this, [this](bool on) {
    m_s.m_looping = on ? 1 : 0;
    Settings::SetInt("Looping", m_s.m_looping);
  });
  connect(action(kCmdBeep), &QAction::triggered, this, [this](bool on) {
    m_s.m_beep = on ? 1 : 0;
    Settings::SetInt("Beep", m_s.m_beep);
  });
  connect(action(kCmdAlwaysOnTop), &QAction::triggered, this, [this](bool on) {
    m_s.m_alwaysOnTop = on ? 1 : 0;
    setWindowFlag(Qt::WindowStaysOnTopHint, on);
    this->show();
  });
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
      {757, "document-open", QT_TRANSLATE_NOOP("Tonvane", "Open"), QT_TRANSLATE_NOOP("Tonvane", "Open (Ctrl+O)")},
      {309, "tonvane-batch", QT_TRANSLATE_NOOP("Tonvane", "Batch"), QT_TRANSLATE_NOOP("Tonvane", "Batch Processor (Ctrl+P)")},
      {756, "help-contents", QT_TRANSLATE_NOOP("Tonvane", "Help"), QT_TRANSLATE_NOOP("Tonvane", "Help (F1)")},
      {304, "application-exit", QT_TRANSLATE_NOOP("Tonvane", "Exit"), QT_TRANSLATE_NOOP("Tonvane", "Exit (Ctrl+X)")},
  };
  for (const Item& it : items) {
    if (it.id == 309 || it.id == 756) m_toolBar->addSeparator();
    QAction* a = m_toolBar->addAction(tonvane::ThemedIcon(it.icon), Tonvane::tr(it.caption));
    a->setToolTip(Tonvane::tr(it.tip));
    a->setData(it.id);
    a->setObjectName(QStringLiteral("tool%1").arg(it.id));
    m_actions[it.id] = a;
  }
  connect(action(304), &QAction::triggered, this, &CBrenlowv10Dlg::OnExit);
  connect(action(757), &QAction::triggered, this, &CBrenlowv10Dlg::OnFileOpen);
  connect(action(309), &QAction::triggered, this, &CBrenlowv10Dlg::OnBatchProcessor);
  connect(action(756), &QAction::triggered, action(kCmdHelp), &QAction::trigger);
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
  fileLine->addWidget(fileLabel);
  fileLine->addWidget(m_fileCombo, 1);
  outer->addLayout(fileLine);
  m_controls[kIdFileLabel] = fileLabel;
  m_controls[kIdFileCombo] = m_fileCombo;
  connect(m_fileCombo, &QComboBox::activated, this, [this](int) { OpenByName(QString()); });

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
  for (int i = 0; i < 5; ++i) {
    m_propertyLabels[size_t(i)] = MakeLabel(Tonvane::tr(kPropertyCaptions[i]), panel, QStringLiteral("property%1").arg(i + 1));
    QFont mono("Monospace");
    mono.setStyleHint(QFont::TypeWriter);
    m_propertyLabels[size_t(i)]->setFont(mono);
    panelLayout->addWidget(m_propertyLabels[size_t(i)]);
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
  connect(m_testButton, &QPushButton::clicked, this, &CBrenlowv10Dlg::OnTest);
  connect(m_peakRadio, &QRadioButton::clicked, this, [this] { SetTestMode(0); });
  connect(m_averageRadio, &QRadioButton::clicked, this, [this] { SetTestMode(1); });
  m_controls[kIdPeakRadio] = m_peakRadio;
  m_controls[kIdAverageRadio] = m_averageRadio;

  // The two level bars with their titles, captions and labels.
  auto* bars = new QGridLayout;
  m_leftBar = MakeLevelBar(testGroup, "leftBar");
  m_rightBar = MakeLevelBar(testGroup, "rightBar");
  auto* leftTitle = MakeLabel(Tonvane::tr("Left"), testGroup, "leftTitle");
  auto* rightTitle = MakeLabel(Tonvane::tr("Right"), testGroup, "rightTitle");
  leftTitle->setAlignment(Qt::AlignCenter);
  rightTitle->setAlignment(Qt::AlignCenter);
  m_scaleLabel = MakeLabel(QString(), testGroup, "scaleLabel");
  m_scaleLabel->setAlignment(Qt::AlignCenter);
  auto* maxLeft = MakeLabel(QString(), testGroup, "maxLevelLeft");
  auto* maxRight = MakeLabel(QString(), testGroup, "maxLevelRight");
  auto* clipLeft = MakeLabel(Tonvane::tr("Clipping"), testGroup, "clippingLeft");
  auto* clipRight = MakeLabel(Tonvane::tr("Clipping"), testGroup, "clippingRight");
  clipLeft->setVisible(false);
  clipRight->setVisible(false);
  const QString red = QStringLiteral("color: #ff0003; font-weight: bold;");  // 0x0300ff
  clipLeft->setStyleSheet(red);
  clipRight->setStyleSheet(red);
  const QString labelColour = QStringLiteral("color: #1e1ecb;");  // 0xcb1e1e
  maxLeft->setStyleSheet(labelColour);
  maxRight->setStyleSheet(labelColour);
  m_maxLabels = {maxLeft, maxRight};
  m_clipLabels = {clipLeft, clipRight};
  m_levelTexts = {MakeLabel(QString(), testGroup, "levelLeft"), MakeLabel(QString(), testGroup, "levelRight")};
  for (QLabel* l : m_levelTexts) {
    l->setAlignment(Qt::AlignCenter);
    QFont f = l->font();
    f.setBold(true);
    l->setFont(f);
  }
  bars->addWidget(leftTitle, 0, 0);
  bars->addWidget(rightTitle, 0, 2);
  bars->addWidget(m_leftBar, 1, 0, Qt::AlignHCenter);
  bars->addWidget(m_scaleLabel, 1, 1, Qt::AlignCenter);
  bars->addWidget(m_rightBar, 1, 2, Qt::AlignHCenter);
  bars->addWidget(maxLeft, 2, 0);
  bars->addWidget(maxRight, 2, 2);
  bars->addWidget(clipLeft, 3, 0);
  bars->addWidget(clipRight, 3, 2);
  bars->addWidget(m_levelTexts[0], 4, 0);
  bars->addWidget(m_levelTexts[1], 4, 2);
  bars->setColumnMinimumWidth(1, 90);
  testLayout->addLayout(bars, 2);
  m_controls[kIdLeftBar] = m_leftBar;
  m_controls[kIdRightBar] = m_rightBar;
  outer->addWidget(testGroup, 1);

  // Group "Player".
  auto* playerGroup = new QGroupBox(Tonvane::tr("Player"), central);
  playerGroup->setObjectName("playerGroup");
  auto* playerLayout = new QVBoxLayout(playerGroup);
  m_seekBar = new QSlider(Qt::Horizontal, playerGroup);
  m_seekBar->setObjectName("seekBar");
  m_seekBar->setEnabled(false);
  playerLayout->addWidget(m_seekBar);
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
  auto field = [&](const QString& name) {
    auto* l = MakeLabel(QStringLiteral("00"), playerGroup, name);
    l->setFrameShape(QFrame::Panel);
    l->setFrameShadow(QFrame::Sunken);
    l->setAlignment(Qt::AlignCenter);
    l->setMinimumWidth(28);
    return l;
  };
  times->addWidget(MakeLabel(Tonvane::tr("Time:"), playerGroup, "timeCaption"), 0, 0);
  times->addWidget(field("posMinutes"), 0, 1);
  times->addWidget(field("posSeconds"), 0, 2);
  times->addWidget(field("posHundredths"), 0, 3);
  times->addWidget(MakeLabel(Tonvane::tr("Total Time:"), playerGroup, "totalCaption"), 1, 0);
  times->addWidget(field("totalMinutes"), 1, 1);
  times->addWidget(field("totalSeconds"), 1, 2);
  times->addWidget(field("totalHundredths"), 1, 3);
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
  m_statusProgress->setVisible(false);
  m_statusText = new QLabel(sb);
  m_statusText->setObjectName("statusText");
  m_statusText->setMinimumWidth(265);
  sb->addWidget(m_statusProgress, 1);
  sb->addPermanentWidget(m_statusText);
}

void CBrenlowv10Dlg::RenderFromSession() {
  for (int i = 0; i < 5; ++i) {
    const QString& line = m_s.m_propertyLines[i];
    m_propertyLabels[size_t(i)]->setText(line.isEmpty() ? Tonvane::tr(kPropertyCaptions[i]) : line);
  }
  m_scaleLabel->setText(m_s.m_scaleLabel);
  m_scaleLabel->setVisible(m_s.m_scaleLabelVisible != 0);
  m_statusText->setText(m_s.m_statusText);
  action(kCmdShowPercent)->setChecked(m_s.m_showDb == 0);
  action(kCmdShowDb)->setChecked(m_s.m_showDb == 1);
  action(kCmdUseDatabase)->setChecked(m_s.m_useDatabase != 0);
  action(kCmdRepeatAll)->setChecked(m_s.m_looping != 0);
  action(kCmdBeep)->setChecked(m_s.m_beep != 0);
  action(kCmdShuffle)->setChecked(m_s.m_shuffle != 0);
  action(kCmdRepeat)->setChecked(m_s.m_repeat != 0);
  action(kCmdAlwaysOnTop)->setChecked(m_s.m_alwaysOnTop != 0);
}

void CBrenlowv10Dlg::ApplyEnablingRules() {
  const bool busy = g_workerBusy.load() || m_s.m_opening;
  const bool test = m_s.m_testRunning != 0;
  const bool haveWork = !g_workPath.isEmpty();
  if (busy) {
    m_fileCombo->setEnabled(false);
    control(kIdPlay)->setEnabled(false);
    m_peakRadio->setEnabled(false);
    m_averageRadio->setEnabled(false);
    action(757)->setEnabled(false);
    action(304)->setEnabled(false);
    if (m_s.m_idleStatusShown) {
      m_s.m_statusText = Tonvane::tr("  Copying of the file is fulfilling");
      m_statusText->setText(m_s.m_statusText);
      m_s.m_idleStatusShown = 0;
    }
  } else {
    control(kIdPlay)->setEnabled(haveWork && m_s.m_canPlay);
    if (test) {
      m_fileCombo->setEnabled(false);
      m_peakRadio->setEnabled(false);
      m_averageRadio->setEnabled(false);
    } else {
      m_fileCombo->setEnabled(true);
      action(757)->setEnabled(m_s.m_uiEnabledB != 0);
      action(304)->setEnabled(true);
      m_peakRadio->setEnabled(m_s.m_sourceKind != kKindMp3 && m_s.m_uiEnabledB);
      m_averageRadio->setEnabled(m_s.m_uiEnabledB != 0);
      m_peakRadio->setChecked(m_s.m_testMode == 0);
      m_averageRadio->setChecked(m_s.m_testMode == 1);
      if (!m_s.m_idleStatusShown) {
        m_s.m_statusText.clear();
        m_statusText->setText(QString());
      }
      m_s.m_idleStatusShown = 1;
    }
  }
  action(309)->setEnabled(!busy && !test);
  const bool transport = m_fileCombo->count() > 0 && haveWork && m_s.m_canPlay && !busy;
  for (int id : {kIdPrevious, kIdNext, kIdRepeat, kIdShuffle}) control(id)->setEnabled(transport);

  // Menu items follow the same rules as their buttons.
  action(kCmdOpen)->setEnabled(!g_workerBusy.load() && m_s.m_uiEnabledB);
  action(kCmdClose)->setEnabled(haveWork && !g_workerBusy.load() && m_s.m_uiEnabledA);
  action(kCmdExit)->setEnabled(!test && !g_workerBusy.load());
  action(kCmdTest)->setEnabled(!test && !g_workerBusy.load());
  action(kCmdBatch)->setEnabled(!test && !g_workerBusy.load());
  action(kCmdUseDatabase)->setEnabled(m_s.m_logAvailable != 0);
  action(kCmdClearDatabase)->setEnabled(m_s.m_logAvailable != 0);
  action(kCmdDatabase)->setEnabled(m_s.m_logAvailable != 0);
  action(kCmdVolumeUp)->setEnabled(!m_s.m_restoreTempName.isEmpty());
  action(kCmdVolumeDown)->setEnabled(!m_s.m_restoreTempName.isEmpty());
  action(kCmdPlayPause)->setEnabled(control(kIdPlay)->isEnabled());
  action(kCmdStop)->setEnabled(control(kIdStop)->isEnabled());
  action(kCmdMute)->setEnabled(control(kIdMute)->isEnabled());
  action(kCmdPrevious)->setEnabled(control(kIdPrevious)->isEnabled());
  action(kCmdNext)->setEnabled(control(kIdNext)->isEnabled());
}

void CBrenlowv10Dlg::timerEvent(QTimerEvent* e) {
  if (e->timerId() == m_timer1) {
    ++m_enableTicks;
    ApplyEnablingRules();
    return;
  }
  QMainWindow::timerEvent(e);
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

void CBrenlowv10Dlg::OpenByName(const QString& path) {
  if (m_s.m_testRunning || g_workerBusy.load()) return;
  QString p = path;
  if (p.isEmpty()) {
    const int sel = m_fileCombo->currentIndex();
    if (sel < 0) return;
    p = m_fileCombo->itemData(sel).toString();
    if (p.isEmpty()) p = m_fileCombo->itemText(sel);
  }
  if (p.isEmpty() || p == m_s.m_fileName) return;
  OpenPath(p);
}

void CBrenlowv10Dlg::OnFileOpen() {
  if (m_s.m_testRunning || g_workerBusy.load()) return;
  const QStringList filters = {
      Tonvane::tr("All Files (*.*)") + " (*)",
      Tonvane::tr("Wave Files (*.wav; *.wave)") + " (*.wav *.wave)",
      Tonvane::tr("Mp3 Files (*.mp3; *.mpga)") + " (*.mp3 *.mpga)",
      Tonvane::tr("FLAC Files (*.flac; *.fla)") + " (*.flac *.fla)",
      Tonvane::tr("Ogg Files (*.ogg)") + " (*.ogg)",
      Tonvane::tr("APE Files (*.ape)") + " (*.ape)",
      Tonvane::tr("AAC/ALAC Files (*.aac,*.mp4,*.m4a,*.m4b,*.m4p,*.m4r)") + " (*.m4a *.m4b *.mp4 *.m4p *.m4r *.aac)"};
  int index = qBound(1, Settings::NumberFilter(), int(filters.size())) - 1;
  QString selected = filters.at(index);
  const QString folder = m_s.m_fileName.isEmpty() ? QString() : QFileInfo(m_s.m_fileName).absolutePath();
  const QString path = QFileDialog::getOpenFileName(this, Tonvane::tr("Open      "), folder, filters.join(";;"), &selected);
  const int chosen = int(filters.indexOf(selected));
  if (chosen >= 0) Settings::SetInt("NumberFilter", chosen + 1);
  if (path.isEmpty() || path == m_s.m_fileName) return;
  OpenPath(path);
}

void CBrenlowv10Dlg::OpenPath(const QString& path) {
  // The old work file goes before the new one is made.
  JoinWorker();
  if (!g_workPath.isEmpty() && g_workPath != g_sourcePath) DeleteWorkFile(g_workPath);
  ClearSessionPaths();
  for (QString& line : m_s.m_propertyLines) line.clear();
  m_s.m_levelLeft = m_s.m_levelRight = -1.0f;
  m_s.m_opening = 1;
  m_s.m_previousFileName = m_s.m_fileName;
  const int ok = OpenFileHeadless(m_s, QFileInfo(path).absoluteFilePath());
  m_s.m_opening = 0;
  if (!ok) {
    m_s.m_fileName.clear();
    setWindowTitle(tonvane::kAppTitle);
    RenderFromSession();
    ShowLevels();
    return;
  }
  if (m_s.m_sourceKind == kKindMp3) m_s.m_testMode = 1;
  FillFileList(QFileInfo(m_s.m_fileName).absolutePath());
  setWindowTitle(QFileInfo(m_s.m_fileName).fileName() + " - " + tonvane::kAppTitle);
  const unsigned ms = m_s.m_durationMs;
  auto set = [this](const char* name, unsigned v) {
    if (auto* l = findChild<QLabel*>(name)) l->setText(QString::asprintf("%02u", v));
  };
  set("totalMinutes", ms / 60000);
  set("totalSeconds", ms / 1000 % 60);
  set("totalHundredths", ms / 10 % 100);
  RenderFromSession();
  ShowLevels();
}

void CBrenlowv10Dlg::FillFileList(const QString& folder) {
  QSignalBlocker block(m_fileCombo);
  m_fileCombo->clear();
  const QFileInfoList entries = QDir(folder).entryInfoList(QDir::Files, QDir::NoSort);
  for (const QFileInfo& fi : entries)
    if (KindOfName(fi.fileName()) >= 0) m_fileCombo->addItem(fi.fileName(), fi.absoluteFilePath());
  // The open file stands once more at the end, by its full path, and is selected.
  m_fileCombo->addItem(m_s.m_fileName, m_s.m_fileName);
  m_fileCombo->setCurrentIndex(m_fileCombo->count() - 1);
}

void CBrenlowv10Dlg::SetTestMode(int mode) {
  if (m_s.m_testMode == mode) return;
  m_s.m_testMode = mode;
  m_s.m_levelLeft = m_s.m_levelRight = -1.0f;
  ShowLevels();
}

void CBrenlowv10Dlg::SetShowDb(int db) {
  if (m_s.m_showDb != db) {
    m_s.m_showDb = db;
    Settings::SetInt("ShowDb", db);
    m_s.m_levelLeft = m_s.m_levelRight = -1.0f;  // a change of scale discards the shown result
    ShowLevels();
  }
  RenderFromSession();
}

void CBrenlowv10Dlg::OnTest() {
  if (m_s.m_testRunning) {
    m_s.m_cancelRequested = 1;  // the running test ends from inside its own loop
    return;
  }
  m_testButton->setText(Tonvane::tr("Cancel"));
  m_statusProgress->setValue(0);
  m_statusProgress->setVisible(true);
  for (int id : {757, 309, 304}) action(id)->setEnabled(false);
  const QString savedTitle = windowTitle();
  m_s.m_savedTitle = savedTitle;
  m_pumpUi.onProgress = [this, savedTitle](int percent) {
    m_statusProgress->setValue(percent);
    setWindowTitle(QString::number(percent) + "% - " + savedTitle);
  };
  RenderFromSession();
  bool fromLog = false;
  const int ok = RunTestOnOpenFile(m_s, fromLog);
  m_pumpUi.onProgress = [this](int percent) { m_statusProgress->setValue(percent); };
  setWindowTitle(savedTitle);
  m_testButton->setText(Tonvane::tr("Test"));
  if (!ok) {
    m_statusProgress->setVisible(false);
    m_s.m_levelLeft = m_s.m_levelRight = -1.0f;
  }
  ShowLevels();
  RenderFromSession();
  if (m_s.m_exitRequested) Shutdown();
}

void CBrenlowv10Dlg::ShowLevels() {
  const bool stereo = m_s.m_channels != 1;
  m_rightBar->setVisible(stereo);
  const bool shown = m_s.m_levelLeft != -1.0f;
  const std::vector<ChannelLevelView> levels = shown ? ChannelLevels(m_s) : std::vector<ChannelLevelView>{};
  QProgressBar* bars[2] = {m_leftBar, m_rightBar};
  for (size_t i = 0; i < 2; ++i) {
    const bool have = i < levels.size();
    const ChannelLevelView v = have ? levels[i] : ChannelLevelView{};
    const double top = m_s.m_showDb ? 120.0 : 100.0;
    bars[i]->setValue(have ? int(std::lround(qBound(0.0, v.level, top) * 100.0 / top)) : 0);
    const QString unit = m_s.m_showDb ? QStringLiteral(" dB") : QStringLiteral("%");
    m_levelTexts[i]->setText(have ? QString::asprintf(m_s.m_showDb || m_s.m_testMode == 1 ? "%1.1f" : "%1.0f", v.level) + unit
                                  : QString());
    m_maxLabels[i]->setText(have && v.hasMax ? Tonvane::tr("Max Level ") + QString::asprintf("%1.1f", v.maxLevel) + unit
                                             : QString());
    m_clipLabels[i]->setVisible(have && v.hasVerdict && v.clipping);
    const QString chunk = have && v.hasVerdict && v.clipping ? "#ff0003" : "#0000ff";
    bars[i]->setStyleSheet(QStringLiteral("QProgressBar::chunk { background: %1; }").arg(chunk));
  }
}

void CBrenlowv10Dlg::OnExit() {
  if (m_s.m_testRunning) {
    m_s.m_exitRequested = 1;
    return;
  }
  Shutdown();
}

void CBrenlowv10Dlg::closeEvent(QCloseEvent* e) {
  // The close box does nothing while a worker fills the work file.
  if (g_workerBusy.load()) {
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
  JoinWorker();
  if (!g_workPath.isEmpty() && g_workPath != g_sourcePath) DeleteWorkFile(g_workPath);
  if (!m_s.m_restoreTempName.isEmpty()) DeleteWorkFile(m_s.m_restoreTempName);
  m_s.m_restoreTempName.clear();
  ClearSessionPaths();
  QApplication::quit();
}
