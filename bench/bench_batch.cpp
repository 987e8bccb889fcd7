// Adding a collection to the batch list: the walk, the name tests, the property scan of
// every file and the look-up in the test log, for the tree that bench/batch makes
// (TONVANE_BATCH_TREE). Once with the log off, once with a log at the 12 MB cap, which
// the add opens once for all files.
#include <benchmark/benchmark.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <cstdlib>

#include "app/Session.h"
#include "batch/BatchAdd.h"
#include "batch/BatchList.h"
#include "log/TestLog.h"

namespace {

QString Tree() { return qEnvironmentVariable("TONVANE_BATCH_TREE"); }

// A log of about 12 MB whose records name other files.
QString BigLog(QTemporaryDir& dir) {
  const QString log = dir.filePath("TestLog.csv");
  const QString key = dir.filePath("Some Artist/Some Album/01 - Some Track.flac");
  QDir().mkpath(QFileInfo(key).path());
  QFile(key).open(QIODevice::WriteOnly);
  Session s;
  s.m_logPath = log;
  CreateEmptyLog(log);
  {
    TestLog t(s);
    t.OpenLog();
    LevelResult v;
    v.WavLeft = 87.654321f;
    v.WavRight = 91.5f;
    t.WriteRow(key, LogTest::Wav, t.FindRow(key), v);
  }
  QFile f(log);
  f.open(QIODevice::ReadOnly);
  const QByteArray all = f.readAll();
  f.close();
  const QByteArray head = all.left(226), record = all.mid(226);
  QByteArray body;
  for (int i = 0; head.size() + body.size() + record.size() <= 12 * 1048576; ++i) {
    QByteArray other = record;
    other.replace("01 - Some Track", "Track " + QByteArray::number(i).rightJustified(6, '0'));
    body += other;
  }
  f.open(QIODevice::WriteOnly | QIODevice::Truncate);
  f.write(head + body);
  f.close();
  return log;
}

void BM_AddTree(benchmark::State& state) {
  const QString tree = Tree();
  if (tree.isEmpty() || !QFileInfo(tree).isDir()) {
    state.SkipWithError("TONVANE_BATCH_TREE names no folder (bench/batch makes it)");
    return;
  }
  QTemporaryDir dir;
  Session s;
  s.m_useDatabase = state.range(0) ? 1 : 0;
  s.m_logAvailable = s.m_useDatabase;
  if (s.m_useDatabase) s.m_logPath = BigLog(dir);
  int files = 0;
  for (auto _ : state) {
    std::list<BatchFileInfo> records;
    BatchList list(kAnyKind, records);
    BatchAdder add(list, s);
    add.AddFolder(tree, true);
    files = list.FileCount();
  }
  state.counters["files"] = files;
  state.counters["files/s"] = benchmark::Counter(double(files) * double(state.iterations()), benchmark::Counter::kIsRate);
}
BENCHMARK(BM_AddTree)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond)->UseRealTime()->MinTime(2.0);

}  // namespace

BENCHMARK_MAIN();
