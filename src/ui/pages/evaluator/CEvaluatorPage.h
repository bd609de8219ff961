#pragma once

#include "core/pages/EvaluatorSession.h"
#include "ui/sheet/CCalcPage.h"

namespace sonalyx::ui {

class CTTSEdit;
class CTTSListBox;

// The expression evaluator: Enter in the expression box evaluates it (or stores
// "name = expression"), shows the result, says "Result : ..." and puts the line at
// the top of the results list; Up and Down bring earlier entries back.
class CEvaluatorPage : public CCalcPage {
  Q_OBJECT
 public:
  explicit CEvaluatorPage(const QString& caption, QWidget* parent = nullptr);

  CTTSEdit* expressionBox() const { return m_expression; }
  CTTSEdit* resultBox() const { return m_result; }
  CTTSListBox* resultsList() const { return m_list; }

 protected:
  bool PreTranslateKey(QKeyEvent* event) override;

 private:
  void enter();
  void recall(bool up);

  EvaluatorSession m_session;
  CTTSEdit* m_expression = nullptr;
  CTTSEdit* m_result = nullptr;
  CTTSListBox* m_list = nullptr;
};

}  // namespace sonalyx::ui
