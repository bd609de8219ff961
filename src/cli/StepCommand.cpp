#include <array>
#include <map>
#include <string>

#include "cli/CliCommands.h"
#include "cli/CliError.h"
#include "cli/CliLanguage.h"
#include "cli/DataSetArgument.h"
#include "core/graph/GraphScaling.h"
#include "core/graph/GraphTicks.h"
#include "core/math/DataSet.h"
#include "core/settings/SettingsStore.h"
#include "core/sound/GraphPlayback.h"
#include "core/speech/SignWords.h"
#include "core/speech/TranslationMarker.h"
#include "core/utility/NumberFormat.h"

namespace sonalyx::cli {

namespace {

const std::map<std::string, PlaybackCommand>& keyNames() {
  static const std::map<std::string, PlaybackCommand> names = {
      {"play", PlaybackCommand::Play},
      {"ticks", PlaybackCommand::PlayWithTicks},
      {"stop", PlaybackCommand::Stop},
      {"next", PlaybackCommand::NextPoint},
      {"previous", PlaybackCommand::PreviousPoint},
      {"max", PlaybackCommand::NextMaximum},
      {"min", PlaybackCommand::NextMinimum},
      {"first", PlaybackCommand::FirstPoint},
      {"last", PlaybackCommand::LastPoint},
      {"cross", PlaybackCommand::NextCurveCrossing},
      {"zero", PlaybackCommand::NextZero},
      {"prev-zero", PlaybackCommand::PreviousZero},
  };
  return names;
}

std::string keyList() {
  std::string list;
  for (const auto& [name, command] : keyNames()) list += (list.empty() ? "" : " ") + name;
  return list;
}

// The data sets: set 1 and set 2 from the options, the sum and difference from them.
std::array<DataSet, 4> slotsFrom(const Arguments& args, std::size_t& next) {
  std::array<DataSet, 4> slots;
  for (; next + 1 < args.size(); next += 2) {
    const std::string& option = args[next];
    if (option == "--expr") {
      slots[0] = sampledSet(args[next + 1]);
    } else if (option == "--expr2") {
      slots[1] = sampledSet(args[next + 1]);
    } else if (option == "--file") {
      slots[0] = fileSet(args[next + 1]);
    } else if (option == "--file2") {
      slots[1] = fileSet(args[next + 1]);
    } else {
      break;
    }
  }
  DataSet::combine(slots[2], slots[0], slots[1], true);
  DataSet::combine(slots[3], slots[0], slots[1], false);
  return slots;
}

}  // namespace

// step [--expr E | --file F] [--expr2 E | --file2 F] KEY...: the playback keys
// pressed on the graph, each with what it plays and says.
int runStepCommand(const Arguments& args, std::ostream& out) {
  std::size_t next = 0;
  std::array<DataSet, 4> slots = slotsFrom(args, next);
  if (next == args.size()) throw CliError::usage("step needs at least one key: " + keyList());
  const SettingsStore store = SettingsStore::openDefault();
  GraphPlayback playback(slots, store, cliTranslator());
  std::int32_t cursor = -1;
  for (; next < args.size(); ++next) {
    const auto key = keyNames().find(args[next]);
    if (key == keyNames().end())
      throw CliError::usage("unknown key '" + args[next] + "'; the keys are: " + keyList());
    const PlaybackAction action = playback.run(key->second, cursor);
    cursor = action.cursor;
    out << "> " << args[next] << "\ncursor " << cursor << '\n';
    if (action.resetEngine) out << "silence\n";
    if (action.sweep) {
      const SweepRequest& s = *action.sweep;
      if (s.segment) {
        out << "sweep " << s.count << " from position " << s.start << (s.reverse ? " backwards" : "");
      } else {
        out << "sweep the whole graph";
      }
      out << (s.ticks ? " with ticks" : "") << '\n';
    }
    if (action.pointTone) out << "tone at position " << *action.pointTone << '\n';
    if (!action.speech.empty()) {
      out << "say";
      if (action.speechDelayMs > 0) out << " after " << action.speechDelayMs << " ms";
      // As the voice says it: a negative number's sign as a word.
      out << ": " << spellNegativeSigns(action.speech, translateWith(cliTranslator(), SLX_TR("minus")))
          << '\n';
    }
    if (action.focusGraph) out << "focus the graph\n";
  }
  return 0;
}

// graph [--expr E | --file F] [--expr2 E | --file2 F]: the range the current set is
// drawn over and what its y labels are multiplied by.
int runGraphCommand(const Arguments& args, std::ostream& out) {
  std::size_t next = 0;
  std::array<DataSet, 4> slots = slotsFrom(args, next);
  if (next != args.size()) throw CliError::usage("graph: unknown option " + args[next]);
  const SettingsStore store = SettingsStore::openDefault();
  const DataSet& current = slots[store.GetSetType() < 4 ? store.GetSetType() : 0];
  const GraphRange range = graphRange(store.GetGraphRange(), store.GetAutoScaleX(), store.GetAutoScaleY(),
                                      current, current.isPolar());
  out << "x from " << formatNumber(range.left, "%.10g") << " to " << formatNumber(range.right, "%.10g")
      << '\n';
  out << "y from " << formatNumber(range.bottom, "%.10g") << " to " << formatNumber(range.top, "%.10g")
      << '\n';
  out << "y-axis times " << formatNumber(yAxisMultiplier(graphYLabelFactor(range)), "%.15g") << '\n';
  return 0;
}

}  // namespace sonalyx::cli
