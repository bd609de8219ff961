#pragma once

#include <ostream>
#include <string>
#include <vector>

namespace sonalyx::cli {

// Runs one command line (without the program name) and returns the exit status:
// 0 success, 1 user error, 2 wrong usage.
int runCli(const std::vector<std::string>& args, std::ostream& out, std::ostream& err);

}  // namespace sonalyx::cli
