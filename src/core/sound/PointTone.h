#pragma once

#include <cstddef>
#include <vector>

#include "core/sound/AudioSource.h"
#include "core/sound/EngineSettings.h"
#include "core/sound/RangeFilter.h"

namespace sonalyx {

// The short tone of one point: its pitch and pan as in the sweep, 150 ms, faded in
// and out.
class PointTone : public AudioSource {
 public:
  PointTone(const std::vector<SoundedPoint>& points, const EngineSettings& settings, int index, bool stereo);

  std::size_t totalFrames() const;

  std::size_t render(float* interleaved, std::size_t frames) override;
  void fadeOut() override;
};

}  // namespace sonalyx
