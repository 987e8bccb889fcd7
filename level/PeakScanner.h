#pragma once
// The peak test: the largest absolute sample of each channel of a PCM work file, read
// through memory-mapped views, and the level it gives in percent or dB.
#include <QString>
#include <cstddef>
#include <cstdint>

struct Session;

// Walks the samples of the work file g_workPath (mapped in views) and leaves the peak
// levels in the session: m_levelLeft/Right in the current scale and, in dB mode,
// m_noClipDbLeft/Right (mono files leave the right ones as they were). Finds the data chunk
// first when m_dataSize is 0. 0 when the scan ran to its end, 1 when it stopped (the file
// could not be opened or mapped, had no sound data, or the user cancelled), after StopTest;
// the caller then closes the work file and drops the partial values.
int ScanPeakLevels(Session& s);

// The set-up that both tests make on a PCM work file before they measure. 0: there is sound
// data to measure. 1: the work file cannot be opened (reported), is empty (nothing is said)
// or has no data chunk (after the question; Yes sets m_openDialogPending). The caller then
// stops the test and lets the file go.
int CheckWorkFileData(Session& s);

// The text of the question for a work file without a data chunk.
QString NoSoundDataQuestion(const QString& fileName);

// --- The pieces, usable on their own ---

// One of the ten frame layouts the scanner reads.
struct SampleBlock {
  int id = 0;             // 1..10, 0 for none
  int channels = 0;
  int bits = 0;
  bool isFloat = false;
  uint32_t frameBytes = 0;
  uint32_t lastRestLimit = 0;  // a last window must hold more bytes than this to be scanned
};
// False for a combination the scanner does not read (more than two channels, 64-bit, a
// 32-bit tag other than 1 and 3).
bool ChooseSampleBlock(int channels, int bits, uint16_t formatTag, SampleBlock& out);

// Raw extremes of each channel, the sample kernel that a mapped view or a stream feeds.
class PeakExtremes {
 public:
  explicit PeakExtremes(const SampleBlock& block) : m_block(block) {}
  // `frames` whole frames at `p` (no alignment needed).
  void Feed(const uint8_t* p, size_t frames);
  // The raw peak of a channel (0 left, 1 right) in sample units of the word size; float
  // extremes are taken to 32-bit integer scale, 1.0 and beyond reading as full scale.
  double RawPeak(int channel) const;
  // Takes in the extremes of another part of the same samples.
  void Merge(const PeakExtremes& other);

  int32_t m_minLeft = 0, m_minRight = 0, m_maxLeft = 0, m_maxRight = 0;
  uint8_t m_min8Left = 128, m_max8Left = 128, m_min8Right = 128, m_max8Right = 128;
  float m_floatMinLeft = 0, m_floatMinRight = 0, m_floatMaxLeft = 0, m_floatMaxRight = 0;

 private:
  SampleBlock m_block;
};

// The views of a scan. Files up to W = 1600 x G bytes are one view; larger files are read
// in windows of W bytes, each view reaching back G bytes over the previous one so that a
// frame cut by a window's end is read whole from the next view.
struct PeakPass {
  uint64_t mapOffset = 0;   // a multiple of G
  uint64_t mapLength = 0;
  uint64_t scanOffset = 0;  // file offset of the first frame read
  uint64_t frames = 0;
  bool mapped = false;      // false: a last window with too little left to read
};
class PeakWindowPlan {
 public:
  PeakWindowPlan(uint64_t fileSize, uint32_t dataOffset, uint32_t dataSize, const SampleBlock& block,
                 uint32_t granularity);
  bool Windowed() const { return m_windowed; }
  int Passes() const { return m_passes; }
  // The next pass; false when all are given.
  bool Next(PeakPass& pass);

 private:
  uint64_t m_size, m_w, m_g;
  uint32_t m_offset, m_dataSize, m_frame, m_restLimit;
  bool m_windowed;
  int m_passes, m_done = 0;
  uint64_t m_running = 0, m_carried = 0, m_scanLength = 0, m_nextRest = 0;
};

// Frames between two progress steps of the single test: the bar moves on from `position`
// (0..100) and reaches 100 at the end of the last of `windowsLeft` passes. 0: no step.
uint64_t SingleStepInterval(uint64_t frames, int position, int windowsLeft);

// Frames between two steps of the batch bar for a pass worth `share` steps, carrying the
// fraction of a step in `remainder` from pass to pass and file to file. 0: no step.
uint64_t BatchStepInterval(uint64_t frames, double share, double& remainder);
