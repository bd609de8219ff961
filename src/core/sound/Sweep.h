#pragma once

#include <cstdint>

namespace sonalyx {

// A sound sweep over a curve from one point index to another; the cursor ends on `to`.
struct Sweep {
  std::int32_t from = 0;
  std::int32_t to = 0;

  bool operator==(const Sweep&) const = default;
};

}  // namespace sonalyx
