#include "core/engines/MatrixLayout.h"

#include <algorithm>

#include "core/engines/MatrixExpression.h"

namespace sonalyx {

namespace {

// The part of a number left of its decimal point; a number without one aligns
// where the point would stand, before an exponent or at its end.
std::string integerPart(const std::string& text) {
  return text.substr(0, text.find_first_of(".eE"));
}

}  // namespace

MatrixLayout layoutMatrix(const MatrixValue& value, const TextMeasurer& measurer, int x, int y) {
  MatrixLayout layout;
  layout.originX = x;
  layout.originY = y;
  layout.rows = static_cast<int>(value.matrix.rows());
  layout.columns = static_cast<int>(value.matrix.cols());
  const int lineHeight = measurer.lineHeight;

  if (value.scalar) {
    LayoutCell cell;
    cell.text = formatMatrixNumber(value.scalarValue());
    cell.x = x;
    cell.y = y;
    cell.width = measurer.width(cell.text);
    layout.width = cell.width;
    layout.height = lineHeight;
    layout.cells.push_back(std::move(cell));
    return layout;
  }

  const int digit = measurer.width("0");
  const int gap = 2 * digit;
  const int leading = lineHeight / 4;
  const int arm = std::max(2, lineHeight / 4);

  // Widths left and right of each column's alignment point.
  std::vector<int> leads(static_cast<std::size_t>(layout.columns), 0);
  std::vector<int> tails(static_cast<std::size_t>(layout.columns), 0);
  std::vector<int> cellLeads;
  for (int r = 0; r < layout.rows; ++r) {
    for (int c = 0; c < layout.columns; ++c) {
      LayoutCell cell;
      cell.text = formatMatrixNumber(value.matrix(r, c));
      cell.row = r;
      cell.column = c;
      cell.width = measurer.width(cell.text);
      const int lead = measurer.width(integerPart(cell.text));
      const auto column = static_cast<std::size_t>(c);
      leads[column] = std::max(leads[column], lead);
      tails[column] = std::max(tails[column], cell.width - lead);
      cellLeads.push_back(lead);
      layout.cells.push_back(std::move(cell));
    }
  }

  const int contentLeft = x + arm + digit;
  const int contentTop = y + leading;
  std::vector<int> columnLeft(static_cast<std::size_t>(layout.columns), contentLeft);
  int right = contentLeft;
  for (std::size_t c = 0; c < columnLeft.size(); ++c) {
    columnLeft[c] = c == 0 ? contentLeft : right + gap;
    right = columnLeft[c] + leads[c] + tails[c];
  }
  for (std::size_t i = 0; i < layout.cells.size(); ++i) {
    LayoutCell& cell = layout.cells[i];
    const auto column = static_cast<std::size_t>(cell.column);
    cell.x = columnLeft[column] + leads[column] - cellLeads[i];
    cell.y = contentTop + cell.row * (lineHeight + leading);
  }

  const int contentHeight = layout.rows * lineHeight + (layout.rows - 1) * leading;
  const int bracketHeight = contentHeight + 2 * leading;
  layout.leftBracket = LayoutBracket{x, y, bracketHeight, arm};
  layout.rightBracket = LayoutBracket{right + digit + arm, y, bracketHeight, arm};
  // The right stroke is one pixel wide and belongs to the picture.
  layout.width = layout.rightBracket->x + 1 - x;
  layout.height = bracketHeight;
  return layout;
}

}  // namespace sonalyx
