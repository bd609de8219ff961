#include <gtest/gtest.h>
#include <stdlib.h>

#include <QApplication>
#include <filesystem>
#include <string>

#include "platform/speech/CDirectSS.h"
#include "support/CaptureScreenReader.h"

// One QApplication for every test, on the off-screen platform unless the caller
// chose another. The voice writes down what it is told instead of speaking, the
// screen reader what it is given, and the sound output records what it plays
// (earcons included) instead of using a card.
int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  ::setenv("SONALYX_SPEECH", "capture", 1);
  const std::string recording =
      (std::filesystem::temp_directory_path() / ("sonalyx-ui-tests-" + std::to_string(::getpid()) + ".wav"))
          .string();
  ::setenv("SONALYX_AUDIO", ("capture:" + recording).c_str(), 1);
  ::unsetenv("SONALYX_SPEECH_LOG");
  // Qt keeps the file dialogs' last folder in the user's configuration: the tests
  // keep theirs to themselves.
  const std::filesystem::path config =
      std::filesystem::temp_directory_path() / ("sonalyx-ui-tests-config-" + std::to_string(::getpid()));
  ::setenv("XDG_CONFIG_HOME", config.c_str(), 1);
  QApplication application(argc, argv);
  // No screen reader runs unless a test says so, whatever the desktop the tests run on.
  sonalyx::test::CaptureScreenReader screenReader;
  sonalyx::CDirectSS::instance().setScreenReader(&screenReader);
  ::testing::InitGoogleTest(&argc, argv);
  const int result = RUN_ALL_TESTS();
  sonalyx::CDirectSS::instance().setScreenReader(nullptr);
  std::error_code ignored;
  std::filesystem::remove(recording, ignored);
  std::filesystem::remove_all(config, ignored);
  return result;
}
