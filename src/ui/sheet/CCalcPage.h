#pragma once

#include <QPointer>
#include <QWidget>
#include <functional>
#include <vector>

class QKeyEvent;
class QKeySequence;
class QShortcut;

namespace sonalyx::ui {

class CCalcSheet;

// The base of the control panel's eight pages. A page reads its controls from the
// settings each time it becomes active (OnSetActive) and may refuse to be left
// (OnKillActive), for example while one of its fields holds something invalid.
//
// A page may have keys of its own: accelerators that work from anywhere in the
// panel (its tabs included) while the page is in front, and a keyboard filter
// (PreTranslateKey) that sees every key before the focused control and the
// accelerators do.
class CCalcPage : public QWidget {
  Q_OBJECT
 public:
  // `caption` is the page's translated tab caption.
  explicit CCalcPage(const QString& caption, QWidget* parent = nullptr);
  ~CCalcPage() override;

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

 protected:
  // Sees a key first while the page is in front and the focus is in the panel:
  // `event` is the ShortcutOverride that comes before the accelerators, or the
  // KeyPress that follows when no accelerator took the key. True takes the event
  // away from the focused control; accepting a ShortcutOverride also keeps the
  // accelerators from the key.
  virtual bool PreTranslateKey(QKeyEvent* event);
  // Runs `action` when `keys` are pressed anywhere in the panel while the page is
  // in front.
  void AddAccelerator(const QKeySequence& keys, std::function<void()> action);

  void showEvent(QShowEvent* event) override;
  void hideEvent(QHideEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  struct Accelerator;
  // Where the page's keys count: its sheet, with the tabs, or the page alone.
  QWidget* keyScope() const;
  void enableKeys(bool on);

  QString m_caption;
  std::vector<Accelerator> m_accelerators;
  bool m_filtering = false;
};

}  // namespace sonalyx::ui
