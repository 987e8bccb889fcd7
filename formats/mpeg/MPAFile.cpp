#include "formats/mpeg/MPAFile.h"

#include "formats/mpeg/MPAException.h"

CMPAFile::CMPAFile(const QString& fileName) : m_stream(std::make_unique<CMPAFileStream>(fileName)) { Init(); }

CMPAFile::CMPAFile(std::unique_ptr<CMPAStream> stream) : m_stream(std::move(stream)) { Init(); }

void CMPAFile::Init() {
  m_tags = std::make_unique<CTagList>(m_stream.get());
  m_end = m_tags->GetEnd();
  // From offset 0, not from the end of a leading tag.
  uint32_t offset = 0;
  m_firstFrame = std::make_unique<CMPAFrame>(m_stream.get(), offset, false);
  m_vbrHeader.reset(CVBRHeader::FindHeader(m_firstFrame.get()));
}

CMPAFrame* CMPAFile::GetFrame(GetType how, CMPAFrame* frame, bool deleteOld, uint32_t offset) {
  std::unique_ptr<CMPAFrame> old(deleteOld ? frame : nullptr);
  uint32_t start = 0;
  bool exact = false;
  const CMPAHeader* compareTo = nullptr;
  switch (how) {
    case First:
      start = m_tags->GetBegin();
      break;
    case Next:
      if (!frame) return nullptr;
      start = frame->GetSubsequentHeaderOffset();
      exact = true;
      compareTo = &m_firstFrame->m_header;
      break;
    case Search:
      start = offset;
      break;
  }
  if (start >= m_end) return nullptr;
  try {
    return new CMPAFrame(m_stream.get(), start, exact, compareTo);
  } catch (CMPAException&) {
    // A frame that isn't where it should be: search on from where the tolerance walk
    // stopped, which lies before the expected place.
    if (how == Next) return GetFrame(Search, nullptr, false, start);
  }
  return nullptr;
}
