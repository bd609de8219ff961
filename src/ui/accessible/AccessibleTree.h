#pragma once

class QTabWidget;
class QWidget;

// What a screen reader finds in the program's windows, beyond Qt's defaults: the
// control panel as a page-tab list whose tabs hold their pages, containers that a
// screen reader skips, menu items named without their keys, and focus events it
// can follow (one focused object, and the menus' own focus kept while they are
// open).
namespace sonalyx::ui::accessible {

// Installs the program's accessible interfaces and its filter of accessibility
// events; once per process, before the windows are made.
void install();

// Marks a widget that only lays out others: a screen reader passes over it.
void markLayoutOnly(QWidget* widget);
// Marks a tab widget whose tabs are shown as one page-tab list holding the pages;
// after its pages have been added.
void markPageTabList(QTabWidget* tabs);

// Tells the screen reader that the focus is on `menu`'s active item: Qt says
// nothing when a submenu closes and leaves its parent's item current.
void announceMenuItem(QWidget* menu);

// While one lives, focus moves are not reported: the program passes the focus on
// in steps, and only where it ends is news.
class QuietFocus {
 public:
  QuietFocus();
  ~QuietFocus();
  QuietFocus(const QuietFocus&) = delete;
  QuietFocus& operator=(const QuietFocus&) = delete;
};

}  // namespace sonalyx::ui::accessible
