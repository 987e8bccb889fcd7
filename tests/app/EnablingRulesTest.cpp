#include <gtest/gtest.h>

#include "app/EnablingRules.h"
#include "app/Session.h"

namespace {

struct Row {
  const char* what;
  // Inputs.
  bool workerBusy, opening, testRunning, haveWork, canPlay, uiB;
  int kind, listCount, idleShown;
  // Expected.
  bool fileList, play, peak, average, toolOpen, toolExit, toolBatch, transport, close, testCmd;
  const char* status;  // nullptr: unchanged
};

const char* const kCopying = "  Copying of the file is fulfilling";

// The rules of timer 1, one situation a row.
const Row kRows[] = {
    // what                    busy  open  test  work  play  uiB   kind       n  idle  list  play  peak  avg   tOpen tExit tBat  trans close test  status
    {"idle, no file",          false, false, false, false, true, true, kKindWav, 0, 1, true, false, true, true, true, true, true, false, false, true, nullptr},
    {"idle, WAV open",         false, false, false, true, true, true, kKindWav, 3, 1, true, true, true, true, true, true, true, true, true, true, nullptr},
    {"MP3 has no peak test",   false, false, false, true, true, true, kKindMp3, 3, 1, true, true, false, true, true, true, true, true, true, true, nullptr},
    {"copy starts",            true, false, false, true, true, true, kKindFlac, 3, 1, false, false, false, false, false, false, false, false, false, false, kCopying},
    {"copy goes on",           true, false, false, true, true, true, kKindFlac, 3, 0, false, false, false, false, false, false, false, false, false, false, nullptr},
    {"opening",                false, true, false, false, true, true, kKindWav, 0, 1, false, false, false, false, false, false, false, false, false, true, kCopying},
    {"copy ended",             false, false, false, true, true, true, kKindFlac, 3, 0, true, true, true, true, true, true, true, true, true, true, ""},
    {"test runs",              false, false, true, true, false, false, kKindWav, 3, 1, false, false, false, false, false, false, false, false, false, false, nullptr},
    {"test waits for copy",    true, false, true, true, false, false, kKindWav, 3, 1, false, false, false, false, false, false, false, false, false, false, kCopying},
    {"empty list, no transport", false, false, false, true, true, true, kKindWav, 0, 1, true, true, true, true, true, true, true, false, true, true, nullptr},
};

}  // namespace

TEST(EnablingRules, Table) {
  for (const Row& r : kRows) {
    Session s;
    s.m_opening = r.opening;
    s.m_testRunning = r.testRunning;
    s.m_canPlay = r.canPlay;
    s.m_uiEnabledA = s.m_uiEnabledB = r.uiB;
    s.m_sourceKind = r.kind;
    s.m_idleStatusShown = r.idleShown;
    s.m_testMode = 1;
    const EnablingState e = EnablingRules(s, {r.workerBusy, r.haveWork, r.listCount});
    SCOPED_TRACE(r.what);
    EXPECT_EQ(e.fileList, r.fileList);
    EXPECT_EQ(e.play, r.play);
    EXPECT_EQ(e.peakRadio, r.peak);
    EXPECT_EQ(e.averageRadio, r.average);
    // Open and Exit of the tool bar: a test holds them disabled, so "kept" counts as off.
    EXPECT_EQ(e.toolOpen && !e.keepToolOpen, r.toolOpen);
    EXPECT_EQ(e.toolExit && !e.keepToolExit, r.toolExit);
    EXPECT_EQ(e.toolBatch, r.toolBatch);
    EXPECT_EQ(e.transport, r.transport);
    EXPECT_EQ(e.close, r.close);
    EXPECT_EQ(e.test, r.testCmd);
    EXPECT_EQ(e.systemClose, !r.workerBusy && !r.opening && !r.testRunning);
    if (r.status) {
      ASSERT_TRUE(e.statusText.has_value());
      EXPECT_EQ(*e.statusText, r.status);
    } else {
      EXPECT_FALSE(e.statusText.has_value());
    }
    // The radios' check marks follow the mode only when the window is idle.
    EXPECT_EQ(e.checkedMode.has_value(), r.fileList);
  }
}

// The database commands follow the log's availability; volume steps need a loaded sound.
TEST(EnablingRules, DatabaseAndVolumeCommands) {
  Session s;
  s.m_logAvailable = 0;
  EnablingState e = EnablingRules(s, {});
  EXPECT_FALSE(e.useDatabase || e.clearDatabase || e.database || e.volumeUpDown);
  s.m_logAvailable = 1;
  s.m_restoreTempName = "/x/song.tmp";
  e = EnablingRules(s, {});
  EXPECT_TRUE(e.useDatabase && e.clearDatabase && e.database && e.volumeUpDown);
}
