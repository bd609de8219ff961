#pragma once

#include <functional>
#include <string>

namespace sonalyx {

// Turns an English text (its own key) into the user's language. The core never
// translates by itself; callers that have a dictionary pass it in.
using Translator = std::function<std::string(const std::string&)>;

// An empty translator leaves the text in English.
inline std::string translateWith(const Translator& translator, const std::string& text) {
  return translator ? translator(text) : text;
}

}  // namespace sonalyx
