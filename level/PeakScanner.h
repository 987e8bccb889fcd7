#pragma once
struct Session;

// Walks the samples of the work file g_workPath (mapped in views) and leaves the peak
// levels in the session: m_levelLeft/Right in the current scale and, in dB mode,
// m_noClipDbLeft/Right. 0 when the scan ran to its end, 1 when it stopped.
int ScanPeakLevels(Session& s);
