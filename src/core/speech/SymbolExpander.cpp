#include "core/speech/SymbolExpander.h"

#include <utility>
#include "core/speech/TranslationMarker.h"

namespace sonalyx {

namespace {

constexpr SymbolWords kExpressionSymbols[] = {
    {"-", SLX_TR(" minus ")},      {"+", SLX_TR(" plus ")},         {"*", SLX_TR(" times ")},
    {"/", SLX_TR(" divide ")},     {"[", SLX_TR(" begin matrix ")}, {"]", SLX_TR(" end matrix ")},
    {",", SLX_TR(" column ")},     {";", SLX_TR(" row ")},          {"^", SLX_TR(" to the power of ")},
    {"(", SLX_TR(" open paren ")}, {")", SLX_TR(" close paren ")},  {"", ""},
};

// Bytes of the UTF-8 character that starts at `at`. A byte that does not start a
// complete sequence counts as a character of its own, so that a broken text loses
// nothing and the symbols after it are still read.
std::size_t characterLength(const std::string& text, std::size_t at) {
  const auto lead = static_cast<unsigned char>(text[at]);
  std::size_t length = 1;
  if (lead >= 0xC2 && lead <= 0xDF) {
    length = 2;
  } else if (lead >= 0xE0 && lead <= 0xEF) {
    length = 3;
  } else if (lead >= 0xF0 && lead <= 0xF4) {
    length = 4;
  }
  if (at + length > text.size()) return 1;
  for (std::size_t i = 1; i < length; ++i) {
    if ((static_cast<unsigned char>(text[at + i]) & 0xC0) != 0x80) return 1;
  }
  return length;
}

bool isDigit(char c) {
  return c >= '0' && c <= '9';
}

// The length of an exponent "e-007", "e+20" or "e5" at `at` right after a number's
// digits, 0 when there is none there.
std::size_t exponentLength(const std::string& text, std::size_t at) {
  if (at == 0 || text[at] != 'e' || !(isDigit(text[at - 1]) || text[at - 1] == '.')) return 0;
  std::size_t end = at + 1;
  if (end < text.size() && (text[end] == '+' || text[end] == '-')) ++end;
  if (end == text.size() || !isDigit(text[end])) return 0;
  while (end < text.size() && isDigit(text[end])) ++end;
  return end - at;
}

}  // namespace

std::span<const SymbolWords> expressionSymbolTable() {
  return kExpressionSymbols;
}

SymbolExpander::SymbolExpander(std::span<const SymbolWords> table, Translator translator)
    : m_table(table), m_translator(std::move(translator)) {}

void SymbolExpander::BuildSymbolMap() {
  if (!m_symbolMap.empty() || m_table.empty() || m_table.front().symbol.empty()) return;
  for (const SymbolWords& row : m_table) {
    if (row.symbol.empty() && row.spoken.empty()) break;
    m_symbolMap.emplace(std::string(row.symbol), translateWith(m_translator, std::string(row.spoken)));
  }
  m_timesTenTo = ' ' + translateWith(m_translator, SLX_TR("times ten to the")) + ' ';
  m_minus = translateWith(m_translator, SLX_TR("minus")) + ' ';
  m_decimalSign = decimalSignOf(m_translator);
}

void SymbolExpander::ExpandSymbols(std::string& text) const {
  std::string expanded;
  expanded.reserve(text.size() * 2);
  std::size_t i = 0;
  int matrixDepth = 0;
  while (i < text.size()) {
    if (const std::size_t exponent = m_symbolMap.empty() ? 0 : exponentLength(text, i); exponent > 0) {
      // 1.5e-007 is "1.5 times ten to the minus 7", not "1.5e minus 007".
      std::size_t digits = i + 1;
      expanded += m_timesTenTo;
      if (text[digits] == '-') expanded += m_minus;
      if (text[digits] == '-' || text[digits] == '+') ++digits;
      while (digits + 1 < i + exponent && text[digits] == '0') ++digits;
      expanded.append(text, digits, i + exponent - digits);
      i += exponent;
      continue;
    }
    // A number is heard with the language's decimal sign, which the voice reads as
    // such: a point between digits becomes it, and where it is the comma, a comma
    // between digits outside a matrix's brackets is one (a shown result, "0,5").
    if (text[i] == '[') ++matrixDepth;
    if (text[i] == ']' && matrixDepth > 0) --matrixDepth;
    const bool betweenDigits = i > 0 && isDigit(text[i - 1]) && i + 1 < text.size() && isDigit(text[i + 1]);
    if (betweenDigits && m_decimalSign == "," && !m_symbolMap.empty() &&
        (text[i] == '.' || (text[i] == ',' && matrixDepth == 0))) {
      expanded += m_decimalSign;
      ++i;
      continue;
    }
    const std::size_t length = characterLength(text, i);
    const std::string character = text.substr(i, length);
    const auto found = m_symbolMap.find(character);
    expanded += found != m_symbolMap.end() ? found->second : character;
    i += length;
  }
  text = std::move(expanded);
}

}  // namespace sonalyx
