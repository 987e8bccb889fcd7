#pragma once
// The about box: the program's title and version, its licence and addresses, and the
// libraries the running process uses with their versions.
#include <QDialog>

class AboutDialog : public QDialog {
  Q_OBJECT
 public:
  explicit AboutDialog(QWidget* parent = nullptr);
};
