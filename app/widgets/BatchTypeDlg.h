#pragma once
// The chooser of the batch kind, shown when the main window has no file open. Each radio
// button sets the session's source kind at once; OK remembers the choice for next time.
#include <QDialog>
#include <vector>

struct Session;
class QCheckBox;
class QRadioButton;

class CTypeBP : public QDialog {
  Q_OBJECT
 public:
  CTypeBP(Session& s, QWidget* parent = nullptr);
  int ChosenKind() const;
  QRadioButton* radio(int index) const { return m_radios.at(size_t(index)); }
  QCheckBox* maximizeBox() const { return m_maximize; }

  void accept() override;

 private:
  void Choose(int index);
  Session& m_s;
  int m_index = 0;
  std::vector<QRadioButton*> m_radios;
  QCheckBox* m_maximize = nullptr;
};
