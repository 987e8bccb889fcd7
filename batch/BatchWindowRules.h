#pragma once
// What the batch window decides, as values it renders: which commands are usable, the
// column layout it keeps per kind, the texts and colours of the progress dialog, and the
// folder count behind Add Folder's "no files" message.
#include <QString>
#include <cstdint>
#include <vector>

// Command ids of the batch window's menus, tool bar and context menus.
enum BatchCommandId : int {
  kBatchAddFiles = 32887,
  kBatchAddFolder = 32773,
  kBatchAddFolders = 32775,
  kBatchAddPlaylists = 33049,
  kBatchClose = 32888,
  kBatchCloseTool = 32864,
  kBatchMoveDown = 32910,
  kBatchMoveUp = 32911,
  kBatchCheckAll = 32889,
  kBatchUncheckAll = 32890,
  kBatchRemove = 32891,
  kBatchRemoveAll = 32892,
  kBatchTest = 32869,
  kBatchPlayPause = 32791,
  kBatchStop = 32830,
  kBatchVolumeUp = 32827,
  kBatchVolumeDown = 32828,
  kBatchPrevious = 32951,
  kBatchNext = 32952,
  kBatchAlwaysOnTop = 32968,
  kBatchUseDatabase = 734,
  kBatchClearDatabase = 733,
  kBatchDatabase = 732,
  kBatchAllCores = 33100,  // Options: run on every core, or on one
  kBatchHelp = 57670,
};

struct BatchEnablingInput {
  int fileCount = 0;
  bool logAvailable = false;
  bool addBusy = false;        // a folder search is in work
  bool previewEnabled = true;  // no dialog of an add command is open, no run
  bool previewActive = false;  // the preview's channel plays or is paused
};

struct BatchEnablingState {
  bool listCommands = false;  // moves, checks, removes, Test
  bool removes = false;       // not while a search adds rows
  bool playPause = false;
  bool stop = false;
  bool stepping = false;      // Previous, Next
  bool useDatabase = false;
  bool database = false;
};

BatchEnablingState BatchEnabling(const BatchEnablingInput& in);

// The remembered layout of one column: shown or hidden, its place in the order (-1: its
// own), and its width (a hidden column keeps the width it had).
struct BatchColumnState {
  bool visible = true;
  int position = -1;
  int width = 0;
};
// Per kind under the kind's section ("List_1" ... "List_4"); absent keys give the defaults.
std::vector<BatchColumnState> LoadColumnLayout(int batchKind);
void SaveColumnLayout(int batchKind, const std::vector<BatchColumnState>& columns);

// Progress bar colours (0x00BBGGRR): running (gradient), paused (flat), cancelled (gradient).
struct BatchBarLook {
  uint32_t from, to, text, emptyText;
};
enum class BatchBarState { Running, Paused, Cancelled };
BatchBarLook BatchBarLookOf(BatchBarState state);

// The time left as the progress dialog counts it down once a second: an estimate of s
// seconds starts at s + 1, each tick takes one whole second off.
class BatchCountdown {
 public:
  void Start(double estimateSeconds) { m_remaining = estimateSeconds + 1.0; }
  void Tick();
  double Remaining() const { return m_remaining; }
  // "1 hr 2 min 3 sec"; hours and minutes only when above 0.
  QString Text() const;  // the run's estimate text of what is left

 private:
  double m_remaining = 0;
};

// The supported files of one folder for a batch kind, its sub-folders and the player's
// leftovers not counted.
int CountSupportedFiles(int batchKind, const QString& folder);
