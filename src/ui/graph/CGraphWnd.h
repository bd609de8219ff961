#pragma once

#include <QPixmap>
#include <QWidget>
#include <cstdint>

#include "core/graph/GraphScene.h"

namespace sonalyx::ui {

class CGraphCalcApp;

// The graph: the set being played (with data set 2 beside data set 1) painted once
// into a cached pixmap, which every later paint copies. The cache is dropped by a
// redraw (the data, the settings or the cursor changed) and by a resize. A click
// on a point of data set 1 or 2 says the nearest point's coordinates; dragging
// reports the world position under the pointer.
class CGraphWnd : public QWidget {
  Q_OBJECT
 public:
  explicit CGraphWnd(CGraphCalcApp& app, QWidget* parent = nullptr);

  // The point under the cursor, an index into the set being played; -1 for none.
  std::int32_t cursorIndex() const { return m_cursor; }
  void setCursorIndex(std::int32_t index);
  // Draws everything anew at the next paint.
  void redraw();
  // The picture as it is (or will be) painted.
  const GraphScene& scene();
  // The cached picture; null until the first paint.
  const QPixmap& cache() const { return m_cache; }
  // What the graph says when it gets the focus: its name and the cursor point.
  QString spokenText() const;
  // Takes the focus without a word: the command that moved it says what matters.
  void takeFocusQuietly();

 signals:
  void cursorMoved(std::int32_t index);
  // While the mouse button is held: the world point under the pointer.
  void pointerMoved(double x, double y);
  void pointerReleased();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  void rebuild();

  CGraphCalcApp& m_app;
  std::int32_t m_cursor = -1;
  GraphScene m_scene;
  QPixmap m_cache;
  bool m_valid = false;
  bool m_dragging = false;
  bool m_quietFocus = false;
};

}  // namespace sonalyx::ui
