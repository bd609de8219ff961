#pragma once

#include <cstdint>

namespace sonalyx {

// A position in device units (pixels on the screen, printer dots on paper).
struct DevicePoint {
  std::int32_t x = 0;
  std::int32_t y = 0;

  bool operator==(const DevicePoint&) const = default;
};

}  // namespace sonalyx
