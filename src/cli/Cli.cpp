#include "cli/Cli.h"

#include <exception>
#include <functional>
#include <optional>

#include "cli/CliCommands.h"
#include "cli/CliError.h"
#include "cli/CliLanguage.h"
#include "core/speech/LanguageTable.h"

namespace sonalyx::cli {

namespace {

struct CommandEntry {
  const char* name;
  const char* description;  // one line: what the command group is for
  const char* usage;        // the lines of the usage text, after "sonalyx-cli "
  std::function<int(const Arguments&, std::ostream&)> run;
};

const std::vector<CommandEntry>& commandTable() {
  static const std::vector<CommandEntry> table = {
      {"settings", "show and change the stored settings, or restore the defaults",
       "settings path\nsettings list\nsettings get KEY\nsettings set KEY VALUE\nsettings delete",
       runSettingsCommand},
      {"text", "the words the program says: expressions, numbers, keys, languages, points",
       "text expand TEXT\ntext round TEXT DIGITS\ntext key ID\ntext language [LOCALE]\ntext coords X Y",
       runTextCommand},
      {"set", "write, read, copy and combine data-set files",
       "set write FILE X Y [X Y ...]\nset read FILE\nset clipboard FILE\nset sum FILE1 FILE2\n"
       "set difference FILE1 FILE2",
       runSetCommand},
      {"eval", "the value of an expression", "eval EXPRESSION", runEvalCommand},
      {"sample", "f(x) sampled with its derivative, integral and trend",
       "sample EXPRESSION [--from A] [--to B] [--points N] [--polar] [-o FILE]", runSampleCommand},
      {"features", "the maxima, minima and zeros a user can step to",
       "features FILE\nfeatures --expr EXPRESSION", runFeaturesCommand},
      {"stats", "the statistics of a data set", "stats FILE", runStatsCommand},
      {"graph", "the range a graph is drawn over and its y-axis factor",
       "graph [--expr EXPRESSION|--file FILE] [--expr2 EXPRESSION|--file2 FILE]", runGraphCommand},
      {"step", "playback keys pressed on a graph: what each plays and says",
       "step [--expr EXPRESSION|--file FILE] [--expr2 EXPRESSION|--file2 FILE] KEY...", runStepCommand},
      {"fit", "a regression fit of a data set", "fit MODEL FILE [--period B] [--expression]", runFitCommand},
      {"calc", "presses calculator keys and shows the display or says what the page says",
       "calc [--trace|--say] KEY...", runCalcCommand},
      {"speak", "says a text with the program's voice", "speak [-o OUT.wav] [--voice V] [--rate R] TEXT",
       runSpeakCommand},
      {"earcon", "plays a sound effect, 0 to 6", "earcon ID", runEarconCommand},
      {"evaluate", "lines typed into the Evaluator page", "evaluate LINE|--up|--down...", runEvaluateCommand},
      {"matrix", "lines typed into the Matrix page", "matrix LINE|--up|--down...", runMatrixCommand},
      {"sonify", "writes the sound of a graph to a wave file",
       "sonify FILE|--expr EXPRESSION -o OUT.wav [--stereo] [--ticks]", runSonifyCommand},
      {"play", "plays the sound of a graph", "play FILE|--expr EXPRESSION [--stereo] [--ticks]",
       runPlayCommand},
  };
  return table;
}

// The usage of one command group after its own mistake, of all of them otherwise.
void writeUsage(std::ostream& to, const CommandEntry* only = nullptr) {
  to << "usage:\n";
  if (only == nullptr) {
    to << "  sonalyx-cli --version\n";
    to << "  sonalyx-cli --lang ID COMMAND...  (1053 Swedish, 1036 French, 1031 German, 3082 Spanish)\n";
  }
  for (const auto& entry : commandTable()) {
    if (only != nullptr && only != &entry) continue;
    to << "  " << entry.name << ": " << entry.description << '\n';
    std::string usage = entry.usage;
    std::size_t start = 0;
    while (start < usage.size()) {
      const std::size_t end = usage.find('\n', start);
      to << "    sonalyx-cli " << usage.substr(start, end - start) << '\n';
      if (end == std::string::npos) break;
      start = end + 1;
    }
  }
}

}  // namespace

namespace {

// A Windows language id as the program's --lang takes it: digits only.
std::optional<int> langIdArgument(const std::string& text) {
  if (text.empty() || text.size() > 5 || text.find_first_not_of("0123456789") != std::string::npos)
    return std::nullopt;
  return std::stoi(text);
}

}  // namespace

int runCli(const std::vector<std::string>& given, std::ostream& out, std::ostream& err) {
  std::vector<std::string> args = given;
  setCliLanguage(Language::English);
  if (!args.empty() && args[0] == "--lang") {
    const std::optional<int> langId = args.size() > 1 ? langIdArgument(args[1]) : std::nullopt;
    if (!langId) {
      err << "sonalyx-cli: --lang needs a Windows language id such as 1036\n";
      writeUsage(err);
      return 2;
    }
    setCliLanguage(languageForLangId(*langId));
    args.erase(args.begin(), args.begin() + 2);
  }
  if (args.empty()) {
    writeUsage(err);
    return 2;
  }
  if (args[0] == "--help" || args[0] == "-h" || args[0] == "help") {
    writeUsage(out);
    return 0;
  }
  if (args[0] == "--version" && args.size() == 1) {
    out << "sonalyx-cli " << SONALYX_VERSION << '\n';
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
    // A core failure's text is its English key (a file error, a refusal).
    err << translateWith(cliTranslator(), e.what()) << '\n';
    return 1;
  }
}

}  // namespace sonalyx::cli
