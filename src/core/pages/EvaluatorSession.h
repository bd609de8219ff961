#pragma once

#include <cstddef>
#include <deque>
#include <functional>
#include <map>
#include <optional>
#include <string>

#include "core/pages/EntryHistory.h"
#include "core/speech/TranslationMarker.h"
#include "core/speech/Translator.h"

namespace sonalyx {

// What the Evaluator page shows after Enter in its expression box.
struct EvaluatorEntry {
  // False for an empty text: nothing changes and nothing is said.
  bool handled = false;
  std::string resultText;
  // The line inserted at the top of the results list, if any.
  std::optional<std::string> listEntry;
  bool clearExpression = false;
  // The result box's spoken label and text, before symbols are read as words;
  // nothing for an assignment, which the page takes silently.
  std::optional<std::string> speech;
};

// What the expression box shows after Up or Down.
struct EvaluatorRecall {
  std::string expressionText;
  // The expression box's spoken label and text.
  std::string speech;
};

// The Evaluator page without its window: assignments (name = expression), the
// variables, evaluation, the results list (newest first) and the history.
class EvaluatorSession {
 public:
  using Evaluate = std::function<bool(const std::string&, double&, std::string&)>;

  static constexpr const char* kExpressionLabel = SLX_TR("Expression : ");
  static constexpr const char* kResultLabel = SLX_TR("Result : ");
  static constexpr const char* kInvalidEntry = SLX_TR("Invalid entry.");
  static constexpr const char* kCircularVariables = SLX_TR("A variable refers to itself.");
  // A list box holds this many lines; the oldest goes when it is full.
  static constexpr std::size_t kListCapacity = 32767;

  // `evaluate` defaults to the program's expression evaluator. A failed evaluation
  // shows "Invalid entry." and the evaluator's reason.
  explicit EvaluatorSession(Translator translator = {}, Evaluate evaluate = {},
                            std::size_t listCapacity = kListCapacity);

  EvaluatorEntry enter(const std::string& text);
  // Nothing while the history is empty.
  std::optional<EvaluatorRecall> recallUp();
  std::optional<EvaluatorRecall> recallDown();

  const std::map<std::string, std::string>& variables() const { return m_variables; }
  // Newest first.
  const std::deque<std::string>& resultsList() const { return m_resultsList; }
  const EntryHistory& history() const { return m_history; }

 private:
  std::string translate(const char* text) const;
  bool evaluate(const std::string& expression, double& value, std::string& shownError) const;
  void insertIntoList(std::string entry);
  std::optional<EvaluatorRecall> recalled(std::optional<std::string> text) const;

  Translator m_translator;
  Evaluate m_evaluate;
  std::size_t m_listCapacity;
  std::map<std::string, std::string> m_variables;
  std::deque<std::string> m_resultsList;
  EntryHistory m_history;
};

}  // namespace sonalyx
