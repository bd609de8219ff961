#include "core/engines/MatrixEngine.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <string>

#include "core/engines/MatrixExpression.h"

namespace sonalyx {
namespace {

TEST(MatrixEngine, EvaluatesTheNotation) {
  struct Case {
    const char* expression;
    const char* result;
  };
  const Case cases[] = {
      {"[1,2;3,4]", "[1,2;3,4]"},
      {" [ 1 , 2 ; 3 , 4 ] ", "[1,2;3,4]"},
      {"[sin(0), 2^3; -1, pi]", "[0,8;-1,3.141592654]"},
      {"[1/3]", "[0.3333333333]"},
      {"[1e-7,-0]", "[1e-007,0]"},
      {"[1,2;3,4]+[10,20;30,40]", "[11,22;33,44]"},
      {"[1,2;3,4]-1", "[0,1;2,3]"},
      {"10-[1,2]", "[9,8]"},
      {"[1,2;3,4]*[5;6]", "[17;39]"},
      {"[1,2]*[3;4]", "[11]"},
      {"2*[1,2]*3", "[6,12]"},
      {"[2,4]/2", "[1,2]"},
      {"[1,2;3,4]/[1,2;3,4]", "[1,0;0,1]"},
      // Rounding noise of the size of 1e-16 reads as the zero it stands for.
      {"[3,1,2;1,5,3;2,3,7]*inv([3,1,2;1,5,3;2,3,7])", "[1,0,0;0,1,0;0,0,1]"},
      {"[1.1,2.3;4.7,0.3]^-1*[1.1,2.3;4.7,0.3]", "[1,0;0,1]"},
      {"1/[4,7;2,6]", "[0.6,-0.7;-0.2,0.4]"},
      {"[1,1;0,1]^3", "[1,3;0,1]"},
      {"[1,1;1,0]^30", "[1346269,832040;832040,514229]"},
      {"[2,0;0,4]^-1", "[0.5,0;0,0.25]"},
      {"[5,6;7,8]^0", "[1,0;0,1]"},
      {"[1,2;3,4]^2^1", "[7,10;15,22]"},
      {"-[1,2;3,4]^2", "[-7,-10;-15,-22]"},
      {"(-[1,2;3,4])^2", "[7,10;15,22]"},
      {"[1,2;3,4]-[1,1;1,1]*2", "[-1,0;1,2]"},
      {"([1,2]+[3,4])*2", "[8,12]"},
      {"[1,2,3]'", "[1;2;3]"},
      {"trans([1,2;3,4])", "[1,3;2,4]"},
      {"det([1,2;3,4])", "-2"},
      {"inv([4,7;2,6])", "[0.6,-0.7;-0.2,0.4]"},
      {"trace([1,2;3,4])", "5"},
      {"rank([1,2;2,4])", "1"},
      {"rank([1,2,3;4,5,6])", "2"},
      {"rank([0,0;0,0])", "0"},
      {"eye(2)", "[1,0;0,1]"},
      {"eye(1+1)*3", "[3,0;0,3]"},
      {"[eye(2),[5;6]]", "[1,0,5;0,1,6]"},
      {"[[1,2];[3,4]]", "[1,2;3,4]"},
      {"[det([1,2;3,4]),1]", "[-2,1]"},
      {"sqrt(det([4,0;0,4]))+1", "5"},
      {"-2^2", "-4"},
      {"[123456789012]", "[1.23456789e+011]"},
  };
  for (const auto& c : cases) {
    MatrixEngine engine;
    std::string result = "unchanged";
    ASSERT_TRUE(engine.Calculate(c.expression, result)) << c.expression << ": " << engine.lastError();
    EXPECT_EQ(result, c.result) << c.expression;
    EXPECT_EQ(engine.lastError(), "") << c.expression;
  }
}

TEST(MatrixEngine, RefusesWithAReasonAndKeepsTheLastResult) {
  struct Case {
    std::string expression;
    const char* reason;
  };
  const Case cases[] = {
      {"[1,2;3,4]+[1,2,3;4,5,6;7,8,9]", "size mismatch: 2x2 + 3x3"},
      {"[1,2]*[3,4]", "size mismatch: 1x2 * 1x2"},
      {"[1,2,3]/[1,2;3,4]", "size mismatch: 1x3 / 2x2"},
      {"[1,2;3]", "size mismatch: rows of 2 and 1 columns"},
      {"[eye(2),1]", "size mismatch: pieces of 2 and 1 rows side by side"},
      {"inv([1,2;2,4])", "singular matrix"},
      {"inv([1,2,3;4,5,6;7,8,9])", "singular matrix"},
      {"[0.1,0.2;0.3,0.6]^-1", "singular matrix"},
      {"[1,2]/[0,0;0,0]", "singular matrix"},
      {"det([1,2,3])", "det needs a square matrix, not 1x3"},
      {"[1,2]^2", "a power needs a square matrix, not 1x2"},
      {"[1,2;3,4]^0.5", "a matrix power needs a whole exponent"},
      {"2^[1,2]", "the exponent must be a number, not 1x2"},
      {"[1,2]/0", "division by zero"},
      {"[1e308]*10", "the result is not a finite number"},
      {"[sqrt(-1)]", "the result is not a finite number"},
      {"ln(0)", "the result is not a finite number"},
      {"eye(0)", "eye needs a whole number from 1 to 1000"},
      {"sin([1,2])", "sin needs a number, not 1x2"},
      {"foo(2)", "unknown function: foo"},
      {"A*2", "unknown name: A"},
      {"", "empty expression"},
      {"[]", "an empty matrix"},
      {"[1,,2]", "a matrix has an empty element"},
      {"[1,2", "a matrix is missing its closing ']'"},
      {"[1,2)]", "unexpected ')' at position 5"},
      {"([1,2]", "the expression ends too early"},
      {"[1,2]]", "unexpected ']' at position 6"},
      {"2 [1]", "unexpected '[' at position 3"},
      {"[1;(2,3)]", "unexpected ',' at position 6"},
      {std::string(1000, '('), "too deeply nested"},
  };
  for (const auto& c : cases) {
    MatrixEngine engine;
    std::string result;
    ASSERT_TRUE(engine.Calculate("[7,8]", result));
    EXPECT_FALSE(engine.Calculate(c.expression, result)) << c.expression;
    EXPECT_EQ(engine.lastError(), c.reason) << c.expression;
    EXPECT_EQ(result, "[7,8]") << c.expression;
    ASSERT_TRUE(engine.lastResult().has_value());
    EXPECT_EQ(engine.lastResult()->matrix.cols(), 2) << c.expression;
  }
}

TEST(MatrixEngine, JudgesSingularityRelativeToScale) {
  // Scale does not make a matrix singular; dependent rows do, however they round.
  struct Case {
    const char* matrix;
    bool singular;
  };
  const Case cases[] = {
      {"[1e-20,0;0,2e-20]", false},
      {"[1,2;2,4.000001]", false},
      {"[1,2,3;4,5,6;7,8,10]", false},
      {"[1,2,3;4,5,6;7,8,9]", true},
      {"[0.1,0.2,0.3;0.4,0.5,0.6;0.7,0.8,0.9]", true},
      {"[1e-20,2e-20;3e-20,6e-20]", true},
      {"[0,0;0,0]", true},
  };
  for (const auto& c : cases) {
    MatrixEngine engine;
    std::string inverse;
    EXPECT_EQ(!engine.Calculate(std::string("inv(") + c.matrix + ")", inverse), c.singular) << c.matrix;
    std::string det;
    ASSERT_TRUE(engine.Calculate(std::string("det(") + c.matrix + ")", det)) << c.matrix;
    EXPECT_EQ(det == "0", c.singular) << c.matrix << ": det " << det;
  }
}

// Every digit 7 pixels wide, lines 16 high.
TextMeasurer fixedWidthFont() {
  return {[](const std::string& text) { return 7 * static_cast<int>(text.size()); }, 16};
}

TEST(MatrixEngine, RendersTheLastResultTypeset) {
  const TextMeasurer font = fixedWidthFont();
  const char* const matrices[] = {"[1.5,-20;300,0.25;-4,1e-9]", "[2]", "[1,22,333]", "[1;-2.75;100]"};
  for (const char* expression : matrices) {
    MatrixEngine engine;
    std::string text;
    ASSERT_TRUE(engine.Calculate(expression, text));
    const MatrixLayout layout = engine.Render(font);
    const auto& m = engine.lastResult()->matrix;
    ASSERT_EQ(layout.rows, m.rows());
    ASSERT_EQ(layout.columns, m.cols());
    ASSERT_EQ(layout.cells.size(), static_cast<std::size_t>(m.size()));
    ASSERT_TRUE(layout.leftBracket && layout.rightBracket) << expression;
    const LayoutBracket& left = *layout.leftBracket;
    const LayoutBracket& right = *layout.rightBracket;
    EXPECT_EQ(left.x, 20);
    EXPECT_EQ(left.top, 30);
    EXPECT_EQ(right.top, left.top);
    EXPECT_EQ(right.height, left.height);
    EXPECT_EQ(layout.width, right.x + 1 - 20) << expression;
    EXPECT_EQ(layout.height, left.height) << expression;
    for (const LayoutCell& cell : layout.cells) {
      const std::string expected = formatMatrixNumber(m(cell.row, cell.column));
      EXPECT_EQ(cell.text, expected);
      EXPECT_EQ(cell.width, 7 * static_cast<int>(cell.text.size()));
      // Inside the brackets and clear of their arms.
      EXPECT_GT(cell.x, left.x + left.armLength) << cell.text;
      EXPECT_LT(cell.x + cell.width, right.x - right.armLength) << cell.text;
      EXPECT_GE(cell.y, left.top) << cell.text;
      EXPECT_LE(cell.y + font.lineHeight, left.top + left.height) << cell.text;
      for (const LayoutCell& other : layout.cells) {
        if (other.column == cell.column && other.row != cell.row) {
          // Decimal points (or where they would be) share one x within a column.
          const auto point = [](const LayoutCell& c) {
            return c.x + 7 * static_cast<int>(c.text.find_first_of(".e") == std::string::npos
                                                  ? c.text.size()
                                                  : c.text.find_first_of(".e"));
          };
          EXPECT_EQ(point(cell), point(other)) << cell.text << " above or below " << other.text;
          EXPECT_GE(std::abs(cell.y - other.y), font.lineHeight) << cell.text << " and " << other.text;
        }
        if (other.row == cell.row && other.column == cell.column + 1) {
          EXPECT_GE(other.x - (cell.x + cell.width), 7) << cell.text << " beside " << other.text;
        }
      }
    }
  }
}

TEST(MatrixEngine, RendersANumberBareAndNothingBeforeAResult) {
  const TextMeasurer font = fixedWidthFont();
  MatrixEngine engine;
  MatrixLayout layout = engine.Render(font);
  EXPECT_TRUE(layout.cells.empty());
  EXPECT_FALSE(layout.leftBracket.has_value());
  EXPECT_EQ(layout.width, 0);
  EXPECT_EQ(layout.height, 0);

  std::string text;
  ASSERT_TRUE(engine.Calculate("det([1,2;3,4])", text));
  layout = engine.Render(font, 5, 6);
  ASSERT_EQ(layout.cells.size(), 1u);
  EXPECT_EQ(layout.cells[0].text, "-2");
  EXPECT_EQ(layout.cells[0].x, 5);
  EXPECT_EQ(layout.cells[0].y, 6);
  EXPECT_FALSE(layout.leftBracket.has_value());
  EXPECT_FALSE(layout.rightBracket.has_value());
  EXPECT_EQ(layout.width, 14);
  EXPECT_EQ(layout.height, 16);
}

}  // namespace
}  // namespace sonalyx
