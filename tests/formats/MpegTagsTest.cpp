// Tags at both ends of an MPEG file: each fixture is cbr128.mp3 with tags around it, so the
// audio the tag list encloses must be exactly that file.
#include <gtest/gtest.h>

#include <QList>
#include <functional>
#include <memory>

#include "formats/mpeg/MPAException.h"
#include "formats/mpeg/MPAFile.h"
#include "formats/mpeg/Tags.h"
#include "MpegTestFrames.h"
#include "support/TestSupport.h"

using testing_support::Fixture;
using testing_support::ReadFile;

namespace {

struct TagSeen {
  QString name;
  float version;
  uint32_t size;
  bool appended;
};

QList<TagSeen> TagsOf(const CTagList& list) {
  QList<TagSeen> out;
  uint32_t i = 0;
  while (const CTag* t = list.GetNextTag(i)) out << TagSeen{t->GetName(), t->GetVersion(), t->GetSize(), t->IsAppended()};
  EXPECT_EQ(i, uint32_t(out.size()) + 1);  // the index moves past the end too
  return out;
}

std::unique_ptr<CTagList> ListOf(const QByteArray& bytes, std::unique_ptr<CMPAFileStream>& stream) {
  stream = std::make_unique<CMPAFileStream>("mem", reinterpret_cast<const uint8_t*>(bytes.constData()),
                                            uint32_t(bytes.size()));
  return std::make_unique<CTagList>(stream.get());
}

}  // namespace

TEST(MpegTags, FixturesEncloseTheSameAudio) {
  const QByteArray audio = ReadFile(Fixture("mpeg/cbr128.mp3"));
  ASSERT_GT(audio.size(), 30000);
  struct Case {
    const char* file;
    QList<TagSeen> tags;  // in the order found
  };
  const TagSeen id3v1{"ID3", 1.1f, 128, true};
  const TagSeen apeEnd{"APE", 2.0f, 83, true};
  const TagSeen id3v24Footer{"ID3", 2.4f, 35, true};
  const Case cases[] = {
      {"cbr128.mp3", {}},
      {"id3v1.mp3", {id3v1}},
      {"ape_then_id3v1.mp3", {id3v1, apeEnd}},
      {"id3v1_then_ape.mp3", {apeEnd, id3v1}},
      {"apev1_end.mp3", {{"APE", 1.0f, 51, true}}},
      {"ape_start.mp3", {{"APE", 2.0f, 83, false}}},
      {"lyrics3v2.mp3", {id3v1, {"Lyrics3", 2.0f, 41 + 15, true}}},
      {"lyrics3v1.mp3", {id3v1, {"Lyrics3", 1.0f, 47, true}}},
      {"id3v2_footer_start.mp3", {{"ID3", 2.4f, 35, false}}},
      {"id3v2_footer_end.mp3", {id3v24Footer}},
      {"id3v2_both_ends.mp3", {id3v24Footer, {"ID3", 2.4f, 35, false}}},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.file);
    const QString path = Fixture(QString("mpeg/") + c.file);
    const QByteArray bytes = ReadFile(path);
    CMPAFile file(path);
    const CTagList& list = file.GetTags();
    EXPECT_EQ(bytes.mid(int(list.GetBegin()), int(list.GetEnd() - list.GetBegin())), audio);
    const QList<TagSeen> seen = TagsOf(list);
    ASSERT_EQ(seen.size(), c.tags.size());
    uint32_t total = 0;
    for (int i = 0; i < seen.size(); ++i) {
      EXPECT_EQ(seen[i].name, c.tags[i].name) << i;
      EXPECT_FLOAT_EQ(seen[i].version, c.tags[i].version) << i;
      EXPECT_EQ(seen[i].size, c.tags[i].size) << i;
      EXPECT_EQ(seen[i].appended, c.tags[i].appended) << i;
      total += seen[i].size;
    }
    EXPECT_EQ(total + uint32_t(audio.size()), uint32_t(bytes.size()));
  }
}

TEST(MpegTags, LameId3v2AtTheStartAndId3v1Version10) {
  const QByteArray audio = ReadFile(Fixture("mpeg/cbr128.mp3"));
  const QString path = Fixture("mpeg/id3v2_start.mp3");
  CMPAFile file(path);
  const QList<TagSeen> seen = TagsOf(file.GetTags());
  ASSERT_EQ(seen.size(), 1);
  EXPECT_EQ(seen[0].name, "ID3");
  EXPECT_FALSE(seen[0].appended);
  EXPECT_EQ(file.GetTags().GetBegin(), seen[0].size);
  EXPECT_EQ(ReadFile(path).mid(int(seen[0].size)), audio);

  // Without a track number an ID3v1 tag is version 1.0.
  QByteArray v10 = audio + "TAG" + QByteArray(125, ' ');
  std::unique_ptr<CMPAFileStream> stream;
  auto list = ListOf(v10, stream);
  const QList<TagSeen> tags = TagsOf(*list);
  ASSERT_EQ(tags.size(), 1);
  EXPECT_FLOAT_EQ(tags[0].version, 1.0f);
}

TEST(MpegTags, DamagedAndOddTags) {
  const QByteArray audio = mpeg_test::Mpeg1L3Frame(128) + mpeg_test::Mpeg1L3Frame(128);
  std::unique_ptr<CMPAFileStream> stream;

  // Lyrics3 version 1 whose start lies more than 5100 bytes back is an error.
  QByteArray far = audio + "LYRICSBEGIN" + QByteArray(5100, 'x') + "LYRICSEND";
  try {
    ListOf(far, stream);
    ADD_FAILURE() << "no exception";
  } catch (const CMPAException& e) {
    EXPECT_EQ(e.GetError(), CMPAException::CorruptLyricsTag);
  }
  QByteArray near = audio + "LYRICSBEGIN" + QByteArray(5089, 'x') + "LYRICSEND";
  auto nearList = ListOf(near, stream);
  EXPECT_EQ(nearList->GetEnd(), uint32_t(audio.size()));

  // A Lyrics3 version 2 size that is not six digits: no tag.
  QByteArray notDigits = audio + "LYRICSBEGINabc" + "0001x4" + "LYRICS200";
  auto list = ListOf(notDigits, stream);
  EXPECT_EQ(list->Count(), 0u);
  EXPECT_EQ(list->GetEnd(), uint32_t(notDigits.size()));

  // Sizes that reach outside the file: no tag, and the scan ends.
  QByteArray hugeId3 = QByteArray("ID3\x04\x00\x00\x7f\x7f\x7f\x7f", 10) + audio;
  list = ListOf(hugeId3, stream);
  EXPECT_EQ(list->Count(), 0u);
  QByteArray hugeFooter = audio + QByteArray("3DI\x04\x00\x10\x7f\x7f\x7f\x7f", 10);
  list = ListOf(hugeFooter, stream);
  EXPECT_EQ(list->Count(), 0u);
  QByteArray apeZero = audio + "APETAGEX" + QByteArray(24, '\0');
  list = ListOf(apeZero, stream);
  EXPECT_EQ(list->Count(), 0u);

  // APE version 2 without its header flag counts no header.
  QByteArray ape2 = audio + QByteArray(20, 'i') + "APETAGEX";
  ape2 += QByteArray::fromHex("d0070000" "34000000" "01000000" "00000000" "0000000000000000");
  list = ListOf(ape2, stream);
  ASSERT_EQ(list->Count(), 1u);
  EXPECT_EQ(list->GetEnd(), uint32_t(audio.size()));
}
