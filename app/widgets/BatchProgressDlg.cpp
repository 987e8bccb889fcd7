#include "app/widgets/BatchProgressDlg.h"

#include <QApplication>
#include <QCheckBox>
#include <QCloseEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

#include "app/ColorRef.h"
#include "app/Session.h"
#include "app/Settings.h"
#include "app/Text.h"
#include "batch/BatchList.h"
#include "controls/ProgressBarX.h"
#include "player/Beep.h"

namespace {
QString ColourCss(uint32_t colorRef) {
  return QStringLiteral("color: #%1;").arg(RgbOfColorRef(colorRef), 6, 16, QChar('0'));
}
}  // namespace

CBatchProgress::CBatchProgress(BatchList& list, Session& s, const BatchRunOptions& options, QWidget* parent)
    : QDialog(parent), m_list(list), m_s(s), m_options(options), m_measure(MeasureForBatch),
      m_measureParallel(MeasureForBatchIsParallel()) {
  setObjectName("CBatchProgress");
  m_title = Tonvane::tr("Batch Processing...");
  setWindowTitle(m_title);
  setModal(true);
  auto* layout = new QVBoxLayout(this);
  auto* grid = new QGridLayout;
  m_fileCaption = new QLabel(Tonvane::tr("Test of the file:"), this);
  m_fileName = new QLabel(this);
  m_fileName->setObjectName("progressFile");
  m_fileName->setMinimumWidth(420);
  grid->addWidget(m_fileCaption, 0, 0);
  grid->addWidget(m_fileName, 0, 1);
  layout->addLayout(grid);

  m_bar = new CProgressCtrlX(this);
  m_bar->setObjectName("progressBar");
  m_bar->setRange(0, 100);
  m_bar->setValue(0);
  m_bar->setFormat(BatchBarText(0));
  m_bar->setAccessibleName(Tonvane::tr("Batch Test..."));
  layout->addWidget(m_bar);

  m_status = new QLabel(this);
  m_status->setObjectName("progressStatus");
  layout->addWidget(m_status);

  auto* facts = new QGridLayout;
  m_timeCaption = new QLabel(Tonvane::tr("Estimated time of completion:"), this);
  m_timeLeft = new QLabel(this);
  m_timeLeft->setObjectName("progressTimeLeft");
  m_countCaption = new QLabel(Tonvane::tr("The list of processing contains:"), this);
  m_countCaption->setObjectName("progressCountCaption");
  m_count = new QLabel(this);
  m_count->setObjectName("progressCount");
  facts->addWidget(m_timeCaption, 0, 0);
  facts->addWidget(m_timeLeft, 0, 1);
  facts->addWidget(m_countCaption, 1, 0);
  facts->addWidget(m_count, 1, 1);
  facts->setColumnStretch(1, 1);
  // A line's height is the font's; marks above capitals (İ, Č, Ö) need a pixel or two more.
  for (QLabel* l : {m_fileCaption, m_timeCaption, m_countCaption}) l->setMinimumHeight(l->fontMetrics().height() + 4);
  layout->addLayout(facts);

  m_closeWhenDone = new QCheckBox(Tonvane::tr("Close the window when the Batch Processing is finished"), this);
  m_closeWhenDone->setObjectName("closeWhenDone");
  m_closeWhenDone->setChecked(Settings::GetInt("CloseWindow", 0) != 0);
  layout->addWidget(m_closeWhenDone);
  connect(m_closeWhenDone, &QCheckBox::clicked, this, [](bool on) { Settings::SetInt("CloseWindow", on ? 1 : 0); });

  auto* buttons = new QHBoxLayout;
  m_ok = new QPushButton(Tonvane::tr("OK"), this);
  m_ok->setObjectName("progressOk");
  m_ok->setEnabled(false);
  m_pause = new QPushButton(Tonvane::tr("Pause"), this);
  m_pause->setObjectName("progressPause");
  m_cancel = new QPushButton(Tonvane::tr("Cancel"), this);
  m_cancel->setObjectName("progressCancel");
  for (QPushButton* b : {m_ok, m_pause, m_cancel}) b->setAutoDefault(false);
  buttons->addStretch(1);
  buttons->addWidget(m_ok);
  buttons->addWidget(m_pause);
  buttons->addWidget(m_cancel);
  layout->addLayout(buttons);
  connect(m_ok, &QPushButton::clicked, this, &QDialog::accept);
  connect(m_pause, &QPushButton::clicked, this, &CBatchProgress::OnPause);
  connect(m_cancel, &QPushButton::clicked, this, &CBatchProgress::OnCancel);

  m_countdownTimer = new QTimer(this);
  m_countdownTimer->setInterval(1000);
  connect(m_countdownTimer, &QTimer::timeout, this, [this] {
    m_countdown.Tick();
    ShowCountdown();
  });
  m_nameTimer = new QTimer(this);
  m_nameTimer->setInterval(100);
  m_nameTimer->setSingleShot(true);
  connect(m_nameTimer, &QTimer::timeout, this, [this] {
    if (m_running) ShowFileName();
  });
  m_blinkTimer = new QTimer(this);
  m_blinkTimer->setInterval(500);
  connect(m_blinkTimer, &QTimer::timeout, this, [this] {
    m_count->setStyleSheet(m_count->styleSheet().contains("transparent") ? ColourCss(BatchTestedColor(0, 1))
                                                                          : QStringLiteral("color: transparent;"));
  });

  // The run's poll point lets the window run, at most every few milliseconds.
  m_control.processEvents = [this] {
    if (!m_sincePump.isValid() || m_sincePump.elapsed() >= 8) {
      QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
      m_sincePump.restart();
    }
  };
  // The run starts once the dialog stands.
  QTimer::singleShot(150, this, &CBatchProgress::StartRun);
}

CBatchProgress::~CBatchProgress() { m_control.processEvents = nullptr; }

void CBatchProgress::SetStatus(const QString& text) {
  m_status->setText(text);
  m_status->setAccessibleName(text);
}

void CBatchProgress::StartRun() {
  if (m_running || m_finished) return;
  m_fileCaption->setText(Tonvane::tr("Test of the file:"));
  SetStatus(BatchRunningText());
  m_running = true;
  m_s.m_batchActive = 1;
  BatchRunner runner(m_list, m_s, m_control, m_options);
  runner.SetMeasure(m_measure, m_measureParallel);
  runner.SetView(this);
  m_summary = runner.Run();
  m_s.m_batchActive = 0;
  m_running = false;
  m_finished = true;
  if (m_summary.count == 0) {
    reject();  // nothing checked: the runner has said so
    return;
  }
  if (!m_summary.cancelled && m_s.m_beep) PlayNotify();
  emit runFinished();
  if (m_closeAfterRun || (!m_summary.cancelled && m_closeWhenDone->isChecked())) accept();
}

void CBatchProgress::Count(int files) {
  m_total = files;
  m_count->setText(BatchCountText(files));
}

void CBatchProgress::FileStarted(int, const QString& path) {
  // Laying out a name costs milliseconds (more with colour emoji); nobody reads a hundred
  // names a second, so the label takes the latest one every 100 ms.
  m_nextName = path;
  if (m_nameTimer->isActive()) return;
  ShowFileName();
  m_nameTimer->start();
}

void CBatchProgress::ShowFileName() {
  if (m_fileName->accessibleName() == m_nextName) return;
  m_fileName->setText(m_fileName->fontMetrics().elidedText(m_nextName, Qt::ElideMiddle, m_fileName->width()));
  m_fileName->setToolTip(m_nextName);
  m_fileName->setAccessibleName(m_nextName);
}

void CBatchProgress::Progress(int percent) {
  m_bar->setValue(percent);
  m_bar->setFormat(BatchBarText(percent));
  setWindowTitle(BatchTitleText(percent));
}

void CBatchProgress::Estimate(double seconds) {
  m_countdown.Start(seconds);
  ShowCountdown();
  if (!m_userPaused) m_countdownTimer->start();
}

void CBatchProgress::ShowCountdown() {
  m_timeLeft->setText(m_countdown.Text());
  m_timeLeft->setAccessibleName(m_countdown.Text());
}

void CBatchProgress::Paused(bool paused) {
  const BatchBarLook look = BatchBarLookOf(paused ? BatchBarState::Paused : BatchBarState::Running);
  m_bar->SetColors(look.from, look.to, look.text, look.emptyText);
}

void CBatchProgress::OnPause() {
  if (!m_running) return;
  m_userPaused = !m_userPaused;
  m_control.TogglePause();
  if (m_userPaused) {
    m_countdownTimer->stop();
    m_pause->setText(Tonvane::tr("Continue"));
    SetStatus(BatchPausedText());
  } else {
    m_pause->setText(Tonvane::tr("Pause"));
    SetStatus(BatchRunningText());
    if (m_countdown.Remaining() > 0) m_countdownTimer->start();
  }
}

void CBatchProgress::OnCancel() {
  if (!m_running) return;
  m_cancel->setEnabled(false);
  m_pause->setEnabled(false);
  m_control.Cancel();
}

void CBatchProgress::CancelAndClose() {
  m_closeAfterRun = true;
  if (m_running) OnCancel();
  else accept();
}

void CBatchProgress::Cancelled() {
  m_countdownTimer->stop();
  const BatchBarLook look = BatchBarLookOf(BatchBarState::Cancelled);
  m_bar->SetColors(look.from, look.to, look.text, look.emptyText);
  m_bar->setValue(0);
  m_bar->SetFixedText(BatchCancelledText());
  m_status->hide();
}

void CBatchProgress::Finished(const BatchRunSummary& summary) {
  m_countdownTimer->stop();
  m_timeLeft->clear();
  m_ok->setEnabled(true);
  m_ok->setDefault(true);
  m_ok->setFocus();
  m_pause->setEnabled(false);
  m_cancel->setEnabled(false);
  m_fileName->clear();
  m_fileCaption->hide();
  m_timeCaption->clear();
  if (!summary.cancelled) SetStatus(QString());
  const int tested = summary.tested + summary.fromLog;
  m_countCaption->setText(Tonvane::tr("Tested:"));
  m_countCaption->setStyleSheet(ColourCss(BatchTestedColor(1, 1)));
  m_count->setText(BatchTestedText(tested, summary.count));
  m_count->setAccessibleName(m_count->text());
  m_count->setStyleSheet(ColourCss(BatchTestedColor(tested, summary.count)));
  if (BatchTestedBlinks(tested, summary.count)) m_blinkTimer->start();
}

void CBatchProgress::closeEvent(QCloseEvent* e) {
  // While the run lasts the close box cancels it; the dialog goes when the run is over.
  if (m_running) {
    e->ignore();
    CancelAndClose();
    return;
  }
  QDialog::closeEvent(e);
}

void CBatchProgress::keyPressEvent(QKeyEvent* e) {
  if (e->key() == Qt::Key_Pause && m_pause->isEnabled()) {
    OnPause();
    return;
  }
  QDialog::keyPressEvent(e);
}

void CBatchProgress::reject() {
  // Esc cancels a run (while Cancel is enabled); after the run it closes the dialog.
  if (m_running) {
    if (m_cancel->isEnabled()) OnCancel();
    return;
  }
  QDialog::reject();
}
