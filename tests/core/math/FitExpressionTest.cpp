#include "core/math/FitExpression.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/math/FitModel.h"

namespace sonalyx {
namespace {

struct ExpressionCase {
  int model;
  std::vector<double> coefficients;
  const char* expected;
};

TEST(FitExpression, FillsTheLettersOfEachTemplate) {
  const ExpressionCase cases[] = {
      {kLinear, {2, -3}, "2 + (-3 * x)"},
      {kQuadratic, {1, 2.5, -3}, "1 * (x)^2 + 2.5 * (x) + -3"},
      // Without a fifth coefficient the exponent letters of the numbers stay.
      {kCubic, {1e-7, 0, 2e12, 1}, "1e-007 * (x)^3 + 0 * (x)^2 + 2e+012 * (x) + 1"},
      // The fifth replacement also changes the "e" of every number written before it.
      {kQuartic, {1.5e-5, 2, 3, 2.5e-7, 5}, "1.55-005 * (x)^4 + 2 * (x)^3 + 3 * (x)^2 + 2.55-007 * (x) + 5"},
      {kExponential, {1.5, 2}, "1.5 * (2^x)"},
      {kLogarithmic, {4, -2}, "4 + -2 * ln(x)"},
      {kPower, {3, 0.5}, "3 * x ^ (0.5)"},
      {kHyperbolic, {1, 6}, "1 + (6)/x"},
      {kRational, {12, 2}, "12 / (2 + x)"},
      {kRationalX, {5, 3}, "(5 * x) / (3 + x)"},
      // "exp" keeps its e: the logistic has three coefficients.
      {kLogistic, {2, 0.8, 10}, "10 / (1 + (2) * exp(-0.8 * x))"},
      {kSinusoidal, {2, 1.5, 0.4, -1}, "2 * sin((1.5)*x+0.4) + -1"},
      {kLinear, {1.0 / 3.0, 123456789012.0}, "0.3333333333 + (1.23456789e+011 * x)"},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(fitExpression(c.model, c.coefficients), c.expected) << fitModelName(c.model);
  }
}

TEST(FitExpression, BuildsNothingWithoutATemplateOrTwoCoefficients) {
  const ExpressionCase cases[] = {
      {kStatistics, {1, 2}, ""}, {13, {1, 2}, ""}, {-1, {1, 2}, ""}, {kLinear, {1}, ""}};
  for (const auto& c : cases) EXPECT_EQ(fitExpression(c.model, c.coefficients), c.expected) << c.model;
}

}  // namespace
}  // namespace sonalyx
