#pragma once

#include <QString>

namespace sonalyx::ui {

// The folder of the program's own files named `name` ("help", "translations"):
// beside the program file as the build tree has it, or where an installation puts
// it, share/sonalyx/<name> next to the program's bin folder. The folder beside the
// program wins when both exist, and is named when neither does.
QString programDataFolder(const QString& name);

}  // namespace sonalyx::ui
