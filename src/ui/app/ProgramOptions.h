#pragma once

#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

namespace sonalyx::ui {

// The desktop program's command line. Its own options are taken out; whatever is
// left is the argument text that the updater's "-localTest" switch is compared with.
struct ProgramOptions {
  // Thrown for a command line the program cannot use, with the reason.
  struct Error : std::runtime_error {
    using std::runtime_error::runtime_error;
  };

  std::optional<std::string> settingsFile;  // --settings FILE: as SONALYX_SETTINGS
  std::optional<std::string> speechLog;     // --speech-log FILE: as SONALYX_SPEECH_LOG
  std::optional<int> langId;                // --lang ID: a Windows language id, e.g. 1053
  bool showHelp = false;                    // --help
  std::string argumentText;                 // the other arguments joined by blanks

  // `args` without the program name. Each option takes its value as the next
  // argument or after "=" ("--lang=1036").
  static ProgramOptions parse(const std::vector<std::string>& args);

  // Exports the file options to the environment, where the settings store and the
  // voice look for them.
  void applyToEnvironment() const;

  static const char* usage();
};

}  // namespace sonalyx::ui
