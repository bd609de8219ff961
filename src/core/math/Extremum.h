#pragma once

#include <cstddef>

namespace sonalyx {

// One entry of a set's turning-point list.
struct Extremum {
  enum Kind : int { Minimum = 0, Maximum = 1 };
  Kind kind;
  std::size_t index;

  bool operator==(const Extremum&) const = default;
};

}  // namespace sonalyx
