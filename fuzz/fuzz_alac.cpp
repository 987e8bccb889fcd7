// ALAC packets on arbitrary bytes. An input that holds an ALAC track (the seeds are
// .m4a files) gives its cookie and its first packets, as the decoder thread finds them;
// any other input is a 24-byte cookie followed by one packet.
#include <cstring>
#include <vector>

#include "formats/AacFile.h"
#include "formats/AlacDecoder.h"

namespace {

uint32_t Be32(const uint8_t* p) { return uint32_t(p[0]) << 24 | uint32_t(p[1]) << 16 | uint32_t(p[2]) << 8 | p[3]; }

void DecodeOne(ALACDecoder& d, const uint8_t* packet, uint64_t size, std::vector<uint8_t>& out) {
  // The packet's own exact copy plus the padding the decoder may look ahead into.
  std::vector<uint8_t> p(packet, packet + size);
  p.resize(size + kAlacPacketPadding, 0);
  BitBuffer bits(p.data(), uint32_t(size));
  uint32_t frames = 0;
  d.Decode(&bits, out.data(), d.config().frameLength, d.config().numChannels, &frames);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  std::vector<uint8_t> bytes(data, data + size);
  Mp4AtomWalk walk;
  WalkMp4Atoms(bytes.data(), size, 0, walk);
  const bool inMp4 = walk.alacPos && walk.alacSize >= 36 && walk.alacPos + 8 + 24 <= size && walk.stszPos &&
                     walk.mdatPayload;
  std::vector<uint8_t> cookie(24, 0);
  if (inMp4) std::memcpy(cookie.data(), bytes.data() + walk.alacPos + 8, 24);
  else if (size >= 24) std::memcpy(cookie.data(), bytes.data(), 24);
  else return 0;
  // Keep frames and channels small enough for a quick run.
  cookie[0] = cookie[1] = 0;
  cookie[2] &= 0x1F;
  if (cookie[9] == 0 || cookie[9] > 8) cookie[9] = 2;
  ALACDecoder d;
  if (d.Init(cookie.data(), 24) != kAlacNoErr) return 0;
  std::vector<uint8_t> out(size_t(d.config().frameLength) * d.config().numChannels * 4 + 16);
  if (!inMp4) {
    DecodeOne(d, bytes.data() + 24, size - 24, out);
    return 0;
  }
  uint64_t pos = walk.mdatPayload;
  uint64_t entry = walk.stszPos + 16;
  for (int i = 0; i < 64 && entry + 4 <= size && entry + 4 <= walk.stszPos - 4 + walk.stszSize; ++i, entry += 4) {
    const uint32_t packet = Be32(bytes.data() + entry);
    if (pos > size || packet > size - pos) break;
    DecodeOne(d, bytes.data() + pos, packet, out);
    pos += packet;
  }
  return 0;
}
