#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace sonalyx {

// The f(x) text of a model with letters for its coefficients: "a + (b * x)" for the
// linear model. Empty for the statistics (0) and for unknown numbers.
std::string_view fitExpressionTemplate(int model);

// The fitted curve as an expression for the evaluator: the template with a, b, c,
// d and e replaced in that order, each by its coefficient written with "%.10g".
// Every replacement changes each occurrence of its letter in the text as it then
// stands, so the quartic's final "e" also lands in the exponents of numbers
// written before it (1.5e-005); that is how the program has always filled it.
// c, d and e are replaced only when there are that many coefficients. Empty when
// the template is empty or fewer than two coefficients are given.
std::string fitExpression(int model, const std::vector<double>& coefficients);

}  // namespace sonalyx
