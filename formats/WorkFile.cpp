#include "formats/WorkFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <QThread>
#include <algorithm>
#include <atomic>
#include <memory>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

#include "app/FileErrors.h"
#include "app/Globals.h"
#include "app/Session.h"
#include "app/Text.h"

namespace {

void PutLe32(char* p, uint32_t v) {
  p[0] = char(v & 0xff);
  p[1] = char((v >> 8) & 0xff);
  p[2] = char((v >> 16) & 0xff);
  p[3] = char((v >> 24) & 0xff);
}
void PutLe16(char* p, uint16_t v) {
  p[0] = char(v & 0xff);
  p[1] = char((v >> 8) & 0xff);
}

// Unescapes the octal escapes of /proc/self/mounts (a blank is "\040").
QString UnescapeMount(const QByteArray& in) {
  QByteArray out;
  for (int i = 0; i < in.size(); ++i) {
    if (in[i] == '\\' && i + 3 < in.size()) {
      bool ok = false;
      int v = in.mid(i + 1, 3).toInt(&ok, 8);
      if (ok) {
        out.append(char(v));
        i += 3;
        continue;
      }
    }
    out.append(in[i]);
  }
  return QString::fromUtf8(out);
}

// True when the two paths name one file (the same path, or a link to the same inode).
bool SameFile(const QString& a, const QString& b) {
  if (QFileInfo(a).absoluteFilePath() == QFileInfo(b).absoluteFilePath()) return true;
  struct stat sa, sb;
  return ::stat(QFile::encodeName(a).constData(), &sa) == 0 && ::stat(QFile::encodeName(b).constData(), &sb) == 0 &&
         sa.st_dev == sb.st_dev && sa.st_ino == sb.st_ino;
}

// Makes an existing file writable for its owner (a read-only file of an earlier run).
void ClearReadOnlyBit(const QByteArray& native) {
  struct stat st;
  if (::lstat(native.constData(), &st) == 0 && S_ISREG(st.st_mode) && !(st.st_mode & S_IWUSR))
    ::chmod(native.constData(), (st.st_mode & 07777) | S_IWUSR);
}

std::thread g_workerThread;
std::atomic<int> g_workerExit{-1};
std::function<void(Session&)> g_workerOnMain;  // the window's thread only

}  // namespace

QString WorkPathFor(const QString& source, int driveType) {
  if (driveType == kDriveCdRom) return source;
  int slash = source.lastIndexOf('/');
  int dot = source.lastIndexOf('.');
  if (dot > slash) return source.left(dot) + ".tmp";
  return source + ".tmp";
}

QString WritableWorkPath(const QString& beside) {
  const QFileInfo at(beside);
  if (::access(QFile::encodeName(at.absolutePath()).constData(), W_OK) == 0) return beside;
  const QString cache = QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation) + "/tonvane/work";
  QDir().mkpath(cache);
  return cache + '/' + at.fileName();
}

int DriveTypeOf(const QString& path) {
  QFile f("/proc/self/mounts");
  if (!f.open(QIODevice::ReadOnly)) return kDriveFixed;
  QString abs = QFileInfo(path).absoluteFilePath();
  QString best;
  bool bestOptical = false;
  for (const QByteArray& line : f.readAll().split('\n')) {
    QList<QByteArray> parts = line.split(' ');
    if (parts.size() < 4) continue;
    QString mountPoint = UnescapeMount(parts[1]);
    bool under = abs == mountPoint || mountPoint == "/" ||
                 abs.startsWith(mountPoint.endsWith('/') ? mountPoint : mountPoint + "/");
    if (!under || mountPoint.size() < best.size()) continue;
    const QByteArray& type = parts[2];
    const QList<QByteArray> opts = parts[3].split(',');
    best = mountPoint;
    bestOptical = type == "iso9660" || type == "udf" || opts.contains("ro");
  }
  return bestOptical ? kDriveCdRom : kDriveFixed;
}

QByteArray MakeWorkHeader(int channels, int sampleRate, int bits, uint16_t formatTag, uint32_t dataBytes) {
  QByteArray h(kWorkHeaderSize, '\0');
  char* p = h.data();
  const int bytesPerSample = (bits + 7) / 8;
  std::memcpy(p, "RIFF", 4);
  PutLe32(p + 4, uint32_t(std::min<uint64_t>(uint64_t(dataBytes) + 36, kMaxWorkDataSize)));
  std::memcpy(p + 8, "WAVE", 4);
  std::memcpy(p + 12, "fmt ", 4);
  PutLe32(p + 16, 16);
  PutLe16(p + 20, formatTag);
  PutLe16(p + 22, uint16_t(channels));
  PutLe32(p + 24, uint32_t(sampleRate));
  PutLe32(p + 28, uint32_t(sampleRate) * uint32_t(channels) * uint32_t(bytesPerSample));
  PutLe16(p + 32, uint16_t(channels * bytesPerSample));
  PutLe16(p + 34, uint16_t(bits));
  std::memcpy(p + 36, "data", 4);
  PutLe32(p + 40, std::min(dataBytes, kMaxWorkDataSize));
  return h;
}

bool DeleteWorkFile(const QString& path) {
  if (path.isEmpty()) return true;
  QByteArray native = QFile::encodeName(path);
  struct stat st;
  if (::lstat(native.constData(), &st) != 0) return errno == ENOENT;
  if (!S_ISREG(st.st_mode)) return false;  // a work file is a plain file; never a device or link
  ClearReadOnlyBit(native);
  return ::unlink(native.constData()) == 0 || errno == ENOENT;
}

WorkFileWriter::~WorkFileWriter() { Close(); }

bool WorkFileWriter::Create(const QString& path, int channels, int sampleRate, int bits,
                            uint16_t formatTag, uint32_t dataBytes, const QString& sourcePath) {
  return Open(path, sourcePath) && WriteHeader(channels, sampleRate, bits, formatTag, dataBytes);
}

bool WorkFileWriter::Open(const QString& path, const QString& sourcePath) {
  Close();
  m_path = path;
  m_source = sourcePath;
  m_created = false;
  m_headerWritten = false;
  m_written = 0;
  m_total = 0;
  m_errno = 0;
  // A decoder never writes to its source; on a read-only medium this is the refusal.
  if (!sourcePath.isEmpty() && SameFile(path, sourcePath)) {
    m_errno = EROFS;
    return false;
  }
  QByteArray native = QFile::encodeName(path);
  ClearReadOnlyBit(native);
  m_fd = ::open(native.constData(), O_RDWR | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
  if (m_fd < 0) {
    m_errno = errno;
    return false;
  }
  m_created = true;
  return true;
}

bool WorkFileWriter::Begin(const PcmFormat& f) {
  // An open may write the header before its worker starts; the decoder's Begin then finds
  // it there.
  if (m_fd >= 0 && m_headerWritten) return true;
  if (m_fd < 0 && !Open(m_path, m_source)) return false;
  m_headerWritten = WriteHeader(f.channels, f.sampleRate, f.bits, f.formatTag, f.dataBytes);
  return m_headerWritten;
}

bool WorkFileWriter::End(SizeRule rule) {
  if (m_fd < 0) return false;
  bool ok = true;
  switch (rule) {
    case SizeRule::AsAnnounced: break;
    case SizeRule::IfDifferent: {
      const double total = double(m_total);
      ok = PatchSizesIfDifferent(total > double(kMaxWorkDataSize) ? kMaxWorkDataSize : uint32_t(total));
      break;
    }
    case SizeRule::FromRunningTotal: ok = PatchSizes(m_total); break;
    case SizeRule::FromExactTotal: ok = PatchSizes(float(m_written)); break;
  }
  Close();
  return ok;
}

QString WorkFileWriter::FailureText() const {
  if (!m_created)
    return Tonvane::tr("Sorry, but ") + Tonvane::tr("the file ") + m_path + Tonvane::tr(" cannot be created.");
  return m_lastStep == 1 ? WorkSeekFailedText(m_path) : WorkWriteFailedText(m_path);
}

bool WorkFileWriter::WriteHeader(int channels, int sampleRate, int bits, uint16_t formatTag,
                                 uint32_t dataBytes) {
  if (m_fd < 0) return false;
  QByteArray h = MakeWorkHeader(channels, sampleRate, bits, formatTag, dataBytes);
  errno = 0;
  if (::write(m_fd, h.constData(), size_t(h.size())) != h.size()) {
    m_errno = errno ? errno : ENOSPC;
    m_lastStep = 2;
    Close();
    return false;
  }
  return true;
}

bool WorkFileWriter::Write(const void* data, size_t bytes) {
  if (m_fd < 0) return false;
  const char* p = static_cast<const char*>(data);
  size_t left = bytes;
  while (left > 0) {
    ssize_t n = ::write(m_fd, p, left);
    if (n < 0 && errno == EINTR) continue;
    if (n <= 0) {
      m_errno = n < 0 ? errno : ENOSPC;
      m_lastStep = 2;
      return false;
    }
    p += n;
    left -= size_t(n);
    m_written += uint64_t(n);
  }
  m_total += float(bytes);
  return true;
}

bool WorkFileWriter::WriteAt(uint64_t offset, uint32_t value) {
  char b[4];
  PutLe32(b, value);
  if (::lseek(m_fd, off_t(offset), SEEK_SET) < 0) {
    m_errno = errno;
    m_lastStep = 1;
    return false;
  }
  if (::write(m_fd, b, 4) != 4) {
    m_errno = errno ? errno : ENOSPC;
    m_lastStep = 2;
    return false;
  }
  return true;
}

bool WorkFileWriter::PatchSizes(float total) {
  if (m_fd < 0) return false;
  m_lastStep = 0;
  double riff = double(total) + kWorkHeaderSize - 8;
  uint32_t riffSize = riff > 4294967040.0 ? kMaxWorkDataSize : uint32_t(riff);
  uint32_t dataSize = double(total) > double(kMaxWorkDataSize) ? kMaxWorkDataSize : uint32_t(total);
  return WriteAt(4, riffSize) && WriteAt(40, dataSize);
}

bool WorkFileWriter::PatchSizesIfDifferent(uint32_t dataBytes) {
  if (m_fd < 0) return false;
  m_lastStep = 0;
  auto readAt = [&](off_t off) -> uint32_t {
    uint8_t b[4];
    if (::pread(m_fd, b, 4, off) != 4) return ~0u;
    return uint32_t(b[0]) | uint32_t(b[1]) << 8 | uint32_t(b[2]) << 16 | uint32_t(b[3]) << 24;
  };
  const uint32_t riffSize = uint32_t(std::min<uint64_t>(uint64_t(dataBytes) + 36, kMaxWorkDataSize));
  const uint32_t dataSize = std::min(dataBytes, kMaxWorkDataSize);
  if (readAt(4) != riffSize && !WriteAt(4, riffSize)) return false;
  if (readAt(40) != dataSize && !WriteAt(40, dataSize)) return false;
  return true;
}

void WorkFileWriter::Close() {
  if (m_fd >= 0) ::close(m_fd);
  m_fd = -1;
}

QString WorkSeekFailedText(const QString& workPath) {
  return Tonvane::tr("Sorry, but for file ") + workPath +
         Tonvane::tr(" move pointer of current position of the file impossible. ") +
         Tonvane::tr("Therefore the saving operation will be stopped.");
}

QString WorkWriteFailedText(const QString& workPath) {
  return Tonvane::tr("Sorry, but an error of write has occurred to the output file: ") + workPath + ".";
}

void JoinWorker() {
  if (g_workerThread.joinable()) g_workerThread.join();
  g_workerOnMain = nullptr;
}

bool StartWorker(std::function<int()> body, std::function<void(Session&)> onMain) {
  JoinWorker();
  g_workerExit = -1;
  g_workerBusy.store(1);
  // Linux gives real-time priority only to privileged processes; the worker runs at the
  // normal priority and the window stays responsive through the pump.
  try {
    g_workerThread = std::thread([body = std::move(body)]() {
      int code = 1;
      try {
        code = body();
      } catch (...) {
        code = 1;
      }
      g_workerExit = code;
      g_workerBusy.store(0);
    });
  } catch (...) {
    g_workerBusy.store(0);
    return false;
  }
  g_workerOnMain = std::move(onMain);
  return true;
}

bool StartWorkerOrReport(Session& s, std::function<int()> body, std::function<void(Session&)> onMain) {
  if (StartWorker(std::move(body), std::move(onMain))) return true;
  ReportFileError(s, Tonvane::tr("create a copy of the flow descriptor copying the file is"), QString(), QString(),
                  ErrorCodeFromErrno(EAGAIN), false);
  return false;
}

bool CollectWorker(Session& s) {
  if (g_workerBusy.load() || !g_workerThread.joinable()) return false;
  g_workerThread.join();
  auto onMain = std::move(g_workerOnMain);
  g_workerOnMain = nullptr;
  if (onMain) onMain(s);
  return true;
}

void WaitForWorker(Session& s) {
  while (g_workerBusy.load()) {
    s.PumpMessages();
    QThread::msleep(10);
  }
  CollectWorker(s);
}

int WorkerExitCode() { return g_workerExit.load(); }

namespace {

// Copies one open file into another; 0 or the errno value of the failed call.
int CopyContents(int in, int out) {
  // The kernel copies without a round trip through user space where it can.
  for (;;) {
    const ssize_t n = ::copy_file_range(in, nullptr, out, nullptr, size_t(1) << 30, 0);
    if (n == 0) return 0;
    if (n > 0) continue;
    if (errno == EINTR) continue;
    if (errno == EXDEV || errno == EINVAL || errno == ENOSYS || errno == EOPNOTSUPP || errno == EBADF) break;
    return errno;
  }
  static constexpr size_t kChunk = 1 << 20;
  std::unique_ptr<char[]> buf(new char[kChunk]);
  for (;;) {
    const ssize_t n = ::read(in, buf.get(), kChunk);
    if (n < 0 && errno == EINTR) continue;
    if (n < 0) return errno;
    if (n == 0) return 0;
    ssize_t off = 0;
    while (off < n) {
      const ssize_t w = ::write(out, buf.get() + off, size_t(n - off));
      if (w < 0 && errno == EINTR) continue;
      if (w <= 0) return w < 0 ? errno : ENOSPC;
      off += w;
    }
  }
}

bool IsDiskFull(int err) { return err == ENOSPC || err == EFBIG || err == EDQUOT; }

}  // namespace

int CopyWorkerBody(Session& s) {
  const QString source = g_sourcePath;
  const QString work = g_workPath;
  // Read in place: nothing to copy, and the source must never be truncated.
  if (SameFile(source, work)) return 0;
  const QByteArray src = QFile::encodeName(source);
  const QByteArray dst = QFile::encodeName(work);
  int err = 0;
  const int in = ::open(src.constData(), O_RDONLY | O_CLOEXEC);
  if (in < 0) err = errno;
  int out = -1;
  if (!err) {
    ClearReadOnlyBit(dst);
    out = ::open(dst.constData(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
    if (out < 0) err = errno;
  }
  if (!err) err = CopyContents(in, out);
  if (in >= 0) ::close(in);
  if (out >= 0 && ::close(out) != 0 && !err) err = errno;
  if (!err) return 0;
  // Nothing would remove a half-written copy later: the session forgets its path.
  if (out >= 0) ::unlink(dst.constData());

  // A short write is a full disk; that message names the source, all others the work file.
  const bool full = IsDiskFull(err);
  const QString path = full ? source : work;
  const QString systemText = QString::fromLocal8Bit(std::strerror(full ? ENOSPC : err));
  s.m_prompt.Message(Tonvane::tr(" Sorry, but the program can not continue operation with the file: ") + path + ". " +
                         systemText,
                     PromptIcon::Error);
  g_workPath.clear();
  g_copyFinished = 1;
  g_copyFailed = 1;
  if (full) return kErrDiskFull;
  const int code = ErrorCodeFromErrno(err, path);
  return code < 0 ? -code : code;
}

bool FindDataChunk(const uint8_t* view, uint64_t viewSize, uint64_t limit, uint32_t& dataOffset,
                   uint32_t& dataSize) {
  if (limit > viewSize) limit = viewSize;
  for (uint64_t i = 15; i + 4 < limit && i + 9 <= viewSize; ++i) {
    if (std::memcmp(view + i + 1, "data", 4) == 0) {
      dataSize = uint32_t(view[i + 5]) | uint32_t(view[i + 6]) << 8 | uint32_t(view[i + 7]) << 16 |
                 uint32_t(view[i + 8]) << 24;
      dataOffset = uint32_t(i + 9);
      return true;
    }
  }
  return false;
}

MappedFile::~MappedFile() { Close(); }

QByteArray MappedFile::ReadHead(uint64_t length) {
  QByteArray out;
  if (m_fd < 0) return out;
  out.resize(qsizetype(length));
  uint64_t have = 0;
  while (have < length) {
    const ssize_t n = ::pread(m_fd, out.data() + have, size_t(length - have), off_t(have));
    if (n < 0 && errno == EINTR) continue;
    if (n <= 0) break;
    have += uint64_t(n);
  }
  out.resize(qsizetype(have));
  return out;
}

bool MappedFile::Open(const QString& path) {
  Close();
  m_fd = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC);
  if (m_fd < 0) {
    m_errno = errno;
    return false;
  }
  struct stat st;
  if (::fstat(m_fd, &st) != 0) {
    m_errno = errno;
    Close();
    return false;
  }
  m_size = uint64_t(st.st_size);
  return true;
}

const uint8_t* MappedFile::Map(uint64_t offset, uint64_t length) {
  Unmap();
  if (m_fd < 0 || offset >= m_size) return nullptr;
  if (length > m_size - offset) length = m_size - offset;
  void* p = ::mmap(nullptr, size_t(length), PROT_READ, MAP_SHARED, m_fd, off_t(offset));
  if (p == MAP_FAILED) {
    m_errno = errno;
    return nullptr;
  }
  ::madvise(p, size_t(length), MADV_SEQUENTIAL);
  m_view = static_cast<const uint8_t*>(p);
  m_viewSize = length;
  return m_view;
}

// A kernel without MADV_POPULATE_READ (before 5.14) is asked once.
void PrefaultView(const uint8_t* p, uint64_t bytes) {
#ifdef MADV_POPULATE_READ
  static std::atomic<bool> unsupported{false};
  if (bytes == 0 || unsupported.load(std::memory_order_relaxed)) return;
  static const uintptr_t page = uintptr_t(::sysconf(_SC_PAGESIZE));
  const uintptr_t start = reinterpret_cast<uintptr_t>(p) / page * page;
  const uintptr_t end = reinterpret_cast<uintptr_t>(p) + bytes;
  if (::madvise(reinterpret_cast<void*>(start), end - start, MADV_POPULATE_READ) != 0 && errno == EINVAL)
    unsupported = true;
#else
  (void)p, (void)bytes;
#endif
}

void MappedFile::Unmap() {
  if (m_view) ::munmap(const_cast<uint8_t*>(m_view), size_t(m_viewSize));
  m_view = nullptr;
  m_viewSize = 0;
}

void MappedFile::Close() {
  Unmap();
  if (m_fd >= 0) ::close(m_fd);
  m_fd = -1;
  m_size = 0;
}
