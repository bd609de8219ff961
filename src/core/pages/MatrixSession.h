#pragma once

#include <map>
#include <optional>
#include <string>

#include "core/engines/MatrixEngine.h"
#include "core/pages/EntryHistory.h"
#include "core/speech/TranslationMarker.h"
#include "core/speech/Translator.h"

namespace sonalyx {

// What the Matrix page does after Enter in its expression edit, which shows both
// what is typed and each result.
struct MatrixEntry {
  // False for an empty text: nothing changes and nothing is said.
  bool handled = false;
  std::string editText;
  bool succeeded = false;
  // Select the whole edit, so that typing replaces the result or the error.
  bool selectAll = false;
  // Paint the display window again from the engine's last result.
  bool redraw = false;
  // The edit's spoken label and text, before symbols are read as words; the error
  // message alone when an assignment's value cannot be evaluated (the edit then
  // keeps the value, to be mended).
  std::optional<std::string> speech;
};

// What the edit shows after Up or Down.
struct MatrixRecall {
  std::string editText;
  std::string speech;
};

// The Matrix page without its window: ANS, assignments, variables, evaluation
// through the matrix engine, the last answer and the history.
class MatrixSession {
 public:
  static constexpr const char* kEditLabel = SLX_TR("Matrix Expression:");
  static constexpr const char* kInvalidExpression = SLX_TR("Error: Invalid matrix expression.");

  explicit MatrixSession(Translator translator = {});

  MatrixEntry enter(const std::string& text);
  // Nothing while the history is empty.
  std::optional<MatrixRecall> recallUp();
  std::optional<MatrixRecall> recallDown();

  const std::map<std::string, std::string>& variables() const { return m_variables; }
  // The text of the last successful result; empty before the first.
  const std::string& lastAnswer() const { return m_lastAnswer; }
  const EntryHistory& history() const { return m_history; }
  // Holds the last result for the display window.
  const MatrixEngine& engine() const { return m_engine; }
  // Why the last evaluation failed, for the curious; the page itself only says
  // "Error: Invalid matrix expression.". Empty after a success.
  const std::string& lastError() const { return m_lastError; }

 private:
  std::string speechFor(const std::string& editText) const;
  std::optional<MatrixRecall> recalled(std::optional<std::string> text) const;
  // Blanks removed, ANS already replaced; false when the variables refer to each other.
  bool evaluate(std::string expression, std::string& result);

  Translator m_translator;
  MatrixEngine m_engine;
  std::map<std::string, std::string> m_variables;
  std::string m_lastAnswer;
  std::string m_lastError;
  EntryHistory m_history;
};

}  // namespace sonalyx
