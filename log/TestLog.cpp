#include "log/TestLog.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <algorithm>
#include <cstring>
#include <ctime>
#include <sys/stat.h>

#include "app/FileErrors.h"
#include "app/Session.h"
#include "app/Settings.h"
#include "app/Text.h"
#include "log/CsvFileStream.h"
#include "log/OXCsvFile.h"

namespace {

enum Column {
  kFileName = 0,
  kYear = 1,
  kDayOfWeek = 7,
  kGainLeft = 8,
  kWavLeft = 12,
  kWavPikLeft = 14,
};

const char* const kTimeColumns[] = {"Year", "Month", "Day", "Hour", "Minute", "Second", "DayOfWeek"};

// The seven local-time fields of a file's modification time, in column order.
struct Stamp {
  int field[7] = {};
};

bool StampOf(const QString& path, Stamp& stamp) {
  struct stat st {};
  if (::stat(QFile::encodeName(path).constData(), &st) != 0) return false;
  std::tm t{};
  const time_t mtime = st.st_mtime;
  if (!localtime_r(&mtime, &t)) return false;
  stamp.field[0] = t.tm_year + 1900;
  stamp.field[1] = t.tm_mon + 1;
  stamp.field[2] = t.tm_mday;
  stamp.field[3] = t.tm_hour;
  stamp.field[4] = t.tm_min;
  stamp.field[5] = t.tm_sec;
  stamp.field[6] = t.tm_wday + 1;  // 1 = Sunday
  return true;
}

// The header as it stands from byte 3 to byte 225.
QByteArray HeaderLine() {
  QByteArray h;
  for (const QString& name : LogColumnNames()) {
    if (!h.isEmpty()) h += ',';
    h += '"' + name.toLatin1() + '"';
  }
  return h + "\r\n";
}

bool IsFiller(const QString& line) {
  if (line.isEmpty()) return false;
  for (QChar c : line)
    if (c != u' ' && c != u'\t') return false;
  return true;
}

constexpr int64_t kFourGb = int64_t(1) << 32;

}  // namespace

const QStringList& LogColumnNames() {
  static const QStringList names = {
      "FileName",   "Year",       "Month",          "Day",
      "Hour",       "Minute",     "Second",         "DayOfWeek",
      "GainLeft",   "GainRight",  "NoClippingLeft", "NoClippingRight",
      "WavLeft",    "WavRight",   "WavPikLeft",     "WavPikRight",
      "WavPikNoClippingLeft",     "WavPikNoClippingRight"};
  return names;
}

TestLog::TestLog(Session& s) : m_s(s) {}

TestLog::~TestLog() { CloseLog(); }

QString TestLog::LogPath() const {
  return m_s.m_logPath.isEmpty() ? Settings::PatchLog() : m_s.m_logPath;
}

void TestLog::ReportError(int err) {
  QString text;
  if (err != 0) text = SystemErrorText(ErrorCodeFromErrno(err, LogPath()));
  if (text.isEmpty()) text = Tonvane::tr("Sorry, but an error of opening has occurred the file \"TestLog.csv\".");
  m_s.m_prompt.Message(text, PromptIcon::Warning);
}

bool TestLog::OpenLog() {
  CloseLog();
  m_stream = std::make_unique<CsvFileStream>();
  if (!m_stream->Open(LogPath(), CsvFileStream::kUpdate)) {
    m_stream.reset();
    return false;
  }
  m_csv = std::make_unique<COXCsvFile>(*m_stream);
  m_open = true;
  if (!m_s.m_useDatabase) return true;

  m_csv->ReadHeaderRow(14);
  if (m_stream->LastErrno() != 0) {
    ReportError(m_stream->LastErrno());
    CloseLog();
    return false;
  }
  // Rows are found from byte 226 and by column name, so only a file that starts with our
  // own header is used; anything else is left as it is and the test goes on without it.
  bool ours = m_csv->GetColumnCount() == kLogColumns &&
              m_stream->ReadRaw(0, kCsvFirstRow) == QByteArray(CsvFileStream::kBom, 3) + HeaderLine();
  for (int i = 0; ours && i < kLogColumns; ++i) ours = m_csv->FindColumn(LogColumnNames()[i]) == i;
  if (!ours) {
    CloseLog();
    return false;
  }
  m_headerRead = true;
  return true;
}

void TestLog::CloseLog() {
  if (m_stream) m_stream->Close();
  m_csv.reset();
  m_stream.reset();
  m_open = false;
  m_headerRead = false;
  m_indexed = false;
  m_lookups = 0;
  m_missPath.clear();
  m_index.clear();
  m_rowPath.clear();
  m_rowOffset = -1;
  m_rowFresh = false;
}

// Records are walked from byte 226 in file order. A line counts as a record when it has
// exactly 18 cells and ends in a line feed: filler lines, junk, rows with too many or too
// few cells and a last line cut short are passed over, so one bad line neither hides the
// records behind it nor gives a row with missing cells. Plain lines are split here, on the
// bytes; lines with a string delimiter go through the CSV engine itself, since a quoted cell
// may hold commas and line feeds. `visit(offset, key)` gets each record's key path and
// returns true to stop; a plain line's key comes as its first cell's bytes, untrimmed, so
// that a look-up can compare bytes without making a string of every key, and
// `visit.Wants(bytes, size)` may pass over such a line before its cells are counted.
template <class Visit>
bool TestLog::WalkRecords(Visit& visit) {
  COXCsvFile scratch(*m_stream);
  scratch.SetColumnNames(LogColumnNames());
  constexpr int64_t kChunk = 1 << 20;

  QByteArray buf;
  int64_t bufAt = kCsvFirstRow;
  int64_t pos = kCsvFirstRow;
  bool eof = false;
  for (;;) {
    if (pos < bufAt || pos > bufAt + buf.size()) {
      buf.clear();
      bufAt = pos;
      eof = false;
    }
    qsizetype off = qsizetype(pos - bufAt);
    const char* nl = static_cast<const char*>(std::memchr(buf.constData() + off, '\n', size_t(buf.size() - off)));
    while (!nl && !eof) {
      buf.remove(0, off);
      bufAt += off;
      off = 0;
      const qsizetype old = buf.size();
      const int64_t got = m_stream->ReadRawInto(buf, bufAt + old, kChunk);
      if (got < 0) return false;
      if (got < kChunk) eof = true;
      nl = static_cast<const char*>(std::memchr(buf.constData() + old, '\n', size_t(buf.size() - old)));
    }
    if (!nl) break;  // the end, or a last line without a line feed
    const char* begin = buf.constData() + off;
    qsizetype len = nl - begin;
    const int64_t next = pos + len + 1;
    if (len > 0 && begin[len - 1] == '\r') --len;

    if (std::memchr(begin, '"', size_t(len))) {
      if (m_stream->Seek(pos, CsvFileStream::kBegin) < 0) return false;
      scratch.ResetRowTracking();
      const bool ok = scratch.ReadRecord(true);
      if (m_stream->LastErrno() != 0) return false;
      const int64_t after = scratch.GetNextRowPosition();
      if (ok && scratch.CellCount() == kLogColumns && m_stream->LineTerminator() > 0 && after > pos) {
        if (visit(pos, RecordKey{nullptr, 0, &scratch.Columns()[kFileName].m_data})) return true;
        pos = after;
      } else {
        // A stray quote would pair with the next one and hide the lines between them:
        // whatever is not a record is passed over one line at a time.
        pos = next;
      }
      continue;
    }
    const char* comma = static_cast<const char*>(std::memchr(begin, ',', size_t(len)));
    if (comma && visit.Wants(begin, comma - begin) && std::count(comma, begin + len, ',') == kLogColumns - 1 &&
        visit(pos, RecordKey{begin, comma - begin, nullptr}))
      return true;
    pos = next;
  }
  return true;
}

namespace {

struct IndexVisitor {
  QHash<QString, int64_t>& index;
  bool Wants(const char*, qsizetype) const { return true; }
  template <class Key>
  bool operator()(int64_t pos, const Key& k) {
    const QString key = k.text ? *k.text : QString::fromUtf8(k.bytes, k.size).trimmed();
    if (!index.contains(key)) index.insert(key, pos);
    return false;
  }
};

}  // namespace

bool TestLog::BuildIndex() {
  m_index.clear();
  IndexVisitor v{m_index};
  m_indexed = WalkRecords(v);
  return m_indexed;
}

namespace {

bool IsAsciiSpace(char c) { return c == ' ' || (c >= '\t' && c <= '\r'); }

}  // namespace

namespace {

// Finds the first record of one key path by its bytes.
struct ScanVisitor {
  explicit ScanVisitor(const QString& path)
      : path(path),
        want(path.toUtf8()),
        keyHasMark(path.contains(QChar(QChar::ReplacementCharacter))),
        keyTrimmed(path == path.trimmed()) {}

  // An unquoted cell loses its white space at both ends, so a path with some never
  // matches one. Bytes that differ may still read as the same text: white space beyond
  // ASCII around the cell, or bytes that are not UTF-8 against a replacement mark.
  bool Wants(const char* bytes, qsizetype size) const {
    if (!keyTrimmed) return false;
    const char* b = bytes;
    const char* e = bytes + size;
    while (b < e && IsAsciiSpace(*b)) ++b;
    while (e > b && IsAsciiSpace(e[-1])) --e;
    if (e - b == want.size() && std::memcmp(b, want.constData(), size_t(want.size())) == 0) return true;
    if (e == b || !(keyHasMark || ((uchar(*b) >= 0x80 || uchar(e[-1]) >= 0x80) && e - b > want.size())))
      return false;
    return QString::fromUtf8(bytes, size).trimmed() == path;
  }
  template <class Key>
  bool operator()(int64_t pos, const Key& k) {
    if (k.text && *k.text != path) return false;
    found = pos;
    return true;
  }

  const QString& path;
  const QByteArray want;
  const bool keyHasMark;
  const bool keyTrimmed;
  int64_t found = -1;
};

}  // namespace

// The first record of `path`, by one walk that stops there; -1 when there is none.
bool TestLog::ScanFor(const QString& path, int64_t& found) {
  ScanVisitor v(path);
  const bool ok = WalkRecords(v);
  found = v.found;
  return ok;
}

// Reads the record at `offset` and notes how much room a rewrite has there: the row, and
// the content of a filler line of blanks right behind it (its line end stays untouched).
bool TestLog::LoadRow(int64_t offset, const QString& path) {
  m_rowPath.clear();
  m_rowOffset = -1;
  m_rowFresh = false;
  if (m_stream->Seek(offset, CsvFileStream::kBegin) < 0) return false;
  m_csv->ResetRowTracking();
  if (!m_csv->ReadRecord(true) || m_csv->CellCount() != kLogColumns) return false;
  QString name;
  m_csv->ReadText(kFileName, name);
  if (name != path) return false;
  m_rowOffset = m_csv->GetRowOffset();
  m_rowBytes = m_csv->GetNextRowPosition() - m_rowOffset;
  m_rowRoom = m_rowBytes;
  const int64_t rowEnd = m_csv->GetNextRowPosition();
  QString filler;
  if (m_stream->ReadString(filler) && m_stream->LineStart() == rowEnd && m_stream->LineTerminator() > 0 &&
      IsFiller(filler))
    m_rowRoom += filler.size();
  m_rowPath = path;
  return true;
}

RowState TestLog::FindRow(const QString& path) {
  m_missPath.clear();
  m_rowPath.clear();
  m_rowOffset = -1;
  m_rowFresh = false;
  m_carried = LevelResult{};
  if (!m_open || !m_headerRead) return RowState::Miss;
  // One look-up walks the file once and stops at the row; a second one in the same open (a
  // batch run) builds an index of every key, so each later file costs no walk at all.
  int64_t offset = -1;
  bool ok;
  if (m_indexed || m_lookups > 0) {
    ok = m_indexed || BuildIndex();
    if (ok) offset = m_index.value(path, -1);
  } else {
    ok = ScanFor(path, offset);
  }
  ++m_lookups;
  if (!ok) {
    ReportError(m_stream->LastErrno());
    return RowState::Miss;
  }
  if (offset < 0) {
    m_missPath = path;
    return RowState::Miss;
  }
  if (!LoadRow(offset, path)) {
    if (m_stream->LastErrno() != 0) ReportError(m_stream->LastErrno());
    return RowState::Miss;
  }
  Stamp stored, now;
  for (int i = 0; i < 7; ++i) m_csv->ReadInt(QString::fromLatin1(kTimeColumns[i]), stored.field[i]);
  // A file that cannot be looked at has no stamp to match.
  if (!StampOf(path, now)) return RowState::Stale;
  for (int i = 0; i < 7; ++i)
    if (stored.field[i] != now.field[i]) return RowState::Stale;
  m_rowFresh = true;
  return RowState::Fresh;
}

bool TestLog::ReadGroups(LevelResult& v, bool gain, bool wav, bool wavPik) {
  bool ok = true;
  if (gain) {
    ok &= m_csv->ReadFloat(QStringLiteral("GainLeft"), v.GainLeft);
    ok &= m_csv->ReadFloat(QStringLiteral("GainRight"), v.GainRight);
    ok &= m_csv->ReadFloat(QStringLiteral("NoClippingLeft"), v.NoClippingLeft);
    ok &= m_csv->ReadFloat(QStringLiteral("NoClippingRight"), v.NoClippingRight);
  }
  if (wav) {
    ok &= m_csv->ReadFloat(QStringLiteral("WavLeft"), v.WavLeft);
    ok &= m_csv->ReadFloat(QStringLiteral("WavRight"), v.WavRight);
  }
  if (wavPik) {
    ok &= m_csv->ReadFloat(QStringLiteral("WavPikLeft"), v.WavPikLeft);
    ok &= m_csv->ReadFloat(QStringLiteral("WavPikRight"), v.WavPikRight);
    ok &= m_csv->ReadFloat(QStringLiteral("WavPikNoClippingLeft"), v.WavPikNoClippingLeft);
    ok &= m_csv->ReadFloat(QStringLiteral("WavPikNoClippingRight"), v.WavPikNoClippingRight);
  }
  return ok;
}

ReadOutcome TestLog::ReadResult(LogTest test, LevelResult& values) {
  values = LevelResult{};
  m_carried = LevelResult{};
  if (!m_rowFresh) return ReadOutcome::Partial;
  if (test == LogTest::Gain && m_s.m_sourceKind == kKindMp3) {
    ReadGroups(values, true, false, false);
    return ReadOutcome::Hit;
  }
  LevelResult v;
  switch (test) {
    case LogTest::Wav:
      ReadGroups(v, false, true, false);
      if (!(v.WavLeft == kNotMeasuredPercent && v.WavRight == kNotMeasuredPercent)) break;
      ReadGroups(m_carried, true, false, true);
      values = m_carried;
      return ReadOutcome::Partial;
    case LogTest::WavPik:
      ReadGroups(v, false, false, true);
      if (!(v.WavPikLeft == kNotMeasured && v.WavPikRight == kNotMeasured &&
            v.WavPikNoClippingLeft == kNotMeasured && v.WavPikNoClippingRight == kNotMeasured))
        break;
      ReadGroups(m_carried, true, true, false);
      values = m_carried;
      return ReadOutcome::Partial;
    case LogTest::Gain:
      ReadGroups(v, true, false, false);
      if (!(v.GainLeft == kNotMeasured && v.GainRight == kNotMeasured && v.NoClippingLeft == kNotMeasured &&
            v.NoClippingRight == kNotMeasured))
        break;
      ReadGroups(m_carried, false, true, true);
      values = m_carried;
      return ReadOutcome::Partial;
  }
  values = v;
  return ReadOutcome::Hit;
}

// Overwrites the record found last with blanks, line ends kept, so that it reads as filler.
bool TestLog::BlankRecord() {
  QByteArray bytes = m_stream->ReadRaw(m_rowOffset, m_rowBytes);
  if (bytes.size() != m_rowBytes) return false;
  for (char& c : bytes)
    if (c != '\r' && c != '\n') c = ' ';
  if (m_stream->Seek(m_rowOffset, CsvFileStream::kBegin) < 0) return false;
  m_stream->WriteRaw(bytes);
  return m_stream->FlushCommitted();
}

bool TestLog::AppendRecord(const QString& line, const QString& path) {
  int64_t end = m_stream->SeekToEnd();
  if (end < 0) return false;
  // A last line cut short (edited by hand) is closed first, so the new row starts a line.
  if (end > 0 && m_stream->ReadRaw(end - 1, 1) != "\n") {
    m_stream->Seek(end, CsvFileStream::kBegin);
    m_stream->WriteRaw("\r\n");
    if (!m_stream->Flush()) return false;
    end += 2;
  }
  if (m_stream->Seek(end, CsvFileStream::kBegin) < 0) return false;
  m_stream->WriteString(line);
  m_stream->WriteString(QString(kLogFillerAppend, u' ') + u'\n');
  if (!m_stream->FlushCommitted()) return false;
  if (m_indexed) m_index.insert(path, end);
  return true;
}

bool TestLog::WriteRow(const QString& path, LogTest test, RowState outcome, const LevelResult& values) {
  if (!m_open || !m_headerRead) return false;
  Stamp stamp;
  if (!StampOf(path, stamp)) return false;
  // Where the path has a record, the found row tells it; else one walk finds it.
  int64_t existing = -1;
  if (m_indexed) {
    existing = m_index.value(path, -1);
  } else if (m_rowPath == path && m_rowOffset >= 0) {
    existing = m_rowOffset;
  } else if (m_missPath == path) {
    existing = -1;
  } else if (!ScanFor(path, existing)) {
    ReportError(m_stream->LastErrno());
    return false;
  }

  const bool mp3 = m_s.m_sourceKind == kKindMp3;
  LevelResult row;  // the no-result marks
  // After a Partial the other groups stay as they were: as ReadResult carried them in this
  // open, or, when the row was read in an earlier open, as the caller hands them back.
  if (outcome == RowState::Fresh) row = m_rowFresh && m_rowPath == path ? m_carried : values;
  switch (test) {
    case LogTest::Gain:
      row.GainLeft = values.GainLeft;
      row.GainRight = values.GainRight;
      row.NoClippingLeft = values.NoClippingLeft;
      row.NoClippingRight = values.NoClippingRight;
      break;
    case LogTest::Wav:
      row.WavLeft = values.WavLeft;
      row.WavRight = values.WavRight;
      break;
    case LogTest::WavPik:
      row.WavPikLeft = values.WavPikLeft;
      row.WavPikRight = values.WavPikRight;
      row.WavPikNoClippingLeft = values.WavPikNoClippingLeft;
      row.WavPikNoClippingRight = values.WavPikNoClippingRight;
      break;
  }

  COXCsvFile& csv = *m_csv;
  csv.WriteText(kFileName, path);
  for (int i = 0; i < 7; ++i) csv.WriteInt(kYear + i, stamp.field[i]);
  const float cells[10] = {row.GainLeft,   row.GainRight,   row.NoClippingLeft,       row.NoClippingRight,
                           row.WavLeft,    row.WavRight,    row.WavPikLeft,           row.WavPikRight,
                           row.WavPikNoClippingLeft,        row.WavPikNoClippingRight};
  for (int i = 0; i < 10; ++i) {
    if (mp3 && kGainLeft + i >= kWavLeft)
      csv.WriteInt(kGainLeft + i, 0);
    else
      csv.WriteFloat(kGainLeft + i, cells[i]);
  }
  const QString line = csv.TakeRecordLine();

  // Where the path has a record already, the new row takes its place when it fits in the
  // old row and its filler; else the old record is blanked and the new one appended, so a
  // write never reaches into the next record.
  bool ok;
  if (existing < 0) {
    ok = AppendRecord(line, path);
  } else {
    const int64_t offset = existing;
    if (m_rowPath != path || m_rowOffset != offset) LoadRow(offset, path);
    if (m_rowOffset != offset) {
      ok = false;
    } else if (CsvFileStream::Encode(line).size() + kLogFillerRewrite <= m_rowRoom) {
      ok = m_stream->Seek(offset, CsvFileStream::kBegin) >= 0;
      m_stream->WriteString(line);
      m_stream->WriteString(QString(kLogFillerRewrite, u' '));
      ok = m_stream->FlushCommitted() && ok;
    } else {
      ok = BlankRecord() && AppendRecord(line, path);
    }
  }
  m_rowFresh = false;
  m_rowPath.clear();
  m_missPath.clear();
  if (!ok) ReportError(m_stream->LastErrno());
  return ok;
}

bool TestLog::LookUpForList(const QString& path, LevelResult& values) {
  values = LevelResult{};
  if (!m_s.m_useDatabase) return false;
  const bool openedHere = !m_open;
  if (openedHere && !OpenLog()) return false;
  bool found = FindRow(path) == RowState::Fresh;
  if (found) ReadGroups(values, true, true, true);
  m_rowFresh = false;
  if (openedHere) CloseLog();
  return found;
}

bool CreateEmptyLog(const QString& path) {
  CsvFileStream stream;
  if (!stream.Open(path, CsvFileStream::kCreate)) return false;
  COXCsvFile csv(stream);
  csv.SetColumnNames(LogColumnNames());
  csv.WriteHeaderRow();
  return stream.Close();
}

bool ApplyLogCap(const QString& path, int capMb) {
  const QFileInfo fi(path);
  if (!fi.isFile()) return false;
  const int64_t size = fi.size();
  if (size > int64_t(capMb) * 1048576 || size >= kFourGb) return CreateEmptyLog(path);
  return false;
}

namespace {

// A log cut short while its header was written holds no record: it is made anew.
void RepairHeaderOnly(const QString& path) {
  QFile f(path);
  if (f.size() >= kCsvFirstRow || !f.open(QIODevice::ReadOnly)) return;
  const QByteArray head = f.readAll();
  f.close();
  if ((QByteArray(CsvFileStream::kBom, 3) + HeaderLine()).startsWith(head)) CreateEmptyLog(path);
}

void SettleLog(Session& s, const QString& path, const QString& createAt) {
  int cap = Settings::GetInt(QStringLiteral("DataBaseSize"), 0);
  if (cap <= 0) {
    cap = 1;
    Settings::SetInt(QStringLiteral("DataBaseSize"), cap);
  }
  s.m_dataBaseSizeMb = cap;
  s.m_logPath = path;
  if (QFileInfo::exists(path)) {
    s.m_logAvailable = 1;
    RepairHeaderOnly(path);
    ApplyLogCap(path, cap);
    return;
  }
  s.m_logAvailable = 0;
  if (createAt.isEmpty()) return;
  QDir().mkpath(QFileInfo(createAt).absolutePath());
  if (CreateEmptyLog(createAt)) {
    s.m_logPath = createAt;
    s.m_logAvailable = 1;
  }
}

}  // namespace

void CheckLogAtStart(Session& s) {
  const QString install = Settings::InstallPath();
  QString patch = Settings::GetString(QStringLiteral("PatchLog"));
  if (patch.isEmpty()) {
    patch = install + QStringLiteral("/TestLog.csv");
    Settings::SetString(QStringLiteral("PatchLog"), patch);
  }
  const QString createAt = install.isEmpty() ? QString() : install + QStringLiteral("/TestLog.csv");
  SettleLog(s, patch, createAt);
  if (s.m_logAvailable && s.m_logPath != patch) Settings::SetString(QStringLiteral("PatchLog"), s.m_logPath);
}

void CheckLogAt(Session& s, const QString& path) { SettleLog(s, path, path); }

void ClearLog(Session& s) {
  const QString path = s.m_logPath.isEmpty() ? Settings::PatchLog() : s.m_logPath;
  if (CreateEmptyLog(path))
    s.m_prompt.Message(Tonvane::tr("The database has been successfully cleared"), PromptIcon::Information);
}
