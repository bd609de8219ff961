#pragma once

#include <cstdint>

namespace sonalyx {

// The part of the engine's point list that one sweep plays: `count` points from
// position `start`, backwards when `reverse` is set.
struct SegmentPlay {
  bool reverse = false;
  std::int32_t start = 0;
  std::int32_t count = 0;

  bool operator==(const SegmentPlay&) const = default;
};

}  // namespace sonalyx
