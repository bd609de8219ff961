#include "core/sound/StreamResampler.h"

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "support/NumericCompare.h"

namespace sonalyx {
namespace {

// The whole stream resampled, fed in pieces of `piece` samples.
std::vector<float> resample(const std::vector<float>& input, int from, int to, std::size_t piece) {
  StreamResampler resampler(from, to);
  std::vector<float> out;
  for (std::size_t start = 0; start < input.size(); start += piece) {
    const std::size_t count = std::min(piece, input.size() - start);
    resampler.push(input.data() + start, count, out);
  }
  resampler.finish(out);
  return out;
}

TEST(StreamResampler, DoublesTheRateThroughEveryInputSample) {
  std::vector<float> input(300);
  for (std::size_t i = 0; i < input.size(); ++i) input[i] = static_cast<float>(std::sin(0.05 * i));
  for (const std::size_t piece : {1U, 7U, 300U}) {
    const std::vector<float> out = resample(input, 22050, 44100, piece);
    ASSERT_EQ(out.size(), 2 * input.size()) << piece;
    for (std::size_t i = 0; i < input.size(); ++i) {
      ASSERT_TRUE(test::agreesTo(out[2 * i], input[i], 6, 1e-7)) << i << " in pieces of " << piece;
    }
    // Between samples it follows the curve, not a straight line.
    for (std::size_t i = 2; i + 2 < input.size(); ++i) {
      ASSERT_TRUE(test::agreesTo(out[2 * i + 1], std::sin(0.05 * (i + 0.5)), 3, 1e-4)) << i;
    }
  }
}

TEST(StreamResampler, KeepsAStraightLineStraightAtAnyRatio) {
  // A ramp starting from silence, as the stream is taken to.
  std::vector<float> input(400);
  for (std::size_t i = 0; i < input.size(); ++i) input[i] = 0.001F * static_cast<float>(i);
  const struct {
    int from;
    int to;
  } ratios[] = {{22050, 44100}, {16000, 44100}, {48000, 44100}};
  for (const auto& r : ratios) {
    const std::vector<float> out = resample(input, r.from, r.to, 33);
    const double step = static_cast<double>(r.from) / r.to;
    // One output for every output instant before the input ends.
    const std::size_t expected = (input.size() * r.to + r.from - 1) / r.from;
    EXPECT_EQ(out.size(), expected) << r.from;
    for (std::size_t n = 0; n < out.size(); ++n) {
      const double t = n * step;
      if (t < 1.0 || t > input.size() - 2.0) continue;  // the silent ends bend the line
      ASSERT_TRUE(test::agreesTo(out[n], 0.001 * t, 5, 1e-6)) << r.from << " -> " << r.to << " at " << n;
    }
  }
}

}  // namespace
}  // namespace sonalyx
