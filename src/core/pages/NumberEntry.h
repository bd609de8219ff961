#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/speech/Translator.h"

// Numbers as a user types them into a settings page: the whole text must be the
// number (blanks around it aside), so "12abc" or an empty field is no number,
// where the program's lenient reading would take 12 or 0.
namespace sonalyx::entry {

std::optional<double> realNumber(std::string_view text);
// A whole number, as written ("7", "-3"); "7.5" and "1e3" are not.
std::optional<long long> wholeNumber(std::string_view text);

// `english` ("The number of tick marks must be from %d to %d.") translated, with the
// two bounds put in.
std::string rangeText(const Translator& translate, const std::string& english, long long lowest,
                      long long highest);
// "%s must be a number." translated, with the field's translated name put in.
std::string notANumberText(const Translator& translate, const std::string& fieldName);

}  // namespace sonalyx::entry
