#pragma once

#include <cstdint>
#include <optional>

#include "core/graph/DevicePoint.h"
#include "core/graph/GraphRange.h"
#include "core/graph/PlotRect.h"
#include "core/math/PlanePoint.h"

namespace sonalyx {

// Device positions are held within this distance of 0, so a point far outside the
// range still maps to a position that drawing code can subtract and add safely.
inline constexpr std::int32_t kDeviceLimit = 1'000'000'000;

// Rounds to the nearer whole number, an exact half going down: 2.5 gives 2 and
// -2.5 gives -3. Screen and paper positions of a point must agree, so every mapping
// uses this one rule.
double roundHalfDown(double v);

// Maps a world point into the plot rectangle, y upwards in the world and downwards
// on the device. Empty when the range has no width or height (nothing can be placed
// in it) or the point is not a number; a point far outside is held at kDeviceLimit.
std::optional<DevicePoint> worldToDevice(PlanePoint world, const GraphRange& range, const PlotRect& rect);

// The world point under a device position (no rounding); empty when the range or
// the rectangle is empty.
std::optional<PlanePoint> deviceToWorld(DevicePoint device, const GraphRange& range, const PlotRect& rect);

// Device x of the line x = 0, when that line lies within the range (edges included).
std::optional<std::int32_t> yAxisPosition(const GraphRange& range, const PlotRect& rect);
// Device y of the line y = 0, when that line lies within the range (edges included).
std::optional<std::int32_t> xAxisPosition(const GraphRange& range, const PlotRect& rect);

// The zoom factor kept with a plot rectangle: a request below 0.01, or one that is
// not a finite number, gives 1.0.
float acceptedZoom(float requested);

// The plot rectangle on a printed page whose logical extent is extentX by extentY:
// the requested size scaled to the page, centred, with a tenth of its width given up
// on the left for the y labels. Throws std::invalid_argument when a size is not
// positive or the plot would not fit the device's coordinates.
PlotRect printLayout(std::int32_t extentX, std::int32_t extentY, double widthInches, double heightInches,
                     double pageWidthInches, double pageHeightInches);

// Device units per millimetre on a printed page, for pen widths and point sizes;
// the screen uses 1.0. Throws std::invalid_argument for a page without width.
double printUnitsPerMillimetre(std::int32_t extentX, double pageWidthInches);

}  // namespace sonalyx
