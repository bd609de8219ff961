#include <gtest/gtest.h>

#include <QClipboard>
#include <QMenu>
#include <QMimeData>
#include <QTimer>
#include <string>
#include <vector>

#include "ui/UiTestSupport.h"
#include "ui/app/CAccessibilityHooks.h"
#include "ui/app/CommandIds.h"
#include "ui/controls/CTTSEdit.h"
#include "ui/controls/VoicedText.h"
#include "ui/pages/GoldenVectors.h"
#include "ui/pages/matrix/CMatrixPage.h"
#include "ui/pages/matrix/CMatrixWnd.h"
#include "ui/sheet/CCalcSheet.h"

namespace sonalyx::ui {
namespace {

using Heard = std::vector<std::string>;

std::string spoken(const std::string& text) {
  return voiced::expandSymbols(QString::fromStdString(text)).toStdString();
}

void enterLine(CTTSEdit* edit, const std::string& line) {
  edit->clear();
  QTest::keyClicks(edit, QString::fromStdString(line));
  QTest::keyClick(edit, Qt::Key_Return);
}

// Every golden session of the Matrix page typed into a fresh page: the edit after
// each Enter and arrow, what is said, and the typeset window after a success.
TEST(MatrixPage, TypesTheGoldenLinesAndSaysEachResult) {
  test::ProgramUnderTest program([](const SettingsStore& store) { store.SetTtsOn(true); });
  ASSERT_TRUE(program.started());
  test::Heard heard;
  const auto commands = test::readGolden("matrix.golden", "matrix");
  ASSERT_GE(commands.size(), 5u);
  for (const auto& command : commands) {
    CMatrixPage page(QStringLiteral("Matrix"));
    CAccessibilityHooks::markSelfVoiced(&page);
    page.show();
    QApplication::setActiveWindow(&page);
    CTTSEdit* edit = page.expressionEdit();
    edit->setFocus(Qt::OtherFocusReason);
    std::size_t out = 0;
    const auto next = [&]() -> std::string {
      return out < command.output.size() ? command.output[out++] : "";
    };
    for (const std::string& line : command.args) {
      const std::string where = "line " + std::to_string(command.line) + ": " + line;
      const bool arrow = line == "--up" || line == "--down";
      EXPECT_EQ(next(),
                arrow ? (line == "--up" ? "> [Up]" : "> [Down]") : "> " + (line.empty() ? "(empty)" : line))
          << where;
      const QString before = edit->text();
      if (arrow) {
        heard.mark();
        QTest::keyClick(edit, line == "--up" ? Qt::Key_Up : Qt::Key_Down);
      } else {
        edit->clear();
        QTest::keyClicks(edit, QString::fromStdString(line));
        heard.mark();
        QTest::keyClick(edit, Qt::Key_Return);
      }
      const std::string shown = next();
      if (shown == "(nothing happens)") {
        EXPECT_EQ(edit->text(), arrow ? before : QString::fromStdString(line)) << where;
        EXPECT_EQ(heard.take(), Heard{}) << where;
        continue;
      }
      ASSERT_EQ(shown.rfind("edit: ", 0), 0u) << where;
      std::string text = shown.substr(6);
      if (text == "(empty)") text.clear();
      EXPECT_EQ(edit->text().toStdString(), text) << where;
      const bool failed = out < command.output.size() && command.output[out].rfind("reason: ", 0) == 0;
      if (failed) ++out;
      const bool silent = out < command.output.size() && command.output[out] == "(silent)";
      if (silent) ++out;
      // An assignment that fails keeps its value in the edit and says the error alone.
      const std::string error = "Error: Invalid matrix expression.";
      const std::string said = failed && text != error ? error : "Matrix Expression:" + text;
      EXPECT_EQ(heard.take(), silent ? Heard{} : Heard{spoken(said)}) << where;
      if (!arrow && !failed) {
        EXPECT_FALSE(page.matrixWindow()->matrixLayout().cells.empty()) << where;
        EXPECT_EQ(edit->selectedText(), edit->text()) << where;
      }
    }
    EXPECT_EQ(out, command.output.size()) << "line " << command.line;
  }
}

// The manual check's session: the identity comes back, said row by row; the window
// typesets it and its context menu copies it as a picture and as text.
TEST(MatrixPage, TypesetsTheResultAndCopiesIt) {
  test::ProgramUnderTest program([](const SettingsStore& store) { store.SetTtsOn(true); });
  ASSERT_TRUE(program.started());
  auto* sheet = program.child()->sheet();
  sheet->SetActivePage(CCalcSheet::kMatrix);
  auto* page = dynamic_cast<CMatrixPage*>(sheet->page(CCalcSheet::kMatrix));
  ASSERT_NE(page, nullptr);
  page->expressionEdit()->setFocus(Qt::TabFocusReason);
  test::Heard heard;
  for (const char* line : {"A=[1,2;3,4]", "inv(A)", "ANS*A"}) enterLine(page->expressionEdit(), line);
  EXPECT_EQ(page->expressionEdit()->text(), "[1,0;0,1]");
  EXPECT_EQ(heard.take().back(), "Matrix Expression: begin matrix 1 column 0 row 0 column 1 end matrix ");
  // A result longer than an edit holds by default stays whole, and goes on working.
  for (const char* line : {"eye(150)", "ANS*2"}) enterLine(page->expressionEdit(), line);
  EXPECT_EQ(page->expressionEdit()->text().size(),
            static_cast<qsizetype>(page->session().lastAnswer().size()));
  EXPECT_TRUE(page->expressionEdit()->text().endsWith(",2]"));
  EXPECT_EQ(page->matrixWindow()->matrixLayout().cells.size(), 150u * 150u);
  for (const char* line : {"A=[1,2;3,4]", "inv(A)", "ANS*A"}) enterLine(page->expressionEdit(), line);

  CMatrixWnd* window = page->matrixWindow();
  const MatrixLayout& layout = window->matrixLayout();
  EXPECT_EQ(layout.rows, 2);
  EXPECT_EQ(layout.columns, 2);
  const QImage picture = window->picture();
  ASSERT_FALSE(picture.isNull());
  // The left bracket's stroke runs from its top to its bottom; inside it is white.
  const LayoutBracket left = *layout.leftBracket;
  for (const int y : {left.top, left.top + left.height / 2, left.top + left.height - 1})
    EXPECT_EQ(picture.pixelColor(left.x, y), QColor(Qt::black)) << y;
  EXPECT_EQ(picture.pixelColor(left.x + left.armLength + 1, left.top + left.height / 2), QColor(Qt::white));

  // The context menu from the keyboard: the item is said as it opens; choosing it copies.
  QGuiApplication::clipboard()->clear();
  window->setFocus(Qt::TabFocusReason);
  heard.mark();
  QTimer::singleShot(50, [&heard] {
    QWidget* menu = QApplication::activePopupWidget();
    EXPECT_NE(qobject_cast<QMenu*>(menu), nullptr);
    EXPECT_EQ(heard.take(), Heard{"Copy To Clipboard"});
    if (menu) QTest::keyClick(menu, Qt::Key_Return);
  });
  QTest::keyClick(window, Qt::Key_F10, Qt::ShiftModifier);
  QTest::qWait(80);
  EXPECT_EQ(heard.take(), Heard{"Matrix copied to the clipboard."});
  const QMimeData* copied = QGuiApplication::clipboard()->mimeData();
  ASSERT_NE(copied, nullptr);
  EXPECT_EQ(copied->text(), "1\t0\n0\t1\n");
  EXPECT_TRUE(copied->hasImage());

  // Ctrl+C copies it too, from anywhere on the page, and says so.
  QGuiApplication::clipboard()->clear();
  page->expressionEdit()->setFocus(Qt::TabFocusReason);
  heard.mark();
  program.press(Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(heard.take(), Heard{"Matrix copied to the clipboard."});
  EXPECT_EQ(QGuiApplication::clipboard()->text(), "1\t0\n0\t1\n");
}

}  // namespace
}  // namespace sonalyx::ui
