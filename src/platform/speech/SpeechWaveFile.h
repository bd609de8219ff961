#pragma once

#include <string>

#include "platform/speech/SpeechEngine.h"

namespace sonalyx {

// Writes rendered speech to `path` as a 16-bit mono wave file at the speech's own
// rate. Throws std::runtime_error with the reason when the file cannot be written.
void writeSpeechWave(const std::string& path, const RenderedSpeech& speech);

}  // namespace sonalyx
