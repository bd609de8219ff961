#include "core/math/FunctionSampler.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <numbers>
#include <string>
#include <vector>

#include "support/NumericCompare.h"

namespace sonalyx {
namespace {

using test::agreesTo;

const double kNaN = std::numeric_limits<double>::quiet_NaN();
const double kInf = std::numeric_limits<double>::infinity();

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
      {"exp(x)", -1.0, 1.0, 3, 2, std::exp(1.0), std::sinh(0.001) / 0.001 * std::exp(1.0),
       std::exp(1.0) - std::exp(-1.0)},
  };
  for (const auto& c : cases) {
    ASSERT_TRUE(sampler.computeFunction(set, c.expression, c.x0, c.x1, c.points, error)) << c.expression;
    const DataPoint& p = set.at(c.at);
    EXPECT_TRUE(agreesTo(p.y, c.y, 14, 1e-14)) << c.expression << " y at " << p.x;
    EXPECT_TRUE(agreesTo(p.derivative, c.slope, 7, 1e-9)) << c.expression << " slope at " << p.x;
    EXPECT_TRUE(agreesTo(p.integral, c.integral, 12, 1e-12)) << c.expression << " integral to " << p.x;
  }

  // A value outside the domain is a value, not a failure, and an x within 1e-11 of
  // 0 is 0: 1/x has its pole where the grid has its 0, and f(x - 0.001) at a point
  // a rounding error off 0.001 is f(0).
  ASSERT_TRUE(sampler.computeFunction(set, "sqrt(x)", -1.0, 1.0, 3, error));
  EXPECT_TRUE(agreesTo(set.at(0).y, kNaN, 15));
  EXPECT_TRUE(agreesTo(set.at(1).integral, kNaN, 15));
  ASSERT_TRUE(sampler.computeFunction(set, "1/x", -1.0, 1.0, 3, error));
  EXPECT_TRUE(agreesTo(set.at(1).y, kInf, 15));
  EXPECT_TRUE(agreesTo(set.at(1).derivative, 1e6, 12));
  set.assign({DataPoint{.x = 4e-12}, DataPoint{.x = 0.001 + 5e-12}});
  ASSERT_TRUE(sampler.sampleFunction(set, "1/x"));
  EXPECT_TRUE(agreesTo(set.at(0).y, kInf, 15));
  EXPECT_TRUE(agreesTo(set.at(1).derivative, -kInf, 15));
}

// Past a block of the compiled function and past a chunk of points, every value
// is the one at its own x.
TEST(FunctionSampler, KeepsEachValueWithItsPoint) {
  FunctionSampler sampler;
  DataSet set;
  std::string error;
  ASSERT_TRUE(sampler.computeFunction(set, "x^3-2*x", -3.0, 3.0, 1001, error)) << error;
  for (const std::size_t i : {0u, 127u, 128u, 129u, 255u, 256u, 500u, 999u, 1000u}) {
    const double x = set.at(i).x;
    EXPECT_TRUE(agreesTo(set.at(i).y, x * x * x - 2.0 * x, 14, 1e-14)) << i;
    EXPECT_TRUE(agreesTo(set.at(i).derivative, 3.0 * x * x - 2.0 + 1e-6, 9, 1e-9)) << i;
    const double antiderivative = x * x * x * x / 4.0 - x * x;
    EXPECT_TRUE(agreesTo(set.at(i).integral, antiderivative - (81.0 / 4.0 - 9.0), 12, 1e-11)) << i;
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
      {"x+2 x", -1.0, 1.0, 5, "Invalid entry. Write a * between a number and x."},
      {"x2", -1.0, 1.0, 5,
       "Invalid entry. Unexpected \"2\"."},  // no longer the digits of x with a 2 after them
      {"x(2)", -1.0, 1.0, 5, "Invalid entry. Unexpected \"(\"."},
      {"sinx", -1.0, 1.0, 5, "Invalid entry. Unknown name sinx."},
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
  // The reason is translated with the rest.
  FunctionSampler french([](const std::string& t) {
    if (t == "Invalid entry.") return std::string("Entrée non valide.");
    if (t == "Unknown name %s.") return std::string("Nom inconnu %s.");
    return t;
  });
  DataSet set;
  std::string error;
  EXPECT_FALSE(french.computeFunction(set, "y+x", 0.0, 1.0, 3, error));
  EXPECT_EQ(error, "Entrée non valide. Nom inconnu y.");

  FunctionSampler sampler;
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
  for (const auto& c : cases) {
    DataSet set;
    set.makeGrid(0.0, 3.0, 4);
    for (std::size_t i = 0; i < 4; ++i) set.setDerivative(i, c.derivatives[i]);
    FunctionSampler::setTrends(set);
    for (std::size_t i = 0; i < 4; ++i) EXPECT_EQ(set.at(i).trend, c.trends[i]) << c.name << ' ' << i;
  }
}

}  // namespace
}  // namespace sonalyx
