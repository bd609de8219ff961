#include "core/settings/FirstStart.h"

#include "core/settings/SettingKeys.h"

namespace sonalyx {

bool isFirstStart(const SettingsStore& store) {
  // Asked of the backend: the getter would store the default and so answer itself.
  return !store.backend().readValue(setting::kTtsOn.name).has_value();
}

}  // namespace sonalyx
