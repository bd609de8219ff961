#pragma once

#include <QString>

class QWidget;

namespace sonalyx::ui {

// The help page a help command opens, relative to the help folder (with "\" as on
// the program's original platform); empty for any other command. The pages are
// always the English ones.
QString helpPageFor(int commandId);

// The folder "help" beside the program file, or where an installation put it.
QString helpFolder();

// Opens a help page in the user's browser. A page that is missing is the browser's
// to report; false only when nothing could be asked to open it.
bool OpenHelpFile(QWidget* owner, const QString& relativePath);

}  // namespace sonalyx::ui
