#pragma once
// The program's own texts. Every user-visible string goes through Tonvane::tr (or is
// marked with QT_TRANSLATE_NOOP("Tonvane", ...) where it sits in a table) so that lupdate
// finds it and the language files can replace it; the English source text is the one the
// tests compare.
#include <QCoreApplication>
#include <QString>

// The one translation context of the program.
class Tonvane {
  Q_DECLARE_TR_FUNCTIONS(Tonvane)
};

namespace tonvane {
inline const QString kAppTitle = QStringLiteral("Tonvane 1.0");
}
