// The MP4 reader through its callbacks: tracks, descriptors (behind metadata it passes over)
// and the place of each sample by the chunk tables.
#include <gtest/gtest.h>

#include <QFile>
#include <cstdlib>
#include <cstring>

#include "formats/Mp4ff.h"
#include "support/TestSupport.h"
#include "tests/formats/Mp4TestAtoms.h"

using namespace mp4test;

namespace {

struct MemoryFile {
  QByteArray bytes;
  uint64_t pos = 0;
};

uint32_t MemRead(void* user, void* buffer, uint32_t length) {
  auto* m = static_cast<MemoryFile*>(user);
  if (m->pos >= uint64_t(m->bytes.size())) return 0;
  const uint32_t n = uint32_t(std::min<uint64_t>(length, uint64_t(m->bytes.size()) - m->pos));
  std::memcpy(buffer, m->bytes.constData() + m->pos, n);
  m->pos += n;
  return n;
}
uint32_t MemSeek(void* user, uint64_t position) {
  static_cast<MemoryFile*>(user)->pos = position;
  return 0;
}

struct Reader {
  MemoryFile file;
  mp4ff_callback_t cb{MemRead, MemSeek, &file};
  mp4ff_t* f = nullptr;
  explicit Reader(const QByteArray& b) {
    file.bytes = b;
    f = mp4ff_open_read(&cb);
  }
  ~Reader() { mp4ff_close(f); }
};

// Six samples in four chunks: two runs of the chunk table (2 per chunk from chunk 1,
// 1 per chunk from chunk 3), 64-bit chunk offsets, a 64-bit track duration.
QByteArray ChunkedFile() {
  QByteArray data(2600, '\0');
  const uint32_t sizes[6] = {10, 11, 12, 13, 14, 15};
  const uint32_t offsets[6] = {2100, 2110, 2200, 2212, 2300, 2400};
  for (int i = 0; i < 6; ++i) data.replace(int(offsets[i]), int(sizes[i]), QByteArray(int(sizes[i]), char('a' + i)));
  QByteArray co64 = FullAtom("co64", 0, U32(4) + U64(2100) + U64(2200) + U64(2300) + U64(2400));
  QByteArray tables = FullAtom("stts", 0, U32(1) + U32(6) + U32(1024)) + FullAtom("stts", 0, U32(1) + U32(99) + U32(1)) +
                      FullAtom("stsc", 0, U32(2) + U32(1) + U32(2) + U32(1) + U32(3) + U32(1) + U32(1)) +
                      Stsz({10, 11, 12, 13, 14, 15}) + co64 + FullAtom("ctts", 0, U32(1) + U32(6) + U32(0));
  QByteArray ilst = Atom("ilst", Atom("\xA9nam", FullAtom("data", 1, U32(0) + "Song")) +
                                     Atom("----", FullAtom("mean", 0, "com.example") + FullAtom("name", 0, "Mood") +
                                                      FullAtom("data", 1, U32(0) + "Calm")));
  QByteArray udta = Atom("udta", FullAtom("meta", 0, FullAtom("hdlr", 0, QByteArray(20, '\0')) + ilst));
  QByteArray trak = Trak(Mdhd(1, 48000, 0x100000000ull),
                         Mp4aEntry(2, 16, 48000, EsdsLong(0x40, 1, 2, QByteArray("\x11\x90", 2))), tables);
  QByteArray moov = Atom("moov", Mvhd(1000, 5) + trak + udta);
  QByteArray file = Ftyp() + moov;
  // The media data stands at fixed places behind the movie.
  file += Atom("free", QByteArray(int(2000 - file.size() - 8), '\0'));
  file.append(data.mid(2000));
  return file;
}

}  // namespace

TEST(Mp4ff, TracksAndDescriptors) {
  Reader r(ChunkedFile());
  ASSERT_NE(r.f, nullptr);
  ASSERT_EQ(mp4ff_total_tracks(r.f), 1);
  EXPECT_EQ(mp4ff_get_track_type(r.f, 0), kMp4ffTrackAudio);
  EXPECT_EQ(mp4ff_get_channel_count(r.f, 0), 2);
  EXPECT_EQ(mp4ff_get_sample_rate(r.f, 0), 48000);
  EXPECT_EQ(mp4ff_num_samples(r.f, 0), 6);  // the first stts only
  unsigned char* config = nullptr;
  unsigned int size = 0;
  ASSERT_EQ(mp4ff_get_decoder_config(r.f, 0, &config, &size), 0);
  ASSERT_EQ(size, 2u);
  EXPECT_EQ(config[0], 0x11);
  EXPECT_EQ(config[1], 0x90);
  std::free(config);
  EXPECT_EQ(mp4ff_get_decoder_config(r.f, 1, &config, &size), 1);

}

TEST(Mp4ff, SamplesArePlacedByTheChunkTables) {
  Reader r(ChunkedFile());
  ASSERT_NE(r.f, nullptr);
  const uint64_t offsets[6] = {2100, 2110, 2200, 2212, 2300, 2400};
  for (int i = 0; i < 6; ++i) {
    SCOPED_TRACE(i);
    uint64_t offset = 0;
    uint32_t size = 0;
    ASSERT_TRUE(mp4ff_sample_place(r.f, 0, i, &offset, &size));
    EXPECT_EQ(offset, offsets[i]);
    EXPECT_EQ(size, uint32_t(10 + i));
    unsigned char* buf = nullptr;
    unsigned int bytes = 0;
    ASSERT_EQ(mp4ff_read_sample(r.f, 0, i, &buf, &bytes), 10 + i);
    EXPECT_EQ(QByteArray(reinterpret_cast<char*>(buf), int(bytes)), QByteArray(10 + i, char('a' + i)));
    std::free(buf);
  }
  unsigned char* buf = nullptr;
  unsigned int bytes = 0;
  EXPECT_EQ(mp4ff_read_sample(r.f, 0, 6, &buf, &bytes), 0);  // beyond the size table
  EXPECT_EQ(buf, nullptr);
}

TEST(Mp4ff, AtMost1024TracksAndTruncatedFilesStaySafe) {
  QByteArray traks;
  for (int i = 0; i < 1030; ++i) traks += Atom("trak", QByteArray());
  Reader many(Ftyp() + Atom("moov", traks));
  ASSERT_NE(many.f, nullptr);
  EXPECT_EQ(mp4ff_total_tracks(many.f), 1024);

  const QByteArray whole = ChunkedFile();
  for (int cut : {3, 8, 40, 200, int(whole.size()) - 300}) {
    Reader r(whole.left(cut));
    if (cut < 8) {
      EXPECT_EQ(r.f, nullptr);
      continue;
    }
    ASSERT_NE(r.f, nullptr);
    unsigned char* buf = nullptr;
    unsigned int bytes = 0;
    for (int i = 0; i < mp4ff_num_samples(r.f, 0); ++i)
      if (mp4ff_read_sample(r.f, 0, i, &buf, &bytes)) std::free(buf);
  }
}

TEST(Mp4ff, ReadsEveryPacketOfAnEncodedFile) {
  QFile f(testing_support::Fixture("aac_stereo.m4a"));
  ASSERT_TRUE(f.open(QIODevice::ReadOnly));
  const QByteArray bytes = f.readAll();
  Reader r(bytes);
  ASSERT_NE(r.f, nullptr);
  ASSERT_EQ(mp4ff_total_tracks(r.f), 1);
  const int n = mp4ff_num_samples(r.f, 0);
  ASSERT_GT(n, 90);
  // One track: the packets follow one another through the media data.
  const int mdat = bytes.indexOf("mdat") + 4;
  uint64_t expected = uint64_t(mdat);
  for (int i = 0; i < n; ++i) {
    uint64_t offset = 0;
    uint32_t size = 0;
    ASSERT_TRUE(mp4ff_sample_place(r.f, 0, i, &offset, &size)) << i;
    ASSERT_EQ(offset, expected) << i;
    expected += size;
  }
  const auto at = [&](int k) { return uint32_t(uint8_t(bytes[k])); };
  const uint32_t mdatSize = at(mdat - 8) << 24 | at(mdat - 7) << 16 | at(mdat - 6) << 8 | at(mdat - 5);
  EXPECT_EQ(expected, uint64_t(mdat) + mdatSize - 8);  // to the end of the media data
}
