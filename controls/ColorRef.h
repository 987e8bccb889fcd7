#pragma once
// The design's colours are 0x00BBGGRR values; this is the one place they become QColors.
#include <QColor>
#include <cstdint>

inline QColor FromColorRef(uint32_t c) { return QColor(int(c & 0xff), int((c >> 8) & 0xff), int((c >> 16) & 0xff)); }
