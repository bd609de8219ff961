#pragma once

#include <cstddef>
#include <string_view>

namespace sonalyx {

// The program's one reading of a decimal number from text, as a C runtime's
// decimal conversion does it but independent of the locale: leading blanks are
// skipped, an optional sign, digits with an optional fraction and exponent; the
// conversion stops at the first character that does not belong to the number and
// text without a number gives 0. No hexadecimal, "inf" or "nan" forms. Values too
// large become an infinity, values too small 0. `consumed`, when given, receives
// the number of characters used (0 when no number was found).
double decimalToDouble(std::string_view text, std::size_t* consumed = nullptr);

}  // namespace sonalyx
