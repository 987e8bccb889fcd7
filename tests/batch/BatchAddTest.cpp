// Adding to the batch list: name tests, playlists, folder walks and the property scan.
#include <gtest/gtest.h>
#include <unistd.h>

#include <QDir>
#include <QFile>

#include "app/Session.h"
#include "batch/BatchAdd.h"
#include "batch/BatchControl.h"
#include "batch/BatchList.h"
#include "batch/PropertyScan.h"
#include "log/TestLog.h"
#include "support/TestSupport.h"

using testing_support::ApeData;
using testing_support::Fixture;
using testing_support::ReadFile;
using testing_support::TestSession;
using testing_support::WriteFile;

namespace {

class BatchAddTest : public ::testing::Test {
 protected:
  // Copies a fixture into the temporary folder under `name` (sub-folders made as needed).
  QString Put(const QString& fixture, const QString& name) {
    const QString to = t.Path(name);
    QDir().mkpath(QFileInfo(to).path());
    QFile::remove(to);
    EXPECT_TRUE(QFile::copy(fixture, to)) << fixture.toStdString();
    return to;
  }
  QStringList Paths(const BatchList& list) const {
    QStringList out;
    for (int r = 0; r < list.FileCount(); ++r) out << list.PathOf(r).mid(t.dir.path().size() + 1);
    return out;
  }
  TestSession t;
};

}  // namespace

// The name test of each batch kind; kind 1 takes a WAVE only when it carries MPEG.
TEST_F(BatchAddTest, NameTests) {
  const QString pcm = Fixture("sine_16_stereo.wav");
  const struct {
    int kind;
    const char* name;
    bool ok;
  } cases[] = {
      {kKindMp3, "a.MP3", true},   {kKindMp3, "a.Mpga", true},  {kKindMp3, "a.flac", false},
      {kKindAac, "a.M4B", true},   {kKindAac, "a.aac", true},   {kKindAlac, "a.m4r", true},
      {kKindWav, "a.WAVE", true},  {kKindFlac, "a.fla", true},  {kKindFlac, "a.flac.txt", false},
      {kKindOgg, "a.ogg", true},   {kKindOgg, "a.oga", false},  {kKindApe, "a.APE", true},
      {kAnyKind, "a.m4p", true},   {kAnyKind, "a.m3u", false},  {kAnyKind, "flac", false},
  };
  for (const auto& c : cases) EXPECT_EQ(BatchNameTest(c.kind, c.name), c.ok) << c.kind << " " << c.name;
  EXPECT_FALSE(BatchNameTest(kKindMp3, pcm));
  EXPECT_TRUE(BatchNameTest(kKindWav, pcm));
  EXPECT_TRUE(IsLeftoverName("temp.wav"));
  EXPECT_FALSE(IsLeftoverName("Temp.wav.flac"));
}

// Playlist entries: marks, line ends, relative and absolute entries, backslashes, URLs,
// comments, and the Latin-1 fallback of ".m3u".
TEST(BatchPlaylist, Entries) {
  const QByteArray body =
      "\xEF\xBB\xBF#EXTM3U\r\n#EXTINF:1,x\r\nsub\\Prøve 1.flac\r\n/abs/שלום.mp3\r\n\r\n"
      "file:///abs/with%20blank%2C.ogg\r\nhttp://radio/stream.mp3\r\n../up/🤔.ape\r\n";
  EXPECT_EQ(PlaylistEntries(body, true, "/list"),
            QStringList({"/list/sub/Prøve 1.flac", "/abs/שלום.mp3", "/abs/with blank,.ogg", "/up/🤔.ape"}));
  // A ".m3u" that is not UTF-8 is Latin-1; one that is, is UTF-8.
  EXPECT_EQ(PlaylistEntries("Pr\xF8ve.wav\n", false, "/l"), QStringList({"/l/Prøve.wav"}));
  EXPECT_EQ(PlaylistEntries("Pr\xC3\xB8ve.wav\n", false, "/l"), QStringList({"/l/Prøve.wav"}));
}

// A playlist adds its entries in order, once each; a missing entry is reported and the
// rest still come; a playlist that lists itself adds nothing for that line.
TEST_F(BatchAddTest, PlaylistIntoList) {
  Put(Fixture("flac_16_2.flac"), "Prøve, \"a\"/1.flac");
  Put(Fixture("ogg_2.ogg"), "Prøve, \"a\"/שלום 🤔.ogg");
  const QString list = t.Path("Prøve, \"a\"/list.m3u8");
  ASSERT_TRUE(WriteFile(list, "list.m3u8\r\nשלום 🤔.ogg\r\ngone.flac\r\n1.flac\r\n./1.flac\r\n"));
  BatchList model(kAnyKind);
  BatchAdder add(model, *t.s);
  EXPECT_EQ(add.AddPath(list, false), 2);
  EXPECT_EQ(Paths(model), QStringList({"Prøve, \"a\"/שלום 🤔.ogg", "Prøve, \"a\"/1.flac"}));
  ASSERT_EQ(add.Problems().size(), 1u);
  EXPECT_EQ(t.prompt.texts(), QStringList({"Sorry, but the file " + t.Path("Prøve, \"a\"/gone.flac") + " cannot be found."}));
}

// A walk: natural order, files before sub-folders, odd names, leftovers skipped, a link
// loop walked once, an unreadable folder reported without ending the walk.
TEST_F(BatchAddTest, FolderWalk) {
  Put(Fixture("sine_16_stereo.wav"), "top/track10.wav");
  Put(Fixture("sine_16_stereo.wav"), "top/Track2.wav");
  Put(Fixture("sine_16_stereo.wav"), "top/temp.wav");
  Put(Fixture("flac_16_2.flac"), "top/b/שלום, 🤔.flac");
  Put(Fixture("flac_16_2.flac"), "top/a/'Prøve' 1.flac");
  Put(Fixture("flac_16_2.flac"), "top/locked/x.flac");
  ASSERT_EQ(::symlink("..", QFile::encodeName(t.Path("top/a/loop")).constData()), 0);
  QFile::setPermissions(t.Path("top/locked"), QFileDevice::WriteOwner);
  BatchList model(kAnyKind);
  BatchAdder add(model, *t.s);
  EXPECT_EQ(add.AddFolder(t.Path("top"), false), 2);
  EXPECT_EQ(Paths(model), QStringList({"top/Track2.wav", "top/track10.wav"}));
  const bool root = ::geteuid() == 0;  // root reads the locked folder all the same
  EXPECT_EQ(add.AddFolder(t.Path("top"), true), root ? 3 : 2);
  QStringList expected{"top/Track2.wav", "top/track10.wav", "top/a/'Prøve' 1.flac", "top/b/שלום, 🤔.flac"};
  if (root) expected << "top/locked/x.flac";
  EXPECT_EQ(Paths(model), expected);
  QFile::setPermissions(t.Path("top/locked"), QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
  if (!root) {
    ASSERT_EQ(add.Problems().size(), 1u);
    EXPECT_TRUE(add.Problems()[0].text.startsWith("Sorry, but the folder " + t.Path("top/locked") + " cannot be read: "));
  }
  // One kind: the FLAC batch takes only the FLAC files.
  BatchList flac(kKindFlac);
  BatchAdder addFlac(flac, *t.s);
  EXPECT_EQ(addFlac.AddFolder(t.Path("top"), true), 3);
}

// A cancel during a walk keeps what was added.
TEST_F(BatchAddTest, CancelledWalk) {
  for (int i = 1; i <= 5; ++i) Put(Fixture("sine_16_mono.wav"), QString("w/%1.wav").arg(i));
  BatchList model(kKindWav);
  BatchControl control;
  int polls = 0;
  control.processEvents = [&] {
    if (++polls == 4) control.Cancel();
  };
  BatchAdder add(model, *t.s, &control);
  add.AddFolder(t.Path("w"), false);
  EXPECT_TRUE(add.Cancelled());
  EXPECT_GE(model.FileCount(), 1);
  EXPECT_LT(model.FileCount(), 5);
}

// The scan of every kind: properties of good files, and a reason for bad ones.
TEST_F(BatchAddTest, ScanEveryKind) {
  const struct {
    QString path;
    int kind;
    uint32_t channels, rate, bits;
    const char* format;
  } good[] = {
      {Fixture("sine_16_stereo.wav"), kKindWav, 2, 44100, 16, "PCM (Pulse-Code Modulation)"},
      {Fixture("conv_ima_2.wav"), kKindWav, 2, 0, 0, nullptr},
      {Fixture("gain_stereo.mp3"), kKindMp3, 2, 44100, 0, nullptr},
      {Fixture("gain_mono.mp3"), kKindMp3, 1, 44100, 0, nullptr},
      {Fixture("flac_24_2.flac"), kKindFlac, 2, 0, 24, "FLAC (Free Lossless Audio Codec)"},
      {Fixture("ogg_2.ogg"), kKindOgg, 2, 0, 0, "Ogg Vorbis"},
      {ApeData("s16_mono_48k.ape"), kKindApe, 1, 48000, 16, "APE Monkey's Audio"},
      {Fixture("aac_stereo.m4a"), kKindAac, 2, 0, 0, nullptr},
      {Fixture("aac_id3.aac"), kKindAac, 2, 44100, 16, "MPEG-4 AAC"},
      {Fixture("alac_24_stereo.m4a"), kKindAlac, 2, 0, 24, "MPEG4 ALAC"},
  };
  for (const auto& g : good) {
    BatchFileInfo f;
    ASSERT_EQ(ScanFile(g.path, kAnyKind, f), ScanOutcome::Row) << g.path.toStdString();
    SCOPED_TRACE(g.path.toStdString());
    EXPECT_FALSE(f.bad) << f.error.toStdString();
    EXPECT_EQ(int(f.kind), g.kind);
    EXPECT_EQ(f.channels, g.channels);
    EXPECT_EQ(f.sampleRate, g.rate ? g.rate : f.sampleRate);
    EXPECT_EQ(f.bits, g.bits ? g.bits : f.bits);
    EXPECT_EQ(f.audioFormat, g.format ? QString(g.format) : f.audioFormat);
    EXPECT_TRUE(f.durationMs > 0 || (g.kind == kKindWav && !g.format));  // a compressed WAVE tells none
    EXPECT_GT(f.fullSize, 0u);
  }
  BatchFileInfo f;
  ScanFile(Fixture("sine_16_stereo.wav"), kKindWav, f);
  EXPECT_EQ(f.durationMs, 1000u);
  // A WAVE of MPEG audio is an MP3 row, and no row at all in a WAVE batch.
  const QString riffMp3 = Fixture("mpeg/layer3_in_riff.wav");
  EXPECT_EQ(ScanFile(riffMp3, kKindWav, f), ScanOutcome::NoRow);
  ASSERT_EQ(ScanFile(riffMp3, kAnyKind, f), ScanOutcome::Row);
  EXPECT_EQ(int(f.kind), kKindMp3);
  EXPECT_TRUE(BatchNameTest(kKindMp3, riffMp3));

  ASSERT_TRUE(WriteFile(t.Path("empty.flac"), ""));
  ASSERT_TRUE(WriteFile(t.Path("text.wav"), "this is not a sound file at all, only words"));
  ASSERT_TRUE(WriteFile(t.Path("text.mp3"), QByteArray(4000, 'x')));
  const QString unreadable = Put(Fixture("ogg_2.ogg"), "locked.ogg");
  QFile::setPermissions(unreadable, QFileDevice::WriteOwner);
  const QString bad[] = {t.Path("empty.flac"), t.Path("text.wav"), t.Path("text.mp3"), Fixture("flac_notflac.flac"),
                         ApeData("s16_3ch_44k.ape"), ApeData("s32_stereo_44k.ape"), Fixture("aac_6ch.m4a"),
                         t.Path("missing.ogg"), unreadable};
  for (const QString& path : bad) {
    if (path == unreadable && ::geteuid() == 0) continue;
    BatchFileInfo b;
    ASSERT_EQ(ScanFile(path, kAnyKind, b), ScanOutcome::Row) << path.toStdString();
    EXPECT_TRUE(b.bad) << path.toStdString();
    EXPECT_TRUE(b.error.startsWith("Sorry")) << path.toStdString() << ": " << b.error.toStdString();
    EXPECT_EQ(b.fullSize, 0u);
    EXPECT_EQ(b.durationMs, 0u);
  }
}

// A file the log knows shows its levels at adding, from one open of the log; Status stays
// " not tested".
TEST_F(BatchAddTest, EarlierResultFromLog) {
  const QString file = Put(Fixture("sine_16_stereo.wav"), "Prøve.wav");
  ASSERT_TRUE(CreateEmptyLog(t.s->m_logPath));
  t.s->m_logAvailable = 1;
  {
    TestLog log(*t.s);
    ASSERT_TRUE(log.OpenLog());
    LevelResult r;
    r.WavLeft = 50.0f;
    r.WavRight = 49.5f;
    ASSERT_TRUE(log.WriteRow(file, LogTest::Wav, log.FindRow(file), r));
    log.CloseLog();
  }
  BatchList model(kKindWav);
  BatchAdder add(model, *t.s);
  EXPECT_EQ(add.AddFile(file), 1);
  EXPECT_EQ(add.FromLogCount(), 1);
  EXPECT_EQ(model.CellText(0, BatchColumn::VolumeLevel), "Left: 50.0%; Right: 49.5%");
  EXPECT_EQ(model.CellText(0, BatchColumn::Status), " not tested");
  EXPECT_EQ(model.data(model.index(0, 0), BatchList::ColorRefRole).toUInt(), kRowTested);
}
