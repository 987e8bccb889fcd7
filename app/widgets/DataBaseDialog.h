#pragma once
// The Database dialog: the cap of the test log (1 to 12 MB, stored with every step), the
// log's present size, and Clear. OK, Cancel, the close box and Esc end it; nothing is
// undone, since every step has been stored.
#include <QDialog>

struct Session;
class QLabel;
class QSpinBox;

class CDataBase : public QDialog {
  Q_OBJECT
 public:
  CDataBase(Session& s, QWidget* parent = nullptr);
  QLabel* sizeLabel() const { return m_size; }
  QSpinBox* capBox() const { return m_cap; }

 protected:
  void keyPressEvent(class QKeyEvent* e) override;

 private:
  void ShowSize();
  Session& m_s;
  QSpinBox* m_cap = nullptr;
  QLabel* m_size = nullptr;
  QString m_logPath;
};
