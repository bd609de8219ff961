#include "platform/speech/CDirectSS.h"

#include "core/settings/FirstStart.h"
#include "core/speech/PronunciationLexicon.h"
#include "core/speech/TranslationMarker.h"
#include "core/speech/VoiceChoice.h"
#include "core/speech/VoicingMode.h"
#include "core/utility/NumberFormat.h"
#include "platform/speech/SpeechEngineRegistry.h"

namespace sonalyx {

namespace {

// A setting's value and its range: "50 (0 to 100)".
std::string describe(const SpeechEngine& engine, SpeechSetting setting, const Translator& translate) {
  const EngineRange span = engine.range(setting);
  return fillPlaceholders(translateWith(translate, SLX_TR("%1 (%2 to %3)")),
                          {formatNumber(engine.get(setting), "%.10g"), formatNumber(span.minimum, "%.10g"),
                           formatNumber(span.maximum, "%.10g")});
}

}  // namespace

// The voice exists before the program looks at its settings: it must not store the
// switch's default, or no start would ever be the first.
CDirectSS::CDirectSS(SettingsStore settings)
    : m_settings(std::move(settings)), m_enabled(!isFirstStart(m_settings) && m_settings.GetTtsOn()) {}

CDirectSS::~CDirectSS() {
  if (m_sequencer != nullptr) m_sequencer->setSpeechSilencer({});
}

CDirectSS& CDirectSS::instance() {
  static CDirectSS voice(SettingsStore::openDefault());
  return voice;
}

bool CDirectSS::Create(std::unique_ptr<SpeechEngine> engine) {
  if (!engine) return false;
  m_engine = std::move(engine);
  m_engine->useLanguage(m_language);
  ApplySettings();
  return true;
}

bool CDirectSS::Create(OutputSequencer& sequencer) {
  attach(sequencer);
  if (!m_log) m_log = SpeechLog::fromEnvironment();
  const std::string chosen = SpeechEngineRegistry::chosenName(m_settings.GetTtsEngine());
  std::unique_ptr<SpeechEngine> engine = SpeechEngineRegistry::create(chosen, sequencer.output());
  // A user who cannot see must not be left without a voice because the chosen one is missing.
  if (!engine && chosen != SpeechEngineRegistry::kDefaultEngine) {
    engine = SpeechEngineRegistry::create(SpeechEngineRegistry::kDefaultEngine, sequencer.output());
  }
  return Create(std::move(engine));
}

bool CDirectSS::UseEngine(const std::string& name) {
  if (m_sequencer == nullptr) return false;
  std::unique_ptr<SpeechEngine> engine = SpeechEngineRegistry::create(name, m_sequencer->output());
  if (!engine) return false;
  if (m_engine) m_engine->stop();
  return Create(std::move(engine));
}

void CDirectSS::attach(OutputSequencer& sequencer) {
  if (m_sequencer != nullptr && m_sequencer != &sequencer) m_sequencer->setSpeechSilencer({});
  m_sequencer = &sequencer;
  sequencer.setSpeechSilencer([this] { Silence(); });
}

void CDirectSS::Speak(SpeechKind kind, const std::string& text) {
  if (!m_engine || !m_enabled) return;
  const bool screenReaderRunning = m_screenReader != nullptr && m_screenReader->running();
  // Read at every utterance, so a change in the list is heard at once.
  const std::string spoken = PronunciationLexicon::fromStoredText(m_settings.GetLexicon()).apply(text);
  switch (routeSpeech(kind, voicingModeFromSetting(m_settings.GetTtsMode()), screenReaderRunning)) {
    case SpeechRoute::LeftOut:
      return;
    case SpeechRoute::ScreenReader:
      if (m_log) m_log->append(text);
      // One voice at a time: the own voice's last words end as the queue takes over.
      m_engine->stop();
      if (!m_screenReader->present(spoken))
        m_engine->speak(spoken, m_sequencer != nullptr ? m_sequencer->speechDelayMs() : 0.0);
      return;
    case SpeechRoute::OwnVoice:
      break;
  }
  if (m_log) m_log->append(text);
  m_engine->speak(spoken, m_sequencer != nullptr ? m_sequencer->speechDelayMs() : 0.0);
}

void CDirectSS::Stop() {
  if (m_enabled) Silence();
}

void CDirectSS::Silence() {
  if (m_engine) m_engine->stop();
  if (m_screenReader) m_screenReader->cancel();
}

void CDirectSS::setLanguage(const std::string& language, Translator translate) {
  m_language = language;
  m_translate = std::move(translate);
  if (!m_engine) return;
  m_engine->useLanguage(m_language);
  SelectVoice(m_settings.GetVoice());
}

bool CDirectSS::SelectVoice(const std::string& name) {
  if (!m_engine) return false;
  const std::vector<std::string> voices = m_engine->voices();
  if (voices.empty()) return false;
  m_engine->selectVoice(
      chooseVoiceForLanguage(voices, m_engine->voiceLanguages(), name, m_language, m_engine->defaultVoice()));
  return true;
}

bool CDirectSS::applyPercent(SpeechSetting setting, std::uint32_t percent) {
  if (!m_engine) return false;
  m_engine->set(setting, m_engine->range(setting).fromPercent(percent));
  return true;
}

bool CDirectSS::SetRate(std::uint32_t percent) {
  return applyPercent(SpeechSetting::Rate, percent);
}
bool CDirectSS::SetPitch(std::uint32_t percent) {
  return applyPercent(SpeechSetting::Pitch, percent);
}
bool CDirectSS::SetVolume(std::uint32_t percent) {
  return applyPercent(SpeechSetting::Volume, percent);
}

void CDirectSS::ApplySettings() {
  SelectVoice(m_settings.GetVoice());
  SetRate(m_settings.GetRate());
  SetPitch(m_settings.GetPitch());
  SetVolume(m_settings.GetVol());
}

bool CDirectSS::GetVoices(std::vector<std::string>& list) const {
  list.clear();
  if (!m_engine) return false;
  const std::vector<std::string> voices = m_engine->voices();
  if (voices.empty()) return false;
  list = m_filter.offered(voices);
  return true;
}

std::string CDirectSS::tell(std::string text) {
  Speak(SpeechKind::Content, text);
  return text;
}

std::string CDirectSS::ShowAboutDialog() {
  if (!m_engine) return {};
  return tell(m_engine->description() + ".");
}

std::string CDirectSS::ShowGeneralDialog() {
  if (!m_engine) return {};
  return tell(
      fillPlaceholders(translateWith(m_translate, SLX_TR("Voice %1, rate %2, pitch %3, volume %4.")),
                       {m_engine->currentVoice(), describe(*m_engine, SpeechSetting::Rate, m_translate),
                        describe(*m_engine, SpeechSetting::Pitch, m_translate),
                        describe(*m_engine, SpeechSetting::Volume, m_translate)}));
}

std::string CDirectSS::ShowLexiconDialog() {
  if (!m_engine) return {};
  return tell(fillPlaceholders(
      translateWith(m_translate,
                    SLX_TR("%1 pronounces words by the rules of voice %2; it has no user lexicon.")),
      {m_engine->description(), m_engine->currentVoice()}));
}

}  // namespace sonalyx
