#include "batch/PropertyScan.h"

#include <FLAC/metadata.h>
#include <vorbis/vorbisfile.h>

#include <QFileInfo>
#include <cerrno>
#include <cmath>
#include <cstring>

#include "app/FileErrors.h"
#include "app/Session.h"
#include "app/Text.h"
#include "batch/BatchList.h"
#include "formats/AacFile.h"
#include "formats/ApeDecoder.h"
#include "formats/ApeSource.h"
#include "formats/Kinds.h"
#include "formats/OpenPipeline.h"
#include "formats/WavConvert.h"
#include "formats/WorkFile.h"
#include "formats/mpeg/Mp3Open.h"

namespace {

// Families of "Don't show again" for the scan's messages.
const QString kFamilyMp = QStringLiteral("notAgainMp");
const QString kFamilyWav = QStringLiteral("notAgainWav");
const QString kFamilyFlac = QStringLiteral("notAgainFlac");
const QString kFamilyApe = QStringLiteral("notAgainApe");

QString CannotOpen(const QString& path, int err) {
  return FileErrorText(Tonvane::tr(" cannot be opened"), path, QString(), ErrorCodeFromErrno(err, path), true);
}
QString NoSoundData(const QString& path) {
  return Tonvane::tr("Sorry, but test of the volume level was stopped because the file ") + path +
         Tonvane::tr(" is empty and does not contain any sound data.");
}
QString Unsupported(const QString& path) {
  return Tonvane::tr("Sorry, but ") + Tonvane::tr("the file ") + path +
         Tonvane::tr(" has unsupported by the program a format of sound data.");
}
QString RateText(uint32_t rate) { return rate ? QString::number(rate) + Tonvane::tr(" Hz") : QString(); }
QString KbpsText(long kbps) { return QStringLiteral(" %1").arg(kbps) + Tonvane::tr(" kbps"); }

ScanOutcome Bad(BatchFileInfo& f, const QString& why, QString* family = nullptr, const QString& fam = {}) {
  const QString path = f.path;
  const uint32_t kind = f.kind;
  f = BatchFileInfo{};
  f.path = path;
  f.kind = kind;
  f.bad = 1;
  f.error = why;
  if (family) *family = fam;
  return ScanOutcome::Row;
}

uint32_t Le32(const uint8_t* p) { return uint32_t(p[0]) | uint32_t(p[1]) << 8 | uint32_t(p[2]) << 16 | uint32_t(p[3]) << 24; }
uint16_t Le16(const uint8_t* p) { return uint16_t(p[0] | p[1] << 8); }

// The "fmt " chunk of a mapped WAVE window, by the byte scan the reader uses.
struct WavHead {
  bool riff = false;
  const uint8_t* fmt = nullptr;
  uint32_t fmtSize = 0;
  uint32_t dataSize = 0;
  bool hasData = false;
};
WavHead ReadWavHead(const uint8_t* v, uint64_t viewSize, uint64_t fileSize) {
  WavHead h;
  if (viewSize < 12 || v[0] == 0 || std::memcmp(v + 8, "WAVE", 4) != 0) return h;
  h.riff = true;
  uint64_t limit = std::min<uint64_t>(uint64_t(Le32(v + 4)) + 8, std::min(fileSize, viewSize));
  for (uint64_t i = 16; i + 8 <= limit; ++i) {
    if (std::memcmp(v + i, "data", 4) == 0) {
      h.dataSize = Le32(v + i + 4);
      h.hasData = true;
      break;
    }
  }
  for (uint64_t i = 12; i + 8 + 16 <= limit; ++i) {
    if (std::memcmp(v + i, "fmt ", 4) == 0) {
      h.fmtSize = Le32(v + i + 4);
      if (h.fmtSize >= 16 && i + 8 + h.fmtSize <= viewSize) h.fmt = v + i + 8;
      break;
    }
  }
  return h;
}

ScanOutcome ScanMp3(BatchFileInfo& f, const std::function<bool()>& pump) {
  f.kind = kKindMp3;
  Mp3Properties p;
  switch (ReadMp3Properties(f.path, p, pump)) {
    case Mp3ReadResult::Cancelled: return ScanOutcome::Cancelled;
    case Mp3ReadResult::NoSound: return Bad(f, NoSoundData(f.path));
    case Mp3ReadResult::Errors: return Bad(f, Unsupported(f.path));
    case Mp3ReadResult::Ok: break;
  }
  if (p.bitRate < 0) return Bad(f, Unsupported(f.path));
  static const char* const versions[] = {"MPEG 2.5", "", "MPEG 2.0", "MPEG 1.0"};
  static const char* const layers[] = {" Layer I", " Layer II", " Layer III", ""};
  f.audioFormat = QString::fromLatin1(versions[p.version & 3]) + QString::fromLatin1(layers[std::min(p.layer, 3u)]);
  // A frame's rate is in bit/s; the average of a walk already in kbit/s.
  f.bitRateText = KbpsText(p.bitRate >= 8000 && p.bitRate % 1000 == 0 ? p.bitRate / 1000 : p.bitRate);
  static const char* const modes[] = {QT_TRANSLATE_NOOP("Tonvane", " Stereo"), QT_TRANSLATE_NOOP("Tonvane", " Joint Stereo"),
                                      QT_TRANSLATE_NOOP("Tonvane", " Dual Channels"), QT_TRANSLATE_NOOP("Tonvane", " Mono")};
  f.mpegMode = int(p.channelMode & 3);
  f.modeText = Tonvane::tr(modes[f.mpegMode]);
  f.channels = f.mpegMode == 3 ? 1 : 2;
  f.codingText = p.vbr ? Tonvane::tr("VBR") : Tonvane::tr("CBR");
  switch (p.sampleRate) {
    case 8000: case 11025: case 12000: case 16000: case 22050: case 24000: case 32000: case 44100: case 48000:
      f.sampleRate = p.sampleRate;
      break;
    default: f.sampleRate = 0;
  }
  f.sampleRateText = RateText(f.sampleRate);
  f.durationMs = p.durationMs;
  return ScanOutcome::Row;
}

ScanOutcome ScanWav(BatchFileInfo& f, int batchKind, const std::function<bool()>& pump, QString* family) {
  MappedFile file;
  if (!file.Open(f.path)) return Bad(f, CannotOpen(f.path, file.LastErrno()), family, kFamilyWav);
  const uint64_t window = 10ull * kAllocGranularity;
  const uint64_t size = file.Size();
  // The first 64 KiB, read, hold both chunks of nearly every file; a map and its unmap cost
  // far more over thousands of files. The search finds the same first chunks either way, so
  // only a file whose chunks lie further on takes the whole window.
  QByteArray head = file.ReadHead(std::min<uint64_t>(size, kAllocGranularity));
  WavHead h = ReadWavHead(reinterpret_cast<const uint8_t*>(head.constData()), uint64_t(head.size()), size);
  if (!(h.riff && h.fmt && h.hasData) && size > uint64_t(head.size())) {
    const uint8_t* v = file.Map(0, std::min(size, window));
    if (!v) return Bad(f, CannotOpen(f.path, file.LastErrno()), family, kFamilyWav);
    h = ReadWavHead(v, file.ViewSize(), size);
  }
  if (!h.riff) return Bad(f, NoSoundData(f.path), family, kFamilyWav);
  if (!h.fmt || !h.hasData || h.dataSize == 0) return Bad(f, NoSoundData(f.path));
  const uint16_t tag = Le16(h.fmt);
  if (tag == 0x55) {
    if (batchKind == kKindWav) return ScanOutcome::NoRow;
    file.Close();
    return ScanMp3(f, pump);
  }
  f.kind = kKindWav;
  f.wavFormatTag = tag;
  f.channels = Le16(h.fmt + 2);
  f.sampleRate = Le32(h.fmt + 4);
  f.wavAvgBytes = Le32(h.fmt + 8);
  const uint16_t blockAlign = Le16(h.fmt + 12);
  f.wavBits = Le16(h.fmt + 14);
  if (tag == 1 || tag == 3) {
    f.bits = f.wavBits;
    if (blockAlign && f.sampleRate)
      f.durationMs = uint32_t(std::lround(double(h.dataSize) / (double(blockAlign) * f.sampleRate) * 1000.0));
    f.audioFormat = tag == 3 ? Tonvane::tr("PCM IEEE Float") : Tonvane::tr("PCM (Pulse-Code Modulation)");
  } else {
    const ConversionPlan plan = PlanConversion(QByteArray(reinterpret_cast<const char*>(h.fmt), int(h.fmtSize)));
    if (!plan.known) return Bad(f, Unsupported(f.path), family, kFamilyWav);
    f.audioFormat = plan.codecName;
  }
  if (f.channels < 1 || f.channels > 2 || f.sampleRate == 0)
    return Bad(f, Unsupported(f.path) + Tonvane::tr(" The file has an amount of channels more than 2."), family,
               kFamilyWav);
  f.sampleRateText = RateText(f.sampleRate);
  return ScanOutcome::Row;
}

ScanOutcome ScanMp4(BatchFileInfo& f, QString* family) {
  MappedFile file;
  if (!file.Open(f.path)) return Bad(f, CannotOpen(f.path, file.LastErrno()), family, kFamilyMp);
  if (file.Size() == 0) return Bad(f, AacEmptyFileText(f.path), family, kFamilyMp);
  const uint8_t* v = file.Map(0, file.Size());
  if (!v) return Bad(f, CannotOpen(f.path, file.LastErrno()), family, kFamilyMp);
  AACFile aac(v, file.ViewSize());
  f.bits = uint32_t(std::max(0, aac.bits()));
  f.channels = uint32_t(std::max(0, aac.channels()));
  f.sampleRate = uint32_t(std::max(0, aac.sampleRate()));
  f.durationMs = aac.durationMs();
  f.isMp4 = uint32_t(aac.isMp4());
  f.mpegVersion = uint32_t(aac.mpegVersion());
  if (aac.type() == AACFile::kTypeAac) {
    f.audioFormat = aac.mpegVersion() == 0 ? Tonvane::tr("MPEG-4 AAC") : Tonvane::tr("MPEG-2 AAC");
    f.kind = kKindAac;
    if (f.bits == 0) f.bits = 16;  // a raw stream doesn't say; its decoder gives 16 bits
  } else if (aac.type() == AACFile::kTypeAlac) {
    f.audioFormat = Tonvane::tr("MPEG4 ALAC");
    f.kind = kKindAlac;
  } else {
    return Bad(f, aac.type() == AACFile::kTypeDamaged ? AacDamagedText() : Unsupported(f.path), family, kFamilyMp);
  }
  if (!f.bits || !f.channels || !f.sampleRate || !aac.bitRate()) return Bad(f, Unsupported(f.path), family, kFamilyMp);
  if (f.channels > 2)
    return Bad(f, Unsupported(f.path) + Tonvane::tr(" The file has an amount of channels more than 2."), family,
               kFamilyMp);
  f.bitRateText = KbpsText(std::lround(aac.bitRate() / 1000.0));
  f.sampleRateText = RateText(f.sampleRate);
  return ScanOutcome::Row;
}

ScanOutcome ScanFlac(BatchFileInfo& f, QString* family) {
  f.kind = kKindFlac;
  if (!QFileInfo(f.path).isReadable()) return Bad(f, CannotOpen(f.path, EACCES), family, kFamilyFlac);
  FLAC__StreamMetadata info;
  const QByteArray name = QFile::encodeName(f.path);
  if (!FLAC__metadata_get_streaminfo(name.constData(), &info))
    return Bad(f, Tonvane::tr("Sorry, but an error of opening has occurred decoding stream."), family, kFamilyFlac);
  const FLAC__StreamMetadata_StreamInfo& si = info.data.stream_info;
  f.sampleRate = si.sample_rate;
  f.channels = si.channels;
  f.bits = si.bits_per_sample;
  if (si.sample_rate) f.durationMs = uint32_t(std::llround(double(si.total_samples) * 1000.0 / si.sample_rate));
  f.audioFormat = Tonvane::tr("FLAC (Free Lossless Audio Codec)");
  if (f.channels > 2)
    return Bad(f, Unsupported(f.path) + Tonvane::tr(" The file has an amount of channels more than 2."), family,
               kFamilyFlac);
  f.sampleRateText = RateText(f.sampleRate);
  return ScanOutcome::Row;
}

ScanOutcome ScanOgg(BatchFileInfo& f) {
  f.kind = kKindOgg;
  OggVorbis_File vf;
  const QByteArray name = QFile::encodeName(f.path);
  if (ov_fopen(name.constData(), &vf) < 0) {
    const int err = QFileInfo(f.path).isReadable() ? 0 : EACCES;
    return Bad(f, err ? CannotOpen(f.path, err) : NoSoundData(f.path));
  }
  const long br = ov_bitrate(&vf, -1);
  const vorbis_info* vi = ov_info(&vf, -1);
  f.bitRateText = KbpsText(br == OV_EINVAL || br == OV_FALSE || br < 0 ? 0 : std::lround(br / 1000.0));
  if (vi) {
    f.channels = uint32_t(vi->channels);
    f.sampleRate = uint32_t(vi->rate);
    if (vi->bitrate_upper == 0 && vi->bitrate_lower == 0)
      f.codingText = Tonvane::tr("VBR");
    else if (vi->bitrate_upper == -1 && vi->bitrate_lower == -1)
      f.codingText = Tonvane::tr("ABR");
    else if (vi->bitrate_nominal == vi->bitrate_upper && vi->bitrate_upper == vi->bitrate_lower)
      f.codingText = Tonvane::tr("CBR");
    else
      f.codingText = Tonvane::tr("ABR");
  }
  const double t = ov_time_total(&vf, -1);
  f.durationMs = t > 0 ? uint32_t(std::lround(t * 1000.0)) : 0;
  ov_clear(&vf);
  f.audioFormat = Tonvane::tr("Ogg Vorbis");
  if (f.channels < 1 || f.channels > 2)
    return Bad(f, Unsupported(f.path) + Tonvane::tr(" The file has an amount of channels more than 2."));
  f.sampleRateText = RateText(f.sampleRate);
  return ScanOutcome::Row;
}

ScanOutcome ScanApe(BatchFileInfo& f, QString* family) {
  f.kind = kKindApe;
  ape::Decoder d;
  const int rc = d.OpenFile(f.path);
  if (rc != ape::kOk) {
    const QString why = rc == ape::kErrRead ? CannotOpen(f.path, errno) : ApeOpenFailureText(f.path, rc);
    return Bad(f, why, family, kFamilyApe);
  }
  f.bits = uint32_t(d.GetInfo(ape::kInfoBitsPerSample));
  f.channels = uint32_t(d.GetInfo(ape::kInfoChannels));
  f.sampleRate = uint32_t(d.GetInfo(ape::kInfoSampleRate));
  const int64_t ms = d.GetInfo(ape::kInfoLengthMs);
  f.durationMs = ms < 0 ? 0 : uint32_t(std::min<int64_t>(ms, 0xFFFFFFFF));
  f.audioFormat = Tonvane::tr("APE Monkey's Audio");
  // The decoder of the test takes 1 or 2 channels of 8, 16 or 24 bits.
  if (f.channels < 1 || f.channels > 2)
    return Bad(f, Unsupported(f.path) + Tonvane::tr(" The file has an amount of channels more than 2."), family,
               kFamilyApe);
  if (f.bits != 8 && f.bits != 16 && f.bits != 24) return Bad(f, Unsupported(f.path), family, kFamilyApe);
  f.sampleRateText = RateText(f.sampleRate);
  return ScanOutcome::Row;
}

}  // namespace

bool WavCarriesMpeg(const QString& path) {
  MappedFile file;
  if (!file.Open(path) || file.Size() == 0) return false;
  const uint8_t* v = file.Map(0, std::min<uint64_t>(file.Size(), 10ull * kAllocGranularity));
  if (!v) return false;
  const WavHead h = ReadWavHead(v, file.ViewSize(), file.Size());
  return h.fmt && Le16(h.fmt) == 0x55;
}

ScanOutcome ScanFile(const QString& path, int batchKind, BatchFileInfo& out, const std::function<bool()>& pump,
                     QString* reportFamily) {
  out = BatchFileInfo{};
  out.path = path;
  if (reportFamily) reportFamily->clear();
  if (pump && !pump()) return ScanOutcome::Cancelled;
  int kind = KindOfName(path);
  if (batchKind == kKindMp3 && kind == kKindWav) kind = kKindMp3;  // a WAVE that carries MPEG
  out.kind = uint32_t(std::max(kind, 0));
  const QFileInfo fi(path);
  ScanOutcome result;
  if (!fi.exists()) {
    result = Bad(out, CannotOpen(path, ENOENT));
  } else {
    switch (kind) {
      case kKindWav: result = ScanWav(out, batchKind, pump, reportFamily); break;
      case kKindMp3: result = ScanMp3(out, pump); break;
      case kKindAac:
      case kKindAlac: result = ScanMp4(out, reportFamily); break;
      case kKindFlac: result = ScanFlac(out, reportFamily); break;
      case kKindOgg: result = ScanOgg(out); break;
      case kKindApe: result = ScanApe(out, reportFamily); break;
      default: result = Bad(out, Tonvane::tr("Sorry, but the type of this file is not supported."));
    }
  }
  if (result == ScanOutcome::Row && !out.bad) {
    out.fullSize = uint64_t(std::max<qint64>(0, fi.size()));
    out.fileSize = uint32_t(out.fullSize);
    out.seconds = out.durationMs / 1000.0;
  }
  return result;
}
