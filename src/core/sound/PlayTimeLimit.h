#pragma once

#include <string>

#include "core/speech/Translator.h"

namespace sonalyx {

// Whether a graph can be played or written with this play time (whole seconds).
bool playTimeAllowed(long long seconds);

// "The play time must be from 1 to 600 seconds.", translated.
std::string playTimeLimitText(const Translator& translate = {});

}  // namespace sonalyx
