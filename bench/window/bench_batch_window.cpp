// The batch window's speed, offscreen: how fast a folder of FILL files fills its list, and
// how long the window's event loop waits at worst while a run of RUN files goes on.
//
//   bench_batch_window [FILL [RUN [ROUNDS]]]     (defaults 10000, 1000, 3; EMOJI=1 in the
//                                                 environment: an emoji in every run name)
//
// Peers in the same run: the core's adder filling a list with no window (what the window
// adds on top), and a bare QDirIterator over the same folder (the file system's floor).
// Figures are medians over ROUNDS; the gap is the longest wait between two ticks of a 2 ms
// timer while the run lasts, with its 99th percentile beside it. Targets: at least 1,000
// files a second, and no gap above 50 ms.
#include <QApplication>
#include <QDir>
#include <QDirIterator>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QThread>
#include <QTimer>
#include <algorithm>
#include <cstdio>
#include <cstring>
#include <vector>

#include "app/Globals.h"
#include "app/Prompt.h"
#include "app/Session.h"
#include "app/Settings.h"
#include "app/widgets/BatchWindow.h"
#include "app/widgets/QtSeams.h"
#include "batch/BatchAdd.h"
#include "batch/BatchControl.h"
#include "batch/BatchList.h"
#include "batch/BatchRun.h"
#include "formats/WorkFile.h"
#include "log/TestLog.h"

namespace {

double Median(std::vector<double> v) {
  std::sort(v.begin(), v.end());
  return v.empty() ? 0 : v[v.size() / 2];
}

// A tenth of a second of 16-bit mono at 44.1 kHz: enough for the scan and a real test.
QByteArray SmallWav() {
  const int frames = 4410;
  QByteArray wav = MakeWorkHeader(1, 44100, 16, 1, uint32_t(frames * 2));
  QByteArray data(frames * 2, '\0');
  for (int i = 0; i < frames; ++i) {
    const int16_t v = int16_t(8000.0 * ((i / 50) % 2 ? 1 : -1));
    std::memcpy(data.data() + i * 2, &v, 2);
  }
  return wav + data;
}

void MakeFolder(const QString& folder, int count, const char* pattern) {
  QDir().mkpath(folder);
  const QByteArray wav = SmallWav();
  for (int i = 0; i < count; ++i) {
    QFile f(folder + '/' + QString::fromUtf8(pattern).arg(i));
    if (f.open(QIODevice::WriteOnly)) f.write(wav);
  }
}

class SilentPrompt : public IPrompt {
 public:
  PromptAnswer Show(const PromptRequest&) override { return {}; }
};

}  // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", qgetenv("QT_QPA_PLATFORM").isEmpty() ? "offscreen" : qgetenv("QT_QPA_PLATFORM"));
  qputenv("SDL_AUDIODRIVER", "dummy");
  QTemporaryDir dir;
  qputenv("XDG_CONFIG_HOME", dir.filePath("config").toUtf8());
  qputenv("XDG_DATA_HOME", dir.filePath("data").toUtf8());
  QApplication app(argc, argv);
  const int fill = argc > 1 ? std::atoi(argv[1]) : 10000;
  const int run = argc > 2 ? std::atoi(argv[2]) : 1000;
  const int rounds = argc > 3 ? std::max(1, std::atoi(argv[3])) : 3;

  Session s;
  SilentPrompt prompt;
  QtPump pump;
  s.m_prompt.SetUi(&prompt);
  s.m_pump = &pump;
  s.m_logPath = dir.filePath("TestLog.csv");
  CreateEmptyLog(s.m_logPath);
  s.m_logAvailable = 1;
  s.m_useDatabase = 1;
  Settings::SetInt("CloseWindow", 1);

  const QString big = dir.filePath("big"), small = dir.filePath("run");
  MakeFolder(big, fill, "Prøve, \"%1\" שלום.wav");
  // Colour emoji cost a shaping of PNG glyphs wherever a name is laid out; EMOJI=1 puts one
  // in every name to show that cost.
  const bool emoji = qEnvironmentVariableIntValue("EMOJI") != 0;
  MakeFolder(small, run, emoji ? "%1 🤔 Prøve.wav" : "%1, \"Prøve\" שלום.wav");
  std::printf("batch window, %d files to fill, %d to run%s, %d rounds\n", fill, run, emoji ? " (emoji in names)" : "",
              rounds);

  std::vector<double> walk, core, window;
  for (int r = 0; r < rounds; ++r) {
    QElapsedTimer clock;
    clock.start();
    int n = 0;
    for (QDirIterator it(big, {"*.wav"}, QDir::Files); it.hasNext(); it.next()) ++n;
    walk.push_back(n / (clock.nsecsElapsed() / 1e9));

    std::list<BatchFileInfo> records;
    BatchList list(kKindWav, records);
    clock.restart();
    BatchAdder(list, s).AddFolder(big, false);
    core.push_back(list.FileCount() / (clock.nsecsElapsed() / 1e9));

    s.m_patchFolder.clear();  // no list to read at opening
    CBatch b(s, kKindWav);
    b.show();
    QApplication::processEvents();
    b.chooseFolder = [&](const QString&) { return big; };
    clock.restart();
    b.OnAddFolder();
    window.push_back(b.list()->FileCount() / (clock.nsecsElapsed() / 1e9));
    b.OnBatchClose();
  }
  const double w = Median(window), c = Median(core), d = Median(walk);
  std::printf("fill: window %.0f files/s; core adder alone %.0f files/s (window/core %.2f); "
              "folder walk %.0f files/s (window/walk %.3f)  [target >= 1000]\n",
              w, c, w / c, d, w / d);

  std::vector<double> worsts, p99s, seconds, coreSeconds;
  for (int r = 0; r < rounds; ++r) {
    // The peer: the core's runner over the same files, with the log, no window.
    DeleteWorkFile(s.m_logPath);
    CreateEmptyLog(s.m_logPath);
    std::list<BatchFileInfo> records;
    BatchList list(kKindWav, records);
    BatchAdder(list, s).AddFolder(small, false);
    BatchControl control;
    BatchRunOptions options;
    options.useLog = true;
    options.jobs = std::max(1, QThread::idealThreadCount());
    QElapsedTimer core;
    core.start();
    BatchRunner(list, s, control, options).Run();
    coreSeconds.push_back(core.elapsed() / 1000.0);
  }
  for (int r = 0; r < rounds; ++r) {
    DeleteWorkFile(s.m_logPath);
    CreateEmptyLog(s.m_logPath);  // every round measures every file
    s.m_patchFolder.clear();
    CBatch b(s, kKindWav);
    b.show();
    QApplication::processEvents();
    b.chooseFolder = [&](const QString&) { return small; };
    b.OnAddFolder();
    std::vector<qint64> gaps;
    qint64 last = -1;
    QElapsedTimer gap;
    gap.start();
    QTimer probe;
    QObject::connect(&probe, &QTimer::timeout, [&] {
      const qint64 now = gap.elapsed();
      if (last >= 0) gaps.push_back(now - last);
      last = now;
    });
    probe.start(2);
    QElapsedTimer clock;
    clock.start();
    b.OnTest();
    probe.stop();
    seconds.push_back(clock.elapsed() / 1000.0);
    std::sort(gaps.begin(), gaps.end());
    worsts.push_back(gaps.empty() ? 0 : double(gaps.back()));
    p99s.push_back(gaps.empty() ? 0 : double(gaps[gaps.size() * 99 / 100]));
    b.OnBatchClose();
  }
  std::printf("run: %d files in %.2f s, core runner alone %.2f s (window/core %.2f); "
              "event-loop gap worst %.0f ms, 99th percentile %.0f ms  [target <= 50]\n",
              run, Median(seconds), Median(coreSeconds), Median(seconds) / Median(coreSeconds), Median(worsts),
              Median(p99s));
  return 0;
}
