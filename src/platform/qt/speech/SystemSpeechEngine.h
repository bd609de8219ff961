#pragma once

#include <memory>

#include "platform/speech/SpeechEngine.h"

namespace sonalyx {

// The system's speech service through Qt (speech-dispatcher on Linux): the voice
// the user has set up for the whole desktop. Needs a running Qt event loop on the
// thread that uses it.
//
// The service is shared with the screen reader, and Qt's only way to interrupt
// speech there (stop(), which say() also calls while anything is being spoken)
// cancels every program's speech. So this engine never interrupts the service:
// it hands an utterance over one sentence at a time, and a new utterance replaces
// the sentences not yet handed over, so the old one ends with its current
// sentence. Other services interrupt only their own client; there say() and stop()
// are used directly.
class SystemSpeechEngine : public SpeechEngine {
 public:
  SystemSpeechEngine();
  ~SystemSpeechEngine() override;

  // False when the service could not be reached: the engine is then silent.
  bool isAvailable() const;

  std::string name() const override;
  std::string description() const override;
  void speak(const std::string& text, double delayMs) override;
  void stop() override;
  bool isSpeaking() const override;
  std::vector<std::string> voices() const override;
  std::size_t defaultVoice() const override;
  std::vector<std::string> voiceLanguages() const override;
  void useLanguage(const std::string& language) override;
  bool selectVoice(std::size_t index) override;
  std::string currentVoice() const override;
  EngineRange range(SpeechSetting setting) const override;
  bool set(SpeechSetting setting, int value) override;
  int get(SpeechSetting setting) const override;
  std::optional<RenderedSpeech> render(const std::string& text) override;

 private:
  struct Impl;
  std::unique_ptr<Impl> m_impl;
};

// Makes "system" available to SONALYX_SPEECH in a program that links this library.
void registerSystemSpeechEngine();

}  // namespace sonalyx
