#pragma once

#include "core/settings/SettingsStore.h"
#include "core/speech/TranslationMarker.h"

namespace sonalyx {

// Whether the program starts for the first time with these settings (or after the
// defaults were restored): the self-voicing switch has never been stored. Such a
// start switches self-voicing on and says how to switch it off, so a blind user
// hears the program at once; with a screen reader running self-voicing stays off
// and nothing is stored, until the user switches it on.
bool isFirstStart(const SettingsStore& store);

// The one sentence said at a first start.
inline constexpr char kFirstStartSentence[] =
    SLX_TR("Self-voicing is on; Control+Q switches it off and on again.");

}  // namespace sonalyx
