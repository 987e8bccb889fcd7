#include "level/PeakScanner.h"

#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cmath>
#include <cstring>
#include <condition_variable>
#include <memory>
#include <mutex>
#include <system_error>
#include <thread>

#include <QtEndian>

#include "app/FileErrors.h"
#include "app/Globals.h"
#include "app/Session.h"
#include "app/Text.h"
#include "formats/WorkFile.h"
#include "level/ExtremesKernels.h"
#include "level/LevelScales.h"


// ---------------------------------------------------------------------------------------
// Sample blocks

bool ChooseSampleBlock(int channels, int bits, uint16_t formatTag, SampleBlock& out) {
  struct Row {
    int id, channels, bits, tag;  // tag -1: any
    bool isFloat;
    uint32_t frameBytes, restLimit;
  };
  static const Row rows[] = {
      {1, 2, 16, -1, false, 4, 3},  {2, 1, 16, -1, false, 2, 1}, {3, 2, 8, -1, false, 2, 1},
      {4, 1, 8, -1, false, 1, 0},   {5, 2, 32, 1, false, 8, 15}, {6, 2, 32, 3, true, 8, 15},
      {7, 2, 24, -1, false, 6, 11}, {8, 1, 32, 1, false, 4, 7},  {9, 1, 32, 3, true, 4, 7},
      {10, 1, 24, -1, false, 3, 2},
  };
  for (const Row& r : rows) {
    if (r.channels == channels && r.bits == bits && (r.tag < 0 || r.tag == formatTag)) {
      out = SampleBlock{r.id, r.channels, r.bits, r.isFloat, r.frameBytes, r.restLimit};
      return true;
    }
  }
  out = SampleBlock{};
  return false;
}

// ---------------------------------------------------------------------------------------
// The kernel

void PeakExtremes::Feed(const uint8_t* p, size_t frames) {
  const bool stereo = m_block.channels == 2;
  const size_t samples = frames * size_t(m_block.channels);
  if (m_block.bits == 8) {
    uint8_t mn[2] = {m_min8Left, m_min8Right}, mx[2] = {m_max8Left, m_max8Right};
    ExtremesU8(p, samples, stereo, mn, mx);
    m_min8Left = mn[0], m_min8Right = mn[1], m_max8Left = mx[0], m_max8Right = mx[1];
  } else if (m_block.isFloat) {
    float mn[2] = {m_floatMinLeft, m_floatMinRight}, mx[2] = {m_floatMaxLeft, m_floatMaxRight};
    ExtremesF32(p, samples, stereo, mn, mx);
    m_floatMinLeft = mn[0], m_floatMinRight = mn[1], m_floatMaxLeft = mx[0], m_floatMaxRight = mx[1];
  } else {
    int32_t mn[2] = {m_minLeft, m_minRight}, mx[2] = {m_maxLeft, m_maxRight};
    switch (m_block.bits) {
      case 16: ExtremesS16(p, samples, stereo, mn, mx); break;
      case 24: ExtremesS24(p, samples, stereo, mn, mx); break;
      case 32: ExtremesS32(p, samples, stereo, mn, mx); break;
      default: return;
    }
    m_minLeft = mn[0], m_minRight = mn[1], m_maxLeft = mx[0], m_maxRight = mx[1];
  }
}

void PeakExtremes::Merge(const PeakExtremes& o) {
  m_minLeft = std::min(m_minLeft, o.m_minLeft), m_minRight = std::min(m_minRight, o.m_minRight);
  m_maxLeft = std::max(m_maxLeft, o.m_maxLeft), m_maxRight = std::max(m_maxRight, o.m_maxRight);
  m_min8Left = std::min(m_min8Left, o.m_min8Left), m_min8Right = std::min(m_min8Right, o.m_min8Right);
  m_max8Left = std::max(m_max8Left, o.m_max8Left), m_max8Right = std::max(m_max8Right, o.m_max8Right);
  m_floatMinLeft = std::min(m_floatMinLeft, o.m_floatMinLeft);
  m_floatMinRight = std::min(m_floatMinRight, o.m_floatMinRight);
  m_floatMaxLeft = std::max(m_floatMaxLeft, o.m_floatMaxLeft);
  m_floatMaxRight = std::max(m_floatMaxRight, o.m_floatMaxRight);
}

namespace {

// A float extreme on the 32-bit integer scale; 1.0 and beyond (and infinities) read as
// full scale, the minimum limited to -2147483647 like an integer one.
int32_t FloatToScale(float f) {
  const double d = double(f) * 2147483648.0;
  if (d >= 2147483647.0) return 2147483647;
  if (d <= -2147483647.0) return -2147483647;
  return int32_t(d);  // towards zero
}

}  // namespace

double PeakExtremes::RawPeak(int channel) const {
  const bool right = channel == 1;
  if (m_block.bits == 8) {
    const double lo = 128.0 - (right ? m_min8Right : m_min8Left);
    const double hi = double(right ? m_max8Right : m_max8Left) - 128.0;
    return std::max(lo, hi);
  }
  int32_t mn, mx;
  if (m_block.isFloat) {
    mn = FloatToScale(right ? m_floatMinRight : m_floatMinLeft);
    mx = FloatToScale(right ? m_floatMaxRight : m_floatMaxLeft);
  } else {
    mn = std::max<int32_t>(right ? m_minRight : m_minLeft, -2147483647);
    mx = right ? m_maxRight : m_maxLeft;
  }
  return std::max(double(mx), -double(mn));
}

// ---------------------------------------------------------------------------------------
// Windows

PeakWindowPlan::PeakWindowPlan(uint64_t fileSize, uint32_t dataOffset, uint32_t dataSize,
                               const SampleBlock& block, uint32_t granularity)
    : m_size(fileSize),
      m_w(uint64_t(granularity) * 1600),
      m_g(granularity),
      m_offset(dataOffset),
      m_dataSize(dataSize),
      m_frame(std::max<uint32_t>(block.frameBytes, 1)),
      m_restLimit(block.lastRestLimit),
      m_windowed(m_g > 0 && fileSize > m_w),
      m_passes(m_windowed ? int((fileSize + m_w - 1) / m_w) : 1) {
  if (m_windowed && m_offset > m_w) m_offset = uint32_t(m_w);  // a header longer than a window
}

bool PeakWindowPlan::Next(PeakPass& p) {
  if (m_done >= m_passes) return false;
  const int index = m_done++;
  p = PeakPass{};
  if (!m_windowed) {
    p.mapped = m_size > 0;
    p.mapLength = m_size;
    p.scanOffset = m_offset;
    // Never past the end of the file, whatever the header promises.
    const uint64_t avail = m_offset < m_size ? m_size - m_offset : 0;
    p.frames = std::min<uint64_t>(m_dataSize, avail) / m_frame;
    return true;
  }
  // A view reaches one granularity back, or as many as the carried bytes need.
  const uint64_t back = m_g * std::max<uint64_t>(1, (m_carried + m_g - 1) / m_g);
  if (index == 0) {
    const uint64_t d = m_w - m_offset;
    uint64_t firstRest = 0;
    // Nothing is left over when the data fills the first window with whole frames, as long
    // as a whole window holds whole frames too; 24-bit frames don't divide a window, and
    // then the carried bytes keep the frames whole.
    if (d % m_frame == 0 && m_w % m_frame == 0) {
      m_scanLength = m_w;
      m_nextRest = 0;
      p.frames = d / m_frame;
    } else {
      m_scanLength = d / m_frame * m_frame;
      firstRest = m_w - (m_offset + m_scanLength);
      m_nextRest = m_w - m_scanLength;
      p.frames = m_scanLength / m_frame;
    }
    p.mapped = true;
    p.mapOffset = 0;
    p.mapLength = m_w;
    p.scanOffset = m_offset;
    m_carried += firstRest;
    m_running = m_w;
    return true;
  }
  if (index < m_passes - 1) {
    p.mapped = true;
    p.mapOffset = m_running - back;
    p.mapLength = m_w + back;
    p.scanOffset = m_running - m_carried;
    p.frames = m_scanLength / m_frame;
    m_carried += m_nextRest;
    m_running += m_w;
    return true;
  }
  const uint64_t rest = m_size - m_running + m_carried;
  if (rest <= m_restLimit) return true;  // the file is done; nothing is mapped
  p.mapped = true;
  p.mapOffset = m_running - back;
  p.mapLength = m_size - p.mapOffset;
  p.scanOffset = m_running - m_carried;
  p.frames = rest / m_frame;
  return true;
}

// ---------------------------------------------------------------------------------------
// Pacing of progress

uint64_t SingleStepInterval(uint64_t frames, int position, int windowsLeft) {
  if (windowsLeft <= 0) return 0;
  const int steps = std::max(0, 100 - position) / windowsLeft;
  return steps > 0 ? frames / uint64_t(steps) : 0;
}

uint64_t BatchStepInterval(uint64_t frames, double share, double& remainder) {
  double k;
  if (share < 1) {
    remainder += share;
    if (remainder < 1) return 0;
    k = std::floor(remainder);
    remainder -= k;
  } else {
    k = std::floor(share);
    remainder += share - k;
    if (remainder >= 1) {
      const double whole = std::floor(remainder);
      k += whole;
      remainder -= whole;
    }
  }
  k = std::max(k, 1.0);
  return uint64_t(double(frames) / k);
}

// ---------------------------------------------------------------------------------------
// The scan

QString NoSoundDataQuestion(const QString& fileName) {
  return Tonvane::tr("Sorry, but the test is stopped as the file ") + fileName +
         Tonvane::tr(" is empty and does not contain a sound data. Please, select another file.\nDo You want to open a dialog of selection a file?");
}

namespace {

// Frames read between two looks at the message queue.
constexpr uint64_t kPumpFrames = 64 * 1024;

// A view at any offset: mmap wants page-aligned offsets, G need not be one in tests.
// `length` becomes what the view really holds from `offset`.
const uint8_t* MapAt(MappedFile& f, uint64_t offset, uint64_t& length) {
  static const uint64_t page = uint64_t(::sysconf(_SC_PAGESIZE));
  const uint64_t start = offset / page * page;
  const uint8_t* v = f.Map(start, length + (offset - start));
  if (!v) return nullptr;
  length = f.ViewSize() - (offset - start);
  return v + (offset - start);
}


// Views of this size or more are read by two threads: the second half by a helper while
// this thread reads the first half, polls and moves the progress.
constexpr uint64_t kSplitBytes = 8u << 20;

// The helper's half of a view. It stops between two chunks when the job is aborted or the
// scan ends early, and holds in the job's checkpoint while the test is paused.
class HalfScan {
 public:
  HalfScan(const SampleBlock& block, IAbortable& control) : m_x(block), m_frameBytes(block.frameBytes), m_control(control) {}
  ~HalfScan() { Stop(); }

  // False when no thread could be started; the caller then reads the whole view itself.
  bool Start(const uint8_t* p, uint64_t frames) {
    try {
      m_thread = std::thread([this, p, frames] { Run(p, frames); });
    } catch (const std::system_error&) {
      return false;
    }
    return true;
  }
  void Stop() {
    m_stop = true;
    if (m_thread.joinable()) m_thread.join();
  }
  // Frames read so far.
  uint64_t Done() const { return m_done.load(std::memory_order_acquire); }
  bool Finished() const { return m_finished.load(std::memory_order_acquire); }
  // Waits up to `ms` for the end of the half.
  void WaitFor(int ms) {
    std::unique_lock<std::mutex> lock(m_mutex);
    m_cv.wait_for(lock, std::chrono::milliseconds(ms), [this] { return Finished(); });
  }
  const PeakExtremes& Extremes() const { return m_x; }

 private:
  void Run(const uint8_t* p, uint64_t frames) {
    while (frames > 0 && !m_stop && m_control.Checkpoint(-1)) {
      const uint64_t n = std::min<uint64_t>(frames, kPumpFrames);
      PrefaultView(p, n * m_frameBytes);
      m_x.Feed(p, size_t(n));
      p += n * m_frameBytes;
      frames -= n;
      m_done.fetch_add(n, std::memory_order_release);
    }
    {
      std::lock_guard<std::mutex> lock(m_mutex);
      m_finished = frames == 0;
    }
    m_cv.notify_all();
  }

  PeakExtremes m_x;
  uint32_t m_frameBytes;
  IAbortable& m_control;
  std::atomic<bool> m_stop{false};
  std::atomic<uint64_t> m_done{0};
  std::atomic<bool> m_finished{false};
  std::mutex m_mutex;
  std::condition_variable m_cv;
  std::thread m_thread;
};

class Scan {
 public:
  explicit Scan(Session& s) : m_s(s) {}

  // One progress step of the single test or of the batch bar.
  void Step() {
    if (m_s.m_batchActive) {
      if (m_s.m_hBatchProgress) m_s.m_hBatchProgress->Send(kMsgBatchTakePosition);
      if (m_s.m_batchProgressSteps < 99) {
        if (m_s.m_hBatchProgress) m_s.m_hBatchProgress->Send(kMsgBatchProgress, 1);
        ++m_s.m_batchProgressSteps;
      }
    } else {
      m_s.SetProgress(std::min(100, m_s.m_progressPercent + 1));
    }
  }

  // The job's checkpoint: lets the front end run and holds while the test is paused.
  // False once the test is cancelled or the program is closing.
  bool KeepGoing(double fraction) { return m_s.m_job.Checkpoint(fraction); }

 private:
  Session& m_s;
};

// Looks for the data chunk in the first bytes of the file when no reader has given it.
// Returns false after the question when the file holds no sound data.
bool FindSoundData(Session& s, MappedFile& file, bool windowed) {
  const uint64_t size = file.Size();
  const uint64_t viewLength = windowed ? uint64_t(s.m_allocGranularity) * 10 : size;
  const uint8_t* view = file.Map(0, viewLength);
  if (!view) return true;  // nothing to search; the scan finds nothing to read
  s.m_mappedView = view;
  uint64_t limit = viewLength;
  if (!windowed) {
    uint32_t riff = 0;
    if (file.ViewSize() >= 8) std::memcpy(&riff, view + 4, 4);
    limit = qFromLittleEndian(riff);
  }
  limit = std::min(limit, size);
  bool found = true;
  // Up to a limit of 19 the search ends at once, without a word.
  if (limit > 19) {
    uint32_t offset = 0, dataSize = 0;
    // "data" is looked for at i + 1 for i from 15 up to limit - 12; past that the file is
    // taken to have no sound data.
    found = FindDataChunk(view, file.ViewSize(), limit - 7, offset, dataSize);
    if (found) {
      s.m_dataOffset = offset;
      s.m_dataSize = dataSize;
    }
  }
  file.Unmap();
  s.m_mappedView = nullptr;
  if (!found) {
    s.m_statusText = Tonvane::tr("  Test is stopped");
    // Yes: the test flow offers the open dialog once it has stopped.
    if (s.m_prompt.Ask(NoSoundDataQuestion(s.m_fileName))) s.m_openDialogPending = 1;
  }
  return found;
}

void WriteLevels(Session& s, const PeakExtremes& x, int bits, bool stereo) {
  for (int c = 0; c < (stereo ? 2 : 1); ++c) {
    const double v = x.RawPeak(c);
    float& level = c ? s.m_levelRight : s.m_levelLeft;
    if (s.m_showDb) {
      const PeakDb db = PeakDecibels(v, bits);
      level = db.level;
      (c ? s.m_noClipDbRight : s.m_noClipDbLeft) = db.noClipDb;
    } else {
      level = PeakPercent(v, bits);
    }
  }
}

}  // namespace

int CheckWorkFileData(Session& s) {
  MappedFile file;
  if (g_workPath.isEmpty()) return 0;
  if (!file.Open(g_workPath)) {
    // Gone or unreadable since the open (removed by hand, a cleaner): said as the scan says it.
    ReportFileError(s, Tonvane::tr(" open a temporary copy of the file "), s.m_fileName,
                    Tonvane::tr("Therefore the test will be stopped."), ErrorCodeFromErrno(file.LastErrno(), g_workPath),
                    true);
    return 1;
  }
  if (file.Size() == 0) return 1;
  if (s.m_dataSize != 0) return 0;
  if (s.m_allocGranularity == 0) s.m_allocGranularity = kAllocGranularity;
  const bool windowed = file.Size() > uint64_t(s.m_allocGranularity) * 1600;
  return FindSoundData(s, file, windowed) ? 0 : 1;
}

int ScanPeakLevels(Session& s) {
  const QString path = g_workPath;
  MappedFile file;
  if (path.isEmpty() || !file.Open(path)) {
    const int err = path.isEmpty() ? ENOENT : file.LastErrno();
    ReportFileError(s, Tonvane::tr(" open a temporary copy of the file "), s.m_fileName,
                    Tonvane::tr("Therefore the test will be stopped."), ErrorCodeFromErrno(err, path), true);
    s.StopTest();
    return 1;
  }
  const uint64_t size = file.Size();
  s.m_fileSize = uint32_t(size);
  s.m_fileSizeHigh = uint32_t(size >> 32);
  if (size == 0) {
    s.StopTest();
    return 1;
  }
  if (s.m_allocGranularity == 0) s.m_allocGranularity = kAllocGranularity;
  const uint64_t w = uint64_t(s.m_allocGranularity) * 1600;
  s.m_windowedMapping = size > w ? 1 : 0;
  if (s.m_dataSize == 0 && !FindSoundData(s, file, s.m_windowedMapping)) {
    s.StopTest();
    return 1;
  }

  SampleBlock block;
  if (!ChooseSampleBlock(s.m_channels, s.m_bits, s.m_formatTag, block)) {
    // 32-bit samples of another tag read as silence; other layouts leave the levels alone.
    if (s.m_bits == 32 && (s.m_channels == 1 || s.m_channels == 2)) {
      SampleBlock silent{0, s.m_channels, 32, false, 8, 0};
      WriteLevels(s, PeakExtremes(silent), 32, s.m_channels == 2);
    }
    return 0;
  }

  PeakExtremes x(block);
  PeakWindowPlan plan(size, s.m_dataOffset, s.m_dataSize, block, s.m_allocGranularity);
  Scan scan(s);
  const int passes = plan.Passes();
  const double passShare = s.m_fileProgressShare / passes;
  PeakPass pass;
  for (int index = 0; plan.Next(pass); ++index) {
    if (!pass.mapped) break;
    uint64_t viewLength = pass.mapLength;
    const uint8_t* view = MapAt(file, pass.mapOffset, viewLength);
    if (!view) {
      s.StopTest();
      return 1;
    }
    s.m_mappedView = view;
    // The frames of this pass, cut to what the view holds.
    const uint64_t viewEnd = pass.mapOffset + viewLength;
    uint64_t frames = pass.frames;
    if (pass.scanOffset >= viewEnd) frames = 0;
    else frames = std::min(frames, (viewEnd - pass.scanOffset) / block.frameBytes);
    const uint8_t* p = view + (pass.scanOffset - pass.mapOffset);

    const uint64_t interval = s.m_batchActive
                                  ? BatchStepInterval(frames, passShare, s.m_progressRemainder)
                                  : SingleStepInterval(frames, s.m_progressPercent, passes - index);
    uint64_t counted = 0;
    // Frames read by both threads move the bar: a step each time `interval` more are done.
    auto account = [&](uint64_t n) {
      if (interval == 0) return;
      for (counted += n; counted >= interval; counted -= interval) scan.Step();
    };
    auto stop = [&](HalfScan* h) {
      if (h) h->Stop();
      file.Unmap();
      s.m_mappedView = nullptr;
      s.StopTest();
      return 1;
    };

    std::unique_ptr<HalfScan> helper;
    uint64_t mine = frames;
    if (frames * block.frameBytes >= kSplitBytes && std::thread::hardware_concurrency() > 1) {
      helper = std::make_unique<HalfScan>(block, s.m_job);
      mine = frames / 2;
      if (!helper->Start(p + mine * block.frameBytes, frames - mine)) {
        helper.reset();
        mine = frames;
      }
    }
    uint64_t helperSeen = 0;
    // The share of the whole scan done, for the job's progress.
    const uint64_t myHalf = mine;
    auto done = [&] { return (index + (frames ? double(myHalf - mine + helperSeen) / double(frames) : 1.0)) / passes; };
    while (mine > 0) {
      if (!scan.KeepGoing(done())) return stop(helper.get());
      uint64_t n = std::min(mine, kPumpFrames);
      if (interval > 0 && !helper) n = std::min(n, interval - counted);
      PrefaultView(p, n * block.frameBytes);
      x.Feed(p, size_t(n));
      const uint64_t bytes = n * block.frameBytes;
      g_sampleBytesRead += bytes;
      p += bytes;
      mine -= n;
      uint64_t theirs = 0;
      if (helper) {
        const uint64_t done = helper->Done();
        theirs = done - helperSeen;
        helperSeen = done;
      }
      account(n + theirs);
    }
    if (helper) {
      // The rest of the helper's half, polling as before.
      while (!helper->Finished()) {
        if (!scan.KeepGoing(done())) return stop(helper.get());
        helper->WaitFor(16);
        const uint64_t done = helper->Done();
        account(done - helperSeen);
        helperSeen = done;
      }
      helper->Stop();
      account(helper->Done() - helperSeen);
      g_sampleBytesRead += helper->Done() * block.frameBytes;
      x.Merge(helper->Extremes());
      helper.reset();
    }
    file.Unmap();
    s.m_mappedView = nullptr;
    if (!scan.KeepGoing(double(index + 1) / passes)) {
      s.StopTest();
      return 1;
    }
  }
  WriteLevels(s, x, block.bits, block.channels == 2);
  return 0;
}
