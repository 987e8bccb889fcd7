// The batch list: texts, totals, check states, sorting and the result texts of a row.
#include <gtest/gtest.h>

#include "app/Session.h"
#include "batch/BatchList.h"
#include "batch/RowTexts.h"

namespace {

BatchFileInfo Record(const QString& path, uint64_t size, uint32_t ms, int kind = kKindFlac, bool bad = false) {
  BatchFileInfo f;
  f.path = path;
  f.fullSize = size;
  f.fileSize = uint32_t(size);
  f.durationMs = ms;
  f.kind = uint32_t(kind);
  f.channels = 2;
  f.bad = bad;
  return f;
}

}  // namespace

// Sizes step to the next unit only above 1024 of a unit; terabytes only for totals.
TEST(BatchListTexts, SizeAndDuration) {
  const struct {
    double bytes;
    bool tb;
    const char* text;
  } sizes[] = {
      {0, false, "0 bytes"},          {1024, false, "1024 bytes"},      {1025, false, "1.00 kB"},
      {1536, false, "1.50 kB"},       {1048576, false, "1024 kB"},      {1048577, false, "1.00 MB"},
      {3.5 * 1073741824.0, false, "3.50 GB"}, {2048.0 * 1099511627776.0, false, "2097152 GB"},
      {2048.0 * 1099511627776.0, true, "2048 TB"}, {1.25 * 1099511627776.0, true, "1.25 TB"},
  };
  for (const auto& c : sizes) EXPECT_EQ(BatchSizeText(c.bytes, c.tb), c.text) << c.bytes;
  EXPECT_EQ(BatchDurationText(0), "");
  EXPECT_EQ(BatchDurationText(205400), "03:25:40");
  EXPECT_EQ(BatchDurationText(125 * 60000 + 1009), "125:01:00");
}

// Totals follow adding, checking and removing; a bad row comes unchecked; the status
// lines say " file" for one.
TEST(BatchListModel, TotalsChecksAndRemoval) {
  std::list<BatchFileInfo> records;
  BatchList list(kKindFlac, records);
  EXPECT_EQ(list.rowCount(), 0);
  list.AddRecord(Record("/m/a.flac", 2048, 1000));
  EXPECT_EQ(list.rowCount(), 3);  // the row and the two totals
  EXPECT_TRUE(list.IsTotalRow(1));
  EXPECT_EQ(list.LeftStatusText(), " The list contains: 1 file, 2 kB; Total Duration: 00:01:00");
  EXPECT_EQ(list.RightStatusText(), " Total Checked: 1 file, 2 kB; Total Duration: 00:01:00");
  list.AddRecord(Record("/m/b.flac", 1024, 2500));
  list.AddRecord(Record("/m/bad.flac", 0, 0, kKindFlac, true));
  EXPECT_EQ(list.AddRecord(Record("/m/a.flac", 1, 1)), -1);  // a path stands once
  EXPECT_FALSE(list.IsChecked(2));
  EXPECT_EQ(list.CheckedCount(), 2);
  EXPECT_EQ(list.CellText(2, BatchColumn::Errors), "Yes");
  EXPECT_EQ(list.data(list.index(2, 0), BatchList::ColorRefRole).toUInt(), kRowBad);
  EXPECT_EQ(list.data(list.index(3, 0)).toString(), " Total:");
  EXPECT_EQ(list.data(list.index(4, 0)).toString(), " Total Checked: ");

  list.setData(list.index(0, 0), Qt::Unchecked, Qt::CheckStateRole);
  EXPECT_EQ(list.CheckedSize(), 1024);
  EXPECT_EQ(list.CheckedDurationMs(), 2500u);
  list.UncheckAll();
  EXPECT_EQ(list.CheckedSize(), 0);
  EXPECT_EQ(list.RightStatusText(), " Total Checked: 0 files, 0 bytes; Total Duration: ");
  list.CheckAll();
  EXPECT_EQ(list.CheckedCount(), 3);
  EXPECT_EQ(list.CheckedSize(), 3072);

  list.removeRows(0, 1);
  EXPECT_EQ(list.FileCount(), 2);
  EXPECT_EQ(list.RowOfPath("/m/b.flac"), 0);
  EXPECT_EQ(list.data(list.index(1, 0)).toString(), " 2");
  EXPECT_EQ(records.size(), 2u);
  EXPECT_EQ(list.TotalSize(), 1024);
  list.removeRows(0, 2);
  EXPECT_EQ(list.rowCount(), 0);
  EXPECT_EQ(list.LeftStatusText(), " The list contains: 0 files, 0 bytes; Total Duration: ");
  EXPECT_TRUE(records.empty());
}

// Names sort in natural order, sizes by value; the totals stay last; moves reorder rows
// and keep the path index right.
TEST(BatchListModel, SortAndMove) {
  std::list<BatchFileInfo> records;
  BatchList list(kKindWav, records);
  list.SetFolder("/m");
  for (auto [name, size] : {std::pair{"track10.wav", 10}, {"Track2.wav", 300}, {"track1.wav", 20}})
    list.AddRecord(Record(QString("/m/") + name, size, 0, kKindWav));
  list.AddRecord(Record("/other/Zebra, «x».wav", 5, 0, kKindWav));
  EXPECT_EQ(list.CellText(0, BatchColumn::FileName), "track10.wav");
  EXPECT_EQ(list.CellText(3, BatchColumn::FileName), "/other/Zebra, «x».wav");

  list.sort(list.ColumnOf(BatchColumn::FileName));
  QStringList names;
  for (int r = 0; r < list.FileCount(); ++r) names << list.PathOf(r);
  EXPECT_EQ(names.join(" | ").toStdString(), QStringList({"/m/track1.wav", "/m/Track2.wav", "/m/track10.wav", "/other/Zebra, «x».wav"}).join(" | ").toStdString());
  list.sort(list.ColumnOf(BatchColumn::Size), Qt::DescendingOrder);
  EXPECT_EQ(list.PathOf(0), "/m/Track2.wav");
  EXPECT_EQ(list.PathOf(3), "/other/Zebra, «x».wav");
  EXPECT_TRUE(list.IsTotalRow(4));
  EXPECT_TRUE(list.MoveDown(0));
  EXPECT_EQ(list.PathOf(1), "/m/Track2.wav");
  EXPECT_EQ(list.RowOfPath("/m/Track2.wav"), 1);
  EXPECT_FALSE(list.MoveUp(0));
  EXPECT_TRUE(list.MoveUp(1));
  EXPECT_EQ(list.RowOfPath("/m/Track2.wav"), 0);
}

// The texts of a row's result, by kind, test and unit.
TEST(BatchRowTexts, Table) {
  LevelResult mp3;
  mp3.GainLeft = 89.0f - 56.3f * 0.89f;  // level 56.3 %
  mp3.GainRight = 89.0f - 57.1f * 0.89f;
  mp3.NoClippingLeft = 0;
  mp3.NoClippingRight = 2.0f;
  RowResultTexts t = TextsOfLevels(LevelsOfResult(mp3, kKindMp3, 1, false, 2, 0), false, true);
  EXPECT_EQ(t.volume, "Left: 56.3%; Right: 57.1%");
  EXPECT_EQ(t.gain, "Left: 0.0000%; Right: +2.2472%");
  EXPECT_EQ(t.clipping, "Left: No; Right: Yes");
  EXPECT_EQ(t.color, kRowClipping);

  LevelResult peak;
  peak.WavPikLeft = 72.4f;
  peak.WavPikNoClippingLeft = 1.5f;
  t = TextsOfLevels(LevelsOfResult(peak, kKindFlac, 0, true, 1, 16), true, false);
  EXPECT_EQ(t.volume, "Mono Channel: 72.4 dB");
  EXPECT_EQ(t.gain, "Mono Channel: +1.5000 dB");
  EXPECT_EQ(t.clipping, "");
  EXPECT_EQ(t.color, kRowTested);

  // Percent peak: a level of 0 shows its gain as 0; the log's 400 shows as 0.
  peak.WavLeft = 0.0f;
  peak.WavRight = 400.0f;
  t = TextsOfLevels(LevelsOfResult(peak, kKindWav, 0, false, 2, 16), false, false);
  EXPECT_EQ(t.volume, "Left: 0.0%; Right: 0.0%");
  EXPECT_EQ(t.gain, "Left: 0.0000%; Right: 0.0000%");

  // The average test of a 24-bit FLAC scales percent by 137, of a 24-bit Ogg by 89.
  LevelResult avg;
  avg.GainLeft = avg.GainRight = 20.0f;
  avg.NoClippingLeft = avg.NoClippingRight = 0;
  EXPECT_FLOAT_EQ(LevelsOfResult(avg, kKindFlac, 1, false, 2, 24).levelLeft, float(69.0 / 137 * 100));
  EXPECT_FLOAT_EQ(LevelsOfResult(avg, kKindOgg, 1, false, 2, 24).levelLeft, float(69.0 / 89 * 100));
  EXPECT_FLOAT_EQ(LevelsOfResult(avg, kKindOgg, 1, true, 2, 24).levelLeft, 69.0f);

  // Nothing measured: nothing shown; a log row without the unit's group shows nothing.
  EXPECT_FALSE(TextsOfLevels(RowLevels{}, false, false).shown);
  RowLevels out;
  EXPECT_FALSE(LevelsOfLogRow(LevelResult{}, kKindWav, true, 2, out));
}
