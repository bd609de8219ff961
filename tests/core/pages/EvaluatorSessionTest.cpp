#include "core/pages/EvaluatorSession.h"

#include <gtest/gtest.h>

#include <deque>
#include <string>
#include <vector>

namespace sonalyx {
namespace {

std::string toFrench(const std::string& text) {
  if (text == "Invalid entry.") return "Entrée invalide.";
  if (text == "Result : ") return "Résultat : ";
  if (text == "Expression : ") return "Expression : ";
  if (text == "Unexpected \"%s\".") return "« %s » inattendu.";
  if (text == "Unknown name %s.") return "Nom inconnu %s.";
  return "?" + text;
}

TEST(EvaluatorSession, EnterShowsListsAndSpeaks) {
  struct Step {
    const char* typed;
    const char* result;
    const char* listEntry;  // nullptr: nothing inserted
    bool spoken;
  };
  // One session, in order: later lines see the variables of earlier ones.
  const Step steps[] = {
      {"a = 2+3", "2+3", "a = 2+3", true},
      {"a", "2+3", "a = 2+3", true},
      {"a ", "2+3", "a = 2+3", true},
      {"a*2", "10", "a*2 = 10", true},
      {"1/3", "0.33333333333333", "1/3 = 0.33333333333333", true},
      {"= 5", "Entrée invalide. « = » inattendu.", "= 5 = Entrée invalide. « = » inattendu.", true},
      {"5 =", "Entrée invalide. « = » inattendu.", "5 = = Entrée invalide. « = » inattendu.", true},
      {"2a = 3", "Entrée invalide. « a » inattendu.", "2a = 3 = Entrée invalide. « a » inattendu.", true},
      {"2+*3", "Entrée invalide. « * » inattendu.", "2+*3 = Entrée invalide. « * » inattendu.", true},
      {"a = 7", "7", "a = 7", true},
      {"b = a*a", "a*a", "b = a*a", true},
      {"b+1", "50", "b+1 = 50", true},
      {"ab", "Entrée invalide. Nom inconnu ab.", "ab = Entrée invalide. Nom inconnu ab.", true},
      {"sin(0)+a-e^0", "6", "sin(0)+a-e^0 = 6", true},
      {"e = 10", "10", "e = 10", true},
      {"1e3+e", "1010", "1e3+e = 1010", true},
      {"c = c+1", "c+1", "c = c+1", true},
      {"c*2", "?A variable refers to itself.", "c*2 = ?A variable refers to itself.", true},
      {"sqrt(-1)", "Error", "sqrt(-1) = Error", true},
  };
  EvaluatorSession session(toFrench);
  std::deque<std::string> expectedList;
  for (const auto& step : steps) {
    const EvaluatorEntry shown = session.enter(step.typed);
    EXPECT_TRUE(shown.handled) << step.typed;
    EXPECT_TRUE(shown.clearExpression) << step.typed;
    EXPECT_EQ(shown.resultText, step.result) << step.typed;
    ASSERT_TRUE(shown.listEntry.has_value()) << step.typed;
    EXPECT_EQ(*shown.listEntry, step.listEntry) << step.typed;
    if (step.spoken) {
      EXPECT_EQ(shown.speech, "Résultat : " + std::string(step.result)) << step.typed;
    } else {
      EXPECT_FALSE(shown.speech.has_value()) << step.typed;
    }
    expectedList.push_front(step.listEntry);
  }
  EXPECT_EQ(session.resultsList(), expectedList);
  EXPECT_EQ(session.variables().at("a"), "7");

  const EvaluatorEntry nothing = session.enter("");
  EXPECT_FALSE(nothing.handled);
  EXPECT_FALSE(nothing.listEntry.has_value());
  EXPECT_EQ(session.resultsList().size(), expectedList.size());
}

TEST(EvaluatorSession, HistoryHoldsEvaluationsAndAssignmentsButNotLookups) {
  std::vector<std::string> seen;
  EvaluatorSession session({}, [&seen](const std::string& text, double& value, std::string& error) {
    seen.push_back(text);
    if (text == "2") {
      value = 2.0;
      return true;
    }
    error = "overflow";
    return false;
  });
  EXPECT_FALSE(session.recallUp().has_value());
  session.enter("x = 4");
  session.enter("x");
  EXPECT_EQ(session.enter("2").resultText, "2");
  // The evaluator's reason follows "Invalid entry.".
  EXPECT_EQ(session.enter("x^x").resultText, "Invalid entry. overflow");
  EXPECT_EQ(seen, (std::vector<std::string>{"2", "(4)^(4)"}));
  EXPECT_EQ(session.history().entries(), (std::vector<std::string>{"x = 4", "2", "x^x"}));

  const auto up = session.recallUp();
  ASSERT_TRUE(up.has_value());
  EXPECT_EQ(up->expressionText, "x^x");
  EXPECT_EQ(up->speech, "Expression : x^x");
  const auto down = session.recallDown();
  ASSERT_TRUE(down.has_value());
  EXPECT_EQ(down->expressionText, "x^x");
}

TEST(EvaluatorSession, AFullListLosesItsOldestLine) {
  EvaluatorSession session({}, {}, 2);
  for (const char* typed : {"1", "2", "3"}) session.enter(typed);
  EXPECT_EQ(session.resultsList(), (std::deque<std::string>{"3 = 3", "2 = 2"}));
}

}  // namespace
}  // namespace sonalyx
