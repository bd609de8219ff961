#include <gtest/gtest.h>

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "ui/UiTestSupport.h"
#include "ui/app/CAccessibilityHooks.h"
#include "ui/controls/CTTSComboBox.h"
#include "ui/controls/CTTSEdit.h"
#include "ui/controls/VoicedText.h"
#include "ui/pages/GoldenVectors.h"
#include "ui/pages/calculator/CCalculatorPage.h"
#include "ui/sheet/CCalcSheet.h"

namespace sonalyx::ui {
namespace {

using Heard = std::vector<std::string>;
using test::ProgramUnderTest;

// How a user types each key of the golden files on the keyboard, and the name the
// key is spoken and found by. The characters of the shifted-key table come with
// Shift, as they must; the others as the test platform delivers them (the window
// system's keyboard map lets a shifted "(" match its accelerator too).
struct Typed {
  Qt::Key key;
  char text;
  Qt::KeyboardModifiers modifiers;
  const char* name;
};

const std::map<std::string, Typed>& keyboard() {
  static const std::map<std::string, Typed> keys = [] {
    std::map<std::string, Typed> table{
        {"+", {Qt::Key_Plus, '+', Qt::NoModifier, "+"}},
        {"-", {Qt::Key_Minus, '-', Qt::NoModifier, "minus"}},
        {"*", {Qt::Key_Asterisk, '*', Qt::NoModifier, "times"}},
        {"/", {Qt::Key_Slash, '/', Qt::NoModifier, "÷"}},
        {"=", {Qt::Key_Equal, '=', Qt::NoModifier, "="}},
        {"(", {Qt::Key_ParenLeft, '(', Qt::NoModifier, "("}},
        {")", {Qt::Key_ParenRight, ')', Qt::NoModifier, ")"}},
        {".", {Qt::Key_Period, '.', Qt::NoModifier, "."}},
        {"sin", {Qt::Key_S, 'S', Qt::ShiftModifier, "sin"}},
        {"cos", {Qt::Key_C, 'C', Qt::ShiftModifier, "cos"}},
        {"tan", {Qt::Key_T, 'T', Qt::ShiftModifier, "tan"}},
        {"e^x", {Qt::Key_X, 'X', Qt::ShiftModifier, "e to the x"}},
        {"ln", {Qt::Key_L, 'L', Qt::ShiftModifier, "ln"}},
        {"log", {Qt::Key_G, 'G', Qt::ShiftModifier, "log"}},
        {"x^2", {Qt::Key_Q, 'Q', Qt::ShiftModifier, "X²"}},
        {"x^3", {Qt::Key_U, 'U', Qt::ShiftModifier, "X³"}},
        {"x^y", {Qt::Key_AsciiCircum, '^', Qt::ShiftModifier, "x to the power y"}},
        {"sqrt", {Qt::Key_R, 'R', Qt::ShiftModifier, "square root"}},
        {"1/x", {Qt::Key_O, 'O', Qt::ShiftModifier, "one over x"}},
        {"n!", {Qt::Key_Exclam, '!', Qt::ShiftModifier, "n factorial"}},
        {"mod", {Qt::Key_NumberSign, '#', Qt::ShiftModifier, "mod"}},
        {"and", {Qt::Key_Ampersand, '&', Qt::ShiftModifier, "and"}},
        {"or", {Qt::Key_Bar, '|', Qt::ShiftModifier, "or"}},
        {"xor", {Qt::Key_Underscore, '_', Qt::ShiftModifier, "xor"}},
        {"not", {Qt::Key_AsciiTilde, '~', Qt::ShiftModifier, "not"}},
        {"lsh", {Qt::Key_Less, '<', Qt::ShiftModifier, "left shift"}},
        {"rsh", {Qt::Key_Greater, '>', Qt::ShiftModifier, "right shift"}},
        {"+/-", {Qt::Key_M, 'M', Qt::ShiftModifier, "plus minus"}},
        {"pi", {Qt::Key_P, 'P', Qt::ShiftModifier, "pie"}},
        {"EE", {Qt::Key_E, 'E', Qt::ShiftModifier, "EE"}},
        {"F-E", {Qt::Key_N, 0, Qt::ControlModifier, "F-E"}},
        {"<-", {Qt::Key_Backspace, 0, Qt::NoModifier, "backspace"}},
        {"CE", {Qt::Key_Delete, 0, Qt::NoModifier, "CE"}},
        {"C", {Qt::Key_Delete, 0, Qt::ControlModifier, "C"}},
        {"MS", {Qt::Key_C, 0, Qt::ControlModifier, "memory store"}},
        {"M+", {Qt::Key_A, 0, Qt::ControlModifier, "memory plus"}},
        {"MR", {Qt::Key_V, 0, Qt::ControlModifier, "memory recall"}},
        {"MC", {Qt::Key_Delete, 0, Qt::ControlModifier | Qt::ShiftModifier, "memory clear"}},
        {"inv", {Qt::Key_I, 0, Qt::ControlModifier, "Inverse check box: "}},
        {"hyp", {Qt::Key_H, 0, Qt::ControlModifier, "Hyperbolic check box: "}},
    };
    static const char* digits[] = {"0", "1", "2", "3", "4", "5", "6", "7", "8", "9"};
    for (int d = 0; d < 10; ++d)
      table[digits[d]] = {Qt::Key(Qt::Key_0 + d), char('0' + d), Qt::NoModifier, digits[d]};
    static const char* letters[] = {"A", "B", "C", "D", "E", "F"};
    for (int l = 0; l < 6; ++l)
      table[std::string(1, char('a' + l))] = {Qt::Key(Qt::Key_A + l), char('a' + l), Qt::NoModifier,
                                              letters[l]};
    return table;
  }();
  return keys;
}

// The base and angle words of the golden files: the selector and its item.
struct Mode {
  bool base;
  int index;
};
const std::map<std::string, Mode> kModes{{"hex", {true, 0}},  {"dec", {true, 1}},  {"oct", {true, 2}},
                                         {"bin", {true, 3}},  {"deg", {false, 0}}, {"rad", {false, 1}},
                                         {"grad", {false, 2}}};

bool isErrorText(const std::string& display) {
  return display == "Cannot divide by zero" || display == "Result is undefined" ||
         display == "Invalid input" || display == "Overflow";
}

QPushButton* keyNamed(const QWidget& page, const QString& name) {
  for (QPushButton* button : page.findChildren<QPushButton*>())
    if (button->accessibleName() == name) return button;
  return nullptr;
}

void type(const Typed& typed) {
  QWidget* target = QApplication::focusWidget();
  if (typed.text)
    QTest::keyClick(target, typed.text, typed.modifiers);
  else
    QTest::keyClick(target, typed.key, typed.modifiers);
  QApplication::processEvents();
}

// Moves the selector to an item with the arrow keys, as a user does.
void choose(QComboBox* selector, int index) {
  selector->setFocus(Qt::TabFocusReason);
  while (selector->currentIndex() != index) {
    QTest::keyClick(selector, selector->currentIndex() < index ? Qt::Key_Down : Qt::Key_Up);
    QApplication::processEvents();
  }
}

class CalculatorPage : public ::testing::Test {
 protected:
  CalculatorPage()
      : m_program([](const SettingsStore& store) {
          store.SetTtsOn(true);
          store.SetSfxOn(false);
        }) {}
  void SetUp() override { ASSERT_TRUE(m_program.started()); }

  // A new page of its own, in front, with the focus on its display.
  std::unique_ptr<CCalculatorPage> freshPage() {
    auto page = std::make_unique<CCalculatorPage>(QStringLiteral("Calculator"));
    // A window of its own, voiced as the program's are.
    CAccessibilityHooks::markSelfVoiced(page.get());
    page->show();
    QApplication::setActiveWindow(page.get());
    page->display()->setFocus(Qt::OtherFocusReason);
    QApplication::processEvents();
    m_heard.mark();
    return page;
  }

  ProgramUnderTest m_program;
  test::Heard m_heard;
};

// Every command of the golden file typed on the keyboard into a fresh page: the
// display after each key is the command-line tool's, and what the page says
// follows the key: its name (nothing for a key the base lacks), with the display
// after "=", memory recall and any error; a mode's announcement.
TEST_F(CalculatorPage, TypesTheGoldenKeySequencesAndSaysEachKey) {
  const auto commands = test::readGolden("calc.golden", "calc");
  ASSERT_GT(commands.size(), 30u);
  for (const auto& command : commands) {
    const bool trace = !command.args.empty() && command.args.front() == "--trace";
    const std::vector<std::string> words(command.args.begin() + (trace ? 1 : 0), command.args.end());
    ASSERT_EQ(command.output.size(), trace ? words.size() : 1u) << "line " << command.line;
    auto page = freshPage();
    for (std::size_t i = 0; i < words.size(); ++i) {
      const std::string& word = words[i];
      const std::string where =
          "line " + std::to_string(command.line) + ", key " + std::to_string(i + 1) + " " + word;
      const std::vector<std::string> columns = [&] {
        std::vector<std::string> parts;
        std::string rest = command.output[trace ? i : 0];
        for (std::size_t tab; (tab = rest.find('\t')) != std::string::npos; rest.erase(0, tab + 1))
          parts.push_back(rest.substr(0, tab));
        parts.push_back(rest);
        return parts;
      }();
      if (const auto mode = kModes.find(word); mode != kModes.end()) {
        choose(mode->second.base ? page->baseSelector() : page->angleSelector(), mode->second.index);
        const Heard heard = m_heard.take();
        if (trace) {
          ASSERT_EQ(columns.size(), 3u) << where;
          ASSERT_FALSE(heard.empty()) << where;
          EXPECT_EQ(heard.back(), columns[2]) << where;
        }
      } else {
        const auto typed = keyboard().find(word);
        ASSERT_NE(typed, keyboard().end()) << where;
        const QPushButton* button = keyNamed(*page, QString::fromUtf8(typed->second.name));
        const bool silent = button && !button->isEnabled();
        type(typed->second);
        const Heard heard = m_heard.take();
        if (trace) {
          const std::string display = columns[1];
          const std::string name = typed->second.name;
          if (silent) {
            EXPECT_EQ(heard, Heard{}) << where;
          } else if (word == "=" || word == "MR" || isErrorText(display)) {
            const QString said =
                QString::fromStdString(name + ", ") + voiced::expandSymbols(QString::fromStdString(display));
            EXPECT_EQ(heard, Heard{said.toStdString()}) << where;
          } else {
            ASSERT_EQ(heard.size(), 1u) << where;
            EXPECT_EQ(heard[0].rfind(name, 0), 0u) << where << ": " << heard[0];
          }
        }
      }
      if (trace) {
        EXPECT_EQ(page->display()->text().toStdString(), columns[1]) << where;
      }
    }
    if (!trace) {
      EXPECT_EQ(page->display()->text().toStdString(), command.output[0]) << "line " << command.line;
    }
  }
}

TEST_F(CalculatorPage, KeysFollowTheBaseMemoryAndAutoReturn) {
  auto page = freshPage();
  const auto press = [](const char* word) { type(keyboard().at(word)); };
  const auto enabled = [&page](const char* name) {
    return keyNamed(*page, QString::fromUtf8(name))->isEnabled();
  };
  const struct {
    int base;
    bool a, f, point, ee, two, eight;
  } bases[] = {{0, true, true, false, false, true, true},
               {1, false, false, true, true, true, true},
               {2, false, false, false, false, true, false},
               {3, false, false, false, false, false, false}};
  for (const auto& c : bases) {
    choose(page->baseSelector(), c.base);
    EXPECT_EQ(enabled("A"), c.a) << c.base;
    EXPECT_EQ(enabled("F"), c.f) << c.base;
    EXPECT_EQ(enabled("."), c.point) << c.base;
    EXPECT_EQ(enabled("EE"), c.ee) << c.base;
    EXPECT_EQ(enabled("2"), c.two) << c.base;
    EXPECT_EQ(enabled("8"), c.eight) << c.base;
  }
  choose(page->baseSelector(), 1);
  m_heard.mark();

  // The memory indicator and the two keys that say the display and the memory.
  const struct {
    const char* word;
    Qt::Key key;  // Ctrl+B or Ctrl+T when not a word
    const char* indicator;
    Heard heard;
  } steps[] = {
      {"5", Qt::Key_unknown, "", {"5"}},
      {nullptr, Qt::Key_T, "", {"Memory is empty."}},
      {"MS", Qt::Key_unknown, "M", {"memory store"}},
      {"C", Qt::Key_unknown, "M", {"C"}},
      {nullptr, Qt::Key_B, "M", {"Display. 0"}},
      {nullptr, Qt::Key_T, "M", {"Memory: 5"}},
      {"MR", Qt::Key_unknown, "M", {"memory recall, 5"}},
      {"+/-", Qt::Key_unknown, "M", {"plus minus"}},
      {"M+", Qt::Key_unknown, "M", {"memory plus"}},
      {nullptr, Qt::Key_T, "M", {"Memory: 0"}},
      {"MC", Qt::Key_unknown, "", {"memory clear"}},
  };
  for (const auto& step : steps) {
    if (step.word)
      press(step.word);
    else
      type({step.key, 0, Qt::ControlModifier, ""});
    EXPECT_EQ(page->memoryIndicator()->text(), step.indicator) << (step.word ? step.word : "Ctrl");
    EXPECT_EQ(m_heard.take(), step.heard) << (step.word ? step.word : "Ctrl");
  }

  // Without auto return Enter presses the key that has the focus; with it, every
  // key sends the focus back to "=", where Enter and Space are "=".
  keyNamed(*page, QStringLiteral("square root"))->setFocus(Qt::OtherFocusReason);
  press("C");
  press("1");
  press("6");
  keyNamed(*page, QStringLiteral("square root"))->setFocus(Qt::OtherFocusReason);
  type({Qt::Key_Return, 0, Qt::NoModifier, ""});
  EXPECT_EQ(page->display()->text(), "4");
  m_program.settings().SetIsAutoReturn(true);
  press("9");
  EXPECT_EQ(QApplication::focusWidget(), keyNamed(*page, QStringLiteral("=")));
  press("sqrt");
  EXPECT_EQ(QApplication::focusWidget(), keyNamed(*page, QStringLiteral("=")));
  press("+");
  press("1");
  type({Qt::Key_Return, 0, Qt::NoModifier, ""});
  EXPECT_EQ(page->display()->text(), "4");
  m_program.settings().SetIsAutoReturn(false);
}

// In the program: the keys work from the tabs as soon as the Calculator tab is in
// front, each with its earcon first when sound effects are on.
TEST(CalculatorInTheProgram, TypedFromTheTabsWithEarcons) {
  test::Heard heard;
  ProgramUnderTest program([](const SettingsStore& store) {
    store.SetTtsOn(true);
    store.SetSfxOn(true);
  });
  ASSERT_TRUE(program.started());
  auto* page = dynamic_cast<CCalculatorPage*>(program.child()->sheet()->page(CCalcSheet::kCalculator));
  ASSERT_NE(page, nullptr);
  QTest::qWait(60);
  heard.mark();
  const struct {
    const char* word;
    Heard heard;
  } keys[] = {{"1", {"earcon 4", "1"}}, {"2", {"earcon 4", "2"}}, {"+", {"earcon 4", "+"}},
              {"3", {"earcon 4", "3"}}, {"0", {"earcon 4", "0"}}, {"=", {"earcon 4", "=, 42"}}};
  for (const auto& key : keys) {
    type(keyboard().at(key.word));
    // The output starts an earcon at its next buffer.
    QTest::qWait(60);
    EXPECT_EQ(heard.take(), key.heard) << key.word;
  }
  EXPECT_EQ(page->display()->text(), "42");
  EXPECT_EQ(QApplication::focusWidget(), keyNamed(*page, QStringLiteral("=")));
  // Ctrl+C stays the calculator's here; the frame copies only matrices.
  type(keyboard().at("MS"));
  EXPECT_EQ(page->memoryIndicator()->text(), "M");
}

}  // namespace
}  // namespace sonalyx::ui
