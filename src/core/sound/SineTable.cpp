#include "core/sound/SineTable.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <numbers>

namespace sonalyx {

namespace {

constexpr std::size_t kSize = 4096;

// One entry beyond the last, so interpolation never wraps.
std::array<float, kSize + 1> makeTable() {
  std::array<float, kSize + 1> table{};
  for (std::size_t i = 0; i <= kSize; ++i) {
    table[i] = static_cast<float>(std::sin(2.0 * std::numbers::pi * static_cast<double>(i) / kSize));
  }
  return table;
}

// Filled before main, so the audio thread only ever reads it.
const std::array<float, kSize + 1> kTable = makeTable();

}  // namespace

float sineOfTurns(double turns) {
  const double position = turns * kSize;
  // Rounding can put turns just below 1 onto the last entry; the guard entry covers it.
  const auto i = std::min(static_cast<std::size_t>(position), kSize - 1);
  const float fraction = static_cast<float>(position - static_cast<double>(i));
  return kTable[i] + fraction * (kTable[i + 1] - kTable[i]);
}

float cosineOfTurns(double turns) {
  const double shifted = turns + 0.25;
  return sineOfTurns(shifted >= 1.0 ? shifted - 1.0 : shifted);
}

}  // namespace sonalyx
