#include "player/SoundSystem.h"

#include <algorithm>
#include <atomic>
#include <chrono>
#include <condition_variable>
#include <cstring>
#include <thread>

#include "player/StreamDecoder.h"

namespace snd {

namespace {
System* g_system = nullptr;
// Frames the ring holds: about a third of a second at 48 kHz, enough to ride out a slow
// disk, short enough that a seek is not held up behind old sound.
constexpr uint64_t kRingFrames = 16384;
// A decode thread sleeps at most this long before it looks at the ring again.
constexpr auto kDecoderNap = std::chrono::milliseconds(8);
// A manual output waits this long for a decoder before it takes silence (a hung decoder
// must not hang a test).
constexpr auto kManualWait = std::chrono::seconds(5);
// Channels the system mixes at least; the window's player, the preview and the beep.
constexpr int kMinChannels = 4;
}  // namespace

// A sound being played: the ring between its decode thread (the only writer) and the
// mixer (the only reader), and the controls the user-interface thread sets.
struct Voice {
  enum State { kPlaying = 0, kEnded = 1, kStopped = 2, kStolen = 3 };

  Voice(Sound* s, StreamDecoder* d, int ch, int r)
      : sound(s), decoder(d), channels(ch), rate(r), ring(size_t(kRingFrames) * size_t(ch)) {}

  Sound* sound;
  StreamDecoder* decoder;
  const int channels;
  const int rate;
  std::vector<float> ring;
  std::atomic<uint64_t> writeIdx{0};
  std::atomic<uint64_t> readIdx{0};
  // A seek, as the decode thread has served it: from ring index discardAt on, the frames
  // start at posBase; servedSerial tells the mixer that there is something new.
  std::atomic<uint64_t> discardAt{0};
  std::atomic<uint64_t> posBase{0};
  std::atomic<uint32_t> servedSerial{0};
  std::atomic<bool> eof{false};      // the decoder has nothing more (until a seek)
  std::atomic<bool> drained{false};  // the mixer has played everything: the sound ended
  // The mixer's own.
  uint32_t heardSerial = 0;
  std::atomic<uint64_t> posFrames{0};
  std::atomic<uint32_t> heardSerialShared{0};
  // Set by the user-interface thread.
  std::atomic<bool> paused{false};
  std::atomic<bool> muted{false};
  std::atomic<float> volume{1.0f};
  std::atomic<uint32_t> seekSerial{0};
  std::atomic<uint32_t> seekTargetMs{0};
  std::atomic<int> state{kPlaying};
  std::atomic<bool> quit{false};
  std::mutex wakeMutex;
  std::condition_variable wake;
  std::thread thread;

  void Wake() {
    std::lock_guard<std::mutex> lock(wakeMutex);
    wake.notify_one();
  }
  void Nap() {
    std::unique_lock<std::mutex> lock(wakeMutex);
    wake.wait_for(lock, kDecoderNap);
  }

  // The decode thread.
  void Run() {
    std::vector<float> pending;
    size_t pendingAt = 0;  // floats of `pending` already in the ring
    bool decoderDone = false;
    uint32_t handled = 0;
    if (!decoder->AtStart() && decoder->SeekMs(0) != OK) decoderDone = true;
    while (!quit.load(std::memory_order_acquire)) {
      const uint32_t request = seekSerial.load(std::memory_order_acquire);
      if (request != handled) {
        handled = request;
        const uint32_t target = seekTargetMs.load(std::memory_order_relaxed);
        pending.clear();
        pendingAt = 0;
        decoderDone = decoder->SeekMs(target) != OK;
        posBase.store(uint64_t(target) * uint64_t(rate) / 1000, std::memory_order_relaxed);
        discardAt.store(writeIdx.load(std::memory_order_relaxed), std::memory_order_relaxed);
        eof.store(false, std::memory_order_relaxed);
        servedSerial.store(request, std::memory_order_release);
        continue;
      }
      if (pendingAt < pending.size()) {
        const uint64_t w = writeIdx.load(std::memory_order_relaxed);
        // Frames before the last served seek are as good as read: the mixer skips them.
        const uint64_t r = std::max(readIdx.load(std::memory_order_acquire), discardAt.load(std::memory_order_relaxed));
        const uint64_t room = kRingFrames - (w - r);
        const uint64_t left = (pending.size() - pendingAt) / size_t(channels);
        const uint64_t n = std::min(room, left);
        for (uint64_t i = 0; i < n; ++i) {
          const size_t slot = size_t((w + i) % kRingFrames) * size_t(channels);
          std::memcpy(&ring[slot], &pending[pendingAt + size_t(i) * size_t(channels)], sizeof(float) * size_t(channels));
        }
        pendingAt += size_t(n) * size_t(channels);
        writeIdx.store(w + n, std::memory_order_release);
        if (n < left) Nap();
        continue;
      }
      pending.clear();
      pendingAt = 0;
      if (decoderDone) {
        eof.store(true, std::memory_order_release);
        if (drained.load(std::memory_order_acquire)) break;
        Nap();
        continue;
      }
      if (!decoder->Decode(pending)) decoderDone = true;
    }
  }

  // Takes a seek the decode thread has served: the frames before it are dropped.
  void TakeSeek() {
    const uint32_t served = servedSerial.load(std::memory_order_acquire);
    if (served == heardSerial) return;
    heardSerial = served;
    const uint64_t d = discardAt.load(std::memory_order_relaxed);
    if (d > readIdx.load(std::memory_order_relaxed)) readIdx.store(d, std::memory_order_release);
    posFrames.store(posBase.load(std::memory_order_relaxed), std::memory_order_relaxed);
    heardSerialShared.store(served, std::memory_order_release);
  }

  // The mixer's part: adds this voice's next frames into `out`. Output thread.
  void Mix(float* out, int frames, bool waitForData) {
    if (state.load(std::memory_order_acquire) != kPlaying) return;
    TakeSeek();
    if (waitForData) WaitForData(frames);
    if (paused.load(std::memory_order_acquire)) return;
    const uint64_t r = readIdx.load(std::memory_order_relaxed);
    const uint64_t available = writeIdx.load(std::memory_order_acquire) - r;
    const uint64_t n = std::min<uint64_t>(uint64_t(frames), available);
    const float gain = muted.load(std::memory_order_relaxed) ? 0.0f : volume.load(std::memory_order_relaxed);
    for (uint64_t i = 0; i < n; ++i) {
      const float* src = &ring[size_t((r + i) % kRingFrames) * size_t(channels)];
      float* dst = out + size_t(i) * size_t(channels);
      for (int c = 0; c < channels; ++c) dst[c] += src[c] * gain;
    }
    readIdx.store(r + n, std::memory_order_release);
    posFrames.store(posFrames.load(std::memory_order_relaxed) + n, std::memory_order_release);
    if (n == available && eof.load(std::memory_order_acquire) &&
        writeIdx.load(std::memory_order_acquire) == r + n &&
        heardSerial == seekSerial.load(std::memory_order_acquire)) {
      drained.store(true, std::memory_order_release);
      Wake();
    }
  }

  // A manual output hears every frame: wait until the decoder has served the last seek and
  // has the frames (or has ended).
  void WaitForData(int frames) {
    if (paused.load()) return;
    const auto until = std::chrono::steady_clock::now() + kManualWait;
    while (std::chrono::steady_clock::now() < until && !quit.load()) {
      TakeSeek();
      if (heardSerial == seekSerial.load(std::memory_order_acquire) &&
          (writeIdx.load(std::memory_order_acquire) - readIdx.load() >= uint64_t(frames) || eof.load()))
        return;
      std::this_thread::sleep_for(std::chrono::microseconds(200));
    }
  }

  // Position in milliseconds as the listener hears it; a seek not yet served reads as its
  // target.
  uint32_t PositionMs() const {
    const uint32_t requested = seekSerial.load(std::memory_order_acquire);
    if (heardSerialShared.load(std::memory_order_acquire) != requested) return seekTargetMs.load();
    return uint32_t(posFrames.load(std::memory_order_acquire) * 1000 / uint64_t(rate));
  }
};

// --- System ---

Result System_Create(System** system) {
  if (system == nullptr) return ERR_INVALID_PARAM;
  if (g_system == nullptr) g_system = new System();
  ++g_system->m_refs;
  *system = g_system;
  return OK;
}

System::System() = default;

System::~System() {
  for (auto& v : std::vector<std::shared_ptr<Voice>>(m_voices)) Retire(v, Voice::kStopped);
  m_sounds.clear();
  if (m_output) m_output->Close();
}

Result System::setOutputDevice(std::unique_ptr<IAudioOutput> output) {
  if (m_initialized) return ERR_INITIALIZED;
  m_output = std::move(output);
  return OK;
}

Result System::init(int maxChannels, unsigned, void*) {
  if (maxChannels < 1) return ERR_INVALID_PARAM;
  m_maxChannels = std::max({m_maxChannels, maxChannels, kMinChannels});
  if (m_initialized) return OK;
  if (!m_output) m_output = MakeSdlOutput();
  AudioFormat want;
  // The output fills m_format before it starts calling Render, which reads it from the
  // audio thread.
  if (!m_output->Open(want, m_format, [this](float* out, int frames) { Render(out, frames); })) {
    m_outputError = m_output->Error();
    return ERR_OUTPUT_INIT;
  }
  if (m_format.channels < 1 || m_format.rate < 1000) {
    m_output->Close();
    return ERR_OUTPUT_INIT;
  }
  m_outputError.clear();
  m_initialized = true;
  return OK;
}

Result System::release() {
  if (m_refs <= 0) return ERR_INVALID_HANDLE;
  if (--m_refs > 0) return OK;
  if (g_system == this) g_system = nullptr;
  delete this;
  return OK;
}

Result System::createStream(const QString& path, unsigned, void*, Sound** sound) {
  if (sound == nullptr) return ERR_INVALID_PARAM;
  *sound = nullptr;
  if (!m_initialized) return m_outputError.isEmpty() && m_maxChannels == 0 ? ERR_UNINITIALIZED : ERR_OUTPUT_INIT;
  auto decoder = std::make_unique<StreamDecoder>();
  const Result r = decoder->Open(path, m_format.rate, m_format.channels);
  if (r != OK) return r;
  std::unique_ptr<Sound> s(new Sound());
  s->m_system = this;
  s->m_decoder = std::move(decoder);
  *sound = s.get();
  m_sounds.push_back(std::move(s));
  return OK;
}

Result System::playSound(int, Sound* sound, bool paused, Channel** channel) {
  if (channel != nullptr) *channel = nullptr;
  if (sound == nullptr) return ERR_INVALID_PARAM;
  if (!m_initialized) return ERR_UNINITIALIZED;
  ReapEnded();
  // A stream plays once at a time: a second play takes its channel over.
  if (sound->m_voice) Retire(sound->m_voice, Voice::kStolen);
  if (int(m_voices.size()) >= m_maxChannels) Retire(m_voices.front(), Voice::kStolen);
  auto voice = std::make_shared<Voice>(sound, sound->m_decoder.get(), m_format.channels, m_format.rate);
  voice->paused.store(paused);
  Voice* raw = voice.get();
  voice->thread = std::thread([raw] { raw->Run(); });
  sound->m_voice = voice;
  m_output->Lock();
  m_voices.push_back(voice);
  m_output->Unlock();
  std::unique_ptr<Channel> handle(new Channel());
  handle->m_system = this;
  handle->m_voice = voice;
  if (channel != nullptr) *channel = handle.get();
  m_channels.push_back(std::move(handle));
  return OK;
}

void System::Render(float* out, int frames) {
  std::fill(out, out + size_t(frames) * size_t(m_format.channels), 0.0f);
  if (m_output->RealTime()) {
    for (const auto& v : m_voices) v->Mix(out, frames, false);
    return;
  }
  // A manual output waits for its frames, in slices that fit the rings.
  constexpr int kSlice = int(kRingFrames / 4);
  for (int done = 0; done < frames; done += kSlice) {
    const int n = std::min(kSlice, frames - done);
    for (const auto& v : m_voices) v->Mix(out + size_t(done) * size_t(m_format.channels), n, true);
  }
}

void System::Retire(const std::shared_ptr<Voice>& voice, int state) {
  if (!voice) return;
  std::shared_ptr<Voice> keep = voice;  // the argument may be the slot we erase
  int expected = Voice::kPlaying;
  keep->state.compare_exchange_strong(expected, state);
  m_output->Lock();
  m_voices.erase(std::remove(m_voices.begin(), m_voices.end(), keep), m_voices.end());
  m_output->Unlock();
  keep->quit.store(true, std::memory_order_release);
  keep->Wake();
  if (keep->thread.joinable()) keep->thread.join();
  if (keep->sound != nullptr && keep->sound->m_voice == keep) keep->sound->m_voice.reset();
}

void System::ReapEnded() {
  for (auto& v : std::vector<std::shared_ptr<Voice>>(m_voices))
    if (v->drained.load(std::memory_order_acquire)) Retire(v, Voice::kEnded);
}

void System::ReleaseSound(Sound* sound) {
  if (sound->m_voice) Retire(sound->m_voice, Voice::kStopped);
  for (const auto& h : m_channels)
    if (h->m_voice && h->m_voice->sound == sound) h->m_voice->sound = nullptr;
  m_sounds.erase(std::remove_if(m_sounds.begin(), m_sounds.end(), [sound](const auto& s) { return s.get() == sound; }),
                 m_sounds.end());
}

// --- Sound ---

Sound::Sound() = default;
Sound::~Sound() = default;

Result Sound::getLength(unsigned* length, unsigned timeUnit) {
  if (length == nullptr || timeUnit != TIMEUNIT_MS) return ERR_INVALID_PARAM;
  *length = m_decoder ? m_decoder->LengthMs() : 0;
  return OK;
}

Result Sound::release() {
  m_system->ReleaseSound(this);  // deletes this
  return OK;
}

int Sound::sourceRate() const { return m_decoder ? m_decoder->SourceRate() : 0; }
int Sound::sourceChannels() const { return m_decoder ? m_decoder->SourceChannels() : 0; }

// --- Channel ---

Result Channel::Live(std::shared_ptr<Voice>& voice) {
  voice = m_voice;
  if (!voice) return ERR_INVALID_HANDLE;
  if (voice->drained.load(std::memory_order_acquire)) m_system->Retire(voice, Voice::kEnded);
  switch (voice->state.load()) {
    case Voice::kPlaying: return OK;
    case Voice::kStolen: return ERR_CHANNEL_STOLEN;
    default: return ERR_INVALID_HANDLE;
  }
}

Result Channel::stop() {
  std::shared_ptr<Voice> v;
  const Result r = Live(v);
  if (r != OK) return r;
  m_system->Retire(v, Voice::kStopped);
  return OK;
}

Result Channel::setPaused(bool paused) {
  std::shared_ptr<Voice> v;
  const Result r = Live(v);
  if (r == OK) v->paused.store(paused, std::memory_order_release);
  return r;
}

Result Channel::getPaused(bool* paused) {
  if (paused == nullptr) return ERR_INVALID_PARAM;
  std::shared_ptr<Voice> v;
  const Result r = Live(v);
  *paused = r == OK && v->paused.load();
  return r;
}

Result Channel::isPlaying(bool* playing) {
  if (playing == nullptr) return ERR_INVALID_PARAM;
  std::shared_ptr<Voice> v;
  const Result r = Live(v);
  *playing = r == OK;
  return r;
}

Result Channel::setPosition(unsigned position, unsigned timeUnit) {
  if (timeUnit != TIMEUNIT_MS) return ERR_INVALID_PARAM;
  std::shared_ptr<Voice> v;
  const Result r = Live(v);
  if (r != OK) return r;
  if (v->decoder->LengthMs() != 0 && position > v->decoder->LengthMs()) return ERR_INVALID_POSITION;
  v->seekTargetMs.store(position, std::memory_order_relaxed);
  v->seekSerial.fetch_add(1, std::memory_order_acq_rel);
  v->Wake();
  return OK;
}

Result Channel::getPosition(unsigned* position, unsigned timeUnit) {
  if (position == nullptr || timeUnit != TIMEUNIT_MS) return ERR_INVALID_PARAM;
  std::shared_ptr<Voice> v;
  const Result r = Live(v);
  *position = r == OK ? v->PositionMs() : 0;
  return r;
}

Result Channel::setVolume(float volume) {
  std::shared_ptr<Voice> v;
  const Result r = Live(v);
  if (r == OK) v->volume.store(std::clamp(volume, 0.0f, 1.0f), std::memory_order_release);
  return r;
}

Result Channel::getVolume(float* volume) {
  if (volume == nullptr) return ERR_INVALID_PARAM;
  std::shared_ptr<Voice> v;
  const Result r = Live(v);
  *volume = r == OK ? v->volume.load() : 0.0f;
  return r;
}

Result Channel::setMute(bool mute) {
  std::shared_ptr<Voice> v;
  const Result r = Live(v);
  if (r == OK) v->muted.store(mute, std::memory_order_release);
  return r;
}

Result Channel::getMute(bool* mute) {
  if (mute == nullptr) return ERR_INVALID_PARAM;
  std::shared_ptr<Voice> v;
  const Result r = Live(v);
  *mute = r == OK && v->muted.load();
  return r;
}

}  // namespace snd
