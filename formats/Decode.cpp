#include "formats/Decode.h"

#include <algorithm>
#include <cstring>

#include "app/Globals.h"
#include "app/Job.h"
#include "app/Session.h"
#include "app/Text.h"
#include "formats/OpenPipeline.h"
#include "formats/WorkFile.h"

namespace {

constexpr uint16_t kTagPcm = 1;
constexpr uint16_t kTagFloat = 3;
constexpr uint16_t kTagMpegLayer3 = 0x55;
constexpr uint64_t kMaxFmtBlock = 1u << 20;
// Frames of a PCM source handed to the sink at a time: the mapped file lends them, so a
// chunk costs no copy and may be large.
constexpr uint64_t kPcmChunkBytes = 4 << 20;

uint32_t Le32(const uint8_t* p) {
  return uint32_t(p[0]) | uint32_t(p[1]) << 8 | uint32_t(p[2]) << 16 | uint32_t(p[3]) << 24;
}
uint16_t Le16(const uint8_t* p) { return uint16_t(p[0] | p[1] << 8); }

QString NotOpenedText(const QString& path) {
  return Tonvane::tr("Sorry, but ") + Tonvane::tr("the file ") + path + Tonvane::tr(" cannot be opened");
}

}  // namespace

void DecodeJob::Report(const QString& text, PromptIcon icon, const QString& family) {
  messages << text;
  if (prompt) prompt->Message(text, icon, family);
}

bool DecodeJob::Checkpoint(double fraction) {
  if (!control || control->Checkpoint(fraction)) return true;
  status = DecodeStatus::Stopped;
  return false;
}

bool DecodeJob::Begin(PcmSink& sink, const PcmFormat& f, const QString& failure) {
  if (!sink.Begin(f)) {
    const QString text = failure.isEmpty() ? sink.FailureText() : failure;
    if (!text.isEmpty()) Report(text, PromptIcon::Error);
    status = DecodeStatus::SinkFailed;
    return false;
  }
  format = f;
  return true;
}

bool DecodeJob::Write(PcmSink& sink, const void* data, size_t n, const QString& failure, bool lent) {
  if (n == 0) return true;
  if (!(lent ? sink.WriteLent(data, n) : sink.Write(data, n))) {
    const QString text = failure.isEmpty() ? sink.FailureText() : failure;
    if (!text.isEmpty()) Report(text, PromptIcon::Error);
    status = DecodeStatus::SinkFailed;
    return false;
  }
  bytes += n;
  runningTotal += float(n);
  g_sampleBytesRead += n;
  return true;
}

WavHeaderScan ScanWavHeader(const uint8_t* bytes, uint64_t fileSize, uint64_t scanSpan) {
  WavHeaderScan h;
  if (fileSize < 12 || bytes[0] == 0) return h;
  h.wave = std::memcmp(bytes + 8, "WAVE", 4) == 0;
  if (!h.wave) return h;
  uint64_t limit = scanSpan < fileSize ? scanSpan : Le32(bytes + 4);
  limit = std::min(limit, fileSize);
  const int64_t end = int64_t(limit) - 4;
  for (int64_t i = 15; i < end; ++i) {
    if (std::memcmp(bytes + i + 1, "data", 4) == 0) {
      h.dataSize = uint64_t(i) + 9 <= fileSize ? Le32(bytes + i + 5) : 0;
      h.dataOffset = uint64_t(i) + 9;
      break;
    }
  }
  for (int64_t i = 12; i < end; ++i) {
    if (std::memcmp(bytes + i, "fmt ", 4) != 0) continue;
    const uint32_t size = uint64_t(i) + 8 <= fileSize ? Le32(bytes + i + 4) : 0;
    if (size == 0) break;
    const uint64_t at = uint64_t(i) + 8;
    const uint64_t n = std::min<uint64_t>({size, at < fileSize ? fileSize - at : 0, kMaxFmtBlock});
    h.fmtBlock = QByteArray(reinterpret_cast<const char*>(bytes + at), qsizetype(n));
    h.fmtFound = true;
    break;
  }
  if (h.fmtBlock.size() >= 16) {
    const auto* f = reinterpret_cast<const uint8_t*>(h.fmtBlock.constData());
    h.tag = Le16(f);
    h.channels = Le16(f + 2);
    h.sampleRate = Le32(f + 4);
    h.blockAlign = Le16(f + 12);
    h.bits = Le16(f + 14);
  } else if (h.fmtBlock.size() >= 2) {
    h.tag = Le16(reinterpret_cast<const uint8_t*>(h.fmtBlock.constData()));
  }
  return h;
}

DecodeStatus DecodeWavPcm(DecodeJob& job, PcmSink& sink) {
  MappedFile file;
  if (!file.Open(job.source) || file.Size() == 0 || !file.Map(0, file.Size())) {
    job.Report(NotOpenedText(job.source));
    return job.status = DecodeStatus::CannotOpen;
  }
  const uint8_t* fmt = reinterpret_cast<const uint8_t*>(job.fmtBlock.constData());
  if (job.fmtBlock.size() < 16) return job.status = DecodeStatus::CannotOpen;
  PcmFormat f;
  f.formatTag = Le16(fmt);
  f.channels = Le16(fmt + 2);
  f.sampleRate = int(std::min<uint32_t>(Le32(fmt + 4), 0x7fffffff));
  f.bits = Le16(fmt + 14);
  f.dataBytes = uint32_t(std::min<uint64_t>(job.dataSize, kMaxWorkDataSize));
  if (!job.Begin(sink, f)) return job.status;
  // The data chunk as far as the file holds it, in whole frames.
  const uint64_t frame = uint64_t(f.channels) * uint64_t(std::max(f.bits / 8, 1));
  const uint64_t begin = std::min<uint64_t>(job.dataOffset, file.Size());
  const uint64_t avail = std::min<uint64_t>(job.dataSize, file.Size() - begin) / frame * frame;
  const uint8_t* p = file.View() + begin;
  const uint64_t chunk = std::max<uint64_t>(kPcmChunkBytes / frame, 1) * frame;
  for (uint64_t done = 0; done < avail;) {
    const uint64_t n = std::min(chunk, avail - done);
    PrefaultView(p + done, n);
    if (!job.Write(sink, p + done, size_t(n), {}, true)) break;
    done += n;
    if (!job.Checkpoint(double(done) / double(avail))) break;
  }
  sink.End(SizeRule::AsAnnounced);
  return job.status;
}

namespace {

// A WAV source: the header scan (when the caller has not made it), then the road of its tag.
DecodeStatus DecodeWav(DecodeJob& job, PcmSink& sink) {
  if (job.fmtBlock.isEmpty()) {
    MappedFile file;
    if (!file.Open(job.source)) {
      job.Report(NotOpenedText(job.source));
      return job.status = DecodeStatus::CannotOpen;
    }
    if (file.Size() == 0) {
      job.Report(Tonvane::tr("Sorry, but ") + Tonvane::tr("the file ") + job.source +
                 Tonvane::tr(" is empty and does not contain any sound data."));
      return job.status = DecodeStatus::NoSound;
    }
    const uint64_t span = 10ull * kAllocGranularity;
    if (!file.Map(0, std::min(file.Size(), span))) {
      job.Report(NotOpenedText(job.source));
      return job.status = DecodeStatus::CannotOpen;
    }
    const WavHeaderScan h = ScanWavHeader(file.View(), file.ViewSize(), span);
    if (!h.wave || !h.fmtFound) {
      job.Report(NotOpenedText(job.source));
      return job.status = DecodeStatus::CannotOpen;
    }
    job.fmtBlock = h.fmtBlock;
    job.dataOffset = h.dataOffset;
    job.dataSize = h.dataSize;
  }
  const WavHeaderScan f = [&] {
    WavHeaderScan h;
    const auto* p = reinterpret_cast<const uint8_t*>(job.fmtBlock.constData());
    if (job.fmtBlock.size() >= 2) h.tag = Le16(p);
    if (job.fmtBlock.size() >= 16) {
      h.channels = Le16(p + 2);
      h.bits = Le16(p + 14);
    }
    return h;
  }();
  if (f.tag == kTagMpegLayer3) return DecodeMpeg(job, sink);
  if (f.tag == 0) {
    job.Report(UnsupportedFormatQuestion(job.source), PromptIcon::Error);
    return job.status = DecodeStatus::Unsupported;
  }
  if (f.tag != kTagPcm && f.tag != kTagFloat) return DecodeWavConversion(job, sink);
  const bool channelsOk = f.channels == 1 || f.channels == 2;
  const bool bitsOk = f.bits == 8 || f.bits == 16 || f.bits == 24 || f.bits == 32;
  if (!channelsOk || !bitsOk) {
    job.Report(UnsupportedFormatQuestion(job.source), PromptIcon::Error);
    return job.status = DecodeStatus::Unsupported;
  }
  if (job.dataSize == 0) {
    job.Report(Tonvane::tr("Sorry, but the test is stopped as the file ") + job.source +
               Tonvane::tr(" is empty and does not contain a sound data. Please, select another file.\nDo You want to open a dialog of selection a file?"));
    return job.status = DecodeStatus::NoSound;
  }
  return DecodeWavPcm(job, sink);
}

}  // namespace

DecodeStatus DecodeToSink(DecodeJob& job, PcmSink& sink) {
  job.status = DecodeStatus::Ok;
  switch (job.kind) {
    case kKindWav: return DecodeWav(job, sink);
    case kKindMp3: return DecodeMpeg(job, sink);
    case kKindFlac: return DecodeFlac(job, sink);
    case kKindOgg: return DecodeOgg(job, sink);
    case kKindApe: return DecodeApe(job, sink);
    case kKindAac:
    case kKindAlac: return DecodeMp4OrAac(job, sink);
    default:
      job.Report(Tonvane::tr("Sorry, but the type of this file is not supported."));
      return job.status = DecodeStatus::CannotOpen;
  }
}
