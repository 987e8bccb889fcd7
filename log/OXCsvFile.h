#pragma once
// COXCsvFile: reads and writes a comma-separated file row by row over a CsvFileStream.
// A header row names the columns; cells are addressed by index or by name. Beside each
// row it reports the byte offset where that row starts, so that the test log can go
// back and overwrite it in place.
#include <QString>
#include <QStringList>
#include <cstdint>
#include <vector>

class CsvFileStream;

// Last-error codes.
enum CsvError : int {
  kCsvNoError = 0,
  kCsvBadColumnIndex = 1,
  kCsvBadColumnName = 2,
  kCsvBadNumber = 3,
  kCsvDataMismatch = 4,  // in the table, set by no operation
  kCsvLineTooLong = 5,   // the file ended inside a quoted cell
  kCsvTooManyRecords = 6,
};
QString CsvErrorText(int code);

// Cell types.
enum CsvType : int {
  kCsvTypeNone = 0,
  kCsvTypeByte = 1,
  kCsvTypeShort = 2,
  kCsvTypeInt = 3,
  kCsvTypeFloat = 4,
  kCsvTypeDouble = 5,
  kCsvTypeString = 6,
};

struct COXColumnData {
  QString m_name;
  QString m_data;
  int m_type = kCsvTypeNone;
  int m_quote = 0;  // non-zero: always written quoted
};
using COXDataArray = std::vector<COXColumnData>;

// Where the first data row of the log starts: mark (3), header (221), CR LF (2).
constexpr int64_t kCsvFirstRow = 226;

class COXCsvFile {
 public:
  explicit COXCsvFile(CsvFileStream& stream);

  void SetColumnNames(const QStringList& names);
  void SetColumnNames(const char* const* names);  // null-terminated
  void WriteHeaderRow();
  bool ReadHeaderRow(int expected);
  void ResetRowTracking();
  bool ReadRecord(bool trackRow);
  int64_t GetRowOffset() const { return m_currentRowOffset; }
  // Where the row after the one read last begins (valid after ReadRecord(true)).
  int64_t GetNextRowPosition() const { return m_nextRowPosition; }

  int FindColumn(const QString& name);
  bool ReadText(int column, QString& out);
  bool ReadInt(int column, int& out);
  bool ReadFloat(int column, float& out);
  bool ReadText(const QString& column, QString& out);
  bool ReadInt(const QString& column, int& out);
  bool ReadFloat(const QString& column, float& out);

  bool WriteText(int column, const QString& text);
  bool WriteText(int column, const QString& text, bool quoted);
  bool WriteInt(int column, int value);
  bool WriteFloat(int column, float value);
  void WriteRecord();
  // The line WriteRecord would write (with its line feed); empties the cells like it.
  QString TakeRecordLine();

  int GetLastError() const { return m_lastError; }
  int GetColumnCount() const { return m_columnCount; }
  int GetRowCounter() const { return m_rowCounter; }
  int CellCount() const { return m_cellsRead; }  // cells in the row read last
  const COXDataArray& Columns() const { return m_columns; }
  void SetQuote(int column, int quote);
  CsvFileStream& Stream() { return m_stream; }

  // Whether a text is written plain or needs the string delimiter around it.
  bool NeedsQuotes(const QString& text) const;
  static QString FormatFloat(float value);

 private:
  void StoreCell(int& index, QString& text, QString& pending);

  int m_columnCount = 0;
  COXDataArray m_columns;
  int m_lastError = kCsvNoError;
  QChar m_fieldDelimiter = u',';
  QChar m_stringDelimiter = u'"';
  int64_t m_savedPosition = 0;
  int64_t m_nextRowPosition = kCsvFirstRow;
  int64_t m_currentRowOffset = kCsvFirstRow;
  int m_rowCounter = -2;
  int64_t m_fileSize = 0;
  int m_cellsRead = 0;
  CsvFileStream& m_stream;
  int m_handle = -1;
};

// White space as the reader drops it around unquoted cells; the writer quotes a text that
// begins or ends with it, so every text comes back as it went in.
inline bool IsCsvSpace(QChar c) { return c.isSpace(); }
