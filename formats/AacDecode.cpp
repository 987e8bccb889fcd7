#include "formats/AacDecode.h"

#include <neaacdec.h>

#include <QFile>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <memory>
#include <unistd.h>
#include <vector>

#include <QFileInfo>

#include "app/Globals.h"
#include "app/Session.h"
#include "app/Text.h"
#include "formats/AacFile.h"
#include "formats/AlacDecoder.h"
#include "formats/Mp4ff.h"
#include "formats/Decode.h"
#include "formats/WorkFile.h"

const QString kMp4DecoderFamily = QStringLiteral("Mp4Decoder");

namespace {

void ThreadBox(DecodeJob& job, const QString& text) { job.Report(text, PromptIcon::Information, kMp4DecoderFamily); }

QString CannotBeOpenedText(const QString& path) {
  return Tonvane::tr("Sorry, but ") + Tonvane::tr("the file ") + path + Tonvane::tr(" cannot be opened");
}

QString FaadInitErrorText() { return Tonvane::tr("Error initializing decoder library faad. "); }

// The sample width of the decoder's output format; 0 for a format the work file can't hold.
int BitsOfOutputFormat(unsigned char format) {
  switch (format) {
    case FAAD_FMT_16BIT: return 16;
    case FAAD_FMT_24BIT: return 24;
    case FAAD_FMT_32BIT:
    case FAAD_FMT_FLOAT: return 32;
    default: return 0;
  }
}

// Writes one decoded frame. The 24-bit output of the library stands in 32-bit words;
// the work file packs it into 3 bytes.
bool WriteFrame(DecodeJob& job, PcmSink& sink, const void* pcm, unsigned long samples, int bits,
                std::vector<uint8_t>& scratch) {
  if (bits != 24) return job.Write(sink, pcm, size_t(samples) * size_t(bits / 8));
  scratch.resize(size_t(samples) * 3);
  const int32_t* in = static_cast<const int32_t*>(pcm);
  for (unsigned long i = 0; i < samples; ++i) {
    const uint32_t v = uint32_t(in[i]);
    scratch[i * 3] = uint8_t(v);
    scratch[i * 3 + 1] = uint8_t(v >> 8);
    scratch[i * 3 + 2] = uint8_t(v >> 16);
  }
  return job.Write(sink, scratch.data(), scratch.size());
}

// The format of the first decoded frame, begun on the sink.
bool BeginFromFrame(DecodeJob& job, PcmSink& sink, const NeAACDecConfigurationPtr cfg, const NeAACDecFrameInfo& info) {
  const int bits = BitsOfOutputFormat(cfg->outputFormat);
  if (bits == 0) {
    job.status = DecodeStatus::Unsupported;
    return false;
  }
  PcmFormat f;
  f.channels = info.channels;
  f.sampleRate = int(info.samplerate);
  f.bits = bits;
  f.formatTag = cfg->outputFormat == FAAD_FMT_FLOAT ? 3 : 1;
  return job.Begin(sink, f);
}

uint32_t ReadCallback(void* user, void* buffer, uint32_t length) {
  return uint32_t(std::fread(buffer, 1, length, static_cast<FILE*>(user)));
}

uint32_t SeekCallback(void* user, uint64_t position) {
  return fseeko(static_cast<FILE*>(user), off_t(position), SEEK_SET) == 0 ? 0 : 1;
}

struct FaadHandle {
  NeAACDecHandle h = NeAACDecOpen();
  ~FaadHandle() {
    if (h) NeAACDecClose(h);
  }
};

// AAC in an MP4 container: the mp4ff reader and faad2, sample by sample.
DecodeStatus DecodeMp4Aac(DecodeJob& job, PcmSink& sink) {
  const QString& source = job.source;
  FILE* fp = std::fopen(QFile::encodeName(source).constData(), "rb");
  if (!fp) {
    job.Report(CannotBeOpenedText(source), PromptIcon::Information);
    return job.status = DecodeStatus::CannotOpen;
  }
  mp4ff_callback_t callbacks{ReadCallback, SeekCallback, fp};
  mp4ff_t* mp4 = mp4ff_open_read(&callbacks);
  struct Release {
    FILE* fp;
    mp4ff_t* mp4;
    ~Release() {
      if (mp4) mp4ff_close(mp4);
      std::fclose(fp);
    }
  } release{fp, mp4};
  if (!mp4) {
    job.Report(CannotBeOpenedText(source), PromptIcon::Information);
    return job.status = DecodeStatus::CannotOpen;
  }

  // The first track whose decoder-specific info the library takes is the AAC track.
  int track = -1;
  unsigned char* config = nullptr;
  unsigned int configSize = 0;
  for (int t = 0; t < mp4ff_total_tracks(mp4); ++t) {
    unsigned char* buf = nullptr;
    unsigned int size = 0;
    if (mp4ff_get_decoder_config(mp4, t, &buf, &size) != 0 || !buf) continue;
    mp4AudioSpecificConfig asc;
    std::memset(&asc, 0, sizeof asc);
    if (NeAACDecAudioSpecificConfig(buf, size, &asc) >= 0) {
      track = t;
      config = buf;
      configSize = size;
      break;
    }
    std::free(buf);
  }
  if (track < 0) {
    ThreadBox(job, Tonvane::tr("Sorry, but ") + Tonvane::tr("correct AAC sound track is impossible to find in the Mp4 file."));
    return job.status = DecodeStatus::CannotOpen;
  }

  FaadHandle dec;
  const NeAACDecConfigurationPtr cfg = dec.h ? NeAACDecGetCurrentConfiguration(dec.h) : nullptr;
  unsigned long rate = 0;
  unsigned char channels = 0;
  const char init = dec.h && cfg ? NeAACDecInit2(dec.h, config, configSize, &rate, &channels) : -1;
  std::free(config);
  if (init < 0) {
    ThreadBox(job, FaadInitErrorText());
    return job.status = DecodeStatus::CannotOpen;
  }

  std::vector<uint8_t> scratch;
  const int samples = mp4ff_num_samples(mp4, track);
  for (int i = 0; i < samples; ++i) {
    unsigned char* data = nullptr;
    unsigned int size = 0;
    if (mp4ff_read_sample(mp4, track, i, &data, &size) == 0) {
      ThreadBox(job, Tonvane::tr("Reading was failed from Mp4 file."));
      job.status = DecodeStatus::Damaged;
      break;
    }
    NeAACDecFrameInfo info;
    std::memset(&info, 0, sizeof info);
    void* pcm = NeAACDecDecode(dec.h, &info, data, size);
    std::free(data);
    if (info.error) {
      ThreadBox(job, FaadInitErrorText() + QString::fromLatin1(NeAACDecGetErrorMessage(info.error)));
      job.status = DecodeStatus::Damaged;
      break;
    }
    if (!job.Began() && !BeginFromFrame(job, sink, cfg, info)) return job.status;
    if (pcm && info.samples > 0 && !WriteFrame(job, sink, pcm, info.samples, job.format.bits, scratch)) break;
    if ((i & 63) == 63 && !job.Checkpoint(double(i) / samples)) break;
  }
  if (!job.Began()) return job.status == DecodeStatus::Ok ? job.status = DecodeStatus::NoSound : job.status;
  if (!sink.End(SizeRule::FromRunningTotal) && job.status == DecodeStatus::Ok) {
    job.Report(sink.FailureText());
    job.status = DecodeStatus::SinkFailed;
  }
  return job.status;
}

// A raw ADTS or ADIF stream: faad2 over the mapped file.
DecodeStatus DecodeRawAac(DecodeJob& job, PcmSink& sink, const uint8_t* data, uint64_t size) {
  uint64_t p = FindAacStart(data, size).offset;
  constexpr uint64_t kWindow = 0x1800;
  FaadHandle dec;
  const NeAACDecConfigurationPtr cfg = dec.h ? NeAACDecGetCurrentConfiguration(dec.h) : nullptr;
  unsigned long rate = 0;
  unsigned char channels = 0;
  long consumed = -1;
  if (dec.h && cfg && p < size)
    consumed = NeAACDecInit(dec.h, const_cast<uint8_t*>(data + p), (unsigned long)std::min(kWindow, size - p), &rate,
                            &channels);
  if (consumed < 0) {
    ThreadBox(job, FaadInitErrorText());
    return job.status = DecodeStatus::CannotOpen;
  }
  p += uint64_t(consumed);
  if (p > size || size - p < kWindow) {
    job.Report(AacEmptyFileText(job.source));
    return job.status = DecodeStatus::NoSound;
  }

  std::vector<uint8_t> scratch;
  uint64_t window = kWindow;
  for (unsigned frame = 0;; ++frame) {
    NeAACDecFrameInfo info;
    std::memset(&info, 0, sizeof info);
    void* pcm = NeAACDecDecode(dec.h, &info, const_cast<uint8_t*>(data + p), (unsigned long)window);
    if (info.error) {
      ThreadBox(job, FaadInitErrorText() + QString::fromLatin1(NeAACDecGetErrorMessage(info.error)));
      job.status = DecodeStatus::Damaged;
      break;
    }
    p += info.bytesconsumed;
    if (!job.Began() && !BeginFromFrame(job, sink, cfg, info)) return job.status;
    if (pcm && info.samples > 0 && !WriteFrame(job, sink, pcm, info.samples, job.format.bits, scratch)) break;
    if (!pcm || info.bytesconsumed == 0) break;
    if (p >= size) break;
    if (size - p < window) window = size - p;
    if ((frame & 63) == 63 && !job.Checkpoint(double(p) / double(size))) break;
  }
  if (!job.Began()) return job.status == DecodeStatus::Ok ? job.status = DecodeStatus::NoSound : job.status;
  if (!sink.End(SizeRule::FromRunningTotal) && job.status == DecodeStatus::Ok) {
    job.Report(sink.FailureText());
    job.status = DecodeStatus::SinkFailed;
  }
  return job.status;
}

// ALAC in an MP4 container: packets one after the other from the start of the media data.
DecodeStatus DecodeAlac(DecodeJob& job, PcmSink& sink, const uint8_t* data, uint64_t size) {
  Mp4AtomWalk walk;
  WalkMp4Atoms(data, size, 0, walk);
  const uint64_t a = walk.alacPos;
  if (a == 0 || walk.alacSize < 12 || a + 8 + (walk.alacSize - 12) > size || walk.stszPos == 0 ||
      walk.mdatPayload == 0)
    return job.status = DecodeStatus::CannotOpen;
  auto be32 = [&](uint64_t p) -> uint32_t {
    return p + 4 <= size ? uint32_t(data[p]) << 24 | uint32_t(data[p + 1]) << 16 | uint32_t(data[p + 2]) << 8 | data[p + 3]
                         : 0;
  };
  ALACDecoder decoder;
  if (decoder.Init(data + a + 8, walk.alacSize - 12) != kAlacNoErr) return job.status = DecodeStatus::CannotOpen;
  const uint32_t frameLength = decoder.config().frameLength;
  const uint32_t bitDepth = decoder.config().bitDepth;
  const uint32_t numChannels = decoder.config().numChannels;
  // 20 bits and channel-less streams give no work file data.
  if ((bitDepth != 16 && bitDepth != 24 && bitDepth != 32) || numChannels == 0)
    return job.status = DecodeStatus::Unsupported;
  PcmFormat f;
  f.channels = int(numChannels);
  f.sampleRate = int(decoder.config().sampleRate);
  f.bits = int(bitDepth);
  if (!job.Begin(sink, f)) return job.status;
  const uint32_t bytesPerFrame = numChannels * uint32_t(f.bits / 8);
  std::vector<uint8_t> out(size_t(frameLength) * bytesPerFrame + 16);

  // The packet sizes: the table behind the header of "stsz" (or one size for all).
  const uint64_t entries = walk.stszPos + 16;
  const uint32_t fixedSize = be32(walk.stszPos + 8);
  uint64_t count = walk.stszSize >= 20 ? (walk.stszSize - 16) / 4 : 0;  // one read ahead of the table
  if (fixedSize != 0) count = uint64_t(be32(walk.stszPos + 12)) + 1;
  uint64_t entry = entries;
  auto nextSize = [&]() -> uint32_t {
    const uint32_t v = fixedSize ? fixedSize : be32(entry);
    entry += 4;
    return v;
  };

  std::vector<uint8_t> packet;
  uint64_t pos = walk.mdatPayload;
  uint32_t packetSize = nextSize();
  const uint64_t packets = count > 0 ? count - 1 : 0;
  for (uint64_t left = packets; left > 0; --left) {
    if (pos > size || packetSize > size - pos) break;  // the media data ends early
    packet.assign(data + pos, data + pos + packetSize);
    packet.resize(packetSize + kAlacPacketPadding, 0);
    BitBuffer bitBuffer(packet.data(), packetSize);
    uint32_t frames = 0;
    decoder.Decode(&bitBuffer, out.data(), frameLength, numChannels, &frames);
    if (frames > 0 && !job.Write(sink, out.data(), size_t(frames) * bytesPerFrame)) break;
    pos += packetSize;
    packetSize = nextSize();
    if ((left & 63) == 0 && !job.Checkpoint(double(packets - left) / double(packets))) break;
  }
  if (!sink.End(SizeRule::FromExactTotal) && job.status == DecodeStatus::Ok) {
    job.Report(sink.FailureText());
    job.status = DecodeStatus::SinkFailed;
  }
  return job.status;
}

}  // namespace

bool CreateEmptyWorkFile(const QString& workPath, const QString& sourcePath) {
  if (workPath.isEmpty()) return false;
  if (!sourcePath.isEmpty() && QFileInfo(workPath).absoluteFilePath() == QFileInfo(sourcePath).absoluteFilePath())
    return false;  // a decoder never writes to its source
  DeleteWorkFile(workPath);  // a read-only file of an earlier run
  const int fd = ::open(QFile::encodeName(workPath).constData(), O_RDWR | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
  if (fd < 0) return false;
  ::close(fd);
  return true;
}

QString CannotBeCreatedText(const QString& workPath) {
  return Tonvane::tr("Sorry, but ") + Tonvane::tr("the file ") + workPath + Tonvane::tr(" cannot be created.");
}

DecodeStatus DecodeMp4OrAac(DecodeJob& job, PcmSink& sink) {
  MappedFile file;
  if (!file.Open(job.source) || file.Size() == 0 || !file.Map(0, file.Size())) {
    job.Report(file.Size() == 0 && file.LastErrno() == 0 ? AacEmptyFileText(job.source) : CannotBeOpenedText(job.source));
    return job.status = DecodeStatus::CannotOpen;
  }
  const AACFile probe(file.View(), file.ViewSize());
  if (probe.type() == AACFile::kTypeAlac) return DecodeAlac(job, sink, file.View(), file.ViewSize());
  if (probe.type() != AACFile::kTypeAac) {
    job.Report(CannotBeOpenedText(job.source));
    return job.status = DecodeStatus::CannotOpen;
  }
  if (probe.channels() > 2) {
    job.Report(Tonvane::tr("Sorry, but ") + Tonvane::tr("the file ") + job.source +
               Tonvane::tr(" has unsupported by the program a format of sound data.") +
               Tonvane::tr(" The file has an amount of channels more than 2."));
    return job.status = DecodeStatus::Unsupported;
  }
  if (probe.isMp4()) {
    file.Close();
    return DecodeMp4Aac(job, sink);
  }
  return DecodeRawAac(job, sink, file.View(), file.ViewSize());
}
