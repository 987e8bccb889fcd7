#pragma once
// Shared helpers for the tests: temporary folders, fixture paths, a session wired to
// recording seams.
#include <QByteArray>
#include <QString>
#include <QTemporaryDir>
#include <memory>

#include "app/Prompt.h"
#include "app/Pump.h"
#include "app/Session.h"

namespace testing_support {

// Path of a generated fixture (scripts/make-fixtures) in the build tree.
QString Fixture(const QString& name);
// Path of a Monkey's Audio file in the shared test data.
QString ApeData(const QString& name);
QString CliPath();

// A session with a RecordingPrompt and a SchedulePump, settings in a private folder.
struct TestSession {
  TestSession();
  ~TestSession();
  QTemporaryDir dir;  // also XDG_CONFIG_HOME and XDG_DATA_HOME
  RecordingPrompt prompt;
  SchedulePump pump;
  std::unique_ptr<Session> s;
  QString Path(const QString& name) const { return dir.filePath(name); }
};

bool WriteFile(const QString& path, const QByteArray& bytes);
QByteArray ReadFile(const QString& path);

// A path or argument in single quotes for /bin/sh.
QString Quote(const QString& s);

// Runs a command line through /bin/sh; returns its exit status and fills `out` with stdout.
int RunShell(const QString& command, QByteArray* out = nullptr);

}  // namespace testing_support
