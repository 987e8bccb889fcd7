// What the batch window renders: the countdown, the end texts, the column layout per kind,
// the enabling of its commands and the folder count behind Add Folder.
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>

#include "app/Session.h"
#include "batch/BatchList.h"
#include "batch/BatchWindowRules.h"
#include "support/TestSupport.h"

using testing_support::Fixture;
using testing_support::TestSession;

// The countdown starts one second above the estimate and rounds the seconds by their tenths.
TEST(BatchWindowRules, CountdownTexts) {
  struct Case {
    double estimate;
    int ticks;
    const char* text;
  } cases[] = {
      {0.0, 0, "1 sec"},           {0.0, 1, "0 sec"},         {0.0, 5, "0 sec"},
      {58.4, 0, "59 sec"},         {58.6, 0, "1 min 0 sec"},  {59.0, 0, "1 min 0 sec"},
      {3600.0 + 61.2, 0, "1 hr 1 min 2 sec"}, {7199.0, 0, "2 hr 0 sec"}, {125.0, 3, "2 min 3 sec"},
      {0.5, 1, "1 sec"},  // a fraction stays until a whole second is left to take
  };
  for (const Case& c : cases) {
    BatchCountdown d;
    d.Start(c.estimate);
    for (int i = 0; i < c.ticks; ++i) d.Tick();
    EXPECT_EQ(d.Text(), c.text) << c.estimate << " after " << c.ticks;
  }
}

// List commands need rows; removes wait for a search; the preview follows its own flags.
TEST(BatchWindowRules, Enabling) {
  struct Case {
    BatchEnablingInput in;
    bool list, removes, play, stop, database;
  } cases[] = {
      {{0, false, false, true, false}, false, false, false, false, false},
      {{3, true, false, true, false}, true, true, true, false, true},
      {{3, true, true, true, false}, true, false, true, false, true},
      {{3, false, false, false, true}, true, true, false, true, false},
  };
  for (const Case& c : cases) {
    const BatchEnablingState s = BatchEnabling(c.in);
    EXPECT_EQ(s.listCommands, c.list);
    EXPECT_EQ(s.removes, c.removes);
    EXPECT_EQ(s.playPause, c.play);
    EXPECT_EQ(s.stepping, c.play);
    EXPECT_EQ(s.stop, c.stop);
    EXPECT_EQ(s.database, c.database);
    EXPECT_EQ(s.useDatabase, c.database);
  }
}

// A kind's layout survives a save and a load; kinds sharing a section share it, the others don't.
TEST(BatchWindowRules, ColumnLayoutPerSection) {
  TestSession t;
  const std::vector<BatchColumnState> fresh = LoadColumnLayout(kKindFlac);
  ASSERT_EQ(fresh.size(), BatchColumns(kKindFlac).size());
  EXPECT_TRUE(fresh[3].visible);
  EXPECT_EQ(fresh[3].position, -1);
  EXPECT_EQ(fresh[1].width, 213);

  std::vector<BatchColumnState> changed = fresh;
  changed[3] = {false, 7, 99};
  changed[1].position = 0;
  SaveColumnLayout(kKindFlac, changed);
  for (int kind : {kKindWav, kKindFlac, kKindApe}) {
    const std::vector<BatchColumnState> back = LoadColumnLayout(kind);
    EXPECT_FALSE(back[3].visible) << kind;
    EXPECT_EQ(back[3].position, 7);
    EXPECT_EQ(back[3].width, 99);
    EXPECT_EQ(back[1].position, 0);
  }
  for (int kind : {kKindMp3, kKindOgg, kKindAac}) EXPECT_TRUE(LoadColumnLayout(kind)[3].visible) << kind;
}

// Add Folder counts the folder's own files of the kind, not its sub-folders or leftovers.
TEST(BatchWindowRules, CountSupportedFiles) {
  TestSession t;
  QDir().mkpath(t.Path("f/sub"));
  const QString wav = Fixture("sine_16_stereo.wav");
  for (const char* name : {"f/a.WAV", "f/Prøve, 🤔.wave", "f/temp.wav", "f/sub/b.wav", "f/c.flac"})
    ASSERT_TRUE(QFile::copy(wav, t.Path(name))) << name;
  EXPECT_EQ(CountSupportedFiles(kKindWav, t.Path("f")), 2);
  EXPECT_EQ(CountSupportedFiles(kKindFlac, t.Path("f")), 1);
  EXPECT_EQ(CountSupportedFiles(kKindOgg, t.Path("f")), 0);
  EXPECT_EQ(CountSupportedFiles(kKindWav, t.Path("missing")), 0);
}
