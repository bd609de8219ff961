#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "platform/speech/SpeechEngine.h"

namespace sonalyx {

// A voice that only writes down what it is told, for tests: each utterance with
// the moment it would start and the moment something cut it off, on the clock it
// is given (the audio output's, or a test's own). It makes no sound.
class CaptureSpeechEngine : public SpeechEngine {
 public:
  using Clock = std::function<double()>;

  struct Utterance {
    std::string text;
    double startMs = 0.0;
    // When a later utterance or a stop came (the utterance may have ended before).
    std::optional<double> cutMs;

    bool operator==(const Utterance&) const = default;
  };

  // What the engine pretends to have installed.
  struct Voices {
    std::vector<std::string> names{"Capture"};
    std::size_t defaultVoice = 0;
    EngineRange rate{0, 100};
    EngineRange pitch{0, 100};
    EngineRange volume{0, 100};
    std::vector<std::string> languages{};  // one tag per name, or none
  };

  explicit CaptureSpeechEngine(Clock clock);
  CaptureSpeechEngine(Clock clock, Voices voices);

  const std::vector<Utterance>& utterances() const { return m_utterances; }
  std::size_t stopCount() const { return m_stops; }

  std::string name() const override { return "capture"; }
  std::string description() const override { return "Speech capture for tests"; }
  void speak(const std::string& text, double delayMs) override;
  void stop() override;
  bool isSpeaking() const override { return false; }
  std::vector<std::string> voices() const override { return m_voices.names; }
  std::size_t defaultVoice() const override { return m_voices.defaultVoice; }
  std::vector<std::string> voiceLanguages() const override { return m_voices.languages; }
  bool selectVoice(std::size_t index) override;
  std::string currentVoice() const override;
  EngineRange range(SpeechSetting setting) const override;
  bool set(SpeechSetting setting, int value) override;
  int get(SpeechSetting setting) const override;
  std::optional<RenderedSpeech> render(const std::string&) override { return std::nullopt; }

 private:
  void cutLast(double nowMs);

  Clock m_clock;
  Voices m_voices;
  std::size_t m_voice;
  int m_values[3];
  std::vector<Utterance> m_utterances;
  std::size_t m_stops = 0;
};

}  // namespace sonalyx
