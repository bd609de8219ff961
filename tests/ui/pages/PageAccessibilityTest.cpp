#include <gtest/gtest.h>

#include <QAccessible>
#include <QAccessibleInterface>
#include <QLabel>

#include "ui/UiTestSupport.h"
#include "ui/sheet/CCalcSheet.h"

namespace sonalyx::ui {
namespace {

// Every control of the calculation pages that the keyboard reaches (and the
// memory indicator, which it does not) tells a screen reader its name, its kind
// and what it is for, before anything has been said.
TEST(PageAccessibility, EveryControlHasANameAndADescription) {
  test::ProgramUnderTest program;
  ASSERT_TRUE(program.started());
  CCalcSheet* sheet = program.child()->sheet();
  for (const int index : {CCalcSheet::kCalculator, CCalcSheet::kEvaluator, CCalcSheet::kMatrix}) {
    CCalcPage* page = sheet->page(index);
    int controls = 0;
    for (QWidget* widget : page->findChildren<QWidget*>()) {
      const bool reached = (widget->focusPolicy() & Qt::TabFocus) != 0;
      const bool indicator = qobject_cast<QLabel*>(widget) && !widget->accessibleName().isEmpty();
      if (!reached && !indicator) continue;
      // Parts of a control (a combo box's popup list, a viewport) speak as the control.
      if (widget->focusProxy() || widget->window() != page->window()) continue;
      ++controls;
      QAccessibleInterface* control = QAccessible::queryAccessibleInterface(widget);
      ASSERT_NE(control, nullptr);
      const QString what = QString("%1 on page %2").arg(widget->metaObject()->className()).arg(index);
      EXPECT_FALSE(control->text(QAccessible::Name).trimmed().isEmpty()) << what.toStdString();
      EXPECT_FALSE(control->text(QAccessible::Description).trimmed().isEmpty())
          << what.toStdString() << " " << control->text(QAccessible::Name).toStdString();
      // A pane or filler tells a screen reader nothing of what the control is.
      const QAccessible::Role role = control->role();
      EXPECT_TRUE(role != QAccessible::Client && role != QAccessible::Pane && role != QAccessible::NoRole)
          << what.toStdString() << " role " << role;
    }
    EXPECT_GE(controls, index == CCalcSheet::kCalculator ? 59 : 2) << index;
  }
}

// The settings pages likewise; their check boxes and radio buttons say all there is
// to them by name and state, within their named groups.
TEST(PageAccessibility, EverySettingsControlHasANameAndTheFieldsADescription) {
  test::ProgramUnderTest program;
  ASSERT_TRUE(program.started());
  CCalcSheet* sheet = program.child()->sheet();
  for (const int index : {CCalcSheet::kPlot, CCalcSheet::kWave, CCalcSheet::kSpeech}) {
    CCalcPage* page = sheet->page(index);
    int controls = 0;
    for (QWidget* widget : page->findChildren<QWidget*>()) {
      if (widget->focusPolicy() == Qt::NoFocus || widget->focusProxy() || widget->window() != page->window())
        continue;
      ++controls;
      QAccessibleInterface* control = QAccessible::queryAccessibleInterface(widget);
      ASSERT_NE(control, nullptr);
      const std::string what = QString("%1 \"%2\" on page %3")
                                   .arg(widget->metaObject()->className(), control->text(QAccessible::Name))
                                   .arg(index)
                                   .toStdString();
      EXPECT_FALSE(control->text(QAccessible::Name).trimmed().isEmpty()) << what;
      const QAccessible::Role role = control->role();
      EXPECT_TRUE(role != QAccessible::Client && role != QAccessible::Pane && role != QAccessible::NoRole)
          << what;
      if (role != QAccessible::CheckBox && role != QAccessible::RadioButton) {
        EXPECT_FALSE(control->text(QAccessible::Description).trimmed().isEmpty()) << what;
      }
    }
    EXPECT_GE(controls, 10) << index;
  }
}

}  // namespace
}  // namespace sonalyx::ui
