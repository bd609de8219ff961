#include "core/speech/CoordinatePhrase.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace sonalyx {
namespace {

TEST(CoordinatePhrase, SpeaksEachValueWithTheChosenDecimals) {
  const double inf = std::numeric_limits<double>::infinity();
  const struct {
    double x;
    double y;
    int numDec;
    const char* expected;
  } cases[] = {
      {3.14159265, -2.0, 5, "x = 3.14159, y = -2"},
      {123.4, 0.05, 1, "x = 123.4, y = 0.1"},
      {2.0, 0.333333, 3, "x = 2, y = 0.333"},
      {0.0, -4.0, 5, "x = 0, y = -4"},
      {2.5, -2.5, 0, "x = 3, y = -3"},
      {-0.0, 1.0 / 3.0, 99, "x = 0, y = 0.333333333333333"},
      // Too small for the decimals: as many significant digits instead.
      {0.0000123456, -0.004, 3, "x = 0.0000123, y = -0.004"},
      {0.0004, 0.3, 0, "x = 0.0004, y = 0.3"},
      // Beyond 1e15 and below 1e-15 a power of ten, in words.
      {1.5e20, -2.5e-16, 5, "x = 1.5 times ten to the 20, y = -2.5 times ten to the minus 16"},
      {9.9996e15, 1e15, 3, "x = 1 times ten to the 16, y = 1 times ten to the 15"},
      {999999999999999.0, 1e-15, 2, "x = 999999999999999, y = 0.000000000000001"},
      {std::nan(""), inf, 5, "x = Error, y = Infinity"},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(coordinatePhrase(c.x, c.y, c.numDec), c.expected) << c.x << ", " << c.y << " with " << c.numDec;
  }
}

TEST(CoordinatePhrase, TranslatesThePowerOfTenWords) {
  const auto french = [](const std::string& text) {
    return text == "times ten to the" ? "fois dix puissance" : text == "minus" ? "moins" : text;
  };
  EXPECT_EQ(spokenValue(-1.5e-20, 5, french), "-1.5 fois dix puissance moins 20");
}

}  // namespace
}  // namespace sonalyx
