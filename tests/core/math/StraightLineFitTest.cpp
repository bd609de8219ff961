#include "core/math/StraightLineFit.h"

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
using test::fitLines;
using test::Points;
using test::pointsAt;
using test::sample;

TEST(StraightLineModels, RecoverTheCoefficientsTheDataWereMadeFrom) {
  const struct {
    int model;
    std::vector<double> xs;
    double (*f)(double);
    std::vector<std::string> values;
  } cases[] = {
      // Every point counts, the last one too.
      {kLinear,
       {1, 2, 3, 4},
       [](double x) { return x < 4 ? x : 10; },
       {"r: 0.8854377448", "a: -3", "b: 2.8"}},
      {kLinear,
       {-1, 0, 1, 5},
       [](double x) { return std::fabs(x); },
       {"r: 0.9288558157", "a: 0.7710843373", "b: 0.7831325301"}},
      // Values below 1e-11 are written and kept as 0.
      {kLinear, {1, 2, 3, 4, 5, 6}, [](double x) { return -8e-12 + 2 * x; }, {"r: 1", "a: 0", "b: 2"}},
      {kExponential,
       {-2, 0.5, 3},
       [](double x) { return 40 * std::pow(0.25, x); },
       {"r: -1", "a: 40", "b: 0.25"}},
      {kLogarithmic, {1, 2, 4, 8}, [](double x) { return 4 - 2 * std::log(x); }, {"r: -1", "a: 4", "b: -2"}},
      {kPower, {1, 4, 9, 16}, [](double x) { return 3 * std::sqrt(x); }, {"r: 1", "a: 3", "b: 0.5"}},
      {kHyperbolic, {-4, -1, 2, 8}, [](double x) { return -2.5 - 0.5 / x; }, {"r: -1", "a: -2.5", "b: -0.5"}},
      {kRational, {1, 2, 4, 10}, [](double x) { return 12 / (2 + x); }, {"r: -1", "a: 12", "b: 2"}},
      {kRationalX, {1, 3, 6, 9}, [](double x) { return 5 * x / (3 + x); }, {"r: -1", "a: 5", "b: 3"}},
  };
  for (const auto& c : cases) {
    const FitResult result = runFit(c.model, pointsAt(sample(c.xs, c.f)));
    const std::string what = std::string(fitModelName(c.model)) + " of " + std::to_string(c.xs.size());
    EXPECT_TRUE(result.ran) << what;
    EXPECT_EQ(result.lines, fitLines(c.model, c.xs.size(), c.values)) << what;
    ASSERT_EQ(result.coefficients.size(), 2u) << what;
    for (std::size_t i = 0; i < 2; ++i) {
      EXPECT_TRUE(agreesTo(result.coefficients[i], std::stod(c.values[i + 1].substr(3)), 10, 1e-13)) << what;
    }
  }
}

TEST(StraightLineModels, RefusePointsOutsideTheModelsDomain) {
  const char* positiveY = "Invalid data set.  Y values must be > 0.";
  const char* positiveX = "Invalid data set.  X values must be > 0.";
  const char* positiveXY = "Invalid data set.  X and Y values must be > 0.";
  const char* nonzeroX = "Invalid data set.  X values cannot = 0.";
  const struct {
    int model;
    Points points;
    const char* message;  // none: fitted
  } cases[] = {
      {kExponential, {{1, 1}, {2, 0}, {3, 4}}, positiveY},
      {kExponential, {{1, 1}, {2, std::nan("")}, {3, 4}}, positiveY},
      {kLogarithmic, {{0, 1}, {2, 2}, {3, 4}}, positiveX},
      {kPower, {{-1, 1}, {2, 2}, {3, 4}}, positiveXY},
      {kHyperbolic, {{1, 1}, {-0.0, 2}}, nonzeroX},
      // Both models that divide by x refuse any x closer to 0 than 1e-11.
      {kHyperbolic, {{1, 1}, {1e-12, 2}, {3, 4}}, nonzeroX},
      {kHyperbolic, {{1, 1}, {-1e-11, 2}, {3, 4}}, nullptr},
      {kRationalX, {{1, 1}, {1e-12, 2}, {3, 4}}, nonzeroX},
      {kRationalX, {{1, 1}, {-9.9e-12, 2}, {3, 4}}, nonzeroX},
      {kRationalX, {{1, 1}, {-1e-11, 2}, {3, 4}}, nullptr},
      {kRational, {{0, 1}, {2, -2}, {3, 4}}, nullptr},
  };
  for (const auto& c : cases) {
    const FitResult result = runFit(c.model, pointsAt(c.points));
    const std::string what = std::string(fitModelName(c.model)) + " at x " + std::to_string(c.points[1][0]);
    EXPECT_TRUE(result.ran) << what;
    if (c.message != nullptr) {
      EXPECT_EQ(result.lines, fitLines(c.model, c.points.size(), {c.message})) << what;
      EXPECT_TRUE(result.coefficients.empty()) << what;
    } else {
      ASSERT_EQ(result.lines.size(), 8u) << what;
      EXPECT_EQ(result.lines[5].substr(0, 3), "r: ") << what;
      EXPECT_EQ(result.coefficients.size(), 2u) << what;
    }
  }
}

TEST(StraightLineModels, FlatOrVerticalDataGetAnHonestAnswer) {
  const char* noLine = "All x values are equal: no line can be fitted.";
  const char* notThisModel = "These points cannot be fitted by this model.";
  const double nan = std::nan("");
  const struct {
    int model;
    Points points;
    std::vector<std::string> lines;
    std::vector<double> coefficients;
  } cases[] = {
      {kLinear, {{2, 1}, {2, 3}, {2, 5}, {2, 7}}, {noLine}, {}},
      {kExponential, {{2, 1}, {2, 3}, {2, 5}}, {noLine}, {}},
      // A flat y is the line y = mean y; its correlation is undefined.
      {kLinear, {{1, 5}, {2, 5}, {3, 5}, {4, 5}}, {"r: undefined", "a: 5", "b: 0"}, {5, 0}},
      {kExponential, {{1, 3}, {2, 3}, {4, 3}}, {"r: undefined", "a: 3", "b: 1"}, {3, 1}},
      {kRational, {{1, 4}, {2, 4}, {3, 4}}, {notThisModel}, {}},
      {kRational, {{1, 6}, {2, 3}, {3, 2}, {6, 1}}, {notThisModel}, {}},  // x*y is always 6
      {kRationalX, {{1, 2}, {2, 4}, {3, 6}}, {notThisModel}, {}},         // y/x is always 2
      // Spread is judged against the values' size: millionths fit as well as millions.
      {kLinear, {{1e-8, 1e-9}, {2e-8, 2e-9}, {3e-8, 3e-9}}, {"r: 1", "a: 0", "b: 0.1"}, {0, 0.1}},
      {kLinear, {{1, 1}, {2, nan}, {3, 3}, {4, 4}}, {"r: Error", "a: Error", "b: Error"}, {nan, nan}},
  };
  for (const auto& c : cases) {
    const FitResult result = runFit(c.model, pointsAt(c.points));
    EXPECT_EQ(result.lines, fitLines(c.model, c.points.size(), c.lines)) << fitModelName(c.model);
    ASSERT_EQ(result.coefficients.size(), c.coefficients.size()) << fitModelName(c.model);
    for (std::size_t i = 0; i < c.coefficients.size(); ++i) {
      EXPECT_TRUE(agreesTo(result.coefficients[i], c.coefficients[i], 12, 1e-15)) << fitModelName(c.model);
    }
  }
}

TEST(StraightLineModels, KnowNoPolynomialZeroRule) {
  // Below 1e-9 but above 1e-11: kept. Rounding in the data leaves the last digits uncertain.
  const FitResult kept =
      runFit(kLinear, pointsAt(sample({1, 2, 3, 4, 5}, [](double x) { return 5e-10 + 2 * x; })));
  ASSERT_EQ(kept.lines.size(), 8u);
  EXPECT_EQ(kept.lines[6].substr(0, 4), "a: 5") << kept.lines[6];
  EXPECT_NE(kept.lines[6].find("e-010"), std::string::npos) << kept.lines[6];
  EXPECT_TRUE(agreesTo(kept.coefficients.at(0), 5e-10, 4));
}

TEST(StraightLineCore, GivesLineAndCorrelation) {
  const struct {
    Points points;
    double intercept, slope, r;
  } cases[] = {
      // y = x + (1, -1, -1, 1): the deviations are orthogonal to 1 and x, so the line
      // is y = x exactly; r = SSxy/sqrt(SSxx*SSyy) = 10/sqrt(10*14).
      {{{-2, -1}, {-1, -2}, {1, 0}, {2, 3}}, 0.0, 1.0, 10.0 / std::sqrt(10.0 * 14.0)},
      // Far from 0 the sums about the first pair keep every digit.
      {{{1e8 + 1, 3}, {1e8 + 2, 5}, {1e8 + 3, 7}}, 1.0 - 2e8, 2.0, 1.0},
  };
  for (const auto& c : cases) {
    StraightLineFit fit;
    for (const auto& p : c.points) fit.add(p[0], p[1]);
    const StraightLineFit::Line line = fit.line();
    EXPECT_EQ(line.shape, StraightLineFit::Shape::Line);
    EXPECT_TRUE(agreesTo(line.intercept, c.intercept, 12, 1e-12));
    EXPECT_TRUE(agreesTo(line.slope, c.slope, 12));
    EXPECT_TRUE(agreesTo(line.r, c.r, 12));
  }
}

TEST(FitEntry, RunsNothingWithoutTwoPointsOrForUnknownModels) {
  const DataSet sets[] = {DataSet{}, pointsAt({{1, 1}}), pointsAt({{1, kAbsent}, {2, 2}, {3, 3}})};
  for (int model : {0, 1, 12}) {
    for (const DataSet& set : sets) {
      const FitResult result = runFit(model, set);
      EXPECT_FALSE(result.ran) << model << " with " << set.count() << " points";
      EXPECT_TRUE(result.lines.empty()) << model;
    }
  }
  for (int model : {-1, 13}) {
    const FitResult result = runFit(model, pointsAt({{1, 1}, {2, 2}, {3, 3}}));
    EXPECT_TRUE(result.ran) << model;
    EXPECT_TRUE(result.lines.empty()) << model;
    EXPECT_TRUE(result.coefficients.empty()) << model;
  }
}

TEST(FitEntry, TranslatesTheFixedTextsButNotTheValueLabels) {
  const auto translate = [](const std::string& english) { return "<" + english + ">"; };
  const FitResult fitted = runFit(kHyperbolic, pointsAt({{1, 2}, {2, 4}, {3, 6}}), 0.0, translate);
  ASSERT_GE(fitted.lines.size(), 6u);
  EXPECT_EQ(fitted.lines[0], "<Number of points:> 3");
  EXPECT_EQ(fitted.lines[2], "<Regression analysis:>");
  EXPECT_EQ(fitted.lines[3], "<Hyperbolic: y = a + b/x>");
  EXPECT_EQ(fitted.lines[5].substr(0, 3), "r: ");

  const FitResult refused = runFit(kPower, pointsAt({{1, 1}, {2, -1}}), 0.0, translate);
  ASSERT_EQ(refused.lines.size(), 6u);
  EXPECT_EQ(refused.lines[5], "<Invalid data set.  X and Y values must be > 0.>");

  const FitResult failed = runFit(kLogistic, pointsAt({{0, 1}, {1, std::nan("")}}), 0.0, translate);
  EXPECT_EQ(failed.lines, std::vector<std::string>{"<Invalid data set for logistic fit.>"});
}

TEST(FitModelNames, NameAndNumberGoBothWays) {
  for (int model = 0; model < kFitModelCount; ++model) {
    EXPECT_EQ(fitModelFromName(fitModelName(model)), model) << model;
  }
  EXPECT_EQ(fitModelFromName("Rational-X"), kRationalX);
  EXPECT_FALSE(fitModelFromName("sine").has_value());
  EXPECT_TRUE(fitModelName(13).empty());
  EXPECT_TRUE(fitModelTitle(-1).empty());
}

}  // namespace
}  // namespace sonalyx
