#include "core/pages/EntryHistory.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace sonalyx {
namespace {

TEST(EntryHistory, UpShowsThenStepsBackDownStepsThenShows) {
  // "+x" adds an entry, "^" and "v" press Up and Down; "-" means nothing happens.
  struct Case {
    std::vector<std::string> keys;
    std::vector<std::string> shown;
  };
  const Case cases[] = {
      {{"^", "v"}, {"-", "-"}},
      {{"+a", "^", "^", "v"}, {"a", "a", ""}},
      {{"+a", "+b", "+c", "^", "^", "^", "^"}, {"c", "b", "a", "a"}},
      {{"+a", "+b", "+c", "v"}, {""}},
      // Down from the first entry steps forward before showing.
      {{"+a", "+b", "+c", "^", "^", "^", "v", "v", "v", "v"}, {"c", "b", "a", "b", "c", "", ""}},
      // A new entry is recalled first even after stepping back.
      {{"+a", "+b", "+c", "^", "^", "+d", "^", "^"}, {"c", "b", "d", "c"}},
  };
  for (const auto& c : cases) {
    EntryHistory history;
    std::vector<std::string> shown;
    for (const auto& key : c.keys) {
      if (key[0] == '+') {
        history.add(key.substr(1));
        continue;
      }
      const auto text = key == "^" ? history.up() : history.down();
      shown.push_back(text ? *text : "-");
    }
    EXPECT_EQ(shown, c.shown) << ::testing::PrintToString(c.keys);
  }
}

}  // namespace
}  // namespace sonalyx
