#include "core/files/SelectedDataSet.h"

namespace sonalyx {

std::size_t selectedSlot(std::uint32_t setType) {
  switch (setType) {
    case 1:
      return DataSet::Data2;
    case 2:
      return DataSet::Sum;
    case 3:
      return DataSet::Difference;
    default:
      return DataSet::Data1;
  }
}

const DataSet& selectedDataSet(const std::array<DataSet, 4>& slots, std::uint32_t setType) {
  return slots[selectedSlot(setType)];
}

DataSet& selectedDataSet(std::array<DataSet, 4>& slots, std::uint32_t setType) {
  return slots[selectedSlot(setType)];
}

}  // namespace sonalyx
