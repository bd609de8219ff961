#include "core/speech/VoiceFilter.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace sonalyx {
namespace {

TEST(VoiceFilter, PassesExactNamesAndTheTwoMakersAnywhere) {
  const struct {
    const char* name;
    bool passes;
  } cases[] = {
      {"Sam", true},           {"Sammy", false},
      {"sam", false},          {"Mary", true},
      {"Mike", true},          {"Microsoft Mike", false},
      {"L&H Michelle", true},  {"Voice of L&H", true},
      {"l&h Michelle", false}, {"ATT Crystal", true},
      {"ATT", false},          {"ATT-Crystal", false},
      {"Adult Female", false}, {"", false},
  };
  const VoiceFilter filter;
  for (const auto& c : cases) EXPECT_EQ(filter.passes(c.name), c.passes) << '"' << c.name << '"';
}

TEST(VoiceFilter, OffersThePassingVoicesInOrderOrAllWhenNonePass) {
  const VoiceFilter filter;
  const std::vector<std::string> mixed = {"Mike", "English (America)", "L&H Carol", "Sam"};
  EXPECT_EQ(filter.offered(mixed), (std::vector<std::string>{"Mike", "L&H Carol", "Sam"}));
  const std::vector<std::string> foreign = {"English (Great Britain)", "German", "Samantha"};
  EXPECT_EQ(filter.offered(foreign), foreign);
  EXPECT_TRUE(filter.offered({}).empty());
}

}  // namespace
}  // namespace sonalyx
