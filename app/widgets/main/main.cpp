// tonvane: the window.
#include <QApplication>
#include <QFileInfo>
#include <QMessageBox>
#include <QSocketNotifier>
#include <QTimer>
extern "C" {
#include <libavutil/log.h>
}
#include <clocale>
#include <csignal>
#include <cstdio>
#include <sys/socket.h>
#include <unistd.h>

#include "lazy/LazyLibraries.h"
#include "app/Languages.h"
#include "app/SingleInstance.h"
#include "app/Themes.h"
#include "app/Settings.h"
#include "app/Text.h"
#include "app/widgets/Icons.h"
#include "app/widgets/MainDialog.h"
#include "app/widgets/MainWindowPlayer.h"
#include "app/widgets/ShellMenus.h"

namespace {

int g_signalPipe[2] = {-1, -1};

void OnEndSignal(int) {
  const char c = 1;
  [[maybe_unused]] const ssize_t n = ::write(g_signalPipe[1], &c, 1);
}

// SIGTERM, SIGINT and SIGHUP (a logout, Ctrl+C in the terminal, kill) end the program as Exit
// does, so the work file beside the source goes with it. A close that has to wait (a worker
// still filling the work file) is asked again until it is taken.
void EndOnSignals(QWidget* window) {
  if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, g_signalPipe) != 0) return;
  auto* notifier = new QSocketNotifier(g_signalPipe[0], QSocketNotifier::Read, window);
  QObject::connect(notifier, &QSocketNotifier::activated, window, [window, notifier] {
    char c;
    [[maybe_unused]] const ssize_t n = ::read(g_signalPipe[0], &c, 1);
    notifier->setEnabled(false);
    auto* retry = new QTimer(window);
    QObject::connect(retry, &QTimer::timeout, window, [window] { window->close(); });
    retry->start(100);
    window->close();
  });
  struct sigaction sa {};
  sa.sa_handler = OnEndSignal;
  sigemptyset(&sa.sa_mask);
  sa.sa_flags = SA_RESTART;
  for (int sig : {SIGTERM, SIGINT, SIGHUP}) ::sigaction(sig, &sa, nullptr);
}

}  // namespace

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
  WhenLibrariesLoad([] { av_log_set_level(AV_LOG_QUIET); });

  // The interface language takes effect at start, before the refusal of a second copy can
  // speak: the program's .qm for the stored code and Qt's own for its locale; a missing file
  // leaves that part English.
  const QString code = Settings::Language();
  LanguageLoader language;
  language.Load(code);
  ApplyLanguageFont(LanguageOrEnglish(code));
  ApplyTheme(ThemeFor(StoredTheme()));

  SingleInstance instance;
  if (!instance.Acquire()) {
    const QString text = SingleInstance::AlreadyRunningText();
    std::fprintf(stderr, "%s\n", text.toUtf8().constData());
    QMessageBox::critical(nullptr, tonvane::kAppTitle, text);
    return 1;
  }

  QString file;
  const QStringList args = app.arguments();
  if (args.size() > 1) file = QFileInfo(args.at(1)).absoluteFilePath();

  CBrenlowv10Dlg dlg(file);
  MainWindowPlayer player(&dlg);
  dlg.resize(760, 600);
  dlg.show();
  EndOnSignals(&dlg);
  return app.exec();
}
