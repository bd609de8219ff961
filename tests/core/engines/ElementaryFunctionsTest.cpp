#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <limits>
#include <numbers>
#include <string>
#include <vector>

#include "core/engines/CompiledFunction.h"
#include "core/engines/Evaluator.h"
#include "support/NumericCompare.h"

namespace sonalyx {
namespace {

using test::agreesTo;

const double kNaN = std::numeric_limits<double>::quiet_NaN();
const double kInf = std::numeric_limits<double>::infinity();

// sin, cos, atan, exp, ln and log are the evaluator's own, rounded once. Each
// row's value is the correctly rounded one (300-bit reference); the first rows of
// each function are arguments where the C library is a unit off. Every row is
// checked through Calculate, through the compiled function alone, and inside a
// block of ordinary values, where arguments out of the functions' own range are
// redone by the C library.
TEST(ElementaryFunctions, AreCorrectlyRounded) {
  const struct {
    const char* function;
    double x;
    double expected;
  } cases[] = {
      {"sin", 3.5898514166024214, -0.43339698371653196},   // C library: ...6532
      {"sin", 9.198270902628295, 0.22457517960834603},     // ...4600
      {"cos", 2272.6015679408447, -0.3341628967729136},    // ...29135
      {"cos", -29866.076851523758, -0.5023290042748677},   // ...8676
      {"atan", 0.24386332304211641, 0.23919467994216748},  // ...16745
      {"atan", 0.11569062351353476, 0.11517858246957334},  // ...57333
      {"exp", -585.905643438993, 3.502774169826966e-255},  // ...69654e-255
      {"exp", -562.8101277003784, 3.7554949339046964e-245},
      {"ln", 1.0931338487786926, 0.08904866169559177},    // ...59178
      {"ln", 1.0709585830096815, 0.06855411939169563},    // ...69564
      {"log", 0.7173503774468328, -0.14426866884542608},  // ...42605
      {"log", 3.474634472818339, 0.5409091240951539},     // ...5154
      // Exact values stay exact.
      {"sin", 0.0, 0.0},
      {"sin", -0.0, -0.0},
      {"cos", 0.0, 1.0},
      {"atan", 1.0, std::numbers::pi / 4.0},
      {"atan", -1e300, -std::numbers::pi / 2.0},
      {"exp", 0.0, 1.0},
      {"ln", 1.0, 0.0},
      {"log", 1000.0, 3.0},
      {"log", 1e-5, -5.0},
      {"ln", 0.5, -std::numbers::ln2},
      // Beyond their own range the C library answers.
      {"sin", 1e6, std::sin(1e6)},
      {"cos", -3e9, std::cos(-3e9)},
      {"atan", kInf, std::numbers::pi / 2.0},
      {"exp", 707.5, std::exp(707.5)},
      {"exp", -708.5, std::exp(-708.5)},  // below the normal numbers
      {"exp", 710.0, kInf},
      {"exp", -746.0, 0.0},
      {"ln", 0.0, -kInf},
      {"ln", -1.0, kNaN},
      {"ln", 4.9e-324, std::log(4.9e-324)},
      {"log", kInf, kInf},
      {"sin", kNaN, kNaN},
      {"exp", -kInf, 0.0},
  };
  std::vector<double> block;
  for (int i = 0; i < 300; ++i) block.push_back(0.37 * i - 40.0);
  std::vector<double> values(block.size());
  for (const auto& c : cases) {
    const std::string expression = std::string(c.function) + "(x)";
    EvaluationError error;
    const auto f = CompiledFunction::compile(expression, error);
    ASSERT_TRUE(f) << expression;
    EXPECT_TRUE(agreesTo((*f)(c.x), c.expected, 17)) << c.function << '(' << c.x << ')';
    if (c.expected == 0.0) {
      EXPECT_EQ(std::signbit((*f)(c.x)), std::signbit(c.expected)) << c.function;
    }
    block[150] = c.x;
    f->evaluate(block.data(), values.data(), block.size());
    EXPECT_TRUE(agreesTo(values[150], c.expected, 17)) << c.function << '(' << c.x << ") in a block";
    if (std::isfinite(c.x)) {
      char text[64];
      std::snprintf(text, sizeof text, "%s(%.17g)", c.function, c.x);
      double result = 0.0;
      std::string reason;
      ASSERT_TRUE(Calculate(text, result, reason)) << text;
      EXPECT_TRUE(agreesTo(result, c.expected, 17)) << text;
    }
  }
}

}  // namespace
}  // namespace sonalyx
