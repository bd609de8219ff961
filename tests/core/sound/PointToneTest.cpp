#include "core/sound/PointTone.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <vector>

#include "SoundMeasure.h"
#include "support/NumericCompare.h"

namespace sonalyx {
namespace {

using test::agreesTo;
using test::frameAtSeconds;

// x 0..4 and y 0, 5, 10 under a scale of 200..3200 Hz: the lowest, middle and highest
// y sound at 200, 800 and 3200 Hz, as in a sweep; x places them from left to right.
TEST(PointTone, SoundsOnePointAtItsPitchAndPlace) {
  const std::vector<SoundedPoint> points = {
      {0, 0}, {1, 5}, {2, 10}, {3, std::numeric_limits<float>::quiet_NaN()}, {4, 5}};
  const struct {
    int index;
    bool stereo;
    unsigned volume;
    double seconds;
    double hz;
    double rightShare;
  } cases[] = {
      {0, true, 50, 0.15, 200, 0.0}, {1, false, 50, 0.15, 800, 0.5}, {2, true, 50, 0.15, 3200, 0.5},
      {4, true, 50, 0.15, 800, 1.0}, {3, true, 50, 0, 0, 0},         {-1, true, 50, 0, 0, 0},
      {5, true, 50, 0, 0, 0},        {0, true, 0, 0, 0, 0},
  };
  for (const auto& c : cases) {
    EngineSettings settings;
    settings.freqMin = 200;
    settings.freqMax = 3200;
    settings.dataVolume = c.volume;
    PointTone tone(points, settings, c.index, c.stereo);
    EXPECT_EQ(tone.totalFrames(), frameAtSeconds(c.seconds)) << "point " << c.index;
    const auto sound = test::renderAll(tone);
    ASSERT_EQ(sound.frames(), frameAtSeconds(c.seconds)) << "point " << c.index;
    if (sound.frames() == 0) continue;
    const std::size_t end = sound.frames() - frameAtSeconds(0.01);
    const auto& louder = c.rightShare > 0.5 ? sound.right : sound.left;
    EXPECT_TRUE(agreesTo(test::pitch(louder, frameAtSeconds(0.01), end), c.hz, 3)) << "point " << c.index;
    const double left = test::energy(sound.left, 0, sound.frames());
    const double right = test::energy(sound.right, 0, sound.frames());
    EXPECT_TRUE(agreesTo(right / (left + right), c.rightShare, 3, 1e-6)) << "point " << c.index;
    // Faded in and out: the edges move far less than the steady tone does.
    EXPECT_LT(test::largestEdgeStep(louder, frameAtSeconds(0.001)), 0.25f * test::largestStep(louder, 0, end))
        << "point " << c.index;
  }
}

TEST(PointTone, FadeOutEndsItWithinAFewMillisecondsWithoutAClick) {
  PointTone tone({{0, 1}}, EngineSettings{}, 0, false);
  std::vector<float> buffer(frameAtSeconds(0.05) * kChannels);
  ASSERT_EQ(tone.render(buffer.data(), buffer.size() / kChannels), buffer.size() / kChannels);
  std::vector<float> heard;
  for (std::size_t i = 0; i < buffer.size(); i += kChannels) heard.push_back(buffer[i]);
  tone.fadeOut();
  const auto rest = test::renderAll(tone);
  EXPECT_LE(rest.frames(), frameAtSeconds(0.006));
  heard.insert(heard.end(), rest.left.begin(), rest.left.end());
  EXPECT_LT(test::largestEdgeStep(heard, frameAtSeconds(0.001)),
            0.25f * test::largestStep(heard, 0, heard.size()));
}

}  // namespace
}  // namespace sonalyx
