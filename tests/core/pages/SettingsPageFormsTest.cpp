#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <string>

#include "core/pages/PlotPageForm.h"
#include "core/pages/PrintSetupForm.h"
#include "core/pages/SpeechPageForm.h"
#include "core/pages/WavePageForm.h"
#include "core/settings/RecordingBackend.h"
#include "core/settings/SettingsStore.h"

namespace sonalyx {
namespace {

SettingsStore freshStore() {
  return SettingsStore(std::make_shared<test::RecordingBackend>());
}

// A translator that shows where translation happened.
std::string marked(const std::string& english) {
  return "<" + english + ">";
}

struct PlotStored {
  double x0, x1;
  std::uint32_t points;
  double xMin, xMax, yMin, yMax;
  bool operator==(const PlotStored&) const = default;
};

TEST(SettingsPageForms, PlotPageRefusesTheFirstBadFieldAndStoresWhatMakesSense) {
  const PlotStored defaults{-10, 10, 501, -10, 10, -10, 10};
  struct Row {
    const char* what;
    std::array<const char*, PlotPageForm::kFieldCount> text;
    bool autoX, autoY;
    std::optional<FieldRefusal> refusal;
    PlotStored stored;
  };
  using F = PlotPageForm;
  const Row rows[] = {
      {"all good",
       {"-2", "3.5", "11", "-1", "1e3", "-0.5", "0.5"},
       false,
       false,
       std::nullopt,
       {-2, 3.5, 11, -1, 1000, -0.5, 0.5}},
      {"an empty domain",
       {"5", "5", "11", "-10", "10", "-10", "10"},
       false,
       false,
       FieldRefusal{F::Start, "Invalid function domain. Start must be less than Finish."},
       {-10, 10, 11, -10, 10, -10, 10}},
      {"start not a number",
       {"12abc", "20", "501", "-10", "10", "-10", "10"},
       false,
       false,
       FieldRefusal{F::Start, "Start must be a number."},
       defaults},
      {"finish empty",
       {"0", " ", "501", "-10", "10", "-10", "10"},
       false,
       false,
       FieldRefusal{F::Finish, "Finish must be a number."},
       defaults},
      {"one point",
       {"0", "1", "1", "-10", "10", "-10", "10"},
       false,
       false,
       FieldRefusal{F::Points, "The number of points must be from 2 to 1000001."},
       {0, 1, 501, -10, 10, -10, 10}},
      {"points beyond the limit",
       {"0", "1", "1000002", "-10", "10", "-10", "10"},
       false,
       false,
       FieldRefusal{F::Points, "The number of points must be from 2 to 1000001."},
       {0, 1, 501, -10, 10, -10, 10}},
      {"points not whole",
       {"0", "1", "12.5", "-10", "10", "-10", "10"},
       false,
       false,
       FieldRefusal{F::Points, "The number of points must be from 2 to 1000001."},
       {0, 1, 501, -10, 10, -10, 10}},
      {"the most points",
       {"0", "1", "1000001", "-10", "10", "-10", "10"},
       false,
       false,
       std::nullopt,
       {0, 1, 1000001, -10, 10, -10, 10}},
      {"an empty x range",
       {"-10", "10", "501", "1", "1", "-10", "10"},
       false,
       false,
       FieldRefusal{F::XMin, "Invalid graph X range. X min must be less than X max."},
       defaults},
      {"an empty x range, auto-scaled",
       {"-10", "10", "501", "1", "1", "-1", "2"},
       true,
       false,
       std::nullopt,
       {-10, 10, 501, -10, 10, -1, 2}},
      {"both ranges bad: x first",
       {"-10", "10", "501", "3", "1", "4", "2"},
       false,
       false,
       FieldRefusal{F::XMin, "Invalid graph X range. X min must be less than X max."},
       defaults},
      {"both bad, x auto-scaled",
       {"-10", "10", "501", "3", "1", "4", "2"},
       true,
       false,
       FieldRefusal{F::YMin, "Invalid graph Y range. Y min must be less than Y max."},
       defaults},
      {"y max not a number, auto-scaled",
       {"-10", "10", "501", "-10", "10", "-10", "ten"},
       false,
       true,
       std::nullopt,
       defaults},
      {"y max not a number",
       {"-10", "10", "501", "-10", "10", "-10", "ten"},
       false,
       false,
       FieldRefusal{F::YMax, "Y max must be a number."},
       defaults},
  };
  for (const Row& row : rows) {
    PlotPageForm form;
    for (int field = 0; field < F::kFieldCount; ++field) form.text[field] = row.text[field];
    form.autoScaleX = row.autoX;
    form.autoScaleY = row.autoY;
    EXPECT_EQ(form.check(), row.refusal) << row.what;
    const SettingsStore store = freshStore();
    form.storeAccepted(store);
    EXPECT_EQ((PlotStored{store.GetFxX0(), store.GetFxX1(), store.GetFxNumPts(), store.GetXMin(),
                          store.GetXMax(), store.GetYMin(), store.GetYMax()}),
              row.stored)
        << row.what;
    EXPECT_EQ(form.enabled(F::XMax), !row.autoX) << row.what;
    EXPECT_EQ(form.enabled(F::YMin), !row.autoY) << row.what;
  }
}

TEST(SettingsPageForms, PlotPageReadsTheSettingsBackAndTranslatesItsMessages) {
  const SettingsStore store = freshStore();
  store.SetFxX0(-2.5);
  store.SetYMax(1e-7);
  store.SetAutoScaleY(true);
  PlotPageForm form = PlotPageForm::fromSettings(store);
  EXPECT_EQ(form.text[PlotPageForm::Start], "-2.5");
  EXPECT_EQ(form.text[PlotPageForm::YMax], "1e-007");
  EXPECT_TRUE(form.autoScaleY);
  EXPECT_FALSE(form.storeAccepted(store));  // nothing changed
  form.text[PlotPageForm::XMax] = "20";
  EXPECT_TRUE(form.storeAccepted(store));
  form.text[PlotPageForm::Start] = "x";
  EXPECT_EQ(form.check(marked), (FieldRefusal{PlotPageForm::Start, "<<Start> must be a number.>"}));
  form.text[PlotPageForm::Start] = "0";
  form.text[PlotPageForm::Points] = "0";
  EXPECT_EQ(form.check(marked)->message, "<The number of points must be from 2 to 1000001.>");
}

TEST(SettingsPageForms, WavePageRefusesTicksOutsideTheirRangeOnlyWhileTheyPlay) {
  struct Row {
    const char* ticks;
    const char* threshold;
    bool playTicks, thresholdOn;
    std::optional<FieldRefusal> refusal;
    std::uint32_t storedTicks;
    double storedThreshold;
  };
  const FieldRefusal badTicks{WavePageForm::TickCount, "The number of tick marks must be from 5 to 15."};
  const FieldRefusal badThreshold{WavePageForm::Threshold, "Y Threshold Level must be a number."};
  const Row rows[] = {
      {"4", "0", true, false, badTicks, 10, 0},        {"16", "0", true, false, badTicks, 10, 0},
      {"1", "0", true, false, badTicks, 10, 0},        {"12", "0", true, false, std::nullopt, 12, 0},
      {"15", "0", true, false, std::nullopt, 15, 0},   {"5", "0", true, false, std::nullopt, 5, 0},
      {"x", "0", false, false, std::nullopt, 10, 0},   {"10", "abc", true, true, badThreshold, 10, 0},
      {"10", "abc", true, false, std::nullopt, 10, 0}, {"4", "-2.5", true, true, badTicks, 10, -2.5},
  };
  for (const Row& row : rows) {
    const WavePageForm form{row.ticks, row.threshold, row.playTicks, row.thresholdOn};
    EXPECT_EQ(form.check(), row.refusal) << row.ticks << " " << row.threshold;
    const SettingsStore store = freshStore();
    form.storeAccepted(store);
    EXPECT_EQ(store.GetNumTicks(), row.storedTicks) << row.ticks;
    EXPECT_EQ(store.GetYThresh(), row.storedThreshold) << row.threshold;
  }
}

TEST(SettingsPageForms, SpeechPageRefusesDecimalPlacesOutsideTheirRangeInsteadOfClamping) {
  const FieldRefusal refused{SpeechPageForm::Decimals, "The number of decimal places must be from 0 to 15."};
  const struct {
    const char* typed;
    std::optional<FieldRefusal> refusal;
    std::uint32_t stored;
  } rows[] = {{"0", std::nullopt, 0}, {"7", std::nullopt, 7}, {" 15 ", std::nullopt, 15},
              {"16", refused, 5},     {"25", refused, 5},     {"-3", refused, 5},
              {"", refused, 5},       {"2.5", refused, 5}};
  for (const auto& row : rows) {
    const SpeechPageForm form{row.typed};
    EXPECT_EQ(form.check(), row.refusal) << row.typed;
    const SettingsStore store = freshStore();
    form.storeAccepted(store);
    EXPECT_EQ(store.GetNumDec(), row.stored) << row.typed;
  }
}

TEST(SettingsPageForms, PrintSetupKeepsTheGraphOnThePageAsTheOrientationTurnsIt) {
  const FieldRefusal narrowPage{PrintSetupForm::Width,
                                "The width must be from 1 to 8.5 inches, the page's width."};
  const FieldRefusal widePage{PrintSetupForm::Width,
                              "The width must be from 1 to 11 inches, the page's width."};
  const FieldRefusal shortPage{PrintSetupForm::Height,
                               "The height must be from 1 to 8.5 inches, the page's height."};
  const FieldRefusal copies{PrintSetupForm::Copies, "The number of copies must be from 1 to 99."};
  const struct {
    const char *width, *height, *copies;
    bool landscape;
    std::optional<FieldRefusal> refusal;
  } rows[] = {
      {"6", "8", "1", false, std::nullopt}, {"8.5", "11", "99", false, std::nullopt},
      {"9", "8", "1", false, narrowPage},   {"9", "8", "1", true, std::nullopt},
      {"6", "9", "1", true, shortPage},     {"0.5", "8", "1", false, narrowPage},
      {"", "8", "1", false, narrowPage},    {"6in", "8", "1", false, narrowPage},
      {"12", "8", "1", true, widePage},     {"6", "8", "0", false, copies},
      {"6", "8", "100", false, copies},     {"6", "8", "1.5", false, copies},
  };
  for (const auto& row : rows) {
    PrintSetupForm form;
    form.width = row.width;
    form.height = row.height;
    form.copies = row.copies;
    form.landscape = row.landscape;
    EXPECT_EQ(form.check(), row.refusal) << row.width << " x " << row.height << " " << row.copies;
  }
}

TEST(SettingsPageForms, PrintPreviewNamesTheSizeAndTheTrueYAxisFactor) {
  EXPECT_EQ(PrintSetupForm::sizeLine({}, 6, 8), "6.0 x 8.0 inches");
  EXPECT_EQ(PrintSetupForm::sizeLine(marked, 4.5, 3), "<4.5 x 3.0 inches>");
  // Labels divided by 10000 read true when multiplied by 10000; small values by 0.1.
  EXPECT_EQ(PrintSetupForm::yAxisLine({}, 1e-4), "y-axis times 10000");
  EXPECT_EQ(PrintSetupForm::yAxisLine({}, 1.0), "y-axis times 1");
  EXPECT_EQ(PrintSetupForm::yAxisLine({}, 10.0), "y-axis times 0.1");
}

}  // namespace
}  // namespace sonalyx
