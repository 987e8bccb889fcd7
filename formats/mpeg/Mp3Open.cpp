#include "formats/mpeg/Mp3Open.h"

#include <QFile>
#include <cerrno>
#include <fcntl.h>
#include <memory>
#include <sys/mman.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

#include "app/FileErrors.h"
#include "app/Globals.h"
#include "app/Session.h"
#include "app/Text.h"
#include "formats/OpenPipeline.h"
#include "formats/WorkFile.h"
#include "formats/mpeg/MPAException.h"
#include "formats/mpeg/MPAFile.h"

namespace {

// Frames walked between two calls of the pump.
constexpr uint32_t kPumpFrames = 16384;

// kbit/s of a frame as a whole number of kilobits, back in bit/s.
int ReducedRate(const CMPAFrame& f) { return int(f.m_header.bitRate / 8 / 125) * 1000; }

}  // namespace

namespace {

Mp3ReadResult ReadProperties(const std::function<std::unique_ptr<CMPAFile>()>& makeFile, Mp3Properties& out,
                             const std::function<bool()>& pump) {
  out = Mp3Properties();
  try {
    std::unique_ptr<CMPAFile> owned = makeFile();
    CMPAFile& file = *owned;
    const CTagList& tags = file.GetTags();
    uint32_t index = 0;
    while (const CTag* tag = tags.GetNextTag(index)) out.tagBytes += tag->GetSize();
    out.audioBytes = tags.GetEnd() - tags.GetBegin();

    if (const CVBRHeader* vbr = file.GetVBRHeader()) {
      std::unique_ptr<CMPAFrame> first(file.GetFrame(CMPAFile::First));
      if (!first) return Mp3ReadResult::NoSound;
      const CMPAHeader& h = first->m_header;
      out.vbr = 1;
      out.hasVbrHeader = 1;
      out.bitRate = ReducedRate(*first);
      out.version = h.version;
      out.layer = h.layer;
      out.channelMode = h.channelMode;
      out.sampleRate = h.sampleRate;
      out.samplesPerFrame = h.samplesPerFrame;
      out.frames = vbr->frames;
      out.fileSize = out.audioBytes + out.tagBytes;
      // Whole kilohertz on purpose: 44 at 44100 Hz.
      out.durationMs = uint32_t(uint64_t(vbr->frames) * h.samplesPerFrame / (h.sampleRate / 1000));
      return Mp3ReadResult::Ok;
    }

    std::unique_ptr<CMPAFrame> first(file.GetFrame(CMPAFile::First));
    int bitRate = first ? ReducedRate(*first) : 0;
    std::unique_ptr<CMPAFrame> second(file.GetFrame(CMPAFile::Next, first.get(), false));
    if (!second) return Mp3ReadResult::NoSound;
    const CMPAHeader& h = second->m_header;
    out.version = h.version;
    out.layer = h.layer;
    out.channelMode = h.channelMode;
    out.sampleRate = h.sampleRate;
    out.samplesPerFrame = h.samplesPerFrame;
    if (bitRate == 0) bitRate = ReducedRate(*second);

    // The third to fifth frames decide whether the rate varies.
    std::unique_ptr<CMPAFrame> probe(file.GetFrame(CMPAFile::Next, second.get(), false));
    for (int i = 0; i < 3 && probe; ++i) {
      if (ReducedRate(*probe) != bitRate) {
        out.vbr = 1;
        break;
      }
      if (i < 2) probe.reset(file.GetFrame(CMPAFile::Next, probe.release(), true));
    }
    out.fileSize = out.audioBytes + out.tagBytes;

    if (!out.vbr) {
      out.bitRate = bitRate;
      out.durationMs = uint32_t(double(out.audioBytes) / (bitRate / 8.0) * 1000.0);
      return Mp3ReadResult::Ok;
    }

    // A variable rate without a header: every frame counts.
    CMPAFrame* frame = file.GetFrame(CMPAFile::First);
    uint64_t count = 1;
    uint64_t sumKbps = frame ? frame->m_header.bitRate / 1000 : 0;
    uint32_t sincePump = 0;
    while ((frame = file.GetFrame(CMPAFile::Next, frame, true)) != nullptr) {
      ++count;
      sumKbps += frame->m_header.bitRate / 1000;
      if (++sincePump == kPumpFrames) {
        sincePump = 0;
        if (pump && !pump()) {
          delete frame;
          return Mp3ReadResult::Cancelled;
        }
      }
    }
    if (pump && !pump()) return Mp3ReadResult::Cancelled;
    out.frames = uint32_t(count);
    out.bitRate = int(sumKbps / count);
    out.durationMs = uint32_t(count * h.samplesPerFrame / (h.sampleRate / 1000));
    return Mp3ReadResult::Ok;
  } catch (...) {
    return Mp3ReadResult::Errors;
  }
}

}  // namespace

Mp3ReadResult ReadMp3Properties(const QString& path, Mp3Properties& out, const std::function<bool()>& pump) {
  return ReadProperties([&] { return std::make_unique<CMPAFile>(path); }, out, pump);
}

Mp3ReadResult ReadMp3Properties(std::unique_ptr<CMPAStream> stream, Mp3Properties& out,
                                const std::function<bool()>& pump) {
  return ReadProperties([&] { return std::make_unique<CMPAFile>(std::move(stream)); }, out, pump);
}

QString Mp3BitRateLine(int bitRate) {
  switch (bitRate) {
    case 0: case 8000: case 16000: case 24000: case 32000: case 40000: case 48000: case 56000:
    case 64000: case 80000: case 96000: case 112000: case 128000: case 144000: case 160000:
    case 176000: case 192000: case 224000: case 256000: case 288000: case 320000: case 352000:
    case 384000: case 416000: case 448000:
      return Tonvane::tr("  Bit Rate              ") + QString::number(bitRate / 1000) + Tonvane::tr(" kbps");
    default:
      // The average of a walk is already in kbit/s.
      return Tonvane::tr("  Bit Rate              ") + QString::number(bitRate) + Tonvane::tr(" kbps");
  }
}

QString Mp3ModeLine(uint32_t channelMode) {
  switch (channelMode) {
    case 0: return Tonvane::tr("  Mode                  Stereo");
    case 1: return Tonvane::tr("  Mode                  Joint Stereo");
    case 2: return Tonvane::tr("  Mode                  Dual Channels");
    default: return Tonvane::tr("  Mode                  Mono");
  }
}

QString Mp3CodingLine(int vbr) { return Tonvane::tr("  ") + Tonvane::tr("Coding Method") + Tonvane::tr("   ") + (vbr ? Tonvane::tr("VBR") : Tonvane::tr("CBR")); }

QString Mp3SampleRateLine(uint32_t sampleRate) {
  return Tonvane::tr("  Sample Rate       ") + QString::number(sampleRate) + Tonvane::tr(" Hz");
}

namespace {

QString UnsupportedQuestion(const QString& path) { return UnsupportedFormatQuestion(path); }

// Opens and maps the source once, as a check that it can be read at all; the MPEG stream
// maps it again. Returns the low half of the size, or -1 after a message.
int64_t CheckSource(Session& s, const QString& path) {
  const QByteArray native = QFile::encodeName(path);
  int fd = ::open(native.constData(), O_RDONLY | O_CLOEXEC);
  if (fd < 0) {
    ReportFileError(s, Tonvane::tr(" cannot be opened"), path, {}, ErrorCodeFromErrno(errno, path), true);
    return -1;
  }
  struct stat st;
  if (::fstat(fd, &st) != 0) {
    const int err = errno;
    ::close(fd);
    s.m_prompt.Message(Tonvane::tr("Sorry, but ") + Tonvane::tr("the file ") + path + " : " +
                       SystemErrorText(ErrorCodeFromErrno(err, path)));
    return -1;
  }
  const uint32_t size = uint32_t(uint64_t(st.st_size) & 0xFFFFFFFFu);
  if (size == 0) {
    ::close(fd);
    return 0;
  }
  void* view = ::mmap(nullptr, size, PROT_READ, MAP_SHARED, fd, 0);
  if (view == MAP_FAILED) {
    const int err = errno;
    ::close(fd);
    ReportFileError(s, Tonvane::tr("carry out data-file-mapping to the process's address space is"), path,
                    Tonvane::tr("Therefore the test will be stopped."), ErrorCodeFromErrno(err, path), true);
    return -1;
  }
  ::munmap(view, size);
  ::close(fd);
  return size;
}

}  // namespace

int OpenMp3(Session& s) {
  const QString path = s.m_fileName;
  if (g_workFile >= 0) {
    ::close(g_workFile);
    g_workFile = -1;
  }
  const int64_t size = CheckSource(s, path);
  if (size <= 0) return 0;

  Mp3Properties p;
  const Mp3ReadResult result = ReadMp3Properties(path, p, [&s] {
    s.PumpMessages();
    return true;
  });
  if (result == Mp3ReadResult::Errors) {
    s.m_prompt.Message(Tonvane::tr("Sorry, the file opening was stopped because the file has errors."), PromptIcon::Error);
    return 0;
  }
  if (result != Mp3ReadResult::Ok) {
    if (s.m_navigating == 0) {
      s.m_statusText = Tonvane::tr("  Test is stopped");
      if (s.m_prompt.Ask(UnsupportedQuestion(path))) {
        // Let go of the file and offer the open dialog again.
        CloseWorkFile(s);
        ClearSessionPaths();
        ClearFileDisplay(s);
        OnFileOpen(s);
      } else {
        s.m_fileNotOpened = 1;
      }
    }
    return 0;
  }

  s.m_bits = 16;
  s.m_bitRate = p.bitRate;
  s.m_mpegMode = int(p.channelMode);
  s.m_channels = p.channelMode == 3 ? 1 : 2;
  s.m_sampleRate = int(p.sampleRate);
  s.m_durationMs = p.durationMs;
  s.m_fileSize = p.fileSize;
  s.m_fileSizeHigh = 0;
  s.m_propertyLines[0] = Mp3BitRateLine(p.bitRate);
  s.m_propertyLines[1] = Mp3ModeLine(p.channelMode);
  s.m_propertyLines[2] = Mp3CodingLine(p.vbr);
  s.m_propertyLines[3] = Mp3SampleRateLine(p.sampleRate);
  s.m_propertyLines[4] = Tonvane::tr("  Size                    ") + SizeText(p.fileSize);
  // The gain engine decodes MP3 by itself; there are no samples here to find peaks in.
  s.m_testMode = 1;

  if (s.m_driveType != kDriveCdRom && !s.m_noWorker) {
    try {
      StartWorker([&s] { return CopyWorkerBody(s); });
    } catch (const std::system_error&) {
      s.m_statusText = Tonvane::tr("  Test is stopped");
      ReportFileError(s, Tonvane::tr("create a copy of the flow descriptor copying the file is"), path, {},
                      ErrorCodeFromErrno(EAGAIN, path), true);
      s.m_fileNotOpened = 1;
    }
  }
  s.m_levelLeft = -1.0f;
  s.m_levelRight = -1.0f;
  return 1;
}
