// The peak scanner over arbitrary work files: the data chunk search, the windows of a small
// allocation granularity, every sample layout, and headers that promise anything. The first
// eight bytes choose the layout and the header fields; the rest is the file.
#include <unistd.h>

#include <QByteArray>
#include <QFile>
#include <cstdint>
#include <cstdlib>
#include <cstring>

#include "app/Globals.h"
#include "app/Prompt.h"
#include "app/Pump.h"
#include "app/Session.h"
#include "level/PeakScanner.h"

namespace {

char g_tempName[] = "/tmp/fuzz_peak_XXXXXX";

QString TempPath() {
  static const bool made = [] {
    const int fd = ::mkstemp(g_tempName);
    if (fd >= 0) ::close(fd);
    std::atexit([] { std::remove(g_tempName); });
    return fd >= 0;
  }();
  return made ? QString::fromLocal8Bit(g_tempName) : QString();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  if (size < 8 || size > (1u << 22)) return 0;
  const QString path = TempPath();
  if (path.isEmpty()) return 0;
  {
    QFile f(path);
    if (!f.open(QIODevice::WriteOnly | QIODevice::Truncate)) return 0;
    f.write(reinterpret_cast<const char*>(data + 8), qint64(size - 8));
  }
  static const int layouts[][3] = {{2, 16, 1}, {1, 16, 1}, {2, 8, 1}, {1, 8, 1}, {2, 32, 1}, {2, 32, 3},
                                   {2, 24, 1}, {1, 32, 1}, {1, 32, 3}, {1, 24, 1}, {2, 32, 0xFFFE}, {3, 16, 1}};
  const auto& layout = layouts[(data[0] & 0x7f) % 12];

  Session s;
  RecordingPrompt prompt;
  NullPump pump;
  s.m_prompt.SetUi(&prompt);
  s.m_pump = &pump;
  s.m_channels = layout[0];
  s.m_bits = layout[1];
  s.m_formatTag = uint16_t(layout[2]);
  s.m_showDb = data[0] >> 7;
  s.m_allocGranularity = 4u << (data[1] % 4);  // windows of 6400 to 51200 bytes
  s.m_dataOffset = uint32_t(data[2]) | uint32_t(data[3] & 0x7f) << 8;
  uint32_t dataSize;
  std::memcpy(&dataSize, data + 4, 4);
  s.m_dataSize = dataSize;  // 0: searched for
  g_workPath = path;

  const unsigned long long before = g_sampleBytesRead.load();
  ScanPeakLevels(s);
  if (g_sampleBytesRead.load() - before > size - 8) __builtin_trap();  // read more than the file
  g_workPath.clear();
  return 0;
}
