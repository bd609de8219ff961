#pragma once

#include <optional>
#include <vector>

#include "core/math/DataPoint.h"

namespace sonalyx {

// Least-squares polynomial of the given degree through every point: the degree + 1
// coefficients, lowest power first. Empty when the points cannot determine the
// polynomial (fewer distinct x values than coefficients, or an x that is not a
// finite number). A NaN y gives NaN coefficients.
std::optional<std::vector<double>> fitPolynomial(const std::vector<DataPoint>& points, int degree);

}  // namespace sonalyx
