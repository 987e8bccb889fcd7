#include <gtest/gtest.h>

#include "app/Settings.h"
#include "log/DataBaseSize.h"
#include "log/TestLog.h"
#include "support/TestSupport.h"

using testing_support::TestSession;
using testing_support::WriteFile;

TEST(DataBaseSize, SizeTextUnits) {
  const std::pair<int64_t, const char*> cases[] = {
      {0, "0 bytes"},          {226, "226 bytes"},        {1024, "1024 bytes"},
      {1025, "1.00 kB"},       {1536, "1.50 kB"},         {2048, "2 kB"},
      {1048576, "1024 kB"},    {1048577, "1.00 MB"},      {12 * 1048576 + 524288, "12.50 MB"},
      {1LL << 30, "1024 MB"}, {3LL << 30, "3 GB"},  {(3LL << 30) + 1, "3.00 GB"}, {5LL << 40, "5120 GB"},
  };
  for (const auto& [bytes, text] : cases) EXPECT_EQ(DataBaseSizeText(bytes), text) << bytes;
}

TEST(DataBaseSize, LabelOfAnEmptyLogAndOfNoFile) {
  TestSession t;
  CreateEmptyLog(t.s->m_logPath);
  QString label = "unchanged";
  ASSERT_TRUE(DataBaseSizeLabel(t.s->m_logPath, label));
  EXPECT_EQ(label, "Current size the Database: 226 bytes");
  label = "unchanged";
  EXPECT_FALSE(DataBaseSizeLabel(t.Path("missing.csv"), label));
  EXPECT_EQ(label, "unchanged");
}

TEST(DataBaseSize, CapWrapsAndIsStoredAtOnce) {
  EXPECT_EQ(StepDataBaseCap(12, 1), 1);
  EXPECT_EQ(StepDataBaseCap(1, -1), 12);
  EXPECT_EQ(StepDataBaseCap(5, 1), 6);
  EXPECT_EQ(StepDataBaseCap(3, -2), 1);
  EXPECT_EQ(DataBaseCapText(5), "5 MB");
  TestSession t;
  StoreDataBaseCap(*t.s, 5);
  EXPECT_EQ(t.s->m_dataBaseSizeMb, 5);
  EXPECT_EQ(Settings::GetInt("DataBaseSize", 0), 5);
}
