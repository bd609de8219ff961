#pragma once

namespace sonalyx {

// A point of the world plane, in the data's own units.
struct PlanePoint {
  double x = 0.0;
  double y = 0.0;

  bool operator==(const PlanePoint&) const = default;
};

}  // namespace sonalyx
