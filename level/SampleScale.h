#pragma once
// Samples of the average test on the 16-bit scale (full scale +-32768), the input of the
// loudness analysis. One kernel for every road: the gain engine over a mapped work file and
// the streaming analyser over a decoder's output.
#include <cstddef>
#include <cstdint>

enum class SampleKind { U8, S16, S24, S32, F32 };

// The kind of a sample word: 8, 16, 24 or 32 bits, 32-bit float under tag 3. False for any
// other width.
bool SampleKindOf(int bits, int formatTag, SampleKind& kind);

// Bytes of one sample of a kind.
inline size_t SampleBytes(SampleKind kind) {
  return kind == SampleKind::U8 ? 1 : kind == SampleKind::S16 ? 2 : kind == SampleKind::S24 ? 3 : 4;
}

// A float sample (full scale +-1) on the 16-bit scale. NaN would poison the filter, and
// nothing real lies beyond 120 dB over full scale.
double FloatToSixteenBitScale(double v);

// `frames` frames of `channels` interleaved samples at `p`: the first `used` channels of
// each frame to `out`, interleaved, on the 16-bit scale.
void ToSixteenBitScale(const uint8_t* p, size_t frames, int channels, int used, SampleKind kind, double* out);
