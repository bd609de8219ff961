#pragma once

#include <ostream>
#include <string>
#include <vector>

namespace sonalyx::cli {

// Each command group gets the words after its own name and writes its output to
// `out`. Failures are thrown as CliError; the return value is the exit status.
using Arguments = std::vector<std::string>;

// calc [--trace] KEY...: presses calculator keys in order and prints the display.
int runCalcCommand(const Arguments& args, std::ostream& out);

}  // namespace sonalyx::cli
