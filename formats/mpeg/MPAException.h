#pragma once
// The MPEG reader's own exceptions. They never leave the reader: its callers catch them by
// reference and turn them into a null frame, a missing tag or one message to the user.
#include <cstdint>

class CMPAException {
 public:
  enum Error : int {
    ErrOpenFile = 0,
    ErrSetPosition = 1,
    ErrReadFile = 2,
    NoVBRHeader = 3,
    IncompleteVBRHeader = 4,
    NoFrameInTolerance = 5,
    EndOfFile = 6,
    HeaderCorrupt = 7,
    FreeBitrate = 8,
    IncompatibleHeader = 9,
    CorruptLyricsTag = 10,
  };

  explicit CMPAException(Error error, uint32_t offset = 0) : m_error(error), m_offset(offset) {}
  virtual ~CMPAException() = default;

  Error GetError() const { return m_error; }
  // Where in the stream the error was found.
  uint32_t GetOffset() const { return m_offset; }
  // The description text of the error number.
  const char* GetErrorDescription() const;

 private:
  Error m_error;
  uint32_t m_offset;
};

class CMPAEndOfFileException : public CMPAException {
 public:
  explicit CMPAEndOfFileException(uint32_t offset = 0) : CMPAException(EndOfFile, offset) {}
};
