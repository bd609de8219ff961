#pragma once

#include <QString>

#include "core/speech/LanguageTable.h"

class QWidget;

namespace sonalyx::ui {

// The help page a help command opens, by its file name inside a language's help
// folder; empty for any other command.
QString helpPageFor(int commandId);

// The folder "help" beside the program file, or where an installation put it.
QString helpFolder();

// Where a page is read: help/<code>/ of `language` when that folder has it,
// otherwise the English one, help/en/.
QString helpPagePath(const QString& page, Language language);

// Opens a help page in the user's browser, in the program's language where the
// help has it. A page that is missing is the browser's to report; false only when
// nothing could be asked to open it.
bool OpenHelpFile(QWidget* owner, const QString& page);

}  // namespace sonalyx::ui
