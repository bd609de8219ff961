#pragma once

#include <string>
#include <string_view>

namespace sonalyx {

// A negative number's sign as a word: the voices say "x = -10" as "x equals 10"
// (espeak-ng drops a minus after a blank or "="), a wrong number for a listener.
// A "-" (or "−") is spelled `minusWord` when a digit (or a point and a digit)
// follows and nothing but the text's start, a blank or an opening sign ("=", "(",
// ",", ";", ":", "[") precedes it; a minus between two operands ("1-2", "1e-7")
// is left to whoever reads the expression.
std::string spellNegativeSigns(std::string_view text, std::string_view minusWord);

}  // namespace sonalyx
