#pragma once

#include <vector>

#include "core/speech/CalculatorKey.h"
#include "core/speech/Translator.h"

namespace sonalyx {

// The calculator's 53 keys: a top row of 5 and a main block of 48, in layout order
// (the main block runs in eight columns of six keys). Spoken names pass through the
// translator once, here; labels are shown and spoken as they are.
class CalculatorKeyTable {
 public:
  static constexpr std::size_t kTopRowSize = 5;
  static constexpr std::size_t kMainBlockSize = 48;

  explicit CalculatorKeyTable(const Translator& translator = {});

  const std::vector<CalculatorKey>& topRow() const { return m_topRow; }
  const std::vector<CalculatorKey>& mainBlock() const { return m_mainBlock; }

  // The key with this command id, or nullptr when no key has it.
  const CalculatorKey* find(int id) const;

 private:
  std::vector<CalculatorKey> m_topRow;
  std::vector<CalculatorKey> m_mainBlock;
};

}  // namespace sonalyx
