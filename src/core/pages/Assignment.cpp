#include "core/pages/Assignment.h"

namespace sonalyx {

namespace {

bool isBlank(char c) {
  return c == ' ' || c == '\t';
}

bool isLetter(char c) {
  const auto byte = static_cast<unsigned char>(c);
  return (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z') || byte >= 0x80;
}

std::optional<Assignment> split(std::string_view text) {
  const std::size_t equals = text.find('=');
  if (equals == std::string_view::npos || equals + 1 == text.size()) return std::nullopt;
  return Assignment{std::string(trimBlanks(text.substr(0, equals))),
                    std::string(trimBlanks(text.substr(equals + 1)))};
}

}  // namespace

std::string_view trimBlanks(std::string_view text) {
  while (!text.empty() && isBlank(text.front())) text.remove_prefix(1);
  while (!text.empty() && isBlank(text.back())) text.remove_suffix(1);
  return text;
}

std::optional<Assignment> parseEvaluatorAssignment(std::string_view text) {
  auto assignment = split(text);
  if (!assignment || assignment->name.empty() || assignment->value.empty() ||
      !isLetter(assignment->name.front()))
    return std::nullopt;
  return assignment;
}

std::optional<Assignment> parseMatrixAssignment(std::string_view text) {
  return parseEvaluatorAssignment(text);
}

}  // namespace sonalyx
