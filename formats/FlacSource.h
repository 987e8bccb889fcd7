#pragma once
// FLAC sources: the open reads the stream values through the decoder's metadata callback
// and a worker decodes the whole stream into the PCM work file.
#include <QString>
#include <atomic>

struct Session;

// The decoder's last reported error: 0 lost sync, 1 bad frame header, 2 frame CRC
// mismatch, 3 unparseable stream; kFlacNoError while none came. The test refuses a FLAC
// file while it is not kFlacNoError.
constexpr int kFlacNoError = 4;
extern std::atomic<int> g_flacStatus;

// Reads the stream-info block of the source m_fileName (on the caller's thread), fills
// SourceFormat and property lines 1 to 4, and starts the worker that decodes the stream
// into the work file g_workPath.
// Returns 1 on success; otherwise it has shown its own message.
int OpenFlac(Session& s);

// Shows "Sorry but the file <path> has errors. <status text>" (information icon, with
// "Don't show again") when g_flacStatus is 0 to 3, and returns 1 then; else 0.
int ShowFlacError(Session& s, const QString& path);

// The text of a decoder status 0 to 3 (empty for others).
QString FlacStatusText(int status);
