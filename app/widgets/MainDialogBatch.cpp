// The main window's way into the batch processor.
#include <QAction>

#include "app/Globals.h"
#include "app/widgets/BatchTypeDlg.h"
#include "app/widgets/BatchWindow.h"
#include "app/widgets/MainDialog.h"

void CBrenlowv10Dlg::OnBatchProcessor() {
  if (m_s.m_testRunning || g_workerBusy.load()) return;
  // A file that is open decides the kind; it is closed first, as the batch owns the run.
  const bool fileOpen = !m_s.m_fileName.isEmpty();
  const int kindBefore = m_s.m_sourceKind;
  if (fileOpen && action(kCmdClose)) action(kCmdClose)->trigger();
  int kind = kindBefore;
  if (!fileOpen) {
    CTypeBP chooser(m_s, this);
    const bool ok = chooser.exec() == QDialog::Accepted;
    kind = chooser.ChosenKind();
    m_s.m_sourceKind = kindBefore;
    if (!ok) return;
  }
  showMinimized();
  {
    CBatch batch(m_s, kind, this);
    batch.exec();
  }
  m_s.m_sourceKind = kindBefore;
  showNormal();
  activateWindow();
}
