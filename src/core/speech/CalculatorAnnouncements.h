#pragma once

#include <string_view>
#include "core/speech/TranslationMarker.h"

namespace sonalyx {

// Fixed words of the calculator page, in English; each is its own translation key.
inline constexpr std::string_view kDisplaySpokenLabel = SLX_TR("Display. ");  // the display's text follows
inline constexpr std::string_view kInverseSpokenLabel = SLX_TR("inverse");
inline constexpr std::string_view kHyperbolicSpokenLabel = SLX_TR("hyperbolic");
inline constexpr std::string_view kRightShiftWord = SLX_TR("right shift");

inline constexpr std::string_view kHyperbolicChecked = SLX_TR("Hyperbolic check box: checked.");
inline constexpr std::string_view kHyperbolicUnchecked = SLX_TR("Hyperbolic check box: unchecked.");
inline constexpr std::string_view kInverseChecked = SLX_TR("Inverse check box: checked.");
inline constexpr std::string_view kInverseUnchecked = SLX_TR("Inverse check box: unchecked.");

// The number base announced for the base selector's index: 0 hexadecimal,
// 1 decimal, 2 octal, 3 binary.
// Throws std::out_of_range for any other index.
std::string_view numberBaseAnnouncement(int index);

// The angle mode announced for the angle selector's index: 0 degrees, 1 radians,
// 2 grad. Throws std::out_of_range for any other index.
std::string_view angleModeAnnouncement(int index);

}  // namespace sonalyx
