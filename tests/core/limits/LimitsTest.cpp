#include "core/limits/Limits.h"

#include <gtest/gtest.h>

#include <array>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>

#include "core/engines/MatrixEngine.h"
#include "core/files/DataSetFile.h"
#include "core/math/FunctionSampler.h"
#include "core/settings/RecordingBackend.h"
#include "core/sound/GraphPlayback.h"
#include "core/sound/PlayTimeLimit.h"
#include "support/CurveData.h"
#include "support/TempFolder.h"

namespace sonalyx {
namespace {

// The message a refused input gives; empty when it is accepted.
using Attempt = std::function<std::string()>;

std::string readText(const std::string& text) {
  try {
    readDataSetText(text);
  } catch (const DataSetTextError& e) {
    return e.what();
  }
  return {};
}

std::string matrix(const std::string& expression) {
  MatrixEngine engine;
  std::string result;
  return engine.Calculate(expression, result) ? std::string() : engine.lastError();
}

std::string sample(const std::string& expression, int points) {
  DataSet set;
  std::string error;
  return FunctionSampler().computeFunction(set, expression, 0.0, 1.0, points, error) ? std::string() : error;
}

std::string play(std::uint32_t seconds) {
  auto backend = std::make_shared<test::RecordingBackend>();
  const SettingsStore store(backend);
  store.SetInt("playTime", seconds);
  std::array<DataSet, 4> slots;
  slots[0] = test::curve({1, 2});
  const PlaybackAction action = GraphPlayback(slots, store).run(PlaybackCommand::Play, -1);
  return action.sweep ? std::string() : action.speech;
}

std::string lines(std::size_t count) {
  std::string text;
  text.reserve(count * 4);
  for (std::size_t i = 0; i < count; ++i) text += "0 0\n";
  return text;
}

TEST(Limits, EachIsRefusedWithItsMessageBeforeAnythingIsMade) {
  const std::string tooManyPoints = "A data set holds at most 1000001 points.";
  const std::string tooLarge = "The text is too large for a data set of at most 1000001 points.";
  const std::string playRange = "The play time must be from 1 to 600 seconds.";
  const struct {
    const char* what;
    Attempt attempt;
    std::string refusal;  // empty: accepted
  } cases[] = {
      {"one point more", [] { return readText(lines(limits::kMostPoints + 1)); }, tooManyPoints},
      {"a text of gigabytes' length",
       [] { return readText(std::string(limits::kMostDataTextBytes + 1, ' ')); }, tooLarge},
      {"a matrix of a million elements", [] { return matrix("[eye(1000)]"); }, ""},
      {"a matrix of two million", [] { return matrix("[eye(1000),eye(1000)]"); },
       "a matrix of 1000x2000 is larger than the 1000000 elements allowed"},
      {"eye(100000)", [] { return matrix("eye(100000)"); }, "eye needs a whole number from 1 to 1000"},
      {"a small matrix to a huge power", [] { return matrix("eye(100)^1000000"); }, ""},
      {"a large matrix to a large power (found by fuzzing: a minute's work)",
       [] { return matrix("eye(985)^1585"); },
       "a power of a 985x985 matrix to 1585 needs more than the 4000000000 multiplications allowed"},
      {"a matrix text of 16000001 characters", [] { return matrix(std::string(16000000, ' ') + "1"); },
       "the expression is longer than 16000000 characters"},
      {"the most points sampled", [] { return sample("x", 1000001); }, ""},
      {"one point more", [] { return sample("x", 1000002); },
       "Invalid entry. At most 1000001 points can be sampled."},
      {"an f(x) of 100000 characters", [] { return sample(std::string(99999, ' ') + "x", 2); }, ""},
      {"one character more", [] { return sample(std::string(100000, ' ') + "x", 2); },
       "Invalid entry. The expression is longer than 100000 characters."},
      {"a play time of 1 second", [] { return play(1); }, ""},
      {"a play time of 600 seconds", [] { return play(600); }, ""},
      {"a play time of 0 seconds", [] { return play(0); }, playRange},
      {"a play time of 4,000,000,000 seconds", [] { return play(4000000000u); }, playRange},
  };
  for (const auto& c : cases) EXPECT_EQ(c.attempt(), c.refusal) << c.what;
}

TEST(Limits, AHugeFileIsMeasuredNotRead) {
  test::TempFolder folder;
  const auto path = folder / "huge.set";
  test::writeBytes(path, "1 2\n");
  // Sparse: a terabyte on paper, nothing on disk. Reading it would take forever.
  std::filesystem::resize_file(path, std::uintmax_t{1} << 40);
  try {
    readDataSetFile(path.string());
    ADD_FAILURE() << "read";
  } catch (const DataSetTextError& e) {
    EXPECT_EQ(e.problem(), DataSetTextError::TooLarge);
  }
}

}  // namespace
}  // namespace sonalyx
