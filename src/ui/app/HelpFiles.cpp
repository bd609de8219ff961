#include "ui/app/HelpFiles.h"

#include <QDesktopServices>
#include <QFileInfo>
#include <QUrl>

#include "ui/app/CGraphCalcApp.h"
#include "ui/app/CTranslationDictionary.h"
#include "ui/app/CommandIds.h"
#include "ui/app/ProgramFiles.h"

namespace sonalyx::ui {

QString helpPageFor(int commandId) {
  switch (commandId) {
    case cmd::kUserManual:
    case cmd::kTutorialIndex:
      return QStringLiteral("index.html");
    case cmd::kCalculatorHotkeys:
      return QStringLiteral("keys-calculator.html");
    case cmd::kGraphingHotkeys:
      return QStringLiteral("keys-graph.html");
    case cmd::kNavigationalHotkeys:
      return QStringLiteral("keys-navigation.html");
    case cmd::kTutorialCalculator:
      return QStringLiteral("calculator.html");
    case cmd::kTutorialEvaluator:
      return QStringLiteral("evaluator.html");
    case cmd::kTutorialMatrix:
      return QStringLiteral("matrix.html");
    case cmd::kTutorialSpeech:
      return QStringLiteral("speech.html");
    case cmd::kTutorialGraphing:
      return QStringLiteral("graph.html");
    case cmd::kTutorialPrinting:
      return QStringLiteral("printing.html");
    case cmd::kOnlineHelp:
      return QStringLiteral("online.html");
    default:
      return {};
  }
}

QString helpFolder() {
  return programDataFolder(QStringLiteral("help")) + QLatin1Char('/');
}

QString helpPagePath(const QString& page, Language language) {
  const QString translated =
      helpFolder() + QString::fromLatin1(languageCode(language).data(), languageCode(language).size()) +
      QLatin1Char('/') + page;
  if (QFileInfo::exists(translated)) return translated;
  return helpFolder() + QStringLiteral("en/") + page;
}

bool OpenHelpFile(QWidget* /*owner*/, const QString& page) {
  if (page.isEmpty()) return false;
  const CGraphCalcApp* app = CGraphCalcApp::instance();
  const Language language = app ? app->dictionary().language() : Language::English;
  return QDesktopServices::openUrl(QUrl::fromLocalFile(helpPagePath(page, language)));
}

}  // namespace sonalyx::ui
