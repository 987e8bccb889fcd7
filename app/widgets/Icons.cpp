#include "app/widgets/Icons.h"

namespace tonvane {

QIcon ThemedIcon(const QString& name) {
  return QIcon::fromTheme(name, QIcon(QStringLiteral(":/icons/actions/%1.svg").arg(name)));
}

QIcon AppIcon() {
  return QIcon::fromTheme(QStringLiteral("tonvane"), QIcon(QStringLiteral(":/icons/tonvane.svg")));
}

}  // namespace tonvane
