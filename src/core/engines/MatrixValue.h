#pragma once

#include <Eigen/Core>

namespace sonalyx {

// A value of a matrix expression. A number (2, det(A), trace(A)) is a scalar and
// is written as a plain number; anything built with brackets stays a matrix,
// even [5], which is written "[5]".
struct MatrixValue {
  Eigen::MatrixXd matrix;
  bool scalar = false;

  static MatrixValue number(double value) {
    MatrixValue v;
    v.matrix = Eigen::MatrixXd::Constant(1, 1, value);
    v.scalar = true;
    return v;
  }
  double scalarValue() const { return matrix(0, 0); }
};

}  // namespace sonalyx
