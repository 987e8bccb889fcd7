// ReadRecord and the log's look-up over arbitrary bytes. The first byte picks the road:
// even, the CSV engine alone over the bytes as they are; odd, the test log store over the
// bytes behind a proper header (look-ups, then a rewrite of a record for an existing file).
#include <QByteArray>
#include <QString>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <sys/mman.h>
#include <unistd.h>

#include "app/Session.h"
#include "log/CsvFileStream.h"
#include "log/OXCsvFile.h"
#include "log/TestLog.h"

namespace {

int MemFile(const uint8_t* data, size_t size) {
  int fd = memfd_create("fuzz_csv", MFD_CLOEXEC);
  if (fd < 0) abort();
  size_t done = 0;
  while (done < size) {
    ssize_t n = write(fd, data + done, size - done);
    if (n <= 0) abort();
    done += size_t(n);
  }
  return fd;
}

void Engine(const uint8_t* data, size_t size) {
  CsvFileStream st;
  if (!st.Adopt(MemFile(data, size), CsvFileStream::kUpdate)) return;
  COXCsvFile csv(st);
  csv.ReadHeaderRow(14);
  st.Seek(kCsvFirstRow, CsvFileStream::kBegin);
  csv.ResetRowTracking();
  int64_t last = -1;
  for (int rows = 0; rows < 4096; ++rows) {
    const bool ok = csv.ReadRecord(true);
    if (!ok && csv.GetLastError() == kCsvNoError) break;
    if (csv.GetRowOffset() <= last || csv.GetRowOffset() > int64_t(size)) abort();
    last = csv.GetRowOffset();
    QString text;
    int i;
    float f;
    for (int c = 0; c < csv.GetColumnCount() + 1; ++c) {
      csv.ReadText(c, text);
      csv.ReadInt(c, i);
      csv.ReadFloat(c, f);
    }
    if (!ok && csv.GetLastError() == kCsvLineTooLong) break;
  }
}

void Store(const uint8_t* data, size_t size) {
  static const QByteArray header = [] {
    QByteArray h("\xEF\xBB\xBF");
    for (const QString& n : LogColumnNames()) h += (h.size() == 3 ? "\"" : ",\"") + n.toUtf8() + "\"";
    return h + "\r\n";
  }();
  const QByteArray bytes = header + QByteArray(reinterpret_cast<const char*>(data), qsizetype(size));
  const int fd = MemFile(reinterpret_cast<const uint8_t*>(bytes.constData()), size_t(bytes.size()));
  const QString path = QStringLiteral("/proc/self/fd/%1").arg(fd);
  Session s;
  s.m_logPath = path;
  {
    TestLog log(s);
    if (log.OpenLog()) {
      log.FindRow(QStringLiteral("/a.wav"));
      // The log file itself has a time stamp, so it can stand as a key that exists.
      RowState r = log.FindRow(path);
      LevelResult v;
      if (r == RowState::Fresh) log.ReadResult(LogTest::WavPik, v);
      v.WavPikLeft = -1234567.0f;
      // What was written is found again.
      if (log.WriteRow(path, LogTest::WavPik, r, v) && log.FindRow(path) == RowState::Miss) abort();
    }
  }
  close(fd);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  if (size == 0) return 0;
  if (data[0] & 1)
    Store(data + 1, size - 1);
  else
    Engine(data + 1, size - 1);
  return 0;
}
