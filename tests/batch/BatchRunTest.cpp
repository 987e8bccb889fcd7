// Batch runs: the estimate, pause and cancel on a schedule, identical results for any
// number of workers, the log answering a second run, and bad files in a run.
#include <gtest/gtest.h>

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QtEndian>
#include <atomic>

#include "app/Globals.h"
#include "app/HeadlessTest.h"
#include "app/Session.h"
#include "batch/BatchAdd.h"
#include "batch/BatchControl.h"
#include "batch/BatchList.h"
#include "batch/BatchRun.h"
#include "log/TestLog.h"
#include "support/TestSupport.h"

using testing_support::ApeData;
using testing_support::Fixture;
using testing_support::ReadFile;
using testing_support::TestSession;
using testing_support::WriteFile;

namespace {

class FakeClock : public IBatchClock {
 public:
  double Now() override { return now; }
  double now = 100;
};

// Records what the run told its view.
struct RecordingView : IBatchRunView {
  void Count(int n) override { count = n; }
  void Paused(bool p) override { pauses << p; }
  void RowDone(const BatchRowOutcome& o) override { rows.push_back(o); }
  void Estimate(double s) override { estimates << s; }
  void Cancelled() override { cancelled = true; }
  void NothingChecked() override { nothing = true; }
  int count = 0;
  QList<bool> pauses;
  QList<double> estimates;
  std::vector<BatchRowOutcome> rows;
  bool cancelled = false, nothing = false;
};

class BatchRunTest : public ::testing::Test {
 protected:
  BatchRunTest() {
    EXPECT_TRUE(CreateEmptyLog(t.s->m_logPath));
    t.s->m_logAvailable = 1;
  }
  QString Put(const QString& fixture, const QString& name) {
    const QString to = t.Path(name);
    QDir().mkpath(QFileInfo(to).path());
    EXPECT_TRUE(QFile::exists(to) || QFile::copy(fixture, to)) << fixture.toStdString();
    return to;
  }
  // A list of a few files of every kind under odd names.
  void FillEveryKind(BatchList& list) {
    Put(Fixture("sine_16_stereo.wav"), "all/1 Prøve.wav");
    Put(Fixture("conv_ima_2.wav"), "all/2 ima, \"x\".wav");
    Put(Fixture("flac_24_2.flac"), "all/3 שלום.flac");
    Put(Fixture("ogg_1.ogg"), "all/4 🤔.ogg");
    Put(ApeData("s16_mono_48k.ape"), "all/5 ape.ape");
    Put(Fixture("aac_stereo.m4a"), "all/6 aac.m4a");
    Put(Fixture("alac_16_mono.m4a"), "all/7 alac.m4a");
    Put(Fixture("gain_stereo.mp3"), "all/8 mp3.mp3");
    BatchAdder add(list, *t.s);
    ASSERT_EQ(add.AddFolder(t.Path("all"), false), 8);
  }
  BatchRunSummary RunList(BatchList& list, int mode, int jobs, RecordingView* view = nullptr,
                          BatchControl* control = nullptr) {
    BatchControl own;
    BatchRunner run(list, *t.s, control ? *control : own, {mode, true, jobs});
    run.SetView(view);
    return run.Run();
  }
  TestSession t;
};

// A fake measurement: deterministic by path, with a hook before each file.
BatchMeasureResult FakeMeasure(const BatchMeasureRequest& r, BatchControl& control) {
  BatchMeasureResult out;
  if (!control.WorkerPoll()) {
    out.status = BatchMeasureResult::Cancelled;
    return out;
  }
  out.status = BatchMeasureResult::Ok;
  out.result.WavLeft = float(r.path.size());
  out.result.WavRight = 50.0f;
  out.channels = 2;
  return out;
}

BatchFileInfo Rec(const QString& path, uint64_t size) {
  BatchFileInfo f;
  f.path = path;
  f.kind = kKindWav;
  f.channels = 2;
  f.fullSize = size;
  return f;
}

}  // namespace

// Time left comes from the measured bytes over the active time; a pause does not count.
TEST(BatchEstimateTest, PausesLeftOut) {
  BatchEstimate e;
  e.Start(10.0, 1000);
  EXPECT_DOUBLE_EQ(e.FileMeasured(12.0, 100), 18.0);  // 50 bytes/s, 900 left
  e.PauseBegan(13.0);
  e.PauseEnded(23.0);
  EXPECT_DOUBLE_EQ(e.FileMeasured(24.0, 200), 700.0 / 75.0);  // 300 bytes in 4 s, 700 left
  EXPECT_DOUBLE_EQ(e.FileMeasured(24.0, 700), 0.0);
  BatchEstimate none;
  none.Start(5.0, 0);
  EXPECT_LT(none.FileMeasured(5.0, 0), 0);
}

// A pause on a schedule holds the work and is reported once; a cancel on a schedule ends
// the run with whole rows: the ones before it tested, the rest untouched.
TEST_F(BatchRunTest, ScheduledPauseAndCancel) {
  BatchList list(kKindWav);
  for (int i = 0; i < 8; ++i) list.AddRecord(Rec(QString("/m/f%1.wav").arg(i), 1000));
  list.SetChecked(1, false);
  BatchControl control;
  FakeClock clock;
  std::atomic<int> measured{0};
  int polls = 0, measuredAtPause = -1;
  control.processEvents = [&] {
    clock.now += 1;
    ++polls;
    if (polls == 3) {
      control.Pause();
    } else if (control.IsPaused() && polls == 6) {
      measuredAtPause = measured;
    } else if (control.IsPaused() && polls == 9) {
      EXPECT_EQ(measured.load(), measuredAtPause);  // no work handed out while paused
      control.Resume();
    }
  };
  struct CancellingView : RecordingView {
    void RowDone(const BatchRowOutcome& o) override {
      RecordingView::RowDone(o);
      if (o.row == 4) control->Cancel();
    }
    BatchControl* control = nullptr;
  } view;
  view.control = &control;
  BatchRunner run(list, *t.s, control, {0, false, 3});
  run.SetView(&view);
  run.SetClock(&clock);
  run.SetMeasure(
      [&](const BatchMeasureRequest& r, BatchControl& c) {
        ++measured;
        return FakeMeasure(r, c);
      },
      true);
  const BatchRunSummary s = run.Run();
  EXPECT_EQ(view.count, 7);
  EXPECT_EQ(view.pauses, QList<bool>({true, false}));
  EXPECT_TRUE(s.cancelled);
  EXPECT_TRUE(view.cancelled);
  // Rows 0, 2, 3, 4 committed in order, then the cancel: rows measured ahead stay untold.
  ASSERT_EQ(view.rows.size(), 4u);
  EXPECT_EQ(view.rows[1].row, 2);
  for (int row : {0, 2, 3, 4}) EXPECT_TRUE(list.IsTested(row)) << row;
  for (int row : {1, 5, 6, 7}) {
    EXPECT_FALSE(list.IsTested(row)) << row;
    EXPECT_EQ(list.CellText(row, BatchColumn::VolumeLevel), " not tested");
  }
  EXPECT_EQ(list.CellText(0, BatchColumn::VolumeLevel), "Left: 9.0%; Right: 50.0%");
  EXPECT_FALSE(view.estimates.isEmpty());
}

// No checked row: the run says so and does nothing.
TEST_F(BatchRunTest, NothingChecked) {
  BatchList list(kKindWav);
  list.AddRecord(Rec("/m/a.wav", 10));
  list.UncheckAll();
  RecordingView view;
  EXPECT_EQ(RunList(list, 0, 2, &view).count, 0);
  EXPECT_TRUE(view.nothing);
  EXPECT_EQ(t.prompt.texts(),
            QStringList({"Sorry, but You have not selected any files. Therefore the batch test is stopped."}));
}

// Every kind: each row's result equals the single-file test's; one and four workers give
// the same rows and log bytes; a second run answers every row from the log and reads no
// samples.
TEST_F(BatchRunTest, EveryKindMatchesSingleTestAndLog) {
  for (int mode : {0, 1}) {
    for (bool db : {false, true}) {
      if (mode == 1 && db) continue;
      QByteArray logBytes[2];
      QStringList texts[2];
      for (int pass = 0; pass < 2; ++pass) {
        ASSERT_TRUE(CreateEmptyLog(t.s->m_logPath));
        BatchList list(kAnyKind);
        list.SetShowDb(db);
        FillEveryKind(list);
        RecordingView view;
        const BatchRunSummary s = RunList(list, mode, pass == 0 ? 1 : 4, &view);
        EXPECT_EQ(s.tested, 8) << mode << db;
        ASSERT_EQ(view.rows.size(), 8u);
        for (const BatchRowOutcome& o : view.rows) {
          EXPECT_EQ(o.state, BatchRowOutcome::Tested) << o.path.toStdString() << " " << o.error.toStdString();
          texts[pass] << list.CellText(o.row, BatchColumn::VolumeLevel) + list.CellText(o.row, BatchColumn::Gain);
        }
        logBytes[pass] = ReadFile(t.s->m_logPath);
        if (pass == 1) {
          // The single-file road on the same files.
          for (const BatchRowOutcome& o : view.rows) {
            Session single;
            RecordingPrompt prompt;
            single.m_prompt.SetUi(&prompt);
            HeadlessOptions ho;
            ho.testMode = o.kind == kKindMp3 ? 1 : mode;
            ho.showDb = db;
            ho.useLog = false;
            const HeadlessReport r = TestFileHeadless(single, prompt, o.path, ho);
            EXPECT_TRUE(r.result == o.result) << o.path.toStdString();
          }
          // Again: all from the log, no sample read.
          const unsigned long long before = g_sampleBytesRead.load();
          RecordingView again;
          const BatchRunSummary s2 = RunList(list, mode, 4, &again);
          EXPECT_EQ(s2.fromLog, 8);
          EXPECT_EQ(g_sampleBytesRead.load(), before);
          EXPECT_EQ(ReadFile(t.s->m_logPath), logBytes[1]);
        }
      }
      EXPECT_EQ(texts[0], texts[1]);
      EXPECT_EQ(logBytes[0], logBytes[1]);
      EXPECT_GT(logBytes[0].size(), 226);
    }
  }
}

// Bad files in a run: each row says why, the run goes on, the sources stay as they were
// and no work file is left.
TEST_F(BatchRunTest, BadFilesInARun) {
  Put(Fixture("flac_truncated.flac"), "bad/1 cut.flac");
  Put(Fixture("sine_16_stereo.wav"), "bad/2 good.wav");
  const QString gone = Put(Fixture("flac_16_2.flac"), "bad/3 gone.flac");
  Put(ApeData("s16_stereo_44k_corrupt.ape"), "bad/4 corrupt.ape");
  Put(Fixture("ogg_hole.ogg"), "bad/5 hole.ogg");
  const QString emptied = Put(Fixture("gain_stereo.mp3"), "bad/6 emptied.mp3");
  // The Vorbis headers: the pages before the first one with a granule position.
  const QByteArray ogg = ReadFile(Fixture("ogg_2.ogg"));
  qsizetype end = 0;
  while (ogg.mid(end, 4) == "OggS" && qFromLittleEndian<qint64>(ogg.constData() + end + 6) == 0) {
    const int segments = uchar(ogg[end + 26]);
    qsizetype body = 0;
    for (int i = 0; i < segments; ++i) body += uchar(ogg[end + 27 + i]);
    end += 27 + segments + body;
  }
  ASSERT_TRUE(WriteFile(t.Path("bad/7 headers only.ogg"), ogg.left(end + 100)));  // and a cut page
  BatchList list(kAnyKind);
  BatchAdder add(list, *t.s);
  add.AddFolder(t.Path("bad"), false);
  ASSERT_EQ(list.FileCount(), 7);
  QFile::remove(gone);  // deleted between adding and the run
  QFile::resize(emptied, 0);
  QHash<QString, QByteArray> sources;
  for (int r = 0; r < list.FileCount(); ++r) sources[list.PathOf(r)] = ReadFile(list.PathOf(r));
  RecordingView view;
  const BatchRunSummary s = RunList(list, 1, 2, &view);
  EXPECT_FALSE(s.cancelled);
  EXPECT_EQ(s.count, 7);
  EXPECT_GE(s.tested, 1);
  EXPECT_EQ(s.tested + s.failed, 7);
  for (const BatchRowOutcome& o : view.rows) {
    if (o.state == BatchRowOutcome::Failed) {
      EXPECT_TRUE(o.error.startsWith("Sorry")) << o.path.toStdString() << ": " << o.error.toStdString();
      EXPECT_EQ(list.CellText(o.row, BatchColumn::Errors), "Yes");
    }
    EXPECT_EQ(ReadFile(o.path), sources[o.path]) << o.path.toStdString();
  }
  EXPECT_EQ(view.rows[1].state, BatchRowOutcome::Tested);
  const QString sorry = "Sorry, but the file " + t.Path("bad/");
  EXPECT_EQ(view.rows[2].error, sorry + "3 gone.flac cannot be opened impossible. Because the file does not exist.");
  EXPECT_EQ(view.rows[5].error, sorry + "6 emptied.mp3 is empty and does not contain any sound data.");
  EXPECT_EQ(view.rows[6].error,
            sorry + "7 headers only.ogg does not contain a sound data. Therefore the test is impossible.");
  const QStringList left = QDir(t.Path("bad")).entryList({"*.tmp"}, QDir::Files);
  EXPECT_TRUE(left.isEmpty()) << left.join(", ").toStdString();
}

// The progress dialog's texts.
TEST(BatchRunTexts, Table) {
  EXPECT_EQ(BatchEstimateText(0), "0 sec");
  EXPECT_EQ(BatchEstimateText(59.4), "59 sec");
  EXPECT_EQ(BatchEstimateText(59.5), "1 min 0 sec");  // rounding carries into the minutes
  EXPECT_EQ(BatchEstimateText(3725.0), "1 hr 2 min 5 sec");
  EXPECT_EQ(BatchTestedText(3, 5), "3 from 5 files");
  EXPECT_EQ(BatchTestedText(1, 1), "1 from 1 file");
  EXPECT_EQ(BatchTestedColor(3, 5), 0x180acdu);
  EXPECT_TRUE(BatchTestedBlinks(3, 5));
  EXPECT_EQ(BatchTestedColor(5, 5), 0xcb1e1eu);
  EXPECT_EQ(BatchBarText(42), "42% Completed");
  EXPECT_EQ(BatchNoFilesText(kKindAlac, "/m"), "Sorry, but the open folder /m does not contain any Mp4 files.");
}
