// Mutated compressed WAV files through the conversion road: the chunk search as the WAV
// reader does it, then the converter with its worker.
#include <QByteArray>
#include <QDir>
#include <QFile>
#include <cstdint>
#include <cstring>
#include <unistd.h>

extern "C" {
#include <libavutil/log.h>
}

#include "app/Globals.h"
#include "app/Prompt.h"
#include "app/Session.h"
#include "formats/WavConvert.h"
#include "formats/WorkFile.h"

namespace {
class QuietPrompt : public IPrompt {
 public:
  PromptAnswer Show(const PromptRequest&) override { return {}; }
};

const QString& Folder() {
  static const QString dir = QDir::tempPath() + QString("/fuzz_wav_convert.%1").arg(::getpid());
  static const bool made = QDir().mkpath(dir);
  (void)made;
  return dir;
}

uint32_t Le32(const uint8_t* p) { return uint32_t(p[0]) | uint32_t(p[1]) << 8 | uint32_t(p[2]) << 16 | uint32_t(p[3]) << 24; }
}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  static const bool quiet = (av_log_set_level(AV_LOG_QUIET), true);
  (void)quiet;
  if (size < 20) return 0;
  // "fmt " from offset 12, "data" from offset 16, the first match of each.
  size_t fmt = 0;
  for (size_t i = 12; i + 8 <= size && !fmt; ++i)
    if (std::memcmp(data + i, "fmt ", 4) == 0) fmt = i;
  if (!fmt) return 0;
  const uint32_t fmtSize = Le32(data + fmt + 4);
  if (fmtSize == 0 || fmtSize > size - fmt - 8) return 0;
  uint32_t dataOffset = 0, dataSize = 0;
  FindDataChunk(data, size, size, dataOffset, dataSize);

  const QString source = Folder() + "/in.wav";
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
  s.m_fmtBlock = QByteArray(reinterpret_cast<const char*>(data + fmt + 8), int(fmtSize));
  s.m_dataOffset = dataOffset;
  s.m_dataSize = dataSize;
  g_sourcePath = source;
  g_workPath = work;
  if (OpenWavConversion(s)) WaitForWorker(s);
  DeleteWorkFile(work);
  ClearSessionPaths();
  return 0;
}
