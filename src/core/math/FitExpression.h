#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace sonalyx {

// The f(x) text of a model with letters for its coefficients: "a + (b * x)" for the
// linear model. Empty for the statistics (0) and for unknown numbers.
std::string_view fitExpressionTemplate(int model);

// The fitted curve as an expression for the evaluator: each coefficient letter of
// the template (a to e, standing alone, so the e of "exp" stays) replaced by its
// coefficient written "(%.10g)". c, d and e are replaced only when there are that
// many coefficients. Empty when the template is empty or fewer than two
// coefficients are given.
std::string fitExpression(int model, const std::vector<double>& coefficients);

}  // namespace sonalyx
