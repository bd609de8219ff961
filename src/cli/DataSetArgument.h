#pragma once

#include <string>

#include "core/math/DataSet.h"

namespace sonalyx::cli {

// A data set named on the command line: an expression sampled as the Data pages
// sample it (their domain and point count from the settings), or a data-set file.
// Throws CliError with the reason the user would hear.
DataSet sampledSet(const std::string& expression);
DataSet fileSet(const std::string& path);

}  // namespace sonalyx::cli
