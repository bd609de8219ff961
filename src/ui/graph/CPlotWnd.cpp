#include "ui/graph/CPlotWnd.h"

#include <QLabel>
#include <QPainter>

#include "core/files/SelectedDataSet.h"
#include "core/graph/GraphTicks.h"
#include "core/speech/TranslationMarker.h"
#include "core/utility/NumberFormat.h"
#include "ui/app/CGraphCalcApp.h"
#include "ui/graph/CGraphWnd.h"
#include "ui/graph/GraphPainter.h"

namespace sonalyx::ui {

namespace {

QString number(double value, const char* conversion) {
  return QString::fromStdString(withDecimalSign(formatNumber(value, conversion), DecimalSign()));
}

}  // namespace

CPlotWnd::CPlotWnd(CGraphCalcApp& app, QWidget* parent)
    : QWidget(parent), m_app(app), m_graph(new CGraphWnd(app, this)), m_title(new QLabel(this)) {
  setAccessibleName(Translate("Graph"));
  setAutoFillBackground(true);
  QPalette white = palette();
  white.setColor(QPalette::Window, Qt::white);
  white.setColor(QPalette::WindowText, Qt::black);
  setPalette(white);
  const char* captions[] = {SLX_TR("x:"), SLX_TR("y:"), SLX_TR("Point:")};
  for (std::size_t i = 0; i < 3; ++i) {
    m_captions[i] = new QLabel(Translate(captions[i]), this);
    m_fields[i] = new QLabel(this);
    m_fields[i]->setAccessibleName(Translate(captions[i]));
  }
  connect(m_graph, &CGraphWnd::cursorMoved, this, &CPlotWnd::showCursor);
  connect(m_graph, &CGraphWnd::pointerMoved, this, &CPlotWnd::showPointer);
  connect(m_graph, &CGraphWnd::pointerReleased, this, &CPlotWnd::showCursor);
  redraw();
}

void CPlotWnd::redraw() {
  m_graph->redraw();
  m_title->setText(titleText());
  showCursor();
  update();
}

QString CPlotWnd::titleText() const {
  static const char* names[] = {SLX_TR("Data Set 1"), SLX_TR("Data Set 2"), SLX_TR("Sum"),
                                SLX_TR("Difference")};
  const std::uint32_t setType = m_app.settings().GetSetType();
  QString title = Translate(names[selectedSlot(setType)]);
  const double factor = m_graph->scene().yLabelFactor;
  if (!m_graph->scene().empty && factor != 1.0)
    title +=
        QStringLiteral(", ") +
        Translate("y-axis times %s").replace(QStringLiteral("%s"), number(yAxisMultiplier(factor), "%.15g"));
  return title;
}

std::array<QString, 3> CPlotWnd::readOuts() const {
  std::array<QString, 3> texts;
  for (std::size_t i = 0; i < 3; ++i) texts[i] = m_fields[i]->text();
  return texts;
}

void CPlotWnd::showCursor() {
  const DataSet& set = selectedDataSet(m_app.dataSets(), m_app.settings().GetSetType());
  const std::int32_t cursor = m_graph->cursorIndex();
  std::array<QString, 3> texts;
  if (cursor >= 0 && static_cast<std::size_t>(cursor) < set.count()) {
    const DataPoint& p = set.at(static_cast<std::size_t>(cursor));
    texts = {number(p.x, "%.4g"), number(p.y, "%.4g"),
             Translate("%1 of %2").arg(cursor + 1).arg(static_cast<qulonglong>(set.count()))};
  }
  for (std::size_t i = 0; i < 3; ++i) m_fields[i]->setText(texts[i]);
}

void CPlotWnd::showPointer(double x, double y) {
  m_fields[0]->setText(number(x, "%.6g"));
  m_fields[1]->setText(number(y, "%.6g"));
  m_fields[2]->clear();
}

void CPlotWnd::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  layoutChildren();
}

void CPlotWnd::layoutChildren() {
  const int w = width();
  const int h = height();
  m_graph->setGeometry(static_cast<int>(0.12 * w), static_cast<int>(0.05 * h),
                       w - static_cast<int>(0.05 * w) - static_cast<int>(0.12 * w),
                       h - static_cast<int>(0.15 * h) - static_cast<int>(0.05 * h));
  // The captions' own share is small; the words "Point:" and the read-outs get
  // what their text needs.
  const double at[] = {0.14, 0.41, 0.7};
  const int captionWidth =
      std::max(static_cast<int>(0.05 * w), fontMetrics().horizontalAdvance(m_captions[2]->text()) + 4);
  const int rowY = static_cast<int>(0.9 * h) + static_cast<int>(0.03 * h);
  const int rowHeight = std::max(static_cast<int>(0.05 * h), fontMetrics().height());
  for (std::size_t i = 0; i < 3; ++i) {
    const int x = static_cast<int>(at[i] * w);
    m_captions[i]->setGeometry(x, rowY, captionWidth, rowHeight);
    m_fields[i]->setGeometry(x + captionWidth + 3, rowY, static_cast<int>(2.5 * captionWidth), rowHeight);
  }
  // The title names the set above the graph, where no tick label reaches.
  m_title->setGeometry(m_graph->x(), 0, m_graph->width(), std::max(m_graph->y(), 1));
  m_graph->redraw();
  update();
}

void CPlotWnd::paintEvent(QPaintEvent* event) {
  QWidget::paintEvent(event);
  QPainter painter(this);
  painter.translate(m_graph->pos());
  paintGraphScene(painter, m_graph->scene(), GraphLayers::Labels, 1.0, font());
}

}  // namespace sonalyx::ui
