#include "ui/app/HelpFiles.h"

#include <QDesktopServices>
#include <QUrl>

#include "ui/app/CommandIds.h"
#include "ui/app/ProgramFiles.h"

namespace sonalyx::ui {

QString helpPageFor(int commandId) {
  switch (commandId) {
    case cmd::kUserManual:
      return QStringLiteral("Manual\\en\\QuillmontSLXManual.html");
    case cmd::kCalculatorHotkeys:
      return QStringLiteral("Manual\\en\\hotkeys\\html\\index-3.html");
    case cmd::kGraphingHotkeys:
      return QStringLiteral("Manual\\en\\hotkeys\\html\\index-4.html");
    case cmd::kNavigationalHotkeys:
      return QStringLiteral("Manual\\en\\hotkeys\\html\\index-5.html");
    case cmd::kTutorialIndex:
      return QStringLiteral("TutorialIndex.htm");
    case cmd::kTutorialCalculator:
      return QStringLiteral("TCalculator.htm");
    case cmd::kTutorialEvaluator:
      return QStringLiteral("TEvaluator.htm");
    case cmd::kTutorialMatrix:
      return QStringLiteral("TMatrix.htm");
    case cmd::kTutorialSpeech:
      return QStringLiteral("TSpeech.htm");
    case cmd::kTutorialGraphing:
      return QStringLiteral("TGraphing.htm");
    case cmd::kTutorialPrinting:
      return QStringLiteral("TPrinting.htm");
    case cmd::kOnlineHelp:
      return QStringLiteral("OnlineHelp.html");
    default:
      return {};
  }
}

QString helpFolder() {
  return programDataFolder(QStringLiteral("help")) + QLatin1Char('/');
}

bool OpenHelpFile(QWidget* /*owner*/, const QString& relativePath) {
  if (relativePath.isEmpty()) return false;
  QString path = relativePath;
  path.replace(QLatin1Char('\\'), QLatin1Char('/'));
  return QDesktopServices::openUrl(QUrl::fromLocalFile(helpFolder() + path));
}

}  // namespace sonalyx::ui
