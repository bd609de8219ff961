#include "core/speech/SignWords.h"

#include <gtest/gtest.h>

namespace sonalyx {
namespace {

TEST(SignWords, ANegativeNumbersSignIsSaidAsAWordAndAMinusBetweenOperandsIsLeft) {
  const struct {
    const char* text;
    const char* spoken;
  } rows[] = {
      {"x = -10, y = 10", "x = minus 10, y = 10"},
      {"x = 2, y = -2.25", "x = 2, y = minus 2.25"},
      {"-3", "minus 3"},
      {"-.5 and (-4) [-1;-2]", "minus .5 and ( minus 4) [ minus 1; minus 2]"},
      {"f(x)=-x", "f(x)=-x"},  // no number: the expression's reader says it
      {"y = \xE2\x88\x92"
       "7",
       "y = minus 7"},
      {"1-2, 1e-7, 2026-11-25", "1-2, 1e-7, 2026-11-25"},
      {"Difference (1-2)", "Difference (1-2)"},
      {"x - 3", "x - 3"},
      {"-", "-"},
      {"", ""},
  };
  for (const auto& row : rows) EXPECT_EQ(spellNegativeSigns(row.text, "minus"), row.spoken) << row.text;
  EXPECT_EQ(spellNegativeSigns("x = -10", "moins"), "x = moins 10");
}

}  // namespace
}  // namespace sonalyx
