#include "ui/app/ProgramFiles.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace sonalyx::ui {

QString programDataFolder(const QString& name) {
  const QDir programFolder(QCoreApplication::applicationDirPath());
  const QString beside = programFolder.filePath(name);
  // Found relative to the program, so an installation under any prefix works.
  const QString installed =
      QDir::cleanPath(programFolder.filePath(QStringLiteral("../share/sonalyx/") + name));
  if (!QFileInfo(beside).isDir() && QFileInfo(installed).isDir()) return installed;
  return beside;
}

}  // namespace sonalyx::ui
