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
#include "core/utility/NumberFormat.h"
#include "support/NumericCompare.h"

namespace sonalyx {
namespace {

using test::agreesTo;
using test::NistDataset;
using test::readNistDataset;

DataSet setOf(const std::vector<double>& xs, const std::vector<double>& ys) {
  std::vector<DataPoint> points;
  for (std::size_t i = 0; i < xs.size(); ++i) {
    DataPoint p;
    p.x = xs[i];
    p.y = ys[i];
    points.push_back(p);
  }
  DataSet set;
  set.assign(std::move(points));
  return set;
}

// The value printed on the result line that starts with `label`.
double printedValue(const std::vector<std::string>& lines, const std::string& label) {
  for (const std::string& line : lines) {
    if (line.compare(0, label.size(), label) == 0) return std::stod(line.substr(label.size()));
  }
  ADD_FAILURE() << "no line \"" << label << "\"";
  return std::nan("");
}

TEST(NistData, TheFolderIsThere) {
  // Missing data must fail the run, not pass it quietly.
  ASSERT_TRUE(std::filesystem::is_directory(test::nistDirectory()))
      << test::nistDirectory() << " is missing: set SONALYX_NIST_DIR to the folder of the NIST .dat files";
}

struct UnivariateCase {
  const char* name;
  // Where the decimal data cannot be held exactly in binary (10000000.2 and the
  // like), the spread of the stored values itself differs from the certified one.
  int deviationDigits;
};

TEST(NistData, StatisticsAgreeWithTheUnivariateSets) {
  const UnivariateCase cases[] = {
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
    const std::vector<double> backwards(values.rbegin(), values.rend());
    const DataSet set = setOf(values, backwards);
    const SampleStatistics s = computeStatistics(set);
    EXPECT_TRUE(agreesTo(s.meanX, mean, 14)) << c.name;
    EXPECT_TRUE(agreesTo(s.meanY, mean, 14)) << c.name;
    EXPECT_TRUE(agreesTo(s.deviationX, deviation, c.deviationDigits)) << c.name;
    EXPECT_TRUE(agreesTo(s.deviationY, deviation, c.deviationDigits)) << c.name;
    // The divide-by-n deviation follows from the certified one.
    EXPECT_TRUE(agreesTo(s.sampleDeviation, deviation * std::sqrt((n - 1.0) / n), c.deviationDigits))
        << c.name;

    const std::vector<std::string> lines = statisticsLines(set);
    ASSERT_EQ(lines.size(), 10u) << c.name;
    EXPECT_EQ(lines[0], "Number of points: " + std::to_string(values.size())) << c.name;
    EXPECT_EQ(lines[3], "Mean value of x: " + formatNumber(mean, "%.10g")) << c.name;
    EXPECT_EQ(lines[8], "Mean value of y: " + formatNumber(mean, "%.10g")) << c.name;
    EXPECT_TRUE(agreesTo(printedValue(lines, "x standard deviation:"), deviation, c.deviationDigits))
        << c.name;
    EXPECT_TRUE(agreesTo(printedValue(lines, "y standard deviation:"), deviation, c.deviationDigits))
        << c.name;
  }
}

TEST(NistData, LinearFitAgreesWithNorris) {
  const NistDataset data = readNistDataset("Norris");
  const std::vector<double> ys = data.column(0);
  const std::vector<double> xs = data.column(1);
  const double b0 = data.certifiedNumbers("B0").at(0);
  const double b1 = data.certifiedNumbers("B1").at(0);
  const double r = std::sqrt(data.certifiedNumbers("R-Squared").at(0));

  // The linear model leaves the last point out, so a dummy point is appended
  // after the 36 that NIST fitted; it must not change anything.
  std::vector<double> paddedX = xs;
  std::vector<double> paddedY = ys;
  paddedX.push_back(1e6);
  paddedY.push_back(-1e6);
  const FitResult linear = runFit(kLinear, setOf(paddedX, paddedY));
  ASSERT_EQ(linear.coefficients.size(), 2u);
  EXPECT_EQ(linear.lines[0], "Number of points: 36");
  EXPECT_TRUE(agreesTo(linear.coefficients[0], b0, 10));
  EXPECT_TRUE(agreesTo(linear.coefficients[1], b1, 10));
  EXPECT_TRUE(agreesTo(printedValue(linear.lines, "r:"), r, 10));
  EXPECT_TRUE(agreesTo(printedValue(linear.lines, "a:"), b0, 10));
  EXPECT_TRUE(agreesTo(printedValue(linear.lines, "b:"), b1, 10));

  // y = a + b/x on the points (1/x, y) is the same line through all 36 points.
  std::vector<double> reciprocal;
  for (double x : xs) reciprocal.push_back(1.0 / x);
  const FitResult hyperbolic = runFit(kHyperbolic, setOf(reciprocal, ys));
  ASSERT_EQ(hyperbolic.coefficients.size(), 2u);
  EXPECT_TRUE(agreesTo(hyperbolic.coefficients[0], b0, 10));
  EXPECT_TRUE(agreesTo(hyperbolic.coefficients[1], b1, 10));
  EXPECT_TRUE(agreesTo(printedValue(hyperbolic.lines, "r:"), r, 10));
}

TEST(NistData, QuadraticFitAgreesWithPontius) {
  const NistDataset data = readNistDataset("Pontius");
  const FitResult result = runFit(kQuadratic, setOf(data.column(1), data.column(0)));
  ASSERT_EQ(result.coefficients.size(), 3u);
  EXPECT_EQ(result.lines[0], "Number of points: 40");
  // The certified x² coefficient, −3.16e-15, is below the 1e-9 that a
  // polynomial coefficient must reach: it is reported as 0.
  const double b2 = data.certifiedNumbers("B2").at(0);
  ASSERT_LT(std::fabs(b2), 1e-9);
  EXPECT_TRUE(agreesTo(result.coefficients[0], 0.0, 15));
  EXPECT_EQ(result.lines[5], "a: 0");
  EXPECT_TRUE(agreesTo(result.coefficients[1], data.certifiedNumbers("B1").at(0), 10));
  EXPECT_TRUE(agreesTo(result.coefficients[2], data.certifiedNumbers("B0").at(0), 10));
  EXPECT_TRUE(agreesTo(printedValue(result.lines, "b:"), data.certifiedNumbers("B1").at(0), 10));
  EXPECT_TRUE(agreesTo(printedValue(result.lines, "c:"), data.certifiedNumbers("B0").at(0), 10));
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
