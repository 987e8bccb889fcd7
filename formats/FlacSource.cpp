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
#include "formats/WorkFile.h"

std::atomic<int> g_flacStatus{kFlacNoError};
std::atomic<int> g_flacAborted{0};

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

// One decoding: the decoder, its output and the stream values. The open and the worker
// share it; the open reads the values only through `taken`, the copy made when the
// stream-info block arrived, because the worker clears `info` at its end, which on a very
// short file can come before the open has looked.
struct FlacJob {
  FLAC__StreamDecoder* decoder = nullptr;
  Session* s = nullptr;
  WorkFileWriter* out = nullptr;
  QString outPath;
  bool onCallerThread = false;  // the batch decodes on the window's thread and may pump
  bool headerWritten = false;
  FlacStreamInfo info;
  std::vector<uint8_t> frame;  // one frame interleaved, reused

  std::mutex lock;
  std::condition_variable signal;
  bool infoReady = false;
  FlacStreamInfo taken;

  void SetInfoReady() {
    std::lock_guard<std::mutex> g(lock);
    if (!infoReady) taken = info;
    infoReady = true;
    signal.notify_all();
  }
  FlacStreamInfo WaitInfo() {
    std::unique_lock<std::mutex> g(lock);
    signal.wait(g, [this] { return infoReady; });
    return taken;
  }
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
  FlacJob& job = *static_cast<FlacJob*>(client);
  const FlacStreamInfo& info = job.info;
  // A stream that does not say how long it is gives no work file at all.
  if (info.totalSamples == 0) return FLAC__STREAM_DECODER_WRITE_STATUS_ABORT;
  // Nothing is written for a format the test cannot read; the open refuses it.
  if (!IsSupported(info)) return FLAC__STREAM_DECODER_WRITE_STATUS_ABORT;
  if (!job.headerWritten) {
    const uint64_t bytes = info.totalSamples * info.channels * ((info.bits + 7) / 8);
    const uint32_t dataBytes = bytes > kMaxWorkDataSize ? kMaxWorkDataSize : uint32_t(bytes);
    if (!job.out->WriteHeader(int(info.channels), int(info.sampleRate), int(info.bits), 1, dataBytes)) {
      job.out->Close();
      job.s->m_prompt.Message(WorkWriteFailedText(job.outPath), PromptIcon::Error);
      g_flacAborted = 1;
      return FLAC__STREAM_DECODER_WRITE_STATUS_ABORT;
    }
    job.headerWritten = true;
  }
  // A damaged frame that claims another layout than the stream's is left out.
  if (frame->header.channels < info.channels) return FLAC__STREAM_DECODER_WRITE_STATUS_CONTINUE;
  const unsigned frames = frame->header.blocksize;
  const size_t need = size_t(frames) * info.channels * ((info.bits + 7) / 8);
  if (job.frame.size() < need) job.frame.resize(need);
  const size_t bytes = Interleave(buffer, frames, info.channels, info.bits, job.frame.data());

  if (job.onCallerThread) {
    Session& s = *job.s;
    if (s.PumpMessages() == 0 || s.m_exitRequested) {
      g_flacAborted = 1;
      return FLAC__STREAM_DECODER_WRITE_STATUS_ABORT;
    }
    if (s.m_pauseToggle) {
      s.m_pauseToggle = 0;
      s.m_testPaused = 1;
      while (!s.m_pauseToggle && !s.m_exitRequested) s.PumpMessages();
      s.m_pauseToggle = 0;
      s.m_testPaused = 0;
    }
  }
  if (!job.out->Write(job.frame.data(), bytes)) {
    job.out->Close();
    job.s->m_prompt.Message(WorkWriteFailedText(job.outPath), PromptIcon::Error);
    g_flacAborted = 1;
    return FLAC__STREAM_DECODER_WRITE_STATUS_ABORT;
  }
  return FLAC__STREAM_DECODER_WRITE_STATUS_CONTINUE;
}

void OnMetadata(const FLAC__StreamDecoder*, const FLAC__StreamMetadata* block, void* client) {
  FlacJob& job = *static_cast<FlacJob*>(client);
  if (block->type == FLAC__METADATA_TYPE_STREAMINFO) {
    const FLAC__StreamMetadata_StreamInfo& si = block->data.stream_info;
    job.info.totalSamples = si.total_samples;
    job.info.sampleRate = si.sample_rate;
    job.info.channels = si.channels;
    job.info.bits = si.bits_per_sample;
  }
  job.SetInfoReady();
}

void OnError(const FLAC__StreamDecoder*, FLAC__StreamDecoderErrorStatus status, void*) {
  g_flacStatus = int(status);
}

// Creates the decoder with MD5 checking on and opens `path`; null after the message.
FLAC__StreamDecoder* StartDecoder(Session& s, const QString& path, FlacJob* job) {
  const QString failed = Tonvane::tr("Sorry, but an error of opening has occurred decoding stream.");
  FLAC__StreamDecoder* d = FLAC__stream_decoder_new();
  if (!d) {
    s.m_prompt.Message(failed, PromptIcon::Error);
    return nullptr;
  }
  FLAC__stream_decoder_set_md5_checking(d, true);
  const QByteArray native = QFile::encodeName(path);
  if (FLAC__stream_decoder_init_file(d, native.constData(), OnWrite, OnMetadata, OnError, job) !=
      FLAC__STREAM_DECODER_INIT_STATUS_OK) {
    job->SetInfoReady();
    FLAC__stream_decoder_delete(d);
    s.m_prompt.Message(failed, PromptIcon::Error);
    return nullptr;
  }
  return d;
}

}  // namespace

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
  g_flacAborted = 0;
  s.m_levelLeft = s.m_levelRight = -1.0f;
  if (g_workFile >= 0) {
    ::close(g_workFile);
    g_workFile = -1;
  }

  auto job = std::make_shared<FlacJob>();
  auto writer = std::make_shared<WorkFileWriter>();
  job->s = &s;
  job->out = writer.get();
  job->outPath = g_workPath;
  const bool withWorker = !s.m_noWorker;
  if (withWorker && !writer->Open(g_workPath, g_sourcePath)) {
    s.m_prompt.Message(Tonvane::tr("Sorry, but the file ") + g_workPath + Tonvane::tr(" cannot be created."), PromptIcon::Error);
    return 0;
  }
  auto dropWorkFile = [&] {
    writer->Close();
    if (withWorker) DeleteWorkFile(job->outPath);
  };

  job->decoder = StartDecoder(s, s.m_fileName, job.get());
  if (!job->decoder) {
    dropWorkFile();
    return 0;
  }

  FlacStreamInfo info;
  if (withWorker) {
    StartWorker([job, writer]() {
      FLAC__stream_decoder_process_until_end_of_stream(job->decoder);
      FLAC__stream_decoder_delete(job->decoder);
      job->decoder = nullptr;
      writer->Close();
      job->SetInfoReady();  // a stream without a stream-info block frees the open here
      job->info = FlacStreamInfo{};
      return g_flacAborted.load() ? 1 : 0;
    });
    info = job->WaitInfo();
  } else {
    FLAC__stream_decoder_process_until_end_of_metadata(job->decoder);
    FLAC__stream_decoder_delete(job->decoder);
    job->decoder = nullptr;
    job->SetInfoReady();
    info = job->WaitInfo();
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
    // The worker has written nothing for such a stream; let it end and take its file away.
    if (withWorker) {
      while (g_workerBusy.load()) std::this_thread::sleep_for(std::chrono::milliseconds(1));
      JoinWorker();
      DeleteWorkFile(job->outPath);
    }
    RefuseUnsupportedFormat(s);
    return 0;
  }

  SetPcmPropertyLines(s, info.bits, info.channels, info.sampleRate);
  s.m_propertyLines[3] = Tonvane::tr("  Audio Format      FLAC");
  ShowFlacError(s, s.m_fileName);
  return 1;
}
