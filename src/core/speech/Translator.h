#pragma once

#include <cstddef>
#include <functional>
#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>

#include "core/utility/NumberFormat.h"

namespace sonalyx {

// Turns an English text (its own key) into the user's language. The core never
// translates by itself; callers that have a dictionary pass it in.
using Translator = std::function<std::string(const std::string&)>;

// An empty translator leaves the text in English.
inline std::string translateWith(const Translator& translator, const std::string& text) {
  return translator ? translator(text) : text;
}

// The key a translator answers with its language's decimal sign ("." or ","). No
// language file holds it: the dictionary and the catalogue answer it from
// decimalSign(Language), so every phrase builder that is given a translator
// writes numbers as the user's language does.
inline constexpr const char* kDecimalSignKey =
    "\x1f"
    "decimal sign";

// The decimal sign of a translator's language; "." for an empty translator or any
// answer but a comma (a translator that does not know the key, or marks every text).
inline std::string decimalSignOf(const Translator& translator) {
  return translator && translator(kDecimalSignKey) == "," ? "," : ".";
}

// A number written for a person ("1.5", "-2.5e-007"): its decimal point becomes
// the language's sign. Only what is shown or said goes through here; what the
// user types and every file keep the point.
inline std::string numberForPerson(std::string number, const Translator& translator) {
  return withDecimalSign(std::move(number), decimalSignOf(translator));
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
