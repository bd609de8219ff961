#pragma once

#include <string>
#include <vector>

namespace sonalyx::ui {

// What the print setup keeps for the whole run. Printing fills it in; until then it
// only holds the installed printers, which nobody has listed yet.
struct PrintSetupState {
  std::vector<std::string> printerNames;
};

}  // namespace sonalyx::ui
