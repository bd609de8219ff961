#include "core/engines/Evaluator.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <numbers>
#include <string>

#include "support/NumericCompare.h"

namespace sonalyx {
namespace {

using test::agreesTo;

constexpr double kPi = std::numbers::pi;
constexpr double kE = std::numbers::e;
const double kNaN = std::numeric_limits<double>::quiet_NaN();
const double kInf = std::numeric_limits<double>::infinity();

struct ValueCase {
  const char* expression;
  double expected;
};

void expectValues(const ValueCase* begin, const ValueCase* end) {
  for (const ValueCase* c = begin; c != end; ++c) {
    double result = -12345.0;
    std::string error;
    ASSERT_TRUE(Calculate(c->expression, result, error)) << c->expression << ": " << error;
    EXPECT_TRUE(agreesTo(result, c->expected, 15)) << c->expression;
    EXPECT_TRUE(error.empty()) << c->expression;
  }
}

TEST(Evaluator, ReadsNumbersAndConstants) {
  const ValueCase cases[] = {
      {"2", 2.0},         {"0", 0.0},           {".5", 0.5},
      {"5.", 5.0},        {"2.5e-007", 2.5e-7}, {"1E3", 1000.0},
      {"1e+3", 1000.0},   {"007", 7.0},         {"123456789012345678", 123456789012345678.0},
      {"1e400", kInf},    {"1e-400", 0.0},      {"pi", kPi},
      {"e", kE},          {"2*pi", 2.0 * kPi},  {"e^2", kE * kE},
      {"1/3", 1.0 / 3.0},
  };
  expectValues(std::begin(cases), std::end(cases));
}

TEST(Evaluator, ReadsNumbersToTheNearestDouble) {
  // 17 digits: nothing but the correctly rounded double passes.
  const ValueCase cases[] = {
      {"0.1", 0.1},
      {"0.3", 0.3},
      {"-0.94910791234276", -0.94910791234276},
      {"0.4058451513774", 0.4058451513774},
      {"9.9599999999999", 9.9599999999999},
      {"1e-007", 1e-7},
      {"2.5e-007", 2.5e-7},
      {"1.0000001666667", 1.0000001666667},
      {"1e22", 1e22},
      {"1e23", 1e23},
      {"1e-22", 1e-22},
      {"1e-23", 1e-23},
      {"9007199254740992", 9007199254740992.0},
      {"9007199254740993", 9007199254740993.0},
      {"9007199254740993e-3", 9007199254740.993},
      {"1234567890123456789", 1234567890123456789.0},
      {"12345678901234567890123", 12345678901234567890123.0},
      {"0.000000000000000000000000001", 1e-27},
      {".0001e+4", 1.0},
      {"1.7976931348623157e308", 1.7976931348623157e308},
      {"4.9406564584124654e-324", 4.9406564584124654e-324},
      {"123.456e-2", 1.23456},
  };
  for (const auto& c : cases) {
    double result = 0.0;
    std::string error;
    ASSERT_TRUE(Calculate(c.expression, result, error)) << c.expression;
    EXPECT_TRUE(agreesTo(result, c.expected, 17)) << c.expression;
  }
}

TEST(Evaluator, FollowsPrecedenceAndAssociativity) {
  const ValueCase cases[] = {
      {"1+2*3", 7.0},  {"(1+2)*3", 9.0},   {"10-4-3", 3.0},   {"2/4/8", 0.0625}, {"2*3/4", 1.5},
      {"8-2+1", 7.0},  {"2^3^2", 512.0},   {"(2^3)^2", 64.0}, {"-3^2", -9.0},    {"(-3)^2", 9.0},
      {"2^-1", 0.5},   {"2^-2^2", 0.0625},  // 2^(-(2^2))
      {"2*-3", -6.0},  {"2/-4", -0.5},     {"-2*-3", 6.0},    {"1--2", 3.0},     {"1-+2", -1.0},
      {"+5", 5.0},     {"--3^2", 9.0},     {"-(-3)^2", -9.0}, {"---1", -1.0},    {"-2^2*3", -12.0},
      {"2*3^2", 18.0}, {"-2+3", 1.0},      {"1-2^2", -3.0},
  };
  expectValues(std::begin(cases), std::end(cases));
}

TEST(Evaluator, ComputesFactorialsThroughTheGammaFunction) {
  const ValueCase cases[] = {
      {"0!", 1.0},
      {"1!", 1.0},
      {"5!", 120.0},
      {"10!", 3628800.0},
      {"3!!", 720.0},
      {"-2!", -2.0},  // the sign applies after the factorial
      {"(-0.5)!", std::sqrt(kPi)},
      {"0.5!", std::sqrt(kPi) / 2.0},
      {"1.5!", 3.0 * std::sqrt(kPi) / 4.0},
      {"2^3!", 64.0},
      {"3!^2", 36.0},
      {"(2+1)!", 6.0},
      {"170!", std::tgamma(171.0)},
      {"171!", kInf},
      {"(-1)!", kNaN},
      {"(-3)!", kNaN},
  };
  for (const auto& c : cases) {
    double result = 0.0;
    std::string error;
    ASSERT_TRUE(Calculate(c.expression, result, error)) << c.expression;
    // tgamma itself is good to about 13 digits at 171.
    EXPECT_TRUE(agreesTo(result, c.expected, 13)) << c.expression;
  }
}

TEST(Evaluator, KnowsEveryFunction) {
  const ValueCase cases[] = {
      {"sin(0.5)", std::sin(0.5)},
      {"cos(0.5)", std::cos(0.5)},
      {"tan(0.5)", std::tan(0.5)},
      {"asin(0.5)", kPi / 6.0},
      {"acos(0.5)", kPi / 3.0},
      {"atan(1)", kPi / 4.0},
      {"sinh(1)", (kE - 1.0 / kE) / 2.0},
      {"cosh(1)", (kE + 1.0 / kE) / 2.0},
      {"tanh(1)", (kE * kE - 1.0) / (kE * kE + 1.0)},
      {"asinh(1)", std::log(1.0 + std::sqrt(2.0))},
      {"acosh(2)", std::log(2.0 + std::sqrt(3.0))},
      {"atanh(0.5)", 0.5 * std::log(3.0)},
      {"exp(1)", kE},
      {"ln(e^3)", 3.0},
      {"log(1000)", 3.0},
      {"sqrt(16)", 4.0},
      {"abs(-2.5)", 2.5},
      {"floor(-2.5)", -3.0},
      {"ceil(-2.5)", -2.0},
      {"round(2.5)", 3.0},
      {"round(-2.5)", -3.0},
      {"round(2.4)", 2.0},
      {"sign(-7)", -1.0},
      {"sign(0)", 0.0},
      {"sign(0.2)", 1.0},
      {"sin(pi/2)", 1.0},
      {"sqrt(sqrt(16))", 2.0},
      {"sin(1)^2+cos(1)^2", 1.0},
      {"-sqrt(4)", -2.0},
      {"exp(-1)", 1.0 / kE},
      {"2*sin(-0.5)", -2.0 * std::sin(0.5)},
  };
  expectValues(std::begin(cases), std::end(cases));
}

TEST(Evaluator, IgnoresBlanksBetweenTokens) {
  const ValueCase cases[] = {
      {" 1 + 2 ", 3.0},
      {"\t2 *\t3", 6.0},
      {"sin ( 0.5 )", std::sin(0.5)},
      {"- 3 ^ 2", -9.0},
      {"0.5 * (0.5 * -0.94910791234276 + 0.5)^2", 0.5 * std::pow(0.5 * -0.94910791234276 + 0.5, 2.0)},
      {"3 !", 6.0},
  };
  expectValues(std::begin(cases), std::end(cases));
}

TEST(Evaluator, DomainErrorsGiveNaNOrInfinityNotFailure) {
  const ValueCase cases[] = {
      {"sqrt(-1)", kNaN},   {"ln(0)", -kInf},    {"ln(-1)", kNaN},   {"log(0)", -kInf},   {"1/0", kInf},
      {"-1/0", -kInf},      {"0/0", kNaN},       {"asin(2)", kNaN},  {"acosh(0)", kNaN},  {"atanh(1)", kInf},
      {"(-8)^(1/3)", kNaN}, {"exp(1000)", kInf}, {"1e308*10", kInf}, {"sign(0/0)", kNaN},
  };
  for (const auto& c : cases) {
    double result = 0.0;
    std::string error;
    ASSERT_TRUE(Calculate(c.expression, result, error)) << c.expression;
    EXPECT_TRUE(agreesTo(result, c.expected, 15)) << c.expression << " gave " << result;
  }
}

TEST(Evaluator, RefusesWhatItCannotReadAndSaysWhy) {
  const char* empty = "The expression is empty.";
  const char* early = "The expression ends too early.";
  const char* bracket = "Missing closing bracket.";
  const struct {
    std::string expression;
    const char* reason;
  } cases[] = {
      {"", empty},
      {"   ", empty},
      {"x", "Unknown name x."},
      {"2*x", "Unknown name x."},
      {"foo(2)", "Unknown name foo."},
      {"SIN(1)", "Unknown name SIN."},
      {"inf", "Unknown name inf."},
      {"sin 2", "sin needs its argument in brackets."},
      {"exp", "exp needs its argument in brackets."},
      {"(1+2", bracket},
      {"((1)", bracket},
      {"sin(1", bracket},
      {"1+", early},
      {"2^", early},
      {"-", early},
      {"2x", "Unexpected \"x\"."},
      {"0x10", "Unexpected \"x\"."},
      {"2 3", "Unexpected \"3\"."},
      {"1 000", "Unexpected \"000\"."},
      {"2(3)", "Unexpected \"(\"."},
      {"pi(2)", "Unexpected \"(\"."},
      {"2pi", "Unexpected \"pi\"."},
      {"sin()", "Unexpected \")\"."},
      {"1+2)", "Unexpected \")\"."},
      {"sin(1,2)", "Unexpected \",\"."},
      {"2**3", "Unexpected \"*\"."},
      {"!", "Unexpected \"!\"."},
      {"1.2.3", "Unexpected \".3\"."},
      {"2e+", "Unexpected \"e\"."},
      {"\xcf\x80", "Unexpected \"\xcf\x80\"."},
      {std::string("1+2\0+3", 6), "Unexpected \"NUL\"."},
  };
  for (const auto& c : cases) {
    double result = 42.0;
    std::string error;
    EXPECT_FALSE(Calculate(c.expression, result, error)) << '"' << c.expression << '"';
    EXPECT_EQ(error, c.reason) << '"' << c.expression << '"';
    EXPECT_EQ(result, 42.0) << "result written for \"" << c.expression << '"';
  }
}

TEST(Evaluator, SurvivesDeepNesting) {
  // Reasonable nesting works; thousands of brackets fail instead of overflowing.
  struct NestCase {
    int depth;
    bool accepted;
  };
  const NestCase cases[] = {{50, true}, {300, true}, {100000, false}};
  for (const auto& c : cases) {
    const std::string brackets = std::string(c.depth, '(') + "7" + std::string(c.depth, ')');
    const std::string functions = [&] {
      std::string s;
      for (int i = 0; i < c.depth; ++i) s += "abs(";
      return s + "-7" + std::string(c.depth, ')');
    }();
    std::string powers = "1";
    for (int i = 0; i < c.depth; ++i) powers += "^1";
    for (const std::string& text : {brackets, functions, powers}) {
      double result = 0.0;
      std::string error;
      EXPECT_EQ(Calculate(text, result, error), c.accepted) << c.depth;
      if (c.accepted) {
        EXPECT_TRUE(agreesTo(result, text == powers ? 1.0 : 7.0, 15)) << c.depth;
      }
    }
  }
  // A long run of signs, as long as an expression may be, is counted, not nested.
  double result = 0.0;
  std::string error;
  ASSERT_TRUE(Calculate(std::string(99999, '-') + "2", result, error));
  EXPECT_TRUE(agreesTo(result, -2.0, 15));
}

}  // namespace
}  // namespace sonalyx
