#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "log/CsvFileStream.h"
#include "log/OXCsvFile.h"
#include "log/StdioFileEx.h"
#include "log/TestLog.h"
#include "support/TestSupport.h"

using testing_support::ReadFile;
using testing_support::RunShell;
using testing_support::WriteFile;

namespace {

const QByteArray kBom("\xEF\xBB\xBF");

QByteArray Header() {
  QByteArray h;
  for (const QString& n : LogColumnNames()) h += (h.isEmpty() ? "\"" : ",\"") + n.toUtf8() + "\"";
  return h + "\r\n";
}

// A log file with the given body behind the standard header.
QString MakeCsv(QTemporaryDir& dir, const QByteArray& body, const QString& name = "t.csv") {
  const QString path = dir.filePath(name);
  EXPECT_TRUE(WriteFile(path, kBom + Header() + body));
  return path;
}

}  // namespace

TEST(CsvStream, CreateWritesMarkAndCrLfUpdateSkipsTheMark) {
  QTemporaryDir dir;
  const QString path = dir.filePath("s.csv");
  {
    CsvFileStream st;
    ASSERT_TRUE(st.Open(path, CsvFileStream::kCreate));
    st.WriteString(QString::fromUtf8("a\nb\xC3\xA9\n"));
    ASSERT_TRUE(st.Close());
  }
  EXPECT_EQ(ReadFile(path), kBom + QByteArray("a\r\nb\xC3\xA9\r\n"));
  CsvFileStream st;
  ASSERT_TRUE(st.Open(path, CsvFileStream::kUpdate));
  EXPECT_EQ(st.Tell(), 3);
  QString line;
  ASSERT_TRUE(st.ReadString(line));
  EXPECT_EQ(line, "a");
  EXPECT_EQ(st.LineStart(), 3);
  EXPECT_EQ(st.LineTerminator(), 2);
  ASSERT_TRUE(st.ReadString(line));
  EXPECT_EQ(st.LineStart(), 6);
  EXPECT_FALSE(st.ReadString(line));
  st.Close();

  // Without a mark the update stream starts at byte 0; a missing file is not created.
  WriteFile(path, "x\ny");
  CsvFileStream plain;
  ASSERT_TRUE(plain.Open(path, CsvFileStream::kUpdate));
  EXPECT_EQ(plain.Tell(), 0);
  ASSERT_TRUE(plain.ReadString(line));
  ASSERT_TRUE(plain.ReadString(line));
  EXPECT_EQ(line, "y");
  EXPECT_EQ(plain.LineTerminator(), 0);
  CsvFileStream none;
  EXPECT_FALSE(none.Open(dir.filePath("missing.csv"), CsvFileStream::kUpdate));
  EXPECT_FALSE(QFile::exists(dir.filePath("missing.csv")));
}

TEST(CsvStream, SecondOpenIsRefusedWhileTheFirstHoldsTheFile) {
  QTemporaryDir dir;
  const QString path = dir.filePath("l.csv");
  WriteFile(path, "keep");
  CsvFileStream first;
  ASSERT_TRUE(first.Open(path, CsvFileStream::kUpdate));
  CsvFileStream second;
  EXPECT_FALSE(second.Open(path, CsvFileStream::kCreate));
  EXPECT_EQ(ReadFile(path), "keep");  // the refused create truncated nothing
  // Another process sees the lock too.
  EXPECT_NE(RunShell("flock -n '" + path + "' true"), 0);
  first.Close();
  EXPECT_EQ(RunShell("flock -n '" + path + "' true"), 0);
  EXPECT_TRUE(second.Open(path, CsvFileStream::kUpdate));
}

TEST(CsvFile, HeaderOfEighteenColumnsReadWithExpectationFourteen) {
  QTemporaryDir dir;
  const QString path = MakeCsv(dir, "/a.wav,2020,1,2,3,4,5,6,1,2,3,4,5,6,7,8,9,10\r\n");
  CsvFileStream st;
  ASSERT_TRUE(st.Open(path, CsvFileStream::kUpdate));
  COXCsvFile csv(st);
  EXPECT_FALSE(csv.ReadHeaderRow(14));
  EXPECT_EQ(csv.GetLastError(), kCsvTooManyRecords);
  EXPECT_EQ(csv.GetColumnCount(), 18);
  for (int i = 0; i < 18; ++i) EXPECT_EQ(csv.FindColumn(LogColumnNames()[i].toLower()), i);
  EXPECT_EQ(csv.FindColumn("Nope"), -1);
  EXPECT_EQ(csv.GetLastError(), kCsvBadColumnName);
  ASSERT_TRUE(csv.ReadRecord(true));
  EXPECT_EQ(csv.GetRowOffset(), kCsvFirstRow);
  float f = 0;
  EXPECT_TRUE(csv.ReadFloat("WavPikNoClippingRight", f));
  EXPECT_EQ(f, 10.0f);
}

TEST(CsvFile, CellsQuotingAndWhiteSpace) {
  QTemporaryDir dir;
  const QString path = MakeCsv(dir,
                               "  plain cell  ,\"  kept  \",\"say \"\"hi\"\"\",\"a,b\",x\"y\"z,\"two\r\nlines\"\r\n"
                               "                                                                    \r\n"
                               "after,blanks\r\n");
  CsvFileStream st;
  ASSERT_TRUE(st.Open(path, CsvFileStream::kUpdate));
  COXCsvFile csv(st);
  csv.ReadHeaderRow(18);
  st.Seek(kCsvFirstRow, CsvFileStream::kBegin);
  csv.ResetRowTracking();
  ASSERT_TRUE(csv.ReadRecord(true));
  QString t;
  const QStringList want = {"plain cell", "  kept  ", "say \"hi\"", "a,b", "xyz", "two\nlines"};
  for (int i = 0; i < want.size(); ++i) {
    csv.ReadText(i, t);
    EXPECT_EQ(t, want[i]) << i;
  }
  // A line of blanks is a row with one empty cell; the scan goes on behind it.
  ASSERT_TRUE(csv.ReadRecord(true));
  EXPECT_EQ(csv.CellCount(), 1);
  csv.ReadText(0, t);
  EXPECT_TRUE(t.isEmpty());
  ASSERT_TRUE(csv.ReadRecord(true));
  csv.ReadText(1, t);
  EXPECT_EQ(t, "blanks");
  EXPECT_FALSE(csv.ReadRecord(true));
  EXPECT_EQ(csv.GetLastError(), kCsvNoError);
  EXPECT_FALSE(csv.ReadText(40, t));
  EXPECT_EQ(csv.GetLastError(), kCsvBadColumnIndex);
}

TEST(CsvFile, WrittenCellsComeBackUnchanged) {
  QTemporaryDir dir;
  const QString path = dir.filePath("w.csv");
  const QStringList texts = {"/m/a,b.wav",  " lead", "trail ", "q\"uote", "line\nfeed", "cr\rx",
                             "Prøve שלום 🤔", "",     "plain"};
  {
    CsvFileStream st;
    ASSERT_TRUE(st.Open(path, CsvFileStream::kCreate));
    COXCsvFile csv(st);
    QStringList names;
    for (int i = 0; i < texts.size(); ++i) names << QString("c%1").arg(i);
    csv.SetColumnNames(names);
    csv.WriteHeaderRow();
    for (int i = 0; i < texts.size(); ++i) EXPECT_TRUE(csv.WriteText(i, texts[i]));
    EXPECT_FALSE(csv.WriteText(texts.size(), "x"));
    EXPECT_EQ(csv.GetLastError(), kCsvBadColumnIndex);
    csv.WriteRecord();
    st.Close();
  }
  const QByteArray raw = ReadFile(path);
  EXPECT_TRUE(raw.contains("\r\n\"/m/a,b.wav\",\" lead\",\"trail \",\"q\"\"uote\",\"line\r\nfeed\","));
  EXPECT_TRUE(raw.endsWith(",,plain\r\n"));  // an empty cell is just its delimiter
  CsvFileStream st;
  ASSERT_TRUE(st.Open(path, CsvFileStream::kUpdate));
  COXCsvFile csv(st);
  EXPECT_TRUE(csv.ReadHeaderRow(texts.size()));
  ASSERT_TRUE(csv.ReadRecord(false));
  for (int i = 0; i < texts.size(); ++i) {
    QString t;
    csv.ReadText(i, t);
    EXPECT_EQ(t, texts[i]) << i;
  }
}

TEST(CsvFile, UnclosedQuoteAndTooManyCells) {
  QTemporaryDir dir;
  const QString path = MakeCsv(dir, "1,2,3,4,5,6,7,8,9,10,11,12,13,14,15,16,17,18,19\r\n\"open,cell\r\nmore");
  CsvFileStream st;
  ASSERT_TRUE(st.Open(path, CsvFileStream::kUpdate));
  COXCsvFile csv(st);
  csv.ReadHeaderRow(18);
  EXPECT_FALSE(csv.ReadRecord(false));
  EXPECT_EQ(csv.GetLastError(), kCsvTooManyRecords);
  QString t;
  csv.ReadText(18, t);
  EXPECT_EQ(t, "19");  // the cells are stored all the same
  EXPECT_FALSE(csv.ReadRecord(false));
  EXPECT_EQ(csv.GetLastError(), kCsvLineTooLong);
  csv.ReadText(0, t);
  EXPECT_EQ(t, "open,cell\nmore\n");
}

TEST(CsvFile, RowOffsetsAreBytesFromTheFirstRow) {
  QTemporaryDir dir;
  const QByteArray l0 = "/é/ü.wav,1\r\n", l1 = "    \r\n", l2 = "\"two\r\nlines\",2\r\n", l3 = "last,3\r\n";
  const QString path = MakeCsv(dir, l0 + l1 + l2 + l3);
  CsvFileStream st;
  ASSERT_TRUE(st.Open(path, CsvFileStream::kUpdate));
  COXCsvFile csv(st);
  csv.ReadHeaderRow(18);
  st.Seek(kCsvFirstRow, CsvFileStream::kBegin);
  csv.ResetRowTracking();
  const int64_t want[] = {226, 226 + l0.size(), 226 + l0.size() + l1.size(),
                          226 + l0.size() + l1.size() + l2.size()};
  for (int64_t w : want) {
    ASSERT_TRUE(csv.ReadRecord(true));
    EXPECT_EQ(csv.GetRowOffset(), w);
  }
  // An untracked row moves neither position.
  st.Seek(kCsvFirstRow, CsvFileStream::kBegin);
  ASSERT_TRUE(csv.ReadRecord(false));
  EXPECT_EQ(csv.GetRowOffset(), want[3]);
}

TEST(CsvFile, NumbersInAndOut) {
  QTemporaryDir dir;
  const QString path = MakeCsv(dir, ",42abc,-2147483648,2147483648,1e39,  -7.25x,nan\r\n");
  CsvFileStream st;
  ASSERT_TRUE(st.Open(path, CsvFileStream::kUpdate));
  COXCsvFile csv(st);
  csv.ReadHeaderRow(18);
  ASSERT_TRUE(csv.ReadRecord(false));
  int i = 9;
  float f = 9;
  EXPECT_TRUE(csv.ReadInt(0, i));
  EXPECT_EQ(i, 0);
  EXPECT_TRUE(csv.ReadInt(1, i));
  EXPECT_EQ(i, 42);
  EXPECT_TRUE(csv.ReadInt(2, i));
  EXPECT_EQ(i, INT32_MIN);
  EXPECT_FALSE(csv.ReadInt(3, i));
  EXPECT_EQ(i, 0);
  EXPECT_EQ(csv.GetLastError(), kCsvBadNumber);
  EXPECT_FALSE(csv.ReadFloat(4, f));
  EXPECT_EQ(f, 0.0f);
  EXPECT_TRUE(csv.ReadFloat(5, f));
  EXPECT_EQ(f, -7.25f);
  EXPECT_FALSE(csv.ReadFloat(6, f));

  EXPECT_EQ(COXCsvFile::FormatFloat(400.0f), "400.000000");
  EXPECT_EQ(COXCsvFile::FormatFloat(-1.0f), "-1.000000");
  EXPECT_EQ(COXCsvFile::FormatFloat(0.5f), "0.500000");
  EXPECT_EQ(COXCsvFile::FormatFloat(-12.3456789f), "-12.345679");
  EXPECT_LE(COXCsvFile::FormatFloat(3.0e38f).size(), 19);
}

TEST(StdioFileEx, EncodingsAndLineEnds) {
  QTemporaryDir dir;
  const QString p16 = dir.filePath("a.m3u");
  QByteArray u16("\xFF\xFE", 2);
  const QString text16 = QString("/Prøve/a.mp3\r\n") + QString(10000, u'x') + "\r\nשלום🤔";
  for (QChar c : text16) {
    u16 += char(c.unicode() & 0xFF);
    u16 += char(c.unicode() >> 8);
  }
  WriteFile(p16, u16);
  CStdioFileEx f;
  ASSERT_TRUE(f.Open(p16, CStdioFileEx::modeRead | CStdioFileEx::typeText));
  EXPECT_TRUE(f.IsFileUnicodeText());
  QString line;
  ASSERT_TRUE(f.ReadString(line));
  EXPECT_EQ(line, "/Prøve/a.mp3");
  ASSERT_TRUE(f.ReadString(line));
  EXPECT_EQ(line, QString(10000, u'x'));
  ASSERT_TRUE(f.ReadString(line));
  EXPECT_EQ(line, "שלום🤔");
  EXPECT_FALSE(f.ReadString(line));

  // UTF-8: three bytes skipped at the start, and again after a seek to 0.
  const QString p8 = dir.filePath("b.m3u8");
  WriteFile(p8, "\xEF\xBB\xBF/\xC3\xA9.flac\r\n\r\nlast");
  CStdioFileEx g;
  g.SetCodePage(CStdioFileEx::kCodePageUtf8);
  ASSERT_TRUE(g.Open(p8, CStdioFileEx::modeRead | CStdioFileEx::typeText));
  EXPECT_FALSE(g.IsFileUnicodeText());
  ASSERT_TRUE(g.ReadString(line));
  EXPECT_EQ(line, "/é.flac");
  ASSERT_TRUE(g.ReadString(line));
  EXPECT_EQ(line, "");
  ASSERT_TRUE(g.ReadString(line));
  EXPECT_EQ(line, "last");
  EXPECT_FALSE(g.ReadString(line));
  g.Seek(0, CStdioFileEx::begin);
  ASSERT_TRUE(g.ReadString(line));
  EXPECT_EQ(line, "/é.flac");

  // Legacy 8-bit playlists: a named code page, and the locale's when it names none.
  const QString pa = dir.filePath("c.m3u");
  WriteFile(pa, "C:\\M\xFAsica\\\xE9t\xE9.mp3\r\n");
  CStdioFileEx h;
  h.SetCodePage(1252);
  ASSERT_TRUE(h.Open(pa, CStdioFileEx::modeRead));
  ASSERT_TRUE(h.ReadString(line));
  EXPECT_EQ(line, "C:\\Música\\été.mp3");
  EXPECT_EQ(CStdioFileEx::Decode("\xE9", 1251), "й");
  const QByteArray savedAll = qgetenv("LC_ALL");
  qputenv("LC_ALL", "C");
  EXPECT_EQ(CStdioFileEx::Decode("\xE9t\xE9", -1), "été");
  qputenv("LC_ALL", "en_US.UTF-8");
  EXPECT_EQ(CStdioFileEx::Decode("\xC3\xA9t\xC3\xA9", -1), "été");
  EXPECT_EQ(CStdioFileEx::Decode("\xE9t\xE9", -1), "été");  // not UTF-8: an older file
  if (savedAll.isNull())
    qunsetenv("LC_ALL");
  else
    qputenv("LC_ALL", savedAll);
}
