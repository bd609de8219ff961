#include <QApplication>
#include <clocale>
#include <iostream>
#include <string>
#include <vector>

#include "ui/app/CGraphCalcApp.h"
#include "ui/app/ProgramOptions.h"

namespace {

// The program's own options; "--help" and a wrong option are answered before any
// window system is needed.
bool readOptions(const std::vector<std::string>& args, sonalyx::ui::ProgramOptions& options, int& exitCode) {
  try {
    options = sonalyx::ui::ProgramOptions::parse(args);
  } catch (const sonalyx::ui::ProgramOptions::Error& error) {
    std::cerr << "sonalyx: " << error.what() << "\n" << sonalyx::ui::ProgramOptions::usage();
    exitCode = 2;
    return false;
  }
  if (options.showHelp) {
    std::cout << sonalyx::ui::ProgramOptions::usage();
    exitCode = 0;
    return false;
  }
  return true;
}

}  // namespace

int main(int argc, char** argv) {
  sonalyx::ui::ProgramOptions options;
  int exitCode = 0;
  if (!readOptions(std::vector<std::string>(argv + 1, argv + argc), options, exitCode)) return exitCode;

  QApplication application(argc, argv);
  // Qt adopts the user's locale for the C library too; numbers in files, on the
  // clipboard and in expressions keep the decimal point whatever the desktop's language.
  std::setlocale(LC_NUMERIC, "C");
  QApplication::setApplicationName(QStringLiteral("Sonalyx"));
  // Again without the arguments Qt took for itself (-platform and the like), so
  // that the updater's switch sees only the program's.
  std::vector<std::string> args;
  for (const QString& arg : QApplication::arguments().mid(1)) args.push_back(arg.toStdString());
  if (!readOptions(args, options, exitCode)) return exitCode;
  options.applyToEnvironment();

  sonalyx::ui::CGraphCalcApp app(options);
  if (!app.InitInstance()) return 0;
  QApplication::exec();
  return app.ExitInstance();
}
