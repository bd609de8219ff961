#include "core/speech/CoordinatePhrase.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace sonalyx {
namespace {

struct PhraseCase {
  double x;
  double y;
  int numDec;
  const char* expected;
};

TEST(CoordinatePhrase, SpeaksBothValuesWithTheChosenSignificantDigits) {
  const double inf = std::numeric_limits<double>::infinity();
  const PhraseCase cases[] = {
      {3.14159265, -2.0, 5, "x = 3.1416, y = -2"},
      {123.4, 0.05, 1, "x = 1e+002, y = 0.05"},
      {0.1, 2.0 / 3.0, 19, "x = 0.1000000000000000056, y = 0.6666666666666666297"},
      // 0 digits reads like 1, and a negative count like 0.
      {123.4, 5.5, 0, "x = 1e+002, y = 6"},
      {123.4, 5.5, -3, "x = 1e+002, y = 6"},
      {std::nan(""), inf, 5, "x = Error, y = Infinity"},
      {-inf, -0.0, 5, "x = -Infinity, y = -0"},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(coordinatePhrase(c.x, c.y, c.numDec), c.expected) << c.x << ", " << c.y << " with " << c.numDec;
  }
}

TEST(CoordinatePhrase, SpeaksSingleValuesWithTheSamePrecision) {
  const PhraseCase cases[] = {
      {3.14159265, 0.0, 5, "3.1416"},
      {123.4, 0.0, 1, "1e+002"},
      {2.5, 0.0, 0, "2"},
      {0.5, 0.0, 1000, "0.5"},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(spokenValue(c.x, c.numDec), c.expected) << c.x << " with " << c.numDec;
  }
}

}  // namespace
}  // namespace sonalyx
