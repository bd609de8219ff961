#pragma once

#include <string>

namespace sonalyx {

// Why a settings page keeps the user where they are: the field the focus goes back
// to (the page's own numbering) and the sentence that says why, translated.
struct FieldRefusal {
  int field = 0;
  std::string message;

  bool operator==(const FieldRefusal&) const = default;
};

}  // namespace sonalyx
