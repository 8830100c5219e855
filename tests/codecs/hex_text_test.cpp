#include "codecs/hex_text.h"

#include <gtest/gtest.h>

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "support/recording_messages.h"

namespace morlek {
namespace {

// clang-format off
const std::map<std::string, std::int32_t> kSigned = {
    {"0", 0}, {"f", 15}, {"0B", 11}, {"7FFF", 32767}, {"8000", -32768}, {"FFfF", -1},
    {"08000", 32768}, {"0FFFF", 65535}, {"10000", 65536}, {"7FFFFFFF", 2147483647},
    {"80000000", -2147483647 - 1}, {"FFFFFFFF", -1}, {"0000000A", 10}, {"9a", 154}, {"aF", 175}};

const std::vector<std::string> kNotHexadecimal = {
    "", "000000001", "G", "12G", " 1", "1 ", "-1", "+1", "&H1", "0x1", "1.0", "\x80", "1\t",
    std::string("1\0", 2)};

const std::map<std::string, std::int64_t> kUnsigned = {
    {"FF", 255}, {"&hFF", 255}, {"&HfF", 255}, {"FFFF", 65535}, {"80000000", 2147483648},
    {"FFFFFFFF", 4294967295}, {"123456789", 0x23456789}, {"G12345678", 0x12345678},
    {"&H112345678", 0x12345678}, {"", 0}, {"&H", 0}, {"XYZ", 0}, {"-1", 0}, {" FF", 0}, {"FF ", 0},
    {"&H&H12", 0}, {"12G45678", 0}};

const std::map<std::string, std::string> kTold = {
    {"12g", "12G is Not a valid hexadecimal number"},
    {"&h10", "&H10 is Not a valid hexadecimal number"},
    {" \xE9", " \xC9 is Not a valid hexadecimal number"},
    {"123456789z", "123456789Z is Not a valid hexadecimal number"},
    {"/", "/ is Not a valid hexadecimal number"}, {":", ": is Not a valid hexadecimal number"},
    {"@", "@ is Not a valid hexadecimal number"}, {"`", "` is Not a valid hexadecimal number"}};
// clang-format on

TEST(HexText, ReadsUpToFourDigitsAs16BitsAndMoreAs32) {
  for (const auto& [text, number] : kSigned) {
    EXPECT_EQ(SignedHexToNumber(text), number) << text;
    EXPECT_EQ(ByteTextToNumber(text), number < 0 ? number + 65536 : number) << text;
  }
  for (const auto& text : kNotHexadecimal) EXPECT_EQ(ByteTextToNumber(text), std::nullopt) << text;
}

TEST(HexToDec, ConvertsWithoutAWord) {
  RecordingMessages messages;
  for (const auto& [text, number] : kSigned) EXPECT_EQ(Hex_to_Dec(text, messages), number) << text;
  EXPECT_EQ(Hex_to_Dec("", messages), std::nullopt);
  EXPECT_EQ(Hex_to_Dec("123456789", messages), std::nullopt);
  EXPECT_TRUE(messages.shown.empty());
}

TEST(HexToDec, TellsOfTextThatIsNotHexadecimal) {
  for (const auto& [text, told] : kTold) {
    RecordingMessages messages;
    EXPECT_EQ(Hex_to_Dec(text, messages), 0) << text;
    ASSERT_EQ(messages.shown.size(), 1U) << text;
    EXPECT_EQ(messages.shown[0], (Message{told, "Hex_to_Dec", Message::Icon::kCritical}));
  }
}

TEST(HexToUnsigned, TakesTheLastEightDigits) {
  for (const auto& [text, number] : kUnsigned) EXPECT_EQ(Hex_to_Unsigned(text), number) << text;
}

}  // namespace
}  // namespace morlek
