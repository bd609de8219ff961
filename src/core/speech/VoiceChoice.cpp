#include "core/speech/VoiceChoice.h"

#include <algorithm>
#include <cctype>

namespace sonalyx {

namespace {

std::string asciiLower(std::string text) {
  std::transform(text.begin(), text.end(), text.begin(),
                 [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
  return text;
}

// Whether `part` occurs in `name` as the start of a word: "Sam" names no voice in
// "Assamese", which would otherwise give every new user a voice of Assam.
bool startsAWord(const std::string& name, const std::string& part) {
  for (auto at = name.find(part); at != std::string::npos; at = name.find(part, at + 1))
    if (at == 0 || !std::isalpha(static_cast<unsigned char>(name[at - 1]))) return true;
  return false;
}

}  // namespace

std::optional<std::size_t> findVoice(const std::vector<std::string>& voices, const std::string& name) {
  if (name.empty()) return std::nullopt;
  const auto indexWhere = [&](auto matches) -> std::size_t {
    const auto found = std::find_if(voices.begin(), voices.end(), matches);
    return found == voices.end() ? voices.size() : static_cast<std::size_t>(found - voices.begin());
  };
  std::size_t index = indexWhere([&](const std::string& voice) { return voice == name; });
  if (index < voices.size()) return index;
  index = indexWhere([&](const std::string& voice) { return startsAWord(voice, name); });
  if (index < voices.size()) return index;
  const std::string lowerName = asciiLower(name);
  index = indexWhere([&](const std::string& voice) { return startsAWord(asciiLower(voice), lowerName); });
  if (index < voices.size()) return index;
  return std::nullopt;
}

std::size_t chooseVoice(const std::vector<std::string>& voices, const std::string& name,
                        std::size_t defaultIndex) {
  return findVoice(voices, name).value_or(defaultIndex);
}

}  // namespace sonalyx
