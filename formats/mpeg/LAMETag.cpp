#include "formats/mpeg/LAMETag.h"

#include <cstring>

#include "formats/mpeg/MPAStream.h"

CLAMETag* CLAMETag::FindTag(CMPAStream* stream, uint32_t offset) {
  uint32_t at = offset;
  const uint8_t* id = stream->ReadBytes(9, at, false);
  if (!id || std::memcmp(id, "LAME", 4) != 0) return nullptr;
  at = offset;
  const uint8_t* p = stream->ReadBytes(20, at, false);
  if (!p) return nullptr;

  auto* tag = new CLAMETag(stream, offset);
  // The version stands as text behind "LAME", e.g. "3.99".
  const QString versionText = QString::fromLatin1(reinterpret_cast<const char*>(p + 4), 4);
  bool ok = false;
  const float version = versionText.toFloat(&ok);
  tag->m_version = ok ? version : 0.0f;
  if (ok && version >= 3.9f) {
    QByteArray name(reinterpret_cast<const char*>(p), 9);
    if (name.endsWith('.')) name.chop(1);
    tag->encoder = QString::fromLatin1(name);
    tag->revision = p[9] >> 4;
    tag->vbrMethod = p[9] & 0x0F;
    tag->lowpass = uint32_t(p[10]) * 100;
    uint32_t rateAt = offset + 20;
    const uint8_t* rate = stream->ReadBytes(1, rateAt, false);
    tag->bitRate = rate ? *rate : 0;
  } else {
    tag->simpleTag = true;
    tag->encoder = QString::fromLatin1(reinterpret_cast<const char*>(p), 20);
  }
  return tag;
}

QString CLAMETag::GetVBRInfo() const {
  static const char* const kNames[] = {"Unknown", "CBR",  "ABR",      "VBR1",    "VBR2",
                                       "VBR3",    "VBR4", "Reserved", "CBR2Pass", "ABR2Pass"};
  return QString::fromLatin1(vbrMethod <= 9 ? kNames[vbrMethod] : kNames[0]);
}
