#pragma once
// The registry of source kinds: one entry per kind with its suffixes, the file dialog's
// filter, the batch window's title and column section, the batch's texts and the CLI's
// name. Front ends derive their filters and choices from here instead of switching on the
// kind themselves.
#include <QString>
#include <QStringList>
#include <vector>

struct KindInfo {
  int kind;                     // SourceKind: 0 WAV, 1 MP3, 2 FLAC, 3 Ogg, 4 APE, 5 AAC, 6 ALAC
  const char* cliName;          // "wav", "mp3", ... as --kind takes it; empty for ALAC
  const char* displayName;      // "WAV", "MP3", ... in the CLI's output
  QStringList suffixes;         // lower case, with the dot
  const char* dialogCaption;    // "Wave Files (*.wav; *.wave)" (translatable source text)
  const char* dialogPattern;    // "*.wav;*.wave"
  const char* batchTitle;       // title of the batch window of this kind
  const char* columnSection;    // settings section of the batch list's columns
  const char* noFilesText;      // tail of "Sorry, but the open folder X ..." for this kind
  int batchTimerId;             // the main window's timer that starts this kind's run
  int typeIndex;                // radio button of the type dialog; -1 when never chosen
};

// All kinds, in kind order (index == kind).
const std::vector<KindInfo>& Kinds();
// The entry of a kind; null for an unknown kind. ALAC (6) answers as itself but shares
// everything of the batch with AAC (5).
const KindInfo* KindInfoOf(int kind);
// The kind a CLI name stands for ("mp3", "mp4", "aac", ...); -1 for an unknown name.
int KindOfCliName(const QString& name);

// True when `path` ends in one of the kind's own suffixes, in any case. A batch of kind 1
// also takes ".wav" and ".wave" when the file carries MPEG Layer III; that test reads the
// file and lives with the batch (BatchNameTest).
bool HasSuffixOfKind(int kind, const QString& path);
// ".m3u" or ".m3u8", in any case.
bool IsPlaylistName(const QString& path);

// The filters of the Add Files dialog in order ("All Files (*.*)" first), translated, and
// the index of the one to show first for a batch kind.
QList<QPair<QString, QString>> BatchFileFilters();
int BatchFirstFilter(int kind);
// The filter of the Add Playlists dialog.
QPair<QString, QString> PlaylistFilter();
// The kind a radio index of the type dialog selects, and back.
int KindOfTypeIndex(int index);
int TypeIndexOfKind(int kind);
