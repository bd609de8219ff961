#include "core/graph/GraphMapping.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <stdexcept>

#include "support/CurveData.h"
#include "support/NumericCompare.h"

namespace sonalyx {
namespace {

using test::agreesTo;
using test::rangeOf;

TEST(GraphMapping, RoundsExactHalvesDown) {
  const struct {
    double v;
    double expected;
  } cases[] = {{2.5, 2.0}, {-2.5, -3.0}, {2.6, 3.0}, {1e15 + 0.5, 1e15}};
  for (const auto& c : cases) EXPECT_TRUE(agreesTo(roundHalfDown(c.v), c.expected, 17)) << c.v;
}

TEST(GraphMapping, MapsWorldPointsIntoTheRectangle) {
  const struct {
    const char* what;
    GraphRange range;
    PlotRect rect;
    PlanePoint world;
    DevicePoint expected;
  } cases[] = {
      {"bottom left corner", rangeOf(-1, 3, -10, 10), {0, 0, 800, 400}, {-1, -10}, {0, 400}},
      {"x halfway between units goes to the lower", rangeOf(0, 10, 0, 10), {0, 0, 10, 10}, {2.5, 5}, {2, 5}},
      {"y halfway rounds its height down", rangeOf(0, 10, 0, 10), {0, 0, 10, 10}, {5, 2.5}, {5, 8}},
      {"offset rectangle, top right", rangeOf(0, 4, 0, 8), {100, 50, 400, 800}, {4, 8}, {500, 50}},
      {"outside the range", rangeOf(0, 4, 0, 8), {0, 0, 400, 800}, {-1, 10}, {-100, -200}},
  };
  for (const auto& c : cases) {
    const auto device = worldToDevice(c.world, c.range, c.rect);
    ASSERT_TRUE(device.has_value()) << c.what;
    EXPECT_EQ(*device, c.expected) << c.what;
  }
}

TEST(GraphMapping, RefusesWhatCannotBePlacedAndHoldsFarPointsInBounds) {
  const PlotRect rect{0, 0, 800, 400};
  const double nan = std::nan("");
  EXPECT_FALSE(worldToDevice({1, 1}, rangeOf(2, 2, 0, 1), rect)) << "no width";
  EXPECT_FALSE(worldToDevice({1, 1}, rangeOf(0, 1, 3, 3), rect)) << "no height";
  EXPECT_FALSE(worldToDevice({nan, 0}, rangeOf(0, 1, 0, 1), rect)) << "x not a number";
  EXPECT_FALSE(worldToDevice({0, nan}, rangeOf(0, 1, 0, 1), rect)) << "y not a number";

  const auto far = worldToDevice({1e300, -1e300}, rangeOf(0, 1, 0, 1), rect);
  ASSERT_TRUE(far.has_value());
  EXPECT_EQ(far->x, kDeviceLimit);
  EXPECT_EQ(far->y, kDeviceLimit);
  const auto infinite =
      worldToDevice({-std::numeric_limits<double>::infinity(), 0.5}, rangeOf(0, 1, 0, 1), rect);
  ASSERT_TRUE(infinite.has_value());
  EXPECT_EQ(infinite->x, -kDeviceLimit);
}

TEST(GraphMapping, DeviceToWorldUndoesTheMappingWithinHalfAUnit) {
  const GraphRange range = rangeOf(-7, 13, -0.5, 2.5);
  const PlotRect rect{30, 20, 640, 480};
  for (const PlanePoint world : {PlanePoint{-7, -0.5}, PlanePoint{3.3333, 1.7}, PlanePoint{13, 2.5}}) {
    const auto back = deviceToWorld(*worldToDevice(world, range, rect), range, rect);
    ASSERT_TRUE(back.has_value());
    EXPECT_TRUE(agreesTo(back->x, world.x, 15, 20.0 / 640 / 2));
    EXPECT_TRUE(agreesTo(back->y, world.y, 15, 3.0 / 480 / 2));
  }
  EXPECT_FALSE(deviceToWorld({0, 0}, range, PlotRect{0, 0, 0, 10}));
}

TEST(GraphMapping, FindsAnAxisOnlyWhenZeroIsInRange) {
  const PlotRect rect{0, 0, 800, 400};
  const struct {
    GraphRange range;
    std::optional<std::int32_t> yAxis;
    std::optional<std::int32_t> xAxis;
  } cases[] = {
      {rangeOf(-1, 3, -10, 30), 200, 300},
      {rangeOf(1, 3, 1, 30), std::nullopt, std::nullopt},
      {rangeOf(0, 3, -5, 0), 0, 0},
      {rangeOf(-3, 0, 0, 5), 800, 400},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(yAxisPosition(c.range, rect), c.yAxis) << c.range.left << ".." << c.range.right;
    EXPECT_EQ(xAxisPosition(c.range, rect), c.xAxis) << c.range.bottom << ".." << c.range.top;
  }
}

TEST(GraphMapping, ReplacesAZoomBelowOneHundredth) {
  const float inf = std::numeric_limits<float>::infinity();
  const struct {
    float requested;
    float expected;
  } cases[] = {
      {0.01f, 0.01f}, {0.0099f, 1.0f}, {-2.0f, 1.0f}, {2.5f, 2.5f}, {inf, 1.0f}, {std::nanf(""), 1.0f},
  };
  for (const auto& c : cases) EXPECT_TRUE(agreesTo(acceptedZoom(c.requested), c.expected, 7)) << c.requested;
}

TEST(GraphMapping, CentresThePrintedPlotAndLeavesATenthForLabels) {
  const struct {
    const char* what;
    std::int32_t extentX, extentY;
    double width, height, pageWidth, pageHeight;
    PlotRect expected;
  } cases[] = {
      // w 600, h 800, a tenth (60) of the width moves to the left margin.
      {"6 by 8 on letter, landscape", 1100, 850, 6, 8, 11, 8.5, {310, 25, 540, 800}},
      // w = trunc(353.29) = 353, h = trunc(272.45) = 272, tenth 35, halves truncated.
      {"sizes that do not divide", 1001, 999, 3, 3, 8.5, 11, {359, 363, 318, 272}},
  };
  for (const auto& c : cases) {
    const PlotRect rect = printLayout(c.extentX, c.extentY, c.width, c.height, c.pageWidth, c.pageHeight);
    EXPECT_EQ(rect, c.expected) << c.what;
  }
}

TEST(GraphMapping, RefusesPrintSizesThatMakeNoPlot) {
  EXPECT_THROW(printLayout(850, 1100, 0, 8, 8.5, 11), std::invalid_argument);
  EXPECT_THROW(printLayout(850, 1100, 6, 8, 8.5, std::nan("")), std::invalid_argument);
  EXPECT_THROW(printLayout(850, 1100, 1e12, 8, 8.5, 11), std::invalid_argument);
  EXPECT_TRUE(agreesTo(printUnitsPerMillimetre(850, 8.5), 100.0 / 25.4, 14));
  EXPECT_THROW(printUnitsPerMillimetre(850, 0.0), std::invalid_argument);
}

}  // namespace
}  // namespace sonalyx
