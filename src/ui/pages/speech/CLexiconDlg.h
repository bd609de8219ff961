#pragma once

#include <QDialog>

#include "core/speech/PronunciationLexicon.h"

class QPushButton;

namespace sonalyx::ui {

class CTTSEdit;
class CTTSListBox;

// The Speech page's "Lexicon" dialog: the pronunciation list, a word and how the
// voice is to say it. Add puts the pair in the list (or changes the word's spoken
// form), Remove takes the chosen pair out; each says what it did. OK keeps the
// list, Cancel forgets the changes.
class CLexiconDlg : public QDialog {
  Q_OBJECT
 public:
  CLexiconDlg(PronunciationLexicon lexicon, QWidget* parent = nullptr);

  const PronunciationLexicon& lexicon() const { return m_lexicon; }

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  void add();
  void remove();
  void refill(int row);

  PronunciationLexicon m_lexicon;
  CTTSListBox* m_list = nullptr;
  CTTSEdit* m_word = nullptr;
  CTTSEdit* m_spoken = nullptr;
};

}  // namespace sonalyx::ui
