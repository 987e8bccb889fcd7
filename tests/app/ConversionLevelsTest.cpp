// Every kind of the conversion road must measure what the same audio measures as plain PCM:
// the converted work file is read through its own data chunk, not the source's.
#include <gtest/gtest.h>

#include <cmath>

#include "app/HeadlessTest.h"
#include "app/Session.h"
#include "formats/WorkFile.h"
#include "support/TestSupport.h"

using namespace testing_support;

namespace {

struct RoadCase {
  const char* name;
  int channels, rate, bits;
  uint16_t tag;  // of FFmpeg's plain decode
  bool peak;     // the peak test is not offered for MPEG audio
};

// The three results of a file: peak in percent, peak in dB, average.
struct Levels {
  LevelResult percent, db, gain;
};

Levels Measure(TestSession& t, const QString& path, bool peak) {
  Levels out;
  HeadlessOptions o;
  o.useLog = false;
  for (int pass = 0; pass < 3; ++pass) {
    o.testMode = pass == 2 ? 1 : 0;
    o.showDb = pass == 1;
    if (o.testMode == 0 && !peak) continue;
    const HeadlessReport r = TestFileHeadless(*t.s, t.prompt, path, o);
    EXPECT_TRUE(r.ok) << path.toStdString() << ": " << r.error.toStdString();
    (pass == 0 ? out.percent : pass == 1 ? out.db : out.gain) = r.result;
  }
  return out;
}

class ConversionRoad : public ::testing::TestWithParam<RoadCase> {};

}  // namespace

// Quiet, then loud, with left and right apart: a wrong data chunk reads the quiet part
// only, a shifted one swaps or mixes the channels.
TEST_P(ConversionRoad, MeasuresLikeThePlainDecode) {
  const RoadCase c = GetParam();
  TestSession t;
  const QString src = t.Path(QString("Prøve, \"%1\" 🤔.wav").arg(c.name));
  ASSERT_TRUE(WriteFile(src, ReadFile(Fixture(QString("ql_%1.wav").arg(c.name)))));
  const QByteArray raw = ReadFile(Fixture(QString("ql_%1.ref.raw").arg(c.name)));
  ASSERT_FALSE(raw.isEmpty());
  const QString plain = t.Path(QString("plain %1.wav").arg(c.name));
  ASSERT_TRUE(WriteFile(plain, MakeWorkHeader(c.channels, c.rate, c.bits, c.tag, uint32_t(raw.size())) + raw));

  const Levels got = Measure(t, src, c.peak);
  const Levels want = Measure(t, plain, c.peak);
  if (c.peak) {
    EXPECT_EQ(got.percent.WavLeft, want.percent.WavLeft);
    EXPECT_EQ(got.percent.WavRight, want.percent.WavRight);
    EXPECT_EQ(got.db.WavPikLeft, want.db.WavPikLeft);
    EXPECT_EQ(got.db.WavPikRight, want.db.WavPikRight);
    EXPECT_EQ(got.db.WavPikNoClippingLeft, want.db.WavPikNoClippingLeft);
    EXPECT_GT(got.percent.WavLeft, 70.0f);  // the loud half was read
  }
  EXPECT_NEAR(got.gain.GainLeft, want.gain.GainLeft, 0.01);
  EXPECT_NEAR(got.gain.NoClippingLeft, want.gain.NoClippingLeft, 0.01);
  if (c.channels == 2) {
    EXPECT_NEAR(got.gain.GainRight, want.gain.GainRight, 0.01);
    EXPECT_NEAR(got.gain.NoClippingRight, want.gain.NoClippingRight, 0.01);
    EXPECT_GT(std::fabs(got.gain.GainLeft - got.gain.GainRight), 3.0);  // the channels stay apart
  }
}

INSTANTIATE_TEST_SUITE_P(Kinds, ConversionRoad,
                         ::testing::Values(RoadCase{"ima", 2, 44100, 16, 1, true},
                                           RoadCase{"msadpcm", 2, 44100, 16, 1, true},
                                           RoadCase{"alaw", 2, 44100, 16, 1, true},
                                           RoadCase{"mulaw", 2, 44100, 16, 1, true},
                                           RoadCase{"gsm", 1, 8000, 16, 1, true},
                                           RoadCase{"ext24", 2, 48000, 24, 1, true},
                                           RoadCase{"extf32", 2, 44100, 32, 3, true},
                                           RoadCase{"mp3", 2, 44100, 16, 1, false}),
                         [](const auto& info) { return std::string(info.param.name); });
