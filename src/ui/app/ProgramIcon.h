#pragma once

#include <QIcon>

namespace sonalyx::ui {

// The program's icon: a curve on a graph-paper square, drawn at run time.
QIcon programIcon();

}  // namespace sonalyx::ui
