#include "ui/pages/speech/CSpeechEngineDlg.h"

#include <QDialogButtonBox>
#include <QGroupBox>
#include <QPushButton>
#include <QRadioButton>
#include <QShowEvent>
#include <QVBoxLayout>

#include "ui/app/CAccessibilityHooks.h"
#include "ui/app/CGraphCalcApp.h"
#include "ui/controls/CTTSButton.h"
#include "ui/controls/VoicedText.h"

namespace sonalyx::ui {

const std::vector<std::string>& CSpeechEngineDlg::engineNames() {
  static const std::vector<std::string> names{"espeak-ng", "system"};
  return names;
}

QString CSpeechEngineDlg::displayName(const std::string& engine) {
  if (engine == "espeak-ng") return Translate("eSpeak NG");
  if (engine == "system") return Translate("System speech service");
  return QString::fromStdString(engine);
}

CSpeechEngineDlg::CSpeechEngineDlg(const std::string& current, QWidget* parent) : QDialog(parent) {
  CAccessibilityHooks::markSelfVoiced(this);
  setWindowTitle(Translate("Speech engine"));
  setAccessibleName(windowTitle());
  auto* group = new QGroupBox(Translate("Speak with:"), this);
  group->setAccessibleName(group->title());
  auto* choices = new QVBoxLayout(group);
  for (const std::string& engine : engineNames()) {
    auto* choice = new QRadioButton(displayName(engine), group);
    choice->setChecked(engine == current);
    (new CTTSButton(choice))->setToggleSound(true);
    choices->addWidget(choice);
    m_choices.push_back(choice);
  }
  if (!current.empty() && chosen().empty()) m_choices.front()->setChecked(true);
  auto* buttons = new QDialogButtonBox(this);
  QPushButton* ok = buttons->addButton(Translate("OK"), QDialogButtonBox::AcceptRole);
  QPushButton* cancel = buttons->addButton(Translate("Cancel"), QDialogButtonBox::RejectRole);
  ok->setDefault(true);
  for (QPushButton* button : {ok, cancel}) (new CTTSButton(button))->setAnnounceType(true);
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(group);
  layout->addWidget(buttons);
}

std::string CSpeechEngineDlg::chosen() const {
  for (std::size_t i = 0; i < m_choices.size(); ++i)
    if (m_choices[i]->isChecked()) return engineNames()[i];
  return {};
}

void CSpeechEngineDlg::showEvent(QShowEvent* event) {
  QDialog::showEvent(event);
  for (QRadioButton* choice : m_choices) {
    if (!choice->isChecked()) continue;
    choice->setFocus(Qt::OtherFocusReason);
    voiced::say(choice, SpeechKind::Echo,
                windowTitle() + QStringLiteral(". ") +
                    choice->findChild<CTTSButton*>(QString(), Qt::FindDirectChildrenOnly)->spokenText());
  }
}

}  // namespace sonalyx::ui
