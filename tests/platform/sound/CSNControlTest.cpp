#include "platform/sound/CSNControl.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cmath>

#include "core/sound/AudioFormat.h"
#include "core/sound/PointTone.h"
#include "core/sound/SweepRenderer.h"
#include "platform/sound/TestSound.h"
#include "support/NumericCompare.h"

namespace sonalyx {
namespace {

using test::agreesTo;
constexpr auto kManual = AudioOutput::Pacing::Manual;

std::vector<SoundedPoint> curve(int count) {
  std::vector<SoundedPoint> points;
  for (int i = 0; i < count; ++i) {
    const float x = -5.0f + 10.0f * static_cast<float>(i) / static_cast<float>(std::max(count - 1, 1));
    points.push_back({x, std::sin(x) * x});
  }
  return points;
}

EngineSettings waveSettings(int playTime) {
  EngineSettings settings;
  settings.playTime = playTime;
  settings.thresholdOn = true;
  settings.thresholdLevel = -0.5f;
  settings.numTicks = 7;
  settings.dataVolume = 80;
  settings.tickVolume = 30;
  settings.freqMin = 100;
  settings.freqMax = 1500;
  return settings;
}

// The engine load's calls, in its order.
void load(CSNControl& engine, const std::vector<SoundedPoint>& points, const EngineSettings& s) {
  engine.Reset();
  for (const SoundedPoint& p : points) engine.AppendPoint(p.x, p.y);
  engine.SetPlayTime(s.playTime);
  engine.EnableYThreshold(s.thresholdOn, s.thresholdLevel);
  engine.SetNumVerticalTicks(s.numTicks);
  engine.SetDataVolume(s.dataVolume);
  engine.SetTickVolume(s.tickVolume);
  engine.SetFreqMin(s.freqMin);
  engine.SetFreqMax(s.freqMax);
}

// What a source gives when played alone from its start, `frames` long.
std::vector<float> rendered(AudioSource& source, std::size_t frames) {
  std::vector<float> samples(frames * kChannels, 0.0f);
  source.render(samples.data(), frames);
  return samples;
}

// The largest difference between `actual` from frame `from` on and `expected`, and where.
struct Difference {
  double largest = 0.0;
  std::size_t sample = 0;
};
Difference difference(const std::vector<float>& actual, const std::vector<float>& expected, std::size_t from,
                      std::size_t stride = 1) {
  Difference d;
  for (std::size_t i = 0; i < expected.size() / stride; ++i) {
    const std::size_t at = from + i;
    const double gap = at < actual.size() ? std::fabs(actual[at] - expected[i * stride]) : HUGE_VAL;
    if (gap > d.largest) d = {gap, i};
  }
  return d;
}

bool sameSound(const std::vector<float>& actual, const std::vector<float>& expected, std::size_t fromFrame,
               const std::string& name) {
  const Difference d = difference(actual, expected, fromFrame * kChannels);
  const auto agrees = agreesTo(d.largest, 0.0, 5, 1e-6);
  if (!agrees) ADD_FAILURE() << name << ", worst at sample " << d.sample << ": " << agrees.message();
  return agrees;
}

TEST(CSNControl, KeepsThePointsInAppendOrderUntilReset) {
  const std::vector<std::vector<SoundedPoint>> cases = {
      {},
      {{1.0f, 2.0f}},
      {{3.0f, 1.0f}, {1.0f, 5.0f}, {3.0f, 1.0f}, {-2.0f, 0.0f}, {1e30f, -1e-30f}},
  };
  AudioOutput output(AudioOutput::Mode::Null, {}, kManual);
  CSNControl engine(output);
  engine.CreateInstance();
  const EngineSettings told = waveSettings(9);
  for (const auto& points : cases) {
    load(engine, points, told);
    EXPECT_EQ(engine.points(), points);
    EXPECT_EQ(engine.settings().playTime, told.playTime);
    EXPECT_EQ(engine.settings().thresholdOn, told.thresholdOn);
    EXPECT_EQ(engine.settings().thresholdLevel, told.thresholdLevel);
    EXPECT_EQ(engine.settings().numTicks, told.numTicks);
    EXPECT_EQ(engine.settings().dataVolume, told.dataVolume);
    EXPECT_EQ(engine.settings().tickVolume, told.tickVolume);
    EXPECT_EQ(engine.settings().freqMin, told.freqMin);
    EXPECT_EQ(engine.settings().freqMax, told.freqMax);
  }
  engine.Reset();
  EXPECT_TRUE(engine.points().empty());
}

TEST(CSNControl, PlaysTheRequestedSweepOnTheGraphChannel) {
  const struct {
    bool stereo, ticks, reverse, segment;
    int start, count;
  } cases[] = {
      {false, false, false, false, 0, 0},
      {true, true, false, false, 0, 0},
      {true, false, true, true, 40, 25},
      {false, true, false, true, 10, 30},
  };
  const auto points = curve(101);
  const EngineSettings settings = waveSettings(1);
  for (const auto& c : cases) {
    const std::string name = "stereo " + std::to_string(c.stereo) + " ticks " + std::to_string(c.ticks) +
                             " segment " + std::to_string(c.start) + "+" + std::to_string(c.count);
    AudioOutput output(AudioOutput::Mode::Capture, {}, kManual);
    CSNControl engine(output);
    load(engine, points, settings);
    output.advance(3.0);
    const std::size_t start = framesForMilliseconds(output.nowMs());
    engine.Play(c.stereo, c.ticks, c.reverse, c.segment, c.start, c.count);
    // Telling the engine more while it plays must not change what is heard.
    engine.AppendPoint(100.0f, 100.0f);
    engine.SetFreqMax(300);
    SweepRenderer expected(points, settings, {c.stereo, c.ticks, c.reverse, c.segment, c.start, c.count});
    const std::size_t length = expected.totalFrames();
    ASSERT_GT(length, 0u) << name;
    output.advance(static_cast<double>(length) * 1000.0 / kSampleRate + 50.0);

    const auto events = output.events();
    ASSERT_EQ(events.size(), 1u) << name;
    EXPECT_EQ(events[0].channel, AudioChannel::Graph) << name;
    EXPECT_TRUE(sameSound(output.capturedSamples(), rendered(expected, length), start, name));
    EXPECT_FALSE(output.isActive(AudioChannel::Graph)) << name;
  }
}

TEST(CSNControl, PlayPointSoundsThatPointAndNothingOutsideTheList) {
  const struct {
    int index;
    bool stereo;
    bool sounds;
  } cases[] = {{0, false, true}, {37, true, true}, {100, true, true}, {101, true, false}, {-1, false, false}};
  const auto points = curve(101);
  const EngineSettings settings = waveSettings(4);
  for (const auto& c : cases) {
    AudioOutput output(AudioOutput::Mode::Capture, {}, kManual);
    CSNControl engine(output);
    load(engine, points, settings);
    engine.PlayPoint(c.index, c.stereo);
    output.advance(300.0);
    ASSERT_EQ(output.events().size(), c.sounds ? 1u : 0u) << c.index;
    if (!c.sounds) continue;
    PointTone expected(points, settings, c.index, c.stereo);
    ASSERT_GT(expected.totalFrames(), 0u) << c.index;
    EXPECT_TRUE(sameSound(output.capturedSamples(), rendered(expected, expected.totalFrames()), 0,
                          "point " + std::to_string(c.index)));
  }
}

TEST(CSNControl, ResetSilencesTheSweepWithinOneBuffer) {
  AudioOutput output(AudioOutput::Mode::Capture, {}, kManual);
  CSNControl engine(output);
  load(engine, curve(501), waveSettings(4));
  engine.Play(true, true, false, false, 0, 0);
  output.advance(200.0);
  const std::size_t resetAt = framesForMilliseconds(output.nowMs());
  engine.Reset();
  output.advance(100.0);
  const auto samples = output.capturedSamples();
  float loudest = 0.0f;
  for (std::size_t i = 0; i < resetAt * kChannels; ++i) loudest = std::max(loudest, std::fabs(samples[i]));
  EXPECT_GT(loudest, 0.05f);  // it was sounding
  for (std::size_t i = (resetAt + output.bufferFrames()) * kChannels; i < samples.size(); ++i) {
    ASSERT_EQ(samples[i], 0.0f) << "frame " << i / kChannels;
  }
  EXPECT_FALSE(output.isActive(AudioChannel::Graph));
  EXPECT_TRUE(engine.points().empty());
}

TEST(CSNControl, PlayReturnsWhileTheSoundRuns) {
  AudioOutput output(AudioOutput::Mode::Null);  // paced in real time, like a card
  CSNControl engine(output);
  load(engine, curve(501), waveSettings(4));
  const auto begin = std::chrono::steady_clock::now();
  engine.Play(false, false, false, false, 0, 0);
  const double playMs =
      std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - begin).count();
  // Far below the four seconds of sound: only a Play that waits for it fails.
  EXPECT_LT(playMs, 1000.0);
  EXPECT_TRUE(output.isActive(AudioChannel::Graph));
  engine.Reset();
  EXPECT_TRUE(output.waitUntilIdle(2000.0));
}

TEST(CSNControl, WritesTheSweepAsAWaveFile) {
  const struct {
    bool stereo, ticks;
    int playTime;
  } cases[] = {{false, false, 4}, {true, true, 2}, {true, false, 1}, {false, true, 1}};
  const auto points = curve(501);
  for (const auto& c : cases) {
    const std::string name = "stereo " + std::to_string(c.stereo) + " ticks " + std::to_string(c.ticks);
    test::TemporaryFolder folder;
    ASSERT_TRUE(folder.exists());
    AudioOutput output(AudioOutput::Mode::Capture, {}, kManual);
    CSNControl engine(output);
    const EngineSettings settings = waveSettings(c.playTime);
    load(engine, points, settings);
    engine.WriteWaveToFile(folder.file("graph.wav"), c.stereo, c.ticks);
    EXPECT_EQ(engine.lastWriteError(), "") << name;
    EXPECT_TRUE(output.events().empty()) << name;  // written, not played

    const auto wave = test::readWave(folder.file("graph.wav"));
    ASSERT_TRUE(wave.opened) << name;
    EXPECT_EQ(wave.format, SF_FORMAT_WAV | SF_FORMAT_PCM_16) << name;
    EXPECT_EQ(wave.sampleRate, kSampleRate) << name;
    const int channels = c.stereo ? 2 : 1;
    ASSERT_EQ(wave.channels, channels) << name;
    SweepRenderer sweep(points, settings, {c.stereo, c.ticks, false, false, 0, 0});
    const std::size_t frames = sweep.totalFrames();
    ASSERT_EQ(wave.samples.size(), frames * static_cast<std::size_t>(channels)) << name;
    // The play time, and with ticks the last tick's ring after it.
    EXPECT_GE(frames, static_cast<std::size_t>(c.playTime) * kSampleRate) << name;
    if (!c.ticks) {
      EXPECT_EQ(frames, static_cast<std::size_t>(c.playTime) * kSampleRate) << name;
    }
    // Mono keeps one side of the (identical) pair; 16-bit samples are within half a step.
    const auto expected = rendered(sweep, frames);
    const Difference d = difference(wave.samples, expected, 0, c.stereo ? 1 : kChannels);
    EXPECT_TRUE(agreesTo(d.largest, 0.0, 3, 1.0 / 32767)) << name << ", worst at sample " << d.sample;
  }
}

TEST(CSNControl, AFailedExportLeavesNoFileAndSaysWhy) {
  test::TemporaryFolder folder;
  ASSERT_TRUE(folder.exists());
  AudioOutput output(AudioOutput::Mode::Null, {}, kManual);
  CSNControl engine(output);
  load(engine, curve(50), waveSettings(1));
  const std::string targets[] = {folder.file("missing/graph.wav"), folder.file("")};
  for (const std::string& target : targets) {
    engine.WriteWaveToFile(target, true, false);
    EXPECT_NE(engine.lastWriteError(), "") << target;
    EXPECT_TRUE(folder.names().empty()) << target;
  }
  engine.WriteWaveToFile(folder.file("graph.wav"), false, false);
  EXPECT_EQ(engine.lastWriteError(), "");  // a success clears the last failure
}

}  // namespace
}  // namespace sonalyx
