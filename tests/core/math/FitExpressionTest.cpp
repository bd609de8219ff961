#include "core/math/FitExpression.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

#include "core/engines/CompiledFunction.h"
#include "core/math/FitModel.h"
#include "support/NumericCompare.h"

namespace sonalyx {
namespace {

struct ExpressionCase {
  int model;
  std::vector<double> coefficients;
  const char* expected;
};

TEST(FitExpression, FillsTheLettersOfEachTemplate) {
  const ExpressionCase cases[] = {
      {kLinear, {2, -3}, "(2) + ((-3) * x)"},
      // Exponent letters of the numbers are left alone, the fifth coefficient too.
      {kQuartic,
       {1.5e-5, 2, 3, 2.5e-7, 5},
       "(1.5e-005) * (x)^4 + (2) * (x)^3 + (3) * (x)^2 + (2.5e-007) * (x) + (5)"},
      // "exp" keeps its e.
      {kLogistic, {2, 0.8, 10}, "(10) / (1 + ((2)) * exp(-(0.8) * x))"},
      {kStatistics, {1, 2}, ""},
      {13, {1, 2}, ""},
      {kLinear, {1}, ""},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(fitExpression(c.model, c.coefficients), c.expected) << fitModelName(c.model);
  }
}

// The plotted fit must pass through the model's own values: compiled as the
// sampler compiles it, each expression equals its formula.
TEST(FitExpression, EvaluatesToTheModelsValues) {
  const struct {
    int model;
    std::vector<double> k;
    double (*formula)(const std::vector<double>&, double);
  } cases[] = {
      {kLinear, {-3, 2.8}, [](const std::vector<double>& k, double x) { return k[0] + k[1] * x; }},
      {kQuadratic,
       {-1, 2.5e-9, -3},
       [](const std::vector<double>& k, double x) { return k[0] * x * x + k[1] * x + k[2]; }},
      {kCubic,
       {1e-7, -2, 2e12, 1},
       [](const std::vector<double>& k, double x) { return ((k[0] * x + k[1]) * x + k[2]) * x + k[3]; }},
      {kQuartic,
       {1.5e-5, -2, 3, -2.5e-7, 5},
       [](const std::vector<double>& k, double x) {
         return (((k[0] * x + k[1]) * x + k[2]) * x + k[3]) * x + k[4];
       }},
      {kExponential,
       {1.5, 0.5},
       [](const std::vector<double>& k, double x) { return k[0] * std::pow(k[1], x); }},
      {kLogarithmic,
       {4, -2},
       [](const std::vector<double>& k, double x) { return k[0] + k[1] * std::log(x); }},
      {kPower, {3, -0.5}, [](const std::vector<double>& k, double x) { return k[0] * std::pow(x, k[1]); }},
      {kHyperbolic, {1, -6}, [](const std::vector<double>& k, double x) { return k[0] + k[1] / x; }},
      {kRational, {12, -2.5}, [](const std::vector<double>& k, double x) { return k[0] / (k[1] + x); }},
      {kRationalX, {5, -3.5}, [](const std::vector<double>& k, double x) { return k[0] * x / (k[1] + x); }},
      {kLogistic,
       {2, -0.8, 10},
       [](const std::vector<double>& k, double x) { return k[2] / (1 + k[0] * std::exp(-k[1] * x)); }},
      {kSinusoidal,
       {2, -1.5, 0.4, -1},
       [](const std::vector<double>& k, double x) { return k[0] * std::sin(k[1] * x + k[2]) + k[3]; }},
  };
  for (const auto& c : cases) {
    const std::string expression = fitExpression(c.model, c.k);
    EvaluationError error;
    const auto f = CompiledFunction::compile(expression, error);
    ASSERT_TRUE(f) << expression << ": " << evaluationErrorText(error);
    for (const double x : {0.5, 2.0, 3.25}) {
      EXPECT_TRUE(test::agreesTo((*f)(x), c.formula(c.k, x), 9)) << expression << " at " << x;
    }
  }
}

}  // namespace
}  // namespace sonalyx
