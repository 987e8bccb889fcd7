#include "level/SampleScale.h"

#include <algorithm>
#include <cstring>

bool SampleKindOf(int bits, int formatTag, SampleKind& kind) {
  switch (bits) {
    case 8: kind = SampleKind::U8; return true;
    case 16: kind = SampleKind::S16; return true;
    case 24: kind = SampleKind::S24; return true;
    case 32: kind = formatTag == 3 ? SampleKind::F32 : SampleKind::S32; return true;
    default: return false;
  }
}

double FloatToSixteenBitScale(double v) { return (v == v ? std::clamp(v, -1e6, 1e6) : 0.0) * 32768.0; }

namespace {

// Every sample of every channel: one flat run of samples, which the compiler turns into
// vector conversions.
template <typename T, typename F>
void Flat(const uint8_t* p, size_t samples, double* out, F scale) {
  for (size_t i = 0; i < samples; ++i) {
    T v;
    std::memcpy(&v, p + sizeof(T) * i, sizeof(T));
    out[i] = scale(v);
  }
}

}  // namespace

void ToSixteenBitScale(const uint8_t* p, size_t frames, int channels, int used, SampleKind kind, double* out) {
  if (channels == used) {
    const size_t n = frames * size_t(channels);
    switch (kind) {
      case SampleKind::S16: return Flat<int16_t>(p, n, out, [](int16_t v) { return double(v); });
      case SampleKind::S32: return Flat<int32_t>(p, n, out, [](int32_t v) { return v * (1.0 / 65536.0); });
      case SampleKind::F32: return Flat<float>(p, n, out, [](float v) { return FloatToSixteenBitScale(v); });
      default: break;
    }
  }
  switch (kind) {
    case SampleKind::U8:
      for (size_t i = 0; i < frames; ++i, p += channels)
        for (int c = 0; c < used; ++c) *out++ = (int(p[c]) - 128) * 256.0;
      break;
    case SampleKind::S16:
      for (size_t i = 0; i < frames; ++i, p += 2 * channels)
        for (int c = 0; c < used; ++c) {
          int16_t v;
          std::memcpy(&v, p + 2 * c, 2);
          *out++ = v;
        }
      break;
    case SampleKind::S24:
      for (size_t i = 0; i < frames; ++i, p += 3 * channels)
        for (int c = 0; c < used; ++c) {
          const uint8_t* q = p + 3 * c;
          const int32_t v = int32_t(uint32_t(q[0]) << 8 | uint32_t(q[1]) << 16 | uint32_t(q[2]) << 24) >> 8;
          *out++ = v * (1.0 / 256.0);
        }
      break;
    case SampleKind::S32:
      for (size_t i = 0; i < frames; ++i, p += 4 * channels)
        for (int c = 0; c < used; ++c) {
          int32_t v;
          std::memcpy(&v, p + 4 * c, 4);
          *out++ = v * (1.0 / 65536.0);
        }
      break;
    case SampleKind::F32:
      for (size_t i = 0; i < frames; ++i, p += 4 * channels)
        for (int c = 0; c < used; ++c) {
          float v;
          std::memcpy(&v, p + 4 * c, 4);
          *out++ = FloatToSixteenBitScale(v);
        }
      break;
  }
}
