// The WAV header scans on arbitrary bytes: written to a file and opened by the WAV reader
// without a worker. No crash, no hang, no read outside the file.
#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <cstddef>
#include <cstdint>

#include "app/Globals.h"
#include "app/Prompt.h"
#include "app/Session.h"
#include "formats/OpenPipeline.h"
#include "formats/WavReader.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  static QTemporaryDir dir;
  static const QString path = dir.filePath("fuzz.wav");
  {
    QFile f(path);
    if (!f.open(QIODevice::WriteOnly | QIODevice::Truncate)) return 0;
    f.write(reinterpret_cast<const char*>(data), qint64(size));
  }
  RecordingPrompt prompt;
  Session s;
  s.m_prompt.SetUi(&prompt);
  s.m_noWorker = 1;
  // An odd last byte shrinks the allocation unit, so the scan span (ten units) falls inside
  // small inputs and the windowed limits are reached too.
  if (size > 0 && (data[size - 1] & 1)) s.m_allocGranularity = 64;
  s.m_fileName = path;
  g_sourcePath = path;
  g_workPath = dir.filePath("fuzz.tmp");
  OpenWav(s);
  CloseWorkFile(s);
  ClearSessionPaths();
  return 0;
}
