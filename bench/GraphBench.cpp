// The graph at work in the desktop program, off-screen: from a key to the sound it
// starts and the words it hands on, from F4 to a drawn graph, a paint from the
// cache, and 100,001 points sampled, tabled and drawn while the window keeps
// answering. Qt Charts, what a Qt program would otherwise draw a curve with, draws
// the same points side by side; the ratio is printed as a counter.
#include <benchmark/benchmark.h>
#include <stdlib.h>
#include <unistd.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QTest>
#include <QTimer>
#include <QtCharts/QChart>
#include <QtCharts/QChartView>
#include <QtCharts/QLineSeries>
#include <QtCharts/QScatterSeries>
#include <algorithm>
#include <chrono>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>

#include "core/settings/SettingsStore.h"
#include "platform/sound/AudioOutput.h"
#include "platform/speech/CDirectSS.h"
#include "platform/speech/CaptureSpeechEngine.h"
#include "ui/app/CChildFrame.h"
#include "ui/app/CGraphCalcApp.h"
#include "ui/app/CMainFrame.h"
#include "ui/graph/CGraphWnd.h"
#include "ui/graph/CPlotWnd.h"
#include "ui/pages/CDataPage.h"

namespace sonalyx {
namespace {

using Clock = std::chrono::steady_clock;

double msSince(Clock::time_point start) {
  return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

// The program as a user starts it, with f(x) = x^2-4 and `points` points, its
// graph shown and the set sampled.
class Program {
 public:
  explicit Program(int points) {
    const auto folder =
        std::filesystem::temp_directory_path() / ("sonalyx-graph-bench-" + std::to_string(::getpid()));
    std::filesystem::create_directories(folder);
    ::setenv("SONALYX_SETTINGS", (folder / "Settings.reg").c_str(), 1);
    const SettingsStore store = SettingsStore::openDefault();
    store.SetTtsOn(true);
    store.SetAutoSpeak(true);
    store.SetExpr1("x^2-4");
    store.SetFxNumPts(static_cast<std::uint32_t>(points));
    m_app = std::make_unique<ui::CGraphCalcApp>();
    m_app->InitInstance();
    QApplication::setActiveWindow(m_app->mainFrame());
    QTest::qWaitForWindowExposed(m_app->mainFrame());
    press(Qt::Key_F3);
    evaluate();
  }
  ~Program() { m_app->ExitInstance(); }

  ui::CChildFrame* child() const { return m_app->mainFrame()->child(); }
  ui::CGraphWnd* graph() const { return child()->graph()->graph(); }
  ui::CDataPage* page() const { return child()->dataPage(DataSet::Data1); }

  void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const {
    QWidget* target = QApplication::focusWidget();
    QTest::keyClick(target ? target : m_app->mainFrame(), key, modifiers);
  }
  // F4, until the set is in and the graph drawn from it.
  void evaluate() const {
    press(Qt::Key_F4);
    while (page()->busy()) QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
    graph()->repaint();
  }

 private:
  std::unique_ptr<ui::CGraphCalcApp> m_app;
};

const CaptureSpeechEngine* voice() {
  return dynamic_cast<const CaptureSpeechEngine*>(CDirectSS::instance().engine());
}

// Waits, answering events, until the mixer has started a new source on the graph's
// channel: the first sound of what a key played.
bool waitForGraphSound(std::size_t eventsBefore, double timeoutMs = 2000) {
  const auto start = Clock::now();
  while (msSince(start) < timeoutMs) {
    const auto events = AudioOutput::instance().events();
    for (std::size_t i = eventsBefore; i < events.size(); ++i)
      if (events[i].channel == AudioChannel::Graph) return true;
    QCoreApplication::processEvents(QEventLoop::AllEvents, 1);
  }
  return false;
}

// F5: from the key to the sweep's first buffer mixed. The mixer runs on the
// device's pace, so this holds the wait for its next buffer (half a buffer on
// average); the device's own buffer comes on top.
void BM_F5KeyToFirstSound(benchmark::State& state) {
  Program program(501);
  for (auto _ : state) {
    const std::size_t before = AudioOutput::instance().events().size();
    const auto start = Clock::now();
    program.press(Qt::Key_F5);
    if (!waitForGraphSound(before)) state.SkipWithError("no sound");
    state.SetIterationTime(msSince(start) / 1000.0);
    program.press(Qt::Key_Escape);
  }
  state.counters["buffer_ms"] =
      static_cast<double>(AudioOutput::instance().bufferFrames()) * 1000.0 / 44100.0;
}
BENCHMARK(BM_F5KeyToFirstSound)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(30);

// Alt+Right: from the key to its tone's first buffer mixed, and to its coordinates
// handed to the voice (which starts them when the 175 ms tone has been heard).
void BM_AltRightToToneAndWords(benchmark::State& state) {
  Program program(501);
  program.press(Qt::Key_Home, Qt::AltModifier);
  program.press(Qt::Key_0, Qt::AltModifier);  // onto the curve heard, x = -2
  double wordsMs = 0.0;
  int steps = 0;
  for (auto _ : state) {
    const std::size_t before = AudioOutput::instance().events().size();
    const std::size_t said = voice()->utterances().size();
    const auto start = Clock::now();
    program.press(steps % 2 == 0 ? Qt::Key_Right : Qt::Key_Left, Qt::AltModifier);
    wordsMs += voice()->utterances().size() > said ? msSince(start) : 1e9;
    if (!waitForGraphSound(before)) state.SkipWithError("no tone");
    state.SetIterationTime(msSince(start) / 1000.0);
    ++steps;
  }
  state.counters["words_handed_ms"] = wordsMs / steps;
  state.counters["words_start_after_tone_ms"] = 175;
}
BENCHMARK(BM_AltRightToToneAndWords)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(30);

// F4 with 501 points: sampled away from the window, tabled, and the graph painted.
void BM_F4ToDrawnGraph(benchmark::State& state) {
  Program program(501);
  for (auto _ : state) program.evaluate();
}
BENCHMARK(BM_F4ToDrawnGraph)->Unit(benchmark::kMillisecond)->Iterations(20);

// A line and points of `points` points in a Qt Charts view of the same size: the
// chart a Qt program would otherwise show.
std::unique_ptr<QChartView> chartOf(int points, QSize size) {
  auto* line = new QLineSeries();
  auto* dots = new QScatterSeries();
  dots->setMarkerSize(6);
  QList<QPointF> xy;
  xy.reserve(points);
  for (int i = 0; i < points; ++i) {
    const double x = -10.0 + 20.0 * i / (points - 1);
    xy.append({x, x * x - 4});
  }
  line->replace(xy);
  dots->replace(xy);
  auto* chart = new QChart();
  chart->addSeries(line);
  chart->addSeries(dots);
  chart->createDefaultAxes();
  chart->legend()->hide();
  auto view = std::make_unique<QChartView>(chart);
  view->resize(size);
  view->show();
  return view;
}

// A paint of the graph from its cache (as while a sound plays and words are said),
// beside a repaint of the same 501 points in Qt Charts.
void BM_GraphPaintFromCache(benchmark::State& state) {
  Program program(501);
  ui::CGraphWnd* graph = program.graph();
  graph->repaint();
  for (auto _ : state) graph->repaint();
  // Both rendered into a pixmap (grab), so that neither depends on a screen: the
  // graph from its cache, the chart as it draws itself every time.
  constexpr int kPaints = 20;
  const auto perPaint = [&](QWidget* widget) {
    widget->grab();
    QElapsedTimer timer;
    timer.start();
    for (int i = 0; i < kPaints; ++i) widget->grab();
    return static_cast<double>(timer.nsecsElapsed()) / 1e6 / kPaints;
  };
  auto chart = chartOf(501, graph->size());
  const double ours = perPaint(graph);
  const double theirs = perPaint(chart.get());
  state.counters["graph_grab_ms"] = ours;
  state.counters["qtcharts_grab_ms"] = theirs;
  state.counters["qtcharts_over_graph"] = theirs / ours;
}
BENCHMARK(BM_GraphPaintFromCache)->Unit(benchmark::kMillisecond);

// 100,001 points: from F4 to the graph drawn, with the longest time the window did
// not answer (a timer that asks every millisecond), beside Qt Charts drawing the
// same points once.
void BM_HundredThousandPoints(benchmark::State& state) {
  Program program(501);
  SettingsStore::openDefault().SetFxNumPts(100001);
  double longestFreezeMs = 0.0;
  for (auto _ : state) {
    QElapsedTimer sinceLast;
    sinceLast.start();
    double longest = 0.0;
    QTimer ticker;
    ticker.setInterval(1);
    QObject::connect(&ticker, &QTimer::timeout, [&] {
      longest = std::max(longest, static_cast<double>(sinceLast.nsecsElapsed()) / 1e6);
      sinceLast.restart();
    });
    ticker.start();
    program.press(Qt::Key_F4);
    while (program.page()->busy()) QCoreApplication::processEvents(QEventLoop::AllEvents, 1);
    // The table and the graph follow at the next paints.
    QCoreApplication::processEvents();
    program.graph()->repaint();
    QCoreApplication::processEvents();
    longest = std::max(longest, static_cast<double>(sinceLast.nsecsElapsed()) / 1e6);
    ticker.stop();
    longestFreezeMs = std::max(longestFreezeMs, longest);
  }
  state.counters["longest_freeze_ms"] = longestFreezeMs;
  // Drawing all 100,001 points anew: the graph's picture against Qt Charts'.
  auto chart = chartOf(100001, program.graph()->size());
  QElapsedTimer timer;
  timer.start();
  chart->grab();
  const double theirs = static_cast<double>(timer.nsecsElapsed()) / 1e6;
  timer.restart();
  program.graph()->redraw();
  program.graph()->grab();
  const double ours = static_cast<double>(timer.nsecsElapsed()) / 1e6;
  state.counters["graph_redraw_ms"] = ours;
  state.counters["qtcharts_draw_ms"] = theirs;
  state.counters["qtcharts_over_graph"] = theirs / ours;
}
BENCHMARK(BM_HundredThousandPoints)->Unit(benchmark::kMillisecond)->Iterations(3);

}  // namespace
}  // namespace sonalyx

namespace {

std::filesystem::path g_scratch;

// Registered before the sound output exists, so it runs after the output has
// written its recording at exit.
void removeScratch() {
  std::error_code ignored;
  std::filesystem::remove_all(g_scratch, ignored);
}

}  // namespace

int main(int argc, char** argv) {
  g_scratch = std::filesystem::temp_directory_path() / ("sonalyx-graph-bench-" + std::to_string(::getpid()));
  std::filesystem::create_directories(g_scratch);
  std::atexit(removeScratch);
  ::setenv("QT_QPA_PLATFORM", "offscreen", 1);
  ::setenv("SONALYX_SPEECH", "capture", 1);
  ::setenv("SONALYX_AUDIO", ("capture:" + (g_scratch / "sound.wav").string()).c_str(), 1);
  QApplication application(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  return 0;
}
