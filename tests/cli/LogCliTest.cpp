// tonvane-cli with the test log: a second run over unchanged files answers from the log and
// reads no samples (the binary's own count of sample bytes says so), --no-log measures
// again, and a log held by another process is passed over.
#include <gtest/gtest.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <vector>

#include "support/TestSupport.h"

using testing_support::CliPath;
using testing_support::ReadFile;
using testing_support::RunShell;

namespace {

QString Quote(const QString& s) {
  QString q = s;
  q.replace("'", "'\\''");
  return "'" + q + "'";
}

struct CliRun {
  int status = -1;
  std::vector<QJsonObject> files;
};

CliRun RunCli(const QString& args, const QStringList& files, const QString& prefix = {}) {
  QString cmd = prefix + Quote(CliPath()) + " --json " + args;
  for (const QString& f : files) cmd += " " + Quote(f);
  QByteArray out;
  CliRun r;
  r.status = RunShell(cmd + " 2>/dev/null", &out);
  for (const QByteArray& line : out.split('\n'))
    if (!line.trimmed().isEmpty()) r.files.push_back(QJsonDocument::fromJson(line).object());
  return r;
}

class LogCli : public ::testing::Test {
 protected:
  void SetUp() override {
    qputenv("XDG_CONFIG_HOME", dir.filePath("config").toUtf8());
    qputenv("XDG_DATA_HOME", dir.filePath("data").toUtf8());
    log = dir.filePath("Test Log, \"mine\".csv");
    // Sources with names a log must quote: FLAC, which the CLI decodes to a work file, and
    // WAV, which it reads in place.
    files = {dir.filePath("Prøve, \"one\".flac"), dir.filePath("שלום two.flac"), dir.filePath(" 🤔 three.wav")};
    const char* synth[] = {"sine 440 vol 0.5", "sine 1000 vol 0.25", "sine 300 vol 0.125"};
    for (int i = 0; i < 3; ++i)
      ASSERT_EQ(RunShell("sox -R -n -b 16 -c 2 -r 44100 " + Quote(files[i]) + " synth 0.5 " + synth[i]), 0);
  }
  QString LogArgs() const { return "--log " + Quote(log); }

  QTemporaryDir dir;
  QString log;
  QStringList files;
};

double Level(const QJsonObject& o, int channel) {
  return o["levels"].toArray()[channel].toObject()["level"].toDouble();
}

}  // namespace

TEST_F(LogCli, SecondRunAnswersFromTheLogAndReadsNoSamples) {
  CliRun first = RunCli("--peak " + LogArgs(), files);
  ASSERT_EQ(first.status, 0);
  ASSERT_EQ(first.files.size(), 3u);
  for (const QJsonObject& o : first.files) {
    EXPECT_FALSE(o["fromLog"].toBool());
    EXPECT_GT(o["sampleBytesRead"].toDouble(), 0);
  }
  EXPECT_NEAR(Level(first.files[0], 0), 50.0, 0.1);
  const QByteArray logAfterFirst = ReadFile(log);
  EXPECT_TRUE(logAfterFirst.contains(("\"" + QString(files[0]).replace("\"", "\"\"") + "\",").toUtf8()));

  CliRun second = RunCli("--peak " + LogArgs(), files);
  ASSERT_EQ(second.files.size(), 3u);
  for (int i = 0; i < 3; ++i) {
    EXPECT_TRUE(second.files[i]["fromLog"].toBool()) << i;
    EXPECT_EQ(second.files[i]["sampleBytesRead"].toDouble(), 0) << i;
    EXPECT_EQ(Level(second.files[i], 0), Level(first.files[i], 0));
    EXPECT_EQ(Level(second.files[i], 1), Level(first.files[i], 1));
  }
  EXPECT_EQ(ReadFile(log), logAfterFirst);

  // --no-log measures again and leaves the log alone.
  CliRun fresh = RunCli("--peak --no-log " + LogArgs(), files);
  ASSERT_EQ(fresh.files.size(), 3u);
  for (const QJsonObject& o : fresh.files) {
    EXPECT_FALSE(o["fromLog"].toBool());
    EXPECT_GT(o["sampleBytesRead"].toDouble(), 0);
  }
  EXPECT_EQ(ReadFile(log), logAfterFirst);
}

// Each test fills its own group of the one row; a changed file is measured again.
TEST_F(LogCli, EachTestHasItsGroupAndAChangedFileIsMeasuredAgain) {
  for (const bool again : {false, true})
    for (const QString args : {"--peak", "--peak --db", "--average"}) {
      CliRun r = RunCli(args + " " + LogArgs(), {files[0]});
      ASSERT_EQ(r.files.size(), 1u);
      EXPECT_TRUE(r.files[0]["ok"].toBool()) << args.toStdString();
      EXPECT_EQ(r.files[0]["fromLog"].toBool(), again) << args.toStdString();
    }
  ASSERT_EQ(RunShell("touch -d '2001-02-03 04:05:06' " + Quote(files[0])), 0);
  CliRun changed = RunCli("--peak " + LogArgs(), {files[0]});
  ASSERT_EQ(changed.files.size(), 1u);
  EXPECT_FALSE(changed.files[0]["fromLog"].toBool());
  EXPECT_TRUE(ReadFile(log).contains(",2001,2,3,4,5,6,"));
}

TEST_F(LogCli, LogHeldByAnotherProcessIsPassedOver) {
  RunCli("--peak " + LogArgs(), {files[0]});
  const QByteArray before = ReadFile(log);
  // flock(1) holds the log's lock while the CLI runs, as the window does during a test.
  CliRun locked = RunCli("--peak " + LogArgs(), files, "flock " + Quote(log) + " ");
  ASSERT_EQ(locked.status, 0);
  ASSERT_EQ(locked.files.size(), 3u);
  for (const QJsonObject& o : locked.files) {
    EXPECT_TRUE(o["ok"].toBool());
    EXPECT_FALSE(o["fromLog"].toBool());
    EXPECT_GT(o["sampleBytesRead"].toDouble(), 0);
  }
  EXPECT_EQ(ReadFile(log), before);
}
