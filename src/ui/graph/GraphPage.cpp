#include "ui/graph/GraphPage.h"

#include <QFontMetrics>
#include <QPainter>
#include <QPrinter>
#include <cmath>

#include "core/graph/GraphMapping.h"
#include "core/pages/PrintSetupForm.h"
#include "ui/app/CGraphCalcApp.h"
#include "ui/graph/GraphPainter.h"

namespace sonalyx::ui {

namespace {

QFont pageFont(const GraphPageChoices& choices, double unitsPerInch) {
  QFont font(choices.fontFamily);
  // In device units, so that the preview's small page and the printer's large one
  // hold the same proportions.
  font.setPixelSize(std::max(1, static_cast<int>(std::lround(choices.fontPoints * unitsPerInch / 72.0))));
  return font;
}

}  // namespace

GraphScene graphPageScene(QSize extent, QSizeF pageInches, const std::array<DataSet, 4>& sets,
                          const GraphPageChoices& choices) {
  const PlotRect rect = printLayout(extent.width(), extent.height(), choices.widthInches,
                                    choices.heightInches, pageInches.width(), pageInches.height());
  return buildGraphScene(sets, choices.style, rect, -1);
}

void paintGraphPage(QPainter& painter, QSize extent, QSizeF pageInches, const std::array<DataSet, 4>& sets,
                    const GraphPageChoices& choices) {
  const GraphScene scene = graphPageScene(extent, pageInches, sets, choices);
  const double unitsPerMm = printUnitsPerMillimetre(extent.width(), pageInches.width());
  const QFont font = pageFont(choices, unitsPerMm * 25.4);
  painter.save();
  painter.fillRect(QRect(QPoint(0, 0), extent), Qt::white);
  paintGraphScene(
      painter, scene,
      static_cast<GraphLayers>(static_cast<int>(GraphLayers::Plot) | static_cast<int>(GraphLayers::Labels)),
      unitsPerMm, font);
  const QFontMetrics metrics(font, painter.device());
  const QRect plot(scene.rect.left, scene.rect.top, scene.rect.width, scene.rect.height);
  painter.setFont(font);
  painter.setPen(Qt::black);
  if (!choices.title.isEmpty()) {
    const int top = std::max(0, plot.top() - 3 * metrics.height());
    painter.drawText(QRect(0, top, extent.width(), 2 * metrics.height()), Qt::AlignHCenter | Qt::AlignBottom,
                     choices.title);
  }
  if (!scene.empty && scene.yLabelFactor != 1.0 && choices.style.showYLabels) {
    const QString factor = QString::fromStdString(PrintSetupForm::yAxisLine(
        [](const std::string& english) { return Translate(english); }, scene.yLabelFactor));
    painter.drawText(
        QRect(plot.left(), plot.bottom() + 2 * metrics.height(), plot.width(), metrics.height() * 2),
        Qt::AlignLeft | Qt::AlignTop, factor);
  }
  painter.restore();
}

bool printGraphPage(QPrinter& printer, const std::array<DataSet, 4>& sets, const GraphPageChoices& choices) {
  printer.setFullPage(true);
  QPainter painter;
  if (!painter.begin(&printer)) return false;
  // In points first: QPageLayout rounds inches to two places.
  const QSizeF inches = QSizeF(printer.pageLayout().fullRectPoints().size()) / 72.0;
  paintGraphPage(painter, QSize(printer.width(), printer.height()), inches, sets, choices);
  return painter.end();
}

}  // namespace sonalyx::ui
