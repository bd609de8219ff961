#include "core/settings/SettingsPath.h"

#include <pwd.h>
#include <unistd.h>

#include <cstdlib>

namespace sonalyx {

namespace {

const char* nonEmptyVariable(const char* name) {
  const char* value = std::getenv(name);
  return value != nullptr && *value != '\0' ? value : nullptr;
}

std::filesystem::path homeFolder() {
  if (const char* home = nonEmptyVariable("HOME")) return home;
  // A service or a stripped environment may lack HOME; the password entry still
  // names the user's home.
  if (const passwd* entry = getpwuid(getuid()); entry != nullptr && entry->pw_dir != nullptr)
    return entry->pw_dir;
  return ".";
}

}  // namespace

std::filesystem::path defaultSettingsPath() {
  if (const char* file = nonEmptyVariable("SONALYX_SETTINGS")) return file;
  std::filesystem::path config;
  // Relative values are to be ignored, so a settings file never depends on the
  // folder a program was started in.
  if (const char* xdg = nonEmptyVariable("XDG_CONFIG_HOME"); xdg != nullptr && xdg[0] == '/') {
    config = xdg;
  } else {
    config = homeFolder() / ".config";
  }
  return config / "Quillmont" / "SLX3" / "Settings.reg";
}

}  // namespace sonalyx
