#include "ui/app/ProgramOptions.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace sonalyx::ui {
namespace {

TEST(ProgramOptions, TakesOutItsOwnOptionsAndKeepsTheRestAsArgumentText) {
  const struct {
    std::vector<std::string> args;
    const char* settings;
    const char* speechLog;
    int langId;  // -1: none given
    const char* argumentText;
  } cases[] = {
      {{}, nullptr, nullptr, -1, ""},
      {{"-localTest"}, nullptr, nullptr, -1, "-localTest"},
      {{"--settings", "a.reg", "-localTest"}, "a.reg", nullptr, -1, "-localTest"},
      {{"--speech-log=log.txt", "--lang", "1053"}, nullptr, "log.txt", 1053, ""},
      {{"x", "--lang=2058", "y z"}, nullptr, nullptr, 2058, "x y z"},
      {{"--settings=s.reg", "--settings", "t.reg"}, "t.reg", nullptr, -1, ""},
  };
  for (const auto& c : cases) {
    const ProgramOptions options = ProgramOptions::parse(c.args);
    EXPECT_EQ(options.settingsFile.value_or("<none>"), c.settings ? c.settings : "<none>");
    EXPECT_EQ(options.speechLog.value_or("<none>"), c.speechLog ? c.speechLog : "<none>");
    EXPECT_EQ(options.langId.value_or(-1), c.langId);
    EXPECT_EQ(options.argumentText, c.argumentText);
  }
}

TEST(ProgramOptions, RefusesOptionsWithoutAUsableValue) {
  const std::vector<std::vector<std::string>> bad = {
      {"--settings"},   {"--speech-log"}, {"--lang"},       {"--lang", "sv"},
      {"--lang=70000"}, {"--settings="},  {"--lang", "-3"},
  };
  for (const auto& args : bad) EXPECT_THROW(ProgramOptions::parse(args), ProgramOptions::Error) << args[0];
}

}  // namespace
}  // namespace sonalyx::ui
