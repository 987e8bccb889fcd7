#include "log/CsvFileStream.h"

#include <QFile>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {
constexpr qsizetype kChunk = 64 * 1024;
// Stands in for a line's first byte until the rest of the line is safely written.
constexpr char kUnfinished = '#';
}  // namespace

CsvFileStream::~CsvFileStream() { Close(); }

bool CsvFileStream::Open(const QString& path, Mode mode) {
  Close();
  m_errno = 0;
  const QByteArray name = QFile::encodeName(path);
  int flags = O_RDWR | O_CLOEXEC;
  if (mode == kCreate) flags |= O_CREAT;
  int fd = ::open(name.constData(), flags, 0644);
  if (fd < 0) {
    m_errno = errno;
    return false;
  }
  struct stat st {};
  if (::fstat(fd, &st) != 0 || !S_ISREG(st.st_mode)) {
    m_errno = S_ISDIR(st.st_mode) ? EISDIR : EINVAL;
    ::close(fd);
    return false;
  }
  // The lock comes before any truncation: a file in use by someone else stays as it is.
  if (::flock(fd, LOCK_EX | LOCK_NB) != 0) {
    m_errno = errno == EWOULDBLOCK ? EBUSY : errno;
    ::close(fd);
    return false;
  }
  return Adopt(fd, mode);
}

bool CsvFileStream::Adopt(int fd, Mode mode) {
  m_fd = fd;
  m_errno = 0;
  m_pending.clear();
  DropReadBuffer();
  m_pos = 0;
  m_lineStart = 0;
  m_lineTerminator = 0;
  if (mode == kCreate) {
    if (::ftruncate(fd, 0) != 0) {
      m_errno = errno;
      ::close(fd);
      m_fd = -1;
      return false;
    }
    m_pendingAt = 0;
    m_pending = QByteArray(kBom, 3);
    m_pos = 3;
    return true;
  }
  if (ReadRaw(0, 3) == QByteArray(kBom, 3)) m_pos = 3;
  m_readAt = m_pos;
  return true;
}

bool CsvFileStream::Close() {
  if (m_fd < 0) return true;
  bool ok = Flush();
  ::close(m_fd);  // also releases the lock
  m_fd = -1;
  m_pending.clear();
  DropReadBuffer();
  return ok;
}

void CsvFileStream::DropReadBuffer() {
  m_read.clear();
  m_readPos = 0;
  m_readAt = m_pos;
  m_eof = false;
}

bool CsvFileStream::Fill() {
  if (m_eof) return false;
  // Keep the unread tail, then read one more chunk behind it.
  if (m_readPos > 0) {
    m_read.remove(0, m_readPos);
    m_readAt += m_readPos;
    m_readPos = 0;
  }
  const qsizetype old = m_read.size();
  m_read.resize(old + kChunk);
  ssize_t got;
  do {
    got = ::pread(m_fd, m_read.data() + old, kChunk, m_readAt + old);
  } while (got < 0 && errno == EINTR);
  if (got < 0) {
    m_errno = errno;
    m_read.resize(old);
    m_eof = true;
    return false;
  }
  m_read.resize(old + got);
  if (got == 0) m_eof = true;
  return got > 0;
}

bool CsvFileStream::ReadString(QString& line) {
  line.clear();
  if (m_fd < 0) return false;
  if (!m_pending.isEmpty() && !Flush()) return false;
  qsizetype scanFrom = m_readPos;
  for (;;) {
    const char* base = m_read.constData();
    const void* nl = scanFrom < m_read.size()
                         ? std::memchr(base + scanFrom, '\n', size_t(m_read.size() - scanFrom))
                         : nullptr;
    if (nl) {
      qsizetype end = static_cast<const char*>(nl) - base;
      qsizetype len = end - m_readPos;
      m_lineTerminator = 1;
      if (len > 0 && base[end - 1] == '\r') {
        --len;
        m_lineTerminator = 2;
      }
      m_lineStart = m_readAt + m_readPos;
      line = QString::fromUtf8(base + m_readPos, len);
      m_readPos = end + 1;
      m_pos = m_readAt + m_readPos;
      return true;
    }
    qsizetype scanned = m_read.size() - m_readPos;
    if (!Fill()) break;
    scanFrom = m_readPos + scanned;  // Fill moved the unread bytes to the front
  }
  // The last line of a file without a line feed.
  if (m_readPos >= m_read.size()) return false;
  m_lineStart = m_readAt + m_readPos;
  m_lineTerminator = 0;
  line = QString::fromUtf8(m_read.constData() + m_readPos, m_read.size() - m_readPos);
  m_readPos = m_read.size();
  m_pos = m_readAt + m_readPos;
  return true;
}

int64_t CsvFileStream::Seek(int64_t offset, Origin origin) {
  if (m_fd < 0) return -1;
  if (!m_pending.isEmpty() && !Flush()) return -1;
  int64_t base = 0;
  if (origin == kCurrent) base = m_pos;
  if (origin == kEnd) {
    base = Size();
    if (base < 0) return -1;
  }
  if (base + offset < 0) {
    m_errno = EINVAL;
    return -1;
  }
  m_pos = base + offset;
  DropReadBuffer();
  return m_pos;
}

int64_t CsvFileStream::Size() {
  if (m_fd < 0) return -1;
  struct stat st {};
  if (::fstat(m_fd, &st) != 0) {
    m_errno = errno;
    return -1;
  }
  int64_t size = st.st_size;
  if (!m_pending.isEmpty()) size = std::max<int64_t>(size, m_pendingAt + m_pending.size());
  return size;
}

QByteArray CsvFileStream::Encode(const QString& text) {
  QByteArray utf8 = text.toUtf8();
  if (!utf8.contains('\n')) return utf8;
  QByteArray out;
  out.reserve(utf8.size() + 16);
  for (char c : utf8) {
    if (c == '\n') out += '\r';
    out += c;
  }
  return out;
}

void CsvFileStream::WriteString(const QString& text) { WriteRaw(Encode(text)); }

void CsvFileStream::WriteRaw(const QByteArray& bytes) {
  if (m_fd < 0) return;
  if (m_pending.isEmpty()) {
    DropReadBuffer();
    m_pendingAt = m_pos;
  }
  m_pending += bytes;
  m_pos += bytes.size();
}

bool CsvFileStream::WriteAt(int64_t at, const char* data, int64_t size) {
  while (size > 0) {
    ssize_t n = ::pwrite(m_fd, data, size_t(size), at);
    if (n < 0 && errno == EINTR) continue;
    if (n <= 0) {
      m_errno = n < 0 ? errno : ENOSPC;
      return false;
    }
    data += n;
    at += n;
    size -= n;
  }
  return true;
}

bool CsvFileStream::Flush() {
  if (m_fd < 0 || m_pending.isEmpty()) return m_fd >= 0;
  bool ok = WriteAt(m_pendingAt, m_pending.constData(), m_pending.size());
  m_pending.clear();
  DropReadBuffer();
  return ok;
}

// A record must never be read back half written: a row cut short would still carry its
// path and time stamp and pass for a valid result. So the pending bytes are written in
// three steps, each one forced to the disk before the next:
//   1. if they overwrite existing bytes, the first of them becomes '#', so the old line no
//      longer starts with its key;
//   2. all bytes but the first, behind a '#';
//   3. the real first byte.
// A crash before step 3 leaves a line that starts with '#' (no path matches it, so the
// file is measured again) and never touches bytes outside the pending range, so every
// other record keeps its place and content. A write that fails while it extends the file
// (a full disk) is cut back to the old end of the file.
bool CsvFileStream::FlushCommitted() {
  if (m_fd < 0) return false;
  if (m_pending.isEmpty()) return true;
  struct stat st {};
  if (::fstat(m_fd, &st) != 0) {
    m_errno = errno;
    m_pending.clear();
    return false;
  }
  const int64_t diskSize = st.st_size;
  QByteArray bytes = m_pending;
  const int64_t at = m_pendingAt;
  m_pending.clear();
  DropReadBuffer();
  const char first = bytes[0];
  bytes[0] = kUnfinished;
  bool ok = true;
  if (at < diskSize) ok = WriteAt(at, &kUnfinished, 1) && Sync();
  ok = ok && WriteAt(at, bytes.constData(), bytes.size()) && Sync();
  ok = ok && WriteAt(at, &first, 1);
  if (!ok && at + bytes.size() > diskSize) {
    const int err = m_errno;
    // Whatever part of an extension reached the disk goes again.
    [[maybe_unused]] int rc = ::ftruncate(m_fd, std::max(at, diskSize));
    m_errno = err;
  }
  return ok;
}

bool CsvFileStream::Sync() {
  if (m_fd < 0) return false;
  if (::fdatasync(m_fd) != 0 && errno != EINVAL && errno != EROFS) {
    m_errno = errno;
    return false;
  }
  return true;
}

bool CsvFileStream::Truncate(int64_t size) {
  if (m_fd < 0 || !Flush()) return false;
  if (::ftruncate(m_fd, size) != 0) {
    m_errno = errno;
    return false;
  }
  return true;
}

QByteArray CsvFileStream::ReadRaw(int64_t offset, int64_t count) {
  QByteArray out;
  if (m_fd < 0 || offset < 0 || count <= 0) return out;
  if (!m_pending.isEmpty() && !Flush()) return out;
  out.resize(count);
  int64_t have = 0;
  while (have < count) {
    ssize_t n = ::pread(m_fd, out.data() + have, size_t(count - have), offset + have);
    if (n < 0 && errno == EINTR) continue;
    if (n <= 0) {
      if (n < 0) m_errno = errno;
      break;
    }
    have += n;
  }
  out.resize(have);
  return out;
}

int64_t CsvFileStream::ReadRawInto(QByteArray& out, int64_t offset, int64_t count) {
  if (m_fd < 0 || offset < 0 || count < 0) return -1;
  if (!m_pending.isEmpty() && !Flush()) return -1;
  const qsizetype old = out.size();
  out.resize(old + count);
  int64_t have = 0;
  while (have < count) {
    ssize_t n = ::pread(m_fd, out.data() + old + have, size_t(count - have), offset + have);
    if (n < 0 && errno == EINTR) continue;
    if (n < 0) {
      m_errno = errno;
      out.resize(old + have);
      return -1;
    }
    if (n == 0) break;
    have += n;
  }
  out.resize(old + have);
  return have;
}
