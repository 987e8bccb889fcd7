#pragma once
// The seventeen interface languages: their menu, their codes, the Qt locale each code stands
// for, and the loading of the program's and Qt's own translations at start. A language takes
// effect only at the next start; choosing one stores its code and nothing else.
#include <QCoreApplication>
#include <QString>
#include <QStringList>
#include <array>
#include <memory>
#include <vector>

class QTranslator;

struct LanguageInfo {
  int commandId;           // menu command of "&Interface Language"
  const char* menuText;    // English name, marked for translation
  const char* code;        // value stored under Language
  const char* qtLocale;    // the locale whose Qt translations and conventions apply
  int charSet;             // the character set its fonts were made with
  int toolBarId;           // its tool-bar layout
  const char* cjkFamily;   // a family with the right glyph forms for Han text, or null
};

// The items of "&Interface Language", in menu order.
const std::array<LanguageInfo, 17>& Languages();

// The row of a code, compared exactly; null for a code that stands in no row.
const LanguageInfo* FindLanguage(const QString& code);
// The row that governs the interface: a code in no row counts as English.
const LanguageInfo& LanguageOrEnglish(const QString& code);

// The Language value as stored now, read anew on each call (the menu's check marks follow
// it, not the language of the running interface). Empty when nothing is stored.
QString StoredLanguageCode();
// Stores a language's code for the next start.
void StoreLanguageCode(const QString& code);
// What the person is told after choosing a language.
QString RestartText();

// The folder of a kind ("translations", "help") in each data folder, best first
// (app/DataPaths.h says where those are).
QStringList DataFolders(const QString& kind);

// The help index to open for an interface language: help/<code>/index.html where that page
// is translated, else help/index.html; empty when no help is installed.
QString HelpIndexFor(const QString& code, const QStringList& folders = DataFolders("help"));

// The code of the interface language loaded at start ("" for English).
QString CurrentInterfaceLanguage();

// The translators of one interface language. They must outlive the application's use of them,
// so the caller keeps this object for the run.
class LanguageLoader {
 public:
  LanguageLoader();
  ~LanguageLoader();
  LanguageLoader(const LanguageLoader&) = delete;
  LanguageLoader& operator=(const LanguageLoader&) = delete;

  // Installs the program's translation of `code` and Qt's own for its locale (dialog buttons
  // and the like) into the running application. English and unknown codes install nothing.
  // A missing file leaves that part English; nothing is reported to the person.
  void Load(const QString& code, const QStringList& programFolders = DataFolders("translations"),
            const QString& qtFolder = {});
  // Removes what Load installed.
  void Unload();

  bool programLoaded() const { return m_programLoaded; }
  bool qtLoaded() const { return m_qtLoaded; }

 private:
  std::unique_ptr<QTranslator> m_program;
  std::unique_ptr<QTranslator> m_qt;
  bool m_programLoaded = false;
  bool m_qtLoaded = false;
};
