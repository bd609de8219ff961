#pragma once

#include <optional>

#include "core/graph/GraphRange.h"
#include "core/math/DataSet.h"

namespace sonalyx {

// The extent of a set's points in the plot's axis mode: `cartX`/`cartY` when the set
// is polar, the stored x and y otherwise. Empty for a set without points.
std::optional<GraphRange> dataExtent(const DataSet& set, bool polar);

// The range a graph is drawn over. An axis whose auto-scale flag is off takes its
// bounds from `settingsRange` (the xMin, xMax, yMin, yMax settings); an auto-scaled
// axis takes the data's extent widened by 5 % of its span on each side, so the outer
// points do not sit on the frame. An axis whose bounds are equal (all values alike,
// or equal settings) is widened by 1 on each side, so the mapping never divides by
// zero. An auto-scaled axis falls back to the settings when the data gives no usable
// extent (no points, a missing or infinite value).
GraphRange graphRange(const GraphRange& settingsRange, bool autoScaleX, bool autoScaleY,
                      const DataSet& current, bool polar);

// The y label factor of the graph: that of the y range it is drawn over (see
// graphRange), so the labels always match the ticks shown.
double graphYLabelFactor(const GraphRange& drawn);

}  // namespace sonalyx
