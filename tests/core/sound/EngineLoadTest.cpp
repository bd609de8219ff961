#include "core/sound/EngineLoad.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include "core/settings/RecordingBackend.h"

namespace sonalyx {
namespace {

// A call as it would read in code, floats to full precision.
template <typename... Args>
std::string callText(const char* name, Args... args) {
  std::ostringstream text;
  text.precision(9);
  text << name << "(";
  [[maybe_unused]] const char* separator = "";
  ((text << separator << args, separator = ", "), ...);
  text << ")";
  return text.str();
}

std::string appendText(float x, float y) {
  return callText("AppendPoint", x, y);
}

class RecordingEngine : public AudioPlotEngine {
 public:
  std::vector<std::string> calls;

  void CreateInstance() override { calls.push_back(callText("CreateInstance")); }
  void Reset() override { calls.push_back(callText("Reset")); }
  void AppendPoint(float x, float y) override { calls.push_back(appendText(x, y)); }
  void SetPlayTime(int seconds) override { calls.push_back(callText("SetPlayTime", seconds)); }
  void EnableYThreshold(bool on, float level) override {
    calls.push_back(callText("EnableYThreshold", on, level));
  }
  void SetNumVerticalTicks(int n) override { calls.push_back(callText("SetNumVerticalTicks", n)); }
  void SetDataVolume(unsigned volume) override { calls.push_back(callText("SetDataVolume", volume)); }
  void SetTickVolume(unsigned volume) override { calls.push_back(callText("SetTickVolume", volume)); }
  void SetFreqMin(int hertz) override { calls.push_back(callText("SetFreqMin", hertz)); }
  void SetFreqMax(int hertz) override { calls.push_back(callText("SetFreqMax", hertz)); }
  void Play(bool, bool, bool, bool, int, int) override { calls.push_back(callText("Play")); }
  void PlayPoint(int, bool) override { calls.push_back(callText("PlayPoint")); }
  void WriteWaveToFile(const std::string&, bool, bool) override {
    calls.push_back(callText("WriteWaveToFile"));
  }

  std::vector<std::string> appended() const {
    std::vector<std::string> points;
    for (const auto& c : calls) {
      if (c.rfind("AppendPoint", 0) == 0) points.push_back(c);
    }
    return points;
  }
};

DataPoint pointOf(double x, double y) {
  DataPoint p;
  p.x = x;
  p.y = y;
  p.derivative = 10 * y;
  p.integral = 100 * y;
  p.cartX = -x;
  p.cartY = -y;
  return p;
}

struct Fixture {
  std::shared_ptr<test::RecordingBackend> backend = std::make_shared<test::RecordingBackend>();
  SettingsStore store{backend};
};

TEST(EngineLoad, ResetsAppendsThenSendsTheWaveSettingsInOrderAsStored) {
  Fixture f;
  f.store.SetInt("playTime", 7);
  f.store.SetBool("YThreshOn", true);
  f.store.SetReal("YThresh", 0.1);
  f.store.SetInt("numTicks", 0);
  f.store.SetInt("waveVolume", 250);
  f.store.SetInt("tickVolume", 3);
  // Swapped and out of any sensible range, still passed on untouched.
  f.store.SetInt("minFreq", 4000000000u);
  f.store.SetInt("maxFreq", 20);
  DataSet set;
  set.assign({pointOf(1, 2), pointOf(3, 0.1)});
  RecordingEngine engine;
  loadEngine(engine, set, f.store);
  const std::vector<std::string> expected = {
      callText("Reset"),
      appendText(1, 2),
      appendText(3, 0.1f),
      callText("SetPlayTime", 7),
      callText("EnableYThreshold", true, 0.1f),
      callText("SetNumVerticalTicks", 0),
      callText("SetDataVolume", 250),
      callText("SetTickVolume", 3),
      callText("SetFreqMin", static_cast<int>(4000000000u)),
      callText("SetFreqMax", 20),
  };
  EXPECT_EQ(engine.calls, expected);
}

// Points (-20, -20), (0, 0), (5, 10), (5, 10.000001) and (20, 20) in a graph range of
// -10..10 on both axes; the derivative is 10 y, the integral 100 y and the Cartesian
// pair (-x, -y).
TEST(EngineLoad, AppendsThePointsTheRangeFilterKeepsAsTheSettingsStandNow) {
  const float aboveTen = std::nextafter(10.0f, 20.0f);
  DataSet set;
  set.assign({pointOf(-20, -20), pointOf(0, 0), pointOf(5, 10), pointOf(5, aboveTen), pointOf(20, 20)});
  const struct {
    const char* what;
    std::function<void(const SettingsStore&)> change;
    std::vector<std::string> expected;
  } cases[] = {
      {"defaults keep what lies in range, yMax included",
       [](const SettingsStore&) {},
       {appendText(0, 0), appendText(5, 10)}},
      {"both axes auto-scaled keep everything",
       [](const SettingsStore& s) {
         s.SetBool("autoScaleX", true);
         s.SetBool("autoScaleY", true);
       },
       {appendText(-20, -20), appendText(0, 0), appendText(5, 10), appendText(5, aboveTen),
        appendText(20, 20)}},
      {"x auto-scaled still drops y out of range",
       [](const SettingsStore& s) { s.SetBool("autoScaleX", true); },
       {appendText(0, 0), appendText(5, 10)}},
      {"a wider graph range",
       [](const SettingsStore& s) { s.SetGraphRange(30, -30, -30, 30); },
       {appendText(-20, -20), appendText(0, 0), appendText(5, 10), appendText(5, aboveTen),
        appendText(20, 20)}},
      {"derivative", [](const SettingsStore& s) { s.SetInt("plotType", 1); }, {appendText(0, 0)}},
  };
  for (const auto& c : cases) {
    Fixture f;
    c.change(f.store);
    RecordingEngine engine;
    loadEngine(engine, set, f.store);
    EXPECT_EQ(engine.appended(), c.expected) << c.what;
    ASSERT_FALSE(engine.calls.empty());
    EXPECT_EQ(engine.calls.front(), callText("Reset")) << c.what;
  }
}

TEST(EngineLoad, APolarSetIsPlayedByItsOwnCartesianPairs) {
  // Angle 0: radius 5 is the point (5, 0), radius -20 the point (-20, 0).
  DataSet polar;
  polar.assign({pointOf(0, 5), pointOf(0, -20)});
  polar.toCartesian();
  DataSet plain;
  plain.assign({pointOf(0, 5), pointOf(0, -20)});
  Fixture f;
  RecordingEngine engine;
  loadEngine(engine, polar, f.store);
  EXPECT_EQ(engine.appended(), std::vector<std::string>{appendText(5, 0)});
  engine.calls.clear();
  loadEngine(engine, plain, f.store);
  EXPECT_EQ(engine.appended(), std::vector<std::string>{appendText(0, 5)});
}

TEST(EngineLoad, PlaysTheSetThatSetTypeSelects) {
  std::array<DataSet, 4> slots;
  for (std::size_t i = 0; i < slots.size(); ++i) slots[i].assign({pointOf(static_cast<double>(i), 0)});
  const struct {
    std::uint32_t setType;
    std::size_t slot;
  } cases[] = {{1, 1}, {3, 3}, {7, 0}};
  for (const auto& c : cases) {
    Fixture f;
    f.store.SetInt("setType", c.setType);
    EXPECT_EQ(&engineSource(slots, f.store), &slots[c.slot]) << "setType " << c.setType;
  }
}

}  // namespace
}  // namespace sonalyx
