#pragma once

#include <string>
#include <string_view>
#include <unordered_map>

#include "core/speech/Translator.h"

namespace sonalyx {

// A language's translations read from a Qt Linguist file (.ts), for the parts of
// the program that have no Qt. Like the program's dictionary, the English text is
// the key, every context counts the same, and a text without a translation (absent,
// empty, or dropped from the sources) comes back in English.
class Catalogue {
 public:
  Catalogue() = default;

  // Reads the text of a .ts file; a text that is not one gives an empty catalogue
  // (English) rather than a half-read one.
  static Catalogue fromTsText(std::string_view tsText);

  std::string translate(const std::string& english) const;
  std::size_t size() const { return m_translations.size(); }
  // The catalogue as the phrase builders take it; it refers to this catalogue.
  Translator translator() const;

 private:
  std::unordered_map<std::string, std::string> m_translations;
};

}  // namespace sonalyx
