#include "player/AudioOutput.h"

#include <SDL.h>

#include <algorithm>
#include <cstring>

#include "app/Text.h"

namespace snd {

namespace {

class SdlOutput : public IAudioOutput {
 public:
  ~SdlOutput() override { Close(); }

  bool Open(const AudioFormat& want, AudioFormat& got, Render render) override {
    // SDL would otherwise install handlers that swallow SIGINT and SIGTERM.
    SDL_SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
    if (SDL_InitSubSystem(SDL_INIT_AUDIO) != 0) {
      m_error = QString::fromUtf8(SDL_GetError());
      return false;
    }
    m_subsystem = true;
    m_render = std::move(render);
    SDL_AudioSpec w{}, h{};
    w.freq = want.rate;
    w.format = AUDIO_F32SYS;
    w.channels = Uint8(want.channels);
    w.samples = Uint16(want.bufferFrames);
    w.callback = &SdlOutput::Callback;
    w.userdata = this;
    m_device = SDL_OpenAudioDevice(nullptr, 0, &w, &h, SDL_AUDIO_ALLOW_FREQUENCY_CHANGE);
    if (m_device == 0) {
      m_error = QString::fromUtf8(SDL_GetError());
      Close();
      return false;
    }
    got.rate = h.freq;
    got.channels = h.channels;
    got.bufferFrames = h.samples;
    m_channels = h.channels;
    SDL_PauseAudioDevice(m_device, 0);
    return true;
  }

  void Close() override {
    if (m_device != 0) {
      SDL_CloseAudioDevice(m_device);
      m_device = 0;
    }
    if (m_subsystem) {
      SDL_QuitSubSystem(SDL_INIT_AUDIO);
      m_subsystem = false;
    }
  }

  void Lock() override {
    if (m_device != 0) SDL_LockAudioDevice(m_device);
  }
  void Unlock() override {
    if (m_device != 0) SDL_UnlockAudioDevice(m_device);
  }
  QString Error() const override { return m_error; }

 private:
  static void Callback(void* self, Uint8* stream, int len) {
    auto* out = static_cast<SdlOutput*>(self);
    const int frames = len / int(sizeof(float)) / std::max(1, out->m_channels);
    out->m_render(reinterpret_cast<float*>(stream), frames);
  }

  SDL_AudioDeviceID m_device = 0;
  bool m_subsystem = false;
  int m_channels = 2;
  Render m_render;
  QString m_error;
};

}  // namespace

std::unique_ptr<IAudioOutput> MakeSdlOutput() { return std::make_unique<SdlOutput>(); }

bool ManualOutput::Open(const AudioFormat&, AudioFormat& got, Render render) {
  if (m_failOpen) return false;
  std::lock_guard<std::mutex> lock(m_mutex);
  m_render = std::move(render);
  m_open = true;
  got = m_format;
  return true;
}

void ManualOutput::Close() {
  std::lock_guard<std::mutex> lock(m_mutex);
  m_open = false;
  m_render = nullptr;
}

QString ManualOutput::Error() const {
  return m_failOpen ? Tonvane::tr("No sound device is available.") : QString();
}

std::vector<float> ManualOutput::Pull(int frames) {
  std::lock_guard<std::mutex> lock(m_mutex);
  if (!m_open || frames <= 0) return {};
  std::vector<float> out(size_t(frames) * size_t(m_format.channels));
  m_render(out.data(), frames);
  return out;
}

}  // namespace snd
