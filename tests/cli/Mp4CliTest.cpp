// The command line on the AAC kind's suffixes: properties, peak and average tests through
// the headless flow.
#include <gtest/gtest.h>

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "support/TestSupport.h"

using namespace testing_support;

namespace {

QJsonObject RunCli(const QString& options, const QString& file) {
  QByteArray out;
  const QString cmd = "'" + CliPath() + "' --json --no-log " + options + " '" + file + "'";
  RunShell(cmd, &out);
  return QJsonDocument::fromJson(out.trimmed()).object();
}

}  // namespace

TEST(Mp4Cli, InfoPeakAndAverageOnEverySuffix) {
  TestSession t;
  struct Case {
    const char* fixture;
    const char* name;
    const char* kind;
    int bits;
  } cases[] = {{"alac_24_stereo.m4a", "Prøve.mp4", "ALAC", 24},
               {"alac_16_mono.m4a", "book one.m4b", "ALAC", 16},
               {"aac_stereo.m4a", "song.m4a", "AAC", 16},
               {"aac_id3.aac", "stream.aac", "AAC", 16}};
  for (const Case& c : cases) {
    SCOPED_TRACE(c.name);
    const QString path = t.Path(c.name);
    ASSERT_TRUE(QFile::copy(Fixture(c.fixture), path));
    QJsonObject info = RunCli("--info", path);
    ASSERT_TRUE(info["ok"].toBool()) << info["error"].toString().toStdString();
    EXPECT_EQ(info["kind"].toString(), c.kind);
    EXPECT_EQ(info["bits"].toInt(), c.bits);
    EXPECT_EQ(info["sampleRate"].toInt(), 44100);

    QJsonObject peak = RunCli("--peak", path);
    ASSERT_TRUE(peak["ok"].toBool()) << peak["error"].toString().toStdString();
    const QJsonArray levels = peak["levels"].toArray();
    ASSERT_FALSE(levels.isEmpty());
    // The lossless files hold a tone at 80 % of full scale; AAC overshoots it a little.
    const double left = levels[0].toObject()["level"].toDouble();
    if (QString(c.kind) == "ALAC") EXPECT_NEAR(left, 80.0, 1.0);
    else EXPECT_GE(left, 79.0);

    QJsonObject average = RunCli("--average", path);
    ASSERT_TRUE(average["ok"].toBool()) << average["error"].toString().toStdString();
    EXPECT_GT(average["levels"].toArray()[0].toObject()["level"].toDouble(), 0.0);
    EXPECT_FALSE(QFile::exists(t.Path(QString(c.name).section('.', 0, 0) + ".tmp")));  // the work file is gone
  }
}
