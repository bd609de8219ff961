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

bool speaksLanguage(const std::string& voiceLanguage, const std::string& language) {
  if (language.empty()) return false;
  const std::string tag = asciiLower(voiceLanguage);
  const std::string code = asciiLower(language);
  return tag.compare(0, code.size(), code) == 0 &&
         (tag.size() == code.size() || tag[code.size()] == '-' || tag[code.size()] == '_');
}

std::size_t chooseVoiceForLanguage(const std::vector<std::string>& voices,
                                   const std::vector<std::string>& languages, const std::string& name,
                                   const std::string& language, std::size_t defaultIndex) {
  const std::optional<std::size_t> named = findVoice(voices, name);
  if (language.empty() || languages.size() != voices.size()) return named.value_or(defaultIndex);
  const auto speaks = [&](std::size_t index) { return speaksLanguage(languages[index], language); };
  if (named && speaks(*named)) return *named;
  if (defaultIndex < voices.size() && speaks(defaultIndex)) return defaultIndex;
  const std::string code = asciiLower(language);
  std::optional<std::size_t> variant;
  for (std::size_t i = 0; i < voices.size(); ++i) {
    if (!speaks(i)) continue;
    const std::string tag = asciiLower(languages[i]);
    if (tag == code || tag == code + '-' + code || tag == code + '_' + code) return i;
    if (!variant) variant = i;
  }
  return variant.value_or(named.value_or(defaultIndex));
}

std::size_t chooseVoice(const std::vector<std::string>& voices, const std::string& name,
                        std::size_t defaultIndex) {
  return findVoice(voices, name).value_or(defaultIndex);
}

}  // namespace sonalyx
