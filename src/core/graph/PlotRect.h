#pragma once

#include <cstdint>

namespace sonalyx {

// The device rectangle a graph is drawn into: the whole bitmap on the screen, the
// centred print layout on paper. Device y grows downwards.
struct PlotRect {
  std::int32_t left = 0;
  std::int32_t top = 0;
  std::int32_t width = 0;
  std::int32_t height = 0;

  // Widened so that a rectangle near the end of the 32-bit range cannot overflow.
  std::int64_t right() const { return std::int64_t{left} + width; }
  std::int64_t bottom() const { return std::int64_t{top} + height; }

  bool operator==(const PlotRect&) const = default;
};

}  // namespace sonalyx
