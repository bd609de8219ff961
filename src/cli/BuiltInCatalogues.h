#pragma once

#include <string_view>

namespace sonalyx::cli {

// The text of the language file built into the tool for a language code ("sv",
// "fr", "de", "es"); empty for English and any other code.
std::string_view builtInCatalogueText(std::string_view code);

}  // namespace sonalyx::cli
