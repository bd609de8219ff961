#include "core/math/PolynomialFit.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>
#include <vector>

#include "core/math/FitModel.h"
#include "core/math/FitTestData.h"
#include "core/math/RegressionFit.h"
#include "support/NumericCompare.h"

namespace sonalyx {
namespace {

using test::agreesTo;
using test::fitLines;
using test::Points;
using test::pointsAt;

// Values of the polynomial with coefficients highest power first, plus an
// optional disturbance per point.
DataSet polynomialPoints(const std::vector<double>& highestFirst, const std::vector<double>& xs,
                         const std::vector<double>& disturbance = {}) {
  Points points;
  for (std::size_t i = 0; i < xs.size(); ++i) {
    double y = disturbance.empty() ? 0.0 : disturbance[i];
    double value = 0.0;
    for (double c : highestFirst) value = value * xs[i] + c;
    points.push_back({xs[i], value + y});
  }
  return pointsAt(points);
}

TEST(PolynomialModels, RecoverTheCoefficientsTheDataWereMadeFrom) {
  // Disturbances orthogonal to every polynomial of the fitted degree on equally
  // spaced x (the 4th and 5th differences) leave the least-squares fit unchanged.
  const std::vector<double> fourth = {1, -4, 6, -4, 1};
  const std::vector<double> fifth = {-0.1, 0.5, -1, 1, -0.5, 0.1};
  const struct {
    const char* what;
    int model;
    std::vector<double> coefficients;  // highest power first, as written
    std::vector<double> xs;
    std::vector<double> disturbance;
    int digits;
  } cases[] = {
      {"quadratic, least squares", kQuadratic, {2, 1, 3}, {-2, -1, 0, 1, 2}, fourth, 13},
      {"cubic, least squares", kCubic, {0.5, -1, 4, -2}, {-1, 0, 1, 2, 3, 4}, fifth, 13},
      // Without refinement of the solution the last digits of this one are lost.
      {"quartic through 5 points", kQuartic, {1, 0.25, 0.5, -1, 2}, {3, 4, 5, 6, 7}, {}, 14},
      {"quartic with x in thousandths",
       kQuartic,
       {3e8, -2e6, 4e3, 5, -1},
       {0, 1e-3, 2e-3, 3e-3, 4e-3, 5e-3},
       {},
       9},
      // (x - 1003)^4 on x = 1000..1006: y stays below 82 while the coefficients
      // reach 1.0e12, the hardest case for powers of x.
      {"quartic far from 0",
       kQuartic,
       {1, -4012, 6036054, -4036108108, 1012054108081},
       {1000, 1001, 1002, 1003, 1004, 1005, 1006},
       {},
       11},
  };
  for (const auto& c : cases) {
    const FitResult result = runFit(c.model, polynomialPoints(c.coefficients, c.xs, c.disturbance));
    ASSERT_EQ(result.lines.size(), 5 + c.coefficients.size()) << c.what;
    EXPECT_EQ(std::vector<std::string>(result.lines.begin(), result.lines.begin() + 5),
              fitLines(c.model, c.xs.size()))
        << c.what;
    ASSERT_EQ(result.coefficients.size(), c.coefficients.size()) << c.what;
    for (std::size_t i = 0; i < c.coefficients.size(); ++i) {
      EXPECT_TRUE(agreesTo(result.coefficients[i], c.coefficients[i], c.digits)) << c.what << " #" << i;
    }
  }
  EXPECT_EQ(runFit(kCubic, polynomialPoints({0.5, -1, 4, -2}, {-1, 0, 1, 2, 3})).lines,
            fitLines(kCubic, 5, {"a: 0.5", "b: -1", "c: 4", "d: -2"}));
}

TEST(PolynomialModels, CoefficientsBelow1e9AreZero) {
  const struct {
    double square, constant;  // the x^2 coefficient and the constant the data were made from
    bool squareZeroed, constantZeroed;
  } cases[] = {{-9e-10, 1.0, true, false}, {2e-9, 1.0, false, false}, {1.0, 3e-10, false, true}};
  for (const auto& c : cases) {
    const FitResult result =
        runFit(kQuadratic, polynomialPoints({c.square, 2.0, c.constant}, {0, 1, 2, 3, 4}));
    ASSERT_EQ(result.coefficients.size(), 3u) << c.square;
    EXPECT_EQ(result.lines[5] == "a: 0", c.squareZeroed) << result.lines[5];
    EXPECT_EQ(result.lines[7] == "c: 0", c.constantZeroed) << result.lines[7];
    EXPECT_TRUE(agreesTo(result.coefficients[0], c.squareZeroed ? 0.0 : c.square, 6)) << c.square;
    EXPECT_TRUE(agreesTo(result.coefficients[2], c.constantZeroed ? 0.0 : c.constant, 12)) << c.constant;
  }
}

TEST(PolynomialModels, ReportTooFewOrDependentPoints) {
  const double inf = std::numeric_limits<double>::infinity();
  const char* notEnough = "Not enough points for fit.";
  const char* invalid = "Invalid data set for polynomial fit.";
  const struct {
    const char* what;
    int model;
    Points points;
    const char* message;
  } cases[] = {
      {"quadratic of 2 points", kQuadratic, {{1, 1}, {2, 4}}, notEnough},
      {"quartic of 4 points", kQuartic, {{1, 1}, {2, 4}, {3, 9}, {4, 16}}, notEnough},
      {"quartic on 3 distinct x", kQuartic, {{1, 1}, {2, 2}, {3, 3}, {1, 4}, {2, 5}, {3, 6}}, invalid},
      {"quadratic with an infinite x", kQuadratic, {{1, 1}, {inf, 2}, {2, 3}, {3, 4}}, invalid},
  };
  for (const auto& c : cases) {
    const FitResult result = runFit(c.model, pointsAt(c.points));
    EXPECT_TRUE(result.ran) << c.what;
    EXPECT_EQ(result.lines, fitLines(c.model, c.points.size(), {c.message})) << c.what;
    EXPECT_TRUE(result.coefficients.empty()) << c.what;
  }
}

TEST(PolynomialModels, KeepANaNFromTheData) {
  const FitResult result = runFit(kQuadratic, pointsAt({{0, 1}, {1, std::nan("")}, {2, 3}, {3, 5}}));
  ASSERT_EQ(result.lines.size(), 8u);
  EXPECT_EQ(result.lines[5], "a: Error");
  ASSERT_EQ(result.coefficients.size(), 3u);
  EXPECT_TRUE(std::isnan(result.coefficients[0]));
}

}  // namespace
}  // namespace sonalyx
