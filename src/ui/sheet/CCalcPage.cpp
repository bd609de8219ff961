#include "ui/sheet/CCalcPage.h"

#include <QApplication>
#include <QKeyEvent>
#include <QKeySequence>
#include <QShortcut>

#include "ui/sheet/CCalcSheet.h"

namespace sonalyx::ui {

struct CCalcPage::Accelerator {
  QKeySequence keys;
  std::function<void()> action;
  // Made when the page first shows, inside the panel it then belongs to.
  QPointer<QShortcut> shortcut;
};

CCalcPage::CCalcPage(const QString& caption, QWidget* parent) : QWidget(parent), m_caption(caption) {
  setAccessibleName(caption);
}

CCalcPage::~CCalcPage() {
  enableKeys(false);
  // The shortcuts belong to the panel, which outlives its pages.
  for (Accelerator& accelerator : m_accelerators) delete accelerator.shortcut;
}

void CCalcPage::OnSetActive() {
  if (CCalcSheet* owner = sheet()) owner->setCurrentPage(this);
}

void CCalcPage::FocusGroup(int /*group*/) {
  for (QWidget* next = nextInFocusChain(); next && next != this; next = next->nextInFocusChain()) {
    if (isAncestorOf(next) && next->isVisibleTo(this) && next->isEnabled() &&
        (next->focusPolicy() & Qt::TabFocus)) {
      next->setFocus(Qt::OtherFocusReason);
      return;
    }
  }
}

CCalcSheet* CCalcPage::sheet() const {
  for (QWidget* up = parentWidget(); up; up = up->parentWidget())
    if (auto* found = qobject_cast<CCalcSheet*>(up)) return found;
  return nullptr;
}

QWidget* CCalcPage::keyScope() const {
  if (CCalcSheet* owner = sheet()) return owner;
  return const_cast<CCalcPage*>(this);
}

bool CCalcPage::PreTranslateKey(QKeyEvent* /*event*/) {
  return false;
}

void CCalcPage::AddAccelerator(const QKeySequence& keys, std::function<void()> action) {
  m_accelerators.push_back({keys, std::move(action), nullptr});
  if (isVisible()) enableKeys(true);
}

void CCalcPage::enableKeys(bool on) {
  for (Accelerator& accelerator : m_accelerators) {
    if (!accelerator.shortcut && on) {
      accelerator.shortcut = new QShortcut(accelerator.keys, keyScope());
      accelerator.shortcut->setContext(Qt::WidgetWithChildrenShortcut);
      connect(accelerator.shortcut, &QShortcut::activated, this, accelerator.action);
    }
    if (accelerator.shortcut) accelerator.shortcut->setEnabled(on);
  }
  if (on == m_filtering) return;
  m_filtering = on;
  if (on)
    qApp->installEventFilter(this);
  else
    qApp->removeEventFilter(this);
}

void CCalcPage::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  enableKeys(true);
}

void CCalcPage::hideEvent(QHideEvent* event) {
  QWidget::hideEvent(event);
  enableKeys(false);
}

bool CCalcPage::eventFilter(QObject* watched, QEvent* event) {
  const QEvent::Type type = event->type();
  if (type != QEvent::KeyPress && type != QEvent::ShortcutOverride)
    return QWidget::eventFilter(watched, event);
  // Once per key: for the focused control, not again for each parent it passes.
  QWidget* focused = QApplication::focusWidget();
  if (watched != focused || !focused) return false;
  const QWidget* scope = keyScope();
  if (focused != scope && !scope->isAncestorOf(focused)) return false;
  return PreTranslateKey(static_cast<QKeyEvent*>(event));
}

}  // namespace sonalyx::ui
