#include <gtest/gtest.h>
#include <stdlib.h>

#include <QApplication>
#include <filesystem>
#include <string>

// One QApplication for every test, on the off-screen platform unless the caller
// chose another. The voice writes down what it is told instead of speaking, and the
// sound output records what it plays (earcons included) instead of using a card.
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
  ::testing::InitGoogleTest(&argc, argv);
  const int result = RUN_ALL_TESTS();
  std::error_code ignored;
  std::filesystem::remove(recording, ignored);
  std::filesystem::remove_all(config, ignored);
  return result;
}
