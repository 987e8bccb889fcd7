#include "formats/FlacSource.h"

#include "formats/OpenPipeline.h"

#include <FLAC/stream_decoder.h>

#include <QFile>
#include <cmath>
#include <condition_variable>
#include <memory>
#include <mutex>
#include <thread>
#include <unistd.h>
#include <vector>

#include "app/Globals.h"
#include "app/Session.h"
#include "app/Text.h"
#include "formats/Decode.h"
#include "formats/WorkFile.h"

std::atomic<int> g_flacStatus{kFlacNoError};

namespace {

// The values of the stream-info block.
struct FlacStreamInfo {
  uint64_t totalSamples = 0;
  uint32_t sampleRate = 0;
  uint32_t channels = 0;
  uint32_t bits = 0;
};

bool IsSupported(const FlacStreamInfo& i) {
  return (i.channels == 1 || i.channels == 2) && (i.bits == 8 || i.bits == 16 || i.bits == 24);
}

// The decoder handle, released on every way out.
struct FlacDecoderHandle {
  FLAC__StreamDecoder* d = FLAC__stream_decoder_new();
  ~FlacDecoderHandle() {
    if (d) FLAC__stream_decoder_delete(d);
  }
  FlacDecoderHandle() = default;
  FlacDecoderHandle(const FlacDecoderHandle&) = delete;
  FlacDecoderHandle& operator=(const FlacDecoderHandle&) = delete;
};

// One decoding: the job, its sink and the stream values.
struct FlacRun {
  DecodeJob* job = nullptr;
  PcmSink* sink = nullptr;
  bool headerOnly = false;
  FlacStreamInfo info;
  std::vector<uint8_t> frame;  // one frame interleaved, reused
};

// Interleaves one frame into `dst` in the work file's form: 16 and 24 bits as little-endian
// signed, 8 bits unsigned (the sign bit inverted).
size_t Interleave(const FLAC__int32* const buffer[], unsigned frames, unsigned channels, unsigned bits,
                  uint8_t* dst) {
  uint8_t* p = dst;
  if (bits == 16) {
    if (channels == 2) {
      const FLAC__int32* l = buffer[0];
      const FLAC__int32* r = buffer[1];
      for (unsigned i = 0; i < frames; ++i) {
        const uint32_t a = uint32_t(l[i]), b = uint32_t(r[i]);
        p[0] = uint8_t(a);
        p[1] = uint8_t(a >> 8);
        p[2] = uint8_t(b);
        p[3] = uint8_t(b >> 8);
        p += 4;
      }
    } else {
      const FLAC__int32* m = buffer[0];
      for (unsigned i = 0; i < frames; ++i) {
        const uint32_t a = uint32_t(m[i]);
        p[0] = uint8_t(a);
        p[1] = uint8_t(a >> 8);
        p += 2;
      }
    }
  } else if (bits == 24) {
    for (unsigned i = 0; i < frames; ++i)
      for (unsigned c = 0; c < channels; ++c) {
        const uint32_t a = uint32_t(buffer[c][i]);
        p[0] = uint8_t(a);
        p[1] = uint8_t(a >> 8);
        p[2] = uint8_t(a >> 16);
        p += 3;
      }
  } else {
    for (unsigned i = 0; i < frames; ++i)
      for (unsigned c = 0; c < channels; ++c) *p++ = uint8_t(uint32_t(buffer[c][i]) - 128u);
  }
  return size_t(p - dst);
}

FLAC__StreamDecoderWriteStatus OnWrite(const FLAC__StreamDecoder*, const FLAC__Frame* frame,
                                       const FLAC__int32* const buffer[], void* client) {
  FlacRun& run = *static_cast<FlacRun*>(client);
  DecodeJob& job = *run.job;
  const FlacStreamInfo& info = run.info;
  if (run.headerOnly) return FLAC__STREAM_DECODER_WRITE_STATUS_ABORT;
  // A stream that does not say how long it is gives no samples at all.
  if (info.totalSamples == 0) {
    job.status = DecodeStatus::NoSound;
    return FLAC__STREAM_DECODER_WRITE_STATUS_ABORT;
  }
  // Nothing is written for a format the test cannot read; the open refuses it.
  if (!IsSupported(info)) {
    job.status = DecodeStatus::Unsupported;
    return FLAC__STREAM_DECODER_WRITE_STATUS_ABORT;
  }
  if (!job.Began()) {
    const uint64_t bytes = info.totalSamples * info.channels * ((info.bits + 7) / 8);
    PcmFormat f;
    f.channels = int(info.channels);
    f.sampleRate = int(info.sampleRate);
    f.bits = int(info.bits);
    f.dataBytes = bytes > kMaxWorkDataSize ? kMaxWorkDataSize : uint32_t(bytes);
    if (!job.Begin(*run.sink, f)) return FLAC__STREAM_DECODER_WRITE_STATUS_ABORT;
  }
  // A damaged frame that claims another layout than the stream's is left out.
  if (frame->header.channels < info.channels) return FLAC__STREAM_DECODER_WRITE_STATUS_CONTINUE;
  const unsigned frames = frame->header.blocksize;
  const size_t need = size_t(frames) * info.channels * ((info.bits + 7) / 8);
  if (run.frame.size() < need) run.frame.resize(need);
  const size_t bytes = Interleave(buffer, frames, info.channels, info.bits, run.frame.data());
  const uint64_t at = frame->header.number_type == FLAC__FRAME_NUMBER_TYPE_SAMPLE_NUMBER
                          ? frame->header.number.sample_number
                          : uint64_t(frame->header.number.frame_number) * frames;
  if (!job.Checkpoint(double(at) / double(info.totalSamples))) return FLAC__STREAM_DECODER_WRITE_STATUS_ABORT;
  if (!job.Write(*run.sink, run.frame.data(), bytes)) return FLAC__STREAM_DECODER_WRITE_STATUS_ABORT;
  return FLAC__STREAM_DECODER_WRITE_STATUS_CONTINUE;
}

void OnMetadata(const FLAC__StreamDecoder*, const FLAC__StreamMetadata* block, void* client) {
  FlacRun& run = *static_cast<FlacRun*>(client);
  if (block->type == FLAC__METADATA_TYPE_STREAMINFO) {
    const FLAC__StreamMetadata_StreamInfo& si = block->data.stream_info;
    run.info.totalSamples = si.total_samples;
    run.info.sampleRate = si.sample_rate;
    run.info.channels = si.channels;
    run.info.bits = si.bits_per_sample;
  }
}

// libFLAC's error statuses keep their numbers here: 0 lost sync, 1 bad header, 2 frame
// CRC mismatch, 3 unparseable stream (FLAC__StreamDecoderErrorStatus).
void OnError(const FLAC__StreamDecoder*, FLAC__StreamDecoderErrorStatus status, void* client) {
  FlacRun& run = *static_cast<FlacRun*>(client);
  run.job->flacError = int(status);
  if (run.job->flacStatus) run.job->flacStatus->store(int(status));
}

// Opens job.source with MD5 checking on; false after the message.
bool StartDecoder(FlacDecoderHandle& h, FlacRun& run) {
  const QString failed = Tonvane::tr("Sorry, but an error of opening has occurred decoding stream.");
  if (!h.d) {
    run.job->Report(failed);
    return false;
  }
  FLAC__stream_decoder_set_md5_checking(h.d, true);
  const QByteArray native = QFile::encodeName(run.job->source);
  if (FLAC__stream_decoder_init_file(h.d, native.constData(), OnWrite, OnMetadata, OnError, &run) !=
      FLAC__STREAM_DECODER_INIT_STATUS_OK) {
    run.job->Report(failed);
    return false;
  }
  return true;
}

// The stream-info values, read on the caller's thread before any decoding.
bool ReadStreamInfo(DecodeJob& job, FlacStreamInfo& info) {
  FlacDecoderHandle h;
  FlacRun run;
  run.job = &job;
  run.headerOnly = true;
  if (!StartDecoder(h, run)) return false;
  FLAC__stream_decoder_process_until_end_of_metadata(h.d);
  info = run.info;
  return true;
}

}  // namespace

DecodeStatus DecodeFlac(DecodeJob& job, PcmSink& sink) {
  FlacDecoderHandle h;
  FlacRun run;
  run.job = &job;
  run.sink = &sink;
  if (!StartDecoder(h, run)) return job.status = DecodeStatus::CannotOpen;
  FLAC__stream_decoder_process_until_end_of_stream(h.d);
  if (job.Began()) sink.End(SizeRule::AsAnnounced);
  if (job.status == DecodeStatus::Ok && !job.Began()) job.status = DecodeStatus::NoSound;
  return job.status;
}

QString FlacStatusText(int status) {
  switch (status) {
    case 0: return Tonvane::tr("An error in the stream caused the decoder to lose synchronization.");
    case 1: return Tonvane::tr("The decoder encountered a corrupted frame header.");
    case 2: return Tonvane::tr(" The frame's data do not match the CRC in the footer.");
    case 3: return Tonvane::tr("The decoder encountered reserved fields in use in the stream.");
    default: return {};
  }
}

int ShowFlacError(Session& s, const QString& path) {
  const int status = g_flacStatus.load();
  if (status < 0 || status > 3) return 0;
  s.m_prompt.Message(Tonvane::tr("Sorry but the file ") + path + Tonvane::tr(" has errors. ") + FlacStatusText(status),
                     PromptIcon::Information, QStringLiteral("FlacError"));
  return 1;
}

int OpenFlac(Session& s) {
  s.m_decodeContext = -1;
  g_flacStatus = kFlacNoError;
  s.m_levelLeft = s.m_levelRight = -1.0f;
  if (g_workFile >= 0) {
    ::close(g_workFile);
    g_workFile = -1;
  }

  auto job = std::make_shared<DecodeJob>();
  job->kind = kKindFlac;
  job->source = s.m_fileName;
  job->prompt = &s.m_prompt;
  job->flacStatus = &g_flacStatus;
  const QString workPath = g_workPath;
  const bool withWorker = !s.m_noWorker;
  auto writer = std::make_shared<WorkFileWriter>();
  if (withWorker && !writer->Open(workPath, g_sourcePath)) {
    s.m_prompt.Message(Tonvane::tr("Sorry, but the file ") + workPath + Tonvane::tr(" cannot be created."), PromptIcon::Error);
    return 0;
  }
  auto dropWorkFile = [&] {
    writer->Close();
    if (withWorker) DeleteWorkFile(workPath);
  };

  // The stream values first, on this thread: nothing waits for the worker.
  FlacStreamInfo info;
  if (!ReadStreamInfo(*job, info)) {
    dropWorkFile();
    return 0;
  }

  s.m_formatTag = 1;
  s.m_bits = int(info.bits);
  s.m_channels = int(info.channels);
  s.m_sampleRate = int(info.sampleRate);
  const int64_t bytes = int64_t(info.totalSamples) * int64_t(info.channels) * int64_t((info.bits + 7) / 8);
  const int64_t perSecond = int64_t(info.bits / 8) * int64_t(info.channels) * int64_t(info.sampleRate);
  const double ms = perSecond > 0 ? double(bytes) / double(perSecond) * 1000.0 : 0.0;
  s.m_durationMs = ms < 4294967295.0 ? uint32_t(std::llround(ms)) : 0xFFFFFFFFu;
  s.m_levelLeft = s.m_levelRight = -1.0f;

  if (!IsSupported(info)) {
    // Nothing would be written for such a stream: no worker, no work file.
    dropWorkFile();
    RefuseUnsupportedFormat(s);
    return 0;
  }

  SetPcmPropertyLines(s, info.bits, info.channels, info.sampleRate);
  s.m_propertyLines[3] = Tonvane::tr("  Audio Format      FLAC");
  if (withWorker &&
      !StartWorkerOrReport(s, [job, writer] { return DecodeFlac(*job, *writer) == DecodeStatus::Ok ? 0 : 1; })) {
    dropWorkFile();
    return 0;
  }
  ShowFlacError(s, s.m_fileName);
  return 1;
}
