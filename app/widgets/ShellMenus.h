#pragma once
// The shell's own commands: the "&Interface Language" and "&Themes" submenus of Options,
// Help and the about box, and the look and fonts applied at start. The main window adds these
// with one call and forwards Help and About here.
#include <QObject>
#include <QString>
#include <map>
#include <vector>

class QAction;
class QMenu;
class QWidget;
struct LanguageInfo;
struct ThemeInfo;

class ShellMenus : public QObject {
  Q_OBJECT
 public:
  explicit ShellMenus(QWidget* window);

  // Adds both submenus to `options`; their actions join `registry` under their command ids.
  void AddOptionMenus(QMenu* options, std::map<int, QAction*>& registry);

  // Opens the help page of the interface language in the desktop's browser.
  void OnHelp();
  // The modal about box.
  void OnAbout();
  // The product's home page in the desktop's browser; a box when none can take it.
  void OnHomepage();

  // Stores a language for the next start and says so; the interface stays as it is.
  void ChooseLanguage(const QString& code);
  // Stores a theme and applies it at once.
  void ChooseTheme(const ThemeInfo& theme);
  // Check marks: the stored Language, read anew; the current theme.
  void RefreshChecks();

 private:
  QWidget* m_window;
  std::vector<std::pair<QAction*, QString>> m_languageActions;
  std::vector<std::pair<QAction*, const ThemeInfo*>> m_themeActions;
};

// Applies a theme's style and palette to the whole application. The first call notes the
// desktop's own style and palette, so call it once at start before anything else changes them.
void ApplyTheme(const ThemeInfo& theme);
// Fonts for the interface language: Han text gets the family with the right glyph forms.
void ApplyLanguageFont(const LanguageInfo& language);
