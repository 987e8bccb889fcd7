#pragma once
// Persistent settings under QSettings("Ostrel Works", "Tonvane 1.0"), group "Settings".
// Each value is written at the moment it changes, never at exit.
#include <QString>
#include <QVariant>

class Settings {
 public:
  static QString Organization() { return QStringLiteral("Ostrel Works"); }
  static QString Application() { return QStringLiteral("Tonvane 1.0"); }

  // Generic profile calls on a section (default "Settings").
  static int GetInt(const QString& name, int absent, const QString& section = QStringLiteral("Settings"));
  static void SetInt(const QString& name, int value, const QString& section = QStringLiteral("Settings"));
  static QString GetString(const QString& name, const QString& absent = {},
                           const QString& section = QStringLiteral("Settings"));
  static void SetString(const QString& name, const QString& value,
                        const QString& section = QStringLiteral("Settings"));
  static bool Has(const QString& name, const QString& section = QStringLiteral("Settings"));

  // The table of values with their read-back rules.
  static QString Language();       // two-letter code; unknown or absent: "" (English)
  static QString Theme();          // absent: "xtpThemeNativeWinXP"
  static QString InstallPath();    // absent: the application's data folder
  static QString PatchLog();       // absent: InstallPath + "/TestLog.csv", written back at once
  static int DataBaseSize();       // absent: 1
  static int ShowDb();             // non-zero: dB display, read back as 1
  static int Looping();            // absent reads 10, which means 1
  static int Beep();               // absent reads 10, which means 0
  static QString PatchFolder();
  static int NumberFilter();       // absent: 1

  // The language codes that have an interface.
  static const QStringList& KnownLanguages();
};
