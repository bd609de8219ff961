#include "platform/speech/CDirectSS.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <memory>
#include <string>
#include <vector>

#include "core/settings/FirstStart.h"
#include "core/settings/RecordingBackend.h"
#include "platform/speech/CaptureSpeechEngine.h"
#include "platform/speech/SelfVoicing.h"

namespace sonalyx {
namespace {

using Voices = CaptureSpeechEngine::Voices;

struct Rig {
  std::shared_ptr<test::RecordingBackend> backend = std::make_shared<test::RecordingBackend>();
  SettingsStore settings{backend};
  double now = 0.0;

  // A voice over a capture engine; `engine` watches what it was told.
  std::unique_ptr<CDirectSS> voice(CaptureSpeechEngine*& engine, Voices voices = {}) {
    auto made = std::make_unique<CDirectSS>(settings);
    auto capture = std::make_unique<CaptureSpeechEngine>([this] { return now; }, std::move(voices));
    engine = capture.get();
    made->Create(std::move(capture));
    return made;
  }
};

std::vector<std::string> texts(const CaptureSpeechEngine& engine) {
  std::vector<std::string> said;
  for (const auto& u : engine.utterances()) said.push_back(u.text);
  return said;
}

TEST(CDirectSS, SwitchingSelfVoicingIsHeardBothWays) {
  const Translator french = [](const std::string& text) { return "fr:" + text; };
  const struct {
    bool storedOn;  // ttsOn when the program starts
    bool toggle;    // the sheet's toggle rather than the check box
    std::vector<std::string> expected;
  } cases[] = {
      // Off at start: nothing until it is switched on, and then that is the first word.
      {false, false, {"fr:Self-voicing activated.", "after"}},
      {false, true, {"fr:Self-voicing activated.", "after"}},
      // On at start: switching off is still said, in full, and then nothing.
      {true, false, {"before", "fr:Self-voicing deactivated."}},
      {true, true, {"before", "fr:Self-voicing deactivated."}},
  };
  for (const auto& c : cases) {
    Rig rig;
    rig.settings.SetTtsOn(c.storedOn);
    CaptureSpeechEngine* engine = nullptr;
    auto voice = rig.voice(engine);
    EXPECT_EQ(voice->enabled(), c.storedOn);
    voice->Speak(SpeechKind::Content, "before");
    if (c.toggle) {
      EXPECT_EQ(toggleSelfVoicing(rig.settings, *voice, french), !c.storedOn);
    } else {
      setSelfVoicing(!c.storedOn, rig.settings, *voice, french);
    }
    EXPECT_EQ(rig.settings.GetTtsOn(), !c.storedOn);
    EXPECT_EQ(voice->enabled(), !c.storedOn);
    voice->Speak(SpeechKind::Content, "after");
    EXPECT_EQ(texts(*engine), c.expected) << c.storedOn << c.toggle;
  }
  // The voice is made before the program reads its settings and stores nothing, so
  // the program still sees its first start.
  Rig fresh;
  CaptureSpeechEngine* unused = nullptr;
  EXPECT_FALSE(fresh.voice(unused)->enabled());
  EXPECT_TRUE(isFirstStart(fresh.settings));
}

TEST(CDirectSS, AppliesTheStoredVoiceAndPercentsOfTheEngineRanges) {
  const Voices voices{
      {"Samantha", "Microsoft Sam", "Sam", "English (America)"}, 3, {0, 255}, {-10, 10}, {80, 450}};
  const struct {
    const char* voice;
    std::uint32_t rate, pitch, volume;
    const char* expectedVoice;
    int expectedRate, expectedPitch, expectedVolume;
  } cases[] = {
      {"Sam", 50, 50, 50, "Sam", 127, 0, 265},
      {"america", 0, 100, 100, "English (America)", 0, 10, 450},
      {"Mary", 100, 0, 1, "English (America)", 255, -10, 83},  // no such voice: the default
      {"Microsoft", 33, 47, 99, "Microsoft Sam", 84, 0, 446},
  };
  for (const auto& c : cases) {
    Rig rig;
    rig.settings.SetVoice(c.voice);
    rig.settings.SetRate(c.rate);
    rig.settings.SetPitch(c.pitch);
    rig.settings.SetVol(c.volume);
    CaptureSpeechEngine* engine = nullptr;
    auto voice = rig.voice(engine, voices);
    EXPECT_EQ(engine->currentVoice(), c.expectedVoice) << c.voice;
    EXPECT_EQ(engine->get(SpeechSetting::Rate), c.expectedRate) << c.rate;
    EXPECT_EQ(engine->get(SpeechSetting::Pitch), c.expectedPitch) << c.pitch;
    EXPECT_EQ(engine->get(SpeechSetting::Volume), c.expectedVolume) << c.volume;
  }
}

TEST(CDirectSS, TheProgramsLanguageChoosesTheVoiceBeforeAndAfterTheEngineStarts) {
  const Voices installed{{"English (Great Britain)", "French (France)", "Swedish"},
                         0,
                         {0, 100},
                         {0, 100},
                         {0, 100},
                         {"en-gb", "fr-fr", "sv"}};
  Rig rig;
  rig.settings.SetVoice("Sam");
  CaptureSpeechEngine* engine = nullptr;
  CDirectSS early(rig.settings);
  early.setLanguage("sv");
  auto capture = std::make_unique<CaptureSpeechEngine>([] { return 0.0; }, installed);
  engine = capture.get();
  early.Create(std::move(capture));
  EXPECT_EQ(engine->currentVoice(), "Swedish");
  auto later = rig.voice(engine, installed);
  EXPECT_EQ(engine->currentVoice(), "English (Great Britain)");
  later->setLanguage("fr");
  EXPECT_EQ(engine->currentVoice(), "French (France)");
}

TEST(CDirectSS, OffersFilteredVoicesAndDoesNothingWithoutAnEngine) {
  Rig rig;
  CaptureSpeechEngine* engine = nullptr;
  auto voice = rig.voice(engine, Voices{{"Sammy", "L&H Carol", "Mike", "ATTCrystal"}});
  std::vector<std::string> list{"stale"};
  ASSERT_TRUE(voice->GetVoices(list));
  EXPECT_EQ(list, (std::vector<std::string>{"L&H Carol", "Mike"}));
  auto foreign = rig.voice(engine, Voices{{"English (America)", "German"}});
  ASSERT_TRUE(foreign->GetVoices(list));
  EXPECT_EQ(list, (std::vector<std::string>{"English (America)", "German"}));
  auto mute = rig.voice(engine, Voices{{}});
  EXPECT_FALSE(mute->GetVoices(list));
  EXPECT_FALSE(mute->SelectVoice("Sam"));

  rig.settings.SetTtsOn(true);
  CDirectSS none(rig.settings);
  EXPECT_FALSE(none.Create(nullptr));
  EXPECT_FALSE(none.GetVoices(list));
  EXPECT_TRUE(list.empty());
  EXPECT_FALSE(none.SelectVoice("Sam"));
  EXPECT_FALSE(none.SetRate(50));
  EXPECT_EQ(none.ShowAboutDialog(), "");
  none.Speak(SpeechKind::Content, "nothing to say it with");
}

TEST(CDirectSS, TheDialogsSayWhatTheyWouldShow) {
  Rig rig;
  rig.settings.SetTtsOn(true);
  rig.settings.SetRate(100);
  CaptureSpeechEngine* engine = nullptr;
  auto voice = rig.voice(engine, Voices{{"Mike"}, 0, {0, 200}, {0, 100}, {0, 100}});
  const std::string about = voice->ShowAboutDialog();
  const std::string general = voice->ShowGeneralDialog();
  const std::string lexicon = voice->ShowLexiconDialog();
  EXPECT_NE(about.find(engine->description()), std::string::npos);
  EXPECT_NE(general.find("Mike"), std::string::npos);
  EXPECT_NE(general.find("rate 200 (0 to 200)"), std::string::npos);
  EXPECT_EQ(texts(*engine), (std::vector<std::string>{about, general, lexicon}));
}

TEST(CDirectSS, LogsEveryUtteranceItSaysOnALineOfItsOwn) {
  const auto path = std::filesystem::temp_directory_path() / "sonalyx-speech-log-test.txt";
  {
    std::ofstream earlier(path, std::ios::trunc);
    earlier << "from an earlier run\n";
  }
  Rig rig;
  rig.settings.SetTtsOn(true);
  CaptureSpeechEngine* engine = nullptr;
  auto voice = rig.voice(engine);
  voice->setLog(std::make_unique<SpeechLog>(path.string()));
  voice->Speak(SpeechKind::Content, "x = 2, y = 0.333");
  voice->Speak(SpeechKind::Content, "two\nlines");
  // The log can be read while the program runs: every line is flushed at once.
  std::ifstream whileRunning(path);
  std::vector<std::string> lines;
  for (std::string line; std::getline(whileRunning, line);) lines.push_back(line);
  EXPECT_EQ(lines, (std::vector<std::string>{"from an earlier run", "x = 2, y = 0.333", "two lines"}));
  setSelfVoicing(false, rig.settings, *voice, {});
  voice->Speak(SpeechKind::Content, "unheard, so unlogged");
  voice.reset();
  std::ifstream afterwards(path);
  lines.clear();
  for (std::string line; std::getline(afterwards, line);) lines.push_back(line);
  EXPECT_EQ(lines.back(), "Self-voicing deactivated.");
  EXPECT_EQ(lines.size(), 4U);
  std::filesystem::remove(path);
}

}  // namespace
}  // namespace sonalyx
