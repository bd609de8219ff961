#include "core/math/CurveFeatures.h"

#include <cmath>
#include <cstddef>

#include "core/math/DataPoint.h"
#include "core/math/SegmentIntersection.h"

namespace sonalyx {

namespace {

std::int32_t count32(const DataSet& set) {
  return static_cast<std::int32_t>(set.count());
}

std::size_t at(std::int32_t i) {
  return static_cast<std::size_t>(i);
}

bool isPresent(const DataPoint& p) {
  return p.x != kAbsent && p.y != kAbsent;
}

// The segment from point i to point j of a set, or nothing when either point lacks
// a coordinate.
std::optional<Segment> curveSegment(const DataSet& set, std::int32_t i, std::int32_t j) {
  const DataPoint& p = set.at(at(i));
  const DataPoint& q = set.at(at(j));
  if (!isPresent(p) || !isPresent(q)) return std::nullopt;
  return Segment{{p.x, p.y}, {q.x, q.y}};
}

// The x-axis beneath the segment from point i to point j.
Segment axisBelow(const Segment& s) {
  return {{s.from.x, 0.0}, {s.to.x, 0.0}};
}

std::optional<std::int32_t> axisCrossingOn(const DataSet& set, std::int32_t i, std::int32_t j) {
  const auto segment = curveSegment(set, i, j);
  if (!segment) return std::nullopt;
  const auto meeting = intersectSegments(*segment, axisBelow(*segment));
  if (!meeting) return std::nullopt;
  return nearestIndex(meeting->x, set, i, j);
}

}  // namespace

std::int32_t nearestIndex(double crossingX, const DataSet& set, std::int32_t first, std::int32_t second) {
  const double toFirst = std::fabs(crossingX - set.at(at(first)).x);
  const double toSecond = std::fabs(crossingX - set.at(at(second)).x);
  if (toFirst < kSameX) return first;
  if (toSecond < kSameX) return second;
  return toFirst < toSecond ? first : second;
}

std::optional<std::int32_t> nextExtremum(DataSet& set, std::int32_t cursor, Extremum::Kind kind) {
  set.findExtrema();
  const std::int64_t c = cursor < 0 ? 0 : cursor;
  for (const Extremum& e : set.extrema()) {
    if (static_cast<std::int64_t>(e.index) > c && e.kind == kind) return static_cast<std::int32_t>(e.index);
  }
  return std::nullopt;
}

std::optional<std::int32_t> nextAxisCrossing(const DataSet& set, std::int32_t cursor) {
  const std::int32_t n = count32(set);
  const std::int32_t c = cursor < 0 ? 0 : cursor;
  if (n < 2 || c > n - 1) return std::nullopt;
  for (std::int32_t i = c + 1; i < n - 1; ++i) {
    if (const auto found = axisCrossingOn(set, i, i + 1)) return found;
  }
  return std::nullopt;
}

std::optional<std::int32_t> previousAxisCrossing(const DataSet& set, std::int32_t cursor) {
  const std::int32_t n = count32(set);
  if (cursor < 2 || cursor > n - 1) return std::nullopt;
  for (std::int32_t i = cursor - 1; i > 0; --i) {
    if (const auto found = axisCrossingOn(set, i, i - 1)) return found;
  }
  return std::nullopt;
}

std::optional<std::int32_t> nextCurveCrossing(const DataSet& first, const DataSet& second,
                                              std::int32_t cursor) {
  const std::int32_t n = count32(first);
  const std::int32_t c = cursor < 0 ? 0 : cursor;
  if (n < 2 || first.count() != second.count() || c > n - 1) return std::nullopt;
  for (std::int32_t i = c + 1; i < n - 1; ++i) {
    const auto a = curveSegment(first, i, i + 1);
    const auto b = curveSegment(second, i, i + 1);
    if (!a || !b) continue;
    if (const auto meeting = intersectSegments(*a, *b)) return nearestIndex(meeting->x, first, i, i + 1);
  }
  return std::nullopt;
}

CurveFeatures listCurveFeatures(DataSet& set) {
  CurveFeatures features;
  set.findExtrema();
  for (const Extremum& e : set.extrema()) {
    const DataPoint& p = set.at(e.index);
    features.turningPoints.push_back({e.kind, {static_cast<std::int32_t>(e.index), p.x, p.y}});
  }
  // Each search starts beyond the previous find, so the walk always ends.
  std::int32_t cursor = 0;
  while (const auto found = nextAxisCrossing(set, cursor)) {
    const DataPoint& p = set.at(at(*found));
    features.axisCrossings.push_back({*found, p.x, p.y});
    cursor = *found;
  }
  return features;
}

}  // namespace sonalyx
