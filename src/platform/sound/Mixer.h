#pragma once

#include <array>
#include <atomic>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

#include "core/sound/AudioSource.h"
#include "platform/sound/AudioOutput.h"

namespace sonalyx {

// The heart of the audio output, apart from any device: requests from the program's
// threads go into a queue that the audio thread takes with a pointer swap at the start
// of each buffer; finished sources go back the same way, so that the audio thread never
// frees one (a sweep can hold megabytes) and never waits on the other threads for more
// than a swap.
class Mixer {
 public:
  static constexpr std::size_t kChannelCount = 3;

  // `maxFrames`: the largest buffer mix() fills in one go (larger ones are split);
  // `recordEvents`: keep an Event for every source as it starts.
  Mixer(std::size_t maxFrames, bool recordEvents);
  ~Mixer();
  Mixer(const Mixer&) = delete;
  Mixer& operator=(const Mixer&) = delete;

  // The program's side, from any thread.
  void play(AudioChannel channel, std::shared_ptr<AudioSource> source, double delayMs, std::string label);
  void stop(AudioChannel channel);
  bool isActive(AudioChannel channel) const;
  bool anyActive() const;
  std::uint64_t framesMixed() const { return m_framesMixed.load(std::memory_order_acquire); }
  std::vector<AudioOutput::Event> events() const;
  // Frees the sources the audio thread has finished with, on the calling thread.
  void releaseFinished();

  // The audio thread: writes `frames` stereo frames of the mix, clipped to -1..1.
  void mix(float* interleaved, std::size_t frames);

 private:
  enum class Action { Play, Stop };
  struct Command {
    Action action = Action::Stop;
    AudioChannel channel = AudioChannel::Graph;
    std::shared_ptr<AudioSource> source;
    std::uint64_t startFrame = 0;
    std::string label;
  };
  struct Voice {
    std::shared_ptr<AudioSource> source;
    AudioChannel channel = AudioChannel::Graph;
    std::uint64_t startFrame = 0;
    bool started = false;
    std::size_t fadeLeft = 0;  // frames of fade still to play; 0 when not fading
    bool fading = false;
    std::string label;
  };
  static constexpr std::size_t kMaxVoices = 16;

  void pushCommand(Command command);
  void takeCommands();
  void apply(Command& command, std::uint64_t bufferStart);
  void silenceChannel(AudioChannel channel);
  void retire(std::shared_ptr<AudioSource>& source);
  void mixChunk(float* out, std::size_t frames);

  const std::size_t m_maxFrames;
  const std::size_t m_fadeFrames;
  const bool m_recordEvents;

  // Shared with the program's threads, under m_queueMutex.
  mutable std::mutex m_queueMutex;
  std::vector<Command> m_pending;
  std::vector<std::shared_ptr<AudioSource>> m_retired;
  std::size_t m_sourcesHeld = 0;  // handed over and not yet retired, wherever they are
  std::array<std::atomic<bool>, kChannelCount> m_busy{};
  std::atomic<std::uint64_t> m_framesMixed{0};

  mutable std::mutex m_eventMutex;
  std::vector<AudioOutput::Event> m_events;

  // The audio thread's own.
  std::vector<Command> m_working;
  std::array<Voice, kMaxVoices> m_voices;
  std::vector<float> m_scratch;
};

}  // namespace sonalyx
