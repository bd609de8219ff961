#pragma once

#include <filesystem>

namespace sonalyx {

// The settings file: $SONALYX_SETTINGS when set, otherwise
// $XDG_CONFIG_HOME/Quillmont/SLX3/Settings.reg, with ~/.config standing in for an
// unset (or relative) XDG_CONFIG_HOME.
std::filesystem::path defaultSettingsPath();

}  // namespace sonalyx
