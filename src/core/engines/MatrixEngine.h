#pragma once

#include <optional>
#include <string>

#include "core/engines/MatrixLayout.h"
#include "core/engines/MatrixValue.h"

namespace sonalyx {

// The matrix calculator behind the Matrix page: evaluates an expression (the
// notation is described at evaluateMatrixExpression), keeps the last result and
// typesets it for the display window.
class MatrixEngine {
 public:
  // Where the window's paint and the clipboard picture start the drawing.
  static constexpr int kRenderX = 20;
  static constexpr int kRenderY = 30;

  // On success writes the result in the same notation ("%.10g" numbers) and keeps
  // it as the last result. On failure leaves `result` and the last result alone
  // and keeps the reason for lastError().
  bool Calculate(const std::string& expression, std::string& result);

  // The last result laid out from (x, y); an empty layout before the first success.
  MatrixLayout Render(const TextMeasurer& measurer, int x = kRenderX, int y = kRenderY) const;

  // Why the last Calculate failed ("size mismatch: 2x2 + 3x3"); empty after a success.
  const std::string& lastError() const { return m_lastError; }
  const std::optional<MatrixValue>& lastResult() const { return m_lastResult; }

 private:
  std::optional<MatrixValue> m_lastResult;
  std::string m_lastError;
};

}  // namespace sonalyx
