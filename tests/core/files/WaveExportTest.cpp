#include "core/files/WaveExport.h"

#include <gtest/gtest.h>

namespace sonalyx {
namespace {

TEST(WaveExport, AppendsWavUnlessTheNameEndsInIt) {
  const struct {
    const char* chosen;
    const char* written;
  } cases[] = {
      {"/home/ann/Graph.WAV", "/home/ann/Graph.WAV"},
      {"/home/ann/graph", "/home/ann/graph.wav"},
      {"graph.wave", "graph.wave.wav"},
      {"mywav", "mywav"},
      {"tone.wAv", "tone.wAv"},
      {"av", "av.wav"},
      {"", ".wav"},
      {"Übung.wa", "Übung.wa.wav"},
  };
  for (const auto& c : cases) EXPECT_EQ(applyWavExtension(c.chosen), c.written) << c.chosen;
}

}  // namespace
}  // namespace sonalyx
