// The streaming analyser against the window's road: the same file, once decoded into its
// work file and measured there by the peak scanner and RMS, once measured in one pass with
// no work file. The figures must be the same to the bit, for every format.
#include <gtest/gtest.h>

#include <QFile>

#include "app/Globals.h"
#include "app/HeadlessTest.h"
#include "app/Job.h"
#include "app/MeasureFile.h"
#include "formats/OpenPipeline.h"
#include "formats/WorkFile.h"
#include "support/TestSupport.h"

using namespace testing_support;

namespace {

struct Road {
  const char* file;
  bool ape;  // from the shared Monkey's Audio files
};

// The work-file road: the open's worker, then the scanner in both scales and RMS.
LevelResult ThroughWorkFile(TestSession& t, const QString& path) {
  Session& s = *t.s;
  s.m_useDatabase = 0;
  EXPECT_EQ(OpenFileHeadless(s, path), 1) << t.prompt.texts().join('|').toStdString();
  WaitForWorker(s);
  s.m_result = LevelResult{};
  for (int db = 0; db < 2; ++db) {
    s.m_showDb = db;
    EXPECT_TRUE(MeasureWorkFile(s, 0));
  }
  EXPECT_TRUE(MeasureWorkFile(s, 1));
  const LevelResult r = s.m_result;
  DeleteWorkFile(g_workPath);
  ClearSessionPaths();
  return r;
}

class StreamingAnalyser : public ::testing::TestWithParam<Road> {};

}  // namespace

TEST_P(StreamingAnalyser, EqualsTheWorkFileRoad) {
  const Road c = GetParam();
  TestSession t;
  const QString name = QString::fromLatin1(c.file);
  const QString src = t.Path("Prøve, \"" + name.section('.', 0, -2) + "\" 🤔." + name.section('.', -1));
  ASSERT_TRUE(QFile::copy(c.ape ? ApeData(name) : Fixture(name), src));
  const LevelResult road = ThroughWorkFile(t, src);
  const int kind = KindOfName(src);
  JobControl control;
  const MeasureReport m = MeasureFile(src, kind, -1, control);
  ASSERT_EQ(m.status, MeasureStatus::Ok) << m.messages.join('|').toStdString();
  EXPECT_TRUE(m.result == road) << "peak " << m.result.WavPikLeft << " vs " << road.WavPikLeft << ", gain "
                                << m.result.GainLeft << " vs " << road.GainLeft;
  // Nothing was written beside the source.
  EXPECT_FALSE(QFile::exists(WorkPathFor(src, kDriveFixed)));
}

INSTANTIATE_TEST_SUITE_P(Formats, StreamingAnalyser,
                         ::testing::Values(Road{"flac_16_2.flac", false}, Road{"flac_24_2.flac", false},
                                           Road{"flac_8_1.flac", false}, Road{"ogg_2.ogg", false},
                                           Road{"s16_stereo_44k.ape", true}, Road{"aac_stereo.m4a", false},
                                           Road{"aac_adts.aac", false}, Road{"alac_24_stereo.m4a", false},
                                           Road{"ql_ima.wav", false}, Road{"ql_extf32.wav", false},
                                           Road{"wav_pcm24_stereo.wav", false}),
                         [](const auto& info) {
                           std::string n = info.param.file;
                           for (char& ch : n)
                             if (ch == '.') ch = '_';
                           return n;
                         });
