#include "log/OXCsvFile.h"

#include <charconv>
#include <cmath>
#include <limits>
#include <locale.h>
#include <stdlib.h>

#include "log/CsvFileStream.h"

namespace {

// Numbers in the file are C-locale text whatever the user's language.
locale_t CLocale() {
  static locale_t loc = newlocale(LC_ALL_MASK, "C", locale_t(0));
  return loc;
}

constexpr int kMaxNumberText = 19;

}  // namespace

QString CsvErrorText(int code) {
  switch (code) {
    case kCsvNoError: return QStringLiteral("No Error");
    case kCsvBadColumnIndex: return QStringLiteral("Invalid column index was specified");
    case kCsvBadColumnName: return QStringLiteral("Invalid column name was specified");
    case kCsvBadNumber: return QStringLiteral("Column contained an invalid numeric value");
    case kCsvDataMismatch: return QStringLiteral("Column data do not match data in set");
    case kCsvLineTooLong: return QStringLiteral("Line was too long");
    case kCsvTooManyRecords: return QStringLiteral("Line contained too many records");
    default: return {};
  }
}

COXCsvFile::COXCsvFile(CsvFileStream& stream) : m_stream(stream) {}

void COXCsvFile::SetColumnNames(const QStringList& names) {
  m_lastError = kCsvNoError;
  m_columnCount = int(names.size());
  m_columns.assign(names.size(), COXColumnData{});
  for (qsizetype i = 0; i < names.size(); ++i) m_columns[i].m_name = names[i];
}

void COXCsvFile::SetColumnNames(const char* const* names) {
  QStringList list;
  for (; names && *names; ++names) list << QString::fromUtf8(*names);
  SetColumnNames(list);
}

void COXCsvFile::SetQuote(int column, int quote) {
  if (column >= 0 && column < int(m_columns.size())) m_columns[column].m_quote = quote;
}

void COXCsvFile::WriteHeaderRow() {
  m_lastError = kCsvNoError;
  for (int i = 0; i < m_columnCount; ++i) WriteText(i, m_columns[i].m_name, true);
  WriteRecord();
}

bool COXCsvFile::ReadHeaderRow(int expected) {
  m_handle = m_stream.Handle();
  if (expected < 0) expected = 0;
  m_columns.resize(expected);
  m_columnCount = expected;
  if (!ReadRecord(false) && m_lastError != kCsvTooManyRecords) return false;
  if (int(m_columns.size()) > m_columnCount) m_columnCount = int(m_columns.size());
  for (COXColumnData& c : m_columns) {
    c.m_name = std::move(c.m_data);
    c.m_data.clear();
  }
  return m_columnCount == expected;
}

void COXCsvFile::ResetRowTracking() {
  m_nextRowPosition = kCsvFirstRow;
  m_currentRowOffset = kCsvFirstRow;
  m_rowCounter = -1;
  m_fileSize = 0;
}

void COXCsvFile::StoreCell(int& index, QString& text, QString& pending) {
  if (index == m_columnCount) m_lastError = kCsvTooManyRecords;
  if (index >= int(m_columns.size())) {
    m_columns.emplace_back();
    m_columnCount = index + 1;
  }
  m_columns[index].m_data = text;
  ++index;
  ++m_cellsRead;
  text.clear();
  pending.clear();
}

bool COXCsvFile::ReadRecord(bool trackRow) {
  m_lastError = kCsvNoError;
  m_cellsRead = 0;
  for (COXColumnData& c : m_columns) c.m_data.clear();

  QString line;
  if (!m_stream.ReadString(line)) return false;
  const int64_t start = m_stream.LineStart();
  line += u'\n';
  ++m_rowCounter;

  int index = 0;
  QString text, pending;
  qsizetype i = 0;
  bool finished = false;
  while (!finished && i < line.size()) {
    const QChar ch = line[i++];
    if (ch == m_stringDelimiter) {
      text += pending;
      pending.clear();
      for (;;) {
        if (i >= line.size()) {
          // A line feed inside quotes: the cell goes on in the next line.
          if (!m_stream.ReadString(line)) {
            m_lastError = kCsvLineTooLong;
            finished = true;
            break;
          }
          line += u'\n';
          i = 0;
        }
        const QChar q = line[i++];
        if (q == m_stringDelimiter) {
          if (i < line.size() && line[i] == m_stringDelimiter) {
            text += q;
            ++i;
          } else {
            break;
          }
        } else {
          text += q;
        }
      }
    } else if (ch == u'\n') {
      StoreCell(index, text, pending);
      finished = true;
    } else if (ch == m_fieldDelimiter) {
      StoreCell(index, text, pending);
    } else if (IsCsvSpace(ch)) {
      if (!text.isEmpty()) pending += ch;
    } else {
      text += pending;
      pending.clear();
      text += ch;
    }
  }
  if (!text.isEmpty()) StoreCell(index, text, pending);

  // The stream knows the byte offsets of its lines, so the tracker needs no walk of its own.
  if (trackRow) {
    m_savedPosition = m_stream.Tell();
    m_currentRowOffset = start;
    m_nextRowPosition = m_savedPosition;
    m_fileSize = m_stream.Size();
  }
  return m_lastError == kCsvNoError;
}

int COXCsvFile::FindColumn(const QString& name) {
  for (int i = 0; i < int(m_columns.size()); ++i)
    if (m_columns[i].m_name.compare(name, Qt::CaseInsensitive) == 0) return i;
  m_lastError = kCsvBadColumnName;
  return -1;
}

bool COXCsvFile::ReadText(int column, QString& out) {
  if (column < 0 || column >= int(m_columns.size())) {
    m_lastError = kCsvBadColumnIndex;
    out.clear();
    return false;
  }
  out = m_columns[column].m_data;
  return true;
}

bool COXCsvFile::ReadInt(int column, int& out) {
  out = 0;
  QString text;
  if (!ReadText(column, text)) return false;
  qsizetype i = 0;
  while (i < text.size() && IsCsvSpace(text[i])) ++i;
  bool negative = false;
  if (i < text.size() && (text[i] == u'-' || text[i] == u'+')) negative = text[i++] == u'-';
  // Accumulate in 64 bits; anything past the 32-bit range is out of range anyway.
  int64_t value = 0;
  bool overflow = false;
  for (; i < text.size() && text[i] >= u'0' && text[i] <= u'9'; ++i) {
    if (value > (std::numeric_limits<int64_t>::max() - 9) / 10) {
      overflow = true;
      continue;
    }
    value = value * 10 + (text[i].unicode() - u'0');
  }
  if (negative) value = -value;
  if (overflow || value < std::numeric_limits<int32_t>::min() || value > std::numeric_limits<int32_t>::max()) {
    m_lastError = kCsvBadNumber;
    return false;
  }
  out = int(value);
  return true;
}

bool COXCsvFile::ReadFloat(int column, float& out) {
  out = 0;
  QString text;
  if (!ReadText(column, text)) return false;
  const QByteArray utf8 = text.toUtf8();
  const double value = strtod_l(utf8.constData(), nullptr, CLocale());
  if (std::isnan(value) || std::fabs(value) > double(std::numeric_limits<float>::max())) {
    m_lastError = kCsvBadNumber;
    return false;
  }
  out = float(value);
  return true;
}

bool COXCsvFile::ReadText(const QString& column, QString& out) {
  int c = FindColumn(column);
  if (c < 0) {
    out.clear();
    return false;
  }
  return ReadText(c, out);
}

bool COXCsvFile::ReadInt(const QString& column, int& out) {
  int c = FindColumn(column);
  if (c < 0) {
    out = 0;
    return false;
  }
  return ReadInt(c, out);
}

bool COXCsvFile::ReadFloat(const QString& column, float& out) {
  int c = FindColumn(column);
  if (c < 0) {
    out = 0;
    return false;
  }
  return ReadFloat(c, out);
}

bool COXCsvFile::NeedsQuotes(const QString& text) const {
  if (text.isEmpty()) return false;
  if (IsCsvSpace(text.front()) || IsCsvSpace(text.back())) return true;
  for (QChar c : text)
    if (c == m_fieldDelimiter || c == m_stringDelimiter || c == u'\r' || c == u'\n') return true;
  return false;
}

bool COXCsvFile::WriteText(int column, const QString& text) {
  const bool quoted = column >= 0 && column < int(m_columns.size()) && m_columns[column].m_quote != 0;
  return WriteText(column, text, quoted);
}

bool COXCsvFile::WriteText(int column, const QString& text, bool quoted) {
  m_lastError = kCsvNoError;
  if (column < 0 || column >= m_columnCount || column >= int(m_columns.size())) {
    m_lastError = kCsvBadColumnIndex;
    return false;
  }
  COXColumnData& c = m_columns[column];
  if (!quoted && !NeedsQuotes(text)) {
    c.m_data = text;
    return true;
  }
  QString q;
  q.reserve(text.size() + 2);
  q += m_stringDelimiter;
  for (QChar ch : text) {
    if (ch == m_stringDelimiter) q += ch;
    q += ch;
  }
  q += m_stringDelimiter;
  c.m_data = q;
  c.m_type = kCsvTypeString;
  return true;
}

bool COXCsvFile::WriteInt(int column, int value) {
  if (column >= 0 && column < int(m_columns.size())) m_columns[column].m_type = kCsvTypeInt;
  return WriteText(column, QString::number(value));
}

QString COXCsvFile::FormatFloat(float value) {
  char buf[64];
  auto r = std::to_chars(buf, buf + sizeof buf, double(value), std::chars_format::fixed, 6);
  int len = r.ec == std::errc() ? int(r.ptr - buf) : 0;
  return QString::fromLatin1(buf, std::min(len, kMaxNumberText));
}

bool COXCsvFile::WriteFloat(int column, float value) {
  if (column >= 0 && column < int(m_columns.size())) m_columns[column].m_type = kCsvTypeFloat;
  return WriteText(column, FormatFloat(value));
}

QString COXCsvFile::TakeRecordLine() {
  QString line;
  for (int i = 0; i < int(m_columns.size()); ++i) {
    COXColumnData& c = m_columns[i];
    if (!c.m_data.isEmpty() && (c.m_type == kCsvTypeFloat || c.m_type == kCsvTypeDouble) &&
        (c.m_data.contains(m_fieldDelimiter) || c.m_data.contains(m_stringDelimiter))) {
      const int type = c.m_type;
      WriteText(i, c.m_data, true);
      c.m_type = type;
    }
    line += c.m_data;
    if (i + 1 < int(m_columns.size())) line += m_fieldDelimiter;
    c.m_data.clear();
  }
  line += u'\n';
  return line;
}

void COXCsvFile::WriteRecord() { m_stream.WriteString(TakeRecordLine()); }
