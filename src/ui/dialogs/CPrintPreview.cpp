#include "ui/dialogs/CPrintPreview.h"

#include <QPainter>
#include <algorithm>

namespace sonalyx::ui {

CPrintPreview::CPrintPreview(const std::array<DataSet, 4>& sets, QWidget* parent)
    : QWidget(parent), m_slots(sets) {
  setFocusPolicy(Qt::NoFocus);
  setMinimumSize(160, 200);
}

void CPrintPreview::show(const GraphPageChoices& choices, QSizeF pageInches) {
  m_choices = choices;
  m_pageInches = pageInches;
  m_valid = true;
  update();
}

QRect CPrintPreview::pageRect() const {
  const double scale = std::min((width() - 4) / m_pageInches.width(), (height() - 4) / m_pageInches.height());
  const QSize page(std::max(1, static_cast<int>(m_pageInches.width() * scale)),
                   std::max(1, static_cast<int>(m_pageInches.height() * scale)));
  return QRect(QPoint((width() - page.width()) / 2, (height() - page.height()) / 2), page);
}

void CPrintPreview::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), palette().window());
  const QRect page = pageRect();
  painter.setPen(Qt::darkGray);
  painter.drawRect(page.adjusted(-1, -1, 0, 0));
  if (!m_valid) return;
  painter.translate(page.topLeft());
  painter.setClipRect(QRect(QPoint(0, 0), page.size()));
  paintGraphPage(painter, page.size(), m_pageInches, m_slots, m_choices);
}

}  // namespace sonalyx::ui
