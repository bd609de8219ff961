#pragma once

#include <string>
#include <vector>

namespace sonalyx::test {

// One NIST Statistical Reference Dataset (.dat): the numbers of the data block,
// one row a line in file order, and the lines of the certified-values block.
struct NistDataset {
  std::string name;
  std::vector<std::vector<double>> rows;
  std::vector<std::string> certified;

  // The numbers that follow `label` on the first certified line that starts with
  // it, skipping words that are not numbers ("ybar:", "="). Fails the test and
  // returns an empty list when there is no such line.
  std::vector<double> certifiedNumbers(const std::string& label) const;
  // One column of the data block.
  std::vector<double> column(std::size_t index) const;
};

// The folder of the .dat files: $SONALYX_NIST_DIR when set, otherwise the folder
// the build was configured with.
std::string nistDirectory();

// Reads `name`.dat; throws std::runtime_error when the file cannot be read or its
// header does not name the two blocks.
NistDataset readNistDataset(const std::string& name);

}  // namespace sonalyx::test
