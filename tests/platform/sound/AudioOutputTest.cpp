#include "platform/sound/AudioOutput.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <thread>

#include "core/sound/AudioFormat.h"
#include "platform/sound/TestSound.h"
#include "support/NumericCompare.h"

namespace sonalyx {
namespace {

using test::agreesTo;
using test::ConstantSource;

constexpr auto kManual = AudioOutput::Pacing::Manual;

std::shared_ptr<AudioSource> level(float left, float right, double ms) {
  return std::make_shared<ConstantSource>(left, right, framesForMilliseconds(ms));
}

std::size_t frameNow(const AudioOutput& output) {
  return framesForMilliseconds(output.nowMs());
}

TEST(AudioOutput, StartsEachSourceAtItsScheduledFrame) {
  const double cases[] = {0.0, 0.5, 5.0, 11.61, 37.0, 250.0};
  for (double delayMs : cases) {
    AudioOutput output(AudioOutput::Mode::Capture, {}, kManual);
    output.advance(7.0);  // a clock that is not at zero and not on a buffer boundary
    const std::size_t start = frameNow(output) + framesForMilliseconds(delayMs);
    const std::size_t length = 700;
    output.play(AudioChannel::Effect, std::make_shared<ConstantSource>(0.5f, -0.25f, length), delayMs,
                "tone");
    EXPECT_TRUE(output.isActive(AudioChannel::Effect)) << delayMs;
    output.advance(delayMs + 40.0);

    const auto events = output.events();
    ASSERT_EQ(events.size(), 1u) << delayMs;
    EXPECT_EQ(events[0].label, "tone");
    EXPECT_EQ(events[0].channel, AudioChannel::Effect);
    EXPECT_TRUE(agreesTo(events[0].startMs, static_cast<double>(start) * 1000.0 / kSampleRate, 12))
        << delayMs;

    const auto samples = output.capturedSamples();
    ASSERT_GE(samples.size(), (start + length + 1) * kChannels);
    for (std::size_t frame = 0; frame < samples.size() / kChannels; ++frame) {
      const bool sounding = frame >= start && frame < start + length;
      ASSERT_TRUE(agreesTo(samples[frame * kChannels], sounding ? 0.5 : 0.0, 6))
          << delayMs << " frame " << frame;
      ASSERT_TRUE(agreesTo(samples[frame * kChannels + 1], sounding ? -0.25 : 0.0, 6))
          << delayMs << " frame " << frame;
    }
    EXPECT_FALSE(output.isActive(AudioChannel::Effect)) << delayMs;
  }
}

TEST(AudioOutput, ReplacingOrStoppingFadesTheChannelWithinOneBuffer) {
  const struct {
    const char* name;
    double firstDelayMs;  // 0: sounding when the action comes; 30: still waiting
    bool replace;         // true: a new source at 0.1; false: stop()
  } cases[] = {
      {"replace a sounding source", 0.0, true},
      {"stop a sounding source", 0.0, false},
      {"replace a waiting source", 30.0, true},
      {"stop a waiting source", 30.0, false},
  };
  for (const auto& c : cases) {
    AudioOutput output(AudioOutput::Mode::Capture, {}, kManual);
    output.play(AudioChannel::Graph, level(0.5f, 0.5f, 1000.0), c.firstDelayMs, "first");
    output.advance(20.0);
    const std::size_t action = frameNow(output);
    const float after = c.replace ? 0.1f : 0.0f;
    if (c.replace) {
      output.play(AudioChannel::Graph, level(after, after, 1000.0), 0.0, "second");
    } else {
      output.stop(AudioChannel::Graph);
    }
    output.advance(60.0);

    const auto samples = output.capturedSamples();
    const bool wasSounding = c.firstDelayMs == 0.0;
    for (std::size_t frame = 0; frame < action; ++frame) {
      ASSERT_TRUE(agreesTo(samples[frame * kChannels], wasSounding ? 0.5 : 0.0, 6)) << c.name << " " << frame;
    }
    // The old sound falls away smoothly (no click), never rising, and is gone within a buffer.
    double previous = wasSounding ? 0.5 : 0.0;
    for (std::size_t frame = action; frame < action + output.bufferFrames(); ++frame) {
      const double old = samples[frame * kChannels] - after;
      EXPECT_LE(old, previous + 1e-6) << c.name << " " << frame;
      EXPECT_LE(previous - old, 0.01) << c.name << " " << frame;
      previous = old;
    }
    for (std::size_t frame = action + output.bufferFrames(); frame < samples.size() / kChannels; ++frame) {
      ASSERT_TRUE(agreesTo(samples[frame * kChannels], after, 6)) << c.name << " " << frame;
    }
    EXPECT_EQ(output.isActive(AudioChannel::Graph), c.replace) << c.name;
    // A source dropped while waiting is never started.
    const auto events = output.events();
    ASSERT_EQ(events.size(), (wasSounding ? 1u : 0u) + (c.replace ? 1u : 0u)) << c.name;
    if (wasSounding) {
      EXPECT_EQ(events.front().label, "first") << c.name;
    }
  }
}

TEST(AudioOutput, AStormOfRequestsPlaysTheLastAndReleasesTheRest) {
  AudioOutput output(AudioOutput::Mode::Capture, {}, kManual);
  std::vector<std::weak_ptr<AudioSource>> handedOver;
  const int count = 300;  // far more than the queues' first room
  for (int i = 0; i < count; ++i) {
    auto source = level(0.001f * static_cast<float>(i), 0.0f, 30.0);
    handedOver.push_back(source);
    output.play(AudioChannel::Effect, std::move(source), 0.0, std::to_string(i));
  }
  output.advance(10.0);
  const auto events = output.events();
  ASSERT_EQ(events.size(), 1u);
  EXPECT_EQ(events[0].label, std::to_string(count - 1));
  EXPECT_TRUE(agreesTo(output.capturedSamples()[0], 0.001 * (count - 1), 5));
  for (int i = 0; i < count - 1; ++i) EXPECT_TRUE(handedOver[i].expired()) << i;
  output.advance(30.0);
  EXPECT_TRUE(handedOver.back().expired());
}

TEST(AudioOutput, SumsTheChannelsAndClipsTheMix) {
  const float nan = std::numeric_limits<float>::quiet_NaN();
  const float inf = std::numeric_limits<float>::infinity();
  const struct {
    float graph, effect, speech;
    double expected;
  } cases[] = {
      {0.25f, 0.5f, 0.0f, 0.75},    {0.25f, -0.5f, 0.125f, -0.125}, {0.75f, 0.75f, 0.0f, 1.0},
      {-0.75f, -0.5f, -0.5f, -1.0}, {nan, 0.25f, 0.0f, 0.0},        {inf, 0.0f, 0.0f, 1.0},
  };
  for (const auto& c : cases) {
    AudioOutput output(AudioOutput::Mode::Capture, {}, kManual);
    output.play(AudioChannel::Graph, level(c.graph, -c.graph, 50.0));
    output.play(AudioChannel::Effect, level(c.effect, -c.effect, 50.0));
    output.play(AudioChannel::Speech, level(c.speech, -c.speech, 50.0));
    output.advance(50.0);
    const auto samples = output.capturedSamples();
    ASSERT_EQ(samples.size(), framesForMilliseconds(50.0) * kChannels);
    for (std::size_t frame = 0; frame < samples.size() / kChannels; ++frame) {
      ASSERT_TRUE(agreesTo(samples[frame * kChannels], c.expected, 6)) << c.graph << " " << frame;
      ASSERT_TRUE(agreesTo(samples[frame * kChannels + 1], -c.expected, 6, 1e-9)) << c.graph << " " << frame;
    }
  }
}

TEST(AudioOutput, CaptureFileHoldsEverythingMixed) {
  test::TemporaryFolder folder;
  ASSERT_TRUE(folder.exists());
  const std::string path = folder.file("capture.wav");
  std::vector<float> mixed;
  {
    AudioOutput output(AudioOutput::Mode::Capture, path, kManual);
    output.play(AudioChannel::Speech, level(0.5f, -0.5f, 30.0), 10.0);
    output.advance(80.0);
    mixed = output.capturedSamples();
  }  // written as the output closes
  const auto wave = test::readWave(path);
  ASSERT_TRUE(wave.opened);
  EXPECT_EQ(wave.format, SF_FORMAT_WAV | SF_FORMAT_PCM_16);
  EXPECT_EQ(wave.sampleRate, kSampleRate);
  EXPECT_EQ(wave.channels, 2);
  ASSERT_EQ(wave.samples.size(), mixed.size());
  ASSERT_EQ(mixed.size(), framesForMilliseconds(80.0) * kChannels);
  for (std::size_t i = 0; i < mixed.size(); ++i) {
    ASSERT_TRUE(agreesTo(wave.samples[i], mixed[i], 3, 1.0 / 32000)) << i;
  }
}

TEST(AudioOutput, RealTimeOutputsTakeAsLongAsTheSound) {
  const struct {
    AudioOutput::Mode mode;
    const char* name;
  } cases[] = {{AudioOutput::Mode::Null, "null"}, {AudioOutput::Mode::Capture, "capture"}};
  for (const auto& c : cases) {
    AudioOutput output(c.mode);
    const auto begin = std::chrono::steady_clock::now();
    output.play(AudioChannel::Speech, level(0.25f, 0.25f, 200.0), 0.0, "utterance");
    ASSERT_TRUE(output.waitUntilIdle(5000.0)) << c.name;
    const double elapsedMs =
        std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - begin).count();
    // Never faster than the sound itself (less one buffer of start-up); the upper bound
    // only catches a clock that does not run.
    EXPECT_GE(elapsedMs, 150.0) << c.name;
    EXPECT_GE(output.nowMs(), 190.0) << c.name;
    EXPECT_EQ(output.events().size(), c.mode == AudioOutput::Mode::Capture ? 1u : 0u) << c.name;
  }
}

TEST(AudioOutput, DefaultOpensTheSoundServerWhenOneIsReachable) {
  if (std::system("pactl info >/dev/null 2>&1") != 0) {
    GTEST_SKIP() << "no PulseAudio server is reachable (pactl info fails): the sound-card path is untested";
  }
  AudioOutput output(AudioOutput::Mode::Default);
  EXPECT_EQ(output.mode(), AudioOutput::Mode::Default);
  EXPECT_FALSE(output.deviceDriver().empty());
  output.play(AudioChannel::Effect, level(0.1f, 0.1f, 100.0));
  // The card pulls the sound: the clock moves and the source ends.
  EXPECT_TRUE(output.waitUntilIdle(5000.0));
  EXPECT_GE(output.nowMs(), 90.0);
}

}  // namespace
}  // namespace sonalyx
