#include "core/files/DataSetFile.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <functional>
#include <numbers>
#include <random>
#include <sstream>
#include <string>
#include <vector>

#include "core/files/FileError.h"
#include "support/CurveData.h"
#include "support/NumericCompare.h"
#include "support/TempFolder.h"

#ifdef __linux__
#include <sys/resource.h>

#include <csignal>
#endif

namespace fs = std::filesystem;

namespace sonalyx {
namespace {

using test::Points;
using test::pointsAt;

void expectPoints(const std::vector<DataPoint>& actual, const Points& expected, int digits) {
  ASSERT_EQ(actual.size(), expected.size());
  for (std::size_t i = 0; i < actual.size(); ++i) {
    EXPECT_TRUE(test::agreesTo(actual[i].x, expected[i][0], digits)) << "x of point " << i;
    EXPECT_TRUE(test::agreesTo(actual[i].y, expected[i][1], digits)) << "y of point " << i;
  }
}

std::string writeText(const DataSet& set) {
  std::ostringstream out;
  writeDataSet(out, set);
  return out.str();
}

// The cause of the FileError that `action` throws; -1 when it throws none.
int causeOf(const std::function<void()>& action) {
  try {
    action();
  } catch (const FileError& e) {
    return e.cause();
  }
  return -1;
}

TEST(DataSetFile, ReadsTablesAndRefusesAnythingElseByLine) {
  const double nan = std::nan("");
  const double inf = HUGE_VAL;
  const struct {
    const char* name;
    std::string text;
    Points points;
    std::size_t badLine;  // 0: read
  } cases[] = {
      {"CR LF line ends", "1 2\r\n3 4\r\n", {{1, 2}, {3, 4}}, 0},
      {"last line without line end", "1 2\n3 4", {{1, 2}, {3, 4}}, 0},
      {"blank lines are skipped", "1 2\n\n  \t\n3 4\n", {{1, 2}, {3, 4}}, 0},
      {"tabs, as the clipboard has them", "-1.5\t2e3\r\n", {{-1.5, 2000}}, 0},
      {"commas, as a spreadsheet writes them", "1,2\n3, 4\n", {{1, 2}, {3, 4}}, 0},
      {"the writer's words for missing values", "1 Error\n2 -Infinity\n", {{1, nan}, {2, -inf}}, 0},
      {"byte-order mark",
       "\xEF\xBB\xBF"
       "5 6\n",
       {{5, 6}},
       0},
      {"one number", "1 2\n7\n", {}, 2},
      {"three numbers", "1 2 3\n", {}, 1},
      {"a heading", "x y\n1 2\n", {}, 1},
      {"trailing letters", "1 2\n\n2.5kg 3\n", {}, 3},
      {"decimal comma", "1,5 2\n", {}, 1},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    if (c.badLine == 0) {
      const auto points = readDataSetText(c.text);
      expectPoints(points, c.points, 17);
      for (const auto& p : points) EXPECT_EQ(p.trend, kAbsentTrend);
      continue;
    }
    try {
      readDataSetText(c.text);
      ADD_FAILURE() << "read";
    } catch (const DataSetTextError& e) {
      EXPECT_EQ(e.line(), c.badLine);
      EXPECT_EQ(e.what(), "Line " + std::to_string(c.badLine) + " does not hold two numbers.");
    }
  }
  for (const char* empty : {"", "\n", " \r\n\t\n"}) {
    try {
      readDataSetText(empty);
      ADD_FAILURE() << "read nothing from '" << empty << "'";
    } catch (const DataSetTextError& e) {
      EXPECT_EQ(e.problem(), DataSetTextError::NoPoints);
    }
  }
}

TEST(DataSetFile, WritesPaddedColumnsThatReadBackToTenDigits) {
  const struct {
    double x, y;
    const char* line;  // without the line end
  } cases[] = {
      {-2.5, std::numbers::pi, "-2.5       3.141592654"},  // y overflows its 10 characters by one
      {1e-7, 123456789012.0, "1e-007     1.23456789e+011"},
      {12345678901.0, -0.5, "1.23456789e+010       -0.5"},
      {1234567890.0, -123456789.0, "1234567890 -123456789"},  // exactly ten wide
  };
  for (const auto& c : cases) {
    EXPECT_EQ(writeText(pointsAt({{c.x, c.y}})), std::string(c.line) + kTextLineEnd);
  }
  EXPECT_EQ(writeText(DataSet{}), "");

  // Reading back n points from the text also proves it held exactly n lines.
  std::mt19937_64 random(7);
  std::uniform_real_distribution<double> mantissa(1.0, 10.0);
  std::uniform_int_distribution<int> exponent(-300, 300);
  auto value = [&] {
    return (random() % 2 == 0 ? 1.0 : -1.0) * mantissa(random) * std::pow(10.0, exponent(random));
  };
  Points points = {{1e-7, 1e300}, {-1e300, -1e-300}, {0.0, -2.5}, {1.0, std::nan("")}};
  while (points.size() < 2000) points.push_back({value(), value()});
  std::istringstream in(writeText(pointsAt(points)));
  expectPoints(readDataSet(in), points, 10);
}

TEST(DataSetFile, ExtensionRuleLooksAtTheLastThreeCharacters) {
  const struct {
    const char* chosen;
    const char* final;
  } cases[] = {
      {"graph.SET", "graph.SET"}, {"graph", "graph.set"}, {"points.txt", "points.txt.set"},
      {"myreset", "myreset"},     {"x.SeT", "x.SeT"},     {"a.sets", "a.sets.set"},
      {"ab", "ab.set"},           {"set", "set"},         {"graph.se", "graph.se.set"},
  };
  for (const auto& c : cases) EXPECT_EQ(applySetExtension(c.chosen), c.final) << c.chosen;
}

// The names in a folder, sorted: a save must leave no temporary file behind.
std::vector<std::string> listing(const fs::path& folder) {
  std::vector<std::string> names;
  for (const auto& entry : fs::directory_iterator(folder)) names.push_back(entry.path().filename().string());
  std::sort(names.begin(), names.end());
  return names;
}

TEST(DataSetFileOnDisk, SavesUnderTheRuledNameAndReadsAnyName) {
  test::TempFolder folder;
  const DataSet set = pointsAt({{1.5, -2}, {1e-7, 3}});
  EXPECT_EQ(saveDataSetFile((folder / "graph").string(), set), (folder / "graph.set").string());
  EXPECT_EQ(test::readBytes(folder / "graph.set"), writeText(set));
  expectPoints(readDataSetFile((folder / "graph.set").string()), {{1.5, -2}, {1e-7, 3}}, 10);
  EXPECT_EQ(listing(folder.path()), std::vector<std::string>{"graph.set"});

  test::writeBytes(folder / "from-windows.txt", "1.5 -2\r\n\r\n3\t4\r\n5 6");
  expectPoints(readDataSetFile((folder / "from-windows.txt").string()), {{1.5, -2}, {3, 4}, {5, 6}}, 17);
}

TEST(DataSetFileOnDisk, SaveReplacesAFileOrALinksTargetKeepingItsPermissions) {
  test::TempFolder folder;
  const fs::perms mode = fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read;
  test::writeBytes(folder / "old.set", std::string(5000, '9') + "\n");
  fs::permissions(folder / "old.set", mode);
  fs::create_symlink(folder / "old.set", folder / "link.set");
  const DataSet set = pointsAt({{1, 2}});
  EXPECT_EQ(saveDataSetFile((folder / "link.set").string(), set), (folder / "link.set").string());
  EXPECT_TRUE(fs::is_symlink(folder / "link.set"));
  EXPECT_EQ(test::readBytes(folder / "old.set"), writeText(set));
  EXPECT_EQ(fs::status(folder / "old.set").permissions(), mode);
  EXPECT_EQ(listing(folder.path()), (std::vector<std::string>{"link.set", "old.set"}));
}

TEST(DataSetFileOnDisk, FailedSaveLeavesNoFileAndKeepsTheOld) {
  const struct {
    const char* name;
    std::string chosen;  // inside the test folder
    int cause;
  } cases[] = {
      {"missing folder", "missing/a.set", FileError::BadPath},
      {"folder is a file", "plain/a.set", FileError::BadPath},
      {"target is a folder", "folder.set", FileError::AccessDenied},
      {"read-only file", "locked.set", FileError::AccessDenied},
      {"folder name only", "sub/", FileError::BadPath},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    test::TempFolder folder;
    test::writeBytes(folder / "plain", "plain text\n");
    test::writeBytes(folder / "locked.set", "1 2\n");
    fs::permissions(folder / "locked.set", fs::perms::owner_read | fs::perms::group_read);
    fs::create_directory(folder / "folder.set");
    fs::create_directory(folder / "sub");
    EXPECT_EQ(causeOf([&] { saveDataSetFile((folder / c.chosen).string(), pointsAt({{3, 4}})); }), c.cause);
    EXPECT_EQ(listing(folder.path()), (std::vector<std::string>{"folder.set", "locked.set", "plain", "sub"}));
    EXPECT_TRUE(fs::is_empty(folder / "folder.set"));
    EXPECT_TRUE(fs::is_empty(folder / "sub"));
    EXPECT_EQ(test::readBytes(folder / "plain"), "plain text\n");
    EXPECT_EQ(test::readBytes(folder / "locked.set"), "1 2\n");
  }
}

#ifdef __linux__
// A write that fails half-way (here: beyond the process's file-size limit, as a full
// disk would) must not touch the file being replaced.
TEST(DataSetFileOnDisk, WriteFailureKeepsTheOldFile) {
  test::TempFolder folder;
  test::writeBytes(folder / "keep.set", "1 2\n");
  Points many;
  for (int i = 0; i < 1000; ++i) many.push_back({std::sqrt(i + 2.0), -std::sqrt(i + 3.0)});
  rlimit old{};
  ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &old), 0);
  rlimit small = old;
  small.rlim_cur = 1000;
  const auto oldHandler = std::signal(SIGXFSZ, SIG_IGN);
  ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &small), 0);
  const int cause = causeOf([&] { saveDataSetFile((folder / "keep.set").string(), pointsAt(many)); });
  setrlimit(RLIMIT_FSIZE, &old);
  std::signal(SIGXFSZ, oldHandler);
  EXPECT_EQ(cause, FileError::DiskFull);
  EXPECT_EQ(test::readBytes(folder / "keep.set"), "1 2\n");
  EXPECT_EQ(listing(folder.path()), std::vector<std::string>{"keep.set"});
}
#endif

TEST(DataSetFileOnDisk, UnreadableFilesSayWhy) {
  test::TempFolder folder;
  test::writeBytes(folder / "plain", "1 2\n");
  fs::create_directory(folder / "folder.set");
  const struct {
    std::string path;
    int cause;
  } cases[] = {
      {(folder / "missing.set").string(), FileError::FileNotFound},
      {(folder / "missing/a.set").string(), FileError::BadPath},
      {(folder / "plain/a.set").string(), FileError::BadPath},
      {(folder / "folder.set").string(), FileError::AccessDenied},
      {"", FileError::BadPath},
      {std::string("a\0b", 3), FileError::BadPath},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(causeOf([&] { readDataSetFile(c.path); }), c.cause) << c.path;
  }
  for (const std::string& name : {std::string(), std::string("a\0b", 3)}) {
    EXPECT_EQ(causeOf([&] { saveDataSetFile(name, pointsAt({{1, 1}})); }), FileError::BadPath);
  }
}

}  // namespace
}  // namespace sonalyx
