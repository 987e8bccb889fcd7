#include "formats/mpeg/VBRHeader.h"

#include <cstring>
#include <new>

#include "formats/mpeg/MPAFrame.h"
#include "formats/mpeg/MPAStream.h"

bool CVBRHeader::CheckID(CMPAStream* stream, uint32_t offset, char c1, char c2, char c3, char c4) {
  const uint8_t* p = stream->ReadBytes(4, offset, false);
  return p && p[0] == uint8_t(c1) && p[1] == uint8_t(c2) && p[2] == uint8_t(c3) && p[3] == uint8_t(c4);
}

CVBRHeader* CVBRHeader::FindHeader(const CMPAFrame* frame) {
  if (!frame) return nullptr;
  if (CVBRHeader* h = CXINGHeader::FindHeader(frame)) return h;
  return CVBRIHeader::FindHeader(frame);
}

CXINGHeader* CXINGHeader::FindHeader(const CMPAFrame* frame) {
  CMPAStream* stream = frame->m_stream;
  const uint64_t at64 = uint64_t(frame->m_offset) + 4 + frame->m_header.GetSideInfoSize();
  if (at64 > 0xFFFFFFFFu) return nullptr;
  const uint32_t at = uint32_t(at64);
  if (!CheckID(stream, at, 'X', 'i', 'n', 'g') && !CheckID(stream, at, 'I', 'n', 'f', 'o')) return nullptr;

  auto* h = new CXINGHeader(stream, at);
  uint32_t offset = at + 4;
  const uint32_t flags = stream->ReadBEValue(4, offset);
  if (flags & 1) h->frames = stream->ReadBEValue(4, offset);
  if (flags & 2) h->bytes = stream->ReadBEValue(4, offset);
  if (flags & 4) {
    h->tocEntries = 100;
    h->toc.resize(100);
    for (uint32_t& entry : h->toc) entry = stream->ReadBEValue(1, offset);
  }
  if (flags & 8) h->quality = stream->ReadBEValue(4, offset);
  h->lameTag.reset(CLAMETag::FindTag(stream, at + 120));
  return h;
}

CVBRIHeader* CVBRIHeader::FindHeader(const CMPAFrame* frame) {
  CMPAStream* stream = frame->m_stream;
  const uint64_t at64 = uint64_t(frame->m_offset) + 36;
  if (at64 > 0xFFFFFFFFu) return nullptr;
  const uint32_t at = uint32_t(at64);
  if (!CheckID(stream, at, 'V', 'B', 'R', 'I')) return nullptr;

  auto* h = new CVBRIHeader(stream, at);
  uint32_t offset = at + 4;
  h->version = stream->ReadBEValue(2, offset);
  h->delay = float(stream->ReadBEValue(2, offset));
  h->quality = stream->ReadBEValue(2, offset);
  h->bytes = stream->ReadBEValue(4, offset);
  h->frames = stream->ReadBEValue(4, offset);
  h->tocEntries = stream->ReadBEValue(2, offset) + 1;
  h->tableScale = stream->ReadBEValue(2, offset);
  h->bytesPerEntry = stream->ReadBEValue(2, offset);
  h->framesPerEntry = stream->ReadBEValue(2, offset);
  try {
    h->toc.resize(h->tocEntries);
    for (uint32_t& entry : h->toc) {
      entry = stream->ReadBEValue(h->bytesPerEntry, offset, false);
      offset += h->bytesPerEntry;
    }
  } catch (const std::bad_alloc&) {
    h->toc.clear();
  }
  const CMPAHeader& fh = frame->m_header;
  if (fh.sampleRate) h->lengthSec = uint32_t(uint64_t(h->frames) * fh.samplesPerFrame / fh.sampleRate);
  return h;
}
