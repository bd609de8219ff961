#include "ui/app/CommandTable.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QWidget>
#include <array>
#include <vector>

#include "core/speech/TranslationMarker.h"
#include "ui/app/CommandIds.h"

namespace sonalyx::ui {

namespace {

constexpr QKeyCombination kNoKey{};

constexpr CommandSpec spec(int id, const char* text) {
  return {id, text, 0, {kNoKey, kNoKey}};
}
constexpr CommandSpec spec(int id, const char* text, QKeyCombination key) {
  return {id, text, 1, {key, kNoKey}};
}
constexpr CommandSpec spec(int id, const char* text, QKeyCombination a, QKeyCombination b) {
  return {id, text, 2, {a, b}};
}

using namespace cmd;

const std::array kCommands{
    spec(kFileOpen, SLX_TR("&Open Data Set ...")),
    spec(kFileSave, SLX_TR("&Save Data Set ...")),
    spec(kPasteData, SLX_TR("&Paste Data From Clipboard")),
    spec(kCopyData, SLX_TR("&Copy Data To Clipboard")),
    spec(kLoadConstants, SLX_TR("&Load Constants ...")),
    spec(kSaveConstants, SLX_TR("Sa&ve Constants ...")),
    spec(kRestoreDefaults, SLX_TR("Res&tore Default Parameters")),
    spec(kPrintGraph, SLX_TR("P&rint Graph\tCtrl+P"), Qt::CTRL | Qt::Key_P),
    spec(kAppExit, SLX_TR("E&xit")),
    spec(kCalculator, SLX_TR("&Calculator")),
    spec(kEvaluator, SLX_TR("&Evaluator")),
    spec(kDataSet1, SLX_TR("Data Set &1")),
    spec(kDataSet2, SLX_TR("Data Set &2")),
    spec(kMatrices, SLX_TR("&Matrices")),
    spec(kPlotSource, SLX_TR("&Source")),
    spec(kPlotCalculus, SLX_TR("&Calculus")),
    spec(kPlotAxes, SLX_TR("&Axes")),
    spec(kPlotFrame, SLX_TR("&Frame")),
    spec(kPlotRange, SLX_TR("&Range")),
    spec(kSpeech, SLX_TR("Speec&h")),
    spec(kWaveVolume, SLX_TR("&Volume")),
    spec(kWavePlayTime, SLX_TR("&Play Time")),
    spec(kWaveFrequency, SLX_TR("&Frequency Range")),
    spec(kWaveType, SLX_TR("&Wave Type")),
    spec(kAutoReturn, SLX_TR("&AutoReturn")),
    spec(kSelfVoicing, SLX_TR("Self-&Voicing\tCtrl+Q, Alt+S"), Qt::CTRL | Qt::Key_Q, Qt::ALT | Qt::Key_S),
    spec(kLarger, SLX_TR("&Larger\tF8"), QKeyCombination(Qt::Key_F8)),
    spec(kSmaller, SLX_TR("&Smaller\tF7"), QKeyCombination(Qt::Key_F7)),
    spec(kEvaluateExpression1, SLX_TR("&Evaluate Expression 1\tF4"), QKeyCombination(Qt::Key_F4)),
    spec(kPlayDataSet, SLX_TR("&Play Data Set\tF5"), QKeyCombination(Qt::Key_F5)),
    spec(kPlayWithTicks, SLX_TR("Play Data and &Ticks\tF6"), QKeyCombination(Qt::Key_F6)),
    spec(kWriteWaveFile, SLX_TR("&Write Wave File")),
    spec(kFindIntersection, SLX_TR("Find &Intersection\tAlt+I"), Qt::ALT | Qt::Key_I),
    spec(kFindZeros, SLX_TR("Find &Zeros\tAlt+0"), Qt::ALT | Qt::Key_0),
    spec(kShowGraph, SLX_TR("&Show Graph\tF3"), QKeyCombination(Qt::Key_F3)),
    spec(kHideGraph, "&Hide Graph\tCtrl+F3", Qt::CTRL | Qt::Key_F3),
    spec(kUserManual, SLX_TR("&User Manual\tF1"), QKeyCombination(Qt::Key_F1)),
    spec(kCalculatorHotkeys, SLX_TR("&Calculator Hotkeys")),
    spec(kGraphingHotkeys, SLX_TR("&Graphing Hotkeys")),
    spec(kNavigationalHotkeys, SLX_TR("&Navigational Hotkeys")),
    spec(kTutorialIndex, nullptr),
    spec(kTutorialCalculator, nullptr),
    spec(kTutorialEvaluator, nullptr),
    spec(kTutorialMatrix, nullptr),
    spec(kTutorialSpeech, nullptr),
    spec(kTutorialGraphing, nullptr),
    spec(kTutorialPrinting, nullptr),
    spec(kOnlineHelp, SLX_TR("&Online Help")),
    spec(kAppAbout, SLX_TR("&About the Sonalyx ...")),
    spec(kStopPlaying, nullptr, QKeyCombination(Qt::Key_Escape)),
    spec(kNextPoint, nullptr, Qt::ALT | Qt::Key_Right),
    spec(kPreviousPoint, nullptr, Qt::ALT | Qt::Key_Left),
    spec(kNextMaximum, nullptr, Qt::ALT | Qt::Key_PageUp),
    spec(kNextMinimum, nullptr, Qt::ALT | Qt::Key_PageDown),
    spec(kFirstPoint, nullptr, Qt::ALT | Qt::Key_Home),
    spec(kLastPoint, nullptr, Qt::ALT | Qt::Key_End),
    spec(kCopyMatrix, nullptr, Qt::CTRL | Qt::Key_C),
    spec(kPreviousZero, nullptr, Qt::CTRL | Qt::ALT | Qt::Key_0),
    spec(kCloseChild, nullptr),
    spec(kFileNew, nullptr),
};

constexpr MenuLine item(int id) {
  return {MenuLine::Command, id, nullptr};
}
constexpr MenuLine separator() {
  return {MenuLine::Separator, 0, nullptr};
}
constexpr MenuLine begin(const char* title) {
  return {MenuLine::BeginPopup, 0, title};
}
constexpr MenuLine end() {
  return {MenuLine::EndPopup, 0, nullptr};
}

// "&Plot" sits at position 5 and "&Wave" at position 7 of "&Options"; the menu
// translation and the menu speech count on those positions.
const std::array kMenuLayout{
    begin(SLX_TR("&File")),
    item(kFileOpen),
    item(kFileSave),
    item(kPasteData),
    item(kCopyData),
    separator(),
    item(kLoadConstants),
    item(kSaveConstants),
    item(kRestoreDefaults),
    separator(),
    item(kPrintGraph),
    separator(),
    item(kAppExit),
    end(),
    begin(SLX_TR("&Options")),
    item(kCalculator),
    item(kEvaluator),
    item(kDataSet1),
    item(kDataSet2),
    item(kMatrices),
    begin(SLX_TR("&Plot")),
    item(kPlotSource),
    item(kPlotCalculus),
    item(kPlotAxes),
    item(kPlotFrame),
    item(kPlotRange),
    end(),
    item(kSpeech),
    begin(SLX_TR("&Wave")),
    item(kWaveVolume),
    item(kWavePlayTime),
    item(kWaveFrequency),
    item(kWaveType),
    end(),
    separator(),
    item(kAutoReturn),
    item(kSelfVoicing),
    separator(),
    item(kLarger),
    item(kSmaller),
    end(),
    begin(SLX_TR("&Graph")),
    item(kEvaluateExpression1),
    item(kPlayDataSet),
    item(kPlayWithTicks),
    item(kWriteWaveFile),
    item(kFindIntersection),
    item(kFindZeros),
    separator(),
    item(kShowGraph),
    end(),
    begin(SLX_TR("&Help")),
    item(kUserManual),
    item(kCalculatorHotkeys),
    item(kGraphingHotkeys),
    item(kNavigationalHotkeys),
    item(kOnlineHelp),
    separator(),
    item(kAppAbout),
    end(),
};

constexpr const char* kIdProperty = "sonalyxCommandId";

// A key that the original platform delivers as a system key (Alt without Ctrl) is
// a hot key only on its first press; held down it does not repeat the command.
bool isSystemKey(QKeyCombination key) {
  const Qt::KeyboardModifiers mods = key.keyboardModifiers();
  return mods.testFlag(Qt::AltModifier) && !mods.testFlag(Qt::ControlModifier);
}

}  // namespace

std::span<const CommandSpec> CCommandTable::commands() {
  return kCommands;
}
std::span<const MenuLine> CCommandTable::menuLayout() {
  return kMenuLayout;
}

const CommandSpec* CCommandTable::find(int id) {
  for (const CommandSpec& command : kCommands)
    if (command.id == id) return &command;
  return nullptr;
}

CCommandTable::CCommandTable(QWidget* window) : QObject(window) {
  for (const CommandSpec& command : kCommands) {
    auto* action = new QAction(this);
    action->setProperty(kIdProperty, command.id);
    if (command.menuText) action->setText(QString::fromUtf8(command.menuText));
    QList<QKeySequence> keys;
    for (int i = 0; i < command.keyCount; ++i) keys << QKeySequence(command.keys[i]);
    action->setShortcuts(keys);
    action->setShortcutContext(Qt::WindowShortcut);
    if (command.keyCount > 0 && isSystemKey(command.keys[0])) action->setAutoRepeat(false);
    if (command.id == kAutoReturn) action->setCheckable(true);
    const int id = command.id;
    connect(action, &QAction::triggered, this, [this, id] { emit commandTriggered(id); });
    m_actions.emplace(command.id, action);
    if (window) window->addAction(action);
  }

  m_menuBar = new QMenuBar();
  std::vector<QMenu*> open;
  for (const MenuLine& line : kMenuLayout) {
    switch (line.kind) {
      case MenuLine::BeginPopup: {
        const QString title = QString::fromUtf8(line.text);
        QMenu* menu = open.empty() ? m_menuBar->addMenu(title) : open.back()->addMenu(title);
        open.push_back(menu);
        break;
      }
      case MenuLine::EndPopup:
        open.pop_back();
        break;
      case MenuLine::Separator:
        open.back()->addSeparator();
        break;
      case MenuLine::Command:
        open.back()->addAction(m_actions.at(line.id));
        break;
    }
  }
}

CCommandTable::~CCommandTable() {
  // Not installed in a window: nobody else will delete it.
  if (m_menuBar && !m_menuBar->parent()) delete m_menuBar;
}

QAction* CCommandTable::action(int id) const {
  const auto found = m_actions.find(id);
  return found == m_actions.end() ? nullptr : found->second;
}

int CCommandTable::commandId(const QAction* action) {
  if (!action) return -1;
  const QVariant id = action->property(kIdProperty);
  return id.isValid() ? id.toInt() : -1;
}

QMenu* CCommandTable::popup(int position) const {
  if (!m_menuBar) return nullptr;
  const QList<QAction*> top = m_menuBar->actions();
  if (position < 0 || position >= top.size()) return nullptr;
  return top[position]->menu();
}

}  // namespace sonalyx::ui
