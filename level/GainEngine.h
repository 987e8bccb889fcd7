#pragma once
struct Session;

// Result codes of the gain engine.
constexpr int kGainOk = 0;
constexpr int kGainCannotAnalyse = 2;
constexpr int kGainStopped = 6;

// The average test of the open file: RMS on the work file of a PCM kind, beGetRadioGain
// on an MP3. Fills m_result's Gain and NoClipping fields; returns one of the codes above.
int MeasureAverage(Session& s);
