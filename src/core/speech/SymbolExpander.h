#pragma once

#include <map>
#include <span>
#include <string>
#include <string_view>

#include "core/speech/Translator.h"

namespace sonalyx {

// One row of a symbol table: a symbol and the words it is read as.
struct SymbolWords {
  std::string_view symbol;
  std::string_view spoken;
};

// The table used to read expressions aloud ("[1,2]" as " begin matrix 1 column 2
// end matrix "), ended by a row of two empty texts. Every replacement has a blank
// on both sides so that it never runs into the neighbouring characters.
std::span<const SymbolWords> expressionSymbolTable();

// Reads the symbols of a text as words. The map is filled once, on the first
// BuildSymbolMap; until then ExpandSymbols leaves texts as they are.
class SymbolExpander {
 public:
  // The translator is applied once to every replacement when the map is built.
  explicit SymbolExpander(std::span<const SymbolWords> table = expressionSymbolTable(),
                          Translator translator = {});

  // Copies the table into the map up to its empty row. Does nothing when the map
  // is already filled or the table starts with an empty symbol.
  void BuildSymbolMap();

  // Replaces every character (a UTF-8 code point) of `text` that is a symbol of
  // the map with its words, and reads the exponent of a number ("1.5e-007") as
  // "1.5 times ten to the minus 7" (with the language's decimal sign: "1,5" in
  // French); everything else is kept.
  void ExpandSymbols(std::string& text) const;

  const std::map<std::string, std::string>& symbolMap() const { return m_symbolMap; }

 private:
  std::span<const SymbolWords> m_table;
  Translator m_translator;
  std::map<std::string, std::string> m_symbolMap;
  std::string m_timesTenTo;  // " times ten to the ", translated
  std::string m_minus;       // "minus ", translated
  std::string m_decimalSign = ".";
};

}  // namespace sonalyx
