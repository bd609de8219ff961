#include "core/pages/DataPageSession.h"

#include <algorithm>
#include <filesystem>
#include <utility>

#include "core/engines/Evaluator.h"
#include "core/files/DataSetFile.h"
#include "core/math/FitExpression.h"
#include "core/math/FunctionSampler.h"
#include "core/speech/TranslationMarker.h"

namespace sonalyx {

namespace {

// Fills each "%d" or "%s" in turn.
std::string filled(std::string text, const std::vector<std::string>& values) {
  std::size_t from = 0;
  for (const std::string& value : values) {
    const std::size_t at = std::min(text.find("%d", from), text.find("%s", from));
    if (at == std::string::npos) break;
    text.replace(at, 2, value);
    from = at + value.size();
  }
  return text;
}

}  // namespace

DataPageSession::DataPageSession(std::array<DataSet, 4>& slots, std::size_t slot, const SettingsStore& store,
                                 Translator translate)
    : m_slots(slots), m_slot(slot), m_store(store), m_translate(std::move(translate)) {}

std::string DataPageSession::say(const char* english) const {
  return translateWith(m_translate, english);
}

std::string DataPageSession::setName(std::size_t slot) const {
  return say(slot == DataSet::Data1 ? SLX_TR("Data set 1") : SLX_TR("Data set 2"));
}

bool DataPageSession::isSourceLabel(const std::string& text) const {
  for (const char* label : {kUserLabel, kClearLabel})
    if (text == label || text == say(label)) return true;
  return text.find(kFilePrefix) != std::string::npos || text.find(say(kFilePrefix)) != std::string::npos;
}

std::string DataPageSession::arrivalText(const std::string& shown) const {
  if (isSourceLabel(shown)) return shown;
  return m_slot == DataSet::Data1 ? m_store.GetExpr1() : m_store.GetExpr2();
}

bool DataPageSession::storedPolar() const {
  return m_slot == DataSet::Data1 ? m_store.GetData1IsPolar() : m_store.GetData2IsPolar();
}

std::optional<SamplingRequest> DataPageSession::evaluation(const std::string& text, bool polar) const {
  if (text.find_first_not_of(" \t") == std::string::npos || isSourceLabel(text)) return std::nullopt;
  SamplingRequest request;
  request.slot = m_slot;
  request.expression = text;
  request.x0 = m_store.GetFxX0();
  request.x1 = m_store.GetFxX1();
  request.numPts = static_cast<int>(std::min<std::uint32_t>(m_store.GetFxNumPts(), 0x7fffffff));
  request.polar = polar;
  return request;
}

SamplingResult DataPageSession::sample(const SamplingRequest& request, const Translator& translate) {
  SamplingResult result;
  FunctionSampler sampler(translate);
  if (!sampler.computeFunction(result.set, request.expression, request.x0, request.x1, request.numPts,
                               result.errorText)) {
    result.set.clear();
    if (result.errorText.empty()) result.errorText = translateWith(translate, SLX_TR("Invalid entry."));
    return result;
  }
  result.errorText.clear();
  if (request.polar) result.set.toCartesian();
  return result;
}

DataPageUpdate DataPageSession::accept(const SamplingRequest& request, SamplingResult result) {
  DataPageUpdate update;
  if (!result.errorText.empty()) {
    update.message = std::move(result.errorText);
    update.refused = true;
    return update;
  }
  const auto count = result.set.count();
  replace(std::move(result.set), request.expression);
  if (m_slot == DataSet::Data1) {
    m_store.SetExpr1(request.expression);
    m_store.SetData1IsPolar(request.polar);
  } else {
    m_store.SetExpr2(request.expression);
    m_store.SetData2IsPolar(request.polar);
  }
  update.setChanged = true;
  update.editText = request.expression;
  update.message = filled(say(request.fittedCurve ? SLX_TR("%s holds the fitted curve: %d points.")
                                                  : SLX_TR("%s is ready: %d points.")),
                          {setName(m_slot), std::to_string(count)});
  return update;
}

DataPageUpdate DataPageSession::editCell(std::size_t row, int column, const std::string& text) {
  DataPageUpdate update;
  double value = 0.0;
  if (!readCell(text, value, update.message)) {
    update.refused = true;
    return update;
  }
  return setCell(row, column, value);
}

bool DataPageSession::readCell(const std::string& text, double& value, std::string& message) const {
  EvaluationError error;
  if (Calculate(text, value, error)) return true;
  message = invalidEntryText(error, m_translate);
  return false;
}

DataPageUpdate DataPageSession::setCell(std::size_t row, int column, double value) {
  DataPageUpdate update;
  if ((column != 0 && column != 1) || row > set().count()) return update;
  // A typed point keeps its polar flag; its plane pair follows its new values.
  DataSet& target = m_slots[m_slot];
  const bool polar = target.isPolar();
  if (column == 0 ? !target.setXAt(row, value) : !target.setYAt(row, value)) return update;
  if (polar) target.toCartesian();
  m_label = say(kUserLabel);
  m_fitExpression.clear();
  setsChanged();
  update.setChanged = true;
  update.editText = m_label;
  return update;
}

DataPageUpdate DataPageSession::paste(const std::string& text) {
  DataPageUpdate update;
  std::vector<DataPoint> points;
  try {
    points = readDataSetText(text);
  } catch (const DataSetTextError& error) {
    update.message =
        say(SLX_TR("The clipboard does not hold a table of points.")) + " " + error.message(m_translate);
    update.refused = true;
    return update;
  }
  const auto count = points.size();
  DataSet pasted;
  pasted.assign(std::move(points));
  replace(std::move(pasted), say(kUserLabel));
  update.setChanged = true;
  update.editText = m_label;
  update.message = filled(say(SLX_TR("%s: %d points pasted. Ctrl+Z brings back the previous set.")),
                          {setName(m_slot), std::to_string(count)});
  return update;
}

DataPageUpdate DataPageSession::loaded(std::vector<DataPoint> points, const std::string& path) {
  DataPageUpdate update;
  const auto count = points.size();
  DataSet read;
  read.assign(std::move(points));
  replace(std::move(read), say(kFilePrefix) + path);
  update.setChanged = true;
  update.editText = m_label;
  update.message =
      filled(say(SLX_TR("%s: %d points read from %s.")),
             {setName(m_slot), std::to_string(count), std::filesystem::path(path).filename().string()});
  return update;
}

DataPageUpdate DataPageSession::clear() {
  DataPageUpdate update;
  replace(DataSet{}, say(kClearLabel));
  update.setChanged = true;
  update.editText = m_label;
  return update;
}

DataPageUpdate DataPageSession::undo() {
  DataPageUpdate update;
  if (!m_undo) {
    update.message = say(SLX_TR("Nothing to undo."));
    update.refused = true;
    return update;
  }
  Previous previous = std::move(*m_undo);
  m_undo.reset();
  // Undo of the undo: the set it replaced can come back too.
  replace(std::move(previous.set), std::move(previous.label));
  update.setChanged = true;
  update.editText = m_label;
  update.message = filled(say(SLX_TR("%s is back as it was: %d points.")),
                          {setName(m_slot), std::to_string(set().count())});
  return update;
}

FitResult DataPageSession::fit(int model, const SineStartChooser& chooseSineB) {
  m_fitExpression.clear();
  if (!hasData()) return {};
  FitResult result = runFit(model, set(), chooseSineB, m_translate);
  if (!result.coefficients.empty()) m_fitExpression = fitExpression(model, result.coefficients);
  return result;
}

std::optional<SamplingRequest> DataPageSession::fitCurve() const {
  if (m_fitExpression.empty() || !hasData()) return std::nullopt;
  const auto [x0, x1] = set().rangeX(false);
  SamplingRequest request;
  request.slot = otherSlot();
  request.expression = m_fitExpression;
  request.x0 = x0;
  request.x1 = x1;
  request.numPts = static_cast<int>(std::min<std::uint32_t>(m_store.GetFxNumPts(), 0x7fffffff));
  request.fittedCurve = true;
  return request;
}

void DataPageSession::replace(DataSet set, std::string label) {
  m_undo = Previous{std::move(m_slots[m_slot]), std::move(m_label)};
  m_slots[m_slot] = std::move(set);
  m_label = std::move(label);
  m_fitExpression.clear();
  setsChanged();
}

void DataPageSession::setsChanged() {
  for (const bool add : {true, false}) {
    DataSet& combined = m_slots[add ? DataSet::Sum : DataSet::Difference];
    combined.clear();
    DataSet::combine(combined, m_slots[DataSet::Data1], m_slots[DataSet::Data2], add);
  }
}

}  // namespace sonalyx
