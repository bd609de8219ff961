#include "core/sound/RangeFilter.h"

#include <algorithm>

namespace sonalyx {

namespace {

bool holds(double low, double high, float v) {
  const double narrowed = v;
  return low <= narrowed && narrowed <= high;
}

}  // namespace

SoundedPoint soundedPoint(const DataPoint& point, std::uint32_t plotType, bool polar) {
  switch (plotType) {
    case 0:
      if (polar) return {static_cast<float>(point.cartX), static_cast<float>(point.cartY)};
      return {static_cast<float>(point.x), static_cast<float>(point.y)};
    case 1:
      return {static_cast<float>(point.x), static_cast<float>(point.derivative)};
    case 2:
      return {static_cast<float>(point.x), static_cast<float>(point.integral)};
    default:
      return {0.0f, 0.0f};
  }
}

bool inGraphRange(const DataPoint& point, const RangeFilter& filter) {
  const SoundedPoint p = soundedPoint(point, filter.plotType, filter.polar);
  if (!filter.autoScaleX && !holds(filter.range.left, filter.range.right, p.x)) return false;
  if (!filter.autoScaleY && !holds(filter.range.bottom, filter.range.top, p.y)) return false;
  return true;
}

std::vector<std::int32_t> audibleList(const DataSet& set, const RangeFilter& filter) {
  std::vector<std::int32_t> audible;
  const auto& points = set.points();
  for (std::size_t i = 0; i < points.size(); ++i) {
    if (inGraphRange(points[i], filter)) audible.push_back(static_cast<std::int32_t>(i));
  }
  return audible;
}

std::vector<SoundedPoint> audiblePoints(const DataSet& set, const RangeFilter& filter) {
  std::vector<SoundedPoint> sounded;
  for (const std::int32_t i : audibleList(set, filter)) {
    sounded.push_back(soundedPoint(set.at(static_cast<std::size_t>(i)), filter.plotType, filter.polar));
  }
  return sounded;
}

std::int32_t audiblePosition(const std::vector<std::int32_t>& audible, std::int32_t index) {
  const auto it = std::lower_bound(audible.begin(), audible.end(), index);
  if (it == audible.end() || *it != index) return 0;
  return static_cast<std::int32_t>(it - audible.begin());
}

}  // namespace sonalyx
