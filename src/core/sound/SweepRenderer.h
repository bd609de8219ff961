#pragma once

#include <cstddef>
#include <vector>

#include "core/sound/AudioSource.h"
#include "core/sound/EngineSettings.h"
#include "core/sound/RangeFilter.h"

namespace sonalyx {

// The sound of a curve: y as pitch on a logarithmic scale from freqMin (lowest y of
// all loaded points) to freqMax (highest), gliding continuously from point to point
// over the play time, with optional ticks, the threshold timbre below the level, and
// a left-to-right pan in stereo. Works from its own copy of the points, so the
// engine may be reloaded while it plays.
class SweepRenderer : public AudioSource {
 public:
  SweepRenderer(std::vector<SoundedPoint> points, const EngineSettings& settings,
                const SweepRequest& request);

  // The length of the sound in frames (before any fade-out cut it short).
  std::size_t totalFrames() const;

  std::size_t render(float* interleaved, std::size_t frames) override;
  void fadeOut() override;
};

}  // namespace sonalyx
