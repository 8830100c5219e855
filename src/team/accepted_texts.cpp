#include "team/accepted_texts.h"

#include "codecs/average_word.h"
#include "codecs/fielding_position_codec.h"
#include "codecs/hand_codec.h"
#include "codecs/hex_text.h"
#include "codecs/rating_digit_codec.h"
#include "codecs/small_number_codec.h"

namespace morlek {
namespace {

std::string FromTo(const std::string& first, const std::string& last) {
  return first + " to " + last;
}

std::string Numbers(int first, int last) {
  return FromTo(std::to_string(first), std::to_string(last));
}

/// An average, 0 to kLargestAverage, with its point before the last digits.
std::string Average(int number, std::size_t digits_before_point) {
  return ThreeDigits(number).insert(digits_before_point, 1, '.');
}

std::string Averages(std::size_t digits_before_point) {
  return FromTo(Average(0, digits_before_point), Average(kLargestAverage, digits_before_point));
}

}  // namespace

std::string AcceptedTexts(Column column, bool is_pitcher) {
  using enum Column;
  switch (column) {
    case kText1:
      return "an initial, a period and up to " + std::to_string(kNameBytes - 1) + " letters A to Z";
    case kText2:
      return FieldingPositionCodec::Abbreviations();
    case kText4:
      return is_pitcher ? "R or L, alone or with " + PitcherMarks() + " behind it"
                        : BattingSideCodec::Letters();
    case kText5:
      return Numbers(1, kLargestFirstRating);
    case kText6:
      return Numbers(1, kLargestSecondRating);
    case kText7:
      return Numbers(1, is_pitcher ? kLargestSingleRating : kLargestFirstRating);
    case kText8:
      return is_pitcher ? Numbers(0, kLargestSmallNumber) : Numbers(1, kLargestSecondRating);
    case kText9:
      return Averages(is_pitcher ? 1 : 0);
    case kText3:
    case kText10:
    case kText11:
      return Numbers(0, kLargestSmallNumber);
    case kText12:
    case kText13:
    case kText14:
      return FromTo(ByteToText(0x00), ByteToText(0xFF)) +
             " in hexadecimal; click a box to pick from pictures";
  }
  return {};
}

}  // namespace morlek
