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

// Points at x = 0, 1, 2, ... with the given y values.
DataSet curveOver(const std::vector<double>& xs, double (*f)(double)) {
  std::vector<DataPoint> points;
  for (double x : xs) {
    DataPoint p;
    p.x = x;
    p.y = f(x);
    points.push_back(p);
  }
  DataSet set;
  set.assign(std::move(points));
  return set;
}

constexpr auto Max = Extremum::Maximum;
constexpr auto Min = Extremum::Minimum;

TEST(CurveFeatures, TurningPointsFollowTheEndPointRules) {
  const struct {
    const char* what;
    std::vector<double> ys;
    std::vector<Extremum> expected;
  } cases[] = {
      {"rising from the first point: a minimum there", {0, 1, 2}, {{Min, 0}}},
      {"falling into the last point: a minimum there", {2, 1, 0}, {{Min, 2}}},
      {"rising into the last point: no entry for it", {1, 0, 1, 2}, {{Min, 1}}},
      {"alternating", {0, 2, 1, 3, 0}, {{Min, 0}, {Max, 1}, {Min, 2}, {Max, 3}, {Min, 4}}},
      {"a flat top", {0, 1, 1, 0}, {{Min, 0}, {Min, 3}}},
      {"a flat bottom", {1, 0, 0, 1}, {}},
      {"two points rising", {0, 1}, {{Min, 0}}},
      {"two points falling", {1, 0}, {{Min, 1}}},
      {"one point", {5}, {}},
  };
  for (const auto& c : cases) {
    DataSet set = curve(c.ys);
    EXPECT_TRUE(set.findExtrema()) << c.what;
    EXPECT_TRUE(set.extremaValid()) << c.what;
    EXPECT_EQ(set.extrema(), c.expected) << c.what;
    EXPECT_FALSE(set.findExtrema()) << c.what << ": built once";
  }
  DataSet empty;
  EXPECT_FALSE(empty.findExtrema());
  EXPECT_TRUE(empty.extrema().empty());
}

TEST(CurveFeatures, AnEditedSetIsSearchedWithItsNewTurningPoints) {
  DataSet set = curve({0, 2, 1, 0});
  ASSERT_EQ(nextExtremum(set, -1, Max), 1);
  // Lift point 2 above point 1: the maximum moves to 2.
  ASSERT_TRUE(set.setY(2, 5));
  EXPECT_EQ(nextExtremum(set, -1, Max), 2);
  ASSERT_TRUE(set.setYAt(3, 9));
  EXPECT_EQ(nextExtremum(set, -1, Max), std::nullopt);
  ASSERT_TRUE(set.setYAt(4, 0));  // appends a point that the curve falls into
  EXPECT_EQ(nextExtremum(set, -1, Max), 3);
}

TEST(CurveFeatures, NextMaximumAndMinimumLookBeyondTheCursor) {
  // Turning points: min 0, max 1, min 2, max 3, min 4, max 5, min 6.
  DataSet set = curve({0, 2, 1, 3, 0, 4, 2});
  const struct {
    std::int32_t cursor;
    Extremum::Kind kind;
    std::optional<std::int32_t> expected;
  } cases[] = {
      {-1, Max, 1}, {0, Max, 1},
      {1, Max, 3},  {5, Max, std::nullopt},  // on the last maximum: nothing
      {-1, Min, 2},                          // no cursor counts as point 0, which is not beyond itself
      {5, Min, 6},  {6, Min, std::nullopt},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(nextExtremum(set, c.cursor, c.kind), c.expected)
        << "cursor " << c.cursor << (c.kind == Max ? ", maximum" : ", minimum");
  }
  DataSet plateau = curve({0, 1, 1, 1, 0});
  EXPECT_EQ(nextExtremum(plateau, -1, Max), std::nullopt);
}

TEST(CurveFeatures, ACrossingNearAPointBelongsToIt) {
  const DataSet set = curve({1, -1, 1});  // x 0, 1, 2
  const struct {
    double crossingX;
    std::int32_t first, second, expected;
  } cases[] = {
      {5e-12, 0, 1, 0},                                      // within 1e-11 of the first
      {1 - 5e-12, 0, 1, 1},                                  // within 1e-11 of the second
      {0.3, 0, 1, 0},       {0.7, 0, 1, 1}, {0.5, 0, 1, 1},  // a tie goes to the second
      {0.5, 1, 0, 0},  // walking backwards the second is the lower index
  };
  for (const auto& c : cases) {
    EXPECT_EQ(nearestIndex(c.crossingX, set, c.first, c.second), c.expected)
        << c.crossingX << " between " << c.first << " and " << c.second;
  }
}

TEST(CurveFeatures, NextAxisCrossingStartsOneSegmentBeyondTheCursor) {
  const struct {
    const char* what;
    std::vector<double> ys;
    std::int32_t cursor;
    std::optional<std::int32_t> expected;
  } cases[] = {
      // Crossings at x 0.5, 2.5 and 4.5; the one in the first segment is never found.
      {"no cursor", {1, -1, -1, 1, 1, -1}, -1, 3},
      {"in the segment of the cursor", {1, -1, -1, 1, 1, -1}, 2, 5},
      {"after a crossing", {1, -1, -1, 1, 1, -1}, 3, 5},
      {"on the last point", {1, -1, -1, 1, 1, -1}, 5, std::nullopt},
      {"past the last point", {1, -1, -1, 1, 1, -1}, 9, std::nullopt},
      {"nearer the start of the segment", {1, 1, 1, -4}, 0, 2},
      {"a point on the axis", {1, 1, 0, -1, -1}, 0, 2},
      {"touching the axis and turning back", {1, 1, 0, 1, 1}, 0, 2},
      {"lying along the axis", {1, 1, 0, 0, 0, 1}, 2, 3},
      {"one point", {0}, -1, std::nullopt},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(nextAxisCrossing(curve(c.ys), c.cursor), c.expected) << c.what;
  }
}

TEST(CurveFeatures, PreviousAxisCrossingWalksBackFromBeforeTheCursor) {
  const std::vector<double> ys{1, -1, -1, 1, 1, -1};  // crossings at x 0.5, 2.5, 4.5
  const struct {
    const char* what;
    std::int32_t cursor;
    std::optional<std::int32_t> expected;
  } cases[] = {
      {"from the last point, the crossing at 4.5 is skipped", 5, 2},  // tie goes down
      {"from point 3, the crossing at 2.5 is skipped", 3, 0},
      {"from point 2", 2, 0},
      {"on point 1", 1, std::nullopt},
      {"on point 0", 0, std::nullopt},
      {"no cursor", -1, std::nullopt},
      {"past the last point", 6, std::nullopt},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(previousAxisCrossing(curve(ys), c.cursor), c.expected) << c.what;
  }
  // Walking back from point 4, the crossing at x 1.2 lies nearer the lower end.
  EXPECT_EQ(previousAxisCrossing(curve({1, -1, 4, 4, 4}), 4), 1);
}

TEST(CurveFeatures, NextCurveCrossingComparesMatchingSegments) {
  const DataSet rising = curve({0, 1, 2, 3, 4});
  const struct {
    const char* what;
    DataSet other;
    std::int32_t cursor;
    std::optional<std::int32_t> expected;
  } cases[] = {
      {"crossing at x 1.7", curve({3.4, 2.4, 1.4, 0.4, -0.6}), -1, 2},
      {"meeting on a shared point", curve({2, 1, 0, -1, -2}), -1, 1},
      {"the meeting is behind the cursor", curve({2, 1, 0, -1, -2}), 1, std::nullopt},
      {"parallel", curve({1, 2, 3, 4, 5}), -1, std::nullopt},
      {"the same curve meets at once", curve({0, 1, 2, 3, 4}), 2, 3},
      {"different point counts", curve({4, 3, 2, 1}), -1, std::nullopt},
      {"cursor past the end", curve({3.4, 2.4, 1.4, 0.4, -0.6}), 5, std::nullopt},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(nextCurveCrossing(rising, c.other, c.cursor), c.expected) << c.what;
  }
  EXPECT_EQ(nextCurveCrossing(curve({0}), curve({1}), -1), std::nullopt) << "one point each";
}

TEST(CurveFeatures, PointsWithAnAbsentValueJoinNoSegment) {
  const DataSet gap = curve({1, 1, kAbsent, -1, -1, 1});
  // The crossing hidden by the gap is passed over; the next one (at 4.5) is found.
  EXPECT_EQ(nextAxisCrossing(gap, 0), 5);
  EXPECT_EQ(nextCurveCrossing(gap, curve({0, 0, 0, 0, 0, 0}), 0), 5);
}

TEST(CurveFeatures, TheFeatureListHoldsTurningPointsAndSteppedCrossings) {
  std::vector<double> xs;
  for (int i = 0; i <= 20; ++i) xs.push_back(0.5 * i);  // 0 to 10
  DataSet wave = curveOver(xs, [](double x) { return std::sin(x); });
  const CurveFeatures features = listCurveFeatures(wave);

  // sin rises from 0 (a minimum entry), peaks nearest 1.5 and 8.0, dips nearest 4.5,
  // and falls into its last sample at 10.
  const struct {
    Extremum::Kind kind;
    std::int32_t index;
  } turning[] = {{Min, 0}, {Max, 3}, {Min, 9}, {Max, 16}, {Min, 20}};
  ASSERT_EQ(features.turningPoints.size(), std::size(turning));
  for (std::size_t k = 0; k < std::size(turning); ++k) {
    const TurningPoint& t = features.turningPoints[k];
    EXPECT_EQ(t.kind, turning[k].kind) << k;
    EXPECT_EQ(t.point.index, turning[k].index) << k;
    EXPECT_TRUE(agreesTo(t.point.x, xs[static_cast<std::size_t>(turning[k].index)], 15)) << k;
    EXPECT_TRUE(agreesTo(t.point.y, std::sin(t.point.x), 15, 1e-15)) << k;
  }

  // Zeros at pi (nearer 3.0), 2 pi (nearer 6.5) and 3 pi (nearer 9.5); the zero at
  // x = 0 lies on the segment where the walk starts and is not reached.
  const std::int32_t crossings[] = {6, 13, 19};
  ASSERT_EQ(features.axisCrossings.size(), std::size(crossings));
  for (std::size_t k = 0; k < std::size(crossings); ++k) {
    const FeaturePoint& p = features.axisCrossings[k];
    EXPECT_EQ(p.index, crossings[k]) << k;
    EXPECT_TRUE(agreesTo(p.x, xs[static_cast<std::size_t>(crossings[k])], 15)) << k;
    EXPECT_TRUE(agreesTo(p.y, std::sin(p.x), 15, 1e-15)) << k;
  }

  DataSet empty;
  const CurveFeatures none = listCurveFeatures(empty);
  EXPECT_TRUE(none.turningPoints.empty());
  EXPECT_TRUE(none.axisCrossings.empty());
}

}  // namespace
}  // namespace sonalyx
