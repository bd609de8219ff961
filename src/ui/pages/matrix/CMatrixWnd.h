#pragma once

#include <QAbstractScrollArea>
#include <QImage>
#include <QString>

#include "core/engines/MatrixLayout.h"

namespace sonalyx {
class MatrixEngine;
}

namespace sonalyx::ui {

// The Matrix page's display: the engine's last result typeset (numbers lined up
// on their decimal points, brackets that span the rows), scrollable when it is
// larger than the window. Its context menu (the Menu key, Shift+F10 or the right
// button) copies it to the clipboard as a picture and as text.
class CMatrixWnd : public QAbstractScrollArea {
  Q_OBJECT
 public:
  explicit CMatrixWnd(QWidget* parent = nullptr);

  // Shows the engine's last result; `text` is that result in the page's notation,
  // which the window says when the focus arrives. The engine must outlive the window.
  void showResult(const MatrixEngine& engine, const QString& text);
  const MatrixLayout& matrixLayout() const { return m_layout; }

  // The picture of the whole result on white, as the window draws it.
  QImage picture() const;
  // The result as text: one line per row, a tab between columns.
  QString matrixText() const;
  // Puts the picture and the text on the clipboard; false when there is nothing
  // to copy.
  bool copyToClipboard();

  // What the window says when the focus arrives.
  QString spokenText() const;

 signals:
  // The context menu's "Copy To Clipboard" was chosen.
  void copyRequested();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;

 private:
  // The font the matrix is set in, which follows the page's.
  QFont typeface() const;
  void relayout();
  void updateScrollBars();
  // Draws what of the result lies in `area` (content coordinates).
  void drawMatrix(QPainter& painter, const QRect& area) const;
  void showMenu(const QPoint& globalPosition);

  const MatrixEngine* m_engine = nullptr;
  QString m_text;
  MatrixLayout m_layout;
};

}  // namespace sonalyx::ui
