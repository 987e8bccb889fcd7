#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSettings>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include "app/AboutInfo.h"
#include "app/Languages.h"
#include "app/Settings.h"
#include "app/Text.h"
#include "app/Themes.h"
#include "support/TestSupport.h"

namespace {

void EnsureApp() {
  static int argc = 1;
  static char name[] = "test_app";
  static char* argv[] = {name, nullptr};
  if (!QCoreApplication::instance()) new QCoreApplication(argc, argv);
}

void Touch(const QString& path) {
  QDir().mkpath(QFileInfo(path).path());
  testing_support::WriteFile(path, "<html></html>");
}

// The settings store is shared by every test of the process: leave Language and Theme as
// they were found (absent).
class ShellSettings : public ::testing::Test {
 protected:
  static void Forget() {
    QSettings s(Settings::Organization(), Settings::Application());
    s.remove("Settings/Language");
    s.remove("Settings/Theme");
  }
  void SetUp() override { Forget(); }
  void TearDown() override { Forget(); }
  testing_support::TestSession t;
};

}  // namespace

// Each code brings Qt's own texts of its mapped locale where Debian ships them: "cr" is
// Croatian, "cn" simplified Chinese, "pt" Brazilian; Norwegian has none and stays English.
TEST(Languages, QtTranslationsFollowTheMappedLocale) {
  EnsureApp();
  struct Row {
    const char* code;
    bool shipped;
  };
  const Row rows[] = {{"cr", true}, {"cn", true}, {"pt", true}, {"ko", true}, {"de", true},
                      {"no", false}, {"en", false}, {"xx", false}};
  for (const Row& r : rows) {
    LanguageLoader loader;
    loader.Load(QString::fromLatin1(r.code), {});
    EXPECT_EQ(loader.qtLoaded(), r.shipped) << r.code;
    const QString cancel = QCoreApplication::translate("QPlatformTheme", "Cancel");
    EXPECT_EQ(cancel != QLatin1String("Cancel"), r.shipped) << r.code << " " << cancel.toStdString();
  }
  LanguageLoader loader;
  loader.Load("cn", {});
  EXPECT_EQ(QCoreApplication::translate("QPlatformTheme", "Cancel"), QString::fromUtf8("取消"));
  loader.Unload();
  EXPECT_EQ(QCoreApplication::translate("QPlatformTheme", "Cancel"), "Cancel");
}

// The stored code is read anew each time and compared exactly; an unknown one is English.
TEST_F(ShellSettings, StoredCodeAndUnknownCodes) {
  EXPECT_EQ(StoredLanguageCode(), "");
  StoreLanguageCode("de");
  EXPECT_EQ(StoredLanguageCode(), "de");
  EXPECT_EQ(Settings::Language(), "de");
  for (const char* odd : {"DE", "de ", "zh", "xx"}) {
    StoreLanguageCode(odd);
    EXPECT_EQ(StoredLanguageCode(), odd);
    EXPECT_EQ(QLatin1String(LanguageOrEnglish(odd).code), QLatin1String("en")) << odd;
  }
  EXPECT_EQ(QLatin1String(LanguageOrEnglish("cr").qtLocale), QLatin1String("hr"));
  EXPECT_EQ(QLatin1String(LanguageOrEnglish("no").qtLocale), QLatin1String("nb"));
}

// Help opens the page of the interface language where one is written, else the common one.
TEST(Languages, HelpPageFallsBackToTheCommonOne) {
  QTemporaryDir installed, build;
  EXPECT_EQ(HelpIndexFor("de", {build.path(), installed.path()}), "");
  Touch(installed.filePath("index.html"));
  Touch(installed.filePath("de/index.html"));
  Touch(build.filePath("index.html"));
  EXPECT_EQ(HelpIndexFor("de", {build.path(), installed.path()}), installed.filePath("de/index.html"));
  EXPECT_EQ(HelpIndexFor("ru", {build.path(), installed.path()}), build.filePath("index.html"));
  EXPECT_EQ(HelpIndexFor("", {installed.path()}), installed.filePath("index.html"));
}

// Stored theme names pick their row; anything else is the first, desktop-following one.
TEST_F(ShellSettings, StoredThemeNamesAndDefault) {
  EXPECT_EQ(&ThemeFor(StoredTheme()), &Themes()[0]);
  StoreTheme(Themes()[4]);
  EXPECT_EQ(Settings::GetString("Theme"), "xtpThemeWhidbey");
  EXPECT_EQ(ThemeFor(StoredTheme()).palette, ThemePalette::Grey);
  EXPECT_EQ(&ThemeFor("xtpThemeOffice2003"), &Themes()[3]);
  EXPECT_EQ(&ThemeFor("nonsense"), &Themes()[0]);
}

TEST(Themes, DesktopDarkDetection) {
  struct Row {
    int lightness;
    const char* gtkTheme;
    const char* ini;
    const char* scheme;
    bool dark;
  };
  const Row rows[] = {
      {239, "", "", "", false},
      {40, "", "", "", true},  // the platform's palette is dark itself
      {239, "Adwaita:dark", "", "", true},
      {239, "Adwaita", "", "'default'", false},
      {239, "", "", "'prefer-dark'\n", true},
      {239, "", "[Settings]\ngtk-application-prefer-dark-theme=1\n", "", true},
      {239, "", "[Settings]\ngtk-application-prefer-dark-theme = false\n", "", false},
      {239, "", "# gtk-application-prefer-dark-theme=1\n", "", false},
  };
  for (const Row& r : rows)
    EXPECT_EQ(DesktopPrefersDark(r.lightness, r.gtkTheme, r.ini, r.scheme), r.dark)
        << r.lightness << " " << r.gtkTheme << " " << r.ini << " " << r.scheme;
}

// The about box names the six libraries with the versions this process runs with.
TEST(AboutInfo, LibraryVersions) {
  const auto libs = LibraryVersions();
  ASSERT_EQ(libs.size(), 6u);
  const char* names[] = {"Qt", "FFmpeg", "libFLAC", "libvorbis", "faad2", "SDL2"};
  for (size_t i = 0; i < libs.size(); ++i) {
    EXPECT_EQ(libs[i].first, names[i]);
    EXPECT_TRUE(libs[i].second.contains(QRegularExpression("\\d+\\.\\d+"))) << libs[i].second.toStdString();
  }
  EXPECT_EQ(libs[0].second, QString::fromLatin1(qVersion()));
}
