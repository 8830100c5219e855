#include "codecs/appearance_codec.h"

#include <gtest/gtest.h>

#include <string>

namespace morlek {
namespace {

TEST(AppearanceCodec, PadsASingleDecimalDigitAndNothingElse) {
  AppearanceCodec codec;
  for (const char digit : std::string("0123456789")) {
    EXPECT_EQ(codec.NormalizeAppearanceCode(std::string(1, digit)), std::string("0") + digit);
  }
  for (const char* text :
       {"", ".", "/", ":", "A", "F", "00", "05", "23", "1F", "1f", "7 ", " 7", "007", "x"}) {
    EXPECT_EQ(codec.NormalizeAppearanceCode(text), text);
  }
}

TEST(AppearanceCodec, TellsTheSkinClassOfEveryCodeAndKeepsItForOthers) {
  AppearanceCodec codec;
  EXPECT_EQ(codec.skin_class(), "");
  for (const char high : std::string("0123456789ABCDEF")) {
    for (const char low : std::string("0123456789ABCDEF")) {
      std::string expected = high == '2' || high == '3' ? "0" : "3";
      (void)codec.NormalizeAppearanceCode(expected + "5");
      const bool has_class = high <= '5' && low <= '5' && !(high == '1' && low == '5');
      if (has_class) expected = high <= '1' ? "0" : high <= '3' ? "3" : "5";
      (void)codec.NormalizeAppearanceCode(std::string{high, low});
      EXPECT_EQ(codec.skin_class(), expected) << high << low;
    }
  }
  (void)codec.NormalizeAppearanceCode("55");
  for (const char* text : {"", "6", "A", "005", "0 "}) {
    (void)codec.NormalizeAppearanceCode(text);
    EXPECT_EQ(codec.skin_class(), "5") << text;
  }
  (void)codec.NormalizeAppearanceCode("5");
  EXPECT_EQ(codec.skin_class(), "0");
}

}  // namespace
}  // namespace morlek
