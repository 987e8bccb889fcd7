#include "formats/mpeg/MPAFrame.h"

CMPAFrame::CMPAFrame(CMPAStream* stream, uint32_t& offset, bool exact, const CMPAHeader* compareTo)
    : m_header(stream, offset, exact, compareTo),
      m_stream(stream),
      m_offset(offset),
      m_frameSize(m_header.CalcFrameSize()) {}
