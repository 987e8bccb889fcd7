#pragma once
// The gain engine: the loudness of each channel as a gain g against the 89 dB reference
// (89 - g is the channel's level) and a margin n (the peak in dB against full scale, so
// (89 - g) - n is the highest level without clipping). It runs on the caller's thread; it
// is steered through the session's job control (m_job: cancel, pause, the front end's
// events), polled every 16 ms of work, and moves the bar by the progress step
// (kMsgGainStep), here a direct call of OnGainStep on the session.
//
// Levels are those of raw integer samples of the word size: 89 - g grows by 48 dB per
// 8 bits, so full level reads about 41, 89, 137 and 185 dB at 8, 16, 24 and 32 bits.
#include <QString>

struct Session;
class ReplayGainAnalyser;

// g and n of both channels from a finished analysis of samples on the 16-bit scale, for a
// word size of `bits` (89 - g grows by 48 dB per 8 bits). A mono analysis gives the same
// figures to both.
void GainFigures(const ReplayGainAnalyser& an, int bits, float& gainLeft, float& gainRight, float& noClippingLeft,
                 float& noClippingRight);

// Result codes of the gain engine (MeasureAverage, RMS, beGetRadioGain).
constexpr int kGainOk = 0;
constexpr int kGainCannotAnalyse = 2;
constexpr int kGainStopped = 6;

// The batch progress dialog as the engine reaches it: in a batch the engine sends it
// kMsgBatchProgress with first parameter 1 as many times as the progress count says.
class IBatchProgressTarget {
 public:
  virtual ~IBatchProgressTarget() = default;
  virtual void Send(unsigned message, int wParam) = 0;
};

// Average level of a PCM RIFF WAVE file. `dialog` receives the poll and the progress
// steps; `batchProgress` is null outside a batch. `progressCount` holds on entry the steps
// already made (single test: the bar comes to 100 in all) or, with `batch` set, the steps
// that this file is worth on the batch bar. `windowedMapping` is not needed: the file is
// read in windows of its own. In a single test the data chunk is the one the test found
// (the session's m_dataOffset and m_dataSize); otherwise the engine finds it.
// Returns kGainOk, kGainCannotAnalyse (nothing shown) or kGainStopped (the session's job
// was aborted; StopTest has run).
int RMS(const QString& path, int windowedMapping, Session& dialog, IBatchProgressTarget* batchProgress,
        int channels, int bits, float& gainLeft, float& gainRight, float& noClippingLeft,
        float& noClippingRight, int& progressCount, int formatTag, int batch);

// Average level of an MPEG audio file, decoded once in memory. The drive type is not needed.
int beGetRadioGain(const QString& path, Session& dialog, IBatchProgressTarget* batchProgress,
                   float& gainLeft, float& gainRight, float& noClippingLeft, float& noClippingRight,
                   int& progressCount, int batch, int driveType);

// The handler of the engine's progress message on the main window: one step of the single test's progress, never past 100.
int OnGainStep(Session& s);

// The average test of the open file: RMS on the work file of a PCM kind, beGetRadioGain
// on an MP3. Fills m_result's Gain and NoClipping fields (mono: the left ones only);
// returns one of the codes above.
int MeasureAverage(Session& s);
