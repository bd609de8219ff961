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

}  // namespace

std::optional<std::size_t> findVoice(const std::vector<std::string>& voices, const std::string& name) {
  if (name.empty()) return std::nullopt;
  const auto indexWhere = [&](auto matches) -> std::size_t {
    const auto found = std::find_if(voices.begin(), voices.end(), matches);
    return found == voices.end() ? voices.size() : static_cast<std::size_t>(found - voices.begin());
  };
  std::size_t index = indexWhere([&](const std::string& voice) { return voice == name; });
  if (index < voices.size()) return index;
  index = indexWhere([&](const std::string& voice) { return voice.find(name) != std::string::npos; });
  if (index < voices.size()) return index;
  const std::string lowerName = asciiLower(name);
  index = indexWhere(
      [&](const std::string& voice) { return asciiLower(voice).find(lowerName) != std::string::npos; });
  if (index < voices.size()) return index;
  return std::nullopt;
}

std::size_t chooseVoice(const std::vector<std::string>& voices, const std::string& name,
                        std::size_t defaultIndex) {
  return findVoice(voices, name).value_or(defaultIndex);
}

}  // namespace sonalyx
