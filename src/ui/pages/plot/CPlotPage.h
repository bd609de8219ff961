#pragma once

#include <QList>
#include <array>

#include "core/pages/PlotPageForm.h"
#include "ui/pages/CSettingsPage.h"

class QCheckBox;
class QLabel;
class QRadioButton;

namespace sonalyx::ui {

// The Plot page: what is drawn (the source set and its calculus curve), the
// function's domain and number of points, the graph range with auto-scaling, how
// points are drawn, the axes and the frame. Every change is stored at once and the
// graph follows; leaving the page with a field that cannot be stored says why and
// keeps the focus there.
class CPlotPage : public CSettingsPage {
  Q_OBJECT
 public:
  explicit CPlotPage(const QString& caption, QWidget* parent = nullptr);

  void OnSetActive() override;
  // The groups of the "&Options" "&Plot" submenu: source, calculus, axes, frame,
  // range.
  void FocusGroup(int group) override;

 protected:
  bool Leave() override;

 private:
  struct Toggle {
    QCheckBox* box;
    bool (SettingsStore::*get)() const;
    bool (SettingsStore::*set)(bool) const;
  };

  QRadioButton* addRadio(QWidget* group, const char* face, const char* spoken = nullptr);
  QCheckBox* addToggle(QWidget* group, const char* face, bool (SettingsStore::*get)() const,
                       bool (SettingsStore::*set)(bool) const, const char* spoken = nullptr);
  // Stores a radio group's choice when it differs from the stored one.
  void onSource(std::uint32_t setType);
  void onChoice(std::uint32_t (SettingsStore::*get)() const, bool (SettingsStore::*set)(std::uint32_t) const,
                std::uint32_t value);
  void onFieldEdited();
  void updateEnabled();
  PlotPageForm form() const;
  void focusAndSay(QWidget* control);

  std::array<QRadioButton*, 4> m_source{};
  // In the page's order: Function, Integral, Derivative.
  std::array<QRadioButton*, 3> m_calculus{};
  std::array<QRadioButton*, 3> m_frame{};
  std::array<CTTSEdit*, PlotPageForm::kFieldCount> m_fields{};
  std::array<QLabel*, PlotPageForm::kFieldCount> m_labels{};
  QCheckBox* m_autoScaleX = nullptr;
  QCheckBox* m_autoScaleY = nullptr;
  QCheckBox* m_showXAxis = nullptr;
  QList<Toggle> m_toggles;
};

}  // namespace sonalyx::ui
