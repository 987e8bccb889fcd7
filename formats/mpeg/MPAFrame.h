#pragma once
#include <cstdint>

#include "formats/mpeg/MPAHeader.h"

class CMPAStream;

// A frame: its header, where it was found, and its length.
class CMPAFrame {
 public:
  // Finds the header as CMPAHeader does; `offset` ends on the frame. Throws CMPAException.
  CMPAFrame(CMPAStream* stream, uint32_t& offset, bool exact, const CMPAHeader* compareTo = nullptr);

  // Where the following frame is expected.
  uint32_t GetSubsequentHeaderOffset() const { return m_offset + m_frameSize; }

  CMPAHeader m_header;
  CMPAStream* m_stream;
  uint32_t m_offset;
  uint32_t m_frameSize;
};
