#include "platform/speech/SpeechStream.h"

#include <gtest/gtest.h>

#include <vector>

#include "core/sound/AudioFormat.h"
#include "support/NumericCompare.h"

namespace sonalyx {
namespace {

// Renders `frames` frames into a buffer that already holds another source's 0.25.
struct Pull {
  std::size_t produced;
  std::vector<float> mix;
};
Pull pull(SpeechStream& stream, std::size_t frames) {
  Pull p{0, std::vector<float>(frames * kChannels, 0.25F)};
  p.produced = stream.render(p.mix.data(), frames);
  return p;
}

TEST(SpeechStream, WaitsSilentlyForTheSynthesiserAndEndsWhenDrained) {
  SpeechStream stream(8);
  // Nothing yet: silence, but the stream goes on.
  Pull p = pull(stream, 4);
  EXPECT_EQ(p.produced, 4U);
  for (const float s : p.mix) EXPECT_TRUE(test::agreesTo(s, 0.25, 6));

  const float samples[] = {0.5F, -0.5F, 0.1F, 0.2F, 0.3F, 0.4F, 0.5F, 0.6F, 0.7F, 0.8F};
  EXPECT_EQ(stream.write(samples, 10), 8U);  // room for eight only
  EXPECT_EQ(stream.framesWritten(), 8U);
  p = pull(stream, 3);
  EXPECT_EQ(p.produced, 3U);
  EXPECT_TRUE(test::agreesTo(p.mix[0], 0.75, 6));  // mixed into both channels
  EXPECT_TRUE(test::agreesTo(p.mix[1], 0.75, 6));
  EXPECT_TRUE(test::agreesTo(p.mix[2], -0.25, 6));
  EXPECT_EQ(stream.write(samples + 8, 2), 2U);

  stream.finish();
  EXPECT_FALSE(stream.isDone());
  p = pull(stream, 16);
  EXPECT_EQ(p.produced, 7U);  // what was left, then the end
  EXPECT_TRUE(test::agreesTo(p.mix[6 * kChannels], 0.25 + 0.8, 6));
  EXPECT_TRUE(stream.isDone());
}

TEST(SpeechStream, FadesOutWhenCutOff) {
  const std::size_t fade = framesForMilliseconds(5.0);
  for (const bool byTheOutput : {true, false}) {
    SpeechStream stream(4 * fade);
    const std::vector<float> ones(4 * fade, 1.0F);
    stream.write(ones.data(), ones.size());
    if (byTheOutput) {
      stream.fadeOut();
    } else {
      stream.cutOff();  // a newer utterance replaced it
    }
    EXPECT_TRUE(stream.isCutOff());
    const Pull p = pull(stream, 4 * fade);
    EXPECT_EQ(p.produced, fade) << byTheOutput;
    EXPECT_TRUE(test::agreesTo(p.mix[0], 1.25, 6));
    EXPECT_LT(p.mix[(fade - 1) * kChannels], p.mix[(fade / 2) * kChannels]);
    EXPECT_TRUE(stream.isDone());
  }
}

}  // namespace
}  // namespace sonalyx
