#pragma once
// Colours of the design are 0x00BBGGRR values; Qt wants 0xRRGGBB. The one conversion.
#include <cstdint>

constexpr uint32_t RgbOfColorRef(uint32_t colorRef) {
  return ((colorRef & 0xff) << 16) | (colorRef & 0xff00) | ((colorRef >> 16) & 0xff);
}
