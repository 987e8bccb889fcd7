#pragma once
#include <QString>
#include <QStringList>

struct Session;

// Opens a RIFF WAVE source: finds "fmt " and "data" by a byte scan of the first bytes of
// the file (no chunk walk), keeps the format block in m_fmtBlock, fills SourceFormat and
// property lines 1 to 4. PCM and IEEE float of 1 or 2 channels and 8, 16, 24 or 32 bits
// are read as they stand and copied to the work file by the copy worker; MPEG Layer III
// goes to the MPEG reader; other tags to the conversion road.
// Expects m_fileName, g_sourcePath and g_workPath set, and g_workFile open for reading (it
// opens m_fileName itself when g_workFile is closed). Returns 1 on success; otherwise it
// has shown its own message, if any.
int OpenWav(Session& s);

// Caption of the level scale for a sample width: "100% = 89 dB" for 16 bits, ...
QString ScaleCaptionForBits(int bits);

// Captions under the level bars: "Left Channel" and "Right Channel" for stereo,
// "Mono Channel" and an empty right-hand caption for mono.
QStringList LevelCaptions(int channels);
