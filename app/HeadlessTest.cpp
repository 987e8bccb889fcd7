#include "app/HeadlessTest.h"

#include <QFileInfo>

#include "app/Globals.h"
#include "app/Session.h"
#include "app/Text.h"
#include "formats/FlacSource.h"
#include "formats/OpenPipeline.h"
#include "formats/WorkFile.h"
#include "level/GainEngine.h"
#include "level/PeakScanner.h"
#include "log/TestLog.h"

namespace {

void ResetFile(Session& s) {
  s.m_formatTag = 0;
  s.m_channels = 2;
  s.m_bits = 16;
  s.m_sampleRate = 0;
  s.m_durationMs = 0;
  s.m_bitRate = 0;
  s.m_mpegMode = -1;
  s.m_fileSize = s.m_fileSizeHigh = 0;
  s.m_dataSize = s.m_dataOffset = 0;
  s.m_fmtBlock.clear();
  for (QString& line : s.m_propertyLines) line.clear();
  s.m_levelLeft = s.m_levelRight = -1.0f;
  s.m_noClipDbLeft = s.m_noClipDbRight = 0;
  s.m_result = LevelResult{};
  s.m_cancelRequested = 0;
}

// Removes the work file unless it is the source itself (read in place).
void DropWorkFile() {
  if (!g_workPath.isEmpty() && g_workPath != g_sourcePath) DeleteWorkFile(g_workPath);
  ClearSessionPaths();
}

// The source can be measured where it lies: a PCM WAV by the scanner and the gain engine,
// an MP3 by the engine, which decodes by itself.
bool ReadInPlace(const Session& s, int testMode) {
  if (s.m_sourceKind == kKindMp3) return testMode == 1;
  return s.m_sourceKind == kKindWav && (s.m_formatTag == 1 || s.m_formatTag == 3);
}

LogTest GroupOf(int testMode, int showDb) {
  if (testMode == 1) return LogTest::Gain;
  return showDb ? LogTest::WavPik : LogTest::Wav;
}

// Moves the values of a peak scan or of a log row between the result and the session.
void PeakToResult(Session& s) {
  if (s.m_showDb) {
    s.m_result.WavPikLeft = s.m_levelLeft;
    s.m_result.WavPikRight = s.m_levelRight;
    s.m_result.WavPikNoClippingLeft = s.m_noClipDbLeft;
    s.m_result.WavPikNoClippingRight = s.m_noClipDbRight;
  } else {
    s.m_result.WavLeft = s.m_levelLeft;
    s.m_result.WavRight = s.m_levelRight;
  }
}
void ResultToPeak(Session& s) {
  if (s.m_showDb) {
    s.m_levelLeft = s.m_result.WavPikLeft;
    s.m_levelRight = s.m_result.WavPikRight;
    s.m_noClipDbLeft = s.m_result.WavPikNoClippingLeft;
    s.m_noClipDbRight = s.m_result.WavPikNoClippingRight;
  } else {
    s.m_levelLeft = s.m_result.WavLeft;
    s.m_levelRight = s.m_result.WavRight;
  }
}

}  // namespace

HeadlessReport TestFileHeadless(Session& s, RecordingPrompt& prompt, const QString& path,
                                const HeadlessOptions& options) {
  HeadlessReport r;
  r.file = path;
  r.testMode = options.testMode;
  r.showDb = options.showDb;
  prompt.clear();
  ResetFile(s);
  const unsigned long long bytesBefore = g_sampleBytesRead.load();
  s.m_showDb = options.showDb;
  s.m_useDatabase = options.useLog ? 1 : 0;
  const QString full = QFileInfo(path).absoluteFilePath();

  auto fail = [&](const QString& fallback) {
    DropWorkFile();
    r.ok = false;
    QStringList texts = prompt.texts();
    r.error = texts.isEmpty() ? fallback : texts.join('\n');
    return r;
  };

  if (!QFileInfo(full).isFile())
    return fail(TR("Sorry, but the file ") + full + TR(" impossible. Because the file does not exist."));
  if (KindOfName(full) < 0) return fail(TR("Sorry, but the type of this file is not supported."));

  // The header first, without a worker: enough for the properties and a look in the log.
  s.m_noWorker = 1;
  int opened = OpenFileHeadless(s, full);
  s.m_noWorker = 0;
  if (!opened) return fail(TR("Sorry, but the file ") + full + TR(" cannot be opened"));

  r.kind = s.m_sourceKind;
  r.channels = s.m_channels;
  r.sampleRate = s.m_sampleRate;
  r.bits = s.m_bits;
  r.durationMs = s.m_durationMs;
  for (const QString& line : s.m_propertyLines) r.properties << line;

  int mode = options.testMode;
  if (mode < 0) {
    ClearSessionPaths();
    r.ok = true;
    return r;
  }
  if (s.m_sourceKind == kKindMp3 && mode == 0)
    return fail(TR("Sorry, but the peak test is not offered for MP3 files; use the average test."));
  s.m_testMode = mode;

  TestLog log(s);
  bool logOpen = s.m_useDatabase && log.OpenLog();
  RowState state = RowState::Miss;
  const LogTest group = GroupOf(mode, s.m_showDb);
  if (logOpen) {
    state = log.FindRow(full);
    LevelResult fromRow;
    if (state == RowState::Fresh && log.ReadResult(group, fromRow) == ReadOutcome::Hit) {
      s.m_result = fromRow;
      if (mode == 0) ResultToPeak(s);
      r.fromLog = true;
    }
  }

  if (!r.fromLog) {
    if (ReadInPlace(s, mode)) {
      g_workPath = g_sourcePath;
    } else {
      ResetFile(s);
      s.m_testMode = mode;
      s.m_showDb = options.showDb;
      if (!OpenFileHeadless(s, full)) return fail(TR("Sorry, but the file ") + full + TR(" cannot be opened"));
      WaitForWorker(s);
      if (g_copyFailed.exchange(0) || g_workPath.isEmpty())
        return fail(TR("Sorry, the test is stopped because the file was not opened for it."));
      // A FLAC file whose decoder reported errors opens, but is not tested.
      if (s.m_sourceKind == kKindFlac && ShowFlacError(s, s.m_fileName))
        return fail(TR("Sorry but the file ") + s.m_fileName + TR(" has errors. ") + FlacStatusText(g_flacStatus));
    }
    int rc = 0;
    if (mode == 0) {
      rc = ScanPeakLevels(s);
      if (rc == 0) PeakToResult(s);
    } else {
      rc = MeasureAverage(s) == kGainOk ? 0 : 1;
    }
    if (rc != 0) return fail(TR("Sorry, but the test of the file ") + full + TR(" has failed."));
    if (logOpen) log.WriteRow(full, group, state, s.m_result);
  }
  if (logOpen) log.CloseLog();

  r.sampleBytesRead = g_sampleBytesRead.load() - bytesBefore;
  r.levels = ChannelLevels(s);
  r.result = s.m_result;
  r.ok = true;
  DropWorkFile();
  return r;
}
