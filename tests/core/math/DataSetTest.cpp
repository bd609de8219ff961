#include "core/math/DataSet.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <numbers>
#include <ostream>
#include <vector>

#include "support/NumericCompare.h"

namespace sonalyx {

// Readable failure messages for turning-point lists.
static void PrintTo(const Extremum& e, std::ostream* os) {
  *os << (e.kind == Extremum::Maximum ? "max@" : "min@") << e.index;
}

namespace {

DataSet setOf(const std::vector<double>& xs, const std::vector<double>& ys) {
  DataSet s;
  for (std::size_t i = 0; i < xs.size(); ++i) {
    DataPoint p;
    p.x = xs[i];
    p.y = ys[i];
    s.append(p);
  }
  return s;
}

DataSet setOfY(const std::vector<double>& ys) {
  std::vector<double> xs;
  for (std::size_t i = 0; i < ys.size(); ++i) xs.push_back(static_cast<double>(i));
  return setOf(xs, ys);
}

// Every field except x and y must carry its absent marker.
void expectUnsetExtras(const DataPoint& p) {
  EXPECT_TRUE(test::agreesTo(p.derivative, kAbsent, 17));
  EXPECT_TRUE(test::agreesTo(p.integral, kAbsent, 17));
  EXPECT_TRUE(test::agreesTo(p.cartX, kAbsent, 17));
  EXPECT_TRUE(test::agreesTo(p.cartY, kAbsent, 17));
  EXPECT_EQ(p.trend, kAbsentTrend);
}

TEST(DataSet, HasDataOnlyWhenTheFirstYIsPresent) {
  struct Case {
    const char* name;
    std::vector<double> ys;
    bool hasData;
  };
  const Case cases[] = {
      {"empty", {}, false},
      {"one zero point", {0.0}, true},
      {"first y absent, later present", {kAbsent, 1.0, 2.0}, false},
      {"later y absent", {1.0, kAbsent}, true},
      {"first y negative", {-kAbsent / 2, 3.0}, true},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(setOfY(c.ys).hasData(), c.hasData) << c.name;
  }
}

TEST(DataSet, TableEditingStoresAppendsOrRefuses) {
  enum class Axis { X, Y };
  struct Case {
    const char* name;
    std::size_t startCount;  // points (i, 10 i) before the edit
    Axis axis;
    std::size_t index;
    double value;
    bool accepted;
    std::size_t count;
    double x;  // of point `index` afterwards, when accepted
    double y;
  };
  const Case cases[] = {
      {"y at 0 of an empty set", 0, Axis::Y, 0, 5.0, true, 1, 0.0, 5.0},
      {"x at 0 of an empty set", 0, Axis::X, 0, -3.0, true, 1, -3.0, 0.0},
      {"x past the end of an empty set", 0, Axis::X, 1, 4.0, false, 0, 0.0, 0.0},
      {"y appended after two", 2, Axis::Y, 2, 7.5, true, 3, 0.0, 7.5},
      {"x appended after two", 2, Axis::X, 2, 8.5, true, 3, 8.5, 0.0},
      {"y overwritten", 2, Axis::Y, 1, -1.0, true, 2, 1.0, -1.0},
      {"x overwritten", 2, Axis::X, 0, 9.0, true, 2, 9.0, 0.0},
      {"y two past the end", 2, Axis::Y, 3, 1.0, false, 2, 0.0, 0.0},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    DataSet s;
    for (std::size_t i = 0; i < c.startCount; ++i) {
      DataPoint p;
      p.x = static_cast<double>(i);
      p.y = 10.0 * static_cast<double>(i);
      p.derivative = 1.0;  // present, so an overwrite that resets fields shows up
      s.append(p);
    }
    const bool ok = c.axis == Axis::X ? s.setXAt(c.index, c.value) : s.setYAt(c.index, c.value);
    EXPECT_EQ(ok, c.accepted);
    ASSERT_EQ(s.count(), c.count);
    if (!c.accepted) continue;
    EXPECT_TRUE(test::agreesTo(s.at(c.index).x, c.x, 17));
    EXPECT_TRUE(test::agreesTo(s.at(c.index).y, c.y, 17));
    if (c.index == c.startCount) {
      expectUnsetExtras(s.at(c.index));
    } else {
      EXPECT_TRUE(test::agreesTo(s.at(c.index).derivative, 1.0, 17));
    }
  }
}

TEST(DataSet, FieldSettersRefusePastTheEnd) {
  struct Case {
    const char* name;
    std::size_t index;
    bool accepted;
  };
  const Case cases[] = {
      {"first", 0, true}, {"last", 2, true}, {"one past", 3, false}, {"far past", 99, false}};
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    DataSet s = setOfY({1.0, 2.0, 3.0});
    EXPECT_EQ(s.setY(c.index, -4.0), c.accepted);
    EXPECT_EQ(s.setDerivative(c.index, 5.0), c.accepted);
    EXPECT_EQ(s.setIntegral(c.index, 6.0), c.accepted);
    EXPECT_EQ(s.setTrend(c.index, -1), c.accepted);
    ASSERT_EQ(s.count(), 3u);
    if (c.accepted) {
      const DataPoint& p = s.at(c.index);
      EXPECT_TRUE(test::agreesTo(p.y, -4.0, 17));
      EXPECT_TRUE(test::agreesTo(p.derivative, 5.0, 17));
      EXPECT_TRUE(test::agreesTo(p.integral, 6.0, 17));
      EXPECT_EQ(p.trend, -1);
      EXPECT_TRUE(test::agreesTo(s.getX(c.index), static_cast<double>(c.index), 17));
    } else {
      for (std::size_t i = 0; i < 3; ++i) {
        EXPECT_TRUE(test::agreesTo(s.at(i).y, static_cast<double>(i + 1), 17));
        expectUnsetExtras(s.at(i));
      }
      EXPECT_TRUE(test::agreesTo(s.getX(c.index), kAbsent, 17));
    }
  }
}

TEST(DataSet, GridAccumulatesItsStep) {
  struct Case {
    double x0, x1;
    std::size_t n;
    double step;
  };
  const Case cases[] = {
      {-10.0, 10.0, 501, 0.04}, {0.0, 1.0, 2, 1.0}, {0.1, 0.7, 7, 0.1},
      {0.0, 99.9, 1000, 0.1},   {3.0, 3.0, 4, 0.0},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(testing::Message() << c.x0 << ".." << c.x1 << " n=" << c.n);
    DataSet s = setOfY({1.0, 2.0, 3.0});
    ASSERT_TRUE(s.findExtrema());
    ASSERT_TRUE(s.makeGrid(c.x0, c.x1, c.n));
    ASSERT_EQ(s.count(), c.n);
    EXPECT_FALSE(s.extremaValid());
    EXPECT_TRUE(s.extrema().empty());
    const double step = (c.x1 - c.x0) / static_cast<double>(c.n - 1);
    double accumulated = c.x0;
    for (std::size_t i = 0; i < c.n; ++i) {
      // Exactly the running sum, not x0 + i * step.
      ASSERT_TRUE(test::agreesTo(s.getX(i), accumulated, 17)) << "point " << i;
      EXPECT_TRUE(test::agreesTo(s.at(i).y, 0.0, 17));
      if (i > 0) {
        EXPECT_TRUE(test::agreesTo(s.getX(i) - s.getX(i - 1), c.step, 12)) << "step " << i;
      }
      accumulated += step;
    }
    // Rounding may move the last x, but only in the last digits.
    EXPECT_TRUE(test::agreesTo(s.getX(c.n - 1), c.x1, 12, 1e-12));
  }
}

TEST(DataSet, GridRefusesBadBoundsAndKeepsTheSet) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  const double huge = static_cast<double>(std::numeric_limits<std::size_t>::max());
  struct Case {
    const char* name;
    double x0, x1;
    std::size_t n;
  };
  const Case cases[] = {
      {"reversed bounds", 1.0, 0.0, 10},
      {"one point", 0.0, 1.0, 1},
      {"no points", 0.0, 1.0, 0},
      {"NaN start", nan, 1.0, 10},
      {"NaN end", 0.0, nan, 10},
      {"more points than memory", 0.0, huge, std::numeric_limits<std::size_t>::max()},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    DataSet s = setOfY({4.0, 5.0, 4.0});
    ASSERT_TRUE(s.findExtrema());
    EXPECT_FALSE(s.makeGrid(c.x0, c.x1, c.n));
    ASSERT_EQ(s.count(), 3u);
    EXPECT_TRUE(test::agreesTo(s.at(1).y, 5.0, 17));
    EXPECT_TRUE(s.extremaValid());
  }
}

TEST(DataSet, RangesCoverEveryPoint) {
  struct Case {
    const char* name;
    std::vector<DataPoint> points;
    double xMin, xMax, yMin, yMax;      // plain coordinates
    double cxMin, cxMax, cyMin, cyMax;  // Cartesian ones
  };
  auto pt = [](double x, double y, double cx, double cy) {
    DataPoint p;
    p.x = x;
    p.y = y;
    p.cartX = cx;
    p.cartY = cy;
    return p;
  };
  const Case cases[] = {
      {"empty", {}, kAbsent, -kAbsent, kAbsent, -kAbsent, kAbsent, -kAbsent, kAbsent, -kAbsent},
      {"one point", {pt(2, -3, 4, 5)}, 2, 2, -3, -3, 4, 4, 5, 5},
      {"unordered", {pt(3, 1, -1, 0), pt(-2, 8, 7, -9), pt(0.5, -4, 2, 6)}, -2, 3, -4, 8, -1, 7, -9, 6},
      {"all negative", {pt(-5, -1, -2, -3), pt(-4, -7, -8, -1)}, -5, -4, -7, -1, -8, -2, -3, -1},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    DataSet s;
    s.assign(c.points);
    const auto x = s.rangeX(false), y = s.rangeY(false), cx = s.rangeX(true), cy = s.rangeY(true);
    EXPECT_TRUE(test::agreesTo(x.first, c.xMin, 17));
    EXPECT_TRUE(test::agreesTo(x.second, c.xMax, 17));
    EXPECT_TRUE(test::agreesTo(y.first, c.yMin, 17));
    EXPECT_TRUE(test::agreesTo(y.second, c.yMax, 17));
    EXPECT_TRUE(test::agreesTo(cx.first, c.cxMin, 17));
    EXPECT_TRUE(test::agreesTo(cx.second, c.cxMax, 17));
    EXPECT_TRUE(test::agreesTo(cy.first, c.cyMin, 17));
    EXPECT_TRUE(test::agreesTo(cy.second, c.cyMax, 17));
  }
}

TEST(DataSet, PolarPointsBecomeCartesian) {
  const double pi = std::numbers::pi;
  struct Case {
    double angle, radius, cartX, cartY;
  };
  const Case cases[] = {
      {0.0, 2.0, 2.0, 0.0},
      {pi / 2, 3.0, 0.0, 3.0},
      {pi, 1.0, -1.0, 0.0},
      {-pi / 2, 4.0, 0.0, -4.0},
      {pi / 4, std::sqrt(2.0), 1.0, 1.0},
      {pi / 3, -2.0, -1.0, -std::sqrt(3.0)},
  };
  DataSet s;
  for (const auto& c : cases) {
    DataPoint p;
    p.x = c.angle;
    p.y = c.radius;
    s.append(p);
  }
  EXPECT_EQ(s.toCartesian(), std::size(cases));
  for (std::size_t i = 0; i < std::size(cases); ++i) {
    SCOPED_TRACE(i);
    EXPECT_TRUE(test::agreesTo(s.at(i).cartX, cases[i].cartX, 14, 1e-14));
    EXPECT_TRUE(test::agreesTo(s.at(i).cartY, cases[i].cartY, 14, 1e-14));
    EXPECT_TRUE(test::agreesTo(s.at(i).x, cases[i].angle, 17));  // the polar values stay
    EXPECT_TRUE(test::agreesTo(s.at(i).y, cases[i].radius, 17));
  }
}

TEST(DataSet, ConversionNeedsData) {
  const std::vector<std::vector<double>> noData = {{}, {kAbsent, 1.0}};
  for (const auto& ys : noData) {
    DataSet s = setOfY(ys);
    EXPECT_EQ(s.toCartesian(), 0u);
    for (const auto& p : s.points()) expectUnsetExtras(p);
  }
}

struct Source {
  std::vector<double> x, y, derivative, integral;
};

DataSet makeSource(const Source& src) {
  DataSet s = setOf(src.x, src.y);
  for (std::size_t i = 0; i < src.derivative.size(); ++i) s.setDerivative(i, src.derivative[i]);
  for (std::size_t i = 0; i < src.integral.size(); ++i) s.setIntegral(i, src.integral[i]);
  return s;
}

TEST(DataSet, CombinesByIndexOverAnEvenGrid) {
  struct Case {
    const char* name;
    Source a, b;
    bool add;
    std::vector<double> x, y, derivative, integral;
  };
  const Case cases[] = {
      {"sum",
       {{0, 1, 2}, {1, 2, 3}, {1, 1, 1}, {0, 1, 2}},
       {{0, 1, 2}, {10, 20, 30}, {2, 2, 2}, {0, 4, 8}},
       true,
       {0, 1, 2},
       {11, 22, 33},
       {3, 3, 3},
       {0, 5, 10}},
      {"difference",
       {{0, 1, 2}, {1, 2, 3}, {1, 1, 1}, {0, 1, 2}},
       {{0, 1, 2}, {10, 20, 30}, {2, 2, 2}, {0, 4, 8}},
       false,
       {0, 1, 2},
       {-9, -18, -27},
       {-1, -1, -1},
       {0, -3, -6}},
      // x values of either source are never compared: b's x are ignored, and the
      // result's x spread evenly over a's range even though a's are irregular.
      {"irregular x, b's x ignored",
       {{6, 0, 1, 5}, {1, 1, 1, 1}, {}, {}},
       {{100, 200, 300, 400}, {4, 3, 2, 1}, {}, {}},
       true,
       {0, 2, 4, 6},
       {5, 4, 3, 2},
       {},
       {}},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    DataSet result = setOfY({7.0});
    DataSet::combine(result, makeSource(c.a), makeSource(c.b), c.add);
    ASSERT_EQ(result.count(), c.x.size());
    for (std::size_t i = 0; i < c.x.size(); ++i) {
      SCOPED_TRACE(i);
      const DataPoint& p = result.at(i);
      EXPECT_TRUE(test::agreesTo(p.x, c.x[i], 15, 1e-15));
      EXPECT_TRUE(test::agreesTo(p.y, c.y[i], 15));
      if (!c.derivative.empty()) {
        EXPECT_TRUE(test::agreesTo(p.derivative, c.derivative[i], 15));
      }
      if (!c.integral.empty()) {
        EXPECT_TRUE(test::agreesTo(p.integral, c.integral[i], 15, 1e-15));
      }
      EXPECT_EQ(p.trend, kAbsentTrend);
      EXPECT_TRUE(test::agreesTo(p.cartX, kAbsent, 17));
      EXPECT_TRUE(test::agreesTo(p.cartY, kAbsent, 17));
    }
  }
}

TEST(DataSet, DifferenceWithItselfIsZeroOnAnEvenGrid) {
  const DataSet s = setOf({-3, -2.9, 0, 0.2, 7}, {5, -1, 2.5, 1e10, -4});
  DataSet result;
  DataSet::combine(result, s, s, false);
  ASSERT_EQ(result.count(), s.count());
  const double step = (7.0 - -3.0) / 4.0;
  for (std::size_t i = 0; i < result.count(); ++i) {
    EXPECT_TRUE(test::agreesTo(result.at(i).y, 0.0, 17));
    EXPECT_TRUE(test::agreesTo(result.at(i).x, -3.0 + step * static_cast<double>(i), 15, 1e-15));
  }
}

TEST(DataSet, CombineLeavesTheResultWhenSourcesDoNotMatch) {
  struct Case {
    const char* name;
    std::vector<double> a, b;
  };
  const Case cases[] = {
      {"5 and 6 points", {1, 2, 3, 4, 5}, {1, 2, 3, 4, 5, 6}},
      {"6 and 5 points", {1, 2, 3, 4, 5, 6}, {1, 2, 3, 4, 5}},
      {"a empty", {}, {1}},
      {"b empty", {1}, {}},
      {"a without data", {kAbsent, 1}, {1, 2}},
      {"b without data", {1, 2}, {kAbsent, 2}},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    DataSet result = setOf({9, 8}, {-1, -2});
    for (bool add : {true, false}) {
      DataSet::combine(result, setOfY(c.a), setOfY(c.b), add);
      ASSERT_EQ(result.count(), 2u);
      EXPECT_TRUE(test::agreesTo(result.at(0).x, 9.0, 17));
      EXPECT_TRUE(test::agreesTo(result.at(1).y, -2.0, 17));
    }
  }
}

TEST(DataSet, TurningPointsIncludeTheEnds) {
  using E = Extremum;
  struct Case {
    const char* name;
    std::vector<double> ys;
    bool built;
    std::vector<Extremum> extrema;
  };
  const Case cases[] = {
      {"no points", {}, false, {}},
      {"one point", {3}, true, {}},
      {"rising pair", {1, 2}, true, {{E::Minimum, 0}}},
      {"falling pair", {2, 1}, true, {{E::Minimum, 1}}},
      {"flat pair", {2, 2}, true, {}},
      {"peak", {0, 1, 0}, true, {{E::Minimum, 0}, {E::Maximum, 1}, {E::Minimum, 2}}},
      {"valley", {1, 0, 1}, true, {{E::Minimum, 1}}},
      {"wave",
       {0, 2, 1, 3, 0},
       true,
       {{E::Minimum, 0}, {E::Maximum, 1}, {E::Minimum, 2}, {E::Maximum, 3}, {E::Minimum, 4}}},
      {"flat top", {0, 1, 1, 0}, true, {{E::Minimum, 0}, {E::Minimum, 3}}},
      {"flat bottom", {1, 0, 0, 1}, true, {}},
      {"constant", {3, 3, 3}, true, {}},
      {"monotone rise", {1, 2, 3, 4}, true, {{E::Minimum, 0}}},
      {"monotone fall", {4, 3, 2, 1}, true, {{E::Minimum, 3}}},
      {"plateau then peak", {1, 1, 2, 1}, true, {{E::Maximum, 2}, {E::Minimum, 3}}},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    DataSet s = setOfY(c.ys);
    EXPECT_EQ(s.findExtrema(), c.built);
    EXPECT_EQ(s.extremaValid(), c.built);
    EXPECT_EQ(s.extrema(), c.extrema);
    // Once per fill: a second call changes nothing and says so.
    EXPECT_FALSE(s.findExtrema());
    EXPECT_EQ(s.extrema(), c.extrema);
  }
}

TEST(DataSet, ChangesToThePointsRebuildTheTurningPoints) {
  using E = Extremum;
  struct Case {
    const char* name;
    void (*change)(DataSet&);
    std::vector<Extremum> after;
  };
  const Case cases[] = {
      {"clear", [](DataSet& s) { s.clear(); }, {}},
      {"y edited", [](DataSet& s) { s.setY(2, 5.0); }, {{E::Minimum, 0}}},
      {"y edited in the table", [](DataSet& s) { s.setYAt(1, -1.0); }, {{E::Minimum, 1}}},
      {"y appended in the table",
       [](DataSet& s) { s.setYAt(3, 2.0); },
       {{E::Minimum, 0}, {E::Maximum, 1}, {E::Minimum, 2}}},
      {"x appended in the table", [](DataSet& s) { s.setXAt(3, 9.0); }, {{E::Minimum, 0}, {E::Maximum, 1}}},
      {"point appended",
       [](DataSet& s) {
         s.append(DataPoint{3.0, 4.0});
       },
       {{E::Minimum, 0}, {E::Maximum, 1}, {E::Minimum, 2}}},
      {"replaced",
       [](DataSet& s) {
         s.assign({DataPoint{0.0, 2.0}, DataPoint{1.0, 1.0}});
       },
       {{E::Minimum, 1}}},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    DataSet s = setOfY({0, 1, 0});
    ASSERT_TRUE(s.findExtrema());
    c.change(s);
    EXPECT_FALSE(s.extremaValid());
    EXPECT_EQ(s.findExtrema(), s.count() > 0);
    EXPECT_EQ(s.extrema(), c.after);
  }
}

}  // namespace
}  // namespace sonalyx
