// The prober and the atom walk on arbitrary bytes: no crash, no hang, no read outside.
#include <cstddef>
#include <cstdint>
#include <vector>

#include "formats/AacFile.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  // An exact-size heap copy, so any read past the end is caught.
  std::vector<uint8_t> bytes(data, data + size);
  const uint8_t* p = bytes.empty() ? nullptr : bytes.data();
  AACFile probe(p, size);
  volatile int sink = probe.type() + probe.channels() + int(probe.durationMs());
  (void)sink;
  Mp4AtomWalk walk;
  WalkMp4Atoms(p, size, 0, walk);
  FindAacStart(p, size);
  return 0;
}
