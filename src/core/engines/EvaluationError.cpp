#include "core/engines/EvaluationError.h"

namespace sonalyx {

namespace {

const char* pattern(EvaluationError::Kind kind) {
  using Kind = EvaluationError::Kind;
  switch (kind) {
    case Kind::None:
      return "";
    case Kind::Empty:
      return "The expression is empty.";
    case Kind::EndsTooEarly:
      return "The expression ends too early.";
    case Kind::MissingClosingBracket:
      return "Missing closing bracket.";
    case Kind::UnknownName:
      return "Unknown name %s.";
    case Kind::FunctionNeedsArgument:
      return "%s needs its argument in brackets.";
    case Kind::Unexpected:
      return "Unexpected \"%s\".";
    case Kind::NestedTooDeeply:
      return "The expression is nested too deeply.";
    case Kind::NumberBeforeX:
      return "Write a * between a number and x.";
    case Kind::TooLong:
      return "The expression is longer than %s characters.";
  }
  return "";
}

}  // namespace

std::string evaluationErrorText(const EvaluationError& error, const Translator& translate) {
  std::string text = translateWith(translate, pattern(error.kind));
  if (const std::size_t at = text.find("%s"); at != std::string::npos) text.replace(at, 2, error.subject);
  return text;
}

std::string invalidEntryText(const EvaluationError& error, const Translator& translate) {
  std::string text = translateWith(translate, "Invalid entry.");
  const std::string reason = evaluationErrorText(error, translate);
  if (!reason.empty()) text += ' ' + reason;
  return text;
}

}  // namespace sonalyx
