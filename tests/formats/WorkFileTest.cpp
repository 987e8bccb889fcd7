#include <gtest/gtest.h>

#include <QFile>
#include <csignal>
#include <cstring>
#include <sys/resource.h>
#include <sys/stat.h>

#include "app/Globals.h"
#include "formats/OpenPipeline.h"
#include "formats/WorkFile.h"
#include "support/TestSupport.h"

using testing_support::Fixture;
using testing_support::ReadFile;
using testing_support::TestSession;
using testing_support::WriteFile;

namespace {

uint32_t Le32At(const QByteArray& b, int at) {
  uint32_t v = 0;
  std::memcpy(&v, b.constData() + at, 4);
  return v;
}

mode_t ModeOf(const QString& path) {
  struct stat st;
  return ::stat(QFile::encodeName(path).constData(), &st) == 0 ? st.st_mode : 0;
}

void SetPaths(const QString& source, const QString& work) {
  g_sourcePath = source;
  g_workPath = work;
  g_copyFailed = 0;
  g_copyFinished = 0;
}

// Caps the size of any file this process writes, so a write past it comes up short as on
// a full disk; restored on scope exit.
class FileSizeLimit {
 public:
  explicit FileSizeLimit(rlim_t bytes) {
    ::getrlimit(RLIMIT_FSIZE, &m_saved);
    m_oldHandler = std::signal(SIGXFSZ, SIG_IGN);
    rlimit r = m_saved;
    r.rlim_cur = bytes;
    ::setrlimit(RLIMIT_FSIZE, &r);
  }
  ~FileSizeLimit() {
    ::setrlimit(RLIMIT_FSIZE, &m_saved);
    std::signal(SIGXFSZ, m_oldHandler);
  }

 private:
  rlimit m_saved{};
  void (*m_oldHandler)(int) = nullptr;
};

}  // namespace

TEST(WorkFile, WorkPathReplacesTheSuffix) {
  EXPECT_EQ(WorkPathFor("/m/Song.flac", kDriveFixed), "/m/Song.tmp");
  // a.wav and a.mp3 share one work file; only one of them is open at a time.
  EXPECT_EQ(WorkPathFor("/m/a.wav", kDriveFixed), WorkPathFor("/m/a.mp3", kDriveFixed));
  EXPECT_EQ(WorkPathFor("/m.d/noext", kDriveFixed), "/m.d/noext.tmp");
  EXPECT_EQ(WorkPathFor("/cd/a.wav", kDriveCdRom), "/cd/a.wav");
}

TEST(WorkFile, SharedWorkNameAcrossKinds) {
  TestSession t;
  Session& s = *t.s;
  const QByteArray wav = ReadFile(Fixture("sine_16_mono.wav"));
  ASSERT_TRUE(WriteFile(t.Path("a.wav"), wav));
  ASSERT_EQ(OpenFileHeadless(s, t.Path("a.wav")), 1);
  WaitForWorker(s);
  EXPECT_EQ(ReadFile(t.Path("a.tmp")), wav);
  // Opening a.mp3 (here a file the MPEG reader refuses) first removes a.tmp.
  ASSERT_TRUE(WriteFile(t.Path("a.mp3"), QByteArray(4096, 'z')));
  OpenFileHeadless(s, t.Path("a.mp3"));
  WaitForWorker(s);
  EXPECT_FALSE(QFile::exists(t.Path("a.tmp")));
  EXPECT_EQ(ReadFile(t.Path("a.wav")), wav);
}

TEST(WorkFile, HeaderSizesAreClamped) {
  const QByteArray h = MakeWorkHeader(2, 44100, 16, 1, 1000);
  ASSERT_EQ(h.size(), 44);
  EXPECT_EQ(h.left(4), "RIFF");
  EXPECT_EQ(Le32At(h, 4), 1036u);
  EXPECT_EQ(Le32At(h, 28), 176400u);
  EXPECT_EQ(Le32At(h, 40), 1000u);
  const QByteArray big = MakeWorkHeader(2, 44100, 24, 1, 0xFFFFFFF0u);
  EXPECT_EQ(Le32At(big, 4), kMaxWorkDataSize);
  EXPECT_EQ(Le32At(big, 40), kMaxWorkDataSize);

  TestSession t;
  const QString path = t.Path("w.tmp");
  WorkFileWriter w;
  ASSERT_TRUE(w.Create(path, 1, 8000, 8, 1, 0));
  ASSERT_TRUE(w.Write("abcd", 4));
  // A float total beyond 4 GiB clamps both fields; a small one is exact.
  ASSERT_TRUE(w.PatchSizes(5.0e9f));
  w.Close();
  QByteArray file = ReadFile(path);
  EXPECT_EQ(Le32At(file, 4), kMaxWorkDataSize);
  EXPECT_EQ(Le32At(file, 40), kMaxWorkDataSize);
  ASSERT_TRUE(w.Create(path, 1, 8000, 8, 1, 0));
  ASSERT_TRUE(w.Write("abcd", 4));
  ASSERT_TRUE(w.PatchSizes(w.Total()));
  w.Close();
  file = ReadFile(path);
  EXPECT_EQ(Le32At(file, 4), 40u);
  EXPECT_EQ(Le32At(file, 40), 4u);
  EXPECT_EQ(file.mid(44), "abcd");
}

TEST(WorkFile, ReadOnlyLeftoverIsOverwrittenAndDeleted) {
  TestSession t;
  Session& s = *t.s;
  const QByteArray wav = ReadFile(Fixture("sine_16_mono.wav"));
  const QString src = t.Path("Prøve.wav");
  const QString work = t.Path("Prøve.tmp");
  ASSERT_TRUE(WriteFile(src, wav));
  ASSERT_TRUE(WriteFile(work, "left behind by an earlier run"));
  ASSERT_EQ(::chmod(QFile::encodeName(work).constData(), 0444), 0);
  SetPaths(src, work);
  EXPECT_EQ(CopyWorkerBody(s), 0);
  EXPECT_EQ(ReadFile(work), wav);
  EXPECT_TRUE(ModeOf(work) & S_IWUSR);
  EXPECT_TRUE(t.prompt.requests.empty());

  ASSERT_EQ(::chmod(QFile::encodeName(work).constData(), 0444), 0);
  EXPECT_TRUE(DeleteWorkFile(work));
  EXPECT_FALSE(QFile::exists(work));
  EXPECT_EQ(ReadFile(src), wav);
}

TEST(WorkFile, SourceIsNeverWritten) {
  TestSession t;
  Session& s = *t.s;
  const QByteArray wav = ReadFile(Fixture("sine_16_mono.wav"));
  const QString src = t.Path("src.wav");
  ASSERT_TRUE(WriteFile(src, wav));
  // Read in place: the copy is a no-op, also through a link to the source.
  SetPaths(src, src);
  EXPECT_EQ(CopyWorkerBody(s), 0);
  ASSERT_EQ(::symlink(QFile::encodeName(src).constData(), QFile::encodeName(t.Path("link.tmp")).constData()), 0);
  SetPaths(src, t.Path("link.tmp"));
  EXPECT_EQ(CopyWorkerBody(s), 0);
  // A decoder's writer refuses the source as its output.
  WorkFileWriter w;
  EXPECT_FALSE(w.Create(src, 2, 44100, 16, 1, 0, src));
  EXPECT_FALSE(w.Create(t.Path("link.tmp"), 2, 44100, 16, 1, 0, src));
  EXPECT_EQ(ReadFile(src), wav);
  EXPECT_TRUE(t.prompt.requests.empty());
}

TEST(WorkFile, FailedCopiesSayWhichFile) {
  TestSession t;
  Session& s = *t.s;
  const QByteArray data(256 * 1024, '\x5a');
  const QString src = t.Path("big source.wav");
  ASSERT_TRUE(WriteFile(src, data));

  // A full disk: the write comes up short. The message names the source.
  const QString work = t.Path("big source.tmp");
  SetPaths(src, work);
  int code = 0;
  {
    FileSizeLimit limit(64 * 1024);
    code = CopyWorkerBody(s);
  }
  EXPECT_EQ(code, 112);
  EXPECT_EQ(t.prompt.texts(),
            QStringList(" Sorry, but the program can not continue operation with the file: " + src + ". " +
                        QString::fromLocal8Bit(std::strerror(ENOSPC))));
  EXPECT_TRUE(g_workPath.isEmpty());
  EXPECT_EQ(g_copyFailed.load(), 1);
  EXPECT_EQ(g_copyFinished.load(), 1);
  EXPECT_FALSE(QFile::exists(work));
  EXPECT_EQ(ReadFile(src), data);

  // Any other failure names the work file.
  t.prompt.clear();
  const QString unreachable = t.Path("no such folder/big source.tmp");
  SetPaths(src, unreachable);
  EXPECT_EQ(CopyWorkerBody(s), 3);
  EXPECT_EQ(t.prompt.texts(),
            QStringList(" Sorry, but the program can not continue operation with the file: " + unreachable + ". " +
                        QString::fromLocal8Bit(std::strerror(ENOENT))));
  EXPECT_TRUE(g_workPath.isEmpty());
}

TEST(WorkFile, WorkerFlagSpansTheWholeBody) {
  TestSession t;
  int seen = -1;
  ASSERT_TRUE(StartWorker([&]() {
    seen = g_workerBusy.load();
    return 7;
  }));
  WaitForWorker(*t.s);
  EXPECT_EQ(seen, 1);
  EXPECT_EQ(g_workerBusy.load(), 0);
  EXPECT_EQ(WorkerExitCode(), 7);
  // A body that throws still lets go of the flag.
  ASSERT_TRUE(StartWorker([]() -> int { throw std::runtime_error("x"); }));
  WaitForWorker(*t.s);
  EXPECT_EQ(g_workerBusy.load(), 0);
  EXPECT_NE(WorkerExitCode(), 0);
}
