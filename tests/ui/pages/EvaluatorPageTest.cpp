#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "ui/UiTestSupport.h"
#include "ui/app/CAccessibilityHooks.h"
#include "ui/controls/CTTSEdit.h"
#include "ui/controls/CTTSListBox.h"
#include "ui/controls/VoicedText.h"
#include "ui/pages/GoldenVectors.h"
#include "ui/pages/evaluator/CEvaluatorPage.h"

namespace sonalyx::ui {
namespace {

using Heard = std::vector<std::string>;

std::string spoken(const std::string& text) {
  return voiced::expandSymbols(QString::fromStdString(text)).toStdString();
}

// What a golden line says after its prefix ("result: "), "(empty)" as nothing.
std::string valueAfter(const std::string& line, const std::string& prefix) {
  EXPECT_EQ(line.rfind(prefix, 0), 0u) << line;
  const std::string value = line.substr(std::min(prefix.size(), line.size()));
  return value == "(empty)" ? std::string() : value;
}

// Every golden session of the Evaluator typed into a fresh page: the result box,
// the line at the top of the list, the expression box after Up and Down, and the
// words said after each Enter and arrow.
TEST(EvaluatorPage, TypesTheGoldenLinesAndSaysEachResult) {
  test::ProgramUnderTest program([](const SettingsStore& store) { store.SetTtsOn(true); });
  ASSERT_TRUE(program.started());
  test::Heard heard;
  const auto commands = test::readGolden("evaluate.golden", "evaluate");
  ASSERT_GE(commands.size(), 5u);
  for (const auto& command : commands) {
    CEvaluatorPage page(QStringLiteral("Evaluator"));
    CAccessibilityHooks::markSelfVoiced(&page);
    page.show();
    QApplication::setActiveWindow(&page);
    CTTSEdit* box = page.expressionBox();
    box->setFocus(Qt::OtherFocusReason);
    std::size_t out = 0;
    const auto next = [&]() -> std::string {
      return out < command.output.size() ? command.output[out++] : "";
    };
    for (const std::string& line : command.args) {
      const std::string where = "line " + std::to_string(command.line) + ": " + line;
      if (line == "--up" || line == "--down") {
        EXPECT_EQ(next(), line == "--up" ? "> [Up]" : "> [Down]") << where;
        const QString before = box->text();
        heard.mark();
        QTest::keyClick(box, line == "--up" ? Qt::Key_Up : Qt::Key_Down);
        const std::string shown = next();
        if (shown == "(nothing happens)") {
          EXPECT_EQ(box->text(), before) << where;
          EXPECT_EQ(heard.take(), Heard{}) << where;
        } else {
          const std::string text = valueAfter(shown, "expression: ");
          EXPECT_EQ(box->text().toStdString(), text) << where;
          EXPECT_EQ(heard.take(), Heard{spoken("Expression : " + text)}) << where;
        }
        continue;
      }
      EXPECT_EQ(next(), "> " + (line.empty() ? std::string("(empty)") : line)) << where;
      box->clear();
      QTest::keyClicks(box, QString::fromStdString(line));
      heard.mark();
      QTest::keyClick(box, Qt::Key_Return);
      const std::string shown = next();
      if (shown == "(nothing happens)") {
        EXPECT_EQ(heard.take(), Heard{}) << where;
        continue;
      }
      const std::string result = valueAfter(shown, "result: ");
      EXPECT_EQ(page.resultBox()->text().toStdString(), result) << where;
      EXPECT_EQ(page.resultsList()->item(0)->text().toStdString(), valueAfter(next(), "list: ")) << where;
      const bool silent = out < command.output.size() && command.output[out] == "(silent)";
      if (silent) ++out;
      EXPECT_EQ(heard.take(), silent ? Heard{} : Heard{spoken("Result : " + result)}) << where;
      EXPECT_TRUE(box->text().isEmpty()) << where;
    }
    EXPECT_EQ(out, command.output.size()) << "line " << command.line;
  }
}

// The list reads back newest first, each line as "expression = result".
TEST(EvaluatorPage, TheListReadsBackNewestFirst) {
  test::ProgramUnderTest program([](const SettingsStore& store) { store.SetTtsOn(true); });
  ASSERT_TRUE(program.started());
  test::Heard heard;
  CEvaluatorPage page(QStringLiteral("Evaluator"));
  CAccessibilityHooks::markSelfVoiced(&page);
  page.show();
  QApplication::setActiveWindow(&page);
  page.expressionBox()->setFocus(Qt::OtherFocusReason);
  for (const char* line : {"a = 2+3", "a*2", "2+*3"}) {
    QTest::keyClicks(page.expressionBox(), QString::fromLatin1(line));
    QTest::keyClick(page.expressionBox(), Qt::Key_Return);
  }
  heard.mark();
  page.resultsList()->setFocus(Qt::TabFocusReason);
  QTest::keyClick(page.resultsList(), Qt::Key_Down);
  QTest::keyClick(page.resultsList(), Qt::Key_Down);
  EXPECT_EQ(heard.take(),
            (Heard{spoken("2+*3 = Invalid entry. Unexpected \"*\"."), "a times 2 = 10", "a = 2 plus 3"}));
}

}  // namespace
}  // namespace sonalyx::ui
