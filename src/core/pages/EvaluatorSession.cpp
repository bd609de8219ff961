#include "core/pages/EvaluatorSession.h"

#include <utility>

#include "core/engines/Evaluator.h"
#include "core/pages/Assignment.h"
#include "core/pages/VariableSubstitution.h"
#include "core/utility/NumberFormat.h"

namespace sonalyx {

EvaluatorSession::EvaluatorSession(Translator translator, Evaluate evaluate, std::size_t listCapacity)
    : m_translator(std::move(translator)),
      m_evaluate(std::move(evaluate)),
      m_listCapacity(listCapacity < 1 ? 1 : listCapacity) {}

std::string EvaluatorSession::translate(const char* text) const {
  return translateWith(m_translator, text);
}

bool EvaluatorSession::evaluate(const std::string& expression, double& value, std::string& shownError) const {
  if (!m_evaluate) {
    EvaluationError error;
    if (Calculate(expression, value, error)) return true;
    shownError = invalidEntryText(error, m_translator);
    return false;
  }
  std::string reason;
  if (m_evaluate(expression, value, reason)) return true;
  shownError = translate(kInvalidEntry);
  if (!reason.empty()) shownError += ' ' + reason;
  return false;
}

void EvaluatorSession::insertIntoList(std::string entry) {
  if (m_resultsList.size() >= m_listCapacity) m_resultsList.pop_back();
  m_resultsList.push_front(std::move(entry));
}

EvaluatorEntry EvaluatorSession::enter(const std::string& text) {
  EvaluatorEntry shown;
  if (text.empty()) return shown;
  shown.handled = true;
  shown.clearExpression = true;

  if (auto assignment = parseEvaluatorAssignment(text)) {
    shown.resultText = assignment->value;
    m_variables[assignment->name] = std::move(assignment->value);
    m_history.add(text);
    shown.listEntry = text;
    insertIntoList(text);
    // Heard like any result: silence after Enter would leave the user guessing.
    shown.speech = translate(kResultLabel) + shown.resultText;
    return shown;
  }

  // Looking a variable up shows its text as stored, unevaluated; it is no new
  // entry for the history.
  std::string entry = text;
  if (const auto stored = m_variables.find(std::string(trimBlanks(text))); stored != m_variables.end()) {
    entry = stored->first;
    shown.resultText = stored->second;
  } else {
    m_history.add(text);
    std::string expression = text;
    double value = 0.0;
    std::string error;
    if (!substituteVariables(expression, m_variables)) {
      shown.resultText = translate(kCircularVariables);
    } else if (evaluate(expression, value, error)) {
      shown.resultText = numberForPerson(formatNumber(value, "%.14g"), m_translator);
    } else {
      shown.resultText = error;
    }
  }
  shown.listEntry = entry + " = " + shown.resultText;
  insertIntoList(*shown.listEntry);
  shown.speech = translate(kResultLabel) + shown.resultText;
  return shown;
}

std::optional<EvaluatorRecall> EvaluatorSession::recalled(std::optional<std::string> text) const {
  if (!text) return std::nullopt;
  EvaluatorRecall recall;
  recall.speech = translate(kExpressionLabel) + *text;
  recall.expressionText = std::move(*text);
  return recall;
}

std::optional<EvaluatorRecall> EvaluatorSession::recallUp() {
  return recalled(m_history.up());
}

std::optional<EvaluatorRecall> EvaluatorSession::recallDown() {
  return recalled(m_history.down());
}

}  // namespace sonalyx
