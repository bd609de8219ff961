#include "platform/speech/SelfVoicing.h"
#include "core/speech/TranslationMarker.h"

namespace sonalyx {

void setSelfVoicing(bool on, const SettingsStore& settings, CDirectSS& voice, const Translator& translate) {
  settings.SetTtsOn(on);
  if (on) {
    voice.setEnabled(true);
    voice.Speak(SpeechKind::Content, translateWith(translate, SLX_TR("Self-voicing activated.")));
  } else {
    voice.Speak(SpeechKind::Content, translateWith(translate, SLX_TR("Self-voicing deactivated.")));
    voice.setEnabled(false);
  }
}

bool toggleSelfVoicing(const SettingsStore& settings, CDirectSS& voice, const Translator& translate) {
  const bool on = !settings.GetTtsOn();
  setSelfVoicing(on, settings, voice, translate);
  return on;
}

}  // namespace sonalyx
