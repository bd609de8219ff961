#include "core/files/DataSetTextError.h"

#include "core/limits/Limits.h"
#include "core/speech/TranslationMarker.h"

namespace sonalyx {

namespace {

std::string filled(std::string text, std::size_t number) {
  if (const std::size_t at = text.find("%d"); at != std::string::npos)
    text.replace(at, 2, std::to_string(number));
  return text;
}

std::string describe(DataSetTextError::Problem problem, std::size_t line, const Translator& translate) {
  switch (problem) {
    case DataSetTextError::NoPoints:
      return translateWith(translate, SLX_TR("No points were found."));
    case DataSetTextError::TooManyPoints:
      return filled(translateWith(translate, SLX_TR("A data set holds at most %d points.")),
                    limits::kMostPoints);
    case DataSetTextError::TooLarge:
      return filled(
          translateWith(translate, SLX_TR("The text is too large for a data set of at most %d points.")),
          limits::kMostPoints);
    case DataSetTextError::NotTwoNumbers:
      break;
  }
  return filled(translateWith(translate, SLX_TR("Line %d does not hold two numbers.")), line);
}

}  // namespace

DataSetTextError::DataSetTextError(Problem problem, std::size_t line)
    : std::runtime_error(describe(problem, line, {})), m_problem(problem), m_line(line) {}

std::string DataSetTextError::message(const Translator& translate) const {
  return describe(m_problem, m_line, translate);
}

}  // namespace sonalyx
