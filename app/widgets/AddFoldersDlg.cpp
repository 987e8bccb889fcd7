#include "app/widgets/AddFoldersDlg.h"

#include <QCloseEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/Text.h"

CAddFoldersDlg::CAddFoldersDlg(const QString& title, QWidget* owner) : QDialog(owner) {
  setObjectName("CAddFoldersDlg");
  setWindowTitle(title);
  setModal(false);
  auto* layout = new QVBoxLayout(this);
  auto* wait = new QLabel(Tonvane::tr("Please, wait the search files is fulfilling"), this);
  wait->setObjectName("searchMessage");
  wait->setMinimumHeight(wait->fontMetrics().height() + 4);  // room for marks above capitals (Č)
  layout->addWidget(wait);
  m_path = new QLabel(this);
  m_path->setObjectName("searchPath");
  m_path->setMinimumWidth(460);
  layout->addWidget(m_path);
  auto* buttons = new QHBoxLayout;
  m_pause = new QPushButton(Tonvane::tr("Pause"), this);
  m_pause->setObjectName("searchPause");
  m_cancel = new QPushButton(Tonvane::tr("Cancel"), this);
  m_cancel->setObjectName("searchCancel");
  buttons->addStretch(1);
  buttons->addWidget(m_pause);
  buttons->addWidget(m_cancel);
  layout->addLayout(buttons);
  connect(m_pause, &QPushButton::clicked, this, [this] {
    m_paused = !m_paused;
    m_pause->setText(m_paused ? Tonvane::tr("Continue") : Tonvane::tr("Pause"));
    emit pauseToggled();
  });
  connect(m_cancel, &QPushButton::clicked, this, &CAddFoldersDlg::reject);
}

void CAddFoldersDlg::ShowProcessing(const QString& path) {
  // A person reads a few paths a second; the walk may pass thousands.
  if (m_shown.isValid() && m_shown.elapsed() < 40) return;
  m_shown.restart();
  const QString text = Tonvane::tr("Processing: ") + path;
  m_path->setText(m_path->fontMetrics().elidedText(text, Qt::ElideMiddle, m_path->width()));
  m_path->setAccessibleName(text);
}

void CAddFoldersDlg::reject() {
  if (m_done) return;
  m_done = true;
  m_pause->setEnabled(false);
  m_cancel->setEnabled(false);
  emit cancelled();
}

void CAddFoldersDlg::closeEvent(QCloseEvent* e) {
  // The search ends the dialog; the close box only asks it to stop.
  e->ignore();
  reject();
}
