#include "core/files/SelectedDataSet.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdint>

namespace sonalyx {
namespace {

TEST(SelectedDataSet, SetTypeNamesTheSlot) {
  struct Case {
    std::uint32_t setType;
    std::size_t slot;
  };
  const Case cases[] = {{0, 0}, {1, 1}, {3, 3}, {4, 0}, {0xFFFFFFFFu, 0}};
  std::array<DataSet, 4> slots;
  const auto& constSlots = slots;
  for (const auto& c : cases) {
    SCOPED_TRACE(c.setType);
    EXPECT_EQ(selectedSlot(c.setType), c.slot);
    EXPECT_EQ(&selectedDataSet(constSlots, c.setType), &slots[c.slot]);
    EXPECT_EQ(&selectedDataSet(slots, c.setType), &slots[c.slot]);
  }
}

}  // namespace
}  // namespace sonalyx
