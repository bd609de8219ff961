#include "ui/pages/plot/CPlotPage.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QRadioButton>
#include <QVBoxLayout>

#include "core/math/DataSet.h"
#include "core/settings/SettingsStore.h"
#include "core/speech/TranslationMarker.h"
#include "ui/app/CGraphCalcApp.h"
#include "ui/controls/CTTSButton.h"
#include "ui/controls/CTTSEdit.h"
#include "ui/sheet/CCalcSheet.h"

namespace sonalyx::ui {

namespace {

// plotType by the calculus buttons' order on the page: Function, Integral, Derivative.
constexpr std::array<std::uint32_t, 3> kPlotTypes{0, 2, 1};

struct FieldText {
  const char* face;
  const char* spoken;
  const char* name;
  const char* description;
};

constexpr std::array<FieldText, PlotPageForm::kFieldCount> kFieldTexts{{
    {SLX_TR("Start:"), SLX_TR("Start:"), SLX_TR("Start"), SLX_TR("Where f(x) is first sampled.")},
    {SLX_TR("Finish:"), SLX_TR("Finish:"), SLX_TR("Finish"),
     SLX_TR("Where f(x) is last sampled; above Start.")},
    {SLX_TR("# Pts:"), SLX_TR("Number of points:"), SLX_TR("Number of points"),
     SLX_TR("How many points f(x) is sampled at.")},
    {SLX_TR("X min:"), SLX_TR("X min:"), SLX_TR("X min"), SLX_TR("The left end of the graph.")},
    {SLX_TR("X max:"), SLX_TR("X max:"), SLX_TR("X max"), SLX_TR("The right end of the graph.")},
    {SLX_TR("Y min:"), SLX_TR("Y min:"), SLX_TR("Y min"), SLX_TR("The bottom of the graph.")},
    {SLX_TR("Y max:"), SLX_TR("Y max:"), SLX_TR("Y max"), SLX_TR("The top of the graph.")},
}};

QGroupBox* addGroup(QVBoxLayout* column, QWidget* parent, const char* title) {
  auto* group = new QGroupBox(Translate(title), parent);
  group->setAccessibleName(group->title());
  column->addWidget(group);
  return group;
}

}  // namespace

CPlotPage::CPlotPage(const QString& caption, QWidget* parent) : CSettingsPage(caption, parent) {
  QWidget* page = content();

  auto* source = addGroup(column(), page, SLX_TR("Source"));
  auto* sourceLayout = new QVBoxLayout(source);
  const std::array<std::pair<const char*, const char*>, 4> sources{
      {{SLX_TR("Data Set 1"), nullptr},
       {SLX_TR("Data Set 2"), nullptr},
       {SLX_TR("Sum (1+2)"), nullptr},
       {SLX_TR("Difference (1-2)"), SLX_TR("Difference (1 minus 2)")}}};
  for (std::uint32_t type = 0; type < sources.size(); ++type) {
    m_source[type] = addRadio(source, sources[type].first, sources[type].second);
    sourceLayout->addWidget(m_source[type]);
    connect(m_source[type], &QRadioButton::toggled, this, [this, type](bool on) {
      if (on && !loading()) onSource(type);
    });
  }

  auto* calculus = addGroup(column(), page, SLX_TR("Calculus Plot"));
  auto* calculusLayout = new QVBoxLayout(calculus);
  const std::array<const char*, 3> calculusFaces{SLX_TR("Function"), SLX_TR("Integral"),
                                                 SLX_TR("Derivative")};
  for (std::size_t i = 0; i < calculusFaces.size(); ++i) {
    m_calculus[i] = addRadio(calculus, calculusFaces[i]);
    calculusLayout->addWidget(m_calculus[i]);
    connect(m_calculus[i], &QRadioButton::toggled, this, [this, i](bool on) {
      if (on && !loading()) onChoice(&SettingsStore::GetPlotType, &SettingsStore::SetPlotType, kPlotTypes[i]);
    });
  }

  const auto addField = [this](QFormLayout* layout, QWidget* group, int field) {
    const FieldText& texts = kFieldTexts[field];
    m_fields[field] = makeEdit(texts.spoken, texts.name, texts.description);
    m_fields[field]->setParent(group);
    m_labels[field] = new QLabel(Translate(texts.face), group);
    m_labels[field]->setBuddy(m_fields[field]);
    layout->addRow(m_labels[field], m_fields[field]);
    connect(m_fields[field], &QLineEdit::textEdited, this, &CPlotPage::onFieldEdited);
  };

  auto* domain = addGroup(column(), page, SLX_TR("Function Domain"));
  auto* domainLayout = new QFormLayout(domain);
  for (const int field : {PlotPageForm::Start, PlotPageForm::Finish, PlotPageForm::Points})
    addField(domainLayout, domain, field);

  auto* range = addGroup(column(), page, SLX_TR("Graph Range"));
  auto* rangeLayout = new QFormLayout(range);
  addField(rangeLayout, range, PlotPageForm::XMin);
  addField(rangeLayout, range, PlotPageForm::XMax);
  // Both boxes read "Auto-Scale"; spoken, each names its axis.
  m_autoScaleX = addToggle(range, SLX_TR("Auto-Scale"), &SettingsStore::GetAutoScaleX,
                           &SettingsStore::SetAutoScaleX, SLX_TR("X Auto-Scale"));
  rangeLayout->addRow(m_autoScaleX);
  addField(rangeLayout, range, PlotPageForm::YMin);
  addField(rangeLayout, range, PlotPageForm::YMax);
  m_autoScaleY = addToggle(range, SLX_TR("Auto-Scale"), &SettingsStore::GetAutoScaleY,
                           &SettingsStore::SetAutoScaleY, SLX_TR("Y Auto-Scale"));
  rangeLayout->addRow(m_autoScaleY);

  auto* mode = addGroup(column(), page, SLX_TR("Mode"));
  auto* modeLayout = new QVBoxLayout(mode);
  modeLayout->addWidget(
      addToggle(mode, SLX_TR("Points"), &SettingsStore::GetShowPts, &SettingsStore::SetShowPts));
  modeLayout->addWidget(
      addToggle(mode, SLX_TR("Line"), &SettingsStore::GetShowLine, &SettingsStore::SetShowLine));
  modeLayout->addWidget(
      addToggle(mode, SLX_TR("Error Bars"), &SettingsStore::GetShowEBars, &SettingsStore::SetShowEBars));

  auto* axes = addGroup(column(), page, SLX_TR("Axes"));
  auto* axesLayout = new QVBoxLayout(axes);
  m_showXAxis =
      addToggle(axes, SLX_TR("Show X-axis"), &SettingsStore::GetShowXAxis, &SettingsStore::SetShowXAxis);
  axesLayout->addWidget(m_showXAxis);
  axesLayout->addWidget(
      addToggle(axes, SLX_TR("Show Y-axis"), &SettingsStore::GetShowYAxis, &SettingsStore::SetShowYAxis));
  axesLayout->addWidget(addToggle(axes, SLX_TR("Display X labels"), &SettingsStore::GetShowXLabels,
                                  &SettingsStore::SetShowXLabels));
  axesLayout->addWidget(addToggle(axes, SLX_TR("Display Y labels"), &SettingsStore::GetShowYLabels,
                                  &SettingsStore::SetShowYLabels));

  auto* frame = addGroup(column(), page, SLX_TR("Frame"));
  auto* frameLayout = new QVBoxLayout(frame);
  const std::array<std::pair<const char*, const char*>, 3> frames{
      {{SLX_TR("None"), SLX_TR("No ticks or grid.")}, {SLX_TR("Tick"), nullptr}, {SLX_TR("Grid"), nullptr}}};
  for (std::uint32_t type = 0; type < frames.size(); ++type) {
    m_frame[type] = addRadio(frame, frames[type].first, frames[type].second);
    frameLayout->addWidget(m_frame[type]);
    connect(m_frame[type], &QRadioButton::toggled, this, [this, type](bool on) {
      if (on && !loading()) onChoice(&SettingsStore::GetFrameType, &SettingsStore::SetFrameType, type);
    });
  }
  column()->addStretch(1);
}

QRadioButton* CPlotPage::addRadio(QWidget* group, const char* face, const char* spoken) {
  auto* radio = new QRadioButton(Translate(face), group);
  voiceToggle(radio, spoken);
  return radio;
}

QCheckBox* CPlotPage::addToggle(QWidget* group, const char* face, bool (SettingsStore::*get)() const,
                                bool (SettingsStore::*set)(bool) const, const char* spoken) {
  auto* box = new QCheckBox(Translate(face), group);
  voiceToggle(box, spoken);
  m_toggles.push_back({box, get, set});
  connect(box, &QCheckBox::toggled, this, [this, set, box](bool on) {
    if (loading()) return;
    (settings().*set)(on);
    if (box == m_autoScaleX || box == m_autoScaleY) updateEnabled();
    requestRedraw();
  });
  return box;
}

void CPlotPage::OnSetActive() {
  {
    const Loading filling(*this);
    const SettingsStore& store = settings();
    const std::uint32_t setType = store.GetSetType();
    for (std::uint32_t type = 0; type < m_source.size(); ++type) m_source[type]->setChecked(type == setType);
    const std::uint32_t plotType = store.GetPlotType();
    for (std::size_t i = 0; i < m_calculus.size(); ++i) m_calculus[i]->setChecked(kPlotTypes[i] == plotType);
    const std::uint32_t frameType = store.GetFrameType();
    for (std::uint32_t type = 0; type < m_frame.size(); ++type) m_frame[type]->setChecked(type == frameType);
    for (const Toggle& toggle : m_toggles) toggle.box->setChecked((store.*toggle.get)());
    const PlotPageForm stored = PlotPageForm::fromSettings(store);
    for (int field = 0; field < PlotPageForm::kFieldCount; ++field)
      m_fields[field]->setText(QString::fromStdString(stored.text[field]));
  }
  clearRefusal();
  updateEnabled();
  CSettingsPage::OnSetActive();
}

bool CPlotPage::Leave() {
  const PlotPageForm typed = form();
  if (const auto refusal = typed.check([](const std::string& english) { return Translate(english); })) {
    refuse(m_fields[refusal->field], refusal->message);
    return false;
  }
  if (typed.storeAccepted(settings())) requestRedraw();
  clearRefusal();
  return true;
}

void CPlotPage::FocusGroup(int group) {
  const auto checkedOf = [](const auto& buttons) -> QWidget* {
    for (QRadioButton* button : buttons)
      if (button->isChecked()) return button;
    return buttons.front();
  };
  switch (group) {
    case CCalcSheet::kPlotSource:
      focusAndSay(checkedOf(m_source));
      break;
    case CCalcSheet::kPlotCalculus:
      focusAndSay(checkedOf(m_calculus));
      break;
    case CCalcSheet::kPlotAxes:
      focusAndSay(m_showXAxis);
      break;
    case CCalcSheet::kPlotFrame:
      focusAndSay(checkedOf(m_frame));
      break;
    case CCalcSheet::kPlotRange:
      focusAndSay(m_fields[PlotPageForm::XMin]->isEnabled()
                      ? static_cast<QWidget*>(m_fields[PlotPageForm::XMin])
                      : m_autoScaleX);
      break;
    default:
      CSettingsPage::FocusGroup(group);
      break;
  }
}

void CPlotPage::focusAndSay(QWidget* control) {
  control->setFocus(Qt::OtherFocusReason);
  // An edit says itself as the focus arrives; a button only when Tab brings it.
  if (auto* voice = control->findChild<CTTSButton*>(QString(), Qt::FindDirectChildrenOnly))
    voice->Speak(SpeechKind::Echo);
}

void CPlotPage::onSource(std::uint32_t setType) {
  const SettingsStore& store = settings();
  if (store.GetSetType() == setType) return;
  store.SetSetType(setType);
  auto& sets = CGraphCalcApp::instance()->dataSets();
  if (setType == DataSet::Sum || setType == DataSet::Difference)
    DataSet::combine(sets[setType], sets[DataSet::Data1], sets[DataSet::Data2], setType == DataSet::Sum);
  requestRedraw();
}

void CPlotPage::onChoice(std::uint32_t (SettingsStore::*get)() const,
                         bool (SettingsStore::*set)(std::uint32_t) const, std::uint32_t value) {
  const SettingsStore& store = settings();
  if ((store.*get)() == value) return;
  (store.*set)(value);
  requestRedraw();
}

void CPlotPage::onFieldEdited() {
  const PlotPageForm typed = form();
  if (typed.storeAccepted(settings())) requestRedraw();
  if (!typed.check()) clearRefusal();
}

void CPlotPage::updateEnabled() {
  const PlotPageForm typed = form();
  for (int field = 0; field < PlotPageForm::kFieldCount; ++field) {
    const bool on = typed.enabled(static_cast<PlotPageForm::Field>(field));
    m_fields[field]->setEnabled(on);
    m_labels[field]->setEnabled(on);
  }
}

PlotPageForm CPlotPage::form() const {
  PlotPageForm typed;
  for (int field = 0; field < PlotPageForm::kFieldCount; ++field)
    typed.text[field] = m_fields[field]->text().toStdString();
  typed.autoScaleX = m_autoScaleX->isChecked();
  typed.autoScaleY = m_autoScaleY->isChecked();
  return typed;
}

}  // namespace sonalyx::ui
