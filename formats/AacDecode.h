#pragma once
// The decoder threads of the AAC kind. Each works from g_sourcePath alone (it parses the
// source again), writes the PCM work file at g_workPath with the 44-byte header, patches
// its sizes at the end and returns the thread's exit code (0 when the file was written).
#include <QString>

struct Session;

// AAC in an MP4 container: the mp4ff reader and faad2, sample by sample.
int DecodeMp4Aac(Session& s);
// A raw ADTS or ADIF stream: faad2 over the mapped file.
int DecodeRawAac(Session& s);
// ALAC in an MP4 container: packets one after the other from the start of the media data.
int DecodeAlac(Session& s);

// The family of the decoder threads' boxes with "Don't show again": one memory of the tick
// for all of them, so a file with many bad frames does not pile up boxes.
extern const QString kMp4DecoderFamily;

// Creates (or empties) the work file; false if it can't be made or is the source itself.
bool CreateEmptyWorkFile(const QString& workPath, const QString& sourcePath);
QString CannotBeCreatedText(const QString& workPath);
