#include "ui/graph/CGraphWnd.h"

#include <QFocusEvent>
#include <QMouseEvent>
#include <QPainter>
#include <algorithm>

#include "core/files/SelectedDataSet.h"
#include "core/graph/GraphMapping.h"
#include "core/speech/CoordinatePhrase.h"
#include "ui/app/CGraphCalcApp.h"
#include "ui/app/Voice.h"
#include "ui/controls/VoicedText.h"
#include "ui/graph/GraphPainter.h"

namespace sonalyx::ui {

namespace {

int spokenDecimals(const SettingsStore& store) {
  return static_cast<int>(std::min<std::uint32_t>(store.GetNumDec(), 99));
}

std::string pointText(const CGraphCalcApp& app, const DataSet& set, std::size_t index) {
  return pointPhrase(set.at(index), app.settings().GetPlotType(), spokenDecimals(app.settings()),
                     [](const std::string& text) { return Translate(text); });
}

}  // namespace

CGraphWnd::CGraphWnd(CGraphCalcApp& app, QWidget* parent) : QWidget(parent), m_app(app) {
  setAccessibleName(Translate("Graph"));
  setFocusPolicy(Qt::ClickFocus);
  // Everything is painted from the cache: nothing to erase first.
  setAttribute(Qt::WA_OpaquePaintEvent);
}

void CGraphWnd::setCursorIndex(std::int32_t index) {
  if (index == m_cursor) return;
  m_cursor = index;
  if (m_valid)
    placeCursor(m_scene, selectedDataSet(m_app.dataSets(), m_app.settings().GetSetType()),
                m_app.settings().GetPlotType(), m_cursor);
  update();
  emit cursorMoved(index);
}

void CGraphWnd::redraw() {
  m_valid = false;
  update();
}

const GraphScene& CGraphWnd::scene() {
  if (!m_valid) rebuild();
  return m_scene;
}

void CGraphWnd::rebuild() {
  const PlotRect rect{0, 0, width(), height()};
  GraphStyle style = graphStyleFromSettings(m_app.settings());
  style.decimalSign = DecimalSign();
  m_scene = buildGraphScene(m_app.dataSets(), style, rect, m_cursor);
  const qreal ratio = devicePixelRatioF();
  m_cache = QPixmap(QSize(std::max(1, width()), std::max(1, height())) * ratio);
  m_cache.setDevicePixelRatio(ratio);
  QPainter painter(&m_cache);
  paintGraphScene(painter, m_scene, GraphLayers::Plot);
  m_valid = true;
}

void CGraphWnd::paintEvent(QPaintEvent* /*event*/) {
  if (!m_valid) rebuild();
  QPainter painter(this);
  painter.drawPixmap(0, 0, m_cache);
  paintGraphScene(painter, m_scene, GraphLayers::Cursor);
}

void CGraphWnd::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  m_valid = false;
}

QString CGraphWnd::spokenText() const {
  QString text = Translate("Graph");
  const DataSet& set = selectedDataSet(m_app.dataSets(), m_app.settings().GetSetType());
  if (m_cursor >= 0 && static_cast<std::size_t>(m_cursor) < set.count())
    text += QStringLiteral(". ") +
            QString::fromStdString(pointText(m_app, set, static_cast<std::size_t>(m_cursor)));
  return text;
}

void CGraphWnd::takeFocusQuietly() {
  m_quietFocus = true;
  setFocus(Qt::OtherFocusReason);
  m_quietFocus = false;
}

void CGraphWnd::focusInEvent(QFocusEvent* event) {
  QWidget::focusInEvent(event);
  setAccessibleDescription(spokenText());
  if (!m_quietFocus && voiced::isArrival(this, event)) voiced::say(this, SpeechKind::Echo, spokenText());
}

void CGraphWnd::mousePressEvent(QMouseEvent* event) {
  QWidget::mousePressEvent(event);
  if (event->button() != Qt::LeftButton) return;
  m_dragging = true;
  const DataSet& set = selectedDataSet(m_app.dataSets(), m_app.settings().GetSetType());
  if (!set.hasData() || !m_app.settings().GetAutoSpeak() || m_cache.isNull()) return;
  // Only a click on a point of data set 1 or 2 (or on the set beside the one
  // played) speaks: red and yellow are theirs alone.
  const QPoint pixel = (event->position() * m_cache.devicePixelRatio()).toPoint();
  const QImage image = m_cache.toImage();
  if (!image.valid(pixel)) return;
  const QRgb colour = image.pixel(pixel) & 0xffffff;
  if (colour != 0xff0000 && colour != 0xffff00) return;
  const auto world = deviceToWorld({event->position().toPoint().x(), event->position().toPoint().y()},
                                   scene().range, scene().rect);
  if (!world) return;
  if (const auto index = pointNearestX(set, world->x))
    voice::Speak(SpeechKind::Content, QString::fromStdString(pointText(m_app, set, *index)));
}

void CGraphWnd::mouseMoveEvent(QMouseEvent* event) {
  QWidget::mouseMoveEvent(event);
  if (!m_dragging || !rect().contains(event->position().toPoint())) return;
  const auto world = deviceToWorld({event->position().toPoint().x(), event->position().toPoint().y()},
                                   scene().range, scene().rect);
  if (world && !scene().empty) emit pointerMoved(world->x, world->y);
}

void CGraphWnd::mouseReleaseEvent(QMouseEvent* event) {
  QWidget::mouseReleaseEvent(event);
  if (!m_dragging) return;
  m_dragging = false;
  emit pointerReleased();
}

}  // namespace sonalyx::ui
