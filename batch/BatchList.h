#pragma once
// The batch list: the rows a person sees and the run's work order, over the records of
// g_batchFiles. File rows come first, in the order of adding or of the last sort; while at
// least one file row stands, two total rows (" Total:" and " Total Checked: ") close the
// list. Everything a view shows is data of this model: cell texts, check states, tips,
// alignment and colours (ColorRefRole, 0x00BBGGRR; convert with RgbOfColorRef).
#include <QAbstractTableModel>
#include <QHash>
#include <QString>
#include <cstdint>
#include <list>
#include <vector>

#include "batch/BatchFileInfo.h"
#include "batch/RowTexts.h"

// A batch of every kind at once (the CLI without --kind): each file keeps its own kind.
constexpr int kAnyKind = -1;

// What a column shows. The columns of a kind are a list of these.
enum class BatchColumn {
  Number, FileName, Size, VolumeLevel, Gain, Clipping, Errors, Duration, SampleRate, Bits,
  BitRate, Channels, Mode, CodingMethod, AudioFormat, Status,
};

struct BatchColumnSpec {
  BatchColumn id;
  const char* heading;  // translatable source text
  int width;            // default width in pixels
  bool centred;
};
// The columns of a batch kind, in order (kAnyKind: every column that any kind has).
const std::vector<BatchColumnSpec>& BatchColumns(int batchKind);

// "1536" -> "1.50 kB": a size by 1024 steps, units " bytes", " kB", " MB", " GB" and,
// with `terabytes`, " TB" (the totals); the run reads the text back, so the unit words are
// data. Exactly 1024 of a unit stays in that unit.
QString BatchSizeText(double bytes, bool terabytes = false);
// "03:25:40": minutes, seconds, hundredths; empty for 0.
QString BatchDurationText(uint64_t ms);

class BatchList : public QAbstractTableModel {
  Q_OBJECT
 public:
  enum Role {
    ColorRefRole = Qt::UserRole + 1,  // text colour, 0x00BBGGRR
    BackColorRefRole,                 // background colour, 0x00BBGGRR
    PathRole,                         // full path of a file row; empty for a total row
    DefaultWidthRole,                 // header: default width
  };

  explicit BatchList(int batchKind, std::list<BatchFileInfo>& records = g_batchFiles,
                     QObject* parent = nullptr);
  ~BatchList() override;

  int BatchKind() const { return m_batchKind; }
  // Column 1 shows a bare name for files in this folder, else the full path.
  void SetFolder(const QString& folder);
  const QString& Folder() const { return m_folder; }
  // The unit the result texts are made in (the run's and the look-up's).
  void SetShowDb(bool showDb) { m_showDb = showDb; }
  bool ShowDb() const { return m_showDb; }

  // QAbstractTableModel
  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
  bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;
  QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;
  bool removeRows(int row, int count, const QModelIndex& parent = {}) override;
  bool moveRows(const QModelIndex& sourceParent, int sourceRow, int count,
                const QModelIndex& destinationParent, int destinationChild) override;
  // File rows only; the total rows stay at the end. Column 1 in natural name order,
  // sizes and durations by value, the rest by text.
  void sort(int column, Qt::SortOrder order = Qt::AscendingOrder) override;

  // Rows.
  int FileCount() const { return int(m_rows.size()); }
  bool IsTotalRow(int row) const { return row >= FileCount() && row < rowCount(); }
  const BatchFileInfo* Info(int row) const;
  QString PathOf(int row) const;
  int RowOfPath(const QString& path) const;  // -1 when not listed
  bool Contains(const QString& path) const { return m_byPath.contains(path); }
  // Appends the record (moved into the list) as a new row: checked unless bad. A log row
  // found at adding (`earlier`) shows its levels; the Status stays " not tested".
  int AddRecord(BatchFileInfo info, const RowLevels* earlier = nullptr);
  void RemoveAll();
  bool MoveUp(int row);
  bool MoveDown(int row);

  // Check boxes.
  bool IsChecked(int row) const;
  void SetChecked(int row, bool checked);
  void CheckAll();
  void UncheckAll();
  int CheckedCount() const;

  // Results of a run.
  void SetRowResult(int row, const RowLevels& levels);
  void SetTested(int row);  // Status " tested"
  bool IsTested(int row) const;
  QString CellText(int row, BatchColumn column) const;
  // A duration found by the run for a file whose scan could not tell it.
  void SetDuration(int row, uint32_t ms);
  // A file the run found bad (damaged beyond what the scan saw, gone, ...).
  void MarkBad(int row, const QString& why);

  // Totals and the two status lines.
  double TotalSize() const { return m_totalSize; }
  double CheckedSize() const { return m_checkedSize; }
  uint64_t TotalDurationMs() const { return m_totalDurationMs; }
  uint64_t CheckedDurationMs() const { return m_checkedDurationMs; }
  QString LeftStatusText() const;
  QString RightStatusText() const;
  int ColumnOf(BatchColumn id) const;  // -1 when the kind has no such column

 signals:
  // The totals or check counts changed: the status lines are to be shown again.
  void totalsChanged();

 private:
  struct Row {
    BatchFileInfo* info = nullptr;
    bool checked = true;
    bool tested = false;
    QString volume;  // empty: " not tested"
    QString gain;
    QString clipping;
    uint32_t color = kRowUntested;
  };
  QString FileCell(const Row& r, BatchColumn c) const;
  QString TotalCell(bool checkedRow, BatchColumn c) const;
  QString Tip(const Row& r) const;
  void AddToTotals(const BatchFileInfo& info, bool checked, int sign);
  void ReindexFrom(int row);
  void EmitTotals();
  void TotalsRowsChanged();

  int m_batchKind;
  std::list<BatchFileInfo>& m_records;
  const std::vector<BatchColumnSpec>& m_columns;
  QString m_folder;
  bool m_showDb = false;
  std::vector<Row> m_rows;
  QHash<QString, int> m_byPath;  // path -> row
  double m_totalSize = 0, m_checkedSize = 0;
  uint64_t m_totalDurationMs = 0, m_checkedDurationMs = 0;
  int m_checkedCount = 0;
};
