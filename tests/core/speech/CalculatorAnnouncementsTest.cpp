#include "core/speech/CalculatorAnnouncements.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace sonalyx {
namespace {

struct AnnouncementCase {
  std::string_view (*announce)(int);
  int index;
  const char* expected;  // nullptr: no such index
};

TEST(CalculatorAnnouncements, NameTheSelectorEntriesByIndex) {
  const AnnouncementCase cases[] = {
      {numberBaseAnnouncement, 0, "hexadecimal."}, {numberBaseAnnouncement, 1, "decimal."},
      {numberBaseAnnouncement, 2, "octal."},       {numberBaseAnnouncement, 3, "binary."},
      {numberBaseAnnouncement, 4, nullptr},        {numberBaseAnnouncement, -1, nullptr},
      {angleModeAnnouncement, 0, "degrees."},      {angleModeAnnouncement, 1, "radians."},
      {angleModeAnnouncement, 2, "grad."},         {angleModeAnnouncement, 3, nullptr},
      {angleModeAnnouncement, -1, nullptr},
  };
  for (const auto& c : cases) {
    if (c.expected == nullptr) {
      EXPECT_THROW(c.announce(c.index), std::out_of_range) << c.index;
    } else {
      EXPECT_EQ(c.announce(c.index), c.expected) << c.index;
    }
  }
}

}  // namespace
}  // namespace sonalyx
