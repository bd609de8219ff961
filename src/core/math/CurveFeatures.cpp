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
  return p.x != kAbsent && p.y != kAbsent && std::isfinite(p.x) && std::isfinite(p.y);
}

// Whether a found index lies beyond the cursor in the search's direction.
bool beyond(std::int32_t found, std::int32_t cursor, bool forward) {
  if (cursor < 0) return true;
  return forward ? found > cursor : found < cursor;
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
  for (const Extremum& e : set.extrema()) {
    if (static_cast<std::int64_t>(e.index) > cursor && e.kind == kind)
      return static_cast<std::int32_t>(e.index);
  }
  return std::nullopt;
}

std::optional<std::int32_t> nextAxisCrossing(const DataSet& set, std::int32_t cursor) {
  const std::int32_t n = count32(set);
  if (n < 2 || cursor > n - 1) return std::nullopt;
  for (std::int32_t i = cursor < 0 ? 0 : cursor; i < n - 1; ++i) {
    const auto found = axisCrossingOn(set, i, i + 1);
    if (found && beyond(*found, cursor, true)) return found;
  }
  return std::nullopt;
}

std::optional<std::int32_t> previousAxisCrossing(const DataSet& set, std::int32_t cursor) {
  const std::int32_t n = count32(set);
  if (cursor < 1 || cursor > n - 1) return std::nullopt;
  // Each segment is taken in the forward direction, so a crossing reports the same
  // point both ways and stepping back from it reaches the crossing before it.
  for (std::int32_t i = cursor - 1; i >= 0; --i) {
    const auto found = axisCrossingOn(set, i, i + 1);
    if (found && beyond(*found, cursor, false)) return found;
  }
  return std::nullopt;
}

namespace {

// The segments of a set in the order of x, when its x values never fall: then the
// segments that span an x range are found by bisection instead of a walk.
bool risesInX(const DataSet& set) {
  for (std::size_t i = 1; i < set.count(); ++i) {
    if (!(set.at(i).x >= set.at(i - 1).x)) return false;
  }
  return true;
}

}  // namespace

std::optional<std::int32_t> nextCurveCrossing(const DataSet& first, const DataSet& second,
                                              std::int32_t cursor) {
  const std::int32_t n = count32(first);
  const std::int32_t m = count32(second);
  if (n < 2 || m < 2 || cursor > n - 1) return std::nullopt;
  const bool ordered = risesInX(second);
  for (std::int32_t i = cursor < 0 ? 0 : cursor; i < n - 1; ++i) {
    const auto a = curveSegment(first, i, i + 1);
    if (!a) continue;
    const double low = std::fmin(a->from.x, a->to.x);
    const double high = std::fmax(a->from.x, a->to.x);
    std::int32_t j = 0;
    if (ordered) {
      // The first segment of `second` whose right end reaches `low`.
      std::int32_t lo = 0;
      std::int32_t hi = m - 1;
      while (lo < hi) {
        const std::int32_t mid = lo + (hi - lo) / 2;
        if (second.at(at(mid + 1)).x < low) {
          lo = mid + 1;
        } else {
          hi = mid;
        }
      }
      j = lo;
    }
    // Of several meetings on this segment, the one nearest its start is met first.
    std::optional<PlanePoint> nearest;
    for (; j < m - 1; ++j) {
      if (ordered && second.at(at(j)).x > high) break;
      const auto b = curveSegment(second, j, j + 1);
      if (!b) continue;
      const auto meeting = intersectSegments(*a, *b);
      if (meeting && (!nearest || std::fabs(meeting->x - a->from.x) < std::fabs(nearest->x - a->from.x))) {
        nearest = meeting;
      }
    }
    if (!nearest) continue;
    const std::int32_t found = nearestIndex(nearest->x, first, i, i + 1);
    if (beyond(found, cursor, true)) return found;
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
  // Each find lies beyond the previous one, so the walk always ends.
  std::int32_t cursor = -1;
  while (const auto found = nextAxisCrossing(set, cursor)) {
    const DataPoint& p = set.at(at(*found));
    features.axisCrossings.push_back({*found, p.x, p.y});
    cursor = *found;
  }
  return features;
}

}  // namespace sonalyx
