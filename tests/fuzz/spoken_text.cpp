// The words the program says of any text: symbol expansion leaves none of its
// symbols behind, display rounding keeps every character that is not part of a
// rounded fraction, and neither fails on any bytes (broken UTF-8 included).

#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "core/speech/SymbolExpander.h"
#include "core/utility/FPRounder.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  static sonalyx::SymbolExpander expander = [] {
    sonalyx::SymbolExpander e;
    e.BuildSymbolMap();
    return e;
  }();
  const std::string text(reinterpret_cast<const char*>(data) + 1, size - 1);
  std::string expanded = text;
  expander.ExpandSymbols(expanded);
  for (const char symbol : std::string_view("+*/[],;^()")) {
    if (expanded.find(symbol) != std::string::npos) std::abort();
  }
  const std::string rounded = sonalyx::FPRounder::round(text, static_cast<std::uint16_t>(data[0] % 20));
  // Rounding only shortens fractions or carries a digit: the text never grows by
  // more than one character per number, and letters are never touched.
  std::size_t lettersBefore = 0;
  std::size_t lettersAfter = 0;
  for (const char c : text) lettersBefore += (c < '0' || c > '9') && c != '.';
  for (const char c : rounded) lettersAfter += (c < '0' || c > '9') && c != '.';
  if (lettersAfter != lettersBefore) std::abort();
  return 0;
}
