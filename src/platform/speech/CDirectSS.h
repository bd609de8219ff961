#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "core/settings/SettingsStore.h"
#include "core/speech/SpeechKind.h"
#include "core/speech/Translator.h"
#include "core/speech/VoiceFilter.h"
#include "platform/sound/OutputSequencer.h"
#include "platform/speech/ScreenReader.h"
#include "platform/speech/SpeechEngine.h"
#include "platform/speech/SpeechLog.h"

namespace sonalyx {

// The program's one voice: every spoken word goes through Speak(), which cuts off
// whatever was being said. Callers translate before they speak; this speaks what
// it is given. Without an engine every operation does nothing or returns false, and
// the program runs silently. Beside a screen reader the setting ttsMode decides,
// at every utterance, which texts are left to it and which join its queue (see
// routeSpeech). Used from the user-interface thread only.
class CDirectSS {
 public:
  // `enabled` starts as the stored `ttsOn`.
  explicit CDirectSS(SettingsStore settings);
  ~CDirectSS();
  CDirectSS(const CDirectSS&) = delete;
  CDirectSS& operator=(const CDirectSS&) = delete;

  // The program-wide voice over the user's settings.
  static CDirectSS& instance();
  // The settings the voice reads from now on (a run's own file).
  void setSettings(SettingsStore settings) { m_settings = std::move(settings); }

  // Takes `engine` and applies the stored voice, rate, pitch and volume; false
  // (and silence) without one.
  bool Create(std::unique_ptr<SpeechEngine> engine);
  // The engine SONALYX_SPEECH names, else the stored ttsEngine (espeak-ng by
  // default), playing into the sequencer's output, the log SONALYX_SPEECH_LOG
  // names, and the sequencer's order.
  bool Create(OutputSequencer& sequencer);
  // Changes to the engine called `name`, with the stored settings, playing where the
  // current one plays; false, and the current engine kept, when it cannot start.
  bool UseEngine(const std::string& name);
  // Speech waits for the sounds the sequencer says lead it, and its stopAll()
  // silences this voice too.
  void attach(OutputSequencer& sequencer);
  void setLog(std::unique_ptr<SpeechLog> log) { m_log = std::move(log); }
  SpeechEngine* engine() const { return m_engine.get(); }
  // The session's screen reader, owned by the caller, who clears it (nullptr)
  // before it goes; without one the program speaks as if none ran.
  void setScreenReader(ScreenReader* screenReader) { m_screenReader = screenReader; }
  ScreenReader* screenReader() const { return m_screenReader; }

  // Nothing while disabled. Otherwise cuts off the current utterance and says
  // `text` (after whatever sound leads it) with the stored pronunciation list
  // applied, writing the text as given to the log first. `kind`
  // tells an echo of focus and state from content only the program knows: an echo
  // left to the screen reader is neither said nor logged, and content for its
  // queue falls back to the own voice when the queue cannot take it.
  void Speak(SpeechKind kind, const std::string& text);
  // Cuts off the current utterance and withdraws the program's text from the screen
  // reader's queue; nothing while disabled.
  void Stop();
  // The same even while disabled (everything is being silenced).
  void Silence();

  // The program's language ("fr"; empty: none in particular), which the voice
  // speaks (see chooseVoiceForLanguage), and the translator of the words the
  // engine's answers are made of. Re-selects the stored voice.
  void setLanguage(const std::string& language, Translator translate = {});
  const std::string& language() const { return m_language; }

  // Picks the voice `name` selects (its exact name, else the first containing it)
  // when it speaks the program's language, else the engine's voice for that
  // language, else the engine's default. False without an engine or voices.
  bool SelectVoice(const std::string& name);
  // Percent of the engine's range (see EngineRange::fromPercent); false without an engine.
  bool SetRate(std::uint32_t percent);
  bool SetPitch(std::uint32_t percent);
  bool SetVolume(std::uint32_t percent);
  // Applies the stored voice, rate, pitch and volume, in that order.
  void ApplySettings();
  // The voices offered to the user (see VoiceFilter); false, and an empty list,
  // without an engine or voices.
  bool GetVoices(std::vector<std::string>& list) const;

  // The engine's own dialogs. Here they tell what they would show, aloud (when
  // enabled) and as the returned text; empty without an engine.
  std::string ShowAboutDialog();
  std::string ShowGeneralDialog();
  std::string ShowLexiconDialog();

  // Written only by the two places that switch self-voicing (see SelfVoicing.h).
  bool enabled() const { return m_enabled; }
  void setEnabled(bool enabled) { m_enabled = enabled; }

 private:
  bool applyPercent(SpeechSetting setting, std::uint32_t percent);
  std::string tell(std::string text);

  SettingsStore m_settings;
  VoiceFilter m_filter;
  std::string m_language;
  Translator m_translate;
  bool m_enabled;
  std::unique_ptr<SpeechEngine> m_engine;
  std::unique_ptr<SpeechLog> m_log;
  OutputSequencer* m_sequencer = nullptr;
  ScreenReader* m_screenReader = nullptr;
};

}  // namespace sonalyx
