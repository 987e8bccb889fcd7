// The recent folders of the dialogs: newest first, no twins, a cap, and no stale values.
#include <gtest/gtest.h>

#include "app/FolderHistory.h"
#include "app/Settings.h"
#include "support/TestSupport.h"

TEST(FolderHistory, NewestFirstCappedAndStored) {
  testing_support::TestSession t;
  FolderHistory h(3);
  h.AddString("/a");
  h.AddString(" /b ");
  h.AddString("/a");  // a folder chosen twice stands once, at the head
  EXPECT_EQ(h.Items(), QStringList({"/a", "/b"}));
  h.AddString("/c");
  h.AddString("/Prøve, 🤔");
  EXPECT_EQ(h.Items(), QStringList({"/Prøve, 🤔", "/c", "/a"}));  // the oldest went
  h.Save();

  FolderHistory back(3);
  back.Load();
  EXPECT_EQ(back.Items(), h.Items());
  EXPECT_EQ(back.Current(), "/Prøve, 🤔");

  // A shorter list leaves nothing of the longer one behind.
  FolderHistory shorter(3);
  shorter.AddString("/only");
  shorter.Save();
  FolderHistory again(10);
  again.Load();
  EXPECT_EQ(again.Items(), QStringList({"/only"}));
  EXPECT_TRUE(Settings::GetString("Folder1", {}, "FolderHistory").isEmpty());
}
