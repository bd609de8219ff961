// The calculator driven by any key sequence: each byte picks a key (the 53 keys,
// Inverse, Hyperbolic, right shift, the four number bases and three angle units).
// No sequence may crash, hang or leave the display empty or beyond what a display
// holds.

#include <array>
#include <cstdint>
#include <cstdlib>

#include "core/engines/CCalcEngine.h"
#include "core/engines/CalcKeyPress.h"
#include "core/speech/CalculatorKeyIds.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  constexpr int kKeys = sonalyx::kLastCalculatorKeyId - sonalyx::kFirstCalculatorKeyId + 1;
  constexpr std::array<int, 3> kExtraKeys = {1146, 1147, 1169};  // Hyperbolic, Inverse, right shift
  constexpr std::array<int, 4> kBases = {16, 10, 8, 2};
  sonalyx::CCalcEngine engine;
  for (std::size_t i = 0; i < size && i < 4096; ++i) {
    const int pick = data[i] % (kKeys + 3 + 4 + 3);
    if (pick < kKeys) {
      sonalyx::pressCalcKey(engine, sonalyx::kFirstCalculatorKeyId + pick);
    } else if (pick < kKeys + 3) {
      sonalyx::pressCalcKey(engine, kExtraKeys[pick - kKeys]);
    } else if (pick < kKeys + 7) {
      engine.SetNumberBaseState(kBases[pick - kKeys - 3]);
    } else {
      engine.angleMode = pick - kKeys - 7;
    }
    if (engine.displayText.empty() || engine.displayText.size() > 256) std::abort();
  }
  return 0;
}
