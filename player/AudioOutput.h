#pragma once
// Where the mixed sound goes. The sound system renders interleaved 32-bit float frames on
// the output's own thread; an output only asks for them. Two outputs exist: SDL2 for people,
// and a manual one from which a test pulls the frames itself.
#include <QString>
#include <functional>
#include <memory>
#include <mutex>
#include <vector>

namespace snd {

struct AudioFormat {
  int rate = 48000;
  int channels = 2;
  int bufferFrames = 1024;  // frames per render call
};

class IAudioOutput {
 public:
  // Fills `frames` frames of interleaved floats. Runs on the output's thread.
  using Render = std::function<void(float* out, int frames)>;
  virtual ~IAudioOutput() = default;
  // Opens the device asking for `want`; `got` receives what it takes. False on failure,
  // with the reason in Error().
  virtual bool Open(const AudioFormat& want, AudioFormat& got, Render render) = 0;
  virtual void Close() = 0;
  // Keeps the render call out while the mixer's voices change. Held briefly, never by the
  // render call itself.
  virtual void Lock() = 0;
  virtual void Unlock() = 0;
  // A real-time output never waits for the decoder: missing frames are silence. A manual
  // output lets the mixer wait for them, so a test hears every frame.
  virtual bool RealTime() const { return true; }
  virtual QString Error() const { return {}; }
};

// SDL2 audio; SDL_AUDIODRIVER picks the driver (dummy and disk in tests).
std::unique_ptr<IAudioOutput> MakeSdlOutput();

// A device without a clock: Pull renders the next frames on the caller's thread.
class ManualOutput : public IAudioOutput {
 public:
  explicit ManualOutput(AudioFormat format = {}, bool failOpen = false)
      : m_format(format), m_failOpen(failOpen) {}
  bool Open(const AudioFormat& want, AudioFormat& got, Render render) override;
  void Close() override;
  void Lock() override { m_mutex.lock(); }
  void Unlock() override { m_mutex.unlock(); }
  bool RealTime() const override { return false; }
  QString Error() const override;

  // The next `frames` frames, interleaved; empty when the output is not open.
  std::vector<float> Pull(int frames);
  const AudioFormat& Format() const { return m_format; }

 private:
  AudioFormat m_format;
  bool m_failOpen;
  bool m_open = false;
  Render m_render;
  std::mutex m_mutex;
};

}  // namespace snd
