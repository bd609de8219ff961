#pragma once

#include <cstdint>
#include <optional>

#include "core/sound/Sweep.h"

namespace sonalyx {

// The outcome of a feature search for the view to apply: where the cursor now is
// (it may have moved over features outside the graph range even when nothing is
// heard) and, when a heard feature was found, the sweep to play to it.
struct CursorMove {
  std::int32_t cursor = -1;
  std::optional<Sweep> sweep;
};

}  // namespace sonalyx
