#include "formats/mpeg/MPAStream.h"

#include <QFile>
#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

uint32_t CMPAStream::ReadLEValue(uint32_t count, uint32_t& offset, bool move) {
  if (count < 1 || count > 4) return 0;
  const uint8_t* p = ReadBytes(count, offset, move);
  if (!p) return 0;
  uint32_t v = 0;
  for (uint32_t i = count; i-- > 0;) v = (v << 8) | p[i];
  return v;
}

uint32_t CMPAStream::ReadBEValue(uint32_t count, uint32_t& offset, bool move) {
  if (count < 1 || count > 4) return 0;
  const uint8_t* p = ReadBytes(count, offset, move);
  if (!p) return 0;
  uint32_t v = 0;
  for (uint32_t i = 0; i < count; ++i) v = (v << 8) | p[i];
  return v;
}

CMPAFileStream::CMPAFileStream(const QString& fileName) : CMPAStream(fileName) {
  m_file = ::open(QFile::encodeName(fileName).constData(), O_RDONLY | O_CLOEXEC);
  if (m_file < 0) return;
  struct stat st;
  if (::fstat(m_file, &st) != 0 || !S_ISREG(st.st_mode)) return;
  // Offsets in an MPEG file are 32-bit: only the low half of the size counts.
  const uint32_t size = uint32_t(uint64_t(st.st_size) & 0xFFFFFFFFu);
  if (size == 0) return;
  void* p = ::mmap(nullptr, size, PROT_READ, MAP_SHARED, m_file, 0);
  if (p == MAP_FAILED) return;
  ::madvise(p, size, MADV_SEQUENTIAL);
  m_mappedView = static_cast<const uint8_t*>(p);
  m_ownsMapping = true;
  m_viewBegin = m_mappedView;
  m_viewEnd = m_mappedView + size;
  m_fileSize = size;
  FillWindow(0, 0, false);
}

CMPAFileStream::CMPAFileStream(const QString& name, const uint8_t* data, uint32_t size)
    : CMPAStream(name) {
  if (!data || size == 0) return;
  m_mappedView = data;
  m_viewBegin = data;
  m_viewEnd = data + size;
  m_fileSize = size;
  FillWindow(0, 0, false);
}

CMPAFileStream::~CMPAFileStream() {
  if (m_ownsMapping && m_mappedView) ::munmap(const_cast<uint8_t*>(m_mappedView), m_fileSize);
  if (m_file >= 0) ::close(m_file);
}

bool CMPAFileStream::FillWindow(uint32_t offset, uint32_t size, bool reverse) {
  if (size > m_windowSize) m_windowSize = size;
  int64_t start = offset;
  if (reverse) {
    start = int64_t(offset) + size - m_windowSize;
    if (start < 0) start = 0;
  }
  if (!m_mappedView || start >= int64_t(m_fileSize)) {
    m_windowData = nullptr;
    m_windowLength = 0;
    return false;
  }
  uint64_t length = m_windowSize;
  if (uint64_t(start) + length > m_fileSize) length = m_fileSize - uint64_t(start);
  m_windowStart = uint32_t(start);
  m_windowLength = uint32_t(length);
  m_windowData = m_viewBegin + m_windowStart;
  // The asked-for bytes must lie inside the window: a window cut at the end of the file
  // may hold enough bytes and still not reach offset + size.
  return uint64_t(offset) >= m_windowStart &&
         uint64_t(offset) + size <= uint64_t(m_windowStart) + m_windowLength;
}

const uint8_t* CMPAFileStream::ReadBytes(uint32_t size, uint32_t& offset, bool move, bool reverse) {
  const uint64_t windowEnd = uint64_t(m_windowStart) + m_windowLength;
  if (!m_windowData || offset < m_windowStart || uint64_t(offset) + size > windowEnd) {
    if (!FillWindow(offset, size, reverse)) return nullptr;
  }
  const uint8_t* p = m_windowData + (offset - m_windowStart);
  if (move) offset += size;
  return p;
}
