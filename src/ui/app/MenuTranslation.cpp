#include "ui/app/MenuTranslation.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <array>

#include "ui/app/CommandIds.h"
#include "ui/app/CommandTable.h"

namespace sonalyx::ui {

namespace {

using namespace cmd;

constexpr std::array kTranslatedCommands{
    kFileOpen,
    kFileSave,
    kPasteData,
    kCopyData,
    kLoadConstants,
    kSaveConstants,
    kRestoreDefaults,
    kPrintGraph,
    kAppExit,
    kCalculator,
    kEvaluator,
    kDataSet1,
    kDataSet2,
    kMatrices,
    kPlotSource,
    kPlotCalculus,
    kPlotAxes,
    kPlotFrame,
    kPlotRange,
    kSpeech,
    kWaveVolume,
    kWavePlayTime,
    kWaveFrequency,
    kWaveType,
    kAutoReturn,
    kSelfVoicing,
    kLarger,
    kSmaller,
    kEvaluateExpression1,
    kPlayDataSet,
    kPlayWithTicks,
    kWriteWaveFile,
    kFindIntersection,
    kFindZeros,
    kShowGraph,
    kUserManual,
    kCalculatorHotkeys,
    kGraphingHotkeys,
    kNavigationalHotkeys,
    kTutorialIndex,
    kTutorialCalculator,
    kTutorialEvaluator,
    kTutorialMatrix,
    kTutorialSpeech,
    kTutorialGraphing,
    kTutorialPrinting,
    kOnlineHelp,
    kAppAbout,
};

void replaceAll(std::string& text, const std::string& from, const std::string& to) {
  for (std::size_t at = text.find(from); at != std::string::npos; at = text.find(from, at + to.size()))
    text.replace(at, from.size(), to);
}

bool inMenu(const QAction* action) {
  for (const QObject* owner : action->associatedObjects())
    if (qobject_cast<const QMenu*>(owner)) return true;
  return false;
}

void translateAction(QAction* action, const TextTranslator& translate) {
  if (!action) return;
  action->setText(QString::fromStdString(translateMenuText(action->text().toStdString(), translate)));
}

}  // namespace

std::string translateMenuText(const std::string& text, const TextTranslator& translate) {
  if (text.find('\t') == std::string::npos) return translate(text);
  std::string key = text;
  replaceAll(key, "\t", "TAB");
  std::string result = translate(key);
  replaceAll(result, "TAB", "\t");
  return result;
}

std::span<const int> translatedCommands() {
  return kTranslatedCommands;
}

void translateMenu(CCommandTable& table, const TextTranslator& translate) {
  QMenuBar* bar = table.menuBar();
  if (!bar) return;
  const QList<QAction*> top = bar->actions();
  for (int position = 0; position < 4 && position < top.size(); ++position)
    top[position]->setText(QString::fromStdString(translate(top[position]->text().toStdString())));
  if (QMenu* options = table.popup(1)) {
    const QList<QAction*> items = options->actions();
    for (const int position : {5, 7})
      if (position < items.size() && !items[position]->isSeparator())
        items[position]->setText(QString::fromStdString(translate(items[position]->text().toStdString())));
  }
  for (const int id : kTranslatedCommands) {
    QAction* action = table.action(id);
    if (action && inMenu(action)) translateAction(action, translate);
  }
}

}  // namespace sonalyx::ui
