#pragma once

#include <optional>
#include <string>

#include "core/pages/FieldRefusal.h"
#include "core/speech/Translator.h"

namespace sonalyx {

class SettingsStore;

// The Speech page's typed field without its window: the decimal places that
// spoken numbers keep. A valid entry is stored as it is typed; leaving the page
// refuses one that is not, naming the range (nothing is quietly clamped).
struct SpeechPageForm {
  enum Field : int { Decimals };

  static constexpr long long kFewestDecimals = 0;
  static constexpr long long kMostDecimals = 15;

  std::string decimals;

  static SpeechPageForm fromSettings(const SettingsStore& store);

  std::optional<FieldRefusal> check(const Translator& translate = {}) const;
  void storeAccepted(const SettingsStore& store) const;
};

}  // namespace sonalyx
