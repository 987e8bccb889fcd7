#include "app/EnablingRules.h"

#include "app/Session.h"
#include "app/Text.h"

EnablingState EnablingRules(const Session& s, const EnablingInputs& in) {
  EnablingState e;
  const bool busy = in.workerBusy || s.m_opening;
  const bool test = s.m_testRunning != 0;
  e.idleStatusShown = s.m_idleStatusShown;
  if (busy) {
    e.fileList = e.play = e.peakRadio = e.averageRadio = false;
    e.toolOpen = e.toolExit = false;
    e.systemClose = false;
    if (s.m_idleStatusShown) e.statusText = Tonvane::tr("  Copying of the file is fulfilling");
    e.idleStatusShown = 0;
  } else {
    e.play = in.haveWorkPath && s.m_canPlay;
    if (test) {
      e.systemClose = false;
      e.fileList = e.peakRadio = e.averageRadio = false;
      // A running test has taken Open and Exit away; its end gives them back.
      e.keepToolOpen = e.keepToolExit = true;
    } else {
      e.fileList = e.systemClose = true;
      e.toolOpen = s.m_uiEnabledB != 0;
      e.toolExit = true;
      e.peakRadio = s.m_sourceKind != kKindMp3 && s.m_uiEnabledB;
      e.averageRadio = s.m_uiEnabledB != 0;
      e.checkedMode = s.m_testMode;
      if (!s.m_idleStatusShown) e.statusText = QString();
      e.idleStatusShown = 1;
    }
  }
  e.toolBatch = !busy && !test;
  e.transport = in.listCount > 0 && in.haveWorkPath && s.m_canPlay && !busy;

  e.open = !in.workerBusy && s.m_uiEnabledB;
  e.close = in.haveWorkPath && !in.workerBusy && s.m_uiEnabledA;
  e.exit = e.test = e.batch = !test && !in.workerBusy;
  e.useDatabase = e.clearDatabase = e.database = s.m_logAvailable != 0;
  e.volumeUpDown = !s.m_restoreTempName.isEmpty();
  return e;
}
