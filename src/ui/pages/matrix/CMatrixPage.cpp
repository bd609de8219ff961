#include "ui/pages/matrix/CMatrixPage.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QVBoxLayout>

#include "core/speech/TranslationMarker.h"
#include "ui/app/CGraphCalcApp.h"
#include "ui/app/Voice.h"
#include "ui/controls/CTTSEdit.h"
#include "ui/controls/VoicedText.h"
#include "ui/pages/matrix/CMatrixWnd.h"

namespace sonalyx::ui {

namespace {

constexpr int kLongestExpression = 1 << 24;

QString fromStd(const std::string& text) {
  return QString::fromStdString(text);
}

}  // namespace

CMatrixPage::CMatrixPage(const QString& caption, QWidget* parent)
    : CCalcPage(caption, parent), m_session([](const std::string& english) { return Translate(english); }) {
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(4, 4, 4, 4);

  m_edit = new CTTSEdit(this);
  // An edit holds 32767 characters unless told otherwise: too few for the text
  // of a 100 x 100 matrix, typed, pasted or a result.
  m_edit->setMaxLength(kLongestExpression);
  m_edit->setSpokenLabel(MatrixSession::kEditLabel);
  m_edit->setAccessibleName(Translate("Matrix expression"));
  m_edit->setAccessibleDescription(Translate(
      "Enter evaluates it or stores NAME = expression; ANS is the last result; Up and Down bring earlier "
      "entries back."));
  auto* label = new QLabel(Translate(MatrixSession::kEditLabel), this);
  label->setBuddy(m_edit);

  m_window = new CMatrixWnd(this);
  connect(m_window, &CMatrixWnd::copyRequested, this, &CMatrixPage::CopyMatrix);

  layout->addWidget(label);
  layout->addWidget(m_edit);
  layout->addWidget(m_window, 1);
}

bool CMatrixPage::PreTranslateKey(QKeyEvent* event) {
  if (event->type() != QEvent::KeyPress || QApplication::focusWidget() != m_edit) return false;
  if (event->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) return false;
  switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      enter();
      return true;
    case Qt::Key_Up:
    case Qt::Key_Down:
      recall(event->key() == Qt::Key_Up);
      return true;
    default:
      return false;
  }
}

void CMatrixPage::enter() {
  const MatrixEntry shown = m_session.enter(m_edit->text().toStdString());
  if (!shown.handled) return;
  m_edit->setText(fromStd(shown.editText));
  if (shown.redraw) m_window->showResult(m_session.engine(), fromStd(m_session.lastAnswer()));
  if (shown.speech) voiced::say(m_edit, SpeechKind::Content, voiced::expandSymbols(fromStd(*shown.speech)));
  // Selected, so that typing replaces the result or the error. (selectAll would
  // lay a long result's text out a second time.)
  if (shown.selectAll) m_edit->setSelection(0, static_cast<int>(m_edit->text().size()));
}

void CMatrixPage::recall(bool up) {
  const auto recalled = up ? m_session.recallUp() : m_session.recallDown();
  if (!recalled) return;
  m_edit->setText(fromStd(recalled->editText));
  voiced::say(m_edit, SpeechKind::Echo, voiced::expandSymbols(fromStd(recalled->speech)));
}

void CMatrixPage::CopyMatrix() {
  const bool copied = m_window->copyToClipboard();
  voice::Speak(SpeechKind::Content, copied ? Translate("Matrix copied to the clipboard.")
                                           : Translate("There is no matrix to copy."));
}

}  // namespace sonalyx::ui
