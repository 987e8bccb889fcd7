#include "app/Settings.h"

#include <QDir>
#include <QSettings>
#include <QStandardPaths>

namespace {
QSettings Store() { return QSettings(Settings::Organization(), Settings::Application()); }
QString Key(const QString& section, const QString& name) { return section + "/" + name; }
}  // namespace

int Settings::GetInt(const QString& name, int absent, const QString& section) {
  QSettings s = Store();
  bool ok = false;
  int v = s.value(Key(section, name), absent).toInt(&ok);
  return ok ? v : absent;
}

void Settings::SetInt(const QString& name, int value, const QString& section) {
  QSettings s = Store();
  s.setValue(Key(section, name), value);
  s.sync();
}

QString Settings::GetString(const QString& name, const QString& absent, const QString& section) {
  QSettings s = Store();
  return s.value(Key(section, name), absent).toString();
}

void Settings::SetString(const QString& name, const QString& value, const QString& section) {
  QSettings s = Store();
  s.setValue(Key(section, name), value);
  s.sync();
}

bool Settings::Has(const QString& name, const QString& section) {
  QSettings s = Store();
  return s.contains(Key(section, name));
}

const QStringList& Settings::KnownLanguages() {
  // The seventeen interface languages, in the order of their menu.
  static const QStringList codes = {"ru", "en", "de", "es", "fr", "it", "nl", "pt", "no",
                                    "da", "tr", "pl", "cr", "cn", "ko", "cs", "sl"};
  return codes;
}

QString Settings::Language() {
  QString code = GetString("Language");
  if (code.isEmpty() || code == "en" || !KnownLanguages().contains(code)) return {};
  return code;
}

QString Settings::Theme() { return GetString("Theme", "xtpThemeNativeWinXP"); }

QString Settings::InstallPath() {
  QString p = GetString("InstallPath");
  if (p.isEmpty()) {
    // No installer writes this here: the data folder stands in, so the log works at once.
    p = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    if (p.isEmpty()) p = QDir::homePath() + "/.local/share/Tonvane";
  }
  while (p.size() > 1 && p.endsWith('/')) p.chop(1);
  return p;
}

QString Settings::PatchLog() {
  QString p = GetString("PatchLog");
  if (p.isEmpty()) {
    p = InstallPath() + "/TestLog.csv";
    SetString("PatchLog", p);
  }
  return p;
}

int Settings::DataBaseSize() { return GetInt("DataBaseSize", 1); }
int Settings::ShowDb() { return GetInt("ShowDb", 0) != 0 ? 1 : 0; }
int Settings::Looping() { return GetInt("Looping", 10) == 0 ? 0 : 1; }
int Settings::Beep() {
  int v = GetInt("Beep", 10);
  return (v == 10 || v == 0) ? 0 : 1;
}
QString Settings::PatchFolder() { return GetString("PatchFolder"); }
int Settings::NumberFilter() { return GetInt("NumberFilter", 1); }
