#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "core/engines/MatrixValue.h"

namespace sonalyx {

// The window's font as the layout needs it: the pixel width of a text and the
// height of a line.
struct TextMeasurer {
  std::function<int(const std::string&)> width;
  int lineHeight = 0;
};

// One number of the typeset matrix, drawn with its top left corner at (x, y).
struct LayoutCell {
  std::string text;
  int row = 0;
  int column = 0;
  int x = 0;
  int y = 0;
  int width = 0;
};

// A square bracket: a vertical stroke at x from top to top + height, with a
// horizontal stroke of armLength at each end pointing into the matrix (to the
// right for the left bracket, to the left for the right one).
struct LayoutBracket {
  int x = 0;
  int top = 0;
  int height = 0;
  int armLength = 0;
};

// A result typeset for painting: numbers in rows and columns, each column's
// numbers lined up on their decimal points (or where the point would be), the
// whole between brackets that span all rows. A number alone has no brackets.
struct MatrixLayout {
  int originX = 0;
  int originY = 0;
  int rows = 0;
  int columns = 0;
  std::vector<LayoutCell> cells;  // row by row
  std::optional<LayoutBracket> leftBracket;
  std::optional<LayoutBracket> rightBracket;
  // The picture's extent from the origin; 0 when there is nothing to draw.
  int width = 0;
  int height = 0;
};

// Lays out `value` with its top left corner at (x, y). Spacing follows the font:
// a column gap of two digit widths, a padding of one digit width inside the
// brackets, and a quarter line between rows and above and below them.
MatrixLayout layoutMatrix(const MatrixValue& value, const TextMeasurer& measurer, int x, int y);

}  // namespace sonalyx
