#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "platform/sound/AudioOutput.h"
#include "platform/speech/SpeechEngine.h"

namespace sonalyx {

// The speech engines this program can use, by the names SONALYX_SPEECH takes.
// "espeak-ng" (the default) and "capture" are always there; a program that links
// more engines (the system's speech service needs Qt) adds them at start.
class SpeechEngineRegistry {
 public:
  using Factory = std::function<std::unique_ptr<SpeechEngine>(AudioOutput& output)>;

  static constexpr const char* kDefaultEngine = "espeak-ng";

  // Adds or replaces the engine called `name`.
  static void add(const std::string& name, Factory factory);
  static bool has(const std::string& name);
  // Names in the order they were added.
  static std::vector<std::string> names();

  // The engine called `name` playing into `output`; nothing when no engine has that
  // name or it cannot start here.
  static std::unique_ptr<SpeechEngine> create(const std::string& name, AudioOutput& output);

  // The name SONALYX_SPEECH gives, else kDefaultEngine.
  static std::string chosenName();
  // The name SONALYX_SPEECH gives, else `stored` (the user's choice) when an engine
  // has that name, else kDefaultEngine.
  static std::string chosenName(const std::string& stored);
  // Whether SONALYX_SPEECH chooses the engine for this run.
  static bool chosenByEnvironment();
};

}  // namespace sonalyx
