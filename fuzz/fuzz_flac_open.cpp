// Opens mutated FLAC files as the window does and lets the decoder worker run to its end.
#include <QByteArray>
#include <QDir>
#include <QFile>
#include <cstdint>
#include <unistd.h>

#include "app/Globals.h"
#include "app/Prompt.h"
#include "app/Session.h"
#include "formats/FlacSource.h"
#include "formats/WorkFile.h"

namespace {
class QuietPrompt : public IPrompt {
 public:
  PromptAnswer Show(const PromptRequest&) override { return {}; }
};

const QString& Folder() {
  static const QString dir = QDir::tempPath() + QString("/fuzz_flac_open.%1").arg(::getpid());
  static const bool made = QDir().mkpath(dir);
  (void)made;
  return dir;
}
}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const QString source = Folder() + "/in.flac";
  const QString work = Folder() + "/in.tmp";
  {
    QFile f(source);
    if (!f.open(QIODevice::WriteOnly | QIODevice::Truncate)) return 0;
    f.write(reinterpret_cast<const char*>(data), qint64(size));
  }
  QuietPrompt prompt;
  Session s;
  s.m_prompt.SetUi(&prompt);
  s.m_fileName = source;
  g_sourcePath = source;
  g_workPath = work;
  // The header-only open first, then the open with its worker.
  s.m_noWorker = 1;
  OpenFlac(s);
  s.m_noWorker = 0;
  OpenFlac(s);
  WaitForWorker(s);
  ShowFlacError(s, source);
  DeleteWorkFile(work);
  ClearSessionPaths();
  return 0;
}
