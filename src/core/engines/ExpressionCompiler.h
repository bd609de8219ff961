#pragma once

#include <string_view>

#include "core/engines/EvaluationError.h"
#include "core/engines/ExpressionCode.h"

namespace sonalyx {

// The one reader of the evaluator's language (see Calculate in
// core/engines/Evaluator.h). It turns the text into flat code, computing every
// part that does not depend on x as it reads, so an expression without x comes
// out as its value. With `withX` the lower-case name x is the variable (and "2x"
// is refused with NumberBeforeX); without it x is an unknown name like any other.
// On failure returns false and says why in `error`; `code` is then unspecified.
bool compileExpression(std::string_view text, bool withX, ExpressionCode& code, EvaluationError& error);

}  // namespace sonalyx
