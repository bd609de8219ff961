#include "core/speech/EngineRange.h"

#include <gtest/gtest.h>

#include <limits>

namespace sonalyx {
namespace {

TEST(EngineRange, MapsAPercentOntoTheSpanTruncatingTowardZero) {
  const struct {
    EngineRange range;
    double percent;
    int expected;
  } cases[] = {
      {{0, 255}, 50, 127},    {{0, 255}, 0, 0},
      {{0, 255}, 100, 255},   {{80, 450}, 50, 265},
      {{80, 450}, 33, 202},   {{0, 200}, 1, 2},
      {{-100, 100}, 33, -34},  // -34.0 exactly
      {{-100, 100}, 1, -98},  {{-100, 100}, 49, -2},
      {{-10, 10}, 47, 0},  // -0.6 becomes 0
      {{0, 255}, 150, 382},   {{0, std::numeric_limits<int>::max()}, 1e6, std::numeric_limits<int>::max()},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(c.range.fromPercent(c.percent), c.expected)
        << c.percent << "% of " << c.range.minimum << ".." << c.range.maximum;
  }
}

}  // namespace
}  // namespace sonalyx
