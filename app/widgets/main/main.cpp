// tonvane: the window.
#include <QApplication>
#include <QFileInfo>
#include <QLibraryInfo>
#include <QLocale>
#include <QMessageBox>
#include <QTranslator>
extern "C" {
#include <libavutil/log.h>
}
#include <clocale>
#include <cstdio>

#include "app/DataPaths.h"
#include "app/SingleInstance.h"
#include "app/Settings.h"
#include "app/Text.h"
#include "app/widgets/Icons.h"
#include "app/widgets/MainDialog.h"

int main(int argc, char** argv) {
  QApplication app(argc, argv);
  QCoreApplication::setOrganizationName(Settings::Organization());
  QCoreApplication::setApplicationName(QStringLiteral("Tonvane"));
  QCoreApplication::setApplicationVersion(QStringLiteral(TONVANE_VERSION));
  // Ties the windows to tonvane.desktop (its icon and name in the panel, on Wayland too).
  QGuiApplication::setDesktopFileName(QStringLiteral("tonvane"));
  QApplication::setWindowIcon(tonvane::AppIcon());
  // Numbers in files are written and read in the C locale whatever the interface language.
  std::setlocale(LC_NUMERIC, "C");
  // The decoders report damage through our own messages; FFmpeg's log lines would only
  // repeat them on the console.
  av_log_set_level(AV_LOG_QUIET);

  SingleInstance instance;
  if (!instance.Acquire()) {
    const QString text = SingleInstance::AlreadyRunningText();
    std::fprintf(stderr, "%s\n", text.toUtf8().constData());
    QMessageBox::critical(nullptr, tonvane::kAppTitle, text);
    return 1;
  }

  // The interface language takes effect at start: one .qm per language code in the data
  // folder's translations/; a missing one leaves the program in English.
  QTranslator translator;
  const QString code = Settings::Language();
  if (!code.isEmpty()) {
    const QString qm = tonvane::FindDataFile("translations/tonvane_" + code + ".qm");
    if (!qm.isEmpty() && translator.load(qm)) app.installTranslator(&translator);
  }

  QString file;
  const QStringList args = app.arguments();
  if (args.size() > 1) file = QFileInfo(args.at(1)).absoluteFilePath();

  CBrenlowv10Dlg dlg(file);
  dlg.resize(760, 600);
  dlg.show();
  return app.exec();
}
