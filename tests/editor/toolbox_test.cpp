#include "editor/toolbox.h"

#include <gtest/gtest.h>

#include <map>
#include <stdexcept>

#include "support/recording_messages.h"

namespace morlek {
namespace {

// clang-format off
const std::map<std::string, std::int64_t> kUnsigned = {
    {"FF", 255}, {"&hFF", 255}, {"&HfF", 255}, {"FFFF", 65535}, {"80000000", 2147483648},
    {"FFFFFFFF", 4294967295}, {"123456789", 0x23456789}, {"G12345678", 0x12345678},
    {"&H112345678", 0x12345678}, {"", 0}, {"&H", 0}, {"XYZ", 0}, {"-1", 0}, {" FF", 0}, {"FF ", 0},
    {"&H&H12", 0}, {"12G45678", 0}};

const std::map<std::string, std::string> kReported = {
    {"12g", "12G"}, {"&h10", "&H10"}, {" \xE9", " \xC9"}, {"123456789z", "123456789Z"},
    {"/", "/"}, {":", ":"}, {"@", "@"}, {"`", "`"}};

// clang-format on

TEST(Toolbox, HexToDecReportsTextThatIsNotHexadecimal) {
  RecordingMessages none;
  EXPECT_EQ(Hex_to_Dec("1f", none), 31);
  EXPECT_EQ(Hex_to_Dec("ffff", none), -1);
  for (const char* text : {"", "123456789"}) EXPECT_EQ(Hex_to_Dec(text, none), std::nullopt);
  EXPECT_TRUE(none.shown.empty());
  for (const auto& [text, capitals] : kReported) {
    RecordingMessages messages;
    EXPECT_EQ(Hex_to_Dec(text, messages), 0) << text;
    const Message report = {capitals + " is Not a valid hexadecimal number", "Hex_to_Dec",
                            Message::Icon::kCritical};
    EXPECT_EQ(messages.shown, std::vector<Message>{report});
  }
}

TEST(Toolbox, HexToUnsignedTakesTheLastEightDigits) {
  for (const auto& [text, number] : kUnsigned) EXPECT_EQ(Hex_to_Unsigned(text), number) << text;
}

TEST(Toolbox, CommaFieldGivesTheFieldOfALine) {
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
  for (const auto& [number, line, field] : cases) {
    EXPECT_EQ(CommaField(number, line), field) << number << " of '" << line << "'";
  }
  for (const char* line : {"whole", ""}) {
    EXPECT_THROW((void)CommaField(0, line), std::invalid_argument);
  }
}

}  // namespace
}  // namespace morlek
