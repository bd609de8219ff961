#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "core/math/DataSet.h"

namespace sonalyx {

// The slot that the setting setType makes current for saving, copying, drawing and
// playing: 1, 2 and 3 name their own slots, anything else data set 1.
std::size_t selectedSlot(std::uint32_t setType);

const DataSet& selectedDataSet(const std::array<DataSet, 4>& slots, std::uint32_t setType);
DataSet& selectedDataSet(std::array<DataSet, 4>& slots, std::uint32_t setType);

}  // namespace sonalyx
