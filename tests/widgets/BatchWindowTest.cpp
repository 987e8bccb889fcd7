// The batch windows over the core: the kind chooser, the window's layout memory, adding a
// folder tree and a playlist, runs whose rows match the core runner's, pause and cancel,
// closing during a run, the log's answers at reopening, and names for screen readers.
#include <QAccessible>
#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QTabBar>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <gtest/gtest.h>
#include <chrono>
#include <thread>

#include "app/Settings.h"
#include "app/widgets/AddFoldersDlg.h"
#include "app/widgets/BatchListView.h"
#include "app/widgets/BatchPlayerPage.h"
#include "app/widgets/BatchProgressDlg.h"
#include "app/widgets/BatchTypeDlg.h"
#include "app/widgets/BatchWindow.h"
#include "batch/BatchAdd.h"
#include "batch/BatchList.h"
#include "batch/BatchRun.h"
#include "controls/ProgressBarX.h"
#include "controls/VolumeSlider.h"
#include "log/TestLog.h"
#include "player/SoundTestSupport.h"
#include "support/TestSupport.h"
#include "widgets/WidgetTestSupport.h"

using testing_support::Fixture;

namespace {

class BatchWindowTest : public ::testing::Test {
 protected:
  void SetUp() override {
    widget_support::App();
    ASSERT_TRUE(CreateEmptyLog(t.s->m_logPath));
    t.s->m_logAvailable = 1;
    t.s->m_useDatabase = 1;
    Settings::SetInt("CloseWindow", 1);  // runs end by themselves unless a test says otherwise
  }
  QString Put(const QString& fixture, const QString& name) {
    const QString to = t.Path(name);
    QDir().mkpath(QFileInfo(to).path());
    EXPECT_TRUE(QFile::copy(fixture, to)) << name.toStdString();
    return to;
  }
  // A window shown and filled as at opening.
  std::unique_ptr<CBatch> Open(int kind) {
    auto b = std::make_unique<CBatch>(*t.s, kind);
    b->show();
    QApplication::processEvents();
    QApplication::processEvents();
    return b;
  }
  // What the core runner gives for the same files, without the log.
  std::map<QString, std::pair<QString, QString>> CoreResults(int kind, const QStringList& paths, int testMode) {
    std::list<BatchFileInfo> records;
    BatchList ref(kind, records);
    BatchAdder add(ref, *t.s);
    for (const QString& p : paths) add.AddFile(p);
    BatchControl control;
    BatchRunOptions o;
    o.testMode = testMode;
    o.useLog = false;
    BatchRunner(ref, *t.s, control, o).Run();
    std::map<QString, std::pair<QString, QString>> out;
    for (int r = 0; r < ref.FileCount(); ++r)
      out[ref.PathOf(r)] = {ref.CellText(r, BatchColumn::VolumeLevel), ref.CellText(r, BatchColumn::Gain)};
    return out;
  }
  static QStringList Paths(const BatchList& l) {
    QStringList out;
    for (int r = 0; r < l.FileCount(); ++r) out << l.PathOf(r);
    return out;
  }
  static QStringList WorkFilesUnder(const QString& folder) {
    QStringList out;
    QDirIterator it(folder, {"*.tmp"}, QDir::Files, QDirIterator::Subdirectories);
    while (it.hasNext()) out << it.next();
    return out;
  }
  testing_support::TestSession t;
};

// Polls a condition from the event loop, then runs an action once.
void When(QObject* owner, std::function<bool()> cond, std::function<void()> act) {
  auto* timer = new QTimer(owner);
  QObject::connect(timer, &QTimer::timeout, owner, [timer, cond, act] {
    if (!cond()) return;
    timer->stop();
    timer->deleteLater();
    act();
  });
  timer->start(5);
}

}  // namespace

// The chooser offers MP3 first, sets the kind at each click, remembers OK and forgets Cancel.
TEST_F(BatchWindowTest, TypeChooser) {
  t.s->m_sourceKind = kKindWav;
  {
    CTypeBP dlg(*t.s);
    EXPECT_EQ(dlg.windowTitle(), "Batch Processor - Tonvane 1.0");
    EXPECT_TRUE(dlg.radio(0)->isChecked());
    EXPECT_EQ(t.s->m_sourceKind, kKindMp3);
    dlg.radio(3)->click();
    EXPECT_EQ(t.s->m_sourceKind, kKindFlac);
    dlg.maximizeBox()->click();
    dlg.accept();
    EXPECT_EQ(dlg.ChosenKind(), kKindFlac);
  }
  EXPECT_EQ(Settings::GetInt("Processor", 100), 3);
  EXPECT_EQ(Settings::GetInt("Maximize", 0), 1);
  CTypeBP again(*t.s);
  EXPECT_TRUE(again.radio(3)->isChecked());
  again.radio(5)->click();
  again.reject();
  EXPECT_EQ(Settings::GetInt("Processor", 100), 3);
}

// Title, columns and the test mode by kind; the column layout outlives the window, and
// closing gives the main window its test mode back.
TEST_F(BatchWindowTest, WindowShellAndColumnMemory) {
  t.s->m_testMode = 1;
  {
    auto b = Open(kKindMp3);
    EXPECT_EQ(b->windowTitle(), "Mp3 Batch Processor - Tonvane 1.0");
    EXPECT_EQ(t.s->m_testMode, 0);
    EXPECT_EQ(b->list()->headerData(5, Qt::Horizontal).toString(), "Clipping");
    EXPECT_EQ(b->BatchTestMode(), 1);
    EXPECT_FALSE(b->findChild<QRadioButton*>("batchPeakRadio")->isEnabled());
    EXPECT_TRUE(b->HintShown());
    EXPECT_EQ(b->action(kBatchAddFiles)->shortcut(), QKeySequence("Ctrl+F"));
    EXPECT_FALSE(b->action(kBatchTest)->isEnabled());  // nothing listed
    // Options > Database... opens the log's dialog over the window.
    QAction* db = b->action(kBatchDatabase);
    ASSERT_TRUE(db->isVisible() && db->isEnabled());
    QString shown;
    QTimer::singleShot(0, [&] {
      if (QWidget* m = QApplication::activeModalWidget()) {
        shown = m->objectName();
        m->close();
      }
    });
    db->trigger();
    EXPECT_EQ(shown, "CDataBase");
    QHeaderView* h = b->view()->horizontalHeader();
    b->view()->SetColumnVisible(4, false);
    h->moveSection(h->visualIndex(2), 6);
    h->resizeSection(1, 321);
    b->OnBatchClose();
  }
  EXPECT_EQ(t.s->m_testMode, 1);
  auto b = Open(kKindMp3);
  QHeaderView* h = b->view()->horizontalHeader();
  EXPECT_TRUE(h->isSectionHidden(4));
  EXPECT_EQ(h->visualIndex(2), 6);
  EXPECT_EQ(h->sectionSize(1), 321);
  auto flac = std::make_unique<CBatch>(*t.s, kKindFlac);
  EXPECT_FALSE(flac->view()->horizontalHeader()->isSectionHidden(4));
  EXPECT_EQ(flac->BatchTestMode(), 0);
}

// A folder tree and a playlist, then the peak and the average test: every row reads as
// the core runner's result for the same file, and the log answers at reopening.
TEST_F(BatchWindowTest, TreeAndPlaylistRunsMatchTheCore) {
  const QStringList tree = {
      Put(Fixture("sine_16_stereo.wav"), "Musik/Prøve, \"x\"/01 a.wav"),
      Put(Fixture("pink_16_stereo.wav"), "Musik/Prøve, \"x\"/deep/שלום 🤔.wav"),
      Put(Fixture("sine_16_mono.wav"), "Musik/10 b.wav"),
      Put(Fixture("gain_44100_24.wav"), "Musik/2 c.wav"),
  };
  Put(Fixture("sine_16_stereo.wav"), "Musik/temp.wav");  // a player's leftover: never listed
  const QString extra = Put(Fixture("gain_pink.wav"), "Other/list me.wav");
  ASSERT_TRUE(testing_support::WriteFile(t.Path("Other/list.m3u8"),
                                         "\xEF\xBB\xBF#EXTM3U\nlist me.wav\nmissing.wav\n../Musik/10 b.wav\n"));

  auto b = Open(kKindWav);
  b->chooseFolder = [&](const QString& title) {
    EXPECT_EQ(title, "Select Your Folders");
    return t.Path("Musik");
  };
  b->OnAddFolders();
  EXPECT_FALSE(b->HintShown());
  EXPECT_EQ(b->Folder(), t.Path("Musik"));
  EXPECT_EQ(Settings::GetString("PatchFolder"), t.Path("Musik"));
  // Natural order in each folder, breadth first; short names for the folder's own files.
  EXPECT_EQ(Paths(*b->list()), QStringList({tree[3], tree[2], tree[0], tree[1]}));
  EXPECT_EQ(b->list()->CellText(0, BatchColumn::FileName), "2 c.wav");
  b->choosePlaylists = [&] { return QStringList{t.Path("Other/list.m3u8")}; };
  t.prompt.clear();
  b->OnAddPlaylists();
  ASSERT_EQ(b->list()->FileCount(), 5);  // the duplicate stays out
  EXPECT_EQ(b->list()->PathOf(4), extra);
  EXPECT_EQ(t.prompt.texts(), QStringList({"Sorry, but the file " + t.Path("Other/missing.wav") + " cannot be found."}));
  EXPECT_EQ(b->LeftStatus(), b->list()->LeftStatusText());
  EXPECT_TRUE(b->LeftStatus().startsWith(" The list contains: 5 files, "));
  EXPECT_TRUE(b->action(kBatchTest)->isEnabled());

  const QStringList all = Paths(*b->list());
  for (int mode : {0, 1}) {
    const auto core = CoreResults(kKindWav, all, mode);
    b->SetTestMode(mode);
    b->OnTest();
    for (int r = 0; r < b->list()->FileCount(); ++r) {
      const QString p = b->list()->PathOf(r);
      EXPECT_EQ(b->list()->CellText(r, BatchColumn::VolumeLevel), core.at(p).first) << p.toStdString() << mode;
      EXPECT_EQ(b->list()->CellText(r, BatchColumn::Gain), core.at(p).second) << p.toStdString();
      EXPECT_EQ(b->list()->CellText(r, BatchColumn::Status), " tested");
      EXPECT_FALSE(b->list()->CellText(r, BatchColumn::VolumeLevel).contains("not tested"));
    }
  }
  QMap<QString, QString> shown;
  for (int r = 0; r < b->list()->FileCount(); ++r) shown[b->list()->PathOf(r)] = b->list()->CellText(r, BatchColumn::VolumeLevel);
  b->OnBatchClose();
  b.reset();

  // Reopened, the remembered folder fills at once and the log answers its own files.
  b = Open(kKindWav);
  EXPECT_FALSE(b->HintShown());
  ASSERT_EQ(Paths(*b->list()), QStringList({tree[3], tree[2]}));
  for (int r = 0; r < 2; ++r) {
    EXPECT_EQ(b->list()->CellText(r, BatchColumn::Status), " not tested");
    EXPECT_FALSE(b->list()->CellText(r, BatchColumn::VolumeLevel).contains("not tested"));
  }
}

// An MP3 batch: clipping rows turn red, the others the tested blue, as the core says.
TEST_F(BatchWindowTest, Mp3RowsShowClipping) {
  const QString clipped = Put(Fixture("gain_clipped.mp3"), "mp3/Loud, 🤔.mp3");
  const QString calm = Put(Fixture("gain_stereo.mp3"), "mp3/calm.mp3");
  const auto core = CoreResults(kKindMp3, {clipped, calm}, 1);
  auto b = Open(kKindMp3);
  b->chooseFiles = [&] { return QStringList{clipped, calm}; };
  b->OnAddFiles();
  EXPECT_EQ(b->Folder(), t.Path("mp3"));  // the first file sets the folder
  b->OnTest();
  ASSERT_EQ(b->list()->FileCount(), 2);
  for (int r = 0; r < 2; ++r) EXPECT_EQ(b->list()->CellText(r, BatchColumn::VolumeLevel), core.at(b->list()->PathOf(r)).first);
  EXPECT_TRUE(b->list()->CellText(0, BatchColumn::Clipping).contains("Yes"));
  EXPECT_EQ(b->list()->data(b->list()->index(0, 1), BatchList::ColorRefRole).toUInt(), kRowClipping);
  EXPECT_EQ(b->list()->data(b->list()->index(1, 1), BatchList::ColorRefRole).toUInt(), kRowTested);
}

// Pause holds the run and says so; Cancel ends it with whole rows and no work file.
TEST_F(BatchWindowTest, PauseAndCancelDuringARun) {
  Settings::SetInt("CloseWindow", 0);
  QStringList files;
  for (int i = 1; i <= 12; ++i) files << Put(Fixture("flac_16_2.flac"), QString("run/%1 Prøve.flac").arg(i));
  auto b = Open(kKindFlac);
  b->chooseFolder = [&](const QString&) { return t.Path("run"); };
  b->OnAddFolder();
  ASSERT_EQ(b->list()->FileCount(), 12);
  BatchList* l = b->list();
  int testedAtPause = -1;
  QStringList seen;
  auto tested = [l] {
    int n = 0;
    for (int r = 0; r < l->FileCount(); ++r) n += l->IsTested(r);
    return n;
  };
  b->progressCreated = [&](CBatchProgress& dlg) {
    dlg.SetMeasure([](const BatchMeasureRequest& r, BatchControl& c) {
      std::this_thread::sleep_for(std::chrono::milliseconds(30));
      return MeasureForBatch(r, c);
    }, false);
    CBatchProgress* d = &dlg;
    When(d, [&] { return tested() >= 2; }, [&, d] {
      d->pauseButton()->click();
      seen << d->pauseButton()->text() << d->findChild<QLabel*>("progressStatus")->text();
      QTimer::singleShot(400, d, [&, d] {
        testedAtPause = tested();
        QTimer::singleShot(300, d, [&, d] {
          seen << QString::number(tested() - testedAtPause);
          d->pauseButton()->click();
          When(d, [&] { return tested() >= testedAtPause + 2; }, [&, d] {
            d->cancelButton()->click();
            When(d, [d] { return d->Finished(); }, [&, d] {
              seen << QString::number(d->bar()->value()) << d->findChild<QLabel*>("progressCount")->text();
              d->okButton()->click();
            });
          });
        });
      });
    });
  };
  b->OnTest();
  ASSERT_EQ(seen.size(), 5);
  EXPECT_EQ(seen[0], "Continue");
  EXPECT_EQ(seen[1], "Test is suspended");
  EXPECT_EQ(seen[2], "0");  // nothing was committed while paused
  EXPECT_EQ(seen[3], "0");  // the bar runs back
  const int n = tested();
  EXPECT_GE(n, testedAtPause + 2);
  EXPECT_LT(n, 12);
  EXPECT_EQ(seen[4], QString("%1 from 12 files").arg(n));
  for (int r = 0; r < n; ++r) EXPECT_TRUE(l->IsTested(r)) << r;  // whole rows, in list order
  EXPECT_TRUE(WorkFilesUnder(t.Path("run")).isEmpty());
  EXPECT_TRUE(b->action(kBatchTest)->isEnabled());
}

// Closing the window while a run lasts cancels it; the window goes, nothing is left behind.
TEST_F(BatchWindowTest, CloseDuringARunCancelsCleanly) {
  for (int i = 1; i <= 8; ++i) Put(Fixture("flac_16_2.flac"), QString("c/%1.flac").arg(i));
  auto b = Open(kKindFlac);
  b->chooseFolder = [&](const QString&) { return t.Path("c"); };
  b->OnAddFolder();
  BatchList* l = b->list();
  CBatch* w = b.get();
  b->progressCreated = [&](CBatchProgress& dlg) {
    dlg.SetMeasure([](const BatchMeasureRequest& r, BatchControl& c) {
      std::this_thread::sleep_for(std::chrono::milliseconds(40));
      return MeasureForBatch(r, c);
    }, false);
    When(&dlg, [l] { return l->IsTested(0); }, [w] { w->close(); });
  };
  b->OnTest();
  for (int i = 0; i < 5 && b->isVisible(); ++i) QTest::qWait(20);
  EXPECT_FALSE(b->isVisible());
  EXPECT_TRUE(g_batchFiles.empty());
  EXPECT_TRUE(WorkFilesUnder(t.Path("c")).isEmpty());
}

// The preview plays the focused row from a work file of its own through the shared sound
// system, keeps a playing file while the focus moves, steps with Previous, stops at the end
// without moving the focus, and leaves no work file behind.
TEST_F(BatchWindowTest, PreviewPlaysTheFocusedRow) {
  player_test::ManualSystem sys;
  Put(testing_support::ApeData("s16_stereo_44k.ape"), "pv/Prøve 1.ape");
  Put(testing_support::ApeData("s16_stereo_44k.ape"), "pv/שלום, 2.ape");
  auto b = Open(kKindApe);
  b->chooseFolder = [&](const QString&) { return t.Path("pv"); };
  b->OnAddFolder();
  CBatchPlayerPage* page = b->playerPage();
  PreviewPlayer& p = page->preview();
  b->view()->selectRow(0);
  EXPECT_EQ(page->nameField()->text(), "Prøve 1.ape");
  b->action(kBatchPlayPause)->trigger();
  ASSERT_NE(p.m_previewChannel, nullptr);
  EXPECT_TRUE(QFile::exists(t.Path("pv/Prøve 1.tmp")));
  EXPECT_EQ(page->playButton()->accessibleName(), "Pause");
  QTest::qWait(400);  // past the fade-in
  // The right channel is a sine at 8231 / 32768, played at the first volume of 10 %.
  EXPECT_NEAR(player_test::Peak(sys.Pull(300), 1), 0.0251f, 0.002f);
  b->action(kBatchVolumeUp)->trigger();
  EXPECT_EQ(page->volumeSlider()->value(), 20);
  // On the page, Down and Up walk through its controls; Escape does not close the window.
  b->tabs()->setCurrentIndex(1);
  page->playButton()->setFocus();
  QTest::keyClick(page->playButton(), Qt::Key_Down);
  EXPECT_NE(b->focusWidget(), page->playButton());
  QTest::keyClick(b->focusWidget(), Qt::Key_Up);
  EXPECT_EQ(b->focusWidget(), page->playButton());
  QTest::keyClick(page->playButton(), Qt::Key_Escape);
  EXPECT_TRUE(b->isVisible());

  b->view()->selectRow(1);
  EXPECT_EQ(page->nameField()->text(), "Prøve 1.ape");  // a playing preview keeps its file
  b->action(kBatchPlayPause)->trigger();                 // the focused row starts afresh
  EXPECT_EQ(p.m_previewPlayingPath, t.Path("pv/שלום, 2.ape"));
  EXPECT_FALSE(QFile::exists(t.Path("pv/Prøve 1.tmp")));
  EXPECT_TRUE(QFile::exists(t.Path("pv/שלום, 2.tmp")));
  b->action(kBatchPrevious)->trigger();
  EXPECT_EQ(b->view()->currentIndex().row(), 0);
  EXPECT_EQ(p.m_previewPlayingPath, t.Path("pv/Prøve 1.ape"));
  EXPECT_FALSE(QFile::exists(t.Path("pv/שלום, 2.tmp")));

  sys.Pull(3500);  // to the end of the three seconds
  QTest::qWait(300);
  EXPECT_FALSE(p.View().stopEnabled);
  EXPECT_EQ(page->playButton()->accessibleName(), "Play");
  EXPECT_EQ(b->view()->currentIndex().row(), 0);
  b->OnBatchClose();
  EXPECT_TRUE(WorkFilesUnder(t.Path("pv")).isEmpty());
}

// Every control a person can reach has a name; the list's cells read as the model's texts.
TEST_F(BatchWindowTest, ControlsHaveAccessibleNames) {
  Put(Fixture("sine_16_stereo.wav"), "acc/one.wav");
  auto b = Open(kKindWav);
  b->resize(1000, 640);
  b->chooseFolder = [&](const QString&) { return t.Path("acc"); };
  b->OnAddFolder();
  CBatchProgress progress(*b->list(), *t.s, BatchRunOptions{}, b.get());
  CTypeBP chooser(*t.s);
  // Each page of the tabs in turn, then the two dialogs.
  for (QWidget* top : std::initializer_list<QWidget*>{b.get(), b.get(), &progress, &chooser}) {
    b->tabs()->setCurrentIndex(top == b.get() ? 1 - b->tabs()->currentIndex() : 0);
    for (QWidget* w : top->findChildren<QWidget*>()) {
      const bool interactive = qobject_cast<QAbstractButton*>(w) || qobject_cast<QLineEdit*>(w) ||
                               qobject_cast<QAbstractItemView*>(w) || qobject_cast<QProgressBar*>(w) ||
                               qobject_cast<QTabBar*>(w) || qobject_cast<QAbstractSlider*>(w);
      // Qt's own helpers (overflow arrows, the table's corner) stand hidden or without size
      // here; a list's scroll bars are read by their role.
      if (!interactive || qobject_cast<QHeaderView*>(w) || qobject_cast<QScrollBar*>(w) || !w->isVisibleTo(top) ||
          w->width() == 0)
        continue;
      QAccessibleInterface* a = QAccessible::queryAccessibleInterface(w);
      ASSERT_NE(a, nullptr);
      EXPECT_FALSE(a->text(QAccessible::Name).trimmed().isEmpty())
          << top->objectName().toStdString() << ": " << w->metaObject()->className() << " " << w->objectName().toStdString();
    }
  }
  QAccessibleInterface* table = QAccessible::queryAccessibleInterface(b->view());
  ASSERT_TRUE(table && table->tableInterface());
  QAccessibleInterface* cell = table->tableInterface()->cellAt(0, 1);
  ASSERT_NE(cell, nullptr);
  EXPECT_EQ(cell->text(QAccessible::Name), "one.wav");
  EXPECT_EQ(table->tableInterface()->columnDescription(1), "File Name");
}
