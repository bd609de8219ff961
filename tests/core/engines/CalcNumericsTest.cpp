#include "core/engines/CalcNumerics.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <limits>
#include <numbers>

#include "support/NumericCompare.h"

namespace sonalyx::calcnumerics {
namespace {

// Seventeen digits tell neighbouring doubles apart.
constexpr int kEveryDigit = 17;

TEST(CalcNumerics, DecimalExponentIsExactAtPowersOfTen) {
  struct Case {
    double x;
    int exponent;
  };
  const Case cases[] = {{1.0, 0},
                        {9.999999999999998, 0},
                        {10.0, 1},
                        {1000.0, 3},
                        {999.9999999999999, 2},
                        {0.1, -1},
                        {0.09999999999999999, -2},
                        {1e-300, -300},
                        {-1e22, 22},
                        {1e23, 22},  // the double nearest 1e23 lies below it

                        {5e-324, -324}};
  for (const auto& c : cases) EXPECT_EQ(decimalExponent(c.x), c.exponent) << c.x;
}

TEST(CalcNumerics, RoundingGivesTheDoubleNearestTheDecimal) {
  struct Case {
    double x;
    int exponent;
    double expected;
  };
  const Case cases[] = {
      {0.1 + 0.2, -15, 0.3},
      {0.7 + 0.1, -15, 0.8},
      {2.5, 0, 3.0},
      {-2.5, 0, -3.0},
      {1234.5678, 2, 1200.0},
      {1234.5678, -2, 1234.57},
      {4.9e-16, -15, 0.0},
      {5.1e-16, -15, 1e-15},
      {1.23456789e-30, -35, 1.23457e-30},  // beyond the exact powers of ten
      {4e-31, -30, 0.0},
      {6e-31, -30, 1e-30},
      {1e300 / 3.0, 290, 3.333333333e299},
      {std::numbers::pi, -400, std::numbers::pi},  // finer than a double: unchanged
  };
  for (const auto& c : cases) {
    EXPECT_TRUE(test::agreesTo(roundToDecimal(c.x, c.exponent), c.expected, kEveryDigit))
        << c.x << " at 1e" << c.exponent;
  }
  EXPECT_FALSE(std::signbit(roundToDecimal(-1e-20, -15)));
  EXPECT_TRUE(test::agreesTo(roundSignificant(2.0000000000000004), 2.0, kEveryDigit));
  EXPECT_TRUE(test::agreesTo(roundSignificant(1.0 / 3.0), 0.333333333333333, kEveryDigit));
  EXPECT_TRUE(test::agreesTo(roundSignificant(123456.789, 4), 123500.0, kEveryDigit));
}

TEST(CalcNumerics, SumsLoseOnlyTheResidueOfCancellation) {
  struct Case {
    double a;
    double b;
    double expected;
  };
  const Case cases[] = {
      {0.1, 0.2, 0.3},       {0.1 + 0.2, -0.3, 0.0}, {1.00000000000001, -1.0, 1e-14},
      {1e-20, 1e-20, 2e-20}, {1e20, 1.0, 1e20},      {-0.5, 0.5, 0.0},
      {0.0, 0.0, 0.0},
  };
  for (const auto& c : cases) {
    EXPECT_TRUE(test::agreesTo(roundedSum(c.a, c.b), c.expected, kEveryDigit)) << c.a << " + " << c.b;
  }
  // Beyond what the display shows the sum stays large, to be reported as overflow.
  EXPECT_TRUE(roundedSum(1e308L, 1e308L) > kLargestShown);
}

TEST(CalcNumerics, NoiseAndWholeParts) {
  struct Case {
    double r;
    double noise;
    double expected;
  };
  const Case cases[] = {
      {3.2384617236380e-15, 3.4e-19, 3.238e-15},  // cancellation: four digits are real
      {-5e-20, 3.4e-19, 0.0},
      {0.8414709848078965, 1e-19, 0.8414709848078965},  // noise far below the shown digits
      {1.2345678, 0.0, 1.2345678},
      {0.34999350217129294, 1e-13, 0.349993502171},
  };
  for (const auto& c : cases) {
    EXPECT_TRUE(test::agreesTo(roundAwayNoise(c.r, c.noise), c.expected, kEveryDigit)) << c.r;
  }
  struct Whole {
    double x;
    double expected;
  };
  const Whole wholes[] = {{2.9999999999999996, 3.0},
                          {2.99999999999999, 2.0},
                          {-2.5, -2.0},
                          {-0.9999999999999999, -1.0},
                          {4611686018427387904.0, 4611686018427387904.0},
                          {0.4, 0.0}};
  for (const auto& w : wholes) EXPECT_TRUE(test::agreesTo(wholePart(w.x), w.expected, kEveryDigit)) << w.x;
}

TEST(CalcNumerics, SineAndCosineOfExactAngles) {
  struct Case {
    Real angle;
    int unit;
    double sine;
    double cosine;
  };
  const double half = std::sqrt(0.5);
  const double root3 = std::sqrt(3.0) / 2.0;
  const Case cases[] = {
      {0.0, kDegrees, 0.0, 1.0},
      {90.0, kDegrees, 1.0, 0.0},
      {180.0, kDegrees, 0.0, -1.0},
      {270.0, kDegrees, -1.0, 0.0},
      {360.0, kDegrees, 0.0, 1.0},
      {-90.0, kDegrees, -1.0, 0.0},
      {3.6e20, kDegrees, 0.0, 1.0},
      {30.0, kDegrees, 0.5, root3},
      {150.0, kDegrees, 0.5, -root3},
      {-300.0, kDegrees, root3, 0.5},
      {45.0, kDegrees, half, half},
      {315.0, kDegrees, -half, half},
      {100.0, kGrads, 1.0, 0.0},
      {400.0, kGrads, 0.0, 1.0},
      {50.0, kGrads, half, half},
      {-200.0, kGrads, 0.0, -1.0},
      {std::numbers::pi_v<Real>, kRadians, 0.0, -1.0},
      {std::numbers::pi_v<Real> / 2, kRadians, 1.0, 0.0},
      {std::numbers::pi_v<Real> * 100, kRadians, 0.0, 1.0},
      {1.0, kRadians, std::sin(1.0), std::cos(1.0)},
      {1e-20, kRadians, 1e-20, 1.0},
      {20.0, kDegrees, std::sin(std::numbers::pi / 9), std::cos(std::numbers::pi / 9)},
  };
  for (const auto& c : cases) {
    const SineCosine r = angleSineCosine(c.angle, c.unit);
    EXPECT_TRUE(test::agreesTo(r.sine, c.sine, 15)) << c.angle << " unit " << c.unit;
    EXPECT_TRUE(test::agreesTo(r.cosine, c.cosine, 15)) << c.angle << " unit " << c.unit;
    // Exact zeros, not residues that would show as 6.12e-017.
    if (c.sine == 0.0) {
      EXPECT_EQ(r.sine, 0.0) << c.angle;
    }
    if (c.cosine == 0.0) {
      EXPECT_EQ(r.cosine, 0.0) << c.angle;
    }
  }
}

TEST(CalcNumerics, IntegerRootsAreExact) {
  struct Case {
    std::uint64_t x;
    std::uint64_t n;
    std::uint64_t root;
  };
  const Case cases[] = {
      {0, 2, 0},
      {1, 5, 1},
      {15, 2, 3},
      {16, 2, 4},
      {1000000000000000000ULL, 3, 1000000},
      {999999999999999999ULL, 3, 999999},
      {std::numeric_limits<std::uint64_t>::max(), 2, 4294967295ULL},
      {std::uint64_t{1} << 63, 3, 2097152},
      {std::uint64_t{1} << 63, 63, 2},
      {(std::uint64_t{1} << 63) - 1, 63, 1},
      {12345, 1, 12345},
      {12345, 64, 1},
  };
  for (const auto& c : cases) EXPECT_EQ(integerRoot(c.x, c.n), c.root) << c.x << " root " << c.n;
}

TEST(CalcNumerics, TruncationToSixtyFourBits) {
  struct Case {
    double x;
    bool fits;
    std::int64_t result;
  };
  const Case cases[] = {
      {2.9, true, 2},
      {-2.9, true, -2},
      {-9223372036854775808.0, true, std::numeric_limits<std::int64_t>::min()},
      {9223372036854775808.0, false, 0},
      {9223372036854774784.0, true, 9223372036854774784LL},
      {-1e19, false, 0},
      {std::nan(""), false, 0},
  };
  for (const auto& c : cases) {
    std::int64_t r = 0;
    EXPECT_EQ(truncateToInt64(c.x, r), c.fits) << c.x;
    if (c.fits) {
      EXPECT_EQ(r, c.result) << c.x;
    }
  }
}

}  // namespace
}  // namespace sonalyx::calcnumerics
