#include "platform/speech/EspeakSpeechEngine.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <thread>
#include <vector>

#include "core/sound/AudioFormat.h"

namespace sonalyx {
namespace {

// The first and last frame louder than a whisper, or nothing.
std::pair<std::size_t, std::size_t> heardSpan(const std::vector<float>& interleaved, int channels) {
  std::size_t first = 0;
  std::size_t last = 0;
  bool any = false;
  for (std::size_t i = 0; i < interleaved.size(); ++i) {
    if (std::fabs(interleaved[i]) < 0.01F) continue;
    const std::size_t frame = i / static_cast<std::size_t>(channels);
    if (!any) first = frame;
    last = frame;
    any = true;
  }
  return {first, any ? last + 1 : 0};
}

void waitUntilSaid(const EspeakSpeechEngine& engine, AudioOutput& output) {
  const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(20);
  while (engine.isSpeaking() && std::chrono::steady_clock::now() < deadline) {
    std::this_thread::sleep_for(std::chrono::milliseconds(10));
  }
  output.waitUntilIdle(2000.0);
}

TEST(EspeakSpeechEngine, SpeaksIntoTheOutputAndRendersForFiles) {
  AudioOutput output(AudioOutput::Mode::Capture, {});
  EspeakSpeechEngine engine(output);
  ASSERT_TRUE(engine.isAvailable()) << "espeak-ng or its data is missing";
  const std::vector<std::string> voices = engine.voices();
  ASSERT_GT(voices.size(), 10U);
  EXPECT_NE(voices[engine.defaultVoice()].find("English"), std::string::npos);
  EXPECT_EQ(engine.range(SpeechSetting::Rate), (EngineRange{80, 450}));

  const std::optional<RenderedSpeech> file = engine.render("Self-voicing activated.");
  ASSERT_TRUE(file.has_value());
  EXPECT_EQ(file->sampleRate, 22050);
  const auto [fileFirst, fileEnd] = heardSpan(file->samples, 1);
  ASSERT_GT(fileEnd, fileFirst);
  const std::size_t utteranceFrames = fileEnd - fileFirst;
  EXPECT_GT(utteranceFrames, static_cast<std::size_t>(file->sampleRate) / 2);

  engine.speak("Self-voicing activated.", 0.0);
  EXPECT_TRUE(engine.isSpeaking());
  waitUntilSaid(engine, output);
  EXPECT_FALSE(engine.isSpeaking());
  const std::vector<float> heard = output.capturedSamples();
  const auto [first, end] = heardSpan(heard, kChannels);
  ASSERT_GT(end, first) << "nothing was heard";
  // The same utterance, at twice the rate once resampled to the mixer's.
  const double ratio = static_cast<double>(end - first) / (2.0 * static_cast<double>(utteranceFrames));
  EXPECT_GT(ratio, 0.95);
  EXPECT_LT(ratio, 1.05);
}

TEST(EspeakSpeechEngine, ANewUtteranceCutsOffTheOldOne) {
  AudioOutput output(AudioOutput::Mode::Capture, {});
  EspeakSpeechEngine engine(output);
  ASSERT_TRUE(engine.isAvailable());
  const std::optional<RenderedSpeech> longText =
      engine.render("The quick brown fox jumps over the lazy dog, again and again and again.");
  const std::optional<RenderedSpeech> shortText = engine.render("Stop.");
  ASSERT_TRUE(longText && shortText);

  engine.speak("The quick brown fox jumps over the lazy dog, again and again and again.", 0.0);
  std::this_thread::sleep_for(std::chrono::milliseconds(300));
  engine.speak("Stop.", 0.0);
  waitUntilSaid(engine, output);
  const auto [first, end] = heardSpan(output.capturedSamples(), kChannels);
  // Some 300 ms of the first, then the whole of the second: far less than the first in full.
  const double heardSeconds = static_cast<double>(end - first) / kSampleRate;
  const double longSeconds = static_cast<double>(longText->samples.size()) / longText->sampleRate;
  const double shortSeconds = static_cast<double>(shortText->samples.size()) / shortText->sampleRate;
  EXPECT_LT(heardSeconds, 0.5 * longSeconds);
  EXPECT_GT(heardSeconds, shortSeconds * 0.8);
}

}  // namespace
}  // namespace sonalyx
