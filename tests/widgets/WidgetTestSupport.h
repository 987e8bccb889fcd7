#pragma once
// Shared by the widget tests: one application object for the whole test program.
#include <QApplication>

namespace widget_support {

inline QApplication& App() {
  static int argc = 1;
  static char name[] = "test_widgets";
  static char* argv[] = {name, nullptr};
  static QApplication* app = new QApplication(argc, argv);
  return *app;
}

}  // namespace widget_support
