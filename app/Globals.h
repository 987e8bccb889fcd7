#pragma once
// Program-wide state that worker threads touch. Workers use only these; everything else
// belongs to the main thread. The paths are set and cleared by the main thread while no
// worker runs, and read by the worker while g_workerBusy is 1.
#include <QString>
#include <atomic>

extern std::atomic<int> g_workerBusy;    // a worker fills the work file
extern std::atomic<int> g_copyFailed;    // the worker failed
extern std::atomic<int> g_copyFinished;  // the display is to be reset by the timer handler
extern QString g_workPath;               // empty: no file is open
extern QString g_sourcePath;
extern int g_workFile;                   // file descriptor of the session, -1 when closed

// Free the two paths (a reader's failure, a close).
void ClearSessionPaths();

// Instrumentation: bytes of sample data read or decoded by any measurement or decoder in
// this process (scanner, gain engine, work file writers). Lets a test prove that an
// answer from the test log read no samples.
extern std::atomic<unsigned long long> g_sampleBytesRead;
