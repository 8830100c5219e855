#include "codecs/fielding_position_codec.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace morlek {
namespace {

// In the order of their codes, which are the even numbers.
const std::vector<std::string> kAbbreviations = {"P",  "C",  "LF", "CF", "RF", "3B",
                                                 "SS", "2B", "1B", "DH", "IF", "OF"};
const std::vector<std::string> kCodes = {"00", "02", "04", "06", "08", "0A",
                                         "0C", "0E", "10", "12", "14", "16"};

TEST(FieldingPositionCodec, EncodesEveryAbbreviationAndRepeatsForOthers) {
  FieldingPositionCodec codec;
  EXPECT_EQ(codec.EncodeFieldingPosition("SP"), "");
  for (std::size_t row = 0; row < 12; ++row) {
    EXPECT_EQ(codec.EncodeFieldingPosition(kAbbreviations[row]), kCodes[row]);
  }
  EXPECT_EQ(codec.EncodeFieldingPosition("sS"), "0C");
  EXPECT_EQ(codec.EncodeFieldingPosition("if"), "14");
  for (const char* text : {"", " ", "SP", "LF ", " LF", "B", "2B2", "0", "16"}) {
    EXPECT_EQ(codec.EncodeFieldingPosition(text), "14") << text;
  }
}

}  // namespace
}  // namespace morlek
