#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace sonalyx {

// The voice a stored name selects among an engine's voices: the voice of exactly
// that name, else the first whose name contains it (first as written, then
// ignoring ASCII case, so "english" finds "English (America)"), else the engine's
// default. An empty name selects the default. `defaultIndex` is returned as it is
// when nothing matches, even for an empty list.
// The voice a name matches by the same rules, without the default: nothing for an
// empty name or one that matches no voice.
std::optional<std::size_t> findVoice(const std::vector<std::string>& voices, const std::string& name);

std::size_t chooseVoice(const std::vector<std::string>& voices, const std::string& name,
                        std::size_t defaultIndex);

}  // namespace sonalyx
