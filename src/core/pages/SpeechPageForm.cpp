#include "core/pages/SpeechPageForm.h"

#include "core/pages/NumberEntry.h"
#include "core/settings/SettingsStore.h"
#include "core/speech/TranslationMarker.h"

namespace sonalyx {

namespace {

std::optional<long long> acceptedDecimals(const std::string& text) {
  const auto places = entry::wholeNumber(text);
  if (!places || *places < SpeechPageForm::kFewestDecimals || *places > SpeechPageForm::kMostDecimals)
    return std::nullopt;
  return places;
}

}  // namespace

SpeechPageForm SpeechPageForm::fromSettings(const SettingsStore& store) {
  return SpeechPageForm{std::to_string(store.GetNumDec())};
}

std::optional<FieldRefusal> SpeechPageForm::check(const Translator& translate) const {
  if (acceptedDecimals(decimals)) return std::nullopt;
  return FieldRefusal{
      Decimals, entry::rangeText(translate, SLX_TR("The number of decimal places must be from %d to %d."),
                                 kFewestDecimals, kMostDecimals)};
}

void SpeechPageForm::storeAccepted(const SettingsStore& store) const {
  if (const auto places = acceptedDecimals(decimals)) store.SetNumDec(static_cast<std::uint32_t>(*places));
}

}  // namespace sonalyx
