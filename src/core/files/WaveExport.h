#pragma once

#include <string>
#include "core/speech/TranslationMarker.h"

namespace sonalyx {

// The wave export's texts (translated by the caller; the English text is its own key).
inline constexpr char kNothingToSaveText[] = SLX_TR("No data set found - nothing to save.");
inline constexpr char kWaveFileErrorCaption[] = SLX_TR("Wave File Error");
inline constexpr char kWaveFileFilter[] = SLX_TR("Wave Files (*.wav)");
inline constexpr char kWaveFilePattern[] = "*.wav";

// The path the wave is written to: ".wav" is appended unless the last three characters
// read "wav" in any case. Deliberately that simple: "mywav" stays as it is.
std::string applyWavExtension(std::string path);

}  // namespace sonalyx
