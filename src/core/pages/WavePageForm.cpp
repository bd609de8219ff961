#include "core/pages/WavePageForm.h"

#include "core/pages/NumberEntry.h"
#include "core/settings/SettingsStore.h"
#include "core/speech/TranslationMarker.h"
#include "core/utility/NumberFormat.h"

namespace sonalyx {

namespace {

std::optional<long long> acceptedTicks(const std::string& text) {
  const auto ticks = entry::wholeNumber(text);
  if (!ticks || *ticks < WavePageForm::kFewestTicks || *ticks > WavePageForm::kMostTicks) return std::nullopt;
  return ticks;
}

}  // namespace

WavePageForm WavePageForm::fromSettings(const SettingsStore& store) {
  WavePageForm form;
  form.tickCount = std::to_string(store.GetNumTicks());
  form.threshold = formatNumber(store.GetYThresh(), "%.10g");
  form.playTicks = store.GetPlayTicks();
  form.thresholdOn = store.GetYThreshOn();
  return form;
}

std::optional<FieldRefusal> WavePageForm::check(const Translator& translate) const {
  if (tickControlsEnabled() && !acceptedTicks(tickCount)) {
    return FieldRefusal{TickCount,
                        entry::rangeText(translate, SLX_TR("The number of tick marks must be from %d to %d."),
                                         kFewestTicks, kMostTicks)};
  }
  if (thresholdEnabled() && !entry::realNumber(threshold))
    return FieldRefusal{Threshold, entry::notANumberText(translate, SLX_TR("Y Threshold Level"))};
  return std::nullopt;
}

void WavePageForm::storeAccepted(const SettingsStore& store) const {
  if (const auto ticks = acceptedTicks(tickCount)) store.SetNumTicks(static_cast<std::uint32_t>(*ticks));
  if (const auto level = entry::realNumber(threshold)) store.SetYThresh(*level);
}

}  // namespace sonalyx
