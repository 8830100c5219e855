#include <gtest/gtest.h>

#include "codecs/appearance_codec.h"
#include "codecs/average_codec.h"
#include "codecs/fielding_position_codec.h"
#include "codecs/hand_codec.h"
#include "codecs/name_letter_codec.h"
#include "codecs/rating_digit_codec.h"
#include "codecs/small_number_codec.h"

namespace morlek {
namespace {

/// Unknown texts give nothing before the known one, and its code from then on.
template <typename Encode>
void ExpectKept(Encode encode, const std::string& known, const std::string& code,
                const std::vector<std::string>& unknown) {
  for (const std::string& kept : {std::string(), code}) {
    for (const std::string& text : unknown) {
      EXPECT_EQ(encode(text).text, kept) << text;
      EXPECT_FALSE(encode(text).is_known) << text;
    }
    EXPECT_EQ(encode(known).text, code);
    EXPECT_TRUE(encode(known).is_known) << known;
  }
}

TEST(FieldCodecs, RepeatTheirResultForTextsThatTheyDoNotKnow) {
  FieldingPositionCodec position;
  ExpectKept([&](auto& text) { return position.EncodeFieldingPosition(text); }, "sS", "0C",
             {"", " ", "SP", "LF ", " LF", "B", "2B2", "0", "16"});
  BattingSideCodec side;
  ExpectKept([&](auto& text) { return side.EncodeBattingSide(1, text); }, "l", "11",
             {"", " ", "RL", "B", "R ", " L"});
  PitcherHandEncoder hand;
  ExpectKept([&](auto& text) { return hand.EncodeMarks(text); }, "lS<", "21",
             {"", "S", "RX", "R<S", "R ", " R", "R<>", "RS<>", "<", "X>"});
  SmallNumberCodec number;
  ExpectKept([&](auto& text) { return number.EncodeUniformNumber(3, text); }, "200", "C8",
             {"", "07", " 7", "7 ", "+7", "7.0", "-0", "201", "x", "00", "1e1"});
  BattingAverageCodec batting;
  ExpectKept([&](auto& text) { return batting.EncodeBattingAverage(text); }, ".300", "2C",
             {"", ".", ".3", ".30", ".3000", "0.300", "300", "x300", "1300", " .300", ".300 ",
              ".512", ".600", "1.000", ".+30", ".3 0", ".3e2", "..30", "\x80"});
  EarnedRunAverageCodec earned_run;
  ExpectKept([&](auto& text) { return earned_run.EncodeEarnedRunAverage(text); }, "2.61", "05",
             {"", ".", "3", "3.4", "3.450", "03.45", ".50", "5.12", "6.00", "10.00", " 3.45",
              "3.45 ", "3,45", "345", "+.45", "3.+5"});
  // Only the first 256 rows go without a leading zero.
  EXPECT_EQ(earned_run.EncodeEarnedRunAverage("0.05").text, "5");
}

TEST(AppearanceCodec, FindsTheSkinClassOfEveryCodeAndKeepsItForOthers) {
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
  (void)codec.NormalizeAppearanceCode("5");
  for (const char* text : {"", "6", "A", "405", "0 "}) {
    (void)codec.NormalizeAppearanceCode(text);
    EXPECT_EQ(codec.skin_class(), "0") << text;
  }
}

TEST(NameLetterCodec, KnowsEveryCharacterThatHasACodeAndRepeatsItForOthers) {
  const std::string known = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz .";
  for (int code = -1; code < 256; ++code) {
    const std::string character = code < 0 ? "" : std::string(1, static_cast<char>(code));
    const bool is_known = code >= 0 && known.find(character) != std::string::npos;
    NameLetterCodec codec;
    (void)codec.EncodeNameLetter("Q");
    const CodecAnswer answer = codec.EncodeNameLetter(character);
    EXPECT_TRUE(answer.text == "1B" || is_known) << code;
    EXPECT_EQ(answer.is_known, is_known) << code;
  }
}

struct Pair {
  std::string first, second;
  std::optional<std::int32_t> packed = std::nullopt;
};

TEST(RatingDigitCodec, PacksTwoRatingsByJoiningTheirTexts) {
  // clang-format off
  const std::vector<Pair> pairs = {
      {"10", "3", 0x92}, {"1", "10", 0x99}, {"3", "0", 0x19}, {"4", "10", 0x399}, {"", "25", 0x14},
      {"1e2", "", 0x89}, {" 3", "5", 0x24}, {"3", "5 ", 0x24}, {"&H", "F", 0x04}, {"1", "1.0", 0},
      {"+3", "5", 0x24},
      {"35.00000000000001", "", 0x24},  // the difference is 24 and no more in fifteen digits
      {"8011", "", 32768},              // lifted from below zero
      {"100010", "", 0x99999},
      {"0", "5"}, {"", ""}, {"3 ", "5"}, {"25.5", ""}, {"-5", "3"}, {"x", "5"}, {"3", "x"},
      {"1,", "000"}, {"1e9", ""}, {"1e300", ""}, {"1e999", ""}, {"35.0000000000001", ""}};
  // clang-format on
  for (const auto& [first, second, packed] : pairs) {
    EXPECT_EQ(PackRatings(first, second), packed) << first << " " << second;
  }
}

TEST(RatingDigitCodec, PacksASingleRatingBehindAZero) {
  EXPECT_EQ(PackSingleRating("101"), 0x100);
  EXPECT_EQ(PackSingleRating("5 "), 0x04);
  for (const char* text : {"", "0", " 5", "-5", "+5", "&H5", "x", ".5", "2.5", "1e10"}) {
    EXPECT_EQ(PackSingleRating(text), std::nullopt) << text;
  }
}

}  // namespace
}  // namespace morlek
