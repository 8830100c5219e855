#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "codecs/batting_average_codec.h"
#include "codecs/earned_run_average_codec.h"

namespace morlek {
namespace {

// clang-format off
const std::vector<std::string> kNoBattingAverages = {
    "", ".", ".3", ".30", ".3000", "0.300", "300", "x300", "1300", " .300", ".300 ", ".512", ".600", "1.000",
    ".+30", ".3 0", ".3e2", "..30", "\x80"};
const std::vector<std::string> kNoEarnedRunAverages = {
    "", ".", "3", "3.4", "3.450", "03.45", ".50", "5.12", "6.00", "10.00", " 3.45", "3.45 ", "3,45",
    "345", "+.45", "3.+5"};
// clang-format on

TEST(BattingAverageCodec, RepeatsForWhatItDoesNotKnow) {
  BattingAverageCodec codec;
  EXPECT_EQ(codec.EncodeBattingAverage(".600"), "");
  (void)codec.EncodeBattingAverage(".300");
  for (const auto& text : kNoBattingAverages) EXPECT_EQ(codec.EncodeBattingAverage(text), "2C");
}

TEST(EarnedRunAverageCodec, RepeatsForWhatItDoesNotKnow) {
  EarnedRunAverageCodec codec;
  EXPECT_EQ(codec.EncodeEarnedRunAverage("5.12"), "");
  // Only the first 256 rows go without a leading zero.
  EXPECT_EQ(codec.EncodeEarnedRunAverage("0.05"), "5");
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
