#include "core/speech/SentencePacer.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

namespace sonalyx {
namespace {

using Pieces = std::vector<std::string>;

TEST(SentencePacer, SplitsAtSentenceEndsFollowedBySpace) {
  const struct {
    const char* text;
    Pieces expected;
  } cases[] = {
      {"x = 2, y = 0.333", {"x = 2, y = 0.333"}},
      {"Self-voicing activated.", {"Self-voicing activated."}},
      {"Mean: 2.5. Done!  Next? yes;no", {"Mean:", "2.5.", "Done!", "Next?", "yes;no"}},
      {"  . One.\nTwo ", {".", "One.", "Two"}},
      {"   ", {}},
  };
  for (const auto& c : cases) EXPECT_EQ(SentencePacer::sentences(c.text), c.expected) << c.text;
}

TEST(SentencePacer, ANewUtteranceReplacesOnlyWhatWasNotHandedOver) {
  SentencePacer pacer;
  EXPECT_EQ(pacer.speak("One. Two. Three."), std::optional<std::string>("One."));
  EXPECT_TRUE(pacer.serviceBusy());
  // While "One." is spoken the rest waits; a new utterance takes its place.
  EXPECT_EQ(pacer.speak("Four. Five."), std::nullopt);
  EXPECT_EQ(pacer.finished(), std::optional<std::string>("Four."));
  EXPECT_EQ(pacer.finished(), std::optional<std::string>("Five."));
  EXPECT_EQ(pacer.finished(), std::nullopt);
  EXPECT_FALSE(pacer.serviceBusy());
  // Stopping forgets the waiting sentences but not that one is being spoken.
  EXPECT_EQ(pacer.speak("Six. Seven."), std::optional<std::string>("Six."));
  pacer.clear();
  EXPECT_TRUE(pacer.serviceBusy());
  EXPECT_EQ(pacer.finished(), std::nullopt);
  EXPECT_EQ(pacer.speak(""), std::nullopt);
  EXPECT_FALSE(pacer.serviceBusy());
}

}  // namespace
}  // namespace sonalyx
