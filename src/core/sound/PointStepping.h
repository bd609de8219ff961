#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

#include "core/math/DataSet.h"
#include "core/math/Extremum.h"
#include "core/sound/CursorMove.h"
#include "core/sound/PointStep.h"
#include "core/sound/RangeFilter.h"
#include "core/sound/SegmentPlay.h"
#include "core/sound/Sweep.h"

namespace sonalyx {

// How long the tone of one stepped point is left to sound before anything else.
inline constexpr std::int32_t kPointToneMs = 175;

enum class StepDirection { Forward, Back };
enum class CrossingCommand { NextAxis, PreviousAxis, NextCurves };

// A search from a cursor (never -1: the caller has made that 0), and a test of
// whether a point index is heard.
using CursorSearch = std::function<std::optional<std::int32_t>(std::int32_t cursor)>;
using HeardTest = std::function<bool(std::int32_t index)>;

// One point forward or back among `count` points; nothing at either end. No cursor
// steps forward onto point 0; a cursor past the end steps back onto the last point.
std::optional<std::int32_t> stepCursor(std::int32_t cursor, StepDirection direction, std::size_t count);

// Steps through a set of `count` points (at most `count` steps) until the cursor
// rests on a heard point, so the points outside the graph range are passed over.
// Reaching an end stops silently; the cursor stays on the last point it reached.
PointStep stepToHeardPoint(std::int32_t cursor, StepDirection direction, std::size_t count,
                           const HeardTest& isHeard);

// Runs a crossing search at most `repetitions` times, moving the cursor over the
// crossings that lie outside the graph range, until it finds a heard one; the sweep
// then runs from the cursor of the last search to that crossing.
CursorMove driveCrossingSearch(std::int32_t cursor, std::size_t repetitions, const CursorSearch& search,
                               const HeardTest& isHeard);

// Whether point `index` of `set` exists and passes the range filter.
bool isHeardPoint(const DataSet& set, std::int32_t index, const RangeFilter& filter);

// The single-point step commands. They move over data set 1 (`data1`), whichever set
// is being played.
PointStep singlePointStep(const DataSet& data1, std::int32_t cursor, StepDirection direction,
                          const RangeFilter& filter);

// The crossing commands, on data set 1 (and data set 2 for the crossing of the two).
CursorMove crossingMove(CrossingCommand command, const DataSet& data1, const DataSet& data2,
                        std::int32_t cursor, const RangeFilter& filter);

// The next-maximum and next-minimum commands, on the set being played: the sweep from
// the cursor (0 for none) to the next turning point of `kind`, or nothing.
std::optional<Sweep> extremumSweep(DataSet& source, std::int32_t cursor, Extremum::Kind kind);

// What the engine plays for an extremum sweep: the set's indices are used as engine
// positions unchanged, even where the range filter has dropped points.
SegmentPlay extremumSweepPlay(const Sweep& sweep);

// What the engine plays for a crossing sweep: the positions of both ends in the audible
// list (0 for an end not in it), backwards when the crossing lies behind the cursor.
SegmentPlay crossingSweepPlay(const std::vector<std::int32_t>& audible, const Sweep& sweep);

// The pause that keeps the cursor and speech in step with a sweep of |to - from| of
// the set's `setCount` points: that share of the play time in whole milliseconds, or
// nothing when it would last the whole play time (or there are no points).
std::optional<std::int64_t> sweepPauseMs(const Sweep& sweep, std::size_t setCount,
                                         std::uint32_t playTimeSeconds);

}  // namespace sonalyx
