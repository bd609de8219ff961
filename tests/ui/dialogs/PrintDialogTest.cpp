#include <gtest/gtest.h>

#include <QImage>
#include <QLocale>
#include <QProcess>
#include <QPushButton>
#include <cmath>
#include <string>

#include "core/graph/GraphMapping.h"
#include "support/CurveData.h"
#include "support/TempFolder.h"
#include "ui/app/CMainFrame.h"
#include "ui/dialogs/CSLXPrintDlg.h"
#include "ui/pages/SettingsPageSupport.h"

namespace sonalyx::ui {
namespace {

using test::control;
using test::typeOver;

struct PrintProgram {
  test::ProgramUnderTest program{[](const SettingsStore& store) {
    store.SetTtsOn(true);
    store.SetAutoScaleX(false);
    store.SetAutoScaleY(false);
    store.SetXMin(-10);
    store.SetXMax(10);
    store.SetYMin(-10);
    store.SetYMax(10);
  }};
  test::TempFolder folder;

  explicit PrintProgram(const test::Points& points = {{-5, 5}, {0, 0}, {5, -5}}) {
    program.app().dataSets()[0] = test::pointsAt(points);
  }
};

// The paper a PDF gets: the user's country's.
QSizeF paperPoints() {
  return QLocale::system().measurementSystem() == QLocale::ImperialUSSystem ? QSizeF(612, 792)
                                                                            : QSizeF(595.276, 841.89);
}

QImage rasterise(const QString& pdf, const QString& stem) {
  // 72 pixels per inch: one pixel per PDF point.
  QProcess::execute(QStringLiteral("pdftoppm"), {"-r", "72", "-png", "-singlefile", pdf, stem});
  return QImage(stem + QStringLiteral(".png"));
}

bool darkNear(const QImage& image, int x, int y, bool vertical) {
  for (int d = -3; d <= 3; ++d) {
    const QPoint at = vertical ? QPoint(x + d, y) : QPoint(x, y + d);
    if (image.rect().contains(at) && qGray(image.pixel(at)) < 96) return true;
  }
  return false;
}

// The page holds the paper's size, and the graph's frame sits where the print layout
// puts it: centred, a tenth of its width kept on the left for the labels.
TEST(PrintDialog, PrintsThePageToAPdfWithTheFrameWhereTheLayoutSaysAndSaysWhere) {
  PrintProgram print;
  ASSERT_TRUE(print.program.started());
  CSLXPrintDlg dialog(print.program.app(), print.program.mainFrame());
  dialog.show();
  const QString pdf = QString::fromStdString((print.folder / "homework.pdf").string());
  const struct {
    const char* width;
    const char* height;
    bool landscape;
  } rows[] = {{"4", "5", false}, {"6", "8", false}, {"9", "5", true}};
  for (const auto& row : rows) {
    test::Heard heard;
    typeOver(control<QLineEdit>(&dialog, "File name"), pdf);
    typeOver(control<QLineEdit>(&dialog, "Width"), row.width);
    typeOver(control<QLineEdit>(&dialog, "Height"), row.height);
    test::press(control<QAbstractButton>(&dialog, row.landscape ? "Landscape" : "Portrait"), Qt::Key_Space);
    test::press(control<QAbstractButton>(&dialog, "Print"), Qt::Key_Space);
    ASSERT_EQ(dialog.refusalText(), QString()) << row.width;
    EXPECT_EQ(dialog.outcome(), QStringLiteral("The graph is saved in %1.").arg(pdf));
    const auto said = heard.take();
    ASSERT_FALSE(said.empty());
    EXPECT_EQ(said.back(), dialog.outcome().toStdString());

    const QImage page = rasterise(pdf, QString::fromStdString((print.folder / "page").string()));
    ASSERT_FALSE(page.isNull());
    const QSizeF paper = row.landscape ? paperPoints().transposed() : paperPoints();
    EXPECT_NEAR(page.width(), paper.width(), 1.0) << row.width;
    EXPECT_NEAR(page.height(), paper.height(), 1.0) << row.width;
    const PlotRect frame = printLayout(page.width(), page.height(), std::stod(row.width),
                                       std::stod(row.height), page.width() / 72.0, page.height() / 72.0);
    const int left = frame.left, top = frame.top, right = frame.left + frame.width - 1,
              bottom = frame.top + frame.height - 1, midX = left + frame.width / 4,
              midY = top + frame.height / 4;
    EXPECT_TRUE(darkNear(page, left, midY, true)) << row.width << " left edge";
    EXPECT_TRUE(darkNear(page, right, midY, true)) << row.width << " right edge";
    EXPECT_TRUE(darkNear(page, midX, top, false)) << row.width << " top edge";
    EXPECT_TRUE(darkNear(page, midX, bottom, false)) << row.width << " bottom edge";
    // Paper outside the frame stays white above and to the right of it.
    EXPECT_GT(qGray(page.pixel(midX, top - 8)), 240) << row.width;
    EXPECT_GT(qGray(page.pixel(right + 8, midY)), 240) << row.width;
    dialog.show();
  }
}

// What Print refuses keeps the dialog, the focus on the field and says why.
TEST(PrintDialog, RefusesASizeOffThePageAndAFileWithoutAName) {
  PrintProgram print({{0, 0}, {1, 50000}});
  ASSERT_TRUE(print.program.started());
  print.program.settings().SetYMax(50000);
  CSLXPrintDlg dialog(print.program.app(), print.program.mainFrame());
  dialog.show();
  EXPECT_TRUE(dialog.previewText().contains(QStringLiteral("y-axis times 10000")))
      << dialog.previewText().toStdString();
  // Two decimals, rounded down so that the widest allowed still fits.
  const QString pageWidth = paperPoints().width() == 612 ? QStringLiteral("8.5") : QStringLiteral("8.26");
  const struct {
    const char* field;
    const char* typed;
    QString refusal;
  } rows[] = {
      {"Width", "20",
       QStringLiteral("The width must be from 1 to %1 inches, the page's width.").arg(pageWidth)},
      {"Height", "0", QStringLiteral("The height must be from 1 to ")},
      {"File name", "", QStringLiteral("Type the name of the PDF file to save the graph in.")},
  };
  for (const auto& row : rows) {
    typeOver(control<QLineEdit>(&dialog, "Width"), "6");
    typeOver(control<QLineEdit>(&dialog, "Height"), "8");
    typeOver(control<QLineEdit>(&dialog, "File name"),
             QString::fromStdString((print.folder / "x.pdf").string()));
    auto* field = control<QLineEdit>(&dialog, row.field);
    typeOver(field, row.typed);
    test::Heard heard;
    test::press(control<QAbstractButton>(&dialog, "Print"), Qt::Key_Space);
    EXPECT_TRUE(dialog.refusalText().startsWith(row.refusal)) << dialog.refusalText().toStdString();
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(QApplication::focusWidget(), field) << row.field;
    const auto said = heard.take();
    ASSERT_FALSE(said.empty());
    EXPECT_EQ(said.back(), dialog.refusalText().toStdString());
  }
  EXPECT_FALSE(std::filesystem::exists(print.folder / "x.pdf"));
}

}  // namespace
}  // namespace sonalyx::ui
