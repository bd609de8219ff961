#include "ui/app/ProgramOptions.h"

#include <cerrno>
#include <cstdlib>
#include <string_view>

namespace sonalyx::ui {

namespace {

// Splits "--name=value"; a bare "--name" leaves the value to the next argument.
bool matchOption(const std::string& arg, std::string_view name, std::optional<std::string>& inlineValue) {
  if (arg == name) return true;
  if (arg.size() > name.size() && arg.compare(0, name.size(), name) == 0 && arg[name.size()] == '=') {
    inlineValue = arg.substr(name.size() + 1);
    return true;
  }
  return false;
}

int parseLangId(const std::string& text) {
  if (text.empty() || text.find_first_not_of("0123456789") != std::string::npos)
    throw ProgramOptions::Error("--lang needs a language id, a number such as 1033 or 1053, not \"" + text +
                                "\"");
  errno = 0;
  const unsigned long value = std::strtoul(text.c_str(), nullptr, 10);
  if (errno != 0 || value > 0xFFFF) throw ProgramOptions::Error("--lang " + text + ": no such language id");
  return static_cast<int>(value);
}

}  // namespace

ProgramOptions ProgramOptions::parse(const std::vector<std::string>& args) {
  ProgramOptions options;
  std::vector<std::string> rest;
  for (std::size_t i = 0; i < args.size(); ++i) {
    const std::string& arg = args[i];
    std::optional<std::string> inlineValue;
    std::string name;
    for (const char* candidate : {"--settings", "--speech-log", "--lang"}) {
      if (matchOption(arg, candidate, inlineValue)) {
        name = candidate;
        break;
      }
    }
    if (name.empty()) {
      if (arg == "--help" || arg == "-h") {
        options.showHelp = true;
        continue;
      }
      rest.push_back(arg);
      continue;
    }
    std::string value;
    if (inlineValue) {
      value = *inlineValue;
    } else {
      if (i + 1 >= args.size()) throw Error(name + " needs a value");
      value = args[++i];
    }
    if (name == "--settings") {
      if (value.empty()) throw Error("--settings needs a file name");
      options.settingsFile = value;
    } else if (name == "--speech-log") {
      if (value.empty()) throw Error("--speech-log needs a file name");
      options.speechLog = value;
    } else {
      options.langId = parseLangId(value);
    }
  }
  for (std::size_t i = 0; i < rest.size(); ++i) {
    if (i > 0) options.argumentText += ' ';
    options.argumentText += rest[i];
  }
  return options;
}

void ProgramOptions::applyToEnvironment() const {
  if (settingsFile) ::setenv("SONALYX_SETTINGS", settingsFile->c_str(), 1);
  if (speechLog) ::setenv("SONALYX_SPEECH_LOG", speechLog->c_str(), 1);
}

const char* ProgramOptions::usage() {
  return "usage: sonalyx [--settings FILE] [--speech-log FILE] [--lang ID] [-localTest]\n"
         "  --settings FILE    keep the settings in FILE (as SONALYX_SETTINGS)\n"
         "  --speech-log FILE  write every spoken text to FILE (as SONALYX_SPEECH_LOG)\n"
         "  --lang ID          speak and show the language of Windows language id ID\n"
         "                     (1033 English, 1053 Swedish, 1036 French, 1031 German, 3082 Spanish)\n"
         "  -localTest         point the external updater at the test server\n";
}

}  // namespace sonalyx::ui
