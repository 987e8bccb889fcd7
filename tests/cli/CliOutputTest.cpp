// tonvane-cli on one file: each output form, its exit status, and no work file left behind.
// What the levels are is the core's business; here only what the command line adds.
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <vector>

#include "support/TestSupport.h"

using namespace testing_support;

namespace {

struct CliCase {
  const char* source;  // a generated fixture, else a shared Monkey's Audio file
  const char* name;
  const char* args;
  int status;
  std::vector<const char*> want;  // pieces of the output
};

const CliCase kCases[] = {
    {"peak_16_stereo.wav", "Prøve, \"två\" 🤔.wav", "--peak", 0,
     {"\n  Test: peak level, percent\n    Left   Level 80 %\n    Right  Level 30 %\n",
      "\n1 files, 1 tested, 0 from the log, 0 failed; "}},
    // A PCM WAV is read where it lies: exactly its sample bytes, no work file.
    {"peak_16_stereo.wav", "Prøve, \"två\" 🤔.wav", "--peak --json", 0,
     {"\"scale\":\"percent\"", "\"maxLevel\":null", "\"clipping\":null", "\"sampleBytesRead\":88200", "\"test\":\"peak\""}},
    {"peak_16_stereo.wav", "Prøve, \"två\" 🤔.wav", "--peak --db --json", 0,
     {"\"scale\":\"dB\"", "\"maxLevel\":90.30", "\"clipping\":false"}},
    {"s24_stereo_96k.ape", "שלום.ape", "--info --json", 0,
     {"\"kind\":\"APE\"", "\"bits\":24", "\"durationMs\":2000", "\"test\":null", "\"levels\":[]"}},
    {"alac_16_mono.m4a", "book one.m4b", "--average --json", 0,
     {"\"kind\":\"ALAC\"", "\"channels\":1", "\"test\":\"average\"", "\"gain\":"}},
    {"aac_id3.aac", "stream.aac", "--peak", 0, {"\n  Test: peak level, percent\n"}},
    {"s16_stereo_44k_truncated.ape", "cut.ape", "--peak", 1,
     {"\n  error: Sorry, but an error of opening has occurred decoding stream."}},
    {"s16_stereo_44k_truncated.ape", "cut.ape", "--average --json", 1, {"\"ok\":false", "\"levels\":[]"}},
};

void PrintTo(const CliCase& c, std::ostream* os) { *os << c.source << " " << c.args; }

class CliOutput : public ::testing::TestWithParam<CliCase> {};

TEST_P(CliOutput, PrintsItsFormAndStatus) {
  const CliCase& c = GetParam();
  TestSession t;
  const QString from = QFile::exists(Fixture(c.source)) ? Fixture(c.source) : ApeData(c.source);
  const QString path = t.Path(c.name);
  ASSERT_TRUE(QFile::copy(from, path)) << from.toStdString();
  QByteArray out;
  EXPECT_EQ(RunShell(Quote(CliPath()) + " --no-log " + c.args + " " + Quote(path), &out), c.status);
  for (const char* piece : c.want) EXPECT_TRUE(out.contains(piece)) << piece << "\n" << out.toStdString();
  QStringList left = QDir(t.dir.path()).entryList(QDir::Files);
  left.removeAll("TestLog.csv");
  EXPECT_EQ(left, QStringList{c.name});
}

INSTANTIATE_TEST_SUITE_P(Files, CliOutput, ::testing::ValuesIn(kCases));

}  // namespace
