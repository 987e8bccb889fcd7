#include "log/StdioFileEx.h"

#include <QFile>
#include <QStringDecoder>
#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <iconv.h>
#include <unistd.h>

namespace {

constexpr qsizetype kChunk = 4096;

// The codeset of the user's locale from the environment (LC_ALL, LC_CTYPE, LANG), as
// "xx_YY.CODESET@modifier" names it. A locale that names none ("C", "POSIX", "de_DE") is
// taken as Windows-1252, the code page most legacy playlists were written in.
QByteArray LocaleCodeset() {
  for (const char* var : {"LC_ALL", "LC_CTYPE", "LANG"}) {
    const char* v = std::getenv(var);
    if (!v || !*v) continue;
    QByteArray name(v);
    const qsizetype at = name.indexOf('@');
    if (at >= 0) name.truncate(at);
    const qsizetype dot = name.indexOf('.');
    if (dot < 0) return "WINDOWS-1252";
    QByteArray set = name.mid(dot + 1).toUpper();
    if (set == "UTF8") set = "UTF-8";
    return set.isEmpty() ? QByteArray("WINDOWS-1252") : set;
  }
  return "WINDOWS-1252";
}

QString DecodeWithIconv(const QByteArray& bytes, const QByteArray& from) {
  iconv_t cd = iconv_open("UTF-16LE", from.constData());
  if (cd == iconv_t(-1)) cd = iconv_open("UTF-16LE", "WINDOWS-1252");
  if (cd == iconv_t(-1)) return QString::fromLatin1(bytes);
  QString out;
  QByteArray buf(qsizetype(bytes.size()) * 4 + 16, Qt::Uninitialized);
  char* in = const_cast<char*>(bytes.constData());
  size_t inLeft = size_t(bytes.size());
  while (inLeft > 0) {
    char* o = buf.data();
    size_t outLeft = size_t(buf.size());
    size_t rc = iconv(cd, &in, &inLeft, &o, &outLeft);
    out += QString(reinterpret_cast<const QChar*>(buf.constData()), (buf.size() - qsizetype(outLeft)) / 2);
    if (rc == size_t(-1)) {
      if (errno == E2BIG) continue;
      // A byte the code page does not map, or a sequence cut short: one replacement mark.
      out += QChar(QChar::ReplacementCharacter);
      ++in;
      --inLeft;
    }
  }
  iconv_close(cd);
  return out;
}

}  // namespace

CStdioFileEx::~CStdioFileEx() { Close(); }

bool CStdioFileEx::Open(const QString& path, unsigned flags) {
  Close();
  int oflags = O_CLOEXEC;
  if (flags & modeReadWrite)
    oflags |= O_RDWR;
  else if (flags & modeWrite)
    oflags |= O_WRONLY;
  else
    oflags |= O_RDONLY;
  if (flags & modeCreate) oflags |= O_CREAT | O_TRUNC;
  m_fd = ::open(QFile::encodeName(path).constData(), oflags, 0644);
  if (m_fd < 0) return false;
  m_utf16 = false;
  if (!(flags & modeCreate) && !(flags & modeWrite)) {
    unsigned char mark[2] = {};
    if (::pread(m_fd, mark, 2, 0) == 2 && mark[0] == 0xFF && mark[1] == 0xFE) m_utf16 = true;
  }
  m_pos = 0;
  m_buf.clear();
  m_bufPos = 0;
  m_bufAt = 0;
  m_atStart = true;
  return true;
}

void CStdioFileEx::Close() {
  if (m_fd >= 0) ::close(m_fd);
  m_fd = -1;
  m_buf.clear();
  m_bufPos = 0;
}

int64_t CStdioFileEx::Seek(int64_t offset, Origin origin) {
  if (m_fd < 0) return -1;
  int64_t base = 0;
  if (origin == current) base = m_pos;
  if (origin == end) base = ::lseek(m_fd, 0, SEEK_END);
  if (base < 0 || base + offset < 0) return -1;
  m_pos = base + offset;
  m_buf.clear();
  m_bufPos = 0;
  m_bufAt = m_pos;
  m_atStart = true;
  return m_pos;
}

bool CStdioFileEx::ReadByte(char& c) {
  if (m_bufPos >= m_buf.size()) {
    m_buf.resize(kChunk);
    ssize_t n;
    do {
      n = ::pread(m_fd, m_buf.data(), size_t(kChunk), m_pos);
    } while (n < 0 && errno == EINTR);
    m_buf.resize(n > 0 ? n : 0);
    m_bufPos = 0;
    m_bufAt = m_pos;
    if (n <= 0) return false;
  }
  c = m_buf[m_bufPos++];
  ++m_pos;
  return true;
}

QByteArray CStdioFileEx::EncodingOfCodePage(int page) {
  if (page < 0) return LocaleCodeset();
  switch (page) {
    case kCodePageUtf8: return "UTF-8";
    case 1200: return "UTF-16LE";
    case 1201: return "UTF-16BE";
    case 20127: return "ASCII";
    case 20866: return "KOI8-R";
    case 21866: return "KOI8-U";
    case 28603: return "ISO-8859-13";
    case 28605: return "ISO-8859-15";
    default: break;
  }
  if (page >= 28591 && page <= 28599) return "ISO-8859-" + QByteArray::number(page - 28590);
  return "CP" + QByteArray::number(page);
}

QString CStdioFileEx::Decode(const QByteArray& bytes, int page) {
  const QByteArray enc = EncodingOfCodePage(page);
  if (enc == "UTF-8") {
    QStringDecoder utf8(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    QString text = utf8.decode(bytes);
    // With a UTF-8 locale, a line that is not UTF-8 comes from an older system.
    if (page < 0 && utf8.hasError()) return DecodeWithIconv(bytes, "WINDOWS-1252");
    return text;
  }
  return DecodeWithIconv(bytes, enc);
}

bool CStdioFileEx::ReadString(QString& line) {
  line.clear();
  if (m_fd < 0) return false;
  if (m_atStart && m_pos == 0) {
    const int skip = m_utf16 ? 2 : m_codePage == kCodePageUtf8 ? 3 : 0;
    char c;
    for (int i = 0; i < skip && ReadByte(c); ++i) {
    }
  }
  QByteArray bytes;
  bytes.reserve(kChunk);
  bool any = false;
  char c;
  if (m_utf16) {
    char hi;
    while (ReadByte(c)) {
      any = true;
      if (!ReadByte(hi)) break;  // an odd last byte is no character
      bytes += c;
      bytes += hi;
      if (c == '\n' && hi == 0) break;
    }
    if (!any) return false;
    QString text = QStringDecoder(QStringDecoder::Utf16LE, QStringDecoder::Flag::Stateless).decode(bytes);
    if (text.endsWith(u'\n')) text.chop(1);
    if (text.endsWith(u'\r')) text.chop(1);
    line = text;
  } else {
    while (ReadByte(c)) {
      any = true;
      if (c == '\n') break;
      bytes += c;
    }
    if (!any) return false;
    if (bytes.endsWith('\r')) bytes.chop(1);
    line = Decode(bytes, m_codePage);
  }
  m_atStart = false;
  return true;
}
