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

// Whether a voice's language tag ("fr-fr", "en_US", "sv") is of `language`, a
// two-letter code ("fr"), whatever its country or variant.
bool speaksLanguage(const std::string& voiceLanguage, const std::string& language);

// The voice that speaks the program's `language` ("fr"), `languages` giving each
// voice's language tag: the voice `name` selects when it speaks that language, else
// the default when it does, else the language's main voice ("fr", "fr-fr" before
// "fr-be"), else the first voice of the language. When no voice speaks it, when the
// engine cannot tell its voices' languages (`languages` of another size than
// `voices`) or `language` is empty, as chooseVoice.
std::size_t chooseVoiceForLanguage(const std::vector<std::string>& voices,
                                   const std::vector<std::string>& languages, const std::string& name,
                                   const std::string& language, std::size_t defaultIndex);

}  // namespace sonalyx
