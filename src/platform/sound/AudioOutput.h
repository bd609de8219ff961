#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

#include "core/sound/AudioSource.h"

namespace sonalyx {

// What a source is played as. Each channel plays one thing at a time: starting a new
// source on a channel fades out what it played (or was waiting to play).
enum class AudioChannel { Graph, Effect, Speech };

// The program's one sound output: a mixer of the three channels at 44,100 Hz stereo
// float feeding the sound card through SDL2's audio callback (10-20 ms buffers).
// Without a sound card it falls back to a null output that consumes samples in real
// time, so timing stays the same. Capture mode does the same and also records
// everything mixed, with the time each source started, for tests.
// SONALYX_AUDIO=null|capture:FILE.wav|default chooses for instance().
class AudioOutput {
 public:
  enum class Mode { Default, Null, Capture };

  // What capture mode recorded about one source.
  struct Event {
    double startMs;  // on the output's clock
    AudioChannel channel;
    std::string label;  // given with play()
  };

  // RealTime consumes sound at the device's pace. Manual (Null and Capture only, for
  // tests and benchmarks) runs no clock of its own: the sound moves on only through
  // advance(), on the caller's thread, as fast as it is called.
  enum class Pacing { RealTime, Manual };

  // Null and Default open at once; Capture writes the mixed sound to `captureFile`
  // (16-bit stereo wave) when the output is destroyed or flushCapture() is called.
  // Default falls back to the null output when no sound card can be opened.
  explicit AudioOutput(Mode mode, std::string captureFile = {}, Pacing pacing = Pacing::RealTime);
  ~AudioOutput();
  AudioOutput(const AudioOutput&) = delete;
  AudioOutput& operator=(const AudioOutput&) = delete;

  // The program-wide output, made on first use from SONALYX_AUDIO.
  static AudioOutput& instance();

  // Plays `source` on `channel` starting `delayMs` from now (0: at the next buffer),
  // fading out whatever the channel played or was waiting to play. Never blocks.
  void play(AudioChannel channel, std::shared_ptr<AudioSource> source, double delayMs = 0.0,
            std::string label = {});
  // Fades the channel out within one buffer and drops anything waiting on it.
  void stop(AudioChannel channel);
  void stopAll();

  // True while the channel plays or has something waiting.
  bool isActive(AudioChannel channel) const;
  // Waits until no channel is active (for the command-line tool); false on timeout.
  bool waitUntilIdle(double timeoutMs) const;

  // Milliseconds of sound handed to the device (or consumed) since the output opened.
  double nowMs() const;
  Mode mode() const;
  // The audio driver in use ("pulseaudio", "alsa", ...), empty on the null output.
  std::string deviceDriver() const;
  // Frames the mixer fills at a time: starts, fades and stops happen within one.
  std::size_t bufferFrames() const;

  // Manual pacing only: mixes the next `ms` of sound now.
  void advance(double ms);

  // Capture mode: the sources started so far, and the mixed samples (interleaved).
  std::vector<Event> events() const;
  std::vector<float> capturedSamples() const;
  void flushCapture();

 private:
  struct Impl;
  std::unique_ptr<Impl> m_impl;
};

}  // namespace sonalyx
