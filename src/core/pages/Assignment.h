#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace sonalyx {

// "name = value", split at the first "=" and trimmed of blanks on both sides.
struct Assignment {
  std::string name;
  std::string value;
};

// The Evaluator's reading: both sides must be non-empty and the name must begin
// with a letter (any non-ASCII character counts as one, so "π = 3.14159" is a
// name), else the text is an expression ("= 5", "5 =", "2a = 3").
std::optional<Assignment> parseEvaluatorAssignment(std::string_view text);

// The Matrix page's reading, by the same rule: "=5" and "2A = [1]" are no
// assignments but expressions, which fail as such.
std::optional<Assignment> parseMatrixAssignment(std::string_view text);

// The text without blanks (spaces and tabs) at either end.
std::string_view trimBlanks(std::string_view text);

}  // namespace sonalyx
