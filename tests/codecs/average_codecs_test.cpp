#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

#include "codecs/batting_average_codec.h"
#include "codecs/earned_run_average_codec.h"

namespace morlek {
namespace {

// clang-format off
const std::vector<std::string> kNoBattingAverages = {
    "", ".", ".3", ".30", ".3000", "0.300", "300", " .300", ".300 ", ".512", ".600", "1.000",
    ".+30", ".3 0", ".3e2", "..30", "\x80"};
const std::vector<std::string> kNoEarnedRunAverages = {
    "", ".", "3", "3.4", "3.450", "03.45", ".50", "5.12", "6.00", "10.00", " 3.45", "3.45 ", "3,45",
    "345", "+.45", "3.+5"};
// clang-format on

std::string Hex(int number) {
  std::ostringstream text;
  text << std::uppercase << std::hex << number;
  return text.str();
}

std::string TwoHexDigits(int number) { return (number < 16 ? "0" : "") + Hex(number); }

std::string Decimals(int number) { return std::to_string(1000 + number).substr(1); }

TEST(BattingAverageCodec, EncodesEveryRowAndRepeatsForOthers) {
  BattingAverageCodec codec;
  EXPECT_EQ(codec.EncodeBattingAverage(".600"), "");
  for (int n = 0; n <= 511; ++n) {
    const std::string text = "." + Decimals(n);
    EXPECT_EQ(codec.EncodeBattingAverage(text), TwoHexDigits(n % 256));
    EXPECT_EQ(BattingAverageCodec::HighByte(text), n <= 255 ? 0x30 : 0x31) << text;
  }
  (void)codec.EncodeBattingAverage(".300");
  for (const auto& text : kNoBattingAverages) EXPECT_EQ(codec.EncodeBattingAverage(text), "2C");
}

TEST(EarnedRunAverageCodec, EncodesEveryRowInItsBandAndRepeatsForOthers) {
  EarnedRunAverageCodec codec;
  EXPECT_EQ(codec.EncodeEarnedRunAverage("5.12"), "");
  for (int n = 0; n <= 511; ++n) {
    const std::string text = Decimals(n).insert(1, ".");
    // Only the first 256 rows go without a leading zero.
    EXPECT_EQ(codec.EncodeEarnedRunAverage(text), n <= 255 ? Hex(n) : TwoHexDigits(n - 256));
    EXPECT_EQ(EarnedRunAverageCodec::HighByte(text), n <= 255 ? 0x20 : 0x21) << text;
  }
  (void)codec.EncodeEarnedRunAverage("2.61");
  for (const auto& text : kNoEarnedRunAverages) EXPECT_EQ(codec.EncodeEarnedRunAverage(text), "05");
}

TEST(AverageCodecs, HighBytesComeFromComparingTexts) {
  for (const char* text : {"", ".25", ".2549", "-", " .300", "\x01"}) {
    EXPECT_EQ(BattingAverageCodec::HighByte(text), 0x30) << text;
    EXPECT_EQ(EarnedRunAverageCodec::HighByte(text), 0x20) << text;
  }
  for (const char* text : {"2.550", "2.55 ", "2.6", "2/", "x", "\x80"}) {
    EXPECT_EQ(BattingAverageCodec::HighByte(text), 0x31) << text;
    EXPECT_EQ(EarnedRunAverageCodec::HighByte(text), 0x21) << text;
  }
  EXPECT_EQ(BattingAverageCodec::HighByte(".255 "), 0x31);
  EXPECT_EQ(EarnedRunAverageCodec::HighByte("10.00"), 0x20);
}

}  // namespace
}  // namespace morlek
