#include "app/DataPaths.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace tonvane {

QStringList DataDirs() {
  return DataDirs(QCoreApplication::instance() ? QCoreApplication::applicationDirPath() : QString());
}

QStringList DataDirs(const QString& programDir) {
  QStringList candidates;
  const QString env = qEnvironmentVariable("TONVANE_DATA_DIR");
  if (!env.isEmpty()) candidates << env;
  if (!programDir.isEmpty()) candidates << programDir << programDir + "/../share/tonvane";
  candidates << QStandardPaths::locateAll(QStandardPaths::GenericDataLocation, QStringLiteral("tonvane"),
                                          QStandardPaths::LocateDirectory);
  QStringList dirs;
  for (const QString& c : candidates) {
    const QFileInfo fi(c);
    if (!fi.isDir()) continue;
    // /usr/bin/../share/tonvane and /usr/share/tonvane are one folder.
    const QString canonical = fi.canonicalFilePath();
    if (!dirs.contains(canonical)) dirs << canonical;
  }
  return dirs;
}

QString FindDataFile(const QString& relative) {
  for (const QString& dir : DataDirs()) {
    const QString path = QDir(dir).filePath(relative);
    if (QFileInfo::exists(path)) return path;
  }
  return {};
}

}  // namespace tonvane
