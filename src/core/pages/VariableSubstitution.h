#pragma once

#include <map>
#include <string>
#include <string_view>

namespace sonalyx {

// Replaces every occurrence of `name` in `text` that stands as a whole name: not
// inside a longer name or number ("a" is left alone in "ab", "a2" and "sin",
// "e" in "1e5"), and not called as a function ("f" in "f(2)"). Returns whether
// anything was replaced. An empty name is never found.
bool replaceWholeName(std::string& text, std::string_view name, std::string_view replacement);

// Puts the stored variables into an expression: each whole-name occurrence
// becomes the variable's value in parentheses, so that after a = 2+3 the text
// a*2 means (2+3)*2. Values that name other variables are expanded in turn.
// Returns false, leaving `text` partly expanded, when the values refer to each
// other without end (a = a+1) or the text grows beyond any sensible size.
bool substituteVariables(std::string& text, const std::map<std::string, std::string>& variables);

}  // namespace sonalyx
