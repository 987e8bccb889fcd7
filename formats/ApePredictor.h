#pragma once
// The prediction stages of a Monkey's Audio channel (format 3.95 and later): the adaptive
// "neural" filters of the higher compression levels, then the order-4/order-5 predictor
// fed by the channel itself and its partner, then a fixed first-order integrator.
//
// Everything is computed the way the encoder computed it, overflow included: 8, 16 and
// 24-bit audio runs on 32-bit values (with 64-bit sums where the encoder used them), 32-bit
// audio on 64-bit values. Sums that may wrap are done in unsigned arithmetic so that a
// damaged stream gives wrong numbers (caught by the frame check), never undefined behaviour.
#include <cstdint>
#include <cstring>
#include <memory>
#include <type_traits>
#include <vector>

namespace ape {

template <typename T>
inline T WrapAdd(T a, T b) {
  using U = std::make_unsigned_t<T>;
  return T(U(a) + U(b));
}
template <typename T>
inline T WrapSub(T a, T b) {
  using U = std::make_unsigned_t<T>;
  return T(U(a) - U(b));
}
template <typename T>
inline T WrapMul(T a, T b) {
  using U = std::make_unsigned_t<T>;
  return T(U(a) * U(b));
}

inline int16_t SaturateToShort(int64_t v) {
  if (v > 32767) return 32767;
  if (v < -32768) return -32768;
  return int16_t(v);
}

// One adaptive filter of `order` taps. S is the sample type: int32_t for up to 24 bits
// (16-bit history and taps), int64_t for 32 bits (32-bit history and taps).
template <typename S>
class ApeNNFilter {
 public:
  using Tap = std::conditional_t<sizeof(S) == 4, int16_t, int32_t>;

  ApeNNFilter(int order, int shift) : m_order(order), m_shift(shift) {
    m_taps.assign(size_t(order), 0);
    m_input.assign(size_t(kWindow + order), 0);
    m_delta.assign(size_t(kWindow + order), 0);
    Flush();
  }

  // Back to the state of a frame's start. Only the history before the first position is
  // ever read before it is written, so only that part needs clearing, and only after the
  // window has rolled over it.
  void Flush() {
    std::fill(m_taps.begin(), m_taps.end(), Tap(0));
    if (m_rolled) {
      std::fill_n(m_input.begin(), m_order, Tap(0));
      std::fill_n(m_delta.begin(), m_order, Tap(0));
      m_rolled = false;
    }
    m_pos = m_order;
    m_average = 0;
  }

  void SetLegacy(bool legacy) { m_legacy = legacy; }

  S Decompress(S in) {
    // The orders of the levels, each with loops of a fixed length the compiler unrolls
    // and vectorises.
    switch (m_order) {
      case 16: return Step<16>(in);
      case 32: return Step<32>(in);
      case 64: return Step<64>(in);
      case 256: return Step<256>(in);
      case 1280: return Step<1280>(in);
      default: return Step<0>(in);
    }
  }

 private:
  template <int N>
  S Step(S in) {
    const Tap* __restrict x = &m_input[size_t(m_pos - m_order)];
    const Tap* __restrict d = &m_delta[size_t(m_pos - m_order)];
    Tap* __restrict m = m_taps.data();
    const int n = N > 0 ? N : m_order;
    int64_t dot;
    if constexpr (sizeof(S) == 4) {
      // 16-bit products summed in 32 bits, wrapping as the encoder's did.
      uint32_t sum = 0;
      for (int i = 0; i < n; ++i) sum += uint32_t(int32_t(x[i]) * int32_t(m[i]));
      dot = int32_t(sum);
    } else {
      int64_t sum = 0;
      for (int i = 0; i < n; ++i) sum += int32_t(uint32_t(x[i]) * uint32_t(m[i]));
      dot = sum;
    }
    if (in > 0) {
      for (int i = 0; i < n; ++i) m[i] = Tap(m[i] - d[i]);
    } else if (in < 0) {
      for (int i = 0; i < n; ++i) m[i] = Tap(m[i] + d[i]);
    }
    const int64_t round = int64_t(1) << (m_shift - 1);
    S out;
    if (m_legacy && sizeof(S) == 4)
      out = WrapAdd<S>(in, S(int32_t(uint32_t(dot) + uint32_t(round)) >> m_shift));
    else
      out = S(WrapAdd<int64_t>(int64_t(in), (dot + round) >> m_shift));

    m_input[size_t(m_pos)] = SaturateToShort(out);

    // The step of each tap's next adaptation: larger for a value that is large against
    // the running average of recent magnitudes.
    const int64_t absOut = int64_t(out < 0 ? WrapSub<S>(0, out) : out);
    Tap* dm = &m_delta[size_t(m_pos)];
    if (absOut > WrapMul<int64_t>(m_average, 3))
      dm[0] = Tap(((out >> 25) & 64) - 32);
    else if (absOut > WrapMul<int64_t>(m_average, 4) / 3)
      dm[0] = Tap(((out >> 26) & 32) - 16);
    else if (absOut > 0)
      dm[0] = Tap(((out >> 27) & 16) - 8);
    else
      dm[0] = 0;
    m_average = WrapAdd<int64_t>(m_average, WrapSub<int64_t>(absOut, m_average) / 16);
    dm[-1] = Tap(dm[-1] >> 1);
    dm[-2] = Tap(dm[-2] >> 1);
    dm[-8] = Tap(dm[-8] >> 1);

    if (++m_pos == kWindow + m_order) {
      std::memmove(m_input.data(), &m_input[size_t(kWindow)], size_t(m_order) * sizeof(Tap));
      std::memmove(m_delta.data(), &m_delta[size_t(kWindow)], size_t(m_order) * sizeof(Tap));
      m_pos = m_order;
      m_rolled = true;
    }
    return out;
  }

  static constexpr int kWindow = 4096;
  int m_order;
  int m_shift;
  bool m_legacy = false;
  bool m_rolled = true;
  int m_pos = 0;
  int64_t m_average = 0;
  std::vector<Tap> m_taps;
  std::vector<Tap> m_input;
  std::vector<Tap> m_delta;
};

// Filters per compression level, applied in this order when decoding.
struct ApeFilterSpec {
  int order;
  int shift;
};
// Returns the number of filters (0 to 3) for a level, or -1 for an unknown level.
int ApeFiltersForLevel(int level, ApeFilterSpec out[3]);

template <typename S>
class ApePredictor {
 public:
  // `level` must be one ApeFiltersForLevel knows.
  ApePredictor(int level, int bits) : m_wideSums(sizeof(S) == 8 || bits != 16) {
    ApeFilterSpec spec[3];
    int n = ApeFiltersForLevel(level, spec);
    for (int i = 0; i < n; ++i) m_filters.emplace_back(spec[i].order, spec[i].shift);
    Flush();
  }

  void Flush() {
    for (auto& f : m_filters) f.Flush();
    m_a[0] = m_a[1] = m_a[2] = m_a[3] = 0;
    for (S& b : m_b) b = 0;
    m_ma[0] = 360;
    m_ma[1] = 317;
    m_ma[2] = -109;
    m_ma[3] = 98;
    for (S& mb : m_mb) mb = 0;
    m_lastA = 0;
    m_stage1A = 0;
    m_stage1B = 0;
  }

  void SetLegacy(bool legacy) {
    m_legacy = legacy;
    for (auto& f : m_filters) f.SetLegacy(legacy);
  }

  // `value` is the decoded residual, `partner` the other channel's sample that this
  // channel is predicted from (0 for mono and independent channels).
  int32_t Decompress(int64_t value, int64_t partner) {
    S a = S(value);
    if constexpr (sizeof(S) == 4) a = S(int32_t(uint32_t(uint64_t(value))));
    for (auto& f : m_filters) a = f.Decompress(a);

    // History of the channel: its last value and the three last differences.
    m_a[3] = m_a[2];
    m_a[2] = m_a[1];
    m_a[1] = WrapSub<S>(m_lastA, m_a[0]);
    m_a[0] = m_lastA;

    // The partner through a first-order difference filter, and its differences.
    const S b = S(int32_t(uint32_t(uint64_t(partner))));
    const S b0 = WrapSub<S>(b, S(WrapMul<S>(m_stage1B, 31) >> 5));
    m_stage1B = b;
    m_b[4] = m_b[3];
    m_b[3] = m_b[2];
    m_b[2] = m_b[1];
    m_b[1] = WrapSub<S>(b0, m_b[0]);
    m_b[0] = b0;

    S current;
    if (!m_wideSums) {
      S pa = 0, pb = 0;
      for (int i = 0; i < 4; ++i) pa = WrapAdd<S>(pa, WrapMul<S>(m_a[i], m_ma[i]));
      for (int i = 0; i < 5; ++i) pb = WrapAdd<S>(pb, WrapMul<S>(m_b[i], m_mb[i]));
      current = WrapAdd<S>(a, S(WrapAdd<S>(pa, S(pb >> 1)) >> 10));
    } else {
      int64_t pa = 0, pb = 0;
      for (int i = 0; i < 4; ++i) pa = WrapAdd<int64_t>(pa, WrapMul<int64_t>(m_a[i], m_ma[i]));
      for (int i = 0; i < 5; ++i) pb = WrapAdd<int64_t>(pb, WrapMul<int64_t>(m_b[i], m_mb[i]));
      if (m_legacy && sizeof(S) == 4) {
        // Older encoders summed in 32 bits and overflowed on loud 24-bit audio.
        int32_t p = int32_t(uint32_t(int32_t(pa)) + uint32_t(int32_t(pb) >> 1));
        current = WrapAdd<S>(a, S(p >> 10));
      } else {
        current = WrapAdd<S>(a, S(WrapAdd<int64_t>(pa, pb >> 1) >> 10));
      }
    }

    // Sign-sign adaptation of the weights (the sign is read from bit 31, as encoded).
    if (a > 0) {
      for (int i = 0; i < 4; ++i) m_ma[i] = WrapSub<S>(m_ma[i], Sign(m_a[i]));
      for (int i = 0; i < 5; ++i) m_mb[i] = WrapSub<S>(m_mb[i], Sign(m_b[i]));
    } else if (a < 0) {
      for (int i = 0; i < 4; ++i) m_ma[i] = WrapAdd<S>(m_ma[i], Sign(m_a[i]));
      for (int i = 0; i < 5; ++i) m_mb[i] = WrapAdd<S>(m_mb[i], Sign(m_b[i]));
    }

    m_stage1A = WrapAdd<S>(current, S(WrapMul<S>(m_stage1A, 31) >> 5));
    m_lastA = current;
    return int32_t(uint32_t(uint64_t(int64_t(m_stage1A))));
  }

 private:
  static S Sign(S v) { return v ? S(((v >> 30) & 2) - 1) : S(0); }

  bool m_wideSums;
  bool m_legacy = false;
  std::vector<ApeNNFilter<S>> m_filters;
  S m_a[4];
  S m_b[5];
  S m_ma[4];
  S m_mb[5];
  S m_lastA = 0;
  S m_stage1A = 0;
  S m_stage1B = 0;
};

}  // namespace ape
