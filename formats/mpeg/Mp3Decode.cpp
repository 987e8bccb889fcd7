// MPEG audio (and MPEG Layer III in RIFF) through libavformat and libavcodec, as the
// average test hears it: the demuxer's gapless trimming (encoder delay and padding from
// the LAME tag) reaches the decoder as side data and is applied there.
#include <QFile>
#include <algorithm>
#include <cstring>
#include <vector>

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
}

#include "app/Text.h"
#include "formats/Decode.h"

namespace {

// The decoder's objects, released on every way out.
struct Decoding {
  AVFormatContext* format = nullptr;
  AVCodecContext* codec = nullptr;
  AVPacket* packet = nullptr;
  AVFrame* frame = nullptr;
  ~Decoding() {
    av_frame_free(&frame);
    av_packet_free(&packet);
    avcodec_free_context(&codec);
    avformat_close_input(&format);
  }
};

// One decoded frame, interleaved: 16-bit integers stay as they are, everything else goes
// out as 32-bit float (full scale +-1), which the MPEG decoders give.
void Interleave(const AVFrame* f, bool asS16, std::vector<uint8_t>& out) {
  const int n = f->nb_samples;
  const int channels = f->ch_layout.nb_channels;
  const auto fmt = AVSampleFormat(f->format);
  const AVSampleFormat packed = av_get_packed_sample_fmt(fmt);
  const bool planar = av_sample_fmt_is_planar(fmt);
  const size_t width = asS16 ? 2 : 4;
  out.resize(size_t(n) * size_t(channels) * width);
  uint8_t* o = out.data();
  for (int i = 0; i < n; ++i) {
    for (int c = 0; c < channels; ++c, o += width) {
      const uint8_t* base = f->extended_data[planar ? c : 0];
      const int k = planar ? i : i * channels + c;
      if (asS16) {
        std::memcpy(o, base + 2 * size_t(k), 2);
        continue;
      }
      float v = 0;
      switch (packed) {
        case AV_SAMPLE_FMT_FLT: std::memcpy(&v, base + 4 * size_t(k), 4); break;
        case AV_SAMPLE_FMT_DBL: v = float(reinterpret_cast<const double*>(base)[k]); break;
        case AV_SAMPLE_FMT_S32: v = float(reinterpret_cast<const int32_t*>(base)[k] / 2147483648.0); break;
        case AV_SAMPLE_FMT_U8: v = float((int(base[k]) - 128) / 128.0); break;
        default: break;
      }
      std::memcpy(o, &v, 4);
    }
  }
}

}  // namespace

DecodeStatus DecodeMpeg(DecodeJob& job, PcmSink& sink) {
  Decoding d;
  const QByteArray name = QFile::encodeName(job.source);
  auto cannot = [&job] {
    job.Report(Tonvane::tr("Sorry, but the test of the file ") + job.source + Tonvane::tr(" was not possible to fulfill."));
    return job.status = DecodeStatus::CannotOpen;
  };
  if (avformat_open_input(&d.format, name.constData(), nullptr, nullptr) < 0) return cannot();
  // The first MPEG audio stream. Rate and channels come from the frames themselves, so
  // no frames are decoded ahead to probe them.
  int stream = -1;
  for (unsigned i = 0; i < d.format->nb_streams && stream < 0; ++i) {
    const AVCodecID id = d.format->streams[i]->codecpar->codec_id;
    if (id == AV_CODEC_ID_MP3 || id == AV_CODEC_ID_MP2 || id == AV_CODEC_ID_MP1) stream = int(i);
  }
  if (stream < 0) return cannot();
  const AVStream* st = d.format->streams[stream];
  const AVCodec* codec = avcodec_find_decoder(st->codecpar->codec_id);
  if (!codec) return cannot();
  d.codec = avcodec_alloc_context3(codec);
  d.packet = av_packet_alloc();
  d.frame = av_frame_alloc();
  if (!d.codec || !d.packet || !d.frame) return cannot();
  if (avcodec_parameters_to_context(d.codec, st->codecpar) < 0) return cannot();
  d.codec->pkt_timebase = st->time_base;
  if (avcodec_open2(d.codec, codec, nullptr) < 0) return cannot();
  const int64_t total = d.format->pb ? avio_size(d.format->pb) : -1;

  std::vector<uint8_t> pcm;
  bool asS16 = false;
  // Takes the frames the decoder has ready; false once the sink refuses or the control stops.
  auto drain = [&]() {
    for (;;) {
      const int rc = avcodec_receive_frame(d.codec, d.frame);
      if (rc < 0) return true;  // needs more input, the end, or a damaged frame skipped
      const AVFrame* f = d.frame;
      const int channels = f->ch_layout.nb_channels;
      const int samples = std::max(f->nb_samples, 0);
      if (samples > 0 && channels > 0) {
        if (!job.Began()) {
          asS16 = av_get_packed_sample_fmt(AVSampleFormat(f->format)) == AV_SAMPLE_FMT_S16;
          PcmFormat fmt;
          fmt.channels = channels;
          fmt.sampleRate = f->sample_rate;
          fmt.bits = asS16 ? 16 : 32;
          fmt.formatTag = asS16 ? 1 : 3;
          fmt.gainScaleBits = 16;
          fmt.mpeg = true;
          if (!job.Begin(sink, fmt)) return false;
        }
        // A change of rate or channels within the stream is not followed.
        if (f->sample_rate == job.format.sampleRate && channels == job.format.channels) {
          Interleave(f, asS16, pcm);
          if (!job.Write(sink, pcm.data(), pcm.size())) return false;
        }
      }
      av_frame_unref(d.frame);
      const int64_t pos = d.format->pb ? avio_tell(d.format->pb) : 0;
      if (!job.Checkpoint(total > 0 ? double(pos) / double(total) : 0.0)) return false;
    }
  };

  bool going = true;
  while (going) {
    const int rc = av_read_frame(d.format, d.packet);
    if (rc < 0) break;  // the end, or a read error: what was decoded counts
    if (d.packet->stream_index == stream) {
      const int sent = avcodec_send_packet(d.codec, d.packet);
      av_packet_unref(d.packet);
      if (sent < 0 && sent != AVERROR(EAGAIN)) continue;
      going = drain();
    } else {
      av_packet_unref(d.packet);
    }
  }
  if (going) {
    avcodec_send_packet(d.codec, nullptr);
    drain();
  }
  if (!job.Began()) {
    if (job.status == DecodeStatus::Ok) return cannot();
    return job.status;
  }
  sink.End(SizeRule::AsAnnounced);
  return job.status;
}
