#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QGroupBox>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QSettings>
#include <QTabWidget>
#include <gtest/gtest.h>

#include "app/Languages.h"
#include "app/Settings.h"
#include "app/Text.h"
#include "app/widgets/AboutDialog.h"
#include "app/widgets/AddFoldersDlg.h"
#include "app/widgets/BatchProgressDlg.h"
#include "app/widgets/BatchTypeDlg.h"
#include "app/widgets/BatchWindow.h"
#include "app/widgets/DataBaseDialog.h"
#include "app/widgets/MainDialog.h"
#include "app/widgets/ShellMenus.h"
#include "batch/BatchRun.h"
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

// The mnemonic letter of a text ("&Open" gives 'o'), or a null QChar.
QChar Mnemonic(QString text) {
  text.replace("&&", "");
  const int at = text.indexOf('&');
  return at < 0 || at + 1 >= text.size() ? QChar() : text.at(at + 1).toLower();
}

// Texts of one scope (a menu, or a window with its menu bar) that share a mnemonic letter.
QStringList Clashes(const QStringList& texts) {
  QMap<QChar, QString> seen;
  QStringList clashes;
  for (const QString& t : texts) {
    const QChar key = Mnemonic(t);
    if (key.isNull()) continue;
    if (seen.contains(key)) clashes << seen[key] + " / " + t;
    seen[key] = t;
  }
  return clashes;
}

// Every clash of a window: within each menu, and among the menu bar's titles and the
// window's own buttons, labels, groups and tabs, which Alt reaches at the same time. The
// batch list's context menu is left out: it gathers items of three menus, whose letters are
// chosen within their own menus (in English too, Pa&use meets &Uncheck All there).
QStringList WindowClashes(QWidget* window) {
  // The window's own widgets, not those of windows it owns.
  auto own = [window](QWidget* w) { return w->parentWidget() && w->parentWidget()->window() == window; };
  const QString name = QString::fromLatin1(window->metaObject()->className());
  QStringList out;
  QStringList top;
  for (QMenuBar* bar : window->findChildren<QMenuBar*>())
    if (own(bar))
      for (QAction* a : bar->actions()) top << a->text();
  for (QAbstractButton* b : window->findChildren<QAbstractButton*>())
    if (own(b) && b->isVisibleTo(window)) top << b->text();
  for (QLabel* l : window->findChildren<QLabel*>())
    if (own(l) && l->buddy()) top << l->text();
  for (QGroupBox* g : window->findChildren<QGroupBox*>())
    if (own(g)) top << g->title();
  for (QTabWidget* t : window->findChildren<QTabWidget*>())
    if (own(t))
      for (int i = 0; i < t->count(); ++i) top << t->tabText(i);
  for (const QString& c : Clashes(top)) out << name + ": " + c;
  for (QMenu* m : window->findChildren<QMenu*>()) {
    if (!own(m) || m->objectName() == "rowMenu") continue;
    QStringList items;
    for (QAction* a : m->actions())
      if (a->isVisible()) items << a->text();
    for (const QString& c : Clashes(items)) out << name + " " + m->title() + ": " + c;
  }
  return out;
}

// Texts that do not fit their widget at the window's size.
QStringList Clipped(QWidget* root) {
  QStringList out;
  for (QLabel* l : root->findChildren<QLabel*>()) {
    if (l->window() != root || !l->isVisible() || l->text().isEmpty() || l->textFormat() == Qt::RichText || Qt::mightBeRichText(l->text()))
      continue;
    const QRect r = l->contentsRect();
    if (l->wordWrap()) {
      if (l->heightForWidth(l->width()) > l->height()) out << "wrapped label " + l->objectName() + ": " + l->text();
    } else if (l->fontMetrics().horizontalAdvance(l->text()) > r.width() - 2 * l->margin()) {
      out << QStringLiteral("label %1 (%2 px): %3").arg(l->objectName()).arg(r.width()).arg(l->text());
    } else if (l->fontMetrics().boundingRect(l->text()).height() > r.height() ||
               l->height() < l->minimumSizeHint().height()) {
      // Too low: accents above capitals (Ö, Č) or descenders are cut.
      out << QStringLiteral("label %1 (%2 px high): %3").arg(l->objectName()).arg(r.height()).arg(l->text());
    }
  }
  for (QAbstractButton* b : root->findChildren<QAbstractButton*>()) {
    if (b->window() != root || !b->isVisible() || b->text().isEmpty()) continue;
    if (b->sizeHint().width() > b->width())
      out << QStringLiteral("button %1 (%2 < %3 px): %4").arg(b->objectName()).arg(b->width()).arg(b->sizeHint().width()).arg(b->text());
  }
  for (QGroupBox* g : root->findChildren<QGroupBox*>()) {
    if (g->window() != root || !g->isVisible() || g->title().isEmpty()) continue;
    if (g->fontMetrics().horizontalAdvance(g->title()) + 16 > g->width()) out << "group: " + g->title();
  }
  return out;
}

}  // namespace

// In every language, at the windows' default sizes: no text is cut off, and no two items of
// one menu or controls of one window share a keyboard mnemonic (English keeps the two
// clashes of its given texts in the Player menu).
TEST(LanguageFit, EveryLanguageFitsTheWindow) {
  App();
  testing_support::TestSession t;
  qputenv("TONVANE_DATA_DIR", TONVANE_BUILD_DIR);
  const QString only = qEnvironmentVariable("TONVANE_FIT_LANGUAGE");  // one language while translating
  const QFont startFont = QApplication::font();
  for (const LanguageInfo& lang : Languages()) {
    const QString code = QString::fromLatin1(lang.code);
    if (!only.isEmpty() && code != only) continue;
    LanguageLoader loader;
    loader.Load(code);  // the build tree's translations/, through the data folders
    if (code != "en") {
      EXPECT_TRUE(loader.programLoaded()) << "no translation for " << lang.code;
    }
    QApplication::setFont(startFont);
    ApplyLanguageFont(lang);
    {
      CBrenlowv10Dlg dlg;
      dlg.resize(760, 600);
      dlg.show();
      QApplication::processEvents();
      // Idle, then with a file open and both tests shown: the layout's needs fit the default
      // size (it was not widened to make room), and no text is cut off.
      for (int step = 0; step < 3; ++step) {
        if (step > 0) {
          if (step == 1) dlg.OpenByName(testing_support::Fixture("sine_16_stereo.wav"));
          dlg.session().m_testMode = step - 1;
          qobject_cast<QPushButton*>(dlg.control(kIdTestButton))->click();
          QApplication::processEvents();
        }
        EXPECT_LE(dlg.width(), 760) << lang.code << " step " << step;
        EXPECT_LE(dlg.height(), 600) << lang.code << " step " << step;
        for (const QString& c : Clipped(&dlg)) ADD_FAILURE() << lang.code << " step " << step << ": " << c.toStdString();
      }
      AboutDialog about(&dlg);
      about.show();
      QApplication::processEvents();
      for (const QString& c : Clipped(&about)) ADD_FAILURE() << lang.code << " about: " << c.toStdString();
      // The batch window at its opening size, and the dialogs it opens.
      CBatch batch(dlg.session(), kKindWav, &dlg);
      batch.show();
      CBatchProgress progress(*batch.list(), dlg.session(), BatchRunOptions{}, &batch);
      CTypeBP chooser(dlg.session(), &dlg);
      CAddFoldersDlg search(Tonvane::tr("Add Folders - Tonvane 1.0"), &batch);
      CDataBase database(dlg.session(), &dlg);
      const auto windows = {static_cast<QWidget*>(&batch), static_cast<QWidget*>(&progress), static_cast<QWidget*>(&chooser),
                            static_cast<QWidget*>(&search), static_cast<QWidget*>(&database)};
      for (QWidget* w : windows) w->show();
      QApplication::processEvents();
      for (QWidget* w : windows)
        for (const QString& c : Clipped(w)) ADD_FAILURE() << lang.code << " " << w->metaObject()->className() << ": " << c.toStdString();
      if (code == "en") continue;
      for (QWidget* w : std::initializer_list<QWidget*>{&dlg, &about})
        for (const QString& c : WindowClashes(w)) ADD_FAILURE() << lang.code << " " << c.toStdString();
      for (QWidget* w : windows)
        for (const QString& c : WindowClashes(w)) ADD_FAILURE() << lang.code << " " << c.toStdString();
    }
  }
  QApplication::setFont(startFont);
}

