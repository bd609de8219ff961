#include "core/math/PolynomialFit.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

#include "core/math/FitModel.h"
#include "core/math/FitTestData.h"
#include "core/math/RegressionFit.h"
#include "support/NumericCompare.h"

namespace sonalyx {
namespace {

using test::agreesTo;
using test::makeSet;
using test::Points;

// Values of the polynomial with coefficients highest power first, plus an
// optional disturbance per point.
Points polynomialPoints(const std::vector<double>& highestFirst, const std::vector<double>& xs,
                        const std::vector<double>& disturbance = {}) {
  Points points;
  for (std::size_t i = 0; i < xs.size(); ++i) {
    double y = 0.0;
    for (double c : highestFirst) y = y * xs[i] + c;
    if (!disturbance.empty()) y += disturbance[i];
    points.emplace_back(xs[i], y);
  }
  return points;
}

std::vector<std::string> header(int model, std::size_t count) {
  return {"Number of points: " + std::to_string(count), "",
          "Regression analysis:", std::string(fitModelTitle(model)), ""};
}

struct PolynomialCase {
  const char* what;
  int model;
  std::vector<double> coefficients;  // highest power first, as written
  std::vector<double> xs;
  std::vector<double> disturbance;
  int digits;
};

TEST(PolynomialModels, RecoverTheCoefficientsTheDataWereMadeFrom) {
  // Disturbances orthogonal to every polynomial of the fitted degree on equally
  // spaced x (the 4th and 5th differences) leave the least-squares fit unchanged.
  const std::vector<double> fourth = {1, -4, 6, -4, 1};
  const std::vector<double> fifth = {-0.1, 0.5, -1, 1, -0.5, 0.1};
  const PolynomialCase cases[] = {
      {"quadratic through 6 points", kQuadratic, {2, -3, 1}, {-2, -1, 0, 1, 2, 3}, {}, 13},
      {"quadratic, least squares", kQuadratic, {2, 1, 3}, {-2, -1, 0, 1, 2}, fourth, 13},
      {"cubic through 4 points", kCubic, {0.5, -1, 4, -2}, {-1, 0.5, 2, 4}, {}, 13},
      {"cubic, least squares", kCubic, {0.5, -1, 4, -2}, {-1, 0, 1, 2, 3, 4}, fifth, 13},
      // Without refinement of the solution the last digits of this one are lost.
      {"quartic through 5 points", kQuartic, {1, 0.25, 0.5, -1, 2}, {3, 4, 5, 6, 7}, {}, 14},
      {"quartic, least squares", kQuartic, {1, -2, 0.25, 3, -7}, {0, 1, 2, 3, 4, 5}, fifth, 13},
      {"quartic with x in thousandths",
       kQuartic,
       {3e8, -2e6, 4e3, 5, -1},
       {0, 1e-3, 2e-3, 3e-3, 4e-3, 5e-3},
       {},
       9},
      // (x − 1003)^4 on x = 1000..1006: y stays below 82 while the coefficients
      // reach 1.0e12, the hardest case for powers of x.
      {"quartic far from 0",
       kQuartic,
       {1, -4012, 6036054, -4036108108, 1012054108081},
       {1000, 1001, 1002, 1003, 1004, 1005, 1006},
       {},
       11},
  };
  for (const auto& c : cases) {
    const FitResult result = runFit(c.model, makeSet(polynomialPoints(c.coefficients, c.xs, c.disturbance)));
    EXPECT_TRUE(result.ran) << c.what;
    ASSERT_EQ(result.lines.size(), 5 + c.coefficients.size()) << c.what;
    EXPECT_EQ(std::vector<std::string>(result.lines.begin(), result.lines.begin() + 5),
              header(c.model, c.xs.size()))
        << c.what;
    ASSERT_EQ(result.coefficients.size(), c.coefficients.size()) << c.what;
    for (std::size_t i = 0; i < c.coefficients.size(); ++i) {
      EXPECT_TRUE(agreesTo(result.coefficients[i], c.coefficients[i], c.digits)) << c.what << " #" << i;
      EXPECT_EQ(result.lines[5 + i].substr(0, 3), std::string(1, static_cast<char>('a' + i)) + ": ")
          << c.what;
    }
  }
}

TEST(PolynomialModels, WriteTheValuesAsTheListShowsThem) {
  const FitResult result = runFit(kCubic, makeSet(polynomialPoints({0.5, -1, 4, -2}, {-1, 0, 1, 2, 3})));
  const std::vector<std::string> expected = {"Number of points: 5",
                                             "",
                                             "Regression analysis:",
                                             "Cubic: y = ax^3 + bx^2 + cx + d",
                                             "",
                                             "a: 0.5",
                                             "b: -1",
                                             "c: 4",
                                             "d: -2"};
  EXPECT_EQ(result.lines, expected);
}

TEST(PolynomialModels, CoefficientsBelow1e9AreZero) {
  struct Case {
    double square;    // the x² coefficient the data were made from
    double constant;  // and the constant
    double expectedSquare;
    double expectedConstant;
  };
  const Case cases[] = {
      {5e-10, 1.0, 0.0, 1.0},
      {-9e-10, 1.0, 0.0, 1.0},
      {2e-9, 1.0, 2e-9, 1.0},
      {1.0, 3e-10, 1.0, 0.0},
  };
  for (const auto& c : cases) {
    const FitResult result =
        runFit(kQuadratic, makeSet(polynomialPoints({c.square, 2.0, c.constant}, {0, 1, 2, 3, 4})));
    ASSERT_EQ(result.coefficients.size(), 3u) << c.square;
    if (c.expectedSquare == 0.0) {
      EXPECT_TRUE(agreesTo(result.coefficients[0], 0.0, 15)) << c.square;
      EXPECT_EQ(result.lines[5], "a: 0") << c.square;
    } else {
      EXPECT_TRUE(agreesTo(result.coefficients[0], c.expectedSquare, 6)) << c.square;
    }
    if (c.expectedConstant == 0.0) {
      EXPECT_TRUE(agreesTo(result.coefficients[2], 0.0, 15)) << c.constant;
      EXPECT_EQ(result.lines[7], "c: 0") << c.constant;
    } else {
      EXPECT_TRUE(agreesTo(result.coefficients[2], c.expectedConstant, 12)) << c.constant;
    }
    EXPECT_TRUE(agreesTo(result.coefficients[1], 2.0, 12)) << c.square;
  }
}

struct FailureCase {
  const char* what;
  int model;
  Points points;
  const char* message;
};

TEST(PolynomialModels, ReportTooFewOrDependentPoints) {
  const double inf = std::numeric_limits<double>::infinity();
  const char* notEnough = "Not enough points for fit.";
  const char* invalid = "Invalid data set for polynomial fit.";
  const FailureCase cases[] = {
      {"quadratic of 2 points", kQuadratic, {{1, 1}, {2, 4}}, notEnough},
      {"cubic of 3 points", kCubic, {{1, 1}, {2, 4}, {3, 9}}, notEnough},
      {"quartic of 4 points", kQuartic, {{1, 1}, {2, 4}, {3, 9}, {4, 16}}, notEnough},
      {"quadratic on 2 distinct x", kQuadratic, {{1, 1}, {1, 2}, {2, 3}}, invalid},
      {"quartic on 3 distinct x", kQuartic, {{1, 1}, {2, 2}, {3, 3}, {1, 4}, {2, 5}, {3, 6}}, invalid},
      {"cubic with every x the same", kCubic, {{7, 1}, {7, 2}, {7, 3}, {7, 4}}, invalid},
      {"quadratic with an infinite x", kQuadratic, {{1, 1}, {inf, 2}, {2, 3}, {3, 4}}, invalid},
  };
  for (const auto& c : cases) {
    const FitResult result = runFit(c.model, makeSet(c.points));
    EXPECT_TRUE(result.ran) << c.what;
    std::vector<std::string> expected = header(c.model, c.points.size());
    expected.emplace_back(c.message);
    EXPECT_EQ(result.lines, expected) << c.what;
    EXPECT_TRUE(result.coefficients.empty()) << c.what;
  }
}

TEST(PolynomialModels, KeepANaNFromTheData) {
  const FitResult result = runFit(kQuadratic, makeSet({{0, 1}, {1, std::nan("")}, {2, 3}, {3, 5}}));
  ASSERT_EQ(result.lines.size(), 8u);
  EXPECT_EQ(result.lines[5], "a: Error");
  ASSERT_EQ(result.coefficients.size(), 3u);
  EXPECT_TRUE(std::isnan(result.coefficients[0]));
}

}  // namespace
}  // namespace sonalyx
