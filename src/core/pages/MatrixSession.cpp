#include "core/pages/MatrixSession.h"

#include <algorithm>
#include <utility>

#include "core/pages/Assignment.h"
#include "core/pages/VariableSubstitution.h"

namespace sonalyx {

namespace {

// "ANS" wins over "ans"; "Ans" is nobody's. Only whole names are replaced, so
// "trans" keeps its "ans". A negative number goes in brackets so that ANS^2
// squares all of it.
std::string replaceAnswer(std::string text, const std::string& answer) {
  if (answer.empty()) return text;
  const std::string value = answer.front() == '-' ? "(" + answer + ")" : answer;
  if (!replaceWholeName(text, "ANS", value)) replaceWholeName(text, "ans", value);
  return text;
}

}  // namespace

MatrixSession::MatrixSession(Translator translator) : m_translator(std::move(translator)) {}

std::string MatrixSession::speechFor(const std::string& editText) const {
  return translateWith(m_translator, kEditLabel) + editText;
}

bool MatrixSession::evaluate(std::string expression, std::string& result) {
  std::erase_if(expression, [](char c) { return c == ' ' || c == '\t'; });
  if (!substituteVariables(expression, m_variables)) {
    m_lastError = "a variable refers to itself";
    return false;
  }
  const bool evaluated = m_engine.Calculate(expression, result);
  m_lastError = m_engine.lastError();
  return evaluated;
}

MatrixEntry MatrixSession::enter(const std::string& typed) {
  MatrixEntry shown;
  if (typed.empty()) return shown;
  shown.handled = true;
  const std::string text = replaceAnswer(typed, m_lastAnswer);
  m_history.add(text);

  std::string result;
  if (auto assignment = parseMatrixAssignment(text)) {
    // The value is stored as typed and shown; its evaluation, with the other
    // variables put in, replaces it only when it succeeds.
    shown.editText = assignment->value;
    m_variables[assignment->name] = assignment->value;
    if (!evaluate(assignment->value, result)) {
      // The value stays in the edit to be mended; the user hears why nothing came.
      shown.speech = translateWith(m_translator, kInvalidExpression);
      return shown;
    }
  } else if (!evaluate(text, result)) {
    shown.editText = translateWith(m_translator, kInvalidExpression);
    shown.selectAll = true;
    shown.redraw = true;
    shown.speech = speechFor(shown.editText);
    return shown;
  }
  shown.succeeded = true;
  shown.editText = result;
  shown.selectAll = true;
  shown.redraw = true;
  shown.speech = speechFor(result);
  m_lastAnswer = std::move(result);
  return shown;
}

std::optional<MatrixRecall> MatrixSession::recalled(std::optional<std::string> text) const {
  if (!text) return std::nullopt;
  MatrixRecall recall;
  recall.speech = speechFor(*text);
  recall.editText = std::move(*text);
  return recall;
}

std::optional<MatrixRecall> MatrixSession::recallUp() {
  return recalled(m_history.up());
}

std::optional<MatrixRecall> MatrixSession::recallDown() {
  return recalled(m_history.down());
}

}  // namespace sonalyx
