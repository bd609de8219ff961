#include "ui/controls/CTTSListBox.h"

#include <QFocusEvent>

#include "ui/app/CGraphCalcApp.h"
#include "ui/controls/VoicedText.h"

namespace sonalyx::ui {

CTTSListBox::CTTSListBox(QWidget* parent) : QListWidget(parent) {
  connect(this, &QListWidget::currentRowChanged, this, [this](int row) {
    // The user moves the selection while the list has the focus; the program's own
    // changes, and the selection made on arrival, say nothing here.
    if (m_speakSelection && !m_selectingOnFocus && hasFocus() && row >= 0) SpeakItem(SpeechKind::Echo, row);
  });
}

QString CTTSListBox::itemSpokenText(int row) const {
  const QListWidgetItem* entry = item(row);
  if (!entry) return {};
  // A line left empty between groups is heard as such, not as silence.
  if (entry->text().trimmed().isEmpty()) return Translate("Blank line");
  return m_readSymbols ? voiced::expandSymbols(entry->text()) : entry->text();
}

void CTTSListBox::SpeakItem(SpeechKind kind, int row) {
  voiced::say(this, kind, itemSpokenText(row));
}

void CTTSListBox::focusInEvent(QFocusEvent* event) {
  // The view may pick a current item as the focus arrives; this says it once.
  m_selectingOnFocus = true;
  QListWidget::focusInEvent(event);
  if (count() == 0 || !voiced::isArrival(this, event)) {
    m_selectingOnFocus = false;
    return;
  }
  const int row = currentRow() < 0 ? 0 : currentRow();
  setCurrentRow(row);
  m_selectingOnFocus = false;
  SpeakItem(SpeechKind::Echo, row);
}

}  // namespace sonalyx::ui
