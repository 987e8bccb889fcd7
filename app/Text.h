#pragma once
// The program's own texts. Every user-visible string goes through TR so that the
// language files can replace it; the English source text is the one the tests compare.
#include <QCoreApplication>
#include <QString>

#define TR(s) QCoreApplication::translate("Tonvane", s)

namespace tonvane {
inline const QString kAppTitle = QStringLiteral("Tonvane 1.0");
}
