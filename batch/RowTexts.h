#pragma once
// What a batch row shows of a result: the levels and shown gains a measurement or a log
// row gives for the row's kind, test and unit, and the Volume Level, Gain and Clipping
// texts and colour made of them.
#include <QString>
#include <cstdint>

#include "level/LevelResult.h"

// Row colours (0x00BBGGRR).
constexpr uint32_t kRowBack = 0xffffff;
constexpr uint32_t kRowTested = 0xe81e06;
constexpr uint32_t kRowUntested = 0;
constexpr uint32_t kRowClipping = 0x4532f8;
constexpr uint32_t kRowBad = 0x82ff;
constexpr uint32_t kRowTotal = 0x691e06;
constexpr uint32_t kRowTotalChecked = 0x972350;

// The values a row's texts are made of. -1.0 marks a channel that isn't there.
struct RowLevels {
  float levelLeft = -1.0f, levelRight = -1.0f;
  float gainShownLeft = 0, gainShownRight = 0;
  bool clipLeft = false, clipRight = false;
};

// After a measurement (or a hit in the run): the shown values of the row's kind for the
// test (0 peak, 1 average) and unit. `channels` 1 fills the left side only. The average
// test of WAVE and FLAC scales the percent by the word size (89 for 16 bits, 41 for 8, 137
// for 24, 185 for 32); every other kind by 89.
RowLevels LevelsOfResult(const LevelResult& r, int rowKind, int testMode, bool showDb, int channels,
                         int bits);

// At adding: what a log row whose stamp matches shows. MP3 shows its Gain group; the other
// kinds their peak group of the unit. False when the row holds nothing to show.
bool LevelsOfLogRow(const LevelResult& r, int rowKind, bool showDb, int channels, RowLevels& out);

struct RowResultTexts {
  bool shown = false;  // false: both levels absent, nothing to write
  QString volume;      // "Left: 56.3%; Right: 57.1%" or "Mono Channel: 72.4 dB"
  QString gain;        // "Left: +0.1234%; Right: -1.0000%"
  QString clipping;    // MP3 only: "Left: No; Right: Yes"
  uint32_t color = kRowTested;
};
RowResultTexts TextsOfLevels(const RowLevels& levels, bool showDb, bool withClipping);
