#include "core/math/DataSet.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstddef>
#include <limits>
#include <numbers>
#include <ostream>
#include <vector>

#include "support/CurveData.h"
#include "support/NumericCompare.h"

namespace sonalyx {

// Readable failure messages for turning-point lists.
static void PrintTo(const Extremum& e, std::ostream* os) {
  *os << (e.kind == Extremum::Maximum ? "max@" : "min@") << e.index;
}

namespace {

using test::agreesTo;
using test::curve;
using test::pointsAt;

// Every field except x and y must carry its absent marker.
void expectUnsetExtras(const DataPoint& p) {
  for (double v : {p.derivative, p.integral, p.cartX, p.cartY}) EXPECT_TRUE(agreesTo(v, kAbsent, 17));
  EXPECT_EQ(p.trend, kAbsentTrend);
}

TEST(DataSet, HasDataOnlyWhenTheFirstYIsPresent) {
  EXPECT_FALSE(DataSet().hasData());
  EXPECT_FALSE(curve({kAbsent, 1.0}).hasData());
  EXPECT_TRUE(curve({1.0, kAbsent}).hasData());
}

TEST(DataSet, TableEditingStoresAppendsOrRefuses) {
  const struct {
    const char* name;
    std::size_t startCount;  // points (i, 10 i) with derivative 1 before the edit
    bool editX;
    std::size_t index;
    bool accepted;
    double x, y;  // of point `index` afterwards, when accepted
  } cases[] = {
      {"y into an empty table", 0, false, 0, true, 0.0, 5.0},
      {"x appended after two", 2, true, 2, true, 5.0, 0.0},
      {"y overwritten keeps the rest", 2, false, 1, true, 1.0, 5.0},
      {"x overwritten keeps the rest", 2, true, 0, true, 5.0, 0.0},
      {"x two past the end", 2, true, 3, false, 0, 0},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    DataSet s;
    for (std::size_t i = 0; i < c.startCount; ++i) s.append({double(i), 10.0 * double(i), 1.0});
    EXPECT_EQ(c.editX ? s.setXAt(c.index, 5.0) : s.setYAt(c.index, 5.0), c.accepted);
    ASSERT_EQ(s.count(), c.startCount + (c.accepted && c.index == c.startCount ? 1 : 0));
    if (!c.accepted) continue;
    const DataPoint& p = s.at(c.index);
    EXPECT_TRUE(agreesTo(p.x, c.x, 17));
    EXPECT_TRUE(agreesTo(p.y, c.y, 17));
    if (c.index == c.startCount) {
      expectUnsetExtras(p);
    } else {
      EXPECT_TRUE(agreesTo(p.derivative, 1.0, 17));
    }
  }
}

TEST(DataSet, GridPlacesEachPointByItsIndexOrRefusesAndKeepsTheSet) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  const std::size_t most = std::numeric_limits<std::size_t>::max();
  const struct {
    double x0, x1;
    std::size_t n;
    bool made;
  } cases[] = {
      {-10.0, 10.0, 501, true},
      {0.1, 0.7, 7, true},
      {3.0, 3.0, 4, true},
      {1.0, 0.0, 10, false},
      {0.0, 1.0, 1, false},
      {0.0, nan, 10, false},
      {0.0, static_cast<double>(most), most, false},  // more points than memory
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(testing::Message() << c.x0 << ".." << c.x1 << " n=" << c.n);
    DataSet s = curve({4.0, 5.0, 4.0});
    ASSERT_TRUE(s.findExtrema());
    ASSERT_EQ(s.makeGrid(c.x0, c.x1, c.n), c.made);
    EXPECT_EQ(s.extremaValid(), !c.made);
    if (!c.made) {
      ASSERT_EQ(s.count(), 3u);
      EXPECT_TRUE(agreesTo(s.at(1).y, 5.0, 17));
      continue;
    }
    ASSERT_EQ(s.count(), c.n);
    const double step = (c.x1 - c.x0) / static_cast<double>(c.n - 1);
    for (std::size_t i = 0; i < c.n; ++i) {
      ASSERT_TRUE(agreesTo(s.getX(i), c.x0 + static_cast<double>(i) * step, 15, 1e-12)) << "point " << i;
    }
    EXPECT_EQ(s.getX(c.n - 1), c.x1) << "the last point is the end itself";
  }
  // The middle of -10..10 is 0 itself, not the -3.6e-14 that 250 added steps give.
  DataSet s;
  ASSERT_TRUE(s.makeGrid(-10.0, 10.0, 501));
  EXPECT_EQ(s.getX(250), 0.0);
}

TEST(DataSet, PolarPointsBecomeCartesian) {
  const double pi = std::numbers::pi;
  const struct {
    double angle, radius, cartX, cartY;
  } cases[] = {{0.0, 2.0, 2.0, 0.0}, {pi / 2, 3.0, 0.0, 3.0}, {pi / 3, -2.0, -1.0, -std::sqrt(3.0)}};
  DataSet s;
  for (const auto& c : cases) s.append({c.angle, c.radius});
  EXPECT_EQ(s.toCartesian(), std::size(cases));
  for (std::size_t i = 0; i < std::size(cases); ++i) {
    EXPECT_TRUE(agreesTo(s.at(i).cartX, cases[i].cartX, 14, 1e-14)) << i;
    EXPECT_TRUE(agreesTo(s.at(i).cartY, cases[i].cartY, 14, 1e-14)) << i;
    EXPECT_TRUE(agreesTo(s.at(i).y, cases[i].radius, 17)) << "the polar values stay";
  }
  EXPECT_TRUE(s.isPolar());
  // An edited polar point is converted again; a refill is no longer polar.
  ASSERT_TRUE(s.setYAt(0, 5.0));
  EXPECT_TRUE(agreesTo(s.at(0).cartX, 5.0, 17));
  s.assign({DataPoint{0.0, 1.0}});
  EXPECT_FALSE(s.isPolar());
  DataSet noData = curve({kAbsent, 1.0});
  EXPECT_EQ(noData.toCartesian(), 0u);
  EXPECT_FALSE(noData.isPolar());
  expectUnsetExtras(noData.at(1));
}

TEST(DataSet, CombinesAtTheFirstSetsXInterpolatingTheSecond) {
  const double nan = std::nan("");
  // b is y = 10 x on x 0, 2, 4 (given out of order), derivative 10, integral 5 x^2.
  DataSet b = pointsAt({{4, 40}, {0, 0}, {2, 20}});
  DataSet a;
  const double ax[] = {3, -1, 0, 2, 4, 5};
  for (double x : ax) a.append({x, 1.0, 1.0, 1.0});
  for (std::size_t i = 0; i < 3; ++i) {
    b.setDerivative(i, 10.0);
    b.setIntegral(i, 5.0 * b.getX(i) * b.getX(i));
  }
  const struct {
    bool add;
    double y[6];
    double derivative[6];
  } cases[] = {
      // Set 1's x kept; x 3 lies between b's 2 and 4; -1 and 5 are outside b: gaps.
      {true, {31, nan, 1, 21, 41, nan}, {11, nan, 11, 11, 11, nan}},
      {false, {-29, nan, 1, -19, -39, nan}, {-9, nan, -9, -9, -9, nan}},
  };
  for (const auto& c : cases) {
    DataSet result = curve({7.0});
    DataSet::combine(result, a, b, c.add);
    ASSERT_EQ(result.count(), 6u);
    for (std::size_t i = 0; i < 6; ++i) {
      const DataPoint& p = result.at(i);
      EXPECT_TRUE(agreesTo(p.x, ax[i], 17)) << i;
      EXPECT_TRUE(agreesTo(p.y, c.y[i], 15)) << i;
      EXPECT_TRUE(agreesTo(p.derivative, c.derivative[i], 15)) << i;
      EXPECT_EQ(p.trend, kAbsentTrend);
    }
    // The integral is interpolated linearly too: 5 * 2^2 + (5 * 4^2 - 5 * 2^2) / 2 at x 3.
    EXPECT_TRUE(agreesTo(result.at(0).integral, 1.0 + (c.add ? 1 : -1) * 50.0, 15));
  }
  // Sets of different sizes combine; sources without data leave the result alone.
  DataSet sized = curve({7.0});
  DataSet::combine(sized, curve({1, 2, 3}), curve({1, 2}), true);
  EXPECT_EQ(sized.count(), 3u);
  EXPECT_TRUE(agreesTo(sized.at(2).y, nan, 17));
  const std::pair<DataSet, DataSet> empty[] = {{DataSet{}, curve({1})}, {curve({1, 2}), curve({kAbsent, 2})}};
  for (const auto& [first, second] : empty) {
    DataSet result = curve({7.0});
    DataSet::combine(result, first, second, true);
    ASSERT_EQ(result.count(), 1u);
    EXPECT_TRUE(agreesTo(result.at(0).y, 7.0, 17));
  }
}

TEST(DataSet, TurningPointsCountTheEndsByTheirOneNeighbour) {
  constexpr auto Max = Extremum::Maximum;
  constexpr auto Min = Extremum::Minimum;
  const struct {
    const char* name;
    std::vector<double> ys;
    std::vector<Extremum> extrema;
  } cases[] = {
      {"falling", {2, 1}, {{Max, 0}, {Min, 1}}},
      {"rising into the last point", {1, 0, 1, 2}, {{Max, 0}, {Min, 1}, {Max, 3}}},
      {"alternating", {0, 2, 1, 3, 0}, {{Min, 0}, {Max, 1}, {Min, 2}, {Max, 3}, {Min, 4}}},
      {"flat top", {0, 1, 1, 0}, {{Min, 0}, {Min, 3}}},
      {"flat bottom", {1, 0, 0, 1}, {{Max, 0}, {Max, 3}}},
      {"flat ends", {1, 1, 2, 2}, {}},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    DataSet s = curve(c.ys);
    EXPECT_TRUE(s.findExtrema());
    EXPECT_TRUE(s.extremaValid());
    EXPECT_EQ(s.extrema(), c.extrema);
    EXPECT_FALSE(s.findExtrema()) << "built once per fill";
  }
  DataSet empty;
  EXPECT_FALSE(empty.findExtrema());
}

TEST(DataSet, ChangesOfYOrCountRebuildTheTurningPoints) {
  using E = Extremum;
  DataSet s = curve({0, 1, 0});
  ASSERT_TRUE(s.findExtrema());
  s.setY(2, 5.0);
  EXPECT_FALSE(s.extremaValid());
  EXPECT_TRUE(s.findExtrema());
  EXPECT_EQ(s.extrema(), (std::vector<E>{{E::Minimum, 0}, {E::Maximum, 2}}));
  s.append(DataPoint{3.0, 4.0});
  EXPECT_TRUE(s.findExtrema());
  EXPECT_EQ(s.extrema(), (std::vector<E>{{E::Minimum, 0}, {E::Maximum, 2}, {E::Minimum, 3}}));
  s.assign({DataPoint{0.0, 2.0}, DataPoint{1.0, 1.0}});
  EXPECT_TRUE(s.findExtrema());
  EXPECT_EQ(s.extrema(), (std::vector<E>{{E::Maximum, 0}, {E::Minimum, 1}}));
  s.clear();
  EXPECT_FALSE(s.extremaValid());
  EXPECT_TRUE(s.extrema().empty());
}

}  // namespace
}  // namespace sonalyx
