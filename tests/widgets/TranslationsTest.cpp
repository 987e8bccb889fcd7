#include <QAbstractButton>
#include <QAction>
#include <QFile>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRegularExpression>
#include <QSet>
#include <QTranslator>
#include <QXmlStreamReader>
#include <algorithm>
#include <gtest/gtest.h>

#include "app/widgets/MainDialog.h"
#include "support/TestSupport.h"
#include "widgets/WidgetTestSupport.h"

namespace {

// Sees every text the program asks to translate, and translates nothing.
class RecordingTranslator : public QTranslator {
 public:
  QString translate(const char* context, const char* source, const char*, int) const override {
    if (source && *source && qstrcmp(context, "Tonvane") == 0) seen.insert(QString::fromUtf8(source));
    return {};
  }
  bool isEmpty() const override { return false; }
  mutable QSet<QString> seen;
};

QSet<QString> TemplateSources() {
  QSet<QString> out;
  QFile f(QStringLiteral(TONVANE_SOURCE_DIR) + "/res/translations/tonvane_en.ts");
  if (!f.open(QIODevice::ReadOnly)) return out;
  QXmlStreamReader xml(&f);
  while (!xml.atEnd())
    if (xml.readNext() == QXmlStreamReader::StartElement && xml.name() == QLatin1String("source"))
      out.insert(xml.readElementText());
  return out;
}

// Numbers, blanks and the product's name are no language.
bool IsData(const QString& text) {
  static const QRegularExpression plain(QStringLiteral("^[\\d\\s.:%()-]*$"));
  return plain.match(text).hasMatch() || text == QLatin1String("Tonvane 1.0");
}

class TranslationsTest : public ::testing::Test {
 protected:
  void SetUp() override {
    widget_support::App();
    QCoreApplication::installTranslator(&recorder);
  }
  void TearDown() override { QCoreApplication::removeTranslator(&recorder); }
  testing_support::TestSession t;
  RecordingTranslator recorder;
};

}  // namespace

// Every text the window translates while it opens a file and tests it stands in the
// template, and every text the fresh window shows went through translation.
TEST_F(TranslationsTest, ShownTextsAreInTheTemplate) {
  const QSet<QString> sources = TemplateSources();
  ASSERT_GT(sources.size(), 100);
  CBrenlowv10Dlg dlg;
  dlg.show();
  QStringList shown;
  for (QAction* a : dlg.findChildren<QAction*>()) shown << a->text() << a->toolTip();
  for (QLabel* l : dlg.findChildren<QLabel*>()) shown << l->text();
  for (QAbstractButton* b : dlg.findChildren<QAbstractButton*>()) shown << b->text() << b->toolTip();
  for (QGroupBox* g : dlg.findChildren<QGroupBox*>()) shown << g->title();
  for (const QString& text : shown) {
    if (text.isEmpty() || IsData(text)) continue;
    // A tool tip that Qt makes from an action's text drops the mnemonic and the ellipsis.
    auto asTip = [](QString s) {
      s.remove('&');
      if (s.endsWith(QLatin1String("..."))) s.chop(3);
      return s;
    };
    const bool translated =
        recorder.seen.contains(text) ||
        std::any_of(recorder.seen.begin(), recorder.seen.end(), [&](const QString& s) { return asTip(s) == text; });
    EXPECT_TRUE(translated) << "shown without translation: \"" << text.toStdString() << "\"";
  }

  dlg.OpenByName(testing_support::Fixture("sine_16_stereo.wav"));
  for (int mode : {0, 1}) {
    dlg.session().m_testMode = mode;
    qobject_cast<QPushButton*>(dlg.control(kIdTestButton))->click();
  }
  for (const QString& s : recorder.seen)
    EXPECT_TRUE(sources.contains(s)) << "missing from the template: \"" << s.toStdString() << "\"";
}
