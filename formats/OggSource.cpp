#include "formats/OggSource.h"

#include <vorbis/vorbisfile.h>

#include <QFile>
#include <cerrno>
#include <cmath>
#include <memory>
#include <fcntl.h>
#include <unistd.h>

#include "app/FileErrors.h"
#include "app/Globals.h"
#include "app/Session.h"
#include "app/Text.h"
#include "formats/WorkFile.h"

namespace {

QString NotOpenedText(const QString& path) { return Tonvane::tr("Sorry, but ") + Tonvane::tr("the file ") + path + Tonvane::tr(" cannot be opened"); }

// ov_fopen on a Unicode path.
int OpenVorbis(const QString& path, OggVorbis_File* vf) {
  const QByteArray native = QFile::encodeName(path);
  return ov_fopen(native.constData(), vf);
}

}  // namespace

static int OggWorkerBody(Session& s) {
  const QString source = g_sourcePath;
  const QString work = g_workPath;
  OggVorbis_File vf;
  if (OpenVorbis(source, &vf) != 0) {
    s.m_prompt.Message(NotOpenedText(source), PromptIcon::Error);
    return 1;
  }
  const vorbis_info* vi = ov_info(&vf, -1);
  const int channels = vi ? vi->channels : 0;
  const int rate = vi ? int(vi->rate) : 0;
  const ogg_int64_t samples = ov_pcm_total(&vf, -1);
  if (samples == OV_EINVAL || !vi) {
    s.m_prompt.Message(Tonvane::tr("Sorry, but ") + Tonvane::tr("the file ") + source +
                           Tonvane::tr(" does not contain a sound data. Therefore the test is impossible."),
                       PromptIcon::Error);
    ov_clear(&vf);
    return 1;
  }
  const uint64_t bytes = uint64_t(samples < 0 ? 0 : samples) * uint64_t(channels) * 2u;
  const uint32_t dataBytes = bytes > kMaxWorkDataSize ? kMaxWorkDataSize : uint32_t(bytes);

  WorkFileWriter out;
  if (!out.Open(work, source)) {
    s.m_prompt.Message(Tonvane::tr("Sorry, but ") + Tonvane::tr("the file ") + work + Tonvane::tr(" cannot be created."), PromptIcon::Error);
    ov_clear(&vf);
    return 1;
  }
  if (!out.WriteHeader(channels, rate, 16, 1, dataBytes)) {
    s.m_prompt.Message(WorkWriteFailedText(work), PromptIcon::Error);
    ov_clear(&vf);
    return 1;
  }

  // Chained links are read on as one stream; a hole or a bad link ends the decoding and
  // the work file keeps what was written. Reads go 4096 bytes at a time into a larger
  // buffer, which is written when full.
  constexpr size_t kRead = 4096;
  constexpr size_t kBuffer = 16 * kRead;
  std::unique_ptr<char[]> buffer(new char[kBuffer]);
  size_t fill = 0;
  auto flush = [&]() {
    const bool ok = fill == 0 || out.Write(buffer.get(), fill);
    fill = 0;
    return ok;
  };
  int link = 0;
  for (;;) {
    const long n = ov_read(&vf, buffer.get() + fill, int(kRead), 0, 2, 1, &link);
    if (n == 0) break;
    if (n == OV_HOLE || n == OV_EBADLINK || n == OV_EINVAL || n < 0) {
      const bool written = flush();
      out.Close();
      s.m_prompt.Message(written ? Tonvane::tr("Sorry, but an error of opening has occurred decoding stream.")
                                 : WorkWriteFailedText(work),
                         PromptIcon::Error);
      ov_clear(&vf);
      return 1;
    }
    fill += size_t(n);
    if (fill + kRead > kBuffer && !flush()) {
      out.Close();
      s.m_prompt.Message(WorkWriteFailedText(work), PromptIcon::Error);
      ov_clear(&vf);
      return 1;
    }
  }
  if (!flush()) {
    out.Close();
    s.m_prompt.Message(WorkWriteFailedText(work), PromptIcon::Error);
    ov_clear(&vf);
    return 1;
  }

  // The stream's true length may differ from what its last granule position promised.
  const double total = double(out.Total());
  const uint32_t written = total > double(kMaxWorkDataSize) ? kMaxWorkDataSize : uint32_t(total);
  if (!out.PatchSizesIfDifferent(written)) {
    s.m_prompt.Message(out.LastStep() == 1 ? WorkSeekFailedText(work) : WorkWriteFailedText(work),
                       PromptIcon::Error);
    out.Close();
    ov_clear(&vf);
    return 1;
  }
  out.Close();
  ov_clear(&vf);
  return 0;
}

int OpenOgg(Session& s) {
  s.m_levelLeft = s.m_levelRight = -1.0f;
  // A file that cannot be read at all is a system error; one that reads but is no Vorbis
  // stream has no system text to add.
  {
    const int fd = ::open(QFile::encodeName(s.m_fileName).constData(), O_RDONLY | O_CLOEXEC);
    if (fd < 0) {
      ReportFileError(s, Tonvane::tr(" cannot be opened"), s.m_fileName, QString(), ErrorCodeFromErrno(errno, s.m_fileName),
                      true);
      return 0;
    }
    ::close(fd);
  }
  OggVorbis_File vf;
  if (OpenVorbis(s.m_fileName, &vf) != 0) {
    s.m_prompt.Message(NotOpenedText(s.m_fileName), PromptIcon::Error,
                       QStringLiteral("FileError:") + Tonvane::tr(" cannot be opened"));
    return 0;
  }
  const long bitrate = ov_bitrate(&vf, 0);
  s.m_bitRate = (bitrate == OV_EINVAL || bitrate == -1 || bitrate < 0) ? 0 : int(std::floor(double(bitrate) / 1000.0 + 0.5));
  const vorbis_info* vi = ov_info(&vf, 0);
  s.m_channels = vi ? vi->channels : 0;
  s.m_sampleRate = vi ? int(vi->rate) : 0;
  s.m_propertyLines[0] = Tonvane::tr("  Bit Rate               ") + QString::number(s.m_bitRate) + Tonvane::tr(" kbps");
  s.m_propertyLines[1] = Tonvane::tr("  Channels            ") + QString::number(s.m_channels);
  s.m_propertyLines[2] = Tonvane::tr("  Sample Rate       ") + QString::number(s.m_sampleRate) + Tonvane::tr(" Hz");
  s.m_propertyLines[3] = Tonvane::tr("  Audio Format      Ogg Vorbis");
  s.m_bits = 16;
  s.m_formatTag = 1;
  const double seconds = ov_time_total(&vf, -1);
  s.m_durationMs = seconds > 0 && seconds < 4294967.0 ? uint32_t(std::llround(seconds * 1000.0)) : 0;
  ov_clear(&vf);

  if (s.m_noWorker) return 1;
  Session* session = &s;
  StartWorker([session]() { return OggWorkerBody(*session); });
  return 1;
}
