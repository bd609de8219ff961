#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "core/graph/DeviceLine.h"
#include "core/graph/DevicePoint.h"
#include "core/graph/GraphRange.h"
#include "core/graph/PlotRect.h"
#include "core/math/DataSet.h"
#include "core/math/PlanePoint.h"

namespace sonalyx {

class SettingsStore;

// A colour as the painter takes it.
struct Rgb {
  std::uint8_t r = 0;
  std::uint8_t g = 0;
  std::uint8_t b = 0;

  bool operator==(const Rgb&) const = default;
};

namespace graph_colour {
inline constexpr Rgb kBlack{0, 0, 0};
inline constexpr Rgb kWhite{255, 255, 255};
inline constexpr Rgb kRed{255, 0, 0};
inline constexpr Rgb kYellow{255, 255, 0};
inline constexpr Rgb kCyan{0, 255, 255};
inline constexpr Rgb kBlue{0, 0, 255};
}  // namespace graph_colour

// Diameter of a drawn point and of the ring that marks the cursor point, in device
// units on the screen (paper scales them by its units per millimetre).
inline constexpr int kPointDiameter = 6;
inline constexpr int kCursorRingDiameter = 16;

// What the graph is drawn with: the settings the drawing reads, as they stand.
struct GraphStyle {
  std::uint32_t setType = 0;
  std::uint32_t plotType = 0;  // 0 the values, 1 the derivative, 2 the integral
  bool showPoints = true;
  bool showLine = false;
  bool showXAxis = true;
  bool showYAxis = true;
  bool showXLabels = true;
  bool showYLabels = true;
  std::uint32_t frameType = 0;
  GraphRange settingsRange;
  bool autoScaleX = false;
  bool autoScaleY = false;
  std::string decimalSign = ".";  // of the tick labels: the user's language's
};

GraphStyle graphStyleFromSettings(const SettingsStore& store);

struct GraphPolyline {
  Rgb colour;
  std::vector<DevicePoint> points;
};

struct GraphDots {
  Rgb colour;
  std::vector<DevicePoint> centres;
};

struct GraphLabel {
  DevicePoint anchor;
  std::string text;
};

// Everything one picture of the graph holds, in device units, in painting order:
// white, the frame, the axes and tick marks, the lines, the points, the cursor
// ring, then the labels (x labels centred under their anchor on the bottom edge, y
// labels ending before theirs on the left edge, so they fall outside the plot
// where there is room for them). A painter only draws it.
struct GraphScene {
  // Nothing but white: the set drawn has no data.
  bool empty = true;
  PlotRect rect;
  GraphRange range;
  double yLabelFactor = 1.0;
  std::vector<DeviceLine> axes;
  std::vector<DeviceLine> marks;
  std::vector<GraphPolyline> lines;
  std::vector<GraphDots> dots;
  std::optional<DevicePoint> cursor;
  std::vector<GraphLabel> xLabels;
  std::vector<GraphLabel> yLabels;
};

// The picture of the set `style.setType` selects (with data set 2 beside data set
// 1, or the sum or the difference alone) in `rect`, with `cursor` (an index into
// that set, -1 for none) marked. Lines are clipped to a little beyond the
// rectangle and repeated device positions are left out, so a picture of 100,001
// points holds no more than the rectangle can show.
GraphScene buildGraphScene(const std::array<DataSet, 4>& slots, const GraphStyle& style, const PlotRect& rect,
                           std::int32_t cursor);

// Marks point `cursor` of `source` (the set played) on a scene built for it; a
// cursor without a point, or far outside the plot, marks nothing.
void placeCursor(GraphScene& scene, const DataSet& source, std::uint32_t plotType, std::int32_t cursor);

// The pair a point is drawn (and heard) at: (x, y), or (cartX, cartY) for a polar
// set, for plot type 0; (x, derivative) for 1 and (x, integral) for 2. Empty when
// a value is absent or not a number, and for any other plot type.
std::optional<PlanePoint> plottedPoint(const DataPoint& point, std::uint32_t plotType, bool polar);

// The point a click at world x picks: walking the set (by cartX when polar) to the
// first point whose successor's x is not below x, the nearer of the two, the later
// on a tie; the last point when x lies beyond them all. Empty for an empty set.
std::optional<std::size_t> pointNearestX(const DataSet& set, double x);

}  // namespace sonalyx
