#include "core/sound/RangeFilter.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <vector>

namespace sonalyx {
namespace {

DataPoint pointAt(double x, double y) {
  DataPoint p;
  p.x = x;
  p.y = y;
  return p;
}

RangeFilter filterOf(double xMin, double xMax, double yMin, double yMax) {
  RangeFilter f;
  f.range.set(yMax, xMin, yMin, xMax);
  return f;
}

TEST(RangeFilter, SoundsTheValueThePlotTypeSelects) {
  DataPoint p = pointAt(1.0, 2.0);
  p.derivative = 3.0;
  p.integral = 4.0;
  p.cartX = 5.0;
  p.cartY = 6.0;
  const struct {
    std::uint32_t plotType;
    bool polar;
    SoundedPoint expected;
  } cases[] = {
      {0, false, {1.0f, 2.0f}}, {0, true, {5.0f, 6.0f}}, {1, false, {1.0f, 3.0f}}, {1, true, {1.0f, 3.0f}},
      {2, false, {1.0f, 4.0f}}, {2, true, {1.0f, 4.0f}}, {3, false, {0.0f, 0.0f}}, {99, true, {0.0f, 0.0f}},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(soundedPoint(p, c.plotType, c.polar), c.expected)
        << "plot type " << c.plotType << ", polar " << c.polar;
  }
}

TEST(RangeFilter, KeepsPointsWithinTheRangeOfEachAxisNotAutoScaled) {
  const float aboveTen = std::nextafter(10.0f, 20.0f);
  const double nan = std::nan("");
  const struct {
    const char* what;
    RangeFilter filter;
    DataPoint point;
    bool expected;
  } cases[] = {
      {"inside", filterOf(-10, 10, -10, 10), pointAt(1, 1), true},
      {"on xMin", filterOf(-10, 10, -10, 10), pointAt(-10, 0), true},
      {"on xMax and yMax", filterOf(-10, 10, -10, 10), pointAt(10, 10), true},
      {"y one float step above yMax", filterOf(-10, 10, -10, 10), pointAt(0, aboveTen), false},
      {"y above yMax by less than a float step", filterOf(-10, 10, -10, 10), pointAt(0, 10 + 1e-7), true},
      {"x below xMin by less than a float step", filterOf(-10, 10, -10, 10), pointAt(-10 - 1e-7, 0), true},
      {"x beyond xMax", filterOf(-10, 10, -10, 10), pointAt(10.01, 0), false},
      {"y below yMin", filterOf(-10, 10, -10, 10), pointAt(0, -10.01), false},
      // 0.1 narrows to 0.10000000149..., above the double bound 0.1.
      {"a bound that narrows upwards", filterOf(-10, 10, -10, 0.1), pointAt(0, 0.1), false},
      {"y not a number", filterOf(-10, 10, -10, 10), pointAt(0, nan), false},
  };
  for (const auto& c : cases) EXPECT_EQ(inGraphRange(c.point, c.filter), c.expected) << c.what;
}

TEST(RangeFilter, AnAutoScaledAxisIsNotTested) {
  const DataPoint far = pointAt(1e6, 1e6);
  const DataPoint farX = pointAt(1e6, 0);
  const DataPoint farY = pointAt(0, 1e6);
  const struct {
    bool autoX, autoY;
    bool far, farX, farY;
  } cases[] = {
      {false, false, false, false, false},
      {true, false, false, true, false},
      {false, true, false, false, true},
      {true, true, true, true, true},
  };
  for (const auto& c : cases) {
    RangeFilter f = filterOf(-10, 10, -10, 10);
    f.autoScaleX = c.autoX;
    f.autoScaleY = c.autoY;
    EXPECT_EQ(inGraphRange(far, f), c.far) << c.autoX << c.autoY;
    EXPECT_EQ(inGraphRange(farX, f), c.farX) << c.autoX << c.autoY;
    EXPECT_EQ(inGraphRange(farY, f), c.farY) << c.autoX << c.autoY;
  }
}

TEST(RangeFilter, TestsTheSoundedPairNotTheStoredOne) {
  DataPoint p = pointAt(1.0, 50.0);  // y outside, its derivative and Cartesian pair inside
  p.derivative = 2.0;
  p.integral = 70.0;
  p.cartX = 3.0;
  p.cartY = 4.0;
  const struct {
    std::uint32_t plotType;
    bool polar;
    bool expected;
  } cases[] = {
      {0, false, false},
      {0, true, true},
      {1, true, true},
      {2, true, false},
  };
  for (const auto& c : cases) {
    RangeFilter f = filterOf(-10, 10, -10, 10);
    f.plotType = c.plotType;
    f.polar = c.polar;
    EXPECT_EQ(inGraphRange(p, f), c.expected) << "plot type " << c.plotType << ", polar " << c.polar;
  }
  DataPoint noDerivative = pointAt(1.0, 1.0);
  RangeFilter derivativeFilter = filterOf(-10, 10, -10, 10);
  derivativeFilter.plotType = 1;
  EXPECT_FALSE(inGraphRange(noDerivative, derivativeFilter)) << "an absent derivative is not heard";
}

TEST(RangeFilter, TheAudibleListAndTheEnginePointsAgree) {
  DataSet set;
  set.assign(
      {pointAt(-20, 0), pointAt(-5, 1), pointAt(0, 30), pointAt(5, -2), pointAt(10, 10), pointAt(15, 0)});
  const RangeFilter f = filterOf(-10, 10, -10, 10);
  const std::vector<std::int32_t> audible = audibleList(set, f);
  EXPECT_EQ(audible, (std::vector<std::int32_t>{1, 3, 4}));
  const std::vector<SoundedPoint> sounded = audiblePoints(set, f);
  ASSERT_EQ(sounded.size(), audible.size());
  for (std::size_t k = 0; k < audible.size(); ++k) {
    EXPECT_EQ(sounded[k], soundedPoint(set.at(static_cast<std::size_t>(audible[k])), 0, false)) << k;
  }
  EXPECT_TRUE(audibleList(DataSet{}, f).empty());
}

TEST(RangeFilter, APointNotHeardHasPositionZero) {
  const std::vector<std::int32_t> audible{1, 3, 4, 9};
  const struct {
    std::int32_t index;
    std::int32_t expected;
  } cases[] = {{1, 0}, {3, 1}, {4, 2}, {9, 3}, {0, 0}, {2, 0}, {10, 0}, {-1, 0}};
  for (const auto& c : cases) EXPECT_EQ(audiblePosition(audible, c.index), c.expected) << c.index;
  EXPECT_EQ(audiblePosition({}, 3), 0);
}

}  // namespace
}  // namespace sonalyx
