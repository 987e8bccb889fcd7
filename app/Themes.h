#pragma once
// The five looks of "&Themes". Each is a Qt style and a palette; the first follows the
// desktop, light or dark. The choice is stored under Theme and applied at once. Colours are
// plain 0xRRGGBB values here so that the core needs no GUI module; the window builds the
// palette from them.
#include <QString>
#include <array>
#include <cstdint>

// One palette as the window needs it. Disabled text is derived from these by the window.
struct ThemeColors {
  uint32_t window, windowText, base, alternateBase, text, button, buttonText, highlight,
      highlightedText, toolTipBase, toolTipText, link, mid;
};

enum class ThemePalette {
  Desktop,   // the platform's own palette, or the dark one when the desktop asks for dark
  Light,     // neutral light with a blue selection
  Classic,   // the grey of classic desktops, square and plain
  Blue,      // light blue bars with a warm selection
  Grey,      // dark grey
};

struct ThemeInfo {
  int commandId;
  const char* menuText;     // marked for translation
  const char* stored;       // the Theme value
  int paintTheme;           // the toolkit's number of the look
  int mTheme;               // look of the file list and the Test button: 0, 2 or 3
  const char* qtStyle;      // Qt style key; empty: the desktop's own style
  ThemePalette palette;
};

// The items of "&Themes", in menu order. The first is the default.
const std::array<ThemeInfo, 5>& Themes();

// The row of a stored value; any other value (and none) is the first row.
const ThemeInfo& ThemeFor(const QString& stored);

// The Theme value now stored, and the storing of a choice.
QString StoredTheme();
void StoreTheme(const ThemeInfo& theme);

// Whether the desktop asks for a dark look. The platform's palette decides when it is dark
// itself; otherwise a GTK theme named "...:dark" in GTK_THEME, or the GTK settings file's
// gtk-application-prefer-dark-theme, or a GNOME color-scheme of "prefer-dark", do.
bool DesktopPrefersDark(int platformWindowLightness, const QString& gtkThemeEnv,
                        const QString& gtkSettingsIni, const QString& colorScheme);
// The same, reading the environment and ~/.config/gtk-3.0/settings.ini.
bool DesktopPrefersDark(int platformWindowLightness);

// The colours of a palette kind; Desktop has none of its own (it answers the dark set, which
// is what the window uses when the desktop asks for dark but its platform palette is light).
const ThemeColors& ColorsFor(ThemePalette palette);
