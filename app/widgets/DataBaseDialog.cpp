#include "app/widgets/DataBaseDialog.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>

#include "app/Session.h"
#include "app/Settings.h"
#include "app/Text.h"
#include "log/DataBaseSize.h"
#include "log/TestLog.h"

CDataBase::CDataBase(Session& s, QWidget* parent) : QDialog(parent), m_s(s) {
  setObjectName("CDataBase");
  setWindowTitle(Tonvane::tr("Database - Tonvane 1.0"));
  auto* outer = new QVBoxLayout(this);
  auto* grid = new QGridLayout;
  auto* capCaption = new QLabel(Tonvane::tr("Maximum size the Database:"), this);
  m_cap = new QSpinBox(this);
  m_cap->setObjectName("capBox");
  m_cap->setRange(kDataBaseCapMin, kDataBaseCapMax);
  m_cap->setWrapping(true);
  m_cap->setValue(qBound(kDataBaseCapMin, s.m_dataBaseSizeMb, kDataBaseCapMax));
  m_cap->setSuffix(Tonvane::tr(" MB"));
  m_cap->setStyleSheet(QStringLiteral("QSpinBox { background: white; color: black; }"));
  m_cap->setAccessibleName(capCaption->text());
  capCaption->setBuddy(m_cap);
  grid->addWidget(capCaption, 0, 0);
  grid->addWidget(m_cap, 0, 1);
  outer->addLayout(grid);

  m_size = new QLabel(Tonvane::tr("Current size the Database: "), this);
  m_size->setObjectName("sizeLabel");
  m_size->setStyleSheet(QStringLiteral("color: rgb(55, 57, 203);"));
  outer->addWidget(m_size);

  auto* buttons = new QHBoxLayout;
  auto* clear = new QPushButton(Tonvane::tr("Clear"), this);
  clear->setObjectName("clearButton");
  auto* ok = new QPushButton(Tonvane::tr("OK"), this);
  auto* cancel = new QPushButton(Tonvane::tr("Cancel"), this);
  for (QPushButton* b : {clear, ok, cancel}) {
    b->setAutoDefault(false);
    buttons->addWidget(b);
  }
  outer->addLayout(buttons);

  // Every step of the cap is stored at once and takes effect at the next start.
  connect(m_cap, &QSpinBox::valueChanged, this, [this](int mb) { StoreDataBaseCap(m_s, mb); });
  connect(clear, &QPushButton::clicked, this, [this] {
    if (CreateEmptyLog(m_logPath)) ShowSize();
  });
  connect(ok, &QPushButton::clicked, this, &QDialog::accept);
  connect(cancel, &QPushButton::clicked, this, &QDialog::reject);

  m_logPath = s.m_logPath.isEmpty() ? Settings::PatchLog() : s.m_logPath;
  ShowSize();
}

void CDataBase::ShowSize() {
  QString label;
  if (DataBaseSizeLabel(m_logPath, label)) m_size->setText(label);
}

void CDataBase::keyPressEvent(QKeyEvent* e) {
  // Enter does not end the dialog; Esc does.
  if (e->key() == Qt::Key_Return || e->key() == Qt::Key_Enter) return;
  QDialog::keyPressEvent(e);
}
