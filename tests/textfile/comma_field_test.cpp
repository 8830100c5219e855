#include "textfile/comma_field.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace morlek {
namespace {

TEST(CommaFieldTest, GivesTheFieldOfALine) {
  struct Case {
    std::int16_t number;
    const char *line, *field;
  };
  // clang-format off
  const Case cases[] = {
      {0, "A,B,C,", "A"}, {1, "A,B,C,", "B"}, {2, "A,B,C,", "C"}, {3, "A,B,C,", "NOT FOUND"},
      {4, "A,B,C,", "NOT FOUND"}, {32767, "A,B,C,", "NOT FOUND"}, {2, "A,B,C", "C"},
      {3, "A,B,C", "NOT FOUND"}, {0, ",B", ""}, {1, "A,,C", ""}, {2, "A,,C", "C"},
      {1, "whole", "whole"}, {2, "whole", "NOT FOUND"}, {1, "", "NOT FOUND"}, {-1, "A,B,C,", "B"},
      {-32768, "A,B,C,", "B"}};
  // clang-format on
  for (const Case& each : cases) {
    EXPECT_EQ(CommaField(each.number, each.line), each.field)
        << each.number << " of '" << each.line << "'";
  }
}

TEST(CommaFieldTest, FirstFieldNeedsAComma) {
  EXPECT_THROW(static_cast<void>(CommaField(0, "whole")), std::invalid_argument);
  EXPECT_THROW(static_cast<void>(CommaField(0, "")), std::invalid_argument);
}

}  // namespace
}  // namespace morlek
