#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "core/speech/EngineRange.h"

namespace sonalyx {

enum class SpeechSetting { Rate, Pitch, Volume };

// An engine's three ranges, looked up by setting.
struct SpeechRanges {
  EngineRange rate;
  EngineRange pitch;
  EngineRange volume;

  constexpr EngineRange of(SpeechSetting setting) const {
    return setting == SpeechSetting::Rate ? rate : setting == SpeechSetting::Pitch ? pitch : volume;
  }
};

// A whole utterance as sound, for writing to a file.
struct RenderedSpeech {
  std::vector<float> samples;  // mono, -1..1
  int sampleRate = 0;
};

// A voice the program can speak with. Engines are driven from one thread (the
// user-interface thread) and never make it wait for speech.
class SpeechEngine {
 public:
  virtual ~SpeechEngine() = default;

  // Short name as SONALYX_SPEECH spells it ("espeak-ng").
  virtual std::string name() const = 0;
  // What the engine says about itself: its maker's name and version.
  virtual std::string description() const = 0;

  // Cuts off this program's utterance (and one still waiting to start) and says
  // `text` from `delayMs` after now. Other programs' speech is never touched.
  virtual void speak(const std::string& text, double delayMs) = 0;
  // Cuts off this program's speech, and nothing else's.
  virtual void stop() = 0;
  // True while an utterance is waiting, being made or still being heard.
  virtual bool isSpeaking() const = 0;

  // The installed voices in the engine's order, and which is its default.
  virtual std::vector<std::string> voices() const = 0;
  virtual std::size_t defaultVoice() const = 0;
  // Each voice's language tag ("fr-fr", "sv_SE"), in the order of voices(); empty
  // when the engine cannot tell.
  virtual std::vector<std::string> voiceLanguages() const = 0;
  // Lets an engine that lists only the voices of one language (the system's
  // service) list those of `language` ("fr"); the others list all of theirs anyway.
  virtual void useLanguage(const std::string& /*language*/) {}
  virtual bool selectVoice(std::size_t index) = 0;
  // The voice in use (empty when there is none).
  virtual std::string currentVoice() const = 0;

  virtual EngineRange range(SpeechSetting setting) const = 0;
  // `value` within range(setting); used from the next utterance on.
  virtual bool set(SpeechSetting setting, int value) = 0;
  virtual int get(SpeechSetting setting) const = 0;

  // The utterance as sound, with the current voice and settings, without playing
  // it; nothing when the engine cannot hand its sound over.
  virtual std::optional<RenderedSpeech> render(const std::string& text) = 0;
};

}  // namespace sonalyx
