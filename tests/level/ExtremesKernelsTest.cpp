#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <limits>
#include <vector>

#include "level/ExtremesKernels.h"

namespace {

// Bytes of noise with the layout's extreme values planted at a few places, long enough
// for several vector rounds and a tail.
std::vector<uint8_t> Noise(size_t bytes, uint32_t seed) {
  std::vector<uint8_t> v(bytes);
  for (auto& b : v) {
    seed = seed * 1664525u + 1013904223u;
    b = uint8_t(seed >> 24);
  }
  return v;
}

struct Layout {
  const char* name;
  int bytes;
};

// Runs one layout's kernel over p with the vector forms on or off.
struct Result {
  int32_t imn[2] = {0, 0}, imx[2] = {0, 0};
  uint8_t umn[2] = {128, 128}, umx[2] = {128, 128};
  float fmn[2] = {0, 0}, fmx[2] = {0, 0};
  bool operator==(const Result& o) const {
    return std::memcmp(imn, o.imn, sizeof imn) == 0 && std::memcmp(imx, o.imx, sizeof imx) == 0 &&
           std::memcmp(umn, o.umn, 2) == 0 && std::memcmp(umx, o.umx, 2) == 0 &&
           std::memcmp(fmn, o.fmn, sizeof fmn) == 0 && std::memcmp(fmx, o.fmx, sizeof fmx) == 0;
  }
};

Result RunKernel(int layout, const uint8_t* p, size_t samples, bool stereo, bool vector) {
  UseVectorExtremes(vector);
  Result r;
  switch (layout) {
    case 0: ExtremesU8(p, samples, stereo, r.umn, r.umx); break;
    case 1: ExtremesS16(p, samples, stereo, r.imn, r.imx); break;
    case 2: ExtremesS24(p, samples, stereo, r.imn, r.imx); break;
    case 3: ExtremesS32(p, samples, stereo, r.imn, r.imx); break;
    case 4: ExtremesF32(p, samples, stereo, r.fmn, r.fmx); break;
  }
  UseVectorExtremes(true);
  return r;
}

}  // namespace

// The vector forms find what the plain loops find, for every layout, at any start address
// and length, with the extremes in the body or in the tail and in either channel.
TEST(ExtremesKernels, VectorFormsAgreeWithPlainLoops) {
  const Layout layouts[] = {{"u8", 1}, {"s16", 2}, {"s24", 3}, {"s32", 4}, {"f32", 4}};
  for (int l = 0; l < 5; ++l) {
    const int w = layouts[l].bytes;
    std::vector<uint8_t> buf = Noise(4096 * 4 + 64, 7 + l);
    if (l == 4) {
      // Floats in [-2, 2] with a NaN, infinities and a negative zero among them.
      for (size_t i = 0; i + 4 <= buf.size(); i += 4) {
        const float f = (float(buf[i]) - 128.0f) / 64.0f;
        std::memcpy(&buf[i], &f, 4);
      }
      const float specials[] = {std::numeric_limits<float>::quiet_NaN(), -0.0f,
                                std::numeric_limits<float>::infinity(), -std::numeric_limits<float>::infinity()};
      for (int k = 0; k < 4; ++k) std::memcpy(&buf[4 * (100 + 37 * k)], &specials[k], 4);
    }
    for (int offset = 0; offset < 4; ++offset) {
      for (size_t samples : {size_t(0), size_t(1), size_t(17), size_t(63), size_t(200), size_t(1001), size_t(4096)}) {
        for (bool stereo : {false, true}) {
          const size_t n = stereo ? samples & ~size_t(1) : samples;
          // The largest and smallest value of the word size, planted near the end of the
          // run (in the plain tail) and in the middle (in the vector body).
          std::vector<uint8_t> b = buf;
          if (n > 4 && l != 4) {
            std::memset(&b[offset + (n - 2) * w], 0xff, w);          // -1, or 255 for u8
            std::memset(&b[offset + (n / 2) * w], 0x00, w);          // 0 (u8: the lowest)
            b[offset + (n / 2 + 1) * w + w - 1] = 0x80;              // the top byte of the lowest
            if (w > 1) std::memset(&b[offset + (n / 2 + 1) * w], 0x00, w - 1);
          }
          const Result plain = RunKernel(l, b.data() + offset, n, stereo, false);
          const Result vec = RunKernel(l, b.data() + offset, n, stereo, true);
          EXPECT_TRUE(plain == vec) << layouts[l].name << " offset " << offset << " samples " << n
                                    << (stereo ? " stereo" : " mono");
        }
      }
    }
  }
}

// Floats: a NaN or a negative zero never becomes an extreme, an infinity does.
TEST(ExtremesKernels, FloatSpecials) {
  std::vector<float> v(256, 0.25f);
  v[10] = std::numeric_limits<float>::quiet_NaN();
  v[11] = -0.0f;
  v[200] = -std::numeric_limits<float>::infinity();
  for (bool vector : {false, true}) {
    UseVectorExtremes(vector);
    float mn[2] = {0, 0}, mx[2] = {0, 0};
    ExtremesF32(reinterpret_cast<const uint8_t*>(v.data()), v.size(), true, mn, mx);
    EXPECT_EQ(mn[0], -std::numeric_limits<float>::infinity());
    EXPECT_EQ(mn[1], 0.0f);
    EXPECT_FALSE(std::signbit(mn[1]));
    EXPECT_EQ(mx[0], 0.25f);
    EXPECT_EQ(mx[1], 0.25f);
  }
  UseVectorExtremes(true);
}
