#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace sonalyx {

// The user's pronunciation list: words and how the voice is to say them ("sinh"
// said as "shine"). The voice applies it to every text before speaking: a word is
// replaced where it stands as a whole word, whatever its case, and the longest
// entry that fits wins; what a replacement puts in is not looked at again.
//
// It is kept in one setting as "word=spoken;word=spoken", with "\" before a "\",
// ";" or "=" that belongs to a word, so the list reads back exactly.
class PronunciationLexicon {
 public:
  struct Entry {
    std::string word;
    std::string spoken;
    bool operator==(const Entry&) const = default;
  };

  PronunciationLexicon() = default;
  // Entries that cannot be read (no "=", an empty word) are left out.
  static PronunciationLexicon fromStoredText(std::string_view stored);
  std::string storedText() const;

  const std::vector<Entry>& entries() const { return m_entries; }
  // Adds an entry, or gives a word that is there (in any case) its new spoken form;
  // blanks around both are dropped. False for an empty word.
  bool set(std::string_view word, std::string_view spoken);
  void remove(std::size_t index);

  std::string apply(std::string_view text) const;

 private:
  std::vector<Entry> m_entries;
};

}  // namespace sonalyx
