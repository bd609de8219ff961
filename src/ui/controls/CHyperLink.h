#pragma once

#include <QColor>

#include "ui/controls/CTTSStatic.h"

namespace sonalyx::ui {

// A text that opens an address: a web page or "mailto:" mail. It speaks on focus
// like CTTSStatic, shows its target as a tooltip and a hand cursor, and opens the
// target on a left click inside its text or on Enter or Space. A link that opened
// turns to its visited colour; one that did not sounds the warning beep.
class CHyperLink : public CTTSStatic {
  Q_OBJECT
 public:
  explicit CHyperLink(const QString& text = {}, QWidget* parent = nullptr);

  void setLinkTarget(const QString& target);
  const QString& linkTarget() const { return m_target; }
  void setVisitedColour(const QColor& colour) { m_visitedColour = colour; }
  bool visited() const { return m_visited; }

  // Opens the target; false (after the beep) when it could not be opened.
  bool Open();

 signals:
  void opened(const QString& target);

 protected:
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void applyColour(const QColor& colour);
  // Where a click counts: the text itself, not the empty rest of the control.
  QRect hotRect() const;

  QString m_target;
  QColor m_visitedColour;
  bool m_visited = false;
};

}  // namespace sonalyx::ui
