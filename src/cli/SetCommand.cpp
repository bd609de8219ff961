#include <string>
#include <vector>

#include "cli/CliCommands.h"
#include "cli/CliError.h"
#include "cli/CliLanguage.h"
#include "core/files/ClipboardText.h"
#include "core/files/DataSetFile.h"
#include "core/files/FileError.h"
#include "core/math/DataSet.h"
#include "core/utility/DecimalText.h"
#include "core/utility/NumberFormat.h"

namespace sonalyx::cli {

namespace {

double numberArgument(const std::string& word) {
  std::size_t consumed = 0;
  const double value = decimalToDouble(word, &consumed);
  if (consumed == 0 || consumed != word.size()) {
    throw CliError::usage("set write: '" + word + "' is not a number");
  }
  return value;
}

DataSet readSet(const std::string& path) {
  DataSet set;
  set.assign(readDataSetFile(path));
  return set;
}

void expectArgumentCount(const Arguments& args, std::size_t count) {
  if (args.size() != count) throw CliError::usage("set " + args[0] + ": expects one FILE");
}

}  // namespace

int runSetCommand(const Arguments& args, std::ostream& out) {
  if (args.empty()) throw CliError::usage("set: missing write, read, clipboard, sum or difference");
  const std::string& action = args[0];
  try {
    if (action == "write") {
      if (args.size() < 4 || (args.size() - 2) % 2 != 0) {
        throw CliError::usage("set write: needs FILE and pairs of X and Y");
      }
      DataSet set;
      for (std::size_t i = 2; i < args.size(); i += 2) {
        DataPoint p;
        p.x = numberArgument(args[i]);
        p.y = numberArgument(args[i + 1]);
        set.append(p);
      }
      out << saveDataSetFile(args[1], set) << '\n';
      return 0;
    }
    if (action == "read") {
      expectArgumentCount(args, 2);
      for (const DataPoint& p : readDataSetFile(args[1])) {
        out << formatNumber(p.x, "%.10g") << '\t' << formatNumber(p.y, "%.10g") << '\n';
      }
      return 0;
    }
    if (action == "clipboard") {
      expectArgumentCount(args, 2);
      out << clipboardText(readSet(args[1]));
      return 0;
    }
    if (action == "sum" || action == "difference") {
      if (args.size() != 3) throw CliError::usage("set " + action + ": expects FILE1 and FILE2");
      DataSet result;
      DataSet::combine(result, readSet(args[1]), readSet(args[2]), action == "sum");
      for (const DataPoint& p : result.points()) {
        out << formatNumber(p.x, "%.10g") << '\t' << formatNumber(p.y, "%.10g") << '\n';
      }
      return 0;
    }
  } catch (const FileError& e) {
    throw CliError::user(translateWith(cliTranslator(), e.what()));
  } catch (const DataSetTextError& e) {
    throw CliError::user(e.message(cliTranslator()));
  }
  throw CliError::usage("set: unknown action '" + action + "'");
}

}  // namespace sonalyx::cli
