#pragma once
#include <QString>

struct Session;

// Reads the header of the Monkey's Audio file m_fileName, fills SourceFormat and property
// lines 1 to 4, and, unless m_noWorker is set, starts the worker that decodes g_sourcePath
// into the work file g_workPath. Only 1 or 2 channels of 8, 16 or 24 bits are opened.
// Returns 1 on success; otherwise it has shown its own message.
int OpenApe(Session& s);

// Texts of a file the decoder refuses at open, and of a damaged or cut stream.
QString ApeOpenFailureText(const QString& path, int error);
QString ApeDecodeErrorText(const QString& path, int error);
