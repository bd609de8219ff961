#include "ui/pages/matrix/CMatrixWnd.h"

#include <QAccessibleWidget>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>
#include <QPainter>
#include <QScrollBar>
#include <algorithm>
#include <array>

#include "core/engines/MatrixEngine.h"
#include "ui/app/CGraphCalcApp.h"
#include "ui/controls/VoicedText.h"

namespace sonalyx::ui {

namespace {

// A picture larger than this on either side is cut there; the text on the
// clipboard always holds the whole result.
constexpr int kLargestPicture = 4096;
// The matrix is set half as large again as the page's text, for the eyes that
// still read it.
constexpr double kTypeScale = 1.5;

// To a screen reader the window is a picture (of the result), not an empty pane.
QAccessibleInterface* accessibleWindow(const QString& className, QObject* object) {
  if (className != QLatin1String(CMatrixWnd::staticMetaObject.className()) || !object->isWidgetType())
    return nullptr;
  return new QAccessibleWidget(static_cast<QWidget*>(object), QAccessible::Graphic);
}

}  // namespace

CMatrixWnd::CMatrixWnd(QWidget* parent) : QAbstractScrollArea(parent) {
  static const bool accessible = [] {
    QAccessible::installFactory(accessibleWindow);
    return true;
  }();
  (void)accessible;
  setFocusPolicy(Qt::StrongFocus);
  horizontalScrollBar()->setFocusPolicy(Qt::NoFocus);
  verticalScrollBar()->setFocusPolicy(Qt::NoFocus);
  QPalette white = viewport()->palette();
  white.setColor(QPalette::Window, Qt::white);
  white.setColor(QPalette::WindowText, Qt::black);
  viewport()->setPalette(white);
  viewport()->setAutoFillBackground(true);
  setAccessibleName(Translate("Matrix display"));
  setAccessibleDescription(
      Translate("The last result, typeset; its context menu copies it to the clipboard."));
}

void CMatrixWnd::showResult(const MatrixEngine& engine, const QString& text) {
  m_engine = &engine;
  m_text = text;
  relayout();
}

QFont CMatrixWnd::typeface() const {
  QFont face = font();
  if (face.pointSizeF() > 0)
    face.setPointSizeF(face.pointSizeF() * kTypeScale);
  else
    face.setPixelSize(static_cast<int>(face.pixelSize() * kTypeScale));
  return face;
}

void CMatrixWnd::relayout() {
  if (!m_engine) return;
  const QFontMetrics metrics(typeface());
  // Numbers are digits, signs, a point and an exponent's "e": each character's
  // advance is measured once, so that 10,000 numbers take no text shaping.
  std::array<int, 128> advance{};
  for (int c = 32; c < 128; ++c) advance[static_cast<std::size_t>(c)] = metrics.horizontalAdvance(QChar(c));
  TextMeasurer measurer;
  measurer.width = [&metrics, &advance](const std::string& text) {
    int width = 0;
    for (const char c : text) {
      const auto code = static_cast<unsigned char>(c);
      if (code < 32 || code >= 128) return metrics.horizontalAdvance(QString::fromStdString(text));
      width += advance[code];
    }
    return width;
  };
  measurer.lineHeight = metrics.height();
  m_layout = m_engine->Render(measurer);
  updateScrollBars();
  viewport()->update();
}

void CMatrixWnd::updateScrollBars() {
  // The same margins right and below as the drawing keeps left and above.
  const int contentWidth = m_layout.width > 0 ? m_layout.width + 2 * m_layout.originX : 0;
  const int contentHeight = m_layout.height > 0 ? m_layout.height + 2 * m_layout.originY : 0;
  const QSize page = viewport()->size();
  horizontalScrollBar()->setRange(0, std::max(0, contentWidth - page.width()));
  horizontalScrollBar()->setPageStep(page.width());
  const QFontMetrics metrics(typeface());
  horizontalScrollBar()->setSingleStep(std::max(1, metrics.horizontalAdvance(QLatin1Char('0')) * 2));
  verticalScrollBar()->setRange(0, std::max(0, contentHeight - page.height()));
  verticalScrollBar()->setPageStep(page.height());
  verticalScrollBar()->setSingleStep(std::max(1, metrics.height()));
}

void CMatrixWnd::drawMatrix(QPainter& painter, const QRect& area) const {
  painter.setPen(QPen(Qt::black, 1));
  const int ascent = painter.fontMetrics().ascent();
  const int lineHeight = painter.fontMetrics().height();
  for (const LayoutCell& cell : m_layout.cells) {
    // Rows run down the list: once a row lies below the area, so do the rest.
    if (cell.y > area.bottom()) break;
    if (cell.y + lineHeight < area.top() || cell.x > area.right() || cell.x + cell.width < area.left())
      continue;
    painter.drawText(cell.x, cell.y + ascent, QString::fromStdString(cell.text));
  }
  // The arms point into the matrix: right from the left bracket, left from the right one.
  const auto drawBracket = [&painter](const LayoutBracket& bracket, int direction) {
    const int bottom = bracket.top + bracket.height - 1;
    const int arm = direction * bracket.armLength;
    painter.drawLine(bracket.x, bracket.top, bracket.x, bottom);
    painter.drawLine(bracket.x, bracket.top, bracket.x + arm, bracket.top);
    painter.drawLine(bracket.x, bottom, bracket.x + arm, bottom);
  };
  if (m_layout.leftBracket) drawBracket(*m_layout.leftBracket, 1);
  if (m_layout.rightBracket) drawBracket(*m_layout.rightBracket, -1);
}

void CMatrixWnd::paintEvent(QPaintEvent* event) {
  // The widget's backing store already buffers the painting: nothing flickers.
  QPainter painter(viewport());
  painter.setFont(typeface());
  const QPoint scroll(horizontalScrollBar()->value(), verticalScrollBar()->value());
  painter.translate(-scroll);
  drawMatrix(painter, event->rect().translated(scroll));
  if (hasFocus()) {
    painter.resetTransform();
    painter.setPen(QPen(Qt::black, 1, Qt::DotLine));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(viewport()->rect().adjusted(1, 1, -2, -2));
  }
}

void CMatrixWnd::resizeEvent(QResizeEvent* event) {
  QAbstractScrollArea::resizeEvent(event);
  updateScrollBars();
}

void CMatrixWnd::changeEvent(QEvent* event) {
  QAbstractScrollArea::changeEvent(event);
  // Larger and smaller (F8, F7) change the font: the layout follows.
  if (event->type() == QEvent::FontChange) relayout();
}

QString CMatrixWnd::spokenText() const {
  const QString name = Translate("Matrix display");
  if (m_text.isEmpty()) return name;
  return name + QStringLiteral(". ") + voiced::expandSymbols(m_text).trimmed();
}

void CMatrixWnd::focusInEvent(QFocusEvent* event) {
  QAbstractScrollArea::focusInEvent(event);
  viewport()->update();
  if (voiced::isArrival(this, event)) voiced::say(this, SpeechKind::Echo, spokenText());
}

void CMatrixWnd::focusOutEvent(QFocusEvent* event) {
  QAbstractScrollArea::focusOutEvent(event);
  viewport()->update();
}

void CMatrixWnd::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_F10 && event->modifiers() == Qt::ShiftModifier) {
    showMenu(mapToGlobal(rect().center()));
    return;
  }
  QAbstractScrollArea::keyPressEvent(event);
}

void CMatrixWnd::contextMenuEvent(QContextMenuEvent* event) {
  showMenu(event->reason() == QContextMenuEvent::Mouse ? event->globalPos() : mapToGlobal(rect().center()));
}

void CMatrixWnd::showMenu(const QPoint& globalPosition) {
  QMenu menu(this);
  QAction* copy = menu.addAction(Translate("Copy To Clipboard"));
  connect(&menu, &QMenu::hovered, this, [](QAction* item) {
    voiced::say(nullptr, SpeechKind::Echo, voiced::withoutMnemonic(item->text()));
  });
  connect(copy, &QAction::triggered, this, &CMatrixWnd::copyRequested);
  // The one item is reached at once, and said, as the menu opens.
  menu.setActiveAction(copy);
  menu.exec(globalPosition, copy);
}

QImage CMatrixWnd::picture() const {
  if (m_layout.width <= 0) return {};
  const QSize size(std::min(m_layout.width + 2 * m_layout.originX, kLargestPicture),
                   std::min(m_layout.height + 2 * m_layout.originY, kLargestPicture));
  QImage image(size, QImage::Format_RGB32);
  image.fill(Qt::white);
  QPainter painter(&image);
  painter.setFont(typeface());
  drawMatrix(painter, QRect(QPoint(0, 0), size));
  return image;
}

QString CMatrixWnd::matrixText() const {
  QString text;
  int row = 0;
  for (const LayoutCell& cell : m_layout.cells) {
    if (cell.row != row) {
      text += QLatin1Char('\n');
      row = cell.row;
    } else if (cell.column > 0) {
      text += QLatin1Char('\t');
    }
    text += QString::fromStdString(cell.text);
  }
  return text.isEmpty() ? text : text + QLatin1Char('\n');
}

bool CMatrixWnd::copyToClipboard() {
  if (m_layout.cells.empty()) return false;
  auto* data = new QMimeData();
  data->setImageData(picture());
  data->setText(matrixText());
  QGuiApplication::clipboard()->setMimeData(data);
  return true;
}

}  // namespace sonalyx::ui
