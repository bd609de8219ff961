#include <cmath>
#include <iostream>
#include <string>

#include "cli/CliCommands.h"
#include "cli/CliError.h"
#include "cli/CliLanguage.h"
#include "core/engines/Evaluator.h"
#include "core/utility/NumberFormat.h"

namespace sonalyx::cli {

// eval EXPRESSION: the words are joined with blanks, so the expression need not
// be quoted as long as the shell leaves its characters alone.
int runEvalCommand(const Arguments& args, std::ostream& out) {
  if (args.empty()) throw CliError::usage("eval: no expression given");
  std::string expression = args.front();
  for (std::size_t i = 1; i < args.size(); ++i) expression += ' ' + args[i];
  double result = 0.0;
  EvaluationError error;
  if (!Calculate(expression, result, error)) throw CliError::user(invalidEntryText(error, cliTranslator()));
  out << formatNumber(result, "%.14g") << '\n';
  // A value outside a function's domain is an answer, not a failure, but it says why.
  if (std::isnan(result)) {
    std::cerr << "Result is undefined\n";
  } else if (std::isinf(result)) {
    std::cerr << "Result is infinite\n";
  }
  return 0;
}

}  // namespace sonalyx::cli
