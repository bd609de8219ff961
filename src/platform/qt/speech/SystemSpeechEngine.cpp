#include "platform/qt/speech/SystemSpeechEngine.h"

#include <QList>
#include <QLocale>
#include <QObject>
#include <QString>
#include <QTextToSpeech>
#include <QTimer>
#include <QVoice>

#include <algorithm>
#include <cmath>
#include <cstdint>

#include "core/speech/SentencePacer.h"
#include "platform/speech/SpeechEngineRegistry.h"

namespace sonalyx {

namespace {

// Qt's rate and pitch run from -1 to 1 and its volume from 0 to 1; the program
// works in hundredths of those.
constexpr SpeechRanges kRanges{{-100, 100}, {-100, 100}, {0, 100}};

// The Qt engine whose stop() cancels all clients of a shared service.
constexpr const char* kSharedServiceEngine = "speechd";

}  // namespace

struct SystemSpeechEngine::Impl {
  QObject context;  // owns the connections and timers, so none outlives the engine
  QTextToSpeech speech;
  QList<QVoice> voices;
  std::size_t defaultVoice = 0;
  bool sharedService = false;
  SentencePacer pacer;
  std::uint64_t generation = 0;  // a delayed start still counts only if nothing came after it
  bool startWaiting = false;

  // The service lists the voices of its current locale only.
  void readVoices() {
    voices = speech.availableVoices();
    defaultVoice = 0;
    const QVoice current = speech.voice();
    for (qsizetype i = 0; i < voices.size(); ++i) {
      if (voices[i] == current) defaultVoice = static_cast<std::size_t>(i);
    }
  }

  void start(const QString& text) {
    if (!sharedService) {
      speech.say(text);  // interrupts this program's own voice only
      return;
    }
    if (auto sentence = pacer.speak(text.toStdString())) handOver(*sentence);
  }

  void handOver(const std::string& sentence) {
    speech.say(QString::fromStdString(sentence));
    // A sentence the service refused will never report its end.
    if (speech.state() == QTextToSpeech::Error) pacer.finished();
  }

  void onStateChanged(QTextToSpeech::State state) {
    if (!sharedService || state == QTextToSpeech::Speaking || state == QTextToSpeech::Paused) return;
    if (auto next = pacer.finished()) handOver(*next);
  }
};

SystemSpeechEngine::SystemSpeechEngine() : m_impl(std::make_unique<Impl>()) {
  Impl& impl = *m_impl;
  impl.sharedService = impl.speech.engine() == QLatin1String(kSharedServiceEngine);
  impl.readVoices();
  QObject::connect(&impl.speech, &QTextToSpeech::stateChanged, &impl.context,
                   [&impl](QTextToSpeech::State state) { impl.onStateChanged(state); });
}

SystemSpeechEngine::~SystemSpeechEngine() = default;

bool SystemSpeechEngine::isAvailable() const {
  return m_impl->speech.state() != QTextToSpeech::Error;
}

std::string SystemSpeechEngine::name() const {
  return "system";
}

std::string SystemSpeechEngine::description() const {
  return "System speech service (Qt " + m_impl->speech.engine().toStdString() + ")";
}

void SystemSpeechEngine::speak(const std::string& text, double delayMs) {
  Impl& impl = *m_impl;
  const std::uint64_t generation = ++impl.generation;
  const QString utterance = QString::fromStdString(text);
  if (delayMs <= 0.0) {
    impl.startWaiting = false;
    impl.start(utterance);
    return;
  }
  // Until the delayed start, the old utterance goes on; nothing new is handed over.
  impl.pacer.clear();
  impl.startWaiting = true;
  QTimer::singleShot(static_cast<int>(std::ceil(delayMs)), &impl.context, [&impl, generation, utterance] {
    if (generation != impl.generation) return;
    impl.startWaiting = false;
    impl.start(utterance);
  });
}

void SystemSpeechEngine::stop() {
  Impl& impl = *m_impl;
  ++impl.generation;
  impl.startWaiting = false;
  impl.pacer.clear();
  if (!impl.sharedService && impl.speech.state() == QTextToSpeech::Speaking) impl.speech.stop();
}

bool SystemSpeechEngine::isSpeaking() const {
  const Impl& impl = *m_impl;
  return impl.startWaiting || impl.pacer.hasWaiting() || impl.speech.state() == QTextToSpeech::Speaking;
}

std::vector<std::string> SystemSpeechEngine::voices() const {
  std::vector<std::string> names;
  for (const QVoice& voice : m_impl->voices) names.push_back(voice.name().toStdString());
  return names;
}

std::vector<std::string> SystemSpeechEngine::voiceLanguages() const {
  std::vector<std::string> tags;
  for (const QVoice& voice : m_impl->voices) tags.push_back(voice.locale().name().toStdString());
  return tags;
}

void SystemSpeechEngine::useLanguage(const std::string& language) {
  Impl& impl = *m_impl;
  const QLocale wanted(QString::fromStdString(language));
  if (language.empty() || impl.speech.locale().language() == wanted.language()) return;
  // The language's main country when the service has it, else any of its countries.
  const QList<QLocale> offered = impl.speech.availableLocales();
  const QLocale* chosen = nullptr;
  for (const QLocale& locale : offered) {
    if (locale.language() != wanted.language()) continue;
    if (chosen == nullptr || locale.territory() == wanted.territory()) chosen = &locale;
  }
  if (chosen == nullptr) return;
  impl.speech.setLocale(*chosen);
  impl.readVoices();
}

std::size_t SystemSpeechEngine::defaultVoice() const {
  return m_impl->defaultVoice;
}

bool SystemSpeechEngine::selectVoice(std::size_t index) {
  if (index >= static_cast<std::size_t>(m_impl->voices.size())) return false;
  m_impl->speech.setVoice(m_impl->voices[static_cast<qsizetype>(index)]);
  return true;
}

std::string SystemSpeechEngine::currentVoice() const {
  return m_impl->speech.voice().name().toStdString();
}

EngineRange SystemSpeechEngine::range(SpeechSetting setting) const {
  return kRanges.of(setting);
}

bool SystemSpeechEngine::set(SpeechSetting setting, int value) {
  const EngineRange span = range(setting);
  const double fraction = std::clamp(value, span.minimum, span.maximum) / 100.0;
  switch (setting) {
    case SpeechSetting::Rate:
      m_impl->speech.setRate(fraction);
      break;
    case SpeechSetting::Pitch:
      m_impl->speech.setPitch(fraction);
      break;
    case SpeechSetting::Volume:
      m_impl->speech.setVolume(fraction);
      break;
  }
  return true;
}

int SystemSpeechEngine::get(SpeechSetting setting) const {
  const QTextToSpeech& speech = m_impl->speech;
  const double fraction = setting == SpeechSetting::Rate    ? speech.rate()
                          : setting == SpeechSetting::Pitch ? speech.pitch()
                                                            : speech.volume();
  return static_cast<int>(std::lround(fraction * 100.0));
}

std::optional<RenderedSpeech> SystemSpeechEngine::render(const std::string&) {
  return std::nullopt;  // the service plays its sound itself and never hands it over
}

void registerSystemSpeechEngine() {
  SpeechEngineRegistry::add("system", [](AudioOutput&) -> std::unique_ptr<SpeechEngine> {
    auto engine = std::make_unique<SystemSpeechEngine>();
    if (!engine->isAvailable()) return nullptr;
    return engine;
  });
}

}  // namespace sonalyx
