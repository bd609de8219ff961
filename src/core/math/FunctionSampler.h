#pragma once

#include <functional>
#include <string>

#include "core/engines/CompiledFunction.h"
#include "core/math/DataSet.h"

namespace sonalyx {

// Fills a data set from an expression in x: the value, the numerical derivative,
// the running integral and the trend of the derivative at every point. The
// expression is read once, before any point is computed; its ten values per point
// are then run in blocks through the compiled function.
class FunctionSampler {
 public:
  using Translator = std::function<std::string(const std::string&)>;

  // An empty translator leaves texts in English.
  explicit FunctionSampler(Translator translate = {});

  // Builds `numPts` points from x0 to x1 and samples the expression there. On
  // failure the set is empty and `errorText` holds "Invalid entry." followed by the
  // reason ("Start must be below finish.", "Unknown name y."), or "Point allocation
  // error." when the points do not fit in memory.
  bool computeFunction(DataSet& set, const std::string& expression, double x0, double x1, int numPts,
                       std::string& errorText);

  // y, derivative, integral and trend at the set's existing x values, all or
  // nothing: an expression that cannot be read (or too few points) empties the
  // set, records "Invalid entry." and the reason as lastError() and returns false.
  // A value undefined at some x (sqrt(-1), 1/0) is no failure: NaN or an infinity
  // there, carried into the derivative and the integral.
  //
  // At each x (a magnitude below 1e-11 is taken as 0): y = f(x); the derivative is
  // the central difference (f(x + 0.001) - f(x - 0.001)) * 500; the trend of point
  // i is +1 or -1 when the derivative rose or fell by more than 1e-11 since point
  // i - 1, else 0 (0 at the first point); the integral from the first point grows
  // over each interval by 7-point Gauss-Legendre of h * f(h * t + m), h and m the
  // half width and the middle, with the sum set to 0 where its parts cancel to
  // rounding noise.
  bool sampleFunction(DataSet& set, const std::string& expression);
  bool sampleFunction(DataSet& set, const CompiledFunction& f);

  // The trend column from the derivative column, by the rule above.
  static void setTrends(DataSet& set);

  const std::string& lastError() const { return m_lastError; }

 private:
  std::string translate(const std::string& text) const;
  std::string invalidEntry(const std::string& reason) const;

  Translator m_translate;
  std::string m_lastError;
};

}  // namespace sonalyx
