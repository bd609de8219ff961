#include "platform/speech/CaptureSpeechEngine.h"

namespace sonalyx {

namespace {
std::size_t slot(SpeechSetting setting) {
  return static_cast<std::size_t>(setting);
}
}  // namespace

CaptureSpeechEngine::CaptureSpeechEngine(Clock clock) : CaptureSpeechEngine(std::move(clock), Voices{}) {}

CaptureSpeechEngine::CaptureSpeechEngine(Clock clock, Voices voices)
    : m_clock(std::move(clock)),
      m_voices(std::move(voices)),
      m_voice(m_voices.defaultVoice),
      m_values{m_voices.rate.minimum, m_voices.pitch.minimum, m_voices.volume.minimum} {}

void CaptureSpeechEngine::cutLast(double nowMs) {
  if (!m_utterances.empty() && !m_utterances.back().cutMs) m_utterances.back().cutMs = nowMs;
}

void CaptureSpeechEngine::speak(const std::string& text, double delayMs) {
  const double now = m_clock();
  cutLast(now);
  m_utterances.push_back({text, now + delayMs, std::nullopt});
}

void CaptureSpeechEngine::stop() {
  cutLast(m_clock());
  ++m_stops;
}

bool CaptureSpeechEngine::selectVoice(std::size_t index) {
  if (index >= m_voices.names.size()) return false;
  m_voice = index;
  return true;
}

std::string CaptureSpeechEngine::currentVoice() const {
  return m_voice < m_voices.names.size() ? m_voices.names[m_voice] : std::string();
}

EngineRange CaptureSpeechEngine::range(SpeechSetting setting) const {
  switch (setting) {
    case SpeechSetting::Rate:
      return m_voices.rate;
    case SpeechSetting::Pitch:
      return m_voices.pitch;
    case SpeechSetting::Volume:
      return m_voices.volume;
  }
  return {};
}

bool CaptureSpeechEngine::set(SpeechSetting setting, int value) {
  // Kept as given, so a test sees exactly what the wrapper computed.
  m_values[slot(setting)] = value;
  return true;
}

int CaptureSpeechEngine::get(SpeechSetting setting) const {
  return m_values[slot(setting)];
}

}  // namespace sonalyx
