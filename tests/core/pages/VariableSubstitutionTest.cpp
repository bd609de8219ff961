#include "core/pages/VariableSubstitution.h"

#include <gtest/gtest.h>

#include <map>
#include <string>

#include "core/pages/Assignment.h"

namespace sonalyx {
namespace {

TEST(VariableSubstitution, ReplacesWholeNamesWithTheirValuesInBrackets) {
  const std::map<std::string, std::string> variables = {
      {"a", "2+3"}, {"ab", "7"},    {"e", "10"},   {"e5", "9"},
      {"f", "4"},   {"x_1", "a*a"}, {"π", "3.14"}, {"2A", "[1]"},
  };
  struct Case {
    const char* text;
    const char* expected;
  };
  const Case cases[] = {
      {"a*2", "(2+3)*2"},
      {"ab+a", "(7)+(2+3)"},
      {"sin(a)", "sin((2+3))"},
      {"abc+ba+a1+_a", "abc+ba+a1+_a"},
      {"1e3+2.5e-2+1.e5+e+e5", "1e3+2.5e-2+1.e5+(10)+(9)"},
      {"f(2)+f (2)+f", "f(2)+f (2)+(4)"},
      {"x_1-1", "((2+3)*(2+3))-1"},
      {"2*π", "2*(3.14)"},
      {"2A*3+12A", "([1])*3+12A"},
  };
  for (const auto& c : cases) {
    std::string text = c.text;
    EXPECT_TRUE(substituteVariables(text, variables)) << c.text;
    EXPECT_EQ(text, c.expected) << c.text;
  }
}

TEST(VariableSubstitution, RefusesValuesThatNeverStopReferring) {
  const std::map<std::string, std::string> cycles[] = {
      {{"a", "a+1"}},
      {{"a", "b"}, {"b", "c"}, {"c", "a*2"}},
      // Finite, but a billion characters long.
      {{"a", "b+b"}, {"b", "c+c"}, {"c", "d+d"}, {"d", "e+e"}, {"e", "f+f"}, {"f", "g+g"}, {"g", "h+h"},
       {"h", "i+i"}, {"i", "j+j"}, {"j", "k+k"}, {"k", "l+l"}, {"l", "m+m"}, {"m", "n+n"}, {"n", "o+o"},
       {"o", "p+p"}, {"p", "q+q"}, {"q", "r+r"}, {"r", "s+s"}, {"s", "t+t"}, {"t", "1"}},
  };
  for (const auto& variables : cycles) {
    std::string text = "a";
    EXPECT_FALSE(substituteVariables(text, variables)) << variables.begin()->second;
  }
}

TEST(Assignment, SplitsAtTheFirstEqualsAfterAName) {
  struct Case {
    const char* text;
    const char* name;  // nullptr: an expression, not an assignment
    const char* value;
  };
  const Case cases[] = {
      {"a = 2+3", "a", "2+3"},       {" \tlong_name\t=  x = 1 ", "long_name", "x = 1"},
      {"π=3.14159", "π", "3.14159"}, {"2a = 3", nullptr, ""},
      {"= 5", nullptr, ""},          {"=5", nullptr, ""},
      {"A = ", nullptr, ""},         {"5 =", nullptr, ""},
      {"a+b", nullptr, ""},
  };
  for (const auto& c : cases) {
    // The Evaluator and the Matrix page name their variables alike.
    for (const auto& parsed : {parseEvaluatorAssignment(c.text), parseMatrixAssignment(c.text)}) {
      ASSERT_EQ(parsed.has_value(), c.name != nullptr) << c.text;
      if (parsed) {
        EXPECT_EQ(parsed->name, c.name);
        EXPECT_EQ(parsed->value, c.value);
      }
    }
  }
}

}  // namespace
}  // namespace sonalyx
