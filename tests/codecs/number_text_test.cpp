#include "codecs/number_text.h"

#include <gtest/gtest.h>

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace morlek {
namespace {

const std::string kManyZeros(400, '0');

// clang-format off
const std::map<std::string, double> kNumbers = {
    {"0", 0}, {"045", 45}, {"+5", 5}, {"-5", -5}, {"5.", 5}, {".5", 0.5}, {"-.5", -0.5},
    {" 45", 45}, {"\t\n\v\f\r 45\r\n\t\v\f ", 45}, {"1e2", 100}, {"1E+2", 100}, {"1e-2", 0.01},
    {"+.5e1", 5}, {"5.e1", 50}, {"1e002", 100}, {"&HFF", 255}, {"&hff", 255}, {" &H5 ", 5},
    {"&HFFFF", -1}, {"&H0FFFF", 65535}, {"&H10000", 65536}, {"&HFFFFFFFF", -1},
    {"1e308", 1e308}, {"1e-999", 0}, {"-1e-999", 0}, {"0e999", 0}, {kManyZeros + "7", 7},
    {"0." + kManyZeros + "1", 0}, {"1e-99999999999999999999", 0}};

const std::vector<std::string> kNoNumbers = {
    "", " ", "abc", "1 2", "1,000", "$5", "5%", "(5)", "5-", "--5", "+-5", "+ 5", "- 5", ".", "+",
    "+.", "e5", ".e5", "1e", "1e+", "1 e2", "1e 2", "1e2.5", "1d2", "1.2.3", "&H", "&HG", "&H 1",
    "&", "H1", "+&HFF", " -&H1", "& H1", "0x10", "inf", "-inf", "nan", "1e999", "-1e999",
    "1.8e308", "1e99999999999999999999", "&H123456789", "\xA0" "5", "\xB2", "5\x80",
    std::string("5\0", 2), "1" + kManyZeros};

const std::map<std::string, int> kBytes = {
    {"0", 0}, {"255", 255}, {"0.5", 0}, {"0.51", 1}, {"1.5", 2}, {"2.5", 2}, {"254.5", 254},
    {"255.4", 255}, {"-0.5", 0}, {"-0", 0}, {"1e2", 100}, {"&HFF", 255}, {" 7 ", 7}};

const std::vector<std::string> kNoBytes = {
    "255.5", "256", "-0.51", "-1", "&H100", "&HFFFF", "1e300", "1e999", "x"};
// clang-format on

TEST(TextToNumber, ReadsDecimalTextAndNothingElse) {
  for (const auto& [text, number] : kNumbers) EXPECT_EQ(TextToNumber(text), number) << text;
  for (const auto& text : kNoNumbers) EXPECT_EQ(TextToNumber(text), std::nullopt) << text;
}

TEST(TextToByte, RoundsHalvesToEvenAndKeepsToAByte) {
  for (const auto& [text, byte] : kBytes) EXPECT_EQ(TextToByte(text), byte) << text;
  for (const auto& text : kNoBytes) EXPECT_EQ(TextToByte(text), std::nullopt) << text;
}

}  // namespace
}  // namespace morlek
