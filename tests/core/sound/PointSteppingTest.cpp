#include "core/sound/PointStepping.h"

#include <gtest/gtest.h>

#include <optional>
#include <vector>

#include "support/CurveData.h"

namespace sonalyx {
namespace {

using test::curve;

RangeFilter filterOf(double xMin, double xMax, double yMin, double yMax) {
  RangeFilter f;
  f.range.set(yMax, xMin, yMin, xMax);
  return f;
}

constexpr auto Forward = StepDirection::Forward;
constexpr auto Back = StepDirection::Back;

TEST(PointStepping, StepsOnePointAndStopsAtTheEnds) {
  const struct {
    std::int32_t cursor;
    StepDirection direction;
    std::size_t count;
    std::optional<std::int32_t> expected;
  } cases[] = {
      {-1, Forward, 3, 0},
      {2, Forward, 3, std::nullopt},
      {0, Back, 3, std::nullopt},
      {-1, Back, 3, std::nullopt},
      {7, Back, 3, 2},
      {7, Forward, 3, std::nullopt},
      {-1, Forward, 0, std::nullopt},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(stepCursor(c.cursor, c.direction, c.count), c.expected)
        << c.cursor << (c.direction == Forward ? " forward" : " back") << " of " << c.count;
  }
}

TEST(PointStepping, SinglePointStepsPassOverPointsOutOfRange) {
  const DataSet data = curve({0, 20, 20, 1, 20, 2});  // points 1, 2 and 4 lie above the range
  const RangeFilter filter = filterOf(-10, 10, -10, 10);
  const struct {
    const char* what;
    std::int32_t cursor;
    StepDirection direction;
    PointStep expected;
  } cases[] = {
      {"from the first point", 0, Forward, {3, true}},    {"from point 3", 3, Forward, {5, true}},
      {"on the last point", 5, Forward, {5, false}},      {"back from point 3", 3, Back, {0, true}},
      {"back from the first point", 0, Back, {0, false}}, {"no cursor", -1, Forward, {0, true}},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(singlePointStep(data, c.cursor, c.direction, filter), c.expected) << c.what;
  }
  // Nothing heard beyond the cursor: the end is reached in silence.
  EXPECT_EQ(singlePointStep(curve({0, 20, 20}), 0, Forward, filter), (PointStep{2, false}));
  // Nothing heard at all: no tone for a point outside the range.
  EXPECT_EQ(singlePointStep(curve({20, 20}), -1, Forward, filter), (PointStep{1, false}));
}

TEST(PointStepping, CrossingCommandsMoveOverCrossingsOutOfRange) {
  // x-axis crossings are found at 3 (y -50), 5 (y 50) and 7 (y -1); only 7 is heard.
  const DataSet data1 = curve({1, 1, 50, -50, -50, 50, 1, -1});
  const DataSet none;
  const RangeFilter filter = filterOf(-10, 10, -10, 10);
  const struct {
    const char* what;
    CrossingCommand command;
    std::int32_t cursor;
    std::int32_t expectedCursor;
    std::optional<Sweep> expectedSweep;
  } cases[] = {
      {"next: the sweep starts at the last crossing passed over", CrossingCommand::NextAxis, -1, 7,
       Sweep{5, 7}},
      {"next from the heard crossing: nothing", CrossingCommand::NextAxis, 7, 7, std::nullopt},
      {"previous from the end: passes over 5 and 3, then fails and stays", CrossingCommand::PreviousAxis, 7,
       7, std::nullopt},
      {"two curves with no second set", CrossingCommand::NextCurves, 0, 0, std::nullopt},
  };
  for (const auto& c : cases) {
    const CursorMove move = crossingMove(c.command, data1, none, c.cursor, filter);
    EXPECT_EQ(move.cursor, c.expectedCursor) << c.what;
    EXPECT_EQ(move.sweep, c.expectedSweep) << c.what;
  }
  // With y auto-scaled every crossing is heard.
  RangeFilter autoY = filter;
  autoY.autoScaleY = true;
  const CursorMove first = crossingMove(CrossingCommand::NextAxis, data1, none, -1, autoY);
  EXPECT_EQ(first.cursor, 3);
  EXPECT_EQ(first.sweep, (Sweep{0, 3}));
}

TEST(PointStepping, TheCrossingOfTwoCurvesIsSweptTo) {
  const DataSet data1 = curve({0, 1, 2, 3, 4});
  const DataSet data2 = curve({3.4, 2.4, 1.4, 0.4, -0.6});  // crossing at x 1.7
  const CursorMove move =
      crossingMove(CrossingCommand::NextCurves, data1, data2, -1, filterOf(-10, 10, -10, 10));
  EXPECT_EQ(move.cursor, 2);
  EXPECT_EQ(move.sweep, (Sweep{0, 2}));
}

TEST(PointStepping, ACrossingSearchRepeatsAtMostOncePerPoint) {
  int searches = 0;
  const CursorSearch alwaysNext = [&](std::int32_t c) -> std::optional<std::int32_t> {
    ++searches;
    return c + 1;
  };
  const CursorMove move = driveCrossingSearch(-1, 4, alwaysNext, [](std::int32_t) { return false; });
  EXPECT_EQ(searches, 4);
  EXPECT_EQ(move.cursor, -1) << "nothing heard: the cursor stays";
  EXPECT_FALSE(move.sweep.has_value());

  const CursorSearch never = [](std::int32_t) -> std::optional<std::int32_t> { return std::nullopt; };
  const CursorMove failed = driveCrossingSearch(-1, 4, never, [](std::int32_t) { return true; });
  EXPECT_EQ(failed.cursor, -1) << "a failed search leaves the cursor alone";
  EXPECT_FALSE(failed.sweep.has_value());
}

TEST(PointStepping, ExtremumSweepsRunFromTheCursorToTheNextHeardFeature) {
  DataSet data = curve({0, 2, 1, 3, 0});  // min 0, max 1, min 2, max 3, min 4
  const RangeFilter all = filterOf(-10, 10, -10, 10);
  const RangeFilter belowThree = filterOf(-10, 10, -10, 2.5);
  const struct {
    std::int32_t cursor;
    Extremum::Kind kind;
    const RangeFilter* filter;
    CursorMove expected;
  } cases[] = {
      {-1, Extremum::Maximum, &all, {1, Sweep{0, 1}}},
      {1, Extremum::Maximum, &all, {3, Sweep{1, 3}}},
      {3, Extremum::Maximum, &all, {3, std::nullopt}},
      {-1, Extremum::Minimum, &all, {0, Sweep{0, 0}}},
      {2, Extremum::Minimum, &all, {4, Sweep{2, 4}}},
      // The maximum at 3 is out of range: nothing sounds and the cursor stays.
      {1, Extremum::Maximum, &belowThree, {1, std::nullopt}},
  };
  for (const auto& c : cases) {
    const CursorMove move = extremumMove(data, c.cursor, c.kind, *c.filter);
    EXPECT_EQ(move.cursor, c.expected.cursor) << c.cursor;
    EXPECT_EQ(move.sweep, c.expected.sweep) << c.cursor;
  }
}

TEST(PointStepping, SweepsPlayBetweenAudiblePositions) {
  const std::vector<std::int32_t> audible{0, 2, 3, 5, 8};
  const struct {
    Sweep sweep;
    SegmentPlay expected;
  } cases[] = {
      {{2, 8}, {false, 1, 3}},
      {{8, 2}, {true, 4, 3}},
      {{4, 8}, {false, 0, 4}},  // the cursor's point is not heard: position 0
      {{3, 3}, {false, 2, 0}},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(sweepPlay(audible, c.sweep), c.expected) << c.sweep.from << " to " << c.sweep.to;
  }
}

TEST(PointStepping, TheSweepPauseIsItsShareOfThePlayTime) {
  const struct {
    std::int32_t count;
    std::size_t heard;
    std::uint32_t playTime;
    std::optional<std::int64_t> expected;
  } cases[] = {
      {2, 8, 4, 1000},         {1, 3, 4, 1333},                   // truncated
      {7, 8, 4, 3500},         {8, 8, 4, 4000}, {9, 8, 4, 4000},  // never longer than the play
      {2, 0, 4, std::nullopt}, {2, 8, 0, 0},    {0, 8, 4, 0},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(sweepPauseMs(SegmentPlay{false, 0, c.count}, c.heard, c.playTime), c.expected)
        << c.count << " of " << c.heard;
  }
}

}  // namespace
}  // namespace sonalyx
