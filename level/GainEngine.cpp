#include "level/GainEngine.h"

#include <QFile>
#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstring>
#include <thread>
#include <vector>

#include "app/Globals.h"
#include "app/Session.h"
#include "formats/WorkFile.h"
#include "app/Job.h"
#include "formats/Decode.h"
#include "level/LevelAnalyser.h"
#include "level/ReplayGain.h"
#include "level/SampleScale.h"


namespace {

// The running analysis's steering, as beChangePause and beChangexitAnaliz leave it. One
// analysis at a time: both calls arrive on the analysing thread, from within the poll.
struct Steering {
  int running = 0;
  int paused = 0;
  int exit = 0;
};
Steering g_steering;

// Pacing: the poll comes every 16 ms of work, or sooner after 64 Ki frames; samples are
// read and converted in chunks.
constexpr auto kPollInterval = std::chrono::milliseconds(16);
constexpr uint64_t kPollFrames = 65536;
constexpr auto kPausedSleep = std::chrono::milliseconds(10);
constexpr size_t kChunkFrames = 4096;
constexpr uint64_t kReadWindow = 16u << 20;

// One analysis from its call to its return: polls, progress steps, steering.
class AnalysisRun {
 public:
  AnalysisRun(Session& dialog, IBatchProgressTarget* batchProgress, int progressCount, int batch)
      : m_dialog(dialog), m_batchProgress(batchProgress), m_batch(batch != 0) {
    // A single test has made `progressCount` of its 100 steps already; a batch file is
    // worth `progressCount` steps on the batch bar.
    m_steps = m_batch ? std::max(progressCount, 0) : std::clamp(100 - progressCount, 0, 100);
    g_steering = Steering{1, 0, 0};
    m_lastPoll = std::chrono::steady_clock::now();
  }
  ~AnalysisRun() { g_steering = Steering{}; }

  // One poll; while the analysis is paused keeps polling. False once it is to stop.
  bool Poll() {
    OnGainPoll(m_dialog);
    while (g_steering.paused && !g_steering.exit) {
      std::this_thread::sleep_for(kPausedSleep);
      OnGainPoll(m_dialog);
    }
    m_framesSincePoll = 0;
    m_lastPoll = std::chrono::steady_clock::now();
    return !g_steering.exit;
  }

  // After a chunk of `frames` frames, with `fraction` of the work done.
  bool Tick(uint64_t frames, double fraction) {
    Advance(fraction);
    m_framesSincePoll += frames;
    if (m_framesSincePoll >= kPollFrames || std::chrono::steady_clock::now() - m_lastPoll >= kPollInterval)
      return Poll();
    return true;
  }

  // The steps not yet made: the bar of a single test ends at 100, never past it.
  void Complete() { Advance(1.0); }

 private:
  void Advance(double fraction) {
    fraction = std::clamp(fraction, 0.0, 1.0);
    const int due = int(double(m_steps) * fraction);
    while (m_sent < due) {
      ++m_sent;
      if (m_batch) {
        if (m_batchProgress) m_batchProgress->Send(kMsgBatchProgress, 1);
      } else {
        OnGainStep(m_dialog);
      }
    }
  }

  Session& m_dialog;
  IBatchProgressTarget* m_batchProgress;
  bool m_batch;
  int m_steps = 0;
  int m_sent = 0;
  uint64_t m_framesSincePoll = 0;
  std::chrono::steady_clock::time_point m_lastPoll;
};

uint32_t Le32(const uint8_t* p) {
  return uint32_t(p[0]) | uint32_t(p[1]) << 8 | uint32_t(p[2]) << 16 | uint32_t(p[3]) << 24;
}

// The data chunk of a RIFF WAVE file found as the test finds it: a search for "data" in
// the first bytes, up to the RIFF size at byte 4 and never past the file's end.
bool FindDataIn(MappedFile& f, uint32_t& dataOffset, uint32_t& dataSize) {
  const uint64_t head = std::min<uint64_t>(f.Size(), uint64_t(kAllocGranularity) * 10);
  const uint8_t* view = head >= 8 ? f.Map(0, head) : nullptr;
  if (!view) return false;
  const uint64_t limit = std::min<uint64_t>(Le32(view + 4), f.Size());
  const bool found = FindDataChunk(view, f.ViewSize(), limit, dataOffset, dataSize);
  f.Unmap();
  return found;
}

// The sample rate from the "fmt " chunk, walking the chunks of the file's first bytes.
int SampleRateOf(MappedFile& f) {
  const uint64_t head = std::min<uint64_t>(f.Size(), uint64_t(kAllocGranularity) * 16);
  const uint8_t* view = head >= 12 ? f.Map(0, head) : nullptr;
  int rate = 0;
  if (view && std::memcmp(view, "RIFF", 4) == 0 && std::memcmp(view + 8, "WAVE", 4) == 0) {
    uint64_t pos = 12;
    while (pos + 8 <= head) {
      const uint32_t size = Le32(view + pos + 4);
      if (std::memcmp(view + pos, "fmt ", 4) == 0) {
        if (size >= 16 && pos + 16 <= head) rate = int(std::min<uint32_t>(Le32(view + pos + 12), 0x7fffffff));
        break;
      }
      pos += 8 + uint64_t(size) + (size & 1);
    }
  }
  f.Unmap();
  return rate;
}

// g and n of a channel from the analysis on the 16-bit scale, for samples of `bits` bits.
void ChannelFigures(const ReplayGainAnalyser& an, int channel, int bits, float& gain, float& noClipping) {
  const double shift = 20.0 * std::log10(2.0) * (bits - 16);
  gain = float(an.Gain(channel) - shift);
  const double peak = an.Peak(channel);
  noClipping = peak > 0 ? float(20.0 * std::log10(peak / 32768.0)) : 0.0f;
}

}  // namespace

void GainFigures(const ReplayGainAnalyser& an, int bits, float& gainLeft, float& gainRight, float& noClippingLeft,
                 float& noClippingRight) {
  ChannelFigures(an, 0, bits, gainLeft, noClippingLeft);
  if (an.Channels() == 2) {
    ChannelFigures(an, 1, bits, gainRight, noClippingRight);
  } else {
    gainRight = gainLeft;
    noClippingRight = noClippingLeft;
  }
}

void beChangePause() {
  if (g_steering.running) g_steering.paused = !g_steering.paused;
}

void beChangexitAnaliz() {
  if (g_steering.running) g_steering.exit = 1;
}

int OnGainPoll(Session& s) {
  const int go = s.PumpMessages();
  if (go == 0 || s.m_exitRequested) {
    beChangexitAnaliz();
    s.m_pauseToggle = 0;
    s.m_testPaused = 0;
    s.StopTest();
  } else if (s.m_pauseToggle) {
    beChangePause();
    s.m_pauseToggle = 0;
    s.m_testPaused = 0;
  }
  return 0;
}

int OnGainStep(Session& s) {
  const int pos = std::min(100, s.m_progressPercent + 1);
  s.SetProgress(pos);
  if (!s.m_savedTitle.isEmpty()) s.m_title = QString::number(pos) + "% - " + s.m_savedTitle;
  return 0;
}

int RMS(const QString& path, int windowedMapping, Session& dialog, IBatchProgressTarget* batchProgress,
        int channels, int bits, float& gainLeft, float& gainRight, float& noClippingLeft,
        float& noClippingRight, int& progressCount, int formatTag, int batch) {
  (void)windowedMapping;
  SampleKind kind;
  if (!SampleKindOf(bits, formatTag, kind)) return kGainCannotAnalyse;
  if (channels < 1 || channels > 64) return kGainCannotAnalyse;
  const int used = std::min(channels, 2);
  const uint64_t frameBytes = uint64_t(channels) * (bits / 8);

  MappedFile file;
  if (!file.Open(path)) return kGainCannotAnalyse;
  const int rate = SampleRateOf(file);
  if (rate <= 0) return kGainCannotAnalyse;
  uint32_t dataOffset = 0, dataSize = 0;
  if (!batch && dialog.m_dataSize != 0 && path == g_workPath) {
    dataOffset = dialog.m_dataOffset;
    dataSize = dialog.m_dataSize;
  } else if (!FindDataIn(file, dataOffset, dataSize)) {
    return kGainCannotAnalyse;
  }
  if (dataOffset >= file.Size()) return kGainCannotAnalyse;
  const uint64_t frames = std::min<uint64_t>(dataSize, file.Size() - dataOffset) / frameBytes;
  if (frames == 0) return kGainCannotAnalyse;

  ReplayGainAnalyser an;
  if (!an.Init(rate, used)) return kGainCannotAnalyse;
  AnalysisRun run(dialog, batchProgress, progressCount, batch);
  if (!run.Poll()) return kGainStopped;

  uint64_t done = 0;
  while (done < frames) {
    const uint64_t pos = dataOffset + done * frameBytes;
    const uint64_t mapStart = pos - pos % kAllocGranularity;
    const uint64_t want = std::min<uint64_t>(kReadWindow, (frames - done) * frameBytes);
    const uint8_t* view = file.Map(mapStart, pos - mapStart + want);
    if (!view) return kGainCannotAnalyse;
    uint64_t avail = std::min<uint64_t>((file.ViewSize() - (pos - mapStart)) / frameBytes, frames - done);
    if (avail == 0) return kGainCannotAnalyse;
    const uint8_t* p = view + (pos - mapStart);
    while (avail > 0) {
      const size_t n = size_t(std::min<uint64_t>(avail, kChunkFrames));
      an.ProcessPcm(p, n, channels, kind);
      g_sampleBytesRead += n * frameBytes;
      p += n * frameBytes;
      avail -= n;
      done += n;
      if (!run.Tick(n, double(done) / double(frames))) return kGainStopped;
    }
  }
  file.Close();
  an.Finish();
  if (!run.Poll()) return kGainStopped;
  run.Complete();
  GainFigures(an, kind == SampleKind::F32 ? 32 : bits, gainLeft, gainRight, noClippingLeft, noClippingRight);
  return kGainOk;
}

namespace {

constexpr uint64_t kMpegFrameSamples = 1152;

// The poll and the progress of an analysis, as a decoder's control.
class AnalysisControl : public IAbortable {
 public:
  explicit AnalysisControl(AnalysisRun& run) : m_run(run) {}
  void Abort() override { m_stopped = true; }
  bool IsAborted() const override { return m_stopped; }
  bool Checkpoint(double fraction) override {
    // The MPEG decoder checks in once a frame, which holds 1152 samples of Layer III.
    if (!m_stopped && !m_run.Tick(kMpegFrameSamples, fraction)) m_stopped = true;
    return !m_stopped;
  }

 private:
  AnalysisRun& m_run;
  bool m_stopped = false;
};

}  // namespace

int beGetRadioGain(const QString& path, Session& dialog, IBatchProgressTarget* batchProgress,
                   float& gainLeft, float& gainRight, float& noClippingLeft, float& noClippingRight,
                   int& progressCount, int batch, int driveType) {
  (void)driveType;
  AnalysisRun run(dialog, batchProgress, progressCount, batch);
  if (!run.Poll()) return kGainStopped;
  AnalysisControl control(run);
  DecodeJob job;
  job.kind = kKindMp3;
  job.source = path;
  job.control = &control;
  // The analysis runs here, on the caller's thread, between the decoder's frames.
  LevelAnalyser analyser(false, false);
  const DecodeStatus status = DecodeMpeg(job, analyser);
  if (status == DecodeStatus::Stopped) return kGainStopped;
  if (!analyser.GainMeasured()) return kGainCannotAnalyse;
  if (!run.Poll()) return kGainStopped;
  run.Complete();
  const LevelResult r = analyser.Result();
  gainLeft = r.GainLeft;
  noClippingLeft = r.NoClippingLeft;
  // A mono stream gives the same figures to both.
  gainRight = job.format.channels == 2 ? r.GainRight : r.GainLeft;
  noClippingRight = job.format.channels == 2 ? r.NoClippingRight : r.NoClippingLeft;
  return kGainOk;
}

int MeasureAverage(Session& s) {
  if (g_workPath.isEmpty()) return kGainCannotAnalyse;
  float gainLeft = 0, gainRight = 0, noClippingLeft = 0, noClippingRight = 0;
  int rc;
  bool stereo;
  if (s.m_sourceKind == kKindMp3) {
    rc = beGetRadioGain(g_workPath, s, nullptr, gainLeft, gainRight, noClippingLeft, noClippingRight,
                        s.m_progressPercent, 0, s.m_driveType);
    stereo = s.m_mpegMode != 3;
  } else {
    if (s.m_dataSize == 0) {
      MappedFile file;
      if (!file.Open(g_workPath) || !FindDataIn(file, s.m_dataOffset, s.m_dataSize)) return kGainCannotAnalyse;
    }
    rc = RMS(g_workPath, s.m_windowedMapping, s, nullptr, s.m_channels, s.m_bits, gainLeft, gainRight,
             noClippingLeft, noClippingRight, s.m_progressPercent, s.m_formatTag, 0);
    stereo = s.m_channels == 2;
  }
  if (rc == kGainCannotAnalyse || rc == kGainStopped) return rc;
  s.m_result.GainLeft = gainLeft;
  s.m_result.NoClippingLeft = noClippingLeft;
  s.m_noClippingLeft = noClippingLeft;
  if (stereo) {
    s.m_result.GainRight = gainRight;
    s.m_result.NoClippingRight = noClippingRight;
    s.m_noClippingRight = noClippingRight;
  }
  return kGainOk;
}
