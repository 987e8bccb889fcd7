#include <QIcon>
#include <QToolButton>
#include <gtest/gtest.h>

#include "app/widgets/Icons.h"
#include "app/widgets/MainDialog.h"
#include "support/TestSupport.h"
#include "widgets/WidgetTestSupport.h"

namespace {

// On a desktop whose icon theme has none of our names, every button still shows a drawing:
// each name the window asks for has a built-in stand-in, and the SVG plug-in renders it.
TEST(Icons, EveryButtonHasADrawingWithoutAnIconTheme) {
  widget_support::App();
  testing_support::TestSession t;
  const QString theme = QIcon::themeName();
  QIcon::setThemeName(QStringLiteral("no-such-theme"));
  CBrenlowv10Dlg dlg;
  const QList<QToolButton*> buttons = dlg.findChildren<QToolButton*>();
  ASSERT_GE(buttons.size(), 11);  // four tool bar commands, seven transport buttons
  for (const QToolButton* b : buttons) {
    if (b->objectName() == "qt_toolbar_ext_button") continue;  // Qt's own overflow arrow
    EXPECT_FALSE(b->icon().pixmap(22, 22).isNull()) << b->objectName().toStdString();
  }
  for (int size : {16, 256})
    EXPECT_EQ(tonvane::AppIcon().pixmap(size, size).size(), QSize(size, size)) << size;
  QIcon::setThemeName(theme);
}

}  // namespace
