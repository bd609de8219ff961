#include <optional>
#include <string>

#include "cli/CliCommands.h"
#include "cli/CliError.h"
#include "cli/CliLanguage.h"
#include "core/pages/EvaluatorSession.h"
#include "core/pages/MatrixSession.h"

namespace sonalyx::cli {

namespace {

// The words that press the arrow keys instead of typing a line; neither is an
// expression either page could read.
constexpr const char* kUp = "--up";
constexpr const char* kDown = "--down";

void requireLines(const Arguments& args, const char* command) {
  if (args.empty()) throw CliError::usage(std::string(command) + ": no lines given");
}

// An empty text would be an invisible trailing blank in the output.
std::string visible(const std::string& text) {
  return text.empty() ? "(empty)" : text;
}

// What the expression box shows after an arrow key, or that nothing happened.
void printRecall(const std::string& line, const std::optional<std::string>& shown, const char* box,
                 std::ostream& out) {
  out << "> [" << (line == kUp ? "Up" : "Down") << "]\n";
  if (shown)
    out << box << ": " << visible(*shown) << '\n';
  else
    out << "(nothing happens)\n";
}

}  // namespace

int runEvaluateCommand(const Arguments& args, std::ostream& out) {
  requireLines(args, "evaluate");
  EvaluatorSession session(cliTranslator());
  for (const std::string& line : args) {
    if (line == kUp || line == kDown) {
      const auto recall = line == kUp ? session.recallUp() : session.recallDown();
      printRecall(line, recall ? std::optional(recall->expressionText) : std::nullopt, "expression", out);
      continue;
    }
    out << "> " << visible(line) << '\n';
    const EvaluatorEntry shown = session.enter(line);
    if (!shown.handled) {
      out << "(nothing happens)\n";
      continue;
    }
    out << "result: " << shown.resultText << '\n';
    if (shown.listEntry) out << "list: " << *shown.listEntry << '\n';
    if (!shown.speech) out << "(silent)\n";
  }
  return 0;
}

int runMatrixCommand(const Arguments& args, std::ostream& out) {
  requireLines(args, "matrix");
  MatrixSession session(cliTranslator());
  for (const std::string& line : args) {
    if (line == kUp || line == kDown) {
      const auto recall = line == kUp ? session.recallUp() : session.recallDown();
      printRecall(line, recall ? std::optional(recall->editText) : std::nullopt, "edit", out);
      continue;
    }
    out << "> " << visible(line) << '\n';
    const MatrixEntry shown = session.enter(line);
    if (!shown.handled) {
      out << "(nothing happens)\n";
      continue;
    }
    out << "edit: " << shown.editText << '\n';
    if (!shown.succeeded) out << "reason: " << session.lastError() << '\n';
    if (!shown.speech) out << "(silent)\n";
  }
  return 0;
}

}  // namespace sonalyx::cli
