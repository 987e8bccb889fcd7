#include "formats/Mp4ff.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace {

constexpr uint32_t Fourcc(const char (&s)[5]) {
  return uint32_t(uint8_t(s[0])) << 24 | uint32_t(uint8_t(s[1])) << 16 | uint32_t(uint8_t(s[2])) << 8 |
         uint32_t(uint8_t(s[3]));
}

constexpr int kMaxDepth = 16;
constexpr uint32_t kMaxConfigBytes = 1u << 16;
constexpr uint32_t kMaxMetaValue = 1u << 16;
constexpr uint32_t kMaxSampleBytes = 1u << 26;
constexpr uint64_t kToEnd = ~uint64_t(0);

struct Track {
  int type = kMp4ffTrackUnknown;
  int channels = 0;
  int sampleSize = 0;
  int sampleRate = 0;
  int objectType = 0;
  uint32_t maxBitrate = 0;
  uint32_t avgBitrate = 0;
  uint32_t timeScale = 0;
  uint64_t duration = 0;
  std::vector<uint8_t> decoderConfig;

  bool haveStts = false;
  std::vector<uint32_t> sttsCount, sttsDelta;
  std::vector<uint32_t> stscFirstChunk, stscSamplesPerChunk, stscDescription;
  uint32_t stszSampleSize = 0;
  uint32_t stszSampleCount = 0;
  std::vector<uint32_t> stszTable;
  std::vector<uint64_t> chunkOffsets;
  bool haveCtts = false;
  std::vector<uint32_t> cttsCount, cttsOffset;
};

}  // namespace

struct mp4ff_t {
  mp4ff_callback_t io{};
  uint64_t pos = 0;
  bool eof = false;
  uint32_t movieTimeScale = 0;
  uint64_t movieDuration = 0;
  std::vector<std::unique_ptr<Track>> tracks;
  std::vector<std::pair<std::string, std::string>> meta;

  bool Seek(uint64_t p) {
    pos = p;
    eof = false;
    return io.seek(io.user_data, p) == 0;
  }
  uint32_t ReadBytes(void* buf, uint32_t n) {
    if (n == 0) return 0;
    const uint32_t got = io.read(io.user_data, buf, n);
    pos += got;
    if (got < n) eof = true;
    return got;
  }
  uint64_t ReadBe(int bytes) {
    uint8_t b[8] = {};
    ReadBytes(b, uint32_t(bytes));
    uint64_t v = 0;
    for (int i = 0; i < bytes; ++i) v = v << 8 | b[i];
    return v;
  }
  uint32_t U8() { return uint32_t(ReadBe(1)); }
  uint32_t U16() { return uint32_t(ReadBe(2)); }
  uint32_t U24() { return uint32_t(ReadBe(3)); }
  uint32_t U32() { return uint32_t(ReadBe(4)); }
  uint64_t U64() { return ReadBe(8); }
  void Skip(uint64_t n) { Seek(pos + n); }

  // 1 to 4 bytes of seven bits, the top bit set in all but the last.
  uint32_t DescriptorLength() {
    uint32_t len = 0;
    for (int i = 0; i < 4; ++i) {
      const uint32_t b = U8();
      len = len << 7 | (b & 0x7F);
      if (!(b & 0x80) || eof) break;
    }
    return len;
  }

  // Reads `count` entries of `width` 32-bit words, in blocks, so a false count costs
  // only what the file really holds.
  void ReadTable(uint64_t count, uint64_t end, std::initializer_list<std::vector<uint32_t>*> columns) {
    const uint64_t width = columns.size();
    const uint64_t room = end > pos ? (end - pos) / (4 * width) : 0;
    count = std::min(count, room);
    std::vector<uint8_t> block;
    while (count > 0 && !eof) {
      const uint64_t n = std::min<uint64_t>(count, 16384);
      block.resize(size_t(n * width * 4));
      const uint32_t got = ReadBytes(block.data(), uint32_t(block.size()));
      const uint64_t whole = got / (width * 4);
      for (uint64_t i = 0; i < whole; ++i) {
        int c = 0;
        for (std::vector<uint32_t>* col : columns) {
          const uint8_t* p = block.data() + (i * width + uint64_t(c++)) * 4;
          col->push_back(uint32_t(p[0]) << 24 | uint32_t(p[1]) << 16 | uint32_t(p[2]) << 8 | p[3]);
        }
      }
      if (whole < n) break;
      count -= n;
    }
  }

  void ParseAtoms(uint64_t start, uint64_t end, int depth, Track* track, uint32_t parent);
  void ReadLeaf(uint32_t type, uint64_t start, uint64_t end, Track* track, uint32_t parent);
  void ReadSampleDescription(uint64_t end, Track* t);
  void ReadEsds(uint64_t end, Track* t);
  void ReadMetaItem(uint32_t type, uint64_t start, uint64_t end);
};

namespace {

bool IsContainer(uint32_t t) {
  switch (t) {
    case Fourcc("moov"):
    case Fourcc("trak"):
    case Fourcc("edts"):
    case Fourcc("mdia"):
    case Fourcc("minf"):
    case Fourcc("stbl"):
    case Fourcc("udta"):
    case Fourcc("ilst"):
    case Fourcc("sinf"):
    case Fourcc("schi"):
      return true;
    default:
      return false;
  }
}

std::string TypeName(uint32_t t) {
  std::string s(4, ' ');
  for (int i = 0; i < 4; ++i) s[size_t(i)] = char((t >> (24 - 8 * i)) & 0xFF);
  return s;
}

}  // namespace

void mp4ff_t::ParseAtoms(uint64_t start, uint64_t end, int depth, Track* track, uint32_t parent) {
  if (depth > kMaxDepth) return;
  uint64_t at = start;
  while (end == kToEnd || at + 8 <= end) {
    if (!Seek(at)) return;
    uint64_t size = U32();
    const uint32_t type = U32();
    if (eof) return;
    uint64_t header = 8;
    if (size == 1) {
      size = U64();
      header = 16;
      if (eof) return;
    } else if (size == 0) {
      if (end == kToEnd) return;  // runs to the end of the file: nothing more behind it
      size = end - at;
    }
    if (size < header || (end != kToEnd && size > end - at) || size > kToEnd - at) return;
    const uint64_t bodyStart = at + header;
    const uint64_t bodyEnd = at + size;
    if (parent == Fourcc("ilst")) {
      ReadMetaItem(type, bodyStart, bodyEnd);
    } else if (IsContainer(type)) {
      Track* inner = track;
      if (type == Fourcc("trak")) {
        if (tracks.size() < size_t(kMp4ffMaxTracks)) {
          tracks.push_back(std::make_unique<Track>());
          inner = tracks.back().get();
        } else {
          inner = nullptr;
        }
      }
      ParseAtoms(bodyStart, bodyEnd, depth + 1, inner, type);
    } else if (type == Fourcc("meta")) {
      ParseAtoms(bodyStart + 4, bodyEnd, depth + 1, track, type);
    } else {
      Seek(bodyStart);
      ReadLeaf(type, bodyStart, bodyEnd, track, parent);
    }
    at = bodyEnd;
  }
}

void mp4ff_t::ReadLeaf(uint32_t type, uint64_t start, uint64_t end, Track* t, uint32_t) {
  if (type == Fourcc("mvhd")) {
    const uint32_t version = U8();
    U24();
    if (version == 1) {
      U64();
      U64();
      movieTimeScale = U32();
      movieDuration = U64();
    } else {
      U32();
      U32();
      movieTimeScale = U32();
      movieDuration = U32();
    }
    return;
  }
  if (!t) return;
  switch (type) {
    case Fourcc("mdhd"): {
      const uint32_t version = U8();
      U24();
      if (version == 1) {
        U64();
        U64();
        t->timeScale = U32();
        t->duration = U64();
      } else {
        U32();
        U32();
        t->timeScale = U32();
        const uint32_t d = U32();
        t->duration = d == 0xFFFFFFFFu ? ~uint64_t(0) : d;
      }
      break;
    }
    case Fourcc("stsd"):
      ReadSampleDescription(end, t);
      break;
    case Fourcc("stts"): {
      if (t->haveStts) break;  // only the first of a track
      t->haveStts = true;
      U32();
      const uint32_t count = U32();
      ReadTable(count, end, {&t->sttsCount, &t->sttsDelta});
      break;
    }
    case Fourcc("stsc"): {
      U32();
      const uint32_t count = U32();
      t->stscFirstChunk.clear();
      t->stscSamplesPerChunk.clear();
      t->stscDescription.clear();
      ReadTable(count, end, {&t->stscFirstChunk, &t->stscSamplesPerChunk, &t->stscDescription});
      break;
    }
    case Fourcc("stsz"): {
      U32();
      t->stszSampleSize = U32();
      t->stszSampleCount = U32();
      t->stszTable.clear();
      if (t->stszSampleSize == 0) ReadTable(t->stszSampleCount, end, {&t->stszTable});
      break;
    }
    case Fourcc("stco"): {
      U32();
      const uint32_t count = U32();
      std::vector<uint32_t> offsets;
      ReadTable(count, end, {&offsets});
      t->chunkOffsets.assign(offsets.begin(), offsets.end());
      break;
    }
    case Fourcc("co64"): {
      U32();
      const uint32_t count = U32();
      std::vector<uint32_t> hi, lo;
      ReadTable(count, end, {&hi, &lo});
      t->chunkOffsets.resize(lo.size());
      for (size_t i = 0; i < lo.size(); ++i) t->chunkOffsets[i] = uint64_t(hi[i]) << 32 | lo[i];
      break;
    }
    case Fourcc("ctts"): {
      if (t->haveCtts) break;
      t->haveCtts = true;
      U32();
      const uint32_t count = U32();
      ReadTable(count, end, {&t->cttsCount, &t->cttsOffset});
      break;
    }
    default:
      break;
  }
  (void)start;
}

void mp4ff_t::ReadSampleDescription(uint64_t end, Track* t) {
  U32();  // version and flags
  const uint32_t entries = U32();
  uint64_t at = pos;
  for (uint32_t i = 0; i < entries && at + 8 <= end; ++i) {
    Seek(at);
    const uint64_t size = U32();
    const uint32_t format = U32();
    if (eof || size < 8 || size > end - at) return;
    const uint64_t entryEnd = at + size;
    if (format == Fourcc("mp4a")) {
      t->type = kMp4ffTrackAudio;
      Skip(8);  // reserved, data reference index
      const uint32_t version = U16();
      Skip(6);  // revision, vendor
      t->channels = int(U16());
      t->sampleSize = int(U16());
      Skip(4);  // compression id, packet size
      t->sampleRate = int(U16());
      U16();
      if (version == 1) Skip(16);
      else if (version == 2) Skip(36);
      // The elementary stream descriptor among the entry's children.
      uint64_t child = pos;
      while (child + 8 <= entryEnd) {
        Seek(child);
        const uint64_t csize = U32();
        const uint32_t ctype = U32();
        if (eof || csize < 8 || csize > entryEnd - child) break;
        if (ctype == Fourcc("esds")) {
          ReadEsds(child + csize, t);
          break;
        }
        child += csize;
      }
    } else if (format == Fourcc("mp4v")) {
      t->type = kMp4ffTrackVideo;
    } else if (format == Fourcc("mp4s")) {
      t->type = kMp4ffTrackSystem;
    }
    at = entryEnd;
  }
}

void mp4ff_t::ReadEsds(uint64_t end, Track* t) {
  U32();  // version and flags
  if (U8() != 0x03) return;
  if (DescriptorLength() < 20) return;
  U16();  // elementary stream id
  const uint32_t flags = U8();
  if (flags & 0x80) U16();             // depends on another stream
  if (flags & 0x40) Skip(U8());        // a URL
  if (flags & 0x20) U16();             // OCR stream
  if (U8() != 0x04) return;
  if (DescriptorLength() <= 12) return;
  t->objectType = int(U8());
  Skip(4);  // stream type, buffer size
  t->maxBitrate = U32();
  t->avgBitrate = U32();
  if (U8() != 0x05) return;
  const uint32_t len = DescriptorLength();
  if (eof || len == 0 || len > kMaxConfigBytes || pos + len > end) return;
  std::vector<uint8_t> config(len);
  if (ReadBytes(config.data(), len) == len) t->decoderConfig = std::move(config);
}

void mp4ff_t::ReadMetaItem(uint32_t type, uint64_t start, uint64_t end) {
  std::string name = TypeName(type);
  std::string value;
  bool haveValue = false;
  uint64_t at = start;
  while (at + 8 <= end) {
    Seek(at);
    const uint64_t size = U32();
    const uint32_t ctype = U32();
    if (eof || size < 8 || size > end - at) break;
    const uint64_t body = size - 8;
    if (ctype == Fourcc("data") && body >= 8) {
      Skip(8);  // type indicator, locale
      const uint32_t n = uint32_t(std::min<uint64_t>(body - 8, kMaxMetaValue));
      value.resize(n);
      value.resize(ReadBytes(value.data(), n));
      haveValue = true;
    } else if (ctype == Fourcc("name") && body >= 4) {
      Skip(4);
      const uint32_t n = uint32_t(std::min<uint64_t>(body - 4, kMaxMetaValue));
      name.resize(n);
      name.resize(ReadBytes(name.data(), n));
    }
    at += size;
  }
  if (haveValue && meta.size() < 4096) meta.emplace_back(std::move(name), std::move(value));
}

namespace {

const Track* TrackAt(const mp4ff_t* f, int track) {
  if (!f || track < 0 || size_t(track) >= f->tracks.size()) return nullptr;
  return f->tracks[size_t(track)].get();
}

}  // namespace

mp4ff_t* mp4ff_open_read(mp4ff_callback_t* callbacks) {
  if (!callbacks || !callbacks->read || !callbacks->seek) return nullptr;
  auto f = std::make_unique<mp4ff_t>();
  f->io = *callbacks;
  // At least one atom header must be there.
  if (!f->Seek(0)) return nullptr;
  uint8_t head[8];
  if (f->ReadBytes(head, 8) != 8) return nullptr;
  f->ParseAtoms(0, kToEnd, 0, nullptr, 0);
  return f.release();
}

int32_t mp4ff_total_tracks(const mp4ff_t* f) { return f ? int32_t(f->tracks.size()) : 0; }

int32_t mp4ff_get_decoder_config(const mp4ff_t* f, int track, unsigned char** buffer, unsigned int* size) {
  if (!buffer || !size) return 1;
  *buffer = nullptr;
  *size = 0;
  const Track* t = TrackAt(f, track);
  if (!t || t->decoderConfig.empty()) return 1;
  *buffer = static_cast<unsigned char*>(std::malloc(t->decoderConfig.size()));
  if (!*buffer) return 1;
  std::memcpy(*buffer, t->decoderConfig.data(), t->decoderConfig.size());
  *size = unsigned(t->decoderConfig.size());
  return 0;
}

int32_t mp4ff_num_samples(const mp4ff_t* f, int track) {
  const Track* t = TrackAt(f, track);
  if (!t) return 0;
  uint64_t total = 0;
  for (uint32_t c : t->sttsCount) total += c;
  return int32_t(std::min<uint64_t>(total, 0x7FFFFFFF));
}

bool mp4ff_sample_place(const mp4ff_t* f, int track, int sample, uint64_t* offset, uint32_t* size) {
  const Track* t = TrackAt(f, track);
  if (!t || sample < 0 || !offset || !size) return false;
  const uint64_t n = uint64_t(sample);
  // The chunk of the sample, by runs of chunks with equal samples per chunk.
  uint64_t chunk = 0, first = 0, before = 0;
  bool found = false;
  const size_t runs = t->stscFirstChunk.size();
  for (size_t i = 0; i < runs; ++i) {
    const uint64_t firstChunk = t->stscFirstChunk[i];
    const uint64_t perChunk = t->stscSamplesPerChunk[i];
    const bool last = i + 1 == runs;
    if (perChunk == 0 || firstChunk == 0) continue;
    uint64_t runSamples = 0;
    if (!last) {
      const uint64_t next = t->stscFirstChunk[i + 1];
      if (next <= firstChunk) continue;
      runSamples = (next - firstChunk) * perChunk;
    }
    if (last || n < before + runSamples) {
      chunk = firstChunk + (n - before) / perChunk;
      first = before + (chunk - firstChunk) * perChunk;
      found = true;
      break;
    }
    before += runSamples;
  }
  if (!found) return false;

  uint64_t place = 8;  // no chunk table: the data behind a bare header
  if (!t->chunkOffsets.empty())
    place = chunk - 1 < t->chunkOffsets.size() ? t->chunkOffsets[size_t(chunk - 1)] : t->chunkOffsets.back();
  if (t->stszSampleSize != 0) {
    place += (n - first) * t->stszSampleSize;
    *size = t->stszSampleSize;
  } else {
    if (n >= t->stszTable.size()) return false;
    for (uint64_t i = first; i < n; ++i) place += t->stszTable[size_t(i)];
    *size = t->stszTable[size_t(n)];
  }
  *offset = place;
  return true;
}

int32_t mp4ff_read_sample(mp4ff_t* f, int track, int sample, unsigned char** buffer, unsigned int* size) {
  if (!buffer || !size) return 0;
  *buffer = nullptr;
  *size = 0;
  uint64_t offset = 0;
  uint32_t bytes = 0;
  if (!mp4ff_sample_place(f, track, sample, &offset, &bytes)) return 0;
  if (bytes == 0 || bytes > kMaxSampleBytes) return 0;
  if (!f->Seek(offset)) return 0;
  auto* data = static_cast<unsigned char*>(std::malloc(bytes));
  if (!data) return 0;
  if (f->ReadBytes(data, bytes) != bytes) {
    std::free(data);
    return 0;
  }
  *buffer = data;
  *size = bytes;
  return int32_t(bytes);
}

void mp4ff_close(mp4ff_t* f) { delete f; }

int32_t mp4ff_get_track_type(const mp4ff_t* f, int track) {
  const Track* t = TrackAt(f, track);
  return t ? t->type : kMp4ffTrackUnknown;
}
int32_t mp4ff_get_channel_count(const mp4ff_t* f, int track) {
  const Track* t = TrackAt(f, track);
  return t ? t->channels : 0;
}
int32_t mp4ff_get_sample_rate(const mp4ff_t* f, int track) {
  const Track* t = TrackAt(f, track);
  return t ? t->sampleRate : 0;
}
int32_t mp4ff_get_audio_type(const mp4ff_t* f, int track) {
  const Track* t = TrackAt(f, track);
  return t ? t->objectType : 0;
}
int32_t mp4ff_get_avg_bitrate(const mp4ff_t* f, int track) {
  const Track* t = TrackAt(f, track);
  return t ? int32_t(t->avgBitrate) : 0;
}
int32_t mp4ff_time_scale(const mp4ff_t* f, int track) {
  const Track* t = TrackAt(f, track);
  return t ? int32_t(t->timeScale) : 0;
}
int64_t mp4ff_get_track_duration(const mp4ff_t* f, int track) {
  const Track* t = TrackAt(f, track);
  return t ? int64_t(t->duration) : 0;
}
int32_t mp4ff_meta_get_num_items(const mp4ff_t* f) { return f ? int32_t(f->meta.size()) : 0; }
bool mp4ff_meta_get_by_index(const mp4ff_t* f, int index, const char** name, const char** value) {
  if (!f || index < 0 || size_t(index) >= f->meta.size() || !name || !value) return false;
  *name = f->meta[size_t(index)].first.c_str();
  *value = f->meta[size_t(index)].second.c_str();
  return true;
}
