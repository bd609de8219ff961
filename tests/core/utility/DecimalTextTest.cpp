#include "core/utility/DecimalText.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstddef>
#include <limits>

#include "support/NumericCompare.h"

namespace sonalyx {
namespace {

struct DecimalCase {
  const char* text;
  double value;
  std::size_t consumed;
};

TEST(DecimalText, ReadsTheLeadingNumberLikeTheRuntime) {
  const double inf = std::numeric_limits<double>::infinity();
  const DecimalCase cases[] = {
      {"-10", -10.0, 3},  {"  \t+3.25xyz", 3.25, 8},
      {"1,5", 1.0, 1},    {".5", 0.5, 2},
      {"5.", 5.0, 2},     {"1e+", 1.0, 1},
      {"2E3", 2000.0, 3}, {"abc", 0.0, 0},
      {"-", 0.0, 0},      {".", 0.0, 0},
      {"inf", 0.0, 0},    {"0x10", 0.0, 1},
      {"1e999", inf, 5},  {"-1e999", -inf, 6},
      {"1e-999", 0.0, 6}, {"1.23456789e+011", 123456789000.0, 15},
  };
  for (const auto& c : cases) {
    std::size_t consumed = 99;
    const double v = decimalToDouble(c.text, &consumed);
    EXPECT_TRUE(test::agreesTo(v, c.value, 15)) << '"' << c.text << '"';
    EXPECT_EQ(consumed, c.consumed) << '"' << c.text << '"';
  }
}

}  // namespace
}  // namespace sonalyx
