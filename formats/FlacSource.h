#pragma once
struct Session;

// Reads the header of the source g_sourcePath (named by m_fileName), fills SourceFormat and
// property lines 1 to 4, and starts the worker that makes the work file g_workPath.
// Returns 1 on success; otherwise it has shown its own message.
int OpenFlac(Session& s);
