#include "ui/graph/GraphPainter.h"

#include <QPainter>
#include <QPolygon>
#include <algorithm>
#include <cmath>

namespace sonalyx::ui {

namespace {

QColor toColor(Rgb rgb) {
  return QColor(rgb.r, rgb.g, rgb.b);
}

QPoint toPoint(DevicePoint p) {
  return QPoint(p.x, p.y);
}

bool has(GraphLayers layers, GraphLayers part) {
  return (static_cast<int>(layers) & static_cast<int>(part)) != 0;
}

void paintPlot(QPainter& painter, const GraphScene& scene, double units) {
  const QRect rect(scene.rect.left, scene.rect.top, scene.rect.width, scene.rect.height);
  painter.fillRect(rect, Qt::white);
  if (scene.empty) return;
  const int width = std::max(1, static_cast<int>(std::lround(units)));
  QPen pen(Qt::black, width, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin);
  painter.setPen(pen);
  painter.setBrush(Qt::NoBrush);
  painter.drawRect(rect.adjusted(0, 0, -1, -1));
  for (const auto* lines : {&scene.axes, &scene.marks})
    for (const DeviceLine& line : *lines) painter.drawLine(toPoint(line.from), toPoint(line.to));
  for (const GraphPolyline& line : scene.lines) {
    pen.setColor(toColor(line.colour));
    painter.setPen(pen);
    QPolygon polygon;
    polygon.reserve(static_cast<int>(line.points.size()));
    for (const DevicePoint& p : line.points) polygon.append(toPoint(p));
    if (polygon.size() == 1)
      painter.drawPoint(polygon.first());
    else
      painter.drawPolyline(polygon);
  }
  const int diameter = std::max(2, static_cast<int>(std::lround(kPointDiameter * units)));
  for (const GraphDots& dots : scene.dots) {
    // Outlined in their own colour: dense points stay their colour, not black.
    painter.setPen(QPen(toColor(dots.colour), width));
    painter.setBrush(toColor(dots.colour));
    for (const DevicePoint& c : dots.centres)
      painter.drawEllipse(QRect(c.x - diameter / 2, c.y - diameter / 2, diameter, diameter));
  }
}

// A dotted blue ring round the cursor point, and a dotted line down the plot
// through it that finds the cursor at a glance.
void paintCursor(QPainter& painter, const GraphScene& scene, double units) {
  if (scene.empty || !scene.cursor) return;
  const int width = std::max(1, static_cast<int>(std::lround(units)));
  painter.setPen(QPen(QColor(0, 0, 255), width, Qt::DotLine));
  painter.setBrush(Qt::NoBrush);
  const int ring = static_cast<int>(std::lround(kCursorRingDiameter * units));
  const int x = scene.cursor->x;
  const int y = scene.cursor->y;
  painter.drawEllipse(QRect(x - ring / 2, y - ring / 2, ring, ring));
  const int top = scene.rect.top;
  const int bottom = scene.rect.top + scene.rect.height - 1;
  if (y - ring / 2 > top) painter.drawLine(QPoint(x, top), QPoint(x, y - ring / 2 - 1));
  if (y + ring / 2 < bottom) painter.drawLine(QPoint(x, y + ring / 2 + 1), QPoint(x, bottom));
}

void paintLabels(QPainter& painter, const GraphScene& scene, double units, const QFont& font) {
  if (scene.empty) return;
  painter.setFont(font);
  painter.setPen(Qt::black);
  const QFontMetrics metrics(font, painter.device());
  const int gap = std::max(2, static_cast<int>(std::lround(3 * units)));
  for (const GraphLabel& label : scene.xLabels) {
    const QString text = QString::fromStdString(label.text);
    const int w = metrics.horizontalAdvance(text);
    painter.drawText(QRect(label.anchor.x - w / 2 - 1, label.anchor.y + gap, w + 2, metrics.height()),
                     Qt::AlignHCenter | Qt::AlignTop, text);
  }
  for (const GraphLabel& label : scene.yLabels) {
    const QString text = QString::fromStdString(label.text);
    const int w = metrics.horizontalAdvance(text);
    painter.drawText(
        QRect(label.anchor.x - gap - w - 1, label.anchor.y - metrics.height() / 2, w + 1, metrics.height()),
        Qt::AlignRight | Qt::AlignVCenter, text);
  }
}

}  // namespace

void paintGraphScene(QPainter& painter, const GraphScene& scene, GraphLayers layers,
                     double unitsPerMillimetre, const QFont& labelFont) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing, false);
  painter.setRenderHint(QPainter::TextAntialiasing, true);
  if (has(layers, GraphLayers::Plot)) paintPlot(painter, scene, unitsPerMillimetre);
  if (has(layers, GraphLayers::Cursor)) paintCursor(painter, scene, unitsPerMillimetre);
  if (has(layers, GraphLayers::Labels)) paintLabels(painter, scene, unitsPerMillimetre, labelFont);
  painter.restore();
}

}  // namespace sonalyx::ui
