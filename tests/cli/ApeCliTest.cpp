#include <gtest/gtest.h>

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "support/TestSupport.h"

using namespace testing_support;

namespace {

// Runs the CLI on a copy of a shared .ape file; returns the JSON object of the file.
QJsonObject RunCli(TestSession& t, const QString& fixture, const QString& options, int* status = nullptr) {
  const QString copy = t.Path(fixture);
  QFile::remove(copy);
  EXPECT_TRUE(WriteFile(copy, ReadFile(ApeData(fixture))));
  QByteArray out;
  const int rc = RunShell(CliPath() + " --json --no-log " + options + " '" + copy + "'", &out);
  if (status) *status = rc;
  return QJsonDocument::fromJson(out.trimmed()).object();
}

}  // namespace

TEST(ApeCli, InfoPeakAndAverageOnMonkeysAudioFiles) {
  TestSession t;
  const QJsonObject info = RunCli(t, "s24_stereo_96k.ape", "--info");
  EXPECT_TRUE(info["ok"].toBool());
  EXPECT_EQ(info["kind"].toString(), "APE");
  EXPECT_EQ(info["bits"].toInt(), 24);
  EXPECT_EQ(info["durationMs"].toInt(), 2000);
  const QJsonArray lines = info["properties"].toArray();
  ASSERT_GE(lines.size(), 4);
  EXPECT_EQ(lines[0].toString(), "  Bits on Readout  24");
  EXPECT_EQ(lines[1].toString(), "  Channels             2");
  EXPECT_EQ(lines[2].toString(), "  Frequency          96000 Hz");
  EXPECT_EQ(lines[3].toString(), "  Audio Format       APE");

  // Peaks in dB below full scale; the 8-bit file has its planted extremes 0 and 255.
  const QJsonObject peak = RunCli(t, "u8_stereo_22k.ape", "--peak --db");
  ASSERT_TRUE(peak["ok"].toBool()) << peak["error"].toString().toStdString();
  const QJsonObject pr = peak["result"].toObject();
  EXPECT_NEAR(pr["WavPikNoClippingLeft"].toDouble(), 0.00, 0.006);
  EXPECT_NEAR(pr["WavPikNoClippingRight"].toDouble(), -0.07, 0.006);

  const QJsonObject avg = RunCli(t, "s16_stereo_44k_c5000.ape", "--average");
  ASSERT_TRUE(avg["ok"].toBool()) << avg["error"].toString().toStdString();
  const QJsonObject ar = avg["result"].toObject();
  EXPECT_NE(ar["GainLeft"].toDouble(), 400.0);
  EXPECT_NE(ar["GainRight"].toDouble(), 400.0);
  EXPECT_NEAR(ar["NoClippingLeft"].toDouble(), 0.00, 0.006);
  EXPECT_NEAR(ar["NoClippingRight"].toDouble(), -12.00, 0.006);
}

TEST(ApeCli, DamagedFileFailsWithTheDecodingMessage) {
  TestSession t;
  int status = 0;
  const QJsonObject r = RunCli(t, "s16_stereo_44k_truncated.ape", "--peak", &status);
  EXPECT_NE(status, 0);
  EXPECT_FALSE(r["ok"].toBool());
  EXPECT_TRUE(r["error"].toString().startsWith("Sorry, but an error of opening has occurred decoding stream."))
      << r["error"].toString().toStdString();
}
