#pragma once

#include <cstdint>

namespace sonalyx {

// One tick of an axis: where it sits in device units and the value its label shows
// (for the y axis already multiplied by the y label factor).
struct Tick {
  std::int32_t position = 0;
  double value = 0.0;
};

}  // namespace sonalyx
