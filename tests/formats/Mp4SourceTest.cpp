// Opening AAC and ALAC files: properties, refusals, and the work files of the three
// decoder threads checked against the command-line decoders.
#include <gtest/gtest.h>

#include <QFile>
#include <cmath>
#include <cstring>
#include <functional>

#include "app/Globals.h"
#include "formats/OpenPipeline.h"
#include "formats/WorkFile.h"
#include "support/TestSupport.h"

using namespace testing_support;

namespace {

uint32_t Le32(const QByteArray& b, int at) {
  return uint32_t(uint8_t(b[at])) | uint32_t(uint8_t(b[at + 1])) << 8 | uint32_t(uint8_t(b[at + 2])) << 16 |
         uint32_t(uint8_t(b[at + 3])) << 24;
}
uint16_t Le16(const QByteArray& b, int at) { return uint16_t(uint8_t(b[at]) | uint8_t(b[at + 1]) << 8); }

// Copies a fixture into the session's folder, so the work file lands there.
QString Stage(TestSession& t, const QString& fixture, const QString& name) {
  const QString to = t.Path(name);
  QFile::remove(to);
  EXPECT_TRUE(QFile::copy(Fixture(fixture), to)) << fixture.toStdString();
  return to;
}

struct Opened {
  int ok = 0;
  QByteArray work;  // the whole work file once the worker ended
};

Opened OpenAndWait(TestSession& t, const QString& path) {
  Opened r;
  r.ok = OpenFileHeadless(*t.s, path);
  if (r.ok) {
    WaitForWorker(*t.s);
    r.work = ReadFile(WorkPathFor(path, kDriveFixed));
  }
  return r;
}

QByteArray Decoded(const QString& command) {
  QByteArray out;
  EXPECT_EQ(RunShell(command, &out), 0) << command.toStdString();
  return out;
}

// The header of a work file whose sizes were patched from the data written.
void ExpectWorkHeader(const QByteArray& work, int channels, int rate, int bits) {
  ASSERT_GE(work.size(), 44);
  EXPECT_EQ(work.left(4), "RIFF");
  EXPECT_EQ(work.mid(8, 8), "WAVEfmt ");
  EXPECT_EQ(Le16(work, 20), 1);
  EXPECT_EQ(Le16(work, 22), channels);
  EXPECT_EQ(Le32(work, 24), uint32_t(rate));
  EXPECT_EQ(Le16(work, 34), bits);
  EXPECT_EQ(Le16(work, 32), channels * bits / 8);
  EXPECT_EQ(Le32(work, 40), uint32_t(work.size() - 44));
  EXPECT_EQ(Le32(work, 4), uint32_t(work.size() - 8));
}

}  // namespace

TEST(Mp4Source, AlacWorkFilesEqualFfmpegDecodeBitForBit) {
  struct Case {
    const char* fixture;
    int channels, bits;
    const char* format;
  } cases[] = {{"alac_16_mono.m4a", 1, 16, "s16le"},
               {"alac_16_stereo.m4a", 2, 16, "s16le"},
               {"alac_24_mono.m4a", 1, 24, "s24le"},
               {"alac_24_stereo.m4a", 2, 24, "s24le"}};
  for (const Case& c : cases) {
    SCOPED_TRACE(c.fixture);
    TestSession t;
    const QString path = Stage(t, c.fixture, QStringLiteral("Prøve 🤔 %1").arg(c.fixture));
    Opened o = OpenAndWait(t, path);
    ASSERT_EQ(o.ok, 1) << t.prompt.texts().join('\n').toStdString();
    EXPECT_EQ(t.s->m_sourceKind, kKindAlac);
    EXPECT_EQ(t.s->m_bits, c.bits);
    EXPECT_EQ(t.s->m_propertyLines[3], "  Audio Format      MPEG-4 ALAC");
    EXPECT_EQ(t.s->m_propertyLines[1], QStringLiteral("  Channels            %1").arg(c.channels));
    EXPECT_EQ(t.s->m_propertyLines[2], "  Sample Rate       44100 Hz");
    EXPECT_EQ(t.s->m_durationMs, 2300u);
    ExpectWorkHeader(o.work, c.channels, 44100, c.bits);
    const QByteArray ref =
        Decoded(QStringLiteral("ffmpeg -nostdin -loglevel error -i %1 -f %2 -").arg(Quote(path), c.format));
    ASSERT_EQ(o.work.size() - 44, ref.size());
    EXPECT_TRUE(o.work.mid(44) == ref) << "decoded samples differ";
    EXPECT_TRUE(t.prompt.requests.empty());
  }
}

namespace {

// Largest difference between two 16-bit streams once `shift` frames are dropped from the
// front of the longer one, over the frames they share.
int MaxDifference(const QByteArray& a, const QByteArray& b, int channels, int shiftA, int shiftB) {
  const int16_t* x = reinterpret_cast<const int16_t*>(a.constData()) + shiftA * channels;
  const int16_t* y = reinterpret_cast<const int16_t*>(b.constData()) + shiftB * channels;
  const int n = std::min(int(a.size() / 2) - shiftA * channels, int(b.size() / 2) - shiftB * channels);
  int worst = 0;
  for (int i = 0; i < n; ++i) worst = std::max(worst, std::abs(int(x[i]) - int(y[i])));
  return n > 0 ? worst : 1 << 20;
}

QByteArray Patched(const QString& fixture, const std::function<void(QByteArray&)>& edit) {
  QByteArray b = ReadFile(Fixture(fixture));
  edit(b);
  return b;
}

}  // namespace

TEST(Mp4Source, AacWorkFilesEqualFaadAndFfmpegWithinRounding) {
  struct Case {
    const char* fixture;
    const char* name;
    int ffmpegLead;  // frames FFmpeg puts in front that faad2 drops
    bool mono;
  } cases[] = {{"aac_stereo.m4a", "stereo.m4a", 0, false},
               {"aac_mono.m4a", "mono.m4b", 0, true},
               {"aac_adts.aac", "raw.aac", 1024, false},
               {"aac_id3.aac", "tagged, \"raw\".aac", 1024, false}};
  for (const Case& c : cases) {
    SCOPED_TRACE(c.fixture);
    TestSession t;
    const QString path = Stage(t, c.fixture, c.name);
    Opened o = OpenAndWait(t, path);
    ASSERT_EQ(o.ok, 1) << t.prompt.texts().join('\n').toStdString();
    EXPECT_EQ(t.s->m_sourceKind, kKindAac);
    EXPECT_EQ(t.s->m_propertyLines[3], "  Audio Format      MPEG-4 AAC LC");
    EXPECT_EQ(t.s->m_bits, 16);
    // The library gives mono as two equal channels; the header says what was written.
    ExpectWorkHeader(o.work, 2, 44100, 16);
    const QByteArray pcm = o.work.mid(44);
    EXPECT_TRUE(pcm == Decoded("faad -q -f 2 -w " + Quote(path) + " 2>/dev/null")) << "differs from faad";
    // FFmpeg decodes in floating point too and rounds on its own: one step of the last bit
    // either way from the rounding, one more where the two transforms' float sums part.
    const QByteArray ref = Decoded("ffmpeg -nostdin -loglevel error -i " + Quote(path) + " -f s16le -");
    QByteArray ours = pcm;
    if (c.mono) {  // FFmpeg keeps one channel: compare the left one
      ours.clear();
      for (int i = 0; i + 3 < pcm.size(); i += 4) ours += pcm.mid(i, 2);
    }
    EXPECT_LE(MaxDifference(ours, ref, c.mono ? 1 : 2, 0, c.ffmpegLead), 2);
    EXPECT_TRUE(t.prompt.requests.empty());
  }
}

TEST(Mp4Source, PropertiesOfAacFilesAndTheRefusals) {
  TestSession t;
  Session& s = *t.s;
  s.m_noWorker = 1;  // properties only: no work file, no thread
  const QString stereo = Stage(t, "aac_stereo.m4a", "a.m4a");
  ASSERT_EQ(OpenFileHeadless(s, stereo), 1);
  EXPECT_EQ(g_workerBusy.load(), 0);
  EXPECT_FALSE(QFile::exists(t.Path("a.tmp")));
  EXPECT_EQ(s.m_channels, 2);
  EXPECT_EQ(s.m_sampleRate, 44100);
  EXPECT_EQ(s.m_isMp4Container, 1);
  EXPECT_TRUE(s.m_propertyLines[0].startsWith("  Bit Rate               ") && s.m_propertyLines[0].endsWith(" kbps"));
  EXPECT_EQ(s.m_durationMs, 2323u);  // from the media header

  const QString raw = Stage(t, "aac_id3.aac", "b.aac");
  ASSERT_EQ(OpenFileHeadless(s, raw), 1);
  EXPECT_EQ(s.m_isMp4Container, 0);
  EXPECT_EQ(s.m_durationMs % 1000, 0u);  // raw streams count whole seconds

  // Six channels: properties first, then the refusal.
  const QString six = Stage(t, "aac_6ch.m4a", "c.m4a");
  EXPECT_EQ(OpenFileHeadless(s, six), 0);
  EXPECT_EQ(s.m_channels, 6);
  EXPECT_TRUE(s.m_propertyLines[1].isEmpty());  // the refused open clears the display
  EXPECT_EQ(t.prompt.texts(), QStringList{"Sorry, but the file " + six +
                                          " has unsupported by the program a format of sound data. The file has an "
                                          "amount of channels more than 2."});
  t.prompt.clear();

  // MPEG-2 AAC Main is refused as unsupported; MPEG-2 LC opens.
  auto withObjectType = [](int type) {
    return [type](QByteArray& b) { b[b.indexOf("esds") + 21] = char(type); };
  };
  ASSERT_TRUE(WriteFile(t.Path("main.m4a"), Patched("aac_stereo.m4a", withObjectType(102))));
  EXPECT_EQ(OpenFileHeadless(s, t.Path("main.m4a")), 0);
  EXPECT_EQ(t.prompt.texts(), QStringList{"Sorry, but the file " + t.Path("main.m4a") +
                                          " has unsupported by the program a format of sound data."});
  t.prompt.clear();
  ASSERT_TRUE(WriteFile(t.Path("lc2.m4a"), Patched("aac_stereo.m4a", withObjectType(103))));
  EXPECT_EQ(OpenFileHeadless(s, t.Path("lc2.m4a")), 1);
  EXPECT_EQ(s.m_propertyLines[3], "  Audio Format      MPEG-2 AAC");
  EXPECT_TRUE(t.prompt.requests.empty());

  // No sample size table: damaged.
  ASSERT_TRUE(WriteFile(t.Path("damaged.m4a"), Patched("aac_stereo.m4a", [](QByteArray& b) {
    b.replace(b.indexOf("stsz"), 4, "xxxx");
  })));
  EXPECT_EQ(OpenFileHeadless(s, t.Path("damaged.m4a")), 0);
  EXPECT_EQ(t.prompt.texts(), QStringList{"Sorry, the file opening was stopped because the file has errors."});
}

TEST(Mp4Source, VideoFirstIsRefusedAsUnsupported) {
  TestSession t;
  const QString video = t.Path("clip.mp4");
  ASSERT_EQ(RunShell("ffmpeg -nostdin -loglevel error -f lavfi -i testsrc=size=64x48:rate=5:duration=1 -f lavfi -i "
                     "sine=duration=1 -map 0:v -map 1:a -c:v mpeg4 -c:a aac -fflags +bitexact -map_metadata -1 " +
                     Quote(video)),
            0);
  EXPECT_EQ(OpenFileHeadless(*t.s, video), 0);
  EXPECT_EQ(t.prompt.texts(),
            QStringList{"Sorry, but the file " + video + " has unsupported by the program a format of sound data."});
}

TEST(Mp4Source, AdifStreamTakesItsChannelsFromTheFirstFrame) {
  // Raw blocks of the ADTS fixture behind an ADIF header with one program element.
  const QByteArray adts = ReadFile(Fixture("aac_adts.aac"));
  QByteArray blocks;
  for (int p = 0; p + 7 <= adts.size();) {
    const uint8_t* h = reinterpret_cast<const uint8_t*>(adts.constData() + p);
    const int length = (h[3] & 3) << 11 | h[4] << 3 | h[5] >> 5;
    const int header = (h[1] & 1) ? 7 : 9;
    ASSERT_GT(length, header);
    blocks += adts.mid(p + header, length - header);
    p += length;
  }
  auto adif = [&](bool variable) {
    std::vector<int> bits;
    auto put = [&](uint32_t v, int n) {
      for (int i = n - 1; i >= 0; --i) bits.push_back((v >> i) & 1);
    };
    put(0, 3);              // no copyright id, original, home
    put(variable, 1);       // bitstream type
    put(128000, 23);        // bit rate
    put(0, 4);              // one program element
    if (!variable) put(0, 20);  // buffer fullness
    put(0, 4);              // element tag
    put(1, 2);              // LC
    put(4, 4);              // 44.1 kHz
    put(1, 4);              // one front element
    put(0, 4 + 4 + 2 + 3 + 4);
    put(0, 3);              // no mixdowns
    put(1, 1);              // a channel pair
    put(0, 4);
    while (bits.size() % 8) bits.push_back(0);
    put(0, 8);              // no comment
    QByteArray h("ADIF");
    for (size_t i = 0; i < bits.size(); i += 8) {
      int v = 0;
      for (int k = 0; k < 8; ++k) v = v << 1 | bits[i + size_t(k)];
      h.append(char(v));
    }
    return h + blocks;
  };

  TestSession t;
  ASSERT_TRUE(WriteFile(t.Path("constant.aac"), adif(false)));
  Opened o = OpenAndWait(t, t.Path("constant.aac"));
  ASSERT_EQ(o.ok, 1) << t.prompt.texts().join('\n').toStdString();
  EXPECT_EQ(t.s->m_propertyLines[3], "  Audio Format      MPEG-2 AAC");
  EXPECT_EQ(t.s->m_channels, 2);  // known only once the first frame is decoded
  EXPECT_EQ(t.s->m_propertyLines[1], "  Channels            2");
  ExpectWorkHeader(o.work, 2, 44100, 16);
  // The same raw blocks as the ADTS stream: the same samples.
  TestSession u;
  Opened fromAdts = OpenAndWait(u, Stage(u, "aac_adts.aac", "adts.aac"));
  EXPECT_TRUE(o.work.mid(44) == fromAdts.work.mid(44));

  ASSERT_TRUE(WriteFile(t.Path("variable.aac"), adif(true)));
  t.prompt.clear();
  EXPECT_EQ(OpenFileHeadless(*t.s, t.Path("variable.aac")), 0);
  EXPECT_EQ(t.prompt.texts(), QStringList{"Sorry, but the file " + t.Path("variable.aac") +
                                          " has unsupported by the program a format of sound data."});
}

TEST(Mp4Source, TwentyBitAlacLeavesAnEmptyWorkFile) {
  TestSession t;
  ASSERT_TRUE(WriteFile(t.Path("twenty.m4a"), Patched("alac_24_stereo.m4a", [](QByteArray& b) {
    const int inner = b.indexOf("alac", b.indexOf("alac") + 4);
    b[inner + 13] = 20;
  })));
  Opened o = OpenAndWait(t, t.Path("twenty.m4a"));
  ASSERT_EQ(o.ok, 1);
  EXPECT_EQ(t.s->m_bits, 20);
  EXPECT_TRUE(QFile::exists(t.Path("twenty.tmp")));
  EXPECT_EQ(o.work.size(), 0);
  EXPECT_TRUE(t.prompt.requests.empty());
}
