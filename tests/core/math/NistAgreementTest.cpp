// Agreement with the NIST Statistical Reference Datasets wherever a model of ours
// is the model NIST certified.
#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>
#include <string>
#include <vector>

#include "core/math/FitModel.h"
#include "core/math/LogisticModel.h"
#include "core/math/NistDataset.h"
#include "core/math/RegressionFit.h"
#include "core/math/Statistics.h"
#include "support/NumericCompare.h"

namespace sonalyx {
namespace {

using test::agreesTo;
using test::NistDataset;
using test::readNistDataset;

DataSet setOf(const std::vector<double>& xs, const std::vector<double>& ys) {
  DataSet set;
  for (std::size_t i = 0; i < xs.size(); ++i) set.append({xs[i], ys[i]});
  return set;
}

TEST(NistData, TheFolderIsThere) {
  // Missing data must fail the run, not pass it quietly.
  ASSERT_TRUE(std::filesystem::is_directory(test::nistDirectory()))
      << test::nistDirectory() << " is missing: set SONALYX_NIST_DIR to the folder of the NIST .dat files";
}

TEST(NistData, StatisticsAgreeWithTheUnivariateSets) {
  const struct {
    const char* name;
    // Where the decimal data cannot be held exactly in binary (10000000.2 and the
    // like), the spread of the stored values itself differs from the certified one.
    int deviationDigits;
  } cases[] = {
      {"Lew", 10},     {"Lottery", 10}, {"Mavro", 10},  {"Michelso", 10}, {"NumAcc1", 10},
      {"NumAcc2", 10}, {"NumAcc3", 9},  {"NumAcc4", 8}, {"PiDigits", 10},
  };
  for (const auto& c : cases) {
    const NistDataset data = readNistDataset(c.name);
    const std::vector<double> values = data.column(0);
    ASSERT_FALSE(values.empty()) << c.name;
    const double mean = data.certifiedNumbers("Sample Mean").at(0);
    const double deviation = data.certifiedNumbers("Sample Standard Deviation").at(0);
    const double n = static_cast<double>(values.size());
    // y holds the values backwards, so both accumulations are checked.
    const SampleStatistics s = computeStatistics(setOf(values, {values.rbegin(), values.rend()}));
    EXPECT_EQ(s.count, values.size()) << c.name;
    EXPECT_TRUE(agreesTo(s.meanX, mean, 14)) << c.name;
    EXPECT_TRUE(agreesTo(s.meanY, mean, 14)) << c.name;
    EXPECT_TRUE(agreesTo(s.sampleDeviationX, deviation, c.deviationDigits)) << c.name;
    EXPECT_TRUE(agreesTo(s.sampleDeviationY, deviation, c.deviationDigits)) << c.name;
    // The divide-by-n deviations follow from the certified one.
    const double population = deviation * std::sqrt((n - 1.0) / n);
    EXPECT_TRUE(agreesTo(s.populationDeviationX, population, c.deviationDigits)) << c.name;
    EXPECT_TRUE(agreesTo(s.populationDeviationY, population, c.deviationDigits)) << c.name;
  }
}

TEST(NistData, StraightLineAndPolynomialFitsAgreeWithNorrisAndPontius) {
  const NistDataset norris = readNistDataset("Norris");
  const NistDataset pontius = readNistDataset("Pontius");
  std::vector<double> xs = norris.column(1), ys = norris.column(0), reciprocal;
  for (double x : xs) reciprocal.push_back(1.0 / x);
  const DataSet line = setOf(xs, ys);
  const double b0 = norris.certifiedNumbers("B0").at(0), b1 = norris.certifiedNumbers("B1").at(0);
  // Pontius' certified x^2 coefficient, -3.16e-15, is below the 1e-9 that a
  // polynomial coefficient must reach: it is reported as 0.
  ASSERT_LT(std::fabs(pontius.certifiedNumbers("B2").at(0)), 1e-9);
  const struct {
    const char* what;
    int model;
    DataSet set;
    const char* count;
    std::vector<double> coefficients;
  } cases[] = {
      {"linear", kLinear, line, "Number of points: 36", {b0, b1}},
      // y = a + b/x on the points (1/x, y) is the same line through all 36 points.
      {"hyperbolic", kHyperbolic, setOf(reciprocal, ys), "Number of points: 36", {b0, b1}},
      {"quadratic",
       kQuadratic,
       setOf(pontius.column(1), pontius.column(0)),
       "Number of points: 40",
       {0.0, pontius.certifiedNumbers("B1").at(0), pontius.certifiedNumbers("B0").at(0)}},
  };
  for (const auto& c : cases) {
    const FitResult result = runFit(c.model, c.set);
    ASSERT_EQ(result.coefficients.size(), c.coefficients.size()) << c.what;
    EXPECT_EQ(result.lines[0], c.count) << c.what;
    for (std::size_t i = 0; i < c.coefficients.size(); ++i) {
      EXPECT_TRUE(agreesTo(result.coefficients[i], c.coefficients[i], 10)) << c.what << " #" << i;
    }
  }
  const double r = std::sqrt(norris.certifiedNumbers("R-Squared").at(0));
  EXPECT_TRUE(agreesTo(std::stod(runFit(kLinear, line).lines.at(5).substr(3)), r, 10));
}

TEST(NistData, LogisticFitAgreesWithRat42) {
  // NIST's b1 / (1 + exp(b2 − b3·x)) is c / (1 + a·exp(−b·x)) with c = b1,
  // a = e^b2 and b = b3. The solver stops once an iteration gains less than 0.1 %,
  // which leaves the parameters good to about 5 digits.
  const NistDataset data = readNistDataset("Rat42");
  const std::vector<double> ys = data.column(0);
  const std::vector<double> xs = data.column(1);
  const double b1 = data.certifiedNumbers("b1").at(2);
  const double b2 = data.certifiedNumbers("b2").at(2);
  const double b3 = data.certifiedNumbers("b3").at(2);
  const double certifiedSum = data.certifiedNumbers("Residual Sum of Squares:").at(0);

  const FitResult result = runFit(kLogistic, setOf(xs, ys));
  ASSERT_EQ(result.coefficients.size(), 3u) << result.lines.front();
  EXPECT_TRUE(agreesTo(result.coefficients[0], std::exp(b2), 5));
  EXPECT_TRUE(agreesTo(result.coefficients[1], b3, 5));
  EXPECT_TRUE(agreesTo(result.coefficients[2], b1, 5));

  LogisticModel model;
  model.setData(xs, ys);
  model.estimateStart();
  ASSERT_TRUE(model.solve());
  EXPECT_TRUE(agreesTo(model.sumOfSquares(), certifiedSum, 7));

  // From NIST's own starting values too.
  for (const std::size_t start : {0u, 1u}) {
    LogisticModel fromStart;
    fromStart.setData(xs, ys);
    fromStart.setParameter(0, std::exp(data.certifiedNumbers("b2").at(start)));
    fromStart.setParameter(1, data.certifiedNumbers("b3").at(start));
    fromStart.setParameter(2, data.certifiedNumbers("b1").at(start));
    ASSERT_TRUE(fromStart.solve()) << "start " << start + 1;
    EXPECT_TRUE(agreesTo(fromStart.parameter(2), b1, 4)) << "start " << start + 1;
    EXPECT_TRUE(agreesTo(fromStart.sumOfSquares(), certifiedSum, 6)) << "start " << start + 1;
  }
}

}  // namespace
}  // namespace sonalyx
