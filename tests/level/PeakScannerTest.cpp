#include <gtest/gtest.h>

#include <QRegularExpression>
#include <QtEndian>
#include <cmath>
#include <cstring>
#include <limits>
#include <utility>
#include <vector>

#include "app/Globals.h"
#include "formats/WorkFile.h"
#include "level/PeakScanner.h"
#include "support/TestSupport.h"

using testing_support::Fixture;
using testing_support::RunShell;
using testing_support::TestSession;
using testing_support::WriteFile;

namespace {

// A work file: the 44-byte header, or 46 with a two-byte extension of the fmt chunk.
QByteArray WavBytes(int channels, int bits, uint16_t tag, const QByteArray& data, bool header46 = false,
                    uint32_t claimedData = 0) {
  QByteArray h = MakeWorkHeader(channels, 44100, bits, tag, claimedData ? claimedData : uint32_t(data.size()));
  if (header46) {
    qToLittleEndian<uint32_t>(18, h.data() + 16);
    h.insert(36, QByteArray(2, '\0'));
    qToLittleEndian<uint32_t>(uint32_t(h.size() - 8 + data.size()), h.data() + 4);
  }
  return h + data;
}

template <typename T>
QByteArray Samples(const std::vector<T>& v) {
  return QByteArray(reinterpret_cast<const char*>(v.data()), qsizetype(v.size() * sizeof(T)));
}

QByteArray Int24(const std::vector<int32_t>& v) {
  QByteArray out;
  for (int32_t x : v) {
    out.append(char(x & 0xff));
    out.append(char((x >> 8) & 0xff));
    out.append(char((x >> 16) & 0xff));
  }
  return out;
}

// Quiet 16-bit noise in [-1000, 1000], deterministic.
std::vector<int16_t> Quiet16(size_t samples) {
  std::vector<int16_t> v(samples);
  uint32_t r = 12345;
  for (auto& x : v) {
    r = r * 1103515245u + 12345u;
    x = int16_t(int((r >> 16) % 2001) - 1000);
  }
  return v;
}

struct Scanner {
  TestSession t;
  Session& s = *t.s;
  QString path = t.Path(QStringLiteral("Prøve 🤔.tmp"));

  // Writes the file and sets the session as a reader would have (dataSize 0: search it).
  void Prepare(const QByteArray& bytes, int channels, int bits, uint16_t tag, uint32_t dataOffset,
               uint32_t dataSize) {
    ASSERT_TRUE(WriteFile(path, bytes));
    g_workPath = path;
    s.m_fileName = path;
    s.m_channels = channels;
    s.m_bits = bits;
    s.m_formatTag = tag;
    s.m_dataOffset = dataOffset;
    s.m_dataSize = dataSize;
    s.m_levelLeft = s.m_levelRight = -1.0f;
    s.m_noClipDbLeft = s.m_noClipDbRight = 0;
    s.m_progressPercent = 0;
  }
  void PrepareWav(int channels, int bits, uint16_t tag, const QByteArray& data) {
    Prepare(WavBytes(channels, bits, tag, data), channels, bits, tag, 44, uint32_t(data.size()));
  }
  // Scans in both scales; returns {percent L, percent R, dB L, dB R, below L, below R}.
  std::vector<float> Both() {
    std::vector<float> out;
    s.m_showDb = 0;
    EXPECT_EQ(ScanPeakLevels(s), 0);
    out.push_back(s.m_levelLeft);
    out.push_back(s.m_levelRight);
    s.m_showDb = 1;
    EXPECT_EQ(ScanPeakLevels(s), 0);
    out.insert(out.end(), {s.m_levelLeft, s.m_levelRight, s.m_noClipDbLeft, s.m_noClipDbRight});
    return out;
  }
  unsigned long long BytesOf(int expectRc = 0) {
    const unsigned long long before = g_sampleBytesRead.load();
    EXPECT_EQ(ScanPeakLevels(s), expectRc);
    return g_sampleBytesRead.load() - before;
  }
};

class RecordingBatch : public IBatchProgress {
 public:
  explicit RecordingBatch(Session& s) : m_s(s) {}
  void Send(unsigned message, int w) override {
    sent.push_back({message, w});
    if (message == kMsgBatchTakePosition) m_s.m_batchProgressSteps = position;
    if (message == kMsgBatchProgress && (w == 0 || position < 99)) ++position;
  }
  int Count(unsigned message) const {
    int n = 0;
    for (auto& m : sent) n += m.first == message;
    return n;
  }
  std::vector<std::pair<unsigned, int>> sent;
  int position = 0;

 private:
  Session& m_s;
};

}  // namespace

namespace {

template <typename T>
QByteArray Planted(std::vector<T> v, std::initializer_list<std::pair<size_t, T>> at) {
  for (auto [i, x] : at) v[i] = x;
  return Samples(v);
}

QByteArray Planted8(int size, std::initializer_list<std::pair<int, uint8_t>> at) {
  QByteArray d(size, char(128));
  for (auto [i, x] : at) d[i] = char(x);
  return d;
}

constexpr float N = std::numeric_limits<float>::quiet_NaN();  // not looked at
constexpr float kInf = std::numeric_limits<float>::infinity();

// A layout with a few planted samples, and what the two scans give: percent L/R, dB L/R,
// below full scale L/R, and the sample bytes one scan reads. -1 and -99 are the values the
// session held before: a channel the file lacks is left alone.
struct LayoutCase {
  const char* what;
  int channels, bits;
  uint16_t tag;
  QByteArray data;
  float want[6];
  unsigned bytes;
};

std::vector<LayoutCase> LayoutCases() {
  const QByteArray floats = Planted<float>(std::vector<float>(1000, 0.01f), {{10, 1.0f}, {11, -1.5f}});
  return {
      {"16 stereo", 2, 16, 1, Planted<int16_t>(Quiet16(2000), {{1000, -32768}, {1501, 12000}}),
       {100, 37, 90.30900f, 81.58362f, 0, -8.72537f}, 4000},
      {"16 mono", 1, 16, 1, Planted<int16_t>(Quiet16(999), {{998, 16384}}), {50, -1, N, -1, -6.02060f, -99}, 1998},
      {"24 silence", 2, 24, 1, QByteArray(3000, '\0'), {0, 0, 0, 0, 0, 0}, 3000},
      {"8 silence", 1, 8, 1, Planted8(300, {}), {0, -1, 0, -1, 0, -99}, 300},
      {"8 low end", 1, 8, 1, Planted8(401, {{17, 120}, {399, 0}}), {100, -1, N, -1, 0, -99}, 401},
      {"8 high end", 1, 8, 1, Planted8(401, {{17, 120}, {399, 255}}), {100, -1, N, -1, -0.068125f, -99}, 401},
      {"8 stereo", 2, 8, 1, Planted8(400, {{10, 64}, {21, 255}}), {50, 100, N, N, N, N}, 400},
      // The dB divisor is 8388607: the negative full scale is a hair above it.
      {"24 full scale", 2, 24, 1,
       Int24([] {
         std::vector<int32_t> v(600, 100);
         v[300] = -8388608, v[301] = 4194304, v[599] = -5;
         return v;
       }()),
       {100, 50, N, N, 1.0354e-6f, N}, 1800},
      {"32 int min", 1, 32, 1, Planted<int32_t>(std::vector<int32_t>(64, -3), {{7, std::numeric_limits<int32_t>::min()}}),
       {100, -1, N, -1, 0, -99}, 256},
      {"float beyond full scale", 2, 32, 3, floats, {100, 100, N, N, 0, 0}, 4000},
      // The NaN touches nothing; minus infinity reads as full scale.
      {"float NaN and -inf", 2, 32, 3,
       Planted<float>(std::vector<float>(100, 0.0f), {{3, 0.25f}, {4, N}, {5, -kInf}, {6, -0.5f}}),
       {50, 100, N, N, N, N}, 400},
      {"unknown 32-bit tag", 2, 32, 0xFFFE, floats, {0, N, N, N, N, N}, 0},
      {"three channels", 3, 16, 1, Samples(Quiet16(300)), {-1, -1, -1, -1, -99, -99}, 0},
  };
}

}  // namespace

TEST(PeakScanner, LayoutsInBothScales) {
  for (const LayoutCase& c : LayoutCases()) {
    SCOPED_TRACE(c.what);
    Scanner k;
    k.PrepareWav(c.channels, c.bits, c.tag, c.data);
    k.s.m_noClipDbLeft = k.s.m_noClipDbRight = -99;
    EXPECT_EQ(k.BytesOf(), c.bytes);
    const std::vector<float> r = k.Both();
    for (int i = 0; i < 6; ++i)
      if (!std::isnan(c.want[i])) EXPECT_NEAR(r[i], c.want[i], std::fabs(c.want[i]) < 1e-3f ? 2e-7 : 1e-3) << i;
  }
}

TEST(PeakScanner, DataChunkFoundOrQuestioned) {
  // No reader gave the data chunk: it is found behind the header.
  Scanner k;
  std::vector<int16_t> v = Quiet16(400);
  v[5] = 32767;
  QByteArray bytes = WavBytes(2, 16, 1, Samples(v));
  k.Prepare(bytes, 2, 16, 1, 0, 0);
  EXPECT_EQ(k.BytesOf(), 800u);
  EXPECT_EQ(k.s.m_dataOffset, 44u);
  EXPECT_EQ(k.s.m_dataSize, 800u);
  EXPECT_EQ(k.s.m_levelRight, 100.0f);

  // A file without a data chunk: the question, and no result.
  Scanner n;
  QByteArray none = bytes.left(36) + QByteArray("LIST") + QByteArray(60, 'x');
  qToLittleEndian<uint32_t>(uint32_t(none.size() - 8), none.data() + 4);
  n.Prepare(none, 2, 16, 1, 0, 0);
  n.s.m_fileName = QStringLiteral("/music/שלום, \"x\".wav");
  n.s.m_testRunning = 1;
  EXPECT_EQ(n.BytesOf(1), 0u);
  ASSERT_EQ(n.t.prompt.requests.size(), 1u);
  EXPECT_TRUE(n.t.prompt.requests[0].yesNo);
  EXPECT_EQ(n.t.prompt.requests[0].text,
            "Sorry, but the test is stopped as the file /music/שלום, \"x\".wav is empty and does not "
            "contain a sound data. Please, select another file.\nDo You want to open a dialog of "
            "selection a file?");
  EXPECT_EQ(n.s.m_testRunning, 0);
  EXPECT_EQ(n.s.m_levelLeft, -1.0f);

  // "data" whose tag starts past limit - 11 is too late to be found.
  Scanner late;
  QByteArray tail = bytes.left(36) + QByteArray(8, 'z') + QByteArray("data") + QByteArray(4, '\0');
  qToLittleEndian<uint32_t>(uint32_t(tail.size() - 8), tail.data() + 4);  // limit = size - 8
  late.Prepare(tail, 2, 16, 1, 0, 0);
  EXPECT_EQ(ScanPeakLevels(late.s), 1);
  EXPECT_EQ(late.t.prompt.requests.size(), 1u);

  // Too small to search: nothing is said and nothing is read.
  Scanner tiny;
  tiny.Prepare(QByteArray("RIFF\x0a\0\0\0WAVE", 12), 2, 16, 1, 0, 0);
  EXPECT_EQ(tiny.BytesOf(), 0u);
  EXPECT_TRUE(tiny.t.prompt.requests.empty());

  // An empty work file stops silently; a missing one with the open message.
  Scanner empty;
  empty.Prepare(QByteArray(), 2, 16, 1, 44, 0);
  EXPECT_EQ(ScanPeakLevels(empty.s), 1);
  EXPECT_TRUE(empty.t.prompt.requests.empty());
  g_workPath = empty.t.Path("missing.tmp");
  EXPECT_EQ(ScanPeakLevels(empty.s), 1);
  ASSERT_EQ(empty.t.prompt.requests.size(), 1u);
  EXPECT_TRUE(empty.t.prompt.requests[0].text.startsWith("Sorry, but the file "));
  EXPECT_TRUE(empty.t.prompt.requests[0].text.contains(" open a temporary copy of the file "));
}

TEST(PeakScanner, HeaderPromisingMoreThanTheFileHolds) {
  Scanner k;
  std::vector<int16_t> v = Quiet16(2001);  // an odd byte count: the last half frame is left
  v[1999] = -20000;
  k.Prepare(WavBytes(2, 16, 1, Samples(v), false, 0xFFFFFF00u), 2, 16, 1, 44, 0xFFFFFF00u);
  EXPECT_EQ(k.BytesOf(), 4000u);
  EXPECT_EQ(k.s.m_levelRight, 61.0f);
  // A data offset past the end reads nothing.
  k.s.m_dataOffset = 100000;
  EXPECT_EQ(k.BytesOf(), 0u);
}

// Every byte from the data offset to the end is read once as part of a whole frame, the
// views start on multiples of G and hold what is read from them.
TEST(PeakWindowPlan, ContiguousWholeFramesInAlignedViews) {
  for (uint32_t g : {16u, 64u}) {
    const uint64_t w = uint64_t(g) * 1600;
    for (int blockId = 1; blockId <= 10; ++blockId) {
      SampleBlock b;
      const int layouts[10][3] = {{2, 16, 1}, {1, 16, 1}, {2, 8, 1}, {1, 8, 1}, {2, 32, 1},
                                  {2, 32, 3}, {2, 24, 1}, {1, 32, 1}, {1, 32, 3}, {1, 24, 1}};
      ASSERT_TRUE(ChooseSampleBlock(layouts[blockId - 1][0], layouts[blockId - 1][1],
                                    uint16_t(layouts[blockId - 1][2]), b));
      ASSERT_EQ(b.id, blockId);
      for (uint64_t size : {w, w + 1, w + 7, 2 * w - 3, 3 * w, 3 * w + 5, 5 * w + 11}) {
        for (uint32_t off : {44u, 46u, 47u}) {
          PeakWindowPlan plan(size, off, 1000, b, g);
          ASSERT_EQ(plan.Windowed(), size > w);
          ASSERT_EQ(plan.Passes(), int((size + w - 1) / w));
          uint64_t next = off, frames = 0;
          PeakPass p;
          int passes = 0;
          bool lastUnmapped = false;
          while (plan.Next(p)) {
            ++passes;
            if (!p.mapped) {
              lastUnmapped = true;
              continue;
            }
            ASSERT_EQ(p.mapOffset % g, 0u);
            ASSERT_EQ(p.scanOffset, next) << size << " " << off << " pass " << passes;
            ASSERT_GE(p.scanOffset, p.mapOffset);
            ASSERT_LE(p.scanOffset + p.frames * b.frameBytes, p.mapOffset + p.mapLength);
            ASSERT_LE(p.mapOffset + p.mapLength, size);
            next += p.frames * b.frameBytes;
            frames += p.frames;
          }
          ASSERT_EQ(passes, plan.Passes());
          if (plan.Windowed()) {
            // Whatever is left is less than a frame, or a last rest too small for the
            // layout (a single 24- or 32-bit stereo frame, for one, is not read).
            ASSERT_EQ(next - off, frames * b.frameBytes);
            if (lastUnmapped)
              ASSERT_LE(size - next, b.lastRestLimit) << size << " " << off << " block " << blockId;
            else
              ASSERT_LT(size - next, b.frameBytes) << size << " " << off << " block " << blockId;
          } else
            ASSERT_EQ(frames, 1000u / b.frameBytes);
        }
      }
    }
  }
}

// Files of one or more windows: full-scale frames at the start, at the end and across each
// window's end are all found, and every whole frame is read once. Small granularities make
// the carried bytes outgrow a view; 24-bit frames do not divide a window.
TEST(PeakScanner, WindowedFilesLoseNoFrame) {
  const int w256 = 256 * 1600, w16 = 16 * 1600;
  struct Case {
    int size, header, bits;
    uint32_t g;
  } cases[] = {{w256, 44, 16, 256},      {w256 + 1, 44, 16, 256}, {3 * w256, 44, 16, 256},
               {3 * w256, 46, 16, 256},  {9 * w16 + 3, 46, 16, 16}, {3 * w16 + 60, 46, 24, 16}};
  for (const Case& c : cases) {
    const int frameBytes = c.bits / 4, dataBytes = c.size - c.header, frames = dataBytes / frameBytes;
    const int32_t full = c.bits == 16 ? 32767 : 8388607;
    std::vector<int> at = {0, frames - 1};
    for (int edge = int(c.g) * 1600; edge < c.size; edge += int(c.g) * 1600)
      if ((edge - c.header) / frameBytes < frames) at.push_back((edge - c.header) / frameBytes);
    for (int frame : at) {
      SCOPED_TRACE(testing::Message() << c.size << " " << c.bits << " frame " << frame);
      std::vector<int32_t> v(size_t(frames) * 2, 1000);
      v[size_t(frame) * 2] = -full - 1;
      v[size_t(frame) * 2 + 1] = full;
      QByteArray data;
      if (c.bits == 16)
        data = Samples(std::vector<int16_t>(v.begin(), v.end()));
      else
        data = Int24(v);
      data.append(QByteArray(dataBytes - data.size(), '\0'));
      Scanner k;
      k.Prepare(WavBytes(2, c.bits, 1, data, c.header == 46), 2, c.bits, 1, uint32_t(c.header), uint32_t(dataBytes));
      k.s.m_allocGranularity = c.g;
      EXPECT_EQ(k.BytesOf(), unsigned(frames * frameBytes));
      EXPECT_EQ(k.s.m_windowedMapping, c.size > int(c.g) * 1600 ? 1 : 0);
      EXPECT_EQ(k.s.m_levelLeft, 100.0f);
      EXPECT_EQ(k.s.m_levelRight, 100.0f);
    }
  }
}

TEST(PeakScanner, CancelAndPause) {
  std::vector<int16_t> v = Quiet16(400000);  // 200000 frames: several checkpoints
  v[399998] = 30000;
  const QByteArray data = Samples(v);

  Scanner c;
  c.PrepareWav(2, 16, 1, data);
  c.s.m_testRunning = 1;
  c.t.pump.onPump = [&](int call) {
    if (call == 2) c.s.m_job.Abort();
  };
  EXPECT_LT(c.BytesOf(1), unsigned(data.size()));
  EXPECT_EQ(c.s.m_levelLeft, -1.0f);
  EXPECT_EQ(c.s.m_testRunning, 0);  // the test is ended

  // Paused at the second checkpoint, the front end keeps running; a cancel in the pause ends it.
  Scanner p;
  p.PrepareWav(2, 16, 1, data);
  bool pausedSeen = false;
  p.t.pump.onPump = [&](int call) {
    if (call == 2) p.s.m_job.SetPaused(true);
    if (call == 4) {
      pausedSeen = p.s.m_job.IsPaused();
      p.s.m_job.Abort();
    }
  };
  EXPECT_EQ(ScanPeakLevels(p.s), 1);
  EXPECT_TRUE(pausedSeen);

  // Paused and resumed, the scan runs to the end with the right result.
  Scanner q;
  q.PrepareWav(2, 16, 1, data);
  q.t.pump.onPump = [&](int call) {
    if (call == 2 || call == 6) q.s.m_job.TogglePause();
  };
  EXPECT_EQ(q.BytesOf(), unsigned(data.size()));
  EXPECT_EQ(q.s.m_levelLeft, 92.0f);
}

// A view of 8 MiB or more is read by two threads: extremes in either half count, the bar
// still makes its steps to 100, and a cancel or a pause reaches both halves.
TEST(PeakScanner, LargeViewsReadByTwoThreads) {
  std::vector<int16_t> v = Quiet16(3u << 20);  // 12 MiB of stereo frames
  v[100] = -20000;                              // left, in the first half
  v[v.size() - 1] = 31000;                      // right, at the very end of the second
  const QByteArray data = Samples(v);

  Scanner a;
  a.PrepareWav(2, 16, 1, data);
  EXPECT_EQ(a.BytesOf(), unsigned(data.size()));
  EXPECT_EQ(a.s.m_levelLeft, 61.0f);   // 20000 / 32767
  EXPECT_EQ(a.s.m_levelRight, 95.0f);  // 31000 / 32767
  EXPECT_EQ(a.t.pump.lastProgress, 100);
  EXPECT_EQ(a.t.pump.progressCalls, 100);

  Scanner c;
  c.PrepareWav(2, 16, 1, data);
  c.s.m_testRunning = 1;
  c.t.pump.onPump = [&](int call) {
    if (call == 3) c.s.m_job.Abort();
  };
  EXPECT_EQ(ScanPeakLevels(c.s), 1);
  EXPECT_EQ(c.s.m_levelLeft, -1.0f);
  EXPECT_EQ(c.s.m_testRunning, 0);

  Scanner p;
  p.PrepareWav(2, 16, 1, data);
  p.t.pump.onPump = [&](int call) {
    if (call == 2 || call == 9) p.s.m_job.TogglePause();
  };
  EXPECT_EQ(p.BytesOf(), unsigned(data.size()));
  EXPECT_EQ(p.s.m_levelRight, 95.0f);
}

TEST(PeakProgress, SingleTestEndsAtHundred) {
  std::vector<int16_t> v = Quiet16(400000);
  Scanner k;
  k.PrepareWav(2, 16, 1, Samples(v));
  k.s.m_progressPercent = 30;  // where the wait for the work file left the bar
  ASSERT_EQ(ScanPeakLevels(k.s), 0);
  EXPECT_EQ(k.t.pump.progressCalls, 70);
  EXPECT_EQ(k.t.pump.lastProgress, 100);

  // Three windows from 0.
  const uint32_t g = 256;
  Scanner m;
  m.PrepareWav(2, 16, 1, Samples(Quiet16(size_t(3 * g * 1600 - 44) / 2)));
  m.s.m_allocGranularity = g;
  int highest = 0;
  m.t.pump.onProgress = [&](int pct) { highest = std::max(highest, pct); };
  ASSERT_EQ(ScanPeakLevels(m.s), 0);
  EXPECT_EQ(m.s.m_progressPercent, 100);
  EXPECT_EQ(highest, 100);
  EXPECT_GE(m.t.pump.progressCalls, 100);
}

TEST(PeakProgress, BatchShareSpreadOverPassesAndCappedAt99) {
  const uint32_t g = 256;
  QByteArray data = Samples(Quiet16(size_t(3 * g * 1600 - 44) / 2));
  Scanner k;
  RecordingBatch batch(k.s);
  k.PrepareWav(2, 16, 1, data);
  k.s.m_allocGranularity = g;
  k.s.m_batchActive = 1;
  k.s.m_hBatchProgress = &batch;
  k.s.m_fileProgressShare = 3.0;  // one step per window
  ASSERT_EQ(ScanPeakLevels(k.s), 0);
  EXPECT_EQ(batch.Count(kMsgBatchTakePosition), 3);
  EXPECT_EQ(batch.Count(kMsgBatchProgress), 3);
  EXPECT_EQ(k.s.m_batchProgressSteps, 3);
  EXPECT_EQ(k.t.pump.progressCalls, 0);  // the single test's bar stays

  // Near the end of the run the dialog's bar is not carried past 99.
  batch.sent.clear();
  batch.position = 97;
  k.s.m_batchProgressSteps = 97;
  k.s.m_fileProgressShare = 15.0;
  ASSERT_EQ(ScanPeakLevels(k.s), 0);
  EXPECT_EQ(batch.Count(kMsgBatchTakePosition), 15);
  EXPECT_EQ(batch.Count(kMsgBatchProgress), 2);
  EXPECT_EQ(k.s.m_batchProgressSteps, 99);
}

// Generated files against FFmpeg's astats: the peak below full scale per channel.
TEST(PeakScanner, AgreesWithFfmpegAstats) {
  struct F {
    const char* name;
    int channels, bits;
    uint16_t tag;
  } files[] = {{"peak_8_stereo.wav", 2, 8, 1},   {"peak_16_mono.wav", 1, 16, 1},
               {"peak_16_stereo.wav", 2, 16, 1}, {"peak_24_stereo.wav", 2, 24, 1},
               {"peak_24_mono.wav", 1, 24, 1},   {"peak_32_stereo.wav", 2, 32, 1},
               {"peak_float_stereo.wav", 2, 32, 3}, {"peak_float_mono.wav", 1, 32, 3}};
  for (const F& f : files) {
    const QString path = Fixture(f.name);
    QByteArray out;
    ASSERT_EQ(RunShell("ffmpeg -hide_banner -nostats -i '" + path +
                           "' -af astats=measure_overall=none:measure_perchannel=Peak_level -f null - 2>&1",
                       &out),
              0)
        << f.name;
    std::vector<double> expected;
    QRegularExpression re(QStringLiteral("Peak level dB: (-?[0-9.]+)"));
    for (auto it = re.globalMatch(QString::fromUtf8(out)); it.hasNext();) expected.push_back(it.next().captured(1).toDouble());
    ASSERT_EQ(int(expected.size()), f.channels) << f.name;

    Scanner k;
    ASSERT_TRUE(WriteFile(k.path, testing_support::ReadFile(path)));
    g_workPath = k.path;
    k.s.m_channels = f.channels;
    k.s.m_bits = f.bits;
    k.s.m_formatTag = f.tag;
    k.s.m_dataSize = 0;  // found by the search
    k.s.m_showDb = 1;
    ASSERT_EQ(ScanPeakLevels(k.s), 0) << f.name;
    EXPECT_NEAR(k.s.m_noClipDbLeft, expected[0], 0.001) << f.name;
    if (f.channels == 2) {
      EXPECT_NEAR(k.s.m_noClipDbRight, expected[1], 0.001) << f.name;
    }
    EXPECT_LT(expected[0], -0.5) << "fixture should not reach full scale: " << f.name;
  }
}
