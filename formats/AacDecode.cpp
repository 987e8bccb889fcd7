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
#include "formats/WorkFile.h"

const QString kMp4DecoderFamily = QStringLiteral("Mp4Decoder");

namespace {

void ThreadBox(Session& s, const QString& text) {
  s.m_prompt.Message(text, PromptIcon::Information, kMp4DecoderFamily);
}

QString CannotBeOpenedText(const QString& path) {
  return Tonvane::tr("Sorry, but ") + Tonvane::tr("the file ") + path + Tonvane::tr(" cannot be opened");
}

QString FaadInitErrorText() { return Tonvane::tr("Error initializing decoder library faad. "); }

// Patches the two size fields from the running total and reports a failure.
void FinishWorkFile(Session& s, WorkFileWriter& w, float total) {
  if (!w.PatchSizes(total)) {
    s.m_prompt.Message(w.LastStep() == 1 ? WorkSeekFailedText(w.Path()) : WorkWriteFailedText(w.Path()),
                       PromptIcon::Error);
  }
  w.Close();
}

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
bool WriteFrame(WorkFileWriter& w, const void* pcm, unsigned long samples, int bits, std::vector<uint8_t>& scratch) {
  if (bits != 24) return w.Write(pcm, size_t(samples) * size_t(bits / 8));
  scratch.resize(size_t(samples) * 3);
  const int32_t* in = static_cast<const int32_t*>(pcm);
  for (unsigned long i = 0; i < samples; ++i) {
    const uint32_t v = uint32_t(in[i]);
    scratch[i * 3] = uint8_t(v);
    scratch[i * 3 + 1] = uint8_t(v >> 8);
    scratch[i * 3 + 2] = uint8_t(v >> 16);
  }
  return w.Write(scratch.data(), scratch.size());
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

int DecodeMp4Aac(Session& s) {
  const QString source = g_sourcePath;
  const QString work = g_workPath;
  FILE* fp = std::fopen(QFile::encodeName(source).constData(), "rb");
  if (!fp) {
    s.m_prompt.Message(CannotBeOpenedText(source), PromptIcon::Information);
    return 1;
  }
  mp4ff_callback_t callbacks{ReadCallback, SeekCallback, fp};
  mp4ff_t* mp4 = mp4ff_open_read(&callbacks);
  if (!mp4) {
    s.m_prompt.Message(CannotBeOpenedText(source), PromptIcon::Information);
    std::fclose(fp);
    return 1;
  }
  auto closeAll = [&] {
    mp4ff_close(mp4);
    std::fclose(fp);
  };

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
    ThreadBox(s, Tonvane::tr("Sorry, but ") + Tonvane::tr("correct AAC sound track is impossible to find in the Mp4 file."));
    closeAll();
    return 1;
  }

  FaadHandle dec;
  const NeAACDecConfigurationPtr cfg = dec.h ? NeAACDecGetCurrentConfiguration(dec.h) : nullptr;
  unsigned long rate = 0;
  unsigned char channels = 0;
  const char init = dec.h && cfg ? NeAACDecInit2(dec.h, config, configSize, &rate, &channels) : -1;
  std::free(config);
  if (init < 0) {
    ThreadBox(s, FaadInitErrorText());
    closeAll();
    return 1;
  }
  if (!CreateEmptyWorkFile(work, source)) {
    s.m_prompt.Message(CannotBeCreatedText(work), PromptIcon::Error);
    closeAll();
    return 1;
  }

  WorkFileWriter w;
  std::vector<uint8_t> scratch;
  uint64_t totalSamples = 0;
  int bits = 0;
  bool headerDone = false;
  const int samples = mp4ff_num_samples(mp4, track);
  for (int i = 0; i < samples; ++i) {
    unsigned char* data = nullptr;
    unsigned int size = 0;
    if (mp4ff_read_sample(mp4, track, i, &data, &size) == 0) {
      ThreadBox(s, Tonvane::tr("Reading was failed from Mp4 file."));
      closeAll();
      return 1;
    }
    NeAACDecFrameInfo info;
    std::memset(&info, 0, sizeof info);
    void* pcm = NeAACDecDecode(dec.h, &info, data, size);
    std::free(data);
    if (info.error) {
      ThreadBox(s, FaadInitErrorText() + QString::fromLatin1(NeAACDecGetErrorMessage(info.error)));
      break;
    }
    if (!headerDone) {
      bits = BitsOfOutputFormat(cfg->outputFormat);
      if (bits == 0) {
        closeAll();
        return 1;
      }
      const uint16_t tag = cfg->outputFormat == FAAD_FMT_FLOAT ? 3 : 1;
      if (!w.Create(work, info.channels, int(info.samplerate), bits, tag, 0, source)) {
        s.m_prompt.Message(CannotBeCreatedText(work), PromptIcon::Error);
        closeAll();
        return 1;
      }
      if (s.m_bits != bits) s.m_bits = bits;
      headerDone = true;
    }
    if (pcm && info.samples > 0) {
      totalSamples += info.samples;
      if (!WriteFrame(w, pcm, info.samples, bits, scratch)) {
        s.m_prompt.Message(WorkWriteFailedText(work), PromptIcon::Error);
        closeAll();
        return 1;
      }
    }
  }
  closeAll();
  if (!headerDone) return 1;
  FinishWorkFile(s, w, float(totalSamples * uint64_t(bits / 8)));
  return 0;
}

int DecodeRawAac(Session& s) {
  const QString source = g_sourcePath;
  const QString work = g_workPath;
  MappedFile file;
  if (!MapSourceForProbe(s, file, source)) return 1;
  const uint8_t* data = file.View();
  const uint64_t size = file.ViewSize();
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
    ThreadBox(s, FaadInitErrorText());
    return 1;
  }
  p += uint64_t(consumed);
  if (p > size || size - p < kWindow) {
    s.m_prompt.Message(AacEmptyFileText(source), PromptIcon::Error);
    return 1;
  }
  if (!CreateEmptyWorkFile(work, source)) {
    s.m_prompt.Message(CannotBeCreatedText(work), PromptIcon::Error);
    return 1;
  }

  WorkFileWriter w;
  std::vector<uint8_t> scratch;
  uint64_t totalSamples = 0;
  int bits = 0;
  int frameChannels = 0;
  bool headerDone = false;
  uint64_t window = kWindow;
  for (;;) {
    NeAACDecFrameInfo info;
    std::memset(&info, 0, sizeof info);
    void* pcm = NeAACDecDecode(dec.h, &info, const_cast<uint8_t*>(data + p), (unsigned long)window);
    if (info.error) {
      ThreadBox(s, FaadInitErrorText() + QString::fromLatin1(NeAACDecGetErrorMessage(info.error)));
      break;
    }
    p += info.bytesconsumed;
    if (!headerDone) {
      bits = BitsOfOutputFormat(cfg->outputFormat);
      if (bits == 0) return 1;
      const uint16_t tag = cfg->outputFormat == FAAD_FMT_FLOAT ? 3 : 1;
      if (!w.Create(work, info.channels, int(info.samplerate), bits, tag, 0, source)) {
        s.m_prompt.Message(CannotBeCreatedText(work), PromptIcon::Error);
        return 1;
      }
      frameChannels = info.channels;
      rate = info.samplerate;
      if (s.m_channels == 0) {
        // ADIF: the count comes with the first frame.
        s.m_channels = info.channels;
        s.m_propertyLines[1] = Tonvane::tr("  Channels            ") + QString::number(info.channels);
      }
      headerDone = true;
    }
    if (pcm && info.samples > 0) {
      totalSamples += info.samples;
      if (!WriteFrame(w, pcm, info.samples, bits, scratch)) {
        s.m_prompt.Message(WorkWriteFailedText(work), PromptIcon::Error);
        return 1;
      }
    }
    if (!pcm || info.bytesconsumed == 0) break;
    if (p >= size) break;
    if (size - p < window) window = size - p;
  }
  if (!headerDone) return 1;
  const uint64_t dataBytes = totalSamples * uint64_t(bits / 8);
  if (s.m_durationMs == 0 && rate > 0 && frameChannels > 0) {
    const double seconds = double(dataBytes) / (double(rate) * (bits / 8) * frameChannels);
    s.m_durationMs = uint32_t(seconds * 1000.0);
  }
  FinishWorkFile(s, w, float(dataBytes));
  return 0;
}

int DecodeAlac(Session& s) {
  const QString source = g_sourcePath;
  const QString work = g_workPath;
  MappedFile file;
  if (!MapSourceForProbe(s, file, source)) return 1;
  const uint8_t* data = file.View();
  const uint64_t size = file.ViewSize();

  Mp4AtomWalk walk;
  WalkMp4Atoms(data, size, 0, walk);
  const uint64_t a = walk.alacPos;
  if (a == 0 || walk.alacSize < 12 || a + 8 + (walk.alacSize - 12) > size || walk.stszPos == 0 ||
      walk.mdatPayload == 0)
    return 1;
  auto be32 = [&](uint64_t p) -> uint32_t {
    return p + 4 <= size ? uint32_t(data[p]) << 24 | uint32_t(data[p + 1]) << 16 | uint32_t(data[p + 2]) << 8 | data[p + 3]
                         : 0;
  };
  ALACDecoder decoder;
  if (decoder.Init(data + a + 8, walk.alacSize - 12) != kAlacNoErr) return 1;
  const uint32_t frameLength = decoder.config().frameLength;
  const uint32_t bitDepth = decoder.config().bitDepth;
  const uint32_t numChannels = decoder.config().numChannels;
  const uint32_t sampleRate = decoder.config().sampleRate;
  if (bitDepth != 16 && bitDepth != 24 && bitDepth != 32) return 1;  // 20 bits: no work file data
  if (numChannels == 0) return 1;
  const int bits = int(bitDepth);
  const uint32_t bytesPerFrame = numChannels * uint32_t(bits / 8);
  std::vector<uint8_t> out(size_t(frameLength) * bytesPerFrame + 16);

  WorkFileWriter w;
  if (!w.Create(work, int(numChannels), int(sampleRate), bits, 1, 0, source)) {
    s.m_prompt.Message(CannotBeCreatedText(work), PromptIcon::Error);
    return 1;
  }

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
  uint64_t total = 0;
  uint64_t pos = walk.mdatPayload;
  uint32_t packetSize = nextSize();
  for (uint64_t left = count > 0 ? count - 1 : 0; left > 0; --left) {
    if (pos > size || packetSize > size - pos) break;  // the media data ends early
    packet.assign(data + pos, data + pos + packetSize);
    packet.resize(packetSize + kAlacPacketPadding, 0);
    BitBuffer bitBuffer(packet.data(), packetSize);
    uint32_t frames = 0;
    decoder.Decode(&bitBuffer, out.data(), frameLength, numChannels, &frames);
    if (frames > 0) {
      const size_t bytes = size_t(frames) * bytesPerFrame;
      if (!w.Write(out.data(), bytes)) {
        s.m_prompt.Message(WorkWriteFailedText(work), PromptIcon::Error);
        return 1;
      }
      total += bytes;
    }
    pos += packetSize;
    packetSize = nextSize();
  }
  file.Unmap();
  FinishWorkFile(s, w, float(total));
  return 0;
}
