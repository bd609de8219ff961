#include <optional>
#include <string>

#include "cli/CliCommands.h"
#include "cli/CliError.h"
#include "cli/CliLanguage.h"
#include "core/files/DataSetFile.h"
#include "core/files/DataSetTextError.h"
#include "core/files/FileError.h"
#include "core/math/DataSet.h"
#include "core/math/FitExpression.h"
#include "core/math/FitModel.h"
#include "core/math/RegressionFit.h"
#include "core/utility/DecimalText.h"

namespace sonalyx::cli {

namespace {

DataSet readSet(const std::string& path) {
  DataSet set;
  try {
    set.assign(readDataSetFile(path));
  } catch (const FileError& e) {
    throw CliError::user(translateWith(cliTranslator(), e.what()));
  } catch (const DataSetTextError& e) {
    throw CliError::user(e.message(cliTranslator()));
  }
  // The Data page's own refusal, before any fit is tried.
  if (!set.hasData())
    throw CliError::user(translateWith(cliTranslator(), "No data plotted -- nothing to calculate."));
  // The fits need two points; the page would show an empty list, which says nothing.
  if (set.count() < 2) throw CliError::user(translateWith(cliTranslator(), "Not enough points for fit."));
  return set;
}

int printFit(int model, const DataSet& set, std::optional<double> period, bool expression,
             std::ostream& out) {
  // Without a period the dialog's "Use Default" is taken: the estimate stands.
  const SineStartChooser chooser = [period](double estimate) { return period.value_or(estimate); };
  const FitResult result = runFit(model, set, chooser, cliTranslator());
  for (const std::string& line : result.lines) out << line << '\n';
  if (expression && !result.coefficients.empty())
    out << "f(x) = " << fitExpression(model, result.coefficients) << '\n';
  return 0;
}

}  // namespace

// stats FILE
int runStatsCommand(const Arguments& args, std::ostream& out) {
  if (args.size() != 1) throw CliError::usage("stats needs one data-set file");
  return printFit(kStatistics, readSet(args[0]), std::nullopt, false, out);
}

// fit MODEL FILE [--period B] [--expression]
int runFitCommand(const Arguments& args, std::ostream& out) {
  std::vector<std::string> words;
  std::optional<double> period;
  bool expression = false;
  for (std::size_t i = 0; i < args.size(); ++i) {
    if (args[i] == "--period") {
      if (i + 1 >= args.size()) throw CliError::usage("--period needs a number");
      std::size_t used = 0;
      const std::string& text = args[++i];
      period = decimalToDouble(text, &used);
      if (text.empty() || used != text.size())
        throw CliError::usage("--period needs a number, not '" + text + "'");
    } else if (args[i] == "--expression") {
      expression = true;
    } else {
      words.push_back(args[i]);
    }
  }
  if (words.size() != 2) throw CliError::usage("fit needs a model and one data-set file");

  std::optional<int> model = fitModelFromName(words[0]);
  if (!model && !words[0].empty() && words[0].find_first_not_of("0123456789") == std::string::npos &&
      words[0].size() <= 2) {
    const int number = std::stoi(words[0]);
    if (number < kFitModelCount) model = number;
  }
  if (!model) {
    std::string names;
    for (int m = 0; m < kFitModelCount; ++m) names += " " + std::string(fitModelName(m));
    throw CliError::usage("unknown model '" + words[0] + "'; the models are 0 to " +
                          std::to_string(kFitModelCount - 1) + " or:" + names);
  }
  return printFit(*model, readSet(words[1]), period, expression, out);
}

}  // namespace sonalyx::cli
