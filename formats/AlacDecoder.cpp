#include "formats/AlacDecoder.h"

#include <algorithm>
#include <cstring>
#include <new>

namespace {

// Element tags of a packet.
enum : uint32_t { kSce = 0, kCpe = 1, kCce = 2, kLfe = 3, kDse = 4, kPce = 5, kFil = 6, kEnd = 7 };

// Adaptive Golomb constants of the format.
constexpr uint32_t kQbShift = 9;
constexpr uint32_t kQb = 1u << kQbShift;
constexpr uint32_t kMmulShift = 2;
constexpr uint32_t kMdenShift = kQbShift - kMmulShift - 1;
constexpr uint32_t kMoff = 1u << (kMdenShift - 2);
constexpr uint32_t kBitOff = 24;
constexpr uint32_t kMaxPrefix = 9;       // a longer prefix escapes to a raw value
constexpr uint32_t kRunEscapeBits = 16;  // raw width of an escaped zero run
constexpr uint32_t kMeanClamp = 0xffff;

// Keeps the working buffers within reason whatever a cookie claims.
constexpr uint32_t kMaxFrameLength = 1u << 20;

inline uint32_t Clz(uint32_t x) { return x ? uint32_t(__builtin_clz(x)) : 32u; }

inline uint32_t Be32(const uint8_t* p) {
  return uint32_t(p[0]) << 24 | uint32_t(p[1]) << 16 | uint32_t(p[2]) << 8 | uint32_t(p[3]);
}

// 32 bits at a bit position, left-aligned. Needs 4 readable bytes at the byte position.
inline uint32_t Peek32(const uint8_t* in, uint32_t bitPos) {
  uint32_t w;
  std::memcpy(&w, in + (bitPos >> 3), 4);
  return __builtin_bswap32(w) << (bitPos & 7);
}

// n (1..32) bits at a bit position. Needs 5 readable bytes at the byte position.
inline uint32_t BitsAt(const uint8_t* in, uint32_t bitPos, uint32_t n) {
  const uint8_t* p = in + (bitPos >> 3);
  uint64_t w = uint64_t(p[0]) << 32 | uint64_t(p[1]) << 24 | uint64_t(p[2]) << 16 | uint64_t(p[3]) << 8 | p[4];
  w = (w << (bitPos & 7)) & 0xFFFFFFFFFFull;
  return uint32_t(w >> (40 - n));
}

inline int32_t SignExtend(uint32_t v, uint32_t chanShift) { return int32_t(v << chanShift) >> chanShift; }
inline int32_t SignOf(int32_t v) { return (v > 0) - (v < 0); }

struct EntropyParams {
  uint32_t mb0;
  uint32_t pb;
  uint32_t kb;
  uint32_t wb;
};

// Residuals of one channel. `in` is the packet from the current byte, `bitPos` the bit
// position within it, `maxPos` the bits available. The packet's padding covers the
// look-ahead of the last words. False on a code that runs past the packet or the frame.
bool DecodeResiduals(const uint8_t* in, uint32_t& bitPos, uint32_t maxPos, const EntropyParams& p,
                     int32_t* pc, uint32_t numSamples, uint32_t rawBits) {
  uint32_t pos = bitPos;
  uint32_t mb = p.mb0;
  uint32_t zmode = 0;
  uint32_t c = 0;
  while (c < numSamples) {
    if (pos >= maxPos) return false;
    uint32_t k = 31 - Clz((mb >> kQbShift) + 3);
    k = std::min(k, p.kb);
    const uint32_t m = (1u << k) - 1;
    uint32_t w = Peek32(in, pos);
    const uint32_t prefix = Clz(~w);
    uint32_t n;
    if (prefix >= kMaxPrefix) {
      n = BitsAt(in, pos + kMaxPrefix, rawBits);
      pos += kMaxPrefix + rawBits;
    } else {
      // k bits of suffix; values below 2 were coded in k - 1 bits.
      const uint32_t v = (w << (prefix + 1)) >> (32 - k);
      n = prefix * m;
      pos += prefix + k;  // the stop bit and k - 1 bits
      if (v >= 2) {
        n += v - 1;
        pos += 1;
      }
    }
    const uint32_t coded = n + zmode;
    const uint32_t magnitude = (coded + 1) >> 1;
    const int32_t negate = -int32_t(coded & 1);
    pc[c++] = (int32_t(magnitude) ^ negate) - negate;

    mb = p.pb * coded + mb - ((p.pb * mb) >> kQbShift);
    if (n > kMeanClamp) mb = kMeanClamp;
    zmode = 0;

    if ((mb << kMmulShift) < kQb && c < numSamples) {
      // A run of zeros follows.
      zmode = 1;
      int32_t kz = int32_t(Clz(mb)) - int32_t(kBitOff) + int32_t((mb + kMoff) >> kMdenShift);
      kz = std::clamp(kz, 1, 16);
      const uint32_t mz = ((1u << kz) - 1) & p.wb;
      w = Peek32(in, pos);
      const uint32_t runPrefix = Clz(~w);
      uint32_t run;
      if (runPrefix >= kMaxPrefix) {
        run = (w << kMaxPrefix) >> (32 - kRunEscapeBits);
        pos += kMaxPrefix + kRunEscapeBits;
      } else {
        const uint32_t v = (w << (runPrefix + 1)) >> (32 - uint32_t(kz));
        run = runPrefix * mz;
        pos += runPrefix + uint32_t(kz);
        if (v >= 2) {
          run += v - 1;
          pos += 1;
        }
      }
      if (run > numSamples - c) return false;
      std::memset(pc + c, 0, size_t(run) * sizeof(int32_t));
      c += run;
      if (run >= 65535) zmode = 0;
      mb = 0;
    }
  }
  bitPos = pos;
  return pos <= maxPos;
}

// Undoes the first-order stage in place.
void UnpredictFirstOrder(int32_t* buf, uint32_t num, uint32_t chanShift) {
  int32_t prev = buf[0];
  for (uint32_t j = 1; j < num; ++j) {
    prev = SignExtend(uint32_t(buf[j]) + uint32_t(prev), chanShift);
    buf[j] = prev;
  }
}

// The adaptive FIR stage. kOrder > 0 fixes the order at compile time (the common 4 and 8),
// 0 takes it from `order`. The coefficients adapt by sign steps, most distant tap first,
// until the residual's sign is used up.
template <int kOrder>
void UnpredictAdaptive(const int32_t* pc, int32_t* out, uint32_t num, int16_t* coefs, uint32_t orderIn,
                       uint32_t chanShift, uint32_t denShift) {
  const uint32_t order = kOrder > 0 ? uint32_t(kOrder) : orderIn;
  const uint32_t denHalf = denShift ? 1u << (denShift - 1) : 0;
  int16_t a[32];
  for (uint32_t k = 0; k < order; ++k) a[k] = coefs[k];

  out[0] = pc[0];
  const uint32_t warm = std::min(order + 1, num);
  for (uint32_t j = 1; j < warm; ++j) out[j] = SignExtend(uint32_t(pc[j]) + uint32_t(out[j - 1]), chanShift);

  for (uint32_t j = order + 1; j < num; ++j) {
    const int32_t top = out[j - order - 1];
    const int32_t* hist = out + j - 1;  // hist[-k] is the sample k + 1 back
    int32_t diff[32];
    uint32_t sum = 0;
    for (uint32_t k = 0; k < order; ++k) {
      diff[k] = int32_t(uint32_t(top) - uint32_t(hist[-int32_t(k)]));
      sum -= uint32_t(int32_t(a[k])) * uint32_t(diff[k]);
    }
    const int32_t prediction = int32_t(sum + denHalf) >> denShift;
    int32_t residual = pc[j];
    out[j] = SignExtend(uint32_t(residual) + uint32_t(top) + uint32_t(prediction), chanShift);

    if (residual > 0) {
      int64_t left = residual;
      for (int k = int(order) - 1; k >= 0; --k) {
        const int32_t sgn = SignOf(diff[k]);
        a[k] = int16_t(a[k] - sgn);
        left -= int64_t(order - uint32_t(k)) * ((int64_t(sgn) * diff[k]) >> denShift);
        if (left <= 0) break;
      }
    } else if (residual < 0) {
      int64_t left = residual;
      for (int k = int(order) - 1; k >= 0; --k) {
        const int32_t sgn = SignOf(diff[k]);
        a[k] = int16_t(a[k] + sgn);
        left -= int64_t(order - uint32_t(k)) * ((-int64_t(sgn) * diff[k]) >> denShift);
        if (left >= 0) break;
      }
    }
  }
  for (uint32_t k = 0; k < order; ++k) coefs[k] = a[k];
}

void Unpredict(const int32_t* pc, int32_t* out, uint32_t num, int16_t* coefs, uint32_t order, uint32_t chanShift,
               uint32_t denShift) {
  if (num == 0) return;
  if (order == 0) {
    if (pc != out) std::memcpy(out, pc, size_t(num) * sizeof(int32_t));
    return;
  }
  if (order == 31) {
    if (pc != out) std::memcpy(out, pc, size_t(num) * sizeof(int32_t));
    UnpredictFirstOrder(out, num, chanShift);
    return;
  }
  if (order == 4) UnpredictAdaptive<4>(pc, out, num, coefs, order, chanShift, denShift);
  else if (order == 8) UnpredictAdaptive<8>(pc, out, num, coefs, order, chanShift, denShift);
  else UnpredictAdaptive<0>(pc, out, num, coefs, order, chanShift, denShift);
}

inline void Put16(uint8_t* p, uint32_t v) {
  p[0] = uint8_t(v);
  p[1] = uint8_t(v >> 8);
}
inline void Put24(uint8_t* p, uint32_t v) {
  p[0] = uint8_t(v);
  p[1] = uint8_t(v >> 8);
  p[2] = uint8_t(v >> 16);
}
inline void Put32(uint8_t* p, uint32_t v) { std::memcpy(p, &v, 4); }

// Writes `channels` (1 or 2) decoded channels into the interleaved output at the stream's
// depth, unmixing a pair and putting back the shifted-off low bits.
template <int kDepth>
void WriteOut(const int32_t* u, const int32_t* v, const uint16_t* shiftBuf, uint32_t bytesShifted, int channels,
              int32_t mixBits, int32_t mixRes, uint8_t* out, uint32_t strideBytes, uint32_t num) {
  constexpr uint32_t kBytes = kDepth == 16 ? 2 : kDepth == 32 ? 4 : 3;
  const uint32_t shift = (kDepth >= 24) ? bytesShifted * 8 : 0;
  const bool useShift = shift != 0;
  const int32_t mixShift = std::min(mixBits, 63);
  auto put = [](uint8_t* p, uint32_t s) {
    if constexpr (kDepth == 16) Put16(p, s);
    else if constexpr (kDepth == 20) Put24(p, s << 4);
    else if constexpr (kDepth == 24) Put24(p, s);
    else Put32(p, s);
  };
  if (channels == 1) {
    for (uint32_t j = 0; j < num; ++j, out += strideBytes) {
      uint32_t s = uint32_t(u[j]);
      if (useShift) s = (s << shift) | shiftBuf[j];
      put(out, s);
    }
    return;
  }
  for (uint32_t j = 0; j < num; ++j, out += strideBytes) {
    uint32_t l, r;
    if (mixRes != 0) {
      const int32_t mixed = int32_t((int64_t(mixRes) * v[j]) >> mixShift);
      l = uint32_t(u[j]) + uint32_t(v[j]) - uint32_t(mixed);
      r = l - uint32_t(v[j]);
    } else {
      l = uint32_t(u[j]);
      r = uint32_t(v[j]);
    }
    if (useShift) {
      l = (l << shift) | shiftBuf[2 * j];
      r = (r << shift) | shiftBuf[2 * j + 1];
    }
    put(out, l);
    put(out + kBytes, r);
  }
}

}  // namespace

uint32_t BitBuffer::Read(uint32_t numBits) {
  if (numBits == 0) return 0;
  const uint32_t left = BytesLeft();
  uint32_t w = 0;
  for (uint32_t i = 0; i < 4; ++i) w = (w << 8) | (i < left ? cur[i] : 0u);
  const uint32_t v = (w << bitIndex) >> (32 - numBits);
  Advance(numBits);
  return v;
}

bool BitBuffer::Advance(uint64_t numBits) {
  const uint64_t target = uint64_t(bitIndex) + numBits;
  const uint64_t bytes = target >> 3;
  if (bytes > BytesLeft() || (bytes == BytesLeft() && (target & 7))) {
    cur = end;
    bitIndex = 1;  // marks the overrun
    return false;
  }
  cur += bytes;
  bitIndex = uint32_t(target & 7);
  return true;
}

void BitBuffer::ByteAlign() {
  if (bitIndex == 0) return;
  Advance(8 - bitIndex);
}

int ALACDecoder::Init(const uint8_t* cookie, uint32_t size) {
  if (!cookie || size < 24) return kAlacParamError;
  Config c;
  c.frameLength = Be32(cookie);
  c.compatibleVersion = cookie[4];
  c.bitDepth = cookie[5];
  c.pb = cookie[6];
  c.mb = cookie[7];
  c.kb = cookie[8];
  c.numChannels = cookie[9];
  c.maxRun = uint16_t(cookie[10] << 8 | cookie[11]);
  c.maxFrameBytes = Be32(cookie + 12);
  c.avgBitRate = Be32(cookie + 16);
  c.sampleRate = Be32(cookie + 20);
  if (c.compatibleVersion != 0 || c.frameLength == 0) return kAlacParamError;
  if (c.frameLength > kMaxFrameLength) return kAlacMemFullError;
  try {
    m_mixBufferU.assign(c.frameLength, 0);
    m_mixBufferV.assign(c.frameLength, 0);
    m_predictor.assign(c.frameLength, 0);
  } catch (const std::bad_alloc&) {
    return kAlacMemFullError;
  }
  m_config = c;
  return kAlacNoErr;
}

int ALACDecoder::DecodeChannels(BitBuffer* bits, uint8_t* out, uint32_t channelIndex, uint32_t numChannels, int pair,
                                uint32_t* numSamples, bool* stop) {
  const int channels = pair ? 2 : 1;
  const uint32_t tag = bits->Read(4);
  m_activeElements = uint16_t(m_activeElements | (1u << tag));
  if (bits->Read(12) != 0) return kAlacParamError;
  const uint32_t header = bits->Read(4);
  const bool partial = (header & 8) != 0;
  const uint32_t bytesShifted = (header >> 1) & 3;
  const bool escape = (header & 1) != 0;
  if (bytesShifted == 3) return kAlacParamError;
  uint32_t num = *numSamples;
  if (partial) {
    uint32_t count = bits->Read(16) << 16;
    count |= bits->Read(16);
    if (count > num) {
      *stop = true;
      *numSamples = 0;
      return kAlacNoErr;
    }
    num = count;
    *numSamples = count;
  }
  const uint32_t depth = m_config.bitDepth;
  int32_t mixBits = 0, mixRes = 0;
  uint32_t shiftedBytes = bytesShifted;
  int32_t* buffers[2] = {m_mixBufferU.data(), m_mixBufferV.data()};

  if (!escape) {
    // A single channel carries the two mixing fields as well; it has nothing to unmix.
    mixBits = int32_t(bits->Read(8));
    mixRes = int8_t(bits->Read(8));
    if (!pair) mixBits = mixRes = 0;
    struct Stage {
      uint32_t mode, denShift, pbFactor, numCoefs;
      int16_t coefs[32];
    } stage[2];
    for (int c = 0; c < channels; ++c) {
      uint32_t h = bits->Read(8);
      stage[c].mode = h >> 4;
      stage[c].denShift = h & 15;
      h = bits->Read(8);
      stage[c].pbFactor = h >> 5;
      stage[c].numCoefs = h & 31;
      for (uint32_t k = 0; k < stage[c].numCoefs; ++k) stage[c].coefs[k] = int16_t(bits->Read(16));
    }
    // The shifted-off low bits stand here; they are read back after the residuals.
    BitBuffer shiftBits = *bits;
    if (bytesShifted && !bits->Advance(uint64_t(bytesShifted) * 8 * uint64_t(channels) * num))
      return kAlacParamError;
    if (bits->Overrun()) return kAlacParamError;
    const int32_t chanBits = int32_t(depth) - int32_t(bytesShifted) * 8 + (pair ? 1 : 0);
    if (chanBits < 1 || chanBits > 32) return kAlacParamError;
    const uint32_t chanShift = 32 - uint32_t(chanBits);
    for (int c = 0; c < channels; ++c) {
      EntropyParams p;
      p.mb0 = m_config.mb;
      p.pb = (uint32_t(m_config.pb) * stage[c].pbFactor) / 4;
      p.kb = std::clamp<uint32_t>(m_config.kb, 1, 31);
      p.wb = (1u << p.kb) - 1;
      uint32_t pos = bits->bitIndex;
      const uint32_t maxPos = bits->BytesLeft() * 8;
      if (!DecodeResiduals(bits->cur, pos, maxPos, p, m_predictor.data(), num, uint32_t(chanBits)))
        return kAlacParamError;
      bits->cur += pos >> 3;
      bits->bitIndex = pos & 7;
      if (stage[c].mode != 0) UnpredictFirstOrder(m_predictor.data(), num, chanShift);
      Unpredict(m_predictor.data(), buffers[c], num, stage[c].coefs, stage[c].numCoefs, chanShift,
                stage[c].denShift);
    }
    if (bytesShifted) {
      uint16_t* sb = shiftBuffer();
      const uint32_t width = bytesShifted * 8;
      const uint32_t total = num * uint32_t(channels);
      for (uint32_t i = 0; i < total; ++i) sb[i] = uint16_t(shiftBits.Read(width));
    }
  } else {
    // Uncompressed: the samples at the full depth, in 16-bit pieces and the rest.
    if (depth < 1 || depth > 32) return kAlacParamError;
    const uint32_t chanShift = 32 - depth;
    for (uint32_t j = 0; j < num; ++j) {
      for (int c = 0; c < channels; ++c) {
        int32_t val;
        if (depth <= 16) {
          val = SignExtend(bits->Read(depth), chanShift);
        } else {
          const uint32_t extra = depth - 16;
          val = int32_t(bits->Read(16) << 16) >> chanShift;
          val = int32_t(uint32_t(val) | bits->Read(extra));
        }
        buffers[c][j] = val;
      }
    }
    if (bits->Overrun()) return kAlacParamError;
    shiftedBytes = 0;
  }

  const uint32_t bytesPerSample = depth == 16 ? 2 : depth == 32 ? 4 : 3;
  const uint32_t stride = numChannels * bytesPerSample;
  uint8_t* first = out + size_t(channelIndex) * bytesPerSample;
  const uint16_t* sb = shiftBuffer();
  switch (depth) {
    case 16:
      WriteOut<16>(buffers[0], buffers[1], sb, shiftedBytes, channels, mixBits, mixRes, first, stride, num);
      break;
    case 20:
      WriteOut<20>(buffers[0], buffers[1], sb, shiftedBytes, channels, mixBits, mixRes, first, stride, num);
      break;
    case 24:
      WriteOut<24>(buffers[0], buffers[1], sb, shiftedBytes, channels, mixBits, mixRes, first, stride, num);
      break;
    case 32:
      WriteOut<32>(buffers[0], buffers[1], sb, shiftedBytes, channels, mixBits, mixRes, first, stride, num);
      break;
    default:
      return kAlacParamError;
  }
  return kAlacNoErr;
}

int ALACDecoder::Decode(BitBuffer* bits, uint8_t* out, uint32_t numSamples, uint32_t numChannels,
                        uint32_t* outSamples) {
  if (!outSamples) return kAlacParamError;
  *outSamples = 0;
  if (!bits || !out || m_predictor.empty() || numSamples > m_config.frameLength || numChannels == 0)
    return kAlacParamError;
  const uint32_t depth = m_config.bitDepth;
  if (depth != 16 && depth != 20 && depth != 24 && depth != 32) return kAlacParamError;

  uint32_t frames = numSamples;
  m_activeElements = 0;
  uint32_t channelIndex = 0;
  int status = kAlacNoErr;
  bool done = false;
  while (!done) {
    if (bits->BytesLeft() == 0) {
      status = kAlacParamError;
      break;
    }
    const uint32_t tag = bits->Read(3);
    switch (tag) {
      case kSce:
      case kLfe:
      case kCpe: {
        const uint32_t width = tag == kCpe ? 2 : 1;
        if (channelIndex + width > numChannels) {
          done = true;
          break;
        }
        bool stop = false;
        uint32_t elementFrames = frames;
        status = DecodeChannels(bits, out, channelIndex, numChannels, tag == kCpe, &elementFrames, &stop);
        if (stop) return kAlacNoErr;  // a frame count beyond the frame: nothing from this packet
        frames = elementFrames;
        channelIndex += width;
        break;
      }
      case kCce:
      case kPce:
        status = kAlacParamError;
        break;
      case kDse: {
        bits->Read(4);  // element instance tag
        const bool align = bits->Read(1) != 0;
        uint32_t count = bits->Read(8);
        if (count == 255) count += bits->Read(8);
        if (align) bits->ByteAlign();
        if (!bits->Advance(uint64_t(count) * 8)) status = kAlacParamError;
        break;
      }
      case kFil: {
        uint32_t count = bits->Read(4);
        if (count == 15) count += bits->Read(8) - 1;
        if (!bits->Advance(uint64_t(count) * 8)) status = kAlacParamError;
        break;
      }
      case kEnd:
        bits->ByteAlign();
        done = true;
        break;
    }
    if (status != kAlacNoErr) return status;
    if (channelIndex >= numChannels) done = true;
  }
  if (status != kAlacNoErr) return status;

  // Channels the packet did not carry are silent.
  if (channelIndex < numChannels) {
    const uint32_t bytesPerSample = depth == 16 ? 2 : depth == 32 ? 4 : 3;
    const size_t stride = size_t(numChannels) * bytesPerSample;
    for (uint32_t j = 0; j < frames; ++j)
      std::memset(out + j * stride + size_t(channelIndex) * bytesPerSample, 0,
                  size_t(numChannels - channelIndex) * bytesPerSample);
  }
  *outSamples = frames;
  return kAlacNoErr;
}
