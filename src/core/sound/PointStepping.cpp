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
  for (std::size_t k = 0; k < repetitions; ++k) {
    const std::int32_t c = cursor < 0 ? 0 : cursor;
    const auto found = search(c);
    // The cursor has not moved, so every further search would fail the same way.
    if (!found) break;
    if (isHeard(*found)) return {*found, Sweep{c, *found}};
    cursor = *found;
  }
  return {cursor, std::nullopt};
}

bool isHeardPoint(const DataSet& set, std::int32_t index, const RangeFilter& filter) {
  if (index < 0 || static_cast<std::size_t>(index) >= set.count()) return false;
  return inGraphRange(set.at(static_cast<std::size_t>(index)), filter);
}

PointStep singlePointStep(const DataSet& data1, std::int32_t cursor, StepDirection direction,
                          const RangeFilter& filter) {
  return stepToHeardPoint(cursor, direction, data1.count(),
                          [&](std::int32_t i) { return isHeardPoint(data1, i, filter); });
}

CursorMove crossingMove(CrossingCommand command, const DataSet& data1, const DataSet& data2,
                        std::int32_t cursor, const RangeFilter& filter) {
  const CursorSearch search = [&](std::int32_t c) -> std::optional<std::int32_t> {
    switch (command) {
      case CrossingCommand::NextAxis:
        return nextAxisCrossing(data1, c);
      case CrossingCommand::PreviousAxis:
        return previousAxisCrossing(data1, c);
      case CrossingCommand::NextCurves:
        return nextCurveCrossing(data1, data2, c);
    }
    return std::nullopt;
  };
  return driveCrossingSearch(cursor, data1.count(), search,
                             [&](std::int32_t i) { return isHeardPoint(data1, i, filter); });
}

std::optional<Sweep> extremumSweep(DataSet& source, std::int32_t cursor, Extremum::Kind kind) {
  const auto target = nextExtremum(source, cursor, kind);
  if (!target) return std::nullopt;
  return Sweep{cursor < 0 ? 0 : cursor, *target};
}

SegmentPlay extremumSweepPlay(const Sweep& sweep) {
  return {false, sweep.from, sweep.to - sweep.from};
}

SegmentPlay crossingSweepPlay(const std::vector<std::int32_t>& audible, const Sweep& sweep) {
  const std::int32_t p = audiblePosition(audible, sweep.from);
  const std::int32_t q = audiblePosition(audible, sweep.to);
  return {q < p, p, std::abs(q - p)};
}

std::optional<std::int64_t> sweepPauseMs(const Sweep& sweep, std::size_t setCount,
                                         std::uint32_t playTimeSeconds) {
  if (setCount == 0) return std::nullopt;
  const double swept = std::fabs(static_cast<double>(sweep.to) - sweep.from);
  const double whole = static_cast<double>(playTimeSeconds) * 1000.0;
  const double pause = std::trunc(swept / static_cast<double>(setCount) * playTimeSeconds * 1000.0);
  if (!(pause < whole)) return std::nullopt;
  return static_cast<std::int64_t>(pause);
}

}  // namespace sonalyx
