#include "core/speech/PronunciationLexicon.h"

#include <algorithm>

namespace sonalyx {

namespace {

char lower(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

// Letters of any script (UTF-8 bytes above ASCII), digits and "_" make up words.
bool wordChar(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_' ||
         static_cast<unsigned char>(c) >= 0x80;
}

bool sameText(std::string_view a, std::string_view b) {
  return a.size() == b.size() &&
         std::equal(a.begin(), a.end(), b.begin(), [](char x, char y) { return lower(x) == lower(y); });
}

std::string_view trimmed(std::string_view text) {
  while (!text.empty() && (text.front() == ' ' || text.front() == '\t')) text.remove_prefix(1);
  while (!text.empty() && (text.back() == ' ' || text.back() == '\t')) text.remove_suffix(1);
  return text;
}

void appendEscaped(std::string& out, std::string_view text) {
  for (const char c : text) {
    if (c == '\\' || c == ';' || c == '=') out += '\\';
    out += c;
  }
}

}  // namespace

PronunciationLexicon PronunciationLexicon::fromStoredText(std::string_view stored) {
  PronunciationLexicon lexicon;
  std::string parts[2];
  int part = 0;
  bool escaped = false;
  const auto finish = [&] {
    if (part == 1) lexicon.set(parts[0], parts[1]);
    parts[0].clear();
    parts[1].clear();
    part = 0;
  };
  for (const char c : stored) {
    if (escaped) {
      parts[part] += c;
      escaped = false;
    } else if (c == '\\') {
      escaped = true;
    } else if (c == ';') {
      finish();
    } else if (c == '=' && part == 0) {
      part = 1;
    } else {
      parts[part] += c;
    }
  }
  finish();
  return lexicon;
}

std::string PronunciationLexicon::storedText() const {
  std::string out;
  for (const Entry& entry : m_entries) {
    if (!out.empty()) out += ';';
    appendEscaped(out, entry.word);
    out += '=';
    appendEscaped(out, entry.spoken);
  }
  return out;
}

bool PronunciationLexicon::set(std::string_view word, std::string_view spoken) {
  word = trimmed(word);
  spoken = trimmed(spoken);
  if (word.empty()) return false;
  for (Entry& entry : m_entries) {
    if (sameText(entry.word, word)) {
      entry.spoken = spoken;
      return true;
    }
  }
  m_entries.push_back({std::string(word), std::string(spoken)});
  return true;
}

void PronunciationLexicon::remove(std::size_t index) {
  if (index < m_entries.size()) m_entries.erase(m_entries.begin() + static_cast<std::ptrdiff_t>(index));
}

std::string PronunciationLexicon::apply(std::string_view text) const {
  if (m_entries.empty()) return std::string(text);
  std::vector<const Entry*> longestFirst;
  for (const Entry& entry : m_entries) longestFirst.push_back(&entry);
  std::stable_sort(longestFirst.begin(), longestFirst.end(),
                   [](const Entry* a, const Entry* b) { return a->word.size() > b->word.size(); });
  std::string out;
  out.reserve(text.size());
  std::size_t i = 0;
  while (i < text.size()) {
    const bool atBoundary = i == 0 || !wordChar(text[i - 1]) || !wordChar(text[i]);
    const Entry* match = nullptr;
    if (atBoundary) {
      for (const Entry* entry : longestFirst) {
        const std::size_t end = i + entry->word.size();
        if (end > text.size() || !sameText(text.substr(i, entry->word.size()), entry->word)) continue;
        // A word that ends in a letter must not run on into the next one.
        if (end < text.size() && wordChar(entry->word.back()) && wordChar(text[end])) continue;
        match = entry;
        break;
      }
    }
    if (match) {
      out += match->spoken;
      i += match->word.size();
    } else {
      out += text[i++];
    }
  }
  return out;
}

}  // namespace sonalyx
