#pragma once
// The modal dialog of a batch run. It starts the core's runner over the list shortly after
// it shows, and renders what the runner reports: the file in work, the bar, the time left,
// pause and cancel, and the count at the end. Rows fill in the list as results arrive.
#include <QDialog>
#include <QElapsedTimer>

#include "batch/BatchControl.h"
#include "batch/BatchRun.h"
#include "batch/BatchWindowRules.h"

class BatchList;
class CProgressCtrlX;
class QCheckBox;
class QLabel;
class QPushButton;
class QTimer;
struct Session;

class CBatchProgress : public QDialog, public IBatchRunView {
  Q_OBJECT
 public:
  CBatchProgress(BatchList& list, Session& s, const BatchRunOptions& options, QWidget* parent = nullptr);
  ~CBatchProgress() override;

  const BatchRunSummary& Summary() const { return m_summary; }
  bool Running() const { return m_running; }
  bool Finished() const { return m_finished; }
  // Ends a run from outside (the batch window closes): whole rows only, then the dialog goes.
  void CancelAndClose();
  // Lets a test drive the run with another measurement.
  void SetMeasure(BatchMeasureFn measure, bool parallel) {
    m_measure = std::move(measure);
    m_measureParallel = parallel;
  }

  CProgressCtrlX* bar() const { return m_bar; }
  QPushButton* pauseButton() const { return m_pause; }
  QPushButton* cancelButton() const { return m_cancel; }
  QPushButton* okButton() const { return m_ok; }

  // IBatchRunView
  void Count(int files) override;
  void FileStarted(int row, const QString& path) override;
  void Progress(int percent) override;
  void Estimate(double seconds) override;
  void Paused(bool paused) override;
  void Cancelled() override;
  void Finished(const BatchRunSummary& summary) override;

 signals:
  void runFinished();

 protected:
  void closeEvent(QCloseEvent* e) override;
  void keyPressEvent(QKeyEvent* e) override;
  void reject() override;

 private:
  void ShowFileName();
  void StartRun();
  void OnPause();
  void OnCancel();
  void ShowCountdown();
  void SetStatus(const QString& text);

  BatchList& m_list;
  Session& m_s;
  BatchRunOptions m_options;
  BatchControl m_control;
  BatchRunSummary m_summary;
  BatchMeasureFn m_measure;
  bool m_measureParallel = false;
  bool m_running = false;
  bool m_finished = false;
  bool m_closeAfterRun = false;
  bool m_userPaused = false;
  int m_total = 0;
  QElapsedTimer m_sincePump;
  BatchCountdown m_countdown;
  QTimer* m_countdownTimer = nullptr;
  QTimer* m_blinkTimer = nullptr;
  QTimer* m_nameTimer = nullptr;  // the file name follows the run at most ten times a second
  QString m_nextName;

  QLabel* m_fileCaption = nullptr;
  QLabel* m_fileName = nullptr;
  CProgressCtrlX* m_bar = nullptr;
  QLabel* m_status = nullptr;
  QLabel* m_timeCaption = nullptr;
  QLabel* m_timeLeft = nullptr;
  QLabel* m_countCaption = nullptr;
  QLabel* m_count = nullptr;
  QCheckBox* m_closeWhenDone = nullptr;
  QPushButton* m_ok = nullptr;
  QPushButton* m_pause = nullptr;
  QPushButton* m_cancel = nullptr;
  QString m_title;
};
