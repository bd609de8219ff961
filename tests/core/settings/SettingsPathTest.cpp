#include "core/settings/SettingsPath.h"

#include <gtest/gtest.h>
#include <stdlib.h>

#include <optional>
#include <string>

#include "core/settings/SettingsStore.h"
#include "support/TempFolder.h"

namespace sonalyx {
namespace {

// Sets or clears an environment variable for one scope and puts it back after.
class ScopedVariable {
 public:
  ScopedVariable(const char* name, const char* value) : m_name(name) {
    if (const char* old = std::getenv(name)) m_old = old;
    if (value != nullptr) {
      ::setenv(name, value, 1);
    } else {
      ::unsetenv(name);
    }
  }
  ~ScopedVariable() {
    if (m_old) {
      ::setenv(m_name, m_old->c_str(), 1);
    } else {
      ::unsetenv(m_name);
    }
  }
  ScopedVariable(const ScopedVariable&) = delete;
  ScopedVariable& operator=(const ScopedVariable&) = delete;

 private:
  const char* m_name;
  std::optional<std::string> m_old;
};

TEST(SettingsPath, FollowsTheEnvironment) {
  const struct {
    const char* settings;  // nullptr: unset
    const char* xdg;
    const char* home;
    const char* expected;
  } cases[] = {
      {"/x/My.reg", "/cfg", "/home/u", "/x/My.reg"},
      {"", "/cfg", "/home/u", "/cfg/Quillmont/SLX3/Settings.reg"},
      {nullptr, "/cfg", "/home/u", "/cfg/Quillmont/SLX3/Settings.reg"},
      {nullptr, nullptr, "/home/u", "/home/u/.config/Quillmont/SLX3/Settings.reg"},
      {nullptr, "", "/home/u", "/home/u/.config/Quillmont/SLX3/Settings.reg"},
      {nullptr, "relative", "/home/u", "/home/u/.config/Quillmont/SLX3/Settings.reg"},
  };
  for (const auto& c : cases) {
    const ScopedVariable settings("SONALYX_SETTINGS", c.settings);
    const ScopedVariable xdg("XDG_CONFIG_HOME", c.xdg);
    const ScopedVariable home("HOME", c.home);
    EXPECT_EQ(defaultSettingsPath(), std::filesystem::path(c.expected)) << c.expected;
  }
}

TEST(SettingsPath, TheDefaultStoreUsesThatFile) {
  test::TempFolder folder;
  const auto file = folder / "sub" / "Settings.reg";
  const ScopedVariable settings("SONALYX_SETTINGS", file.c_str());
  const SettingsStore store = SettingsStore::openDefault();
  EXPECT_EQ(store.GetNumDec(), 5u);
  EXPECT_EQ(test::readBytes(file),
            "Windows Registry Editor Version 5.00\n\n"
            "[HKEY_CURRENT_USER\\Software\\Quillmont\\SLX3\\CurrentVersion\\Settings]\n"
            "\"numDec\"=dword:00000005\n");
}

}  // namespace
}  // namespace sonalyx
