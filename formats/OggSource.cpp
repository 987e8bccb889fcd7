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
#include "formats/Decode.h"
#include "formats/WorkFile.h"

namespace {

QString NotOpenedText(const QString& path) { return Tonvane::tr("Sorry, but ") + Tonvane::tr("the file ") + path + Tonvane::tr(" cannot be opened"); }

// ov_fopen on a Unicode path.
int OpenVorbis(const QString& path, OggVorbis_File* vf) {
  const QByteArray native = QFile::encodeName(path);
  return ov_fopen(native.constData(), vf);
}

}  // namespace

// The handle of an open stream, cleared on every way out.
struct VorbisFile {
  OggVorbis_File vf;
  bool open = false;
  ~VorbisFile() {
    if (open) ov_clear(&vf);
  }
};

DecodeStatus DecodeOgg(DecodeJob& job, PcmSink& sink) {
  VorbisFile file;
  if (OpenVorbis(job.source, &file.vf) != 0) {
    job.Report(NotOpenedText(job.source));
    return job.status = DecodeStatus::CannotOpen;
  }
  file.open = true;
  OggVorbis_File& vf = file.vf;
  const vorbis_info* vi = ov_info(&vf, -1);
  const ogg_int64_t samples = ov_pcm_total(&vf, -1);
  if (samples == OV_EINVAL || !vi) {
    job.Report(Tonvane::tr("Sorry, but ") + Tonvane::tr("the file ") + job.source +
               Tonvane::tr(" does not contain a sound data. Therefore the test is impossible."));
    return job.status = DecodeStatus::NoSound;
  }
  PcmFormat f;
  f.channels = vi->channels;
  f.sampleRate = int(vi->rate);
  f.bits = 16;
  const uint64_t bytes = uint64_t(samples < 0 ? 0 : samples) * uint64_t(f.channels) * 2u;
  f.dataBytes = bytes > kMaxWorkDataSize ? kMaxWorkDataSize : uint32_t(bytes);
  if (!job.Begin(sink, f)) return job.status;

  // Chained links are read on as one stream; a hole or a bad link ends the decoding and
  // what was written stands. Reads go 4096 bytes at a time into a larger buffer, which
  // goes to the sink when full.
  constexpr size_t kRead = 4096;
  constexpr size_t kBuffer = 16 * kRead;
  std::unique_ptr<char[]> buffer(new char[kBuffer]);
  size_t fill = 0;
  auto flush = [&]() {
    const bool ok = job.Write(sink, buffer.get(), fill);
    fill = 0;
    return ok;
  };
  int link = 0;
  for (;;) {
    const long n = ov_read(&vf, buffer.get() + fill, int(kRead), 0, 2, 1, &link);
    if (n == 0) break;
    if (n < 0) {
      if (flush()) {
        job.Report(Tonvane::tr("Sorry, but an error of opening has occurred decoding stream."));
        job.status = DecodeStatus::Damaged;
      }
      sink.End(SizeRule::AsAnnounced);
      return job.status;
    }
    fill += size_t(n);
    if (fill + kRead > kBuffer) {
      if (!flush()) break;
      if (!job.Checkpoint(samples > 0 ? double(ov_pcm_tell(&vf)) / double(samples) : 0.0)) break;
    }
  }
  if (job.status == DecodeStatus::Ok) flush();
  // The stream's true length may differ from what its last granule position promised.
  if (!sink.End(job.status == DecodeStatus::Ok ? SizeRule::IfDifferent : SizeRule::AsAnnounced) &&
      job.status == DecodeStatus::Ok) {
    job.Report(sink.FailureText());
    job.status = DecodeStatus::SinkFailed;
  }
  return job.status;
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
  auto job = std::make_shared<DecodeJob>();
  job->kind = kKindOgg;
  job->source = g_sourcePath;
  job->prompt = &s.m_prompt;
  auto sink = std::make_shared<WorkFileWriter>(g_workPath, g_sourcePath);
  return StartWorkerOrReport(s, [job, sink] { return DecodeOgg(*job, *sink) == DecodeStatus::Ok ? 0 : 1; }) ? 1 : 0;
}
