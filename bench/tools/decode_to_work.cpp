// Decodes one source into its work file as the Open command does, and leaves the work file
// in place: the decoder's cost on its own, timed by bench/compare against the command-line
// decoders. Prints the work file's path.
#include <QCoreApplication>
#include <QFileInfo>
#include <cstdio>
extern "C" {
#include <libavutil/log.h>
}

#include "lazy/LazyLibraries.h"
#include "app/Globals.h"
#include "app/Prompt.h"
#include "app/Pump.h"
#include "app/Session.h"
#include "formats/OpenPipeline.h"
#include "formats/WorkFile.h"

int main(int argc, char** argv) {
  QCoreApplication app(argc, argv);
  WhenLibrariesLoad([] { av_log_set_level(AV_LOG_QUIET); });
  if (argc != 2) {
    std::fprintf(stderr, "usage: %s SOURCE\n", argv[0]);
    return 2;
  }
  Session s;
  RecordingPrompt prompt;
  NullPump pump;
  s.m_prompt.SetUi(&prompt);
  s.m_pump = &pump;
  const QString path = QFileInfo(QString::fromLocal8Bit(argv[1])).absoluteFilePath();
  const int opened = OpenFileHeadless(s, path);
  if (opened) WaitForWorker(s);
  JoinWorker();
  if (!opened || g_copyFailed.load() || g_workPath.isEmpty()) {
    for (const QString& t : prompt.texts()) std::fprintf(stderr, "%s\n", t.toLocal8Bit().constData());
    return 1;
  }
  std::printf("%s\n", g_workPath.toLocal8Bit().constData());
  return 0;
}
