#include "team/accepted_texts.h"

#include "codecs/average_codec.h"
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

std::string AcceptedTexts(Column column) {
  using enum Column;
  switch (column) {
    case kName:
      return "an initial, a period and up to " + std::to_string(kNameBytes - 1) + " letters A to Z";
    case kPosition:
      return FieldingPositionCodec::Abbreviations();
    case kBattingSide:
      return BattingSideCodec::Letters();
    case kThrowingHand:
      return "R or L, alone or with " + PitcherMarks() + " behind it";
    case kBatting:
    case kPitchSpeed:
    case kSpeed:
      return Numbers(1, kLargestFirstRating);
    case kPower:
    case kControl:
    case kFielding:
      return Numbers(1, kLargestSecondRating);
    case kFatigue:
      return Numbers(1, kLargestSingleRating);
    case kBattingAverage:
      return Averages(0);
    case kEarnedRunAverage:
      return Averages(1);
    case kUniformNumber:
    case kHomeRuns:
    case kRunsBattedIn:
    case kWins:
    case kLosses:
    case kSaves:
      return Numbers(0, kLargestSmallNumber);
    case kFace:
    case kBody:
    case kLegs:
      return FromTo(ByteToText(0x00), ByteToText(0xFF)) + " in hexadecimal";
  }
  return {};
}

}  // namespace morlek
