#include "formats/WavReader.h"

#include <QFile>
#include <algorithm>
#include <cerrno>
#include <climits>
#include <cmath>
#include <cstring>
#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include "app/FileErrors.h"
#include "app/Globals.h"
#include "app/Session.h"
#include "app/Text.h"
#include "formats/OpenPipeline.h"
#include "formats/WavConvert.h"
#include "formats/WorkFile.h"
#include "formats/mpeg/Mp3Open.h"

namespace {

constexpr uint16_t kTagPcm = 1;
constexpr uint16_t kTagFloat = 3;
constexpr uint16_t kTagMpegLayer3 = 0x55;

// A format block longer than this is no format block; the copy stops there so that a
// damaged size field cannot make the open allocate the whole file.
constexpr uint64_t kMaxFmtBlock = 1u << 20;

// The first look at the file: a read-only view of at most the scan span. Bytes past the
// view come from the file itself, bytes past the end of the file read as 0, so a size
// field at the very end of the view or file is never read out of bounds.
class HeaderView {
 public:
  HeaderView(int fd, uint64_t fileSize) : m_fd(fd), m_fileSize(fileSize) {}
  ~HeaderView() { Unmap(); }
  HeaderView(const HeaderView&) = delete;
  HeaderView& operator=(const HeaderView&) = delete;

  bool Map(uint64_t length) {
    void* p = ::mmap(nullptr, size_t(length), PROT_READ, MAP_SHARED, m_fd, 0);
    if (p == MAP_FAILED) return false;
    m_view = static_cast<const uint8_t*>(p);
    m_size = length;
    return true;
  }
  void Unmap() {
    if (m_view) ::munmap(const_cast<uint8_t*>(m_view), size_t(m_size));
    m_view = nullptr;
    m_size = 0;
  }
  const uint8_t* Data() const { return m_view; }
  uint64_t Size() const { return m_size; }

  // Copies `length` bytes from `offset`; what lies beyond the end of the file is 0.
  void Read(uint64_t offset, void* out, size_t length) const {
    uint8_t* dst = static_cast<uint8_t*>(out);
    std::memset(dst, 0, length);
    if (offset < m_size) {
      const size_t n = size_t(std::min<uint64_t>(length, m_size - offset));
      std::memcpy(dst, m_view + offset, n);
      offset += n;
      dst += n;
      length -= n;
    }
    while (length > 0 && offset < m_fileSize) {
      const ssize_t n = ::pread(m_fd, dst, length, off_t(offset));
      if (n < 0 && errno == EINTR) continue;
      if (n <= 0) break;
      offset += uint64_t(n);
      dst += n;
      length -= size_t(n);
    }
  }
  uint32_t Le32(uint64_t offset) const {
    uint8_t b[4];
    Read(offset, b, 4);
    return uint32_t(b[0]) | uint32_t(b[1]) << 8 | uint32_t(b[2]) << 16 | uint32_t(b[3]) << 24;
  }

 private:
  int m_fd;
  uint64_t m_fileSize;
  const uint8_t* m_view = nullptr;
  uint64_t m_size = 0;
};

// Fields of the kept format block, read as a WAVEFORMATEX; a short block reads as 0.
struct FormatFields {
  uint16_t tag = 0;
  uint16_t channels = 0;
  uint32_t sampleRate = 0;
  uint32_t avgBytesPerSec = 0;
  uint16_t blockAlign = 0;
  uint16_t bits = 0;
};

FormatFields ReadFormat(const QByteArray& block) {
  uint8_t b[16] = {};
  std::memcpy(b, block.constData(), size_t(std::min<qsizetype>(block.size(), 16)));
  auto u16 = [&](int o) { return uint16_t(b[o] | b[o + 1] << 8); };
  auto u32 = [&](int o) { return uint32_t(u16(o)) | uint32_t(u16(o + 2)) << 16; };
  return {u16(0), u16(2), u32(4), u32(8), u16(12), u16(14)};
}

QString FilePrefix() { return Tonvane::tr("Sorry, but ") + Tonvane::tr("the file "); }

const char* const kSelectAnother =
    QT_TRANSLATE_NOOP("Tonvane", " Therefore the test is impossible. Please, select other file.\n"
                                 "Do You want to open a dialog of selection a file?");

QString EmptyQuestion(const QString& path) {
  return FilePrefix() + path + Tonvane::tr(", is empty and does not contain any sound data.") + Tonvane::tr(kSelectAnother);
}
QString NotWaveQuestion(const QString& path) {
  return FilePrefix() + path + Tonvane::tr(" does not contain a sound data characteristic for the Wav files.") +
         Tonvane::tr(kSelectAnother);
}
QString UnsupportedQuestion(const QString& path) { return UnsupportedFormatQuestion(path); }

// A Yes to one of the refusal questions: the session lets go of the file and the open
// dialog comes up again.
void ReopenDialog(Session& s) {
  CloseWorkFile(s);
  ClearSessionPaths();
  ClearFileDisplay(s);
  OnFileOpen(s);
}

QString BitsLine(int bits) {
  switch (bits) {
    case 8: return Tonvane::tr("  Bits on Readout   8");
    case 16: return Tonvane::tr("  Bits on Readout  16");
    case 24: return Tonvane::tr("  Bits on Readout  24");
    default: return Tonvane::tr("  Bits on Readout  32");
  }
}

uint32_t DurationMs(uint32_t dataSize, uint16_t blockAlign, uint32_t sampleRate) {
  const double perSecond = double(blockAlign) * double(sampleRate);
  if (perSecond <= 0) return 0;
  const double ms = std::round(double(dataSize) / perSecond * 1000.0);
  return ms >= double(UINT32_MAX) ? UINT32_MAX : uint32_t(ms);
}

}  // namespace

QString ScaleCaptionForBits(int bits) {
  switch (bits) {
    case 8: return Tonvane::tr("100% = 41 dB");
    case 24: return Tonvane::tr("100% = 137 dB");
    case 32: return Tonvane::tr("100% = 185 dB");
    default: return Tonvane::tr("100% = 89 dB");
  }
}

QStringList LevelCaptions(int channels) {
  if (channels == 1) return {Tonvane::tr("Mono Channel"), QString()};
  return {Tonvane::tr("Left Channel"), Tonvane::tr("Right Channel")};
}

int OpenWav(Session& s) {
  const QString path = s.m_fileName;
  s.m_levelLeft = s.m_levelRight = -1.0f;

  if (g_workFile < 0) {
    g_workFile = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC);
    if (g_workFile < 0) {
      const int err = errno;
      ReportFileError(s, Tonvane::tr(" cannot be opened"), path, QString(), ErrorCodeFromErrno(err, path), true);
      return 0;
    }
  }

  struct stat st;
  if (::fstat(g_workFile, &st) != 0) {
    const int err = errno;
    s.m_prompt.Message(FilePrefix() + path + Tonvane::tr(" : ") + QString::fromLocal8Bit(std::strerror(err)),
                       PromptIcon::Error);
    CloseWorkFile(s);
    return 0;
  }
  const uint64_t fileSize = uint64_t(st.st_size);
  if (fileSize == 0) {
    CloseWorkFile(s);
    s.m_prompt.Message(FilePrefix() + path + Tonvane::tr(" is empty and does not contain any sound data."),
                       PromptIcon::Error);
    return 0;
  }
  if (!S_ISREG(st.st_mode)) {
    // Only a plain file can be mapped.
    ReportFileError(s, Tonvane::tr("create object \"file-mapping object\" is impossible"), QString(), QString(),
                    ErrorCodeFromErrno(ENODEV), false);
    CloseWorkFile(s);
    return 0;
  }

  // The header scan touches at most ten allocation units, whatever the file's size.
  const uint64_t scanSpan = 10ull * s.m_allocGranularity;
  HeaderView view(g_workFile, fileSize);
  if (!view.Map(scanSpan < fileSize ? scanSpan : fileSize)) {
    const int err = errno;
    ReportFileError(s, Tonvane::tr(" create a file mapping is impossible"), path, Tonvane::tr("Therefore the test will be stopped."),
                    ErrorCodeFromErrno(err, path), true);
    CloseWorkFile(s);
    return 0;
  }
  const uint8_t* bytes = view.Data();

  if (bytes[0] == 0) {
    s.m_statusText = Tonvane::tr("  Test is stopped");
    const bool yes = s.m_prompt.Ask(EmptyQuestion(path));
    view.Unmap();
    if (yes) {
      ReopenDialog(s);
    } else {
      CloseWorkFile(s);
    }
    return 0;
  }

  // Only "WAVE" at offset 8 is checked; the first four bytes may be anything.
  char wave[4];
  view.Read(8, wave, 4);
  if (std::memcmp(wave, "WAVE", 4) != 0) {
    s.m_statusText = Tonvane::tr("  Test is stopped");
    const bool yes = s.m_prompt.Ask(NotWaveQuestion(path));
    view.Unmap();
    if (yes) {
      ReopenDialog(s);
    } else {
      CloseWorkFile(s);
      s.m_fileNotOpened = 1;
    }
    return 0;
  }

  uint64_t limit = scanSpan < fileSize ? scanSpan : view.Le32(4);
  if (limit > fileSize) limit = fileSize;
  const int64_t end = int64_t(limit) - 4;  // limit never exceeds the view here

  // "data" can match from offset 16 on; its size field follows the identifier.
  s.m_dataSize = 0;
  s.m_dataOffset = 0;
  for (int64_t i = 15; i < end; ++i) {
    if (std::memcmp(bytes + i + 1, "data", 4) == 0) {
      s.m_dataSize = view.Le32(uint64_t(i) + 5);
      s.m_dataOffset = uint32_t(i + 9);
      break;
    }
  }

  int64_t fmtAt = -1;
  for (int64_t i = 12; i < end; ++i) {
    if (std::memcmp(bytes + i, "fmt ", 4) == 0) {
      fmtAt = i;
      break;
    }
  }
  const uint32_t fmtSize = fmtAt >= 0 ? view.Le32(uint64_t(fmtAt) + 4) : 0;
  if (fmtAt < 0 || fmtSize == 0) {
    view.Unmap();
    CloseWorkFile(s);
    return 0;
  }

  // The block is as long as its size field says, as far as the file holds it.
  const uint64_t blockAt = uint64_t(fmtAt) + 8;
  const uint64_t available = blockAt < fileSize ? fileSize - blockAt : 0;
  const uint64_t blockSize = std::min<uint64_t>({fmtSize, available, kMaxFmtBlock});
  s.m_fmtBlock = QByteArray(qsizetype(blockSize), '\0');
  view.Read(blockAt, s.m_fmtBlock.data(), size_t(blockSize));
  const FormatFields f = ReadFormat(s.m_fmtBlock);

  if (f.tag == kTagMpegLayer3) {
    view.Unmap();
    CloseWorkFile(s);
    s.m_sourceKind = kKindMp3;
    return OpenMp3(s);
  }

  s.m_formatTag = f.tag;
  if (f.tag == kTagPcm || f.tag == kTagFloat) {
    s.m_bits = f.bits;
    s.m_durationMs = DurationMs(s.m_dataSize, f.blockAlign, f.sampleRate);
  }
  s.m_channels = f.channels;
  s.m_sampleRate = int(std::min<uint32_t>(f.sampleRate, INT_MAX));
  s.m_levelLeft = s.m_levelRight = -1.0f;

  if (f.tag == 0) {
    view.Unmap();
    if (s.m_prompt.Ask(UnsupportedQuestion(path))) {
      ReopenDialog(s);
    } else {
      CloseWorkFile(s);
    }
    return 0;
  }
  if (f.tag != kTagPcm && f.tag != kTagFloat) {
    view.Unmap();
    return OpenWavConversion(s);
  }

  const bool channelsOk = f.channels == 1 || f.channels == 2;
  const bool bitsOk = f.bits == 8 || f.bits == 16 || f.bits == 24 || f.bits == 32;
  if (!channelsOk || !bitsOk) {
    s.m_statusText = Tonvane::tr("  Test is stopped");
    const bool yes = s.m_prompt.Ask(UnsupportedQuestion(path));
    view.Unmap();
    if (yes) {
      ReopenDialog(s);
    } else {
      CloseWorkFile(s);
      s.m_fileNotOpened = 1;
    }
    return 0;
  }

  s.m_propertyLines[0] = BitsLine(f.bits);
  s.m_propertyLines[1] = f.channels == 1 ? Tonvane::tr("  Channels             1") : Tonvane::tr("  Channels             2");
  s.m_propertyLines[2] = Tonvane::tr("  Frequency          ") + QString::number(f.sampleRate) + Tonvane::tr(" Hz");
  s.m_propertyLines[3] = f.tag == kTagFloat ? Tonvane::tr("  Audio Format      PCM IEEE Float") : Tonvane::tr("  Audio Format      PCM");
  s.m_scaleLabel = ScaleCaptionForBits(f.bits);

  // The data offset and size stay known for the test; only the handle goes.
  view.Unmap();
  ::close(g_workFile);
  g_workFile = -1;

  if (s.m_noWorker || s.m_driveType == kDriveCdRom) return 1;
  if (!StartWorker([&s]() { return CopyWorkerBody(s); })) {
    s.m_statusText = Tonvane::tr("  Test is stopped");
    ReportFileError(s, Tonvane::tr("create a copy of the flow descriptor copying the file is"), QString(), QString(),
                    ErrorCodeFromErrno(EAGAIN), false);
    s.m_fileNotOpened = 1;
    return 0;
  }
  return 1;
}
