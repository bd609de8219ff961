#pragma once

#include <functional>
#include <string>

#include "core/math/DataSet.h"

namespace sonalyx {

// Fills a data set from an expression in x: the value, the numerical derivative,
// the running integral and the trend of the derivative at every point. The
// expression is never parsed here; each value comes from substituting a number for
// x in the text and handing the text to the evaluator, ten calls per point.
class FunctionSampler {
 public:
  using Translator = std::function<std::string(const std::string&)>;
  // Same contract as Calculate in core/engines/Evaluator.h.
  using Evaluator =
      std::function<bool(const std::string& expression, double& result, std::string& errorText)>;

  // An empty translator leaves texts in English; an empty evaluator means Calculate.
  explicit FunctionSampler(Translator translate = {}, Evaluator evaluate = {});

  // The expression with every x replaced by `value` written "%.14g" (0 below
  // 1e-11 in magnitude), blanks removed and the x of "exp" left alone. Without
  // any x the expression comes back exactly as given; when the first x stands
  // where no number can (as in "2x") the result is empty, which no evaluator reads.
  static std::string substituteX(const std::string& expression, double value);

  // Builds `numPts` points from x0 to x1 and samples the expression there. On
  // failure the set is empty and `errorText` holds "Point allocation error." (bad
  // domain or count) or the translated "Invalid entry.".
  bool computeFunction(DataSet& set, const std::string& expression, double x0, double x1, int numPts,
                       std::string& errorText);

  // y, derivative, integral and trend at the set's existing x values, all or
  // nothing: any evaluator failure empties the set, records the translated
  // "Invalid entry." as lastError() and returns false.
  bool sampleFunction(DataSet& set, const std::string& expression);

  // The two calculus steps on their own. Each stops at the first evaluator
  // failure with the evaluator's text, leaving the points done so far.
  // The derivative is the central difference over x +- 0.001; the trend of point
  // i compares the derivative's change with +1e-11: above is +1, below is -1 (a
  // straight line's is -1), anything else (exactly 1e-11, NaN) is 0.
  bool computeDerivative(DataSet& set, const std::string& expression, std::string& errorText);
  // Running integral from the first point by 7-point Gauss-Legendre over each
  // interval, the integrand built as the text "h * expression" with x replaced by
  // "(h * x + m)": an expression with a sum at its top level, such as x+1, adds
  // its constant term unscaled at every node.
  bool computeIntegral(DataSet& set, const std::string& expression, std::string& errorText);

  const std::string& lastError() const { return m_lastError; }

 private:
  std::string translate(const std::string& text) const;

  Translator m_translate;
  Evaluator m_evaluate;
  std::string m_lastError;
};

}  // namespace sonalyx
