#include "app/Themes.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QProcessEnvironment>
#include <QStandardPaths>
#include <QRegularExpression>

#include "app/Settings.h"
#include "app/Text.h"

const std::array<ThemeInfo, 5>& Themes() {
  static const std::array<ThemeInfo, 5> table = {{
      {32777, QT_TRANSLATE_NOOP("Tonvane", "&Windows XP"), "xtpThemeNativeWinXP", 3, 0, "", ThemePalette::Desktop},
      {32778, QT_TRANSLATE_NOOP("Tonvane", "&Office XP"), "xtpThemeOfficeXP", 1, 2, "Fusion", ThemePalette::Light},
      {32779, QT_TRANSLATE_NOOP("Tonvane", "O&ffice 2000"), "xtpThemeOffice2000", 0, 0, "Windows", ThemePalette::Classic},
      {32780, QT_TRANSLATE_NOOP("Tonvane", "Off&ice 2003"), "xtpThemeOffice2003", 2, 3, "Fusion", ThemePalette::Blue},
      {32788, QT_TRANSLATE_NOOP("Tonvane", "&Grey"), "xtpThemeWhidbey", 4, 0, "Fusion", ThemePalette::Grey},
  }};
  return table;
}

const ThemeInfo& ThemeFor(const QString& stored) {
  for (const ThemeInfo& t : Themes())
    if (stored == QLatin1String(t.stored)) return t;
  return Themes()[0];
}

QString StoredTheme() { return Settings::Theme(); }

void StoreTheme(const ThemeInfo& theme) {
  Settings::SetString(QStringLiteral("Theme"), QString::fromLatin1(theme.stored));
}

bool DesktopPrefersDark(int platformWindowLightness, const QString& gtkThemeEnv,
                        const QString& gtkSettingsIni, const QString& colorScheme) {
  if (platformWindowLightness >= 0 && platformWindowLightness < 128) return true;
  if (gtkThemeEnv.endsWith(QLatin1String(":dark"), Qt::CaseInsensitive) ||
      gtkThemeEnv.endsWith(QLatin1String("-dark"), Qt::CaseInsensitive))
    return true;
  if (colorScheme.contains(QLatin1String("prefer-dark"))) return true;
  static const QRegularExpression preferDark(
      QStringLiteral("^\\s*gtk-application-prefer-dark-theme\\s*=\\s*(1|true)\\s*$"),
      QRegularExpression::MultilineOption | QRegularExpression::CaseInsensitiveOption);
  return preferDark.match(gtkSettingsIni).hasMatch();
}

bool DesktopPrefersDark(int platformWindowLightness) {
  const QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
  QString configHome = env.value(QStringLiteral("XDG_CONFIG_HOME"));
  if (configHome.isEmpty()) configHome = QDir::homePath() + QStringLiteral("/.config");
  QString ini;
  QFile f(configHome + QStringLiteral("/gtk-3.0/settings.ini"));
  if (f.open(QIODevice::ReadOnly)) ini = QString::fromUtf8(f.read(64 * 1024));
  // GNOME keeps its light or dark choice in gsettings, which Qt's xcb platform does not read.
  QString scheme;
  const QString gsettings = QStandardPaths::findExecutable(QStringLiteral("gsettings"));
  if (!gsettings.isEmpty()) {
    QProcess p;
    p.start(gsettings, {QStringLiteral("get"), QStringLiteral("org.gnome.desktop.interface"),
                        QStringLiteral("color-scheme")});
    if (p.waitForFinished(1000)) scheme = QString::fromUtf8(p.readAllStandardOutput());
    else p.kill();
  }
  return DesktopPrefersDark(platformWindowLightness, env.value(QStringLiteral("GTK_THEME")), ini, scheme);
}

const ThemeColors& ColorsFor(ThemePalette palette) {
  //                         window    wText     base      altBase   text      button    bText     highlt    hText     tipBase   tipText   link      mid
  static const ThemeColors light = {0xf3f3f3, 0x1b1b1b, 0xffffff, 0xf5f7fa, 0x1b1b1b, 0xe9e9e9, 0x1b1b1b, 0x316ac5, 0xffffff, 0xffffe1, 0x1b1b1b, 0x1a5fb4, 0xb8b8b8};
  static const ThemeColors classic = {0xd4d0c8, 0x000000, 0xffffff, 0xf0f0f0, 0x000000, 0xd4d0c8, 0x000000, 0x0a246a, 0xffffff, 0xffffe1, 0x000000, 0x0000ee, 0x808080};
  static const ThemeColors blue = {0xdde8f7, 0x15284b, 0xffffff, 0xeef4fc, 0x15284b, 0xc4daf7, 0x15284b, 0xffc872, 0x15284b, 0xffffe1, 0x15284b, 0x1c4fa0, 0x8fa9d1};
  static const ThemeColors grey = {0x3a3d41, 0xe4e4e4, 0x2a2c2f, 0x33363a, 0xe4e4e4, 0x484c51, 0xe4e4e4, 0x4c8ed9, 0xffffff, 0x4a4e53, 0xf0f0f0, 0x8ab4f8, 0x5d6268};
  switch (palette) {
    case ThemePalette::Light: return light;
    case ThemePalette::Classic: return classic;
    case ThemePalette::Blue: return blue;
    case ThemePalette::Grey:
    case ThemePalette::Desktop: return grey;
  }
  return light;
}
