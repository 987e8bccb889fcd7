#include "formats/ApeDecoder.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>

#include "formats/ApePredictor.h"
#include "formats/WorkFile.h"

namespace ape {

int ApeFiltersForLevel(int level, ApeFilterSpec out[3]) {
  switch (level) {
    case 1000:  // fast
      return 0;
    case 2000:  // normal
      out[0] = {16, 11};
      return 1;
    case 3000:  // high
      out[0] = {64, 11};
      return 1;
    case 4000:  // extra high
      out[0] = {32, 10};
      out[1] = {256, 13};
      return 2;
    case 5000:  // insane
      out[0] = {16, 11};
      out[1] = {256, 13};
      out[2] = {1280, 15};
      return 3;
    default:
      return -1;
  }
}

namespace {

uint16_t Le16(const uint8_t* p) { return uint16_t(p[0] | p[1] << 8); }
uint32_t Le32(const uint8_t* p) {
  return uint32_t(p[0]) | uint32_t(p[1]) << 8 | uint32_t(p[2]) << 16 | uint32_t(p[3]) << 24;
}

// CRC-32 (the reflected 0xEDB88320 polynomial), eight table lookups per step.
struct CrcTables {
  uint32_t t[8][256];
  CrcTables() {
    for (uint32_t i = 0; i < 256; ++i) {
      uint32_t c = i;
      for (int k = 0; k < 8; ++k) c = (c & 1) ? 0xEDB88320u ^ (c >> 1) : c >> 1;
      t[0][i] = c;
    }
    for (uint32_t i = 0; i < 256; ++i)
      for (int k = 1; k < 8; ++k) t[k][i] = (t[k - 1][i] >> 8) ^ t[0][t[k - 1][i] & 0xFF];
  }
};
const CrcTables& Crc() {
  static const CrcTables tables;
  return tables;
}

uint32_t Crc32(const uint8_t* p, size_t n) {
  const CrcTables& c = Crc();
  uint32_t crc = 0xFFFFFFFFu;
  while (n >= 8) {
    uint32_t lo = crc ^ Le32(p);
    uint32_t hi = Le32(p + 4);
    crc = c.t[7][lo & 0xFF] ^ c.t[6][(lo >> 8) & 0xFF] ^ c.t[5][(lo >> 16) & 0xFF] ^ c.t[4][lo >> 24] ^
          c.t[3][hi & 0xFF] ^ c.t[2][(hi >> 8) & 0xFF] ^ c.t[1][(hi >> 16) & 0xFF] ^ c.t[0][hi >> 24];
    p += 8;
    n -= 8;
  }
  while (n--) crc = c.t[0][(crc ^ *p++) & 0xFF] ^ (crc >> 8);
  return crc ^ 0xFFFFFFFFu;
}

// The frame data is a stream of 32-bit little-endian words, read from the most significant
// byte down. Words are counted from the first frame; a frame may start inside a word.
struct ByteReader {
  const uint8_t* data;
  uint64_t size;
  uint64_t base;  // absolute offset of the first word
  uint64_t pos;   // byte position in the stream, from `base`
  bool overrun = false;

  uint32_t Byte() {
    uint64_t at = base + (pos & ~uint64_t(3)) + (3 - (pos & 3));
    ++pos;
    if (at >= size) {
      overrun = true;
      return 0;
    }
    return data[at];
  }
  uint32_t Be32() {
    uint32_t v = Byte() << 24;
    v |= Byte() << 16;
    v |= Byte() << 8;
    return v | Byte();
  }
};

// Cumulative frequencies of the first symbol of a value (how many times the pivot fits).
constexpr std::array<uint32_t, 65> kTotals = {
    0,     19578, 36160, 48417, 56323, 60899, 63265, 64435, 64971, 65232, 65351, 65416, 65447,
    65466, 65476, 65482, 65485, 65488, 65490, 65491, 65492, 65493, 65494, 65495, 65496, 65497,
    65498, 65499, 65500, 65501, 65502, 65503, 65504, 65505, 65506, 65507, 65508, 65509, 65510,
    65511, 65512, 65513, 65514, 65515, 65516, 65517, 65518, 65519, 65520, 65521, 65522, 65523,
    65524, 65525, 65526, 65527, 65528, 65529, 65530, 65531, 65532, 65533, 65534, 65535, 65536};

constexpr uint32_t kBottom = 1u << 23;
constexpr int kEscapeSymbol = 63;

// Adaptive state of one channel's values: a running sum that sets the pivot.
struct ChannelState {
  uint32_t kSum;
  void Reset() { kSum = (1u << 10) * 16; }
};

class RangeDecoder {
 public:
  explicit RangeDecoder(ByteReader& in) : m_in(in) {}

  void Start() {
    m_in.Byte();  // the encoder writes one byte that carries nothing
    m_buffer = m_in.Byte();
    m_low = m_buffer >> 1;
    m_range = 1u << 7;
  }

  bool Failed() const { return m_failed || m_in.overrun; }

  int64_t DecodeValue(ChannelState& st) {
    const uint32_t pivot = std::max<uint32_t>(st.kSum / 32, 1);

    Normalize();
    m_range >>= 16;
    const uint32_t cf = m_low / m_range;
    if (cf >= 65536) {
      m_failed = true;
      return 0;
    }
    int sym = 0;
    while (cf >= kTotals[size_t(sym + 1)]) ++sym;
    m_low -= m_range * kTotals[size_t(sym)];
    m_range *= kTotals[size_t(sym + 1)] - kTotals[size_t(sym)];

    uint64_t overflow = uint64_t(sym);
    if (sym == kEscapeSymbol) {
      uint64_t hi = DecodeShift16();
      uint64_t lo = DecodeShift16();
      overflow = (hi << 16) | lo;
    }

    uint64_t base;
    if (pivot >= (1u << 16)) {
      int bits = 0;
      while ((pivot >> bits) > 0) ++bits;
      const uint32_t split = 1u << (bits - 16);
      const uint64_t a = DecodeBelow(pivot / split + 1);
      const uint64_t b = DecodeBelow(split);
      base = a * split + b;
    } else {
      base = DecodeBelow(pivot);
    }

    const uint64_t value = base + overflow * pivot;
    st.kSum += uint32_t((value + 1) / 2 - ((st.kSum + 16) >> 5));
    return (value & 1) ? int64_t(value >> 1) + 1 : -int64_t(value >> 1);
  }

 private:
  void Normalize() {
    while (m_range <= kBottom) {
      if (m_range == 0) {  // only a broken stream gets here
        m_failed = true;
        m_range = 1u << 31;
        return;
      }
      m_buffer = (m_buffer << 8) | m_in.Byte();
      m_low = (m_low << 8) | ((m_buffer >> 1) & 0xFF);
      m_range <<= 8;
    }
  }
  uint32_t DecodeShift16() {
    Normalize();
    m_range >>= 16;
    uint32_t v = m_low / m_range;
    m_low -= m_range * v;
    return v;
  }
  uint32_t DecodeBelow(uint32_t total) {
    Normalize();
    m_range /= total;
    uint32_t v = m_low / m_range;
    m_low -= m_range * v;
    return v;
  }

  ByteReader& m_in;
  uint32_t m_low = 0;
  uint32_t m_range = 0;
  uint32_t m_buffer = 0;
  bool m_failed = false;
};

inline void PutSample(uint8_t*& out, int32_t v, int bytes) {
  const uint32_t u = uint32_t(v);
  switch (bytes) {
    case 1:
      *out++ = uint8_t(u + 128);
      break;
    case 2:
      out[0] = uint8_t(u);
      out[1] = uint8_t(u >> 8);
      out += 2;
      break;
    case 3:
      out[0] = uint8_t(u);
      out[1] = uint8_t(u >> 8);
      out[2] = uint8_t(u >> 16);
      out += 3;
      break;
    default:
      out[0] = uint8_t(u);
      out[1] = uint8_t(u >> 8);
      out[2] = uint8_t(u >> 16);
      out[3] = uint8_t(u >> 24);
      out += 4;
      break;
  }
}

// A pair coded as mid (x) and side (y): the first channel is x - y/2, the second adds y.
// Returns false where 16-bit audio leaves its range, which only a broken stream does.
inline bool PutPair(uint8_t*& out, int32_t x, int32_t y, int bytes) {
  const int32_t first = WrapSub<int32_t>(x, y / 2);
  const int32_t second = WrapAdd<int32_t>(first, y);
  if (bytes == 2 && (first < -32768 || first > 32767 || second < -32768 || second > 32767))
    return false;
  PutSample(out, first, bytes);
  PutSample(out, second, bytes);
  return true;
}

}  // namespace

int ParseHeader(const uint8_t* data, uint64_t size, StreamInfo& info) {
  info = StreamInfo{};
  uint64_t junk = 0;
  // An ID3v2 tag in front of the descriptor is skipped, with its padding.
  if (size >= 10 && data[0] == 'I' && data[1] == 'D' && data[2] == '3') {
    uint64_t len = uint64_t(data[6] & 127) << 21 | uint64_t(data[7] & 127) << 14 |
                   uint64_t(data[8] & 127) << 7 | uint64_t(data[9] & 127);
    bool footer = data[5] & 16;
    junk = len + (footer ? 20 : 10);
    if (!footer)
      while (junk < size && data[junk] == 0) ++junk;
  }
  // The descriptor starts with "MAC "; look for it within the first megabyte.
  const uint64_t scanEnd = std::min<uint64_t>(size, junk + (1u << 20) + 4);
  bool found = false;
  for (uint64_t i = junk; i + 4 <= scanEnd; ++i) {
    if (std::memcmp(data + i, "MAC ", 4) == 0) {
      junk = i;
      found = true;
      break;
    }
  }
  if (!found) return kErrInvalidInput;
  if (junk + 6 > size) return kErrInvalidInput;
  info.junkBytes = junk;
  info.version = Le16(data + junk + 4);
  if (info.version < kMinVersion) return kErrUnsupportedVersion;

  const uint8_t* d = data + junk;
  if (junk + 52 > size) return kErrInvalidInput;
  const uint32_t descriptorBytes = Le32(d + 8);
  const uint32_t headerBytes = Le32(d + 12);
  const uint32_t seekTableBytes = Le32(d + 16);
  info.wavHeaderBytes = Le32(d + 20);
  const uint64_t frameDataBytes = uint64_t(Le32(d + 24)) | uint64_t(Le32(d + 28)) << 32;
  info.terminatingBytes = Le32(d + 32);
  if (descriptorBytes < 52 || headerBytes < 24) return kErrInvalidInput;

  const uint64_t headerAt = junk + descriptorBytes;
  info.headerOffset = headerAt;
  if (headerAt + 24 > size) return kErrInvalidInput;
  const uint8_t* h = data + headerAt;
  info.compressionLevel = Le16(h + 0);
  info.formatFlags = Le16(h + 2);
  info.blocksPerFrame = Le32(h + 4);
  info.finalFrameBlocks = Le32(h + 8);
  info.totalFrames = Le32(h + 12);
  info.bits = Le16(h + 16);
  info.channels = Le16(h + 18);
  info.sampleRate = int(std::min<uint32_t>(Le32(h + 20), 0x7FFFFFFF));

  ApeFilterSpec spec[3];
  if (info.channels < 1 || info.channels > 32) return kErrInvalidInput;
  if (info.bits != 8 && info.bits != 16 && info.bits != 24 && info.bits != 32) return kErrInvalidInput;
  if (info.sampleRate <= 0) return kErrInvalidInput;
  if (ApeFiltersForLevel(info.compressionLevel, spec) < 0) return kErrInvalidInput;
  if (info.blocksPerFrame == 0 || info.finalFrameBlocks > info.blocksPerFrame) return kErrInvalidInput;
  if (uint64_t(info.blocksPerFrame) * uint64_t(info.BlockAlign()) > kMaxFrameBytes) return kErrInvalidInput;

  const uint64_t seekAt = headerAt + headerBytes;
  const uint64_t seekEntries = seekTableBytes / 4;
  if (seekEntries < info.totalFrames) return kErrInvalidInput;
  if (seekAt + uint64_t(info.totalFrames) * 4 > size) return kErrInvalidInput;
  info.frameDataStart = seekAt + seekTableBytes + info.wavHeaderBytes;
  info.frameDataEnd = info.frameDataStart + frameDataBytes;
  info.totalBlocks = info.totalFrames == 0
                         ? 0
                         : uint64_t(info.totalFrames - 1) * info.blocksPerFrame + info.finalFrameBlocks;

  // Offsets are 32-bit; past 4 GiB they wrap, which shows as a step back.
  info.seekTable.resize(info.totalFrames);
  uint64_t high = 0;
  uint32_t previous = 0;
  for (uint32_t i = 0; i < info.totalFrames; ++i) {
    uint32_t v = Le32(data + seekAt + uint64_t(i) * 4);
    if (i > 0 && v < previous) high += uint64_t(1) << 32;
    previous = v;
    info.seekTable[i] = junk + high + v;
  }
  if (info.totalFrames > 0 && info.seekTable.back() > info.frameDataEnd) return kErrInvalidInput;
  return kOk;
}

struct PredictorSet {
  std::vector<ApePredictor<int32_t>> narrow;  // up to 24 bits
  std::vector<ApePredictor<int64_t>> wide;    // 32 bits
};

Decoder::Decoder() = default;
Decoder::~Decoder() = default;

int Decoder::OpenFile(const QString& path) {
  m_file = std::make_unique<MappedFile>();
  if (!m_file->Open(path)) {
    errno = m_file->LastErrno();
    return kErrRead;
  }
  if (m_file->Size() == 0) return kErrInvalidInput;
  const uint8_t* view = m_file->Map(0, m_file->Size());
  if (!view) {
    errno = m_file->LastErrno();
    return kErrRead;
  }
  return Open(view, m_file->ViewSize());
}

int Decoder::Open(const uint8_t* data, uint64_t size) {
  m_data = data;
  m_size = size;
  m_error = kOk;
  m_nextFrame = 0;
  m_frame.clear();
  m_framePos = 0;
  m_delivered = 0;
  m_legacy = false;
  int rc = ParseHeader(data, size, m_info);
  if (rc != kOk) return rc;
  m_predictors = std::make_unique<PredictorSet>();
  for (int c = 0; c < m_info.channels; ++c) {
    if (m_info.bits == 32)
      m_predictors->wide.emplace_back(m_info.compressionLevel, m_info.bits);
    else
      m_predictors->narrow.emplace_back(m_info.compressionLevel, m_info.bits);
  }
  return kOk;
}

int64_t Decoder::GetInfo(int field) const {
  const StreamInfo& i = m_info;
  switch (field) {
    case kInfoFileVersion: return i.version;
    case kInfoCompressionLevel: return i.compressionLevel;
    case kInfoFormatFlags: return i.formatFlags;
    case kInfoSampleRate: return i.sampleRate;
    case kInfoBitsPerSample: return i.bits;
    case kInfoBytesPerSample: return i.bits / 8;
    case kInfoChannels: return i.channels;
    case kInfoBlockAlign: return i.BlockAlign();
    case kInfoBlocksPerFrame: return i.blocksPerFrame;
    case kInfoFinalFrameBlocks: return i.finalFrameBlocks;
    case kInfoTotalFrames: return i.totalFrames;
    case kInfoWavHeaderBytes: return (i.formatFlags & kFlagCreateWavHeader) ? 44 : i.wavHeaderBytes;
    case kInfoWavTerminatingBytes: return i.terminatingBytes;
    case kInfoWavDataBytes: return int64_t(i.WavDataBytes());
    case kInfoWavTotalBytes:
      return int64_t(i.WavDataBytes()) + GetInfo(kInfoWavHeaderBytes) + i.terminatingBytes;
    case kInfoApeTotalBytes: return int64_t(m_size);
    case kInfoTotalBlocks: return int64_t(i.totalBlocks);
    case kInfoLengthMs: return i.LengthMs();
    default: return 0;
  }
}

int Decoder::GetData(uint8_t* out, int64_t blocks, int64_t* retrieved) {
  if (retrieved) *retrieved = 0;
  if (m_error != kOk) return m_error;
  if (!m_data) return kErrInvalidInput;
  const size_t align = size_t(m_info.BlockAlign());
  int64_t done = 0;
  while (done < blocks) {
    if (m_framePos >= m_frame.size()) {
      if (m_nextFrame >= m_info.totalFrames) break;
      int rc = DecodeFrame(m_nextFrame);
      if (rc != kOk) {
        m_error = rc;
        m_frame.clear();
        m_framePos = 0;
        m_delivered += uint64_t(done);
        if (retrieved) *retrieved = done;
        return rc;
      }
      ++m_nextFrame;
      m_framePos = 0;
      continue;
    }
    const int64_t avail = int64_t((m_frame.size() - m_framePos) / align);
    const int64_t n = std::min(avail, blocks - done);
    std::memcpy(out + size_t(done) * align, m_frame.data() + m_framePos, size_t(n) * align);
    m_framePos += size_t(n) * align;
    done += n;
  }
  m_delivered += uint64_t(done);
  if (retrieved) *retrieved = done;
  return kOk;
}

int Decoder::DecodeFrame(uint32_t index) {
  const StreamInfo& i = m_info;
  const uint32_t blocks = index + 1 == i.totalFrames ? i.finalFrameBlocks : i.blocksPerFrame;
  const uint64_t start = i.seekTable[index];
  const uint64_t end = index + 1 < i.totalFrames ? i.seekTable[index + 1] : i.frameDataEnd;
  if (end < start) return kErrInvalidInput;
  if (end > m_size) return kErrRead;  // the file ends inside this frame

  auto decode = [&]() {
    return i.bits == 32 ? DecodeFrameAs<int64_t>(start, blocks)
                        : DecodeFrameAs<int32_t>(start, blocks);
  };
  int rc = decode();
  if ((rc == kErrChecksum || rc == kErrDecodingFrame) && !m_legacy && i.bits != 32) {
    // Encoders before the 64-bit sums let loud audio overflow in 32 bits. Such files decode
    // right only the same way; the mode stays for the rest of the file.
    m_legacy = true;
    for (auto& p : m_predictors->narrow) p.SetLegacy(true);
    int retry = decode();
    if (retry == kOk) return kOk;
  }
  return rc;
}

template <typename S>
int Decoder::DecodeFrameAs(uint64_t start, uint32_t blocks) {
  const StreamInfo& info = m_info;
  const int channels = info.channels;
  const int bytes = info.bits / 8;
  const uint64_t base = info.seekTable.empty() ? start : info.seekTable[0];
  ByteReader in{m_data, m_size, base, start - base};

  uint32_t storedCrc = in.Be32();
  uint32_t specialCodes = 0;
  if (storedCrc & 0x80000000u) specialCodes = in.Be32();
  storedCrc &= 0x7FFFFFFFu;

  std::vector<ApePredictor<S>>* preds;
  if constexpr (sizeof(S) == 8)
    preds = &m_predictors->wide;
  else
    preds = &m_predictors->narrow;
  for (auto& p : *preds) p.Flush();
  ChannelState states[32];
  for (int c = 0; c < channels; ++c) states[c].Reset();

  RangeDecoder rc(in);
  rc.Start();

  m_frame.resize(size_t(blocks) * size_t(info.BlockAlign()));
  uint8_t* out = m_frame.data();
  bool ok = true;

  if (channels == 1) {
    auto& px = (*preds)[0];
    if (specialCodes & 1) {
      for (uint32_t b = 0; b < blocks; ++b) PutSample(out, 0, bytes);
    } else {
      for (uint32_t b = 0; b < blocks && !in.overrun; ++b)
        PutSample(out, px.Decompress(rc.DecodeValue(states[0]), 0), bytes);
    }
  } else if (channels == 2) {
    auto& px = (*preds)[0];
    auto& py = (*preds)[1];
    if ((specialCodes & 3) == 3) {
      for (uint32_t b = 0; b < blocks && ok; ++b) ok = PutPair(out, 0, 0, bytes);
    } else if (specialCodes & 4) {
      // Both channels the same: only the mid channel is coded.
      for (uint32_t b = 0; b < blocks && ok && !in.overrun; ++b)
        ok = PutPair(out, px.Decompress(rc.DecodeValue(states[0]), 0), 0, bytes);
    } else {
      int32_t lastX = 0;
      for (uint32_t b = 0; b < blocks && ok && !in.overrun; ++b) {
        const int64_t ny = rc.DecodeValue(states[1]);
        const int64_t nx = rc.DecodeValue(states[0]);
        const int32_t y = py.Decompress(ny, lastX);
        const int32_t x = px.Decompress(nx, y);
        lastX = x;
        ok = PutPair(out, x, y, bytes);
      }
    }
  } else {
    // Each channel on its own; with 4 and with 6 or more channels of 16 or 24 bits the
    // front pair, the surround pair and the rear pair are coded as mid and side.
    const bool pairs = (bytes == 2 || bytes == 3) && (channels == 4 || channels >= 6);
    int32_t v[32];
    for (uint32_t b = 0; b < blocks && ok && !in.overrun; ++b) {
      for (int c = 0; c < channels; ++c) v[c] = (*preds)[size_t(c)].Decompress(rc.DecodeValue(states[c]), 0);
      if (!pairs) {
        for (int c = 0; c < channels; ++c) PutSample(out, v[c], bytes);
        continue;
      }
      ok = PutPair(out, v[0], v[1], bytes);
      if (channels == 4) {
        ok = ok && PutPair(out, v[2], v[3], bytes);
        continue;
      }
      PutSample(out, v[2], bytes);
      PutSample(out, v[3], bytes);
      ok = ok && PutPair(out, v[4], v[5], bytes);
      int next = 6;
      if (channels >= 8) {
        ok = ok && PutPair(out, v[6], v[7], bytes);
        next = 8;
      }
      for (int c = next; c < channels; ++c) PutSample(out, v[c], bytes);
    }
  }

  if (in.overrun) return kErrRead;
  if (!ok || rc.Failed()) return kErrDecodingFrame;
  const uint32_t crc = Crc32(m_frame.data(), m_frame.size()) >> 1;
  if (crc != storedCrc) return kErrChecksum;
  return kOk;
}

}  // namespace ape

// The flat interface.

APE_DECOMPRESS_HANDLE c_APEDecompress_CreateW(const wchar_t* fileName, int* errorCode) {
  int dummy = 0;
  int& error = errorCode ? *errorCode : dummy;
  if (!fileName) {
    error = ape::kErrInvalidInput;
    return nullptr;
  }
  auto d = std::make_unique<ape::Decoder>();
  error = d->OpenFile(QString::fromWCharArray(fileName));
  if (error != ape::kOk) return nullptr;
  return d.release();
}

int64_t c_APEDecompress_GetInfo(APE_DECOMPRESS_HANDLE handle, int field, int64_t, int64_t) {
  if (!handle) return 0;
  return static_cast<ape::Decoder*>(handle)->GetInfo(field);
}

int c_APEDecompress_GetData(APE_DECOMPRESS_HANDLE handle, char* buffer, int64_t blocks,
                            int64_t* blocksRetrieved) {
  if (blocksRetrieved) *blocksRetrieved = 0;
  if (!handle || !buffer || blocks < 0) return ape::kErrInvalidInput;
  return static_cast<ape::Decoder*>(handle)->GetData(reinterpret_cast<uint8_t*>(buffer), blocks,
                                                     blocksRetrieved);
}

void c_APEDecompress_Destroy(APE_DECOMPRESS_HANDLE handle) {
  delete static_cast<ape::Decoder*>(handle);
}
