#include "app/widgets/BatchPlayerPage.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QItemSelectionModel>
#include <QLabel>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QTimer>
#include <QToolButton>

#include "app/Text.h"
#include "app/widgets/BatchListView.h"
#include "app/widgets/Icons.h"
#include "batch/BatchList.h"
#include "controls/SeekBar.h"
#include "controls/VolumeSlider.h"

namespace {

QString Clock(unsigned tenths) { return QString::asprintf("%u:%02u", tenths / 600, tenths / 10 % 60); }

}  // namespace

CBatchPlayerPage::CBatchPlayerPage(Session& s, BatchList& list, CBatchListView& view, QWidget* parent)
    : QWidget(parent), m_list(list), m_view(view), m_preview(s, *this, *this) {
  setObjectName("batchPlayerPage");
  auto* grid = new QGridLayout(this);
  grid->setContentsMargins(8, 6, 8, 6);
  m_seek = new SeekBar(this);
  m_seek->setObjectName("previewSeekBar");
  m_seek->SetHost(&m_preview);
  m_seek->setToolTip(PlayerTipHtml(kTipSeek));
  m_seek->setAccessibleName(PlayerTipName(kTipSeek));
  grid->addWidget(m_seek, 0, 0, 1, 3);

  auto* row = new QHBoxLayout;
  const struct {
    QToolButton*& button;
    const char* icon;
    int tip;
  } buttons[] = {
      {m_play, "media-playback-start", kTipPlay},
      {m_stop, "media-playback-stop", kTipStop},
      {m_previous, "media-skip-backward", kTipPrevious},
      {m_next, "media-skip-forward", kTipNext},
  };
  for (const auto& b : buttons) {
    b.button = new QToolButton(this);
    b.button->setIcon(tonvane::ThemedIcon(QString::fromLatin1(b.icon)));
    b.button->setIconSize(QSize(22, 22));
    b.button->setToolTip(PlayerTipHtml(b.tip));
    b.button->setAccessibleName(PlayerTipName(b.tip));
    row->addWidget(b.button);
  }
  m_play->setObjectName("previewPlay");
  m_stop->setObjectName("previewStop");
  m_previous->setObjectName("previewPrevious");
  m_next->setObjectName("previewNext");
  m_name = new QLineEdit(this);
  m_name->setObjectName("previewName");
  m_name->setReadOnly(true);
  m_name->setAccessibleName(Tonvane::tr("File Name"));
  row->addWidget(m_name, 1);
  for (int i = 0; i < 2; ++i) {
    m_position[i] = new QLabel(this);
    m_position[i]->setMinimumWidth(fontMetrics().horizontalAdvance(QStringLiteral("000")));
    m_position[i]->setAlignment(i == 0 ? Qt::AlignRight | Qt::AlignVCenter : Qt::AlignLeft | Qt::AlignVCenter);
  }
  m_position[0]->setObjectName("previewMinutes");
  m_position[1]->setObjectName("previewSeconds");
  row->addWidget(m_position[0]);
  m_colon = new QLabel(QStringLiteral(":"), this);
  row->addWidget(m_colon);
  row->addWidget(m_position[1]);
  m_volume = new VolumeSlider(this);
  m_volume->setObjectName("previewVolume");
  m_volume->setToolTip(PlayerTipHtml(kTipVolume));
  m_volume->setAccessibleName(PlayerTipName(kTipVolume));
  row->addWidget(m_volume);
  grid->addLayout(row, 1, 0, 1, 3);
  grid->setRowStretch(2, 1);

  connect(m_play, &QToolButton::clicked, this, [this] { m_preview.PlayPause(); });
  connect(m_stop, &QToolButton::clicked, this, [this] { m_preview.Stop(); });
  connect(m_next, &QToolButton::clicked, this, [this] { m_preview.Next(); });
  connect(m_previous, &QToolButton::clicked, this, [this] { m_preview.Previous(); });
  connect(m_volume, &QSlider::valueChanged, this, [this](int v) { m_preview.OnVolumeSlider(v); });
  connect(m_view.selectionModel(), &QItemSelectionModel::currentRowChanged, this, [this](const QModelIndex& current) {
    m_preview.SetPreviewFile(m_list.PathOf(current.row()));
  });
  m_preview.onViewChanged = [this] { Render(); };
  Render();
}

CBatchPlayerPage::~CBatchPlayerPage() {
  m_preview.onViewChanged = nullptr;
  m_preview.Shutdown();
}

void CBatchPlayerPage::SetTransportEnabled(bool play, bool stepping) {
  m_play->setEnabled(play);
  m_next->setEnabled(stepping);
  m_previous->setEnabled(stepping);
  m_stop->setEnabled(m_preview.View().stopEnabled);
}

void CBatchPlayerPage::StartTimer(int id, int periodMs, bool singleShot) {
  QTimer*& t = m_timers[id];
  if (t == nullptr) {
    t = new QTimer(this);
    connect(t, &QTimer::timeout, this, [this, id] { m_preview.OnTick(id); });
  }
  t->setSingleShot(singleShot);
  t->start(periodMs);
}

void CBatchPlayerPage::KillTimer(int id) {
  auto it = m_timers.find(id);
  if (it != m_timers.end()) it->second->stop();
}

int CBatchPlayerPage::FileCount() const { return m_list.FileCount(); }

int CBatchPlayerPage::FocusedRow() const {
  const int row = m_view.currentIndex().row();
  return row < m_list.FileCount() ? row : -1;
}

void CBatchPlayerPage::FocusRow(int row) {
  m_view.selectRow(row);
  m_view.scrollTo(m_list.index(row, 0));
}

const BatchFileInfo* CBatchPlayerPage::Record(int row) const { return m_list.Info(row); }

void CBatchPlayerPage::Render() {
  const PlayerView& v = m_preview.View();
  const int tip = v.pauseFace ? kTipPause : kTipPlay;
  m_play->setIcon(tonvane::ThemedIcon(v.pauseFace ? QStringLiteral("media-playback-pause") : QStringLiteral("media-playback-start")));
  m_play->setToolTip(PlayerTipHtml(tip));
  m_play->setAccessibleName(PlayerTipName(tip));
  m_stop->setEnabled(v.stopEnabled);
  if (m_name->text() != m_preview.Name()) {
    m_name->setText(m_preview.Name());
    m_name->setCursorPosition(0);
  }
  m_seek->setEnabled(v.seekMax > 0);
  if (!m_seek->Held()) {
    const QSignalBlocker block(m_seek);
    m_seek->setRange(0, v.seekMax);
    m_seek->setValue(v.seekPos);
  }
  m_seek->setAccessibleDescription(Clock(unsigned(m_seek->value())) + QStringLiteral(" / ") + Clock(unsigned(v.seekMax)));
  {
    const QSignalBlocker block(m_volume);
    m_volume->setValue(v.volumePos);
  }
  for (int i = 0; i < 2; ++i)
    if (m_position[i]->text() != v.position[i]) m_position[i]->setText(v.position[i]);
  // A stopped preview shows no position at all, not a lone colon.
  m_colon->setText(v.position[0].isEmpty() ? QString() : QStringLiteral(":"));
}
