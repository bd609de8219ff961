#include "core/pages/PlotPageForm.h"

#include "core/limits/Limits.h"
#include "core/pages/NumberEntry.h"
#include "core/settings/SettingsStore.h"
#include "core/speech/TranslationMarker.h"
#include "core/utility/NumberFormat.h"

namespace sonalyx {

namespace {

constexpr const char* kFieldNames[] = {SLX_TR("Start"), SLX_TR("Finish"), SLX_TR("Number of points"),
                                       SLX_TR("X min"), SLX_TR("X max"),  SLX_TR("Y min"),
                                       SLX_TR("Y max")};

// The fewest points a function is sampled at: a line needs two.
constexpr long long kFewestPoints = 2;

struct Pair {
  PlotPageForm::Field low;
  PlotPageForm::Field high;
  const char* message;
};

constexpr Pair kDomain{PlotPageForm::Start, PlotPageForm::Finish,
                       SLX_TR("Invalid function domain. Start must be less than Finish.")};
constexpr Pair kXRange{PlotPageForm::XMin, PlotPageForm::XMax,
                       SLX_TR("Invalid graph X range. X min must be less than X max.")};
constexpr Pair kYRange{PlotPageForm::YMin, PlotPageForm::YMax,
                       SLX_TR("Invalid graph Y range. Y min must be less than Y max.")};

std::optional<long long> acceptedPoints(const std::string& text) {
  const auto points = entry::wholeNumber(text);
  if (!points || *points < kFewestPoints || *points > static_cast<long long>(limits::kMostPoints))
    return std::nullopt;
  return points;
}

}  // namespace

PlotPageForm PlotPageForm::fromSettings(const SettingsStore& store) {
  PlotPageForm form;
  const auto number = [](double value) { return formatNumber(value, "%.10g"); };
  form.text[Start] = number(store.GetFxX0());
  form.text[Finish] = number(store.GetFxX1());
  form.text[Points] = std::to_string(store.GetFxNumPts());
  form.text[XMin] = number(store.GetXMin());
  form.text[XMax] = number(store.GetXMax());
  form.text[YMin] = number(store.GetYMin());
  form.text[YMax] = number(store.GetYMax());
  form.autoScaleX = store.GetAutoScaleX();
  form.autoScaleY = store.GetAutoScaleY();
  return form;
}

bool PlotPageForm::enabled(Field field) const {
  if (field == XMin || field == XMax) return !autoScaleX;
  if (field == YMin || field == YMax) return !autoScaleY;
  return true;
}

std::optional<FieldRefusal> PlotPageForm::check(const Translator& translate) const {
  const auto checkPair = [&](const Pair& pair) -> std::optional<FieldRefusal> {
    if (!enabled(pair.low)) return std::nullopt;
    for (const Field field : {pair.low, pair.high})
      if (!entry::realNumber(text[field]))
        return FieldRefusal{field, entry::notANumberText(translate, kFieldNames[field])};
    if (!(*entry::realNumber(text[pair.low]) < *entry::realNumber(text[pair.high])))
      return FieldRefusal{pair.low, translateWith(translate, pair.message)};
    return std::nullopt;
  };
  if (auto refusal = checkPair(kDomain)) return refusal;
  if (!acceptedPoints(text[Points])) {
    return FieldRefusal{Points,
                        entry::rangeText(translate, SLX_TR("The number of points must be from %d to %d."),
                                         kFewestPoints, static_cast<long long>(limits::kMostPoints))};
  }
  if (auto refusal = checkPair(kXRange)) return refusal;
  return checkPair(kYRange);
}

bool PlotPageForm::storeAccepted(const SettingsStore& store) const {
  const auto accepted = [&](const Pair& pair) -> std::optional<std::pair<double, double>> {
    const auto low = entry::realNumber(text[pair.low]);
    const auto high = entry::realNumber(text[pair.high]);
    if (!low || !high || !(*low < *high)) return std::nullopt;
    return std::pair{*low, *high};
  };
  if (const auto domain = accepted(kDomain)) {
    store.SetFxX0(domain->first);
    store.SetFxX1(domain->second);
  }
  if (const auto points = acceptedPoints(text[Points]))
    store.SetFxNumPts(static_cast<std::uint32_t>(*points));
  bool rangeChanged = false;
  if (const auto x = accepted(kXRange); x && (x->first != store.GetXMin() || x->second != store.GetXMax())) {
    store.SetXMin(x->first);
    store.SetXMax(x->second);
    rangeChanged = true;
  }
  if (const auto y = accepted(kYRange); y && (y->first != store.GetYMin() || y->second != store.GetYMax())) {
    store.SetYMin(y->first);
    store.SetYMax(y->second);
    rangeChanged = true;
  }
  return rangeChanged;
}

}  // namespace sonalyx
