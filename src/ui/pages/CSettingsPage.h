#pragma once

#include <QString>
#include <string>

#include "ui/sheet/CCalcPage.h"

class QAbstractButton;
class QLabel;
class QLineEdit;
class QScrollArea;
class QVBoxLayout;

namespace sonalyx {
class SettingsStore;
}

namespace sonalyx::ui {

class CTTSButton;
class CTTSEdit;
class CTTSSliderCtrl;

// What the Plot, Wave and Speech pages share: their controls stand in a column
// that scrolls when the panel is small; a control's change is stored at once, but
// not while the page fills its controls from the settings; a refusal puts the
// focus back on the field, says why and shows it at the foot of the page.
class CSettingsPage : public CCalcPage {
  Q_OBJECT
 public:
  explicit CSettingsPage(const QString& caption, QWidget* parent = nullptr);

  // The last refusal shown; empty when there is none.
  QString refusalText() const;

  // A page that has shown its settings checks its fields before it goes (Leave); one
  // that never came to the front has nothing to check.
  void OnSetActive() override;
  bool OnKillActive() final;

 protected:
  // Stores what the fields hold, or refuses the first that cannot be stored.
  virtual bool Leave() = 0;

  // The column the page's groups go into.
  QVBoxLayout* column() const { return m_column; }
  QWidget* content() const { return m_content; }

  // The settings of the running program.
  static const SettingsStore& settings();
  // Asks the graph to redraw with the settings as they are now.
  void requestRedraw();

  // True while OnSetActive fills the controls: their change signals store nothing.
  bool loading() const { return m_loading; }
  class Loading {
   public:
    explicit Loading(CSettingsPage& page) : m_page(page) { m_page.m_loading = true; }
    ~Loading() { m_page.m_loading = false; }
    Loading(const Loading&) = delete;
    Loading& operator=(const Loading&) = delete;

   private:
    CSettingsPage& m_page;
  };

  // The focus back on `field` with its text selected, then `message`, said as
  // content and shown at the foot of the page.
  void refuse(QLineEdit* field, const std::string& message);
  void clearRefusal();

  // A check box or radio button that speaks `spokenLabel` (or its text) with its
  // state, and plays the box's earcon as it is pressed.
  CTTSButton* voiceToggle(QAbstractButton* button, const char* spokenLabel = nullptr);
  // An edit with its spoken label, accessible name and description.
  CTTSEdit* makeEdit(const char* spokenLabel, const char* name, const char* description);
  // A slider with its spoken label and unit, range and steps.
  CTTSSliderCtrl* makeSlider(const char* spokenLabel, const char* unit, const char* description, int minimum,
                             int maximum, int pageStep);

 private:
  QScrollArea* m_scroll = nullptr;
  QWidget* m_content = nullptr;
  QVBoxLayout* m_column = nullptr;
  QLabel* m_refusal = nullptr;
  bool m_loading = false;
  bool m_entered = false;
};

}  // namespace sonalyx::ui
