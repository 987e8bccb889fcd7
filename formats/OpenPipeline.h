#pragma once
// The way in for a file: the suffix test, the kind, the work path, the first look at the
// file, and the format's reader. The file dialog and the file list belong to the window;
// what is here decides and fills the session.
#include <QList>
#include <QPair>
#include <QString>
#include <QStringList>
#include <cstdint>

struct Session;

// Suffix tests, case-insensitive, on the end of the name (the dot included).
bool IsMp3Name(const QString& name);   // .mp3 .mpga
bool IsWavName(const QString& name);   // .wav .wave
bool IsMp4Name(const QString& name);   // .aac .m4a .m4b .m4p .m4r .mp4
bool IsOggName(const QString& name);   // .ogg
bool IsApeName(const QString& name);   // .ape
bool IsFlacName(const QString& name);  // .flac .fla

// Kind of a file by its suffix (the order of the tests decides); -1 if none fits.
int KindOfName(const QString& name);

// 0 when m_fileName has a supported suffix, else 1. With `ask` set, the refusal is a
// question whose Yes opens the file dialog; a refused extension also clears m_canPlay.
int CheckFileName(Session& s, int ask);

// "1024 bytes", "1.00 kB", "2 kB", ...: a size by 1024 steps; empty beyond gigabytes.
QString SizeText(uint64_t size);

// Size of the open g_workFile into m_fileSize (low and high halves) and property line 5.
// False (nothing changed) when the size cannot be read.
bool ShowFileSize(Session& s);

// Closes g_workFile if it is open, zeroing m_fileSize, m_dataSize and m_dataOffset.
void CloseWorkFile(Session& s);

// Clears all that the session shows of a file: title, property lines, levels, status,
// format tag.
void ClearFileDisplay(Session& s);

// The Open command: asks the front end's file dialog (s.m_fileDialog) for a path and opens
// it. Called from within another open (a reader's question answered Yes), it is only noted
// and runs once that open has finished.
void OnFileOpen(Session& s);

// Opens `path` as the Open command does after the dialog, without asking anything about
// the name: suffix test, kind, old work file removed, source's read-only bit cleared, work
// path, the first look at the file, the format's reader. Returns 1 when a file is open;
// its worker may still be running (see WaitForWorker). With s.m_noWorker set the reader
// only reads the header.
int OpenFileHeadless(Session& s, const QString& path);

// Captions and patterns of the open dialog's filter list, in order, and its title.
QList<QPair<QString, QString>> OpenDialogFilters();
QString OpenDialogTitle();

// The supported files of a folder (file names only, directories skipped), in the order
// the folder gives them.
QStringList FillFileList(const QString& folder);

// The refusal of a file whose content no reader supports: "Sorry, but the file " + path +
// " has unsupported by the program a format of sound data. ..." with the question whether
// to choose another file.
QString UnsupportedFormatQuestion(const QString& path);

// A reader's refusal of the content: the status "  Test is stopped" and the question above;
// a No leaves the session without a file (the next Test asks for one).
void RefuseUnsupportedFormat(Session& s);

// Lines 1 to 3 of a PCM-like source (WAV, FLAC, APE): bits, channels, frequency.
void SetPcmPropertyLines(Session& s, int bits, int channels, int sampleRate);
