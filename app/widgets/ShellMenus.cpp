#include "app/widgets/ShellMenus.h"

#include <QAction>
#include <QApplication>
#include <QDesktopServices>
#include <QFontDatabase>
#include <QMenu>
#include <QMessageBox>
#include <QPalette>
#include <QPointer>
#include <QStyle>
#include <QStyleFactory>
#include <QUrl>

#include "app/AboutInfo.h"
#include "app/Languages.h"
#include "app/Text.h"
#include "app/Themes.h"
#include "app/widgets/AboutDialog.h"

ShellMenus::ShellMenus(QWidget* window) : QObject(window), m_window(window) {}

void ShellMenus::AddOptionMenus(QMenu* options, std::map<int, QAction*>& registry) {
  options->addSeparator();
  QMenu* languages = options->addMenu(Tonvane::tr("&Interface Language"));
  languages->setObjectName(QStringLiteral("languageMenu"));
  for (const LanguageInfo& l : Languages()) {
    QAction* a = languages->addAction(Tonvane::tr(l.menuText));
    a->setCheckable(true);
    a->setData(l.commandId);
    a->setObjectName(QStringLiteral("cmd%1").arg(l.commandId));
    const QString code = QString::fromLatin1(l.code);
    connect(a, &QAction::triggered, this, [this, code] { ChooseLanguage(code); });
    registry[l.commandId] = a;
    m_languageActions.emplace_back(a, code);
  }

  QMenu* themes = options->addMenu(Tonvane::tr("&Themes"));
  themes->setObjectName(QStringLiteral("themeMenu"));
  for (const ThemeInfo& t : Themes()) {
    QAction* a = themes->addAction(Tonvane::tr(t.menuText));
    a->setCheckable(true);
    a->setData(t.commandId);
    a->setObjectName(QStringLiteral("cmd%1").arg(t.commandId));
    const ThemeInfo* theme = &t;
    connect(a, &QAction::triggered, this, [this, theme] { ChooseTheme(*theme); });
    registry[t.commandId] = a;
    m_themeActions.emplace_back(a, theme);
  }
  // The marks are kept up to date when a menu opens, as the update handlers did.
  connect(options, &QMenu::aboutToShow, this, &ShellMenus::RefreshChecks);
  connect(languages, &QMenu::aboutToShow, this, &ShellMenus::RefreshChecks);
  connect(themes, &QMenu::aboutToShow, this, &ShellMenus::RefreshChecks);
  RefreshChecks();
}

void ShellMenus::RefreshChecks() {
  const QString stored = StoredLanguageCode();
  for (auto& [action, code] : m_languageActions) action->setChecked(code == stored);
  const ThemeInfo& current = ThemeFor(StoredTheme());
  for (auto& [action, theme] : m_themeActions) action->setChecked(theme == &current);
}

void ShellMenus::ChooseLanguage(const QString& code) {
  StoreLanguageCode(code);
  RefreshChecks();
  QMessageBox::information(m_window, tonvane::kAppTitle, RestartText());
}

void ShellMenus::ChooseTheme(const ThemeInfo& theme) {
  StoreTheme(theme);
  ApplyTheme(theme);
  RefreshChecks();
}

void ShellMenus::OnHelp() {
  const QString page = HelpIndexFor(CurrentInterfaceLanguage());
  if (page.isEmpty()) {
    QMessageBox::warning(m_window, tonvane::kAppTitle,
                         Tonvane::tr("Sorry, but the help of the program is not installed."));
    return;
  }
  if (!QDesktopServices::openUrl(QUrl::fromLocalFile(page)))
    QMessageBox::warning(m_window, tonvane::kAppTitle,
                         Tonvane::tr("Sorry, but the help page %1 cannot be opened.").arg(page));
}

void ShellMenus::OnHomepage() {
  const QString page = QString::fromLatin1(tonvane::kHomePage);
  if (!QDesktopServices::openUrl(QUrl(page)))
    QMessageBox::warning(m_window, tonvane::kAppTitle,
                         Tonvane::tr("Sorry, but the home page %1 cannot be opened.").arg(page));
}

void ShellMenus::OnAbout() {
  AboutDialog dlg(m_window);
  dlg.exec();
}

namespace {

QColor Rgb(uint32_t v) { return QColor::fromRgb(QRgb(v)); }

QPalette PaletteFrom(const ThemeColors& c) {
  QPalette p;
  p.setColor(QPalette::Window, Rgb(c.window));
  p.setColor(QPalette::WindowText, Rgb(c.windowText));
  p.setColor(QPalette::Base, Rgb(c.base));
  p.setColor(QPalette::AlternateBase, Rgb(c.alternateBase));
  p.setColor(QPalette::Text, Rgb(c.text));
  p.setColor(QPalette::Button, Rgb(c.button));
  p.setColor(QPalette::ButtonText, Rgb(c.buttonText));
  p.setColor(QPalette::Highlight, Rgb(c.highlight));
  p.setColor(QPalette::HighlightedText, Rgb(c.highlightedText));
  p.setColor(QPalette::ToolTipBase, Rgb(c.toolTipBase));
  p.setColor(QPalette::ToolTipText, Rgb(c.toolTipText));
  p.setColor(QPalette::Link, Rgb(c.link));
  p.setColor(QPalette::Mid, Rgb(c.mid));
  p.setColor(QPalette::BrightText, Qt::red);
  const QColor window = Rgb(c.window);
  const bool dark = window.lightness() < 128;
  p.setColor(QPalette::Light, dark ? window.lighter(130) : Qt::white);
  p.setColor(QPalette::Midlight, dark ? window.lighter(115) : window.lighter(105));
  p.setColor(QPalette::Dark, dark ? window.darker(160) : window.darker(150));
  p.setColor(QPalette::Shadow, dark ? QColor(0x10, 0x10, 0x10) : QColor(0x60, 0x60, 0x60));
  p.setColor(QPalette::PlaceholderText, Rgb(c.mid));
  // Disabled text is the window text halfway to the background.
  auto blend = [](QColor a, QColor b) {
    return QColor((a.red() + b.red()) / 2, (a.green() + b.green()) / 2, (a.blue() + b.blue()) / 2);
  };
  const QColor disabled = blend(Rgb(c.windowText), window);
  for (QPalette::ColorRole r : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
    p.setColor(QPalette::Disabled, r, disabled);
  p.setColor(QPalette::Disabled, QPalette::Highlight, Rgb(c.mid));
  return p;
}

struct DesktopLook {
  QString style;
  QPalette palette;
  bool dark = false;
};

const DesktopLook& Desktop() {
  static const DesktopLook look = [] {
    DesktopLook d;
    d.style = QApplication::style() ? QApplication::style()->name() : QString();
    d.palette = QApplication::palette();
    d.dark = DesktopPrefersDark(d.palette.color(QPalette::Window).lightness());
    return d;
  }();
  return look;
}

}  // namespace

void ApplyTheme(const ThemeInfo& theme) {
  const DesktopLook& desktop = Desktop();
  if (theme.palette == ThemePalette::Desktop) {
    if (!desktop.style.isEmpty()) QApplication::setStyle(QStyleFactory::create(desktop.style));
    const bool platformDark = desktop.palette.color(QPalette::Window).lightness() < 128;
    if (desktop.dark && !platformDark) {
      // The desktop asks for dark but the platform gave a light palette: draw it dark.
      QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
      QApplication::setPalette(PaletteFrom(ColorsFor(ThemePalette::Grey)));
    } else {
      QApplication::setPalette(desktop.palette);
    }
    return;
  }
  if (QStyle* style = QStyleFactory::create(QString::fromLatin1(theme.qtStyle))) QApplication::setStyle(style);
  QApplication::setPalette(PaletteFrom(ColorsFor(theme.palette)));
}

void ApplyLanguageFont(const LanguageInfo& language) {
  if (!language.cjkFamily) return;
  const QString family = QString::fromLatin1(language.cjkFamily);
  if (!QFontDatabase::families().contains(family)) return;  // fontconfig's fallback still draws it
  QFont f = QApplication::font();
  f.setFamilies({family, f.family()});
  QApplication::setFont(f);
}
