#include <benchmark/benchmark.h>
#include <stdlib.h>
#include <unistd.h>

#include <Eigen/LU>
#include <QAbstractTextDocumentLayout>
#include <QApplication>
#include <QImage>
#include <QPainter>
#include <QScrollBar>
#include <QShortcut>
#include <QTest>
#include <QTextDocument>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <random>
#include <stdexcept>
#include <string>

#include "core/settings/SettingsStore.h"
#include "platform/speech/CDirectSS.h"
#include "platform/speech/CaptureSpeechEngine.h"
#include "ui/app/CChildFrame.h"
#include "ui/app/CGraphCalcApp.h"
#include "ui/app/CMainFrame.h"
#include "ui/app/Voice.h"
#include "ui/controls/CTTSEdit.h"
#include "ui/pages/matrix/CMatrixPage.h"
#include "ui/pages/matrix/CMatrixWnd.h"
#include "ui/sheet/CCalcSheet.h"

// The calculation pages in the real program, off-screen, with the capture voice:
// how long a key takes to its spoken name and Enter on a 100 x 100 matrix to its
// spoken result (both handed to the voice within the key's own event), and how
// long the typeset matrix takes to paint. Each runs beside the yardstick a user
// could pick instead, in the same iterations, and reports the ratio.

namespace sonalyx {
namespace {

using Clock = std::chrono::steady_clock;

double msSince(Clock::time_point start) {
  return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

std::size_t utterances() {
  const auto* capture = dynamic_cast<const CaptureSpeechEngine*>(CDirectSS::instance().engine());
  return capture ? capture->utterances().size() : 0;
}

// The program, started once for every benchmark (by main, inside the
// application object), in a settings file of its own with self-voicing on.
class Program {
 public:
  static Program*& current() {
    static Program* program = nullptr;
    return program;
  }
  static Program& instance() { return *current(); }
  ui::CCalcSheet& sheet() const { return *m_app->mainFrame()->child()->sheet(); }

  Program()
      : m_folder(std::filesystem::temp_directory_path() / ("sonalyx-pages-" + std::to_string(::getpid()))) {
    std::filesystem::create_directories(m_folder);
    ::setenv("SONALYX_SETTINGS", (m_folder / "Settings.reg").c_str(), 1);
    SettingsStore::openDefault().SetTtsOn(true);
    m_app = std::make_unique<ui::CGraphCalcApp>();
    if (!m_app->InitInstance()) throw std::runtime_error("the program did not start");
    QApplication::setActiveWindow(m_app->mainFrame());
    if (!QTest::qWaitForWindowExposed(m_app->mainFrame()))
      throw std::runtime_error("the window never showed");
  }
  ~Program() {
    m_app->ExitInstance();
    std::error_code ignored;
    std::filesystem::remove_all(m_folder, ignored);
  }
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;

 private:
  std::filesystem::path m_folder;
  std::unique_ptr<ui::CGraphCalcApp> m_app;
};

// A digit typed on the Calculator tab, from the key press to its name handed to
// the voice (the page moves the focus to the key, the accelerator presses it, the
// display changes, the earcon and the name follow). The yardstick: a bare Qt
// shortcut that hands the same name to the same voice, nothing else.
void BM_CalculatorKeyToSpokenName(benchmark::State& state) {
  Program& program = Program::instance();
  program.sheet().SetActivePage(ui::CCalcSheet::kCalculator);
  QWidget bare;
  QShortcut shortcut(QKeySequence(Qt::Key_5), &bare);
  QObject::connect(&shortcut, &QShortcut::activated, [] { ui::voice::Speak(SpeechKind::Echo, "5"); });
  double pageMs = 0.0;
  double bareMs = 0.0;
  int presses = 0;
  for (auto _ : state) {
    QApplication::setActiveWindow(program.sheet().window());
    QWidget* focus = QApplication::focusWidget();
    // Alternate a digit and Delete (CE), so that the display never fills.
    const std::size_t before = utterances();
    const auto start = Clock::now();
    QTest::keyClick(focus, presses % 2 == 0 ? Qt::Key_5 : Qt::Key_Delete);
    const double took = msSince(start);
    if (utterances() == before) state.SkipWithError("the key was not spoken");
    state.SetIterationTime(took / 1000.0);
    pageMs += took;

    bare.show();
    QApplication::setActiveWindow(&bare);
    bare.setFocus();
    const std::size_t bareBefore = utterances();
    const auto bareStart = Clock::now();
    QTest::keyClick(&bare, Qt::Key_5);
    bareMs += msSince(bareStart);
    if (utterances() == bareBefore) state.SkipWithError("the yardstick was not spoken");
    bare.hide();
    ++presses;
  }
  state.counters["page_ms"] = pageMs / presses;
  state.counters["bare_qt_ms"] = bareMs / presses;
  state.counters["ratio"] = bareMs > 0 ? pageMs / bareMs : 0.0;
}
BENCHMARK(BM_CalculatorKeyToSpokenName)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(200);

std::string randomMatrixText(int n, std::mt19937& generator) {
  std::uniform_real_distribution<double> element(-10.0, 10.0);
  std::string text = "[";
  char number[32];
  for (int i = 0; i < n; ++i) {
    if (i > 0) text += ';';
    for (int j = 0; j < n; ++j) {
      if (j > 0) text += ',';
      std::snprintf(number, sizeof number, "%.10g", element(generator));
      text += number;
    }
  }
  return text + "]";
}

// The yardstick for Enter: Eigen used directly on the same text, read with
// strtod, inverted by partial-pivot LU and written back with "%.10g", as a
// program without an expression language would do it.
std::string eigenInverseText(const std::string& text, int n) {
  Eigen::MatrixXd matrix(n, n);
  const char* at = text.c_str() + text.find('[') + 1;
  for (int i = 0; i < n; ++i) {
    for (int j = 0; j < n; ++j) {
      char* end = nullptr;
      matrix(i, j) = std::strtod(at, &end);
      at = end + 1;  // past "," or ";"
    }
  }
  const Eigen::MatrixXd inverse = matrix.partialPivLu().inverse();
  std::string out = "[";
  char number[32];
  for (int i = 0; i < n; ++i) {
    if (i > 0) out += ';';
    for (int j = 0; j < n; ++j) {
      if (j > 0) out += ',';
      std::snprintf(number, sizeof number, "%.10g", inverse(i, j));
      out += number;
    }
  }
  return out + "]";
}

ui::CMatrixPage& matrixPage() {
  Program& program = Program::instance();
  QApplication::setActiveWindow(program.sheet().window());
  program.sheet().SetActivePage(ui::CCalcSheet::kMatrix);
  return dynamic_cast<ui::CMatrixPage&>(*program.sheet().page(ui::CCalcSheet::kMatrix));
}

// Enter on "inv([100 x 100])" to the result handed to the voice: evaluated,
// written into the edit, typeset for the window and said row by row.
void BM_MatrixEnter100ToSpokenResult(benchmark::State& state) {
  ui::CMatrixPage& page = matrixPage();
  std::mt19937 generator(7);
  const std::string matrix = randomMatrixText(100, generator);
  double pageMs = 0.0;
  double eigenMs = 0.0;
  int runs = 0;
  for (auto _ : state) {
    page.expressionEdit()->setFocus(Qt::OtherFocusReason);
    page.expressionEdit()->setText(QString::fromStdString("inv(" + matrix + ")"));
    const std::size_t before = utterances();
    const auto start = Clock::now();
    QTest::keyClick(page.expressionEdit(), Qt::Key_Return);
    const double took = msSince(start);
    if (utterances() == before || page.session().lastAnswer().empty())
      state.SkipWithError("no spoken result");
    state.SetIterationTime(took / 1000.0);
    pageMs += took;

    const auto eigenStart = Clock::now();
    const std::string inverse = eigenInverseText(matrix, 100);
    eigenMs += msSince(eigenStart);
    benchmark::DoNotOptimize(inverse.data());
    ++runs;
  }
  state.counters["page_ms"] = pageMs / runs;
  state.counters["eigen_ms"] = eigenMs / runs;
  state.counters["ratio"] = eigenMs > 0 ? pageMs / eigenMs : 0.0;
}
BENCHMARK(BM_MatrixEnter100ToSpokenResult)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(10);

// One paint of the window showing that 100 x 100 result, scrolled to its middle.
// The yardstick: the same numbers as an HTML table laid out once by
// QTextDocument, painting the same region.
void BM_MatrixPaint100(benchmark::State& state) {
  ui::CMatrixPage& page = matrixPage();
  std::mt19937 generator(11);
  page.expressionEdit()->setFocus(Qt::OtherFocusReason);
  page.expressionEdit()->setText(QString::fromStdString(randomMatrixText(100, generator)));
  QTest::keyClick(page.expressionEdit(), Qt::Key_Return);
  if (page.matrixWindow()->matrixLayout().cells.size() != 10000) {
    state.SkipWithError("the matrix was not shown");
    return;
  }
  ui::CMatrixWnd& window = *page.matrixWindow();
  window.horizontalScrollBar()->setValue(window.horizontalScrollBar()->maximum() / 2);
  window.verticalScrollBar()->setValue(window.verticalScrollBar()->maximum() / 2);
  QWidget& viewport = *window.viewport();

  QString html = QStringLiteral("<table>");
  int row = -1;
  for (const LayoutCell& cell : window.matrixLayout().cells) {
    if (cell.row != row) {
      html += row < 0 ? QStringLiteral("<tr>") : QStringLiteral("</tr><tr>");
      row = cell.row;
    }
    html += QStringLiteral("<td align=right>") + QString::fromStdString(cell.text) + QStringLiteral("</td>");
  }
  html += QStringLiteral("</tr></table>");
  QTextDocument document;
  document.setDefaultFont(window.font());
  document.setHtml(html);
  document.documentLayout()->documentSize();  // laid out once, before timing
  QImage canvas(viewport.size(), QImage::Format_RGB32);
  const QRectF region(QPointF(document.size().width() / 2, document.size().height() / 2),
                      QSizeF(viewport.size()));

  double pageMs = 0.0;
  double documentMs = 0.0;
  int runs = 0;
  for (auto _ : state) {
    const auto start = Clock::now();
    viewport.repaint();
    const double took = msSince(start);
    state.SetIterationTime(took / 1000.0);
    pageMs += took;

    const auto documentStart = Clock::now();
    canvas.fill(Qt::white);
    QPainter painter(&canvas);
    painter.translate(-region.topLeft());
    document.drawContents(&painter, region);
    painter.end();
    documentMs += msSince(documentStart);
    ++runs;
  }
  state.counters["page_ms"] = pageMs / runs;
  state.counters["qtextdocument_ms"] = documentMs / runs;
  state.counters["ratio"] = documentMs > 0 ? pageMs / documentMs : 0.0;
  state.counters["cells"] = static_cast<double>(window.matrixLayout().cells.size());
}
BENCHMARK(BM_MatrixPaint100)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(100);

}  // namespace
}  // namespace sonalyx

int main(int argc, char** argv) {
  // Off-screen, with the capture voice and a silent sound card, so that what is
  // measured is the program's own work.
  if (!::getenv("QT_QPA_PLATFORM")) ::setenv("QT_QPA_PLATFORM", "offscreen", 1);
  ::setenv("SONALYX_SPEECH", "capture", 1);
  ::setenv("SONALYX_AUDIO", "null", 1);
  ::unsetenv("SONALYX_SPEECH_LOG");
  QApplication application(argc, argv);
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
  sonalyx::Program program;
  sonalyx::Program::current() = &program;
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  return 0;
}
