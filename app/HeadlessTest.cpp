#include "app/HeadlessTest.h"

#include <QFileInfo>
#include <QThread>
#include <cerrno>

#include "app/FileErrors.h"
#include "app/Globals.h"
#include "app/Job.h"
#include "app/MeasureFile.h"
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

LogTest GroupOf(int testMode, int showDb) {
  if (testMode == 1) return LogTest::Gain;
  return showDb ? LogTest::WavPik : LogTest::Wav;
}

// Moves the values of a peak scan or of a log row between the result and the session.
// A mono file fills the left forms only; the right ones keep their not-measured marks.
void PeakToResult(Session& s) {
  const bool stereo = s.m_channels != 1;
  if (s.m_showDb) {
    s.m_result.WavPikLeft = s.m_levelLeft;
    s.m_result.WavPikNoClippingLeft = s.m_noClipDbLeft;
    if (stereo) {
      s.m_result.WavPikRight = s.m_levelRight;
      s.m_result.WavPikNoClippingRight = s.m_noClipDbRight;
    }
  } else {
    s.m_result.WavLeft = s.m_levelLeft;
    if (stereo) s.m_result.WavRight = s.m_levelRight;
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

bool LookUpLog(Session& s, const QString& key, int mode, bool& hit) {
  hit = false;
  s.m_logRowState = int(RowState::Miss);
  if (!s.m_useDatabase) return false;
  TestLog log(s);
  if (!log.OpenLog()) return false;
  RowState state = log.FindRow(key);
  s.m_logRowState = int(state);
  if (state == RowState::Fresh) {
    LevelResult fromRow;
    ReadOutcome outcome = log.ReadResult(GroupOf(mode, s.m_showDb), fromRow);
    // A partial row keeps its other groups, so the row written after the measurement
    // still holds them.
    s.m_result = fromRow;
    if (outcome == ReadOutcome::Hit) {
      if (mode == 0) ResultToPeak(s);
      hit = true;
    }
  }
  log.CloseLog();
  return hit;
}

bool MeasureWorkFile(Session& s, int mode) {
  if (mode == 0) {
    if (ScanPeakLevels(s) != 0) return false;
    PeakToResult(s);
    return true;
  }
  return MeasureAverage(s) == kGainOk;
}

void StoreInLog(Session& s, const QString& key, int mode) {
  if (!s.m_useDatabase) return;
  TestLog log(s);
  if (!log.OpenLog()) return;
  log.WriteRow(key, GroupOf(mode, s.m_showDb), RowState(s.m_logRowState), s.m_result);
  log.CloseLog();
}

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
    ClearSessionPaths();
    r.ok = false;
    QStringList texts = prompt.texts();
    r.error = texts.isEmpty() ? fallback : texts.join('\n');
    return r;
  };

  if (!QFileInfo(full).isFile())
    return fail(FileErrorText(Tonvane::tr(" cannot be opened"), full, QString(), ErrorCodeFromErrno(ENOENT, full), true));
  if (KindOfName(full) < 0) return fail(Tonvane::tr("Sorry, but the type of this file is not supported."));

  // The header first, without a worker: enough for the properties and a look in the log.
  s.m_noWorker = 1;
  int opened = OpenFileHeadless(s, full);
  s.m_noWorker = 0;
  if (!opened) return fail(Tonvane::tr("Sorry, but the file ") + full + Tonvane::tr(" cannot be opened"));

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
    return fail(Tonvane::tr("Sorry, but the peak test is not offered for MP3 files; use the average test."));
  s.m_testMode = mode;

  bool fromLog = false;
  if (LookUpLog(s, full, mode, fromLog)) {
    r.fromLog = true;
  } else {
    // Straight from the source through the streaming analyser: no work file is made, so a
    // window that has the same file open keeps its own.
    ClearSessionPaths();
    JobControl control;
    const MeasureReport m = MeasureFile(full, s.m_sourceKind, mode, control);
    // The decoder's messages are this file's, also when the measurement stands.
    for (const QString& text : m.messages) {
      PromptRequest request;
      request.text = text;
      prompt.requests.push_back(request);
    }
    if (m.status != MeasureStatus::Ok) {
      if (m.status == MeasureStatus::Damaged && s.m_sourceKind == kKindFlac && m.flacError != kFlacNoError)
        return fail(Tonvane::tr("Sorry but the file ") + full + Tonvane::tr(" has errors. ") + FlacStatusText(m.flacError));
      return fail(Tonvane::tr("Sorry, but the test of the file ") + full + Tonvane::tr(" has failed."));
    }
    // The other groups stay as the log's row had them.
    TakeGroup(s.m_result, m.result, mode, s.m_showDb != 0);
    StoreInLog(s, full, mode);
  }

  r.sampleBytesRead = g_sampleBytesRead.load() - bytesBefore;
  r.levels = ChannelLevels(s);
  r.result = s.m_result;
  r.ok = true;
  ClearSessionPaths();
  return r;
}

int RunTestOnOpenFile(Session& s, bool& fromLog) {
  fromLog = false;
  if (g_workPath.isEmpty() || s.m_fileNotOpened) {
    s.m_statusText = Tonvane::tr("  Test is stopped");
    const bool yes = s.m_prompt.Ask(Tonvane::tr("Sorry, the test is stopped because the file was not opened for it.\n"
                                                "Do You want to open a dialog of selection a file?"));
    s.m_statusText.clear();
    if (yes) {
      s.m_fileNotOpened = 0;
      OnFileOpen(s);
    }
    return 0;
  }
  s.m_testRunning = 1;
  s.m_uiEnabledA = s.m_uiEnabledB = s.m_canPlay = 0;
  s.m_statusText = Tonvane::tr("  Test of the volume level is fulfilling");
  s.m_cancelRequested = 0;
  s.SetProgress(0);
  // The title carries the percent form while the test runs (m_savedTitle is the plain one).
  if (s.m_savedTitle.isEmpty()) s.m_savedTitle = s.m_title;
  auto stop = [&s]() {
    s.m_title = s.m_savedTitle;
    s.m_testRunning = 0;
    s.m_uiEnabledA = s.m_uiEnabledB = s.m_canPlay = 1;
    // A question answered Yes during the test (a work file without sound data) asks for
    // another file once the test has let go of this one.
    if (s.m_openDialogPending) OnFileOpen(s);
    return 0;
  };
  // The stop sequence: nothing of the file stays open, the user must open it again.
  auto stopAndDrop = [&s, &stop]() {
    ClearFileDisplay(s);
    s.m_savedTitle.clear();  // the title goes back to the program's own, not the file's
    CloseWorkFile(s);
    // Nothing will name the work file again once its path is dropped, so it goes now.
    if (!g_workPath.isEmpty() && g_workPath != g_sourcePath) DeleteWorkFile(g_workPath);
    ClearSessionPaths();
    return stop();
  };
  // The bar creeps towards 30 percent while the worker still fills the work file.
  int waited = 0;
  while (g_workerBusy.load()) {
    if (!s.PumpMessages() || s.m_exitRequested) return stop();
    QThread::msleep(20);
    if (++waited % 25 == 0 && s.m_progressPercent < 30) s.SetProgress(s.m_progressPercent + 1);
    if (waited * 20 > kWorkerTimeoutMs) {
      // The worker still owns the paths; the file is given up, and Test asks for another.
      s.m_prompt.Message(Tonvane::tr("Sorry, but the test is stopped, because of failure to create a temporal copy of the file ") +
                         s.m_fileName + Tonvane::tr("."));
      ClearFileDisplay(s);
      s.m_fileNotOpened = 1;
      return stop();
    }
  }
  JoinWorker();
  if (g_copyFailed.exchange(0) || g_workPath.isEmpty()) return stopAndDrop();
  // A FLAC file whose decoder reported errors is not tested, whether or not the log knows it.
  if (s.m_sourceKind == kKindFlac && ShowFlacError(s, s.m_fileName)) return stop();

  // A work file without sound data ends the test of either kind before it measures: the
  // user answered the question (Yes opens another file), and the file is let go.
  if (s.m_sourceKind != kKindMp3 && CheckWorkFileData(s) != 0) {
    s.StopTest();
    return s.m_openDialogPending ? stop() : stopAndDrop();
  }

  const QString key = g_sourcePath;
  const int mode = s.m_testMode;
  s.m_result = LevelResult{};
  if (LookUpLog(s, key, mode, fromLog)) {
    s.SetProgress(100);
  } else {
    s.m_cancelSeen = 0;
    const int gain = mode == 0 ? kGainOk : MeasureAverage(s);
    if (mode == 0 ? ScanPeakLevels(s) != 0 : gain != kGainOk) {
      // The scanner stops alike for a cancel and for a file it cannot read; only the
      // latter is worth a word. The gain engine tells them apart: a file it cannot
      // analyse is let go, with the word the batch has for it, so the reset display is
      // not left unexplained.
      if (mode == 0 && !s.m_cancelSeen && !s.m_exitRequested)
        s.m_prompt.Message(Tonvane::tr("Sorry, the test is stopped because the file has errors."));
      if (gain == kGainCannotAnalyse) {
        s.m_prompt.Message(Tonvane::tr("Sorry, but the test of the file ") + s.m_fileName +
                           Tonvane::tr(" was not possible to fulfill."));
        return stopAndDrop();
      }
      return stop();
    }
    if (mode == 0) PeakToResult(s);
    StoreInLog(s, key, mode);
    s.SetProgress(100);
  }
  s.m_title = s.m_savedTitle;
  s.m_testRunning = 0;
  s.m_uiEnabledA = s.m_uiEnabledB = s.m_canPlay = 1;
  s.m_progressShown = 1;
  return 1;
}
