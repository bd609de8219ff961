#include "platform/qt/speech/SystemSpeechEngine.h"

#include <gtest/gtest.h>

#include <QCoreApplication>

#include "platform/speech/SpeechEngineRegistry.h"

namespace sonalyx {
namespace {

// The system's speech service may be missing where the tests run; the engine must
// then stay silent and harmless, and the registry must not offer it.
TEST(SystemSpeechEngine, WorksInQtsUnitsAndStaysHarmlessWithoutTheService) {
  SystemSpeechEngine engine;
  EXPECT_EQ(engine.range(SpeechSetting::Rate), (EngineRange{-100, 100}));
  EXPECT_EQ(engine.range(SpeechSetting::Volume), (EngineRange{0, 100}));
  EXPECT_FALSE(engine.render("x = 2").has_value());
  const std::vector<std::string> voices = engine.voices();
  if (!voices.empty()) {
    EXPECT_LT(engine.defaultVoice(), voices.size());
  }
  EXPECT_FALSE(engine.selectVoice(voices.size()));

  engine.speak("Self-voicing activated.", 50.0);
  EXPECT_TRUE(engine.isSpeaking());  // the delayed start is pending
  engine.stop();
  QCoreApplication::processEvents();
  if (!engine.isAvailable()) {
    EXPECT_FALSE(engine.isSpeaking());
  }

  registerSystemSpeechEngine();
  ASSERT_TRUE(SpeechEngineRegistry::has("system"));
  AudioOutput output(AudioOutput::Mode::Null);
  EXPECT_EQ(SpeechEngineRegistry::create("system", output) != nullptr, engine.isAvailable());
}

}  // namespace
}  // namespace sonalyx
