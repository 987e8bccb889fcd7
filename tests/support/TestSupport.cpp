#include "support/TestSupport.h"

#include <QCoreApplication>
#include <QFile>
#include <QProcess>
#include <cstdlib>

#include "app/Globals.h"
#include "formats/WorkFile.h"

namespace {
// Test programs live in tests/ of the build tree, one folder below the data files that the
// build puts beside the programs (translations/, help/, notify.wav).
const bool kDataDirSet = [] {
  if (qEnvironmentVariableIsEmpty("TONVANE_DATA_DIR")) qputenv("TONVANE_DATA_DIR", TONVANE_BUILD_DIR);
  return true;
}();
}  // namespace

namespace testing_support {

QString Fixture(const QString& name) { return QStringLiteral(TONVANE_FIXTURES) + "/" + name; }
// The shared test data beside the repository; TONVANE_APE_DATA names it for a checkout
// that stands elsewhere (a worktree).
QString ApeData(const QString& name) {
  const QString dir = qEnvironmentVariableIsSet("TONVANE_APE_DATA") ? qEnvironmentVariable("TONVANE_APE_DATA")
                                                                    : QStringLiteral(TONVANE_APE_DATA);
  return dir + "/" + name;
}
QString CliPath() { return QStringLiteral(TONVANE_CLI); }

TestSession::TestSession() {
  qputenv("XDG_CONFIG_HOME", dir.path().toUtf8() + "/config");
  qputenv("XDG_DATA_HOME", dir.path().toUtf8() + "/data");
  s = std::make_unique<Session>();
  s->m_prompt.SetUi(&prompt);
  s->m_pump = &pump;
  s->m_logPath = dir.filePath("TestLog.csv");
}

TestSession::~TestSession() {
  JoinWorker();
  g_workerBusy = 0;
  g_copyFailed = 0;
  g_copyFinished = 0;
  ClearSessionPaths();
}

bool WriteFile(const QString& path, const QByteArray& bytes) {
  QFile f(path);
  if (!f.open(QIODevice::WriteOnly | QIODevice::Truncate)) return false;
  return f.write(bytes) == bytes.size();
}

QByteArray ReadFile(const QString& path) {
  QFile f(path);
  if (!f.open(QIODevice::ReadOnly)) return {};
  return f.readAll();
}

QString Quote(const QString& s) { return "'" + QString(s).replace('\'', "'\\''") + "'"; }

int RunShell(const QString& command, QByteArray* out) {
  QProcess p;
  p.start("/bin/sh", {"-c", command});
  p.waitForFinished(-1);
  if (out) *out = p.readAllStandardOutput();
  return p.exitStatus() == QProcess::NormalExit ? p.exitCode() : -1;
}

}  // namespace testing_support
