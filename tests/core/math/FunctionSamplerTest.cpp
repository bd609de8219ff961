#include "core/math/FunctionSampler.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <map>
#include <numbers>
#include <string>
#include <vector>

#include "core/engines/Evaluator.h"
#include "support/NumericCompare.h"

namespace sonalyx {
namespace {

using test::agreesTo;

const double kNaN = std::numeric_limits<double>::quiet_NaN();

TEST(FunctionSampler, SubstitutesTheValueForX) {
  const struct {
    const char* expression;
    double value;
    const char* expected;
  } cases[] = {
      {"x^2", -3.0, "(-3)^2"},  // a sign or an exponent is bracketed
      {"2^x", -1.0, "2^(-1)"},
      {"x*x", 1e-7, "(1e-007)*(1e-007)"},
      {" x + 1 ", 2.0, "2+1"},      // blanks go once there is an x
      {" 5 + 1 ", 2.0, " 5 + 1 "},  // without an x the text is kept exactly
      {"x", 1.0 / 3.0, "0.33333333333333"},
      {"x", -9.9e-12, "0"},
      {"x)", 4.0, "4)"},
      {"x!", 2.0, "2!"},
      {"exp(x)", 0.5, "exp(0.5)"},
      {"exp( 2 )", 0.5, "exp( 2 )"},  // only the x of exp: no variable at all
      {"X", 2.0, "X"},                // only lower-case x is the variable
      // An x must stand where a number can, every one of them.
      {"x+2x", 3.0, ""},
      {"2 x", 1.0, ""},
      {"sin(2)x", 2.0, ""},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(FunctionSampler::substituteX(c.expression, c.value), c.expected)
        << c.expression << " at " << c.value;
  }
}

TEST(FunctionSampler, SamplesACurveWithItsCalculus) {
  FunctionSampler sampler;
  DataSet set;
  std::string error;
  ASSERT_TRUE(sampler.computeFunction(set, " 2 * sin( x ) + pi ", 0.0, 3.0, 7, error)) << error;
  ASSERT_EQ(set.count(), 7u);
  const double pi = std::numbers::pi;
  for (std::size_t i = 0; i < set.count(); ++i) {
    const DataPoint& p = set.at(i);
    EXPECT_TRUE(agreesTo(p.x, 0.5 * double(i), 13, 1e-13));
    EXPECT_TRUE(agreesTo(p.y, 2.0 * std::sin(p.x) + pi, 13)) << "y at " << p.x;
    // The central difference over +-0.001 of sin is cos times sin(0.001)/0.001;
    // f(x +- 0.001) carry 14 digits, so the quotient keeps about 10.
    EXPECT_TRUE(agreesTo(p.derivative, 2.0 * std::cos(p.x) * std::sin(0.001) / 0.001, 9, 1e-9))
        << "at " << p.x;
    EXPECT_TRUE(agreesTo(p.integral, 2.0 * (1.0 - std::cos(p.x)) + pi * p.x, 12, 1e-12)) << p.x;
  }

  // A parabola is a parabola on both sides of 0, and a sum integrates whole.
  const struct {
    const char* expression;
    double x0, x1;
    int points;
    std::size_t at;
    double y, slope, integral;
  } cases[] = {
      {"x^2", -3.0, 3.0, 7, 0, 9.0, -6.0, 0.0},
      {"x^2", -3.0, 3.0, 7, 3, 0.0, 0.0, 9.0},
      {"-x^2", -3.0, 3.0, 7, 1, -4.0, 4.0, -19.0 / 3.0},
      {"x^3", -2.0, 0.0, 3, 0, -8.0, 12.000001, 0.0},
      {"sqrt(x^2)", -2.0, 0.0, 3, 1, 1.0, -1.0, 1.5},
      {"2^x", -1.0, 1.0, 3, 0, 0.5, 0.5 * std::log(2.0), 0.0},
      {"x+1", 0.0, 1.0, 2, 1, 2.0, 1.0, 1.5},
      {"2*x+1", 0.0, 3.0, 4, 3, 7.0, 2.0, 12.0},
  };
  for (const auto& c : cases) {
    ASSERT_TRUE(sampler.computeFunction(set, c.expression, c.x0, c.x1, c.points, error)) << c.expression;
    const DataPoint& p = set.at(c.at);
    EXPECT_TRUE(agreesTo(p.y, c.y, 14, 1e-14)) << c.expression << " y at " << p.x;
    EXPECT_TRUE(agreesTo(p.derivative, c.slope, 7, 1e-9)) << c.expression << " slope at " << p.x;
    EXPECT_TRUE(agreesTo(p.integral, c.integral, 12, 1e-12)) << c.expression << " integral to " << p.x;
  }

  // A domain error is a value, not a failure.
  ASSERT_TRUE(sampler.computeFunction(set, "sqrt(x)", -1.0, 1.0, 3, error));
  EXPECT_TRUE(agreesTo(set.at(0).y, kNaN, 15));
  EXPECT_TRUE(agreesTo(set.at(1).integral, kNaN, 15));
}

TEST(FunctionSampler, HandsTheEvaluatorOneTextPerValue) {
  const std::vector<std::string> nodes = {
      "(-0.94910791234276)", "(-0.74153118559939)", "(-0.4058451513774)", "0",
      "0.4058451513774",     "0.74153118559939",    "0.94910791234276"};
  const struct {
    const char* expression;
    std::vector<std::string> values;  // y, then x -+ 0.001 per point
    const char *beforeNode, *afterNode;
  } cases[] = {
      {"x^2", {"0^2", "1^2", "(-0.001)^2", "0.001^2", "0.999^2", "1.001^2"}, "0.5 * ((0.5 * ", " + 0.5)^2)"},
      {"exp( x )",
       {"exp(0)", "exp(1)", "exp((-0.001))", "exp(0.001)", "exp(0.999)", "exp(1.001)"},
       "0.5 * (exp( (0.5 * ",
       " + 0.5) ))"},
  };
  for (const auto& c : cases) {
    std::vector<std::string> texts;
    FunctionSampler sampler({}, [&](const std::string& text, double& result, std::string& error) {
      texts.push_back(text);
      return Calculate(text, result, error);
    });
    DataSet set;
    std::string error;
    ASSERT_TRUE(sampler.computeFunction(set, c.expression, 0.0, 1.0, 2, error)) << c.expression;
    std::vector<std::string> expected = c.values;
    for (const auto& t : nodes) expected.push_back(c.beforeNode + t + c.afterNode);
    EXPECT_EQ(texts, expected) << c.expression;
  }
}

TEST(FunctionSampler, FailsAsAWholeWhereverTheEvaluatorFails) {
  // 4 points: calls 0-3 are y, 4-11 the derivative, 12-32 the integral.
  for (const int k : {0, 4, 12, 32}) {
    int calls = 0;
    FunctionSampler sampler(
        [](const std::string& t) { return t == "Invalid entry." ? "Entrée non valide." : t; },
        [&](const std::string& text, double& result, std::string& error) {
          if (calls++ != k) return Calculate(text, result, error);
          error = "Nom inconnu y.";
          return false;
        });
    DataSet set;
    set.makeGrid(0.0, 1.0, 9);
    std::string error;
    EXPECT_FALSE(sampler.computeFunction(set, "x", 0.0, 3.0, 4, error)) << k;
    EXPECT_EQ(set.count(), 0u) << k;
    EXPECT_EQ(error, "Entrée non valide. Nom inconnu y.") << k;
    EXPECT_EQ(sampler.lastError(), error) << k;
    EXPECT_EQ(calls, k + 1) << "the evaluator was called after failing at " << k;
  }
}

TEST(FunctionSampler, SaysWhyItCannotSample) {
  const struct {
    const char* expression;
    double x0, x1;
    int points;
    const char* error;
  } cases[] = {
      {"y+1", -1.0, 1.0, 5, "Invalid entry. Unknown name y."},
      {"sin(x", -1.0, 1.0, 5, "Invalid entry. Missing closing bracket."},
      {"2x", -1.0, 1.0, 5, "Invalid entry. Write a * between a number and x."},
      {"max(x,1)", -1.0, 1.0, 5, "Invalid entry. Unknown name max."},
      {"x^2", -1.0, 1.0, 1, "Invalid entry. At least 2 points are needed."},
      {"x^2", 1.0, 1.0, 5, "Invalid entry. Start must be below finish."},
      {"2x", 1.0, -1.0, 5, "Invalid entry. Start must be below finish."},  // the domain first
  };
  for (const auto& c : cases) {
    FunctionSampler sampler;
    DataSet set;
    set.makeGrid(0.0, 1.0, 3);
    std::string error;
    EXPECT_FALSE(sampler.computeFunction(set, c.expression, c.x0, c.x1, c.points, error)) << c.expression;
    EXPECT_EQ(error, c.error) << c.expression;
    EXPECT_EQ(set.count(), 0u) << c.expression;
  }
  FunctionSampler sampler;
  DataSet set;
  set.append(DataPoint{});
  EXPECT_FALSE(sampler.sampleFunction(set, "x")) << "one point";
  EXPECT_EQ(set.count(), 0u);
  EXPECT_EQ(sampler.lastError(), "Invalid entry. Range error: Check plot settings.");
}

TEST(FunctionSampler, TrendSaysWhetherTheDerivativeRoseOrFell) {
  const struct {
    const char* name;
    std::vector<double> derivatives;
    std::vector<int> trends;
  } cases[] = {
      {"rising", {0.0, 1.0, 2.0, 3.0}, {0, 1, 1, 1}},
      {"falling", {3.0, 2.0, 1.0, 0.0}, {0, -1, -1, -1}},
      {"a straight line", {5.0, 5.0, 5.0, 5.0}, {0, 0, 0, 0}},
      {"within the tolerance", {0.0, 1e-11, 1e-11, 0.0}, {0, 0, 0, 0}},
      {"just beyond it", {0.0, 2e-11, 2.5e-11, 0.0}, {0, 1, 0, -1}},
      {"not a number", {0.0, kNaN, 1.0, 2.0}, {0, 0, 0, 1}},
  };
  // On the grid 0..3, f(x + 0.001) answers derivative / 500 and everything else 0,
  // so each difference quotient is exactly the derivative wanted.
  const char* above[] = {"0.001", "1.001", "2.001", "3.001"};
  for (const auto& c : cases) {
    std::map<std::string, double> answers;
    for (std::size_t i = 0; i < 4; ++i) answers[above[i]] = c.derivatives[i] / 500.0;
    FunctionSampler sampler({}, [&](const std::string& text, double& result, std::string&) {
      const auto found = answers.find(text);
      result = found == answers.end() ? 0.0 : found->second;
      return true;
    });
    DataSet set;
    std::string error;
    ASSERT_TRUE(sampler.computeFunction(set, "x", 0.0, 3.0, 4, error)) << c.name;
    for (std::size_t i = 0; i < 4; ++i) {
      EXPECT_TRUE(agreesTo(set.at(i).derivative, c.derivatives[i], 17)) << c.name << ' ' << i;
      EXPECT_EQ(set.at(i).trend, c.trends[i]) << c.name << ' ' << i;
    }
  }
}

}  // namespace
}  // namespace sonalyx
