#include "cli/Cli.h"

#include <exception>
#include <functional>

#include "cli/CliCommands.h"
#include "cli/CliError.h"

namespace sonalyx::cli {

namespace {

struct CommandEntry {
  const char* name;
  const char* usage;  // the lines of the usage text, after "sonalyx-cli "
  std::function<int(const Arguments&, std::ostream&)> run;
};

const std::vector<CommandEntry>& commandTable() {
  static const std::vector<CommandEntry> table = {
      {"settings", "settings path\nsettings list\nsettings get KEY\nsettings set KEY VALUE\nsettings delete",
       runSettingsCommand},
      {"text",
       "text expand TEXT\ntext round TEXT DIGITS\ntext key ID\ntext language [LOCALE]\ntext coords X Y",
       runTextCommand},
      {"set", "set write FILE X Y [X Y ...]\nset read FILE\nset clipboard FILE", runSetCommand},
      {"eval", "eval EXPRESSION", runEvalCommand},
      {"sample", "sample EXPRESSION [--from A] [--to B] [--points N] [--polar] [-o FILE]", runSampleCommand},
      {"features", "features FILE\nfeatures --expr EXPRESSION", runFeaturesCommand},
      {"stats", "stats FILE", runStatsCommand},
      {"fit", "fit MODEL FILE [--period B] [--expression]", runFitCommand},
      {"calc", "calc [--trace] KEY...", runCalcCommand},
      {"speak", "speak [-o OUT.wav] [--voice V] [--rate R] TEXT", runSpeakCommand},
      {"earcon", "earcon ID", runEarconCommand},
      {"evaluate", "evaluate LINE|--up|--down...", runEvaluateCommand},
      {"matrix", "matrix LINE|--up|--down...", runMatrixCommand},
      {"sonify", "sonify FILE|--expr EXPRESSION -o OUT.wav [--stereo] [--ticks]", runSonifyCommand},
      {"play", "play FILE|--expr EXPRESSION [--stereo] [--ticks]", runPlayCommand},
  };
  return table;
}

// The usage of one command group after its own mistake, of all of them otherwise.
void writeUsage(std::ostream& to, const CommandEntry* only = nullptr) {
  to << "usage:\n";
  for (const auto& entry : commandTable()) {
    if (only != nullptr && only != &entry) continue;
    std::string usage = entry.usage;
    std::size_t start = 0;
    while (start < usage.size()) {
      const std::size_t end = usage.find('\n', start);
      to << "  sonalyx-cli " << usage.substr(start, end - start) << '\n';
      if (end == std::string::npos) break;
      start = end + 1;
    }
  }
}

}  // namespace

int runCli(const std::vector<std::string>& args, std::ostream& out, std::ostream& err) {
  if (args.empty()) {
    writeUsage(err);
    return 2;
  }
  if (args[0] == "--help" || args[0] == "-h" || args[0] == "help") {
    writeUsage(out);
    return 0;
  }
  const CommandEntry* command = nullptr;
  for (const auto& entry : commandTable()) {
    if (args[0] == entry.name) command = &entry;
  }
  if (command == nullptr) {
    err << "sonalyx-cli: unknown command '" << args[0] << "'\n";
    writeUsage(err);
    return 2;
  }
  try {
    const Arguments rest(args.begin() + 1, args.end());
    return command->run(rest, out);
  } catch (const CliError& e) {
    out.flush();
    err << e.what() << '\n';
    if (e.isUsage()) writeUsage(err, command);
    return e.exitStatus();
  } catch (const std::exception& e) {
    out.flush();
    err << e.what() << '\n';
    return 1;
  }
}

}  // namespace sonalyx::cli
