#include "platform/speech/SpeechEngineRegistry.h"

#include <cstdlib>
#include <mutex>
#include <utility>

#include "platform/speech/CaptureSpeechEngine.h"
#include "platform/speech/EspeakSpeechEngine.h"

namespace sonalyx {

namespace {

struct Registry {
  std::mutex lock;
  std::vector<std::pair<std::string, SpeechEngineRegistry::Factory>> engines;

  static Registry& get() {
    static Registry registry;
    return registry;
  }

  SpeechEngineRegistry::Factory* find(const std::string& name) {
    for (auto& [known, factory] : engines) {
      if (known == name) return &factory;
    }
    return nullptr;
  }

 private:
  Registry() {
    engines.emplace_back(SpeechEngineRegistry::kDefaultEngine,
                         [](AudioOutput& output) -> std::unique_ptr<SpeechEngine> {
                           auto engine = std::make_unique<EspeakSpeechEngine>(output);
                           if (!engine->isAvailable()) return nullptr;
                           return engine;
                         });
    engines.emplace_back("capture", [](AudioOutput& output) -> std::unique_ptr<SpeechEngine> {
      return std::make_unique<CaptureSpeechEngine>([&output] { return output.nowMs(); });
    });
  }
};

}  // namespace

void SpeechEngineRegistry::add(const std::string& name, Factory factory) {
  Registry& registry = Registry::get();
  std::lock_guard lock(registry.lock);
  if (Factory* known = registry.find(name)) {
    *known = std::move(factory);
  } else {
    registry.engines.emplace_back(name, std::move(factory));
  }
}

bool SpeechEngineRegistry::has(const std::string& name) {
  Registry& registry = Registry::get();
  std::lock_guard lock(registry.lock);
  return registry.find(name) != nullptr;
}

std::vector<std::string> SpeechEngineRegistry::names() {
  Registry& registry = Registry::get();
  std::lock_guard lock(registry.lock);
  std::vector<std::string> names;
  for (const auto& entry : registry.engines) names.push_back(entry.first);
  return names;
}

std::unique_ptr<SpeechEngine> SpeechEngineRegistry::create(const std::string& name, AudioOutput& output) {
  Factory factory;
  {
    Registry& registry = Registry::get();
    std::lock_guard lock(registry.lock);
    if (Factory* known = registry.find(name)) factory = *known;
  }
  return factory ? factory(output) : nullptr;
}

std::string SpeechEngineRegistry::chosenName() {
  return chosenName(kDefaultEngine);
}

std::string SpeechEngineRegistry::chosenName(const std::string& stored) {
  if (chosenByEnvironment()) return std::getenv("SONALYX_SPEECH");
  return has(stored) ? stored : kDefaultEngine;
}

bool SpeechEngineRegistry::chosenByEnvironment() {
  const char* chosen = std::getenv("SONALYX_SPEECH");
  return chosen != nullptr && *chosen != '\0';
}

}  // namespace sonalyx
