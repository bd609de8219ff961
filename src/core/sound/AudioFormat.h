#pragma once

#include <cstddef>

namespace sonalyx {

// Everything the program plays is mixed at one rate, as interleaved stereo floats
// (left, right) in -1..1. Sources that are mono write the same value to both.
inline constexpr int kSampleRate = 44100;
inline constexpr int kChannels = 2;

constexpr std::size_t framesForMilliseconds(double ms) {
  return static_cast<std::size_t>(ms * kSampleRate / 1000.0 + 0.5);
}

}  // namespace sonalyx
