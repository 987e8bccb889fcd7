#pragma once
#include <QString>
#include <cstdint>

#include "formats/mpeg/Tags.h"

// The encoder's block behind a Xing header. It belongs to the header, not to the tag list,
// and covers no bytes of its own.
class CLAMETag : public CTag {
 public:
  // The tag at `offset` (the Xing header's offset + 120), or null.
  static CLAMETag* FindTag(CMPAStream* stream, uint32_t offset);

  // "Unknown", "CBR", "ABR", "VBR1" ... "ABR2Pass"; "Unknown" for values above 9.
  QString GetVBRInfo() const;
  bool IsVBR() const { return vbrMethod >= 3 && vbrMethod <= 6; }
  bool IsABR() const { return vbrMethod == 2 || vbrMethod == 9; }
  bool IsCBR() const { return vbrMethod == 1 || vbrMethod == 8; }

  QString encoder;
  bool simpleTag = false;  // no info block
  uint8_t revision = 0;
  uint8_t vbrMethod = 0;
  uint32_t lowpass = 0;  // Hz
  uint8_t bitRate = 0;

 private:
  CLAMETag(CMPAStream* stream, uint32_t offset) : CTag(stream, QStringLiteral("LAME"), false, offset, 0) {}
};
