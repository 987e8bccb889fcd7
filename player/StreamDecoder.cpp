#include "player/StreamDecoder.h"

#include <QFile>
#include <QFileInfo>

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
#include <libavutil/channel_layout.h>
#include <libavutil/opt.h>
#include <libswresample/swresample.h>
}

#include <algorithm>
#include <cstring>

namespace snd {

namespace {
// Rates outside this span are no sound a device can be asked to play.
constexpr int kMinRate = 1000;
constexpr int kMaxRate = 768000;
// A run of this many packets that fail to decode ends the stream: the rest is damage.
constexpr int kMaxBadPackets = 200;
}  // namespace

struct StreamDecoder::Av {
  AVFormatContext* fmt = nullptr;
  AVCodecContext* codec = nullptr;
  SwrContext* swr = nullptr;
  AVPacket* packet = nullptr;
  AVFrame* frame = nullptr;
  int stream = -1;
  AVRational timeBase{1, 1};
  int64_t startPts = 0;
  ~Av() {
    swr_free(&swr);
    av_frame_free(&frame);
    av_packet_free(&packet);
    avcodec_free_context(&codec);
    avformat_close_input(&fmt);
  }
};

StreamDecoder::StreamDecoder() = default;
StreamDecoder::~StreamDecoder() = default;

Result StreamDecoder::Open(const QString& path, int outRate, int outChannels) {
  m_av.reset();
  if (!QFileInfo(path).isFile()) return ERR_FILE_NOTFOUND;
  if (outRate < kMinRate || outRate > kMaxRate || outChannels < 1 || outChannels > 8) return ERR_INVALID_PARAM;
  auto av = std::make_unique<Av>();
  const QByteArray name = QFile::encodeName(path);
  // MPEG audio: no table of contents, so seeks go through the index of frames read so far,
  // which is exact.
  AVDictionary* options = nullptr;
  av_dict_set(&options, "usetoc", "0", 0);
  const int opened = avformat_open_input(&av->fmt, name.constData(), nullptr, &options);
  av_dict_free(&options);
  if (opened < 0) {
    QFile probe(path);
    return probe.open(QIODevice::ReadOnly) ? ERR_FORMAT : ERR_FILE_BAD;
  }
  if (avformat_find_stream_info(av->fmt, nullptr) < 0) return ERR_FORMAT;
  const AVCodec* codec = nullptr;
  av->stream = av_find_best_stream(av->fmt, AVMEDIA_TYPE_AUDIO, -1, -1, &codec, 0);
  if (av->stream < 0 || codec == nullptr) return ERR_FORMAT;
  AVStream* st = av->fmt->streams[av->stream];
  for (unsigned i = 0; i < av->fmt->nb_streams; ++i)
    if (int(i) != av->stream) av->fmt->streams[i]->discard = AVDISCARD_ALL;
  av->codec = avcodec_alloc_context3(codec);
  if (av->codec == nullptr) return ERR_MEMORY;
  if (avcodec_parameters_to_context(av->codec, st->codecpar) < 0) return ERR_FORMAT;
  if (avcodec_open2(av->codec, codec, nullptr) < 0) return ERR_FORMAT;
  m_sourceRate = av->codec->sample_rate;
  m_sourceChannels = av->codec->ch_layout.nb_channels;
  if (m_sourceRate < kMinRate || m_sourceRate > kMaxRate || m_sourceChannels < 1) return ERR_FORMAT;
  av->timeBase = st->time_base;
  av->startPts = st->start_time == AV_NOPTS_VALUE ? 0 : st->start_time;
  if (st->duration != AV_NOPTS_VALUE && st->duration > 0)
    m_lengthMs = uint32_t(std::min<int64_t>(av_rescale_q(st->duration, st->time_base, AVRational{1, 1000}), UINT32_MAX));
  else if (av->fmt->duration != AV_NOPTS_VALUE && av->fmt->duration > 0)
    m_lengthMs = uint32_t(std::min<int64_t>(av->fmt->duration / 1000, UINT32_MAX));
  else
    m_lengthMs = 0;
  av->packet = av_packet_alloc();
  av->frame = av_frame_alloc();
  if (av->packet == nullptr || av->frame == nullptr) return ERR_MEMORY;
  m_outRate = outRate;
  m_outChannels = outChannels;
  m_av = std::move(av);
  if (!ResetResampler()) {
    m_av.reset();
    return ERR_FORMAT;
  }
  m_nextSample = 0;
  m_dropUntil = -1;
  m_eof = false;
  m_atStart = true;
  // Prime: a file that decodes to nothing is refused now rather than heard as silence.
  m_primed.clear();
  while (m_primed.empty())
    if (!DecodeFrame(m_primed)) break;
  if (m_primed.empty()) {
    m_av.reset();
    return ERR_FILE_EOF;
  }
  return OK;
}

bool StreamDecoder::ResetResampler() {
  swr_free(&m_av->swr);
  AVChannelLayout out{};
  av_channel_layout_default(&out, m_outChannels);
  AVChannelLayout in{};
  if (av_channel_layout_copy(&in, &m_av->codec->ch_layout) < 0 || in.order == AV_CHANNEL_ORDER_UNSPEC)
    av_channel_layout_default(&in, m_av->codec->ch_layout.nb_channels);
  const int rc = swr_alloc_set_opts2(&m_av->swr, &out, AV_SAMPLE_FMT_FLT, m_outRate, &in, m_av->codec->sample_fmt,
                                     m_av->codec->sample_rate, 0, nullptr);
  av_channel_layout_uninit(&out);
  if (rc < 0 || m_av->swr == nullptr) {
    av_channel_layout_uninit(&in);
    return false;
  }
  // A mono file sounds on both speakers at its own level, not 3 dB down.
  if (in.nb_channels == 1 && m_outChannels >= 2) {
    std::vector<double> matrix(size_t(m_outChannels), 0.0);
    matrix[0] = matrix[1] = 1.0;
    swr_set_matrix(m_av->swr, matrix.data(), 1);
  }
  av_channel_layout_uninit(&in);
  return swr_init(m_av->swr) >= 0;
}

bool StreamDecoder::DecodeFrame(std::vector<float>& out) {
  Av& av = *m_av;
  int bad = 0;
  for (;;) {
    int rc = avcodec_receive_frame(av.codec, av.frame);
    if (rc == 0) {
      const int n = av.frame->nb_samples;
      int64_t first = m_nextSample;
      const int64_t pts = av.frame->best_effort_timestamp;
      if (pts != AV_NOPTS_VALUE)
        first = av_rescale_q(pts - av.startPts, av.timeBase, AVRational{1, m_sourceRate});
      m_nextSample = first + n;
      int skip = 0;
      if (m_dropUntil > first) skip = int(std::min<int64_t>(n, m_dropUntil - first));
      if (skip >= n) {
        av_frame_unref(av.frame);
        continue;
      }
      m_dropUntil = -1;
      const int bytesPerSample = av_get_bytes_per_sample(AVSampleFormat(av.frame->format));
      const bool planar = av_sample_fmt_is_planar(AVSampleFormat(av.frame->format));
      const uint8_t* in[AV_NUM_DATA_POINTERS] = {};
      const int planes = planar ? av.frame->ch_layout.nb_channels : 1;
      for (int p = 0; p < planes && p < AV_NUM_DATA_POINTERS; ++p) {
        const int offset = skip * bytesPerSample * (planar ? 1 : av.frame->ch_layout.nb_channels);
        in[p] = av.frame->extended_data[p] + offset;
      }
      const int room = swr_get_out_samples(av.swr, n - skip);
      const size_t at = out.size();
      out.resize(at + size_t(std::max(room, 0)) * size_t(m_outChannels));
      uint8_t* dst = reinterpret_cast<uint8_t*>(out.data() + at);
      const int got = swr_convert(av.swr, &dst, room, in, n - skip);
      out.resize(at + size_t(std::max(got, 0)) * size_t(m_outChannels));
      av_frame_unref(av.frame);
      return true;
    }
    if (rc == AVERROR_EOF) {
      // Whatever the resampler still holds.
      const int room = swr_get_out_samples(av.swr, 0);
      if (room > 0) {
        const size_t at = out.size();
        out.resize(at + size_t(room) * size_t(m_outChannels));
        uint8_t* dst = reinterpret_cast<uint8_t*>(out.data() + at);
        const int got = swr_convert(av.swr, &dst, room, nullptr, 0);
        out.resize(at + size_t(std::max(got, 0)) * size_t(m_outChannels));
      }
      return false;
    }
    if (rc != AVERROR(EAGAIN)) return false;
    // The decoder wants input.
    if (m_eof) return false;
    rc = av_read_frame(av.fmt, av.packet);
    if (rc < 0) {
      m_eof = true;
      avcodec_send_packet(av.codec, nullptr);
      continue;
    }
    if (av.packet->stream_index != av.stream) {
      av_packet_unref(av.packet);
      continue;
    }
    rc = avcodec_send_packet(av.codec, av.packet);
    av_packet_unref(av.packet);
    if (rc < 0 && rc != AVERROR(EAGAIN)) {
      // A damaged packet: skip it, but not for ever.
      if (++bad > kMaxBadPackets) return false;
    } else {
      bad = 0;
    }
  }
}

bool StreamDecoder::Decode(std::vector<float>& out) {
  if (!m_av) return false;
  m_atStart = false;
  if (!m_primed.empty()) {
    out.insert(out.end(), m_primed.begin(), m_primed.end());
    m_primed.clear();
    return true;
  }
  const size_t before = out.size();
  while (out.size() == before)
    if (!DecodeFrame(out)) return out.size() != before;
  return true;
}

Result StreamDecoder::SeekMs(uint32_t ms) {
  if (!m_av) return ERR_INVALID_HANDLE;
  if (ms == 0 && m_atStart) return OK;
  Av& av = *m_av;
  const int64_t target = av.startPts + av_rescale_q(ms, AVRational{1, 1000}, av.timeBase);
  if (av_seek_frame(av.fmt, av.stream, target, AVSEEK_FLAG_BACKWARD) < 0 &&
      av_seek_frame(av.fmt, av.stream, av.startPts, AVSEEK_FLAG_BACKWARD) < 0 &&
      avformat_seek_file(av.fmt, -1, INT64_MIN, 0, 0, 0) < 0)
    return ERR_FILE_COULDNOTSEEK;
  avcodec_flush_buffers(av.codec);
  if (!ResetResampler()) return ERR_FORMAT;
  m_primed.clear();
  m_eof = false;
  m_nextSample = 0;  // until the first frame says where it stands
  m_dropUntil = av_rescale(ms, m_sourceRate, 1000);
  m_atStart = ms == 0;
  return OK;
}

}  // namespace snd
