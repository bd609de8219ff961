#pragma once

#include <cstddef>
#include <functional>
#include <initializer_list>
#include <string>
#include <string_view>

namespace sonalyx {

// Turns an English text (its own key) into the user's language. The core never
// translates by itself; callers that have a dictionary pass it in.
using Translator = std::function<std::string(const std::string&)>;

// An empty translator leaves the text in English.
inline std::string translateWith(const Translator& translator, const std::string& text) {
  return translator ? translator(text) : text;
}

// Puts the first argument where "%1" stands, the second for "%2", up to "%9", in
// one pass: a translation may put them in any order, and a "%" inside an argument
// stays as it is.
inline std::string fillPlaceholders(std::string_view pattern, std::initializer_list<std::string_view> args) {
  std::string text;
  for (std::size_t i = 0; i < pattern.size(); ++i) {
    const char next = i + 1 < pattern.size() ? pattern[i + 1] : '\0';
    const std::size_t index = static_cast<std::size_t>(next - '1');
    if (pattern[i] == '%' && next >= '1' && next <= '9' && index < args.size()) {
      text += *(args.begin() + index);
      ++i;
    } else {
      text += pattern[i];
    }
  }
  return text;
}

}  // namespace sonalyx
