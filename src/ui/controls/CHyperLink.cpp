#include "ui/controls/CHyperLink.h"

#include <QApplication>
#include <QDesktopServices>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QStyle>
#include <QUrl>

namespace sonalyx::ui {

CHyperLink::CHyperLink(const QString& text, QWidget* parent) : CTTSStatic(text, parent) {
  setCursor(Qt::PointingHandCursor);
  m_visitedColour = palette().color(QPalette::LinkVisited);
  QFont underlined = font();
  underlined.setUnderline(true);
  setFont(underlined);
  applyColour(palette().color(QPalette::Link));
}

void CHyperLink::setLinkTarget(const QString& target) {
  m_target = target;
  setToolTip(target);
}

void CHyperLink::applyColour(const QColor& colour) {
  QPalette linkPalette = palette();
  linkPalette.setColor(QPalette::WindowText, colour);
  setPalette(linkPalette);
}

bool CHyperLink::Open() {
  if (m_target.isEmpty() || !QDesktopServices::openUrl(QUrl(m_target))) {
    QApplication::beep();
    return false;
  }
  m_visited = true;
  applyColour(m_visitedColour);
  update();
  emit opened(m_target);
  return true;
}

QRect CHyperLink::hotRect() const {
  const QRect text = fontMetrics().boundingRect(contentsRect(), static_cast<int>(alignment()), this->text());
  return QStyle::visualRect(layoutDirection(), contentsRect(), text);
}

void CHyperLink::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton && hotRect().contains(event->position().toPoint())) {
    Open();
    return;
  }
  CTTSStatic::mouseReleaseEvent(event);
}

void CHyperLink::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter || event->key() == Qt::Key_Space) {
    Open();
    return;
  }
  CTTSStatic::keyPressEvent(event);
}

}  // namespace sonalyx::ui
