#pragma once

#include <string>
#include <string_view>

#include "core/engines/MatrixValue.h"

namespace sonalyx {

// Evaluates a matrix expression.
//
// The notation: [1,2;3,4] is a matrix, "," separating columns and ";" rows. An
// element is any expression the program's evaluator reads ([sin(0), 2^3; -1, pi]),
// or a matrix expression itself, in which case the pieces are joined side by side
// and one above another ([A, eye(2)] with A 2x2 is 2x4). Between matrices:
// + and - (same size, or a number with a matrix: to every element), * (product,
// or scaling), / (times the inverse, or division by a number), ^ (whole power of
// a square matrix; ^-1 the inverse, ^0 the identity), unary -, parentheses and
// postfix ' (transpose). Functions: det inv trans trace rank, eye(n) the n x n
// identity, and the evaluator's functions of a number (sqrt(det(A))). Blanks are
// ignored. Precedence as in the evaluator: ^ binds tighter than a sign, so -A^2
// is -(A^2); ^ is right-associative.
//
// A square matrix counts as singular when its LU factors show a pivot
// negligible against the largest one: its inverse would be noise, and det gives
// exactly 0 for it. Results must be finite numbers.
//
// Returns false with a reason in `error` ("size mismatch: 2x2 + 3x3", "singular
// matrix", "unknown name: B", ...) and `value` unchanged.
bool evaluateMatrixExpression(std::string_view text, MatrixValue& value, std::string& error);

// The value in the same notation, every number "%.10g": "[1,2;3,4]", or a plain
// number for a scalar.
std::string formatMatrix(const MatrixValue& value);

// One number as a result shows it ("%.10g", never "-0").
std::string formatMatrixNumber(double value);

}  // namespace sonalyx
