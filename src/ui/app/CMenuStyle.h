#pragma once

#include <QProxyStyle>

namespace sonalyx::ui {

// The desktop's style with the menu behaviour a keyboard user relies on: the arrow
// keys stop on disabled menu items too (so that they are heard as "Grayed"), and
// Alt alone moves into the menu bar.
class CMenuStyle : public QProxyStyle {
 public:
  using QProxyStyle::QProxyStyle;

  int styleHint(StyleHint hint, const QStyleOption* option = nullptr, const QWidget* widget = nullptr,
                QStyleHintReturn* returnData = nullptr) const override;
};

}  // namespace sonalyx::ui
