#include "core/engines/MatrixEngine.h"

#include <utility>

#include "core/engines/MatrixExpression.h"

namespace sonalyx {

bool MatrixEngine::Calculate(const std::string& expression, std::string& result) {
  MatrixValue value;
  std::string error;
  if (!evaluateMatrixExpression(expression, value, error)) {
    m_lastError = std::move(error);
    return false;
  }
  m_lastError.clear();
  result = formatMatrix(value);
  m_lastResult = std::move(value);
  return true;
}

MatrixLayout MatrixEngine::Render(const TextMeasurer& measurer, int x, int y) const {
  if (!m_lastResult) {
    MatrixLayout nothing;
    nothing.originX = x;
    nothing.originY = y;
    return nothing;
  }
  return layoutMatrix(*m_lastResult, measurer, x, y);
}

}  // namespace sonalyx
