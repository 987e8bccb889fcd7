#pragma once
// The sound system of the process: one System, shared by every player of the program (the
// main window's and the batch preview's), with streams (Sound) played on channels
// (Channel). Lengths and positions are in milliseconds; every call returns a Result.
//
// Each playing channel has a decode thread that fills a ring of frames already in the
// output's format; the output's thread only mixes from the rings, so it never waits for a
// decoder, a file or a lock held by the user-interface thread for longer than a pointer swap.
#include <QString>
#include <memory>
#include <mutex>
#include <vector>

#include "player/AudioOutput.h"
#include "player/SoundResult.h"

namespace snd {

class Channel;
class Sound;
class System;
struct Voice;

// Creates the process's system, or hands out the one that exists (each call is balanced
// by one System::release).
Result System_Create(System** system);

// Modes of createStream. The content is probed, so none of them changes what is opened;
// they are accepted for the callers that pass them.
constexpr unsigned MODE_DEFAULT = 0;
constexpr unsigned MODE_CREATESAMPLE = 0x00000100;
constexpr unsigned MODE_LOWMEM = 0x08000000;
constexpr unsigned MODE_UNICODE = 0x01000000;
constexpr int CHANNEL_FREE = -1;

class System {
 public:
  // Opens the output. A second init of the shared system only raises the channel count.
  Result init(int maxChannels, unsigned flags = 0, void* extraDriverData = nullptr);
  // Drops one reference; the last one stops every channel and closes the output.
  Result release();
  Result createStream(const QString& path, unsigned mode, void* exinfo, Sound** sound);
  // Starts `sound` on a free channel (the one it plays on already, if any, is taken over).
  Result playSound(int channelIndex, Sound* sound, bool paused, Channel** channel);

  // Before init: the output to use (default SDL2). Tests give a ManualOutput.
  Result setOutputDevice(std::unique_ptr<IAudioOutput> output);
  IAudioOutput* output() const { return m_output.get(); }
  const AudioFormat& format() const { return m_format; }
  bool initialized() const { return m_initialized; }
  // The platform's reason when init failed, for a message beside the error text.
  QString outputError() const { return m_outputError; }

 private:
  friend Result System_Create(System**);
  friend class Sound;
  friend class Channel;
  System();
  ~System();
  void Render(float* out, int frames);
  // Ends a voice: takes it out of the mixer and joins its thread. Main thread only.
  void Retire(const std::shared_ptr<Voice>& voice, int state);
  void ReapEnded();
  void ReleaseSound(Sound* sound);

  int m_refs = 0;
  bool m_initialized = false;
  AudioFormat m_format;
  QString m_outputError;
  std::unique_ptr<IAudioOutput> m_output;
  // Guarded by the output's lock: what the mixer walks.
  std::vector<std::shared_ptr<Voice>> m_voices;
  int m_maxChannels = 0;
  std::vector<std::unique_ptr<Sound>> m_sounds;
  // Handles stay valid for the system's life, so a stale one answers with an error code
  // instead of touching freed memory.
  std::vector<std::unique_ptr<Channel>> m_channels;
};

class Sound {
 public:
  Result getLength(unsigned* length, unsigned timeUnit);
  Result release();
  // Format of the source: sample rate and channels.
  int sourceRate() const;
  int sourceChannels() const;

 private:
  friend class System;
  friend struct Voice;
  Sound();
  ~Sound();
  System* m_system = nullptr;
  std::unique_ptr<class StreamDecoder> m_decoder;
  std::shared_ptr<Voice> m_voice;  // the channel that plays it, if any
  friend struct std::default_delete<Sound>;
};

class Channel {
 public:
  Result stop();
  Result setPaused(bool paused);
  Result getPaused(bool* paused);
  Result isPlaying(bool* playing);
  Result setPosition(unsigned position, unsigned timeUnit);
  Result getPosition(unsigned* position, unsigned timeUnit);
  Result setVolume(float volume);
  Result getVolume(float* volume);
  Result setMute(bool mute);
  Result getMute(bool* mute);

 private:
  friend class System;
  Channel() = default;
  // The voice if it still plays (not ended, stopped or taken over); else the reason.
  Result Live(std::shared_ptr<Voice>& voice);
  System* m_system = nullptr;
  std::shared_ptr<Voice> m_voice;
  friend struct std::default_delete<Channel>;
};

}  // namespace snd
