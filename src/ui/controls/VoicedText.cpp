#include "ui/controls/VoicedText.h"

#include <QFocusEvent>
#include <QWidget>
#include <string>

#include "core/speech/SymbolExpander.h"
#include "ui/app/CGraphCalcApp.h"
#include "ui/app/Voice.h"

namespace sonalyx::ui::voiced {

void say(QWidget* widget, SpeechKind kind, const QString& text) {
  if (widget && widget->accessibleDescription() != text) widget->setAccessibleDescription(text);
  voice::Speak(kind, text);
}

bool isArrival(const QWidget* widget, const QFocusEvent* event) {
  return widget->isActiveWindow() && event->reason() != Qt::PopupFocusReason &&
         event->reason() != Qt::MenuBarFocusReason;
}

QString expandSymbols(const QString& text) {
  // Built per call: the replacements are translated, and the language belongs to
  // the application object of the moment.
  SymbolExpander expander(expressionSymbolTable(),
                          [](const std::string& english) { return Translate(english); });
  expander.BuildSymbolMap();
  std::string expanded = text.toStdString();
  expander.ExpandSymbols(expanded);
  return QString::fromStdString(expanded);
}

QString withoutMnemonic(const QString& text) {
  QString result;
  result.reserve(text.size());
  for (qsizetype i = 0; i < text.size(); ++i) {
    if (text[i] == QLatin1Char('&')) {
      if (i + 1 < text.size() && text[i + 1] == QLatin1Char('&')) {
        result += QLatin1Char('&');
        ++i;
      }
      continue;
    }
    result += text[i];
  }
  return result;
}

void playSoundEffect(int id) {
  if (const CGraphCalcApp* app = CGraphCalcApp::instance()) app->PlaySoundEffect(id);
}

int spokenDecimals() {
  const CGraphCalcApp* app = CGraphCalcApp::instance();
  return app ? static_cast<int>(app->settings().GetNumDec()) : 5;
}

}  // namespace sonalyx::ui::voiced
