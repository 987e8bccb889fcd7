#include <gtest/gtest.h>

#include <QDir>
#include <QFileInfo>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <cmath>

#include "support/TestSupport.h"

using testing_support::CliPath;
using testing_support::Fixture;
using testing_support::RunShell;
using testing_support::TestSession;

namespace {

QJsonObject RunPeak(const QString& file, bool db) {
  QByteArray out;
  const QString cmd = "'" + CliPath() + "' --no-log --json --peak " + (db ? "--db " : "") + "'" + file + "'";
  EXPECT_EQ(RunShell(cmd, &out), 0) << out.toStdString();
  return QJsonDocument::fromJson(out.trimmed()).object();
}

}  // namespace

// A PCM WAV is measured where it lies: no work file beside it, and exactly its sample bytes read.
TEST(PeakCli, WavScannedInPlaceInBothScales) {
  TestSession t;
  const QString src = t.Path(QStringLiteral("Prøve, \"två\" 🤔.wav"));
  ASSERT_TRUE(QFile::copy(Fixture("peak_16_stereo.wav"), src));
  const qint64 size = QFileInfo(src).size();

  QJsonObject pct = RunPeak(src, false);
  ASSERT_TRUE(pct["ok"].toBool()) << pct["error"].toString().toStdString();
  EXPECT_EQ(pct["sampleBytesRead"].toDouble(), double(size - 44));
  QJsonArray levels = pct["levels"].toArray();
  ASSERT_EQ(levels.size(), 2);
  EXPECT_EQ(levels[0].toObject()["level"].toDouble(), pct["result"].toObject()["WavLeft"].toDouble());
  EXPECT_TRUE(levels[0].toObject()["maxLevel"].isNull());
  EXPECT_TRUE(levels[0].toObject()["clipping"].isNull());

  QJsonObject db = RunPeak(src, true);
  ASSERT_TRUE(db["ok"].toBool());
  const QJsonObject r = db["result"].toObject();
  QJsonArray dbLevels = db["levels"].toArray();
  ASSERT_EQ(dbLevels.size(), 2);
  for (int c = 0; c < 2; ++c) {
    const QJsonObject l = dbLevels[c].toObject();
    const double level = r[c ? "WavPikRight" : "WavPikLeft"].toDouble();
    const double below = r[c ? "WavPikNoClippingRight" : "WavPikNoClippingLeft"].toDouble();
    EXPECT_NEAR(l["level"].toDouble(), level, 1e-4);
    EXPECT_NEAR(l["maxLevel"].toDouble(), 20 * std::log10(32768.0), 1e-3);
    EXPECT_FALSE(l["clipping"].toBool());
    // Percent and dB come from the same peak.
    const double pctLevel = levels[c].toObject()["level"].toDouble();
    EXPECT_NEAR(std::round(std::pow(10, below / 20) * 32768 / 32767 * 100), pctLevel, 1.0);
  }
  QStringList left = QDir(t.dir.path()).entryList(QDir::Files);
  left.removeAll("TestLog.csv");
  EXPECT_EQ(left, QStringList{QFileInfo(src).fileName()});
}
