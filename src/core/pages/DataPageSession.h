#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "core/math/DataSet.h"
#include "core/math/RegressionFit.h"
#include "core/settings/SettingsStore.h"
#include "core/speech/TranslationMarker.h"
#include "core/speech/Translator.h"

namespace sonalyx {

// What a Data page shows and says after one of its commands.
struct DataPageUpdate {
  // The set was replaced or edited: the table, the graph and the cursor follow.
  bool setChanged = false;
  // The f(x) box's new text, when it changes.
  std::optional<std::string> editText;
  // Shown under the f(x) box and said as content; empty when there is nothing new.
  std::string message;
  // The message says why nothing changed.
  bool refused = false;
};

// One f(x) to sample, with everything the sampling needs, so that it can run away
// from the window while the user goes on.
struct SamplingRequest {
  std::size_t slot = 0;
  std::string expression;
  double x0 = 0.0;
  double x1 = 0.0;
  int numPts = 0;
  bool polar = false;
  // A fitted curve, plotted from the other Data page.
  bool fittedCurve = false;
};

struct SamplingResult {
  DataSet set;
  std::string errorText;  // empty on success
};

// A Data page without its window: the set of one slot (data set 1 or 2), where it
// came from, evaluation of f(x), typed cells, paste and file loads with one step of
// undo, the statistics view's fit and the curve it plots. Every change of the set
// recomputes the sum and the difference. A refused input changes nothing.
class DataPageSession {
 public:
  // What the f(x) box shows when the set did not come from an expression.
  static constexpr const char* kUserLabel = SLX_TR("user");
  static constexpr const char* kClearLabel = SLX_TR("clear");
  static constexpr const char* kFilePrefix = SLX_TR("file: ");

  // `slot` is DataSet::Data1 or DataSet::Data2.
  DataPageSession(std::array<DataSet, 4>& slots, std::size_t slot, const SettingsStore& store,
                  Translator translate = {});

  std::size_t slot() const { return m_slot; }
  const DataSet& set() const { return m_slots[m_slot]; }
  // The slot the fitted curve is plotted into: the other data set.
  std::size_t otherSlot() const { return m_slot == DataSet::Data1 ? DataSet::Data2 : DataSet::Data1; }

  // Whether the f(x) box shows where the set came from rather than an expression:
  // "user", "clear" or a file's name.
  bool isSourceLabel(const std::string& text) const;
  // The f(x) box's text as the page comes to the front: the stored expression,
  // unless the box shows where the set came from.
  std::string arrivalText(const std::string& shown) const;
  // The stored polar choice of this page's set.
  bool storedPolar() const;

  // The sampling the page's evaluate command asks for; nothing for an empty box or
  // one that shows where the set came from.
  std::optional<SamplingRequest> evaluation(const std::string& text, bool polar) const;
  // Runs on any thread; touches nothing shared.
  static SamplingResult sample(const SamplingRequest& request, const Translator& translate = {});
  // Takes a finished sampling for this page's slot: on success the set, the stored
  // expression and polar choice change (the previous set can be undone); on failure
  // the set stays and the message says why.
  DataPageUpdate accept(const SamplingRequest& request, SamplingResult result);

  // A typed table cell: column 0 is x, column 1 f(x); row count() appends a point.
  // The text may be any expression ("pi/2"). The set's source becomes "user".
  DataPageUpdate editCell(std::size_t row, int column, const std::string& text);
  // The two halves of editCell, for a table that must announce a new row before
  // it exists: the typed text's value (false, and why, when it has none), and
  // storing a value.
  bool readCell(const std::string& text, double& value, std::string& message) const;
  DataPageUpdate setCell(std::size_t row, int column, double value);
  // Clipboard text: a table of points replaces the set; anything else is refused
  // with the reason.
  DataPageUpdate paste(const std::string& text);
  // Points read from the file at `path`.
  DataPageUpdate loaded(std::vector<DataPoint> points, const std::string& path);
  // Restore defaults: the set is emptied and the source reads "clear".
  DataPageUpdate clear();
  // Brings back the set as it was before the last paste, load, evaluation or clear.
  DataPageUpdate undo();
  bool canUndo() const { return m_undo.has_value(); }

  // The statistics view. Nothing is computed for a set without data (the page says
  // "No data plotted -- nothing to calculate."). The coefficients are kept for the
  // plot-fit command.
  bool hasData() const { return set().hasData(); }
  FitResult fit(int model, const SineStartChooser& chooseSineB = {});
  bool canPlotFit() const { return !m_fitExpression.empty(); }
  // The fitted curve over the set's x range with fxNumPts points, for the other
  // data set; nothing when the last fit left no coefficients.
  std::optional<SamplingRequest> fitCurve() const;

 private:
  std::string say(const char* english) const;
  std::string setName(std::size_t slot) const;
  // Replaces the set, keeping the one before for undo.
  void replace(DataSet set, std::string label);
  void setsChanged();

  std::array<DataSet, 4>& m_slots;
  std::size_t m_slot;
  const SettingsStore& m_store;
  Translator m_translate;
  std::string m_label;
  struct Previous {
    DataSet set;
    std::string label;
  };
  std::optional<Previous> m_undo;
  std::string m_fitExpression;
};

}  // namespace sonalyx
