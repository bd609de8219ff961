#include "core/pages/MatrixSession.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace sonalyx {
namespace {

std::string toGerman(const std::string& text) {
  if (text == "Error: Invalid matrix expression.") return "Fehler: Ungültiger Matrixausdruck.";
  if (text == "Matrix Expression:") return "Matrixausdruck:";
  return "?" + text;
}

TEST(MatrixSession, EnterReplacesTheEditWithTheResult) {
  constexpr const char* kError = "Fehler: Ungültiger Matrixausdruck.";
  struct Step {
    const char* typed;
    const char* edit;
    bool succeeded;
    bool editSaid;        // else the error alone: the edit keeps the value to mend
    const char* history;  // the entry as kept for recall
  };
  // One session, in order.
  const Step steps[] = {
      {"ans*2", kError, false, true, "ans*2"},
      {"[1,2;3,4]", "[1,2;3,4]", true, true, "[1,2;3,4]"},
      {"ANS*2", "[2,4;6,8]", true, true, "[1,2;3,4]*2"},
      {"ans*2", "[4,8;12,16]", true, true, "[2,4;6,8]*2"},
      {"Ans*2", kError, false, true, "Ans*2"},
      // "ans" is replaced only where there is no "ANS".
      {"ANS+ans", kError, false, true, "[4,8;12,16]+ans"},
      {"trans([1,2;3,4])", "[1,3;2,4]", true, true, "trans([1,2;3,4])"},
      {"det([1,2;3,4])", "-2", true, true, "det([1,2;3,4])"},
      {"ans^2", "4", true, true, "(-2)^2"},
      {"A=[1,0;0,1]", "[1,0;0,1]", true, true, "A=[1,0;0,1]"},
      {"A*A + A", "[2,0;0,2]", true, true, "A*A + A"},
      {"B = A*3", "[3,0;0,3]", true, true, "B = A*3"},
      {"B^2", "[9,0;0,9]", true, true, "B^2"},
      {"AB", kError, false, true, "AB"},
      {"=5", kError, false, true, "=5"},  // no name: an expression, and a wrong one
      {"C = C*2", "C*2", false, false, "C = C*2"},
      {"D = [1,2]+[1;2]", "[1,2]+[1;2]", false, false, "D = [1,2]+[1;2]"},
      {"[1 , 2 ;\t3 , 4] - B", "[-2,2;3,1]", true, true, "[1 , 2 ;\t3 , 4] - B"},
  };
  MatrixSession session(toGerman);
  std::string lastAnswer;
  std::vector<std::string> history;
  for (const auto& step : steps) {
    const MatrixEntry shown = session.enter(step.typed);
    EXPECT_TRUE(shown.handled) << step.typed;
    EXPECT_EQ(shown.editText, step.edit) << step.typed;
    EXPECT_EQ(shown.succeeded, step.succeeded) << step.typed;
    if (step.editSaid) {
      EXPECT_EQ(shown.speech, "Matrixausdruck:" + std::string(step.edit)) << step.typed;
      EXPECT_TRUE(shown.selectAll && shown.redraw) << step.typed;
    } else {
      EXPECT_EQ(shown.speech, std::string(kError)) << step.typed;
      EXPECT_FALSE(shown.selectAll || shown.redraw) << step.typed;
    }
    if (step.succeeded) lastAnswer = step.edit;
    EXPECT_EQ(session.lastAnswer(), lastAnswer) << step.typed;
    EXPECT_EQ(session.lastError().empty(), step.succeeded) << step.typed << ": " << session.lastError();
    history.push_back(step.history);
  }
  EXPECT_EQ(session.history().entries(), history);
  EXPECT_EQ(session.variables().count(""), 0u);
  EXPECT_EQ(session.variables().at("B"), "A*3");
  EXPECT_EQ(session.variables().at("D"), "[1,2]+[1;2]");
  // The display shows the last success.
  ASSERT_TRUE(session.engine().lastResult().has_value());
  EXPECT_EQ(session.engine().lastResult()->matrix(1, 0), 3.0);

  EXPECT_FALSE(session.enter("").handled);
  const auto up = session.recallUp();
  ASSERT_TRUE(up.has_value());
  EXPECT_EQ(up->editText, history.back());
  EXPECT_EQ(up->speech, "Matrixausdruck:" + history.back());
}

}  // namespace
}  // namespace sonalyx
