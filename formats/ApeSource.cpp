#include "formats/ApeSource.h"

#include "formats/OpenPipeline.h"

#include <cerrno>
#include <string>
#include <vector>

#include "app/FileErrors.h"
#include "app/Globals.h"
#include "app/Session.h"
#include "app/Text.h"
#include "formats/ApeDecoder.h"
#include "formats/Decode.h"
#include "formats/WorkFile.h"

namespace {

constexpr int64_t kBlocksPerRead = 1024;

APE_DECOMPRESS_HANDLE CreateDecoder(const QString& path, int& error) {
  const std::wstring wide = path.toStdWString();
  errno = 0;
  return c_APEDecompress_CreateW(wide.c_str(), &error);
}

QString NotOpenedText(const QString& path) {
  return Tonvane::tr("Sorry, but ") + Tonvane::tr("the file ") + path + Tonvane::tr(" cannot be opened");
}

}  // namespace

QString ApeOpenFailureText(const QString& path, int error) {
  if (error == ape::kErrUnsupportedVersion)
    return NotOpenedText(path) +
           Tonvane::tr(". It was made by a version of Monkey's Audio older than 3.99, which the program does not decode.");
  return NotOpenedText(path) + Tonvane::tr(". It is not a Monkey's Audio file, or its header is damaged.");
}

QString ApeDecodeErrorText(const QString& path, int error) {
  const QString opening = Tonvane::tr("Sorry, but an error of opening has occurred decoding stream.");
  if (error == ape::kErrRead) return opening + Tonvane::tr(" The file ") + path + Tonvane::tr(" ends inside its sound data.");
  return opening + Tonvane::tr(" The file ") + path + Tonvane::tr(" is damaged: its sound data does not pass its check.");
}

DecodeStatus DecodeApe(DecodeJob& job, PcmSink& sink) {
  // Every failure leaves nothing worth measuring: the test then stops rather than measure
  // a stream that lacks samples.
  auto failed = [&job](DecodeStatus status) {
    job.stopsTest = true;
    return job.status = status;
  };
  int error = 0;
  APE_DECOMPRESS_HANDLE h = CreateDecoder(job.source, error);
  if (!h) {
    job.Report(NotOpenedText(job.source));
    return failed(DecodeStatus::CannotOpen);
  }
  struct Release {
    APE_DECOMPRESS_HANDLE h;
    ~Release() { c_APEDecompress_Destroy(h); }
  } release{h};
  const int64_t dataBytes = c_APEDecompress_GetInfo(h, ape::kInfoWavDataBytes);
  PcmFormat f;
  f.channels = int(c_APEDecompress_GetInfo(h, ape::kInfoChannels));
  f.sampleRate = int(c_APEDecompress_GetInfo(h, ape::kInfoSampleRate));
  f.bits = int(c_APEDecompress_GetInfo(h, ape::kInfoBitsPerSample));
  f.dataBytes = dataBytes > int64_t(kMaxWorkDataSize) ? kMaxWorkDataSize : uint32_t(std::max<int64_t>(dataBytes, 0));
  if (!(f.channels == 1 || f.channels == 2) || !(f.bits == 8 || f.bits == 16 || f.bits == 24)) {
    job.Report(UnsupportedFormatQuestion(job.source));
    return failed(DecodeStatus::Unsupported);
  }
  if (!job.Begin(sink, f)) return failed(job.status);

  const int64_t align = c_APEDecompress_GetInfo(h, ape::kInfoBlockAlign);
  const int64_t totalBlocks = align > 0 ? dataBytes / align : 0;
  std::vector<char> buffer(size_t(std::max<int64_t>(align, 1) * kBlocksPerRead));
  int64_t done = 0;
  for (;;) {
    int64_t got = 0;
    const int rc = c_APEDecompress_GetData(h, buffer.data(), kBlocksPerRead, &got);
    // The blocks before a damaged frame are good; the damaged frame gives none.
    if (got > 0 && !job.Write(sink, buffer.data(), size_t(got * align))) {
      sink.End(SizeRule::AsAnnounced);
      return failed(job.status);
    }
    if (rc != ape::kOk) {
      sink.End(SizeRule::AsAnnounced);
      job.Report(ApeDecodeErrorText(job.source, rc));
      return failed(DecodeStatus::Damaged);
    }
    if (got == 0) break;
    done += got;
    if (!job.Checkpoint(totalBlocks > 0 ? double(done) / double(totalBlocks) : 0.0)) {
      sink.End(SizeRule::AsAnnounced);
      return job.status;
    }
  }
  if (!sink.End(SizeRule::IfDifferent)) {
    job.Report(sink.FailureText());
    return failed(DecodeStatus::SinkFailed);
  }
  return job.status;
}

int OpenApe(Session& s) {
  int error = 0;
  APE_DECOMPRESS_HANDLE h = CreateDecoder(s.m_fileName, error);
  if (!h) {
    if (error == ape::kErrRead && errno != 0)
      ReportFileError(s, Tonvane::tr(" cannot be opened"), s.m_fileName, QString(),
                      ErrorCodeFromErrno(errno, s.m_fileName), true);
    else
      s.m_prompt.Message(ApeOpenFailureText(s.m_fileName, error), PromptIcon::Error,
                         QStringLiteral("FileError:") + Tonvane::tr(" cannot be opened"));
    return 0;
  }

  s.m_formatTag = 1;
  s.m_bits = int(c_APEDecompress_GetInfo(h, ape::kInfoBitsPerSample));
  s.m_sampleRate = int(c_APEDecompress_GetInfo(h, ape::kInfoSampleRate));
  s.m_channels = int(c_APEDecompress_GetInfo(h, ape::kInfoChannels));
  const int64_t ms = c_APEDecompress_GetInfo(h, ape::kInfoLengthMs);
  s.m_durationMs = ms < 0 ? 0 : ms > int64_t(0xFFFFFFFF) ? 0xFFFFFFFFu : uint32_t(ms);
  s.m_levelLeft = s.m_levelRight = -1.0f;

  const bool supported = (s.m_channels == 1 || s.m_channels == 2) &&
                         (s.m_bits == 8 || s.m_bits == 16 || s.m_bits == 24);
  if (!supported) {
    c_APEDecompress_Destroy(h);
    RefuseUnsupportedFormat(s);
    return 0;
  }

  SetPcmPropertyLines(s, s.m_bits, s.m_channels, s.m_sampleRate);
  s.m_propertyLines[3] = Tonvane::tr("  Audio Format       APE");
  c_APEDecompress_Destroy(h);

  if (s.m_noWorker) return 1;
  auto job = std::make_shared<DecodeJob>();
  job->kind = kKindApe;
  job->source = g_sourcePath;
  job->prompt = &s.m_prompt;
  auto sink = std::make_shared<WorkFileWriter>(g_workPath, g_sourcePath);
  return StartWorkerOrReport(
             s, [job, sink] { return DecodeApe(*job, *sink) == DecodeStatus::Ok ? 0 : 1; },
             [job](Session&) {
               if (job->stopsTest) g_copyFailed = 1;
             })
             ? 1
             : 0;
}
