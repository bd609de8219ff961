#include "core/files/ClipboardText.h"

#include "core/utility/NumberFormat.h"

namespace sonalyx {

std::string clipboardText(const DataSet& set) {
  std::string text;
  for (const DataPoint& p : set.points()) {
    text += formatNumber(p.x, "%.10g");
    text += '\t';
    text += formatNumber(p.y, "%.10g");
    text += "\r\n";  // the clipboard's line end on every system
  }
  return text;
}

}  // namespace sonalyx
