#include "ui/pages/calculator/CCalculatorPage.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QCheckBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QKeySequence>
#include <QLabel>
#include <QPushButton>
#include <QStringList>
#include <QVBoxLayout>
#include <array>
#include <string>

#include "core/engines/CalcKeyPress.h"
#include "core/pages/CalculatorKeyboard.h"
#include "core/speech/CalculatorAnnouncements.h"
#include "core/speech/CalculatorKeyIds.h"
#include "core/speech/TranslationMarker.h"
#include "ui/app/CGraphCalcApp.h"
#include "ui/app/Voice.h"
#include "ui/controls/CTTSButton.h"
#include "ui/controls/CTTSComboBox.h"
#include "ui/controls/CTTSEdit.h"
#include "ui/controls/VoicedText.h"

namespace sonalyx::ui {

namespace {

// The bases in the selector's order, as the engine takes them.
constexpr std::array kBases{16, 10, 8, 2};
constexpr int kDecimalIndex = 1;
// The main block runs in columns of six keys.
constexpr int kKeysPerColumn = 6;

QString fromView(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

// The key sequences of an accelerator as the key list writes it: a typed
// character is the key that types it; "Enter" is either Enter key.
QList<QKeySequence> sequencesOf(const char* keys) {
  const QString text = QString::fromUtf8(keys);
  if (text == QLatin1String("Enter")) return {QKeySequence(Qt::Key_Return), QKeySequence(Qt::Key_Enter)};
  // Qt's key codes of Latin-1 characters are their capitals' code points.
  if (text.size() == 1) return {QKeySequence(static_cast<int>(text.at(0).toUpper().unicode()))};
  return {QKeySequence::fromString(QString(text).replace(QLatin1String("Delete"), QLatin1String("Del")),
                                   QKeySequence::PortableText)};
}

CalcKeyInput inputOf(const QKeyEvent& event) {
  CalcKeyInput input;
  switch (event.key()) {
    case Qt::Key_Backspace:
      input.named = CalcKeyInput::Named::Backspace;
      break;
    case Qt::Key_Delete:
      input.named = CalcKeyInput::Named::Delete;
      break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      input.named = CalcKeyInput::Named::Enter;
      break;
    case Qt::Key_Space:
      input.named = CalcKeyInput::Named::Space;
      break;
    default:
      break;
  }
  const Qt::KeyboardModifiers modifiers = event.modifiers();
  input.shift = modifiers.testFlag(Qt::ShiftModifier);
  input.command = (modifiers & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) != 0;
  const QString text = event.text();
  if (!input.command && text.size() == 1 && text.at(0).isPrint()) input.typed = text.at(0).unicode();
  return input;
}

// The selector and its list, which takes the focus while it is open.
void nameSelector(QComboBox* selector, const QString& name, const QString& description) {
  selector->setAccessibleName(name);
  selector->setAccessibleDescription(description);
  selector->view()->setAccessibleName(name);
  selector->view()->setAccessibleDescription(description);
}

QString keyboardDescription(int id) {
  QStringList keys;
  for (const std::string& each : calculatorKeysFor(id)) keys << QString::fromStdString(each);
  return Translate("Keyboard: ") + keys.join(Translate(" or "));
}

}  // namespace

CCalculatorPage::CCalculatorPage(const QString& caption, QWidget* parent) : CCalcPage(caption, parent) {
  buildControls();
  for (const CalcAccelerator& accelerator : calculatorAccelerators()) {
    const int id = accelerator.commandId;
    for (const QKeySequence& keys : sequencesOf(accelerator.keys))
      AddAccelerator(keys, [this, id] { OnCommand(id); });
  }
  m_engine.bttnC_Click();
  showDisplay();
}

void CCalculatorPage::changeEvent(QEvent* event) {
  CCalcPage::changeEvent(event);
  // The display reads half as large again as the keys; it follows their size.
  if (event->type() == QEvent::FontChange && m_display) {
    QFont large = font();
    if (large.pointSizeF() > 0) large.setPointSizeF(large.pointSizeF() * 1.5);
    m_display->setFont(large);
  }
}

void CCalculatorPage::buildControls() {
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(4, 4, 4, 4);
  layout->setSpacing(3);

  m_display = new CTTSEdit(this);
  m_display->setReadOnly(true);
  m_display->setAlignment(Qt::AlignRight);
  m_display->setSpokenLabel(fromView(kDisplaySpokenLabel));
  m_display->setAccessibleName(Translate("Display"));
  m_display->setAccessibleDescription(Translate("Ctrl+B says the display again, Ctrl+T the memory."));
  QPalette white = m_display->palette();
  white.setColor(QPalette::Base, Qt::white);
  white.setColor(QPalette::Window, Qt::white);
  m_display->setPalette(white);
  layout->addWidget(m_display);

  auto* modes = new QHBoxLayout();
  m_memory = new QLabel(this);
  m_memory->setAlignment(Qt::AlignCenter);
  m_memory->setFrameShape(QFrame::Box);
  m_memory->setAutoFillBackground(true);
  m_memory->setPalette(white);
  m_memory->setMinimumWidth(m_memory->fontMetrics().horizontalAdvance(QStringLiteral("MM")) + 4);
  m_memory->setAccessibleName(Translate("Memory"));
  m_memory->setAccessibleDescription(Translate("Shows M while the memory holds a value."));
  modes->addWidget(m_memory);

  m_base = new CTTSComboBox(this);
  const char* bases[] = {SLX_TR("Hex"), SLX_TR("Dec"), SLX_TR("Oct"), SLX_TR("Bin")};
  for (int index = 0; index < 4; ++index) {
    m_base->addItem(Translate(bases[index]));
    m_base->setItemData(index, Translate(fromView(numberBaseAnnouncement(index))), Qt::AccessibleTextRole);
  }
  m_base->setCurrentIndex(kDecimalIndex);
  nameSelector(m_base, Translate("Number base"), Translate("Hexadecimal, decimal, octal or binary"));
  connect(m_base, &QComboBox::currentIndexChanged, this, &CCalculatorPage::applyBase);
  modes->addWidget(m_base);

  m_angle = new CTTSComboBox(this);
  const char* angles[] = {SLX_TR("Deg"), SLX_TR("Rad"), SLX_TR("Grad")};
  for (int index = 0; index < 3; ++index) {
    m_angle->addItem(Translate(angles[index]));
    m_angle->setItemData(index, Translate(fromView(angleModeAnnouncement(index))), Qt::AccessibleTextRole);
  }
  m_angle->setCurrentIndex(0);
  nameSelector(m_angle, Translate("Angle unit"), Translate("Degrees, radians or grad"));
  connect(m_angle, &QComboBox::currentIndexChanged, this, [this](int index) { m_engine.angleMode = index; });
  modes->addWidget(m_angle);

  const auto makeBox = [this, modes](const char* face, std::string_view spoken, int commandId,
                                     int shortcutId) {
    auto* box = new QCheckBox(Translate(face), this);
    auto* voice = new CTTSButton(box);
    voice->setSpokenLabel(fromView(spoken));
    voice->setToggleSound(true);
    box->setAccessibleDescription(keyboardDescription(shortcutId));
    m_commandIds.insert(box, commandId);
    modes->addWidget(box);
    return box;
  };
  m_inverse = makeBox(SLX_TR("Inv"), kInverseSpokenLabel, kCalcCommandInverseBox, kCalcCommandInverse);
  m_hyperbolic =
      makeBox(SLX_TR("Hyp"), kHyperbolicSpokenLabel, kCalcCommandHyperbolicBox, kCalcCommandHyperbolic);
  connect(m_inverse, &QCheckBox::clicked, this, [this](bool checked) { m_engine.inverse = checked; });
  connect(m_hyperbolic, &QCheckBox::clicked, this, [this](bool checked) { m_engine.hyperbolic = checked; });
  layout->addLayout(modes);

  auto* topRow = new QHBoxLayout();
  topRow->setSpacing(2);
  for (const CalculatorKey& each : m_keyTable.topRow()) topRow->addWidget(makeKey(each));
  layout->addLayout(topRow, 1);

  auto* block = new QGridLayout();
  block->setSpacing(2);
  int position = 0;
  for (const CalculatorKey& each : m_keyTable.mainBlock()) {
    block->addWidget(makeKey(each), position % kKeysPerColumn, position / kKeysPerColumn);
    ++position;
  }
  layout->addLayout(block, kKeysPerColumn);
  applyBase(kDecimalIndex);
}

QPushButton* CCalculatorPage::makeKey(const CalculatorKey& each) {
  auto* button = new QPushButton(QString::fromStdString(each.label), this);
  button->setAutoDefault(false);
  // The grid shares the page's space out evenly, whatever the labels' widths.
  button->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
  // The key's name and earcon come from the page, which knows whether a result
  // follows; the voice still says the key when Tab reaches it.
  auto* voice = new CTTSButton(button);
  voice->setSpokenLabel(QString::fromStdString(each.spokenText()));
  button->setAccessibleDescription(keyboardDescription(each.id));
  const int id = each.id;
  connect(button, &QPushButton::clicked, this, [this, id] { OnCommand(id); });
  m_keys[id] = button;
  m_commandIds.insert(button, id);
  return button;
}

QPushButton* CCalculatorPage::key(int id) const {
  const auto found = m_keys.find(id);
  return found == m_keys.end() ? nullptr : found->second;
}

bool CCalculatorPage::autoReturn() const {
  const CGraphCalcApp* app = CGraphCalcApp::instance();
  return app && app->settings().GetIsAutoReturn();
}

int CCalculatorPage::focusedCommandId() const {
  return m_commandIds.value(QApplication::focusWidget(), 0);
}

void CCalculatorPage::OnCommand(int id) {
  switch (id) {
    case kCalcCommandSayDisplay:
      m_display->Speak(SpeechKind::Content);
      return;
    case kCalcCommandSayMemory:
      sayMemory();
      return;
    case kCalcCommandInverse:
      toggleBox(m_inverse, false);
      return;
    case kCalcCommandHyperbolic:
      toggleBox(m_hyperbolic, true);
      return;
    case kCalcCommandInverseBox:
      m_inverse->click();
      return;
    case kCalcCommandHyperbolicBox:
      m_hyperbolic->click();
      return;
    default:
      pressKey(id);
      return;
  }
}

void CCalculatorPage::pressKey(int id) {
  const int shownKey = id == kCalcCommandMemoryRecall ? kKeyMemoryRecall : id;
  // A key the base lacks is silent even where its action still runs (A to F
  // refresh the display); right shift has no key to be disabled.
  const bool heard = id == kCalcCommandRightShift || isCalcKeyEnabled(shownKey, m_engine.numberBase());
  const CalcKeyPress press = pressCalcKey(m_engine, id);
  if (!press.performed) return;
  if (press.unary) {
    m_inverse->setChecked(false);
    m_hyperbolic->setChecked(false);
  }
  showDisplay();
  if (heard) keyFeedback(id, press.speakDisplay);
  if (autoReturn())
    if (QPushButton* equals = key(kKeyEquals)) equals->setFocus(Qt::OtherFocusReason);
}

void CCalculatorPage::keyFeedback(int id, bool withDisplay) {
  QString name;
  if (id == kCalcCommandRightShift) {
    name = Translate(fromView(kRightShiftWord));
  } else if (const QPushButton* button = key(id == kCalcCommandMemoryRecall ? kKeyMemoryRecall : id)) {
    if (const auto* voice = button->findChild<CTTSButton*>()) name = voice->spokenText();
  }
  voiced::playSoundEffect(4);
  // One utterance, so that the result does not cut the key's name off.
  if (withDisplay)
    voice::Speak(SpeechKind::Content, name + QStringLiteral(", ") + voiced::expandSymbols(m_display->text()));
  else
    voice::Speak(SpeechKind::Echo, name);
}

void CCalculatorPage::toggleBox(QCheckBox* box, bool hyperbolic) {
  box->setFocus(Qt::OtherFocusReason);
  const bool checked = !box->isChecked();
  box->setChecked(checked);
  (hyperbolic ? m_engine.hyperbolic : m_engine.inverse) = checked;
  voiced::playSoundEffect(checked ? 2 : 3);
  const std::string_view said = hyperbolic ? (checked ? kHyperbolicChecked : kHyperbolicUnchecked)
                                           : (checked ? kInverseChecked : kInverseUnchecked);
  voice::Speak(SpeechKind::Echo, Translate(fromView(said)));
}

void CCalculatorPage::applyBase(int index) {
  if (index < 0 || index >= static_cast<int>(kBases.size())) return;
  const int base = kBases[static_cast<std::size_t>(index)];
  for (const auto& [id, button] : m_keys) button->setEnabled(isCalcKeyEnabled(id, base));
  m_engine.SetNumberBaseState(base);
  showDisplay();
}

void CCalculatorPage::showDisplay() {
  const QString text = QString::fromStdString(m_engine.displayText);
  // The engine's error texts are English; everything else is digits.
  m_display->setText(m_engine.isError() ? Translate(text) : text);
  m_memory->setText(m_engine.hasMemory() ? QStringLiteral("M") : QString());
}

void CCalculatorPage::sayMemory() {
  const std::optional<std::string> memory = m_engine.memoryText();
  if (!memory) {
    voice::Speak(SpeechKind::Content, Translate("Memory is empty."));
    return;
  }
  const QString value = QString::fromStdString(*memory);
  voice::Speak(SpeechKind::Content, Translate("Memory: ") + voiced::expandSymbols(Translate(value)));
}

bool CCalculatorPage::ownsFocus() const {
  const QWidget* focused = QApplication::focusWidget();
  // The panel's tabs count as the page's own: the keys work from there too.
  return !isAncestorOf(focused) || focused == m_display || focused == m_base || focused == m_angle ||
         m_commandIds.contains(focused);
}

bool CCalculatorPage::PreTranslateKey(QKeyEvent* event) {
  // A control the page does not know keeps its keys.
  if (!ownsFocus()) return false;
  const bool beforeAccelerators = event->type() == QEvent::ShortcutOverride;
  const CalcKeyStep step =
      calculatorKeyStep(inputOf(*event), m_engine.numberBase(), autoReturn(), focusedCommandId());
  switch (step.kind) {
    case CalcKeyStep::Kind::FocusKey:
      // The key's accelerator presses it next.
      if (beforeAccelerators)
        if (QPushButton* button = key(step.commandId)) button->setFocus(Qt::OtherFocusReason);
      return beforeAccelerators;
    case CalcKeyStep::Kind::PressKey:
    case CalcKeyStep::Kind::PressFocused:
      if (beforeAccelerators) {
        // The key press that follows is the page's, and no accelerator's.
        event->accept();
        return true;
      }
      if (step.kind == CalcKeyStep::Kind::PressFocused) {
        if (auto* button = qobject_cast<QAbstractButton*>(QApplication::focusWidget())) button->click();
        return true;
      }
      pressKey(step.commandId);
      if (step.focusKey)
        if (QPushButton* button = key(step.commandId)) button->setFocus(Qt::OtherFocusReason);
      return true;
    case CalcKeyStep::Kind::None:
      break;
  }
  // The read-only display would claim typed keys as an edit does; the page's keys win.
  return beforeAccelerators && QApplication::focusWidget() == m_display;
}

}  // namespace sonalyx::ui
