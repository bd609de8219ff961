#include "core/graph/GraphScaling.h"

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "core/graph/GraphTicks.h"
#include "support/CurveData.h"
#include "support/NumericCompare.h"

namespace sonalyx {
namespace {

using test::agreesTo;
using test::rangeOf;

void expectRange(const GraphRange& actual, const GraphRange& expected, const char* what) {
  EXPECT_TRUE(agreesTo(actual.left, expected.left, 14, 1e-14)) << what << ": left";
  EXPECT_TRUE(agreesTo(actual.right, expected.right, 14, 1e-14)) << what << ": right";
  EXPECT_TRUE(agreesTo(actual.bottom, expected.bottom, 14, 1e-14)) << what << ": bottom";
  EXPECT_TRUE(agreesTo(actual.top, expected.top, 14, 1e-14)) << what << ": top";
}

TEST(GraphScaling, AutoScaledAxesFollowTheDataWithAMargin) {
  const GraphRange settings = rangeOf(-10, 10, -10, 10);
  const DataSet ramp = test::pointsAt({{0, -1}, {2, 1}, {4, 0}});
  const DataSet flat = test::pointsAt({{2, 5}, {2, 5}});
  const DataSet empty;
  DataSet withAbsent = test::pointsAt({{0, 1}, {1, kAbsent}, {2, 3}});
  const struct {
    const char* what;
    GraphRange settings;
    bool autoX, autoY;
    const DataSet* data;
    GraphRange expected;
  } cases[] = {
      {"no auto scale: the settings", settings, false, false, &ramp, settings},
      {"x auto: 5 % of 4 either side", settings, true, false, &ramp, rangeOf(-0.2, 4.2, -10, 10)},
      {"both auto", settings, true, true, &ramp, rangeOf(-0.2, 4.2, -1.1, 1.1)},
      {"all values alike: 1 either side", settings, true, true, &flat, rangeOf(1, 3, 4, 6)},
      {"equal settings widen too", rangeOf(5, 5, -2, -2), false, false, &ramp, rangeOf(4, 6, -3, -1)},
      {"no points: the settings", settings, true, true, &empty, settings},
      {"an absent y leaves y to the settings", settings, true, true, &withAbsent,
       rangeOf(-0.1, 2.1, -10, 10)},
  };
  for (const auto& c : cases) {
    expectRange(graphRange(c.settings, c.autoX, c.autoY, *c.data, false), c.expected, c.what);
  }
}

TEST(GraphScaling, APolarSetIsScaledByItsCartesianPoints) {
  DataSet polar = test::pointsAt({{0.0, 2.0}, {1.5707963267948966, 1.0}});
  polar.toCartesian();  // (2, 0) and (about 0, 1)
  const GraphRange range = graphRange(rangeOf(-10, 10, -10, 10), true, true, polar, true);
  expectRange(range, rangeOf(-0.1, 2.1, -0.05, 1.05), "polar");
  const auto extent = dataExtent(polar, false);
  ASSERT_TRUE(extent.has_value());
  expectRange(*extent, rangeOf(0.0, 1.5707963267948966, 1.0, 2.0), "stored angle and radius");
  EXPECT_FALSE(dataExtent(DataSet{}, false).has_value());
}

TEST(GraphScaling, TheLabelFactorFollowsTheYRangeDrawn) {
  const GraphRange settings = rangeOf(-10, 10, -10, 10);
  const DataSet tall = test::pointsAt({{0, 0}, {1, 50000}});
  const struct {
    bool autoX, autoY;
    double factor;
  } cases[] = {{false, false, 1.0}, {true, false, 1.0}, {false, true, 1e-4}, {true, true, 1e-4}};
  for (const auto& c : cases) {
    const GraphRange drawn = graphRange(settings, c.autoX, c.autoY, tall, false);
    EXPECT_TRUE(agreesTo(graphYLabelFactor(drawn), c.factor, 14)) << c.autoX << c.autoY;
  }
}

TEST(GraphRange, EverySetterNormalisesButAComparisonWithNaNSwapsNothing) {
  const double nan = std::nan("");
  const struct {
    const char* what;
    void (*change)(GraphRange&);
    GraphRange expected;
  } cases[] = {
      {"all four", [](GraphRange& r) { r.set(std::nan(""), 5, 7, -5); }, {nan, -5, 7, 5}},
      {"x only", [](GraphRange& r) { r.setX(4, 1); }, {0, 1, 0, 4}},
      {"y only", [](GraphRange& r) { r.setY(6, -6); }, {6, 0, -6, 0}},
      {"NaN left", [](GraphRange& r) { r.setX(std::nan(""), -3); }, {0, nan, 0, -3}},
      {"NaN top", [](GraphRange& r) { r.setY(3, std::nan("")); }, {nan, 0, 3, 0}},
  };
  for (const auto& c : cases) {
    GraphRange range;
    c.change(range);
    expectRange(range, c.expected, c.what);
  }
}

}  // namespace
}  // namespace sonalyx
