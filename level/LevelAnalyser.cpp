#include "level/LevelAnalyser.h"

#include <algorithm>
#include <condition_variable>
#include <cstring>
#include <deque>
#include <mutex>
#include <thread>
#include <vector>

#include "level/GainEngine.h"
#include "level/LevelScales.h"
#include "level/PeakScanner.h"
#include "level/ReplayGain.h"
#include "level/SampleScale.h"

namespace {

// Bytes handed to the analysis at a time, and how many such blocks may wait for it: the
// decoder runs ahead by at most this much.
constexpr size_t kBlockBytes = 256 * 1024;
constexpr size_t kQueuedBlocks = 4;

// A block for the analysis thread: bytes of its own, or bytes the decoder lends until End.
struct Block {
  std::vector<uint8_t> owned;
  const uint8_t* lent = nullptr;
  size_t lentBytes = 0;
  const uint8_t* Data() const { return lent ? lent : owned.data(); }
  size_t Bytes() const { return lent ? lentBytes : owned.size(); }
};
}  // namespace

struct LevelAnalyser::State {
  bool threaded, wantPeak, wantGain;
  bool callerOnly = false;
  PcmFormat format;
  size_t frameBytes = 0;
  bool begun = false, ended = false;

  // Peak kernel.
  bool peakBlock = false;
  SampleBlock block;
  std::unique_ptr<PeakExtremes> extremes;
  // The part of lent bytes that the decoder's thread reads itself (peak test only).
  std::unique_ptr<PeakExtremes> callerExtremes;
  uint64_t callerFrames = 0;
  // Average kernel.
  bool gainOk = false;
  SampleKind kind = SampleKind::S16;
  int used = 0;
  ReplayGainAnalyser gain;
  uint64_t frames = 0;

  // The block being filled, and the hand-over to the analysis thread.
  std::vector<uint8_t> fill;
  std::mutex lock;
  std::condition_variable changed;
  std::deque<Block> queue;
  std::vector<std::vector<uint8_t>> spare;
  bool closing = false;
  std::thread worker;

  void Analyse(const uint8_t* p, size_t n) {
    frames += n;
    if (extremes) extremes->Feed(p, n);
    if (gainOk) gain.ProcessPcm(p, n, format.channels, kind);
  }

  void Run() {
    std::unique_lock<std::mutex> g(lock);
    for (;;) {
      changed.wait(g, [this] { return !queue.empty() || closing; });
      if (queue.empty()) return;
      Block b = std::move(queue.front());
      queue.pop_front();
      changed.notify_all();
      g.unlock();
      Analyse(b.Data(), b.Bytes() / frameBytes);
      g.lock();
      if (!b.lent) {
        b.owned.clear();
        spare.push_back(std::move(b.owned));
      }
    }
  }

  // Hands the whole frames of the filled block over; the cut frame at its end stays.
  void HandOver() {
    const size_t whole = fill.size() / frameBytes * frameBytes;
    if (whole == 0) return;
    if (!threaded) {
      Analyse(fill.data(), whole / frameBytes);
      fill.erase(fill.begin(), fill.begin() + std::ptrdiff_t(whole));
      return;
    }
    std::vector<uint8_t> next;
    {
      std::unique_lock<std::mutex> g(lock);
      changed.wait(g, [this] { return queue.size() < kQueuedBlocks; });
      if (!spare.empty()) {
        next = std::move(spare.back());
        spare.pop_back();
      }
    }
    next.clear();
    next.reserve(kBlockBytes + frameBytes);
    next.insert(next.end(), fill.begin() + std::ptrdiff_t(whole), fill.end());
    fill.resize(whole);
    Block b;
    b.owned = std::move(fill);
    Queue(std::move(b));
    fill = std::move(next);
  }

  void Queue(Block&& b) {
    std::unique_lock<std::mutex> g(lock);
    changed.wait(g, [this] { return queue.size() < kQueuedBlocks; });
    queue.push_back(std::move(b));
    changed.notify_all();
  }

  void Stop() {
    if (!worker.joinable()) return;
    {
      std::lock_guard<std::mutex> g(lock);
      closing = true;
      changed.notify_all();
    }
    worker.join();
  }
};

LevelAnalyser::LevelAnalyser(bool threaded, bool peak, bool gain) : m(std::make_unique<State>()) {
  m->threaded = threaded;
  m->wantPeak = peak;
  m->wantGain = gain;
}

LevelAnalyser::~LevelAnalyser() { m->Stop(); }

void LevelAnalyser::StayOnCallerThread() {
  m->threaded = false;
  m->callerOnly = true;
}

bool LevelAnalyser::Begin(const PcmFormat& f) {
  if (m->begun || f.channels <= 0 || f.bits <= 0 || f.bits % 8 != 0) return false;
  m->begun = true;
  m->format = f;
  m->frameBytes = size_t(f.channels) * size_t(f.bits / 8);
  if (f.mpeg) m->wantPeak = false;
  if (m->wantPeak && ChooseSampleBlock(f.channels, f.bits, f.formatTag, m->block)) {
    m->peakBlock = true;
    m->extremes = std::make_unique<PeakExtremes>(m->block);
  }
  // The gain engine reads up to 64 channels and analyses the first two.
  m->used = std::min(f.channels, 2);
  // Beside a decoder the analysis has a thread of its own already; inside Write the
  // filters may take a second one, unless everything is to stay on the caller's thread.
  m->gainOk = m->wantGain && f.channels <= 64 && SampleKindOf(f.bits, f.formatTag, m->kind) &&
              f.sampleRate > 0 && m->gain.Init(f.sampleRate, m->used, !m->threaded && !m->callerOnly);
  m->fill.reserve(kBlockBytes + m->frameBytes);
  if (m->threaded) m->worker = std::thread([s = m.get()] { s->Run(); });
  return true;
}

bool LevelAnalyser::Write(const void* data, size_t bytes) {
  if (!m->begun || m->ended) return false;
  const uint8_t* p = static_cast<const uint8_t*>(data);
  while (bytes > 0) {
    const size_t room = kBlockBytes - std::min(kBlockBytes, m->fill.size());
    const size_t n = std::min(bytes, std::max<size_t>(room, 1));
    m->fill.insert(m->fill.end(), p, p + n);
    p += n;
    bytes -= n;
    if (m->fill.size() >= kBlockBytes) m->HandOver();
  }
  return true;
}

bool LevelAnalyser::WriteLent(const void* data, size_t bytes) {
  if (!m->begun || m->ended) return false;
  // Lent bytes go to the analysis thread as they are, when they are whole frames in order.
  if (!m->threaded || !m->fill.empty() || bytes % m->frameBytes != 0) return Write(data, bytes);
  const uint8_t* p = static_cast<const uint8_t*>(data);
  const size_t frames = bytes / m->frameBytes;
  // The peak test alone: the order of the frames does not matter, and this thread reads
  // the first half itself while the analysis thread reads the second.
  size_t mine = 0;
  if (m->extremes && !m->gainOk) {
    mine = frames / 2;
    if (!m->callerExtremes) m->callerExtremes = std::make_unique<PeakExtremes>(m->block);
  }
  if (frames > mine) {
    Block b;
    b.lent = p + mine * m->frameBytes;
    b.lentBytes = (frames - mine) * m->frameBytes;
    m->Queue(std::move(b));
  }
  if (mine > 0) {
    m->callerExtremes->Feed(p, mine);
    m->callerFrames += mine;
  }
  return true;
}

bool LevelAnalyser::End(SizeRule) {
  if (!m->begun || m->ended) return m->begun;
  m->HandOver();
  m->Stop();
  m->ended = true;
  m->frames += m->callerFrames;
  m->callerFrames = 0;
  if (m->callerExtremes) m->extremes->Merge(*m->callerExtremes);
  if (m->gainOk) m->gain.Finish();
  return true;
}

uint64_t LevelAnalyser::Frames() const { return m->frames; }

bool LevelAnalyser::PeakMeasured() const { return m->ended && m->wantPeak && m->format.channels <= 2; }

bool LevelAnalyser::GainMeasured() const { return m->ended && m->gainOk && m->frames > 0; }

LevelResult LevelAnalyser::Result() const {
  LevelResult r;
  const PcmFormat& f = m->format;
  const bool stereo = f.channels != 1;
  if (PeakMeasured()) {
    // A layout without a sample block (32 bits under another tag) reads as silence, as the
    // scanner leaves it.
    SampleBlock silent{0, f.channels, 32, false, 8, 0};
    const PeakExtremes none(silent);
    const PeakExtremes& x = m->extremes ? *m->extremes : none;
    const int bits = m->extremes ? m->block.bits : 32;
    for (int c = 0; c < (stereo ? 2 : 1); ++c) {
      const double v = x.RawPeak(c);
      const PeakDb db = PeakDecibels(v, bits);
      (c ? r.WavRight : r.WavLeft) = PeakPercent(v, bits);
      (c ? r.WavPikRight : r.WavPikLeft) = db.level;
      (c ? r.WavPikNoClippingRight : r.WavPikNoClippingLeft) = db.noClipDb;
    }
  }
  if (GainMeasured()) {
    float gainLeft = 0, gainRight = 0, noClipLeft = 0, noClipRight = 0;
    const int scale = f.gainScaleBits ? f.gainScaleBits : (m->kind == SampleKind::F32 ? 32 : f.bits);
    GainFigures(m->gain, scale, gainLeft, gainRight, noClipLeft, noClipRight);
    r.GainLeft = gainLeft;
    r.NoClippingLeft = noClipLeft;
    if (f.channels == 2) {
      r.GainRight = gainRight;
      r.NoClippingRight = noClipRight;
    }
  }
  return r;
}
