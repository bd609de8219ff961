#pragma once

#include "core/pages/MatrixSession.h"
#include "ui/sheet/CCalcPage.h"

namespace sonalyx::ui {

class CMatrixWnd;
class CTTSEdit;

// The matrix calculator: Enter in the edit evaluates the expression (ANS is the
// last result; "A = [1,2;3,4]" stores a variable), the result replaces the text,
// is said row by row and is typeset in the display window below; Up and Down
// bring earlier entries back.
class CMatrixPage : public CCalcPage {
  Q_OBJECT
 public:
  explicit CMatrixPage(const QString& caption, QWidget* parent = nullptr);

  CTTSEdit* expressionEdit() const { return m_edit; }
  CMatrixWnd* matrixWindow() const { return m_window; }
  const MatrixSession& session() const { return m_session; }

  // Copies the result shown to the clipboard and says so, or says that there is
  // nothing to copy.
  void CopyMatrix();

 protected:
  bool PreTranslateKey(QKeyEvent* event) override;

 private:
  void enter();
  void recall(bool up);

  MatrixSession m_session;
  CTTSEdit* m_edit = nullptr;
  CMatrixWnd* m_window = nullptr;
};

}  // namespace sonalyx::ui
