#include <algorithm>
#include <chrono>
#include <string>
#include <thread>

#include "cli/CliCommands.h"
#include "cli/CliError.h"
#include "cli/CliLanguage.h"
#include "cli/SamplingDomain.h"
#include "core/files/DataSetFile.h"
#include "core/files/WaveExport.h"
#include "core/math/DataSet.h"
#include "core/math/FunctionSampler.h"
#include "core/settings/SettingsStore.h"
#include "core/sound/EngineLoad.h"
#include "core/sound/PlayTimeLimit.h"
#include "platform/sound/AudioOutput.h"
#include "platform/sound/CSNControl.h"

namespace sonalyx::cli {

namespace {

struct SoundRequest {
  DataSet set;
  std::string output;  // sonify's -o
  bool stereo = false;
  bool ticks = false;
};

SoundRequest parseSoundRequest(const std::string& command, const Arguments& args, bool wantsOutput) {
  const SettingsStore store = SettingsStore::openDefault();
  SoundRequest request;
  // The Wave settings decide unless a flag asks for more.
  request.stereo = !store.GetIsMono();
  request.ticks = store.GetPlayTicks();
  std::string file;
  std::string expression;
  bool haveExpression = false;
  for (std::size_t i = 0; i < args.size(); ++i) {
    const std::string& word = args[i];
    if (word == "--expr" || word == "-o") {
      if (i + 1 >= args.size()) throw CliError::usage(command + ": " + word + " needs a value");
      if (word == "--expr") {
        expression = args[++i];
        haveExpression = true;
      } else {
        request.output = args[++i];
      }
    } else if (word == "--stereo") {
      request.stereo = true;
    } else if (word == "--ticks") {
      request.ticks = true;
    } else if (word.rfind("-", 0) == 0 && word.size() > 1) {
      throw CliError::usage(command + ": unknown option " + word);
    } else if (!file.empty()) {
      throw CliError::usage(command + ": one data-set file only");
    } else {
      file = word;
    }
  }
  if (file.empty() == !haveExpression)
    throw CliError::usage(command + " needs one data-set file or --expr EXPRESSION");
  if (wantsOutput && request.output.empty()) throw CliError::usage(command + " needs -o OUT.wav");
  if (!wantsOutput && !request.output.empty()) throw CliError::usage(command + " writes no file");

  if (haveExpression) {
    // As the Data 1 page evaluates f(x): its domain and point count, then polar
    // points converted when its Polar choice is on.
    const SamplingDomain domain = SamplingDomain::fromSettings();
    FunctionSampler sampler(cliTranslator());
    std::string error;
    if (!sampler.computeFunction(request.set, expression, domain.x0, domain.x1, domain.points, error))
      throw CliError::user(error);
    if (store.GetData1IsPolar()) request.set.toCartesian();
  } else {
    request.set.assign(readDataSetFile(file));
  }
  return request;
}

}  // namespace

// sonify FILE|--expr EXPR -o OUT.wav [--stereo] [--ticks]
int runSonifyCommand(const Arguments& args, std::ostream& out) {
  SoundRequest request = parseSoundRequest("sonify", args, true);
  if (!request.set.hasData()) throw CliError::user(kNothingToSaveText);
  // Rendering needs no sound card: a hand-paced silent output is never pulled.
  AudioOutput silent(AudioOutput::Mode::Null, {}, AudioOutput::Pacing::Manual);
  CSNControl engine(silent);
  engine.CreateInstance();
  loadEngine(engine, request.set, SettingsStore::openDefault());
  const std::string path = applyWavExtension(request.output);
  engine.WriteWaveToFile(path, request.stereo, request.ticks);
  if (!engine.lastWriteError().empty()) throw CliError::user(engine.lastWriteError());
  out << path << '\n';
  return 0;
}

// play FILE|--expr EXPR [--ticks] [--stereo]
int runPlayCommand(const Arguments& args, std::ostream& /*out*/) {
  SoundRequest request = parseSoundRequest("play", args, false);
  if (!request.set.hasData()) throw CliError::user("The data set is empty.");
  if (!playTimeAllowed(SettingsStore::openDefault().GetPlayTime()))
    throw CliError::user(playTimeLimitText(cliTranslator()));
  AudioOutput& output = AudioOutput::instance();
  CSNControl engine(output);
  engine.CreateInstance();
  const SettingsStore store = SettingsStore::openDefault();
  loadEngine(engine, request.set, store);
  engine.Play(request.stereo, request.ticks, false, false, 0, 0);
  // The whole play time, with room for a slow start of the sound server.
  const double playMs = static_cast<double>(engine.settings().playTime) * 1000.0;
  if (!output.waitUntilIdle(std::max(playMs, 0.0) + 10000.0))
    throw CliError::user("The sound did not finish.");
  // The mixer is done; let the sound card's own buffer play out before the program ends.
  if (!output.deviceDriver().empty()) std::this_thread::sleep_for(std::chrono::milliseconds(150));
  return 0;
}

}  // namespace sonalyx::cli
