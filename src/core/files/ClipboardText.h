#pragma once

#include <string>

#include "core/math/DataSet.h"

namespace sonalyx {

// The text put on the clipboard for a data set: a two-column table that
// spreadsheets accept, "x<TAB>y<CR><LF>" per point with 10 significant digits, the
// last line ended like the others. An empty set gives an empty text.
std::string clipboardText(const DataSet& set);

}  // namespace sonalyx
