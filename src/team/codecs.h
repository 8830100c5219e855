#pragma once

#include "codecs/appearance_codec.h"
#include "codecs/batting_average_codec.h"
#include "codecs/earned_run_average_codec.h"
#include "codecs/fielding_position_codec.h"
#include "codecs/hand_codec.h"
#include "codecs/message_port.h"
#include "codecs/name_letter_codec.h"
#include "codecs/rating_digit_codec.h"
#include "codecs/small_number_codec.h"

namespace morlek {

/// The codecs with everything that they keep for the whole run, shared by loader and saver.
struct Codecs {
  explicit Codecs(MessagePort& messages) : name_letter(messages) {}

  NameLetterCodec name_letter;
  FieldingPositionCodec fielding_position;
  SmallNumberCodec small_number;
  BattingAverageCodec batting_average;
  EarnedRunAverageCodec earned_run_average;
  BattingSideCodec batting_side;
  PitcherMarksCodec pitcher_marks;
  RatingDigitCodec rating_digits;
  AppearanceCodec appearance;
};

}  // namespace morlek
