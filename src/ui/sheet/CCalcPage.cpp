#include "ui/sheet/CCalcPage.h"

#include "ui/sheet/CCalcSheet.h"

namespace sonalyx::ui {

CCalcPage::CCalcPage(const QString& caption, QWidget* parent) : QWidget(parent), m_caption(caption) {
  setAccessibleName(caption);
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

}  // namespace sonalyx::ui
