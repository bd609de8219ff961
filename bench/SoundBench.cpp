#include <benchmark/benchmark.h>

#include <cmath>
#include <vector>

#include "core/sound/AudioFormat.h"
#include "core/sound/SweepRenderer.h"

namespace {

// The default play of a sampled function: 501 points over 4 seconds, in stereo with
// ten tick marks and the threshold on, rendered as a sound device would ask for it.
// Real time is 4 s; the renderer must take a small fraction of that.
void BM_FourSecondStereoSweepOf501Points(benchmark::State& state) {
  std::vector<sonalyx::SoundedPoint> points;
  for (int i = 0; i <= 500; ++i) {
    const float x = -10.0f + 20.0f * static_cast<float>(i) / 500.0f;
    points.push_back({x, std::sin(x) * x});
  }
  sonalyx::EngineSettings settings;
  settings.thresholdOn = true;
  const sonalyx::SweepRequest request{.stereo = true, .ticks = true};
  std::vector<float> buffer(512 * sonalyx::kChannels);
  for (auto _ : state) {
    sonalyx::SweepRenderer sweep(points, settings, request);
    while (sweep.render(buffer.data(), 512) == 512) {
    }
    benchmark::DoNotOptimize(buffer.data());
  }
}
BENCHMARK(BM_FourSecondStereoSweepOf501Points)->Unit(benchmark::kMillisecond);

}  // namespace
