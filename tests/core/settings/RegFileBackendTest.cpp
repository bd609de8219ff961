#include "core/settings/RegFileBackend.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <set>
#include <string>
#include <vector>

#include "support/TempFolder.h"

namespace sonalyx {
namespace {

namespace fs = std::filesystem;

const std::string kHead =
    "Windows Registry Editor Version 5.00\n\n"
    "[HKEY_CURRENT_USER\\Software\\Quillmont\\SLX3\\CurrentVersion\\Settings]\n";

std::set<std::string> filesIn(const fs::path& folder) {
  std::set<std::string> names;
  for (const auto& entry : fs::directory_iterator(folder)) names.insert(entry.path().filename().string());
  return names;
}

TEST(RegFileBackend, AMissingFileIsAnEmptyKeyAndTheFirstWriteMakesItsFolders) {
  test::TempFolder folder;
  const fs::path file = folder / "config/Quillmont/SLX3/Settings.reg";
  RegFileBackend backend(file);
  EXPECT_EQ(backend.readValue("voice"), std::nullopt);
  EXPECT_TRUE(backend.listValues().empty());
  EXPECT_FALSE(backend.keyHasContent());
  EXPECT_TRUE(backend.deleteKey());
  EXPECT_TRUE(backend.deleteValue("voice"));
  EXPECT_FALSE(fs::exists(folder / "config"));  // neither reading nor deleting nothing creates anything

  EXPECT_TRUE(backend.writeValue("voice", RegistryValue::fromText("Anna")));
  EXPECT_TRUE(backend.writeValue("rate", RegistryValue::fromDword(70)));
  EXPECT_EQ(test::readBytes(file), kHead + "\"voice\"=\"Anna\"\n\"rate\"=dword:00000046\n");
  EXPECT_EQ(backend.readValue("VOICE"), RegistryValue::fromText("Anna"));
  EXPECT_TRUE(backend.keyHasContent());
  // Only the file and its lock stay behind: every temporary file was renamed away.
  EXPECT_EQ(filesIn(file.parent_path()), (std::set<std::string>{"Settings.reg", "Settings.reg.lock"}));

  EXPECT_TRUE(backend.deleteKey());
  EXPECT_FALSE(backend.keyHasContent());
  EXPECT_EQ(test::readBytes(file), "Windows Registry Editor Version 5.00\n\n");
}

TEST(RegFileBackend, ADamagedFileIsCopiedOnceBeforeItIsFirstWrittenOver) {
  test::TempFolder folder;
  const fs::path file = folder / "Settings.reg";
  const fs::path bad = folder / "Settings.reg.bad";
  const std::string damaged = kHead + "\"voice\"=\"Anna\"\n\"fxX0\"=\"-1" + std::string(1, '\0') + "\"\n";
  test::writeBytes(file, damaged);
  RegFileBackend backend(file);

  EXPECT_EQ(backend.readValue("voice"), RegistryValue::fromText("Anna"));
  EXPECT_EQ(backend.readValue("fxX0"), std::nullopt);
  EXPECT_TRUE(backend.deleteValue("nothing"));  // changes nothing, so writes nothing
  EXPECT_FALSE(fs::exists(bad));

  EXPECT_TRUE(backend.writeValue("fxX0", RegistryValue::fromText("-10")));
  EXPECT_EQ(test::readBytes(bad), damaged);
  EXPECT_EQ(test::readBytes(file), damaged + "\"fxX0\"=\"-10\"\n");

  // A later damage does not replace the first copy.
  const std::string damagedAgain = kHead + "junk\n";
  test::writeBytes(file, damagedAgain);
  EXPECT_TRUE(backend.writeValue("rate", RegistryValue::fromDword(1)));
  EXPECT_EQ(test::readBytes(bad), damaged);
  EXPECT_EQ(test::readBytes(file), damagedAgain + "\"rate\"=dword:00000001\n");

  // A healthy file is never copied, even an empty UTF-16LE one.
  const fs::path healthy = folder / "Healthy.reg";
  test::writeBytes(healthy, "\xFF\xFE");
  EXPECT_TRUE(RegFileBackend(healthy).writeValue("a", RegistryValue::fromDword(1)));
  EXPECT_FALSE(fs::exists(folder / "Healthy.reg.bad"));
}

TEST(RegFileBackend, WhatCannotBeReadOrMadeIsNotWritten) {
  test::TempFolder folder;
  // A folder where the file should be: it exists but cannot be read as a file.
  fs::create_directories(folder / "Settings.reg");
  RegFileBackend unreadable(folder / "Settings.reg");
  EXPECT_EQ(unreadable.readValue("a"), std::nullopt);
  EXPECT_FALSE(unreadable.writeValue("a", RegistryValue::fromDword(1)));
  EXPECT_FALSE(unreadable.deleteKey());
  EXPECT_TRUE(fs::is_directory(folder / "Settings.reg"));

  // A plain file where a folder of the path should be.
  test::writeBytes(folder / "blocked", "keep");
  RegFileBackend blocked(folder / "blocked" / "Settings.reg");
  EXPECT_FALSE(blocked.writeValue("a", RegistryValue::fromDword(1)));
  EXPECT_EQ(test::readBytes(folder / "blocked"), "keep");
}

TEST(RegFileBackend, ALinkedFileStaysLinkedAndKeepsItsMode) {
  test::TempFolder folder;
  const fs::path target = folder / "dotfiles" / "Settings.reg";
  test::writeBytes(target, kHead);
  fs::permissions(target, fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read |
                              fs::perms::others_read);
  const fs::path link = folder / "Settings.reg";
  fs::create_symlink(target, link);
  RegFileBackend backend(link);
  EXPECT_TRUE(backend.writeValue("a", RegistryValue::fromDword(1)));
  EXPECT_TRUE(fs::is_symlink(link));
  EXPECT_EQ(test::readBytes(target), kHead + "\"a\"=dword:00000001\n");
  EXPECT_EQ(fs::status(target).permissions() & fs::perms::all,
            fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read | fs::perms::others_read);
}

std::string valueName(int writer, int i) {
  std::string name = "w";
  name.append(std::to_string(writer)).append("_").append(std::to_string(i));
  return name;
}

// Writes `count` values named after the writer; exits 0 when every write succeeded.
[[noreturn]] void writeFromChild(const fs::path& file, int writer, int count, int startPipe) {
  char go = 0;
  const bool started = ::read(startPipe, &go, 1) >= 0;
  RegFileBackend backend(file);
  bool ok = started;
  for (int i = 0; i < count; ++i) {
    ok = backend.writeValue(valueName(writer, i), RegistryValue::fromDword(static_cast<std::uint32_t>(i))) &&
         ok;
  }
  ::_exit(ok ? 0 : 1);
}

TEST(RegFileBackend, TwoProgramsWritingAtOnceBothKeepEveryValue) {
  test::TempFolder folder;
  const fs::path file = folder / "Settings.reg";
  constexpr int kWriters = 2;
  constexpr int kValues = 60;
  int startPipe[2];
  ASSERT_EQ(::pipe(startPipe), 0);
  std::vector<pid_t> children;
  for (int writer = 0; writer < kWriters; ++writer) {
    const pid_t child = ::fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
      ::close(startPipe[1]);
      writeFromChild(file, writer, kValues, startPipe[0]);
    }
    children.push_back(child);
  }
  ::close(startPipe[0]);
  ::close(startPipe[1]);  // both writers start together
  for (const pid_t child : children) {
    int status = 0;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0);
  }

  RegFileBackend backend(file);
  const auto values = backend.listValues();
  EXPECT_EQ(values.size(), static_cast<std::size_t>(kWriters * kValues));
  for (int writer = 0; writer < kWriters; ++writer) {
    for (int i = 0; i < kValues; ++i) {
      const std::string name = valueName(writer, i);
      EXPECT_EQ(backend.readValue(name), RegistryValue::fromDword(static_cast<std::uint32_t>(i))) << name;
    }
  }
  EXPECT_FALSE(RegFileDocument::parse(test::readBytes(file)).damaged());
  EXPECT_EQ(filesIn(folder.path()), (std::set<std::string>{"Settings.reg", "Settings.reg.lock"}));
}

}  // namespace
}  // namespace sonalyx
