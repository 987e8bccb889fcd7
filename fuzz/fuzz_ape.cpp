// Monkey's Audio decoder over arbitrary bytes: header, seek table, frames, range decoder and
// filters. The bytes sit in a heap block of their exact size, so any read past them is
// caught.
//
// A frame is decoded whole before its check, and the filters of the high levels cost
// thousands of steps per sample; so that one input stays well within the time limit, long
// frames are shortened in the copy (the rest of the header is left as found) and decoding
// stops after a bounded amount of work.
#include <algorithm>
#include <cstdint>
#include <cstring>
#include <memory>
#include <vector>

#include "formats/ApeDecoder.h"

namespace {

constexpr uint64_t kFrameWork = uint64_t(1) << 23;  // filter steps per frame
constexpr uint64_t kTotalWork = uint64_t(1) << 24;  // filter steps per input

uint64_t StepsPerBlock(const ape::StreamInfo& info) {
  int orders = 0;
  switch (info.compressionLevel) {
    case 2000: orders = 16; break;
    case 3000: orders = 64; break;
    case 4000: orders = 32 + 256; break;
    case 5000: orders = 16 + 256 + 1280; break;
    default: break;
  }
  return uint64_t(info.channels) * uint64_t(orders + 32);
}

void PutLe32(uint8_t* p, uint32_t v) {
  for (int i = 0; i < 4; ++i) p[i] = uint8_t(v >> (8 * i));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  std::unique_ptr<uint8_t[]> copy(new uint8_t[size ? size : 1]);
  if (size) std::memcpy(copy.get(), data, size);

  ape::StreamInfo info;
  if (ape::ParseHeader(copy.get(), size, info) == ape::kOk) {
    const uint64_t perBlock = StepsPerBlock(info);
    const uint64_t limit = std::max<uint64_t>(1, kFrameWork / perBlock);
    if (info.blocksPerFrame > limit) {
      PutLe32(copy.get() + info.headerOffset + 4, uint32_t(limit));
      PutLe32(copy.get() + info.headerOffset + 8, std::min<uint32_t>(info.finalFrameBlocks, uint32_t(limit)));
    }
  }

  ape::Decoder decoder;
  if (decoder.Open(copy.get(), size) != ape::kOk) return 0;
  for (int field = ape::kInfoFileVersion; field <= ape::kInfoLengthMs; ++field) (void)decoder.GetInfo(field);

  const int align = decoder.Info().BlockAlign();
  if (align <= 0) __builtin_trap();  // the header check lets no such file through
  const int64_t maxBlocks = int64_t(std::max<uint64_t>(1, kTotalWork / StepsPerBlock(decoder.Info())));
  constexpr int64_t kChunk = 4096;
  std::vector<uint8_t> buffer(size_t(align) * kChunk);
  int64_t total = 0;
  while (total < maxBlocks) {
    int64_t got = -1;
    const int rc = decoder.GetData(buffer.data(), kChunk, &got);
    if (got < 0 || got > kChunk) __builtin_trap();
    total += got;
    if (rc != ape::kOk) {
      // An error is final: nothing more comes out.
      int64_t again = -1;
      if (decoder.GetData(buffer.data(), kChunk, &again) != rc || again != 0) __builtin_trap();
      break;
    }
    if (got == 0) break;
  }
  if (uint64_t(total) > decoder.Info().totalBlocks) __builtin_trap();
  return 0;
}
