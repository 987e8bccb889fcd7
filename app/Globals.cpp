#include "app/Globals.h"

std::atomic<int> g_workerBusy{0};
std::atomic<int> g_copyFailed{0};
std::atomic<int> g_copyFinished{0};
QString g_workPath;
QString g_sourcePath;
int g_workFile = -1;

void ClearSessionPaths() {
  g_workPath.clear();
  g_sourcePath.clear();
}
std::atomic<unsigned long long> g_sampleBytesRead{0};
