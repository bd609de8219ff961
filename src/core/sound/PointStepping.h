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

// A search from a cursor (-1 for none), and a test of whether a point index is heard.
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

// Runs a search at most `repetitions` times, passing over the features that lie
// outside the graph range, until it finds a heard one; the sweep then runs from the
// last feature passed over (the cursor, 0 for none, if none was) to that one. When
// nothing heard is found the cursor stays where it was.
CursorMove driveCrossingSearch(std::int32_t cursor, std::size_t repetitions, const CursorSearch& search,
                               const HeardTest& isHeard);

// Whether point `index` of `set` exists and passes the range filter.
bool isHeardPoint(const DataSet& set, std::int32_t index, const RangeFilter& filter);

// Every command below works on the set being played (`source`).

// The single-point step commands.
PointStep singlePointStep(const DataSet& source, std::int32_t cursor, StepDirection direction,
                          const RangeFilter& filter);

// The crossing commands; the crossing of two curves is that of `source` with `other`.
CursorMove crossingMove(CrossingCommand command, const DataSet& source, const DataSet& other,
                        std::int32_t cursor, const RangeFilter& filter);

// The next-maximum and next-minimum commands: the sweep from the cursor to the next
// heard turning point of `kind`.
CursorMove extremumMove(DataSet& source, std::int32_t cursor, Extremum::Kind kind, const RangeFilter& filter);

// What the engine plays for a sweep: the positions of both ends in the audible list
// (0 for an end not in it), backwards when the target lies behind the cursor.
SegmentPlay sweepPlay(const std::vector<std::int32_t>& audible, const Sweep& sweep);

// The pause that keeps the cursor and speech in step with a sweep of `segment`
// (positions in the engine's list of `heardCount` points, over which the play time
// is spread): that share of the play time in whole milliseconds, at most the whole
// play time; nothing when nothing is heard.
std::optional<std::int64_t> sweepPauseMs(const SegmentPlay& segment, std::size_t heardCount,
                                         std::uint32_t playTimeSeconds);

}  // namespace sonalyx
