#pragma once

#include <QWidget>
#include <array>
#include <cstdint>

class QLabel;

namespace sonalyx::ui {

class CGraphCalcApp;
class CGraphWnd;

// The graph's frame beside the control panel: the graph itself, its tick labels
// in the margins, a title naming the set played (and the y labels' factor), and
// read-outs of the cursor point's x and y and its number, which follow the mouse
// while a button is held.
class CPlotWnd : public QWidget {
  Q_OBJECT
 public:
  explicit CPlotWnd(CGraphCalcApp& app, QWidget* parent = nullptr);

  CGraphWnd* graph() const { return m_graph; }
  // Draws the graph, its labels, title and read-outs anew.
  void redraw();

  QString titleText() const;
  // The read-outs' texts: x, y and the point's number.
  std::array<QString, 3> readOuts() const;

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void layoutChildren();
  void showCursor();
  void showPointer(double x, double y);

  CGraphCalcApp& m_app;
  CGraphWnd* m_graph;
  QLabel* m_title;
  std::array<QLabel*, 3> m_captions{};
  std::array<QLabel*, 3> m_fields{};
};

}  // namespace sonalyx::ui
