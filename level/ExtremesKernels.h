#pragma once
// The sample loops of the peak test: the smallest and largest sample of each channel of
// interleaved little-endian PCM. One loop per word size, with vector forms chosen once at
// run time by what the processor offers; every form gives the same extremes.
//
// `samples` counts single samples (frames times channels). With `stereo` the samples
// alternate left, right; otherwise all belong to index 0. The extremes are updated in
// place and only ever move outwards, so they must start at silence (0, or 128 for
// unsigned 8-bit) or at the result of an earlier call.
#include <cstddef>
#include <cstdint>

void ExtremesS16(const uint8_t* p, size_t samples, bool stereo, int32_t mn[2], int32_t mx[2]);
void ExtremesS24(const uint8_t* p, size_t samples, bool stereo, int32_t mn[2], int32_t mx[2]);
void ExtremesS32(const uint8_t* p, size_t samples, bool stereo, int32_t mn[2], int32_t mx[2]);
void ExtremesU8(const uint8_t* p, size_t samples, bool stereo, uint8_t mn[2], uint8_t mx[2]);
// A NaN sample touches nothing, nor does -0.0: only samples below the minimum or above the
// maximum count.
void ExtremesF32(const uint8_t* p, size_t samples, bool stereo, float mn[2], float mx[2]);

// For tests: false makes every call take the plain loops, true (the default) the fastest
// form the processor has.
void UseVectorExtremes(bool on);
