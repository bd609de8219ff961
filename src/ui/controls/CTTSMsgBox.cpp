#include "ui/controls/CTTSMsgBox.h"

#include <QApplication>
#include <QPushButton>
#include <QShowEvent>

#include "ui/app/CAccessibilityHooks.h"
#include "ui/app/CGraphCalcApp.h"
#include "ui/controls/CHyperLink.h"
#include "ui/controls/CTTSButton.h"
#include "ui/controls/CTTSStatic.h"

namespace sonalyx::ui {

CTTSMsgBox::CTTSMsgBox(QWidget* parent) : QDialog(parent) {
  setModal(true);
  CAccessibilityHooks::markSelfVoiced(this);
}

void CTTSMsgBox::setBoxSize(int width, int height) {
  m_width = width;
  m_height = height;
}

void CTTSMsgBox::prepare() {
  if (m_prepared) return;
  m_prepared = true;
  setWindowTitle(m_title);
  setFixedSize(m_width, m_height);

  if (m_linkMode) {
    auto* link = new CHyperLink(m_message, this);
    link->setLinkTarget(m_linkTarget);
    link->setVisitedColour(Qt::blue);
    m_messageControl = link;
  } else {
    m_messageControl = new CTTSStatic(m_message, this);
  }
  m_messageControl->setObjectName(QString::number(kMessageControlId));
  m_messageControl->setWordWrap(true);
  m_messageControl->setAlignment(m_leftAlign ? Qt::AlignLeft | Qt::AlignTop
                                             : Qt::AlignHCenter | Qt::AlignTop);
  // The message area keeps 10 pixels from the edges and leaves 60 at the bottom.
  m_messageControl->setGeometry(10, 10, m_width - 20, m_height - 70);

  m_okButton = new QPushButton(Translate(m_buttonText), this);
  m_okButton->setDefault(true);
  m_okButton->setGeometry((m_width - 65) / 2, m_height - 39, 65, 30);
  auto* okVoice = new CTTSButton(m_okButton);
  okVoice->setAnnounceType(true);
  connect(m_okButton, &QPushButton::clicked, this, &QDialog::accept);
  setAccessibleName(m_title);
}

void CTTSMsgBox::setVisible(bool visible) {
  // Built before the box shows, so that its controls show with it.
  if (visible) prepare();
  QDialog::setVisible(visible);
}

void CTTSMsgBox::showEvent(QShowEvent* event) {
  QDialog::showEvent(event);
  m_messageControl->setFocus(Qt::OtherFocusReason);
  QApplication::beep();
}

}  // namespace sonalyx::ui
