#include "core/sound/PointStepping.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "core/math/CurveFeatures.h"

namespace sonalyx {

std::optional<std::int32_t> stepCursor(std::int32_t cursor, StepDirection direction, std::size_t count) {
  const std::int64_t n = static_cast<std::int64_t>(count);
  if (direction == StepDirection::Forward) {
    const std::int64_t next = cursor < 0 ? 0 : std::int64_t{cursor} + 1;
    if (next >= n) return std::nullopt;
    return static_cast<std::int32_t>(next);
  }
  if (cursor <= 0 || n == 0) return std::nullopt;
  return static_cast<std::int32_t>(std::min<std::int64_t>(std::int64_t{cursor} - 1, n - 1));
}

PointStep stepToHeardPoint(std::int32_t cursor, StepDirection direction, std::size_t count,
                           const HeardTest& isHeard) {
  for (std::size_t k = 0; k < count; ++k) {
    const auto next = stepCursor(cursor, direction, count);
    if (!next) return {cursor, false};
    cursor = *next;
    if (isHeard(cursor)) return {cursor, true};
  }
  return {cursor, false};
}

CursorMove driveCrossingSearch(std::int32_t cursor, std::size_t repetitions, const CursorSearch& search,
                               const HeardTest& isHeard) {
  std::int32_t at = cursor;
  for (std::size_t k = 0; k < repetitions; ++k) {
    const auto found = search(at);
    if (!found) break;
    if (isHeard(*found)) return {*found, Sweep{at < 0 ? 0 : at, *found}};
    at = *found;
  }
  // Nothing heard ahead: the cursor stays where the user left it.
  return {cursor, std::nullopt};
}

bool isHeardPoint(const DataSet& set, std::int32_t index, const RangeFilter& filter) {
  if (index < 0 || static_cast<std::size_t>(index) >= set.count()) return false;
  return inGraphRange(set.at(static_cast<std::size_t>(index)), filter);
}

PointStep singlePointStep(const DataSet& source, std::int32_t cursor, StepDirection direction,
                          const RangeFilter& filter) {
  return stepToHeardPoint(cursor, direction, source.count(),
                          [&](std::int32_t i) { return isHeardPoint(source, i, filter); });
}

CursorMove crossingMove(CrossingCommand command, const DataSet& source, const DataSet& other,
                        std::int32_t cursor, const RangeFilter& filter) {
  const CursorSearch search = [&](std::int32_t c) -> std::optional<std::int32_t> {
    switch (command) {
      case CrossingCommand::NextAxis:
        return nextAxisCrossing(source, c);
      case CrossingCommand::PreviousAxis:
        return previousAxisCrossing(source, c);
      case CrossingCommand::NextCurves:
        return nextCurveCrossing(source, other, c);
    }
    return std::nullopt;
  };
  return driveCrossingSearch(cursor, source.count(), search,
                             [&](std::int32_t i) { return isHeardPoint(source, i, filter); });
}

CursorMove extremumMove(DataSet& source, std::int32_t cursor, Extremum::Kind kind,
                        const RangeFilter& filter) {
  return driveCrossingSearch(
      cursor, source.count(), [&](std::int32_t c) { return nextExtremum(source, c, kind); },
      [&](std::int32_t i) { return isHeardPoint(source, i, filter); });
}

SegmentPlay sweepPlay(const std::vector<std::int32_t>& audible, const Sweep& sweep) {
  const std::int32_t p = audiblePosition(audible, sweep.from);
  const std::int32_t q = audiblePosition(audible, sweep.to);
  return {q < p, p, std::abs(q - p)};
}

std::optional<std::int64_t> sweepPauseMs(const SegmentPlay& segment, std::size_t heardCount,
                                         std::uint32_t playTimeSeconds) {
  if (heardCount == 0) return std::nullopt;
  const double whole = static_cast<double>(playTimeSeconds) * 1000.0;
  const double pause =
      std::trunc(static_cast<double>(segment.count) / static_cast<double>(heardCount) * whole);
  return static_cast<std::int64_t>(std::min(pause, whole));
}

}  // namespace sonalyx
