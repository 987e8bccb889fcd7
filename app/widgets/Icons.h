#pragma once
// Icons by their freedesktop names (document-open, media-playback-start, ...): the desktop's
// icon theme draws them where it has the name, so the window matches the rest of the desktop;
// the program's own drawing, built in, stands in where it has not.
#include <QIcon>
#include <QString>

namespace tonvane {

// The theme's icon `name`, else the built-in ":/icons/actions/<name>.svg".
QIcon ThemedIcon(const QString& name);

// The application's icon: the installed "tonvane" of the theme, else the built-in drawing.
QIcon AppIcon();

}  // namespace tonvane
