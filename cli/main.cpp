// tonvane-cli: the tests of Tonvane without a window, over files, folders and playlists.
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTextStream>
#include <QThread>
extern "C" {
#include <libavutil/log.h>
}
#include <signal.h>
#include <sys/stat.h>
#include <unistd.h>

#include <clocale>
#include <cmath>
#include <cstdio>
#include <ctime>

#include "lazy/LazyLibraries.h"
#include "app/Globals.h"
#include "app/HeadlessTest.h"
#include "app/Session.h"
#include "app/Settings.h"
#include "batch/BatchAdd.h"
#include "batch/BatchControl.h"
#include "batch/BatchList.h"
#include "batch/BatchRun.h"
#include "cli/Usage.h"
#include "formats/Kinds.h"
#include "formats/WorkFile.h"
#include "log/TestLog.h"

namespace {

volatile sig_atomic_t g_interrupted = 0;
void OnInterrupt(int) { g_interrupted = 1; }

const char* KindName(int kind) {
  const KindInfo* k = KindInfoOf(kind);
  return k ? k->displayName : "";
}

QJsonValue Num(double v) {
  if (!std::isfinite(v)) return QJsonValue();
  return QJsonValue(v);
}

QJsonObject ToJson(const HeadlessReport& r) {
  QJsonObject o;
  o["file"] = r.file;
  o["ok"] = r.ok;
  o["error"] = r.ok ? QJsonValue() : QJsonValue(r.error);
  o["kind"] = r.kind >= 0 ? QJsonValue(KindName(r.kind)) : QJsonValue();
  o["channels"] = r.channels;
  o["sampleRate"] = r.sampleRate;
  o["bits"] = r.bits;
  o["durationMs"] = double(r.durationMs);
  o["properties"] = QJsonArray::fromStringList(r.properties);
  o["test"] = r.testMode == 0 ? QJsonValue("peak") : r.testMode == 1 ? QJsonValue("average") : QJsonValue();
  o["scale"] = r.testMode < 0 ? QJsonValue() : QJsonValue(r.showDb ? "dB" : "percent");
  o["fromLog"] = r.fromLog;
  o["sampleBytesRead"] = double(r.sampleBytesRead);
  QJsonArray levels;
  if (r.ok && r.testMode >= 0) {
    for (const ChannelLevelView& c : r.levels) {
      QJsonObject l;
      l["level"] = Num(c.level);
      l["maxLevel"] = c.hasMax ? Num(c.maxLevel) : QJsonValue();
      l["clipping"] = c.hasVerdict ? QJsonValue(c.clipping) : QJsonValue();
      l["gain"] = r.testMode == 1 ? Num(c.gain) : QJsonValue();
      levels.append(l);
    }
  }
  o["levels"] = levels;
  QJsonObject res;
  const LevelResult& v = r.result;
  res["GainLeft"] = Num(v.GainLeft);
  res["GainRight"] = Num(v.GainRight);
  res["NoClippingLeft"] = Num(v.NoClippingLeft);
  res["NoClippingRight"] = Num(v.NoClippingRight);
  res["WavLeft"] = Num(v.WavLeft);
  res["WavRight"] = Num(v.WavRight);
  res["WavPikLeft"] = Num(v.WavPikLeft);
  res["WavPikRight"] = Num(v.WavPikRight);
  res["WavPikNoClippingLeft"] = Num(v.WavPikNoClippingLeft);
  res["WavPikNoClippingRight"] = Num(v.WavPikNoClippingRight);
  o["result"] = res;
  return o;
}

QString LevelText(double v, bool db, bool wholePercent) {
  if (db) return QString::asprintf("%.2f dB", v);
  return wholePercent ? QString::asprintf("%.0f %%", v) : QString::asprintf("%.1f %%", v);
}

void PrintTable(QTextStream& out, const HeadlessReport& r) {
  out << r.file << "\n";
  if (!r.ok) {
    for (const QString& line : r.error.split('\n')) out << "  error: " << line << "\n";
    return;
  }
  for (const QString& line : r.properties)
    if (!line.isEmpty()) out << line << "\n";
  if (r.durationMs) {
    unsigned ms = r.durationMs;
    out << QString::asprintf("  Duration            %u:%02u.%02u\n", ms / 60000, ms / 1000 % 60, ms / 10 % 100);
  }
  if (r.testMode < 0) return;
  out << "  Test: " << (r.testMode == 0 ? "peak level" : "average level") << ", "
      << (r.showDb ? "dB" : "percent") << (r.fromLog ? " (from the test log)" : "") << "\n";
  const char* names2[] = {"Left ", "Right"};
  for (size_t i = 0; i < r.levels.size(); ++i) {
    const ChannelLevelView& c = r.levels[i];
    QString name = r.levels.size() == 1 ? "Mono " : names2[i];
    out << "    " << name << "  Level " << LevelText(c.level, r.showDb, r.testMode == 0);
    if (c.hasMax) out << "   Max Level " << LevelText(c.maxLevel, r.showDb, false);
    if (c.hasVerdict && c.clipping) out << "   Clipping";
    out << "\n";
  }
}

// A row of the run as the single-file report the output functions print.
HeadlessReport ReportOf(const BatchRowOutcome& o, const BatchFileInfo* info, bool showDb) {
  HeadlessReport r;
  r.file = o.path;
  r.ok = o.state != BatchRowOutcome::Failed;
  r.error = o.error;
  r.kind = o.kind;
  r.channels = o.channels;
  r.bits = o.bits;
  r.testMode = o.testMode;
  r.showDb = showDb;
  r.fromLog = o.state == BatchRowOutcome::FromLog;
  r.sampleBytesRead = o.sampleBytes;
  if (info) {
    r.sampleRate = int(info->sampleRate);
    r.durationMs = info->durationMs;
    if (!info->audioFormat.isEmpty()) r.properties << "  Audio Format        " + info->audioFormat;
    if (info->sampleRate) r.properties << QString("  Sample Rate         %1 Hz").arg(info->sampleRate);
    if (info->channels) r.properties << QString("  Channels            %1").arg(info->channels);
    if (info->bits && o.kind != kKindMp3) r.properties << QString("  Bits                %1").arg(info->bits);
    if (!info->bitRateText.isEmpty()) r.properties << "  Bit Rate           " + info->bitRateText;
  }
  if (!r.ok) return r;
  r.result = o.result;
  Session s;
  s.m_sourceKind = o.kind;
  s.m_testMode = o.testMode;
  s.m_showDb = showDb;
  s.m_channels = o.channels;
  s.m_bits = o.bits ? o.bits : 16;
  s.m_mpegMode = info ? info->mpegMode : -1;
  s.m_result = o.result;
  r.levels = ChannelLevels(s);
  return r;
}

// "FileName,Year,...,WavPikNoClippingRight,Status,Error": the log's columns and two more.
QString CsvCell(const QString& v) {
  if (!v.contains(',') && !v.contains('"') && !v.contains('\n') && !v.contains('\r')) return v;
  QString q = v;
  q.replace('"', "\"\"");
  return '"' + q + '"';
}

QString CsvRow(const BatchRowOutcome& o) {
  QStringList cells{CsvCell(o.path)};
  struct stat st;
  if (::stat(QFile::encodeName(o.path).constData(), &st) == 0) {
    struct tm t;
    localtime_r(&st.st_mtime, &t);
    for (int v : {t.tm_year + 1900, t.tm_mon + 1, t.tm_mday, t.tm_hour, t.tm_min, t.tm_sec, t.tm_wday + 1})
      cells << QString::number(v);
  } else {
    for (int i = 0; i < 7; ++i) cells << QString();
  }
  const LevelResult& v = o.result;
  for (float f : {v.GainLeft, v.GainRight, v.NoClippingLeft, v.NoClippingRight, v.WavLeft, v.WavRight, v.WavPikLeft,
                  v.WavPikRight, v.WavPikNoClippingLeft, v.WavPikNoClippingRight})
    cells << QString::asprintf("%f", double(f));
  static const char* const states[] = {"tested", "from log", "failed"};
  cells << states[o.state] << CsvCell(QString(o.error).replace('\n', ' '));
  return cells.join(',');
}

QString Clock(double seconds) {
  const long s = std::lround(std::max(0.0, seconds));
  return s >= 3600 ? QString::asprintf("%ld:%02ld:%02ld", s / 3600, s / 60 % 60, s % 60)
                   : QString::asprintf("%ld:%02ld", s / 60, s % 60);
}

// Prints the rows as they are committed, with the named files that could not be taken at
// their places, and the progress line on a terminal.
class CliView : public IBatchRunView {
 public:
  CliView(const BatchList& list, QTextStream& out, bool json, bool csv, bool showDb, bool progress)
      : m_list(list), m_out(out), m_json(json), m_csv(csv), m_showDb(showDb), m_progress(progress) {}

  // A named file that failed before the run, to stand before the row `beforeRow`.
  struct Refused {
    int beforeRow;
    HeadlessReport report;
  };
  std::vector<Refused> refused;
  size_t nextRefused = 0;

  void PrintRefused(int upToRow) {
    while (nextRefused < refused.size() && refused[nextRefused].beforeRow <= upToRow) {
      const HeadlessReport& r = refused[nextRefused++].report;
      BatchRowOutcome o;
      o.path = r.file;
      o.error = r.error;
      Print(r, o);
    }
  }
  void Print(const HeadlessReport& r, const BatchRowOutcome& o) {
    ClearLine();
    if (m_json)
      m_out << QJsonDocument(ToJson(r)).toJson(QJsonDocument::Compact) << "\n";
    else if (m_csv)
      m_out << CsvRow(o) << "\n";
    else
      PrintTable(m_out, r);
    m_out.flush();
  }

  void Count(int n) override { m_count = n; }
  void FileStarted(int, const QString& path) override {
    m_current = QFileInfo(path).fileName();
    Draw();
  }
  void Progress(int percent) override {
    m_percent = percent;
    Draw();
  }
  void Estimate(double seconds) override { m_left = seconds; }
  void Paused(bool paused) override {
    m_paused = paused;
    Draw();
  }
  void RowDone(const BatchRowOutcome& o) override {
    PrintRefused(o.row);
    Print(ReportOf(o, m_list.Info(o.row), m_showDb), o);
    ++m_done;
  }
  void Finished(const BatchRunSummary&) override { ClearLine(); }

 private:
  void Draw() {
    if (!m_progress) return;
    QString line = QString::asprintf("[%3d%%] %d/%d", m_percent, m_done, m_count);
    if (m_paused) line += "  paused";
    else if (m_left >= 0) line += "  " + Clock(m_left) + " left";
    line += "  " + m_current;
    if (line.size() > 79) line = line.left(78) + "…";
    std::fprintf(stderr, "\r\033[K%s", line.toLocal8Bit().constData());
    std::fflush(stderr);
    m_drawn = true;
  }
  void ClearLine() {
    if (!m_drawn) return;
    std::fprintf(stderr, "\r\033[K");
    std::fflush(stderr);
    m_drawn = false;
  }
  const BatchList& m_list;
  QTextStream& m_out;
  bool m_json, m_csv, m_showDb, m_progress;
  bool m_drawn = false, m_paused = false;
  int m_count = 0, m_done = 0, m_percent = 0;
  double m_left = -1;
  QString m_current;
};

}  // namespace

int main(int argc, char** argv) {
  QCoreApplication app(argc, argv);
  QCoreApplication::setOrganizationName(Settings::Organization());
  QCoreApplication::setApplicationName(QStringLiteral("Tonvane"));
  QCoreApplication::setApplicationVersion(QStringLiteral(TONVANE_VERSION));
  std::setlocale(LC_NUMERIC, "C");
  // The decoders report damage through our own messages; FFmpeg's log lines would only
  // repeat them on the console.
  WhenLibrariesLoad([] { av_log_set_level(AV_LOG_QUIET); });

  QCommandLineParser p;
  CliOptions o;
  SetUpParser(p, o);
  QTextStream err(stderr);
  auto usage = [&](const QString& text) {
    err << "tonvane-cli: " << text << "\nTry 'tonvane-cli --help'.\n";
    return 2;
  };
  if (!p.parse(app.arguments())) return usage(p.errorText());
  if (p.isSet("help")) {
    QTextStream(stdout) << p.helpText();
    return 0;
  }
  if (p.isSet("version")) {
    QTextStream(stdout) << "tonvane-cli " << TONVANE_VERSION << "\n";
    return 0;
  }
  const QStringList paths = p.positionalArguments();
  if (paths.isEmpty()) return usage("no PATH given.");
  if (p.isSet(o.peak) && p.isSet(o.average)) return usage("choose one of --peak and --average.");
  if (p.isSet(o.info) && (p.isSet(o.peak) || p.isSet(o.average)))
    return usage("--info shows properties only; it does not combine with a test.");
  if (p.isSet(o.json) && p.isSet(o.csv)) return usage("choose one of --json and --csv.");
  int batchKind = kAnyKind;
  if (p.isSet(o.kind)) {
    batchKind = KindOfCliName(p.value(o.kind));
    if (batchKind < 0) return usage("unknown kind '" + p.value(o.kind) + "'; use mp3, wav, flac, ogg, ape or mp4.");
  }
  int jobs = QThread::idealThreadCount();
  if (p.isSet(o.jobs)) {
    bool ok = false;
    jobs = p.value(o.jobs).toInt(&ok);
    if (!ok || jobs < 1 || jobs > 256) return usage("--jobs takes a number from 1 to 256.");
  }
  const int testMode = p.isSet(o.peak) ? 0 : p.isSet(o.average) ? 1 : -1;
  const bool showDb = p.isSet(o.db);
  const bool json = p.isSet(o.json), csv = p.isSet(o.csv);

  // Ctrl+C ends the work at the next poll; what is committed stays.
  struct sigaction sa{};
  sa.sa_handler = OnInterrupt;
  sigemptyset(&sa.sa_mask);
  sigaction(SIGINT, &sa, nullptr);
  sigaction(SIGTERM, &sa, nullptr);

  Session s;
  StderrPrompt prompt;
  NullPump pump;
  s.m_prompt.SetUi(&prompt);
  s.m_pump = &pump;
  s.LoadSettings();
  s.m_showDb = showDb;
  s.m_useDatabase = !p.isSet(o.noLog) && testMode >= 0;
  // The log is settled as at the program's start: created when missing, emptied above the cap.
  if (s.m_useDatabase) {
    if (p.isSet(o.logFile))
      CheckLogAt(s, QDir::current().absoluteFilePath(p.value(o.logFile)));
    else
      CheckLogAtStart(s);
  }

  BatchControl control;
  control.processEvents = [&control] {
    if (g_interrupted) control.Cancel();
  };
  BatchList list(batchKind);
  list.SetShowDb(showDb);
  QTextStream out(stdout);
  CliView view(list, out, json, csv, showDb, testMode >= 0 && ::isatty(STDERR_FILENO));
  if (csv) {
    out << QStringList(LogColumnNames()).join(',') << ",Status,Error\n";
    out.flush();
  }

  // Gather: every PATH in order. A file that can't be taken (named, or a playlist's
  // missing entry) keeps its place as a failed row; an unreadable folder fails the run.
  bool folderFailed = false;
  {
    BatchAdder add(list, s, &control);
    for (const QString& path : paths) {
      add.AddPath(path, p.isSet(o.recursive));
      if (add.Cancelled()) break;
    }
    for (const BatchAdder::Problem& problem : add.Problems()) {
      if (problem.folder) {
        folderFailed = true;
        continue;
      }
      HeadlessReport r;
      r.file = problem.path;
      r.error = problem.text;
      view.refused.push_back({problem.beforeRow, r});
    }
  }
  if (g_interrupted) return 130;

  int failures = int(view.refused.size());
  if (testMode < 0) {
    // Properties only, through the single-file road.
    for (int row = 0; row < list.FileCount() && !g_interrupted; ++row) {
      view.PrintRefused(row);
      RecordingPrompt rp;
      s.m_prompt.SetUi(&rp);
      HeadlessOptions ho;
      const HeadlessReport r = TestFileHeadless(s, rp, list.PathOf(row), ho);
      if (!r.ok) ++failures;
      BatchRowOutcome oc;
      oc.path = r.file;
      oc.error = r.error;
      oc.state = r.ok ? BatchRowOutcome::Tested : BatchRowOutcome::Failed;
      view.Print(r, oc);
    }
    view.PrintRefused(INT32_MAX);
    JoinWorker();
    if (g_interrupted) return 130;
    return failures || folderFailed ? 1 : 0;
  }

  // Every listed file is the person's choice: a bad one is reported in its place.
  list.CheckAll();
  BatchRunner run(list, s, control, {testMode, s.m_useDatabase != 0, jobs});
  run.SetView(&view);
  BatchRunSummary sum;
  if (list.FileCount() > 0) {
    // The run's own "no file checked" message does not apply: there were no files.
    sum = run.Run();
  }
  view.PrintRefused(sum.cancelled ? -1 : INT32_MAX);
  failures += sum.failed;

  const QString summary = QString::asprintf(
      "%d files, %d tested, %d from the log, %d failed; %.1f s of audio in %.1f s (%.1fx realtime)%s",
      sum.count + int(view.refused.size()), sum.tested, sum.fromLog, failures, sum.audioSeconds, sum.wallSeconds,
      sum.Realtime(), sum.cancelled ? "; stopped" : "");
  // Machine formats keep their stream to the rows; the summary goes beside them.
  if (json || csv)
    err << summary << "\n";
  else
    out << summary << "\n";
  out.flush();
  JoinWorker();
  if (sum.cancelled || g_interrupted) return 130;
  return failures || folderFailed ? 1 : 0;
}
