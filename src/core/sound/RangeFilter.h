#pragma once

#include <cstdint>
#include <vector>

#include "core/graph/GraphRange.h"
#include "core/math/DataPoint.h"
#include "core/math/DataSet.h"

namespace sonalyx {

// The pair the sound engine receives for one point, in the engine's single precision.
struct SoundedPoint {
  float x = 0.0f;
  float y = 0.0f;

  bool operator==(const SoundedPoint&) const = default;
};

// The settings that decide which points of a set are heard. The engine load and the
// list of audible positions must use the same filter, or a position in the engine
// would name the wrong point of the set.
struct RangeFilter {
  std::uint32_t plotType = 0;  // 0 values, 1 derivative, 2 integral
  bool polar = false;          // the set's own polar flag
  bool autoScaleX = false;
  bool autoScaleY = false;
  GraphRange range;  // the xMin, xMax, yMin, yMax settings
};

// The pair sounded for a point: (x, y), or (cartX, cartY) when polar, for plotType 0;
// (x, derivative) for 1 and (x, integral) for 2, whatever the polar flag; (0, 0) for
// any other plot type.
SoundedPoint soundedPoint(const DataPoint& point, std::uint32_t plotType, bool polar);

// Whether a point is heard: each axis that is not auto-scaled must hold the sounded
// coordinate, both ends included. The coordinate is compared as the engine will hold
// it, narrowed to single precision, with the double bounds; so a value a rounding
// error beyond a bound can still pass, and one that narrows to just above it not.
bool inGraphRange(const DataPoint& point, const RangeFilter& filter);

// The indices of the set's points that are heard, ascending: position k of the
// engine's point list is point audibleList(...)[k] of the set.
std::vector<std::int32_t> audibleList(const DataSet& set, const RangeFilter& filter);

// The pairs appended to the engine, in set order.
std::vector<SoundedPoint> audiblePoints(const DataSet& set, const RangeFilter& filter);

// The position of point `index` in an audible list, 0 when it is not heard.
std::int32_t audiblePosition(const std::vector<std::int32_t>& audible, std::int32_t index);

}  // namespace sonalyx
