#pragma once

#include <QFont>
#include <QSize>
#include <QSizeF>
#include <QString>
#include <array>

#include "core/graph/GraphScene.h"
#include "core/math/DataSet.h"

class QPainter;
class QPrinter;

namespace sonalyx::ui {

// What a printed page holds besides the data: the graph's size on paper, the
// drawing choices made for this print, the label font and a title above the graph.
struct GraphPageChoices {
  double widthInches = 6.0;
  double heightInches = 8.0;
  GraphStyle style;
  QString fontFamily;
  int fontPoints = 10;
  QString title;
};

// Paints one page of `extent` device units, `pageInches` in size: the graph at the
// chosen size, centred with a tenth of its width kept for the y labels, pens and
// points in proportion to the page, the title above, and the y labels' factor
// under it when the labels are not the true values. The screen's preview and the
// printer both use it, so what is seen is what is printed.
void paintGraphPage(QPainter& painter, QSize extent, QSizeF pageInches, const std::array<DataSet, 4>& sets,
                    const GraphPageChoices& choices);

// The scene painted on such a page (its rectangle is the plot's on the page).
GraphScene graphPageScene(QSize extent, QSizeF pageInches, const std::array<DataSet, 4>& sets,
                          const GraphPageChoices& choices);

// Prints one page on `printer` (full page, its paper and orientation as set).
// False when the printer or the file could not be opened or the page not ended.
bool printGraphPage(QPrinter& printer, const std::array<DataSet, 4>& sets, const GraphPageChoices& choices);

}  // namespace sonalyx::ui
