#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "core/graph/DeviceLine.h"
#include "core/graph/GraphRange.h"
#include "core/graph/PlotRect.h"
#include "core/graph/Tick.h"

namespace sonalyx {

// The frame styles of the setting `frameType`; any other value draws no marks.
enum FrameType : std::uint32_t { FrameNone = 0, FrameTicks = 1, FrameGrid = 2 };

// Length of a tick mark in device units.
inline constexpr std::int32_t kTickMarkLength = 10;

// The ticks of the x axis: the range in eight equal steps. With `yAxisAt` (the device
// x of the line x = 0) they are anchored on it, so every label is a whole multiple
// of the step and a side of the range shorter than the other gets fewer ticks (at
// most 15 in all, the anchor first, then leftwards, then rightwards). Without it
// exactly nine ticks run from the left edge, labelled from `xMin` to `xMax`.
std::vector<Tick> xTicks(const GraphRange& range, const PlotRect& rect, std::optional<std::int32_t> yAxisAt);

// The same for the y axis, anchored on `xAxisAt` (the device y of the line y = 0;
// the anchor first, then upwards, then downwards) or nine ticks from the top edge
// down. Every value is multiplied by `labelFactor` (see yLabelFactor).
std::vector<Tick> yTicks(const GraphRange& range, const PlotRect& rect, std::optional<std::int32_t> xAxisAt,
                         double labelFactor);

// The marks of the ticks in a frame style: a short mark up from the bottom edge
// (x) or in from the left edge (y), or a grid line across the whole plot.
std::vector<DeviceLine> xTickMarks(const std::vector<Tick>& ticks, const PlotRect& rect,
                                   std::uint32_t frameType);
std::vector<DeviceLine> yTickMarks(const std::vector<Tick>& ticks, const PlotRect& rect,
                                   std::uint32_t frameType);

// The power of ten that brings y labels of the range yMin..yMax to a readable size:
// 1.0 unless the larger of |log10 |yMin|| and |log10 |yMax|| exceeds 1 (a bound below
// 1e-11 counts as 0 there); otherwise 1 / 10^n with n = trunc(L - 0.5), L the
// logarithm with the larger magnitude. Up to 50000 gives 1e-4; -0.05..0.05 gives 10.
double yLabelFactor(double yMin, double yMax);

// What the y labels must be multiplied by to read true values ("y-axis times N"):
// 1 / factor, a power of ten, 0.1 for a factor of 10.
double yAxisMultiplier(double labelFactor);

// A tick's label, with two decimals.
std::string tickLabel(double value);

}  // namespace sonalyx
