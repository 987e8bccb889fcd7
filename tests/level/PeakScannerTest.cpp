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

TEST(PeakScanner, Sixteen) {
  Scanner k;
  std::vector<int16_t> v = Quiet16(2000);
  v[1000] = -32768;  // left's only peak
  v[1501] = 12000;   // right
  k.PrepareWav(2, 16, 1, Samples(v));
  std::vector<float> r = k.Both();
  EXPECT_EQ(r[0], 100.0f);
  EXPECT_EQ(r[1], 37.0f);  // 36.62
  EXPECT_NEAR(r[2], 90.309, 0.0005);
  EXPECT_NEAR(r[3], 20 * std::log10(12000.0), 1e-4);
  EXPECT_EQ(r[4], 0.0f);
  EXPECT_NEAR(r[5], 20 * std::log10(12000.0 / 32768), 1e-4);

  // Mono: the right results are left as they were.
  Scanner m;
  std::vector<int16_t> mono = Quiet16(999);
  mono[998] = 16384;
  m.PrepareWav(1, 16, 1, Samples(mono));
  m.s.m_levelRight = 55;
  m.s.m_noClipDbRight = -7;
  EXPECT_EQ(m.BytesOf(), 1998u);
  EXPECT_EQ(m.s.m_levelLeft, 50.0f);
  EXPECT_EQ(m.s.m_levelRight, 55.0f);
  m.s.m_showDb = 1;
  ASSERT_EQ(ScanPeakLevels(m.s), 0);
  EXPECT_EQ(m.s.m_noClipDbRight, -7.0f);
}

TEST(PeakScanner, SilenceReadsZeroInBothScales) {
  Scanner k;
  k.PrepareWav(2, 24, 1, QByteArray(6 * 500, '\0'));
  std::vector<float> r = k.Both();
  for (float x : r) EXPECT_EQ(x, 0.0f);
  Scanner e;  // 8-bit silence is 128
  e.PrepareWav(1, 8, 1, QByteArray(300, char(128)));
  r = e.Both();
  EXPECT_EQ(r[0], 0.0f);
  EXPECT_EQ(r[2], 0.0f);
  EXPECT_EQ(r[4], 0.0f);
}

TEST(PeakScanner, EightBitEnds) {
  for (uint8_t extreme : {uint8_t(0), uint8_t(255)}) {
    Scanner k;
    QByteArray d(401, char(128));
    d[17] = char(120);
    d[399] = char(extreme);
    k.PrepareWav(1, 8, 1, d);
    std::vector<float> r = k.Both();
    EXPECT_EQ(r[0], 100.0f) << int(extreme);
    EXPECT_NEAR(r[4], extreme == 0 ? 0.0 : 20 * std::log10(127.0 / 128), 1e-5);
  }
  Scanner st;  // stereo: left low, right high
  QByteArray d(400, char(128));
  d[10] = char(64);   // left: v 64
  d[21] = char(255);  // right: v 127
  st.PrepareWav(2, 8, 1, d);
  std::vector<float> r = st.Both();
  EXPECT_EQ(r[0], 50.0f);
  EXPECT_EQ(r[1], 100.0f);
}

TEST(PeakScanner, TwentyFourAndThirtyTwoBitFullScale) {
  Scanner k;
  std::vector<int32_t> v(600, 100);
  v[300] = -8388608;
  v[301] = 4194304;
  v[599] = -5;
  k.PrepareWav(2, 24, 1, Int24(v));
  std::vector<float> r = k.Both();
  EXPECT_EQ(r[0], 100.0f);
  EXPECT_EQ(r[1], 50.0f);
  EXPECT_GT(r[4], 0.0f);  // the dB divisor is 8388607
  EXPECT_LT(r[4], 0.001f);

  Scanner w;
  std::vector<int32_t> x(64, -3);
  x[7] = std::numeric_limits<int32_t>::min();  // limited to -2147483647
  w.PrepareWav(1, 32, 1, Samples(x));
  r = w.Both();
  EXPECT_EQ(r[0], 100.0f);
  EXPECT_EQ(r[4], 0.0f);
}

TEST(PeakScanner, FloatAtAndBeyondFullScale) {
  Scanner k;
  std::vector<float> v(1000, 0.01f);
  v[10] = 1.0f;   // left at full scale
  v[11] = -1.5f;  // right beyond it
  k.PrepareWav(2, 32, 3, Samples(v));
  std::vector<float> r = k.Both();
  EXPECT_EQ(r[0], 100.0f);
  EXPECT_EQ(r[1], 100.0f);
  EXPECT_EQ(r[4], 0.0f);
  EXPECT_EQ(r[5], 0.0f);

  Scanner h;
  std::vector<float> m(100, 0.0f);
  m[3] = 0.25f;
  m[4] = std::numeric_limits<float>::quiet_NaN();
  m[5] = -std::numeric_limits<float>::infinity();
  m[6] = -0.5f;
  h.PrepareWav(2, 32, 3, Samples(m));
  r = h.Both();
  EXPECT_EQ(r[0], 50.0f);   // the NaN touches nothing
  EXPECT_EQ(r[1], 100.0f);  // minus infinity reads as full scale

  // A 32-bit tag the scanner does not know reads as silence; three channels read nothing.
  Scanner odd;
  odd.PrepareWav(2, 32, 0xFFFE, Samples(v));
  EXPECT_EQ(odd.BytesOf(), 0u);
  EXPECT_EQ(odd.s.m_levelLeft, 0.0f);
  Scanner three;
  three.PrepareWav(3, 16, 1, Samples(Quiet16(300)));
  EXPECT_EQ(three.BytesOf(), 0u);
  EXPECT_EQ(three.s.m_levelLeft, -1.0f);
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

TEST(PeakWindowPlan, OffsetFortySixCarriesTwoThenFortyEight) {
  SampleBlock b;
  ASSERT_TRUE(ChooseSampleBlock(2, 16, 1, b));
  const uint32_t g = 256;
  const uint64_t w = g * 1600ull;
  PeakWindowPlan plan(4 * w, 46, 0, b, g);
  PeakPass p;
  ASSERT_TRUE(plan.Next(p));
  EXPECT_EQ(p.frames * 4, w - 48);
  EXPECT_EQ(p.mapLength, w);
  ASSERT_TRUE(plan.Next(p));
  EXPECT_EQ(p.mapOffset, w - g);
  EXPECT_EQ(p.mapLength, w + g);
  EXPECT_EQ(p.scanOffset, w - 2);
  ASSERT_TRUE(plan.Next(p));
  EXPECT_EQ(p.scanOffset, 2 * w - 50);
  ASSERT_TRUE(plan.Next(p));  // the last window is a full one, the rest W + 98
  EXPECT_EQ(p.mapOffset, 3 * w - g);
  EXPECT_EQ(p.mapLength, w + g);
  EXPECT_EQ(p.frames, (w + 98) / 4);
  EXPECT_FALSE(plan.Next(p));
}

TEST(PeakScanner, WindowedFilesLoseNoFrame) {
  const uint32_t g = 256;
  const int w = int(g) * 1600;
  struct Case {
    int size;
    bool header46;
  } cases[] = {{w, false}, {w + 1, false}, {3 * w, false}, {3 * w, true}};
  for (const Case& c : cases) {
    const int header = c.header46 ? 46 : 44;
    const int dataBytes = c.size - header;
    const int frames = dataBytes / 4;
    // Peaks at the first and last frames and at the frames cut by each window's end.
    std::vector<int> at = {0, frames - 1};
    for (int edge = w; edge < c.size; edge += w)
      if ((edge - header) / 4 < frames) at.push_back((edge - header) / 4);
    for (int frame : at) {
      Scanner k;
      std::vector<int16_t> v = Quiet16(size_t(dataBytes / 2));
      v[size_t(frame) * 2] = -32768;
      v[size_t(frame) * 2 + 1] = 32767;
      QByteArray data = Samples(v);
      if (dataBytes % 2) data.append('\0');
      QByteArray bytes = WavBytes(2, 16, 1, data, c.header46);
      ASSERT_EQ(bytes.size(), c.size);
      k.Prepare(bytes, 2, 16, 1, uint32_t(header), uint32_t(data.size()));
      k.s.m_allocGranularity = g;
      EXPECT_EQ(k.BytesOf(), unsigned(frames) * 4) << c.size << " frame " << frame;
      EXPECT_EQ(k.s.m_windowedMapping, c.size > w ? 1 : 0);
      EXPECT_EQ(k.s.m_levelLeft, 100.0f) << c.size << " frame " << frame;
      EXPECT_EQ(k.s.m_levelRight, 100.0f) << c.size << " frame " << frame;
    }
  }
}

TEST(PeakScanner, ManyWindowsWithTinyGranularity) {
  // G of 16 bytes and a header of 46: the carried bytes outgrow G after a few windows.
  const uint32_t g = 16;
  const int w = int(g) * 1600;
  Scanner k;
  const int size = 9 * w + 3;
  std::vector<int16_t> v = Quiet16(size_t(size - 46) / 2);
  v[v.size() - 2] = -32768;  // the last whole frame
  QByteArray data = Samples(v);
  data.append('\0');
  k.Prepare(WavBytes(2, 16, 1, data, true), 2, 16, 1, 46, uint32_t(data.size()));
  k.s.m_allocGranularity = g;
  EXPECT_EQ(k.BytesOf(), unsigned(size - 46) / 4 * 4);
  EXPECT_EQ(k.s.m_levelLeft, 100.0f);
}

TEST(PeakScanner, WindowedTwentyFourBitFramesStayWhole) {
  // A 24-bit frame does not divide a window; with a header of 46 the data fills the first
  // window with whole frames, and the later windows still read whole frames.
  const uint32_t g = 16;
  const int w = int(g) * 1600;
  const int size = 3 * w + 60;
  const int frames = (size - 46) / 6;
  std::vector<int32_t> v(size_t(frames) * 2, 1000);
  v[size_t((w - 46) / 6) * 2 + 1] = 8388607;       // right, in the frame that crosses W
  v[size_t((2 * w - 46) / 6) * 2] = -8388608;      // left, in the frame that crosses 2W
  QByteArray data = Int24(v);
  data.append(QByteArray(size - 46 - data.size(), '\0'));
  Scanner k;
  k.Prepare(WavBytes(2, 24, 1, data, true), 2, 24, 1, 46, uint32_t(data.size()));
  k.s.m_allocGranularity = g;
  EXPECT_EQ(k.BytesOf(), unsigned(frames) * 6);
  EXPECT_EQ(k.s.m_levelLeft, 100.0f);
  EXPECT_EQ(k.s.m_levelRight, 100.0f);
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

TEST(PeakProgress, PacingRules) {
  EXPECT_EQ(SingleStepInterval(1000, 30, 1), 1000u / 70);
  EXPECT_EQ(SingleStepInterval(1000, 0, 3), 1000u / 33);
  EXPECT_EQ(SingleStepInterval(1000, 98, 3), 0u);  // the inner division gives 0
  EXPECT_EQ(SingleStepInterval(50, 0, 1), 0u);     // a short pass makes no step

  double r = 0;
  EXPECT_EQ(BatchStepInterval(900, 0.5, r), 0u);
  EXPECT_DOUBLE_EQ(r, 0.5);
  EXPECT_EQ(BatchStepInterval(900, 0.5, r), 900u);
  EXPECT_DOUBLE_EQ(r, 0.0);
  r = 0.5;
  EXPECT_EQ(BatchStepInterval(900, 2.75, r), 300u);  // k 2, then 3 with the carried whole step
  EXPECT_DOUBLE_EQ(r, 0.25);
  r = 0.7;
  EXPECT_EQ(BatchStepInterval(900, 0.6, r), 900u);
  EXPECT_NEAR(r, 0.3, 1e-12);
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
