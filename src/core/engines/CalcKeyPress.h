#pragma once

#include "core/engines/CCalcEngine.h"

namespace sonalyx {

// What the Calculator page does after one of its keys: the window-free part of a
// key action, shared by the page and the command-line tool.
struct CalcKeyPress {
  // False when the key was ignored entirely (a digit the base lacks): no display
  // refresh, no focus move.
  bool performed = false;
  // A unary action: the page clears the Inverse and Hyperbolic check marks (the
  // engine has already consumed its own flags).
  bool unary = false;
  // The key leaves something the user must hear after the key's name: the result
  // of "=" or of a function, the value recalled from memory, the display switched
  // between fixed and exponential notation, or an error text.
  bool speakDisplay = false;
};

// Performs the calculator key with the given command id (1091 to 1143, 1146 and
// 1147 for the Hyperbolic and Inverse commands, 1169 right shift, 1172 memory
// recall) on the engine. Unknown ids are not performed.
CalcKeyPress pressCalcKey(CCalcEngine& engine, int commandId);

// Whether the key with this command id is usable in the number base (16, 10, 8
// or 2): A to F only in hexadecimal; ".", F-E and EE only in decimal; 8 and 9 not
// in octal; 2 to 9 not in binary.
bool isCalcKeyEnabled(int commandId, int numberBase);

}  // namespace sonalyx
