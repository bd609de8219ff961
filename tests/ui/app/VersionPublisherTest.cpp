#include "ui/app/VersionPublisher.h"

#include <gtest/gtest.h>

#include "ui/UiTestSupport.h"
#include "ui/app/ProductInfo.h"

namespace sonalyx::ui {
namespace {

TEST(VersionPublisher, TakesTheFirstThreeNumbersOfAVersionOfFiveCharactersOrMore) {
  const struct {
    const char* text;
    VersionNumbers expected;
  } cases[] = {
      {"3.0.15.0", {3, 0, 15}},
      {"3.1.2", {3, 1, 2}},
      {"3.1", {0, 0, 0}},    // shorter than five characters
      {"10.2", {0, 0, 0}},   // likewise
      {"10.20", {0, 0, 0}},  // long enough, but only two numbers
      {"", {0, 0, 0}},
      {"3..1...2", {3, 1, 2}},  // runs of dots are one separator
      {".3.1.2.", {3, 1, 2}},   // and leading or trailing dots none
      {"3.x.7.9", {3, 0, 7}},   // a piece that is not a number is 0
      {"4.2b.1", {4, 2, 1}},    // leading digits count
      {"12.345.6789.1011", {12, 345, 6789}},
  };
  for (const auto& c : cases) EXPECT_EQ(parseProductVersion(c.text), c.expected) << c.text;
}

TEST(VersionPublisher, PublishesTheVersionNameAndManifestForTheUpdater) {
  const struct {
    const char* version;
    const char* arguments;
    std::uint32_t major, minor, rev;
    const char* url;
  } cases[] = {
      {"3.0.15.0", "", 3, 0, 15, product::kUpdateManifest},
      {"3.1", "-localTest", 0, 0, 0, product::kTestUpdateManifest},
      {"2.4.6", " -localTest", 2, 4, 6, product::kUpdateManifest},
      {"2.4.6", "-localtest", 2, 4, 6, product::kUpdateManifest},
      {"2.4.6", "-localTest -x", 2, 4, 6, product::kUpdateManifest},
  };
  EXPECT_STRNE(product::kUpdateManifest, product::kTestUpdateManifest);
  for (const auto& c : cases) {
    test::TempSettings settings;
    const SettingsStore store = settings.store();
    PublishVersion(store, c.version, c.arguments);
    EXPECT_EQ(store.GetInt("Major", 99), c.major) << c.version;
    EXPECT_EQ(store.GetInt("Minor", 99), c.minor) << c.version;
    EXPECT_EQ(store.GetInt("Rev", 99), c.rev) << c.version;
    EXPECT_EQ(store.GetText("appName", "?"), "sonalyx");
    EXPECT_EQ(store.GetText("updateURL", "?"), c.url) << '"' << c.arguments << '"';
  }
}

}  // namespace
}  // namespace sonalyx::ui
