#include "cli/SamplingDomain.h"

#include <algorithm>
#include <climits>
#include <cstdint>

#include "core/settings/SettingsStore.h"

namespace sonalyx::cli {

SamplingDomain SamplingDomain::fromSettings() {
  const SettingsStore store = SettingsStore::openDefault();
  const std::uint32_t points = store.GetFxNumPts();
  return {store.GetFxX0(), store.GetFxX1(), static_cast<int>(std::min<std::uint32_t>(points, INT_MAX))};
}

}  // namespace sonalyx::cli
