#pragma once

#include <QWidget>

namespace sonalyx::ui {

class CCalcSheet;

// The base of the control panel's eight pages. A page reads its controls from the
// settings each time it becomes active (OnSetActive) and may refuse to be left
// (OnKillActive), for example while one of its fields holds something invalid.
class CCalcPage : public QWidget {
  Q_OBJECT
 public:
  // `caption` is the page's translated tab caption.
  explicit CCalcPage(const QString& caption, QWidget* parent = nullptr);

  const QString& caption() const { return m_caption; }

  // Called when the page comes to the front; a page re-reads its settings here and
  // then calls this base, which records it as the sheet's current page.
  virtual void OnSetActive();
  // Called before the sheet leaves the page; false keeps the page in front.
  virtual bool OnKillActive() { return true; }
  // Moves the focus to one group of the page's controls (the groups are the page's
  // own, numbered from 0). A page without groups focuses its first control.
  virtual void FocusGroup(int group);

  CCalcSheet* sheet() const;

 private:
  QString m_caption;
};

}  // namespace sonalyx::ui
