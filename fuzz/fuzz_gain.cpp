// The gain engine over arbitrary bytes: RMS with the word sizes and channel counts the
// test can hand it (and a data chunk from the session that may promise too much), and the
// MPEG decoding of beGetRadioGain. The bytes go to a file, since the engine reads by path.
#include <unistd.h>

#include <QString>
#include <cstdint>
#include <cstdio>
#include <string>

#include "app/Globals.h"
#include "app/Pump.h"
#include "app/Session.h"
#include "level/GainEngine.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  static const std::string path = "/tmp/fuzz_gain_" + std::to_string(getpid()) + ".bin";
  FILE* f = std::fopen(path.c_str(), "wb");
  if (!f) return 0;
  if (size) std::fwrite(data, 1, size, f);
  std::fclose(f);

  static const int kBits[] = {8, 16, 24, 32};
  const uint8_t pick = size ? data[size - 1] : 0;
  const int channels = 1 + (pick & 3);
  const int bits = kBits[(pick >> 2) & 3];
  const int tag = (pick & 0x10) ? 3 : 1;

  Session s;
  NullPump pump;
  s.m_pump = &pump;
  const QString file = QString::fromStdString(path);
  float gl, gr, nl, nr;
  int count = 0;
  RMS(file, 0, s, nullptr, channels, bits, gl, gr, nl, nr, count, tag, 1);

  // A single test takes the data chunk from the session, as the test found it.
  g_workPath = file;
  s.m_dataOffset = size > 8 ? data[size - 2] : 44;
  s.m_dataSize = size > 8 ? uint32_t(data[size - 3]) << 16 : 0x7fffffff;
  count = 0;
  RMS(file, 0, s, nullptr, channels, bits, gl, gr, nl, nr, count, tag, 0);
  g_workPath.clear();

  count = 0;
  beGetRadioGain(file, s, nullptr, gl, gr, nl, nr, count, 0, 3);
  return 0;
}
