#pragma once

#include <string>

#include "core/engines/EvaluationError.h"

namespace sonalyx {

// Evaluates one arithmetic expression and writes its value to `result`; on
// failure returns false, leaves `result` alone and says why in `error`.
//
// The language: decimal numbers (2, .5, 2.5e-007, 1E3), the constants pi and e,
// binary + - * / ^, unary - and +, postfix ! (factorial, through the gamma
// function for non-integers), parentheses, and the one-argument functions sin cos
// tan asin acos atan sinh cosh tanh asinh acosh atanh exp ln log (base 10) sqrt
// abs floor ceil round sign, in radians. ^ is right-associative and binds tighter
// than a sign, so -3^2 is -9, 2^-1 is 0.5 and 2*-3 is -6. Blanks between tokens
// are ignored, names are lower case, there is no implicit multiplication.
//
// A value outside a function's domain is no failure: sqrt(-1) gives NaN and 1/0 an
// infinity. A whole power (x^3, 2^-2) is multiplied out and rounded once, as pow
// rounds it. The reader is the one CompiledFunction uses (core/engines/
// CompiledFunction.h), which runs an expression in x over many values at once; a
// call here does not touch the heap.
bool Calculate(const std::string& expression, double& result, EvaluationError& error);

// The same with the reason as an English sentence ("Missing closing bracket.").
bool Calculate(const std::string& expression, double& result, std::string& errorText);

}  // namespace sonalyx
