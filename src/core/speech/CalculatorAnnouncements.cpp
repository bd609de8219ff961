#include "core/speech/CalculatorAnnouncements.h"

#include <array>
#include <stdexcept>
#include <string>
#include "core/speech/TranslationMarker.h"

namespace sonalyx {

namespace {

constexpr std::array<std::string_view, 4> kNumberBases = {SLX_TR("hexadecimal."), SLX_TR("decimal."),
                                                          SLX_TR("octal."), SLX_TR("binary.")};
constexpr std::array<std::string_view, 3> kAngleModes = {SLX_TR("degrees."), SLX_TR("radians."),
                                                         SLX_TR("grad.")};

template <std::size_t N>
std::string_view pick(const std::array<std::string_view, N>& words, int index, const char* what) {
  if (index < 0 || static_cast<std::size_t>(index) >= N)
    throw std::out_of_range(std::string("no ") + what + " has the index " + std::to_string(index));
  return words[static_cast<std::size_t>(index)];
}

}  // namespace

std::string_view numberBaseAnnouncement(int index) {
  return pick(kNumberBases, index, "number base");
}

std::string_view angleModeAnnouncement(int index) {
  return pick(kAngleModes, index, "angle mode");
}

}  // namespace sonalyx
