#pragma once

#include <optional>
#include <string>

#include "core/pages/FieldRefusal.h"
#include "core/speech/Translator.h"

namespace sonalyx {

class SettingsStore;

// The Wave page's two typed fields without their window: the number of tick marks
// and the y threshold, each with the box that switches it on. A valid entry is
// stored as it is typed (so "1" then "2" stores 12 and never 1); leaving the page
// refuses an entry that is not, unless its box is off.
struct WavePageForm {
  enum Field : int { TickCount, Threshold };

  static constexpr long long kFewestTicks = 5;
  static constexpr long long kMostTicks = 15;

  std::string tickCount;
  std::string threshold;
  bool playTicks = false;
  bool thresholdOn = false;

  // The tick count with "%d", the threshold with "%.10g".
  static WavePageForm fromSettings(const SettingsStore& store);

  // The tick count and the tick volume follow Tick Marks; the threshold its box.
  bool tickControlsEnabled() const { return playTicks; }
  bool thresholdEnabled() const { return thresholdOn; }

  std::optional<FieldRefusal> check(const Translator& translate = {}) const;
  void storeAccepted(const SettingsStore& store) const;
};

}  // namespace sonalyx
