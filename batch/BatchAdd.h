#pragma once
// How paths get into the batch list: single files, folders (one level or the whole tree)
// and M3U playlists. Each path passes the batch's name test and the duplicate test, then
// the property scan makes its row; a file the test log knows shows its levels at once.
// The log is opened once for the whole add.
#include <QString>
#include <QStringList>
#include <functional>
#include <memory>
#include <vector>

class BatchControl;
class BatchList;
class TestLog;
struct Session;

// The name test of a batch kind (kAnyKind: any supported suffix). Suffixes in any case;
// kind 1 also takes a WAVE that carries MPEG Layer III, which reads the file.
bool BatchNameTest(int batchKind, const QString& path);
// Files a folder walk never takes: leftovers of the player's work files.
bool IsLeftoverName(const QString& fileName);

// The entries of an M3U playlist as full paths, in order: ".m3u8" is UTF-8 (a byte-order
// mark is dropped when there is one), ".m3u" UTF-8 when it decodes as such, else Latin-1.
// Comments ("#") and blank lines are skipped, and so are URLs other than file:// ones,
// which are decoded. Backslashes become slashes; relative entries are taken from the
// playlist's folder.
QStringList PlaylistEntries(const QByteArray& bytes, bool m3u8, const QString& playlistFolder);

class BatchAdder {
 public:
  // `s` gives the prompt, the log settings (m_useDatabase, m_logAvailable, m_logPath) and
  // the unit of earlier results (the list's ShowDb). `control` (may be null) pauses and
  // cancels a walk.
  BatchAdder(BatchList& list, Session& s, BatchControl* control = nullptr);
  ~BatchAdder();

  // One file. A `named` file (chosen by a person, given on the command line) that fails
  // the name test is reported as a problem; in a walk it is passed by without a word.
  int AddFile(const QString& path, bool named = false);
  // The supported files of a folder in natural name order; with `recursive` its whole
  // tree, breadth first. A symbolic link to a folder is followed once; an unreadable
  // folder is reported and the walk goes on.
  int AddFolder(const QString& folder, bool recursive);
  // The entries of a playlist; a missing entry is reported and the next one taken.
  int AddPlaylist(const QString& playlist);
  // A folder, a playlist or a file, as the path turns out to be.
  int AddPath(const QString& path, bool recursive);

  bool Cancelled() const { return m_cancelled; }
  struct Problem {
    QString path;
    QString text;        // the program's message
    int beforeRow = 0;   // the list's row count when it came: its place among the rows
    bool folder = false; // a folder that could not be read, not a file
  };
  const std::vector<Problem>& Problems() const { return m_problems; }
  // Shows the message of every bad file scanned (the window); off, the row carries it.
  void SetReportScanErrors(bool on) { m_reportScanErrors = on; }
  // Called with each path taken into work ("Processing: " in the window).
  std::function<void(const QString&)> processing;
  // Rows whose levels came from the log.
  int FromLogCount() const { return m_fromLog; }

 private:
  bool Go();
  void Report(const QString& path, const QString& text, const QString& family = {}, bool folder = false);
  int Scan(const QString& path);

  BatchList& m_list;
  Session& m_s;
  BatchControl* m_control;
  std::unique_ptr<TestLog> m_log;
  bool m_logTried = false;
  bool m_cancelled = false;
  bool m_reportScanErrors = false;
  int m_fromLog = 0;
  std::vector<Problem> m_problems;
};
