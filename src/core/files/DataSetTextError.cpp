#include "core/files/DataSetTextError.h"

namespace sonalyx {

namespace {

std::string describe(DataSetTextError::Problem problem, std::size_t line, const Translator& translate) {
  if (problem == DataSetTextError::NoPoints) return translateWith(translate, "No points were found.");
  std::string text = translateWith(translate, "Line %d does not hold two numbers.");
  if (const std::size_t at = text.find("%d"); at != std::string::npos)
    text.replace(at, 2, std::to_string(line));
  return text;
}

}  // namespace

DataSetTextError::DataSetTextError(Problem problem, std::size_t line)
    : std::runtime_error(describe(problem, line, {})), m_problem(problem), m_line(line) {}

std::string DataSetTextError::message(const Translator& translate) const {
  return describe(m_problem, m_line, translate);
}

}  // namespace sonalyx
