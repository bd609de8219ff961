#include "core/math/FunctionSampler.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <map>
#include <string>
#include <vector>

#include "core/engines/Evaluator.h"
#include "support/NumericCompare.h"

namespace sonalyx {
namespace {

using test::agreesTo;

const double kNaN = std::numeric_limits<double>::quiet_NaN();

TEST(FunctionSampler, SubstitutesTheValueForX) {
  struct Case {
    const char* expression;
    double value;
    const char* expected;
  };
  const Case cases[] = {
      {"x", 2.0, "2"},
      {"x^2", -3.0, "-3^2"},  // no brackets are added
      {"2^x", -1.0, "2^-1"},
      {"2*x", -0.001, "2*-0.001"},
      {"-x", 2.0, "-2"},
      {"sin(x)*x^2+3", 1.5, "sin(1.5)*1.5^2+3"},
      {" x + 1 ", 2.0, "2+1"},      // blanks go once there is an x
      {" 5 + 1 ", 2.0, " 5 + 1 "},  // without an x the text is kept exactly
      {"x", 1.0 / 3.0, "0.33333333333333"},
      {"x*x", 1e-7, "1e-007*1e-007"},
      {"x", 1e-12, "0"},
      {"x", -9.9e-12, "0"},
      {"x", 1e-11, "1e-011"},
      {"(x)", kNaN, "(Error)"},
      {"x)", 4.0, "4)"},  // a leading x only needs an operator or ')' after it
      {"exp(x)", 0.5, "exp(0.5)"},
      {"exp(2)", 0.5, "exp(2)"},
      {"exp( 2 )", 0.5, "exp( 2 )"},  // only the x of exp: no variable at all
      {"x*exp(x)", 2.0, "2*exp(2)"},
      {"X", 2.0, "X"},        // only lower-case x is the variable
      {"x+2x", 3.0, "3+23"},  // only the first x is checked
      {"2x", 1.0, ""},
      {"2 x", 1.0, ""},
      {"x!", 2.0, ""},
      {"xx", 2.0, ""},
      {"ax", 2.0, ""},
      {"expx", 2.0, ""},
      {"sin(2)x", 2.0, ""},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(FunctionSampler::substituteX(c.expression, c.value), c.expected)
        << c.expression << " at " << c.value;
  }
}

struct Curve {
  const char* name;
  const char* expression;
  double x0, x1;
  int points;
  double (*value)(double);
  double (*derivative)(double);  // what the central difference over +-0.001 gives
  double (*integral)(double x, double x0);
};

TEST(FunctionSampler, SamplesKnownCurvesWithTheirCalculus) {
  const double step = 0.001;
  static const double differenceFactor = std::sin(step) / step;
  static const double expFactor = std::sinh(step) / step;
  const Curve curves[] = {
      // x^2 left of 0 is another story (below).
      {"square", "x^2", 0.5, 1.5, 11, [](double x) { return x * x; }, [](double x) { return 2.0 * x; },
       [](double x, double x0) { return (x * x * x - x0 * x0 * x0) / 3.0; }},
      {"cube", "x^3", -1.0, 1.0, 21, [](double x) { return x * x * x; },
       [](double x) { return 3.0 * x * x + 1e-6; },  // + step^2 from the difference
       [](double x, double x0) { return (std::pow(x, 4) - std::pow(x0, 4)) / 4.0; }},
      {"sine", "sin(x)", -2.0, 2.0, 41, [](double x) { return std::sin(x); },
       [](double x) { return std::cos(x) * differenceFactor; },
       [](double x, double x0) { return std::cos(x0) - std::cos(x); }},
      {"exponential", "exp(x)", -1.0, 1.0, 21, [](double x) { return std::exp(x); },
       [](double x) { return std::exp(x) * expFactor; },
       [](double x, double x0) { return std::exp(x) - std::exp(x0); }},
      {"blanks and constants", " 2 * sin( x ) + pi ", 0.0, 3.0, 7,
       [](double x) { return 2.0 * std::sin(x) + M_PI; },
       [](double x) { return 2.0 * std::cos(x) * differenceFactor; },
       // the unbracketed pi is added once at each node, weights summing to 2
       [](double x, double x0) { return 2.0 * (std::cos(x0) - std::cos(x)) + 2.0 * M_PI * (x - x0) / 0.5; }},
  };
  for (const auto& c : curves) {
    FunctionSampler sampler;
    DataSet set;
    std::string error;
    ASSERT_TRUE(sampler.computeFunction(set, c.expression, c.x0, c.x1, c.points, error)) << c.name << error;
    ASSERT_EQ(set.count(), static_cast<std::size_t>(c.points)) << c.name;
    EXPECT_TRUE(agreesTo(set.at(0).x, c.x0, 15)) << c.name;
    EXPECT_TRUE(agreesTo(set.at(set.count() - 1).x, c.x1, 13, 1e-13)) << c.name;
    for (std::size_t i = 0; i < set.count(); ++i) {
      const DataPoint& p = set.at(i);
      EXPECT_TRUE(agreesTo(p.y, c.value(p.x), 13, 1e-13)) << c.name << " y at " << p.x;
      // f(x +- 0.001) carry 14 digits: the quotient keeps about 10.
      EXPECT_TRUE(agreesTo(p.derivative, c.derivative(p.x), 9, 1e-9)) << c.name << " f' at " << p.x;
      EXPECT_TRUE(agreesTo(p.integral, c.integral(p.x, c.x0), 12, 1e-12)) << c.name << " F at " << p.x;
      EXPECT_NE(p.trend, kAbsentTrend) << c.name;
    }
  }
}

TEST(FunctionSampler, SquareAtNegativeXReadsAsMinusTheSquare) {
  // x^2 at -2 becomes the text -2^2, which is -(2^2); inside the integral x is
  // bracketed, so the integral is that of x^2.
  FunctionSampler sampler;
  DataSet set;
  std::string error;
  ASSERT_TRUE(sampler.computeFunction(set, "x^2", -2.0, 0.0, 3, error));
  EXPECT_TRUE(agreesTo(set.at(0).y, -4.0, 15));
  EXPECT_TRUE(agreesTo(set.at(1).y, -1.0, 15));
  EXPECT_TRUE(agreesTo(set.at(0).derivative, 4.0, 10));  // slope of -(x^2) at -2
  // At 0 the two sides are -(0.001^2) and 0.001^2.
  EXPECT_TRUE(agreesTo(set.at(2).derivative, 0.001, 10));
  EXPECT_TRUE(agreesTo(set.at(2).integral, 8.0 / 3.0, 12));
}

TEST(FunctionSampler, KeepsTheQuirksOfTheTextualIntegrand) {
  FunctionSampler sampler;
  std::string error;

  // A constant: no x to substitute, derivative 0, integral 5 per unit of x.
  DataSet constant;
  ASSERT_TRUE(sampler.computeFunction(constant, "5", 0.0, 2.0, 5, error));
  for (std::size_t i = 0; i < constant.count(); ++i) {
    const DataPoint& p = constant.at(i);
    EXPECT_TRUE(agreesTo(p.y, 5.0, 15));
    EXPECT_TRUE(agreesTo(p.derivative, 0.0, 15));
    EXPECT_EQ(p.trend, i == 0 ? 0 : -1) << i;  // an unchanged derivative counts as falling
    EXPECT_TRUE(agreesTo(p.integral, 5.0 * p.x, 13, 1e-13)) << i;
  }

  // x+1 integrates as h*(h*t+m)+1 at every node: the 1 adds 2 per interval.
  DataSet sum;
  ASSERT_TRUE(sampler.computeFunction(sum, "x+1", 1.0, 3.0, 5, error));
  for (std::size_t i = 0; i < sum.count(); ++i) {
    const double x = sum.at(i).x;
    EXPECT_TRUE(agreesTo(sum.at(i).integral, (x * x - 1.0) / 2.0 + 2.0 * static_cast<double>(i), 12, 1e-12))
        << i;
  }

  // One x for every point: h is 0, so is every integral.
  DataSet narrow;
  ASSERT_TRUE(sampler.computeFunction(narrow, "x^2", 1.5, 1.5, 3, error));
  for (std::size_t i = 0; i < narrow.count(); ++i) {
    EXPECT_TRUE(agreesTo(narrow.at(i).x, 1.5, 15));
    EXPECT_TRUE(agreesTo(narrow.at(i).derivative, 3.0, 10));
    EXPECT_TRUE(agreesTo(narrow.at(i).integral, 0.0, 15));
  }

  // Two points: one interval carries the whole Gauss-Legendre rule.
  DataSet two;
  ASSERT_TRUE(sampler.computeFunction(two, "x^2", 0.0, 1.0, 2, error));
  EXPECT_TRUE(agreesTo(two.at(1).integral, 1.0 / 3.0, 13));
}

// Records every text handed to the evaluator and answers through Calculate.
struct Recorder {
  std::vector<std::string> texts;
  FunctionSampler::Evaluator evaluator() {
    return [this](const std::string& text, double& result, std::string& error) {
      texts.push_back(text);
      return Calculate(text, result, error);
    };
  }
};

TEST(FunctionSampler, HandsTheEvaluatorOneTextPerValue) {
  struct Case {
    const char* expression;
    std::vector<std::string> expected;  // y, then x -+ 0.001 per point, then the 7 nodes
  };
  const std::vector<std::string> nodes = {"-0.94910791234276", "-0.74153118559939", "-0.4058451513774", "0",
                                          "0.4058451513774",   "0.74153118559939",  "0.94910791234276"};
  auto integrand = [&](const std::string& before, const std::string& after) {
    std::vector<std::string> texts;
    for (const auto& t : nodes) texts.push_back(before + t + after);
    return texts;
  };
  auto join = [](std::vector<std::string> a, const std::vector<std::string>& b) {
    a.insert(a.end(), b.begin(), b.end());
    return a;
  };
  const Case cases[] = {
      {"x^2", join({"0^2", "1^2", "-0.001^2", "0.001^2", "0.999^2", "1.001^2"},
                   integrand("0.5 * (0.5 * ", " + 0.5)^2"))},
      {"exp( x )", join({"exp(0)", "exp(1)", "exp(-0.001)", "exp(0.001)", "exp(0.999)", "exp(1.001)"},
                        integrand("0.5 * exp( (0.5 * ", " + 0.5) )"))},
      {"7", join({"7", "7", "7", "7", "7", "7"}, std::vector<std::string>(7, "0.5 * 7"))},
  };
  for (const auto& c : cases) {
    Recorder recorder;
    FunctionSampler sampler({}, recorder.evaluator());
    DataSet set;
    std::string error;
    ASSERT_TRUE(sampler.computeFunction(set, c.expression, 0.0, 1.0, 2, error)) << c.expression;
    EXPECT_EQ(recorder.texts, c.expected) << c.expression;
  }
}

TEST(FunctionSampler, CallsTheEvaluatorTenTimesPerPoint) {
  Recorder recorder;
  FunctionSampler sampler({}, recorder.evaluator());
  DataSet set;
  std::string error;
  ASSERT_TRUE(sampler.computeFunction(set, "sin(x)*x^2+3", -10.0, 10.0, 501, error));
  EXPECT_EQ(recorder.texts.size(), 501u + 2u * 501u + 7u * 500u);
  // The middle of the grid is reached by adding steps; what is left of 0 is written as 0.
  EXPECT_EQ(recorder.texts[250], "sin(0)*0^2+3");
}

TEST(FunctionSampler, FailsAsAWholeWhereverTheEvaluatorFails) {
  // 4 points: calls 0-3 are y, 4-11 the derivative, 12-32 the integral.
  const int failAt[] = {0, 3, 4, 11, 12, 32};
  for (const int k : failAt) {
    int calls = 0;
    FunctionSampler sampler(
        [](const std::string& t) { return t == "Invalid entry." ? "Entrée non valide." : t; },
        [&](const std::string& text, double& result, std::string& error) {
          if (calls++ == k) {
            error = "parse error";
            return false;
          }
          return Calculate(text, result, error);
        });
    DataSet set;
    set.makeGrid(0.0, 1.0, 9);
    set.setY(0, 1.0);
    std::string error;
    EXPECT_FALSE(sampler.computeFunction(set, "x", 0.0, 3.0, 4, error)) << k;
    EXPECT_EQ(set.count(), 0u) << k;
    EXPECT_EQ(error, "Entrée non valide.") << k;
    EXPECT_EQ(sampler.lastError(), "Entrée non valide.") << k;
    EXPECT_EQ(calls, k + 1) << "the evaluator was called after failing at " << k;
  }
}

TEST(FunctionSampler, RefusesExpressionsAndDomainsItCannotSample) {
  struct Case {
    const char* expression;
    double x0, x1;
    int points;
    const char* error;
  };
  const Case cases[] = {
      {"2x", -1.0, 1.0, 5, "Invalid entry."},
      {"x!", -1.0, 1.0, 5, "Invalid entry."},
      {"", -1.0, 1.0, 5, "Invalid entry."},
      {"sin(x", -1.0, 1.0, 5, "Invalid entry."},
      {"y", -1.0, 1.0, 5, "Invalid entry."},
      {"x^2", -1.0, 1.0, 1, "Point allocation error."},
      {"x^2", -1.0, 1.0, 0, "Point allocation error."},
      {"x^2", -1.0, 1.0, -5, "Point allocation error."},
      {"x^2", 1.0, -1.0, 5, "Point allocation error."},
      {"x^2", kNaN, 1.0, 5, "Point allocation error."},
      {"2x", 1.0, -1.0, 5, "Point allocation error."},  // the domain is checked first
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
}

TEST(FunctionSampler, SamplingNeedsTwoPoints) {
  FunctionSampler sampler;
  DataSet set;
  set.append(DataPoint{});
  EXPECT_FALSE(sampler.sampleFunction(set, "x"));
  EXPECT_EQ(set.count(), 0u);
  EXPECT_EQ(sampler.lastError(), "Invalid entry.");
}

TEST(FunctionSampler, DomainErrorsAreValuesNotFailures) {
  FunctionSampler sampler;
  DataSet set;
  std::string error;
  ASSERT_TRUE(sampler.computeFunction(set, "sqrt(x)", -1.0, 1.0, 3, error));
  EXPECT_TRUE(agreesTo(set.at(0).y, kNaN, 15));
  EXPECT_TRUE(agreesTo(set.at(2).y, 1.0, 15));
  EXPECT_TRUE(agreesTo(set.at(1).integral, kNaN, 15));
}

TEST(FunctionSampler, TrendComparesTheDerivativeChangeWithPlusTolerance) {
  struct Case {
    const char* name;
    std::vector<double> derivatives;
    std::vector<int> trends;
  };
  const Case cases[] = {
      {"rising", {0.0, 1.0, 2.0, 3.0}, {0, 1, 1, 1}},
      {"falling", {3.0, 2.0, 1.0, 0.0}, {0, -1, -1, -1}},
      {"unchanged", {5.0, 5.0, 5.0, 5.0}, {0, -1, -1, -1}},
      {"exactly the tolerance", {0.0, 1e-11, 1e-11, 0.0}, {0, 0, -1, -1}},
      {"just above and below", {0.0, 2e-11, 2.5e-11, 2.5e-11}, {0, 1, -1, -1}},
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
