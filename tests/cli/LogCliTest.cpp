// tonvane-cli with the test log: a second run over unchanged files answers from the log and
// reads no samples (the binary's own count of sample bytes says so); --no-log, a log held by
// another process and a changed file make it measure again.
#include <gtest/gtest.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMap>
#include <QTemporaryDir>
#include <vector>

#include "support/TestSupport.h"

using testing_support::CliPath;
using testing_support::Quote;
using testing_support::ReadFile;
using testing_support::RunShell;

namespace {

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

// Runs over the same three files in order: whether each answer comes from the log (and then
// reads no sample and gives the measured figures), and whether the log stays as it was.
TEST_F(LogCli, RunsAnswerFromTheLogWhenTheyMay) {
  struct Step {
    const char* args;
    bool locked;  // flock(1) holds the log, as the window does during a test
    bool fromLog, logKept;
  } steps[] = {
      {"--peak", false, false, false},      {"--peak", false, true, true},
      {"--peak --no-log", false, false, true}, {"--peak", true, false, true},
      {"--peak --db", false, false, false}, {"--average", false, false, false},  // a group each
      {"--peak --db", false, true, true},   {"--average", false, true, true},
  };
  QMap<QString, std::vector<double>> measured;
  for (const Step& st : steps) {
    SCOPED_TRACE(testing::Message() << st.args << (st.locked ? " locked" : ""));
    const QByteArray before = ReadFile(log);
    const CliRun r = RunCli(QString(st.args) + " " + LogArgs(), files, st.locked ? "flock " + Quote(log) + " " : "");
    ASSERT_EQ(r.status, 0);
    ASSERT_EQ(r.files.size(), 3u);
    std::vector<double> levels;
    for (const QJsonObject& o : r.files) {
      EXPECT_EQ(o["fromLog"].toBool(), st.fromLog);
      EXPECT_EQ(o["sampleBytesRead"].toDouble() == 0, st.fromLog);
      levels.insert(levels.end(), {Level(o, 0), Level(o, 1)});
    }
    if (st.fromLog) EXPECT_EQ(levels, measured[st.args]);
    measured[st.args] = levels;
    if (st.logKept) EXPECT_EQ(ReadFile(log), before);
  }
  EXPECT_TRUE(ReadFile(log).contains(("\"" + QString(files[0]).replace("\"", "\"\"") + "\",").toUtf8()));

  // A changed file is measured again, the others still come from the log.
  ASSERT_EQ(RunShell("touch -d '2001-02-03 04:05:06' " + Quote(files[0])), 0);
  const CliRun changed = RunCli("--peak " + LogArgs(), files);
  ASSERT_EQ(changed.files.size(), 3u);
  EXPECT_FALSE(changed.files[0]["fromLog"].toBool());
  EXPECT_TRUE(changed.files[2]["fromLog"].toBool());
  EXPECT_TRUE(ReadFile(log).contains(",2001,2,3,4,5,6,"));
}
