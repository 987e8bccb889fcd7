#include "formats/mpeg/Tags.h"

#include <cstring>

#include "formats/mpeg/MPAException.h"
#include "formats/mpeg/MPAStream.h"

namespace {

// A tag is only taken when all of it lies inside the stream and it covers something, so
// the peeling loops always move on.
bool FitsStream(const CMPAStream* stream, int64_t offset, int64_t size) {
  return size > 0 && offset >= 0 && offset + size <= int64_t(stream->GetSize());
}

uint32_t SyncSafe(const uint8_t* p) {
  return uint32_t(p[0] & 0x7F) << 21 | uint32_t(p[1] & 0x7F) << 14 | uint32_t(p[2] & 0x7F) << 7 |
         uint32_t(p[3] & 0x7F);
}

uint32_t Le32(const uint8_t* p) {
  return uint32_t(p[0]) | uint32_t(p[1]) << 8 | uint32_t(p[2]) << 16 | uint32_t(p[3]) << 24;
}

}  // namespace

// --- ID3v1: 128 bytes behind the audio, starting with "TAG".

CTag* CID3V1Tag::FindTag(CMPAStream* stream, bool appended, uint32_t, uint32_t end) {
  if (!appended || end < 128) return nullptr;
  uint32_t offset = end - 128;
  const uint8_t* p = stream->ReadBytes(128, offset, false);
  if (!p || std::memcmp(p, "TAG", 3) != 0) return nullptr;
  auto* tag = new CID3V1Tag(stream, QStringLiteral("ID3"), true, offset, 128);
  // A zero byte before a non-zero one at the end of the comment is the track number of 1.1.
  if (p[125] == 0 && p[126] != 0)
    tag->SetVersion(1, 1);
  else
    tag->SetVersion(1, 0);
  return tag;
}

// --- ID3v2: a 10-byte header at the start ("ID3") or a 10-byte footer at the end ("3DI").

CTag* CID3V2Tag::FindTag(CMPAStream* stream, bool appended, uint32_t begin, uint32_t end) {
  if (appended && end < 10) return nullptr;
  uint32_t offset = appended ? end - 10 : begin;
  const uint8_t* p = stream->ReadBytes(10, offset, false);
  if (!p || std::memcmp(p, appended ? "3DI" : "ID3", 3) != 0) return nullptr;
  const bool footer = (p[5] & 0x10) != 0;
  const int64_t size = int64_t(SyncSafe(p + 6)) + 10 + (footer ? 10 : 0);
  const int64_t start = appended ? int64_t(offset) - (size - 10) : int64_t(offset);
  if (!FitsStream(stream, start, size)) return nullptr;
  auto* tag = new CID3V2Tag(stream, QStringLiteral("ID3"), appended, uint32_t(start), uint32_t(size));
  tag->SetVersion(2, p[3], p[4]);
  return tag;
}

// --- APE: a 32-byte header at the start or footer at the end, "APETAGEX".

CTag* CAPETag::FindTag(CMPAStream* stream, bool appended, uint32_t begin, uint32_t end) {
  if (appended && end < 32) return nullptr;
  uint32_t offset = appended ? end - 32 : begin;
  const uint8_t* p = stream->ReadBytes(32, offset, false);
  if (!p || std::memcmp(p, "APETAGEX", 8) != 0) return nullptr;
  const float version = float(Le32(p + 8)) / 1000.0f;
  const uint32_t flags = Le32(p + 20);
  int64_t size = Le32(p + 12);
  // From version 2 on a header may stand before the items; the size field counts only
  // the items and the footer.
  if (version > 1.0f && (flags & 0x80000000u)) size += 32;
  const int64_t start = appended ? int64_t(offset) - (size - 32) : int64_t(offset);
  if (!FitsStream(stream, start, size)) return nullptr;
  auto* tag = new CAPETag(stream, QStringLiteral("APE"), appended, uint32_t(start), uint32_t(size));
  tag->m_version = version;
  return tag;
}

// --- Lyrics3: an end mark of 9 bytes behind the lyrics; version 2 gives its size in
// front of the mark, version 1 has to be searched back for its start mark.

CTag* CLyrics3Tag::FindTag(CMPAStream* stream, bool appended, uint32_t, uint32_t end) {
  if (!appended || end < 9) return nullptr;
  uint32_t mark = end - 9;
  uint32_t at = mark;
  const uint8_t* p = stream->ReadBytes(9, at, false, true);
  if (!p) return nullptr;
  if (std::memcmp(p, "LYRICS200", 9) == 0) {
    if (mark < 6) return nullptr;
    uint32_t sizeAt = mark - 6;
    const uint8_t* digits = stream->ReadBytes(6, sizeAt, false, true);
    if (!digits) return nullptr;
    int64_t lyricsSize = 0;
    for (int i = 0; i < 6; ++i) {
      if (digits[i] < '0' || digits[i] > '9') return nullptr;
      lyricsSize = lyricsSize * 10 + (digits[i] - '0');
    }
    const int64_t start = int64_t(mark) - 6 - lyricsSize;
    const int64_t size = lyricsSize + 15;
    if (!FitsStream(stream, start, size)) return nullptr;
    auto* tag = new CLyrics3Tag(stream, QStringLiteral("Lyrics3"), true, uint32_t(start), uint32_t(size));
    tag->SetVersion(2);
    return tag;
  }
  if (std::memcmp(p, "LYRICSEND", 9) != 0) return nullptr;
  // Version 1 lyrics are at most 5100 bytes long.
  static const char kBegin[] = "LYRICSBEGIN";
  constexpr uint32_t kBeginLength = sizeof kBegin - 1;
  for (uint32_t pos = mark > 5100 ? mark - 5100 : 1; pos + kBeginLength <= mark; ++pos) {
    uint32_t at2 = pos;
    const uint8_t* q = stream->ReadBytes(kBeginLength, at2, false);
    if (q && std::memcmp(q, kBegin, kBeginLength) == 0) {
      auto* tag = new CLyrics3Tag(stream, QStringLiteral("Lyrics3"), true, pos, mark - pos + 9);
      tag->SetVersion(1);
      return tag;
    }
  }
  throw CMPAException(CMPAException::CorruptLyricsTag, mark);
}

// --- The list.

CTagList::CTagList(CMPAStream* stream) : m_end(stream->GetSize()) {
  // Tags behind the audio may stand in any order: each one found moves the end back to
  // its first byte, and the finders start again from there.
  while (FindAppendedTag(stream)) {
  }
  while (FindPrependedTag(stream)) {
  }
}

bool CTagList::FindAppendedTag(CMPAStream* stream) {
  using Finder = CTag* (*)(CMPAStream*, bool, uint32_t, uint32_t);
  static constexpr Finder kFinders[] = {&CID3V1Tag::FindTag, &CID3V2Tag::FindTag, &CLyrics3Tag::FindTag,
                                        &CAPETag::FindTag};
  for (Finder find : kFinders) {
    if (CTag* tag = find(stream, true, m_begin, m_end)) {
      m_tags.emplace_back(tag);
      m_end = tag->GetOffset();
      return true;
    }
  }
  return false;
}

bool CTagList::FindPrependedTag(CMPAStream* stream) {
  using Finder = CTag* (*)(CMPAStream*, bool, uint32_t, uint32_t);
  static constexpr Finder kFinders[] = {&CID3V2Tag::FindTag, &CAPETag::FindTag};
  for (Finder find : kFinders) {
    if (CTag* tag = find(stream, false, m_begin, m_end)) {
      m_tags.emplace_back(tag);
      m_begin = tag->GetEnd();
      return true;
    }
  }
  return false;
}

const CTag* CTagList::GetNextTag(uint32_t& index) const {
  const uint32_t i = index++;
  return i < m_tags.size() ? m_tags[i].get() : nullptr;
}
