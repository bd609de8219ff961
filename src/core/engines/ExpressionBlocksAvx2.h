#pragma once

#include <cstddef>

#include "core/engines/ExpressionCode.h"

namespace sonalyx::expression_blocks_avx2 {

// The block loops of core/engines/ExpressionBlocks.h built for AVX2 and FMA: four
// values per instruction and exact products in one step, the same values as the
// plain build. Only for processors that have both (CompiledFunction checks).
void runInstructions(const ExpressionCode& code, const double* x, double* y, std::size_t n, double* registers,
                     std::size_t stride);

}  // namespace sonalyx::expression_blocks_avx2
