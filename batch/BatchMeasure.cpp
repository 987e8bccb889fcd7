#include "batch/BatchMeasure.h"

#include <sys/stat.h>
#include <unistd.h>

#include <QFile>
#include <QFileInfo>
#include <cerrno>

#include "app/FileErrors.h"
#include "app/Job.h"
#include "app/MeasureFile.h"
#include "app/Text.h"
#include "batch/BatchControl.h"
#include "app/Session.h"
#include "formats/FlacSource.h"

namespace {

// The run's control seen as the measurement's poll point: a pause holds the worker in its
// checkpoint, a cancel ends the measurement at the next one.
class ControlAbortable : public IAbortable {
 public:
  explicit ControlAbortable(BatchControl& control) : m_control(control) {}
  void Abort() override { m_control.Cancel(); }
  bool IsAborted() const override { return m_control.IsCancelled(); }
  bool Checkpoint(double) override { return m_control.WorkerPoll(); }

 private:
  BatchControl& m_control;
};


}  // namespace

// The streaming road touches no session and no global: every worker measures at once.
bool MeasureForBatchIsParallel() { return true; }

BatchMeasureResult MeasureForBatch(const BatchMeasureRequest& request, BatchControl& control) {
  BatchMeasureResult out;
  if (control.IsCancelled()) {
    out.status = BatchMeasureResult::Cancelled;
    return out;
  }
  const QString full = QFileInfo(request.path).absoluteFilePath();
  const int mode = request.kind == kKindMp3 ? 1 : request.testMode;
  ControlAbortable abortable(control);
  const MeasureReport m = MeasureFile(full, request.kind, mode, abortable, request.helpers);
  out.channels = m.channels;
  out.bits = m.bits;
  out.durationMs = m.durationMs;
  out.sampleBytes = m.sampleBytes;
  if (m.status == MeasureStatus::Ok) {
    out.status = BatchMeasureResult::Ok;
    // This test's group; the others keep their not-measured marks.
    TakeGroup(out.result, m.result, mode, request.showDb);
    return out;
  }
  if (m.status == MeasureStatus::Stopped || control.IsCancelled()) {
    out.status = BatchMeasureResult::Cancelled;
    return out;
  }
  out.status = BatchMeasureResult::Failed;
  // A file that went away or lost its sound since it was listed says so in the system's
  // words rather than in the decoder's.
  struct stat st;
  const QByteArray name = QFile::encodeName(full);
  if (::stat(name.constData(), &st) != 0 || ::access(name.constData(), R_OK) != 0)
    out.error = FileErrorText(Tonvane::tr(" cannot be opened"), full, QString(), ErrorCodeFromErrno(errno, full), true);
  else if (st.st_size == 0)
    out.error = Tonvane::tr("Sorry, but ") + Tonvane::tr("the file ") + full +
                Tonvane::tr(" is empty and does not contain any sound data.");
  else if (m.status == MeasureStatus::Damaged && request.kind == kKindFlac && m.flacError != kFlacNoError)
    out.error = Tonvane::tr("Sorry but the file ") + full + Tonvane::tr(" has errors. ") + FlacStatusText(m.flacError);
  else if (!m.messages.isEmpty())
    out.error = m.messages.join('\n');
  else
    out.error = Tonvane::tr("Sorry, but the test of the file ") + full + Tonvane::tr(" has failed.");
  return out;
}
