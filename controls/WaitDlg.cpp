#include "controls/WaitDlg.h"

#include <QCloseEvent>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/ColorRef.h"
#include "app/Text.h"

CWaitDlg::CWaitDlg(QWidget* owner) : QDialog(owner) {
  setObjectName("CWaitDlg");
  setModal(false);
  auto* layout = new QVBoxLayout(this);
  m_message = new QLabel(this);
  m_message->setObjectName("waitMessage");
  m_message->setAlignment(Qt::AlignCenter);
  m_message->setWordWrap(true);
  m_path = new QLabel(this);
  m_path->setObjectName("waitPath");
  m_path->setMinimumWidth(420);
  QFont bold = m_path->font();
  bold.setBold(true);
  m_path->setFont(bold);
  m_cancel = new QPushButton(Tonvane::tr("Cancel"), this);
  m_cancel->setObjectName("waitCancel");
  layout->addWidget(m_message);
  layout->addWidget(m_path);
  layout->addWidget(m_cancel, 0, Qt::AlignHCenter);
  connect(m_cancel, &QPushButton::clicked, this, &CWaitDlg::cancelled);
}

void CWaitDlg::SetMessage(const QString& text, bool accent) {
  m_message->setText(text);
  m_message->setStyleSheet(accent ? QStringLiteral("color: #%1;").arg(RgbOfColorRef(0xcb3937), 6, 16, QChar('0'))
                                  : QStringLiteral("color: black;"));
  m_message->setAccessibleName(text);
}

void CWaitDlg::ShowProcessing(const QString& path) {
  const QString text = Tonvane::tr("Processing: ") + path;
  m_path->setText(m_path->fontMetrics().elidedText(text, Qt::ElideMiddle, m_path->width()));
  m_path->setAccessibleName(text);
}

void CWaitDlg::reject() { emit cancelled(); }

void CWaitDlg::closeEvent(QCloseEvent* e) {
  e->ignore();
  emit cancelled();
}
