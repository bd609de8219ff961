#include "platform/sound/WaveFileWriter.h"

#include <gtest/gtest.h>

#include <cmath>
#include <fstream>
#include <stdexcept>

#include "core/sound/AudioFormat.h"
#include "platform/sound/TestSound.h"
#include "support/NumericCompare.h"

namespace sonalyx {
namespace {

using test::agreesTo;

std::vector<float> testSignal(std::size_t frames, int channels) {
  std::vector<float> samples(frames * static_cast<std::size_t>(channels));
  for (std::size_t i = 0; i < samples.size(); ++i)
    samples[i] = 0.9f * std::sin(0.01f * static_cast<float>(i));
  if (samples.size() >= 2) {
    samples[0] = 1.5f;  // beyond full scale: must clip, not wrap to the other sign
    samples[1] = -1.5f;
  }
  return samples;
}

TEST(WaveFileWriter, WritesSixteenBitPcmAtTheMixRate) {
  const struct {
    int channels;
    std::size_t frames;
    bool replacesAFile;
  } cases[] = {{1, 44100, false}, {2, 1000, false}, {2, 3, true}, {1, 0, false}};
  for (const auto& c : cases) {
    test::TemporaryFolder folder;
    ASSERT_TRUE(folder.exists());
    const std::string path = folder.file("graph.wav");
    if (c.replacesAFile) std::ofstream(path) << "an older file";
    const auto samples = testSignal(c.frames, c.channels);
    writeWaveFile(path, samples, c.channels);

    const auto wave = test::readWave(path);
    ASSERT_TRUE(wave.opened) << c.channels << " " << c.frames;
    EXPECT_EQ(wave.format, SF_FORMAT_WAV | SF_FORMAT_PCM_16);
    EXPECT_EQ(wave.sampleRate, kSampleRate);
    EXPECT_EQ(wave.channels, c.channels);
    ASSERT_EQ(wave.samples.size(), samples.size());
    for (std::size_t i = 0; i < samples.size(); ++i) {
      const double expected = std::clamp(samples[i], -1.0f, 1.0f);
      ASSERT_TRUE(agreesTo(wave.samples[i], expected, 3, 1.0 / 32000)) << c.channels << " sample " << i;
    }
    EXPECT_EQ(folder.names(), std::set<std::string>{"graph.wav"});  // no temporary left behind
  }
}

TEST(WaveFileWriter, FailureLeavesTheFolderAsItWas) {
  const struct {
    const char* name;
    const char* target;  // inside the test folder, which holds the folder "taken" and the file "kept.wav"
    int channels;
  } cases[] = {
      {"missing folder", "missing/graph.wav", 2},     {"target is a folder", "taken", 2},
      {"inside a file", "kept.wav/graph.wav", 1},     {"three channels", "graph.wav", 3},
      {"existing file, bad channels", "kept.wav", 0},
  };
  for (const auto& c : cases) {
    test::TemporaryFolder folder;
    ASSERT_TRUE(folder.exists());
    std::filesystem::create_directory(folder.file("taken"));
    std::ofstream(folder.file("kept.wav")) << "keep me";
    const auto before = folder.names();

    EXPECT_THROW(writeWaveFile(folder.file(c.target), testSignal(500, 2), c.channels), std::runtime_error)
        << c.name;
    EXPECT_EQ(folder.names(), before) << c.name;
    EXPECT_TRUE(std::filesystem::is_empty(folder.file("taken"))) << c.name;
    std::ifstream kept(folder.file("kept.wav"));
    std::string text;
    std::getline(kept, text);
    EXPECT_EQ(text, "keep me") << c.name;
  }

  // An export abandoned half-way (an exception between writes) leaves nothing either.
  test::TemporaryFolder folder;
  ASSERT_TRUE(folder.exists());
  {
    WaveFileWriter writer(folder.file("graph.wav"), 2);
    writer.write(testSignal(500, 2));
  }
  EXPECT_TRUE(folder.names().empty());
}

}  // namespace
}  // namespace sonalyx
