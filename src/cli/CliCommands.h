#pragma once

#include <ostream>
#include <string>
#include <vector>

namespace sonalyx::cli {

// Each command group gets the words after its own name and writes its output to
// `out`. Failures are thrown as CliError; the return value is the exit status.
using Arguments = std::vector<std::string>;

// The words the program says and the display rounding: expand, round, key,
// language, coords.
int runTextCommand(const Arguments& args, std::ostream& out);
// set write FILE X Y [X Y ...] | set read FILE | set clipboard FILE
int runSetCommand(const Arguments& args, std::ostream& out);
// eval EXPRESSION: prints the value with 14 significant digits.
int runEvalCommand(const Arguments& args, std::ostream& out);
// sample EXPRESSION [--from A] [--to B] [--points N] [--polar]: one line per point,
// x, y, derivative, integral and trend separated by tabs.
int runSampleCommand(const Arguments& args, std::ostream& out);

// Turning points and x-axis crossings of a data set or a sampled expression.
int runFeaturesCommand(const Arguments& args, std::ostream& out);
// settings path | list | get KEY | set KEY VALUE | delete
int runSettingsCommand(const Arguments& args, std::ostream& out);
// calc [--trace] KEY...: presses calculator keys in order and prints the display.
int runCalcCommand(const Arguments& args, std::ostream& out);

// The Data page's statistics and regression fits of a data-set file.
int runStatsCommand(const Arguments& args, std::ostream& out);
int runFitCommand(const Arguments& args, std::ostream& out);

// speak [-o OUT.wav] [--voice V] [--rate R] TEXT: says TEXT (even with self-voicing
// off) and returns when it has been said, or writes it to a wave file.
int runSpeakCommand(const Arguments& args, std::ostream& out);
// earcon ID: plays sound effect ID (even with the effects off) and returns when done.
int runEarconCommand(const Arguments& args, std::ostream& out);
// evaluate LINE... | matrix LINE...: each line as typed into the Evaluator or the
// Matrix page and Enter pressed, in order, in one session; "--up" and "--down"
// press the arrow keys. Prints what the page shows after each.
int runEvaluateCommand(const Arguments& args, std::ostream& out);
int runMatrixCommand(const Arguments& args, std::ostream& out);

// The playback keys pressed on a graph, and the range a graph is drawn over.
int runStepCommand(const Arguments& args, std::ostream& out);
int runGraphCommand(const Arguments& args, std::ostream& out);

// The graph's sound: sonify writes it to a wave file and prints the file's name; play
// plays it through the sound card and returns when it has finished.
int runSonifyCommand(const Arguments& args, std::ostream& out);
int runPlayCommand(const Arguments& args, std::ostream& out);

}  // namespace sonalyx::cli
