#include "ui/app/ProgramIcon.h"

#include <QPainter>
#include <QPainterPath>
#include <QPixmap>
#include <cmath>

namespace sonalyx::ui {

namespace {

QPixmap drawIcon(int size) {
  QPixmap pixmap(size, size);
  pixmap.fill(Qt::transparent);
  QPainter painter(&pixmap);
  painter.setRenderHint(QPainter::Antialiasing);
  const double s = size;
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(20, 40, 90));
  painter.drawRoundedRect(QRectF(0, 0, s, s), s * 0.15, s * 0.15);
  painter.setPen(QPen(QColor(120, 140, 190), s / 48.0));
  painter.drawLine(QPointF(s * 0.1, s * 0.5), QPointF(s * 0.9, s * 0.5));
  painter.drawLine(QPointF(s * 0.5, s * 0.1), QPointF(s * 0.5, s * 0.9));
  QPainterPath curve;
  for (int i = 0; i <= 64; ++i) {
    const double t = i / 64.0;
    const QPointF point(s * (0.1 + 0.8 * t), s * (0.5 - 0.3 * std::sin(t * 2.0 * M_PI)));
    if (i == 0)
      curve.moveTo(point);
    else
      curve.lineTo(point);
  }
  painter.setPen(QPen(QColor(255, 200, 40), s / 14.0, Qt::SolidLine, Qt::RoundCap));
  painter.setBrush(Qt::NoBrush);
  painter.drawPath(curve);
  return pixmap;
}

}  // namespace

QIcon programIcon() {
  QIcon icon;
  for (const int size : {16, 32, 48, 64}) icon.addPixmap(drawIcon(size));
  return icon;
}

}  // namespace sonalyx::ui
