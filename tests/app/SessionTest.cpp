#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <thread>

#include "app/FileErrors.h"
#include "app/Settings.h"
#include "support/TestSupport.h"

using testing_support::TestSession;

TEST(Settings, DefaultsAndReadBackQuirks) {
  TestSession t;
  EXPECT_EQ(Settings::Looping(), 1);  // absent reads 10, which means on
  EXPECT_EQ(Settings::Beep(), 0);     // absent reads 10, which means off
  EXPECT_EQ(Settings::ShowDb(), 0);
  EXPECT_EQ(Settings::DataBaseSize(), 1);
  EXPECT_EQ(Settings::Theme(), "xtpThemeNativeWinXP");
  Settings::SetInt("Looping", 0);
  EXPECT_EQ(Settings::Looping(), 0);
  Settings::SetInt("ShowDb", 7);
  EXPECT_EQ(Settings::ShowDb(), 1);
  Settings::SetInt("Beep", 1);
  EXPECT_EQ(Settings::Beep(), 1);
  Settings::SetString("Language", "xx");
  EXPECT_EQ(Settings::Language(), "");
  Settings::SetString("Language", "de");
  EXPECT_EQ(Settings::Language(), "de");
}

TEST(Settings, PatchLogDefaultsBesideDataFolderAndIsWrittenBack) {
  TestSession t;
  EXPECT_FALSE(Settings::Has("PatchLog"));
  QString log = Settings::PatchLog();
  EXPECT_TRUE(log.endsWith("/TestLog.csv")) << log.toStdString();
  EXPECT_TRUE(log.startsWith(t.dir.path())) << log.toStdString();
  EXPECT_TRUE(Settings::Has("PatchLog"));
}

// The job control: a pause on the front end's thread keeps the front end running (the
// resume comes from there); a worker sleeps in its checkpoint until resumed or aborted; a
// test's scope leaves neither a cancel nor the running flag behind.
TEST(Session, JobControlPauseCancelAndTestScope) {
  TestSession t;
  Session& s = *t.s;
  t.pump.onPump = [&](int call) {
    if (call == 1) s.m_job.SetPaused(true);
    if (call == 4) s.m_job.SetPaused(false);
  };
  EXPECT_EQ(s.PumpMessages(), 1);
  EXPECT_EQ(t.pump.calls, 4);

  std::atomic<int> passed{0};
  s.m_job.SetPaused(true);
  std::thread worker([&] {
    while (s.m_job.Checkpoint(0.5)) ++passed;
  });
  std::this_thread::sleep_for(std::chrono::milliseconds(30));
  EXPECT_EQ(passed.load(), 0);
  {
    TestScope scope(s);  // a fresh control: the worker runs on
    EXPECT_EQ(s.m_testRunning, 1);
    while (passed.load() == 0) std::this_thread::yield();
    s.m_job.Abort();
    worker.join();
    EXPECT_EQ(s.PumpMessages(), 0);
  }
  EXPECT_EQ(s.m_testRunning, 0);
  EXPECT_EQ(s.PumpMessages(), 1);
}

TEST(FileErrors, TableTextsAndErrnoMapping) {
  EXPECT_EQ(ErrorCodeFromErrno(ENOENT, "/tmp/x.wav"), kErrFileNotFound);
  EXPECT_EQ(ErrorCodeFromErrno(ENOENT, "/no/such/folder/x.wav"), kErrPathNotFound);
  EXPECT_EQ(ErrorCodeFromErrno(EMFILE), kErrTooManyOpen);
  EXPECT_EQ(ErrorCodeFromErrno(EACCES), kErrAccessDenied);
  EXPECT_EQ(ErrorCodeFromErrno(EROFS), kErrAccessDenied);
  EXPECT_EQ(ErrorCodeFromErrno(ENAMETOOLONG), kErrNameTooLong);
  EXPECT_EQ(FileErrorText(" cannot be opened", "/a/b.wav", "", kErrFileNotFound, true),
            "Sorry, but the file /a/b.wav cannot be opened impossible. Because the file does not exist.");
  // Without a file name there is no "the file ", and an unknown code takes the system's text.
  QString t = FileErrorText("read the disk", "", " Therefore the test will be stopped.", -EIO, false);
  EXPECT_TRUE(t.startsWith("Sorry, but read the disk impossible. ")) << t.toStdString();
  EXPECT_TRUE(t.endsWith(" Therefore the test will be stopped."));
}

TEST(FileErrors, DontShowAgainIsRememberedPerSite) {
  TestSession t;
  t.prompt.answers.push_back({false, true});
  ReportFileError(*t.s, " cannot be opened", "/a.wav", "", kErrAccessDenied, true);
  ReportFileError(*t.s, " cannot be opened", "/b.wav", "", kErrAccessDenied, true);
  ReportFileError(*t.s, " cannot be created.", "/c.wav", "", kErrAccessDenied, true);
  ASSERT_EQ(t.prompt.requests.size(), 2u);
  EXPECT_TRUE(t.prompt.requests[0].dontShowBox);
  EXPECT_EQ(t.prompt.requests[0].caption, "Tonvane 1.0");
  EXPECT_TRUE(t.prompt.requests[1].text.contains("/c.wav"));
}
