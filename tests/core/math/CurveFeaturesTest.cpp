#include "core/math/CurveFeatures.h"

#include <gtest/gtest.h>

#include <cmath>
#include <optional>
#include <vector>

#include "support/CurveData.h"
#include "support/NumericCompare.h"

namespace sonalyx {
namespace {

using test::agreesTo;
using test::curve;

constexpr auto Max = Extremum::Maximum;
constexpr auto Min = Extremum::Minimum;

TEST(CurveFeatures, NextMaximumAndMinimumLookBeyondTheCursor) {
  // Turning points: min 0, max 1, min 2, max 3, min 4, max 5, min 6.
  DataSet set = curve({0, 2, 1, 3, 0, 4, 2});
  // Ends by the same rule both ways: max 0, min 1, max 3.
  DataSet falling = curve({3, 1, 2, 5});
  const struct {
    DataSet* data;
    std::int32_t cursor;
    Extremum::Kind kind;
    std::optional<std::int32_t> expected;
  } cases[] = {
      {&set, -1, Max, 1},     {&set, 1, Max, 3},     {&set, 5, Max, std::nullopt},
      {&set, -1, Min, 0},     {&set, 0, Min, 2},     {&set, 6, Min, std::nullopt},
      {&falling, -1, Max, 0}, {&falling, 0, Max, 3},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(nextExtremum(*c.data, c.cursor, c.kind), c.expected)
        << "cursor " << c.cursor << (c.kind == Max ? ", maximum" : ", minimum");
  }
  // An edited set is searched with its new turning points.
  ASSERT_TRUE(set.setY(2, 5));
  EXPECT_EQ(nextExtremum(set, 0, Max), 2);
}

TEST(CurveFeatures, ACrossingNearAPointBelongsToIt) {
  const DataSet set = test::pointsAt({{0, 1}, {1, -1}, {1 + 1.5e-11, 1}});
  const struct {
    double crossingX;
    std::int32_t first, second, expected;
  } cases[] = {
      {5e-12, 0, 1, 0},
      {1 - 5e-12, 0, 1, 1},
      {0.3, 0, 1, 0},
      {0.5, 0, 1, 1},  // a tie goes to the second
      // Points 1.5e-11 apart: the first within 1e-11 wins even where the second is nearer.
      {1 + 0.9e-11, 1, 2, 1},
      {1 + 1.2e-11, 1, 2, 2},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(nearestIndex(c.crossingX, set, c.first, c.second), c.expected)
        << c.crossingX << " between " << c.first << " and " << c.second;
  }
}

TEST(CurveFeatures, AxisCrossingsAreSoughtFromTheCursorsOwnSegment) {
  const std::vector<double> steps{1, -1, -1, 1, 1, -1};  // crossings at x 0.5, 2.5, 4.5: points 1, 3, 5
  const struct {
    const char* what;
    std::vector<double> ys;
    bool forward;
    std::int32_t cursor;
    std::optional<std::int32_t> expected;
  } cases[] = {
      {"no cursor: the first segment too", steps, true, -1, 1},
      {"the cursor's segment", steps, true, 2, 3},
      {"on the last point", steps, true, 5, std::nullopt},
      {"past the last point", steps, true, 9, std::nullopt},
      {"nearer the start of the segment", {1, 1, 1, -4}, true, 0, 2},
      {"a point on the axis", {1, 1, 0, -1, -1}, true, 0, 2},
      {"from a crossing, on to the next", {1, 0, -1, 1}, true, 1, 3},
      {"lying along the axis", {1, 1, 0, 0, 0, 1}, true, 2, 3},
      {"one point", {0}, true, -1, std::nullopt},
      {"back from the last crossing", steps, false, 5, 3},
      {"back from point 3", steps, false, 3, 1},
      {"back from point 4, nearer the lower end", {1, -1, 4, 4, 4}, false, 4, 1},
      {"back from point 1", steps, false, 1, std::nullopt},
      {"back from point 2", steps, false, 2, 1},
      {"back without a cursor", steps, false, -1, std::nullopt},
      {"back from past the last point", steps, false, 6, std::nullopt},
  };
  for (const auto& c : cases) {
    const DataSet set = curve(c.ys);
    EXPECT_EQ(c.forward ? nextAxisCrossing(set, c.cursor) : previousAxisCrossing(set, c.cursor), c.expected)
        << c.what;
  }
}

TEST(CurveFeatures, NextCurveCrossingFollowsTheOtherCurveWhereverItsPointsLie) {
  const DataSet rising = curve({0, 1, 2, 3, 4});
  const struct {
    const char* what;
    DataSet other;
    std::int32_t cursor;
    std::optional<std::int32_t> expected;
  } cases[] = {
      {"crossing at x 1.7", curve({3.4, 2.4, 1.4, 0.4, -0.6}), -1, 2},
      {"meeting on a shared point", curve({2, 1, 0, -1, -2}), -1, 1},
      {"the meeting is at the cursor", curve({2, 1, 0, -1, -2}), 1, std::nullopt},
      {"parallel", curve({1, 2, 3, 4, 5}), -1, std::nullopt},
      {"the same curve meets at once", curve({0, 1, 2, 3, 4}), 2, 3},
      {"fewer points, on the same x", curve({4, 3, 2, 1}), -1, 2},
      {"two points of its own", test::pointsAt({{0.5, 3.5}, {3.5, 0.5}}), -1, 2},
      {"x falling", test::pointsAt({{3.5, 0.5}, {0.5, 3.5}}), -1, 2},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(nextCurveCrossing(rising, c.other, c.cursor), c.expected) << c.what;
  }
}

TEST(CurveFeatures, PointsWithAnAbsentValueJoinNoSegment) {
  const DataSet gap = curve({1, 1, kAbsent, -1, std::nan(""), -1, 1});
  // The crossings hidden by the gaps are passed over; the next one (at 5.5) is found.
  EXPECT_EQ(nextAxisCrossing(gap, 0), 6);
  EXPECT_EQ(nextCurveCrossing(gap, curve({0, 0, 0, 0, 0, 0, 0}), 0), 6);
}

TEST(CurveFeatures, TheFeatureListHoldsTurningPointsAndSteppedCrossings) {
  DataSet set = test::pointsAt({{0, 1}, {0.5, -1}, {1, -2}, {1.5, 1}, {2, 3}, {2.5, -1}, {3, 2}});
  const CurveFeatures features = listCurveFeatures(set);
  const TurningPoint turning[] = {
      {Max, {0, 0, 1}}, {Min, {2, 1, -2}}, {Max, {4, 2, 3}}, {Min, {5, 2.5, -1}}, {Max, {6, 3, 2}}};
  ASSERT_EQ(features.turningPoints.size(), std::size(turning));
  for (std::size_t k = 0; k < std::size(turning); ++k) {
    const TurningPoint& t = features.turningPoints[k];
    EXPECT_EQ(t.kind, turning[k].kind) << k;
    EXPECT_EQ(t.point.index, turning[k].point.index) << k;
    EXPECT_TRUE(agreesTo(t.point.x, turning[k].point.x, 17)) << k;
    EXPECT_TRUE(agreesTo(t.point.y, turning[k].point.y, 17)) << k;
  }
  // Crossings at x 0.25 (a tie: the later point), 1.33 and 2.38; the one at 2.67 is
  // nearest point 5 too, where the walk already stands.
  const FeaturePoint crossings[] = {{1, 0.5, -1}, {3, 1.5, 1}, {5, 2.5, -1}};
  ASSERT_EQ(features.axisCrossings.size(), std::size(crossings));
  for (std::size_t k = 0; k < std::size(crossings); ++k) {
    const FeaturePoint& p = features.axisCrossings[k];
    EXPECT_EQ(p.index, crossings[k].index) << k;
    EXPECT_TRUE(agreesTo(p.x, crossings[k].x, 17)) << k;
    EXPECT_TRUE(agreesTo(p.y, crossings[k].y, 17)) << k;
  }
}

}  // namespace
}  // namespace sonalyx
