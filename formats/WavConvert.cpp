#include "formats/WavConvert.h"

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
#include <libavutil/channel_layout.h>
}

#include <QFile>
#include <cmath>
#include <cstring>
#include <memory>
#include <vector>

#include "app/FileErrors.h"
#include "app/Globals.h"
#include "app/Session.h"
#include "app/Text.h"
#include "formats/WorkFile.h"

namespace {

constexpr uint16_t kTagPcm = 1;
constexpr uint16_t kTagFloat = 3;
constexpr uint16_t kTagExtensible = 0xFFFE;

uint16_t Le16(const QByteArray& b, int at) { return uint16_t(uint8_t(b[at]) | uint8_t(b[at + 1]) << 8); }
uint32_t Le32(const QByteArray& b, int at) { return uint32_t(Le16(b, at)) | uint32_t(Le16(b, at + 2)) << 16; }

// The fields of a WAVEFORMATEX (and its extensible tail) as far as the block holds them.
struct WaveFormat {
  uint16_t tag = 0;
  uint16_t channels = 0;
  uint32_t sampleRate = 0;
  uint32_t avgBytesPerSec = 0;
  uint16_t blockAlign = 0;
  uint16_t bits = 0;
  QByteArray extra;        // the codec's own bytes behind the 18-byte header
  uint16_t codecTag = 0;   // the tag that picks the decoder
  bool tagKnown = true;    // false for an extensible subformat outside the standard set
};

WaveFormat ParseFormat(const QByteArray& fmt) {
  WaveFormat w;
  if (fmt.size() < 16) {
    w.tagKnown = false;
    return w;
  }
  w.tag = Le16(fmt, 0);
  w.channels = Le16(fmt, 2);
  w.sampleRate = Le32(fmt, 4);
  w.avgBytesPerSec = Le32(fmt, 8);
  w.blockAlign = Le16(fmt, 12);
  w.bits = Le16(fmt, 14);
  w.codecTag = w.tag;
  const int cbSize = fmt.size() >= 18 ? Le16(fmt, 16) : 0;
  const int extraLen = std::min(cbSize, int(fmt.size()) - 18);
  if (extraLen > 0) w.extra = fmt.mid(18, extraLen);
  if (w.tag == kTagExtensible) {
    // Valid bits, channel mask, then the subformat GUID; the standard subformats are a
    // format tag followed by the fixed tail 0000-0010-8000-00AA00389B71.
    static const uint8_t kTail[12] = {0x00, 0x00, 0x10, 0x00, 0x80, 0x00, 0x00, 0xAA, 0x00, 0x38, 0x9B, 0x71};
    if (w.extra.size() < 22 || std::memcmp(w.extra.constData() + 10, kTail, 12) != 0 ||
        Le16(w.extra, 8) != 0) {
      w.tagKnown = false;
      return w;
    }
    w.codecTag = Le16(w.extra, 6);
    w.extra = w.extra.mid(22);
  }
  return w;
}

bool IsPcmCodec(AVCodecID id) {
  return id == AV_CODEC_ID_PCM_U8 || id == AV_CODEC_ID_PCM_S16LE || id == AV_CODEC_ID_PCM_S24LE ||
         id == AV_CODEC_ID_PCM_S32LE;
}
bool IsFloatCodec(AVCodecID id) { return id == AV_CODEC_ID_PCM_F32LE || id == AV_CODEC_ID_PCM_F64LE; }

// The decoder of a format: PCM and float by their width, everything else from the RIFF tag
// table of the demuxer library.
AVCodecID CodecOf(const WaveFormat& w) {
  if (!w.tagKnown) return AV_CODEC_ID_NONE;
  if (w.codecTag == kTagPcm) {
    switch (w.bits) {
      case 8: return AV_CODEC_ID_PCM_U8;
      case 16: return AV_CODEC_ID_PCM_S16LE;
      case 24: return AV_CODEC_ID_PCM_S24LE;
      case 32: return AV_CODEC_ID_PCM_S32LE;
      default: return AV_CODEC_ID_NONE;
    }
  }
  if (w.codecTag == kTagFloat) {
    if (w.bits == 32) return AV_CODEC_ID_PCM_F32LE;
    if (w.bits == 64) return AV_CODEC_ID_PCM_F64LE;
    return AV_CODEC_ID_NONE;
  }
  const AVCodecTag* const tables[] = {avformat_get_riff_audio_tags(), nullptr};
  const AVCodecID id = av_codec_get_id(tables, w.codecTag);
  if (id == AV_CODEC_ID_NONE || !avcodec_find_decoder(id)) return AV_CODEC_ID_NONE;
  return id;
}

ConversionPlan PlanOf(const WaveFormat& w, AVCodecID id) {
  ConversionPlan p;
  if (id == AV_CODEC_ID_NONE) return p;
  p.known = true;
  const AVCodecDescriptor* d = avcodec_descriptor_get(id);
  p.codecName = QString::fromUtf8(d && d->long_name ? d->long_name : avcodec_get_name(id));
  p.sourceTag = w.codecTag;
  p.channels = w.channels;
  p.sampleRate = int(w.sampleRate);
  if (IsPcmCodec(id)) {
    p.bits = w.bits;  // the container's width
  } else if (IsFloatCodec(id)) {
    p.bits = 32;
    p.workTag = kTagFloat;
  } else {
    p.bits = 16;
  }
  return p;
}

struct CodecContextFree {
  void operator()(AVCodecContext* c) const { avcodec_free_context(&c); }
};
using CodecContext = std::unique_ptr<AVCodecContext, CodecContextFree>;

// Opens the decoder for the source's format; null when the decoder refuses it.
CodecContext OpenDecoder(const WaveFormat& w, AVCodecID id) {
  const AVCodec* codec = avcodec_find_decoder(id);
  if (!codec) return nullptr;
  CodecContext c(avcodec_alloc_context3(codec));
  if (!c) return nullptr;
  c->sample_rate = int(std::min<uint32_t>(w.sampleRate, INT32_MAX));
  av_channel_layout_uninit(&c->ch_layout);
  av_channel_layout_default(&c->ch_layout, w.channels);
  c->block_align = w.blockAlign;
  c->bits_per_coded_sample = w.bits;
  c->bit_rate = int64_t(w.avgBytesPerSec) * 8;
  c->codec_tag = w.codecTag;
  if (!w.extra.isEmpty()) {
    c->extradata = static_cast<uint8_t*>(av_mallocz(size_t(w.extra.size()) + AV_INPUT_BUFFER_PADDING_SIZE));
    if (!c->extradata) return nullptr;
    std::memcpy(c->extradata, w.extra.constData(), size_t(w.extra.size()));
    c->extradata_size = int(w.extra.size());
  }
  c->thread_count = 1;
  if (avcodec_open2(c.get(), codec, nullptr) < 0) return nullptr;
  return c;
}

int32_t ClipToInt(double v, int bits) {
  const double hi = std::ldexp(1.0, bits - 1);
  const double r = std::nearbyint(v * hi);
  if (r >= hi) return int32_t(hi - 1);
  if (r < -hi) return int32_t(-hi);
  return int32_t(r);
}

// Writes one decoded frame in the work file's form into `out` (interleaved little-endian;
// 8 bits unsigned). Returns the bytes produced.
size_t ConvertFrame(const AVFrame* f, int channels, int bits, uint16_t workTag, std::vector<uint8_t>& out) {
  const int n = f->nb_samples;
  const int bytesPer = (bits + 7) / 8;
  const size_t size = size_t(n) * size_t(channels) * size_t(bytesPer);
  if (out.size() < size) out.resize(size);
  const AVSampleFormat fmt = AVSampleFormat(f->format);
  const bool planar = av_sample_fmt_is_planar(fmt);
  const AVSampleFormat packed = av_get_packed_sample_fmt(fmt);
  uint8_t* p = out.data();

  if (packed == AV_SAMPLE_FMT_S16 && bits == 16 && workTag == kTagPcm) {
    if (!planar) {
      std::memcpy(p, f->extended_data[0], size);
      return size;
    }
    for (int i = 0; i < n; ++i)
      for (int c = 0; c < channels; ++c) {
        const int16_t v = reinterpret_cast<const int16_t*>(f->extended_data[c])[i];
        p[0] = uint8_t(v);
        p[1] = uint8_t(uint16_t(v) >> 8);
        p += 2;
      }
    return size;
  }

  auto sampleAt = [&](int c, int i) -> const uint8_t* {
    const int step = av_get_bytes_per_sample(fmt);
    return planar ? f->extended_data[c] + size_t(i) * step : f->extended_data[0] + (size_t(i) * channels + c) * step;
  };
  for (int i = 0; i < n; ++i) {
    for (int c = 0; c < channels; ++c) {
      const uint8_t* s = sampleAt(c, i);
      if (workTag == kTagFloat) {
        float v = 0;
        switch (packed) {
          case AV_SAMPLE_FMT_FLT: std::memcpy(&v, s, 4); break;
          case AV_SAMPLE_FMT_DBL: { double d; std::memcpy(&d, s, 8); v = float(d); break; }
          case AV_SAMPLE_FMT_S16: { int16_t x; std::memcpy(&x, s, 2); v = float(x) / 32768.0f; break; }
          case AV_SAMPLE_FMT_S32: { int32_t x; std::memcpy(&x, s, 4); v = float(double(x) / 2147483648.0); break; }
          case AV_SAMPLE_FMT_U8: v = float(int(*s) - 128) / 128.0f; break;
          default: break;
        }
        std::memcpy(p, &v, 4);
        p += 4;
        continue;
      }
      // Integers are widened to 32 bits and cut to the work file's width; floats are
      // scaled to that width and rounded.
      int32_t v = 0;
      switch (packed) {
        case AV_SAMPLE_FMT_U8: v = int32_t(uint32_t(int(*s) - 128) << 24); break;
        case AV_SAMPLE_FMT_S16: { int16_t x; std::memcpy(&x, s, 2); v = int32_t(uint32_t(int32_t(x)) << 16); break; }
        case AV_SAMPLE_FMT_S32: std::memcpy(&v, s, 4); break;
        case AV_SAMPLE_FMT_FLT: { float x; std::memcpy(&x, s, 4); v = ClipToInt(x, bits); break; }
        case AV_SAMPLE_FMT_DBL: { double x; std::memcpy(&x, s, 8); v = ClipToInt(x, bits); break; }
        default: break;
      }
      if (packed != AV_SAMPLE_FMT_FLT && packed != AV_SAMPLE_FMT_DBL && bits < 32) v >>= (32 - bits);
      const uint32_t u = uint32_t(v);
      switch (bytesPer) {
        case 1: p[0] = uint8_t(u + 128u); break;
        case 2: p[0] = uint8_t(u); p[1] = uint8_t(u >> 8); break;
        case 3: p[0] = uint8_t(u); p[1] = uint8_t(u >> 8); p[2] = uint8_t(u >> 16); break;
        default: p[0] = uint8_t(u); p[1] = uint8_t(u >> 8); p[2] = uint8_t(u >> 16); p[3] = uint8_t(u >> 24); break;
      }
      p += bytesPer;
    }
  }
  return size;
}

// One conversion: the decoder, the mapped source and the work file, owned by the worker.
struct ConversionJob {
  Session* s = nullptr;
  CodecContext decoder;
  MappedFile source;
  WorkFileWriter out;
  QString workPath;
  uint64_t dataBegin = 0, dataEnd = 0;
  uint32_t blockBytes = kConversionBlock;
  size_t packetBytes = 0;  // 0: the whole block in one packet
  ConversionPlan plan;
};

int ConvertBody(ConversionJob& job) {
  Session& s = *job.s;
  AVPacket* pkt = av_packet_alloc();
  AVFrame* frame = av_frame_alloc();
  std::vector<uint8_t> in(size_t(job.blockBytes) + AV_INPUT_BUFFER_PADDING_SIZE);
  std::vector<uint8_t> pcm;
  const int channels = job.plan.channels;
  bool failed = !pkt || !frame;

  // Takes every frame the decoder has ready; false after a short write.
  auto drain = [&]() {
    for (;;) {
      const int r = avcodec_receive_frame(job.decoder.get(), frame);
      if (r < 0) return true;  // wants more input, has ended, or the data was bad
      if (frame->ch_layout.nb_channels == channels) {
        const size_t bytes = ConvertFrame(frame, channels, job.plan.bits, job.plan.workTag, pcm);
        if (!job.out.Write(pcm.data(), bytes)) return false;
      }
      av_frame_unref(frame);
    }
  };

  // The source goes in blocks of kConversionBlock bytes; a codec that works in blocks of
  // its own gets them one packet each, as a demuxer would hand them over.
  const uint8_t* view = job.source.View();
  const size_t packetBytes = job.packetBytes ? job.packetBytes : job.blockBytes;
  for (uint64_t pos = job.dataBegin; !failed && pos < job.dataEnd;) {
    const size_t chunk = size_t(std::min<uint64_t>(job.blockBytes, job.dataEnd - pos));
    std::memcpy(in.data(), view + pos, chunk);
    std::memset(in.data() + chunk, 0, AV_INPUT_BUFFER_PADDING_SIZE);
    pos += chunk;
    g_sampleBytesRead += chunk;
    for (size_t at = 0; !failed && at < chunk; at += packetBytes) {
      pkt->data = in.data() + at;
      pkt->size = int(std::min(packetBytes, chunk - at));
      // A packet the decoder rejects is dropped; the next one is offered as usual.
      int r = avcodec_send_packet(job.decoder.get(), pkt);
      while (r == AVERROR(EAGAIN)) {
        if (!drain()) { failed = true; break; }
        r = avcodec_send_packet(job.decoder.get(), pkt);
      }
      if (!failed && !drain()) failed = true;
    }
  }
  if (!failed) {
    avcodec_send_packet(job.decoder.get(), nullptr);
    if (!drain()) failed = true;
  }
  av_frame_free(&frame);
  av_packet_free(&pkt);
  job.decoder.reset();
  job.source.Close();

  if (failed) {
    job.out.Close();
    s.m_prompt.Message(WorkWriteFailedText(job.workPath), PromptIcon::Error);
    return 1;
  }
  const double total = double(job.out.Total());
  const double perSecond = double(channels * ((job.plan.bits + 7) / 8)) * double(job.plan.sampleRate);
  const double ms = perSecond > 0 ? total / perSecond * 1000.0 : 0.0;
  s.m_durationMs = ms < 4294967295.0 ? uint32_t(std::llround(ms)) : 0xFFFFFFFFu;
  if (!job.out.PatchSizes(job.out.Total())) {
    s.m_prompt.Message(job.out.LastStep() == 1 ? WorkSeekFailedText(job.workPath) : WorkWriteFailedText(job.workPath),
                       PromptIcon::Error);
    job.out.Close();
    return 1;
  }
  job.out.Close();
  return 0;
}

}  // namespace

ConversionPlan PlanConversion(const QByteArray& fmtBlock) {
  const WaveFormat w = ParseFormat(fmtBlock);
  return PlanOf(w, CodecOf(w));
}

int OpenWavConversion(Session& s) {
  const WaveFormat w = ParseFormat(s.m_fmtBlock);
  const AVCodecID id = CodecOf(w);
  if (id == AV_CODEC_ID_NONE) {
    s.m_prompt.Message(Tonvane::tr("Sorry, but ") + Tonvane::tr("the file ") + s.m_fileName + Tonvane::tr(" cannot be opened"),
                       PromptIcon::Information);
    return 0;
  }
  // A format block the decoder can make nothing of: the file stays unopened, silently.
  if (w.channels == 0 || w.sampleRate == 0) return 0;
  const ConversionPlan plan = PlanOf(w, id);

  auto job = std::make_shared<ConversionJob>();
  job->s = &s;
  job->plan = plan;
  job->workPath = g_workPath;
  job->decoder = OpenDecoder(w, id);
  if (!job->decoder) {
    s.m_prompt.Message(Tonvane::tr("A stream of data conversion did not succeed to open"), PromptIcon::Warning);
    return 0;
  }
  // Whole source blocks for codecs that work in blocks.
  // (a 16-bit block alignment always fits in one conversion block)
  if (w.blockAlign > 1) job->blockBytes = kConversionBlock / w.blockAlign * w.blockAlign;
  if (!IsPcmCodec(id) && !IsFloatCodec(id) && w.blockAlign >= 32) job->packetBytes = w.blockAlign;

  s.m_bits = plan.bits;
  // The scanner reads 32-bit samples as float only under tag 3.
  if (plan.workTag == kTagFloat) s.m_formatTag = kTagFloat;
  s.m_propertyLines[0] = Tonvane::tr("  Bit Rate               ") +
                         QString::number(std::floor(double(w.avgBytesPerSec) * 8.0 / 1000.0 + 0.5), 'f', 0) + Tonvane::tr(" kbps");
  s.m_propertyLines[1] = Tonvane::tr("  Channels             ") + QString::number(w.channels);
  s.m_propertyLines[2] = Tonvane::tr("  Frequency          ") + QString::number(w.sampleRate) + Tonvane::tr(" Hz");
  s.m_propertyLines[3] = Tonvane::tr("  Audio Format      PCM").chopped(3) + plan.codecName;
  if (s.m_noWorker) {
    // Without a conversion the length comes from the codec's frames per block, where the
    // codec tells it; the conversion sets the true value when it runs.
    const uint64_t bytes = s.m_dataSize;
    const int block = w.blockAlign > 0 ? w.blockAlign : 1;
    const int perBlock = av_get_audio_frame_duration(job->decoder.get(), block);
    const int perRest = bytes % uint64_t(block) ? av_get_audio_frame_duration(job->decoder.get(), int(bytes % uint64_t(block))) : 0;
    const double frames = double(bytes / uint64_t(block)) * perBlock + perRest;
    const double ms = plan.sampleRate > 0 ? frames / plan.sampleRate * 1000.0 : 0.0;
    s.m_durationMs = perBlock > 0 && ms < 4294967295.0 ? uint32_t(std::llround(ms)) : 0;
    s.m_sampleRate = plan.sampleRate;
    s.m_channels = plan.channels;
    return 1;
  }

  if (!job->out.Open(g_workPath, g_sourcePath)) {
    s.m_prompt.Message(Tonvane::tr("Sorry, but ") + Tonvane::tr("the file ") + g_workPath + Tonvane::tr(" cannot be created."), PromptIcon::Error);
    return 0;
  }
  if (!job->out.WriteHeader(plan.channels, plan.sampleRate, plan.bits, plan.workTag, 0)) {
    DeleteWorkFile(g_workPath);
    s.m_prompt.Message(WorkWriteFailedText(g_workPath), PromptIcon::Error);
    return 0;
  }
  if (!job->source.Open(g_sourcePath) || !job->source.Map(0, job->source.Size())) {
    const int err = job->source.LastErrno();
    job->out.Close();
    DeleteWorkFile(g_workPath);
    ReportFileError(s, Tonvane::tr(" create a file mapping is impossible"), s.m_fileName, Tonvane::tr("Therefore the test will be stopped."),
                    ErrorCodeFromErrno(err, s.m_fileName), true);
    return 0;
  }
  const uint64_t size = job->source.Size();
  job->dataBegin = std::min<uint64_t>(s.m_dataOffset, size);
  job->dataEnd = std::min<uint64_t>(uint64_t(s.m_dataOffset) + s.m_dataSize, size);
  // The source's data chunk says nothing of the work file's: the test looks for that one
  // in the work file itself.
  s.m_dataOffset = 0;
  s.m_dataSize = 0;

  s.m_sampleRate = plan.sampleRate;
  s.m_channels = plan.channels;
  StartWorker([job]() { return ConvertBody(*job); });
  return 1;
}
