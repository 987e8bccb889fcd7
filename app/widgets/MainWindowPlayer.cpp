#include "app/widgets/MainWindowPlayer.h"

#include <QAction>
#include <QComboBox>
#include <QLabel>
#include <QLayout>
#include <QSignalBlocker>
#include <QStyle>
#include <QThread>
#include <QTimer>
#include <QToolButton>

#include "app/Globals.h"
#include <type_traits>
#include "app/Text.h"
#include "app/widgets/MainDialog.h"
#include "controls/SeekBar.h"
#include "controls/VolumeSlider.h"
#include "player/Beep.h"

namespace {

// Puts `replacement` where the window's plain slider named `name` stands; the plain one
// stays, hidden, since the window keeps a pointer to it.
template <class T>
T* Replace(QWidget* window, const char* name, T* replacement) {
  auto* plain = window->findChild<QSlider*>(QString::fromLatin1(name));
  if (plain == nullptr || plain->parentWidget() == nullptr || plain->parentWidget()->layout() == nullptr) return replacement;
  replacement->setParent(plain->parentWidget());
  plain->parentWidget()->layout()->replaceWidget(plain, replacement);
  plain->hide();
  plain->setObjectName(plain->objectName() + QStringLiteral("Plain"));
  replacement->setObjectName(QString::fromLatin1(name));
  return replacement;
}

// The window's open of the selected list entry: 1 when a file is open after it. A window
// whose open says nothing is judged by what it left.
template <class D>
int OpenSelected(D* dialog, Session& s) {
  if constexpr (std::is_same_v<decltype(dialog->OpenByName(QString())), int>) {
    return dialog->OpenByName(QString());
  } else {
    const QString before = g_workPath;
    dialog->OpenByName(QString());
    return !g_workPath.isEmpty() && (g_workPath != before || !s.m_fileName.isEmpty()) ? 1 : 0;
  }
}

template <class T>
struct ArgOf;
template <class R, class C, class A>
struct ArgOf<R (C::*)(A)> {
  using type = std::remove_cvref_t<A>;
};

// Puts the player behind the window's commands: through the window's seam for them where it
// has one, else straight on its actions and buttons.
template <class D, class Commands, class Direct>
void InstallCommands(D* dialog, const Commands& fill, const Direct& direct) {
  if constexpr (requires { &D::SetPlayerCommands; }) {
    typename ArgOf<decltype(&D::SetPlayerCommands)>::type commands;
    fill(commands);
    dialog->SetPlayerCommands(commands);
  } else {
    direct();
  }
}

QString Clock(unsigned tenths) { return QString::asprintf("%u:%02u", tenths / 600, tenths / 10 % 60); }

}  // namespace

MainWindowPlayer::MainWindowPlayer(CBrenlowv10Dlg* dialog)
    : QObject(dialog), m_dialog(dialog), m_s(dialog->session()), m_engine(m_s, *this), m_order(m_s, m_engine, *this, *this) {
  m_combo = qobject_cast<QComboBox*>(dialog->control(kIdFileCombo));
  m_seekBar = Replace(dialog, "seekBar", new SeekBar);
  m_volume = Replace(dialog, "volumeSlider", new VolumeSlider);
  m_seekBar->SetHost(&m_engine);
  m_seekBar->setToolTip(PlayerTipHtml(kTipSeek));
  m_seekBar->setAccessibleName(PlayerTipName(kTipSeek));
  m_volume->setToolTip(PlayerTipHtml(kTipVolume));
  m_volume->setAccessibleName(PlayerTipName(kTipVolume));
  const char* const fields[3] = {"posMinutes", "posSeconds", "posHundredths"};
  for (int i = 0; i < 3; ++i) m_position[i] = dialog->findChild<QLabel*>(QString::fromLatin1(fields[i]));
  const std::pair<int, int> tips[] = {{kIdStop, kTipStop},   {kIdShuffle, kTipShuffle}, {kIdRepeat, kTipRepeat},
                                      {kIdMute, kTipMute},   {kIdPrevious, kTipPrevious}, {kIdNext, kTipNext}};
  for (auto [id, tip] : tips)
    if (QToolButton* b = Button(id)) {
      b->setToolTip(PlayerTipHtml(tip));
      b->setAccessibleName(PlayerTipName(tip));
    }
  for (int id : {kIdShuffle, kIdRepeat, kIdMute})
    if (QToolButton* b = Button(id)) b->setCheckable(true);

  m_engine.onViewChanged = [this] { Render(); };
  m_engine.onTrackEnd = [this] { m_order.OnTrackEnd(); };
  m_order.openSelected = [this] {
    const int sel = m_combo->currentIndex();
    const QString text = m_combo->itemText(sel);
    if (OpenSelected(m_dialog, m_s) == 1) return true;
    // However the window refused it, the entry leaves the list, so the walk goes on.
    if (sel >= 0 && sel < m_combo->count() && m_combo->itemText(sel) == text) {
      const QSignalBlocker block(m_combo);
      m_combo->removeItem(sel);
    }
    return false;
  };
  m_order.waitForWorker = [this] {
    while (g_workerBusy.load()) {
      m_s.PumpMessages();
      QThread::msleep(5);
    }
  };
  connect(m_volume, &QSlider::valueChanged, this, [this](int v) { m_engine.OnVolumeSlider(v); });

  InstallCommands(
      dialog,
      [this](auto& commands) {
        commands.playPause = [this] { m_engine.PlayPause(); };
        commands.stop = [this] { m_engine.Stop(); };
        commands.volumeUp = [this] { m_engine.VolumeUp(); };
        commands.volumeDown = [this] { m_engine.VolumeDown(); };
        commands.mute = [this] { m_engine.ToggleMute(); };
        commands.previous = [this] { m_order.PreviousTrack(); };
        commands.next = [this] { m_order.NextTrack(); };
        commands.toggleShuffle = [this] {
          m_order.ToggleShuffle();
          Render();
        };
        commands.toggleRepeat = [this] {
          m_order.ToggleRepeat();
          Render();
        };
        commands.toggleRepeatAll = [this] {
          m_order.ToggleRepeatAll();
          Render();
        };
        commands.setVolume = [this](int v) { m_engine.OnVolumeSlider(v); };
        commands.stopAndRestore = [this] { m_engine.StopAndRestore(); };
        commands.notify = [] { PlayNotify(); };
        m_seamed = true;
      },
      [this] {
        const std::pair<int, std::function<void()>> commands[] = {
            {kCmdPlayPause, [this] { m_engine.PlayPause(); }}, {kCmdStop, [this] { m_engine.Stop(); }},
            {kCmdVolumeUp, [this] { m_engine.VolumeUp(); }},   {kCmdVolumeDown, [this] { m_engine.VolumeDown(); }},
            {kCmdMute, [this] { m_engine.ToggleMute(); }},     {kCmdPrevious, [this] { m_order.PreviousTrack(); }},
            {kCmdNext, [this] { m_order.NextTrack(); }},       {kCmdShuffle, [this] { m_order.ToggleShuffle(); Render(); }},
            {kCmdRepeat, [this] { m_order.ToggleRepeat(); Render(); }}};
        for (const auto& [id, call] : commands)
          if (QAction* a = m_dialog->action(id)) connect(a, &QAction::triggered, this, call);
        const std::pair<int, int> buttons[] = {{kIdPlay, kCmdPlayPause}, {kIdStop, kCmdStop},  {kIdShuffle, kCmdShuffle},
                                               {kIdRepeat, kCmdRepeat},  {kIdMute, kCmdMute},  {kIdPrevious, kCmdPrevious},
                                               {kIdNext, kCmdNext}};
        for (auto [button, cmd] : buttons)
          if (QToolButton* b = Button(button)) connect(b, &QToolButton::clicked, m_dialog->action(cmd), &QAction::trigger);
      });

  m_tick = new QTimer(this);
  connect(m_tick, &QTimer::timeout, this, [this] {
    if (!m_seamed) Watch();
    m_order.OnTimer(kTimerEnable);
  });
  m_tick->start(100);
  Render();
}

// Without the window's seam the player watches for what it would have been told: another
// file opened (the old sound lets go of it), and the command line's file ready to play.
void MainWindowPlayer::Watch() {
  if (!m_s.m_restoreTempName.isEmpty() && m_s.m_restoreTempName != g_workPath) m_engine.StopAndRestore();
  if (!m_commandLinePlayed && !m_dialog->commandLineFile().isEmpty() && !g_workPath.isEmpty() &&
      !g_workerBusy.load() && !m_s.m_opening) {
    m_commandLinePlayed = true;
    m_engine.PlayPause();
  }
}

MainWindowPlayer::~MainWindowPlayer() {
  InstallCommands(m_dialog, [](auto&) {}, [] {});
  m_engine.onViewChanged = nullptr;
  m_engine.Shutdown();
  ReleaseNotify();
}

QToolButton* MainWindowPlayer::Button(int id) const { return qobject_cast<QToolButton*>(m_dialog->control(id)); }

void MainWindowPlayer::StartTimer(int id, int periodMs, bool singleShot) {
  QTimer*& t = m_timers[id];
  if (t == nullptr) {
    t = new QTimer(this);
    connect(t, &QTimer::timeout, this, [this, id] { m_order.OnTimer(id); });
  }
  t->setSingleShot(singleShot);
  t->start(periodMs);
}

void MainWindowPlayer::KillTimer(int id) {
  auto it = m_timers.find(id);
  if (it != m_timers.end()) it->second->stop();
}

int MainWindowPlayer::Count() const { return m_combo->count(); }
int MainWindowPlayer::Selected() const { return m_combo->currentIndex(); }
QString MainWindowPlayer::Text(int index) const { return m_combo->itemText(index); }
void MainWindowPlayer::Remove(int index) {
  const QSignalBlocker block(m_combo);
  m_combo->removeItem(index);
}
void MainWindowPlayer::Select(int index) {
  const QSignalBlocker block(m_combo);
  m_combo->setCurrentIndex(index);
}
int MainWindowPlayer::FindExact(const QString& text) const {
  return m_combo->findText(text, Qt::MatchExactly | Qt::MatchCaseSensitive);
}
void MainWindowPlayer::Focus() { m_combo->setFocus(); }

void MainWindowPlayer::Render() {
  const PlayerView& v = m_engine.View();
  QStyle* st = m_dialog->style();
  if (QToolButton* play = Button(kIdPlay)) {
    const int tip = v.pauseFace ? kTipPause : kTipPlay;
    play->setIcon(st->standardIcon(v.pauseFace ? QStyle::SP_MediaPause : QStyle::SP_MediaPlay));
    play->setToolTip(PlayerTipHtml(tip));
    play->setAccessibleName(PlayerTipName(tip));
  }
  if (QToolButton* stop = Button(kIdStop)) stop->setEnabled(v.stopEnabled);
  if (QToolButton* mute = Button(kIdMute)) {
    mute->setEnabled(v.muteEnabled);
    mute->setChecked(v.mutedFace);
    mute->setIcon(st->standardIcon(v.mutedFace ? QStyle::SP_MediaVolumeMuted : QStyle::SP_MediaVolume));
  }
  if (QToolButton* b = Button(kIdShuffle)) b->setChecked(m_s.m_shuffle != 0);
  if (QToolButton* b = Button(kIdRepeat)) b->setChecked(m_s.m_repeat != 0);
  if (QAction* a = m_dialog->action(kCmdShuffle)) a->setChecked(m_s.m_shuffle != 0);
  if (QAction* a = m_dialog->action(kCmdRepeat)) a->setChecked(m_s.m_repeat != 0);
  if (QAction* a = m_dialog->action(kCmdRepeatAll)) a->setChecked(m_s.m_looping != 0);
  if (QAction* a = m_dialog->action(kCmdStop)) a->setEnabled(v.stopEnabled);
  if (QAction* a = m_dialog->action(kCmdMute)) a->setEnabled(v.muteEnabled);

  m_seekBar->setEnabled(v.seekMax > 0);
  if (!m_seekBar->Held()) {
    const QSignalBlocker block(m_seekBar);
    m_seekBar->setRange(0, v.seekMax);
    m_seekBar->setValue(v.seekPos);
  }
  m_seekBar->setAccessibleDescription(Clock(unsigned(m_seekBar->value())) + QStringLiteral(" / ") + Clock(unsigned(v.seekMax)));
  {
    const QSignalBlocker block(m_volume);
    m_volume->setValue(v.volumePos);
  }
  for (int i = 0; i < 3; ++i)
    if (m_position[i] != nullptr && m_position[i]->text() != v.position[i]) m_position[i]->setText(v.position[i]);
}
