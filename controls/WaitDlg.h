#pragma once
// The small modeless dialog that stands while the batch window builds its list at opening:
// a message, the path in work, and Cancel. Cancel, Esc and the close box only ask the
// owner to stop (the cancelled signal); the owner closes the dialog when its work ends.
#include <QDialog>

class QLabel;
class QPushButton;

class CWaitDlg : public QDialog {
  Q_OBJECT
 public:
  explicit CWaitDlg(QWidget* owner);
  // The message; `accent` gives it the dialog's blue.
  void SetMessage(const QString& text, bool accent = true);
  // "Processing: " and the path.
  void ShowProcessing(const QString& path);
  QLabel* messageLabel() const { return m_message; }
  QLabel* pathLabel() const { return m_path; }

 signals:
  void cancelled();

 protected:
  void reject() override;
  void closeEvent(QCloseEvent* e) override;

 private:
  QLabel* m_message;
  QLabel* m_path;
  QPushButton* m_cancel;
};
