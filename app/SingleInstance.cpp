#include "app/SingleInstance.h"

#include <QDir>
#include <QLockFile>
#include <QStandardPaths>

#include "app/Text.h"

SingleInstance::SingleInstance() = default;
SingleInstance::~SingleInstance() = default;

QString SingleInstance::LockPath() {
  QString dir = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
  if (dir.isEmpty()) dir = QDir::tempPath();
  return dir + "/FA539CC7-0467-11d3-A180-07803A37623E.lock";
}

QString SingleInstance::AlreadyRunningText() {
  return Tonvane::tr("Sorry, but the copy of this program is already launched and it is fulfilling. "
            "Therefore the launch of this copy program will be stopped.");
}

bool SingleInstance::Acquire() {
  m_lock = std::make_unique<QLockFile>(LockPath());
  m_lock->setStaleLockTime(0);  // only a dead owner makes the lock stale, never its age
  return m_lock->tryLock(0);
}
