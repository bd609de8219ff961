#pragma once

#include <vector>

namespace sonalyx {

// One tick mark: a short, dry, wooden click (two quickly damped partials) about
// 20 ms long, peak 1, rising in a fraction of a millisecond and ending at 0.
std::vector<float> tickWaveform();

}  // namespace sonalyx
