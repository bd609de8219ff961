#pragma once

#include <fstream>
#include <string>
#include <vector>

// The command-line tool's golden files, read back as vectors for the pages: each
// command of one kind ("calc", "evaluate", "matrix") with its arguments and the
// lines it printed. Commands that end in a usage error are left out.
namespace sonalyx::test {

struct GoldenCommand {
  std::vector<std::string> args;
  std::vector<std::string> output;
  int line = 0;
};

// Splits a command line as the shell does for these files: blanks between words,
// '...' and "..." quote.
inline std::vector<std::string> shellWords(const std::string& text) {
  std::vector<std::string> words;
  std::string word;
  bool inWord = false;
  char quote = 0;
  for (const char c : text) {
    if (quote) {
      if (c == quote)
        quote = 0;
      else
        word += c;
    } else if (c == '\'' || c == '"') {
      quote = c;
      inWord = true;
    } else if (c == ' ') {
      if (inWord) words.push_back(word);
      word.clear();
      inWord = false;
    } else {
      word += c;
      inWord = true;
    }
  }
  if (inWord) words.push_back(word);
  return words;
}

inline std::vector<GoldenCommand> readGolden(const std::string& name, const std::string& command) {
  std::ifstream file(std::string(SONALYX_GOLDEN_DIR) + "/" + name);
  const std::string prefix = "$ sonalyx-cli " + command;
  std::vector<GoldenCommand> commands;
  std::string line;
  int number = 0;
  bool inCommand = false;
  while (std::getline(file, line)) {
    ++number;
    if (line.rfind("$ ", 0) == 0) {
      inCommand = line == prefix || line.rfind(prefix + " ", 0) == 0;
      if (inCommand) {
        std::vector<std::string> words = shellWords(line.substr(prefix.size()));
        commands.push_back({words, {}, number});
      }
      continue;
    }
    if (!inCommand || line.rfind('#', 0) == 0) continue;
    if (line.rfind("! ", 0) == 0 || line.rfind("[exit", 0) == 0) {
      commands.pop_back();
      inCommand = false;
      continue;
    }
    commands.back().output.push_back(line);
  }
  return commands;
}

}  // namespace sonalyx::test
