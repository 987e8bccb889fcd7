#pragma once
// One running copy per user: a lock file in the runtime folder, named after the old
// mutex's GUID. A lock left by a process that died is taken over.
#include <QString>
#include <memory>

class QLockFile;

class SingleInstance {
 public:
  SingleInstance();
  ~SingleInstance();
  // True when this process holds the lock (or took over a stale one).
  bool Acquire();
  static QString LockPath();
  static QString AlreadyRunningText();

 private:
  std::unique_ptr<QLockFile> m_lock;
};
