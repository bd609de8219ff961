#pragma once

#include "core/settings/SettingsStore.h"
#include "core/speech/Translator.h"
#include "platform/speech/CDirectSS.h"

namespace sonalyx {

// Switching self-voicing, for the two places that do it (the Speech page's "Allow
// Self-Voicing" check box and the control panel's toggle command). The setting is
// stored first; the announcement is ordered so that it is heard either way:
// "Self-voicing deactivated." is said while the voice is still enabled, and
// "Self-voicing activated." only once it is enabled again.
void setSelfVoicing(bool on, const SettingsStore& settings, CDirectSS& voice, const Translator& translate);

// Inverts the stored `ttsOn` through setSelfVoicing(); returns the new state.
bool toggleSelfVoicing(const SettingsStore& settings, CDirectSS& voice, const Translator& translate);

}  // namespace sonalyx
