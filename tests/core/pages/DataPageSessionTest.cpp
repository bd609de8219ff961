#include "core/pages/DataPageSession.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>

#include "core/math/FitModel.h"
#include "core/settings/RecordingBackend.h"
#include "support/NumericCompare.h"

namespace sonalyx {
namespace {

using test::agreesTo;

class DataPageSessionTest : public ::testing::Test {
 protected:
  std::shared_ptr<test::RecordingBackend> m_backend = std::make_shared<test::RecordingBackend>();
  SettingsStore m_store{m_backend};
  std::array<DataSet, 4> m_slots;

  // An evaluation as the page runs it, the sampling included.
  DataPageUpdate evaluate(DataPageSession& session, const std::string& text, bool polar = false) {
    const auto request = session.evaluation(text, polar);
    if (!request) return {};
    return session.accept(*request, DataPageSession::sample(*request));
  }
};

// One session, step by step: every command either changes the set and says so,
// or leaves it exactly as it was and says why.
TEST_F(DataPageSessionTest, EveryCommandChangesTheSetOrSaysWhyNot) {
  DataPageSession session(m_slots, DataSet::Data1, m_store);
  DataPageSession other(m_slots, DataSet::Data2, m_store);
  evaluate(other, "2*x");
  std::vector<DataPoint> read(3);
  read[2].x = 5;
  const struct Step {
    const char* what;
    std::function<DataPageUpdate()> run;
    std::size_t count;
    double firstY;
    const char* edit;  // nullptr: unchanged
    const char* message;
    bool refused;
  } steps[] = {
      {"evaluate", [&] { return evaluate(session, "x^2-4"); }, 501, 96, "x^2-4",
       "Data set 1 is ready: 501 points.", false},
      {"an unknown name", [&] { return evaluate(session, "x^2-y"); }, 501, 96, nullptr,
       "Invalid entry. Unknown name y.", true},
      {"a start not below the finish",
       [&] {
         m_store.SetFxX0(3);
         m_store.SetFxX1(3);
         const DataPageUpdate update = evaluate(session, "x");
         m_store.SetFxX0(-10);
         m_store.SetFxX1(10);
         return update;
       },
       501, 96, nullptr, "Invalid entry. Start must be below finish.", true},
      {"a source label is no expression", [&] { return evaluate(session, "user"); }, 501, 96, nullptr, "",
       false},
      {"a typed f(x)", [&] { return session.editCell(0, 1, "pi"); }, 501, 3.14159265358979, "user", "",
       false},
      {"a typed x in the new row", [&] { return session.editCell(501, 0, "11"); }, 502, 3.14159265358979,
       "user", "", false},
      {"a cell that is no number", [&] { return session.editCell(0, 1, "2+"); }, 502, 3.14159265358979,
       nullptr, "Invalid entry. The expression ends too early.", true},
      {"paste a table", [&] { return session.paste("1\t2\r\n3\t4\r\n"); }, 2, 2, "user",
       "Data set 1: 2 points pasted. Ctrl+Z brings back the previous set.", false},
      {"paste no table", [&] { return session.paste("hello"); }, 2, 2, nullptr,
       "The clipboard does not hold a table of points. Line 1 does not hold two numbers.", true},
      {"undo the paste", [&] { return session.undo(); }, 502, 3.14159265358979, "user",
       "Data set 1 is back as it was: 502 points.", false},
      {"a file", [&] { return session.loaded(read, "/tmp/points.set"); }, 3, 0, "file: /tmp/points.set",
       "Data set 1: 3 points read from points.set.", false},
      {"restore defaults", [&] { return session.clear(); }, 0, 0, "clear", "", false},
      {"undo the clear", [&] { return session.undo(); }, 3, 0, "file: /tmp/points.set",
       "Data set 1 is back as it was: 3 points.", false},
  };
  for (const Step& step : steps) {
    const DataPageUpdate update = step.run();
    EXPECT_EQ(update.message, step.message) << step.what;
    EXPECT_EQ(update.refused, step.refused) << step.what;
    EXPECT_EQ(update.setChanged, step.edit != nullptr) << step.what;
    EXPECT_EQ(update.editText, step.edit ? std::optional<std::string>(step.edit) : std::nullopt) << step.what;
    ASSERT_EQ(session.set().count(), step.count) << step.what;
    if (step.count > 0) {
      EXPECT_TRUE(agreesTo(session.set().at(0).y, step.firstY, 14)) << step.what;
    }
    // The sum and the difference follow data set 1 wherever both sets have data.
    EXPECT_EQ(m_slots[DataSet::Sum].count(), session.set().hasData() ? step.count : 0u) << step.what;
    EXPECT_EQ(m_slots[DataSet::Difference].count(), m_slots[DataSet::Sum].count()) << step.what;
  }
  EXPECT_EQ(m_store.GetExpr1(), "x^2-4");
  EXPECT_EQ(session.arrivalText("x^2+1"), "x^2-4") << "a typed expression gives way to the stored one";
  EXPECT_EQ(session.arrivalText("file: /tmp/points.set"), "file: /tmp/points.set");
}

TEST_F(DataPageSessionTest, PolarChoiceIsStoredWithTheSet) {
  DataPageSession session(m_slots, DataSet::Data2, m_store);
  evaluate(session, "2", true);
  EXPECT_TRUE(session.set().isPolar());
  EXPECT_TRUE(m_store.GetData2IsPolar());
  EXPECT_TRUE(session.storedPolar());
  EXPECT_TRUE(agreesTo(session.set().at(0).cartX, 2.0 * std::cos(-10.0), 14));
  // A typed radius moves the point on the plane too.
  session.editCell(0, 1, "1");
  EXPECT_TRUE(agreesTo(session.set().at(0).cartX, std::cos(-10.0), 14));
}

TEST_F(DataPageSessionTest, AFitPlotsItsCurveIntoTheOtherSet) {
  DataPageSession data1(m_slots, DataSet::Data1, m_store);
  DataPageSession data2(m_slots, DataSet::Data2, m_store);
  EXPECT_TRUE(data1.fit(kQuadratic).lines.empty()) << "nothing to fit";
  EXPECT_FALSE(data1.canPlotFit());
  evaluate(data1, "x^2-4");
  const struct {
    int model;
    bool canPlot;
  } fits[] = {{kExponential, false}, {kStatistics, false}, {kQuadratic, true}};
  for (const auto& f : fits) {
    EXPECT_FALSE(data1.fit(f.model).lines.empty()) << f.model;
    EXPECT_EQ(data1.canPlotFit(), f.canPlot) << f.model;
  }
  const auto request = data1.fitCurve();
  ASSERT_TRUE(request);
  EXPECT_EQ(request->slot, DataSet::Data2);
  const DataPageUpdate update = data2.accept(*request, DataPageSession::sample(*request));
  EXPECT_EQ(update.message, "Data set 2 holds the fitted curve: 501 points.");
  ASSERT_EQ(m_slots[DataSet::Data2].count(), 501u);
  for (const std::size_t i : {0u, 250u, 500u})
    EXPECT_TRUE(agreesTo(m_slots[DataSet::Data2].at(i).y, m_slots[DataSet::Data1].at(i).y, 9, 1e-9)) << i;
  EXPECT_TRUE(agreesTo(m_slots[DataSet::Difference].at(100).y, 0.0, 9, 1e-8));
}

}  // namespace
}  // namespace sonalyx
