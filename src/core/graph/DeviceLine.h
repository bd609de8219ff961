#pragma once

#include "core/graph/DevicePoint.h"

namespace sonalyx {

// A two-point line in device units: one tick mark or grid line.
struct DeviceLine {
  DevicePoint from;
  DevicePoint to;

  bool operator==(const DeviceLine&) const = default;
};

}  // namespace sonalyx
