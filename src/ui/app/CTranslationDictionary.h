#pragma once

#include <memory>
#include <string>

#include "core/speech/LanguageTable.h"

class QTranslator;

namespace sonalyx::ui {

// The program's one dictionary: English texts are the keys, and a language's
// catalogue (a compiled Qt Linguist file built into the program) gives their
// translations. A key the catalogue lacks, or holds with an empty translation,
// comes back unchanged, so English needs no catalogue at all.
class CTranslationDictionary {
 public:
  using Language = sonalyx::Language;

  // The context that every message of the catalogues belongs to.
  static constexpr const char* kContext = "Sonalyx";

  CTranslationDictionary();
  ~CTranslationDictionary();
  CTranslationDictionary(const CTranslationDictionary&) = delete;
  CTranslationDictionary& operator=(const CTranslationDictionary&) = delete;

  // Loads the catalogue of `language`; false when it cannot be loaded, and then
  // every lookup gives its key back.
  bool Init(Language language);
  // Loads a compiled catalogue by its path (a file or a ":/" resource).
  bool Load(const std::string& catalogue);
  Language language() const { return m_language; }

  void Lookup(const std::string& key, std::string& result) const;
  std::string Translate(const std::string& key) const;

  // The resource path of a language's compiled catalogue; empty for English.
  static std::string catalogueFor(Language language);

 private:
  Language m_language = Language::English;
  std::unique_ptr<QTranslator> m_translator;
};

}  // namespace sonalyx::ui
