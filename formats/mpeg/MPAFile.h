#pragma once
// The read-only view of an MPEG audio file: its stream, its tags, its first frame and its
// VBR header. Frames are walked with GetFrame.
#include <QString>
#include <cstdint>
#include <memory>

#include "formats/mpeg/MPAFrame.h"
#include "formats/mpeg/MPAStream.h"
#include "formats/mpeg/Tags.h"
#include "formats/mpeg/VBRHeader.h"

class CMPAFile {
 public:
  enum GetType { First = 0, Next = 2, Search = 4 };

  // Maps the file, finds the tags, the first frame (searched from offset 0) and the VBR
  // header. Throws CMPAException when no frame is found or a tag is corrupt.
  explicit CMPAFile(const QString& fileName);
  // The same over a stream the file takes over.
  explicit CMPAFile(std::unique_ptr<CMPAStream> stream);

  // A new frame, or null:
  //  First  - searched from the start of the audio;
  //  Next   - the frame right behind `frame`, of the same kind as the first frame; if it
  //           isn't there, a search from near the expected place (so a walk passes a
  //           damaged or lost frame);
  //  Search - searched from `offset`.
  // With `deleteOld`, `frame` is destroyed, whatever the result. The caller owns the result.
  CMPAFrame* GetFrame(GetType how, CMPAFrame* frame = nullptr, bool deleteOld = true, uint32_t offset = 0);

  CMPAStream* GetStream() const { return m_stream.get(); }
  const CTagList& GetTags() const { return *m_tags; }
  const CMPAFrame* GetFirstFrame() const { return m_firstFrame.get(); }
  const CVBRHeader* GetVBRHeader() const { return m_vbrHeader.get(); }
  uint32_t GetEnd() const { return m_end; }

 private:
  void Init();

  std::unique_ptr<CMPAStream> m_stream;
  std::unique_ptr<CTagList> m_tags;
  uint32_t m_end = 0;
  std::unique_ptr<CMPAFrame> m_firstFrame;
  std::unique_ptr<CVBRHeader> m_vbrHeader;
};
