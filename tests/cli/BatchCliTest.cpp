// tonvane-cli over collections: folders, playlists, kinds, workers, exit statuses and an
// interrupted run.
#include <gtest/gtest.h>
#include <signal.h>

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include "support/TestSupport.h"

using testing_support::CliPath;
using testing_support::Quote;
using testing_support::Fixture;
using testing_support::ReadFile;
using testing_support::RunShell;
using testing_support::WriteFile;

namespace {

class BatchCli : public ::testing::Test {
 protected:
  void SetUp() override {
    qputenv("XDG_CONFIG_HOME", dir.filePath("config").toUtf8());
    qputenv("XDG_DATA_HOME", dir.filePath("data").toUtf8());
    root = dir.filePath("Musik, \"alt\"");
    Put("sine_16_stereo.wav", "01 Prøve.wav");
    Put("flac_16_2.flac", "2 שלום.flac");
    Put("ogg_2.ogg", "10 🤔.ogg");
    Put("gain_stereo.mp3", "sub/1 mp3.mp3");
    Put("flac_8_1.flac", "sub/deeper/x.flac");
    ASSERT_TRUE(WriteFile(root + "/sub/broken.flac", "fLaC but nothing after it"));
    ASSERT_TRUE(WriteFile(root + "/list.m3u8", "\xEF\xBB\xBFsub\\1 mp3.mp3\r\n01 Prøve.wav\r\ngone.wav\r\n"));
  }
  void Put(const QString& fixture, const QString& name) {
    const QString to = root + "/" + name;
    QDir().mkpath(QFileInfo(to).path());
    ASSERT_TRUE(QFile::copy(Fixture(fixture), to));
  }
  struct Run {
    int status = -1;
    QByteArray out, err;
    QStringList Files() const {
      QStringList f;
      for (const QByteArray& line : out.split('\n'))
        if (line.startsWith('/')) f << QString::fromUtf8(line).mid(QString::fromUtf8(line).lastIndexOf('/') + 1);
      return f;
    }
  };
  Run Cli(const QString& args) {
    QProcess p;
    p.start("/bin/sh", {"-c", Quote(CliPath()) + " " + args});
    p.waitForFinished(-1);
    return {p.exitCode(), p.readAllStandardOutput(), p.readAllStandardError()};
  }
  QString Log() const { return dir.filePath("log.csv"); }
  QTemporaryDir dir;
  QString root;
};

}  // namespace

// A folder in natural order, its tree with -r, one kind, and a playlist with a missing entry.
TEST_F(BatchCli, FoldersPlaylistsAndKinds) {
  Run r = Cli("--peak --no-log " + Quote(root));
  EXPECT_EQ(r.status, 0) << r.err.toStdString();
  EXPECT_EQ(r.Files(), QStringList({"01 Prøve.wav", "2 שלום.flac", "10 🤔.ogg"}));
  EXPECT_TRUE(r.out.contains("\n3 files, 3 tested, 0 from the log, 0 failed; ")) << r.out.toStdString();

  r = Cli("--average --no-log -r " + Quote(root));
  EXPECT_EQ(r.status, 1);  // the broken FLAC
  EXPECT_EQ(r.Files(), QStringList({"01 Prøve.wav", "2 שלום.flac", "10 🤔.ogg", "1 mp3.mp3", "broken.flac", "x.flac"}));
  EXPECT_TRUE(r.out.contains("6 files, 5 tested, 0 from the log, 1 failed")) << r.out.toStdString();

  r = Cli("--peak --no-log -r --kind flac " + Quote(root));
  EXPECT_EQ(r.Files(), QStringList({"2 שלום.flac", "broken.flac", "x.flac"}));

  // The missing entry is a failed row in its place.
  r = Cli("--average --no-log " + Quote(root + "/list.m3u8"));
  EXPECT_EQ(r.status, 1);
  EXPECT_EQ(r.Files(), QStringList({"1 mp3.mp3", "01 Prøve.wav", "gone.wav"}));
  EXPECT_TRUE(r.out.contains("  error: Sorry, but the file " + (root + "/gone.wav").toUtf8() + " cannot be found.\n"));
  EXPECT_TRUE(r.out.contains("\n3 files, 2 tested, 0 from the log, 1 failed; ")) << r.out.toStdString();
}

// One worker or four: the same output and the same log bytes; a second run comes from the
// log. CSV has the log's columns.
TEST_F(BatchCli, JobsGiveIdenticalOutputAndLog) {
  QByteArray outs[2], logs[2];
  for (int i = 0; i < 2; ++i) {
    QFile::remove(Log());
    const Run r = Cli(QString("--peak --db --json -r --jobs %1 --log %2 %3").arg(i ? 4 : 1).arg(Quote(Log()), Quote(root)));
    EXPECT_EQ(r.status, 1);
    outs[i] = r.out;
    logs[i] = ReadFile(Log());
  }
  EXPECT_EQ(outs[0], outs[1]);
  EXPECT_EQ(logs[0], logs[1]);
  EXPECT_EQ(outs[0].count('\n'), 6);
  const Run again = Cli("--peak --db --csv -r --jobs 2 --log " + Quote(Log()) + " " + Quote(root));
  EXPECT_TRUE(again.err.contains("6 files, 0 tested, 5 from the log, 1 failed")) << again.err.toStdString();
  const QList<QByteArray> lines = again.out.trimmed().split('\n');
  ASSERT_EQ(lines.size(), 7);
  EXPECT_TRUE(lines[0].startsWith("FileName,Year,Month,Day,Hour,Minute,Second,DayOfWeek,GainLeft,"));
  EXPECT_TRUE(lines[0].endsWith(",WavPikNoClippingRight,Status,Error"));
  EXPECT_TRUE(lines[1].startsWith("\"" + QString(root).replace("\"", "\"\"").toUtf8() + "/01 Prøve.wav\","));
  EXPECT_TRUE(lines[1].endsWith(",from log,"));
  EXPECT_EQ(ReadFile(Log()), logs[0]);
}

// Wrong command lines end with status 2 and a word on what was wrong.
TEST_F(BatchCli, BadUsage) {
  for (const char* args : {"", "--peak --average x.wav", "--kind mp5 x.wav", "--jobs 0 x.wav", "--json --csv x.wav",
                           "--frobnicate x.wav"}) {
    const Run r = Cli(args);
    EXPECT_EQ(r.status, 2) << args;
    EXPECT_TRUE(r.err.startsWith("tonvane-cli: ")) << args;
  }
}

// Ctrl+C: whole rows only, the log holds exactly the rows printed, no work file stays,
// status 130.
TEST_F(BatchCli, InterruptKeepsWholeRows) {
  const QString many = dir.filePath("many");
  QDir().mkpath(many);
  ASSERT_EQ(RunShell("sox -R -n -b 16 -c 2 -r 44100 " + Quote(many + "/a.flac") + " synth 20 pinknoise"), 0);
  for (int i = 1; i < 24; ++i) ASSERT_TRUE(QFile::copy(many + "/a.flac", many + QString("/b%1.flac").arg(i)));
  QProcess p;
  p.start(CliPath(), {"--average", "--json", "--jobs", "2", "--log", Log(), many});
  ASSERT_TRUE(p.waitForReadyRead(60000));
  ::kill(pid_t(p.processId()), SIGINT);
  ASSERT_TRUE(p.waitForFinished(60000));
  EXPECT_EQ(p.exitCode(), 130);
  const QList<QByteArray> rows = p.readAllStandardOutput().trimmed().split('\n');
  EXPECT_GE(rows.size(), 1);
  EXPECT_LT(rows.size(), 24);
  for (const QByteArray& row : rows) EXPECT_TRUE(row.startsWith("{\"bits\"") && row.endsWith("}"));
  EXPECT_TRUE(QDir(many).entryList({"*.tmp"}).isEmpty());
  // The log: its header and one record (row and filler line) per printed row.
  const QByteArray log = ReadFile(Log());
  EXPECT_EQ(log.count("\r\n"), 1 + 2 * rows.size());
}
