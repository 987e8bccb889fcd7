#pragma once
// The small modeless dialog over a folder search: the path in work, Pause (which turns
// into Continue) and Cancel. It only forwards the two commands; the search polls them.
#include <QDialog>
#include <QElapsedTimer>

class QLabel;
class QPushButton;

class CAddFoldersDlg : public QDialog {
  Q_OBJECT
 public:
  CAddFoldersDlg(const QString& title, QWidget* owner);
  // "Processing: " and the path, cut in the middle when too long.
  void ShowProcessing(const QString& path);
  QPushButton* pauseButton() const { return m_pause; }
  QPushButton* cancelButton() const { return m_cancel; }
  QLabel* pathLabel() const { return m_path; }

 signals:
  void pauseToggled();
  void cancelled();

 protected:
  void reject() override;
  void closeEvent(QCloseEvent* e) override;

 private:
  QLabel* m_path;
  QPushButton* m_pause;
  QPushButton* m_cancel;
  bool m_paused = false;
  bool m_done = false;
  QElapsedTimer m_shown;
};
