#pragma once

#include <QSizeF>
#include <QWidget>
#include <array>

#include "core/math/DataSet.h"
#include "ui/graph/GraphPage.h"

namespace sonalyx::ui {

// The print setup's live preview: the whole page, scaled to fit, painted by the
// same function as the printer's page. It takes no focus; the dialog says the
// size and the y labels' factor in words.
class CPrintPreview : public QWidget {
  Q_OBJECT
 public:
  CPrintPreview(const std::array<DataSet, 4>& sets, QWidget* parent = nullptr);

  void show(const GraphPageChoices& choices, QSizeF pageInches);
  // Where the page sits in the widget.
  QRect pageRect() const;

  QSize sizeHint() const override { return {220, 280}; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  const std::array<DataSet, 4>& m_slots;
  GraphPageChoices m_choices;
  QSizeF m_pageInches{8.5, 11.0};
  bool m_valid = false;
};

}  // namespace sonalyx::ui
