#include "ui/app/CMenuStyle.h"

namespace sonalyx::ui {

int CMenuStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                          QStyleHintReturn* returnData) const {
  switch (hint) {
    case SH_Menu_AllowActiveAndDisabled:
    case SH_MenuBar_AltKeyNavigation:
      return 1;
    default:
      return QProxyStyle::styleHint(hint, option, widget, returnData);
  }
}

}  // namespace sonalyx::ui
