#include "core/engines/EvaluationError.h"
#include "core/speech/TranslationMarker.h"

namespace sonalyx {

namespace {

const char* pattern(EvaluationError::Kind kind) {
  using Kind = EvaluationError::Kind;
  switch (kind) {
    case Kind::None:
      return "";
    case Kind::Empty:
      return SLX_TR("The expression is empty.");
    case Kind::EndsTooEarly:
      return SLX_TR("The expression ends too early.");
    case Kind::MissingClosingBracket:
      return SLX_TR("Missing closing bracket.");
    case Kind::UnknownName:
      return SLX_TR("Unknown name %s.");
    case Kind::FunctionNeedsArgument:
      return SLX_TR("%s needs its argument in brackets.");
    case Kind::Unexpected:
      return SLX_TR("Unexpected \"%s\".");
    case Kind::NestedTooDeeply:
      return SLX_TR("The expression is nested too deeply.");
    case Kind::NumberBeforeX:
      return SLX_TR("Write a * between a number and x.");
    case Kind::TooLong:
      return SLX_TR("The expression is longer than %s characters.");
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
  std::string text = translateWith(translate, SLX_TR("Invalid entry."));
  const std::string reason = evaluationErrorText(error, translate);
  if (!reason.empty()) text += ' ' + reason;
  return text;
}

}  // namespace sonalyx
