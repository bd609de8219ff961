#include <QApplication>
#include <iostream>
#include <string>
#include <vector>

#include "ui/app/CGraphCalcApp.h"
#include "ui/app/ProgramOptions.h"

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QApplication::setApplicationName(QStringLiteral("Sonalyx"));

  std::vector<std::string> args;
  for (const QString& arg : QApplication::arguments().mid(1)) args.push_back(arg.toStdString());
  sonalyx::ui::ProgramOptions options;
  try {
    options = sonalyx::ui::ProgramOptions::parse(args);
  } catch (const sonalyx::ui::ProgramOptions::Error& error) {
    std::cerr << "sonalyx: " << error.what() << "\n" << sonalyx::ui::ProgramOptions::usage();
    return 2;
  }
  if (options.showHelp) {
    std::cout << sonalyx::ui::ProgramOptions::usage();
    return 0;
  }
  options.applyToEnvironment();

  sonalyx::ui::CGraphCalcApp app(options);
  if (!app.InitInstance()) return 0;
  QApplication::exec();
  return app.ExitInstance();
}
