#include "ui/app/Voice.h"

#include "core/speech/SignWords.h"
#include "platform/speech/CDirectSS.h"
#include "platform/speech/SelfVoicing.h"
#include "ui/app/CGraphCalcApp.h"

namespace sonalyx::ui::voice {

CDirectSS& device() {
  return CDirectSS::instance();
}

void Speak(SpeechKind kind, const QString& text) {
  device().Speak(kind, spellNegativeSigns(text.toStdString(), Translate("minus").toStdString()));
}

void Stop() {
  device().Stop();
}

bool Enabled() {
  return device().enabled();
}

void SetEnabled(bool enabled) {
  device().setEnabled(enabled);
}

bool ToggleSelfVoicing(const SettingsStore& settings) {
  return toggleSelfVoicing(settings, device(), [](const std::string& text) { return Translate(text); });
}

}  // namespace sonalyx::ui::voice
