#include "core/engines/Evaluator.h"

#include "core/engines/ExpressionCode.h"
#include "core/engines/ExpressionCompiler.h"

namespace sonalyx {

bool Calculate(const std::string& expression, double& result, EvaluationError& error) {
  // Without a variable every part is a constant, folded as it is read: the code
  // stays empty and nothing is allocated.
  ExpressionCode code;
  if (!compileExpression(expression, false, code, error)) return false;
  result = code.result.value;
  return true;
}

bool Calculate(const std::string& expression, double& result, std::string& errorText) {
  EvaluationError error;
  if (!Calculate(expression, result, error)) {
    errorText = evaluationErrorText(error);
    return false;
  }
  return true;
}

}  // namespace sonalyx
