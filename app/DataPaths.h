#pragma once
// Where the program's data files live: translations/, help/ and notify.wav.
//
// The same relative names work in the build tree and in an installation:
//   build tree   <build>/translations/tonvane_de.qm, <build>/help/..., <build>/notify.wav
//                (beside the programs)
//   installed    <prefix>/share/tonvane/translations/..., .../help/..., .../notify.wav
#include <QString>
#include <QStringList>

namespace tonvane {

// Folders searched for data files, best first, each existing once:
//   1. $TONVANE_DATA_DIR, when set (tests; a person trying another set of files);
//   2. the folder of the running program (the build tree);
//   3. <program>/../share/tonvane (an installation under any prefix);
//   4. tonvane/ under $XDG_DATA_HOME and each of $XDG_DATA_DIRS.
// 2 and 3 need a QCoreApplication; without one they are left out.
QStringList DataDirs();
// The same for a program in `programDir` (empty: none).
QStringList DataDirs(const QString& programDir);

// Full path of the first data file or folder named `relative` (e.g. "notify.wav",
// "help/index.html", "translations"); empty when no data folder has it.
QString FindDataFile(const QString& relative);

}  // namespace tonvane
