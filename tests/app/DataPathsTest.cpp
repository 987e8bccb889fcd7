#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "app/DataPaths.h"

using tonvane::DataDirs;
using tonvane::FindDataFile;

namespace {

// Environment entries restored when a test ends, so the tests around them keep theirs.
class DataPathsTest : public ::testing::Test {
 protected:
  void SetUp() override {
    for (const char* name : {"TONVANE_DATA_DIR", "XDG_DATA_HOME", "XDG_DATA_DIRS"})
      saved_.emplace_back(name, qgetenv(name));
    qunsetenv("TONVANE_DATA_DIR");
    // Nothing of the machine's own data folders leaks into the answers.
    qputenv("XDG_DATA_HOME", Path("home").toUtf8());
    qputenv("XDG_DATA_DIRS", Path("none").toUtf8());
  }
  void TearDown() override {
    for (const auto& [name, value] : saved_) {
      if (value.isNull()) qunsetenv(name); else qputenv(name, value);
    }
  }
  QString Path(const QString& rel) const { return root_.filePath(rel); }
  // Makes the file `rel` below the root (and its folders).
  void Make(const QString& rel) {
    QDir().mkpath(QFileInfo(Path(rel)).absolutePath());
    QFile f(Path(rel));
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
  }
  QString Canonical(const QString& rel) const { return QFileInfo(Path(rel)).canonicalFilePath(); }

  QTemporaryDir root_{QDir::tempPath() + "/Prøve שלום 🤔, \"data\"-XXXXXX"};
  std::vector<std::pair<const char*, QByteArray>> saved_;
};

// An installation under any prefix: <prefix>/bin/tonvane finds <prefix>/share/tonvane.
TEST_F(DataPathsTest, ProgramFolderThenShareBesideIt) {
  Make("prefix/share/tonvane/help/index.html");
  Make("prefix/share/tonvane/notify.wav");
  Make("prefix/bin/notify.wav");  // the build tree: data beside the program wins
  const QStringList dirs = DataDirs(Path("prefix/bin"));
  EXPECT_EQ(dirs, QStringList({Canonical("prefix/bin"), Canonical("prefix/share/tonvane")}));
}

// The search order: $TONVANE_DATA_DIR, then the XDG data folders in their own order; the
// first folder that has a name answers for it, and a name that none has is empty.
TEST_F(DataPathsTest, FirstFolderWithTheNameAnswers) {
  Make("xdg1/tonvane/notify.wav");
  Make("xdg2/tonvane/notify.wav");
  Make("xdg2/tonvane/help/index.html");
  qputenv("XDG_DATA_DIRS", (Path("xdg1") + ":" + Path("xdg2")).toUtf8());
  EXPECT_EQ(FindDataFile("notify.wav"), Canonical("xdg1/tonvane") + "/notify.wav");
  EXPECT_EQ(FindDataFile("help/index.html"), Canonical("xdg2/tonvane") + "/help/index.html");
  EXPECT_EQ(FindDataFile("translations/tonvane_de.qm"), QString());

  Make("own/notify.wav");
  qputenv("TONVANE_DATA_DIR", Path("own").toUtf8());
  EXPECT_EQ(FindDataFile("notify.wav"), Canonical("own") + "/notify.wav");
  EXPECT_EQ(FindDataFile("help/index.html"), Canonical("xdg2/tonvane") + "/help/index.html");
}

// One folder reached under two names (a link, a "..") is searched once.
TEST_F(DataPathsTest, SameFolderListedOnce) {
  Make("xdg/tonvane/notify.wav");
  ASSERT_TRUE(QFile::link(Path("xdg"), Path("link")));
  qputenv("XDG_DATA_DIRS", (Path("xdg") + ":" + Path("link") + ":" + Path("xdg/tonvane/..")).toUtf8());
  qputenv("TONVANE_DATA_DIR", Path("xdg/tonvane").toUtf8());
  EXPECT_EQ(DataDirs(QString()), QStringList{Canonical("xdg/tonvane")});
}

}  // namespace
