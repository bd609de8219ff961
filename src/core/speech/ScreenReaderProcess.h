#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace sonalyx {

// Whether a process is a screen reader, from its short name (/proc/PID/comm) and
// its command line: the program itself or a script run by an interpreter
// ("/usr/bin/python3 /usr/bin/orca -r"). Orca started by hand leaves the desktop's
// screen-reader flag false, so the program looks for it by name too.
bool isScreenReaderProcess(std::string_view shortName, const std::vector<std::string>& commandLine);

}  // namespace sonalyx
