#include "app/widgets/QtSeams.h"

#include <QApplication>
#include <QCheckBox>
#include <QMessageBox>
#include <QThread>

#include "app/Text.h"

PromptAnswer QtPrompt::Show(const PromptRequest& request) {
  if (QThread::currentThread() == qApp->thread()) return ShowHere(request);
  PromptAnswer answer;
  QMetaObject::invokeMethod(
      qApp, [&] { answer = ShowHere(request); }, Qt::BlockingQueuedConnection);
  return answer;
}

PromptAnswer QtPrompt::ShowHere(const PromptRequest& request) {
  QMessageBox box(m_parent);
  box.setWindowTitle(request.caption.isEmpty() ? tonvane::kAppTitle : request.caption);
  box.setText(request.text);
  switch (request.icon) {
    case PromptIcon::Error: box.setIcon(QMessageBox::Critical); break;
    case PromptIcon::Warning: box.setIcon(QMessageBox::Warning); break;
    case PromptIcon::Information: box.setIcon(QMessageBox::Information); break;
    case PromptIcon::Question: box.setIcon(QMessageBox::Question); break;
  }
  if (request.yesNo) {
    box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
    box.setDefaultButton(QMessageBox::Yes);
  } else {
    box.setStandardButtons(QMessageBox::Ok);
  }
  QCheckBox* dontShow = nullptr;
  if (request.dontShowBox) {
    dontShow = new QCheckBox(Tonvane::tr("Don't show again"), &box);
    box.setCheckBox(dontShow);
  }
  int result = box.exec();
  PromptAnswer a;
  a.yes = result == QMessageBox::Yes;
  a.dontShowAgain = dontShow && dontShow->isChecked();
  return a;
}

void QtPump::ProcessEvents() { QCoreApplication::processEvents(QEventLoop::AllEvents, 5); }
