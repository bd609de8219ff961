#include "core/engines/ExpressionBlocksAvx2.h"

#include "core/engines/ExpressionBlocks.h"

namespace sonalyx::expression_blocks_avx2 {

void runInstructions(const ExpressionCode& code, const double* x, double* y, std::size_t n, double* registers,
                     std::size_t stride) {
  expression_blocks::runInstructions(code, x, y, n, registers, stride);
}

}  // namespace sonalyx::expression_blocks_avx2
