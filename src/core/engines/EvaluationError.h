#pragma once

#include <cstddef>
#include <string>

#include "core/speech/Translator.h"

namespace sonalyx {

// Why an expression could not be read. The user hears "Invalid entry." followed by
// this reason, so it names the problem in the user's words, not the parser's.
struct EvaluationError {
  enum class Kind {
    None,
    Empty,                  // nothing but blanks
    EndsTooEarly,           // "2+", "sin("
    MissingClosingBracket,  // "(2+3"
    UnknownName,            // `subject` holds the name
    FunctionNeedsArgument,  // "sin" without brackets; `subject` holds the name
    Unexpected,             // `subject` holds the character or word that cannot stand there
    NestedTooDeeply,
    NumberBeforeX,  // "2x": a number written right before the variable
    TooLong,        // beyond limits::kMostExpressionLength; `subject` holds the limit
  };

  Kind kind = Kind::None;
  std::string subject;
  std::size_t position = 0;  // byte offset in the expression
};

// The reason as a sentence ("Unknown name y.", "Unexpected \")\"."), translated through `translate` when
// one is given; the English pattern, with %s for the subject, is the key.
std::string evaluationErrorText(const EvaluationError& error, const Translator& translate = {});

// "Invalid entry." and the reason, as a failed evaluation is reported.
std::string invalidEntryText(const EvaluationError& error, const Translator& translate = {});

}  // namespace sonalyx
