#pragma once

#include <QFont>

#include "core/graph/GraphScene.h"

class QPainter;

namespace sonalyx::ui {

// Which parts of a graph picture to paint: the plot inside its rectangle, the
// cursor's mark on it, the tick labels outside it, or all. The screen keeps the
// plot in a cache and paints the cursor over it, so a step costs no redraw.
enum class GraphLayers { Plot = 1, Cursor = 2, Labels = 4, All = 7 };

// Paints a graph picture onto any device (the screen's cached pixmap, an image, a
// printer page), without antialiasing so that every colour is exact. Pens and
// point sizes are multiplied by `unitsPerMillimetre` (1 on the screen).
void paintGraphScene(QPainter& painter, const GraphScene& scene, GraphLayers layers,
                     double unitsPerMillimetre = 1.0, const QFont& labelFont = QFont());

}  // namespace sonalyx::ui
