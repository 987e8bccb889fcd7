// MPEG reader over arbitrary bytes: tags, header search, frame walk, VBR headers. The
// bytes sit in a heap block of their exact size, so any read past them is caught.
#include <cstdint>
#include <cstring>
#include <memory>

#include "formats/mpeg/MPAException.h"
#include "formats/mpeg/MPAFile.h"
#include "formats/mpeg/Mp3Open.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  if (size > 0xFFFFFFFFu) return 0;
  std::unique_ptr<uint8_t[]> copy(new uint8_t[size ? size : 1]);
  if (size) std::memcpy(copy.get(), data, size);
  const uint32_t n = uint32_t(size);

  Mp3Properties props;
  ReadMp3Properties(std::make_unique<CMPAFileStream>("fuzz", copy.get(), n), props);

  // The walk as the batch scan and the player use it, and a search from every frame.
  try {
    CMPAFile file(std::make_unique<CMPAFileStream>("fuzz", copy.get(), n));
    uint32_t index = 0;
    while (file.GetTags().GetNextTag(index)) {
    }
    CMPAFrame* frame = file.GetFrame(CMPAFile::First);
    uint32_t last = 0;
    while (frame) {
      if (frame->m_offset < last) __builtin_trap();  // a walk only moves forward
      last = frame->m_offset;
      std::unique_ptr<CMPAFrame> searched(file.GetFrame(CMPAFile::Search, nullptr, false, frame->m_offset + 1));
      frame = file.GetFrame(CMPAFile::Next, frame, true);
    }
  } catch (const CMPAException&) {
  }
  return 0;
}
