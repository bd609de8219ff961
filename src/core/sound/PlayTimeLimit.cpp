#include "core/sound/PlayTimeLimit.h"

#include "core/limits/Limits.h"
#include "core/speech/TranslationMarker.h"

namespace sonalyx {

bool playTimeAllowed(long long seconds) {
  return seconds >= limits::kShortestPlayTime && seconds <= limits::kLongestPlayTime;
}

std::string playTimeLimitText(const Translator& translate) {
  std::string text = translateWith(translate, SLX_TR("The play time must be from %d to %d seconds."));
  for (const auto value : {limits::kShortestPlayTime, limits::kLongestPlayTime}) {
    if (const auto at = text.find("%d"); at != std::string::npos) text.replace(at, 2, std::to_string(value));
  }
  return text;
}

}  // namespace sonalyx
