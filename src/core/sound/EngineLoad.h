#pragma once

#include <array>

#include "core/math/DataSet.h"
#include "core/settings/SettingsStore.h"
#include "core/sound/AudioPlotEngine.h"
#include "core/sound/RangeFilter.h"

namespace sonalyx {

// The set that is played: the slot the setting setType selects, read now.
const DataSet& engineSource(const std::array<DataSet, 4>& slots, const SettingsStore& store);

// The range filter for `source` as the settings stand now: autoScaleX, autoScaleY,
// plotType, the graph range unless both axes are auto-scaled, and the set's own
// polar flag.
RangeFilter rangeFilterFromSettings(const SettingsStore& store, const DataSet& source);

// Refills the engine before a sweep, a step or an export: Reset, every point of
// `source` that passes the range filter in set order, then the Wave settings in the
// engine's fixed order, each exactly as stored.
void loadEngine(AudioPlotEngine& engine, const DataSet& source, const SettingsStore& store);

}  // namespace sonalyx
