#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QDesktopServices>
#include <QGroupBox>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QSettings>
#include <QStyle>
#include <QFile>
#include <QFileInfo>
#include <QTest>
#include <QTimer>
#include <QUrl>
#include <functional>
#include <gtest/gtest.h>

#include "app/Languages.h"
#include "app/Settings.h"
#include "app/Themes.h"
#include "app/widgets/AboutDialog.h"
#include "app/widgets/MainDialog.h"
#include "app/widgets/ShellMenus.h"
#include "support/TestSupport.h"

namespace {

QApplication& App() {
  static int argc = 1;
  static char name[] = "test_widgets";
  static char* argv[] = {name, nullptr};
  static QApplication* app = QApplication::instance() ? static_cast<QApplication*>(QApplication::instance())
                                                       : new QApplication(argc, argv);
  return *app;
}

// Runs `answer` on the next modal window that opens, then closes it.
void OnNextModal(std::function<void(QWidget*)> answer) {
  auto* timer = new QTimer;
  QObject::connect(timer, &QTimer::timeout, [timer, answer] {
    if (QWidget* w = QApplication::activeModalWidget()) {
      timer->stop();
      timer->deleteLater();
      answer(w);
      w->close();
    }
  });
  timer->start(20);
}

class UrlCatcher : public QObject {
  Q_OBJECT
 public:
  QList<QUrl> urls;
 public slots:
  void open(const QUrl& url) { urls << url; }
};

class LanguageTest : public ::testing::Test {
 protected:
  static void Forget() {
    QSettings s(Settings::Organization(), Settings::Application());
    s.remove("Settings/Language");
    s.remove("Settings/Theme");
  }
  void SetUp() override {
    App();
    qputenv("TONVANE_DATA_DIR", TONVANE_BUILD_DIR);
    Forget();
  }
  void TearDown() override {
    Forget();
    ApplyTheme(Themes()[0]);
  }
  testing_support::TestSession t;
};

}  // namespace

// The seventeen items in order; the check mark follows the stored code, read anew, and a
// choice is stored and answered with the restart message while the interface stays.
TEST_F(LanguageTest, LanguageMenuStoresTheChoiceForTheNextStart) {
  CBrenlowv10Dlg dlg;
  const QStringList names = {"Russian", "English", "German", "Spanish", "French", "Italian",
                             "Dutch", "Portuguese", "Norwegian", "Danish", "Turkish", "Polish",
                             "Croatian", "Chinese", "Korean", "Czech", "Slovenian"};
  auto* menu = dlg.findChild<QMenu*>("languageMenu");
  ASSERT_NE(menu, nullptr);
  EXPECT_EQ(menu->title(), "&Interface Language");
  QStringList texts;
  for (QAction* a : menu->actions()) texts << a->text();
  EXPECT_EQ(texts, names);
  auto checked = [&] {
    QStringList on;
    for (QAction* a : menu->actions())
      if (a->isChecked()) on << a->text();
    return on;
  };
  emit menu->aboutToShow();
  EXPECT_TRUE(checked().isEmpty());  // nothing stored: English, but no mark

  for (int round = 0; round < 2; ++round) {  // the language in use is stored and told again
    QString told;
    OnNextModal([&](QWidget* w) {
      if (auto* box = qobject_cast<QMessageBox*>(w)) told = box->text();
    });
    dlg.action(32959)->trigger();
    EXPECT_EQ(told, "Program should be restarted to set another interface language.");
    EXPECT_EQ(Settings::GetString("Language"), "de");
    EXPECT_EQ(checked(), QStringList{"German"});
  }
  EXPECT_EQ(dlg.action(kCmdOpen)->text(), "&Open...");  // the interface did not change

  Settings::SetString("Language", "en");
  emit menu->aboutToShow();
  EXPECT_EQ(checked(), QStringList{"English"});
}

// A theme is stored and applied at once; the first item gives the desktop's look back.
TEST_F(LanguageTest, ThemesApplyAtOnce) {
  CBrenlowv10Dlg dlg;
  ApplyTheme(Themes()[0]);
  const QColor desktop = QApplication::palette().color(QPalette::Window);
  dlg.action(32788)->trigger();  // &Grey
  EXPECT_EQ(Settings::GetString("Theme"), "xtpThemeWhidbey");
  EXPECT_LT(QApplication::palette().color(QPalette::Window).lightness(), 128);
  EXPECT_EQ(QApplication::style()->name().toLower(), "fusion");
  EXPECT_TRUE(dlg.action(32788)->isChecked());
  dlg.action(32779)->trigger();  // Office 2000: the classic style
  EXPECT_EQ(QApplication::style()->name().toLower(), "windows");
  EXPECT_FALSE(dlg.action(32788)->isChecked());
  dlg.action(32777)->trigger();
  EXPECT_EQ(Settings::GetString("Theme"), "xtpThemeNativeWinXP");
  EXPECT_EQ(QApplication::palette().color(QPalette::Window), desktop);
}

// F1 and the tool bar's Help open the installed help page in the browser, in each of the
// seventeen languages the page written in that language.
TEST_F(LanguageTest, HelpOpensThePageOfTheLanguage) {
  UrlCatcher catcher;
  QDesktopServices::setUrlHandler("file", &catcher, "open");
  CBrenlowv10Dlg dlg;
  dlg.show();
  QApplication::setActiveWindow(&dlg);
  ASSERT_TRUE(QTest::qWaitForWindowActive(&dlg));
  QTest::keyClick(&dlg, Qt::Key_F1);
  dlg.action(756)->trigger();
  ASSERT_EQ(catcher.urls.size(), 2);
  EXPECT_EQ(catcher.urls[0], catcher.urls[1]);
  catcher.urls.clear();
  for (const LanguageInfo& lang : Languages()) {
    const QString code = QString::fromLatin1(lang.code);
    LanguageLoader loader;
    loader.Load(code);
    dlg.action(kCmdHelp)->trigger();
    ASSERT_FALSE(catcher.urls.isEmpty()) << lang.code;
    const QString page = catcher.urls.takeLast().toLocalFile();
    EXPECT_TRUE(page.endsWith(code == "en" ? "/help/index.html" : "/help/" + code + "/index.html")) << page.toStdString();
    QFile f(page);
    ASSERT_TRUE(f.open(QIODevice::ReadOnly)) << page.toStdString();
    const QString html = QString::fromUtf8(f.readAll());
    const QString tag = QString::fromLatin1(lang.qtLocale).replace('_', '-');
    EXPECT_TRUE(html.contains("<html lang=\"" + tag + "\">")) << lang.code << " wants lang " << tag.toStdString();
  }
  QDesktopServices::unsetUrlHandler("file");
}

TEST_F(LanguageTest, AboutBoxNamesProgramAndLibraries) {
  CBrenlowv10Dlg dlg;
  QString title;
  int libraries = 0;
  OnNextModal([&](QWidget* w) {
    if (auto* l = w->findChild<QLabel*>("aboutTitle")) title = l->text();
    libraries = int(w->findChildren<QLabel*>("aboutLibraryVersion").size());
  });
  dlg.action(kCmdAbout)->trigger();
  EXPECT_EQ(title, "Tonvane 1.0");
  EXPECT_EQ(libraries, 6);
}

#include "LanguageTest.moc"
