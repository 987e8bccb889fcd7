#pragma once
// The test log: TestLog.csv, one record per file tested, keyed by the file's full path and
// checked against its modification time, so that a second test of an unchanged file reads
// no samples. A record holds three independent groups of results (Gain, Wav, WavPik).
//
// On disk: the UTF-8 byte-order mark, the header of the 18 quoted column names (221
// characters), CR LF, and from byte 226 the records in the order files were first tested.
// A record is its row and a filler line of 100 blanks that leaves room to rewrite the row
// in place.
#include <QHash>
#include <QString>
#include <QStringList>
#include <cstdint>
#include <memory>

#include "level/LevelResult.h"

struct Session;
class CsvFileStream;
class COXCsvFile;

enum class RowState { Miss, Stale, Fresh };
enum class ReadOutcome { Hit, Partial };
// The three column groups of a row.
enum class LogTest { Gain, Wav, WavPik };

// The 18 column names in order, and the header line they make.
const QStringList& LogColumnNames();
constexpr int kLogColumns = 18;
constexpr int kLogFillerAppend = 100;  // blanks behind an appended row
constexpr int kLogFillerRewrite = 90;  // blanks behind a row rewritten in place

// One open of the log by a test flow (a single test, or a whole batch run).
class TestLog {
 public:
  explicit TestLog(Session& s);
  ~TestLog();
  TestLog(const TestLog&) = delete;
  TestLog& operator=(const TestLog&) = delete;

  // Opens the session's log (m_logPath, else the PatchLog setting). False when it cannot be
  // used: missing, locked by another open, or not a log of ours; the test then goes on
  // without it. With m_useDatabase on, the header is read and checked.
  bool OpenLog();
  // Looks the key path up. Fresh leaves the row ready for ReadResult.
  RowState FindRow(const QString& path);
  // On a Fresh row: Hit with this test's values, or Partial with the other groups'
  // values (kept for the WriteRow that follows). MP3 rows (m_sourceKind) are always a Hit.
  ReadOutcome ReadResult(LogTest test, LevelResult& values);
  // After a measurement: writes this test's group of `values` for the path. The other
  // groups are carried over after a Partial (outcome Fresh): from ReadResult in this open,
  // else from `values`; after Miss or Stale they are marked absent. False when nothing
  // could be written (a message has been shown for a file error).
  bool WriteRow(const QString& path, LogTest test, RowState outcome, const LevelResult& values);
  void CloseLog();
  bool IsOpen() const { return m_open; }

  // The read-only look-up of the batch list: the values of a row whose stamp matches the
  // file, all ten as stored. False when there is none (or the log cannot be opened).
  bool LookUpForList(const QString& path, LevelResult& values);

  // The path the flow opens.
  QString LogPath() const;
  // Offset of the row FindRow found last (-1 if none).
  int64_t FoundRowOffset() const { return m_rowOffset; }

 private:
  struct RecordKey {
    const char* bytes;    // a plain line's first cell, as it stands
    qsizetype size;
    const QString* text;  // or the cell as the CSV engine read it
  };
  template <class Visit>
  bool WalkRecords(Visit& visit);
  bool BuildIndex();
  bool ScanFor(const QString& path, int64_t& found);
  bool LoadRow(int64_t offset, const QString& path);
  bool ReadGroups(LevelResult& v, bool gain, bool wav, bool wavPik);
  bool AppendRecord(const QString& line, const QString& path);
  bool BlankRecord();
  void ReportError(int err);

  Session& m_s;
  bool m_open = false;
  bool m_headerRead = false;
  std::unique_ptr<CsvFileStream> m_stream;
  std::unique_ptr<COXCsvFile> m_csv;
  // First record of each key path (byte offset), built once per open.
  bool m_indexed = false;
  int m_lookups = 0;
  QHash<QString, int64_t> m_index;
  // The path FindRow missed last, and the row it found last.
  QString m_missPath;
  QString m_rowPath;
  int64_t m_rowOffset = -1;
  int64_t m_rowBytes = 0;  // the row with its line end
  int64_t m_rowRoom = 0;   // bytes a rewrite may fill without touching the next record
  bool m_rowFresh = false;
  LevelResult m_carried;
};

// Start-up: settles PatchLog, creates the log when missing, sets m_logAvailable, reads
// DataBaseSize and applies the cap to a log that existed.
void CheckLogAtStart(Session& s);
// The same for a log at an explicit path (the CLI's --log): created when missing.
void CheckLogAt(Session& s, const QString& path);
// A log holding only its header. True when the file could be opened (and was written).
bool CreateEmptyLog(const QString& path);
// The Clear Database command: empties the log and says so; silent when it cannot be opened.
void ClearLog(Session& s);
// Empties the log when it is above the cap (capMb megabytes, or 4 GB or more). True when
// it was emptied.
bool ApplyLogCap(const QString& path, int capMb);
