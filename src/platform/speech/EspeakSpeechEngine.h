#pragma once

#include <atomic>
#include <condition_variable>
#include <cstdint>
#include <deque>
#include <memory>
#include <mutex>
#include <thread>

#include "platform/sound/AudioOutput.h"
#include "platform/speech/SpeechEngine.h"
#include "platform/speech/SpeechStream.h"

namespace sonalyx {

// The program's own voice: espeak-ng synthesising in this process on a worker
// thread, its samples streamed into the Speech channel of the audio output while
// the rest of the utterance is still being made, so speech starts within a few
// milliseconds. The library is shared by the whole process; engines take turns.
// Ranges are espeak-ng's own: rate 80..450 words a minute, pitch 0..100, volume
// 0..200 (100 is normal).
class EspeakSpeechEngine : public SpeechEngine {
 public:
  explicit EspeakSpeechEngine(AudioOutput& output);
  ~EspeakSpeechEngine() override;
  EspeakSpeechEngine(const EspeakSpeechEngine&) = delete;
  EspeakSpeechEngine& operator=(const EspeakSpeechEngine&) = delete;

  // False when the library could not start (its data missing): the engine is then silent.
  bool isAvailable() const;
  // Frames at the mixer's rate handed to the output since the engine started.
  std::uint64_t framesQueued() const { return m_framesQueued.load(); }

  std::string name() const override;
  std::string description() const override;
  void speak(const std::string& text, double delayMs) override;
  void stop() override;
  bool isSpeaking() const override;
  std::vector<std::string> voices() const override;
  std::size_t defaultVoice() const override;
  std::vector<std::string> voiceLanguages() const override;
  bool selectVoice(std::size_t index) override;
  std::string currentVoice() const override;
  EngineRange range(SpeechSetting setting) const override;
  bool set(SpeechSetting setting, int value) override;
  int get(SpeechSetting setting) const override;
  std::optional<RenderedSpeech> render(const std::string& text) override;

 private:
  struct Job;
  struct Synthesis;
  friend int espeakSynthCallback(short* wav, int count, void* userData);

  void run();
  void synthesise(Job& job);
  void applySettings();
  bool deliver(Synthesis& synthesis, const float* samples, std::size_t count);
  bool queue(Job& job, const float* samples, std::size_t count);
  void cancelQueuedSpeech();

  AudioOutput& m_output;
  std::shared_ptr<SpeechStream> m_lastStream;  // user-interface thread only

  mutable std::mutex m_mutex;
  std::condition_variable m_wake;
  std::deque<std::unique_ptr<Job>> m_jobs;
  bool m_quit = false;
  std::size_t m_voice = 0;
  int m_rate = 0;
  int m_pitch = 0;
  int m_volume = 0;
  std::uint64_t m_settingsVersion = 1;

  std::atomic<std::uint64_t> m_generation{0};
  std::atomic<std::uint64_t> m_framesQueued{0};
  std::uint64_t m_appliedVersion = 0;  // worker only
  std::thread m_worker;
};

}  // namespace sonalyx
