#include "core/math/Statistics.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

#include "core/math/FitTestData.h"
#include "core/math/RegressionFit.h"
#include "support/NumericCompare.h"

namespace sonalyx {
namespace {

using test::agreesTo;
using test::makeSet;

struct LinesCase {
  const char* what;
  std::vector<std::pair<double, double>> points;
  std::vector<std::string> expected;
};

TEST(Statistics, WritesTheSummaryLines) {
  const LinesCase cases[] = {
      {"three points on y = 2x; the divide-by-n deviation is sqrt(2/3)",
       {{1, 2}, {2, 4}, {3, 6}},
       {"Number of points: 3", "", "Sum of x values: 6", "Mean value of x: 2", "x standard deviation: 1",
        "Sample deviation: 0.8164965809", "", "Sum of y values: 12", "Mean value of y: 4",
        "y standard deviation: 2"}},
      {"two points with the same x",
       {{5, 1}, {5, 3}},
       {"Number of points: 2", "", "Sum of x values: 10", "Mean value of x: 5", "x standard deviation: 0",
        "Sample deviation: 0", "", "Sum of y values: 4", "Mean value of y: 2",
        "y standard deviation: 1.414213562"}},
      {"sums and means below 1e-11 are written as 0",
       {{-1, 2e-12}, {1 + 4e-12, -1e-12}},
       {"Number of points: 2", "", "Sum of x values: 0", "Mean value of x: 0",
        "x standard deviation: 1.414213562", "Sample deviation: 1", "", "Sum of y values: 0",
        "Mean value of y: 0", "y standard deviation: 0"}},
      {"a NaN is written as the number formatting writes it",
       {{1, std::nan("")}, {2, 1}},
       {"Number of points: 2", "", "Sum of x values: 3", "Mean value of x: 1.5",
        "x standard deviation: 0.7071067812", "Sample deviation: 0.5", "", "Sum of y values: Error",
        "Mean value of y: Error", "y standard deviation: Error"}},
  };
  for (const auto& c : cases) {
    const DataSet set = makeSet(c.points);
    EXPECT_EQ(statisticsLines(set), c.expected) << c.what;
    // Model 0 of the fit entry point is the same summary and leaves no coefficients.
    const FitResult viaFit = runFit(0, set);
    EXPECT_TRUE(viaFit.ran) << c.what;
    EXPECT_EQ(viaFit.lines, c.expected) << c.what;
    EXPECT_TRUE(viaFit.coefficients.empty()) << c.what;
  }
}

TEST(Statistics, NeedsTwoPointsWithData) {
  DataSet withoutData = makeSet({{1, kAbsent}, {2, 3}});
  const DataSet sets[] = {DataSet{}, makeSet({{1, 2}}), withoutData};
  for (const auto& set : sets) {
    EXPECT_TRUE(statisticsLines(set).empty()) << set.count() << " points";
    const FitResult result = runFit(0, set);
    EXPECT_FALSE(result.ran) << set.count() << " points";
    EXPECT_TRUE(result.lines.empty()) << set.count() << " points";
  }
}

struct ValuesCase {
  const char* what;
  std::vector<std::pair<double, double>> points;
  SampleStatistics expected;
};

TEST(Statistics, ComputesEachValue) {
  // 1..10: variance (n − 1 divisor) n(n + 1)/12, divide-by-n variance (n² − 1)/12.
  std::vector<std::pair<double, double>> oneToTen;
  for (int i = 1; i <= 10; ++i) oneToTen.emplace_back(i, -3.0 * i);
  // Far from 0 the raw sums of squares would lose every digit of the spread.
  const double far = 1e9;
  const ValuesCase cases[] = {
      {"1 to 10, y = -3x",
       oneToTen,
       {10, 55.0, 5.5, std::sqrt(110.0 / 12.0), std::sqrt(99.0 / 12.0), -165.0, -16.5,
        3.0 * std::sqrt(110.0 / 12.0)}},
      {"x near 1e9",
       {{far + 1, 0}, {far + 2, 0}, {far + 3, 6}},
       {3, 3 * far + 6, far + 2, 1.0, std::sqrt(2.0 / 3.0), 6.0, 2.0, std::sqrt(12.0)}},
  };
  for (const auto& c : cases) {
    const SampleStatistics s = computeStatistics(makeSet(c.points));
    EXPECT_EQ(s.count, c.expected.count) << c.what;
    EXPECT_TRUE(agreesTo(s.sumX, c.expected.sumX, 14)) << c.what;
    EXPECT_TRUE(agreesTo(s.meanX, c.expected.meanX, 14)) << c.what;
    EXPECT_TRUE(agreesTo(s.deviationX, c.expected.deviationX, 12)) << c.what;
    EXPECT_TRUE(agreesTo(s.sampleDeviation, c.expected.sampleDeviation, 12)) << c.what;
    EXPECT_TRUE(agreesTo(s.sumY, c.expected.sumY, 14)) << c.what;
    EXPECT_TRUE(agreesTo(s.meanY, c.expected.meanY, 14)) << c.what;
    EXPECT_TRUE(agreesTo(s.deviationY, c.expected.deviationY, 12)) << c.what;
  }
}

TEST(Statistics, TranslatesTheLabels) {
  const auto translate = [](const std::string& english) { return "<" + english + ">"; };
  const std::vector<std::string> lines = statisticsLines(makeSet({{1, 2}, {3, 4}}), translate);
  const std::vector<std::string> expected = {"<Number of points:> 2",
                                             "",
                                             "<Sum of x values:> 4",
                                             "<Mean value of x:> 2",
                                             "<x standard deviation:> 1.414213562",
                                             "<Sample deviation:> 1",
                                             "",
                                             "<Sum of y values:> 6",
                                             "<Mean value of y:> 3",
                                             "<y standard deviation:> 1.414213562"};
  EXPECT_EQ(lines, expected);
}

}  // namespace
}  // namespace sonalyx
