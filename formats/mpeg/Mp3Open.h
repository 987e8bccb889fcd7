#pragma once
struct Session;

// Reads an MPEG audio file (or a WAV with format tag 0x55), fills SourceFormat and the
// property lines, and starts the copy worker. Returns 1 on success.
int OpenMp3(Session& s);
