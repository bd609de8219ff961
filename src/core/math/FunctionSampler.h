#pragma once

#include <functional>
#include <string>

#include "core/math/DataSet.h"

namespace sonalyx {

// Fills a data set from an expression in x: the value, the numerical derivative,
// the running integral and the trend of the derivative at every point. Each value
// comes from substituting a number for x in the text and handing the text to the
// evaluator, ten calls per point.
class FunctionSampler {
 public:
  using Translator = std::function<std::string(const std::string&)>;
  // Same contract as the text form of Calculate in core/engines/Evaluator.h: on
  // failure `reason` is the sentence that follows "Invalid entry.".
  using Evaluator = std::function<bool(const std::string& expression, double& result, std::string& reason)>;

  // An empty translator leaves texts in English; an empty evaluator means Calculate,
  // whose reasons are then translated too.
  explicit FunctionSampler(Translator translate = {}, Evaluator evaluate = {});

  // The expression with every x replaced by `value` written "%.14g" (0 below 1e-11
  // in magnitude, bracketed when it has a sign or an exponent), blanks removed and
  // the x of "exp" left alone. Without any x the expression comes back exactly as
  // given; when an x stands where no number can (as in "2x") the result is empty.
  static std::string substituteX(const std::string& expression, double value);

  // Builds `numPts` points from x0 to x1 and samples the expression there. On
  // failure the set is empty and `errorText` holds "Invalid entry." followed by the
  // reason ("Start must be below finish.", "Unknown name y."), or "Point allocation
  // error." when the points do not fit in memory.
  bool computeFunction(DataSet& set, const std::string& expression, double x0, double x1, int numPts,
                       std::string& errorText);

  // y, derivative, integral and trend at the set's existing x values, all or
  // nothing: any failure empties the set, records "Invalid entry." and the reason
  // as lastError() and returns false.
  bool sampleFunction(DataSet& set, const std::string& expression);

  // The two calculus steps on their own. Each stops at the first evaluator failure
  // with its reason, leaving the points done so far. The derivative is the central
  // difference over x +- 0.001; the trend of point i is +1 or -1 when the
  // derivative rose or fell by more than 1e-11 since point i - 1, else 0.
  bool computeDerivative(DataSet& set, const std::string& expression, std::string& errorText);
  // Running integral from the first point by 7-point Gauss-Legendre over each
  // interval, the integrand built as the text "h * (expression)" with x replaced
  // by "(h * x + m)".
  bool computeIntegral(DataSet& set, const std::string& expression, std::string& errorText);

  const std::string& lastError() const { return m_lastError; }

 private:
  std::string translate(const std::string& text) const;
  bool evaluate(const std::string& text, double& result, std::string& reason) const;
  std::string invalidEntry(const std::string& reason) const;

  Translator m_translate;
  Evaluator m_evaluate;
  std::string m_lastError;
};

}  // namespace sonalyx
