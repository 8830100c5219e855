#include <gtest/gtest.h>

#include <map>

#include "codecs/code_page.h"
#include "codecs/hex_text.h"
#include "codecs/number_text.h"

namespace morlek {
namespace {

using Texts = std::vector<std::string>;

TEST(CodePage, AccentedLettersHaveTheirCapitalsAndSignsNone) {
  EXPECT_EQ(UpperCase("az{ \xE0\xF6\xF8\xFE \x9A\x9C\x9E\xFF \xF7\xDF\x83\xB5"),
            "AZ{ \xC0\xD6\xD8\xDE \x8A\x8C\x8E\x9F \xF7\xDF\x83\xB5");
}

// clang-format off
const std::map<std::string, std::int32_t> kSigned = {
    {"0", 0}, {"f", 15}, {"0B", 11}, {"7FFF", 32767}, {"8000", -32768}, {"FFfF", -1},
    {"08000", 32768}, {"0FFFF", 65535}, {"10000", 65536}, {"7FFFFFFF", 2147483647},
    {"80000000", -2147483647 - 1}, {"FFFFFFFF", -1}, {"0000000A", 10}, {"9a", 154}, {"aF", 175}};

const Texts kNotHexadecimal = {
    "", "000000001", "G", "12G", " 1", "1 ", "-1", "+1", "&H1", "0x1", "1.0", "\x80", "1\t",
    std::string("1\0", 2)};

const std::string kManyZeros(400, '0');

const std::map<std::string, double> kNumbers = {
    {"0", 0}, {"045", 45}, {"+5", 5}, {"-5", -5}, {"5.", 5}, {".5", 0.5}, {"-.5", -0.5},
    {" 45", 45}, {"\t\n\v\f\r 45\r\n\t\v\f ", 45}, {"1e2", 100}, {"1E+2", 100}, {"1e-2", 0.01},
    {"+.5e1", 5}, {"5.e1", 50}, {"1e002", 100}, {"&HFF", 255}, {"&hff", 255}, {" &H5 ", 5},
    {"&HFFFF", -1}, {"&H0FFFF", 65535}, {"&H10000", 65536}, {"&HFFFFFFFF", -1},
    {"1e308", 1e308}, {"1e-999", 0}, {"-1e-999", 0}, {"0e999", 0}, {kManyZeros + "7", 7},
    {"0." + kManyZeros + "1", 0}, {"1e-99999999999999999999", 0}};

const Texts kNoNumbers = {
    "", " ", "abc", "1 2", "1,000", "$5", "5%", "(5)", "5-", "--5", "+-5", "+ 5", "- 5", ".", "+",
    "+.", "e5", ".e5", "1e", "1e+", "1 e2", "1e 2", "1e2.5", "1d2", "1.2.3", "&H", "&HG", "&H 1",
    "&", "H1", "+&HFF", " -&H1", "& H1", "0x10", "inf", "-inf", "nan", "1e999", "-1e999",
    "1.8e308", "1e99999999999999999999", "&H123456789", "\xA0" "5", "\xB2", "5\x80",
    std::string("5\0", 2), "1" + kManyZeros};

const std::map<std::string, int> kBytes = {
    {"0", 0}, {"255", 255}, {"0.5", 0}, {"0.51", 1}, {"1.5", 2}, {"2.5", 2}, {"254.5", 254},
    {"255.4", 255}, {"-0.5", 0}, {"-0", 0}, {"1e2", 100}, {"&HFF", 255}, {" 7 ", 7}};

const Texts kNoBytes = {"255.5", "256", "-0.51", "-1", "&H100", "&HFFFF", "1e300", "1e999", "x"};
// clang-format on

TEST(HexText, ReadsUpToFourDigitsAs16BitsAndMoreAs32) {
  for (const auto& [text, number] : kSigned) {
    EXPECT_EQ(SignedHexToNumber(text), number) << text;
    EXPECT_EQ(ByteTextToNumber(text), number < 0 ? number + 65536 : number) << text;
  }
  for (const auto& text : kNotHexadecimal) EXPECT_EQ(ByteTextToNumber(text), std::nullopt) << text;
}

TEST(NumberText, ReadsDecimalTextAndNothingElse) {
  for (const auto& [text, number] : kNumbers) EXPECT_EQ(TextToNumber(text), number) << text;
  for (const auto& text : kNoNumbers) EXPECT_EQ(TextToNumber(text), std::nullopt) << text;
}

TEST(NumberText, RoundsHalvesToEvenAndKeepsToAByte) {
  for (const auto& [text, byte] : kBytes) EXPECT_EQ(TextToByte(text), byte) << text;
  for (const auto& text : kNoBytes) EXPECT_EQ(TextToByte(text), std::nullopt) << text;
}

}  // namespace
}  // namespace morlek
