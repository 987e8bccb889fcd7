#include "batch/BatchList.h"

#include <QFileInfo>
#include <algorithm>

#include "app/Session.h"
#include "app/Text.h"
#include "batch/NaturalOrder.h"

std::list<BatchFileInfo> g_batchFiles;

namespace {

using C = BatchColumn;

std::vector<BatchColumnSpec> Common() {
  return {{C::Number, QT_TRANSLATE_NOOP("Tonvane", "\u2116"), 40, true},
          {C::FileName, QT_TRANSLATE_NOOP("Tonvane", "File Name"), 213, false},
          {C::Size, QT_TRANSLATE_NOOP("Tonvane", "Size"), 70, false},
          {C::VolumeLevel, QT_TRANSLATE_NOOP("Tonvane", "Volume Level"), 170, false},
          {C::Gain, QT_TRANSLATE_NOOP("Tonvane", "Gain"), 173, false}};
}

std::vector<BatchColumnSpec> With(std::vector<BatchColumnSpec> tail) {
  std::vector<BatchColumnSpec> out = Common();
  out.insert(out.end(), tail.begin(), tail.end());
  return out;
}

const BatchColumnSpec kErrors{C::Errors, QT_TRANSLATE_NOOP("Tonvane", "Errors"), 70, true};
const BatchColumnSpec kDuration{C::Duration, QT_TRANSLATE_NOOP("Tonvane", "Duration"), 70, true};
const BatchColumnSpec kRate{C::SampleRate, QT_TRANSLATE_NOOP("Tonvane", "Sample Rate"), 90, true};
const BatchColumnSpec kChannels{C::Channels, QT_TRANSLATE_NOOP("Tonvane", "Channels"), 70, true};
const BatchColumnSpec kFormat{C::AudioFormat, QT_TRANSLATE_NOOP("Tonvane", "Audio Format"), 90, false};
const BatchColumnSpec kStatus{C::Status, QT_TRANSLATE_NOOP("Tonvane", "Status"), 90, true};
const BatchColumnSpec kCoding{C::CodingMethod, QT_TRANSLATE_NOOP("Tonvane", "Coding Method"), 60, false};
const BatchColumnSpec kClipping{C::Clipping, QT_TRANSLATE_NOOP("Tonvane", "Clipping"), 78, true};
const BatchColumnSpec kMode{C::Mode, QT_TRANSLATE_NOOP("Tonvane", "Mode"), 60, true};

}  // namespace

const std::vector<BatchColumnSpec>& BatchColumns(int batchKind) {
  static const std::vector<BatchColumnSpec> mp3 =
      With({kClipping, kErrors, kDuration, kRate,
            {C::BitRate, QT_TRANSLATE_NOOP("Tonvane", "Bit Rate"), 70, true}, kMode, kCoding, kFormat, kStatus});
  static const std::vector<BatchColumnSpec> pcm =
      With({kErrors, kDuration, kRate, {C::Bits, QT_TRANSLATE_NOOP("Tonvane", "Bits"), 36, true}, kChannels,
            kFormat, kStatus});
  static const std::vector<BatchColumnSpec> mp4 =
      With({kErrors, kDuration, kRate, {C::BitRate, QT_TRANSLATE_NOOP("Tonvane", "Bit Rate"), 36, true},
            kChannels, {C::Bits, QT_TRANSLATE_NOOP("Tonvane", "Bits"), 90, false}, kFormat, kStatus});
  static const std::vector<BatchColumnSpec> ogg =
      With({kErrors, kDuration, kRate, {C::BitRate, QT_TRANSLATE_NOOP("Tonvane", "Bit Rate"), 70, true},
            kChannels, kCoding, kFormat, kStatus});
  static const std::vector<BatchColumnSpec> any =
      With({kClipping, kErrors, kDuration, kRate, {C::Bits, QT_TRANSLATE_NOOP("Tonvane", "Bits"), 36, true},
            {C::BitRate, QT_TRANSLATE_NOOP("Tonvane", "Bit Rate"), 70, true}, kChannels, kMode, kCoding,
            kFormat, kStatus});
  switch (batchKind) {
    case kKindMp3: return mp3;
    case kKindWav:
    case kKindFlac:
    case kKindApe: return pcm;
    case kKindAac:
    case kKindAlac: return mp4;
    case kKindOgg: return ogg;
    default: return any;
  }
}

QString BatchSizeText(double bytes, bool terabytes) {
  double d = bytes / 1024.0;
  if (d <= 1.0) return QString::asprintf("%3.0f", bytes).trimmed() + Tonvane::tr(" bytes");
  static const char* const units[] = {QT_TRANSLATE_NOOP("Tonvane", " kB"), QT_TRANSLATE_NOOP("Tonvane", " MB"),
                                      QT_TRANSLATE_NOOP("Tonvane", " GB"), QT_TRANSLATE_NOOP("Tonvane", " TB")};
  const int top = terabytes ? 3 : 2;
  int level = 0;
  while (level < top && d / 1024.0 > 1.0) {
    d /= 1024.0;
    ++level;
  }
  const QString number = d == double(uint64_t(d)) ? QString::asprintf("%3.0f", d) : QString::asprintf("%3.2f", d);
  return number.trimmed() + Tonvane::tr(units[level]);
}

QString BatchDurationText(uint64_t ms) {
  if (ms == 0) return {};
  return QString::asprintf("%02llu:%02llu:%02llu", (unsigned long long)(ms / 60000),
                           (unsigned long long)(ms / 1000 % 60), (unsigned long long)(ms / 10 % 100));
}

BatchList::BatchList(int batchKind, std::list<BatchFileInfo>& records, QObject* parent)
    : QAbstractTableModel(parent), m_batchKind(batchKind), m_records(records), m_columns(BatchColumns(batchKind)) {
  m_records.clear();
}

BatchList::~BatchList() { m_records.clear(); }

void BatchList::SetFolder(const QString& folder) {
  QString f = folder;
  while (f.size() > 1 && f.endsWith('/')) f.chop(1);
  if (f == m_folder) return;
  m_folder = f;
  if (!m_rows.empty()) emit dataChanged(index(0, 1), index(FileCount() - 1, 1), {Qt::DisplayRole});
}

int BatchList::rowCount(const QModelIndex& parent) const {
  if (parent.isValid()) return 0;
  return m_rows.empty() ? 0 : FileCount() + 2;
}

int BatchList::columnCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : int(m_columns.size()); }

int BatchList::ColumnOf(BatchColumn id) const {
  for (size_t i = 0; i < m_columns.size(); ++i)
    if (m_columns[i].id == id) return int(i);
  return -1;
}

QString BatchList::FileCell(const Row& r, BatchColumn c) const {
  const BatchFileInfo& f = *r.info;
  const bool mp3 = f.kind == kKindMp3;
  switch (c) {
    case C::Number: return {};  // by position, in data()
    case C::FileName: {
      const QFileInfo fi(f.path);
      return fi.path() == m_folder ? fi.fileName() : f.path;
    }
    case C::Size: return BatchSizeText(double(f.fullSize));
    case C::VolumeLevel: return r.volume.isEmpty() ? Tonvane::tr(" not tested") : r.volume;
    case C::Gain: return r.gain;
    case C::Clipping: return r.clipping;
    case C::Errors: return f.bad ? Tonvane::tr("Yes") : Tonvane::tr("No");
    case C::Duration: return BatchDurationText(f.durationMs);
    case C::SampleRate: return f.sampleRateText;
    case C::Bits: return f.bits && !mp3 ? QString::number(f.bits) : QString();
    case C::BitRate: return f.bitRateText;
    case C::Channels: return f.channels && !mp3 ? QString::number(f.channels) : QString();
    case C::Mode: return f.modeText;
    case C::CodingMethod: return f.codingText;
    case C::AudioFormat: return f.audioFormat;
    case C::Status: return r.tested ? Tonvane::tr(" tested") : Tonvane::tr(" not tested");
  }
  return {};
}

QString BatchList::TotalCell(bool checkedRow, BatchColumn c) const {
  switch (c) {
    case C::Number: return checkedRow ? Tonvane::tr(" Total Checked: ") : Tonvane::tr(" Total:");
    case C::Size: return BatchSizeText(checkedRow ? m_checkedSize : m_totalSize, true);
    case C::Duration: return BatchDurationText(checkedRow ? m_checkedDurationMs : m_totalDurationMs);
    default: return {};
  }
}

QString BatchList::Tip(const Row& r) const {
  const BatchFileInfo& f = *r.info;
  QStringList lines;
  lines << Tonvane::tr("Size: ") + FileCell(r, C::Size) << Tonvane::tr("Sample Rate: ") + f.sampleRateText;
  if (f.kind == kKindMp3) {
    lines << Tonvane::tr("Bits: ") + f.bitRateText << Tonvane::tr("Mode:") + f.modeText;
  } else {
    lines << Tonvane::tr("Bits: ") + FileCell(r, C::Bits) << Tonvane::tr("Channels: ") + FileCell(r, C::Channels)
          << Tonvane::tr("Duration: ") + BatchDurationText(f.durationMs);
  }
  if (!f.error.isEmpty()) lines << f.error;
  return lines.join('\n');
}

QVariant BatchList::data(const QModelIndex& index, int role) const {
  if (!index.isValid() || index.row() >= rowCount() || index.column() >= columnCount()) return {};
  const BatchColumnSpec& spec = m_columns[size_t(index.column())];
  const int row = index.row();
  if (IsTotalRow(row)) {
    const bool checkedRow = row == FileCount() + 1;
    switch (role) {
      case Qt::DisplayRole: return TotalCell(checkedRow, spec.id);
      case ColorRefRole: return uint(checkedRow ? kRowTotalChecked : kRowTotal);
      case BackColorRefRole: return uint(kRowBack);
      case Qt::TextAlignmentRole:
        return int((spec.centred ? Qt::AlignHCenter : Qt::AlignLeft) | Qt::AlignVCenter);
      default: return {};
    }
  }
  const Row& r = m_rows[size_t(row)];
  switch (role) {
    case Qt::DisplayRole:
      return spec.id == C::Number ? QStringLiteral(" %1").arg(row + 1) : FileCell(r, spec.id);
    case Qt::CheckStateRole:
      if (spec.id == C::Number) return r.checked ? Qt::Checked : Qt::Unchecked;
      return {};
    case Qt::ToolTipRole:
      if (spec.id == C::FileName) return Tip(r);
      return {};
    case ColorRefRole: return uint(r.info->bad ? kRowBad : r.color);
    case BackColorRefRole: return uint(kRowBack);
    case PathRole: return r.info->path;
    case Qt::TextAlignmentRole:
      return int((spec.centred ? Qt::AlignHCenter : Qt::AlignLeft) | Qt::AlignVCenter);
    default: return {};
  }
}

bool BatchList::setData(const QModelIndex& index, const QVariant& value, int role) {
  if (role != Qt::CheckStateRole || !index.isValid() || index.row() >= FileCount() ||
      m_columns[size_t(index.column())].id != C::Number)
    return false;
  SetChecked(index.row(), value.toInt() == Qt::Checked);
  return true;
}

QVariant BatchList::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || section < 0 || section >= columnCount()) return {};
  const BatchColumnSpec& spec = m_columns[size_t(section)];
  if (role == Qt::DisplayRole) return Tonvane::tr(spec.heading);
  if (role == DefaultWidthRole) return spec.width;
  if (role == Qt::TextAlignmentRole) return int((spec.centred ? Qt::AlignHCenter : Qt::AlignLeft) | Qt::AlignVCenter);
  return {};
}

Qt::ItemFlags BatchList::flags(const QModelIndex& index) const {
  if (!index.isValid()) return Qt::NoItemFlags;
  Qt::ItemFlags f = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
  if (index.row() < FileCount()) {
    f |= Qt::ItemIsDragEnabled;
    if (m_columns[size_t(index.column())].id == C::Number) f |= Qt::ItemIsUserCheckable;
  }
  return f;
}

const BatchFileInfo* BatchList::Info(int row) const {
  return row >= 0 && row < FileCount() ? m_rows[size_t(row)].info : nullptr;
}

QString BatchList::PathOf(int row) const {
  const BatchFileInfo* f = Info(row);
  return f ? f->path : QString();
}

int BatchList::RowOfPath(const QString& path) const { return m_byPath.value(path, -1); }

void BatchList::AddToTotals(const BatchFileInfo& f, bool checked, int sign) {
  const double size = double(f.fullSize) * sign;
  const int64_t ms = int64_t(f.durationMs) * sign;
  m_totalSize += size;
  m_totalDurationMs = uint64_t(int64_t(m_totalDurationMs) + ms);
  if (checked) {
    m_checkedSize = std::max(0.0, m_checkedSize + size);
    m_checkedDurationMs = uint64_t(std::max<int64_t>(0, int64_t(m_checkedDurationMs) + ms));
  }
  if (checked) m_checkedCount += sign;
  if (m_totalSize < 0) m_totalSize = 0;
}

void BatchList::EmitTotals() {
  if (!m_rows.empty()) emit dataChanged(index(FileCount(), 0), index(FileCount() + 1, columnCount() - 1));
  emit totalsChanged();
}

int BatchList::AddRecord(BatchFileInfo info, const RowLevels* earlier) {
  if (m_byPath.contains(info.path)) return -1;
  m_records.push_back(std::move(info));
  Row r;
  r.info = &m_records.back();
  r.checked = !r.info->bad;
  r.color = r.info->bad ? kRowBad : kRowUntested;
  if (earlier && !r.info->bad) {
    const RowResultTexts t = TextsOfLevels(*earlier, m_showDb, r.info->kind == kKindMp3);
    if (t.shown) {
      r.volume = t.volume;
      r.gain = t.gain;
      r.clipping = t.clipping;
      r.color = t.color;
    }
  }
  const int row = FileCount();
  if (m_rows.empty()) {
    beginInsertRows({}, 0, 2);  // the row and the two totals
  } else {
    beginInsertRows({}, row, row);
  }
  m_rows.push_back(r);
  m_byPath.insert(r.info->path, row);
  AddToTotals(*r.info, r.checked, +1);
  endInsertRows();
  EmitTotals();
  return row;
}

void BatchList::ReindexFrom(int row) {
  for (int i = row; i < FileCount(); ++i) m_byPath[m_rows[size_t(i)].info->path] = i;
}

bool BatchList::removeRows(int row, int count, const QModelIndex& parent) {
  if (parent.isValid() || row < 0 || count <= 0 || row + count > FileCount()) return false;
  const bool all = count == FileCount();
  beginRemoveRows({}, row, all ? row + count + 1 : row + count - 1);
  for (int i = row; i < row + count; ++i) {
    Row& r = m_rows[size_t(i)];
    AddToTotals(*r.info, r.checked, -1);
    m_byPath.remove(r.info->path);
    for (auto it = m_records.begin(); it != m_records.end(); ++it) {
      if (&*it == r.info) {
        m_records.erase(it);
        break;
      }
    }
  }
  m_rows.erase(m_rows.begin() + row, m_rows.begin() + row + count);
  ReindexFrom(row);
  if (m_rows.empty()) {
    m_totalSize = m_checkedSize = 0;
    m_totalDurationMs = m_checkedDurationMs = 0;
    m_checkedCount = 0;
  }
  endRemoveRows();
  // The numbers of the rows behind the removed ones changed.
  if (row < FileCount()) emit dataChanged(index(row, 0), index(FileCount() - 1, 0), {Qt::DisplayRole});
  EmitTotals();
  return true;
}

void BatchList::RemoveAll() {
  beginResetModel();
  m_rows.clear();
  m_byPath.clear();
  m_records.clear();
  m_totalSize = m_checkedSize = 0;
  m_totalDurationMs = m_checkedDurationMs = 0;
  m_checkedCount = 0;
  endResetModel();
  emit totalsChanged();
}

bool BatchList::moveRows(const QModelIndex& sourceParent, int sourceRow, int count,
                         const QModelIndex& destinationParent, int destinationChild) {
  if (sourceParent.isValid() || destinationParent.isValid() || count <= 0 || sourceRow < 0 ||
      sourceRow + count > FileCount() || destinationChild < 0 || destinationChild > FileCount() ||
      (destinationChild >= sourceRow && destinationChild <= sourceRow + count))
    return false;
  if (!beginMoveRows({}, sourceRow, sourceRow + count - 1, {}, destinationChild)) return false;
  std::vector<Row> moved(m_rows.begin() + sourceRow, m_rows.begin() + sourceRow + count);
  m_rows.erase(m_rows.begin() + sourceRow, m_rows.begin() + sourceRow + count);
  const int at = destinationChild > sourceRow ? destinationChild - count : destinationChild;
  m_rows.insert(m_rows.begin() + at, moved.begin(), moved.end());
  ReindexFrom(std::min(sourceRow, at));
  endMoveRows();
  emit dataChanged(index(0, 0), index(FileCount() - 1, 0), {Qt::DisplayRole});
  return true;
}

bool BatchList::MoveUp(int row) { return row > 0 && moveRows({}, row, 1, {}, row - 1); }
bool BatchList::MoveDown(int row) { return row + 1 < FileCount() && moveRows({}, row, 1, {}, row + 2); }

void BatchList::sort(int column, Qt::SortOrder order) {
  if (column < 0 || column >= columnCount() || m_rows.size() < 2) return;
  const BatchColumn id = m_columns[size_t(column)].id;
  emit layoutAboutToBeChanged();
  const QModelIndexList before = persistentIndexList();
  std::vector<const BatchFileInfo*> oldOrder;
  for (const Row& r : m_rows) oldOrder.push_back(r.info);

  // Adding order, for the number column and ties.
  QHash<const BatchFileInfo*, int> added;
  int n = 0;
  for (const BatchFileInfo& f : m_records) added.insert(&f, n++);
  auto less = [&](const Row& a, const Row& b) -> bool {
    int c = 0;
    switch (id) {
      case C::Number: c = added.value(a.info) - added.value(b.info); break;
      case C::FileName:
        c = NaturalCompare(QFileInfo(a.info->path).fileName(), QFileInfo(b.info->path).fileName());
        if (c == 0) c = NaturalCompare(a.info->path, b.info->path);
        break;
      case C::Size: c = a.info->fullSize < b.info->fullSize ? -1 : a.info->fullSize > b.info->fullSize; break;
      case C::Duration: c = a.info->durationMs < b.info->durationMs ? -1 : a.info->durationMs > b.info->durationMs; break;
      default: c = NaturalCompare(FileCell(a, id), FileCell(b, id)); break;
    }
    if (c == 0) return added.value(a.info) < added.value(b.info);
    return order == Qt::AscendingOrder ? c < 0 : c > 0;
  };
  std::stable_sort(m_rows.begin(), m_rows.end(), less);
  ReindexFrom(0);
  QModelIndexList after;
  for (const QModelIndex& i : before) {
    if (i.row() < FileCount()) {
      after << index(m_byPath.value(oldOrder[size_t(i.row())]->path), i.column());
    } else {
      after << i;
    }
  }
  changePersistentIndexList(before, after);
  emit layoutChanged();
}

bool BatchList::IsChecked(int row) const { return row >= 0 && row < FileCount() && m_rows[size_t(row)].checked; }

void BatchList::SetChecked(int row, bool checked) {
  if (row < 0 || row >= FileCount()) return;
  Row& r = m_rows[size_t(row)];
  if (r.checked == checked) return;
  AddToTotals(*r.info, r.checked, -1);
  r.checked = checked;
  AddToTotals(*r.info, r.checked, +1);
  emit dataChanged(index(row, 0), index(row, 0), {Qt::CheckStateRole});
  EmitTotals();
}

void BatchList::CheckAll() {
  for (int i = 0; i < FileCount(); ++i) {
    Row& r = m_rows[size_t(i)];
    if (!r.checked) {
      AddToTotals(*r.info, false, -1);
      r.checked = true;
      AddToTotals(*r.info, true, +1);
    }
  }
  if (!m_rows.empty()) emit dataChanged(index(0, 0), index(FileCount() - 1, 0), {Qt::CheckStateRole});
  EmitTotals();
}

void BatchList::UncheckAll() {
  for (Row& r : m_rows) r.checked = false;
  m_checkedSize = 0;
  m_checkedDurationMs = 0;
  m_checkedCount = 0;
  if (!m_rows.empty()) emit dataChanged(index(0, 0), index(FileCount() - 1, 0), {Qt::CheckStateRole});
  EmitTotals();
}

int BatchList::CheckedCount() const { return m_checkedCount; }

void BatchList::SetRowResult(int row, const RowLevels& levels) {
  if (row < 0 || row >= FileCount()) return;
  Row& r = m_rows[size_t(row)];
  const RowResultTexts t = TextsOfLevels(levels, m_showDb, r.info->kind == kKindMp3);
  if (!t.shown) return;
  r.volume = t.volume;
  r.gain = t.gain;
  r.clipping = t.clipping;
  r.color = t.color;
  emit dataChanged(index(row, 0), index(row, columnCount() - 1));
}

void BatchList::SetTested(int row) {
  if (row < 0 || row >= FileCount()) return;
  m_rows[size_t(row)].tested = true;
  const int c = ColumnOf(C::Status);
  emit dataChanged(index(row, c), index(row, c));
}

bool BatchList::IsTested(int row) const { return row >= 0 && row < FileCount() && m_rows[size_t(row)].tested; }

QString BatchList::CellText(int row, BatchColumn column) const {
  const int c = ColumnOf(column);
  return c < 0 ? QString() : data(index(row, c)).toString();
}

void BatchList::SetDuration(int row, uint32_t ms) {
  if (row < 0 || row >= FileCount() || ms == 0) return;
  Row& r = m_rows[size_t(row)];
  if (r.info->durationMs != 0) return;
  AddToTotals(*r.info, r.checked, -1);
  r.info->durationMs = ms;
  r.info->seconds = ms / 1000.0;
  AddToTotals(*r.info, r.checked, +1);
  emit dataChanged(index(row, 0), index(row, columnCount() - 1));
  EmitTotals();
}

void BatchList::MarkBad(int row, const QString& why) {
  if (row < 0 || row >= FileCount()) return;
  Row& r = m_rows[size_t(row)];
  if (r.info->bad) return;
  AddToTotals(*r.info, r.checked, -1);
  r.info->bad = 1;
  r.info->error = why;
  AddToTotals(*r.info, r.checked, +1);
  r.color = kRowBad;
  emit dataChanged(index(row, 0), index(row, columnCount() - 1));
  EmitTotals();
}

namespace {
QString Files(int n) { return n == 1 ? Tonvane::tr(" file") : Tonvane::tr(" files"); }
}  // namespace

QString BatchList::LeftStatusText() const {
  return Tonvane::tr(" The list contains: ") + QString::number(FileCount()) + Files(FileCount()) + ", " +
         BatchSizeText(m_totalSize, true) + "; " + Tonvane::tr("Total Duration: ") +
         BatchDurationText(m_totalDurationMs);
}

QString BatchList::RightStatusText() const {
  return Tonvane::tr(" Total Checked: ") + QString::number(m_checkedCount) + Files(m_checkedCount) + ", " +
         BatchSizeText(m_checkedSize, true) + "; " + Tonvane::tr("Total Duration: ") +
         BatchDurationText(m_checkedDurationMs);
}
