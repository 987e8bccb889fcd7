#include <QApplication>
#include <QMainWindow>

int main(int argc, char** argv) {
  QApplication app(argc, argv);
  QMainWindow w;
  w.setWindowTitle("Tonvane 1.0");
  w.show();
  return app.exec();
}
