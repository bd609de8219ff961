#include "core/sound/SweepRenderer.h"

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
using test::renderAll;

std::vector<SoundedPoint> pointsOf(const std::vector<float>& ys) {
  std::vector<SoundedPoint> points;
  for (std::size_t i = 0; i < ys.size(); ++i) points.push_back({static_cast<float>(i), ys[i]});
  return points;
}

std::vector<SoundedPoint> line(int n, float y0, float y1) {
  std::vector<float> ys;
  for (int i = 0; i < n; ++i) ys.push_back(y0 + (y1 - y0) * i / (n - 1));
  return pointsOf(ys);
}

EngineSettings settingsOf(int playTime, int freqMin = 60, int freqMax = 2000) {
  EngineSettings s;
  s.playTime = playTime;
  s.freqMin = freqMin;
  s.freqMax = freqMax;
  return s;
}

// Each point below owns one second: the pitch is measured over the middle of a point
// lying inside a run of equal values, where it holds still.
TEST(SweepRenderer, YSoundsOnALogarithmicScaleBetweenTheFrequencySettings) {
  const std::vector<float> steps = {0, 0, 0, 5, 5, 5, 10, 10, 10};
  const float nan = std::numeric_limits<float>::quiet_NaN();
  const float inf = std::numeric_limits<float>::infinity();
  const struct {
    const char* what;
    std::vector<float> ys;
    int freqMin, freqMax;
    std::vector<std::pair<int, double>> pointAndHz;
  } cases[] = {
      {"lowest, middle and highest y", steps, 60, 2000, {{1, 60}, {4, std::sqrt(60.0 * 2000)}, {7, 2000}}},
      {"frequencies swapped", steps, 2000, 60, {{1, 60}, {4, std::sqrt(60.0 * 2000)}, {7, 2000}}},
      {"equal frequencies", steps, 440, 440, {{1, 440}, {7, 440}}},
      {"flat curve", {3, 3, 3}, 100, 1600, {{0, 400}, {1, 400}, {2, 400}}},
      {"non-finite y do not widen the scale",
       {nan, 0, 0, 0, inf, 10, 10, 10, -inf},
       100,
       400,
       {{2, 100}, {6, 400}}},
      {"frequencies below hearing", steps, -50, 0, {{1, 20}, {7, 20}}},
      {"frequency above hearing", steps, 0, 100000, {{1, 20}, {7, 20000}}},
  };
  for (const auto& c : cases) {
    const auto points = pointsOf(c.ys);
    SweepRenderer sweep(points, settingsOf(static_cast<int>(points.size()), c.freqMin, c.freqMax), {});
    const auto sound = renderAll(sweep);
    for (const auto& [point, hz] : c.pointAndHz) {
      const std::size_t from = frameAtSeconds(point + 0.1);
      const std::size_t to = frameAtSeconds(point + 0.9);
      EXPECT_TRUE(agreesTo(test::pitch(sound.left, from, to), hz, 3)) << c.what << ", point " << point;
    }
    for (const float v : sound.left) ASSERT_TRUE(std::isfinite(v)) << c.what;
  }
}

// 50 ms windows over a rising line: every one higher than the last, and the same
// line played backwards is the same pitch track mirrored in time.
TEST(SweepRenderer, RisingDataRisesAndReverseMirrorsIt) {
  const auto points = line(101, -1, 1);
  SweepRenderer forward(points, settingsOf(2), {});
  SweepRenderer backward(points, settingsOf(2), {.reverse = true});
  const auto ahead = renderAll(forward);
  const auto behind = renderAll(backward);
  ASSERT_EQ(ahead.frames(), behind.frames());
  const std::size_t window = frameAtSeconds(0.05);
  const std::size_t windows = ahead.frames() / window;
  double previous = 0.0;
  for (std::size_t w = 0; w < windows; ++w) {
    const double hz = test::pitch(ahead.left, w * window, (w + 1) * window);
    EXPECT_GT(hz, previous) << "window " << w;
    previous = hz;
    const std::size_t mirrored = ahead.frames() - (w + 1) * window;
    EXPECT_TRUE(agreesTo(test::pitch(behind.left, mirrored, mirrored + window), hz, 2)) << "window " << w;
  }
}

// Ten points over the play time; a segment lasts its share of it, clipped to the list.
TEST(SweepRenderer, LastsThePlayTimeShareOfItsPoints) {
  const struct {
    const char* what;
    int playTime;
    SweepRequest request;
    double seconds;
  } cases[] = {
      {"whole list", 4, {}, 4.0},
      {"segment of five", 4, {.segment = true, .start = 2, .count = 5}, 2.0},
      {"reverse segment", 4, {.reverse = true, .segment = true, .start = 2, .count = 5}, 2.0},
      {"single point", 3, {.segment = true, .start = 9, .count = 1}, 0.3},
      {"segment past the end", 4, {.segment = true, .start = 8, .count = 5}, 0.8},
      {"segment before the start", 4, {.segment = true, .start = -3, .count = 5}, 0.8},
      {"empty segment", 4, {.segment = true, .start = 2, .count = 0}, 0.0},
      {"segment beyond the list", 4, {.segment = true, .start = 10, .count = 3}, 0.0},
      {"no play time", 0, {}, 0.0},
      {"negative play time", -2, {}, 0.0},
  };
  for (const auto& c : cases) {
    SweepRenderer sweep(line(10, 0, 1), settingsOf(c.playTime), c.request);
    EXPECT_EQ(sweep.totalFrames(), frameAtSeconds(c.seconds)) << c.what;
    const auto sound = renderAll(sweep);
    ASSERT_EQ(sound.frames(), frameAtSeconds(c.seconds)) << c.what;
    if (sound.frames() == 0) continue;
    // Sound from the first few milliseconds to the last few.
    const std::size_t edge = frameAtSeconds(0.01);
    EXPECT_GT(test::rms(sound.left, 0, edge), 0.0) << c.what;
    EXPECT_GT(test::rms(sound.left, sound.frames() - edge, sound.frames()), 0.0) << c.what;
  }
}

}  // namespace
}  // namespace sonalyx
