#include "level/ExtremesKernels.h"

#include <algorithm>
#include <atomic>
#include <cstring>

#if defined(__x86_64__) || defined(__i386__)
#include <immintrin.h>
#define TONVANE_X86 1
#endif

namespace {

// ---------------------------------------------------------------------------------------
// Plain loops: the tails of the vector forms, and every form on other processors.

inline int32_t Load16(const uint8_t* p) {
  int16_t v;
  std::memcpy(&v, p, 2);
  return v;
}
inline int32_t Load24(const uint8_t* p) {
  const uint32_t u = uint32_t(p[0]) | uint32_t(p[1]) << 8 | uint32_t(p[2]) << 16;
  return int32_t(u << 8) >> 8;
}
inline int32_t Load32(const uint8_t* p) {
  int32_t v;
  std::memcpy(&v, p, 4);
  return v;
}

template <int Bytes>
void PlainInt(const uint8_t* p, size_t from, size_t samples, bool stereo, int32_t mn[2], int32_t mx[2]) {
  for (size_t i = from; i < samples; ++i) {
    const int c = stereo ? int(i & 1) : 0;
    const uint8_t* q = p + Bytes * i;
    const int32_t v = Bytes == 2 ? Load16(q) : Bytes == 3 ? Load24(q) : Load32(q);
    mn[c] = std::min(mn[c], v);
    mx[c] = std::max(mx[c], v);
  }
}

void PlainU8(const uint8_t* p, size_t from, size_t samples, bool stereo, uint8_t mn[2], uint8_t mx[2]) {
  for (size_t i = from; i < samples; ++i) {
    const int c = stereo ? int(i & 1) : 0;
    mn[c] = std::min(mn[c], p[i]);
    mx[c] = std::max(mx[c], p[i]);
  }
}

void PlainF32(const uint8_t* p, size_t from, size_t samples, bool stereo, float mn[2], float mx[2]) {
  for (size_t i = from; i < samples; ++i) {
    const int c = stereo ? int(i & 1) : 0;
    float v;
    std::memcpy(&v, p + 4 * i, 4);
    // Comparisons, not std::min: a NaN touches nothing.
    if (v < mn[c]) mn[c] = v;
    if (v > mx[c]) mx[c] = v;
  }
}

// Lane k of a vector register holds a sample of channel k & 1: every vector holds an even
// number of samples, so the lanes keep their channel from one load to the next.
template <typename T, typename U>
void FoldLanes(const T* lo, const T* hi, int lanes, bool stereo, U mn[2], U mx[2]) {
  for (int k = 0; k < lanes; ++k) {
    const int c = stereo ? (k & 1) : 0;
    if (lo[k] < mn[c]) mn[c] = lo[k];
    if (hi[k] > mx[c]) mx[c] = hi[k];
  }
}

#if TONVANE_X86

// ---------------------------------------------------------------------------------------
// AVX2: 32 bytes a register, four registers a round. The loops read memory as fast as it
// comes; the min/max instructions are never the limit.

__attribute__((target("avx2"))) size_t Avx2S16(const uint8_t* p, size_t samples, bool stereo, int32_t mn[2],
                                                int32_t mx[2]) {
  const size_t rounds = samples / 64;
  __m256i lo0 = _mm256_setzero_si256(), lo1 = lo0, hi0 = lo0, hi1 = lo0;
  const __m256i* v = reinterpret_cast<const __m256i*>(p);
  for (size_t r = 0; r < rounds; ++r, v += 4) {
    const __m256i a = _mm256_loadu_si256(v), b = _mm256_loadu_si256(v + 1);
    const __m256i c = _mm256_loadu_si256(v + 2), d = _mm256_loadu_si256(v + 3);
    lo0 = _mm256_min_epi16(lo0, _mm256_min_epi16(a, b));
    hi0 = _mm256_max_epi16(hi0, _mm256_max_epi16(a, b));
    lo1 = _mm256_min_epi16(lo1, _mm256_min_epi16(c, d));
    hi1 = _mm256_max_epi16(hi1, _mm256_max_epi16(c, d));
  }
  alignas(32) int16_t l[16], h[16];
  _mm256_store_si256(reinterpret_cast<__m256i*>(l), _mm256_min_epi16(lo0, lo1));
  _mm256_store_si256(reinterpret_cast<__m256i*>(h), _mm256_max_epi16(hi0, hi1));
  FoldLanes(l, h, 16, stereo, mn, mx);
  return rounds * 64;
}

__attribute__((target("avx2"))) size_t Avx2U8(const uint8_t* p, size_t samples, bool stereo, uint8_t mn[2],
                                               uint8_t mx[2]) {
  const size_t rounds = samples / 128;
  __m256i lo0 = _mm256_set1_epi8(char(0x80)), lo1 = lo0, hi0 = lo0, hi1 = lo0;
  const __m256i* v = reinterpret_cast<const __m256i*>(p);
  for (size_t r = 0; r < rounds; ++r, v += 4) {
    const __m256i a = _mm256_loadu_si256(v), b = _mm256_loadu_si256(v + 1);
    const __m256i c = _mm256_loadu_si256(v + 2), d = _mm256_loadu_si256(v + 3);
    lo0 = _mm256_min_epu8(lo0, _mm256_min_epu8(a, b));
    hi0 = _mm256_max_epu8(hi0, _mm256_max_epu8(a, b));
    lo1 = _mm256_min_epu8(lo1, _mm256_min_epu8(c, d));
    hi1 = _mm256_max_epu8(hi1, _mm256_max_epu8(c, d));
  }
  alignas(32) uint8_t l[32], h[32];
  _mm256_store_si256(reinterpret_cast<__m256i*>(l), _mm256_min_epu8(lo0, lo1));
  _mm256_store_si256(reinterpret_cast<__m256i*>(h), _mm256_max_epu8(hi0, hi1));
  FoldLanes(l, h, 32, stereo, mn, mx);
  return rounds * 128;
}

__attribute__((target("avx2"))) size_t Avx2S32(const uint8_t* p, size_t samples, bool stereo, int32_t mn[2],
                                                int32_t mx[2]) {
  const size_t rounds = samples / 32;
  __m256i lo0 = _mm256_setzero_si256(), lo1 = lo0, hi0 = lo0, hi1 = lo0;
  const __m256i* v = reinterpret_cast<const __m256i*>(p);
  for (size_t r = 0; r < rounds; ++r, v += 4) {
    const __m256i a = _mm256_loadu_si256(v), b = _mm256_loadu_si256(v + 1);
    const __m256i c = _mm256_loadu_si256(v + 2), d = _mm256_loadu_si256(v + 3);
    lo0 = _mm256_min_epi32(lo0, _mm256_min_epi32(a, b));
    hi0 = _mm256_max_epi32(hi0, _mm256_max_epi32(a, b));
    lo1 = _mm256_min_epi32(lo1, _mm256_min_epi32(c, d));
    hi1 = _mm256_max_epi32(hi1, _mm256_max_epi32(c, d));
  }
  alignas(32) int32_t l[8], h[8];
  _mm256_store_si256(reinterpret_cast<__m256i*>(l), _mm256_min_epi32(lo0, lo1));
  _mm256_store_si256(reinterpret_cast<__m256i*>(h), _mm256_max_epi32(hi0, hi1));
  FoldLanes(l, h, 8, stereo, mn, mx);
  return rounds * 32;
}

// 24-bit samples: 12 bytes (four samples) into each 128-bit half, each sample moved to the
// top three bytes of a 32-bit lane and shifted back down with its sign.
__attribute__((target("avx2"))) inline __m256i Widen24(const uint8_t* q, __m256i shuffle) {
  const __m128i a = _mm_loadu_si128(reinterpret_cast<const __m128i*>(q));
  const __m128i b = _mm_loadu_si128(reinterpret_cast<const __m128i*>(q + 12));
  return _mm256_srai_epi32(_mm256_shuffle_epi8(_mm256_inserti128_si256(_mm256_castsi128_si256(a), b, 1), shuffle), 8);
}

__attribute__((target("avx2"))) size_t Avx2S24(const uint8_t* p, size_t samples, bool stereo, int32_t mn[2],
                                                int32_t mx[2]) {
  // A round takes 16 samples (48 bytes); its last load reaches 4 bytes beyond them.
  if (samples < 18) return 0;
  const size_t rounds = (samples - 2) / 16;
  const __m256i shuffle = _mm256_setr_epi8(-1, 0, 1, 2, -1, 3, 4, 5, -1, 6, 7, 8, -1, 9, 10, 11,  //
                                           -1, 0, 1, 2, -1, 3, 4, 5, -1, 6, 7, 8, -1, 9, 10, 11);
  __m256i lo0 = _mm256_setzero_si256(), lo1 = lo0, hi0 = lo0, hi1 = lo0;
  const uint8_t* q = p;
  for (size_t r = 0; r < rounds; ++r, q += 48) {
    const __m256i a = Widen24(q, shuffle), b = Widen24(q + 24, shuffle);
    lo0 = _mm256_min_epi32(lo0, a);
    hi0 = _mm256_max_epi32(hi0, a);
    lo1 = _mm256_min_epi32(lo1, b);
    hi1 = _mm256_max_epi32(hi1, b);
  }
  alignas(32) int32_t l[8], h[8];
  _mm256_store_si256(reinterpret_cast<__m256i*>(l), _mm256_min_epi32(lo0, lo1));
  _mm256_store_si256(reinterpret_cast<__m256i*>(h), _mm256_max_epi32(hi0, hi1));
  FoldLanes(l, h, 8, stereo, mn, mx);
  return rounds * 16;
}

// Floats: MINPS and MAXPS give their second operand when either is a NaN or both are
// zeros, so with the running extreme second a NaN or a -0.0 touches nothing, as in the
// plain loop.
__attribute__((target("avx2"))) size_t Avx2F32(const uint8_t* p, size_t samples, bool stereo, float mn[2],
                                                float mx[2]) {
  const size_t rounds = samples / 32;
  __m256 lo0 = _mm256_setzero_ps(), lo1 = lo0, lo2 = lo0, lo3 = lo0;
  __m256 hi0 = lo0, hi1 = lo0, hi2 = lo0, hi3 = lo0;
  const float* v = reinterpret_cast<const float*>(p);
  for (size_t r = 0; r < rounds; ++r, v += 32) {
    const __m256 a = _mm256_loadu_ps(v), b = _mm256_loadu_ps(v + 8);
    const __m256 c = _mm256_loadu_ps(v + 16), d = _mm256_loadu_ps(v + 24);
    lo0 = _mm256_min_ps(a, lo0);
    hi0 = _mm256_max_ps(a, hi0);
    lo1 = _mm256_min_ps(b, lo1);
    hi1 = _mm256_max_ps(b, hi1);
    lo2 = _mm256_min_ps(c, lo2);
    hi2 = _mm256_max_ps(c, hi2);
    lo3 = _mm256_min_ps(d, lo3);
    hi3 = _mm256_max_ps(d, hi3);
  }
  alignas(32) float l[32], h[32];
  _mm256_store_ps(l, lo0), _mm256_store_ps(l + 8, lo1), _mm256_store_ps(l + 16, lo2), _mm256_store_ps(l + 24, lo3);
  _mm256_store_ps(h, hi0), _mm256_store_ps(h + 8, hi1), _mm256_store_ps(h + 16, hi2), _mm256_store_ps(h + 24, hi3);
  FoldLanes(l, h, 32, stereo, mn, mx);
  return rounds * 32;
}

bool HaveAvx2() {
  static const bool have = __builtin_cpu_supports("avx2");
  return have;
}

#else

bool HaveAvx2() { return false; }

#endif

std::atomic<bool> g_vector{true};

bool Vector() { return g_vector.load(std::memory_order_relaxed) && HaveAvx2(); }

}  // namespace

void UseVectorExtremes(bool on) { g_vector = on; }

void ExtremesS16(const uint8_t* p, size_t samples, bool stereo, int32_t mn[2], int32_t mx[2]) {
  size_t done = 0;
#if TONVANE_X86
  if (Vector()) done = Avx2S16(p, samples, stereo, mn, mx);
#endif
  PlainInt<2>(p, done, samples, stereo, mn, mx);
}

void ExtremesS24(const uint8_t* p, size_t samples, bool stereo, int32_t mn[2], int32_t mx[2]) {
  size_t done = 0;
#if TONVANE_X86
  if (Vector()) done = Avx2S24(p, samples, stereo, mn, mx);
#endif
  PlainInt<3>(p, done, samples, stereo, mn, mx);
}

void ExtremesS32(const uint8_t* p, size_t samples, bool stereo, int32_t mn[2], int32_t mx[2]) {
  size_t done = 0;
#if TONVANE_X86
  if (Vector()) done = Avx2S32(p, samples, stereo, mn, mx);
#endif
  PlainInt<4>(p, done, samples, stereo, mn, mx);
}

void ExtremesU8(const uint8_t* p, size_t samples, bool stereo, uint8_t mn[2], uint8_t mx[2]) {
  size_t done = 0;
#if TONVANE_X86
  if (Vector()) done = Avx2U8(p, samples, stereo, mn, mx);
#endif
  PlainU8(p, done, samples, stereo, mn, mx);
}

void ExtremesF32(const uint8_t* p, size_t samples, bool stereo, float mn[2], float mx[2]) {
  size_t done = 0;
#if TONVANE_X86
  if (Vector()) done = Avx2F32(p, samples, stereo, mn, mx);
#endif
  PlainF32(p, done, samples, stereo, mn, mx);
}
