#pragma once
#include <QString>
#include <cstdint>

struct Session;

// Opens `path` as the Open command does, without the file dialog: suffix test (asking
// nothing), kind, work path, the format's reader. Returns 1 when a file is open; its
// worker may still be running (see WaitForWorker).
int OpenFileHeadless(Session& s, const QString& path);

// Kind of a file by its suffix (the order of the tests decides); -1 if none fits.
int KindOfName(const QString& name);

// "1024 bytes", "1.00 kB", "2 kB", ...: a size by 1024 steps.
QString SizeText(uint64_t size);
