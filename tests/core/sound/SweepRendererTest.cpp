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
// line played backwards is the same pitch track mirrored in time. A segment played
// backwards runs down from its start over the points a forward one would run up.
TEST(SweepRenderer, RisingDataRisesAndReverseMirrorsIt) {
  const auto points = line(101, -1, 1);
  for (const auto& [up, down] : {std::pair<SweepRequest, SweepRequest>{{}, {.reverse = true}},
                                    {{.segment = true, .start = 41, .count = 40},
                                     {.reverse = true, .segment = true, .start = 80, .count = 40}}}) {
    SweepRenderer forward(points, settingsOf(2), up);
    SweepRenderer backward(points, settingsOf(2), down);
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
      {"reverse segment, back from its start",
       4,
       {.reverse = true, .segment = true, .start = 6, .count = 5},
       2.0},
      {"reverse segment past the first point",
       4,
       {.reverse = true, .segment = true, .start = 2, .count = 5},
       1.2},
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

// Onsets of the ticks alone (the curve at volume 0): each as the first sample above
// a twentieth of the tick's peak, then the tick's length skipped.
std::vector<double> tickSeconds(const std::vector<float>& s) {
  std::vector<double> onsets;
  const float level = 0.05f * test::peak(s);
  for (std::size_t i = 0; i < s.size(); ++i) {
    if (std::fabs(s[i]) > level) {
      onsets.push_back(static_cast<double>(i) / kSampleRate);
      i += frameAtSeconds(0.02);
    }
  }
  return onsets;
}

// Marks evenly spaced over the x range, heard where the sweep's x reaches them. Each
// expected time is given as a point position p along the played points, heard at
// (p + 0.5) shares of the play time.
TEST(SweepRenderer, TicksSoundWhereTheSweepReachesEachMark) {
  const auto ramp = line(11, 0, 1);  // x 0..10
  // x 0, 5, 5, 0, 0, 5: resting on a mark and leaving it does not sound it again.
  const std::vector<SoundedPoint> thereAndBack = {{0, 1}, {5, 1}, {5, 1}, {0, 1}, {0, 1}, {5, 1}};
  const struct {
    const char* what;
    std::vector<SoundedPoint> points;
    int numTicks;
    SweepRequest request;
    std::vector<double> positions;
  } cases[] = {
      {"five marks", ramp, 5, {.ticks = true}, {0, 2.5, 5, 7.5, 10}},
      {"backwards", ramp, 5, {.ticks = true, .reverse = true}, {0, 2.5, 5, 7.5, 10}},
      {"one mark in the middle", ramp, 1, {.ticks = true}, {5}},
      {"segment from x 2 to 6", ramp, 5, {.ticks = true, .segment = true, .start = 2, .count = 5}, {0.5, 3}},
      {"x there and back", thereAndBack, 3, {.ticks = true}, {0, 0.5, 1, 2.5, 3, 4.5, 5}},
      {"no marks", ramp, 0, {.ticks = true}, {}},
      {"ticks off", ramp, 5, {}, {}},
  };
  for (const auto& c : cases) {
    EngineSettings settings = settingsOf(2);
    settings.numTicks = c.numTicks;
    settings.dataVolume = 0;
    settings.tickVolume = 100;
    SweepRenderer sweep(c.points, settings, c.request);
    const auto onsets = tickSeconds(renderAll(sweep).left);
    const double share = 2.0 / static_cast<double>(c.points.size());
    ASSERT_EQ(onsets.size(), c.positions.size()) << c.what;
    for (std::size_t i = 0; i < onsets.size(); ++i) {
      EXPECT_TRUE(agreesTo(onsets[i], (c.positions[i] + 0.5) * share, 6, 0.001)) << c.what << ", tick " << i;
    }
  }
}

double highHarmonicShare(const std::vector<float>& s, double hz) {
  const std::size_t from = frameAtSeconds(0.2);
  const std::size_t to = frameAtSeconds(0.8);
  double all = 0.0;
  double high = 0.0;
  for (int h = 1; h <= 9; ++h) {
    const double p = test::powerAt(s, from, to, h * hz);
    all += p;
    if (h > 3) high += p;
  }
  return high / all;
}

// A flat curve at y = 1 (300 Hz): below the threshold level its tone carries much
// more energy above the third harmonic.
TEST(SweepRenderer, BelowTheThresholdTheTimbreTurnsBuzzy) {
  const struct {
    bool on;
    float level;
    bool buzzy;
  } cases[] = {{false, 5, false}, {true, 5, true}, {true, 1, false}, {true, 0, false}};
  for (const auto& c : cases) {
    EngineSettings settings = settingsOf(1, 300, 300);
    settings.thresholdOn = c.on;
    settings.thresholdLevel = c.level;
    SweepRenderer sweep(pointsOf({1, 1}), settings, {});
    const double share = highHarmonicShare(renderAll(sweep).left, 300);
    if (c.buzzy) {
      EXPECT_GT(share, 0.1) << "on " << c.on << ", level " << c.level;
    } else {
      EXPECT_LT(share, 0.02) << "on " << c.on << ", level " << c.level;
    }
  }
}

// x from 0 to 10 in ten windows: stereo moves the sound from left to right at an even
// loudness; mono sends the same signal to both sides.
TEST(SweepRenderer, StereoPansAlongXAndMonoIsCentred) {
  for (const bool stereo : {true, false}) {
    SweepRenderer sweep(line(11, 1, 1), settingsOf(1), {.stereo = stereo});
    const auto sound = renderAll(sweep);
    const std::size_t window = sound.frames() / 10;
    if (!stereo) {
      EXPECT_EQ(sound.left, sound.right);
      continue;
    }
    double previousShare = 0.0;
    double firstEnergy = 0.0;
    for (std::size_t w = 0; w < 10; ++w) {
      const double left = test::energy(sound.left, w * window, (w + 1) * window);
      const double right = test::energy(sound.right, w * window, (w + 1) * window);
      const double rightShare = right / (left + right);
      EXPECT_GT(rightShare, previousShare) << "window " << w;
      previousShare = rightShare;
      if (w == 1) firstEnergy = left + right;
      // Windows clear of the fades keep the same total power.
      if (w >= 1 && w <= 8) {
        EXPECT_TRUE(agreesTo(left + right, firstEnergy, 2)) << "window " << w;
      }
    }
    EXPECT_LT(test::energy(sound.right, 0, window), 0.1 * test::energy(sound.left, 0, window));
    EXPECT_LT(test::energy(sound.left, 9 * window, 10 * window),
              0.1 * test::energy(sound.right, 9 * window, 10 * window));
  }
}

// Equal decibel steps from -24 dB at volume 1 to -1 dB at 100, for the curve and the
// ticks alike; 0 is silence and anything above 100 plays as 100.
TEST(SweepRenderer, VolumesFollowADecibelScale) {
  // The curve's level alone, and the ticks' peak alone.
  const auto level = [](unsigned dataVolume, unsigned tickVolume) {
    EngineSettings settings = settingsOf(1);
    settings.dataVolume = dataVolume;
    settings.tickVolume = tickVolume;
    settings.numTicks = 2;
    SweepRenderer sweep(line(10, 1, 1), settings, {.ticks = true});
    const auto sound = renderAll(sweep);
    if (tickVolume == 0) return test::rms(sound.left, frameAtSeconds(0.3), frameAtSeconds(0.7));
    return static_cast<double>(test::peak(sound.left));
  };
  const double curveFull = level(100, 0);
  const double tickFull = level(0, 100);
  EXPECT_TRUE(agreesTo(level(0, 0), 0.0, 3, 1e-12));
  for (const unsigned volume : {1u, 30u, 99u, 101u, 4000000000u}) {
    const double expectedDb = -23.0 * (100.0 - std::min(volume, 100u)) / 99.0;
    EXPECT_TRUE(agreesTo(20 * std::log10(level(volume, 0) / curveFull), expectedDb, 2, 0.05)) << volume;
    EXPECT_TRUE(agreesTo(20 * std::log10(level(0, volume) / tickFull), expectedDb, 2, 0.05)) << volume;
  }
}

// Everything at its loudest in stereo, curve and ticks together, stays below full
// scale and yet is loud.
TEST(SweepRenderer, TheLoudestMixDoesNotClip) {
  EngineSettings settings = settingsOf(1);
  settings.dataVolume = 100;
  settings.tickVolume = 100;
  settings.thresholdOn = true;
  settings.thresholdLevel = 100;
  settings.numTicks = 50;
  SweepRenderer sweep(line(50, -1, 1), settings, {.stereo = true, .ticks = true});
  const auto sound = renderAll(sweep);
  const float loudest = std::max(test::peak(sound.left), test::peak(sound.right));
  EXPECT_LT(loudest, 1.0f);
  EXPECT_GT(loudest, 0.5f);
}

// 100 Hz, seven points of a second each: the sound fades in and out, a point without
// a y is a gap faded like an end, and fadeOut ends the sound within a few
// milliseconds, all without a step a listener would hear as a click.
TEST(SweepRenderer, StartsStopsAndPausesWithoutClicks) {
  const float nan = std::numeric_limits<float>::quiet_NaN();
  const struct {
    const char* what;
    std::vector<float> ys;
    double fadeOutAt;  // seconds; negative for none
  } cases[] = {
      {"whole sweep", {1, 1, 1, 1, 1, 1, 1}, -1},
      {"gap in the middle", {1, 1, 1, nan, 1, 1, 1}, -1},
      {"fade-out mid-sweep", {1, 1, 1, 1, 1, 1, 1}, 2.3},
      {"fade-out before the start", {1, 1, 1, 1, 1, 1, 1}, 0},
  };
  SweepRenderer plain(pointsOf(cases[0].ys), settingsOf(7, 100, 100), {});
  const auto reference = renderAll(plain);
  const float naturalStep = test::largestStep(reference.left, 0, reference.frames());
  const float full = test::peak(reference.left);
  const double steady = test::rms(reference.left, frameAtSeconds(1), frameAtSeconds(2));
  for (const auto& c : cases) {
    SweepRenderer sweep(pointsOf(c.ys), settingsOf(7, 100, 100), {});
    test::Rendered sound;
    if (c.fadeOutAt >= 0) {
      std::vector<float> buffer(frameAtSeconds(c.fadeOutAt) * kChannels);
      ASSERT_EQ(sweep.render(buffer.data(), buffer.size() / kChannels), buffer.size() / kChannels);
      for (std::size_t i = 0; i < buffer.size(); i += kChannels) sound.left.push_back(buffer[i]);
      sweep.fadeOut();
      const auto rest = renderAll(sweep);
      EXPECT_LE(rest.frames(), frameAtSeconds(0.006)) << c.what;
      sound.left.insert(sound.left.end(), rest.left.begin(), rest.left.end());
      if (sound.left.empty()) continue;
    } else {
      sound = renderAll(sweep);
    }
    const std::size_t ms = frameAtSeconds(0.001);
    EXPECT_LT(test::rms(sound.left, 0, ms), 0.3 * steady) << c.what;
    EXPECT_LT(test::rms(sound.left, sound.frames() - ms, sound.frames()), 0.3 * steady) << c.what;
    EXPECT_LT(test::largestEdgeStep(sound.left, ms), 0.02f * full) << c.what;
    EXPECT_LE(test::largestStep(sound.left, 0, sound.frames()), naturalStep * 1.01f) << c.what;
  }
  SweepRenderer gapped(pointsOf(cases[1].ys), settingsOf(7, 100, 100), {});
  const auto gap = renderAll(gapped);
  EXPECT_TRUE(agreesTo(test::rms(gap.left, frameAtSeconds(3.1), frameAtSeconds(3.9)), 0.0, 3, 1e-12));
  EXPECT_GT(test::rms(gap.left, frameAtSeconds(2.6), frameAtSeconds(2.9)), 0.5 * steady);
}

}  // namespace
}  // namespace sonalyx
