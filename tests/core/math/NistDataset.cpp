#include "core/math/NistDataset.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <regex>
#include <sstream>
#include <stdexcept>

#include "core/utility/DecimalText.h"

namespace sonalyx::test {

namespace {

struct LineRange {
  int first = 0;
  int last = 0;
};

// A whole word that reads as a number, such as "-0.26" or "7.2462237576E+01".
bool readNumber(const std::string& word, double& value) {
  std::size_t used = 0;
  value = decimalToDouble(word, &used);
  return used > 0 && used == word.size();
}

std::vector<double> numbersIn(const std::string& text) {
  std::vector<double> numbers;
  std::istringstream words(text);
  std::string word;
  double value = 0.0;
  while (words >> word) {
    if (readNumber(word, value)) numbers.push_back(value);
  }
  return numbers;
}

}  // namespace

std::string nistDirectory() {
  if (const char* fromEnvironment = std::getenv("SONALYX_NIST_DIR"); fromEnvironment && *fromEnvironment) {
    return fromEnvironment;
  }
  return SONALYX_NIST_DIR;
}

NistDataset readNistDataset(const std::string& name) {
  const std::string path = nistDirectory() + "/" + name + ".dat";
  std::ifstream in(path);
  if (!in) throw std::runtime_error("cannot read " + path + " (set SONALYX_NIST_DIR to the data folder)");
  std::vector<std::string> lines;
  for (std::string line; std::getline(in, line);) {
    if (!line.empty() && line.back() == '\r') line.pop_back();
    lines.push_back(line);
  }

  // The header names both blocks by line numbers, in one of two layouts:
  // "Data              (lines 61 to 96)" or "Data            : lines 61 to 260".
  const std::regex block(R"(^\s*(Certified Values|Data)\b[^0-9]*lines\s+(\d+)\s+to\s+(\d+))");
  LineRange data;
  LineRange certified;
  for (const std::string& line : lines) {
    std::smatch match;
    if (!std::regex_search(line, match, block)) continue;
    LineRange& range = match[1] == "Data" ? data : certified;
    if (range.first != 0) continue;
    range.first = std::stoi(match[2]);
    range.last = std::stoi(match[3]);
  }
  if (data.first == 0 || certified.first == 0 || data.last > static_cast<int>(lines.size())) {
    throw std::runtime_error(path + " does not name its certified values and data lines");
  }

  NistDataset set;
  set.name = name;
  for (int i = certified.first; i <= certified.last; ++i) set.certified.push_back(lines[i - 1]);
  for (int i = data.first; i <= data.last; ++i) {
    std::vector<double> row = numbersIn(lines[i - 1]);
    if (!row.empty()) set.rows.push_back(std::move(row));
  }
  return set;
}

std::vector<double> NistDataset::certifiedNumbers(const std::string& label) const {
  for (const std::string& line : certified) {
    const std::size_t start = line.find_first_not_of(' ');
    if (start == std::string::npos || line.compare(start, label.size(), label) != 0) continue;
    return numbersIn(line.substr(start + label.size()));
  }
  ADD_FAILURE() << name << ": no certified value \"" << label << "\"";
  return {};
}

std::vector<double> NistDataset::column(std::size_t index) const {
  std::vector<double> values;
  for (const auto& row : rows) values.push_back(row.at(index));
  return values;
}

}  // namespace sonalyx::test
