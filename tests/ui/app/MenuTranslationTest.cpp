#include "ui/app/MenuTranslation.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <algorithm>
#include <string>
#include <vector>

#include "ui/UiTestSupport.h"
#include "ui/app/CommandIds.h"
#include "ui/app/CommandTable.h"

namespace sonalyx::ui {
namespace {

TEST(MenuTranslation, LooksUpKeyedItemsWithTabSpelledOut) {
  const struct {
    const char* text;
    const char* key;
    const char* result;
  } cases[] = {
      {"P&rint Graph\tCtrl+P", "P&rint GraphTABCtrl+P", "[P&rint Graph\tCtrl+P]"},
      {"&Calculator", "&Calculator", "[&Calculator]"},
      {"a\tb\tc", "aTABbTABc", "[a\tb\tc]"},
  };
  for (const auto& c : cases) {
    std::vector<std::string> asked;
    const std::string result = translateMenuText(c.text, [&](const std::string& key) {
      asked.push_back(key);
      return "[" + key + "]";
    });
    ASSERT_EQ(asked.size(), 1u);
    EXPECT_EQ(asked[0], c.key);
    EXPECT_EQ(result, c.result);
  }
}

TEST(MenuTranslation, TranslatesTitlesSubmenusAndListedItemsOnce) {
  CCommandTable table(nullptr);
  std::vector<std::string> asked;
  translateMenu(table, [&](const std::string& key) {
    asked.push_back(key);
    return "<" + key + ">";
  });
  const QMenuBar* bar = table.menuBar();
  ASSERT_EQ(bar->actions().size(), 4);
  EXPECT_EQ(bar->actions()[1]->text(), "<&Options>");
  const QList<QAction*> options = table.popup(1)->actions();
  EXPECT_EQ(options[5]->text(), "<&Plot>");
  EXPECT_EQ(options[7]->text(), "<&Wave>");
  EXPECT_EQ(table.action(cmd::kPrintGraph)->text(), "<P&rint Graph\tCtrl+P>");
  EXPECT_EQ(table.action(cmd::kPlotRange)->text(), "<&Range>");
  // Not in the menu or not in the list: left alone.
  EXPECT_EQ(table.action(cmd::kHideGraph)->text(), "&Hide Graph\tCtrl+F3");
  EXPECT_TRUE(table.action(cmd::kStopPlaying)->text().isEmpty());
  // Every item of the menu was looked up exactly once.
  int items = 0;
  for (const CommandSpec& command : CCommandTable::commands())
    if (command.menuText && command.id != cmd::kHideGraph) ++items;
  EXPECT_EQ(asked.size(), static_cast<std::size_t>(4 + 2 + items));
  std::sort(asked.begin(), asked.end());
  EXPECT_EQ(std::adjacent_find(asked.begin(), asked.end()), asked.end());
}

}  // namespace
}  // namespace sonalyx::ui
