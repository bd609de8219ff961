#pragma once

#include <ostream>
#include <string>
#include <vector>

namespace sonalyx::cli {

// Each command group gets the words after its own name and writes its output to
// `out`. Failures are thrown as CliError; the return value is the exit status.
using Arguments = std::vector<std::string>;

// settings path | list | get KEY | set KEY VALUE | delete
int runSettingsCommand(const Arguments& args, std::ostream& out);

}  // namespace sonalyx::cli
