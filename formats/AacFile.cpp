#include "formats/AacFile.h"

#include <cmath>
#include <cstring>

#include "app/FileErrors.h"
#include "app/Session.h"
#include "app/Text.h"

namespace {

constexpr uint32_t Fourcc(const char (&s)[5]) {
  return uint32_t(uint8_t(s[0])) << 24 | uint32_t(uint8_t(s[1])) << 16 | uint32_t(uint8_t(s[2])) << 8 |
         uint32_t(uint8_t(s[3]));
}

// Bounds-checked big-endian reads over the mapped file: 0 outside it.
struct View {
  const uint8_t* d;
  uint64_t n;

  uint32_t U8(uint64_t p) const { return p < n ? d[p] : 0; }
  uint32_t U16(uint64_t p) const { return p + 2 <= n ? uint32_t(d[p]) << 8 | d[p + 1] : 0; }
  uint32_t U32(uint64_t p) const {
    return p + 4 <= n ? uint32_t(d[p]) << 24 | uint32_t(d[p + 1]) << 16 | uint32_t(d[p + 2]) << 8 | d[p + 3] : 0;
  }
  bool Is(uint64_t p, uint32_t type) const { return p + 4 <= n && U32(p) == type; }
  // The atom's size field, 4 bytes before its type.
  uint32_t SizeAt(uint64_t p) const { return p >= 4 ? U32(p - 4) : 0; }
  // Moves from one type field to the next by the atom's size, unless that size is not
  // that of an atom within the file.
  bool Skip(uint64_t& p) const {
    const uint32_t size = SizeAt(p);
    if (size < 8 || p - 4 + size > n) return false;
    p += size;
    return true;
  }
  // Skips by size, or else moves on one byte, so the scan goes on.
  void SkipOrStep(uint64_t& p) const {
    if (!Skip(p)) p += 1;
  }
  // The first position from p where one of the types stands; n if none.
  uint64_t Scan(uint64_t p, std::initializer_list<uint32_t> types) const {
    for (; p + 4 <= n; ++p) {
      const uint32_t t = U32(p);
      for (uint32_t want : types)
        if (t == want) return p;
    }
    return n;
  }
  bool LooksLikeType(uint64_t p) const {
    if (p + 4 > n) return false;
    for (int i = 0; i < 4; ++i) {
      const uint8_t c = d[p + i];
      if (!((c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == ' ' || c == 0xA9))
        return false;
    }
    return true;
  }
};

// The brands an audio MP4 file is taken with, character by character.
bool BrandFits(const View& v, uint64_t brand) {
  if (brand + 4 > v.n) return false;
  auto in = [](uint8_t c, const char* set) { return c != 0 && std::strchr(set, c) != nullptr; };
  return in(v.d[brand], "Mmi3") && in(v.d[brand + 1], "4psg") && in(v.d[brand + 2], "ABP4op") &&
         in(v.d[brand + 3], " 2m4");
}

bool IsAdtsSync(const uint8_t* d, uint64_t size, uint64_t p) {
  return p + 1 < size && d[p] == 0xFF && (d[p + 1] & 0xF6) == 0xF0;
}

// Writers of ISO files put the template value 2 in the sample entry's channel field
// whatever the stream holds; a channel configuration of more than two channels in the
// decoder-specific info overrides it, so a multichannel stream is recognised as one.
void TakeConfigChannels(const View& v, uint64_t dsi, Mp4AtomWalk& w) {
  const uint32_t objectType = v.U8(dsi) >> 3;
  const uint32_t rateIndex = (v.U8(dsi) & 7) << 1 | v.U8(dsi + 1) >> 7;
  if (objectType == 31 || rateIndex == 15) return;
  static const int kChannels[8] = {0, 1, 2, 3, 4, 5, 6, 8};
  const uint32_t config = (v.U8(dsi + 1) >> 3) & 15;
  if (config >= 3 && config <= 7) w.channels = kChannels[config];
}

void ReadSampleDescription(const View& v, uint64_t stsd, Mp4AtomWalk& w) {
  const uint32_t format = v.U32(stsd + 16);
  const uint64_t e = stsd + 20;  // behind the format
  if (format == Fourcc("alac")) {
    w.format = format;
    w.channels = int(v.U16(e + 16));
    w.sampleRate = int(v.U32(e + 22));
    const uint64_t a = v.Scan(e, {Fourcc("alac")});
    if (a < v.n) {
      w.alacPos = a;
      w.alacSize = v.SizeAt(a);
      w.bits = int(v.U8(a + 13));
      w.bitRate = int(v.U32(a + 24));
      w.objectType = 60;
    }
  } else if (format == Fourcc("mp4a")) {
    w.format = format;
    w.channels = int(v.U16(e + 16));
    w.bits = int(v.U16(e + 18));
    w.sampleRate = int(v.U16(e + 24));
    const uint64_t s = v.Scan(e, {Fourcc("esds")});
    if (s < v.n && v.U8(s + 8) == 3) {
      if (v.U8(s + 9) == 0x80 && v.U8(s + 10) == 0x80 && v.U8(s + 11) == 0x80) {
        if (v.U8(s + 16) == 4) {
          w.objectType = int(v.U8(s + 21));
          w.bitRate = int(v.U32(s + 30));
          if (v.U8(s + 34) == 5) {
            w.audioObjectType = int(v.U8(s + 39) >> 3);
            TakeConfigChannels(v, s + 39, w);
          }
        }
      } else if (v.U8(s + 13) == 4) {
        w.objectType = int(v.U8(s + 15));
        w.bitRate = int(v.U32(s + 24));
        if (v.U8(s + 28) == 5) {
          w.audioObjectType = int(v.U8(s + 30) >> 3);
          TakeConfigChannels(v, s + 30, w);
        }
      }
    }
  }
}

}  // namespace

int AacSampleRateOfIndex(unsigned index) {
  static const int kRates[12] = {96000, 88200, 64000, 48000, 44100, 32000, 24000, 22050, 16000, 12000, 11025, 8000};
  return index < 12 ? kRates[index] : 0;
}

void WalkMp4Atoms(const uint8_t* data, uint64_t size, uint64_t start, Mp4AtomWalk& w,
                  const std::function<void()>& pump) {
  const View v{data, size};
  // The file type with a brand of an audio file.
  uint64_t p = start;
  for (;;) {
    p = v.Scan(p, {Fourcc("ftyp")});
    if (p >= size) return;
    if (BrandFits(v, p + 4)) break;
    p += 1;
  }
  v.SkipOrStep(p);

  // Top level: the media data may stand before or after the movie.
  for (;;) {
    p = v.Scan(p, {Fourcc("mdat"), Fourcc("moov")});
    if (p >= size) return;
    if (v.Is(p, Fourcc("mdat"))) {
      w.mdatSize = v.SizeAt(p);
      w.mdatPayload = p + 4;
      v.SkipOrStep(p);
      continue;
    }
    p += 8;  // into the movie
    break;
  }
  if (!v.Is(p, Fourcc("mvhd"))) return;
  v.SkipOrStep(p);
  while (v.Is(p, Fourcc("iods")) || v.Is(p, Fourcc("udta"))) v.SkipOrStep(p);
  p = v.Scan(p, {Fourcc("trak")});
  if (p >= size) return;
  p += 8;

  while (v.Is(p, Fourcc("tkhd")) || v.Is(p, Fourcc("edts"))) v.SkipOrStep(p);
  p = v.Scan(p, {Fourcc("mdia")});
  if (p >= size) return;
  p += 8;

  p = v.Scan(p, {Fourcc("mdhd")});
  if (p >= size) return;
  w.mdhdDuration = v.U8(p + 4) == 1 ? v.U32(p + 32) : v.U32(p + 20);
  v.SkipOrStep(p);
  if (v.Is(p, Fourcc("hdlr"))) v.SkipOrStep(p);
  p = v.Scan(p, {Fourcc("minf")});
  if (p >= size) return;
  p += 8;

  while (v.Is(p, Fourcc("smhd")) || v.Is(p, Fourcc("hmhd")) || v.Is(p, Fourcc("nmhd")) || v.Is(p, Fourcc("dinf")))
    v.SkipOrStep(p);
  p = v.Scan(p, {Fourcc("stbl")});
  if (p >= size) return;
  p += 8;

  // The sample table, up to its chunk offsets. The pump runs at every atom and every
  // 64 KiB of byte scan.
  uint32_t scanned = 0;
  while (p + 4 <= size) {
    const uint32_t t = v.U32(p);
    if (t == Fourcc("stsd")) {
      ReadSampleDescription(v, p, w);
    } else if (t == Fourcc("stts")) {
      w.sttsSize = v.SizeAt(p);
    } else if (t == Fourcc("stsc")) {
      w.stscSize = v.SizeAt(p);
    } else if (t == Fourcc("stsz")) {
      w.stszSize = v.SizeAt(p);
      w.stszPos = p;
    } else if (t == Fourcc("stco") || t == Fourcc("co64")) {
      w.chunkOffsetSize = v.SizeAt(p);
      if (pump) pump();
      v.SkipOrStep(p);
      break;
    } else if (!v.LooksLikeType(p)) {
      p += 1;
      if (pump && ++scanned % 65536 == 0) pump();
      continue;
    }
    if (pump) pump();
    v.SkipOrStep(p);
  }

  // The media data behind the movie.
  while (w.mdatSize == 0 && p + 4 <= size) {
    const uint32_t t = v.U32(p);
    if (t == Fourcc("mdat")) {
      w.mdatSize = v.SizeAt(p);
      w.mdatPayload = p + 4;
      break;
    }
    if (t == Fourcc("udta") || t == Fourcc("free") || t == Fourcc("trak")) v.SkipOrStep(p);
    else p += 1;
  }
}

AacStart FindAacStart(const uint8_t* data, uint64_t size) {
  AacStart st;
  const View v{data, size};
  uint64_t cursor = 0;
  uint64_t typeAt = 4;
  if (size >= 10 && std::memcmp(data, "ID3", 3) == 0) {
    const uint32_t tag = (v.U8(6) & 0x7F) << 21 | (v.U8(7) & 0x7F) << 14 | (v.U8(8) & 0x7F) << 7 | (v.U8(9) & 0x7F);
    st.id3Size = tag + 10;
    cursor = st.id3Size;
    typeAt = cursor;
  }
  st.offset = cursor;
  if (v.Is(typeAt, Fourcc("ftyp"))) {
    st.kind = AacStart::Mp4;
    return st;
  }
  if (IsAdtsSync(data, size, cursor)) {
    st.kind = AacStart::Adts;
    return st;
  }
  if (v.Is(cursor, Fourcc("ADIF"))) {
    st.kind = AacStart::Adif;
    return st;
  }
  for (uint64_t p = cursor; p + 1 < size; ++p) {
    if (IsAdtsSync(data, size, p)) {
      st.kind = AacStart::Adts;
      st.offset = p;
      return st;
    }
    if (v.Is(p, Fourcc("ADIF"))) {
      st.kind = AacStart::Adif;
      st.offset = p;
      return st;
    }
    if (v.Is(p, Fourcc("ftyp"))) {
      st.kind = AacStart::Mp4;
      st.offset = cursor;
      return st;
    }
  }
  st.offset = cursor;
  return st;
}

QString AacEmptyFileText(const QString& path) {
  return Tonvane::tr("Sorry, but ") + Tonvane::tr("the file ") + path + Tonvane::tr(" is empty and does not contain any sound data.");
}

QString AacDamagedText() { return Tonvane::tr("Sorry, the file opening was stopped because the file has errors."); }

bool MapSourceForProbe(Session& s, MappedFile& file, const QString& path) {
  if (!file.Open(path)) {
    ReportFileError(s, Tonvane::tr(" cannot be opened"), path, QString(), ErrorCodeFromErrno(file.LastErrno(), path), true);
    return false;
  }
  if (file.Size() == 0) {
    s.m_prompt.Message(AacEmptyFileText(path), PromptIcon::Error);
    file.Close();
    return false;
  }
  if (!file.Map(0, file.Size())) {
    ReportFileError(s, Tonvane::tr(" create a file mapping is impossible"), path, Tonvane::tr("Therefore the test will be stopped."),
                    ErrorCodeFromErrno(file.LastErrno(), path), true);
    file.Close();
    return false;
  }
  return true;
}

AACFile::AACFile(Session& s, const QString& path, int reportDamage) : m_fileName(path), m_reportDamage(reportDamage) {
  if (!MapSourceForProbe(s, m_file, path)) {
    Finish(1);
    return;
  }
  const int result = Probe(m_file.View(), m_file.ViewSize(), [&s] { s.PumpMessages(); });
  Finish(result);
  if (result == 2 && m_reportDamage) s.m_prompt.Message(AacDamagedText(), PromptIcon::Error);
}

AACFile::AACFile(const uint8_t* data, uint64_t size) { Finish(Probe(data, size, {})); }

AACFile::~AACFile() = default;

int AACFile::Probe(const uint8_t* data, uint64_t size, const std::function<void()>& pump) {
  m_cursor = data;
  m_limit = data + size;
  const AacStart st = FindAacStart(data, size);
  m_id3Size = st.id3Size;
  m_cursor = data + st.offset;
  switch (st.kind) {
    case AacStart::Mp4:
      m_isMp4 = 1;
      return ProbeMp4(data, size, pump);
    case AacStart::Adts:
      ProbeAdts(data, size, st.offset);
      return -1;
    case AacStart::Adif:
      ProbeAdif(data, size, st.offset + 4);
      return -1;
    case AacStart::None:
      break;
  }
  return -1;
}

void AACFile::ProbeAdts(const uint8_t* d, uint64_t size, uint64_t p) {
  uint64_t frames = 0, bytes = 0;
  int sampleIndex = 0;
  bool first = true;
  while (p < size && size - p >= 30) {
    if (!IsAdtsSync(d, size, p)) {
      ++p;
      continue;
    }
    if (first) {
      m_mpegVersion = (d[p + 1] >> 3) & 1;
      m_objectType = d[p + 2] >> 6;
      sampleIndex = (d[p + 2] & 0x3C) >> 2;
      m_channels = (d[p + 2] & 1) * 4 + (d[p + 3] >> 6);
      first = false;
    }
    const uint32_t length = (d[p + 3] & 3u) * 2048 + d[p + 4] * 8u + (d[p + 5] >> 5);
    bytes += length;
    ++frames;
    p += length ? length : 1;
  }
  m_cursor = d + std::min<uint64_t>(p, size);
  m_sampleRate = AacSampleRateOfIndex(unsigned(sampleIndex));
  if (frames && m_sampleRate) {
    const uint64_t average = bytes / frames;
    const double framesPerSecond = m_sampleRate / 1024.0;
    m_bitRate = 8 * int(double(average) * framesPerSecond + 0.5);
    m_durationSec = int(double(frames) / framesPerSecond) * 1000;
    m_durationMs = uint32_t(m_durationSec);
  }
  m_headerType = 2;
  m_type = kTypeAac;
}

void AACFile::ProbeAdif(const uint8_t* d, uint64_t size, uint64_t p) {
  const View v{d, size};
  m_mpegVersion = 1;
  m_headerType = 1;
  if (v.U8(p) & 0x80) p += 9;  // a copyright identification follows
  const uint32_t b0 = v.U8(p);
  const bool variable = (b0 >> 4) & 1;
  m_bitRate = int((b0 & 15) << 19 | v.U8(p + 1) << 11 | v.U8(p + 2) << 3 | (v.U8(p + 3) & 0xE0));
  int sampleIndex;
  if (variable) {
    m_objectType = int((v.U8(p + 4) & 0x18) >> 3);
    sampleIndex = int((v.U8(p + 4) & 7) * 2 + (v.U8(p + 5) >> 7));
  } else {
    m_objectType = int((v.U8(p + 6) & 1) * 2 + (v.U8(p + 7) >> 7));
    sampleIndex = int((v.U8(p + 7) & 0x78) >> 3);
    if (m_bitRate > 0 && size > m_id3Size) {
      const double ms = double(size - m_id3Size) / (m_bitRate / 8.0) * 1000.0;
      m_durationMs = ms < 4294967295.0 ? uint32_t(ms) : 0xFFFFFFFFu;
    }
  }
  m_sampleRate = AacSampleRateOfIndex(unsigned(sampleIndex));
  m_channels = 0;
  m_type = kTypeAac;
}

int AACFile::ProbeMp4(const uint8_t* data, uint64_t size, const std::function<void()>& pump) {
  Mp4AtomWalk w;
  WalkMp4Atoms(data, size, 0, w, pump);
  m_channels = w.channels;
  m_bits = w.bits;
  m_sampleRate = w.sampleRate;
  m_bitRate = w.bitRate;
  m_objectType = w.objectType;
  m_audioObjectType = w.audioObjectType;
  m_mdhdDuration = w.mdhdDuration;
  const uint32_t sizes[5] = {w.mdatSize, w.sttsSize, w.stscSize, w.stszSize, w.chunkOffsetSize};
  for (uint32_t sz : sizes)
    if (sz == 0 || sz >= size) return 2;
  m_seconds = m_sampleRate > 0 ? double(m_mdhdDuration) / m_sampleRate : 0.0;
  if (m_bitRate == 0 && m_seconds > 0) m_bitRate = int(std::lround(double(w.mdatSize) * 8.0 / m_seconds));
  return 0;
}

void AACFile::Finish(int result) {
  if (result == 0) {
    switch (m_objectType) {
      case 64:
        m_mpegVersion = 0;
        m_type = kTypeAac;
        break;
      case 60:
        m_type = kTypeAlac;
        break;
      case 103:
        m_mpegVersion = 1;
        m_type = kTypeAac;
        break;
      default:
        m_type = kTypeUnknown;
        break;
    }
    const double ms = m_seconds * 1000.0;
    m_durationMs = ms > 0 && ms < 4294967295.0 ? uint32_t(std::lround(ms)) : 0;
  } else if (result == 1) {
    m_type = kTypeUnreadable;
  } else if (result == 2) {
    m_type = kTypeDamaged;
  }
  // -1: a raw stream, already typed, or nothing found (type -1, no duration).
}
