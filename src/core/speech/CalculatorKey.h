#pragma once

#include <string>

namespace sonalyx {

// One key of the calculator: its command id, the text on its face and the name it
// is spoken by. A key without a spoken name of its own speaks its label.
struct CalculatorKey {
  int id = 0;
  std::string label;
  std::string spokenName;

  const std::string& spokenText() const { return spokenName.empty() ? label : spokenName; }
};

}  // namespace sonalyx
