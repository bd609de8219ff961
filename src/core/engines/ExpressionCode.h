#pragma once

#include <cstdint>
#include <vector>

#include "core/engines/ExpressionOperation.h"

namespace sonalyx {

// An expression in x as flat code: each instruction applies one operation to x, a
// register or a constant and writes a register; constants are folded while
// parsing, so an expression without x is nothing but its value. Registers are
// columns of values, one per x of a block.
struct ExpressionCode {
  struct Operand {
    enum class Kind : std::uint8_t { Constant, X, Register };
    Kind kind = Kind::Constant;
    std::uint16_t index = 0;  // the register
    double value = 0.0;       // the constant

    static Operand constant(double v) { return {Kind::Constant, 0, v}; }
    static Operand x() { return {Kind::X, 0, 0.0}; }
    static Operand reg(std::uint16_t r) { return {Kind::Register, r, 0.0}; }
    bool isConstant() const { return kind == Kind::Constant; }
  };

  struct Instruction {
    ExpressionOperation op;
    Operand a;
    Operand b;                 // unused by one-argument operations
    int exponent = 0;          // of WholePower
    std::uint16_t target = 0;  // the register written
  };

  std::vector<Instruction> instructions;
  Operand result = Operand::constant(0.0);
  int registers = 0;
};

}  // namespace sonalyx
