// Looking a file up in a test log at the 12 MB cap: the last record, which a scan from the
// top reaches last. Compared with grep -F over the same file, the plain text search that a
// person would run on it.
#include <benchmark/benchmark.h>

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <chrono>
#include <cstdio>
#include <cstdlib>

#include "app/Session.h"
#include "log/TestLog.h"

namespace {

struct BigLog {
  QTemporaryDir dir;
  QString log, key;
  int records = 0;
  int64_t size = 0;

  BigLog() {
    log = dir.filePath("TestLog.csv");
    key = dir.filePath("Music/Some Artist/Some Album (2019)/12 - The Last Track.flac");
    QDir().mkpath(QFileInfo(key).absolutePath());
    QFile(key).open(QIODevice::WriteOnly);
    // One real record gives the exact row format; the others are copies under other names.
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
    const QByteArray head = all.left(226), last = all.mid(226);
    QByteArray body;
    const int64_t cap = 12 * 1048576;
    body.reserve(cap);
    for (int i = 0; head.size() + body.size() + 2 * last.size() <= cap; ++i, ++records) {
      QByteArray other = last;
      other.replace("12 - The Last Track", "Track " + QByteArray::number(i).rightJustified(6, '0') + " -- Title");
      body += other;
    }
    f.open(QIODevice::WriteOnly | QIODevice::Truncate);
    f.write(head + body + last);
    f.close();
    ++records;
    size = QFileInfo(log).size();
  }
};

BigLog& Log() {
  static BigLog big;
  return big;
}


// What a single test pays: open, look up, close (the index is built at every open).
void BM_OpenFindClose(benchmark::State& state) {
  BigLog& b = Log();
  Session s;
  s.m_logPath = b.log;
  for (auto _ : state) {
    TestLog t(s);
    t.OpenLog();
    RowState r = t.FindRow(b.key);
    if (r != RowState::Fresh) state.SkipWithError("last record not found");
    benchmark::DoNotOptimize(r);
  }
  state.counters["records"] = b.records;
  state.counters["MB"] = double(b.size) / 1048576.0;
}
BENCHMARK(BM_OpenFindClose)->Unit(benchmark::kMillisecond)->UseRealTime();

// What each file of a batch pays: the log stays open for the run.
void BM_FindInOpenLog(benchmark::State& state) {
  BigLog& b = Log();
  Session s;
  s.m_logPath = b.log;
  TestLog t(s);
  t.OpenLog();
  t.FindRow(b.key);  // builds the index once
  for (auto _ : state) {
    RowState r = t.FindRow(b.key);
    if (r != RowState::Fresh) state.SkipWithError("last record not found");
    benchmark::DoNotOptimize(r);
  }
}
BENCHMARK(BM_FindInOpenLog)->Unit(benchmark::kMicrosecond)->UseRealTime();

void BM_PeerGrep(benchmark::State& state) {
  BigLog& b = Log();
  const QByteArray cmd = "grep -F -c -- '" + b.key.toUtf8() + "' '" + b.log.toUtf8() + "' > /dev/null";
  for (auto _ : state) {
    if (std::system(cmd.constData()) != 0) state.SkipWithError("grep failed");
  }
}
BENCHMARK(BM_PeerGrep)->Unit(benchmark::kMillisecond)->UseRealTime();

class RatioReporter : public benchmark::ConsoleReporter {
 public:
  void ReportRuns(const std::vector<Run>& runs) override {
    for (const Run& r : runs) {
      const double ms = r.GetAdjustedRealTime() * (r.time_unit == benchmark::kMicrosecond ? 1e-3 : 1.0);
      if (r.benchmark_name().find("OpenFindClose") != std::string::npos) m_open = ms;
      if (r.benchmark_name().find("FindInOpenLog") != std::string::npos) m_find = ms;
      if (r.benchmark_name().find("PeerGrep") != std::string::npos) m_grep = ms;
    }
    ConsoleReporter::ReportRuns(runs);
  }
  void Finalize() override {
    ConsoleReporter::Finalize();
    std::printf("\nLast record of a %.1f MB log (%d records), target under 20 ms:\n", double(Log().size) / 1048576.0,
                Log().records);
    std::printf("  open + find + close  %8.3f ms   (%.2fx the time of grep -F)\n", m_open, m_open / m_grep);
    std::printf("  find in an open log  %8.3f ms   (%.4fx the time of grep -F)\n", m_find, m_find / m_grep);
    std::printf("  grep -F -c           %8.3f ms\n", m_grep);
  }

 private:
  double m_open = 0, m_find = 0, m_grep = 0;
};

}  // namespace

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  RatioReporter reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);
  benchmark::Shutdown();
  return 0;
}
