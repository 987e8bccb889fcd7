#pragma once
// Read-only byte access to an MPEG file. The whole file is mapped once; a read hands out a
// pointer into the mapping through a small window that is only moved, never copied.
#include <QString>
#include <cstdint>

class CMPAStream {
 public:
  explicit CMPAStream(const QString& fileName) : m_fileName(fileName) {}
  virtual ~CMPAStream() = default;
  CMPAStream(const CMPAStream&) = delete;
  CMPAStream& operator=(const CMPAStream&) = delete;

  virtual uint32_t GetSize() const = 0;
  // A pointer to `size` bytes at `offset`, or null if they are not all in the stream.
  // With `move` the offset steps past them. With `reverse` a refilled window ends at
  // offset + size, for readers that walk backwards from the end.
  virtual const uint8_t* ReadBytes(uint32_t size, uint32_t& offset, bool move, bool reverse = false) = 0;

  // 1 to 4 bytes as a little- or big-endian number; 0 if they can't be read.
  uint32_t ReadLEValue(uint32_t count, uint32_t& offset, bool move = true);
  uint32_t ReadBEValue(uint32_t count, uint32_t& offset, bool move = true);

  const QString& GetFilename() const { return m_fileName; }

 private:
  QString m_fileName;
};

class CMPAFileStream : public CMPAStream {
 public:
  // Opens and maps `fileName`. A failure throws nothing: the stream is then empty and every
  // read fails.
  explicit CMPAFileStream(const QString& fileName);
  // A stream over bytes the caller owns and keeps alive (tests, fuzzing).
  CMPAFileStream(const QString& name, const uint8_t* data, uint32_t size);
  ~CMPAFileStream() override;

  uint32_t GetSize() const override { return m_fileSize; }
  const uint8_t* ReadBytes(uint32_t size, uint32_t& offset, bool move, bool reverse = false) override;

  // Bytes at which the window currently stands, and its length (for tests).
  uint32_t WindowStart() const { return m_windowStart; }
  uint32_t WindowLength() const { return m_windowLength; }

 private:
  static constexpr uint32_t kInitialWindowSize = 1024;
  bool FillWindow(uint32_t offset, uint32_t size, bool reverse);

  int m_file = -1;
  const uint8_t* m_mappedView = nullptr;  // null when the stream is empty
  const uint8_t* m_viewBegin = nullptr;
  const uint8_t* m_viewEnd = nullptr;
  bool m_ownsMapping = false;
  const uint8_t* m_windowData = nullptr;
  uint32_t m_windowStart = 0;
  uint32_t m_windowSize = kInitialWindowSize;  // grows to the largest read asked for
  uint32_t m_windowLength = 0;                 // bytes the window holds (cut at the end)
  uint32_t m_fileSize = 0;
};
