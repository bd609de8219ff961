#include "core/speech/SignWords.h"

#include <cctype>

namespace sonalyx {

namespace {

constexpr std::string_view kMinusSign = "\xE2\x88\x92";  // U+2212

bool digitAt(std::string_view text, std::size_t at) {
  return at < text.size() && std::isdigit(static_cast<unsigned char>(text[at]));
}

bool opensANumber(char c) {
  return c == ' ' || c == '\t' || c == '\n' || c == '=' || c == '(' || c == ',' || c == ';' || c == ':' ||
         c == '[';
}

}  // namespace

std::string spellNegativeSigns(std::string_view text, std::string_view minusWord) {
  std::string spoken;
  spoken.reserve(text.size() + 16);
  for (std::size_t i = 0; i < text.size();) {
    const std::size_t signLength = text[i] == '-'                                    ? 1
                                   : text.substr(i, kMinusSign.size()) == kMinusSign ? 3
                                                                                     : 0;
    const std::size_t next = i + signLength;
    const bool negative =
        signLength > 0 && (i == 0 || opensANumber(text[i - 1])) &&
        (digitAt(text, next) || (next < text.size() && text[next] == '.' && digitAt(text, next + 1)));
    if (!negative) {
      spoken += text[i++];
      continue;
    }
    if (i > 0 && text[i - 1] != ' ') spoken += ' ';
    spoken += minusWord;
    spoken += ' ';
    i = next;
  }
  return spoken;
}

}  // namespace sonalyx
