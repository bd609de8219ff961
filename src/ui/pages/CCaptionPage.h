#pragma once

#include "ui/sheet/CCalcPage.h"

namespace sonalyx::ui {

class CTTSStatic;

// A page that so far shows only its caption, as a text the keyboard can stop on,
// so that Tab has somewhere to go and the user hears where they are.
class CCaptionPage : public CCalcPage {
  Q_OBJECT
 public:
  explicit CCaptionPage(const QString& caption, QWidget* parent = nullptr);

  CTTSStatic* title() const { return m_title; }

 private:
  CTTSStatic* m_title;
};

}  // namespace sonalyx::ui
