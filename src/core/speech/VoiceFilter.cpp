#include "core/speech/VoiceFilter.h"

#include <algorithm>

namespace sonalyx {

VoiceFilter::VoiceFilter()
    : m_entries{{"Sam", true}, {"Mary", true}, {"Mike", true}, {"L&H", false}, {"ATT ", false}} {}

bool VoiceFilter::passes(const std::string& name) const {
  return std::any_of(m_entries.begin(), m_entries.end(), [&](const Entry& entry) {
    return entry.exact ? name == entry.text : name.find(entry.text) != std::string::npos;
  });
}

std::vector<std::string> VoiceFilter::offered(const std::vector<std::string>& voices) const {
  std::vector<std::string> passing;
  std::copy_if(voices.begin(), voices.end(), std::back_inserter(passing),
               [&](const std::string& name) { return passes(name); });
  return passing.empty() ? voices : passing;
}

}  // namespace sonalyx
