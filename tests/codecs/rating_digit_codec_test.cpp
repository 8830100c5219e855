#include "codecs/rating_digit_codec.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

namespace morlek {
namespace {

struct Pair {
  std::string first, second;
  std::optional<std::int32_t> packed = std::nullopt;
};

// clang-format off
const std::vector<Pair> kPairs = {
    {"4", "6", 0x35}, {"1", "1", 0x00}, {"10", "1", 0x90}, {"10", "3", 0x92}, {"1", "10", 0x99},
    {"3", "0", 0x19}, {"4", "10", 0x399}, {"", "25", 0x14}, {"1e2", "", 0x89}, {" 3", "5", 0x24},
    {"3", "5 ", 0x24}, {"&H", "F", 0x04}, {"1", "1.0", 0x00}, {"+3", "5", 0x24},
    {"35.00000000000001", "", 0x24},  // the difference is 24 and no more in fifteen digits
    {"8011", "", 32768},              // lifted from below zero
    {"100010", "", 0x99999},
    {"0", "5"}, {"", ""}, {"3 ", "5"}, {"25.5", ""}, {"-5", "3"}, {"x", "5"}, {"3", "x"},
    {"1,", "000"}, {"1e9", ""}, {"1e300", ""}, {"1e999", ""}, {"35.0000000000001", ""}};
// clang-format on

TEST(RatingDigitCodec, PacksTwoRatingsByJoiningTheirTexts) {
  for (const Pair& pair : kPairs) {
    EXPECT_EQ(PackRatings(pair.first, pair.second), pair.packed) << pair.first << pair.second;
  }
}

TEST(RatingDigitCodec, PacksASingleRatingBehindAZero) {
  EXPECT_EQ(PackSingleRating("12"), 0x11);
  EXPECT_EQ(PackSingleRating("101"), 0x100);
  EXPECT_EQ(PackSingleRating("5 "), 0x04);
  for (const char* text : {"", "0", " 5", "-5", "+5", "&H5", "x", ".5", "2.5", "1e10"}) {
    EXPECT_EQ(PackSingleRating(text), std::nullopt) << text;
  }
}

}  // namespace
}  // namespace morlek
