#pragma once
// Headers that encoders put into the first frame of a variable-rate file in place of
// silent audio: "Xing" (or "Info" for a constant rate) and "VBRI". The frame count they
// hold gives the duration without walking the file.
#include <cstdint>
#include <memory>
#include <vector>

#include "formats/mpeg/LAMETag.h"

class CMPAFrame;
class CMPAStream;

class CVBRHeader {
 public:
  virtual ~CVBRHeader() = default;
  // The header behind `frame` (the file's first frame), Xing tried before VBRI; or null.
  static CVBRHeader* FindHeader(const CMPAFrame* frame);
  // True when the four bytes at `offset` are c1..c4; unreadable bytes don't match.
  static bool CheckID(CMPAStream* stream, uint32_t offset, char c1, char c2, char c3, char c4);

  uint32_t bytes = 0;   // audio bytes as the header says; 0 if absent
  uint32_t frames = 0;  // frame count; 0 if absent
  CMPAStream* stream = nullptr;
  uint32_t offset = 0;  // where the identifier stands
  uint32_t quality = 0;
  std::vector<uint32_t> toc;  // empty if absent
  uint32_t tocEntries = 0;

 protected:
  CVBRHeader(CMPAStream* s, uint32_t at) : stream(s), offset(at) {}
};

class CXINGHeader : public CVBRHeader {
 public:
  // Stands behind the frame's header and side information.
  static CXINGHeader* FindHeader(const CMPAFrame* frame);
  std::unique_ptr<CLAMETag> lameTag;

 private:
  CXINGHeader(CMPAStream* s, uint32_t at) : CVBRHeader(s, at) {}
};

class CVBRIHeader : public CVBRHeader {
 public:
  // Stands 36 bytes behind the frame's start, whatever the layer or mode.
  static CVBRIHeader* FindHeader(const CMPAFrame* frame);
  float delay = 0.0f;
  uint32_t tableScale = 0;
  uint32_t bytesPerEntry = 0;
  uint32_t framesPerEntry = 0;
  uint32_t version = 0;
  uint32_t lengthSec = 0;

 private:
  CVBRIHeader(CMPAStream* s, uint32_t at) : CVBRHeader(s, at) {}
};
