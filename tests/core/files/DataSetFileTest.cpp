#include "core/files/DataSetFile.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <numbers>
#include <random>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "core/files/FileError.h"
#include "support/NumericCompare.h"

#ifdef __linux__
#include <sys/resource.h>

#include <csignal>
#endif

namespace fs = std::filesystem;

namespace sonalyx {
namespace {

using Points = std::vector<std::pair<double, double>>;

DataSet setOf(const Points& xy) {
  DataSet s;
  for (const auto& [x, y] : xy) s.append(DataPoint{x, y});
  return s;
}

void expectPoints(const std::vector<DataPoint>& actual, const Points& expected, int digits) {
  ASSERT_EQ(actual.size(), expected.size());
  for (std::size_t i = 0; i < actual.size(); ++i) {
    EXPECT_TRUE(test::agreesTo(actual[i].x, expected[i].first, digits)) << "x of point " << i;
    EXPECT_TRUE(test::agreesTo(actual[i].y, expected[i].second, digits)) << "y of point " << i;
  }
}

std::vector<DataPoint> readText(const std::string& text) {
  std::istringstream in(text);
  return readDataSet(in);
}

std::string writeText(const DataSet& set) {
  std::ostringstream out;
  writeDataSet(out, set);
  return out.str();
}

TEST(DataSetFile, EveryLineReadsAsAPoint) {
  struct Case {
    const char* name;
    std::string text;
    Points points;
  };
  const Case cases[] = {
      {"LF line ends", "1 2\n3 4\n", {{1, 2}, {3, 4}}},
      {"CR LF line ends", "1 2\r\n3 4\r\n", {{1, 2}, {3, 4}}},
      {"last line without line end", "1 2\n3 4", {{1, 2}, {3, 4}}},
      {"blank line in the middle", "1 2\n\n3 4\n", {{1, 2}, {0, 0}, {3, 4}}},
      {"blank CR LF line", "1 2\r\n\r\n3 4\r\n", {{1, 2}, {0, 0}, {3, 4}}},
      {"line of spaces", "   \n", {{0, 0}}},
      {"just a line end", "\n", {{0, 0}}},
      {"empty file", "", {}},
      {"runs of spaces", "   -1.5     2e3  \n", {{-1.5, 2000}}},
      {"one number", "7\n", {{7, 0}}},
      {"tab inside the line", "1\t2\n", {{1, 0}}},
      {"tab word then space word", "1\t2 3\n", {{1, 3}}},
      {"decimal comma", "1,5 2\n", {{1, 2}}},
      {"third word ignored", "1 2 3\n", {{1, 2}}},
      {"no numbers", "abc def\n", {{0, 0}}},
      {"trailing letters", "2.5kg 3\n", {{2.5, 3}}},
      {"three-digit exponents", "1e-007 1.23456789e+011\n", {{1e-7, 1.23456789e11}}},
      {"byte-order mark",
       "\xEF\xBB\xBF"
       "5 6\n",
       {{5, 6}}},
      {"written line", "-2.5       3.141592654\n", {{-2.5, 3.141592654}}},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    const auto points = readText(c.text);
    expectPoints(points, c.points, 17);
    for (const auto& p : points) {
      EXPECT_TRUE(test::agreesTo(p.derivative, kAbsent, 17));
      EXPECT_EQ(p.trend, kAbsentTrend);
    }
  }
}

TEST(DataSetFile, WritesPaddedColumns) {
  struct Case {
    const char* name;
    double x, y;
    const char* line;  // without the line end
  };
  const Case cases[] = {
      // y overflows its 10 characters by one.
      {"x = -2.5, y = pi", -2.5, std::numbers::pi, "-2.5       3.141592654"},
      {"exponents", 1e-7, 123456789012.0, "1e-007     1.23456789e+011"},
      {"zeros and ones", 0.0, 1.0, "0                   1"},
      {"x overflows", 12345678901.0, -0.5, "1.23456789e+010       -0.5"},
      {"exactly ten wide", 1234567890.0, -123456789.0, "1234567890 -123456789"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    EXPECT_EQ(writeText(setOf({{c.x, c.y}})), std::string(c.line) + kTextLineEnd);
  }
  EXPECT_EQ(writeText(DataSet{}), "");
}

Points randomPoints(std::size_t n) {
  std::mt19937_64 random(7);
  std::uniform_real_distribution<double> mantissa(1.0, 10.0);
  std::uniform_int_distribution<int> exponent(-300, 300);
  auto value = [&] {
    const double sign = random() % 2 == 0 ? 1.0 : -1.0;
    return sign * mantissa(random) * std::pow(10.0, exponent(random));
  };
  Points points = {{1e-7, 1e300},
                   {-1e300, -1e-7},
                   {0.0, -2.5},
                   {std::numbers::pi, -std::numbers::e},
                   {123456789012.0, 1e-300},
                   {-0.1, 0.3}};
  while (points.size() < n) points.emplace_back(value(), value());
  return points;
}

// Reading back n points from the text also proves it held exactly n lines.
TEST(DataSetFile, TextRoundTripKeepsTenDigits) {
  const Points points = randomPoints(2000);
  expectPoints(readText(writeText(setOf(points))), points, 10);
}

TEST(DataSetFile, ExtensionRuleLooksAtTheLastThreeCharacters) {
  struct Case {
    const char* chosen;
    const char* final;
  };
  const Case cases[] = {
      {"graph.SET", "graph.SET"},
      {"graph", "graph.set"},
      {"points.txt", "points.txt.set"},
      {"myreset", "myreset"},
      {"DATA.SET", "DATA.SET"},
      {"x.SeT", "x.SeT"},
      {"a.sets", "a.sets.set"},
      {"ab", "ab.set"},
      {"s", "s.set"},
      {"set", "set"},
      {"dir/graph", "dir/graph.set"},
      {"graph.se", "graph.se.set"},
  };
  for (const auto& c : cases) EXPECT_EQ(applySetExtension(c.chosen), c.final) << c.chosen;
}

// A fresh folder per test, removed afterwards.
class DataSetFileOnDisk : public ::testing::Test {
 protected:
  void SetUp() override {
    std::random_device seed;
    m_folder = fs::temp_directory_path() / ("sonalyx-files-test-" + std::to_string(seed()));
    fs::create_directories(m_folder);
  }
  void TearDown() override {
    std::error_code ec;
    fs::permissions(m_folder, fs::perms::owner_all, fs::perm_options::add, ec);
    fs::remove_all(m_folder, ec);
  }

  std::string path(const std::string& name) const { return (m_folder / name).string(); }

  std::vector<std::string> listing() const {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(m_folder))
      names.push_back(entry.path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
  }

  void writeRaw(const std::string& name, const std::string& bytes) const {
    std::ofstream out(m_folder / name, std::ios::binary);
    out << bytes;
  }

  std::string readRaw(const std::string& name) const {
    std::ifstream in(m_folder / name, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), {});
  }

  fs::path m_folder;
};

TEST_F(DataSetFileOnDisk, SavesUnderTheRuledNameAndReadsBack) {
  struct Case {
    const char* chosen;
    const char* final;
  };
  const Case cases[] = {{"graph.SET", "graph.SET"},
                        {"graph", "graph.set"},
                        {"points.txt", "points.txt.set"},
                        {"myreset", "myreset"}};
  const Points points = randomPoints(300);
  const DataSet set = setOf(points);
  std::vector<std::string> expected;
  for (const auto& c : cases) {
    SCOPED_TRACE(c.chosen);
    EXPECT_EQ(saveDataSetFile(path(c.chosen), set), path(c.final));
    EXPECT_EQ(readRaw(c.final), writeText(set));
    expectPoints(readDataSetFile(path(c.final)), points, 10);
    expected.push_back(c.final);
  }
  std::sort(expected.begin(), expected.end());
  EXPECT_EQ(listing(), expected);  // and no temporary file left behind
}

TEST_F(DataSetFileOnDisk, SaveReplacesAnExistingFileKeepingItsPermissions) {
  writeRaw("old.set", std::string(5000, '9') + "\n");
  fs::permissions(path("old.set"), fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read);
  const DataSet set = setOf({{1, 2}});
  saveDataSetFile(path("old.set"), set);
  EXPECT_EQ(readRaw("old.set"), writeText(set));
  EXPECT_EQ(fs::status(path("old.set")).permissions(),
            fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read);
  EXPECT_EQ(listing(), std::vector<std::string>{"old.set"});
}

TEST_F(DataSetFileOnDisk, SaveThroughALinkReplacesItsTarget) {
  writeRaw("real.set", "0 0\n");
  fs::create_symlink(m_folder / "real.set", m_folder / "link.set");
  const DataSet set = setOf({{5, 6}});
  EXPECT_EQ(saveDataSetFile(path("link.set"), set), path("link.set"));
  EXPECT_TRUE(fs::is_symlink(m_folder / "link.set"));
  EXPECT_EQ(readRaw("real.set"), writeText(set));
  EXPECT_EQ(listing(), (std::vector<std::string>{"link.set", "real.set"}));
}

TEST_F(DataSetFileOnDisk, FailedSaveLeavesNoFileAndKeepsTheOld) {
  struct Case {
    const char* name;
    std::string chosen;  // inside the test folder
    int cause;
  };
  const Case cases[] = {
      {"missing folder", "missing/a.set", FileError::BadPath},
      {"folder is a file", "plain/a.set", FileError::BadPath},
      {"target is a folder", "folder.set", FileError::AccessDenied},
      {"read-only file", "locked.set", FileError::AccessDenied},
      {"folder name only", "sub/", FileError::BadPath},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    writeRaw("plain", "plain text\n");
    writeRaw("locked.set", "1 2\n");
    fs::permissions(path("locked.set"), fs::perms::owner_read | fs::perms::group_read);
    fs::create_directory(m_folder / "folder.set");
    fs::create_directory(m_folder / "sub");
    try {
      saveDataSetFile(path(c.chosen), setOf({{3, 4}}));
      ADD_FAILURE() << "saved";
    } catch (const FileError& e) {
      EXPECT_EQ(e.cause(), c.cause);
    }
    EXPECT_EQ(listing(), (std::vector<std::string>{"folder.set", "locked.set", "plain", "sub"}));
    EXPECT_TRUE(fs::is_empty(m_folder / "folder.set"));
    EXPECT_TRUE(fs::is_empty(m_folder / "sub"));
    EXPECT_EQ(readRaw("plain"), "plain text\n");
    EXPECT_EQ(readRaw("locked.set"), "1 2\n");
  }
}

TEST_F(DataSetFileOnDisk, EmptyNameIsABadPath) {
  for (const std::string& name : {std::string(), std::string("a\0b", 3)}) {
    try {
      saveDataSetFile(name, setOf({{1, 1}}));
      ADD_FAILURE() << "saved";
    } catch (const FileError& e) {
      EXPECT_EQ(e.cause(), FileError::BadPath);
    }
    try {
      readDataSetFile(name);
      ADD_FAILURE() << "read";
    } catch (const FileError& e) {
      EXPECT_EQ(e.cause(), FileError::BadPath);
    }
  }
}

#ifdef __linux__
// A write that fails half-way (here: beyond the process's file-size limit, as a full
// disk would) must not touch the file being replaced.
TEST_F(DataSetFileOnDisk, WriteFailureKeepsTheOldFile) {
  writeRaw("keep.set", "1 2\n");
  const DataSet big = setOf(randomPoints(1000));
  rlimit old{};
  ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &old), 0);
  rlimit small = old;
  small.rlim_cur = 1000;
  const auto oldHandler = std::signal(SIGXFSZ, SIG_IGN);
  ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &small), 0);
  int cause = -1;
  try {
    saveDataSetFile(path("keep.set"), big);
  } catch (const FileError& e) {
    cause = e.cause();
  }
  setrlimit(RLIMIT_FSIZE, &old);
  std::signal(SIGXFSZ, oldHandler);
  EXPECT_EQ(cause, FileError::DiskFull);
  EXPECT_EQ(readRaw("keep.set"), "1 2\n");
  EXPECT_EQ(listing(), std::vector<std::string>{"keep.set"});
}
#endif

TEST_F(DataSetFileOnDisk, UnreadableFilesSayWhy) {
  writeRaw("plain", "1 2\n");
  fs::create_directory(m_folder / "folder.set");
  struct Case {
    const char* name;
    std::string path;
    int cause;
  };
  const Case cases[] = {
      {"missing file", "missing.set", FileError::FileNotFound},
      {"missing folder", "missing/a.set", FileError::BadPath},
      {"through a file", "plain/a.set", FileError::BadPath},
      {"a folder", "folder.set", FileError::AccessDenied},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    try {
      readDataSetFile(path(c.path));
      ADD_FAILURE() << "read";
    } catch (const FileError& e) {
      EXPECT_EQ(e.cause(), c.cause);
      EXPECT_EQ(std::string(e.what()), fileErrorText(c.cause));
    }
  }
}

TEST_F(DataSetFileOnDisk, ReadsAnyExtensionAndLineEnd) {
  writeRaw("from-windows.txt", "1.5 -2\r\n\r\n3\t4\r\n5 6");
  expectPoints(readDataSetFile(path("from-windows.txt")), {{1.5, -2}, {0, 0}, {3, 0}, {5, 6}}, 17);
}

}  // namespace
}  // namespace sonalyx
