#include "ui/app/KeyList.h"

#include <QStringList>
#include <algorithm>
#include <map>

#include "core/pages/CalculatorKeyboard.h"
#include "core/speech/CalculatorKeyTable.h"
#include "core/speech/TranslationMarker.h"
#include "ui/app/CommandIds.h"
#include "ui/app/CommandTable.h"
#include "ui/app/MenuTranslation.h"

namespace sonalyx::ui {

namespace {

QString tr(const Translator& translate, const char* english) {
  return QString::fromStdString(translateWith(translate, english));
}

QString keyName(Qt::Key key, const Translator& translate) {
  if (key >= Qt::Key_F1 && key <= Qt::Key_F35) return QStringLiteral("F%1").arg(key - Qt::Key_F1 + 1);
  switch (key) {
    case Qt::Key_Escape:
      return tr(translate, SLX_TR("Esc"));
    case Qt::Key_Left:
      return tr(translate, SLX_TR("Left"));
    case Qt::Key_Right:
      return tr(translate, SLX_TR("Right"));
    case Qt::Key_Up:
      return tr(translate, SLX_TR("Up"));
    case Qt::Key_Down:
      return tr(translate, SLX_TR("Down"));
    case Qt::Key_PageUp:
      return tr(translate, SLX_TR("Page Up"));
    case Qt::Key_PageDown:
      return tr(translate, SLX_TR("Page Down"));
    case Qt::Key_Home:
      return tr(translate, SLX_TR("Home"));
    case Qt::Key_End:
      return tr(translate, SLX_TR("End"));
    case Qt::Key_Tab:
      return tr(translate, SLX_TR("Tab"));
    case Qt::Key_Space:
      return tr(translate, SLX_TR("Space"));
    default:
      // Letters and digits stand for themselves.
      return QString(QChar(static_cast<char16_t>(key)));
  }
}

QString modifierName(const char* english, const Translator& translate) {
  return tr(translate, english) + QLatin1Char('+');
}

QString keysText(QKeyCombination keys, const Translator& translate) {
  QString text;
  const Qt::KeyboardModifiers mods = keys.keyboardModifiers();
  if (mods.testFlag(Qt::ControlModifier)) text += modifierName(SLX_TR("Ctrl"), translate);
  if (mods.testFlag(Qt::AltModifier)) text += modifierName(SLX_TR("Alt"), translate);
  if (mods.testFlag(Qt::ShiftModifier)) text += modifierName(SLX_TR("Shift"), translate);
  return text + keyName(keys.key(), translate);
}

// A key written as the Calculator's table writes it ("Ctrl+Shift+Delete", "Enter").
QString calculatorKeysText(const std::string& keys, const Translator& translate) {
  static const std::map<std::string, const char*> kWords{
      {"Ctrl", SLX_TR("Ctrl")},   {"Shift", SLX_TR("Shift")},         {"Delete", SLX_TR("Delete")},
      {"Enter", SLX_TR("Enter")}, {"Backspace", SLX_TR("Backspace")},
  };
  QStringList parts;
  for (const QString& part : QString::fromStdString(keys).split(QLatin1Char('+'), Qt::KeepEmptyParts)) {
    const auto word = kWords.find(part.toStdString());
    parts << (word != kWords.end() ? tr(translate, word->second) : part);
  }
  // "+" itself is a key: a split leaves two empty parts.
  if (keys == "+") return QStringLiteral("+");
  return parts.join(QLatin1Char('+'));
}

// A menu text as the item reads: no "&", nothing after the tab.
QString itemWords(const std::string& translated) {
  QString text = QString::fromStdString(translated);
  if (const qsizetype tab = text.indexOf(QLatin1Char('\t')); tab >= 0) text.truncate(tab);
  QString words;
  for (qsizetype i = 0; i < text.size(); ++i) {
    if (text[i] == QLatin1Char('&') && i + 1 < text.size() && text[i + 1] != QLatin1Char('&')) continue;
    words += text[i];
  }
  return words.trimmed();
}

// The letter after the "&" of a menu text, as the user presses it.
QString mnemonic(const std::string& translated) {
  const QString text = QString::fromStdString(translated);
  for (qsizetype i = 0; i + 1 < text.size(); ++i)
    if (text[i] == QLatin1Char('&') && text[i + 1] != QLatin1Char('&')) return text[i + 1].toUpper();
  return {};
}

bool isGraphCommand(int id) {
  switch (id) {
    case cmd::kEvaluateExpression1:
    case cmd::kPlayDataSet:
    case cmd::kPlayWithTicks:
    case cmd::kWriteWaveFile:
    case cmd::kFindIntersection:
    case cmd::kFindZeros:
    case cmd::kShowGraph:
    case cmd::kHideGraph:
    case cmd::kStopPlaying:
    case cmd::kNextPoint:
    case cmd::kPreviousPoint:
    case cmd::kNextMaximum:
    case cmd::kNextMinimum:
    case cmd::kFirstPoint:
    case cmd::kLastPoint:
    case cmd::kPreviousZero:
      return true;
    default:
      return false;
  }
}

// What the commands that have keys but no menu item do.
const char* keyOnlyAction(int id) {
  switch (id) {
    case cmd::kStopPlaying:
      return SLX_TR("Stops the sound of the graph.");
    case cmd::kNextPoint:
      return SLX_TR("Steps to the next point of the graph and says it.");
    case cmd::kPreviousPoint:
      return SLX_TR("Steps to the previous point of the graph and says it.");
    case cmd::kNextMaximum:
      return SLX_TR("Steps to the next maximum of the graph.");
    case cmd::kNextMinimum:
      return SLX_TR("Steps to the next minimum of the graph.");
    case cmd::kFirstPoint:
      return SLX_TR("Goes to the first point of the graph.");
    case cmd::kLastPoint:
      return SLX_TR("Goes to the last point of the graph.");
    case cmd::kCopyMatrix:
      return SLX_TR("On the Matrix page: copies the matrix as a picture and as text.");
    case cmd::kPreviousZero:
      return SLX_TR("Steps back to the previous place where the graph crosses the x-axis.");
    default:
      return nullptr;
  }
}

// What a Calculator page command without a key of its own does.
const char* calculatorCommandAction(int id) {
  switch (id) {
    case kCalcCommandSayDisplay:
      return SLX_TR("Says the display.");
    case kCalcCommandSayMemory:
      return SLX_TR("Says the memory.");
    case kCalcCommandHyperbolic:
      return SLX_TR("Ticks or clears Hyperbolic.");
    case kCalcCommandInverse:
      return SLX_TR("Ticks or clears Inverse.");
    case kCalcCommandRightShift:
      return SLX_TR("Right shift.");
    case kCalcCommandMemoryRecall:
      return SLX_TR("Recalls the memory.");
    default:
      return nullptr;
  }
}

std::vector<KeyListEntry> panelKeys(const Translator& translate) {
  const std::pair<const char*, const char*> rows[] = {
      {"Ctrl+Tab", SLX_TR("Goes to the next tab of the control panel.")},
      {"Ctrl+Shift+Tab", SLX_TR("Goes to the previous tab of the control panel.")},
      {"Tab", SLX_TR("Goes to the next control of the page.")},
      {"Shift+Tab", SLX_TR("Goes to the previous control of the page.")},
      {"Left, Right", SLX_TR("On the tabs: goes to the tab beside.")},
      {"Up, Down",
       SLX_TR("In a group of choices: chooses the one above or below; in a list: the item above or below.")},
      {"Space", SLX_TR("Presses the button, or ticks or clears the box, that has the focus.")},
      {"Left, Right, Page Up, Page Down, Home, End",
       SLX_TR("On a slider: moves it by one, by a page, or to an end.")},
      {"F10", SLX_TR("Opens the menu bar.")},
      {"Esc", SLX_TR("Closes a menu or a dialog.")},
  };
  std::vector<KeyListEntry> entries;
  for (const auto& [keys, action] : rows) {
    QStringList names;
    for (const QString& each : QString::fromLatin1(keys).split(QStringLiteral(", "))) {
      QStringList parts;
      for (const QString& part : each.split(QLatin1Char('+')))
        parts << tr(translate, part.toLatin1().constData());
      names << parts.join(QLatin1Char('+'));
    }
    entries.push_back({names.join(QStringLiteral(", ")), tr(translate, action)});
  }
  return entries;
}

std::vector<KeyListEntry> menuPaths(const Translator& translate) {
  std::vector<KeyListEntry> entries;
  std::vector<QString> path;
  for (const MenuLine& line : CCommandTable::menuLayout()) {
    switch (line.kind) {
      case MenuLine::BeginPopup:
        path.push_back(mnemonic(translateWith(translate, line.text)));
        break;
      case MenuLine::EndPopup:
        path.pop_back();
        break;
      case MenuLine::Separator:
        break;
      case MenuLine::Command: {
        const CommandSpec* command = CCommandTable::find(line.id);
        if (!command || !command->menuText) break;
        const std::string text = translateMenuText(command->menuText, translate);
        QStringList keys;
        keys << tr(translate, SLX_TR("Alt")) + QLatin1Char('+') + path.front();
        for (std::size_t i = 1; i < path.size(); ++i) keys << path[i];
        keys << mnemonic(text);
        entries.push_back({keys.join(QStringLiteral(", ")), itemWords(text)});
        break;
      }
    }
  }
  return entries;
}

std::vector<KeyListEntry> calculatorKeys(const Translator& translate) {
  const CalculatorKeyTable table(translate);
  std::vector<KeyListEntry> entries;
  std::vector<QString> done;
  const auto add = [&](int id) {
    QStringList keys;
    for (const std::string& each : calculatorKeysFor(id)) keys << calculatorKeysText(each, translate);
    const QString keysText = keys.join(tr(translate, SLX_TR(" or ")));
    // A key with two commands (memory recall) is listed once.
    if (std::find(done.begin(), done.end(), keysText) != done.end()) return;
    done.push_back(keysText);
    QString action;
    if (const CalculatorKey* key = table.find(id)) {
      // The face as shown, and the words it is said by where they differ.
      action = QString::fromStdString(key->label);
      if (!key->spokenName.empty() && key->spokenName != key->label)
        action += QStringLiteral(" (%1)").arg(QString::fromStdString(key->spokenName));
    } else if (const char* words = calculatorCommandAction(id)) {
      action = tr(translate, words);
    }
    entries.push_back({keysText, action});
  };
  for (const CalcShiftedKey& shifted : calculatorShiftedKeys()) add(shifted.commandId);
  for (const CalcAccelerator& accelerator : calculatorAccelerators()) add(accelerator.commandId);
  return entries;
}

std::vector<KeyListEntry> otherPageKeys(const Translator& translate) {
  const std::pair<const char*, const char*> rows[] = {
      {"Enter",
       SLX_TR("On the Evaluator and Matrix pages: evaluates the expression, or stores name = expression.")},
      {"Up, Down", SLX_TR("On the Evaluator and Matrix pages: brings earlier entries back.")},
      {"Enter", SLX_TR("On the Data pages, in f(x): fills the table with f(x) over the function's domain.")},
      {"Ctrl+Z", SLX_TR("On the Data pages: undoes a paste or a load of the data set.")},
  };
  std::vector<KeyListEntry> entries;
  for (const auto& [keys, action] : rows) {
    QStringList names;
    for (const QString& each : QString::fromLatin1(keys).split(QStringLiteral(", "))) {
      QStringList parts;
      for (const QString& part : each.split(QLatin1Char('+')))
        parts << tr(translate, part.toLatin1().constData());
      names << parts.join(QLatin1Char('+'));
    }
    entries.push_back({names.join(QStringLiteral(", ")), tr(translate, action)});
  }
  return entries;
}

QString escaped(const QString& text) {
  return text.toHtmlEscaped();
}

}  // namespace

std::vector<KeyListSection> keyListSections(const Translator& given) {
  // The tables it reads expect a translator.
  const Translator translate = given ? given : [](const std::string& english) { return english; };
  KeyListSection panel{"panel", tr(translate, SLX_TR("Moving around the program")), panelKeys(translate)};
  KeyListSection commands{"commands", tr(translate, SLX_TR("Hot keys")), {}};
  KeyListSection graph{"graph", tr(translate, SLX_TR("The graph and its sound")), {}};
  for (const CommandSpec& command : CCommandTable::commands()) {
    if (command.keyCount == 0) continue;
    QStringList keys;
    for (int i = 0; i < command.keyCount; ++i) keys << keysText(command.keys[i], translate);
    QString action;
    if (command.menuText)
      action = itemWords(translateMenuText(command.menuText, translate));
    else if (const char* words = keyOnlyAction(command.id))
      action = tr(translate, words);
    (isGraphCommand(command.id) ? graph : commands)
        .entries.push_back({keys.join(QStringLiteral(", ")), action});
  }
  return {panel,
          commands,
          graph,
          {"menus", tr(translate, SLX_TR("The menus")), menuPaths(translate)},
          {"calculator", tr(translate, SLX_TR("The Calculator page")), calculatorKeys(translate)},
          {"pages", tr(translate, SLX_TR("The Evaluator, Matrix and Data pages")), otherPageKeys(translate)}};
}

const std::vector<KeyListFile>& keyListFiles() {
  static const std::vector<KeyListFile> files{
      {"keys.html", SLX_TR("Sonalyx keys"), {}},
      {"keys-navigation.html", SLX_TR("Navigational hotkeys"), {"panel", "commands", "menus"}},
      {"keys-graph.html", SLX_TR("Graphing hotkeys"), {"graph"}},
      {"keys-calculator.html", SLX_TR("Calculator hotkeys"), {"calculator", "pages"}},
  };
  return files;
}

QString keyListPage(const std::vector<KeyListSection>& sections, const QStringList& ids,
                    const QString& languageCode, const Translator& translate) {
  QString title = tr(translate, SLX_TR("Sonalyx keys"));
  for (const KeyListFile& file : keyListFiles()) {
    QStringList fileIds;
    for (const char* id : file.sectionIds) fileIds << QString::fromLatin1(id);
    if (fileIds == ids) title = tr(translate, file.title);
  }
  QString html;
  html += QStringLiteral("<!DOCTYPE html>\n<html lang=\"%1\">\n<head>\n<meta charset=\"utf-8\">\n")
              .arg(escaped(languageCode));
  html += QStringLiteral("<title>%1</title>\n<link rel=\"stylesheet\" href=\"help.css\">\n</head>\n<body>\n")
              .arg(escaped(title));
  html += QStringLiteral("<h1>%1</h1>\n").arg(escaped(title));
  html += QStringLiteral("<p>%1 <a href=\"index.html\">%2</a></p>\n")
              .arg(escaped(tr(translate, SLX_TR("This list is made from the program's own tables of keys."))),
                   escaped(tr(translate, SLX_TR("Back to the manual"))));
  for (const KeyListSection& section : sections) {
    if (!ids.isEmpty() && !ids.contains(section.id)) continue;
    html += QStringLiteral("<h2 id=\"%1\">%2</h2>\n").arg(escaped(section.id), escaped(section.title));
    html += QStringLiteral(
                "<table>\n<thead><tr><th scope=\"col\">%1</th><th scope=\"col\">%2</th></tr></thead>\n"
                "<tbody>\n")
                .arg(escaped(tr(translate, SLX_TR("Keys"))), escaped(tr(translate, SLX_TR("What they do"))));
    for (const KeyListEntry& entry : section.entries)
      html += QStringLiteral("<tr><td><kbd>%1</kbd></td><td>%2</td></tr>\n")
                  .arg(escaped(entry.keys), escaped(entry.action));
    html += QStringLiteral("</tbody>\n</table>\n");
  }
  html += QStringLiteral("</body>\n</html>\n");
  return html;
}

}  // namespace sonalyx::ui
