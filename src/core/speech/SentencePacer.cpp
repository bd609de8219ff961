#include "core/speech/SentencePacer.h"

#include <cctype>
#include <cstring>

namespace sonalyx {

namespace {

bool isBlank(char c) {
  return std::isspace(static_cast<unsigned char>(c)) != 0;
}

void addTrimmed(std::vector<std::string>& pieces, const std::string& text, std::size_t from, std::size_t to) {
  while (from < to && isBlank(text[from])) ++from;
  while (to > from && isBlank(text[to - 1])) --to;
  if (to > from) pieces.push_back(text.substr(from, to - from));
}

}  // namespace

std::vector<std::string> SentencePacer::sentences(const std::string& text) {
  std::vector<std::string> pieces;
  std::size_t start = 0;
  for (std::size_t i = 0; i + 1 < text.size(); ++i) {
    if (std::strchr(".!?;:", text[i]) != nullptr && isBlank(text[i + 1])) {
      addTrimmed(pieces, text, start, i + 1);
      start = i + 1;
    }
  }
  addTrimmed(pieces, text, start, text.size());
  return pieces;
}

std::optional<std::string> SentencePacer::speak(const std::string& text) {
  const std::vector<std::string> pieces = sentences(text);
  m_waiting.assign(pieces.begin(), pieces.end());
  if (m_serviceBusy) return std::nullopt;
  return handOver();
}

std::optional<std::string> SentencePacer::finished() {
  m_serviceBusy = false;
  return handOver();
}

std::optional<std::string> SentencePacer::handOver() {
  if (m_waiting.empty()) return std::nullopt;
  std::string next = std::move(m_waiting.front());
  m_waiting.pop_front();
  m_serviceBusy = true;
  return next;
}

}  // namespace sonalyx
