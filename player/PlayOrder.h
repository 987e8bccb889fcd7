#pragma once
// The play order of the main window: Previous and Next over the window's file list,
// Shuffle with its bag, Repeat and Repeat All, and what follows the end of a track.
//
// The list is the window's (the files of the opened file's folder, then the opened file
// once more by its full path); the order reaches it through IFileList, and opens an entry
// through the window's open of the selected entry.
#include <QString>
#include <ctime>
#include <functional>
#include <set>

#include "app/Session.h"
#include "player/PlayerEngine.h"

class IFileList {
 public:
  virtual ~IFileList() = default;
  virtual int Count() const = 0;
  virtual int Selected() const = 0;  // -1 when nothing is selected
  virtual QString Text(int index) const = 0;
  virtual void Remove(int index) = 0;
  virtual void Select(int index) = 0;
  virtual int FindExact(const QString& text) const = 0;  // first match from the top, or -1
  virtual void Focus() {}
};

// List indexes not yet drawn by Shuffle; lives for the whole run.
extern std::set<int> g_shuffleBag;

class PlayOrder {
 public:
  PlayOrder(Session& s, PlayerEngine& player, IFileList& list, IPlayerTimers& timers);

  bool NextTrack();
  bool PreviousTrack();
  void ToggleRepeat();
  void ToggleShuffle();
  void ToggleRepeatAll();
  // After the engine has reset the transport at the end of a track.
  void OnTrackEnd();
  // Every timer of the window: timer 46 plays the file a step has opened; the engine sees
  // every tick.
  void OnTimer(int timerId);

  // Opens the selected entry (the window's open with an empty path). False when the open
  // failed; the entry is then gone from the list.
  std::function<bool()> openSelected;
  // Lets the front end run until the worker that makes the work file has ended.
  std::function<void()> waitForWorker;
  // Seconds for the shuffle's seed; the clock by default.
  std::function<std::time_t()> clock = [] { return std::time(nullptr); };

  int m_forcePlay = 0;
  int m_nextIndexHint = -1;
  int m_prevIndexHint = -1;

 private:
  bool Step(bool forward);
  int Draw(int sel);
  static bool IsFullPath(const QString& entry) { return entry.startsWith(QLatin1Char('/')); }

  Session& m_s;
  PlayerEngine& m_player;
  IFileList& m_list;
  IPlayerTimers& m_timers;
};
