// tonvane-cli: the tests of Tonvane without a window.
#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTextStream>
extern "C" {
#include <libavutil/log.h>
}
#include <clocale>
#include <cmath>
#include <cstdio>

#include "app/Globals.h"
#include "app/HeadlessTest.h"
#include "app/Session.h"
#include "app/Settings.h"
#include "formats/WorkFile.h"
#include "log/TestLog.h"

namespace {

const char* KindName(int kind) {
  switch (kind) {
    case kKindWav: return "WAV";
    case kKindMp3: return "MP3";
    case kKindFlac: return "FLAC";
    case kKindOgg: return "Ogg Vorbis";
    case kKindApe: return "APE";
    case kKindAac: return "AAC";
    case kKindAlac: return "ALAC";
    default: return "";
  }
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

}  // namespace

int main(int argc, char** argv) {
  QCoreApplication app(argc, argv);
  QCoreApplication::setOrganizationName(Settings::Organization());
  QCoreApplication::setApplicationName(QStringLiteral("Tonvane"));
  QCoreApplication::setApplicationVersion(QStringLiteral(TONVANE_VERSION));
  std::setlocale(LC_NUMERIC, "C");
  // The decoders report damage through our own messages; FFmpeg's log lines would only
  // repeat them on the console.
  av_log_set_level(AV_LOG_QUIET);

  QCommandLineParser p;
  p.setApplicationDescription(
      "Tonvane measures how loud audio files are: the peak level of each channel, or its "
      "average level against an 89 dB reference.");
  p.addHelpOption();
  p.addVersionOption();
  QCommandLineOption peak("peak", "Peak test: the largest sample of each channel.");
  QCommandLineOption average("average", "Average test: loudness against 89 dB, maximum level, clipping.");
  QCommandLineOption db("db", "Show levels in dB instead of percent.");
  QCommandLineOption info("info", "Show the file's properties only (the default without a test).");
  QCommandLineOption json("json", "One JSON object per file and line.");
  QCommandLineOption noLog("no-log", "Measure without the test log.");
  QCommandLineOption logFile("log", "Use FILE as the test log.", "FILE");
  p.addOptions({peak, average, db, info, json, noLog, logFile});
  p.addPositionalArgument("FILE", "Audio files: WAV, MP3, FLAC, Ogg Vorbis, APE, AAC, ALAC.", "FILE...");

  QTextStream err(stderr);
  if (!p.parse(app.arguments())) {
    err << p.errorText() << "\n" << "Try 'tonvane-cli --help'.\n";
    return 2;
  }
  if (p.isSet("help")) {
    QTextStream(stdout) << p.helpText();
    return 0;
  }
  if (p.isSet("version")) {
    QTextStream(stdout) << "tonvane-cli " << TONVANE_VERSION << "\n";
    return 0;
  }
  const QStringList files = p.positionalArguments();
  if (files.isEmpty()) {
    err << "tonvane-cli: no FILE given.\nTry 'tonvane-cli --help'.\n";
    return 2;
  }
  if (p.isSet(peak) && p.isSet(average)) {
    err << "tonvane-cli: choose one of --peak and --average.\n";
    return 2;
  }
  if (p.isSet(info) && (p.isSet(peak) || p.isSet(average))) {
    err << "tonvane-cli: --info shows properties only; it does not combine with a test.\n";
    return 2;
  }

  Session s;
  RecordingPrompt prompt;
  NullPump pump;
  s.m_prompt.SetUi(&prompt);
  s.m_pump = &pump;
  s.LoadSettings();

  HeadlessOptions o;
  o.testMode = p.isSet(peak) ? 0 : p.isSet(average) ? 1 : -1;
  o.showDb = p.isSet(db) ? 1 : 0;
  o.useLog = !p.isSet(noLog);
  // The log is settled as at the program's start: created when missing, emptied above the cap.
  if (o.testMode >= 0 && o.useLog) {
    if (p.isSet(logFile))
      CheckLogAt(s, QDir::current().absoluteFilePath(p.value(logFile)));
    else
      CheckLogAtStart(s);
  }

  QTextStream out(stdout);
  int failures = 0;
  for (const QString& f : files) {
    HeadlessReport r = TestFileHeadless(s, prompt, f, o);
    if (!r.ok) ++failures;
    if (p.isSet(json)) {
      out << QJsonDocument(ToJson(r)).toJson(QJsonDocument::Compact) << "\n";
    } else {
      PrintTable(out, r);
    }
    out.flush();
  }
  JoinWorker();
  return failures ? 1 : 0;
}
