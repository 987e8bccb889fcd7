#pragma once
// Builds small MP4 files in memory for the prober's and the reader's tests.
#include <QByteArray>
#include <cstdint>
#include <initializer_list>
#include <vector>

namespace mp4test {

inline QByteArray Be(uint64_t v, int bytes) {
  QByteArray b;
  for (int i = bytes - 1; i >= 0; --i) b.append(char((v >> (8 * i)) & 0xFF));
  return b;
}
inline QByteArray U8(uint32_t v) { return Be(v, 1); }
inline QByteArray U16(uint32_t v) { return Be(v, 2); }
inline QByteArray U32(uint32_t v) { return Be(v, 4); }
inline QByteArray U64(uint64_t v) { return Be(v, 8); }

inline QByteArray Atom(const char* type, const QByteArray& body) { return U32(uint32_t(body.size() + 8)) + type + body; }
inline QByteArray Atoms(std::initializer_list<QByteArray> parts) {
  QByteArray all;
  for (const QByteArray& p : parts) all += p;
  return all;
}
inline QByteArray FullAtom(const char* type, int version, const QByteArray& body) {
  return Atom(type, U8(uint32_t(version)) + Be(0, 3) + body);
}

inline QByteArray Ftyp(const char* brand = "M4A ") { return Atom("ftyp", QByteArray(brand) + U32(0) + "isom"); }

// An "mp4a" sample entry; `esds` is the descriptor atom (or empty).
inline QByteArray Mp4aEntry(int channels, int bits, int rate, const QByteArray& esds) {
  QByteArray body = QByteArray(6, '\0') + U16(1) + QByteArray(8, '\0') + U16(uint32_t(channels)) +
                    U16(uint32_t(bits)) + U32(0) + U16(uint32_t(rate)) + U16(0) + esds;
  return Atom("mp4a", body);
}

// An "esds" with one-byte descriptor lengths.
inline QByteArray EsdsShort(int objectType, uint32_t maxRate, uint32_t avgRate, const QByteArray& config) {
  QByteArray dsi = U8(5) + U8(uint32_t(config.size())) + config;
  QByteArray dcd = U8(uint32_t(objectType)) + U8(0x15) + Be(0, 3) + U32(maxRate) + U32(avgRate) + dsi;
  QByteArray dc = U8(4) + U8(uint32_t(dcd.size())) + dcd;
  QByteArray es = U16(1) + U8(0) + dc + U8(6) + U8(1) + U8(2);
  return FullAtom("esds", 0, U8(3) + U8(uint32_t(es.size())) + es);
}

// An "esds" with four-byte descriptor lengths (0x80 0x80 0x80 n).
inline QByteArray EsdsLong(int objectType, uint32_t maxRate, uint32_t avgRate, const QByteArray& config) {
  auto len = [](int n) { return QByteArray("\x80\x80\x80", 3) + U8(uint32_t(n)); };
  QByteArray dsi = U8(5) + len(int(config.size())) + config;
  QByteArray dcd = U8(uint32_t(objectType)) + U8(0x15) + Be(0, 3) + U32(maxRate) + U32(avgRate) + dsi;
  QByteArray dc = U8(4) + len(int(dcd.size())) + dcd;
  QByteArray es = U16(1) + U8(0) + dc + U8(6) + len(1) + U8(2);
  return FullAtom("esds", 0, U8(3) + len(int(es.size())) + es);
}

inline QByteArray Table32(const char* type, std::initializer_list<uint32_t> entries, bool countFirst = true) {
  QByteArray body = countFirst ? U32(uint32_t(entries.size())) : QByteArray();
  for (uint32_t e : entries) body += U32(e);
  return FullAtom(type, 0, body);
}

inline QByteArray Stsz(std::initializer_list<uint32_t> sizes) {
  QByteArray body = U32(0) + U32(uint32_t(sizes.size()));
  for (uint32_t s : sizes) body += U32(s);
  return FullAtom("stsz", 0, body);
}

inline QByteArray Mdhd(int version, uint32_t timeScale, uint64_t duration) {
  if (version == 1) return FullAtom("mdhd", 1, U64(0) + U64(0) + U32(timeScale) + U64(duration) + U32(0));
  return FullAtom("mdhd", 0, U32(0) + U32(0) + U32(timeScale) + U32(uint32_t(duration)) + U32(0));
}

inline QByteArray Mvhd(uint32_t timeScale, uint32_t duration) {
  return FullAtom("mvhd", 0, U32(0) + U32(0) + U32(timeScale) + U32(duration) + QByteArray(80, '\0'));
}

// A track with one sample description and the given tables.
inline QByteArray Trak(const QByteArray& mdhd, const QByteArray& entry, const QByteArray& tables) {
  QByteArray stsd = FullAtom("stsd", 0, U32(1) + entry);
  QByteArray stbl = Atom("stbl", stsd + tables);
  QByteArray minf = Atom("minf", FullAtom("smhd", 0, U32(0)) + stbl);
  QByteArray mdia = Atom("mdia", mdhd + FullAtom("hdlr", 0, U32(0) + "soun" + QByteArray(12, '\0') + '\0') + minf);
  return Atom("trak", FullAtom("tkhd", 0, QByteArray(80, '\0')) + mdia);
}

}  // namespace mp4test
