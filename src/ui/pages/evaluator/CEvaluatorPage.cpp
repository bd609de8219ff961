#include "ui/pages/evaluator/CEvaluatorPage.h"

#include <QApplication>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>

#include "ui/app/CGraphCalcApp.h"
#include "ui/controls/CTTSEdit.h"
#include "ui/controls/CTTSListBox.h"
#include "ui/controls/VoicedText.h"

namespace sonalyx::ui {

namespace {

QString fromStd(const std::string& text) {
  return QString::fromStdString(text);
}

}  // namespace

CEvaluatorPage::CEvaluatorPage(const QString& caption, QWidget* parent)
    : CCalcPage(caption, parent), m_session([](const std::string& english) { return Translate(english); }) {
  auto* layout = new QGridLayout(this);
  layout->setContentsMargins(4, 4, 4, 4);

  m_expression = new CTTSEdit(this);
  m_expression->setSpokenLabel(EvaluatorSession::kExpressionLabel);
  m_expression->setAccessibleName(Translate("Expression"));
  m_expression->setAccessibleDescription(
      Translate("Enter evaluates it or stores name = expression; Up and Down bring earlier entries back."));
  auto* expressionLabel = new QLabel(Translate("Expression:"), this);
  expressionLabel->setBuddy(m_expression);

  m_result = new CTTSEdit(this);
  m_result->setReadOnly(true);
  m_result->setSpokenLabel(EvaluatorSession::kResultLabel);
  m_result->setAccessibleName(Translate("Result"));
  m_result->setAccessibleDescription(Translate("The result of the last entry."));
  auto* resultLabel = new QLabel(Translate("Result:"), this);
  resultLabel->setBuddy(m_result);

  m_list = new CTTSListBox(this);
  m_list->setSpeakSelection(true);
  m_list->setAccessibleName(Translate("Results"));
  m_list->setAccessibleDescription(Translate("Every entry with its result, the newest first."));

  layout->addWidget(expressionLabel, 0, 0);
  layout->addWidget(m_expression, 0, 1);
  layout->addWidget(resultLabel, 1, 0);
  layout->addWidget(m_result, 1, 1);
  layout->addWidget(m_list, 2, 0, 1, 2);
  layout->setRowStretch(2, 1);
}

bool CEvaluatorPage::PreTranslateKey(QKeyEvent* event) {
  if (event->type() != QEvent::KeyPress || QApplication::focusWidget() != m_expression) return false;
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

void CEvaluatorPage::enter() {
  const EvaluatorEntry shown = m_session.enter(m_expression->text().toStdString());
  if (!shown.handled) return;
  m_result->setText(fromStd(shown.resultText));
  if (shown.listEntry) {
    // The list keeps what the session keeps: the oldest line goes when it is full.
    m_list->insertItem(0, fromStd(*shown.listEntry));
    while (m_list->count() > static_cast<int>(m_session.resultsList().size()))
      delete m_list->takeItem(m_list->count() - 1);
  }
  if (shown.clearExpression) m_expression->clear();
  if (shown.speech) voiced::say(m_result, SpeechKind::Content, voiced::expandSymbols(fromStd(*shown.speech)));
}

void CEvaluatorPage::recall(bool up) {
  const auto recalled = up ? m_session.recallUp() : m_session.recallDown();
  if (!recalled) return;
  m_expression->setText(fromStd(recalled->expressionText));
  voiced::say(m_expression, SpeechKind::Echo, voiced::expandSymbols(fromStd(recalled->speech)));
}

}  // namespace sonalyx::ui
