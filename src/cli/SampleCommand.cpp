#include <charconv>
#include <cstdint>
#include <string>

#include "cli/CliCommands.h"
#include "cli/CliError.h"
#include "cli/CliLanguage.h"
#include "cli/SamplingDomain.h"
#include "core/files/DataSetFile.h"
#include "core/math/DataSet.h"
#include "core/math/FunctionSampler.h"
#include "core/utility/DecimalText.h"
#include "core/utility/NumberFormat.h"

namespace sonalyx::cli {

namespace {

double numberOption(const std::string& option, const std::string& text) {
  std::size_t used = 0;
  const double value = decimalToDouble(text, &used);
  if (text.empty() || used != text.size())
    throw CliError::usage(option + " needs a number, not '" + text + "'");
  return value;
}

int countOption(const std::string& option, const std::string& text) {
  int value = 0;
  const char* end = text.data() + text.size();
  const char* begin = text.data() + (!text.empty() && text[0] == '+' ? 1 : 0);
  const auto [stop, ec] = std::from_chars(begin, end, value);
  if (text.empty() || ec != std::errc() || stop != end)
    throw CliError::usage(option + " needs a whole number, not '" + text + "'");
  return value;
}

std::string column(double v) {
  return v == kAbsent ? std::string() : formatNumber(v, "%.10g");
}

const char* trendText(std::int32_t trend) {
  if (trend == kAbsentTrend) return "";
  if (trend > 0) return "+";
  if (trend < 0) return "-";
  return "0";
}

}  // namespace

// sample EXPRESSION [--from A] [--to B] [--points N] [--polar] [-o FILE]
int runSampleCommand(const Arguments& args, std::ostream& out) {
  SamplingDomain domain = SamplingDomain::fromSettings();
  bool polar = false;
  std::string saveAs;
  std::string expression;
  bool haveExpression = false;
  for (std::size_t i = 0; i < args.size(); ++i) {
    const std::string& word = args[i];
    if (word == "--from" || word == "--to" || word == "--points") {
      if (i + 1 >= args.size()) throw CliError::usage(word + " needs a value");
      const std::string& value = args[++i];
      if (word == "--from") {
        domain.x0 = numberOption(word, value);
      } else if (word == "--to") {
        domain.x1 = numberOption(word, value);
      } else {
        domain.points = countOption(word, value);
      }
    } else if (word == "-o") {
      if (i + 1 >= args.size()) throw CliError::usage(word + " needs a file name");
      saveAs = args[++i];
    } else if (word == "--polar") {
      polar = true;
    } else if (word.size() > 2 && word.compare(0, 2, "--") == 0 && word[2] >= 'a' && word[2] <= 'z') {
      throw CliError::usage("sample: unknown option " + word);
    } else {
      // Loose words make up the expression, as in: sample x ^ 2 --points 5
      if (haveExpression) expression += ' ';
      expression += word;
      haveExpression = true;
    }
  }
  if (!haveExpression) throw CliError::usage("sample: no expression given");

  FunctionSampler sampler(cliTranslator());
  DataSet set;
  std::string error;
  if (!sampler.computeFunction(set, expression, domain.x0, domain.x1, domain.points, error))
    throw CliError::user(error);
  if (polar) set.toCartesian();
  if (!saveAs.empty()) {
    out << saveDataSetFile(saveAs, set) << '\n';
    return 0;
  }

  for (const DataPoint& p : set.points()) {
    out << column(p.x) << '\t' << column(p.y) << '\t' << column(p.derivative) << '\t' << column(p.integral)
        << '\t' << trendText(p.trend);
    if (polar) out << '\t' << column(p.cartX) << '\t' << column(p.cartY);
    out << '\n';
  }
  return 0;
}

}  // namespace sonalyx::cli
