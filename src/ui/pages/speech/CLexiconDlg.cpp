#include "ui/pages/speech/CLexiconDlg.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>
#include <algorithm>

#include "core/speech/TranslationMarker.h"
#include "ui/app/CAccessibilityHooks.h"
#include "ui/app/CGraphCalcApp.h"
#include "ui/app/Voice.h"
#include "ui/controls/CTTSButton.h"
#include "ui/controls/CTTSEdit.h"
#include "ui/controls/CTTSListBox.h"
#include "ui/controls/VoicedText.h"

namespace sonalyx::ui {

namespace {

QString entryText(const PronunciationLexicon::Entry& entry) {
  return QStringLiteral("%1: %2").arg(QString::fromStdString(entry.word),
                                      QString::fromStdString(entry.spoken));
}

QString filled(const char* english, const QString& a, const QString& b = {}) {
  return Translate(english).replace(QStringLiteral("%1"), a).replace(QStringLiteral("%2"), b);
}

QPushButton* voicedButton(const char* face, const char* description, QWidget* parent) {
  auto* button = new QPushButton(Translate(face), parent);
  button->setAccessibleDescription(Translate(description));
  (new CTTSButton(button))->setAnnounceType(true);
  return button;
}

}  // namespace

CLexiconDlg::CLexiconDlg(PronunciationLexicon lexicon, QWidget* parent)
    : QDialog(parent), m_lexicon(std::move(lexicon)) {
  CAccessibilityHooks::markSelfVoiced(this);
  setWindowTitle(Translate("Lexicon"));
  setAccessibleName(windowTitle());

  m_list = new CTTSListBox(this);
  m_list->setSpeakSelection(true);
  m_list->setAccessibleName(Translate("Pronunciations"));
  m_list->setAccessibleDescription(Translate("Each word and how the voice says it."));
  auto* listLabel = new QLabel(Translate("Pronunciations:"), this);
  listLabel->setBuddy(m_list);

  m_word = new CTTSEdit(this);
  m_word->setSpokenLabel(SLX_TR("Word:"));
  m_word->setAccessibleDescription(Translate("The word as the program writes it."));
  m_spoken = new CTTSEdit(this);
  m_spoken->setSpokenLabel(SLX_TR("Say as:"));
  m_spoken->setAccessibleDescription(Translate("How the voice is to say it."));
  auto* fields = new QFormLayout();
  fields->addRow(Translate("Word:"), m_word);
  fields->addRow(Translate("Say as:"), m_spoken);

  QPushButton* add =
      voicedButton(SLX_TR("Add"), SLX_TR("Puts the word and how to say it in the list."), this);
  QPushButton* remove =
      voicedButton(SLX_TR("Remove"), SLX_TR("Takes the chosen word out of the list."), this);
  connect(add, &QPushButton::clicked, this, &CLexiconDlg::add);
  connect(remove, &QPushButton::clicked, this, &CLexiconDlg::remove);
  auto* editing = new QHBoxLayout();
  editing->addWidget(add);
  editing->addWidget(remove);
  editing->addStretch(1);

  auto* buttons = new QDialogButtonBox(this);
  QPushButton* ok = buttons->addButton(Translate("OK"), QDialogButtonBox::AcceptRole);
  QPushButton* cancel = buttons->addButton(Translate("Cancel"), QDialogButtonBox::RejectRole);
  for (QPushButton* button : {ok, cancel}) (new CTTSButton(button))->setAnnounceType(true);
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

  connect(m_list, &QListWidget::currentRowChanged, this, [this](int row) {
    if (row < 0 || row >= static_cast<int>(m_lexicon.entries().size())) return;
    m_word->setText(QString::fromStdString(m_lexicon.entries()[row].word));
    m_spoken->setText(QString::fromStdString(m_lexicon.entries()[row].spoken));
  });

  auto* layout = new QVBoxLayout(this);
  layout->addWidget(listLabel);
  layout->addWidget(m_list, 1);
  layout->addLayout(fields);
  layout->addLayout(editing);
  layout->addWidget(buttons);
  refill(0);
  setMinimumWidth(360);
}

void CLexiconDlg::refill(int row) {
  const QSignalBlocker quiet(m_list);
  m_list->clear();
  for (const auto& entry : m_lexicon.entries()) m_list->addItem(entryText(entry));
  if (m_list->count() > 0) m_list->setCurrentRow(std::clamp(row, 0, m_list->count() - 1));
}

void CLexiconDlg::add() {
  const QString word = m_word->text().trimmed();
  const QString spoken = m_spoken->text().trimmed();
  if (!m_lexicon.set(word.toStdString(), spoken.toStdString())) {
    m_word->setFocus(Qt::OtherFocusReason);
    voice::Speak(SpeechKind::Content, Translate("Type a word first."));
    return;
  }
  int row = 0;
  for (const auto& entry : m_lexicon.entries()) {
    if (QString::fromStdString(entry.word).compare(word, Qt::CaseInsensitive) == 0) break;
    ++row;
  }
  refill(row);
  voice::Speak(SpeechKind::Content, filled(SLX_TR("Added %1, said as %2."), word, spoken));
}

void CLexiconDlg::remove() {
  const int row = m_list->currentRow();
  if (row < 0 || row >= static_cast<int>(m_lexicon.entries().size())) {
    voice::Speak(SpeechKind::Content, Translate("The list is empty."));
    return;
  }
  const QString word = QString::fromStdString(m_lexicon.entries()[row].word);
  m_lexicon.remove(static_cast<std::size_t>(row));
  refill(row);
  voice::Speak(SpeechKind::Content, filled(SLX_TR("Removed %1."), word));
}

void CLexiconDlg::showEvent(QShowEvent* event) {
  QDialog::showEvent(event);
  // The list when it has words, so they are heard; otherwise the word to type.
  if (m_list->count() > 0)
    m_list->setFocus(Qt::OtherFocusReason);
  else
    m_word->setFocus(Qt::OtherFocusReason);
}

}  // namespace sonalyx::ui
