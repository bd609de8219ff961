#include "core/math/Statistics.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

#include "core/math/FitText.h"
#include "core/math/RegressionFit.h"
#include "support/CurveData.h"
#include "support/NumericCompare.h"

namespace sonalyx {
namespace {

using test::pointsAt;

struct LinesCase {
  const char* what;
  test::Points points;
  std::vector<std::string> expected;
};

TEST(Statistics, WritesTheSummaryLines) {
  const LinesCase cases[] = {
      {"x near 1e9: the deviations keep their digits",
       {{1e9 + 1, 0}, {1e9 + 2, 0}, {1e9 + 3, 6}},
       {"Number of points: 3", "", "Sum of x values: 3000000006", "Mean value of x: 1000000002",
        "Sample standard deviation of x: 1", "Population standard deviation of x: 0.8164965809", "",
        "Sum of y values: 6", "Mean value of y: 2", "Sample standard deviation of y: 3.464101615",
        "Population standard deviation of y: 2.828427125"}},
      {"sums and means below 1e-11 are written as 0",
       {{-1, 2e-12}, {1 + 4e-12, -1e-12}},
       {"Number of points: 2", "", "Sum of x values: 0", "Mean value of x: 0",
        "Sample standard deviation of x: 1.414213562", "Population standard deviation of x: 1", "",
        "Sum of y values: 0", "Mean value of y: 0", "Sample standard deviation of y: 0",
        "Population standard deviation of y: 0"}},
      {"a NaN is written as the number formatting writes it",
       {{1, std::nan("")}, {2, 1}},
       {"Number of points: 2", "", "Sum of x values: 3", "Mean value of x: 1.5",
        "Sample standard deviation of x: 0.7071067812", "Population standard deviation of x: 0.5", "",
        "Sum of y values: Error", "Mean value of y: Error", "Sample standard deviation of y: Error",
        "Population standard deviation of y: Error"}},
  };
  for (const auto& c : cases) {
    const DataSet set = pointsAt(c.points);
    EXPECT_EQ(statisticsLines(set), c.expected) << c.what;
    // Model 0 of the fit entry point is the same summary and leaves no coefficients.
    const FitResult viaFit = runFit(0, set);
    EXPECT_TRUE(viaFit.ran) << c.what;
    EXPECT_EQ(viaFit.lines, c.expected) << c.what;
    EXPECT_TRUE(viaFit.coefficients.empty()) << c.what;
  }
}

TEST(FitText, WritesAndKeepsMagnitudesBelow1e11AsZero) {
  const double nan = std::nan("");
  const struct {
    double value;
    const char* line;
    double kept;
  } cases[] = {{1e-11, "a: 1e-011", 1e-11}, {-9.9e-12, "a: 0", 0.0}, {nan, "a: Error", nan}};
  for (const auto& c : cases) {
    EXPECT_EQ(FitText({}).coefficientLine('a', c.value), c.line) << c.value;
    EXPECT_TRUE(test::agreesTo(FitText::zeroed(c.value), c.kept, 17)) << c.value;
  }
}

TEST(Statistics, NeedsTwoPointsWithData) {
  for (const DataSet& set : {DataSet{}, pointsAt({{1, 2}}), pointsAt({{1, kAbsent}, {2, 3}})}) {
    EXPECT_TRUE(statisticsLines(set).empty()) << set.count() << " points";
  }
}

TEST(Statistics, TranslatesTheLabels) {
  const DataSet set = pointsAt({{1, 2}, {3, 4}});
  const auto english = statisticsLines(set);
  const auto translated = statisticsLines(set, [](const std::string& text) { return "<" + text + ">"; });
  ASSERT_EQ(translated.size(), english.size());
  for (std::size_t i = 0; i < english.size(); ++i) {
    const std::size_t blank = english[i].rfind(' ');
    EXPECT_EQ(translated[i],
              english[i].empty() ? "" : "<" + english[i].substr(0, blank) + ">" + english[i].substr(blank));
  }
}

}  // namespace
}  // namespace sonalyx
