#include "ui/pages/CSettingsPage.h"

#include <QAbstractButton>
#include <QLabel>
#include <QLineEdit>
#include <QScrollArea>
#include <QTimer>
#include <QVBoxLayout>

#include "ui/accessible/AccessibleTree.h"
#include "ui/app/CGraphCalcApp.h"
#include "ui/app/Voice.h"
#include "ui/controls/CTTSButton.h"
#include "ui/controls/CTTSEdit.h"
#include "ui/controls/CTTSSliderCtrl.h"
#include "ui/sheet/CCalcSheet.h"

namespace sonalyx::ui {

CSettingsPage::CSettingsPage(const QString& caption, QWidget* parent) : CCalcPage(caption, parent) {
  auto* outer = new QVBoxLayout(this);
  outer->setContentsMargins(0, 0, 0, 0);
  outer->setSpacing(0);
  m_scroll = new QScrollArea(this);
  m_scroll->setWidgetResizable(true);
  m_scroll->setFrameShape(QFrame::NoFrame);
  m_scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  // Tab goes to the controls, never to the area that holds them.
  m_scroll->setFocusPolicy(Qt::NoFocus);
  accessible::markLayoutOnly(m_scroll);
  accessible::markLayoutOnly(m_scroll->viewport());
  m_content = new QWidget();
  accessible::markLayoutOnly(m_content);
  m_column = new QVBoxLayout(m_content);
  m_column->setContentsMargins(4, 4, 4, 4);
  m_scroll->setWidget(m_content);
  outer->addWidget(m_scroll, 1);

  m_refusal = new QLabel(this);
  m_refusal->setWordWrap(true);
  m_refusal->setAccessibleName(Translate("Error"));
  QFont bold = m_refusal->font();
  bold.setBold(true);
  m_refusal->setFont(bold);
  m_refusal->setContentsMargins(4, 2, 4, 2);
  m_refusal->hide();
  outer->addWidget(m_refusal);
}

QString CSettingsPage::refusalText() const {
  return m_refusal->isHidden() ? QString() : m_refusal->text();
}

void CSettingsPage::OnSetActive() {
  m_entered = true;
  CCalcPage::OnSetActive();
}

bool CSettingsPage::OnKillActive() {
  if (!m_entered) return true;
  if (!Leave()) return false;
  m_entered = false;
  return true;
}

const SettingsStore& CSettingsPage::settings() {
  return CGraphCalcApp::instance()->settings();
}

void CSettingsPage::requestRedraw() {
  if (CCalcSheet* owner = sheet()) emit owner->redrawGraphRequested();
}

void CSettingsPage::refuse(QLineEdit* field, const std::string& message) {
  const QString text = QString::fromStdString(message);
  m_refusal->setText(text);
  m_refusal->setAccessibleDescription(text);
  m_refusal->show();
  // The sheet shows this page again only after the refusal: the focus follows then.
  QTimer::singleShot(0, field, [this, field, text] {
    if (!isVisible()) return;
    field->setFocus(Qt::OtherFocusReason);
    field->selectAll();
    m_scroll->ensureWidgetVisible(field);
    // After the field's own words, which it cuts off: the reason is what matters.
    voice::Speak(SpeechKind::Content, text);
  });
}

void CSettingsPage::clearRefusal() {
  m_refusal->clear();
  m_refusal->hide();
}

CTTSButton* CSettingsPage::voiceToggle(QAbstractButton* button, const char* spokenLabel) {
  auto* voice = new CTTSButton(button);
  if (spokenLabel) voice->setSpokenLabel(spokenLabel);
  voice->setToggleSound(true);
  return voice;
}

CTTSEdit* CSettingsPage::makeEdit(const char* spokenLabel, const char* name, const char* description) {
  auto* edit = new CTTSEdit(m_content);
  edit->setSpokenLabel(spokenLabel);
  edit->setAccessibleName(Translate(name));
  edit->setAccessibleDescription(Translate(description));
  return edit;
}

CTTSSliderCtrl* CSettingsPage::makeSlider(const char* spokenLabel, const char* unit, const char* description,
                                          int minimum, int maximum, int pageStep) {
  auto* slider = new CTTSSliderCtrl(Qt::Horizontal, m_content);
  slider->setSpokenLabel(spokenLabel);
  slider->setSpokenUnit(unit);
  slider->setAccessibleDescription(Translate(description));
  slider->setRange(minimum, maximum);
  slider->setSingleStep(1);
  slider->setPageStep(pageStep);
  // A drag stores nothing until the thumb is let go; keys store at once.
  slider->setTracking(false);
  return slider;
}

}  // namespace sonalyx::ui
