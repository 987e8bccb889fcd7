#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QGroupBox>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QSettings>
#include <gtest/gtest.h>

#include "app/Languages.h"
#include "app/Settings.h"
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

// Mnemonic letters of a menu's items that clash with another item of the same menu.
QStringList Clashes(const QList<QAction*>& actions) {
  QMap<QChar, QString> seen;
  QStringList clashes;
  for (QAction* a : actions) {
    const QString text = QString(a->text()).replace("&&", "");
    const int at = text.indexOf('&');
    if (at < 0 || at + 1 >= text.size()) continue;
    const QChar key = text.at(at + 1).toLower();
    if (seen.contains(key)) clashes << seen[key] + " / " + a->text();
    seen[key] = a->text();
  }
  return clashes;
}

// Texts that do not fit their widget at the window's size.
QStringList Clipped(QWidget* root) {
  QStringList out;
  for (QLabel* l : root->findChildren<QLabel*>()) {
    if (!l->isVisible() || l->text().isEmpty() || l->textFormat() == Qt::RichText || Qt::mightBeRichText(l->text()))
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
    if (!b->isVisible() || b->text().isEmpty()) continue;
    if (b->sizeHint().width() > b->width())
      out << QStringLiteral("button %1 (%2 < %3 px): %4").arg(b->objectName()).arg(b->width()).arg(b->sizeHint().width()).arg(b->text());
  }
  for (QGroupBox* g : root->findChildren<QGroupBox*>()) {
    if (!g->isVisible() || g->title().isEmpty()) continue;
    if (g->fontMetrics().horizontalAdvance(g->title()) + 16 > g->width()) out << "group: " + g->title();
  }
  return out;
}

}  // namespace

// In every language, at the window's default size: no text is cut off and no two items of
// one menu share a keyboard mnemonic (English keeps the two clashes of its given texts in
// the Player menu).
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
      if (code == "en") continue;
      for (const QString& c : Clashes(dlg.menuBar()->actions())) ADD_FAILURE() << lang.code << " menu bar: " << c.toStdString();
      for (QMenu* m : dlg.findChildren<QMenu*>()) {
        for (const QString& c : Clashes(m->actions()))
          ADD_FAILURE() << lang.code << " " << m->title().toStdString() << ": " << c.toStdString();
      }
    }
  }
  QApplication::setFont(startFont);
}

