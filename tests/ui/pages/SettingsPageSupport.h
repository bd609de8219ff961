#pragma once

#include <QAbstractButton>
#include <QAccessible>
#include <QAccessibleInterface>
#include <QApplication>
#include <QLineEdit>
#include <QSlider>
#include <QTest>
#include <QWidget>
#include <string>

#include "ui/UiTestSupport.h"
#include "ui/sheet/CCalcSheet.h"

namespace sonalyx::test {

// The control of `page` that can take the focus whose accessible name is `name`;
// fails the test when there is none or more than one.
template <typename T = QWidget>
T* control(QWidget* page, const QString& name) {
  T* found = nullptr;
  int count = 0;
  for (T* each : page->findChildren<T*>()) {
    // A combo box's open list lives in a window of its own and speaks as the box.
    if (each->focusPolicy() == Qt::NoFocus || each->window() != page->window()) continue;
    QAccessibleInterface* iface = QAccessible::queryAccessibleInterface(each);
    // A combo box's accessible name is its text; its label names it as a relation.
    const bool named = each->accessibleName() == name || (iface && iface->text(QAccessible::Name) == name);
    if (named) found = each, ++count;
  }
  EXPECT_EQ(count, 1) << name.toStdString();
  return found;
}

// What a user does to a control, with real keys: Space presses a button, a text
// is typed over an edit's whole text, a slider takes arrow keys.
inline void press(QWidget* widget, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
  widget->setFocus(Qt::TabFocusReason);
  QTest::keyClick(widget, key, modifiers);
  QApplication::processEvents();
}

inline void typeOver(QLineEdit* edit, const QString& text) {
  edit->setFocus(Qt::TabFocusReason);
  edit->selectAll();
  QTest::keyClick(edit, Qt::Key_Delete);
  QTest::keyClicks(edit, text);
  QApplication::processEvents();
}

// Leaves the page the way a user does, with Ctrl+Tab; whether the page let go.
inline bool leavePage(const ProgramUnderTest& program, int pageIndex) {
  program.press(Qt::Key_Tab, Qt::ControlModifier);
  QTest::qWait(10);
  return program.child()->sheet()->currentIndex() != pageIndex;
}

}  // namespace sonalyx::test
