#include <gtest/gtest.h>

#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <clocale>
#include <csignal>
#include <ctime>
#include <sys/resource.h>
#include <sys/stat.h>
#include <utime.h>

#include "app/Settings.h"
#include "log/CsvFileStream.h"
#include "log/OXCsvFile.h"
#include "log/TestLog.h"
#include "support/TestSupport.h"

using testing_support::ReadFile;
using testing_support::RunShell;
using testing_support::TestSession;
using testing_support::WriteFile;

namespace {

// A local time, as the seven log columns give it, and the time_t that has it.
struct LocalTime {
  int year, month, day, hour, minute, second;
};

time_t TimeOf(const LocalTime& l) {
  std::tm t{};
  t.tm_year = l.year - 1900;
  t.tm_mon = l.month - 1;
  t.tm_mday = l.day;
  t.tm_hour = l.hour;
  t.tm_min = l.minute;
  t.tm_sec = l.second;
  t.tm_isdst = -1;
  return mktime(&t);
}

void SetStamp(const QString& path, time_t when) {
  utimbuf b{when, when};
  ASSERT_EQ(utime(QFile::encodeName(path).constData(), &b), 0);
}

// An "audio" file: the log only looks at its name and time stamp.
QString MakeSource(TestSession& t, const QString& name, time_t when = TimeOf({2021, 3, 4, 5, 6, 7})) {
  const QString p = t.Path(name);
  EXPECT_TRUE(WriteFile(p, "RIFF"));
  SetStamp(p, when);
  return p;
}

LevelResult Wav(float l, float r) {
  LevelResult v;
  v.WavLeft = l;
  v.WavRight = r;
  return v;
}

LevelResult WavPik(float l, float r, float nl, float nr) {
  LevelResult v;
  v.WavPikLeft = l;
  v.WavPikRight = r;
  v.WavPikNoClippingLeft = nl;
  v.WavPikNoClippingRight = nr;
  return v;
}

LevelResult Gain(float l, float r, float nl, float nr) {
  LevelResult v;
  v.GainLeft = l;
  v.GainRight = r;
  v.NoClippingLeft = nl;
  v.NoClippingRight = nr;
  return v;
}

// One test as a flow runs it: open, find, read; on a miss, "measure" (take `measured`) and
// write. Returns whether the answer came from the log.
bool RunTest(TestSession& t, const QString& path, LogTest test, const LevelResult& measured,
             LevelResult* shown = nullptr) {
  TestLog log(*t.s);
  EXPECT_TRUE(log.OpenLog());
  RowState state = log.FindRow(path);
  LevelResult v;
  if (state == RowState::Fresh && log.ReadResult(test, v) == ReadOutcome::Hit) {
    if (shown) *shown = v;
    return true;
  }
  EXPECT_TRUE(log.WriteRow(path, test, state, measured));
  if (shown) *shown = measured;
  return false;
}

// The figures the log gives for a test of the file; a miss is a failure.
LevelResult Hit(TestSession& t, const QString& path, LogTest test) {
  LevelResult v;
  EXPECT_TRUE(RunTest(t, path, test, {}, &v)) << path.toStdString();
  return v;
}

// Where the file's record starts, as a look-up finds it.
int64_t OffsetOf(TestSession& t, const QString& path) {
  TestLog l(*t.s);
  l.OpenLog();
  l.FindRow(path);
  return l.FoundRowOffset();
}

int64_t SizeOf(const QString& path) { return QFileInfo(path).size(); }

QByteArray Header() {
  QByteArray h;
  for (const QString& n : LogColumnNames()) h += (h.isEmpty() ? "\"" : ",\"") + n.toUtf8() + "\"";
  return h;
}

}  // namespace

TEST(TestLogFile, EmptyLogIsMarkHeaderCrLf) {
  TestSession t;
  const QString log = t.s->m_logPath;
  ASSERT_TRUE(CreateEmptyLog(log));
  const QByteArray want = QByteArray("\xEF\xBB\xBF") + Header() + "\r\n";
  EXPECT_EQ(Header().size(), 221);
  EXPECT_EQ(ReadFile(log), want);
  EXPECT_EQ(SizeOf(log), 226);
  TestLog l(*t.s);
  ASSERT_TRUE(l.OpenLog());
  EXPECT_EQ(l.FindRow(MakeSource(t, "a.wav")), RowState::Miss);
}

TEST(TestLogFile, AppendedRecordIsRowAndFillerAndNextRecordFollows) {
  TestSession t;
  const QString log = t.s->m_logPath;
  CreateEmptyLog(log);
  const QString a = MakeSource(t, "a.wav");
  const QString b = MakeSource(t, "b.wav");
  EXPECT_FALSE(RunTest(t, a, LogTest::Wav, Wav(0.5f, 100.0f)));

  std::tm lt{};
  time_t when = TimeOf({2021, 3, 4, 5, 6, 7});
  localtime_r(&when, &lt);
  const QByteArray row = a.toUtf8() + QByteArray("," + QByteArray::number(2021) + ",3,4,5,6,7," +
                                                 QByteArray::number(lt.tm_wday + 1) +
                                                 ",400.000000,400.000000,400.000000,400.000000,0.500000,"
                                                 "100.000000,400.000000,400.000000,400.000000,400.000000");
  const QByteArray body = ReadFile(log).mid(226);
  EXPECT_EQ(body, row + "\r\n" + QByteArray(100, ' ') + "\r\n");
  const int64_t n = row.size();
  EXPECT_EQ(SizeOf(log), 226 + n + 2 + 100 + 2);

  EXPECT_FALSE(RunTest(t, b, LogTest::Wav, Wav(1, 2)));
  EXPECT_EQ(OffsetOf(t, b), 226 + n + 2 + 100 + 2);
}

TEST(TestLogFile, StaleRewriteKeepsSizeAndTheNextRecordsPlace) {
  TestSession t;
  const QString log = t.s->m_logPath;
  CreateEmptyLog(log);
  const QString a = MakeSource(t, "a.wav");
  const QString b = MakeSource(t, "b.wav");
  RunTest(t, a, LogTest::Wav, Wav(12.5f, 13.5f));
  RunTest(t, b, LogTest::Wav, Wav(1, 2));
  const int64_t size = SizeOf(log);
  const int64_t bOffset = OffsetOf(t, b);
  const QByteArray tail = ReadFile(log).mid(bOffset);

  SetStamp(a, TimeOf({2022, 11, 30, 23, 59, 58}));
  {
    TestLog l(*t.s);
    l.OpenLog();
    EXPECT_EQ(l.FindRow(a), RowState::Stale);
    EXPECT_TRUE(l.WriteRow(a, LogTest::WavPik, RowState::Stale, WavPik(-3, -4, 1, 2)));
  }
  EXPECT_EQ(SizeOf(log), size);
  EXPECT_EQ(ReadFile(log).mid(bOffset), tail);
  const LevelResult pik = Hit(t, a, LogTest::WavPik);
  EXPECT_EQ(pik.WavPikLeft, -3.0f);
  EXPECT_EQ(pik.WavPikNoClippingRight, 2.0f);
  // Stale marks the other groups absent: the old percent values are gone.
  EXPECT_FALSE(RunTest(t, a, LogTest::Wav, Wav(7, 8)));
  EXPECT_EQ(Hit(t, b, LogTest::Wav).WavRight, 2.0f);
}

TEST(TestLogFile, ThreeTestsOfOneFileFillAllThreeGroups) {
  TestSession t;
  CreateEmptyLog(t.s->m_logPath);
  const QString a = MakeSource(t, "a.flac");
  const QString b = MakeSource(t, "b.flac");
  RunTest(t, b, LogTest::Gain, Gain(80, 81, 0, 0));
  EXPECT_FALSE(RunTest(t, a, LogTest::Wav, Wav(50, 60)));
  EXPECT_FALSE(RunTest(t, a, LogTest::WavPik, WavPik(-6, -4.4f, 0, 0)));
  EXPECT_FALSE(RunTest(t, a, LogTest::Gain, Gain(85.5f, 86.25f, -1.5f, 0)));
  const int64_t size = SizeOf(t.s->m_logPath);
  const LevelResult wav = Hit(t, a, LogTest::Wav), gain = Hit(t, a, LogTest::Gain);
  EXPECT_EQ(wav.WavLeft, 50.0f);
  EXPECT_EQ(wav.WavRight, 60.0f);
  EXPECT_EQ(Hit(t, a, LogTest::WavPik).WavPikRight, -4.4f);
  EXPECT_EQ(gain.GainRight, 86.25f);
  EXPECT_EQ(gain.NoClippingLeft, -1.5f);
  EXPECT_EQ(SizeOf(t.s->m_logPath), size);  // all rewrites in place
  // The look-up and the write in two opens, as a flow that closes the log while it
  // measures: the caller hands the carried groups back.
  const QString c = MakeSource(t, "c.flac");
  RunTest(t, c, LogTest::Wav, Wav(10, 20));
  LevelResult carried;
  {
    TestLog l(*t.s);
    l.OpenLog();
    ASSERT_EQ(l.FindRow(c), RowState::Fresh);
    ASSERT_EQ(l.ReadResult(LogTest::Gain, carried), ReadOutcome::Partial);
  }
  EXPECT_EQ(carried.WavRight, 20.0f);
  carried.GainLeft = carried.GainRight = 70;
  carried.NoClippingLeft = carried.NoClippingRight = 1;
  {
    TestLog l(*t.s);
    l.OpenLog();
    EXPECT_TRUE(l.WriteRow(c, LogTest::Gain, RowState::Fresh, carried));
  }
  EXPECT_EQ(Hit(t, c, LogTest::Wav).WavLeft, 10.0f);
  EXPECT_EQ(Hit(t, c, LogTest::Gain).GainLeft, 70.0f);

  LevelResult all;
  const QByteArray bytes = ReadFile(t.s->m_logPath);
  TestLog l(*t.s);
  EXPECT_TRUE(l.LookUpForList(a, all));
  EXPECT_EQ(all.WavLeft, 50.0f);
  EXPECT_EQ(all.WavPikLeft, -6.0f);
  EXPECT_EQ(all.GainLeft, 85.5f);
  EXPECT_EQ(ReadFile(t.s->m_logPath), bytes);  // a look-up writes nothing
  SetStamp(a, 1);
  EXPECT_FALSE(l.LookUpForList(a, all));
}

TEST(TestLogFile, Mp3RowsHoldOnlyTheGainGroup) {
  TestSession t;
  CreateEmptyLog(t.s->m_logPath);
  t.s->m_sourceKind = kKindMp3;
  const QString a = MakeSource(t, "a.mp3");
  EXPECT_FALSE(RunTest(t, a, LogTest::Gain, Gain(89, 88, 0.5f, 0)));
  EXPECT_TRUE(ReadFile(t.s->m_logPath).contains(",89.000000,88.000000,0.500000,0.000000,0,0,0,0,0,0\r\n"));
  EXPECT_EQ(Hit(t, a, LogTest::Gain).GainRight, 88.0f);
  // Even a row whose gains are all 400 is a hit for an MP3 file.
  const QString b = MakeSource(t, "b.mp3");
  RunTest(t, b, LogTest::Gain, Gain(400, 400, 400, 400));
  Hit(t, b, LogTest::Gain);
}

TEST(TestLogFile, LongerRowBlanksTheOldRecordAndAppends) {
  TestSession t;
  const QString log = t.s->m_logPath;
  CreateEmptyLog(log);
  const QString a = MakeSource(t, "a.wav");
  const QString b = MakeSource(t, "b.wav");
  RunTest(t, a, LogTest::Wav, Wav(1, 2));
  RunTest(t, b, LogTest::Wav, Wav(3, 4));
  const QByteArray before = ReadFile(log);
  const int64_t aOffset = OffsetOf(t, a), bOffset = OffsetOf(t, b);
  {
    TestLog l(*t.s);
    l.OpenLog();
    ASSERT_EQ(l.FindRow(a), RowState::Fresh);
    LevelResult carried;
    ASSERT_EQ(l.ReadResult(LogTest::WavPik, carried), ReadOutcome::Partial);
    // Five more characters in each of four cells: 20 bytes longer than the old row.
    EXPECT_TRUE(l.WriteRow(a, LogTest::WavPik, RowState::Fresh, WavPik(-1234567, -1234567, -1234567, -1234567)));
  }
  const QByteArray after = ReadFile(log);
  // The old record is blanks to its line ends, the second record is untouched.
  const QByteArray oldA = before.mid(aOffset, bOffset - aOffset);
  QByteArray blanked = oldA;
  for (char& c : blanked)
    if (c != '\r' && c != '\n') c = ' ';
  EXPECT_EQ(after.mid(aOffset, bOffset - aOffset), blanked);
  EXPECT_EQ(after.mid(bOffset, before.size() - bOffset), before.mid(bOffset));
  EXPECT_EQ(Hit(t, a, LogTest::WavPik).WavPikLeft, -1234567.0f);
  EXPECT_EQ(Hit(t, a, LogTest::Wav).WavRight, 2.0f);  // carried over
  Hit(t, b, LogTest::Wav);
}

TEST(TestLogFile, PathsOfAnyScriptAndPunctuationRoundTrip) {
  TestSession t;
  CreateEmptyLog(t.s->m_logPath);
  const QStringList names = {"Prøve, \"שלום\" 🤔.wav", " lead.wav", "trail.wav ", "Case.wav", "case.wav",
                             "a,b.wav"};
  float level = 1;
  for (const QString& n : names) {
    EXPECT_FALSE(RunTest(t, MakeSource(t, n), LogTest::Wav, Wav(level, level)));
    ++level;
  }
  level = 1;
  for (const QString& n : names) {
    EXPECT_EQ(Hit(t, t.Path(n), LogTest::Wav).WavLeft, level++);
  }
  EXPECT_TRUE(ReadFile(t.s->m_logPath).contains("a,b.wav\","));
}

TEST(TestLogFile, NumbersStayCLocaleUnderAGermanOrFrenchInterface) {
  TestSession t;
  CreateEmptyLog(t.s->m_logPath);
  const std::string saved = std::setlocale(LC_ALL, nullptr);
  bool switched = false;
  for (const char* name : {"de_DE.UTF-8", "fr_FR.UTF-8", "de_DE.utf8"})
    if (std::setlocale(LC_ALL, name)) {
      switched = true;
      break;
    }
  if (!switched) {
    // Build one when the system has none installed, once, beside the test audio.
    const QString dir = testing_support::Fixture("locale");
    if (QFileInfo::exists(dir + "/de_DE.UTF-8/LC_NUMERIC") ||
        RunShell("mkdir -p '" + dir + "' && localedef -i de_DE -f UTF-8 '" + dir + "/de_DE.UTF-8' 2>/dev/null") == 0) {
      qputenv("LOCPATH", dir.toUtf8());
      switched = std::setlocale(LC_ALL, "de_DE.UTF-8") != nullptr;
    }
  }
  QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
  char buf[32];
  std::snprintf(buf, sizeof buf, "%f", 0.5);
  const bool commaLocale = QByteArray(buf) == "0,500000";

  const QString a = MakeSource(t, "a.wav");
  RunTest(t, a, LogTest::Wav, Wav(0.5f, 0.25f));
  LevelResult v;
  const bool hit = RunTest(t, a, LogTest::Wav, {}, &v);
  std::setlocale(LC_ALL, saved.c_str());
  qunsetenv("LOCPATH");
  QLocale::setDefault(QLocale::c());
  EXPECT_TRUE(ReadFile(t.s->m_logPath).contains(",0.500000,0.250000,"));
  EXPECT_TRUE(hit);
  EXPECT_EQ(v.WavLeft, 0.5f);
  if (!commaLocale) GTEST_SKIP() << "no locale with a decimal comma available (" << switched << ")";
}

TEST(TestLogFile, HandEditedLogsReadWithADefinedOutcome) {
  TestSession t;
  const QString a = MakeSource(t, "a.wav");
  const QString b = MakeSource(t, "b.wav");
  // A good record, then junk of every kind, then a good record, then a row cut short.
  TestSession scratch;
  CreateEmptyLog(scratch.s->m_logPath);
  RunTest(scratch, a, LogTest::Wav, Wav(11, 12));
  RunTest(scratch, b, LogTest::Wav, Wav(21, 22));
  const QByteArray good = ReadFile(scratch.s->m_logPath);
  const qsizetype split = good.indexOf(b.toUtf8());
  const QByteArray aRecord = good.mid(226, split - 226), bRecord = good.mid(split);
  const QByteArray junk = "junk line\r\n1,2,3,4,5,6,7,8,9,10,11,12,13,14,15,16,17,18,19,20\r\n"
                          "\xFF\xFE\xC3 bad utf-8,\x80\r\n\"stray quote, never closed\r\n"
                          "\r\n\n";
  const QByteArray cut = bRecord.left(bRecord.indexOf(",400.000000"));
  const QString log = t.s->m_logPath;
  WriteFile(log, good.left(226) + junk + aRecord + junk + bRecord.left(bRecord.indexOf("\r\n") + 2) + cut);
  const QByteArray edited = ReadFile(log);

  EXPECT_EQ(Hit(t, a, LogTest::Wav).WavLeft, 11.0f);
  EXPECT_EQ(Hit(t, b, LogTest::Wav).WavRight, 22.0f);
  {
    // A batch keeps the log open: the second look-up goes through the index of every key,
    // which must agree with the walk.
    TestLog l(*t.s);
    ASSERT_TRUE(l.OpenLog());
    EXPECT_EQ(l.FindRow(b), RowState::Fresh);
    const int64_t bOffset = l.FoundRowOffset();
    EXPECT_EQ(l.FindRow(a), RowState::Fresh);
    EXPECT_EQ(l.FindRow(b), RowState::Fresh);
    EXPECT_EQ(l.FoundRowOffset(), bOffset);
    EXPECT_EQ(l.FindRow(t.Path("c.wav")), RowState::Miss);
  }
  EXPECT_EQ(ReadFile(log), edited);

  // A log that ends in a row cut short: the cut row is no record, and a new record starts
  // on a line of its own.
  WriteFile(log, good.left(226) + cut);
  EXPECT_FALSE(RunTest(t, b, LogTest::Wav, Wav(5, 6)));
  EXPECT_TRUE(ReadFile(log).startsWith(good.left(226) + cut + "\r\n" + b.toUtf8() + ","));
  EXPECT_EQ(Hit(t, b, LogTest::Wav).WavLeft, 5.0f);

  // A row that a crash left unfinished starts with '#' and matches no path.
  WriteFile(log, good.left(226) + "#" + aRecord.mid(1));
  EXPECT_FALSE(RunTest(t, a, LogTest::Wav, Wav(1, 1)));

  // Not a log of ours: left alone, the test goes on without it.
  WriteFile(log, "FileName,Year\r\n" + aRecord);
  TestLog l(*t.s);
  EXPECT_FALSE(l.OpenLog());
  EXPECT_EQ(ReadFile(log), "FileName,Year\r\n" + aRecord);
}

TEST(TestLogFile, HundredThousandRecords) {
  TestSession t;
  const QString a = MakeSource(t, "a.wav");
  TestSession scratch;
  CreateEmptyLog(scratch.s->m_logPath);
  RunTest(scratch, a, LogTest::Wav, Wav(3, 4));
  const QByteArray good = ReadFile(scratch.s->m_logPath);
  QByteArray big = good.left(226);
  const QByteArray other = good.mid(226).replace(a.toUtf8(), "/other/file-%1.wav");
  big.reserve(110'000 * other.size());
  for (int i = 0; i < 100'000; ++i) big += QByteArray(other).replace("%1", QByteArray::number(i));
  big += good.mid(226);
  WriteFile(t.s->m_logPath, big);
  EXPECT_EQ(Hit(t, a, LogTest::Wav).WavRight, 4.0f);
  TestLog l(*t.s);
  ASSERT_TRUE(l.OpenLog());
  EXPECT_EQ(l.FindRow("/other/file-99999.wav"), RowState::Stale);  // no such file: no stamp
  EXPECT_EQ(l.FindRow("/other/file-100000.wav"), RowState::Miss);
}

TEST(TestLogFile, FullDiskLeavesTheLogAsItWas) {
  TestSession t;
  const QString log = t.s->m_logPath;
  CreateEmptyLog(log);
  const QString a = MakeSource(t, "a.wav");
  const QString b = MakeSource(t, "b.wav");
  RunTest(t, a, LogTest::Wav, Wav(1, 2));
  const QByteArray before = ReadFile(log);

  // A file size limit makes the append fail part way, as a full disk would.
  rlimit old{};
  getrlimit(RLIMIT_FSIZE, &old);
  auto oldHandler = std::signal(SIGXFSZ, SIG_IGN);
  rlimit small = old;
  small.rlim_cur = before.size() + 40;
  ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &small), 0);
  bool written;
  {
    TestLog l(*t.s);
    l.OpenLog();
    written = l.WriteRow(b, LogTest::Wav, l.FindRow(b), Wav(3, 4));
  }
  setrlimit(RLIMIT_FSIZE, &old);
  std::signal(SIGXFSZ, oldHandler);
  EXPECT_FALSE(written);
  EXPECT_EQ(ReadFile(log), before);
  ASSERT_EQ(t.prompt.requests.size(), 1u);
  EXPECT_EQ(t.prompt.requests[0].icon, PromptIcon::Warning);
  Hit(t, a, LogTest::Wav);
  EXPECT_FALSE(RunTest(t, b, LogTest::Wav, Wav(3, 4)));
}

TEST(TestLogUse, LockedLogAndDatabaseOff) {
  TestSession t;
  const QString log = t.s->m_logPath;
  CreateEmptyLog(log);
  const QString a = MakeSource(t, "a.wav");
  {
    TestLog first(*t.s);
    ASSERT_TRUE(first.OpenLog());
    TestLog second(*t.s);
    EXPECT_FALSE(second.OpenLog());  // the test goes on without the log
    ClearLog(*t.s);                  // fails to open: nothing happens
    EXPECT_TRUE(t.prompt.requests.empty());
    EXPECT_TRUE(first.WriteRow(a, LogTest::Wav, first.FindRow(a), Wav(1, 2)));
  }
  const QByteArray withRow = ReadFile(log);
  t.s->m_useDatabase = 0;
  TestLog off(*t.s);
  EXPECT_TRUE(off.OpenLog());  // still opened and closed
  EXPECT_EQ(off.FindRow(a), RowState::Miss);
  EXPECT_FALSE(off.WriteRow(a, LogTest::Wav, RowState::Miss, Wav(7, 7)));
  off.CloseLog();
  EXPECT_EQ(ReadFile(log), withRow);
  t.s->m_useDatabase = 1;

  ClearLog(*t.s);
  EXPECT_EQ(SizeOf(log), 226);
  ASSERT_EQ(t.prompt.requests.size(), 1u);
  EXPECT_EQ(t.prompt.requests[0].text, "The database has been successfully cleared");
  EXPECT_EQ(t.prompt.requests[0].icon, PromptIcon::Information);
}

TEST(TestLogUse, StartUpCreatesTheLogAndAppliesTheCap) {
  TestSession t;
  Settings::SetString("InstallPath", t.Path("install"));
  Settings::SetInt("DataBaseSize", 0);
  CheckLogAtStart(*t.s);
  const QString log = t.Path("install") + "/TestLog.csv";
  EXPECT_EQ(t.s->m_logAvailable, 1);
  EXPECT_EQ(t.s->m_logPath, log);
  EXPECT_EQ(Settings::GetString("PatchLog"), log);
  EXPECT_EQ(Settings::GetInt("DataBaseSize", -1), 1);
  EXPECT_EQ(SizeOf(log), 226);

  // The cap at one megabyte: a log of exactly 1048576 bytes stays, one byte more empties it.
  QByteArray big = ReadFile(log);
  big += QByteArray(1048576 - big.size() - 2, ' ') + "\r\n";
  WriteFile(log, big);
  CheckLogAtStart(*t.s);
  EXPECT_EQ(SizeOf(log), 1048576);
  WriteFile(log, big + " ");
  CheckLogAtStart(*t.s);
  EXPECT_EQ(SizeOf(log), 226);
  EXPECT_TRUE(t.prompt.requests.empty());

  // A log path in a folder that cannot be made: no log.
  TestSession u;
  Settings::SetString("InstallPath", "/proc/none");
  Settings::SetString("PatchLog", "/proc/none/TestLog.csv");
  CheckLogAtStart(*u.s);
  EXPECT_EQ(u.s->m_logAvailable, 0);
}
