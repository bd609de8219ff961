#include <charconv>
#include <chrono>
#include <cstdint>
#include <optional>
#include <stdexcept>
#include <string>
#include <thread>

#include "cli/CliCommands.h"
#include "cli/CliError.h"
#include "cli/CliLanguage.h"
#include "core/settings/SettingsStore.h"
#include "core/sound/AudioFormat.h"
#include "core/sound/StreamResampler.h"
#include "core/speech/VoiceChoice.h"
#include "platform/sound/AudioOutput.h"
#include "platform/sound/OutputSequencer.h"
#include "platform/sound/SoundEffects.h"
#include "platform/sound/WaveFileWriter.h"
#include "platform/speech/CDirectSS.h"
#include "platform/speech/SpeechEngineRegistry.h"

namespace sonalyx::cli {

namespace {

// Long enough for any sentence; a voice that never finishes must not hang a script.
constexpr double kSpeechTimeoutMs = 120000.0;
constexpr double kEarconTimeoutMs = 5000.0;

int wholeNumber(const std::string& what, const std::string& text) {
  int value = 0;
  const char* end = text.data() + text.size();
  const char* begin = text.data() + (!text.empty() && text[0] == '+' ? 1 : 0);
  const auto [stop, ec] = std::from_chars(begin, end, value);
  if (text.empty() || ec != std::errc() || stop != end)
    throw CliError::usage(what + " needs a whole number, not '" + text + "'");
  return value;
}

std::string engineList() {
  std::string list;
  for (const std::string& name : SpeechEngineRegistry::names()) list += (list.empty() ? "" : ", ") + name;
  return list;
}

struct SpeakRequest {
  std::string text;
  std::string saveAs;
  std::string voice;
  bool haveVoice = false;
  bool haveRate = false;
  int rate = 0;
};

SpeakRequest parseSpeak(const Arguments& args) {
  SpeakRequest request;
  bool haveText = false;
  for (std::size_t i = 0; i < args.size(); ++i) {
    const std::string& word = args[i];
    if (word == "-o" || word == "--voice" || word == "--rate") {
      if (i + 1 >= args.size()) throw CliError::usage(word + " needs a value");
      const std::string& value = args[++i];
      if (word == "-o") {
        request.saveAs = value;
      } else if (word == "--voice") {
        request.voice = value;
        request.haveVoice = true;
      } else {
        request.rate = wholeNumber(word, value);
        if (request.rate < 0 || request.rate > 100)
          throw CliError::usage("--rate is a percent from 0 to 100");
        request.haveRate = true;
      }
    } else if (word.size() > 2 && word.compare(0, 2, "--") == 0 && word[2] >= 'a' && word[2] <= 'z') {
      throw CliError::usage("speak: unknown option " + word);
    } else {
      if (haveText) request.text += ' ';
      request.text += word;
      haveText = true;
    }
  }
  if (!haveText) throw CliError::usage("speak: no text given");
  return request;
}

// The voice as the user set it up, changed by the command's own choices.
void applyChoices(const SpeakRequest& request, CDirectSS& voice) {
  SpeechEngine& engine = *voice.engine();
  if (request.haveVoice) {
    if (!findVoice(engine.voices(), request.voice))
      throw CliError::user("no voice of " + engine.name() + " matches '" + request.voice + "'");
    // Named in so many words: it speaks whatever the language.
    voice.setLanguage({}, cliTranslator());
    voice.SelectVoice(request.voice);
  }
  if (request.haveRate) voice.SetRate(static_cast<std::uint32_t>(request.rate));
}

void requireKnownEngine(const std::string& name) {
  if (!SpeechEngineRegistry::has(name))
    throw CliError::user("unknown speech engine '" + name + "' (" + engineList() + ")");
}

}  // namespace

// speak [-o OUT.wav] [--voice V] [--rate R] TEXT
int runSpeakCommand(const Arguments& args, std::ostream&) {
  const SpeakRequest request = parseSpeak(args);
  const std::string engineName = SpeechEngineRegistry::chosenName();
  requireKnownEngine(engineName);
  const SettingsStore settings = SettingsStore::openDefault();

  if (!request.saveAs.empty()) {
    AudioOutput silent(AudioOutput::Mode::Null);
    CDirectSS voice(settings);
    voice.setLanguage(std::string(languageCode(cliLanguage())), cliTranslator());
    if (!voice.Create(SpeechEngineRegistry::create(engineName, silent)))
      throw CliError::user("the speech engine '" + engineName + "' could not start");
    applyChoices(request, voice);
    const std::optional<RenderedSpeech> speech = voice.engine()->render(request.text);
    if (!speech) throw CliError::user("the speech engine '" + engineName + "' cannot write sound files");
    // At the program's own rate, like every other sound it writes.
    std::vector<float> samples;
    StreamResampler resampler(speech->sampleRate, kSampleRate);
    resampler.push(speech->samples.data(), speech->samples.size(), samples);
    resampler.finish(samples);
    try {
      writeWaveFile(request.saveAs, samples, 1);
    } catch (const std::runtime_error& e) {
      throw CliError::user(e.what());
    }
    return 0;
  }

  AudioOutput& output = AudioOutput::instance();
  OutputSequencer sequencer(output);
  CDirectSS voice(settings);
  voice.setLanguage(std::string(languageCode(cliLanguage())), cliTranslator());
  if (!voice.Create(sequencer))
    throw CliError::user("the speech engine '" + engineName + "' could not start");
  applyChoices(request, voice);
  // Asked for in so many words, so it is said even with self-voicing switched off.
  voice.setEnabled(true);
  voice.Speak(SpeechKind::Content, request.text);
  const auto deadline =
      std::chrono::steady_clock::now() + std::chrono::duration<double, std::milli>(kSpeechTimeoutMs);
  while (voice.engine()->isSpeaking() && std::chrono::steady_clock::now() < deadline) {
    std::this_thread::sleep_for(std::chrono::milliseconds(10));
  }
  output.waitUntilIdle(kSpeechTimeoutMs);
  return 0;
}

// earcon ID
int runEarconCommand(const Arguments& args, std::ostream&) {
  if (args.size() != 1) throw CliError::usage("earcon needs one effect number");
  const int id = wholeNumber("earcon", args[0]);
  if (id < 0 || id > 6) throw CliError::usage("earcon: ID must be 0 to 6, not " + args[0]);
  AudioOutput& output = AudioOutput::instance();
  OutputSequencer sequencer(output);
  SoundEffects effects(SettingsStore::openDefault(), sequencer);
  effects.setOn(true);  // asked for, whatever the switch says
  effects.PlaySoundEffect(id);
  output.waitUntilIdle(kEarconTimeoutMs);
  return 0;
}

}  // namespace sonalyx::cli
