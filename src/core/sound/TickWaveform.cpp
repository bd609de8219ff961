#include "core/sound/TickWaveform.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <numbers>

#include "core/sound/AudioFormat.h"

namespace sonalyx {

std::vector<float> tickWaveform() {
  const std::size_t length = framesForMilliseconds(20);
  const double attack = static_cast<double>(framesForMilliseconds(0.3));
  const double release = static_cast<double>(framesForMilliseconds(2));
  const double decay = 0.0025 * kSampleRate;  // time constant: 2.5 ms
  std::vector<float> wave(length);
  double peak = 0.0;
  for (std::size_t i = 0; i < length; ++i) {
    const double t = static_cast<double>(i) / kSampleRate;
    const double partials =
        std::sin(2.0 * std::numbers::pi * 1800.0 * t) + 0.6 * std::sin(2.0 * std::numbers::pi * 3900.0 * t);
    const double n = static_cast<double>(i);
    const double edges = std::min({1.0, n / attack, static_cast<double>(length - 1 - i) / release});
    const double v = partials * std::exp(-n / decay) * edges;
    wave[i] = static_cast<float>(v);
    peak = std::max(peak, std::fabs(v));
  }
  for (float& v : wave) v = static_cast<float>(v / peak);
  return wave;
}

}  // namespace sonalyx
