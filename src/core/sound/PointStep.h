#pragma once

#include <cstdint>

namespace sonalyx {

// The outcome of a single-point step: the cursor afterwards, and whether it rests on
// a heard point whose tone is to be played (false when an end of the set was reached).
struct PointStep {
  std::int32_t cursor = -1;
  bool sound = false;

  bool operator==(const PointStep&) const = default;
};

}  // namespace sonalyx
